// drawing/edizione_dis.h - the edition of DIS, DXF and SVG: texts and dimensions as lines, circles and texts of the store, with
// sizes and colours of the options.
#pragma once
#include "drawing/edizione.h"

Edizione EdizioneDis();
