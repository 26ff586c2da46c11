// panels/visualizzatore.h - the executive drawing in the suite's viewer, an outside program that watches a file.
#pragma once

void InsDati_ApriVis(int);  // starts the viewer or makes the running one reload, then writes the drawing
