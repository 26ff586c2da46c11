// engine/Calcoli.h - one verification: strengths that do not depend on the load, every sextet, then the checks.
// Given     l.nodo, l.suite, l.TipoVer.
// Failure   false: a solver that fails or an arithmetic fault ends the run; earlier rows stay, the reason is the last diagnosis.
#pragma once
#include "engine/lavoro.h"

bool CalcolaTabelle(Lavoro& l);  // everything but the message on the diameter and the checks
// The whole verification: tables, message on the diameter, ratios, limits, rows, verdicts. The flags of arithmetic are cleared first.
bool EseguiVerifica(Lavoro& l);
