// core/diametri.h - the table of anchor diameters and the resistant area of any diameter.
// State     suite.NumDiam, DiamNome, DiamVal (mm), DiamArea (mm2): rows from 0; filled once at the start.
//           Rows are expected in ascending order of diameter; nothing checks that.
// Failure   a missing file leaves the built-in table; a bad one shows its box, the start goes on and NumDiam stays.
#pragma once

// The 22 built-in rows, M8 to M68, then the rows of DirCustom\QbDiam.txt (name|diameter|area|) over them from the top.
// A shorter file leaves built-in rows behind the count.
void LeggiDiametri();

// How an area was found: both stay as they were where a row of the table fits.
struct OrigineArea { bool estrapolata = false, interpolata = false; };

// Resistant area (mm2) of a bar of diameter d (mm): linear in d^2 between two rows, and beyond the first and the last row.
// Raises estrapolata outside the table and interpolata between two rows; clears neither.
// 0: no row fits, or an empty table. Two neighbouring rows of one diameter are a division by zero: fault raised, 0 returned.
struct Suite;
double AreaResistente(const Suite& tavola, double d, OrigineArea& origine);
double AreaResistente(const Suite& tavola, double d);
