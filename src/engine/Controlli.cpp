// engine/Controlli.cpp - the checks as one table: what each compares, and what it says.
#include "engine/Controlli.h"

#include <algorithm>
#include <cstddef>

#include "core/fault.h"
#include "core/numeri.h"
#include "model/schemi.h"

namespace {
// The comparisons of one check: the one with the least margin stays, a failed one before all that hold.
struct Confronti {
  bool passa = true, uno = false;
  double domanda = 0, limite = 0, margine = 0;
};
}  // namespace

static void Aggiungi(Confronti& c, bool regge, double domanda, double limite, double margine) {
  const bool prende = !c.uno || (c.passa && !regge) || (c.passa == regge && margine < c.margine);
  if (prende) c.domanda = domanda, c.limite = limite, c.margine = margine;
  c.uno = true;
  c.passa = c.passa && regge;
}

// Halves: the margin of two large numbers of unlike sign does not overflow.
static void NonOltre(Confronti& c, double a, double b) { Aggiungi(c, !(a > b), a, b, b / 2 - a / 2); }
static void NonSotto(Confronti& c, double a, double b) { Aggiungi(c, a >= b, a, b, a / 2 - b / 2); }
static void Oltre(Confronti& c, double a, double b) { Aggiungi(c, a > b, a, b, a / 2 - b / 2); }

static void Colonna(Confronti& c, const Nodo& n, int) {
  NonOltre(c, n.Sezione.B, n.LatoZ);
  NonOltre(c, n.Sezione.H, n.LatoY);
}

static void Piastra(Confronti& c, const Nodo& n, int) {
  for (const double v : {n.SpessPiastra, n.LatoZ, n.LatoY}) Oltre(c, v, 0);
}

static void Tirafondo(Confronti& c, const Nodo& n, int) {
  for (const double v : {n.TfL, n.TfLFt}) Oltre(c, v, 0);
  for (const double v : {n.TfL1, n.TfR, n.TfHMalta}) NonSotto(c, v, 0);
  for (const double v : {n.TfFi, n.TfDForo}) Oltre(c, v, 0);
  NonSotto(c, n.TfLF, 0);
}

static void Fori(Confronti& c, const Nodo& n, int) {
  if (n.TfLF <= 0) return;  // no holes in the footing
  const double D = n.TfDForo;
  for (const CoppiaFori& k : SCHEMI[SchemaTir(n)].fori) {
    if (k.a == 0) break;
    const double* pos = k.asse == 'Z' ? n.TfZ : n.TfY;
    NonSotto(c, pos[k.b] - D / 2, pos[k.a] + D / 2);
  }
}

static void FuoriTerra(Confronti& c, const Nodo& n, int) { NonOltre(c, n.TfHMalta + n.SpessPiastra + 2 * n.TfFi, n.TfLFt); }
// The hole's diameter stands where a length of thread would: the check is unsafe where the hole is wider than the thread is long.
static void Filettatura(Confronti& c, const Nodo& n, int) { NonSotto(c, n.TfHMalta - n.TfFi, n.TfLFt - n.TfDForo); }
static void Foro(Confronti& c, const Nodo& n, int) { Oltre(c, n.TfDForo, n.TfFi); }
static void Malta(Confronti& c, const Nodo& n, int) { Oltre(c, n.TfHMalta, n.TfFi); }

namespace {
// D[1..4]: distance of the anchors from the plate's four edges, each by one anchor. The others lie on the same lines where the panel placed
// them; a node file may put them elsewhere, unseen here (unsafe);
// F[1..4]: from the column's or the ribs' face to the anchor.
struct Distanze {
  double D[4 + 1], F[4 + 1];
};
}  // namespace

static Distanze DistanzeTirafondi(const Nodo& n) {
  Distanze d = {};
  const double nerv = n.TipoNodo == 1 ? 0 : n.SpNerv;
  const double z = (n.LatoZ - n.Sezione.B) / 2, y = (n.LatoY - n.Sezione.H) / 2;
  d.D[1] = n.TfZ[1];
  d.D[2] = n.LatoZ - n.TfZ[2];
  d.D[3] = n.TfY[1];
  d.D[4] = n.LatoY - n.TfY[4];
  d.F[1] = z - d.D[1] - nerv;
  d.F[2] = z - d.D[2] - nerv;
  d.F[3] = y - d.D[3];
  d.F[4] = y - d.D[4];
  return d;
}

