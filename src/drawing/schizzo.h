// drawing/schizzo.h - the live sketches: the plan of the joint on the main panel, the chosen section on the import panel. No dimensions and
// no texts; the store is never touched.
// Scale     the same on both axes, y upward, the governing size fills 1/1.2 of the canvas, centred on the origin.
#pragma once
#include "drawing/tela.h"
#include "model/node_model.h"

// Repaints the plan whole; the chamfers of the ribs are worked out for it.
void DisegnaNodo(Tela& tela);
void DisegnaSezImport(Tela& tela, const Sezione& sezione);
