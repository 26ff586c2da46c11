// drawing/pianta.h - the plan's parts that the sketch and the executive drawing share: section, anchors, chamfers of the ribs.
// Axes      canvas x is the model's Z, canvas y its Y; origin at the plate's centre.
// Units     mm.
#pragma once
#include "drawing/tela.h"
#include "model/node_model.h"

// nodo.NervTaglio, NervZ, NervY: each a third of a free length, truncated and rounded to tens of mm.
void CalcolaSmussi();

enum class Segni { Senza, ConSaldature };  // with the eight weld marks first, then ColCorr = colore

// Outline of an I section centred on (x0, y0), in the colour found; a canvas' foreground becomes colore afterwards, for what is drawn next.
void PiantaSezione(Tela* tela, const Sezione& sezione, double x0, double y0, std::int16_t colore, Segni segni);

// Anchors: red circles on a canvas; in the store crossed circles around (vistaX, vistaY).
void PianoTirafondi(Tela* tela, double vistaX = 0, double vistaY = 0);
