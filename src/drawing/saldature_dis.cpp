// drawing/saldature_dis.cpp - weld marks.
#include "drawing/saldature_dis.h"

#include <algorithm>
#include <cmath>

#include "core/numeri.h"
#include "drawing/Quote.h"
#include "drawing/edizione.h"
#include "drawing/tavola.h"
#include "engine/Saldature.h"
#include "model/stato.h"
#include "model/suite.h"

bool TrattiSaldatura(double lunghezza, double passo, std::int32_t& n) {
  if (!InIntero(std::floor(lunghezza / passo + 0.5), n)) return false;
  n = std::min(n, MaxLineeDis + 1);
  return true;
}

void DisSaldatura(Tela* tela, double x1, double y1, double x2, double y2, int lato, int tipo, int indice) {
  const double g = nodo.Gola;
  if (g == 0) return;
  const double L = std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2));
  std::int32_t n = 0;
  if (!TrattiSaldatura(L, g, n)) return InterrompiDisegno();
  const double teta = Direzione(x1, y1, x2, y2), passoX = g * std::cos(teta), passoY = g * std::sin(teta);
  const double vx = -lato * passoY, vy = lato * passoX;
  const std::int16_t colore = ColoreOpz(20);
  if (std::abs(vx) < TOLL_GEO && std::abs(vy) < TOLL_GEO) n = 0;  // strokes of no length
  if (tipo == 1) DisLineaRel(tela, x1, y1, vx, vy, colore);
  double px = x1, py = y1;
  for (int i = 1; i < n && !LineeEsaurite(); ++i) {
    px += passoX;
    py += passoY;
    DisLineaRel(tela, px, py, vx, vy, colore);
  }
  if (tipo == 1) DisLineaRel(tela, x2, y2, vx, vy, colore);
  DisLinea(tela, x1 + vx, y1 + vy, x2 + vx, y2 + vy, colore);
  if (!quote.EtichetteSald || indice < 1 || indice > MaxSald) return;
  const bool sinistra = teta > PI_PROG / 2 || teta <= -PI_PROG / 2;
  edizione.nomeSald(lavoroDisegno->ris.Saldature[indice].Nome, x1 + vx, x2 + vx, y1 + vy, y2 + vy, vx, vy, sinistra != (lato == 1));
}

void DisLineaSald(double x1, double y1, double x2, double y2, int lato, int tipo, int indice) {
  DisSaldatura(nullptr, x1, y1, x2, y2, lato, tipo, indice);
  DisLinea(nullptr, x1, y1, x2, y2);
}

void DisAngoloSald(Tela* tela, double x, double y, int quadrante, Colore colore) {
  if (quadrante < 1 || quadrante > 4) return;
  const double da = (quadrante - 1) * PI_PROG / 2, a = quadrante * PI_PROG / 2;
  DisArco(tela, x, y, 2 * nodo.Gola, colore ? colore : Colore(ColoreOpz(20)), da, a);
}
