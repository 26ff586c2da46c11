// engine/Nervature.cpp - pressure integrals by strips, forces at the four cuts, sections and stresses.
#include "engine/Nervature.h"

#include <cmath>

#include "core/numeri.h"
#include "engine/PresInfl.h"
#include "model/schemi.h"

constexpr int STRISCE = 100;
constexpr double PIANO_COSTANTE = 1e-12;  // a coefficient of the plane up to it counts as zero

static double ValoreInPunto(const Lavoro& l, double p, double q) {
  const double* P = l.presInfl.PianoDef;
  return P[1] * q - P[2] * p + P[3];
}

static double PressioneInPunto(const Lavoro& l, double p, double q) { return ValoreInPunto(l, p, q) * l.nodo->EcCls / 100; }

namespace {
// Compressed part of a linear profile from u = ua (value Pa) to ub (value Pb), u0 its zero if the two differ in sign.
struct Profilo {
  double R, M;
};  // resultant, moment about the middle
}  // namespace

static Profilo IntegraProfilo(double Pa, double Pb, double ua, double ub, double u0) {
  if (Pa <= 0 && Pb <= 0) return {(Pa + Pb) * std::fabs(ub - ua) / 2, (Pb - Pa) * ((ub - ua) * (ub - ua)) / 12};
  if (Pa > 0 && Pb > 0) return {0, 0};
  const double e = Pa <= 0 ? ua : ub, Pe = Pa <= 0 ? Pa : Pb, um = (ua + ub) / 2;
  const double R = Pe * std::fabs(e - u0) / 2;
  return {R, R * (2.0 / 3 * (e - u0) + u0 - um)};
}

AzioniPiastra AzioniSuPiastra(const Lavoro& l, double pa, double pb, double qa, double qb) {
  const Nodo& nodo = *l.nodo;
  const double a = l.presInfl.PianoDef[1], b = -l.presInfl.PianoDef[2], c = l.presInfl.PianoDef[3];
  if (std::fabs(a) <= PIANO_COSTANTE) {
    if (std::fabs(b) > PIANO_COSTANTE) {  // no change along q: one profile along p, value b p + c
      const double E = nodo.EcCls / 100;
      const Profilo f = IntegraProfilo((b * pa + c) * E, (b * pb + c) * E, pa, pb, -c / b);
      return {f.R * std::fabs(qb - qa), 0, f.M * std::fabs(qb - qa)};
    }
    return {c >= 0 ? 0 : c * nodo.EcCls / 100 * (pb - pa) * (qb - qa), 0, 0};
  }
  AzioniPiastra s = {};
  const double larghezza = (pb - pa) / STRISCE, pm = (pa + pb) / 2;
  for (int n = 1; n <= STRISCE; ++n) {
    const double p = pa + (n - 0.5) * (pb - pa) / STRISCE;
    const Profilo f = IntegraProfilo(PressioneInPunto(l, p, qa), PressioneInPunto(l, p, qb), qa, qb, -(b * p + c) / a);
    s.V += f.R * larghezza;
    s.MomentoQ += f.M * larghezza;
    s.MomentoP += f.R * larghezza * (p - pm);
  }
  return s;
}

double RisultanteSuPiastra(const Lavoro& l, double pa, double pb, double qa, double qb) { return AzioniSuPiastra(l, pa, pb, qa, qb).V; }
double MomentoQSuPiastra(const Lavoro& l, double pa, double pb, double qa, double qb) {
  return AzioniSuPiastra(l, pa, pb, qa, qb).MomentoQ;
}
double MomentoPSuPiastra(const Lavoro& l, double pa, double pb, double qa, double qb) {
  return AzioniSuPiastra(l, pa, pb, qa, qb).MomentoP;
}

namespace {
// One cut: the part of the plate outside it, the anchors on that part, and where its stresses go.
struct SezioneDiTaglio {
  double pa, pb, qa, qb;  // rectangle
  double L, W;            // its length across the cut, the cut's width
  bool lungoP;            // the arm lies along p (cuts 1, 2): M about the q axis, transverse coordinate q
  double
    segnoP;  // arm |segnoP p - B/2 - SP| (cuts 1, 2) or |q - H/2| (cuts 3, 4; in cut 3 to the far face: a longer arm, safe unless the anchor relieves the strip)
  double segnoMom;   // of the moment integral that becomes M2
  double segnoM2;    // of the anchors' terms in M2
  int tir[2];        // anchors always
  LatoPiastra lato;  // of the plate beyond the cut, for the anchor that the pattern adds there
  int pos[2];        // rib positions
  int sald[4];       // rib welds
};

struct Azioni {
  double M, M2, V;
};
struct ForzaTir {
  double T, Pc, a, c;
};  // force, pressure at the hole, arm, transverse coordinate
}  // namespace

