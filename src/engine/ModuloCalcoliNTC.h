// engine/ModuloCalcoliNTC.h - anchor rods by limit states: resistances of one verification, forces and ratios of the sextets.
// Units     mm, daN; strengths daN/cm2, hence the divisions by 100.
// State     reads the joint and l.verifica, writes l.ris and l.TauCls (bond stress, N/mm2 in effect).
// Failure   zero divisors are arithmetic faults of the run, found by the driver. A resistance that is not positive gives the ratio 100.
#pragma once
#include "engine/lavoro.h"

// FvRd, FbRd[], FtRd, BpRd (NTC 2008 4.2.8.1.1), TauCls, TadRd with its cap.
void ResistenzeNTC(Lavoro& l);
void ForzeTirafondiNTC(Lavoro& l, int s);  // FtEd of every anchor of sextet s, tension positive
// Co1, Co2: NTC 2008 4.2.8.1.1 (4.2.65); Co3: Ft,Ed / Tad,Rd. Every sextet and anchor.
void RapportiTirafondiNTC(Lavoro& l);
