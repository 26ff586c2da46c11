// engine/Saldature.cpp - weld coordinates as tables, elementary beam theory of the group.
#include "engine/Saldature.h"

#include <cmath>
#include <numbers>
#include <string>

#include "core/numeri.h"
#include "engine/Nervature.h"
#include "model/saldature_colonna.h"

// Shear carried by weld w = 1..28: z Tz, y Ty, i Ty only if SaldInt = 1. Index 0 free.
constexpr char TAGLIO[1 + SALD_PIASTRA + 1] = "."
                                              "yzzzyzzz"
                                              "iyyyyyzzzz"
                                              "iyyyyyzzzz";

double Direzione(double x1, double y1, double x2, double y2) {
  if (std::fabs(x2 - x1) < TOLL_GEO) return y1 < y2 ? PI_PROG / 2 : -PI_PROG / 2;
  if (std::fabs(y2 - y1) < TOLL_GEO) return x1 < x2 ? 0 : PI_PROG;
  if (x2 - x1 > 0) return std::atan((y2 - y1) / (x2 - x1));
  return std::atan((y2 - y1) / std::fabs(x2 - x1)) + (y2 > y1 ? 1 : -1) * PI_PROG / 2;
}

void AggiungiSaldatura(Lavoro& l, double zf, double yf, double zi, double yi, int lato, int indice) {
  const Nodo& nodo = *l.nodo;
  if (nodo.Gola == 0) return;
  Saldatura& d = l.ris.Saldature[indice];
  const double G = nodo.GolaCalc;
  const double L = std::sqrt((zf - zi) * (zf - zi) + (yf - yi) * (yf - yi));
  d.Lung = Arrotonda1(L);
  d.Nome = std::string("S").append(std::to_string(indice));
  d.Ang[1] = Direzione(0, 0, zf, yf);
  d.Ang[3] = Direzione(0, 0, zi, yi);
  d.Ang[2] = Direzione(zf, yf, zi, yi);
  const double dz = lato * G / 2 * std::sin(d.Ang[2]), dy = lato * G / 2 * std::cos(d.Ang[2]);
  const double z[4] = {0, zf, (zf + zi) / 2, zi}, y[4] = {0, yf, (yf + yi) / 2, yi};
  for (int k = 1; k <= 3; ++k) {
    d.PZ[k] = z[k] - dz;
    d.PY[k] = y[k] + dy;
  }
  const double lungo = Cubo(L) * G / 12, stretto = Cubo(G) * L / 12;
  const bool lungoY = std::fabs(zf - zi) < TOLL_GEO;
  d.Iz = lungoY ? lungo : stretto;
  d.Iy = lungoY ? stretto : lungo;
  d.Ip = d.Iz + d.Iy;
}

static void SaldatureColonna(Lavoro& l) {
  int w = 0;
  for (const Estremi& t : TrattiColonna(l.nodo->Sezione).tratti) AggiungiSaldatura(l, t.zf, t.yf, t.zi, t.yi, +1, ++w);
}

namespace {
// One call of a pass: weld n + m o, o the pass's offset. lato: 'c' against the pass's side, '=' as the call before, '-' always -1.
struct Chiamata {
  int n, m;
  char lato;
  bool soloInterne;
  double zi, yi, zf, yf;
};
}  // namespace

