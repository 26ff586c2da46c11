// model/regole_nodo.h - what follows from what in a joint: whoever varies a joint, by a panel or by a search, follows the same rule.
// Units     mm; EcCls daN/cm2.
// Failure   a result that is not finite: the caller's matter (SonoFiniti); nothing here tests it.
#pragma once
#include "model/node_model.h"

// Distances of the corner anchors from the plate's edges, as typed: left, right, upper, lower.
struct DistanzeTir {
  double z1 = 0, z2 = 0, y1 = 0, y2 = 0;
};

// NTir, TfZ, TfY of the pattern OptionNTir: anchors 1..4 by the distances, the extra ones on their lines or at mid side.
void PosizioniTirafondi(Nodo& nodo, const DistanzeTir& d);
void PosizioniExtra(Nodo& nodo);  // NTir and anchors 5 to 8 alone, from the corner ones and the sides

double GolaDaLato(double lato);  // throat of a fillet weld
double LatoDaMargine(double margine, double colonna);
double MargineDaLato(double lato, double colonna);
double ModuloCls(double Rck);  // daN/cm2, 5700 sqrt(Rck) of Rck in N/mm2, of both methods

struct Smussi {
  double Taglio = 0, Z = 0, Y = 0;
};  // chamfers of the ribs: height of the outer edge, level part along Z and Y
Smussi SmussiNervature(const Nodo& nodo);
double LunghezzaTirafondo(const Nodo& nodo);  // of one rod, to one decimal, as the schedule tells it
