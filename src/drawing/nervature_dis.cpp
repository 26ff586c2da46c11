// drawing/nervature_dis.cpp - the four ribs in each view. In view B-B the ribs along Z are seen flat and those along Y are cut, in view
// A-A the other way round; the plan shows all four from above.
// Sides     s = -1, then s = +1. Outer and inner: away from the column's axis and toward it.
#include <algorithm>
#include <cmath>

#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/pezzi.h"
#include "drawing/saldature_dis.h"
#include "drawing/tavola.h"
#include "model/stato.h"
#include "model/suite.h"

static void CambiaColore(int opzione) { disegno.ColCorr = ColoreOpz(opzione); }

// ---- elevations --------------------------------------------------------------------------------------------------------------

namespace {
struct Tratta {
  double da, a;  // parameters along a line, 0 to 1
};
}  // namespace

// Where a coordinate running from v1 to v2 lies below a bound.
static Tratta Sotto(double v1, double v2, double limite) {
  if (std::abs(v2 - v1) < TOLL_GEO) return v1 < limite ? Tratta{0, 1} : Tratta{1, 0};
  const double t = (limite - v1) / (v2 - v1);
  return v2 > v1 ? Tratta{0, t} : Tratta{t, 1};
}

// A line of a rib behind n rods: left out where one stands in front of it, up to the rod's top.
static void LineaDietroTirafondi(double x1, double y1, double x2, double y2, const double* posAnc, int n) {
  if (n == 0) {
    DisLinea(nullptr, x1, y1, x2, y2);
    return;
  }
  const double Fi = nodo.TfFi, yt = nodo.TfLFt - nodo.SpessPiastra - nodo.TfHMalta;
  const Tratta t[] = {Sotto(x1, x2, *posAnc + Fi / 2), Sotto(-x1, -x2, Fi / 2 - *posAnc), Sotto(y1, y2, yt)};
  const double da = std::max({0.0, t[0].da, t[1].da, t[2].da}), a = std::min({1.0, t[0].a, t[1].a, t[2].a});
  if (!(da < a)) {
    LineaDietroTirafondi(x1, y1, x2, y2, posAnc + 1, n - 1);
    return;
  }
  const double dx = x2 - x1, dy = y2 - y1;
  LineaDietroTirafondi(x1, y1, x1 + da * dx, y1 + da * dy, posAnc + 1, n - 1);
  LineaDietroTirafondi(x1 + a * dx, y1 + a * dy, x2, y2, posAnc + 1, n - 1);
}

// Edge of a rib seen flat: up at the plate's edge, along the slope, level to the face that it meets at d from the axis.
static void ProfiloNervatura(int s, double posAnc, double d, double smusso, double lato) {
  const double bordo = s * lato / 2, cima = s * d + s * smusso;
  DisLinea(nullptr, bordo, 0, bordo, nodo.NervTaglio, ColoreOpz(0));
  LineaDietroTirafondi(bordo, nodo.NervTaglio, cima, nodo.HNerv, &posAnc, 1);
  LineaDietroTirafondi(cima, nodo.HNerv, s * d, nodo.HNerv, &posAnc, 1);
}

// Foot weld from x1 to x2, left out where the rod stands.
static void SaldaturaPiede(double x1, double x2, double posAnc) {
  const double Fi = nodo.TfFi, prima = std::min(posAnc - Fi, x2), dopo = std::max(posAnc + Fi, x1);
  if (prima - x1 > TOLL_GEO) DisSaldatura(nullptr, x1, 0, prima, 0, 1, 2, 0);
  if (x2 - dopo > TOLL_GEO) DisSaldatura(nullptr, dopo, 0, x2, 0, 1, 2, 0);
}

// Side s of an elevation: the flat rib behind the anchor at posAnc, and the rib cut between interno and esterno from the axis, which
// the flat one meets at d.
static void NervaturaProspetto(int s, double posAnc, double d, double smusso, double lato, double interno, double esterno) {
  CambiaColore(0);
  ProfiloNervatura(s, posAnc, d, smusso, lato);
  CambiaColore(2);
  DisLineaRel(nullptr, s * interno, nodo.HNerv, s * nodo.SpNerv, 0);
  DisLineaSald(s * esterno, 0, s * esterno, nodo.HNerv, -s, 1, 0);  // marks away from the cut steel on both faces
  DisLineaSald(s * interno, 0, s * interno, nodo.HNerv, s, 2, 0);
  DisAngoloSald(nullptr, s * interno, 0, std::min(2, s + 2));
  DisAngoloSald(nullptr, s * esterno, 0, std::max(1 - s, 1));
  if (s < 0) SaldaturaPiede(-lato / 2, -esterno, posAnc);
  else SaldaturaPiede(esterno, lato / 2, posAnc);
}

