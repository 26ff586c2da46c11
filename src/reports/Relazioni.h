// reports/Relazioni.h - the calculation report of each method: one text file from the joint, the tables and the rows of its checks.
// Given     l as EseguiVerifica left it (true), suite for units and folders. Nothing of it is changed, nothing is judged here.
// Failure   false: an arithmetic fault (a number too large for the units shown), whose flag stays raised and whose box the caller
//           shows; or a file that cannot be written, with its box shown and no flag. The file of before stands whole, and nothing is shown.
#pragma once
#include "engine/lavoro.h"

bool RelazioneTA(const Lavoro& l);   // allowable stresses, CNR 10011/88
bool RelazioneSLU(const Lavoro& l);  // limit states, NTC 2008
