// core/diametri.h - the table of anchor diameters, as read at the start.
// State     suite.NumDiam, DiamNome, DiamVal (mm), DiamArea (mm2): rows from 0; filled once at the start.
//           Rows are expected in ascending order of diameter; nothing checks that.
// Failure   a missing file leaves the built-in table; a bad one shows its box, the start goes on and NumDiam stays.
#pragma once
#include "core/area_resistente.h"

// The 22 built-in rows, M8 to M68, then the rows of DirCustom\QbDiam.txt (name|diameter|area|) over them from the top.
// A shorter file leaves built-in rows behind the count.
void LeggiDiametri();
