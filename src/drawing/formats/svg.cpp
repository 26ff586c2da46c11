// drawing/formats/svg.cpp - the store as a picture for looking: a white page of the drawing's size in mm, y upward, texts as text.
#include <algorithm>
#include <cmath>
#include <utility>

#include "core/file.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "drawing/disegno.h"
#include "drawing/formats/carta.h"
#include "drawing/formats/scrittori.h"
#include "model/node_model.h"

constexpr double MAIUSCOLE = 0.73, PASSO_FONT = 0.602;  // of a usual font of fixed width, in parts of its size: capitals' height, advance

// Colours by index, dark enough for white paper.
static const char* const COLORI_CARTA[] = {"#000000", "#000000", "#000080", "#c00000", "#008000", "#a08000", "#006000", "#800080"};
// Dash patterns by line type, mm.
static const char* const TRATTI[] = {"", "24 4 4 4", "8 4", "12 4 2 4 2 4", "6 4"};

namespace {
struct Pagina {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  // sheet coordinates of its corners
};
}  // namespace

static void Allarga(Pagina& p, double x, double y) {
  p.x1 = std::min(p.x1, x);
  p.y1 = std::min(p.y1, y);
  p.x2 = std::max(p.x2, x);
  p.y2 = std::max(p.y2, y);
}

// Coordinates, and the ends of the texts, which have none.
static Pagina CalcolaPagina() {
  const Disegno& d = disegno;
  Pagina p{d.CoordX[0], d.CoordY[0], d.CoordX[0], d.CoordY[0]};
  for (int i = 0; i < d.NumCoord; ++i) Allarga(p, d.CoordX[i], d.CoordY[i]);
  for (int i = 0; i < d.NumTesti; ++i) {
    const double a = d.TesAng[i] * PI_PROG / 180,
                 l = static_cast<double>(NumCaratteri(d.TesStr[static_cast<std::size_t>(i)])) * d.TesLarg[i] / 10;
    const double h = d.TesAlt[i] / 10.0, x = d.CoordX[d.TesPos[i]], y = d.CoordY[d.TesPos[i]];
    Allarga(p, x + l * std::cos(a) - h * std::sin(a), y + l * std::sin(a) + h * std::cos(a));
  }
  return {p.x1 - MARGINE_CARTA, p.y1 - MARGINE_CARTA, p.x2 + MARGINE_CARTA, p.y2 + MARGINE_CARTA};
}

static std::string N(double v) { return NumeroPiano(std::floor(v * 1000 + 0.5) / 1000); }

const char* ColoreCarta(int i) { return COLORI_CARTA[i >= 0 && i <= 7 ? i : 0]; }

const char* TratteggioCarta(int tipo) { return TRATTI[tipo >= 1 && tipo <= 4 ? tipo : 0]; }

static std::string Stile(int colore, int tipo) {
  std::string s = std::string("stroke=\"") + ColoreCarta(colore) + '"';
  if (*TratteggioCarta(tipo) != '\0') s += std::string(" stroke-dasharray=\"") + TratteggioCarta(tipo) + '"';
  return s + "/>\n";
}

static void Linee(std::string& t) {
  const Disegno& d = disegno;
  for (int i = 0; i < d.NumLinee; ++i)
    t += "<line x1=\"" + N(d.CoordX[d.LinIni[i]]) + "\" y1=\"" + N(-d.CoordY[d.LinIni[i]]) + "\" x2=\"" + N(d.CoordX[d.LinFin[i]]) +
         "\" y2=\"" + N(-d.CoordY[d.LinFin[i]]) + "\" " + Stile(d.LinCol[i], d.LinTipo[i]);
}

static void Archi(std::string& t) {
  const Disegno& d = disegno;
  for (int i = 0; i < d.NumArchi; ++i) {
    const double cx = d.CoordX[d.ArcCen[i]], cy = d.CoordY[d.ArcCen[i]], x1 = d.CoordX[d.ArcIni[i]], y1 = d.CoordY[d.ArcIni[i]];
    const double x2 = d.CoordX[d.ArcFin[i]], y2 = d.CoordY[d.ArcFin[i]], r = std::sqrt((x1 - cx) * (x1 - cx) + (y1 - cy) * (y1 - cy));
    if (std::abs(x1 - x2) < TOLL_GEO && std::abs(y1 - y2) < TOLL_GEO) {
      t += "<circle cx=\"" + N(cx) + "\" cy=\"" + N(-cy) + "\" r=\"" + N(r) + "\" " + Stile(d.ArcCol[i], d.ArcTipo[i]);
      continue;
    }
    double apertura = AngoloArco(x2, y2, cx, cy) - AngoloArco(x1, y1, cx, cy);
    if (apertura < 0) apertura += 360;
    t += "<path d=\"M" + N(x1) + ' ' + N(-y1) + 'A' + N(r) + ' ' + N(r) + " 0 " + (apertura > 180 ? '1' : '0') + " 0 " + N(x2) + ' ' +
         N(-y2) + "\" " + Stile(d.ArcCol[i], d.ArcTipo[i]);
  }
}

static std::string TestoSvg(const std::string& testo) {
  std::string s = testo;
  if (const std::size_t p = s.find(']'); p != std::string::npos) s.replace(p, 1, "Ø");  // the diameter sign of the drawing
  for (char& c : s)
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  return Componi(Componi(Componi(s, "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

// Each character as wide as the drawing says: a font of fixed width, squeezed or stretched along the line.
static void Testi(std::string& t) {
  const Disegno& d = disegno;
  for (int i = 0; i < d.NumTesti; ++i) {
    const std::string& testo = d.TesStr[static_cast<std::size_t>(i)];
    const double corpo = d.TesAlt[i] / 10.0 / MAIUSCOLE;
    if (testo.empty() || !(corpo > 0)) continue;
    t += "<text transform=\"translate(" + N(d.CoordX[d.TesPos[i]]) + ' ' + N(-d.CoordY[d.TesPos[i]]) + ')';
    if (d.TesAng[i] != 0) t += " rotate(" + N(-d.TesAng[i]) + ')';
    t += " scale(" + N(d.TesLarg[i] / 10.0 / (PASSO_FONT * corpo)) + " 1)\" font-size=\"" + N(corpo) + "\" fill=\"" +
         ColoreCarta(d.TesCol[i]) + "\">" + TestoSvg(testo) + "</text>\n";
  }
}

bool SalvaSvg(const std::string& nomeFile, int silenzioso) {
  FileScrittura file;
  const Pagina p = CalcolaPagina();
  const std::string larghezza = N(p.x2 - p.x1), altezza = N(p.y2 - p.y1), angolo = N(p.x1) + ' ' + N(-p.y2);
  std::string t = "<?xml version=\"1.0\" encoding=\"windows-1252\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + larghezza +
                  "mm\" height=\"" + altezza + "mm\" viewBox=\"" + angolo + ' ' + larghezza + ' ' + altezza + "\">\n<rect x=\"" + N(p.x1) +
                  "\" y=\"" + N(-p.y2) + "\" width=\"" + larghezza + "\" height=\"" + altezza +
                  "\" fill=\"#ffffff\"/>\n<g fill=\"none\" stroke-width=\"1\" stroke-linecap=\"round\">\n";
  Linee(t);
  Archi(t);
  t += "</g>\n<g font-family=\"monospace\">\n";
  Testi(t);
  t += "</g>\n</svg>\n";
  bool esito = ApriScrittura(file, nomeFile);
  if (esito) {
    file.testo = std::move(t);
    esito = ChiudiScrittura(file);
  }
  if (!esito) ErroreScrittura(nomeFile, silenzioso);
  return esito;
}
