// engine/fatti.cpp - the plane of each sextet integrated once more, by a polygon's own moments, independent of the solver's matrix.
#include "engine/fatti.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/PresInfl.h"
#include "engine/Tirafondi.h"

constexpr double STESSA_Z = 1e-6;   // mm; points of one z count by their y
constexpr double N_MM2 = N_SU_DAN;  // from daN/mm2
constexpr double KN = 0.01;         // from daN

// The plan's y runs downward, the solver's upward.
static double Valore(const Lavoro& l, int s, PuntoPiano p) {
  const double* P = l.piani[s].P;
  return -P[1] * p.y + P[2] * p.z + P[3];
}

static double ModuloRiferimento(const Lavoro& l) { return l.nodo->EcCls / MM2_SU_CM2; }

double PressioneNelPunto(const Lavoro& l, int s, PuntoPiano p) { return Valore(l, s, p) * ModuloRiferimento(l) * N_MM2; }

static std::array<PuntoPiano, 4> Spigoli(const Nodo& n) {
  const double z = n.LatoZ / 2, y = n.LatoY / 2;
  return {{{-z, -y}, {z, -y}, {z, y}, {-z, y}}};
}

static PuntoPiano Taglio(PuntoPiano a, PuntoPiano b, double da, double db) {
  const double t = da / (da - db);
  return {a.z + t * (b.z - a.z), a.y + t * (b.y - a.y)};
}

static bool PianoNullo(const Lavoro& l, int s) {
  const double* P = l.piani[s].P;
  return P[1] == 0 && P[2] == 0 && P[3] == 0;
}

PoligonoCompresso ParteCompressa(const Lavoro& l, int s) {
  PoligonoCompresso p;
  if (PianoNullo(l, s)) return p;
  const std::array<PuntoPiano, 4> v = Spigoli(*l.nodo);
  for (std::size_t j = 0; j < v.size(); ++j) {
    const PuntoPiano a = v[j], b = v[(j + 1) % v.size()];
    const double da = Valore(l, s, a), db = Valore(l, s, b);
    if (da <= 0) p.v[p.n++] = a;
    if ((da < 0 && db > 0) || (da > 0 && db < 0)) p.v[p.n++] = Taglio(a, b, da, db);
  }
  return p;
}

// ---- moments of a triangle: a linear pressure over it ----

namespace {
struct Azioni {
  double N = 0, Mz = 0, My = 0;
};  // daN; about the plan's z and y: N times y, N times z, daN mm
}  // namespace

// Linear function with values f at the corners: the mean, and the moments by the exact mid-side rule (degree two).
static void AggiungiTriangolo(Azioni& r, const PuntoPiano (&t)[3], const double (&f)[3]) {
  const double area = std::fabs((t[1].z - t[0].z) * (t[2].y - t[0].y) - (t[2].z - t[0].z) * (t[1].y - t[0].y)) / 2;
  for (int k = 0; k < 3; ++k) {
    const int j = (k + 1) % 3;
    const double q = area / 3 * (f[k] + f[j]) / 2;
    r.N += q;
    r.My += q * (t[k].z + t[j].z) / 2;
    r.Mz += q * (t[k].y + t[j].y) / 2;
  }
}

static Azioni PressioneSul(const Lavoro& l, int s, const PoligonoCompresso& p) {
  Azioni r;
  const double E = ModuloRiferimento(l);
  for (int j = 1; j + 1 < p.n; ++j) {
    const PuntoPiano t[3] = {p.v[0], p.v[j], p.v[j + 1]};
    const double f[3] = {E * Valore(l, s, t[0]), E * Valore(l, s, t[1]), E * Valore(l, s, t[2])};
    AggiungiTriangolo(r, t, f);
  }
  return r;
}

static double Area(const PoligonoCompresso& p) {
  double a = 0;
  for (int j = 0; j < p.n; ++j) {
    const PuntoPiano& u = p.v[j];
    const PuntoPiano& w = p.v[(j + 1) % p.n];
    a += u.z * w.y - w.z * u.y;
  }
  return std::fabs(a) / 2;
}

