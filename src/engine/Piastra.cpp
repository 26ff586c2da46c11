// engine/Piastra.cpp - the two models of the base plate.
#include "engine/Piastra.h"

#include <algorithm>
#include <cmath>

#include "core/numeri.h"
#include "model/schemi.h"

constexpr double QUOTA_H = 0.95, QUOTA_B = 0.8;  // of the column's sides from where the plate cantilevers; every section

void PiastraSenzaNervature(Lavoro& l, int s) {
  const Nodo& nodo = *l.nodo;
  Risultati& ris = l.ris;
  const double H = nodo.Sezione.H, B = nodo.Sezione.B, t = nodo.SpessPiastra, A = l.verifica.AreaTf;
  const double* S = ris.SigmaTir[s];
  double& SMax = ris.SMaxPiastra[s];

  const double Ly = (nodo.LatoY - QUOTA_H * H) / 2, Lz = (nodo.LatoZ - QUOTA_B * B) / 2;
  const double L = MaxDi(Ly, Lz);
  SMax = 6 * (0.5 * ris.SMaxCls[s] * (L * L)) / (t * t);

  const double y = (nodo.LatoY - H) / 2, z = (nodo.LatoZ - B) / 2;
  const double Wz = t * t * nodo.LatoZ / 6, Wy = t * t * nodo.LatoY / 6;
  struct Lato {
    double a;
    int i1, i2;
    LatoPiastra lato;
    double W;
  };
  // clang-format off
  const Lato LATI[] = {
    { y - nodo.TfY[1],                1, 2, SUPERIORE, Wz },
    { z - (nodo.LatoZ - nodo.TfZ[2]), 2, 4, DESTRO, Wy },
    { y - (nodo.LatoY - nodo.TfY[3]), 3, 4, INFERIORE, Wz },
    { z - nodo.TfZ[1],                1, 3, SINISTRO, Wy },
  };
  // clang-format on
  const int schema = SchemaTir(nodo);
  for (int j = 0; j < std::min<int>(nodo.NTir, 4); ++j) {
    const Lato& r = LATI[j];
    double F = std::fabs((S[r.i1] + S[r.i2]) * A);
    const int extra = SCHEMI[schema].lato[r.lato];
    if (extra > 0) F += std::fabs(S[extra] * A);
    SMax = MaxDi(SMax, std::fabs(r.a * F) / r.W);
  }
}

namespace {
// Spans and widths of the strips at each anchor, and the corner moments that the mid-side anchors read. One call.
struct Strisce {
  double Cz[MaxTir + 1], Cy[MaxTir + 1];    // clear span: to the rib along Z, to the column's face along Y
  double Cz2[MaxTir + 1], Cy2[MaxTir + 1];  // remaining span
  double Bz[MaxTir + 1], By[MaxTir + 1];    // working width of the strip along Z, along Y
  double Mz[MaxTir + 1], My[MaxTir + 1];
};
}  // namespace

static void Larghezze(const Nodo& nodo, Strisce& c, int i) {
  const double r = nodo.TfFi / 2;
  c.Bz[i] = MinDi(r + c.Cz[i], c.Cy[i]) + MinDi(r + c.Cz[i], c.Cy2[i]);
  c.By[i] = MinDi(c.Cz[i], r + c.Cy[i]) + MinDi(r + c.Cy[i], c.Cz2[i]);
}

