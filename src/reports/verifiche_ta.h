// reports/verifiche_ta.h - limits of the allowable-stress method and its check of one weld. CNR 10011/88.
// Units     limits daN/cm2; the weld tables hold daN/mm2, taken to daN/cm2 within the check.
// Failure   a zero divisor (TfFi, Sadm, a steel without weld coefficients) raises an arithmetic fault; the caller tests it.
#pragma once

constexpr double CLASSE_II = 1.125;        // load class II raises the allowable stresses of steel

struct LimitiTA {                  // of one sextet; load class II raises the steel's limits, not the concrete's
  double FattComb = 0;             // 1 for class I (SollCC 0), otherwise 1.125
  double SAdmPiastra = 0, SAdmNerv = 0;      // by the plate's and the ribs' thickness, up to and over 40 mm
  double SAdmTir = 0, TauAdmTir = 0;         // anchor: normal and shear stress
  double SRfAdm = 0;                         // bearing of the anchor on the plate
  double SAdmSald = 0;                       // welds: the limit up to 40 mm, whatever the thickness; deliberate
};

// Bearing coefficient of the joint: 2.5, or the smallest edge distance over the diameter; anchors 1, 2 and 3 only; deliberate.
double CalcolaCoeffRifollamento();
LimitiTA CalcolaLimitiTA(int s, double CoeffRifollamento);

// Weld w under sextet s: the worse of the two ends (the middle point is never chosen). rapporto: stress over limit;
// sp, tpa, tpe: that end's normal, parallel and transverse stress, daN/cm2. esito is lowered on rapporto > 1, never raised.
void VerificaSaldaturaTA(int s, int w, double Sadm, bool& esito, double& sp, double& tpa, double& tpe, double& rapporto);
