// engine/Tirafondi.h - anchor rods: arms, shear and torsion, bond; the constants of the allowable stresses.
// Units     mm, daN, daN mm; strengths daN/cm2, hence the divisions by 100.
// Signs     TfY runs against the section's y: both shares of the torque are subtracted.
// State     reads the joint and l.verifica, writes l.ris, l.SAmmCls and l.TauCls (bond stress, N/mm2 in effect).
// Failure   zero divisors are arithmetic faults of the run, found by the driver.
#pragma once
#include "engine/lavoro.h"

// Arms of the anchors from the plate's centre, and the sum of their squares.
void InerziaTirafondi(const Nodo& nodo, double& somma, double (&armZ)[MaxTir + 1], double (&armY)[MaxTir + 1]);

// Shear of anchor i from verifica's Ty, Tz, Mt: equal shares of the forces, torque by the distance from the centre. daN.
double TaglioTirafondo(const Lavoro& l, int i);
void TaglioTirafondi(Lavoro& l, int s);  // SRfTir, TauTir, TiroTir by allowable stresses; FvEd by limit states

// Resistant area of the rods, mm2; notes in ris how it was found. An empty table of diameters gives 0.
double AreaTirafondo(Lavoro& l);

// Allowable stresses: l.SAmmCls, l.TauCls (CNR 10011/88, Rck / 10 in the formulas) and the bond resistance TadRd.
void ResistenzeTA(Lavoro& l);
// Bond of both methods, from the bond stress l.TauCls.
double TiroUncino(const Lavoro& l);         // hooked rod: straight length, bend and rising leg
double TiroFusto(const Lavoro& l);          // rod with anchor plate: the length above the plate
double PerditaPiastrina(const Nodo& nodo);  // share of the plate's concrete that is lost near the surface or the footing's edge
