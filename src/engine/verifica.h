// engine/verifica.h - scalars of one verification, and the sextet being worked.
// Units     inside the engine mm, daN, daN mm, daN/mm2: the moments of a sextet are multiplied by 10 when read.
// Signs     N and anchor stress + in tension.
#pragma once
#include "model/node_model.h"

struct StatoVerifica {
  double AreaTf = 0;                                     // mm2, resistant area of an anchor
  double ArmZ[MaxTir + 1] = {}, ArmY[MaxTir + 1] = {};   // mm from the plate's centre, along TfZ and TfY
  double SommaR2 = 0;                                    // mm2
  double IzSald = 0, IySald = 0, IpSald = 0;             // mm4, the group of welds
  double LungTz = 0, LungTy = 0;                         // mm, welds that carry Tz, Ty
  double N = 0, Ty = 0, Tz = 0;                          // daN
  double Mt = 0, My = 0, Mz = 0;                         // daN mm
};
inline StatoVerifica verifica;

inline double Cubo(double v) { return v * v * v; }
