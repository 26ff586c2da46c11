// drawing/distinta.cpp - the schedule of parts: up to five small tables below one another, in ColCorr.
#include <algorithm>
#include <string>
#include <vector>

#include "core/numeri.h"
#include "core/testo.h"
#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/edizione.h"
#include "drawing/pezzi.h"
#include "drawing/tavola.h"
#include "model/regole_nodo.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr int MaxColonneDistinta = 5;
constexpr int LARG_PIASTRA = 12, LARG_NERVATURE = 8;  // characters of a first column; the others follow their cells

using RigaDistinta = std::vector<std::string>;

void Griglia(double x0, double y0, double h, int righe, const double* larghezze, int colonne) {
  double totale = 0;
  for (int c = 0; c < colonne; ++c) totale += larghezze[c];
  for (int r = 0; r <= righe; ++r) DisLineaRel(nullptr, x0, y0 - r * h, totale, 0);
  double x = x0;
  for (int c = 0; c <= colonne; ++c) {
    DisLineaRel(nullptr, x, y0, 0, -righe * h);
    if (c < colonne) x += larghezze[c];
  }
}

// First row: the heads. primaColonna: characters of the first column, 0: by its cells.
static void Tabella(double y0, const std::vector<RigaDistinta>& righe, int primaColonna) {
  const int colonne = static_cast<int>(righe[0].size());
  const double h = edizione.AltRiga;
  double larghezze[MaxColonneDistinta] = {};
  for (int c = 0; c < colonne; ++c) {
    std::size_t n = 0;
    for (const RigaDistinta& r : righe) n = std::max(n, NumCaratteri(r[static_cast<std::size_t>(c)]));
    const int caratteri = c == 0 && primaColonna > 0 ? primaColonna : static_cast<int>(n) + edizione.MargineCella;
    larghezze[c] = caratteri * edizione.LargCar;
  }
  Griglia(0, y0, h, static_cast<int>(righe.size()), larghezze, colonne);
  double y = y0;
  for (const RigaDistinta& r : righe) {
    y -= h;
    double x = 0;
    for (int c = 0; c < colonne; ++c) {
      edizione.cella(r[static_cast<std::size_t>(c)], x, x + larghezze[c], y);
      x += larghezze[c];
    }
  }
}

static std::vector<RigaDistinta> RigheSaldature() {
  std::vector<RigaDistinta> righe = {{"Sald.", "lungh", "lato"}};
  for (int w = 1; w <= lavoroDisegno->NumSaldature; ++w) {
    // The inner welds don't exist on the sheet; the rows that follow close up.
    if (nodo.TipoNodo == 2 && nodo.SaldInt != 1 && (w == 9 || w == 19)) continue;
    const Saldatura& d = lavoroDisegno->ris.Saldature[w];
    righe.push_back({d.Nome, NumeroDis(d.Lung), NumeroDis(nodo.Gola)});
  }
  return righe;
}

void Distinta() {
  const double h = edizione.AltRiga;
  const bool nervature = nodo.TipoNodo == 2;
  const auto N = NumeroDis;
  const Sezione& s = nodo.Sezione;
  const std::string HN = N(nodo.HNerv), SP = N(nodo.SpNerv);
  Tabella(0, {{"Prof.", "h", "b", "a", "e"}, {SenzaSpaziDoppi(s.Nome), N(s.H), N(s.B), N(s.A), N(s.E)}}, 0);
  Tabella(-3 * h, {{"N. piastre", "lz", "ly", "s"}, {"1", N(nodo.LatoZ), N(nodo.LatoY), N(nodo.SpessPiastra)}}, LARG_PIASTRA);
  if (nervature) Tabella(-6 * h, {{"Nome", "l", "h", "s"}, {"Y", N(nodo.LatoY), HN, SP}, {"Z", N(nodo.LatoZ), HN, SP}}, LARG_NERVATURE);
  Tabella(nervature ? -10 * h : -6 * h,
          {{"N. t.fondi", "]", "L tot"}, {std::to_string(nodo.NTir), N(nodo.TfFi), N(LunghezzaTirafondo(nodo))}}, 0);
  if (lavoroDisegno->NumSaldature > 0) Tabella(nervature ? -13 * h : -9 * h, RigheSaldature(), 0);
}