static void LuciLarghezze(const Nodo& nodo, Strisce& c, const double* armZ, const double* armY) {
  const double B = nodo.Sezione.B, H = nodo.Sezione.H, SP = nodo.SpNerv;
  const double Zr = B / 2 + SP / 2, Yr = H / 2 - SP / 2;
  const auto formulaZ = [&](int i) {
    c.Cz[i] = std::fabs(Zr - std::fabs(armZ[i]));
    c.Cz2[i] = std::fabs((nodo.LatoZ / 2 - Zr) - c.Cz[i]);
  };
  const auto formulaY = [&](int i) {
    c.Cy[i] = std::fabs(Yr - std::fabs(armY[i]));
    c.Cy2[i] = std::fabs((nodo.LatoY / 2 - Yr) - c.Cy[i]);
  };
  for (int i = 1; i <= 4; ++i) {
    formulaZ(i);
    formulaY(i);
    Larghezze(nodo, c, i);
  }
  // Places 5 to 8 by pattern. A span named holds for both spans of its direction, nullptr takes the corners' formula.
  // Neighbours a, b: no anchor stands there, the place lends the mean widths of two corners.
  const double
    nulla = 0,
    intera = H / 2 -
             SP;  // pattern 1 spans between the ribs, pattern 2 between their mid-lines: more to the strip along Y, over less (either side)
  struct Posto {
    int opzione, i;
    const double *luceZ, *luceY;
    int a, b;
  };
  // clang-format off
  const Posto POSTI[] = {
    { 2, 5, nullptr, &Yr,     0, 0 }, { 2, 6, nullptr, &Yr,     0, 0 }, { 2, 7, &Zr,    &nulla,  3, 4 }, { 2, 8, &Zr,    &nulla,  1, 2 },
    { 3, 5, &Zr,     nullptr, 0, 0 }, { 3, 6, &Zr,     nullptr, 0, 0 }, { 3, 7, &nulla, &Yr,     3, 1 }, { 3, 8, &nulla, &Yr,     4, 2 },
    { 1, 5, nullptr, &intera, 0, 0 }, { 1, 6, nullptr, &intera, 0, 0 }, { 1, 7, &Zr,    nullptr, 0, 0 }, { 1, 8, &Zr,    nullptr, 0, 0 },
  };
  // clang-format on
  for (const Posto& r : POSTI) {
    if (r.opzione != nodo.OptionNTir) continue;
    const int i = r.i;
    if (r.luceZ == nullptr) formulaZ(i);
    else c.Cz[i] = c.Cz2[i] = *r.luceZ;
    if (r.luceY == nullptr) formulaY(i);
    else c.Cy[i] = c.Cy2[i] = *r.luceY;
    if (r.a == 0) {
      Larghezze(nodo, c, i);
    } else {
      c.Bz[i] = (c.Bz[r.a] + c.Bz[r.b]) / 2;
      c.By[i] = (c.By[r.a] + c.By[r.b]) / 2;
    }
  }
}

namespace {
// Corner anchors: u, v the neighbours along Y and Z that stiffen the strips; Wz, Wy the lesser width of two places.
struct Angolo {
  int opzione, i, u, v, wz1, wz2, wy1, wy2;
};
}  // namespace

// clang-format off
constexpr Angolo ANGOLI[] = {
  { 2, 1, 5, 8, 1, 1, 1, 5 }, { 2, 2, 6, 8, 2, 2, 2, 6 }, { 2, 3, 5, 7, 3, 3, 3, 5 }, { 2, 4, 6, 7, 4, 4, 4, 6 },
  { 3, 1, 7, 6, 1, 6, 1, 1 }, { 3, 2, 8, 6, 2, 6, 2, 2 }, { 3, 3, 7, 5, 3, 5, 3, 3 }, { 3, 4, 8, 5, 4, 5, 4, 4 },
  { 1, 1, 5, 8, 1, 8, 1, 5 }, { 1, 2, 6, 8, 2, 8, 2, 6 }, { 1, 3, 5, 7, 3, 7, 5, 5 }, { 1, 4, 6, 7, 4, 7, 4, 6 },
};                                                        // pattern 1, anchor 3: width 5 against itself, so its own corner's never governs (unsafe if narrower)
// clang-format on

namespace {
// Mid-side anchors: the strip along the side is a beam fixed at both ends, relieved by the moments of corners a, b.
struct MezzoLato {
  int opzione, i;
  char lato;
  int a, b;
};
}  // namespace

