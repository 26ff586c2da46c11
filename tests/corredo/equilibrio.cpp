// tests/corredo/equilibrio.cpp - independent integration of the plane over plate and anchors.
#include "corredo/equilibrio.h"

#include <cmath>
#include <vector>

#include "core/diametri.h"
#include "corredo/lavoro_prova.h"
#include "engine/PresInfl.h"
#include "model/node_model.h"
#include "model/stato.h"

namespace {

struct Punto {
  double x, y;
};

struct Piano {
  double y, x, c;
  double operator()(Punto p) const { return y * p.y + x * p.x + c; }
};

// The part of a convex polygon where the plane is negative.
std::vector<Punto> ParteCompressa(const std::vector<Punto>& poligono, const Piano& piano) {
  std::vector<Punto> parte;
  for (std::size_t i = 0; i < poligono.size(); ++i) {
    const Punto a = poligono[i], b = poligono[(i + 1) % poligono.size()];
    const double va = piano(a), vb = piano(b);
    if (va < 0) parte.push_back(a);
    if ((va < 0) != (vb < 0)) {
      const double t = va / (va - vb);
      parte.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
    }
  }
  return parte;
}

void SommaPunto(Reazioni& r, Punto p, double forza) {
  r.N += forza;
  r.My -= forza * p.x;
  r.Mz += forza * p.y;
}

void SommaTriangolo(Reazioni& r, const Piano& piano, double modulo, Punto a, Punto b, Punto c) {
  const double area = std::fabs((b.x - a.x) * (c.y - a.y) - (c.x - a.x) * (b.y - a.y)) / 2;
  const Punto medi[] = {{(a.x + b.x) / 2, (a.y + b.y) / 2}, {(b.x + c.x) / 2, (b.y + c.y) / 2}, {(c.x + a.x) / 2, (c.y + a.y) / 2}};
  for (const Punto m : medi) SommaPunto(r, m, area / 3 * piano(m) * modulo);
}

}  // namespace

Reazioni ReazioniPiano(double piano_y, double piano_x, double piano_1) {
  const Piano piano = {piano_y, piano_x, piano_1};
  const double Ecls = nodo.EcCls / 100, Es = 20000, A = AreaResistente(suite, nodo.TfFi);
  const double a = nodo.LatoZ / 2, b = nodo.LatoY / 2;
  Reazioni r;
  const Punto v1 = {-a, -b}, v2 = {a, -b}, v3 = {a, b}, v4 = {-a, b};
  for (const std::vector<Punto>& meta : {std::vector<Punto>{v1, v2, v3}, std::vector<Punto>{v1, v3, v4}}) {
    const std::vector<Punto> c = ParteCompressa(meta, piano);
    for (std::size_t i = 2; i < c.size(); ++i) SommaTriangolo(r, piano, Ecls, c[0], c[i - 1], c[i]);
  }
  for (int i = 1; i <= nodo.NTir; ++i) {
    const Punto p = {nodo.TfZ[i] - a, b - nodo.TfY[i]};
    const double v = piano(p);
    SommaPunto(r, p, v * A * (v < 0 ? Es - Ecls : Es));
  }
  return r;
}

bool EquilibrioSestetto(int s, double scarto[3]) {
  lavoro.diagnosi.clear();
  DatiSezione(lavoro, s);
  const bool esito = PresInfl(lavoro, s);
  MostraDiagnosi(lavoro);
  const Reazioni r = ReazioniPiano(presInfl.PianoDef[1], presInfl.PianoDef[2], presInfl.PianoDef[3]);
  const double carico[3] = {nodo.SollN[s], 10 * nodo.SollMy[s], 10 * nodo.SollMz[s]};
  const double reso[3] = {r.N, r.My, r.Mz};
  bool entro = esito;
  for (int c = 0; c < 3; ++c) {
    scarto[c] = reso[c] - carico[c];
    if (!(std::fabs(scarto[c]) <= 1 + std::fabs(carico[c]) * 1e-4)) entro = false;
  }
  return entro;
}
