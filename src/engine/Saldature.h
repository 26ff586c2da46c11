// engine/Saldature.h - the fillet welds: the table of segments, the group's inertias, the stresses.
// Axes      from the column's centre: z along the width, y along the height. Rib-to-column welds run up the rib: their y is a height.
// Units     mm, daN, daN mm, daN/mm2; equivalent stresses daN/cm2.
// Points    k = 1 first end (zf, yf), 2 middle, 3 other end (zi, yi), on the throat's mid-line.
// State     l.ris.Saldature, l.NumSaldature, l.verifica. Records that are not rebuilt keep what they held: the inner welds of a joint
//           that had them still lengthen the group (unsafe; only within one run of the windows).
// Failure   a group without length or inertia is an arithmetic fault of the run.
#pragma once
#include "engine/lavoro.h"
#include "model/saldature_colonna.h"

// Groups of the table: column 1..8 (SALD_COLONNA); ribs on the plate 9..28 (SALD_PIASTRA); ribs on the column 29..44.

void CostruisciSaldature(Lavoro& l);  // the whole table by TipoNodo and SaldInt, and NumSaldature: 8, 40 or 44
// One segment; lato +1 or -1: the side to which the throat's mid-line lies. Nothing when Gola is 0.
void AggiungiSaldatura(Lavoro& l, double zf, double yf, double zi, double yi, int lato, int indice);
// Direction from point 1 to point 2, rad; the branches are the program's own, -pi/2 for equal points.
double Direzione(double x1, double y1, double x2, double y2);

// Inertias of the group of welds 1..8 or 1..28, and the lengths that carry Tz and Ty.
void InerziaSaldature(const Lavoro& l, double& iz, double& iy, double& ip, double& lungTz, double& lungTy);

void DirezioniSaldature(Lavoro& l);               // arms and directions of the torque's shear, once a verification
void TensioniSaldaturePiastra(Lavoro& l, int s);  // welds on the plate: 1..8 without ribs, 1..28 with ribs
void TensioniSaldatureColonna(Lavoro& l, int s);  // rib-to-column welds: what the concrete under the column does not carry; after the ribs

// NTC 2008 4.2.8.2.4 (4.2.78), (4.2.79): SEq1[s], SEq2[s] of all welds, from the two ends.
void TensioniEquivalentiSaldature(Lavoro& l, int s);
// Larger absolute value of each stress of weld w at its two ends, daN/cm2.
void MaxTensioniSaldatura(const Lavoro& l, double& sp, double& tpa, double& tpe, int w, int s);
// CNR 10011/88: Rapporto[s] and Estremo[s] of all welds: the worse of the two ends, stress over Sadm (daN/cm2); the middle point is
// never chosen.
void RapportiSaldatureTA(Lavoro& l, int s, double Sadm);
