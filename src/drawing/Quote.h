// drawing/Quote.h - measures on the executive drawing: one dimension, chains along a row of values, the named chains of each view.
// Units     mm on the sheet; values of the anchor detail are enlarged by ParNodo(19), and their measures reduced by it.
// State     quote: of the chain and the weld marks being drawn; at rest outside them.
// Failure   a measure that is no number ends the drawing (see InterrompiDisegno).
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

struct StatoQuote {
  bool CatenaAttiva = false;    // a chain is being drawn
  bool QuotaRibaltata = false;  // the last text of the chain went to the other side of its line
  bool EtichetteSald = false;   // weld marks carry the weld's name
  double OffEtichSald = 0;      // mm; offset of a weld's name from its mark
};
inline StatoQuote quote;

// One dimension: both abscissas, then both ordinates. Empty text: the measure itself. coloreLinea -1: text only. distanza: mm,
// signed, to the left of the direction left to right or upward. Measure = |scala| times the drawn length.
void DisQuota(const std::string& testo, double x1, double x2, double y1, double y2, std::int16_t coloreLinea, std::int16_t coloreTesto,
              double larghezza, double altezza, double distanza, double scala);
std::string FormatoMisura(double v);              // plain form, cut behind the first digit after the point
std::string NumeroDis(double v);                  // plain form; no finite number: ends the drawing, empty
std::string SenzaSpaziDoppi(std::string_view t);  // outer blanks dropped, one blank between words

// Chains of the values a[1..n], ascending, at abscissa x or ordinate y; Scala: of the anchor detail, values as drawn.
void CatenaV(const double* a, int n, double x);
void CatenaO(const double* a, int n, double y);
void CatenaVScala(const double* a, int n, double x);
void CatenaOScala(const double* a, int n, double y);

// The named chains. V, Sx, Dx stand at an abscissa; O, Z, Y, Su at an ordinate.
void QuoteQuotePiastra(double x, int k);  // k 2: view B-B
void QuoteFondazioneV(double x);
void QuoteMaltaV(double x);
void QuoteMaltaO(double y);
void QuoteTirafondiZ(double y);
void QuoteTirafondiY(double y);
void QuoteForiZ(double y);
void QuoteForiY(double y);
void QuoteNervY(double y);
void QuoteNervZ(double y);
void QuoteNervPianta(double x);
void QuoteLatoV(double x);
void QuoteLatoO(double y);
void QuoteSezV(double x);
void QuoteSezO(double y);
void QuoteTfDxA(double x);
void QuoteTfDxB(double x);
void QuoteTfSx(double x);
void QuoteTfSu(double y);

// Patterns with an anchor at mid side.
bool TerzoTirafondoZ();  // three anchors in view B-B: eight, or six "Orizz."
bool TerzoTirafondoY();  // three anchors in view A-A: eight, or six "Vert."
