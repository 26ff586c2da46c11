// drawing/catene.cpp - the values of the named chains, from the model.
#include <initializer_list>

#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "model/schemi.h"
#include "model/stato.h"
#include "model/suite.h"

bool TerzoTirafondoZ() { return SCHEMI[SchemaTir(nodo)].lato[SUPERIORE] != 0; }
bool TerzoTirafondoY() { return SCHEMI[SchemaTir(nodo)].lato[SINISTRO] != 0; }

namespace {
struct Valori {
  double a[16] = {};  // 1..n
  int n = 0;
};
}  // namespace

using FormaCatena = void (*)(const double*, int, double);

static void Metti(Valori& v, std::initializer_list<double> x) {
  for (const double p : x) v.a[++v.n] = p;
}

static void MettiConOpposti(Valori& v, std::initializer_list<double> x) {
  for (const double p : x) Metti(v, {p, -p});
}

static void Disegna(Valori& v, FormaCatena catena, double posizione) {
  OrdinaVett(v.a, v.n);
  catena(v.a, v.n, posizione);
}

// From one edge outward or inward in two steps of the grout height.
static void MettiMalta(Valori& v, double da) {
  const double M = nodo.TfHMalta;
  Metti(v, {da, da + M, da + M + M});
}

static void MettiForo(Valori& v, double centro) { Metti(v, {centro - nodo.TfDForo / 2, centro + nodo.TfDForo / 2}); }

void QuoteQuotePiastra(double x, int k) {
  const double Sp = nodo.SpessPiastra, M = nodo.TfHMalta;
  Valori v;
  Metti(v, {0, -Sp, -Sp - M, -Sp - M - nodo.TfLF});
  if (nodo.TipoNodo == 2) {
    Metti(v, {nodo.HNerv});
    if (k == 2) Metti(v, {nodo.NervTaglio});
  }
  Disegna(v, CatenaV, x);
}

void QuoteFondazioneV(double x) {
  const double Sp = nodo.SpessPiastra, M = nodo.TfHMalta;
  Valori v;
  Metti(v, {nodo.TfLFt - Sp - M, -Sp - M, -Sp - M - nodo.TfL});
  Disegna(v, CatenaV, x);
}

void QuoteMaltaV(double x) {
  Valori v;
  MettiConOpposti(v, {nodo.LatoY / 2 + 2 * nodo.TfHMalta});
  Disegna(v, CatenaV, x);
}

void QuoteMaltaO(double y) {
  Valori v;
  MettiConOpposti(v, {nodo.LatoZ / 2 + 2 * nodo.TfHMalta});
  Disegna(v, CatenaO, y);
}

void QuoteTirafondiZ(double y) {
  Valori v;
  MettiMalta(v, -nodo.LatoZ / 2 - 2 * nodo.TfHMalta);
  Metti(v, {nodo.TfZ[1] - nodo.LatoZ / 2});
  if (TerzoTirafondoZ()) Metti(v, {0});
  Metti(v, {nodo.TfZ[2] - nodo.LatoZ / 2});
  MettiMalta(v, nodo.LatoZ / 2);
  Disegna(v, CatenaO, y);
}

void QuoteTirafondiY(double y) {
  Valori v;
  MettiMalta(v, -nodo.LatoY / 2 - 2 * nodo.TfHMalta);
  Metti(v, {nodo.TfY[2] - nodo.LatoY / 2});
  if (TerzoTirafondoY()) Metti(v, {nodo.TfY[6] - nodo.LatoY / 2});
  Metti(v, {nodo.TfY[4] - nodo.LatoY / 2});
  MettiMalta(v, nodo.LatoY / 2);
  Disegna(v, CatenaO, y);
}

void QuoteForiZ(double y) {
  Valori v;
  MettiForo(v, nodo.TfZ[1] - nodo.LatoZ / 2);
  if (TerzoTirafondoZ()) MettiForo(v, 0);
  MettiForo(v, nodo.TfZ[2] - nodo.LatoZ / 2);
  Disegna(v, CatenaO, y);
}

void QuoteForiY(double y) {
  Valori v;
  MettiForo(v, nodo.TfY[2] - nodo.LatoY / 2);
  if (TerzoTirafondoY()) MettiForo(v, 0);
  MettiForo(v, nodo.TfY[4] - nodo.LatoY / 2);
  Disegna(v, CatenaO, y);
}

void QuoteNervY(double y) {  // the chamfer along Z on both axes: on a plate with unlike chamfers the measure is the other rib's
  Valori v;
  MettiConOpposti(v, {-nodo.LatoY / 2, -nodo.Sezione.H / 2 - nodo.NervZ});
  Disegna(v, CatenaO, y);
}

void QuoteNervZ(double y) {
  const double B = nodo.Sezione.B, SP = nodo.SpNerv;
  Valori v;
  MettiConOpposti(v, {-nodo.LatoZ / 2, -B / 2 - SP - nodo.NervZ, -B / 2 - SP, -B / 2});
  Disegna(v, CatenaO, y);
}

void QuoteNervPianta(double x) {
  const double H = nodo.Sezione.H;
  Valori v;
  MettiConOpposti(v, {-nodo.LatoY / 2, -H / 2, -H / 2 + nodo.SpNerv});
  Disegna(v, CatenaV, x);
}

void QuoteLatoV(double x) {
  Valori v;
  MettiConOpposti(v, {-nodo.LatoY / 2 - 2 * nodo.TfHMalta, -nodo.LatoY / 2});
  Disegna(v, CatenaV, x);
}

void QuoteLatoO(double y) {
  Valori v;
  MettiConOpposti(v, {-nodo.LatoZ / 2 - 2 * nodo.TfHMalta, -nodo.LatoZ / 2});
  Disegna(v, CatenaO, y);
}

void QuoteSezV(double x) {
  Valori v;
  MettiConOpposti(v, {-nodo.Sezione.H / 2, -nodo.LatoY / 2});
  Disegna(v, CatenaV, x);
}

void QuoteSezO(double y) {
  Valori v;
  MettiConOpposti(v, {-nodo.Sezione.B / 2, -nodo.LatoZ / 2});
  Disegna(v, CatenaO, y);
}

// The anchor detail stands with the rod's middle at height 0, enlarged by k.
void QuoteTfDxA(double x) {
  const double k = suite.ParNodo[19], a = (nodo.TfL + nodo.TfLFt) / 2, uncino = a - nodo.TfLFt - nodo.TfL + nodo.TfR;
  Valori v;
  Metti(v, {a * k, (a - nodo.TfLFil) * k, uncino * k, (uncino - nodo.TfR) * k});
  Disegna(v, CatenaVScala, x);
}

void QuoteTfDxB(double x) {
  const double k = suite.ParNodo[19], a = (nodo.TfL + nodo.TfLFt) / 2;
  Valori v;
  Metti(v, {a * k, (a - nodo.TfLFt - nodo.TfL + nodo.TfR) * k});
  Disegna(v, CatenaVScala, x);
}

void QuoteTfSx(double x) {
  const double k = suite.ParNodo[19], centro = -(nodo.TfL + nodo.TfLFt) / 2 + nodo.TfR;
  Valori v;
  Metti(v, {centro * k, (centro + nodo.TfL1) * k});
  Disegna(v, CatenaVScala, x);
}

void QuoteTfSu(double y) {
  const double k = suite.ParNodo[19];
  Valori v;
  MettiConOpposti(v, {nodo.TfFi / 2 * k});
  Disegna(v, CatenaOScala, y);
}
