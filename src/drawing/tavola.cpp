// drawing/tavola.cpp - a rectangle, and a line that holes interrupt.
#include "drawing/tavola.h"

#include <cmath>

#include "drawing/disegno.h"
#include "model/stato.h"

void Rettangolo(double lx, double ly) {
  DisLinea(nullptr, -lx / 2, -ly / 2, -lx / 2, ly / 2);
  DisLinea(nullptr, lx / 2, -ly / 2, lx / 2, ly / 2);
  DisLinea(nullptr, -lx / 2, -ly / 2, lx / 2, -ly / 2);
  DisLinea(nullptr, -lx / 2, ly / 2, lx / 2, ly / 2);
}

void LineaConFori(double x1, double y1, double x2, double y2, int n, const double* centri, const double* larghezze) {
  const bool verticale = std::abs(x1 - x2) < TOLL_GEO;
  if (!verticale && !(std::abs(y1 - y2) < TOLL_GEO)) return;
  double v[2 * MaxForiVista + 3] = {};  // 1..m
  int m = 0;
  v[++m] = verticale ? y1 : x1;
  v[++m] = verticale ? y2 : x2;
  for (int i = 0; i < n; ++i) {
    v[++m] = centri[i] - larghezze[i] / 2;
    v[++m] = centri[i] + larghezze[i] / 2;
  }
  OrdinaVett(v, m);
  for (int k = 1; k < m; ++k) {
    const std::int16_t colore = ColoreOpz(k % 2 == 1 ? 2 : 0);
    if (verticale) DisLinea(nullptr, x1, v[k], x1, v[k + 1], colore);
    else DisLinea(nullptr, v[k], y1, v[k + 1], y1, colore);
  }
}
