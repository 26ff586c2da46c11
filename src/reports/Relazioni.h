// reports/Relazioni.h - the calculation report of each method: one text file from the joint, the tables and the rows of its checks.
// Given     l as EseguiVerifica left it (true), suite for units and folders. Nothing of it is changed, nothing is judged here.
// Failure   false: an arithmetic fault (a number too large for the units shown), or a file that cannot be opened or written. The
//           fault flag stays raised and the caller shows the box.
#pragma once
#include "engine/lavoro.h"

bool RelazioneTA(const Lavoro& l);     // allowable stresses, CNR 10011/88
bool RelazioneSLU(const Lavoro& l);    // limit states, NTC 2008
