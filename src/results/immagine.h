// results/immagine.h - the picture of one sextet: the plan with the pressure under the plate, rods and welds with what they carry, the welds
// up the ribs beside it. One scene for file, window and page.
// Given     l judged (EseguiVerifica true) and its joint unchanged; s 1..NumSoll.
// Axes      group "pianta": mm from the plate's centre, x to the right as TfZ, y downward as TfY. Welds: z of their table to the right, its y
//           upward, as the solver's: a moment Mz that pulls the upper rods pulls the upper welds.
// Units     kN, N/mm2, mm.
#pragma once
#include "engine/lavoro.h"
#include "results/scena.h"

constexpr int FASCE_ISOBARE = 12;

// One band of the compressed part: pressures pmin..pmax (N/mm2, positive), vertices in order. Neighbours share vertices and level.
struct Isobara {
  double pmin = 0, pmax = 0;
  std::vector<PuntoScena> punti;
};
// Empty: nothing is compressed. A uniform pressure is one band.
std::vector<Isobara> Isobare(const Lavoro& l, int s);

Scena ImmagineSestetto(const Lavoro& l, int s);
// The sextet of the governing row, 1 where there is none; 0: no sextets.
int SestettoGovernante(const Lavoro& l);
