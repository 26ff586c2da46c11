// model/risultati.h - the tables that a verification fills.
// Units     mm, daN, daN/mm2 but where a field says otherwise.
// Signs     anchor stress and force + in tension.
// Indices   1-based, index 0 free: sextets 1..200, anchors 1..8, welds 1..50, weld points 1..3.
#pragma once
#include <cstdint>
#include <string>

#include "model/node_model.h"

constexpr int SALD_PIASTRA = 28;  // welds 1..28 stand on the plate, those behind run up the column

struct Saldatura {
  std::string Nome;                                       // "S" + index; empty until built
  double Lung = 0;                                        // mm, to one decimal
  double TauPa[MaxSoll + 1][4] = {};                      // shear along the weld, [s][k]
  double TauPe[MaxSoll + 1][4] = {};                      // shear across the weld
  double SPrp[MaxSoll + 1][4] = {};                       // normal stress
  double SEq1[MaxSoll + 1] = {}, SEq2[MaxSoll + 1] = {};  // limit states: equivalent stresses, daN/cm2
  double Rapporto[MaxSoll + 1] = {};                      // allowable stresses: stress over limit at the worse end
  std::int8_t Estremo[MaxSoll + 1] = {};                  // allowable stresses: that end, 1 or 3
  double PZ[4] = {}, PY[4] = {};                          // mm, on the throat's mid-line: 1 first end, 2 middle, 3 other end
  double Ip = 0, Iz = 0, Iy = 0;                          // mm4, own inertias
  double Ang[4] = {};                                     // rad: ends seen from the origin [1], [3]; axis [2]
};

struct Risultati {
  double SigmaTir[MaxSoll + 1][MaxTir + 1] = {};  // normal stress in the anchor, tension +
  double TauTir[MaxSoll + 1][MaxTir + 1] = {};    // allowable stresses: shear stress
  double SRfTir[MaxSoll + 1][MaxTir + 1] = {};    // allowable stresses: bearing stress on the plate
  double TiroTir[MaxSoll + 1][MaxTir + 1] = {};   // allowable stresses: anchor force, daN
  double FvEd[MaxSoll + 1][MaxTir + 1] = {};      // limit states: shear force, daN
  double FtEd[MaxSoll + 1][MaxTir + 1] = {};      // limit states: anchor force, daN, tension +
  double Co1[MaxSoll + 1][MaxTir + 1] = {}, Co2[MaxSoll + 1][MaxTir + 1] = {}, Co3[MaxSoll + 1][MaxTir + 1] = {};
  double SMaxCls[MaxSoll + 1] = {};                     // highest pressure under the plate, absolute
  double SMaxPiastra[MaxSoll + 1] = {};                 // highest bending stress in the plate
  double SPiastraTir[MaxSoll + 1][3][MaxTir + 1] = {};  // [s][d][i], d = 1 strip along Z, 2 along Y
  double SNerv[MaxSoll + 1][MaxNerv + 1] = {};          // equivalent stress at rib positions 1..8
  Saldatura Saldature[MaxSald + 1];

  double FvRd = 0, FtRd = 0, BpRd = 0;  // daN, limit states
  double FbRd[MaxTir + 1] = {};         // daN, limit states, one an anchor
  double TadRd = 0;                     // daN, bond; allowable stresses: a running minimum over the sextets
  bool FlagDiamEstrapolato = false, FlagDiamInterpolato = false;
};
