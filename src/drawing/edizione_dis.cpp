// drawing/edizione_dis.cpp - the edition of DIS, DXF and SVG: texts and dimensions as lines, circles and texts of the store.
#include "drawing/edizione_dis.h"

#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr std::int16_t SOLO_TESTO = -1;  // line colour of a dimension without line

// An empty text would become the measure of its place.
static void Testo(const std::string& testo, double x1, double x2, double y1, double y2) {
  if (!testo.empty()) DisQuota(testo, x1, x2, y1, y2, SOLO_TESTO, ColoreOpz(5), suite.ParNodo[10], suite.ParNodo[9], 0, 1);
}

static void Quota(double x1, double x2, double y1, double y2, bool dettaglio) {
  DisQuota("", x1, x2, y1, y2, ColoreOpz(4), ColoreOpz(3), suite.ParNodo[8], suite.ParNodo[7], suite.ParNodo[13],
           dettaglio ? 1 / suite.ParNodo[19] : 1);
}

static void Etichetta(const std::string& testo, double x1, double x2, double y) {
  DisQuota(testo, x1, x2, y, y, SOLO_TESTO, ColoreOpz(3), suite.ParNodo[8], suite.ParNodo[7], 0, 1);
}

static void Cella(const std::string& testo, double x1, double x2, double y) {
  const double altezza = suite.ParNodo[11];
  if (!testo.empty()) DisQuota(testo, x1, x2, y, y, SOLO_TESTO, ColoreOpz(6), suite.ParNodo[12], altezza, altezza / 4, 1);
}

static void NomeSald(const std::string& testo, double x1, double x2, double y1, double y2, double, double, bool sopra) {
  const double altezza = suite.ParNodo[7];
  quote.OffEtichSald = sopra ? altezza / 2 : -1.5 * altezza;
  DisQuota(testo, x1, x2, y1, y2, SOLO_TESTO, ColoreOpz(3), suite.ParNodo[8], altezza, quote.OffEtichSald, 1);
}

Edizione EdizioneDis() {
  Edizione e;
  e.AltTesti = suite.ParNodo[9];
  e.LargTesti = suite.ParNodo[10];
  e.AltRiga = 1.5 * suite.ParNodo[11];
  e.LargCar = suite.ParNodo[12];
  e.MargineCella = 2;
  e.testo = Testo;
  e.quota = Quota;
  e.etichetta = Etichetta;
  e.cella = Cella;
  e.nomeSald = NomeSald;
  return e;
}
