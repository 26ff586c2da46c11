// panels/PropMateriali.h - the read-only panel of the materials in use: their values and the design values derived from them.
// Units     stresses in the user's unit (FattTensioni, DecTensioni); partial factors as they are.
// State     propMateriali: labels, set anew at each opening; nothing of its own.
#pragma once
#include "panels/controlli.h"

constexpr int NumValoriAcciaio = 9;  // values shown of a steel, a rod, a bolt
constexpr int NumValoriCls = 5;

struct StatoPropMateriali {
  bool aperto = false, caricato = false;
  std::string titolo = "Proprietà dei materiali";
  Controllo Unit, FrameAcc, FrameAccPia, FrameBull, FrameTir, FrameCls, Chiudi;
  // Labels of each frame in the order of the panel's table.
  Controllo acc[NumValoriAcciaio], pia[NumValoriAcciaio], bull[NumValoriAcciaio], tir[NumValoriAcciaio], cls[NumValoriCls];
};
inline StatoPropMateriali propMateriali;
extern const Pannello PropMateriali;

void SettaLabelMat();             // the unit's caption
void SettaMateriali();            // captions and values; a partial factor of 0 is an arithmetic fault
void InsDati_PropMatButton(int);  // shows the panel modally; not on a fault