// Ribs of one side c, -1 or +1. lato enters as the last call left it and leaves so: the first call of the second pass thus
// depends on the inner welds of the first, and weld 23 lies a throat off its side without them. The mid-lines of 12, 13, 15, 18, 22, 25, 28
// lie on the rib's side in any case: the group's inertia is off by as much, to either side.
static void SaldatureNervature(Lavoro& l, int c, int& lato) {
  const Nodo& nodo = *l.nodo;
  const double H = nodo.Sezione.H / 2, B = nodo.Sezione.B / 2, e = nodo.Sezione.E, SP = nodo.SpNerv, HN = nodo.HNerv;
  const double Z = c * (nodo.LatoZ / 2), Y = nodo.LatoY / 2, z = c * B, zs = c * (B + SP), zh = c * (H - SP);
  // clang-format off
  const Chiamata CHIAMATE[] = {
    // on the plate: offset 10 in the second pass
    { 13, 10, '=', false, z,  -H,      z,  -Y      },
    { 11, 10, 'c', false, z,  H,       z,  Y       },
    { 14, 10, 'c', false, zs, -H,      zs, -Y      },
    { 10, 10, 'c', false, zs, H - SP,  zs, -H + SP },
    { 12, 10, 'c', false, zs, H,       zs, Y       },
    { 18, 10, 'c', false, zs, -H,      Z,  -H      },
    { 17, 10, 'c', false, zs, -H + SP, Z,  -H + SP },
    { 15, 10, 'c', false, zs, H - SP,  Z,  H - SP  },
    { 16, 10, 'c', false, zs, H,       Z,  H       },
    { 9,  10, 'c', true,  z,  H - e,   z,  -H + e  },
    // on the column, from height 0 to HNerv
    { 29, 2,  'c', false, z,  0, z,  HN },
    { 38, -2, 'c', false, z,  0, z,  HN },
    { 30, 2,  'c', false, zs, 0, zs, HN },
    { 33, 2,  '-', false, zh, 0, zh, HN },
    { 40, -1, '-', false, zh, 0, zh, HN },
    { 41, 1,  'c', true,  z,  0, z,  HN },
    { 43, 1,  'c', true,  z,  0, z,  HN },
  };
  // clang-format on
  for (const Chiamata& r : CHIAMATE) {
    if (r.soloInterne && nodo.SaldInt != 1) continue;
    if (r.lato == 'c') lato = -c;
    if (r.lato == '-') lato = -1;
    AggiungiSaldatura(l, r.zf, r.yf, r.zi, r.yi, lato, r.n + (c > 0 ? r.m : 0));
  }
}

void CostruisciSaldature(Lavoro& l) {
  const Nodo& nodo = *l.nodo;
  l.usato = true;
  SaldatureColonna(l);
  l.NumSaldature = SALD_COLONNA;
  if (nodo.TipoNodo != 2) return;
  int lato = +1;
  for (const int c : {-1, +1}) SaldatureNervature(l, c, lato);
  const double z34 = nodo.Sezione.H / 2, z37 = -(nodo.Sezione.B / 2 + nodo.SpNerv);
  AggiungiSaldatura(l, z34, nodo.HNerv, z34, 0, lato, 34);
  AggiungiSaldatura(l, z37, nodo.HNerv, z37, 0, lato, 37);
  l.NumSaldature = nodo.SaldInt != 0 ? 44 : 40;
}

static int UltimaSuPiastra(const Lavoro& l) { return l.nodo->TipoNodo == 2 ? SALD_PIASTRA : SALD_COLONNA; }

void InerziaSaldature(const Lavoro& l, double& iz, double& iy, double& ip, double& lungTz, double& lungTy) {
  const Nodo& nodo = *l.nodo;
  iz = iy = ip = lungTz = lungTy = 0;
  for (int w = 1; w <= UltimaSuPiastra(l); ++w) {
    const Saldatura& d = l.ris.Saldature[w];
    (TAGLIO[w] == 'z' ? lungTz : lungTy) += d.Lung;  // inner welds count even when they are not built: their length is 0, or stale
    if (TAGLIO[w] == 'i' && nodo.SaldInt != 1) continue;
    const double Aw = nodo.GolaCalc * d.Lung, y2 = d.PY[2] * d.PY[2], z2 = d.PZ[2] * d.PZ[2];
    iz += d.Iz + Aw * y2;
    iy += d.Iy + Aw * z2;
    ip += d.Ip + Aw * (z2 + y2);
  }
}

