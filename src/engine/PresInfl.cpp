// engine/PresInfl.cpp - cuts the plate by the plane, integrates what is compressed along its edges, solves, repeats.
#include "engine/PresInfl.h"

#include <cmath>

#include "core/fault.h"
#include "engine/Tirafondi.h"

constexpr double TOLL_EQUILIBRIO = 0.01;  // per cent of the load, each component
constexpr int ITER_MAX = 100, ITER_MIN = 3;
constexpr double K33_MINIMA = 1e-7;  // below it nothing is left that could carry the load
constexpr const char* TITOLO = "ERRORE !";

namespace {
struct Simmetrica {
  double k11, k12, k13, k22, k23, k33;
};
}  // namespace

// What one anchor adds to a matrix per unit of modulus ratio: its area times the products of (y, x, 1).
static Simmetrica ContributoBarra(double A, double x, double y) { return {A * y * y, A * x * y, A * y, A * x * x, A * x, A}; }

static Simmetrica Scalata(const Simmetrica& m, double f) { return {m.k11 * f, m.k12 * f, m.k13 * f, m.k22 * f, m.k23 * f, m.k33 * f}; }

static void Aggiungi(Simmetrica& k, const Simmetrica& m) {
  k.k11 += m.k11;
  k.k12 += m.k12;
  k.k13 += m.k13;
  k.k22 += m.k22;
  k.k23 += m.k23;
  k.k33 += m.k33;
}

// w is 1 or 0: a branch here would be guessed wrong at every second sextet.
static void Togli(Simmetrica& k, const Simmetrica& m, double w) {
  k.k11 -= w * m.k11;
  k.k12 -= w * m.k12;
  k.k13 -= w * m.k13;
  k.k22 -= w * m.k22;
  k.k23 -= w * m.k23;
  k.k33 -= w * m.k33;
}

// Integrals of the compressed polygon, clockwise positive, edge by edge. They do without the edge's slope: with slope and
// intercept they cancel almost completely on an edge that is nearly parallel to y. A vertical edge adds nothing.
static Simmetrica IntegraliPoligono(const StatoPresInfl& p) {
  Simmetrica k = {};
  for (int j = 1; j <= p.NumPoli; ++j) {
    const double x1 = p.PoliX[j], y1 = p.PoliY[j], x2 = p.PoliX[j + 1], y2 = p.PoliY[j + 1];
    const double dx = x2 - x1;
    if (!(std::fabs(dx) > TOLL_GEO)) continue;
    k.k33 += dx * (y1 + y2) / 2;
    k.k23 += dx * (x1 * (2 * y1 + y2) + x2 * (y1 + 2 * y2)) / 6;
    k.k13 += dx * (y1 * y1 + y1 * y2 + y2 * y2) / 6;
    k.k22 += dx * (x1 * x1 * (3 * y1 + y2) + 2 * x1 * x2 * (y1 + y2) + x2 * x2 * (y1 + 3 * y2)) / 12;
    k.k11 += dx * (y1 + y2) * (y1 * y1 + y2 * y2) / 12;
    k.k12 += dx * (x1 * (3 * y1 * y1 + 2 * y1 * y2 + y2 * y2) + x2 * (y1 * y1 + 2 * y1 * y2 + 3 * y2 * y2)) / 24;
  }
  return k;
}

static double ValorePiano(const double (&P)[4], double x, double y) { return P[1] * y + P[2] * x + P[3]; }

// Plain elimination in a fixed order without pivoting: a zero pivot is the run's arithmetic fault, and no verdict is given.
static void RisolviSistema(const Simmetrica& k, const double (&b)[4], double (&P)[4]) {
  const double a11 = k.k11, a12 = k.k12, a13 = k.k13;
  const double f31 = -k.k13 / a11;
  double a32 = k.k23 + f31 * a12, a33 = k.k33 + f31 * a13, b3 = b[3] + f31 * b[1];
  const double f21 = -k.k12 / a11;
  const double a22 = k.k22 + f21 * a12, a23 = k.k23 + f21 * a13, b2 = b[2] + f21 * b[1];
  const double f32 = -a32 / a22;
  a33 += f32 * a23;
  b3 += f32 * b2;
  P[3] = b3 / a33;
  P[2] = (b2 - a23 * P[3]) / a22;
  P[1] = (b[1] - a12 * P[2] - a13 * P[3]) / a11;
}

