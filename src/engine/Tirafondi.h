// engine/Tirafondi.h - anchor rods: arms, shear and torsion, bond; the constants of the allowable stresses.
// Units     mm, daN, daN mm; strengths daN/cm2, hence the divisions by 100.
// Signs     TfY runs against the section's y (deliberate): both shares of the torque are subtracted.
// State     reads nodo and verifica, writes ris; nodo.MatCls.TauCls (bond stress, N/mm2 in effect) belongs to one verification.
// Failure   zero divisors are arithmetic faults of the run, found by the driver.
#pragma once
#include "model/node_model.h"

// The pattern of OptionNTir: 0 four anchors, 1 eight, 2 six "Vert.", 3 six "Orizz."; any other value is four.
inline int SchemaTir() { return nodo.OptionNTir >= 1 && nodo.OptionNTir <= 3 ? nodo.OptionNTir : 0; }

// Arms of the anchors from the plate's centre, and the sum of their squares.
void InerziaTirafondi(double& somma, double (&armZ)[MaxTir + 1], double (&armY)[MaxTir + 1]);

// Shear of anchor i from verifica's Ty, Tz, Mt: equal shares of the forces, torque by the distance from the centre. daN.
double TaglioTirafondo(int i);
void TaglioTirafondi(int s);       // SRfTir, TauTir, TiroTir by allowable stresses; FvEd by limit states

// Allowable stresses: MatCls.SAmm, MatCls.TauCls (CNR 10011/88, Rck / 10 in the formulas) and the bond resistance TadRd.
void ResistenzeTA();
// Bond of both methods, from the bond stress MatCls.TauCls.
double TiroUncino();               // hooked rod: straight length, bend and rising leg
double TiroFusto();                // rod with anchor plate: the length above the plate
double PerditaPiastrina();         // share of the plate's concrete that is lost near the surface or the footing's edge
