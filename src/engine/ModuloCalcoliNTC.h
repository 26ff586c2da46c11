// engine/ModuloCalcoliNTC.h - anchor rods by limit states: resistances of one verification, forces and ratios of the sextets.
// Units     mm, daN; strengths daN/cm2, hence the divisions by 100.
// State     reads nodo and verifica, writes ris; nodo.MatCls.TauCls (bond stress, N/mm2 in effect) belongs to one verification.
// Failure   zero divisors are arithmetic faults of the run, found by the driver. A resistance that is not positive gives the ratio 100.
#pragma once

// FvRd, FbRd[], FtRd, BpRd (NTC 2008 4.2.8.1.1), MatCls.TauCls, TadRd with its cap.
void ResistenzeNTC();
void ForzeTirafondiNTC(int s);     // FtEd of every anchor of sextet s, tension positive
// Co1, Co2: NTC 2008 4.2.8.1.1 (4.2.65); Co3: Ft,Ed / Tad,Rd. Every sextet and anchor.
void RapportiTirafondiNTC();