// The part of the whole plate where the plane is not positive; each iteration starts from the whole plate again.
static void TagliaPoligono(StatoPresInfl& p) {
  double d[4 + 2];
  for (int j = 1; j <= p.NumVertici; ++j) d[j] = ValorePiano(p.PianoDef, p.VertX[j], p.VertY[j]);
  d[p.NumVertici + 1] = d[1];
  int n = 0;
  for (int j = 1; j <= p.NumVertici; ++j) {
    if (d[j] <= 0) {
      ++n;
      p.PoliX[n] = p.VertX[j];
      p.PoliY[n] = p.VertY[j];
    }
    if (d[j] * d[j + 1] < 0) {
      const double t = std::fabs(d[j]) / (std::fabs(d[j]) + std::fabs(d[j + 1]));
      ++n;
      p.PoliX[n] = p.VertX[j] + t * (p.VertX[j + 1] - p.VertX[j]);
      p.PoliY[n] = p.VertY[j] + t * (p.VertY[j + 1] - p.VertY[j]);
    }
  }
  p.NumPoli = n;
  if (n > 0) {
    p.PoliX[n + 1] = p.PoliX[1];
    p.PoliY[n + 1] = p.PoliY[1];
  }
}

// The whole plate as first polygon. Its edges run clockwise; a plate of one negative side would run the other way and is reversed.
static void PoligonoIniziale(StatoPresInfl& p) {
  const int n = p.NumVertici;
  p.VertX[n + 1] = p.VertX[1];
  p.VertY[n + 1] = p.VertY[1];
  double area = 0;
  for (int j = 1; j <= n; ++j) area += (p.VertY[j + 1] + p.VertY[j]) * (p.VertX[j + 1] - p.VertX[j]) / 2;
  for (int j = 1; j <= n + 1; ++j) {
    const int da = area < 0 ? n + 2 - j : j;
    p.PoliX[j] = p.VertX[da];
    p.PoliY[j] = p.VertY[da];
  }
  p.NumPoli = n;
}

// An odd number of rising edges met by a ray from the point towards smaller x. Falling edges are not looked at: an anchor beyond
// the plate's right edge counts as inside, so that concrete which is not there is taken out (nearly always safe, otherwise by some tenths of a per cent).
bool DentroRegione(const StatoPresInfl& p, double x, double y) {
  int incroci = 0;
  for (int j = 1; j <= p.NumVertici; ++j) {
    const double y1 = p.VertY[j], y2 = p.VertY[j + 1];
    if (!(y1 < y && y <= y2) || std::fabs(y2 - y1) < TOLL_GEO) continue;
    if (p.VertX[j] + (y - y1) * (p.VertX[j + 1] - p.VertX[j]) / (y2 - y1) < x) ++incroci;
  }
  return incroci % 2 != 0;
}

static void ForzeInterne(StatoPresInfl& p, const Simmetrica& k) {
  const double P1 = p.PianoDef[1], P2 = p.PianoDef[2], P3 = p.PianoDef[3];
  p.ForzeInt[1] = p.ERif * (k.k11 * P1 + k.k12 * P2 + k.k13 * P3);
  p.ForzeInt[2] = p.ERif * (k.k12 * P1 + k.k22 * P2 + k.k23 * P3);
  p.ForzeInt[3] = p.ERif * (k.k13 * P1 + k.k23 * P2 + k.k33 * P3);
  for (int c = 1; c <= 3; ++c) p.Residuo[c] = std::fabs(p.ForzeInt[c] - p.Carichi[c]);
}

namespace {
struct Barre {
  Simmetrica area[MaxTir + 1], acciaio[MaxTir + 1];
};  // of each anchor, per unit of modulus ratio and as it is
}  // namespace

// Concrete of the polygon in hand, less that at the anchors: at all of them in the first iteration, then at the compressed ones;
// the anchors always count.
static Simmetrica AssemblaMatrice(const StatoPresInfl& p, const Barre& b) {
  Simmetrica k = IntegraliPoligono(p);
  for (int i = 1; i <= p.NumBarre; ++i) {
    const bool compressa = p.IterPres == 1 || ValorePiano(p.PianoDef, p.BarraX[i], p.BarraY[i]) < 0;
    Togli(k, b.area[i], p.DentroBarra[i] && compressa ? 1.0 : 0.0);
  }
  for (int i = 1; i <= p.NumBarre; ++i) Aggiungi(k, b.acciaio[i]);
  return k;
}

