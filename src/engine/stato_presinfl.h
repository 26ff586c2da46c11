// engine/stato_presinfl.h - the solver's data of one sextet, and what it has worked out.
// Axes      origin at the plate's centre, x along Z, y along Y upward; TfY is measured downward, so it runs against y.
// Units     mm, daN, daN mm.
// Signs     value(x, y) = P[1] y + P[2] x + P[3], negative in compression; N + in tension.
#pragma once
#include "model/node_model.h"

constexpr int MaxPoli = 6;  // vertices of a rectangle cut by a line, signs spoiled by rounding included

// Matrices and vectors: index 1 goes with y, 2 with x, 3 with the constant term.
struct StatoPresInfl {
  // Source data of the sextet, by DatiSezione.
  int NumVertici = 0;                                       // of the plate, 4
  double VertX[4 + 2] = {}, VertY[4 + 2] = {};              // mm, clockwise from the lower left; PresInfl repeats the first at the end
  int NumBarre = 0;                                         // anchors in use, 1..NumBarre
  double BarraX[MaxTir + 1] = {}, BarraY[MaxTir + 1] = {};  // mm
  double BarraA = 0;                                        // mm2, resistant area of each
  double ERif = 0;                                          // concrete's modulus, the reference, daN/mm2
  double Carichi[4] = {};                                   // [1] Mz, [2] -My: daN cm, daN mm from the first iteration on; [3] N: daN
  // Worked out by PresInfl.
  bool DentroBarra[MaxTir + 1] = {};  // the anchor stands in the concrete's region
  int NumPoli = 0;                    // vertices of the compressed polygon; 0 all in tension
  double PoliX[MaxPoli + 2] = {}, PoliY[MaxPoli + 2] = {};
  double K[4][4] = {};      // section matrix of the last iteration, divided by ERif
  double ForzeInt[4] = {};  // as Carichi
  double Residuo[4] = {};   // as Carichi; not cleared between sextets: the third iteration is the first tested, so no effect
  double PianoDef[4] = {};  // strain plane P above
  int IterPres = 0;         // iteration that met the test; 101 none
};
