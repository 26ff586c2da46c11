// engine/PresInfl.h - strain plane of the base section under N, My, Mz.
// Section   plate rectangle on concrete, compression only; anchors as elastic points, the concrete taken out where one is compressed.
// Axes      origin at the plate's centre, x along Z, y along Y; TfY is measured downward, so it runs against y.
// Units     mm, daN, daN mm, daN/mm2.
// Signs     value(x, y) = P[1] y + P[2] x + P[3], negative in compression; N and anchor stress + in tension.
// State     l.presInfl, refilled per sextet; PianoDef is read by the plate, the ribs and the welds until the next call.
// Failure   false and a diagnosis; a zero pivot is an arithmetic fault of the run (the caller cleared the flags and tests them).
#pragma once
#include "engine/lavoro.h"

constexpr double E_BARRA = 20000;  // anchors' modulus, daN/mm2

void DatiSezione(Lavoro& l, int s);  // section and load of sextet s, 1-based; before PresInfl
// Peak pressure on concrete, 0 or negative, to ris.SMaxCls[s]; stress of anchor i to ris.SigmaTir[s][i]; the plane to piani[s].
bool PresInfl(Lavoro& l, int s);
// The anchor stands in the concrete's region, by the rising edges only: beyond the plate's right edge it counts as inside.
bool DentroRegione(const StatoPresInfl& p, double x, double y);