void NervatureBB() {
  const double B = nodo.Sezione.B, SP = nodo.SpNerv, L = nodo.LatoZ;
  for (const int s : {-1, 1}) NervaturaProspetto(s, -L / 2 + nodo.TfZ[s < 0 ? 1 : 2], B / 2 + SP, nodo.NervZ, L, B / 2, B / 2 + SP);
}

void NervatureAA() {
  const double H = nodo.Sezione.H, SP = nodo.SpNerv, L = nodo.LatoY;
  for (const int s : {-1, 1}) NervaturaProspetto(s, -L / 2 + nodo.TfY[s < 0 ? 2 : 4], H / 2, nodo.NervY, L, H / 2 - SP, H / 2);
  CambiaColore(0);  // the flat rib runs on across the column, behind every rod of the view
  const double tirafondi[] = {nodo.TfY[2] - L / 2, nodo.TfY[4] - L / 2, nodo.TfY[6] - L / 2};
  LineaDietroTirafondi(-H / 2 + SP, nodo.HNerv, H / 2 - SP, nodo.HNerv, tirafondi, TerzoTirafondoY() ? 3 : 2);
}

// ---- plan --------------------------------------------------------------------------------------------------------------------

namespace {
// A face of a rib on side s, x times s: its weld lies on the side (nx, ny) to which the face looks, nx times s.
struct Faccia {
  double x1, y1, x2, y2;
  int nx, ny;
  int sald;  // number of the weld
};
}  // namespace

static void FacciaSaldata(int s, const Faccia& f) {
  const int sx = s * f.nx;
  // Left of the direction is (-dy, dx).
  const double sinistra = -(f.y2 - f.y1) * sx + s * (f.x2 - f.x1) * f.ny;
  DisLineaSald(s * f.x1, f.y1, s * f.x2, f.y2, sinistra > 0 ? 1 : -1, 2, f.sald);
}

static int Quadrante(double dx, double dy) { return dx > 0 ? (dy > 0 ? 1 : 4) : (dy > 0 ? 2 : 3); }

// Corner arc at an end of a face, looking into its weld: between the face, on toward its other end, and the side of the weld.
static void AngoloFaccia(int s, const Faccia& f, bool secondo) {
  const double x = s * (secondo ? f.x2 : f.x1), y = secondo ? f.y2 : f.y1;
  const double dx = s * (f.x2 - f.x1) * (secondo ? -1 : 1), dy = (f.y2 - f.y1) * (secondo ? -1 : 1);
  DisAngoloSald(nullptr, x, y, Quadrante(dx + s * f.nx, dy + f.ny));
}

void NervaturePianta() {
  const double B = nodo.Sezione.B / 2, H = nodo.Sezione.H / 2, E = nodo.Sezione.E, SP = nodo.SpNerv, Z = nodo.LatoZ / 2, Y = nodo.LatoY / 2;
  // clang-format off
  const Faccia FACCE[] = {
    // from             to                 looks at  weld
    {B,      -Y,      B,      -H,       -1,  0, 23},
    {B,      Y,       B,      H,        -1,  0, 21},
    {B + SP, -Y,      B + SP, -H,       1,   0, 24},
    {B + SP, -H + SP, B + SP, H - SP,   1,   0, 20},
    {B + SP, Y,       B + SP, H,        1,   0, 22},
    {Z,      -H,      B + SP, -H,       0,  -1, 28},
    {Z,      -H + SP, B + SP, -H + SP,  0,   1, 27},
    {Z,      H - SP,  B + SP, H - SP,   0,  -1, 25},
    {Z,      H,       B + SP, H,        0,   1, 26},
  };
  // clang-format on
  const Faccia INTERNA = {B, -H + E, B, H - E, -1, 0, 19};  // drawn with the section's welds
  for (const int s : {-1, 1}) {
    for (const Faccia& f : FACCE) FacciaSaldata(s, f);
    for (const double y : {-Y, Y}) DisLineaRel(nullptr, s * B, y, s * SP, 0);
    for (const double x : {Z, B + SP}) {
      DisLineaRel(nullptr, s * x, -H, 0, SP);
      DisLineaRel(nullptr, s * x, H - SP, 0, SP);
    }
  }
  for (const int s : {-1, 1}) {
    for (const Faccia& f : FACCE) {
      AngoloFaccia(s, f, false);
      if (f.nx != 0) AngoloFaccia(s, f, true);  // the ribs along Z end in corners of the others
    }
    if (nodo.SaldInt != 1) continue;
    AngoloFaccia(s, INTERNA, false);
    AngoloFaccia(s, INTERNA, true);
  }
}
