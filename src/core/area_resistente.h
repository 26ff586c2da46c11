// core/area_resistente.h - the resistant area of any diameter, from the table of diameters that it is given.
#pragma once
struct Suite;

// How an area was found: both stay as they were where a row of the table fits.
struct OrigineArea {
  bool estrapolata = false, interpolata = false;
};

// Resistant area (mm2) of a bar of diameter d (mm): linear in d^2 between two rows, and beyond the first and the last row.
// Raises estrapolata outside the table and interpolata between two rows; clears neither.
// 0: no row fits, or an empty table. Two neighbouring rows of one diameter are a division by zero: fault raised, 0 returned.
double AreaResistente(const Suite& tavola, double d, OrigineArea& origine);
double AreaResistente(const Suite& tavola, double d);
