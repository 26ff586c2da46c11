// panels/Soll3D.h - the load import: nodes, bars, cases, conditions and sextets of the three-dimensional model.
// State     soll3D: the five lists as typed; kept as long as the process.
#pragma once
#include "panels/controlli.h"

struct StatoSoll3D {
  bool aperto = false, caricato = false;
  std::string titolo = "Importa sollecitazioni da 3D";
  bool caricatoInTA = true;  // method when the panel was loaded: the tip of TuttiCdc stays
  Controllo LNodi, LAste, LCdC, LCdC2, LSes, Label2;
  Controllo NodiTxt, AsteTxt, CdCTxt, CdC2Txt, SesTxt;
  Controllo Annulla[2], Cerca[2], ACdc, TuttiCdc, ACdc2, TuttiCdc2, ASes, TuttiSes, Importa, Chiudi;
};
inline StatoSoll3D soll3D;
extern const Pannello Soll3D;

void InsDati_ImpS3D(int);  // shows the panel modally