// clang-format off
constexpr MezzoLato MEZZI[] = {
  { 2, 5, 'Z', 1, 3 }, { 2, 6, 'Z', 2, 4 },
  { 3, 5, 'Y', 3, 4 }, { 3, 6, 'Y', 1, 2 },
  { 1, 5, 'Z', 1, 3 }, { 1, 6, 'Z', 2, 4 }, { 1, 7, 'Y', 3, 4 }, { 1, 8, 'Y', 1, 2 },
};
// clang-format on

// Share of force T that goes to the strip along Z, by the ratio R of the flexibilities Y over Z. Keeps T's sign.
static double QuotaZ(double R, double T) { return std::fabs(R / (1 + R)) * T; }

static void TensioniAngolo(Lavoro& l, int s, Strisce& c, const Angolo& r) {
  const Nodo& nodo = *l.nodo;
  Risultati& ris = l.ris;
  const int i = r.i;
  const double t = nodo.SpessPiastra, T = l.verifica.AreaTf * ris.SigmaTir[s][i];
  const double R = (Cubo(c.Cy[i]) / c.By[i] + c.Cy[i] * c.Cy[i] * c.Cy[r.u] / c.By[r.u]) /
                   (Cubo(c.Cz[i]) / c.Bz[i] + c.Cz[i] * c.Cz[i] * c.Cz[r.v] / c.Bz[r.v]);
  const double Tz = QuotaZ(R, T), Ty = T - Tz;
  c.Mz[i] = std::fabs(Tz * c.Cz[i]);
  c.My[i] = std::fabs(Ty * c.Cy[i]);
  ris.SPiastraTir[s][1][i] = 6 * (c.Mz[i] / MinDi(c.Bz[r.wz1], c.Bz[r.wz2])) / (t * t);
  ris.SPiastraTir[s][2][i] = 6 * (c.My[i] / MinDi(c.By[r.wy1], c.By[r.wy2])) / (t * t);
}

static void TensioniMezzo(Lavoro& l, int s, Strisce& c, const MezzoLato& r) {
  const Nodo& nodo = *l.nodo;
  Risultati& ris = l.ris;
  const int i = r.i;
  const double t = nodo.SpessPiastra, T = l.verifica.AreaTf * ris.SigmaTir[s][i];
  const bool latoZ = r.lato == 'Z';
  const double Lz = c.Cz[i] + c.Cz2[i], Ly = c.Cy[i] + c.Cy2[i];
  const double R =
    latoZ ? (Cubo(Ly) / (48 * c.By[i])) / (Cubo(c.Cz[i]) / (3 * c.Bz[i])) : (Cubo(c.Cy[i]) / (3 * c.By[i])) / (Cubo(Lz) / (48 * c.Bz[i]));
  const double Tz = QuotaZ(R, T), Ty = T - Tz;
  c.Mz[i] = std::fabs(latoZ ? Tz * c.Cz[i] : Lz * Tz / 4 - (c.Mz[r.a] + c.Mz[r.b]) / 2);
  c.My[i] = std::fabs(latoZ ? Ly * Ty / 4 - (c.My[r.a] + c.My[r.b]) / 2 : Ty * c.Cy[i]);
  // The beam's section is weakened by the hole, the cantilever's is not.
  const double Wz = latoZ ? c.Bz[i] : c.Bz[i] - nodo.TfFi, Wy = latoZ ? c.By[i] - nodo.TfFi : c.By[i];
  ris.SPiastraTir[s][1][i] = 6 * (c.Mz[i] / Wz) / (t * t);
  ris.SPiastraTir[s][2][i] = 6 * (c.My[i] / Wy) / (t * t);
}

void PiastraConNervature(Lavoro& l, int s, const double (&armZ)[MaxTir + 1], const double (&armY)[MaxTir + 1]) {
  const Nodo& nodo = *l.nodo;
  Strisce c = {};
  LuciLarghezze(nodo, c, armZ, armY);
  for (const Angolo& r : ANGOLI)
    if (r.opzione == nodo.OptionNTir) TensioniAngolo(l, s, c, r);
  for (const MezzoLato& r : MEZZI)
    if (r.opzione == nodo.OptionNTir) TensioniMezzo(l, s, c, r);
}
