// drawing/schizzo.cpp - the plan of the joint and the section alone, on a canvas.
#include "drawing/schizzo.h"

#include <cmath>

#include "core/numeri.h"
#include "drawing/disegno.h"
#include "drawing/pianta.h"
#include "model/stato.h"

constexpr double MARGINE = 0.6;  // half of 1.2 times the governing size

// Fits sizes dx, dy into the canvas; the width governs where larghezzaGoverna holds.
static void AdattaScala(Tela& t, double dx, double dy, bool larghezzaGoverna) {
  const double r = std::fabs(t.altezza / t.larghezza);
  const double x = larghezzaGoverna ? MARGINE * dx : MARGINE * dy / r;
  const double y = larghezzaGoverna ? MARGINE * dx * r : MARGINE * dy;
  ImpostaScala(t, -x, y, x, -y);
}

static bool SenzaMisure(const Tela& t) { return t.larghezza == 0 || t.altezza == 0; }

static void Piastra(Tela& t) {
  const double z = nodo.LatoZ / 2, y = nodo.LatoY / 2;
  DisLinea(&t, -z, -y, -z, y);
  DisLinea(&t, z, -y, z, y);
  DisLinea(&t, -z, -y, z, -y);
  DisLinea(&t, -z, y, z, y);
}

static void Nervature(Tela& t, int s) {
  const double H = nodo.Sezione.H, B = nodo.Sezione.B, SP = nodo.SpNerv, NZ = nodo.NervZ, NY = nodo.NervY;
  const double esterna = s * (B / 2 + SP);
  for (const double x : {s * B / 2, esterna}) DisLineaRel(&t, x, -nodo.LatoY / 2, 0, nodo.LatoY);
  DisLineaRel(&t, s * (B / 2 + NZ), -H / 2, 0, SP);
  DisLineaRel(&t, s * (B / 2 + NZ), H / 2, 0, -SP);
  for (const double y : {-H / 2 - NY, H / 2 + NY}) DisLineaRel(&t, esterna, y, s * SP, 0);
  for (const double y : {-H / 2, -H / 2 + SP, H / 2, H / 2 - SP}) DisLinea(&t, esterna, y, s * nodo.LatoZ / 2, y);
}

void DisegnaNodo(Tela& tela) {
  CalcolaSmussi();
  PulisciTela(tela);
  if (SenzaMisure(tela)) return;
  const double Dy = MaxDi(nodo.Sezione.H, nodo.LatoY), Dz = MaxDi(nodo.Sezione.B, nodo.LatoZ);
  AdattaScala(tela, Dz, Dy, std::fabs(Dz / tela.larghezza) > std::fabs(Dy / tela.altezza));
  PiantaSezione(&tela, nodo.Sezione, 0, 0, 0, Segni::Senza);
  Piastra(tela);
  if (nodo.TipoNodo == 2)
    for (const int s : {-1, 1}) Nervature(tela, s);
  PianoTirafondi(&tela);
}

void DisegnaSezImport(Tela& tela, const Sezione& sezione) {
  PulisciTela(tela);
  if (SenzaMisure(tela)) return;
  AdattaScala(tela, sezione.B, sezione.H, std::fabs(sezione.B / tela.larghezza) > std::fabs(sezione.H / tela.altezza));
  PiantaSezione(&tela, sezione, 0, 0, 0, Segni::Senza);
}
