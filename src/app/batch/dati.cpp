// app/batch/dati.cpp - start and failures of the verbs of data.
#include "app/batch/dati.h"

#include <cstdio>

#include "app/batch/piattaforma_batch.h"
#include "app/muto/ospite_muto.h"
#include "core/eventi.h"

void Errore(const std::string& testo) {
  const char* pulisci = ospite.progresso ? "\r\033[K" : "";  // the count that stands there
  std::fprintf(stderr, "%serrore: %s\n", pulisci, PercorsoSuUnaRiga(testo).c_str());
}

bool AvviaPerDati() {
  const Opzioni& o = ospite.opzioni;
  MontaPiattaformaMuta();
  muto.rispondiOk = o.rispondiOk;
  const bool avviato = AvviaMuto(o.rigaComando, o.decimale != 0 ? o.decimale : DecimaleSistema());
  const std::size_t avvisi = muto.riquadri.size() - (avviato || muto.riquadri.empty() ? 0 : 1);
  for (std::size_t k = 0; k < avvisi; ++k) std::fprintf(stderr, "avviso: %s\n", SuUnaRiga(muto.riquadri[k].testo).c_str());
  if (!avviato) Errore(muto.riquadri.empty() ? "avvio non riuscito" : muto.riquadri.back().testo);
  return avviato;
}
