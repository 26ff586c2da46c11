// engine/ModuloCalcoliNTC.cpp - resistances and ratios of the anchor rods, NTC 2008 4.2.8.1.1.
#include "engine/ModuloCalcoliNTC.h"

#include <cmath>

#include "core/numeri.h"
#include "core/testo.h"
#include "engine/Tirafondi.h"

constexpr double RAPPORTO_SENZA_RESISTENZA = 100;
constexpr double STESSA_POSIZIONE = 0.01;  // mm
constexpr int PAR_GIOCO_FORO = 5;  // option whose number enlarges the hole, mm; it is also a text colour: a high one lowers FbRd (safe)

namespace {
// Shear plane through the thread, NTC 2008 4.2.8.1.1 (4.2.57), (4.2.58): by the class that the name holds, 0 an unknown one.
struct ClasseVite {
  const char* classe;
  double coeff;
};
}  // namespace

constexpr ClasseVite CLASSI_VITI[] = {{"4.6", 0.6}, {"5.6", 0.6}, {"8.8", 0.6}, {"6.8", 0.5}, {"10.9", 0.5}};

static double CoeffTaglio(const Nodo& nodo) {
  for (const ClasseVite& c : CLASSI_VITI)
    if (Contiene(nodo.MatVit.Nome, c.classe)) return c.coeff;
  return 0;
}

namespace {
// Where an anchor stands among those in line with it along one axis: at an end, or between two.
struct Fila {
  double minimo, massimo, passo;
};
}  // namespace

// lungo, trasv: positions along the axis and across it. In line: within 30 degrees of the axis, bounds included.
static Fila FilaTirafondo(const Nodo& nodo, int i, const double* lungo, const double* trasv) {
  const double tan30 = std::tan(PI_PROG / 6);
  Fila f = {lungo[i], lungo[i], 1e20};
  for (int j = 1; j <= nodo.NTir; ++j) {
    const double distanza = std::fabs(lungo[j] - lungo[i]);
    if (!(std::fabs(trasv[i] - trasv[j]) <= distanza * tan30)) continue;
    f.minimo = MinDi(f.minimo, lungo[j]);
    f.massimo = MaxDi(f.massimo, lungo[j]);
    if (j != i) f.passo = MinDi(f.passo, distanza);
  }
  return f;
}

static bool Coincide(double a, double b) { return std::fabs(a - b) < STESSA_POSIZIONE; }

// k of the bearing resistance, along Z: NTC 2008 4.2.8.1.1 (4.2.61).
static double CoeffK(const Nodo& nodo, int i, double d0) {
  const double z = nodo.TfZ[i];
  const Fila f = FilaTirafondo(nodo, i, nodo.TfZ, nodo.TfY);
  double k;
  if (Coincide(z, f.minimo)) k = 2.8 * z / d0 - 1.7;
  else if (Coincide(z, f.massimo)) k = 2.8 * (nodo.LatoZ - z) / d0 - 1.7;
  else k = 1.4 * f.passo / d0 - 1.7;
  return MinDi(k, 2.5);
}

// alfa of the bearing resistance, along Y. The strength ratio is taken at the thin products' strength for any
// thickness: with a thick plate a little low (safe).
static double CoeffAlfa(const Nodo& nodo, int i, double d0) {
  const double y = nodo.TfY[i];
  const Fila f = FilaTirafondo(nodo, i, nodo.TfY, nodo.TfZ);
  double a;
  if (Coincide(y, f.minimo)) a = y / (3 * d0);
  else if (Coincide(y, f.massimo)) a = (nodo.LatoY - y) / (3 * d0);
  else a = f.passo / (3 * d0) - 0.25;
  a = MinDi(a, nodo.MatVit.Ft / nodo.MatAcc.Ftk);
  return MinDi(a, 1);
}

