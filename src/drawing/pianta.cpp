// drawing/pianta.cpp - section outline, anchors in plan, chamfers of the ribs.
#include "drawing/pianta.h"

#include <cmath>

#include "drawing/disegno.h"
#include "drawing/saldature_dis.h"
#include "model/regole_nodo.h"
#include "model/saldature_colonna.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr std::int32_t ROSSO = 255;  // 0xBBGGRR
constexpr int PAR_NODO = 0;          // drawing option: colour of steel parts

void CalcolaSmussi() {
  const Smussi s = SmussiNervature(nodo);
  nodo.NervTaglio = s.Taglio;
  nodo.NervZ = s.Z;
  nodo.NervY = s.Y;
}

static void SegniSaldature(const Sezione& s, double x0, double y0) {
  int w = 0;
  for (const Estremi& t : TrattiColonna(s).tratti) DisSaldatura(nullptr, x0 + t.zf, y0 + t.yf, x0 + t.zi, y0 + t.yi, 1, 2, ++w);
}

void PiantaSezione(Tela* tela, const Sezione& sezione, double x0, double y0, std::int16_t colore, Segni segni) {
  const double b = sezione.B / 2, h = sezione.H / 2, a = sezione.A, e = sezione.E, r = sezione.R, pi = PI_PROG;
  if (segni == Segni::ConSaldature) {
    SegniSaldature(sezione, x0, y0);
    disegno.ColCorr = colore;
  }
  const auto linea = [&](double x1, double y1, double x2, double y2) { DisLinea(tela, x0 + x1, y0 + y1, x0 + x2, y0 + y2); };
  const auto raccordo = [&](double x, double y, double da, double fino) { DisArco(tela, x0 + x, y0 + y, 2 * r, {}, da, fino); };
  const double w = a / 2 + r;  // where a flange meets its fillets
  linea(a / 2, h - e - r, a / 2, -h + e + r);
  linea(-a / 2, -h + e + r, -a / 2, h - e - r);
  linea(-b, h, b, h);
  linea(b, h, b, h - e);
  linea(b, h - e, w, h - e);
  raccordo(w, h - e - r, pi / 2, pi);
  raccordo(w, -h + e + r, pi, 1.5 * pi);
  linea(w, -h + e, b, -h + e);
  linea(b, -h + e, b, -h);
  linea(b, -h, -b, -h);
  linea(-b, -h, -b, -h + e);
  linea(-b, -h + e, -w, -h + e);
  raccordo(-w, -h + e + r, 1.5 * pi, 0);
  raccordo(-w, h - e - r, 0, pi / 2);
  linea(-w, h - e, -b, h - e);
  linea(-b, h - e, -b, h);
  if (tela != nullptr) tela->primoPiano = RgbDaColore(colore);
}

void PianoTirafondi(Tela* tela, double vistaX, double vistaY) {
  const double Fi = nodo.TfFi;
  for (int i = 1; i <= nodo.NTir; ++i) {
    const double x = nodo.TfZ[i] - nodo.LatoZ / 2, y = nodo.TfY[i] - nodo.LatoY / 2;
    if (tela != nullptr) {
      ArcoTela(*tela, x, y, Fi / 2, 0, 0, ROSSO);
      continue;
    }
    DisLineaRel(nullptr, vistaX + x - 0.75 * Fi, vistaY + y, 1.5 * Fi, 0);
    DisLineaRel(nullptr, vistaX + x, vistaY + y - 0.75 * Fi, 0, 1.5 * Fi);
    DisArco(nullptr, vistaX + x, vistaY + y, Fi, ColoreOpz(PAR_NODO));
  }
}
