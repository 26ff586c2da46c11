// engine/Piastra.h - highest bending stress of the base plate, l.ris.SMaxPiastra[s], only ever raised within a sextet.
// Units     mm, daN, daN/mm2.
// Given     the joint, verifica.AreaTf, ris.SMaxCls[s] (absolute) and ris.SigmaTir[s][] of l.
// Failure   a zero span, width or thickness is an arithmetic fault of the run.
#pragma once
#include "engine/lavoro.h"

// No ribs: a cantilever strip under the concrete's pressure, then the anchors of each side about the column's face.
void PiastraSenzaNervature(Lavoro& l, int s);
// Four ribs: each anchor's force is shared between the strip along Z and the strip along Y, ris.SPiastraTir[s][1 and 2][i].
// With four anchors nothing is written: the plate's bending at the anchors is not checked (unsafe), but for what an earlier verification
// of the same Lavoro left there, which still counts.
void PiastraConNervature(Lavoro& l, int s, const double (&armZ)[MaxTir + 1], const double (&armY)[MaxTir + 1]);
