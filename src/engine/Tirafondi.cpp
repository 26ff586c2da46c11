// engine/Tirafondi.cpp - forces on the anchor rods, their bond, the constants of the allowable stresses.
#include "engine/Tirafondi.h"

#include <cmath>

#include "core/area_resistente.h"
#include "core/numeri.h"

void InerziaTirafondi(const Nodo& nodo, double& somma, double (&armZ)[MaxTir + 1], double (&armY)[MaxTir + 1]) {
  somma = 0;
  for (int i = 1; i <= nodo.NTir; ++i) {
    armZ[i] = nodo.TfZ[i] - nodo.LatoZ / 2;
    armY[i] = nodo.TfY[i] - nodo.LatoY / 2;
    somma += armZ[i] * armZ[i] + armY[i] * armY[i];
  }
}

double AreaTirafondo(Lavoro& l) {
  OrigineArea origine;
  const double area = AreaResistente(*l.suite, l.nodo->TfFi, origine);
  if (origine.estrapolata) l.ris.FlagDiamEstrapolato = true;
  if (origine.interpolata) l.ris.FlagDiamInterpolato = true;
  return area;
}

double TaglioTirafondo(const Lavoro& l, int i) {
  const Nodo& nodo = *l.nodo;
  const StatoVerifica& v = l.verifica;
  const double Fz = v.Tz / nodo.NTir - v.ArmY[i] * v.Mt / v.SommaR2;
  const double Fy = v.Ty / nodo.NTir - v.ArmZ[i] * v.Mt / v.SommaR2;
  return std::sqrt(Fz * Fz + Fy * Fy);
}

void TaglioTirafondi(Lavoro& l, int s) {
  const Nodo& nodo = *l.nodo;
  Risultati& ris = l.ris;
  for (int i = 1; i <= nodo.NTir; ++i) {
    const double F = TaglioTirafondo(l, i);
    if (l.TipoVer == MetodoTA) {
      ris.SRfTir[s][i] = F / nodo.SpessPiastra / nodo.TfFi;
      ris.TauTir[s][i] = F / l.verifica.AreaTf;
      ris.TiroTir[s][i] = l.verifica.AreaTf * ris.SigmaTir[s][i];
    } else {
      ris.FvEd[s][i] = F;
    }
  }
}

// Bond of a millimetre of rod, reduced near the footing's edge.
static double AderenzaUnitaria(const Lavoro& l) {
  const Nodo& nodo = *l.nodo;
  const double r = 1 + nodo.TfFi / nodo.TfDistBordo;
  return l.TauCls / (r * r) * PI_PROG * nodo.TfFi;
}

double TiroUncino(const Lavoro& l) {
  const Nodo& nodo = *l.nodo;
  return AderenzaUnitaria(l) * (nodo.TfL + nodo.TfR + 6.4 * nodo.TfR + 3.5 * nodo.TfL1);
}

double TiroFusto(const Lavoro& l) { return AderenzaUnitaria(l) * (l.nodo->TfL1 - l.nodo->TfLF); }

double PerditaPiastrina(const Nodo& nodo) {
  const double c = nodo.TfDistBordo;
  return nodo.TfL1 <= c ? (nodo.TfR / 2) / nodo.TfL1 : (nodo.TfR / 2) / c;
}

void ResistenzeTA(Lavoro& l) {
  const Nodo& nodo = *l.nodo;
  const double Rck = nodo.MatCls.Rck / 10, r = nodo.TfR / 2;
  l.SAmmCls = (Rck - 15) / 4 + 6;
  l.TauCls = Arrotonda1(((Rck - 15) / 75 + 0.4) * 0.15);
  // The hooked rod is divided by 100, not by the newtons in a decanewton: a tenth of its bond (safe). Other forms keep what the run had.
  if (nodo.TipoTirafondo == 1) l.ris.TadRd = TiroUncino(l) / 100;
  if (nodo.TipoTirafondo == 0) l.ris.TadRd = (TiroFusto(l) + (1 - PerditaPiastrina(nodo)) * PI_TA * (r * r) * l.SAmmCls) / N_SU_DAN;
}
