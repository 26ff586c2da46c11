// model/saldature_colonna.h - the eight welds at the foot of an I column, as segments.
// Axes      mm from the column's centre: z along the width, y along the height.
#pragma once
#include "model/node_model.h"

constexpr int SALD_COLONNA = 8;

struct Estremi {
  double zi, yi, zf, yf;
};

struct TrattiSaldature {
  Estremi tratti[SALD_COLONNA];
};  // welds 1 to 8

inline TrattiSaldature TrattiColonna(const Sezione& s) {
  const double H = s.H, B = s.B, a = s.A, e = s.E, r = s.R;
  // clang-format off
  return {{
    //  zi          yi              zf          yf
    { a / 2,      -H / 2 + e + r, a / 2,      H / 2 - e - r  },
    { a / 2 + r,  H / 2 - e,      B / 2,      H / 2 - e      },
    { B / 2,      H / 2,          -B / 2,     H / 2          },
    { -B / 2,     H / 2 - e,      -a / 2 - r, H / 2 - e      },
    { -a / 2,     H / 2 - e - r,  -a / 2,     -H / 2 + e + r },
    { -a / 2 - r, -H / 2 + e,     -B / 2,     -H / 2 + e     },
    { -B / 2,     -H / 2,         B / 2,      -H / 2         },
    { B / 2,      -H / 2 + e,     a / 2 + r,  -H / 2 + e     },
  }};
  // clang-format on
}
