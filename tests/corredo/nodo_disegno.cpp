// tests/corredo/nodo_disegno.cpp - the joint of the drawing tests.
#include "corredo/nodo_disegno.h"
#include "model/stato.h"

#include <cmath>

#include "model/suite.h"

void NodoDiProva() {
  nodo.Sezione.Nome = "HEX 200           ";
  nodo.Sezione.H = 200;
  nodo.Sezione.B = 180;
  nodo.Sezione.A = 10;
  nodo.Sezione.E = 15;
  nodo.Sezione.R = 12;
  nodo.LatoZ = 400;
  nodo.LatoY = 500;
  nodo.SpessPiastra = 20;
  nodo.TipoNodo = 2;
  nodo.HNerv = 150;
  nodo.SpNerv = 8;
  nodo.SaldInt = 0;
  nodo.Gola = 7;
  nodo.GolaCalc = 7 / std::sqrt(2.0);
  nodo.NTir = 4;
  nodo.OptionNTir = 0;
  const double z[] = {60, 340, 60, 340, 200, 200, 200, 200}, y[] = {70, 70, 430, 430, 250, 250, 430, 70};
  for (int i = 1; i <= 8; ++i) nodo.TfZ[i] = z[i - 1], nodo.TfY[i] = y[i - 1];
  nodo.TipoTirafondo = 0;
  nodo.TfFi = 20;
  nodo.TfLFt = 120;
  nodo.TfL = 500;
  nodo.TfR = 70;
  nodo.TfL1 = 450;
  nodo.TfLF = 10;
  nodo.TfDForo = 100;
  nodo.TfHMalta = 50;
  nodo.TfLFil = 40;
}

void OpzioniDiProva() {
  const double p[] = {2, 4, 3, 6, 5, 7, 1, 15, 10, 25, 18, 15, 10, 5, 6, 1, 0, 5, 1, 1, 9};
  for (int i = 0; i <= 20; ++i) suite.ParNodo[i] = p[i];
}

static bool Vicino(int coord, double x, double y) {
  return std::abs(disegno.CoordX[coord] - x) < 1e-3 && std::abs(disegno.CoordY[coord] - y) < 1e-3;
}

int TrovaLinea(double x1, double y1, double x2, double y2, double OX, double OY) {
  const Disegno& d = disegno;
  for (int i = 0; i < d.NumLinee; ++i) {
    const int a = d.LinIni[i], b = d.LinFin[i];
    if ((Vicino(a, OX + x1, OY + y1) && Vicino(b, OX + x2, OY + y2)) || (Vicino(b, OX + x1, OY + y1) && Vicino(a, OX + x2, OY + y2)))
      return i;
  }
  return -1;
}

int TrovaArco(double xc, double yc, double raggio, double OX, double OY, int dopo) {
  const Disegno& d = disegno;
  for (int i = dopo + 1; i < d.NumArchi; ++i) {
    const double r = std::hypot(d.CoordX[d.ArcIni[i]] - d.CoordX[d.ArcCen[i]], d.CoordY[d.ArcIni[i]] - d.CoordY[d.ArcCen[i]]);
    if (Vicino(d.ArcCen[i], OX + xc, OY + yc) && std::abs(r - raggio) < 1e-3) return i;
  }
  return -1;
}

int TrovaTesto(const std::string& testo, int dopo) {
  for (int i = dopo + 1; i < disegno.NumTesti; ++i)
    if (disegno.TesStr[static_cast<std::size_t>(i)] == testo) return i;
  return -1;
}

int ContaTesti(const std::string& testo) {
  int n = 0;
  for (int i = TrovaTesto(testo); i >= 0; i = TrovaTesto(testo, i)) ++n;
  return n;
}
