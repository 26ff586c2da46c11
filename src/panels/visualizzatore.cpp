// panels/visualizzatore.cpp - starts the suite's viewer, or makes the running one reload.
#include "panels/visualizzatore.h"

#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "drawing/formats/scrittori.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr int SILENZIO_RIUSCITA = 1;  // no box of success; a failed write shows its own

static std::string FileGuardato() { return suite.DirProgra + "\\nodo.dis"; }

// What the viewer reads at its start. A failed write has no box: the viewer starts all the same.
static void ScriviIngresso() {
  FileScrittura f;
  if (!ApriScrittura(f, suite.DirProgra + "\\lumvet.inp")) return;
  ScriviRiga(f, NumeroFile(2));
  ScriviRiga(f, FileGuardato());
  for (const double v : {0, 0, 8000, 8000}) ScriviRiga(f, NumeroFile(v));
  ChiudiScrittura(f);
}

// False: the viewer neither runs nor could be started; its box was shown.
static bool ChiamaVisualizzatore() {
  const std::string finestra = "VISUALIZZAZIONE FILE DISEGNO - " + FileGuardato();
  if (piattaforma.attivaFinestra(finestra)) {
    piattaforma.tasti(finestra, "^v");
    return true;
  }
  ScriviIngresso();
  if (piattaforma.avvia(suite.DirProgra + "\\lumvet.exe", "")) return true;
  Messaggio("Visualizzatore incompleto o mancante", "ERRORE", Icona::Esclamazione);
  return false;
}

void InsDati_ApriVis(int) {
  piattaforma.attesa(true);
  if (ChiamaVisualizzatore()) ComandoGrb(suite.DirLavoro + "\\qb7tmp.grb", SILENZIO_RIUSCITA);
  piattaforma.attesa(false);
}
