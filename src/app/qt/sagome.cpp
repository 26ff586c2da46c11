// app/qt/sagome.cpp - light fills; the strokes over them are the program's.
#include "app/qt/sagome.h"

#include "model/node_model.h"
#include "model/stato.h"

static const QColor PIASTRA(238, 236, 228), NERVATURA(206, 220, 206), COLONNA(176, 198, 222);

static QPainterPath Rettangolo(double x1, double y1, double x2, double y2) {
  QPainterPath r;
  r.addRect(QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized());
  return r;
}

static QPainterPath SagomaColonna(const Sezione& s) {
  const double b = s.B / 2, h = s.H / 2, a = s.A / 2, q = h - s.E, g = q - s.R;
  QPainterPath p;
  p.moveTo(-b, h);
  for (const QPointF& k : {QPointF(b, h), QPointF(b, q), QPointF(a + s.R, q)}) p.lineTo(k);
  p.quadTo(a, q, a, g);
  p.lineTo(a, -g);
  p.quadTo(a, -q, a + s.R, -q);
  for (const QPointF& k : {QPointF(b, -q), QPointF(b, -h), QPointF(-b, -h), QPointF(-b, -q), QPointF(-a - s.R, -q)}) p.lineTo(k);
  p.quadTo(-a, -q, -a, -g);
  p.lineTo(-a, g);
  p.quadTo(-a, q, -a - s.R, q);
  p.lineTo(-b, q);
  p.closeSubpath();
  return p;
}

std::vector<Campitura> CampitureNodo() {
  const double z = nodo.LatoZ / 2, y = nodo.LatoY / 2, B = nodo.Sezione.B / 2, H = nodo.Sezione.H / 2, sp = nodo.SpNerv;
  std::vector<Campitura> c{{Rettangolo(-z, -y, z, y), PIASTRA}};
  if (nodo.TipoNodo == 2)
    for (const int s : {-1, 1}) {
      c.push_back({Rettangolo(s * B, -y, s * (B + sp), y), NERVATURA});
      c.push_back({Rettangolo(s * (B + sp), -H, s * z, -H + sp), NERVATURA});
      c.push_back({Rettangolo(s * (B + sp), H, s * z, H - sp), NERVATURA});
    }
  c.push_back({SagomaColonna(nodo.Sezione), COLONNA});
  return c;
}
