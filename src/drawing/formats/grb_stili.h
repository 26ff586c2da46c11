// drawing/formats/grb_stili.h - text styles of the suite's graphic environment, from its template drawing.
// File      DirCustom + "\cad2dmodello.grb", of which only the head is read.
// State     stiliGrb: filled by the start, then read-only; zero styles when the template is missing.
// Indices   styles 1..NumStili, index 0 free; files hold the style less one.
// Units     LargStile, AltStile: drawing units (mm).
#pragma once
#include <cstdint>

constexpr int MaxStiliGrb = 100;

struct StiliGrb {
  std::int16_t NumStili = 0;                                               // the template's count; 0 without a template
  double LargStile[MaxStiliGrb + 1] = {}, AltStile[MaxStiliGrb + 1] = {};  // character width and height
  std::int16_t IdStile[MaxStiliGrb + 1] = {};
};
inline StiliGrb stiliGrb;

// Size v of the template in drawing units: factor f, unit u (0 thousandths, 1 tenths, other whole).
double ConvStile(double v, double f, std::int16_t u);

// The start reads it once. False, after its own box: the template could not be opened or read; the program goes on with the
// tables as they stand.
bool LeggiStiliGrb();
