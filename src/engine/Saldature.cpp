// engine/Saldature.cpp - weld coordinates as tables, elementary beam theory of the group.
#include "engine/Saldature.h"

#include <cmath>
#include <numbers>
#include <string>

#include "core/numeri.h"
#include "core/unita.h"
#include "engine/Nervature.h"
#include "engine/verifica.h"
#include "model/saldature_colonna.h"

// Shear carried by weld w = 1..28: z Tz, y Ty, i Ty only if SaldInt = 1. Index 0 free.
constexpr char TAGLIO[1 + SALD_PIASTRA + 1] = "." "yzzzyzzz" "iyyyyyzzzz" "iyyyyyzzzz";

double Direzione(double x1, double y1, double x2, double y2) {
  if (std::fabs(x2 - x1) < TOLL_GEO) return y1 < y2 ? PI_PROG / 2 : -PI_PROG / 2;
  if (std::fabs(y2 - y1) < TOLL_GEO) return x1 < x2 ? 0 : PI_PROG;
  if (x2 - x1 > 0) return std::atan((y2 - y1) / (x2 - x1));
  return std::atan((y2 - y1) / std::fabs(x2 - x1)) + (y2 > y1 ? 1 : -1) * PI_PROG / 2;
}

void AggiungiSaldatura(double zf, double yf, double zi, double yi, int lato, int indice) {
  if (nodo.Gola == 0) return;
  Saldatura& d = ris.Saldature[indice];
  const double G = nodo.GolaCalc;
  const double L = std::sqrt((zf - zi) * (zf - zi) + (yf - yi) * (yf - yi));
  d.Lung = Arrotonda1(L);
  d.Nome = std::string("S").append(std::to_string(indice));
  d.Ang[1] = Direzione(0, 0, zf, yf);
  d.Ang[3] = Direzione(0, 0, zi, yi);
  d.Ang[2] = Direzione(zf, yf, zi, yi);
  const double dz = lato * G / 2 * std::sin(d.Ang[2]), dy = lato * G / 2 * std::cos(d.Ang[2]);
  const double z[4] = { 0, zf, (zf + zi) / 2, zi }, y[4] = { 0, yf, (yf + yi) / 2, yi };
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

static void SaldatureColonna() {
  int w = 0;
  for (const Estremi& t : TrattiColonna(nodo.Sezione).tratti) AggiungiSaldatura(t.zf, t.yf, t.zi, t.yi, +1, ++w);
}

// One call of a pass: weld n + m o, o the pass's offset. lato: 'c' against the pass's side, '=' as the call before, '-' always -1.
struct Chiamata { int n, m; char lato; bool soloInterne; double zi, yi, zf, yf; };

// Ribs of one side c, -1 or +1. lato enters as the last call left it and leaves so: the first call of the second pass thus
// depends on the inner welds of the first (deliberate).
static void SaldatureNervature(int c, int& lato) {
  const double H = nodo.Sezione.H / 2, B = nodo.Sezione.B / 2, e = nodo.Sezione.E, SP = nodo.SpNerv, HN = nodo.HNerv;
  const double Z = c * (nodo.LatoZ / 2), Y = nodo.LatoY / 2, z = c * B, zs = c * (B + SP), zh = c * (H - SP);
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
  for (const Chiamata& r : CHIAMATE) {
    if (r.soloInterne && nodo.SaldInt != 1) continue;
    if (r.lato == 'c') lato = -c;
    if (r.lato == '-') lato = -1;
    AggiungiSaldatura(r.zf, r.yf, r.zi, r.yi, lato, r.n + (c > 0 ? r.m : 0));
  }
}

void CostruisciSaldature() {
  SaldatureColonna();
  nodo.NumSaldature = SALD_COLONNA;
  if (nodo.TipoNodo != 2) return;
  int lato = +1;
  for (const int c : { -1, +1 }) SaldatureNervature(c, lato);
  const double z34 = nodo.Sezione.H / 2, z37 = -(nodo.Sezione.B / 2 + nodo.SpNerv);
  AggiungiSaldatura(z34, nodo.HNerv, z34, 0, lato, 34);
  AggiungiSaldatura(z37, nodo.HNerv, z37, 0, lato, 37);
  nodo.NumSaldature = nodo.SaldInt != 0 ? 44 : 40;
}

static int UltimaSuPiastra() { return nodo.TipoNodo == 2 ? SALD_PIASTRA : SALD_COLONNA; }

void InerziaSaldature(double& iz, double& iy, double& ip, double& lungTz, double& lungTy) {
  iz = iy = ip = lungTz = lungTy = 0;
  for (int w = 1; w <= UltimaSuPiastra(); ++w) {
    const Saldatura& d = ris.Saldature[w];
    (TAGLIO[w] == 'z' ? lungTz : lungTy) += d.Lung;      // inner welds count even when they are not built: their length is 0, or stale
    if (TAGLIO[w] == 'i' && nodo.SaldInt != 1) continue;
    const double Aw = nodo.GolaCalc * d.Lung, y2 = d.PY[2] * d.PY[2], z2 = d.PZ[2] * d.PZ[2];
    iz += d.Iz + Aw * y2;
    iy += d.Iy + Aw * z2;
    ip += d.Ip + Aw * (z2 + y2);
  }
}

// Uniform share of the shear; without ribs the two web welds carry Ty by their own length.
static double QuotaTaglio(int w) {
  const StatoVerifica& v = verifica;
  const double G = nodo.GolaCalc;
  if (TAGLIO[w] == 'z') return v.Tz / v.LungTz / G;
  if (nodo.TipoNodo == 1) return v.Ty / 2 / G / ris.Saldature[w].Lung;
  if (TAGLIO[w] == 'i' && nodo.SaldInt != 1) return 0;
  return v.Ty / v.LungTy / G;
}

void TensioniSaldaturePiastra(int s) {
  const StatoVerifica& v = verifica;
  const double G = nodo.GolaCalc;
  for (int w = 1; w <= UltimaSuPiastra(); ++w) {
    Saldatura& d = ris.Saldature[w];
    const double taglio = QuotaTaglio(w);
    for (int k = 1; k <= 3; ++k) {
      d.SPrp[s][k] = v.Mz / v.IzSald * d.PY[k] + v.My / v.IySald * d.PZ[k] + v.N / (v.LungTz + v.LungTy) / G;
      const double ro = std::sqrt(d.PZ[k] * d.PZ[k] + d.PY[k] * d.PY[k]) * v.Mt / v.IpSald;
      const double fi = d.Ang[2] - d.Ang[k] + PI_PROG / 2;
      d.TauPa[s][k] = taglio + ro * std::cos(fi);
      d.TauPe[s][k] = ro * std::sin(fi);
    }
  }
}

// Rib-to-column welds: signs of the arms, and whether the arm along Y is the inner one.
struct SaldCorrente { int w; int segnoZ, segnoY; bool interna; };
constexpr SaldCorrente SALD_NERV[] = {
  { 29, +1, +1, false }, { 31, +1, -1, false }, { 36, -1, -1, false }, { 38, -1, +1, false },
  { 41, +1, +1, true },  { 42, +1, -1, true },  { 43, -1, +1, true },  { 44, -1, -1, true },
};

void TensioniSaldatureColonna(int s) {
  const StatoVerifica& v = verifica;
  const double H = nodo.Sezione.H, B = nodo.Sezione.B, G = nodo.GolaCalc, HN = nodo.HNerv;
  const AzioniPiastra c = AzioniSuPiastra(-B / 2, B / 2, -H / 2, H / 2);
  const double Mq = v.Mz - c.MomentoQ, Mp = v.My - c.MomentoP, Nr = v.N - c.V;
  const bool interne = nodo.SaldInt != 0;
  const double zc = H / 2 + G / std::numbers::sqrt2, yc = B / 2 - G / std::numbers::sqrt2;      // plus and minus (deliberate)
  const double zci = zc - nodo.Sezione.E, A4 = 4 * G * HN;
  const double I1 = interne ? (zci * zci + zc * zc) * A4 : zc * zc * A4;
  const double I2 = interne ? 2 * (yc * yc) * A4 : yc * yc * A4;
  const double media = Nr / (interne ? 8 : 4) / G / HN;
  for (const SaldCorrente& r : SALD_NERV) {
    if (r.interna && !interne) continue;
    const double Z = r.segnoZ * (r.interna ? zci : zc), Y = r.segnoY * yc;
    for (int k = 1; k <= 3; ++k) ris.Saldature[r.w].TauPa[s][k] = media + Mq / I1 * Z + Mp / I2 * Y;
  }
}

void TensioniEquivalentiSaldature(int s) {
  const auto eq1 = [](const Saldatura& d, int s, int k) {
    return std::sqrt(d.SPrp[s][k] * d.SPrp[s][k] + d.TauPa[s][k] * d.TauPa[s][k] + d.TauPe[s][k] * d.TauPe[s][k]);
  };
  const auto eq2 = [](const Saldatura& d, int s, int k) { return std::fabs(d.SPrp[s][k]) + std::fabs(d.TauPe[s][k]); };
  for (int w = 1; w <= nodo.NumSaldature; ++w) {
    Saldatura& d = ris.Saldature[w];
    d.SEq1[s] = MaxDi(eq1(d, s, 1), eq1(d, s, 3));
    d.SEq2[s] = MaxDi(eq2(d, s, 1), eq2(d, s, 3));
  }
}

void MaxTensioniSaldatura(double& sp, double& tpa, double& tpe, int w, int s) {
  const auto massimo = [&](const double (&v)[MaxSoll + 1][4]) { return MaxDi(std::fabs(v[s][1]), std::fabs(v[s][3])); };
  const Saldatura& d = ris.Saldature[w];
  sp = massimo(d.SPrp);
  tpa = massimo(d.TauPa);
  tpe = massimo(d.TauPe);
}

void ScalaTensioniSaldature() {
  const double fl = FattLunghezza("mm"), f = fl * fl;
  for (int w = 1; w <= nodo.NumSaldature; ++w) {
    Saldatura& d = ris.Saldature[w];
    for (int s = 1; s <= nodo.NumSoll; ++s)
      for (int k = 1; k <= 3; ++k) {
        d.SPrp[s][k] *= f;
        d.TauPa[s][k] *= f;
        d.TauPe[s][k] *= f;
      }
  }
}
