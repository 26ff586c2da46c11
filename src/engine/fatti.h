// engine/fatti.h - what a sextet's solution tells besides its checks: the pressure under the plate, the forces, how well they balance.
// Given     a Lavoro whose tables are worked out (CalcolaTabelle), the joint that it was given, unchanged.
// Axes      of points: from the plate's centre, z to the right as TfZ, y downward as TfY, mm.
// Units     N/mm2, kN, mm, per cent.
#pragma once
#include <array>

#include "engine/lavoro.h"

struct PuntoPiano {
  double z = 0, y = 0;
};

struct FattiSestetto {
  double pressione_max = 0;               // N/mm2, positive
  double area_compressa = 0;              // per cent of the plate
  bool conAsse = false;                   // the neutral axis cuts the plate
  std::array<PuntoPiano, 2> asse_neutro;  // where it cuts the edges; lower z first, then lower y
  bool conRisultante = false;
  double risultante_kN = 0;  // of the pressure less the displaced concrete; negative
  PuntoPiano risultante;
  double residuo_percento = 0;  // largest of the three equilibrium errors, re-integrated
  int iterazioni = 0;           // of the solver, at its stop
};
FattiSestetto Fatti(const Lavoro& l, int s);

// The compressed part of the plate: vertices in the plan's axes, in order around it; 0: none. At most 6.
struct PoligonoCompresso {
  int n = 0;
  PuntoPiano v[8];
};
PoligonoCompresso ParteCompressa(const Lavoro& l, int s);
double PressioneNelPunto(const Lavoro& l, int s, PuntoPiano p);  // N/mm2, negative in compression; positive: the plate lifts
