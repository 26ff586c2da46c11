// tests/corredo/equilibrio.h - does the strain plane of a sextet give its load back? Shares nothing with the engine's integrals:
// the plate is clipped to its compressed part triangle by triangle, and each triangle is integrated at the middles of its sides,
// which is exact for the pressure times y or x.
// Section   concrete of modulus EcCls / 100 on the plate where the plane is negative, less the concrete that each compressed anchor
//           displaces, plus the anchors at 20000 daN/mm2.
// Units     mm, daN, daN mm. Signs: tension +; My turns against x, Mz with y.
#pragma once

struct Reazioni {
  double N = 0, My = 0, Mz = 0;
};  // daN, daN mm

Reazioni ReazioniPiano(double piano_y, double piano_x, double piano_1);  // of nodo's plate and anchors

// Solves sextet s of nodo and gives the differences from its load: N, My, Mz. True: the solver succeeded and each is within
// one unit plus 0.01 per cent of the load.
bool EquilibrioSestetto(int s, double scarto[3]);