void ResistenzeNTC(Lavoro& l) {
  const Nodo& nodo = *l.nodo;
  Risultati& ris = l.ris;
  const double A = AreaTirafondo(l), t = nodo.SpessPiastra, gamma = nodo.MatVit.GammaM2;
  const double ftb = nodo.MatTir.Ftk, fu = t <= SpessSottile ? nodo.MatAcc.Ftk : nodo.MatAcc.Ftk40;
  const double coeff = CoeffTaglio(nodo);
  ris.FvRd = coeff > 0 ? coeff * ftb * A / 100 / gamma : 0;
  const double d0 = nodo.TfFi + l.suite->ParNodo[PAR_GIOCO_FORO];
  for (int i = 1; i <= nodo.NTir; ++i) ris.FbRd[i] = CoeffK(nodo, i, d0) * CoeffAlfa(nodo, i, d0) * fu * nodo.TfFi * t / 100 / gamma;
  ris.FtRd = 0.9 * ftb * A / 100 / gamma;
  ris.BpRd = 0.6 * PI_PROG * fu * (1.5 * nodo.TfFi) * t / 100 / gamma;  // mean diameter of the nut 1.5 Fi

  const MatCls& cls = nodo.MatCls;
  const double r = nodo.TfR / 2;
  l.TauCls = 0.28 * std::sqrt(0.83 * cls.Rck / 10 / cls.GammaC);
  if (nodo.TipoTirafondo == 1) ris.TadRd = TiroUncino(l) / N_SU_DAN;
  if (nodo.TipoTirafondo == 0)
    ris.TadRd = (TiroFusto(l) + (cls.Rck / 10 * 0.83 * 0.85 / cls.GammaC) * (1 - PerditaPiastrina(nodo)) * PI_PROG * (r * r)) / N_SU_DAN;
  ris.TadRd = MinDi(ris.TadRd, l.verifica.AreaTf / 100 * ftb / gamma);
}

void ForzeTirafondiNTC(Lavoro& l, int s) {
  const double A = l.verifica.AreaTf;
  for (int i = 1; i <= l.nodo->NTir; ++i) l.ris.FtEd[s][i] = A * l.ris.SigmaTir[s][i];
}

// |f| over the lesser of two resistances, or 100 if one is not positive.
static double Rapporto(double f, double Ra, double Rb) {
  if (Ra <= 0 || Rb <= 0) return RAPPORTO_SENZA_RESISTENZA;
  return std::fabs(f) / MinDi(Ra, Rb);
}

// NTC 2008 4.2.8.1.1 (4.2.65); the shear is compared with zero exactly.
static double RapportoCo1(const Risultati& ris, double Fv, double Ft, double FbRd) {
  if (Ft <= 0) return std::fabs(Fv) > 0 ? Rapporto(Fv, ris.FvRd, FbRd) : 0;
  if (Fv == 0) return Rapporto(Ft, ris.FtRd, ris.BpRd);
  if (ris.FvRd <= 0 || FbRd <= 0 || ris.FtRd <= 0 || ris.BpRd <= 0) return RAPPORTO_SENZA_RESISTENZA;
  return std::fabs(Fv) / MinDi(ris.FvRd, FbRd) + (std::fabs(Ft) / 1.4) / MinDi(ris.FtRd, ris.BpRd);
}

void RapportiTirafondiNTC(Lavoro& l) {
  const Nodo& nodo = *l.nodo;
  Risultati& ris = l.ris;
  for (int s = 1; s <= nodo.NumSoll; ++s)
    for (int i = 1; i <= nodo.NTir; ++i) {
      const double Ft = ris.FtEd[s][i];
      ris.Co1[s][i] = RapportoCo1(ris, ris.FvEd[s][i], Ft, ris.FbRd[i]);
      ris.Co2[s][i] = Rapporto(Ft, ris.FtRd, ris.BpRd);
      ris.Co3[s][i] = Rapporto(Ft, ris.TadRd, ris.TadRd);
    }
}
