// drawing/esecutivo.h - the executive drawing: one sheet with two elevations, the plan, the detail of one anchor and the schedule.
// Given     the model, the drawing options, edizione; disegno empty and its destination set. Asks nothing, changes no input.
// Axes      each view has its origin on the top face of the plate, at its centre; disegno.OffX, OffY carry it to its place.
// Units     mm, 1:1 but for the detail, which is enlarged by ParNodo(19).
// State     esecutivo: of the sheet being drawn. The weld table is built anew.
// Failure   none of its own; see InterrompiDisegno.
#pragma once
#include "engine/lavoro.h"

constexpr double Sporgenza = 1.1;  // how far axes overshoot what they cross
constexpr int MaxForiVista = 3;

struct Esecutivo {
  double HColDis = 0;              // length of column shown in the elevations
  double VistaX = 0, VistaY = 0;   // reference point of the part being drawn
  int NumFori = 0;                 // holes of the plate in this view
  double ForiX[MaxForiVista] = {}, ForiD[MaxForiVista] = {};     // centre and width
  double BoxBXMax = 0, BoxBYMax = 0, BoxBXMin = 0, BoxBYMin = 0; // extents of each view as it ended, sheet coordinates
  double BoxAXMax = 0, BoxAYMax = 0, BoxAXMin = 0, BoxAYMin = 0;
  double BoxCXMax = 0, BoxCYMax = 0, BoxCXMin = 0, BoxCYMin = 0;
  double XQuoteDx = 0;             // first chain at the right of view B-B; the plan's chains stand in line with it
  double YTitoloC = 0;             // height of the plan's title on the sheet
};
inline Esecutivo esecutivo;

// Whose table of welds the sheet builds anew and shows; set by the panels at the start of the program.
inline Lavoro* lavoroDisegno = nullptr;

void DisegnoEsecutivo();

void VistaBB();                    // elevation, horizontal axis Z
void VistaAA();                    // elevation, horizontal axis Y
void VistaCC();                    // plan

void Rettangolo(double lx, double ly);       // around the origin, in ColCorr
// A horizontal or vertical line crossed by n holes, metal in ParNodo(2), holes in ParNodo(0).
void LineaConFori(double x1, double y1, double x2, double y2, int n, const double* centri, const double* larghezze);

void NervatureBB();
void NervatureAA();
void NervaturePianta();

// Rods (tirafondi_dis.cpp), y0 the top of the plate.
void TirafondoUncinato(double x, double y0);
void TirafondoDiritto(double x, double y0);
void Dado(double x, double y, int tipo);     // 1 on the plate, 2 under it
void DettaglioTirafondo();
void TirafondoPiastraDettaglio(double x, double y0, double k);   // y0 the rod's top; everything times k

void Distinta();                   // the schedule of parts
void Griglia(double x0, double y0, double h, int righe, const double* larghezze, int colonne);
