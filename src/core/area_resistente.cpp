// core/area_resistente.cpp - area by the square of the diameter.
#include "core/area_resistente.h"

#include <algorithm>

#include "core/fault.h"
#include "model/suite.h"

// Area at d on the line in d^2 through rows i and i + 1.
static double AreaFra(const Suite& tavola, int i, double d) {
  const double D0 = tavola.DiamVal[i], D1 = tavola.DiamVal[i + 1];
  const double A0 = tavola.DiamArea[i], A1 = tavola.DiamArea[i + 1];
  const double passo = D1 * D1 - D0 * D0;
  if (passo == 0) {
    SegnalaFault();
    return 0;
  }
  const double k = (A1 - A0) / passo;
  return (d * d - D0 * D0) * k + A0;
}

double AreaResistente(const Suite& tavola, double d, OrigineArea& origine) {
  const int n = std::min<int>(tavola.NumDiam, MaxDiam + 1);
  if (n < 1) return 0;
  const bool sotto = d<tavola.DiamVal[0], sopra = d> tavola.DiamVal[n - 1];
  if (sotto || sopra) {
    origine.estrapolata = true;
    return n < 2 ? 0 : AreaFra(tavola, sotto ? 0 : n - 2, d);
  }
  for (int i = 1; i < n; ++i) {
    if (!(tavola.DiamVal[i - 1] <= d && d <= tavola.DiamVal[i])) continue;
    if (d != tavola.DiamVal[i - 1] && d != tavola.DiamVal[i]) origine.interpolata = true;
    return AreaFra(tavola, i - 1, d);
  }
  return 0;
}

double AreaResistente(const Suite& tavola, double d) {
  OrigineArea origine;
  return AreaResistente(tavola, d, origine);
}
