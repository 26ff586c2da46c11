// drawing/font.h - the stroke font of the suite: glyphs as pairs of points, one pair a segment.
// File      DirProgra + "\font.001": the narrowing percentage, then one glyph a line: its key character and a run of points of
//           four characters, two for x and two for y.
// State     font: filled by the start, then read-only.
// Units     glyph units: a cell is 99 wide and 69 high, the base line stands at 30.
#pragma once
#include <cstdint>

constexpr int MaxPuntiGlifo = 100;     // longer glyphs are cut
constexpr double FONT_LARGHEZZA = 99;  // glyph units of one character width
constexpr double FONT_ALTEZZA = 69;    // glyph units of one character height
constexpr double FONT_BASE = 30;       // ordinate of the base line

struct Font {
  std::int16_t FontN[255] = {};  // by ANSI code 0..254: number of points, even; -1 no glyph
  std::int16_t FontX[256][MaxPuntiGlifo + 1] = {}, FontY[256][MaxPuntiGlifo + 1] = {};
  unsigned char FontCar[256] = {};  // key character of each code
  std::int16_t FontStretta = 0;     // per cent by which glyphs are narrowed
};
inline Font font;

// The start reads it once. False: the file is missing or a step failed (also a glyph of code 255, which has no place).
bool LeggiFont();