// Uniform share of the shear; without ribs the two web welds carry Ty by their own length.
static double QuotaTaglio(const Lavoro& l, int w) {
  const Nodo& nodo = *l.nodo;
  const StatoVerifica& v = l.verifica;
  const double G = nodo.GolaCalc;
  if (TAGLIO[w] == 'z') return v.Tz / v.LungTz / G;
  if (nodo.TipoNodo == 1) return v.Ty / 2 / G / l.ris.Saldature[w].Lung;
  if (TAGLIO[w] == 'i' && nodo.SaldInt != 1) return 0;
  return v.Ty / v.LungTy / G;
}

void DirezioniSaldature(Lavoro& l) {
  StatoVerifica& v = l.verifica;
  for (int w = 1; w <= UltimaSuPiastra(l); ++w) {
    const Saldatura& d = l.ris.Saldature[w];
    for (int k = 1; k <= 3; ++k) {
      const double fi = d.Ang[2] - d.Ang[k] + PI_PROG / 2;
      v.BraccioSald[w][k] = std::sqrt(d.PZ[k] * d.PZ[k] + d.PY[k] * d.PY[k]);
      v.CosSald[w][k] = std::cos(fi);
      v.SenSald[w][k] = std::sin(fi);
    }
  }
}

void TensioniSaldaturePiastra(Lavoro& l, int s) {
  const StatoVerifica& v = l.verifica;
  const double G = l.nodo->GolaCalc;
  for (int w = 1; w <= UltimaSuPiastra(l); ++w) {
    Saldatura& d = l.ris.Saldature[w];
    const double taglio = QuotaTaglio(l, w);
    for (int k = 1; k <= 3; ++k) {
      d.SPrp[s][k] = v.Mz / v.IzSald * d.PY[k] + v.My / v.IySald * d.PZ[k] + v.N / (v.LungTz + v.LungTy) / G;
      const double ro = v.BraccioSald[w][k] * v.Mt / v.IpSald;
      d.TauPa[s][k] = taglio + ro * v.CosSald[w][k];
      d.TauPe[s][k] = ro * v.SenSald[w][k];
    }
  }
}

namespace {
// Rib-to-column welds: signs of the arms, and whether the arm along Y is the inner one.
struct SaldCorrente {
  int w;
  int segnoZ, segnoY;
  bool interna;
};
}  // namespace

// clang-format off
constexpr SaldCorrente SALD_NERV[] = {
  { 29, +1, +1, false }, { 31, +1, -1, false }, { 36, -1, -1, false }, { 38, -1, +1, false },
  { 41, +1, +1, true },  { 42, +1, -1, true },  { 43, -1, +1, true },  { 44, -1, -1, true },
};
// clang-format on

void TensioniSaldatureColonna(Lavoro& l, int s) {
  const Nodo& nodo = *l.nodo;
  const StatoVerifica& v = l.verifica;
  const double H = nodo.Sezione.H, B = nodo.Sezione.B, G = nodo.GolaCalc, HN = nodo.HNerv;
  const AzioniPiastra c = AzioniSuPiastra(l, -B / 2, B / 2, -H / 2, H / 2);
  const double Mq = v.Mz - c.MomentoQ, Mp = v.My - c.MomentoP, Nr = v.N - c.V;
  const bool interne = nodo.SaldInt != 0;
  const double zc = H / 2 + G / std::numbers::sqrt2,
               yc = B / 2 - G / std::numbers::sqrt2;  // plus and minus: each to the axis on which the throats lie
  const double zci = zc - nodo.Sezione.E, A4 = 4 * G * HN;
  const double I1 = interne ? (zci * zci + zc * zc) * A4 : zc * zc * A4;
  const double I2 = interne ? 2 * (yc * yc) * A4 : yc * yc * A4;
  const double media = Nr / (interne ? 8 : 4) / G / HN;
  for (const SaldCorrente& r : SALD_NERV) {
    if (r.interna && !interne) continue;
    const double Z = r.segnoZ * (r.interna ? zci : zc), Y = r.segnoY * yc;
    for (int k = 1; k <= 3; ++k) l.ris.Saldature[r.w].TauPa[s][k] = media + Mq / I1 * Z + Mp / I2 * Y;
  }
}

