// drawing/formats/grb_edizione.cpp - texts and dimensions by styles.
#include "drawing/formats/grb_edizione.h"

#include <cmath>

#include "core/piattaforma.h"
#include "core/testo.h"
#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/formats/grb_stili.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr int STILE_QUOTE_DETTAGLIO = 25, STILE_TESTI = 26, STILE_QUOTE = 27;  // drawing options

static std::int16_t Stile(int opzione) { return InCorto(std::trunc(suite.ParNodo[opzione])); }

static void PostoInPiu(std::vector<std::string>& v, int i) {
  if (v.size() <= static_cast<std::size_t>(i)) v.resize(static_cast<std::size_t>(i) + 1);
}

void TestoGrb(const std::string& testo, double x1, double y1, double x2, double y2, double angolo, std::int16_t allineamento,
              std::int16_t stile) {
  Disegno& d = disegno;
  if (d.Interrotto) return;
  if (d.NumTesti == MaxTestiDis - 1) Messaggio("Superato il numero massimo di testi", TitoloProg, Icona::Esclamazione);
  if (d.NumTesti == MaxTestiDis) return;
  double x = x1, y = y1;
  if (allineamento == ALLINEA_CENTRO) x = (x1 + x2) / 2, y = (y1 + y2) / 2;
  if (allineamento == ALLINEA_FINE) x = x2, y = y2;
  const int i = d.NumTesti++;
  PostoInPiu(d.TesStr, i);
  d.TesPos[i] = IndiceCoord(d.OffX + x, d.OffY + y);
  d.TesCol[i] = stile;
  d.TesAng[i] = InCorto(angolo);
  d.TesAllin[i] = allineamento;
  d.TesStr[static_cast<std::size_t>(i)] = testo;
  if (d.TesPos[i] < 0) --d.NumTesti;
}

void QuotaGrb(const std::string& testo, double x1, double y1, double x2, double y2, double distanza, std::int16_t stile) {
  Disegno& d = disegno;
  if (d.Interrotto) return;
  if (d.NumQuote == QuoteGrbAmmesse) {  // each one that is lost says so; texts are lost behind one message
    Messaggio("Superato il numero massimo di quote", TitoloProg, Icona::Esclamazione);
    return;
  }
  const bool orizzontale = std::abs(y2 - y1) < TOLL_GEO, verticale = std::abs(x2 - x1) < TOLL_GEO;
  if (orizzontale && verticale) return;
  const int i = d.NumQuote++;
  PostoInPiu(d.QuoTesto, i);
  d.QuoIni[i] = IndiceCoord(d.OffX + x1, d.OffY + y1);
  d.QuoFin[i] = IndiceCoord(d.OffX + x2, d.OffY + y2);
  d.QuoTipo[i] = orizzontale ? 'H' : verticale ? 'V' : 'P';
  d.QuoStile[i] = stile;
  d.QuoDist[i] = distanza;
  const std::string_view t = Rifila(testo);
  d.QuoTesto[static_cast<std::size_t>(i)] = t.empty() ? TESTO_QUOTA_GRB : std::string(t);
}

// ---- the operations of the views ---------------------------------------------------------------------------------------------

static void Testo(const std::string& testo, double x1, double x2, double y1, double y2) {
  const double angolo = std::abs(x1 - x2) < TOLL_GEO ? 90 : 0;
  TestoGrb(testo, x1, y1, x2, y2, angolo, ALLINEA_CENTRO, Stile(STILE_TESTI));
}

static void Quota(double x1, double x2, double y1, double y2, bool dettaglio) {
  QuotaGrb("", x1, y1, x2, y2, 0, Stile(dettaglio ? STILE_QUOTE_DETTAGLIO : STILE_QUOTE));
}

static void Etichetta(const std::string& testo, double x1, double x2, double y) { Testo(testo, x1, x2, y, y); }

static void Cella(const std::string& testo, double x1, double x2, double y) {
  const double base = y + edizione.AltTesti / 2;
  TestoGrb(testo, x1, base, x2, base, 0, ALLINEA_CENTRO, Stile(STILE_TESTI));
}

// Outward of the parallel line, on either side of the weld.
static void NomeSald(const std::string& testo, double x1, double x2, double y1, double y2, double vx, double vy, bool sopra) {
  quote.OffEtichSald = sopra ? edizione.AltTesti / 2 : 1.5 * edizione.AltTesti;
  const double v = std::sqrt(vx * vx + vy * vy);
  if (v < TOLL_GEO) return;
  const double dx = vx / v * quote.OffEtichSald, dy = vy / v * quote.OffEtichSald;
  Testo(testo, x1 + dx, x2 + dx, y1 + dy, y2 + dy);
}

// One of the template's; without a template any of the table, whose sizes are 0 then.
static bool StileValido(int opzione) {
  const double s = std::trunc(suite.ParNodo[opzione]);
  return s >= 1 && s <= (stiliGrb.NumStili > 0 ? stiliGrb.NumStili : MaxStiliGrb);
}

bool EdizioneGrb(Edizione& e) {
  for (const int opzione : {STILE_QUOTE_DETTAGLIO, STILE_TESTI, STILE_QUOTE})
    if (!StileValido(opzione)) return false;
  const int stile = Stile(STILE_TESTI);
  e = {};
  e.AltTesti = stiliGrb.AltStile[stile];
  e.LargTesti = stiliGrb.LargStile[stile];
  e.CaloPianta = 20 * suite.ParNodo[7];
  e.AltRiga = 2 * stiliGrb.AltStile[stile];
  e.LargCar = stiliGrb.LargStile[stile];
  e.MargineCella = 4;
  e.testo = Testo;
  e.quota = Quota;
  e.etichetta = Etichetta;
  e.cella = Cella;
  e.nomeSald = NomeSald;
  return true;
}
