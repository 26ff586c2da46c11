// drawing/saldature_dis.h - weld marks: strokes across the weld and a line parallel to it, at the distance of the weld's side.
// lato      +1: the mark lies to the left of the direction from the first end to the second; -1: to the right.
// tipo      1: strokes at both ends too; 2: strokes between the ends only.
// indice    weld whose name is shown while quote.EtichetteSald holds; any number otherwise.
// Failure   a count of strokes out of range ends the drawing (see InterrompiDisegno).
#pragma once
#include "drawing/disegno.h"

// Steps of a mark; strokes stand from the second on. False: their count is out of range. No mark tries more strokes than the store holds
// lines: behind so many either it is full, or they vanish in the rounding of far-off coordinates and leave nothing however many they are.
bool TrattiSaldatura(double lunghezza, double passo, std::int32_t& n);

void DisSaldatura(Tela* tela, double x1, double y1, double x2, double y2, int lato, int tipo, int indice);
void DisLineaSald(double x1, double y1, double x2, double y2, int lato, int tipo, int indice);  // mark, then the line in ColCorr
void DisAngoloSald(Tela* tela, double x, double y, int quadrante, Colore colore = {});          // 1..4, radius Gola; others nothing
