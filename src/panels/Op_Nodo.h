// panels/Op_Nodo.h - the drawing options: colours, text sizes, styles, what the sheet shows.
// State     opNodo: what the fields show; suite.ParNodo follows at Applica, Chiudi and Salva.
#pragma once
#include "panels/controlli.h"

constexpr int MaxParNodoTxt = 27;  // fields 0..16 and 25..27

struct StatoOpNodo {
  bool aperto = false, caricato = false;
  std::string titolo = "Opzioni di disegno";
  Controllo Par_Nodo[MaxParNodoTxt + 1], LPar[MaxParNodoTxt + 1], Option1[2], CheckQuote, CheckDistinta;
  Controllo Annulla, Applica, Chiudi, Def;
};
inline StatoOpNodo opNodo;
extern const Pannello Op_Nodo;

void RiempiOpNodo();    // after the options file was read: every field and choice
void ApplicaOpzioni();  // fields into suite.ParNodo
void InsDati_Opz(int);  // shows the panel with the options' values
