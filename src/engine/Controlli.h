// engine/Controlli.h - may this joint be verified at all, and do its anchors keep the distances from the plate's edge?
// Given     the joint as entered; lengths in mm. Nothing here changes it.
// Rows      all of them, each by itself, in the order of the checks; whoever asks the user stops where an answer stops it.
#pragma once
#include <array>

#include "model/node_model.h"

enum class GenereGeometria : unsigned char {
  Domanda,  // the user may go on
  Rifiuto,  // no verification
  Bordo     // advice of the method: the user may go on
};

struct RigaGeometria {
  const char* id = "";
  const char* testo = "";  // of its box
  GenereGeometria genere = GenereGeometria::Domanda;
  bool passa = true;
  bool confronta = false;          // domanda and limite hold
  double domanda = 0, limite = 0;  // mm, the comparison with the least margin: its left side and its right one
  bool fault = false;              // its arithmetic failed
};

constexpr int NumGeometria = 11;
constexpr const char* TITOLO_GEOMETRIA = "ATTENZIONE!";
using RigheGeometria = std::array<RigaGeometria, NumGeometria>;

// metodo: 0 edge distances of CNR 10011/88, 2 Fi <= D <= 6 t; 1 NTC 2008 4.2.8.1.1, 1.2 Fi <= D <= a bound by the exposure class.
// The processor's flags are as before at the end.
RigheGeometria ControlliGeometria(const Nodo& nodo, int metodo);
