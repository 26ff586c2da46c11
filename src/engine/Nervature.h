// engine/Nervature.h - the four cuts of a ribbed plate, and the pressure's integrals over a rectangle of the plate.
// Axes      from the plate's centre: p = LatoZ/2 - TfZ, the solver's x mirrored; q = LatoY/2 - TfY, the solver's y.
// Units     mm, daN, daN mm, daN/mm2.
// Signs     pressure negative in compression; resultants of the pressure are negative or 0.
// State     l.presInfl.PianoDef of the sextet; writes l.ris.SNerv[s], SMaxPiastra[s] and the rib welds of l.ris.Saldature.
// Failure   HNerv, SpNerv or GolaCalc zero is an arithmetic fault of the run.
#pragma once
#include "engine/lavoro.h"

// Resultant of the compressed pressure over pa..pb, qa..qb, and its moments about the rectangle's middle lines.
struct AzioniPiastra {
  double V, MomentoQ, MomentoP;
};
AzioniPiastra AzioniSuPiastra(const Lavoro& l, double pa, double pb, double qa, double qb);  // all three in one pass
double RisultanteSuPiastra(const Lavoro& l, double pa, double pb, double qa, double qb);
double MomentoQSuPiastra(const Lavoro& l, double pa, double pb, double qa, double qb);  // arm q - qm
double MomentoPSuPiastra(const Lavoro& l, double pa, double pb, double qa, double qb);  // arm p - pm

// The stresses of the four cuts: rib positions, plate, and the welds 29 to 40 of the ribs, each raised to the largest.
void CalcolaNervature(Lavoro& l, int s);
