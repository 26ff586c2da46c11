// drawing/formats/tipi_linea.h - dash patterns of the suite, and the breaking of a line into their strokes.
// File      DirCustom + "\tipilinea.txt": remarks beginning "Rem ", then five groups, one a line type: the number of strokes, then one
//           length a line, in mm on the sheet. Strokes alternate full and gap, from full.
// State     tipiLinea: filled by LeggiTipiLinea; without the file no type has a pattern, and lines stay whole.
#pragma once
#include <cstdint>
#include <vector>

constexpr int NumTipiLinea = 5;       // 0 continuous, 1 axis, 2 dashed, 3 dash and two dots, 4 hidden
constexpr int MaxTratti = 11;         // strokes of a pattern
constexpr int MaxTrattiRiga = 10000;  // strokes gathered of one line

struct TipiLinea {
  int TipiNTratti[NumTipiLinea] = {};
  double TipiTratto[NumTipiLinea][MaxTratti] = {};  // tenths of mm
  double TipiLungh[NumTipiLinea] = {};              // tenths of mm, the whole pattern
};
inline TipiLinea tipiLinea;
bool LeggiTipiLinea();  // false: no file, or one that ends early; complete groups count

struct TrattoLinea {
  double x1, y1, x2, y2;
};
// Where the pattern stands: it goes on from one line to the next.
struct StatoTratteggio {
  int tratto = 0;    // stroke being drawn
  double resto = 0;  // what is left of it, mm; 0: all of it
};
// The full strokes of a line. False: the line stays whole (no pattern, no length, or 2000 repeats and more). ultimoPieno: a gap at the
// line's end is drawn too.
bool SpezzaLinea(double x1, double y1, double x2, double y2, int tipo, StatoTratteggio& stato, bool ultimoPieno, double scala,
                 std::vector<TrattoLinea>& tratti);
