// drawing/tavola.h - what the parts of the executive drawing share: the record of the sheet, whose welds it shows, two figures.
// Units     mm, 1:1.
// State     esecutivo: of the sheet being drawn.
#pragma once
#include "engine/lavoro.h"

constexpr double Sporgenza = 1.1;  // how far axes overshoot what they cross
constexpr int MaxForiVista = 3;

struct Esecutivo {
  double HColDis = 0;                                             // length of column shown in the elevations
  double VistaX = 0, VistaY = 0;                                  // reference point of the part being drawn
  int NumFori = 0;                                                // holes of the plate in this view
  double ForiX[MaxForiVista] = {}, ForiD[MaxForiVista] = {};      // centre and width
  double BoxBXMax = 0, BoxBYMax = 0, BoxBXMin = 0, BoxBYMin = 0;  // extents of each view as it ended, sheet coordinates
  double BoxAXMax = 0, BoxAYMax = 0, BoxAXMin = 0, BoxAYMin = 0;
  double BoxCXMax = 0, BoxCYMax = 0, BoxCXMin = 0, BoxCYMin = 0;
  double XQuoteDx = 0;  // first chain at the right of view B-B; the plan's chains stand in line with it
  double YTitoloC = 0;  // height of the plan's title on the sheet
};
inline Esecutivo esecutivo;

// Whose table of welds the sheet builds anew and shows; set by the panels at the start of the program.
inline Lavoro* lavoroDisegno = nullptr;

void Rettangolo(double lx, double ly);  // around the origin, in ColCorr
// A horizontal or vertical line crossed by n holes, metal in ParNodo(2), holes in ParNodo(0).
void LineaConFori(double x1, double y1, double x2, double y2, int n, const double* centri, const double* larghezze);
