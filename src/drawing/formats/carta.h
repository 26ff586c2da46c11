// drawing/formats/carta.h - how the store looks on white paper: what the picture file and the preview share.
#pragma once

const char* ColoreCarta(int indice);    // "#rrggbb", dark enough for white paper; an index out of 0..7 as 0
const char* TratteggioCarta(int tipo);  // strokes and gaps in mm, blanks between; "" for a continuous line
constexpr double MARGINE_CARTA = 20;    // mm of paper around the drawing
