// tests/corredo/nodo_disegno.h - the joint and the options that the drawing tests share, with what each test looks for in the store.
#pragma once
#include "drawing/disegno.h"

#include <string>

// Column 200 x 180, plate 400 x 500 x 20, four ribs 150 x 8, rods of 20 mm: hand values of the tests start from these numbers.
void NodoDiProva();
// Colours 0..6 and 20: 2 4 3 6 5 7 1 9; dimension texts 15 x 10, titles 25 x 18, schedule 15 x 10.
void OpzioniDiProva();

// A line of the store between two points, either way round, within 0.001; index or -1. Sheet coordinates less (OX, OY).
int TrovaLinea(double x1, double y1, double x2, double y2, double OX = 0, double OY = 0);
int TrovaArco(double xc, double yc, double raggio, double OX = 0, double OY = 0, int dopo = -1);
int TrovaTesto(const std::string& testo, int dopo = -1);  // index of the next text behind dopo, or -1
int ContaTesti(const std::string& testo);
