// engine/Piastra.h - highest bending stress of the base plate, ris.SMaxPiastra[s], only ever raised within a sextet.
// Units     mm, daN, daN/mm2.
// Given     nodo, verifica.AreaTf, ris.SMaxCls[s] (absolute) and ris.SigmaTir[s][].
// Failure   a zero span, width or thickness is an arithmetic fault of the run.
#pragma once
#include "model/node_model.h"

// No ribs: a cantilever strip under the concrete's pressure, then the anchors of each side about the column's face.
void PiastraSenzaNervature(int s);
// Four ribs: each anchor's force is shared between the strip along Z and the strip along Y, ris.SPiastraTir[s][1 and 2][i].
// With four anchors nothing is written: what an earlier verification left there still counts (deliberate).
void PiastraConNervature(int s, const double (&armZ)[MaxTir + 1], const double (&armY)[MaxTir + 1]);
