// drawing/tela.cpp - the canvas as a record: every operation leaves its stroke.
#include "drawing/tela.h"

void PulisciTela(Tela& t) { t.tratti.clear(); }

void ImpostaScala(Tela& t, double sx, double sy, double dx, double dy) {
  t.sx = sx;
  t.sy = sy;
  t.dx = dx;
  t.dy = dy;
}

void SegmentoTela(Tela& t, double x1, double y1, double x2, double y2, std::int32_t colore) {
  Tratto s;
  s.x1 = x1;
  s.y1 = y1;
  s.x2 = x2;
  s.y2 = y2;
  s.colore = colore;
  t.tratti.push_back(s);
}

void ArcoTela(Tela& t, double xc, double yc, double raggio, double a1, double a2, std::int32_t colore) {
  Tratto s;
  s.forma = Tratto::Forma::Arco;
  s.xc = xc;
  s.yc = yc;
  s.raggio = raggio;
  s.a1 = a1;
  s.a2 = a2;
  s.colore = colore;
  t.tratti.push_back(s);
}
