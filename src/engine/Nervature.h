// engine/Nervature.h - the four cuts of a ribbed plate, and the pressure's integrals over a rectangle of the plate.
// Axes      from the plate's centre: p = LatoZ/2 - TfZ, the solver's x mirrored; q = LatoY/2 - TfY, the solver's y.
// Units     mm, daN, daN mm, daN/mm2.
// Signs     pressure negative in compression; resultants of the pressure are negative or 0.
// State     presInfl.PianoDef of the sextet; writes ris.SNerv[s], ris.SMaxPiastra[s] and the rib welds of ris.Saldature.
// Failure   HNerv, SpNerv or GolaCalc zero is an arithmetic fault of the run.
#pragma once

// Resultant of the compressed pressure over pa..pb, qa..qb, and its moments about the rectangle's middle lines.
struct AzioniPiastra { double V, MomentoQ, MomentoP; };
AzioniPiastra AzioniSuPiastra(double pa, double pb, double qa, double qb);      // all three in one pass
double RisultanteSuPiastra(double pa, double pb, double qa, double qb);
double MomentoQSuPiastra(double pa, double pb, double qa, double qb);           // arm q - qm
double MomentoPSuPiastra(double pa, double pb, double qa, double qb);           // arm p - pm

// The stresses of the four cuts: rib positions, plate, and the welds 29 to 40 of the ribs, each raised to the largest.
void CalcolaNervature(int s);