static ForzaTir ForzaTirante(const Lavoro& l, const SezioneDiTaglio& g, int i) {
  const Nodo& nodo = *l.nodo;
  const double p = nodo.LatoZ / 2 - nodo.TfZ[i], q = nodo.LatoY / 2 - nodo.TfY[i];
  ForzaTir f;
  f.T = ValoreInPunto(l, p, q) * E_BARRA * l.verifica.AreaTf;
  f.Pc = MaxDi(0, -PressioneInPunto(l, p, q));
  f.a = std::fabs(g.lungoP ? g.segnoP * p - nodo.Sezione.B / 2 - nodo.SpNerv : q - nodo.Sezione.H / 2);
  f.c = g.lungoP ? q : p;
  return f;
}

// The sums run in the order of the terms, not of the anchors; an extra anchor comes last with all its terms.
static void SommaTiranti(const Lavoro& l, Azioni& z, const SezioneDiTaglio& g, const int* tir, int n) {
  const double A = l.verifica.AreaTf;
  ForzaTir f[2];
  for (int j = 0; j < n; ++j) f[j] = ForzaTirante(l, g, tir[j]);
  for (int j = 0; j < n; ++j) z.M -= f[j].T * f[j].a;
  for (int j = 0; j < n; ++j) z.M -= f[j].Pc * A * f[j].a;
  for (int j = 0; j < n; ++j) z.M2 += g.segnoM2 * (f[j].T * f[j].c);
  for (int j = 0; j < n; ++j) z.M2 += g.segnoM2 * (f[j].Pc * A * f[j].c);
  for (int j = 0; j < n; ++j) z.V += f[j].T;
  for (int j = 0; j < n; ++j) z.V += f[j].Pc * A;
}

static Azioni AzioniTaglio(const Lavoro& l, const SezioneDiTaglio& g) {
  const AzioniPiastra c = AzioniSuPiastra(l, g.pa, g.pb, g.qa, g.qb);
  Azioni z;
  z.V = c.V;
  z.M = g.lungoP ? c.MomentoP : c.MomentoQ;
  z.M2 = g.segnoMom * (g.lungoP ? c.MomentoQ : c.MomentoP);
  z.M -= g.L / 2 *
         z.V;  // right in cuts 2 and 3; in cuts 1 and 4 about the plate's outer edge: too small where the pressure grows outward (unsafe)
  SommaTiranti(l, z, g, g.tir, 2);
  const int& extra = SCHEMI[SchemaTir(*l.nodo)].lato[g.lato];
  if (extra > 0) SommaTiranti(l, z, g, &extra, 1);
  return z;
}

// The plate's strip with uprights of total area Au on it: distance of the centroid from the underside.
static double Baricentro(const Nodo& nodo, double W, double Au) {
  const double HN = nodo.HNerv, t = nodo.SpessPiastra;
  return (t * t * W * 0.5 + Au * (HN / 2 + t)) / (W * t + Au);
}

static double InerziaPiastra(const Nodo& nodo, double W, double Yg) {
  const double t = nodo.SpessPiastra;
  return Cubo(t) * W / 12 + W * t * ((Yg - t / 2) * (Yg - t / 2));
}

// A pair of uprights of thickness b.
static double InerziaCoppia(const Nodo& nodo, double b, double Yg) {
  const double HN = nodo.HNerv, d = Yg - (HN / 2 + nodo.SpessPiastra);
  return 2 * (Cubo(HN) * b / 12 + HN * b * (d * d));
}

static double Ideale(double sigma, double tau) { return std::sqrt(3 * (tau * tau) + sigma * sigma); }

static void Alza(double& v, double nuovo) { v = MaxDi(v, nuovo); }

