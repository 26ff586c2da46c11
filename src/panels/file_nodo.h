// panels/file_nodo.h - save and load of a node with their dialogs; the list of the file's lines is in core/layout_nodo.h.
#pragma once
#include "results/avvisi.h"

struct EsitoFile {         // how the last save or load ended; both false: done
  bool annullato = false;  // the dialog was left by Annulla, nothing changed
  bool fallito = false;    // it ended in its failure box
};
inline EsitoFile esitoFile;

inline GradiFile gradiLetti;  // the grades that the last file names, before anything was put in their place

void SalvaNodo();   // dialog and file; a failure is left in passi
void CaricaNodo();  // dialog, file and panel; a failure is left in passi