static PuntoPiano PostoTirafondo(const Nodo& n, int i) { return {n.TfZ[i] - n.LatoZ / 2, n.TfY[i] - n.LatoY / 2}; }

static void AggiungiForza(Azioni& r, double F, PuntoPiano p) {
  r.N += F;
  r.My += F * p.z;
  r.Mz += F * p.y;
}

// The concrete that a compressed anchor displaces, where the solver counts it as standing in the concrete.
static void TogliCalcestruzzo(const Lavoro& l, int s, Azioni& r) {
  const Nodo& n = *l.nodo;
  const double E = ModuloRiferimento(l);
  for (int i = 1; i <= n.NTir; ++i) {
    const PuntoPiano p = PostoTirafondo(n, i);
    const double v = Valore(l, s, p);
    if (v < 0 && DentroRegione(l.presInfl, p.z, -p.y)) AggiungiForza(r, -v * E * l.verifica.AreaTf, p);
  }
}

static double Errore(double interna, double carico, double minimo) {
  const double base = std::max(std::fabs(carico), minimo);
  return 100 * std::fabs(interna - carico) / base;
}

// The section's My turns z against N (a positive My presses positive z), Mz turns y upward.
static double Residuo(const Lavoro& l, int s, Azioni tutto) {
  const Nodo& n = *l.nodo;
  for (int i = 1; i <= n.NTir; ++i)
    AggiungiForza(tutto, l.verifica.AreaTf * Valore(l, s, PostoTirafondo(n, i)) * E_BARRA, PostoTirafondo(n, i));
  const double N = n.SollN[s], My = 10 * n.SollMy[s], Mz = 10 * n.SollMz[s];
  const double mezzoLato = std::max(n.LatoZ, n.LatoY) / 2, minimo = std::max(1.0, std::fabs(N)) * mezzoLato;
  return std::max({Errore(tutto.N, N, 1), Errore(-tutto.My, My, minimo), Errore(-tutto.Mz, Mz, minimo)});
}

// The two points where the zero line crosses the outline; equal ones (a corner) count once.
static void AsseNeutro(const Lavoro& l, int s, FattiSestetto& f) {
  const std::array<PuntoPiano, 4> v = Spigoli(*l.nodo);
  PuntoPiano trovati[4];
  int n = 0;
  bool compressa = false, sollevata = false;
  for (std::size_t j = 0; j < v.size(); ++j) {
    const PuntoPiano a = v[j], b = v[(j + 1) % v.size()];
    const double da = Valore(l, s, a), db = Valore(l, s, b);
    compressa = compressa || da < 0;
    sollevata = sollevata || da > 0;
    if (da == 0) trovati[n++] = a;
    else if ((da < 0 && db > 0) || (da > 0 && db < 0)) trovati[n++] = Taglio(a, b, da, db);
  }
  if (n < 2 || !compressa || !sollevata) return;  // along an edge or at a corner it touches the plate and does not cut it
  f.conAsse = true;
  f.asse_neutro = {trovati[0], trovati[1]};
  PuntoPiano &a = f.asse_neutro[0], &b = f.asse_neutro[1];
  const bool scambia = std::fabs(a.z - b.z) <= STESSA_Z ? b.y < a.y : b.z < a.z;
  if (scambia) std::swap(a, b);
}

FattiSestetto Fatti(const Lavoro& l, int s) {
  FattiSestetto f;
  f.pressione_max = l.ris.SMaxCls[s] * N_MM2;
  f.iterazioni = l.piani[s].IterPres;
  const PoligonoCompresso p = ParteCompressa(l, s);
  Azioni cls = PressioneSul(l, s, p);
  TogliCalcestruzzo(l, s, cls);
  f.residuo_percento = Residuo(l, s, cls);
  if (PianoNullo(l, s)) return f;
  f.area_compressa = 100 * Area(p) / (l.nodo->LatoZ * l.nodo->LatoY);
  AsseNeutro(l, s, f);
  if (p.n < 3 || !(cls.N < 0)) return f;
  f.conRisultante = true;
  f.risultante_kN = cls.N * KN;
  f.risultante = {cls.My / cls.N, cls.Mz / cls.N};
  return f;
}
