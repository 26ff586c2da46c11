// engine/Controlli.cpp - the checks as one table: when each fails, and what it says.
#include "engine/Controlli.h"

#include <algorithm>

#include "core/numeri.h"
#include "core/piattaforma.h"
#include "engine/Tirafondi.h"
#include "model/node_model.h"

constexpr const char* TITOLO = "ATTENZIONE!";

static bool ColonnaFuoriPiastra() { return nodo.Sezione.B > nodo.LatoZ || nodo.Sezione.H > nodo.LatoY; }

static bool PiastraNulla() { return !(nodo.SpessPiastra > 0 && nodo.LatoZ > 0 && nodo.LatoY > 0); }

static bool TirafondoNullo() {
  return !(nodo.TfL > 0 && nodo.TfLFt > 0 && nodo.TfL1 >= 0 && nodo.TfR >= 0 && nodo.TfHMalta >= 0 && nodo.TfFi > 0 &&
           nodo.TfDForo > 0 && nodo.TfLF >= 0);
}

// Neighbouring anchors whose holes may overlap, by OptionNTir; the holes of a pair are compared along one axis only.
struct Coppia { int opzione; char asse; int a, b; };
constexpr Coppia COPPIE_FORI[] = {
  { 0, 'Z', 1, 2 }, { 0, 'Y', 1, 3 },
  { 1, 'Z', 1, 8 }, { 1, 'Z', 8, 2 }, { 1, 'Y', 1, 5 }, { 1, 'Y', 5, 3 },
  { 2, 'Z', 1, 2 }, { 2, 'Y', 1, 5 }, { 2, 'Y', 5, 3 },
  { 3, 'Z', 1, 6 }, { 3, 'Z', 6, 2 }, { 3, 'Y', 1, 3 },
};

static bool ForiSovrapposti() {
  if (nodo.TfLF <= 0) return false;          // no holes in the footing
  const double D = nodo.TfDForo;
  return std::ranges::any_of(COPPIE_FORI, [&](const Coppia& c) {
    const double* pos = c.asse == 'Z' ? nodo.TfZ : nodo.TfY;
    return c.opzione == SchemaTir() && !(pos[c.b] - D / 2 >= pos[c.a] + D / 2);
  });
}

static bool FuoriTerraCorto() { return nodo.TfHMalta + nodo.SpessPiastra + 2 * nodo.TfFi > nodo.TfLFt; }
static bool FilettaturaCorta() { return nodo.TfHMalta - nodo.TfFi < nodo.TfLFt - nodo.TfDForo; }   // deliberate
static bool ForoStretto() { return nodo.TfDForo <= nodo.TfFi; }
static bool MaltaBassa() { return nodo.TfHMalta <= nodo.TfFi; }

// D[1..4]: distance of the anchors from the plate's four edges, each by one anchor (the extra ones lie on the same lines);
// F[1..4]: from the column's or the ribs' face to the anchor.
struct Distanze { double D[4 + 1], F[4 + 1]; };

static Distanze DistanzeTirafondi() {
  Distanze d = {};
  const double nerv = nodo.TipoNodo == 1 ? 0 : nodo.SpNerv;
  const double z = (nodo.LatoZ - nodo.Sezione.B) / 2, y = (nodo.LatoY - nodo.Sezione.H) / 2;
  d.D[1] = nodo.TfZ[1];
  d.D[2] = nodo.LatoZ - nodo.TfZ[2];
  d.D[3] = nodo.TfY[1];
  d.D[4] = nodo.LatoY - nodo.TfY[4];
  d.F[1] = z - d.D[1] - nerv;
  d.F[2] = z - d.D[2] - nerv;
  d.F[3] = y - d.D[3];
  d.F[4] = y - d.D[4];
  return d;
}

static bool FuoriPiastra() {
  const Distanze d = DistanzeTirafondi();
  return std::any_of(d.D + 1, d.D + 5, [](double D) { return D < 0; }) || d.D[1] > nodo.LatoZ || d.D[2] > nodo.LatoZ ||
         d.D[3] > nodo.LatoY || d.D[4] > nodo.LatoY;
}

static bool ZoneAngolo() {
  const Distanze d = DistanzeTirafondi();
  return std::any_of(d.F + 1, d.F + 5, [](double F) { return nodo.TfFi / 2 > F; });
}

struct Prova { bool (*difetto)(); const char* testo; };

constexpr Prova DOMANDE[] = {
  { ColonnaFuoriPiastra, "Incompatibilità geometrica fra piastra e colonna" },
  { PiastraNulla,        "Dimensioni della piastra negative o nulle" },
  { TirafondoNullo,      "Dimensioni del tirafondo negative o nulle" },
  { ForiSovrapposti,     "Sovrapposizione fori nel plinto" },
  { FuoriTerraCorto,     "Lunghezza fuori terra del tirafondo insufficiente" },
  { FilettaturaCorta,    "Lunghezza di filettatura del tirafondo insufficiente" },
  { ForoStretto,         "Diametro fori insufficiente" },
  { MaltaBassa,          "Altezza di malta sotto la piastra insufficiente" },
};

constexpr Prova AVVISI[] = {
  { FuoriPiastra, "Tirafondi fuori dalla piastra" },
  { ZoneAngolo,   "Tirafondi previsti nelle zone d'angolo della piastra" },
};

bool ControlliGeometrici() {
  bool esito = true;
  for (const Prova& p : DOMANDE)
    if (esito && p.difetto()) esito = piattaforma.domanda(p.testo, TITOLO, Icona::Esclamazione);
  for (const Prova& p : AVVISI) {
    if (!p.difetto()) continue;
    Messaggio(p.testo, TITOLO, Icona::Esclamazione);
    esito = false;
  }
  return esito;
}

static bool ControlloBordo(double Dmin, double Dmax, const char* testo) {
  const Distanze d = DistanzeTirafondi();
  if (std::all_of(d.D + 1, d.D + 5, [&](double D) { return Dmin <= D && D <= Dmax; })) return true;
  Messaggio(testo, TITOLO, Icona::Esclamazione);
  return false;
}

bool ControlloBordoCNR() {
  return ControlloBordo(2 * nodo.TfFi, 6 * nodo.SpessPiastra,
                        "La distanza dei tirafondi dal bordo della piastra risulta difforme dalle prescrizioni della CNR-UNI 10011/88");
}

bool ControlloBordoNTC() {
  const double t = nodo.SpessPiastra;
  double Dmax = MaxDi(8 * t, 125);                  // resistant to corrosion, or no choice
  if (nodo.Esposizione == 0) Dmax = 4 * t + 40;     // exposed
  if (nodo.Esposizione == 1) Dmax = 1e20;           // not exposed: no upper bound
  return ControlloBordo(1.2 * nodo.TfFi, Dmax,
                        "La distanza dei tirafondi dal bordo della piastra risulta difforme dalle prescrizioni (NTC 2008)");
}
