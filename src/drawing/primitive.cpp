// drawing/primitive.cpp - the primitives: into the store, or on a canvas.
#include "drawing/disegno.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "drawing/font.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr double ESTENSIONE_NULLA = 1e10;  // beyond every sheet

void AzzeraDisegno() {
  disegno.NumCoord = disegno.NumLinee = disegno.NumCerchi = disegno.NumArchi = disegno.NumTesti = 0;
  disegno.Interrotto = false;
}

void AzzeraEstensioni() {
  disegno.XMax = disegno.YMax = -ESTENSIONE_NULLA;
  disegno.XMin = disegno.YMin = ESTENSIONE_NULLA;
}

void InterrompiDisegno() {
  SegnalaFault();
  disegno.Interrotto = true;
}

static bool NelDisegno() { return disegno.DestDis == GENDIS; }

bool LineeEsaurite() { return disegno.Interrotto || (NelDisegno() && disegno.NumLinee == MaxLineeDis); }

static bool Vicini(double a, double b) { return std::abs(a - b) < TOLL_GEO; }

static void CapacitaEsaurita(const char* testo) { Messaggio(testo, "ERRORE !!", Icona::Informazione); }

std::int16_t InCorto(double v) {
  std::int16_t n = 0;
  if (!InIntero(v, n)) InterrompiDisegno();
  return n;
}

std::int16_t ColoreOpz(int i) { return InCorto(suite.ParNodo[i]); }

void OrdinaVett(double* v, int n) {
  for (bool scambi = true; scambi;) {
    scambi = false;
    for (int i = 1; i < n; ++i)
      if (v[i] > v[i + 1]) {
        std::swap(v[i], v[i + 1]);
        scambi = true;
      }
  }
}

namespace {
struct CorrispondenzaColore {
  std::int32_t rgb;
  std::int16_t indice;
};
}  // namespace

static const CorrispondenzaColore COLORI_TELA[] = {
  {0x000080, 3}, {0xFFFFFF, 1}, {0x800000, 2}, {0x00C000, 4}, {0x00C0C0, 5}, {0x008000, 6}, {0x800080, 7},
};

std::int16_t ColoreDaRgb(std::int32_t rgb) {
  for (const CorrispondenzaColore& c : COLORI_TELA)
    if (c.rgb == rgb) return c.indice;
  return 0;
}

std::int32_t RgbDaColore(int indice) {
  // index                                    0         1         2         3         4         5         6         7
  static const std::int32_t UGUALE_SCALA[] = {0x000000, 0xFFFFFF, 0x800000, 0x000080, 0x00C000, 0x00C0C0, 0x008000, 0x800080};
  static const std::int32_t ALTRA_SCALA[] = {0xFFFFFF, 0x000000, 0xFFFF00, 0x0000FF, 0x00FF00, 0x00FFFF, 0x0080FF, 0xFF00FF};
  return (suite.ParNodo[19] == 1 ? UGUALE_SCALA : ALTRA_SCALA)[indice >= 1 && indice <= 7 ? indice : 0];
}

static std::int16_t ScegliColore(const Tela* tela, Colore colore) {
  if (colore) return *colore;
  return tela ? ColoreDaRgb(tela->primoPiano) : disegno.ColCorr;
}

// Colour 0 has no meaning in the files.
static std::int16_t ColoreMem(std::int16_t colore) { return colore == 0 ? std::int16_t{1} : colore; }

std::int16_t IndiceCoord(double x, double y) {
  Disegno& d = disegno;
  if (d.Interrotto) return -1;
  const int ultima = std::max(0, d.NumCoord - RicercaCoord);
  for (int i = d.NumCoord - 1; i >= ultima; --i)
    if (Vicini(x, d.CoordX[i]) && Vicini(y, d.CoordY[i])) return static_cast<std::int16_t>(i);
  if (d.NumCoord == MaxCoordDis - 1) CapacitaEsaurita("Si è raggiunto il numero massimo di coordinate.");
  if (d.NumCoord == MaxCoordDis) return -1;
  if (d.NumCoord >= CoordIndicizzabili) {  // the real limit of a drawing
    InterrompiDisegno();
    return -1;
  }
  d.CoordX[d.NumCoord] = x;
  d.CoordY[d.NumCoord] = y;
  return static_cast<std::int16_t>(d.NumCoord++);
}

// The style of the drawing code as the line type of the files; any other style leaves what the place held.
static void TraduciTipo(std::int16_t& tipo) {
  switch (disegno.TipoLinCorr) {
    case 0: tipo = 0; break;
    case 1: tipo = 4; break;
    case 3: tipo = 1; break;
  }
}

void MemLinea(double x1, double y1, double x2, double y2, std::int16_t colore) {
  Disegno& d = disegno;
  if (d.Interrotto) return;
  if (d.NumLinee == MaxLineeDis - 1) CapacitaEsaurita("Si è raggiunto il numero massimo di linee.");
  if (d.NumLinee == MaxLineeDis) return;
  const int i = d.NumLinee++;
  d.LinIni[i] = IndiceCoord(x1, y1);
  d.LinFin[i] = IndiceCoord(x2, y2);
  TraduciTipo(d.LinTipo[i]);
  d.LinCol[i] = colore;
  if (d.LinFin[i] < 0) --d.NumLinee;  // only the end is tested; the extents move all the same
  d.XMax = std::max({d.XMax, x1, x2});
  d.YMax = std::max({d.YMax, y1, y2});
  d.XMin = std::min({d.XMin, x1, x2});
  d.YMin = std::min({d.YMin, y1, y2});
}

