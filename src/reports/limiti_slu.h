// reports/limiti_slu.h - limits of the limit-state method, unrounded. NTC 2008.
// Units     daN/cm2.
// Failure   a zero partial factor raises an arithmetic fault; the caller tests it.
#pragma once

struct BetaSaldature { double Beta1 = 0, Beta2 = 0; };

// NTC 2008 4.2.8.2.4 (4.2.78), (4.2.79): weld factors by the grade found within the steel's name, the first family that
// matches; none: both 0, so that no weld under stress passes. The allowable-stress check wants whole names, deliberately.
BetaSaldature CalcolaBeta();
double CalcolaFd(double spessore);   // design strength of plate or ribs of so many mm: up to 40 mm inclusive, or over
double CalcolaFcd();                        // concrete, 0.85 0.83 Rck / GammaC
