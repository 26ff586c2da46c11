// drawing/viste.h - the three views of the executive drawing.
// Axes      origin on the top face of the plate, at its centre.
// Units     mm, 1:1.
#pragma once

void VistaBB();  // elevation, horizontal axis Z
void VistaAA();  // elevation, horizontal axis Y
void VistaCC();  // plan
