// engine/Tirafondi.cpp - forces on the anchor rods, their bond, the constants of the allowable stresses.
#include "engine/Tirafondi.h"

#include <cmath>

#include "core/numeri.h"
#include "core/unita.h"
#include "engine/verifica.h"

void InerziaTirafondi(double& somma, double (&armZ)[MaxTir + 1], double (&armY)[MaxTir + 1]) {
  somma = 0;
  for (int i = 1; i <= nodo.NTir; ++i) {
    armZ[i] = nodo.TfZ[i] - nodo.LatoZ / 2;
    armY[i] = nodo.TfY[i] - nodo.LatoY / 2;
    somma += armZ[i] * armZ[i] + armY[i] * armY[i];
  }
}

double TaglioTirafondo(int i) {
  const StatoVerifica& v = verifica;
  const double Fz = v.Tz / nodo.NTir - v.ArmY[i] * v.Mt / v.SommaR2;
  const double Fy = v.Ty / nodo.NTir - v.ArmZ[i] * v.Mt / v.SommaR2;
  return std::sqrt(Fz * Fz + Fy * Fy);
}

void TaglioTirafondi(int s) {
  for (int i = 1; i <= nodo.NTir; ++i) {
    const double F = TaglioTirafondo(i);
    if (nodo.TipoVer == 0) {
      ris.SRfTir[s][i] = F / nodo.SpessPiastra / nodo.TfFi;
      ris.TauTir[s][i] = F / verifica.AreaTf;
      ris.TiroTir[s][i] = verifica.AreaTf * ris.SigmaTir[s][i];
    } else {
      ris.FvEd[s][i] = F;
    }
  }
}

// Bond of a millimetre of rod, reduced near the footing's edge.
static double AderenzaUnitaria() {
  const double r = 1 + nodo.TfFi / nodo.TfDistBordo;
  return nodo.MatCls.TauCls / (r * r) * PI_PROG * nodo.TfFi;
}

double TiroUncino() {
  return AderenzaUnitaria() * (nodo.TfL + nodo.TfR + 6.4 * nodo.TfR + 3.5 * nodo.TfL1);
}

double TiroFusto() { return AderenzaUnitaria() * (nodo.TfL1 - nodo.TfLF); }

double PerditaPiastrina() {
  const double c = nodo.TfDistBordo;
  return nodo.TfL1 <= c ? (nodo.TfR / 2) / nodo.TfL1 : (nodo.TfR / 2) / c;
}

void ResistenzeTA() {
  MatCls& cls = nodo.MatCls;
  const double Rck = cls.Rck / 10, r = nodo.TfR / 2;
  cls.SAmm = (Rck - 15) / 4 + 6;
  cls.TauCls = Arrotonda1(((Rck - 15) / 75 + 0.4) * 0.15);
  // The hooked rod is divided by 100, not by the factor of the newton (deliberate). Other forms keep what the run had.
  if (nodo.TipoTirafondo == 1) ris.TadRd = TiroUncino() / 100;
  if (nodo.TipoTirafondo == 0)
    ris.TadRd = (TiroFusto() + (1 - PerditaPiastrina()) * PI_TA * (r * r) * cls.SAmm) / FattForza("N");
}
