// app/batch/disegno.cpp - the formats of the file dialog go through its command, the others are written aside from it.
#include "app/batch/disegno.h"

#include "app/batch/piattaforma_batch.h"
#include "app/batch/verifica.h"
#include "core/testo.h"
#include "drawing/formats/formati.h"
#include "panels/InsDati.h"
#include "panels/comandi_disegno.h"

// Position in FORMATI of the extension behind the last point of the last component, -1 none.
static int RigaFormato(const std::string& uscita) {
  const std::size_t punto = uscita.find_last_of("\\/.");
  if (punto == std::string::npos || uscita[punto] != '.') return -1;
  for (int k = 0; k < NumFormati; ++k)
    if (UgualeSenzaMaiuscole(FORMATI[k].tipo, uscita.substr(punto + 1))) return k;
  return -1;
}

bool FormatoAmmesso(const std::string& uscita) { return RigaFormato(uscita) >= 0; }

int DisegnaNodoOspite(const std::string& percorso, const std::string& uscita) {
  if (!CaricaNodoOspite(percorso)) return 2;
  const int riga = RigaFormato(uscita);
  if (*FORMATI[riga].filtro == '\0') return FORMATI[riga].esporta(uscita, 1) ? 0 : 2;
  ospite.file.push_back({true, uscita, riga + 1});
  Scatena(InsDati, insDati.Gen_Dis, Evento::Cambio);
  return esitoDisegno.annullato || esitoDisegno.fallito ? 2 : 0;
}
