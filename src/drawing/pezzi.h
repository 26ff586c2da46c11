// drawing/pezzi.h - the parts that the views and the sheet are put together from: ribs, rods, schedule.
// Units     mm, 1:1 but for the detail of the anchor.
#pragma once

// Ribs (nervature_dis.cpp).
void NervatureBB();
void NervatureAA();
void NervaturePianta();

// Rods (tirafondi_dis.cpp), y0 the top of the plate.
void TirafondoUncinato(double x, double y0);
void TirafondoDiritto(double x, double y0);
void Dado(double x, double y, int tipo);  // 1 on the plate, 2 under it
void DettaglioTirafondo();
void TirafondoPiastraDettaglio(double x, double y0, double k);  // y0 the rod's top; everything times k

// The schedule of parts (distinta.cpp).
void Distinta();
void Griglia(double x0, double y0, double h, int righe, const double* larghezze, int colonne);