// The plate with the two ribs that cross the cut: top of the rib, then underside of the plate.
static double TensioniNervature(Lavoro& l, int s, const SezioneDiTaglio& g, const Azioni& z) {
  const Nodo& nodo = *l.nodo;
  Risultati& ris = l.ris;
  const double HN = nodo.HNerv, SP = nodo.SpNerv, t = nodo.SpessPiastra;
  const double Yg = Baricentro(nodo, g.W, 2 * HN * SP);
  const double I = InerziaPiastra(nodo, g.W, Yg) + InerziaCoppia(nodo, SP, Yg);
  const double J = (Cubo(t) * g.W + 2 * Cubo(SP) * HN) / 3;
  const double sopra = Ideale(std::fabs(z.M / I * (HN + t - Yg)), std::fabs(z.V / 2 / HN / SP) + std::fabs(z.M2 / J * SP / 2));
  const double sotto = Ideale(std::fabs(z.M / I * Yg), std::fabs(z.M2 / J * t / 2));
  for (const double id : {sopra, sotto})
    for (const int p : g.pos) Alza(ris.SNerv[s][p], id);
  Alza(ris.SMaxPiastra[s], sotto);
  return J;
}

// The plate with the throats of the rib welds. In cuts 3 and 4 the ribs count too and lower the stress, bending goes across the welds, where by
// allowable stresses it weighs a hundredth in one of the two sums, and the torsion adds nothing to their shear (unsafe, each of the three).
static void TensioniSaldatureNervature(Lavoro& l, int s, const SezioneDiTaglio& g, const Azioni& z, double JNerv) {
  const Nodo& nodo = *l.nodo;
  const double HN = nodo.HNerv, SP = nodo.SpNerv, G = nodo.GolaCalc, t = nodo.SpessPiastra;
  const double Yg = Baricentro(nodo, g.W, g.lungoP ? 4 * HN * G : 4 * HN * G + 2 * HN * SP);
  double I = InerziaPiastra(nodo, g.W, Yg) + InerziaCoppia(nodo, 2 * G, Yg);
  if (!g.lungoP) I += InerziaCoppia(nodo, SP, Yg);
  const double J = g.lungoP ? (4 * HN * Cubo(G) + Cubo(t) * g.W) / 3 : JNerv;
  const double Yt = HN + t - Yg;
  const double taglio = std::fabs(z.V / 4 / HN / G);
  const double tauPa = g.lungoP ? taglio + std::fabs(z.M2 / J * G / 2) : taglio;
  for (const int w : g.sald)
    for (int k = 1; k <= 3; ++k) {
      Saldatura& d = l.ris.Saldature[w];
      Alza(d.TauPa[s][k], tauPa);
      Alza(g.lungoP ? d.SPrp[s][k] : d.TauPe[s][k], std::fabs(z.M / I * (HN / 2 * (k - 1) - Yt)));
    }
}

void CalcolaNervature(Lavoro& l, int s) {
  const Nodo& nodo = *l.nodo;
  const double b = nodo.Sezione.B / 2, h = nodo.Sezione.H / 2, SP = nodo.SpNerv;
  const double z = nodo.LatoZ / 2, y = nodo.LatoY / 2;
  // clang-format off
  const SezioneDiTaglio TAGLI[] = {
    // pa      pb       qa  qb   L           W           lungoP segnoP mom  M2   anchors   side      positions  welds
    { b + SP,  z,       -y, y,   z - b - SP, nodo.LatoY, true,  +1,    -1,  -1,  { 1, 3 }, SINISTRO, { 1, 2 },  { 30, 40, 37, 39 } },
    { -z,      -b - SP, -y, y,   z - b - SP, nodo.LatoY, true,  -1,    +1,  +1,  { 2, 4 }, DESTRO  , { 5, 6 },  { 32, 33, 34, 35 } },
    { -z,      z,       -y, -h,  y - h,      nodo.LatoZ, false, 0,     +1,  -1,  { 3, 4 }, INFERIORE, { 3, 4 },  { 34, 36, 37, 38 } },
    { -z,      z,       h,  y,   y - h,      nodo.LatoZ, false, 0,     +1,  +1,  { 1, 2 }, SUPERIORE, { 7, 8 },  { 29, 30, 31, 32 } },
  };
  // clang-format on
  for (const SezioneDiTaglio& g : TAGLI) {
    const Azioni a = AzioniTaglio(l, g);
    const double J = TensioniNervature(l, s, g, a);
    TensioniSaldatureNervature(l, s, g, a, J);
  }
}
