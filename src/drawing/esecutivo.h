// drawing/esecutivo.h - the executive drawing: one sheet with two elevations, the plan, the detail of one anchor and the schedule.
// Given     the model, the drawing options, edizione; disegno empty and its destination set. Asks nothing, changes no input.
// Axes      each view has its origin on the top face of the plate, at its centre; disegno.OffX, OffY carry it to its place.
// Units     mm, 1:1 but for the detail, which is enlarged by ParNodo(19).
// State     esecutivo (drawing/tavola.h): of the sheet being drawn. The weld table is built anew.
// Failure   none of its own; see InterrompiDisegno.
#pragma once

void DisegnoEsecutivo();

// The sheet into the store, in the edition that edizione holds. False: a fault, with its box; the destination is reset.
bool DisegnaFoglio();