static void FuoriPiastra(Confronti& c, const Nodo& n, int) {
  const Distanze d = DistanzeTirafondi(n);
  for (int k = 1; k <= 4; ++k) {
    NonSotto(c, d.D[k], 0);
    NonOltre(c, d.D[k], k <= 2 ? n.LatoZ : n.LatoY);
  }
}

static void ZoneAngolo(Confronti& c, const Nodo& n, int) {
  const Distanze d = DistanzeTirafondi(n);
  for (int k = 1; k <= 4; ++k) NonOltre(c, n.TfFi / 2, d.F[k]);
}

static double BordoMassimoNTC(const Nodo& n) {
  const double t = n.SpessPiastra;
  if (n.Esposizione == 0) return 4 * t + 40;  // exposed
  if (n.Esposizione == 1) return 1e20;        // not exposed: no upper bound
  return MaxDi(8 * t, 125);                   // resistant to corrosion, or no choice
}

static void Bordo(Confronti& c, const Nodo& n, int metodo) {
  const Distanze d = DistanzeTirafondi(n);
  const double Dmin = (metodo == 0 ? 2 : 1.2) * n.TfFi, Dmax = metodo == 0 ? 6 * n.SpessPiastra : BordoMassimoNTC(n);
  for (int k = 1; k <= 4; ++k) {
    NonSotto(c, d.D[k], Dmin);
    NonOltre(c, d.D[k], Dmax);
  }
}

namespace {
struct Prova {
  const char* id;
  void (*confronta)(Confronti&, const Nodo&, int metodo);
  GenereGeometria genere;
  const char* testo[2];  // by method
};
}  // namespace

#define STESSO(t) \
  { t, t }
// clang-format off
static constexpr Prova PROVE[NumGeometria] = {
  { "geo.colonna",       Colonna,      GenereGeometria::Domanda, STESSO("Incompatibilità geometrica fra piastra e colonna") },
  { "geo.piastra",       Piastra,      GenereGeometria::Domanda, STESSO("Dimensioni della piastra negative o nulle") },
  { "geo.tirafondo",     Tirafondo,    GenereGeometria::Domanda, STESSO("Dimensioni del tirafondo negative o nulle") },
  { "geo.fori",          Fori,         GenereGeometria::Domanda, STESSO("Sovrapposizione fori nel plinto") },
  { "geo.fuori_terra",   FuoriTerra,   GenereGeometria::Domanda, STESSO("Lunghezza fuori terra del tirafondo insufficiente") },
  { "geo.filettatura",   Filettatura,  GenereGeometria::Domanda, STESSO("Lunghezza di filettatura del tirafondo insufficiente") },
  { "geo.foro",          Foro,         GenereGeometria::Domanda, STESSO("Diametro fori insufficiente") },
  { "geo.malta",         Malta,        GenereGeometria::Domanda, STESSO("Altezza di malta sotto la piastra insufficiente") },
  { "geo.fuori_piastra", FuoriPiastra, GenereGeometria::Rifiuto, STESSO("Tirafondi fuori dalla piastra") },
  { "geo.angolo",        ZoneAngolo,   GenereGeometria::Rifiuto, STESSO("Tirafondi previsti nelle zone d'angolo della piastra") },
  { "geo.bordo",         Bordo,        GenereGeometria::Bordo,
    { "La distanza dei tirafondi dal bordo della piastra risulta difforme dalle prescrizioni della CNR-UNI 10011/88",
      "La distanza dei tirafondi dal bordo della piastra risulta difforme dalle prescrizioni (NTC 2008)" } },
};
// clang-format on
#undef STESSO

static RigaGeometria Esegui(const Prova& p, const Nodo& nodo, int metodo) {
  AzzeraFault();
  Confronti c;
  p.confronta(c, nodo, metodo);
  RigaGeometria r;
  r.id = p.id;
  r.testo = p.testo[metodo == 0 ? 0 : 1];
  r.genere = p.genere;
  r.passa = c.passa;
  r.confronta = c.uno;
  r.domanda = c.domanda;
  r.limite = c.limite;
  r.fault = FaultAritmetico();
  return r;
}

RigheGeometria ControlliGeometria(const Nodo& nodo, int metodo) {
  const RiparoFault riparo;
  RigheGeometria righe;
  for (std::size_t k = 0; k < righe.size(); ++k) righe[k] = Esegui(PROVE[k], nodo, metodo);
  return righe;
}