// Returns false when 100 iterations did not meet the test. K of the last assembly is left in k.
static bool Itera(StatoPresInfl& p, Simmetrica& k) {
  Barre barre;
  const double f = E_BARRA / p.ERif;
  for (int i = 1; i <= p.NumBarre; ++i) {
    barre.area[i] = ContributoBarra(p.BarraA, p.BarraX[i], p.BarraY[i]);
    barre.acciaio[i] = Scalata(barre.area[i], f);
  }
  p.Carichi[1] *= 10;  // daN cm to daN mm
  p.Carichi[2] *= 10;
  double t[4], b[4];
  for (int c = 1; c <= 3; ++c) {
    t[c] = std::fabs(TOLL_EQUILIBRIO * p.Carichi[c] / 100) + 1;
    b[c] = p.Carichi[c] / p.ERif;
  }
  for (p.IterPres = 1; p.IterPres <= ITER_MAX; ++p.IterPres) {
    if (p.IterPres >= ITER_MIN && t[1] > p.Residuo[1] && t[2] > p.Residuo[2] && t[3] > p.Residuo[3]) return true;
    k = AssemblaMatrice(p, barre);
    if (p.IterPres > 1) ForzeInterne(p, k);
    RisolviSistema(k, b, p.PianoDef);
    TagliaPoligono(p);
  }
  return false;
}

void DatiSezione(Lavoro& l, int s) {
  const Nodo& nodo = *l.nodo;
  StatoPresInfl& p = l.presInfl;
  const double z = nodo.LatoZ / 2, y = nodo.LatoY / 2;
  p.NumVertici = 4;
  // clang-format off
  p.VertX[1] = -z; p.VertY[1] = -y;
  p.VertX[2] = -z; p.VertY[2] = y;
  p.VertX[3] = z;  p.VertY[3] = y;
  p.VertX[4] = z;  p.VertY[4] = -y;
  // clang-format on
  p.NumBarre = nodo.NTir;
  for (int i = 1; i <= nodo.NTir; ++i) {
    p.BarraX[i] = -z + nodo.TfZ[i];
    p.BarraY[i] = y - nodo.TfY[i];
  }
  p.BarraA = AreaTirafondo(l);
  p.ERif = nodo.EcCls / MM2_SU_CM2;
  p.Carichi[1] = nodo.SollMz[s];
  p.Carichi[2] = -nodo.SollMy[s];
  p.Carichi[3] = nodo.SollN[s];
}

static void Annota(Lavoro& l, const char* testo) { l.diagnosi.push_back({testo, TITOLO, Icona::Nessuna}); }

// K, pressure and anchor stresses from the last plane. False: nothing is left that could carry the load.
static bool CalcolaRisultati(Lavoro& l, int s) {
  const StatoPresInfl& p = l.presInfl;
  double& pressione = l.ris.SMaxCls[s];
  pressione = 0;
  if (std::fabs(p.K[3][3]) < K33_MINIMA) {
    Annota(l, "Risultati non presenti.");
    return false;
  }
  for (int j = 1; j <= p.NumPoli; ++j) {
    const double v = ValorePiano(p.PianoDef, p.PoliX[j], p.PoliY[j]) * p.ERif;
    if (v < pressione) pressione = v;
  }
  for (int i = 1; i <= p.NumBarre; ++i) l.ris.SigmaTir[s][i] = ValorePiano(p.PianoDef, p.BarraX[i], p.BarraY[i]) * E_BARRA;
  return true;
}

bool PresInfl(Lavoro& l, int s) {
  StatoPresInfl& p = l.presInfl;
  if (p.NumVertici < 1) return false;
  PoligonoIniziale(p);
  for (int i = 1; i <= p.NumBarre; ++i) p.DentroBarra[i] = DentroRegione(p, p.BarraX[i], p.BarraY[i]);

  Simmetrica k = {};
  const bool convergenza = Itera(p, k);
  const double K[3][3] = {{k.k11, k.k12, k.k13}, {k.k12, k.k22, k.k23}, {k.k13, k.k23, k.k33}};
  for (int r = 1; r <= 3; ++r)
    for (int c = 1; c <= 3; ++c) p.K[r][c] = K[r - 1][c - 1];
  if (FaultAritmetico()) return false;  // the run's box, not the solver's
  if (!convergenza) Annota(l, "Convergenza non raggiunta !");
  const bool presenti = CalcolaRisultati(l, s);
  l.piani[s] = {{0, p.PianoDef[1], p.PianoDef[2], p.PianoDef[3]}, p.IterPres};
  return convergenza && presenti;
}
