// panels/selezione.h - the bars that meet at the nodes of the load import, filtered by colour, line type and name.
// Given     nodi, aste: where the nodes are typed and where the bars found go, named by the panel that opens this one.
// State     selezione: choices and tip line; kept as long as the process.
#pragma once
#include "panels/controlli.h"

constexpr int NumColori = 10, NumLineeSel = 5;

struct StatoSelezione {
  bool aperto = false, caricato = false;
  std::string titolo = "Selezione aste";
  std::string suggerimento;  // the tip that TimerSel will show
  const Controllo* nodi = nullptr;
  Controllo* aste = nullptr;
  Controllo Colori, Linee, Nomi;  // frames of the selections
  Controllo ColoriOp[2], ColoriCh[NumColori], LineeOp[2], LineeCh[NumLineeSel], Line1[NumLineeSel];
  Controllo NomiOp[2], NomiTxt[2], LNomi[2], Cerca, Chiudi, HLabSel;
};
inline StatoSelezione selezione;
extern const Pannello Selezione;