void DisLinea(Tela* tela, double x1, double y1, double x2, double y2, Colore colore) {
  if (Vicini(x1, x2) && Vicini(y1, y2)) return;
  const std::int16_t c = ScegliColore(tela, colore);
  if (NelDisegno()) MemLinea(disegno.OffX + x1, disegno.OffY + y1, disegno.OffX + x2, disegno.OffY + y2, ColoreMem(c));
  else if (tela) SegmentoTela(*tela, x1, y1, x2, y2, RgbDaColore(c));
}

void DisLineaRel(Tela* tela, double x, double y, double dx, double dy, Colore colore) { DisLinea(tela, x, y, x + dx, y + dy, colore); }

void DisArco(Tela* tela, double x, double y, double diametro, Colore colore, double angIni, std::optional<double> angFin) {
  if (!(diametro > TOLL_GEO)) return;
  Disegno& d = disegno;
  const std::int16_t c = ScegliColore(tela, colore);
  const double a1 = angIni, a2 = angFin.value_or(angIni), r = diametro / 2;
  if (!NelDisegno()) {
    if (tela) ArcoTela(*tela, x, y, r, a1, a2, RgbDaColore(c));
    return;
  }
  if (d.Interrotto) return;
  // Arcs share the lines' text: a store full of arcs speaks of lines.
  if (d.NumArchi == MaxArchiDis - 1) CapacitaEsaurita("Si è raggiunto il numero massimo di linee.");
  if (d.NumArchi == MaxArchiDis) return;
  const int i = d.NumArchi++;
  const double xc = d.OffX + x, yc = d.OffY + y;
  d.ArcCen[i] = IndiceCoord(xc, yc);
  d.ArcIni[i] = IndiceCoord(xc + r * std::cos(a1), yc + r * std::sin(a1));
  d.ArcCen2[i] = d.ArcCen[i];
  d.ArcFin[i] = IndiceCoord(xc + r * std::cos(a2), yc + r * std::sin(a2));
  d.ArcTipo[i] = 0;
  d.ArcCol[i] = ColoreMem(c);
  if (d.ArcIni[i] < 0) --d.NumArchi;
}

static void MemTesto(const std::string& testo, double x, double y, std::int16_t angolo, double larghezza, double altezza,
                     std::int16_t colore) {
  Disegno& d = disegno;
  if (d.Interrotto) return;
  if (d.NumTesti == MaxTestiDis - 1) CapacitaEsaurita("Si è raggiunto il numero massimo di testi.");
  if (d.NumTesti == MaxTestiDis) return;
  const int i = d.NumTesti++;
  if (d.TesStr.size() <= static_cast<std::size_t>(i)) d.TesStr.resize(static_cast<std::size_t>(i) + 1);
  d.TesPos[i] = IndiceCoord(d.OffX + x, d.OffY + y);
  d.TesLarg[i] = InCorto(10 * larghezza);
  d.TesAlt[i] = InCorto(10 * altezza);
  d.TesAng[i] = angolo;
  d.TesCol[i] = colore;
  d.TesStr[static_cast<std::size_t>(i)] = testo;
  if (d.TesPos[i] < 0) --d.NumTesti;
}

void DisTesto(const std::string& testo, double x, double y, std::int16_t angolo, double larghezza, double altezza, Colore colore) {
  const std::int16_t c = ScegliColore(nullptr, colore);
  if (NelDisegno()) {
    MemTesto(testo, x, y, angolo, larghezza, altezza, ColoreMem(c));
    return;
  }
  for (const TrattoTesto& t : TrattiTesto(testo, x, y, angolo, larghezza, altezza)) DisLinea(nullptr, t.x1, t.y1, t.x2, t.y2, c);
}

std::vector<TrattoTesto> TrattiTesto(std::string_view testo, double x, double y, double angolo, double larghezza, double altezza) {
  const double a = angolo * PI_PROG / 180, ca = std::cos(a), sa = std::sin(a);
  const double sy = altezza / FONT_ALTEZZA, sx = larghezza / FONT_LARGHEZZA * (1 - font.FontStretta / 100.0);
  std::vector<TrattoTesto> tratti;
  double p = 0;  // pen position along the text; moves on also without a glyph
  for (const char carattere : InAnsi(testo)) {
    const unsigned char c = static_cast<unsigned char>(carattere);
    const double bx = p * ca + x, by = p * sa + y;
    const auto X = [&](int k) { return bx + font.FontX[c][k] * sx * ca - (font.FontY[c][k] - FONT_BASE) * sy * sa; };
    const auto Y = [&](int k) { return by + font.FontX[c][k] * sx * sa + (font.FontY[c][k] - FONT_BASE) * sy * ca; };
    for (int k = 0; c < 255 && k + 1 < font.FontN[c]; k += 2) tratti.push_back({X(k), Y(k), X(k + 1), Y(k + 1)});
    p += larghezza;
  }
  return tratti;
}
