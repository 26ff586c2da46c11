// panels/comandi_disegno.h - the main panel's commands on the executive drawing.
#pragma once

struct EsitoDisegno {      // how the last drawing command ended; both false: the file was written
  bool annullato = false;  // the dialog was left by Annulla, nothing changed
  bool fallito = false;    // it ended in its failure box
};
inline EsitoDisegno esitoDisegno;

void ScegliFileDisegno();  // the dialog, then the drawing in the format of the filter chosen
void InsDati_Gen_Dis(int);
