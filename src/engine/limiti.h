// engine/limiti.h - the limits of both methods, unrounded but where a rounding is part of the limit. CNR 10011/88, NTC 2008.
// Units     daN/cm2; TadRd daN.
// Failure   a zero partial factor, a zero diameter: arithmetic faults of the run.
#pragma once

struct Lavoro;
struct MatAcciaio;
struct Nodo;

constexpr double CLASSE_II = 1.125;  // load class II raises the allowable stresses of steel

struct LimitiTA {                        // of one sextet; load class II raises the steel's limits, not the concrete's
  double FattComb = 0;                   // 1 for class I (SollCC 0), otherwise 1.125
  double SAdmPiastra = 0, SAdmNerv = 0;  // by the plate's and the ribs' thickness, up to and over 40 mm
  double SAdmTir = 0, TauAdmTir = 0;     // anchor: normal and shear stress
  double SRfAdm = 0;                     // bearing of the anchor on the plate
  double SAdmSald = 0;                   // welds: the limit up to 40 mm, whatever the thickness: over it by a tenth high (unsafe)
  double TadRd = 0;                      // bond, the lesser of this sextet's anchor limit and of all earlier ones
};

struct LimitiSLU {
  double FdPiastra = 0, FdNerv = 0;  // design strength by thickness, up to 40 mm inclusive, or over
  double Fcd = 0;                    // concrete, 0.85 0.83 Rck / GammaC
  double SLim1 = 0, SLim2 = 0;       // welds, Beta1 Fyk and Beta2 Fyk, of up to 40 mm whatever the thickness (unsafe over it)
};

// Bearing coefficient of the joint: 2.5, or the smallest edge distance over the diameter; of anchors 1, 2 and 3, on whose lines the
// others stand.
double CalcolaCoeffRifollamento(const Nodo& nodo);
LimitiTA CalcolaLimitiTA(const Nodo& nodo, int s, double CoeffRifollamento);  // all but TadRd

struct BetaSaldature {
  double Beta1 = 0, Beta2 = 0;
};

// NTC 2008 4.2.8.2.4 (4.2.78), (4.2.79): weld factors by the grade found within the steel's name, the first family that
// matches; none: both 0, so that no weld under stress passes. The allowable stresses want whole names: the two are not one table.
BetaSaldature CalcolaBeta(const MatAcciaio& acciaio);
double CalcolaFd(const MatAcciaio& acciaio, double spessore);
LimitiSLU CalcolaLimitiSLU(const Nodo& nodo);

// Weld coefficients k1, k2 of the allowable stresses by the steel's whole name in capitals; another name has none, 0: its check
// divides by zero.
struct CoeffSaldatura {
  const char* Nome;
  double k1, k2;
};
CoeffSaldatura CoefficientiDi(const MatAcciaio& acciaio);