void TensioniEquivalentiSaldature(Lavoro& l, int s) {
  constexpr double f = MM2_SU_CM2;
  for (int w = 1; w <= l.NumSaldature; ++w) {
    Saldatura& d = l.ris.Saldature[w];
    double eq1[4], eq2[4];
    for (const int k : {1, 3}) {
      const double S = d.SPrp[s][k] * f, Pa = d.TauPa[s][k] * f, Pe = d.TauPe[s][k] * f;
      eq1[k] = std::sqrt(S * S + Pa * Pa + Pe * Pe);
      eq2[k] = std::fabs(S) + std::fabs(Pe);
    }
    d.SEq1[s] = MaxDi(eq1[1], eq1[3]);
    d.SEq2[s] = MaxDi(eq2[1], eq2[3]);
  }
}

void MaxTensioniSaldatura(const Lavoro& l, double& sp, double& tpa, double& tpe, int w, int s) {
  const auto massimo = [&](const double(&v)[MaxSoll + 1][4]) { return MaxDi(std::fabs(v[s][1]), std::fabs(v[s][3])) * MM2_SU_CM2; };
  const Saldatura& d = l.ris.Saldature[w];
  sp = massimo(d.SPrp);
  tpa = massimo(d.TauPa);
  tpe = massimo(d.TauPe);
}

// Stress over limit at one point, by which of its three stresses are not zero. In the sums the transverse stress stays in daN/mm2: it
// weighs a hundredth of what it is (unsafe: the ratio up to 1.2 times too low, 1.7 times where the parallel stress is exactly 0 and no other
// term holds both).
static double RapportoPunto(double S, double Pa, double Pe, const CoeffSaldatura& c, double Sadm) {
  constexpr double f = MM2_SU_CM2;
  const double k1 = c.k1, k2 = c.k2;
  const auto somma = [&] { return (f * std::fabs(S) + std::fabs(Pe)) / k2 / Sadm; };
  if (S != 0 && Pa != 0 && Pe != 0) return MaxDi(f * std::sqrt(S * S + Pa * Pa + Pe * Pe) / k1 / Sadm, somma());
  if (S != 0 && Pe != 0) return MaxDi(MaxDi(somma(), f * std::fabs(Pe) / k1 / Sadm), f * std::fabs(S) / k1 / Sadm);
  if (Pa != 0 && Pe != 0) return f * std::sqrt(Pa * Pa + Pe * Pe) / k1 / Sadm;
  if (S != 0 && Pa != 0) return f * std::sqrt(S * S + Pa * Pa) / k1 / Sadm;
  if (S != 0) return f * std::fabs(S) / k1 / Sadm;
  if (Pa != 0) return f * std::fabs(Pa) / k1 / Sadm;
  if (Pe != 0) return f * std::fabs(Pe) / k1 / Sadm;
  return 0;
}

void RapportiSaldatureTA(Lavoro& l, int s, double Sadm) {
  const CoeffSaldatura coeff = CoefficientiDi(l.nodo->MatAcc);
  for (int w = 1; w <= l.NumSaldature; ++w) {
    Saldatura& d = l.ris.Saldature[w];
    double R[4];
    for (int k = 1; k <= 3; ++k) R[k] = RapportoPunto(d.SPrp[s][k], d.TauPa[s][k], d.TauPe[s][k], coeff, Sadm);
    d.Estremo[s] = R[3] > R[1] ? 3 : 1;
    d.Rapporto[s] = R[d.Estremo[s]];
  }
}
