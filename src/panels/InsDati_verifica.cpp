// panels/InsDati_verifica.cpp - the command Verifica: input checks, advice on the edge distance, the verification.
#include "core/aritmetica.h"
#include "core/piattaforma.h"
#include "engine/Calcoli.h"
#include "engine/Controlli.h"
#include "model/node_model.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"

// A fault of the checks stops the run with the box that one of the engine has.
static bool FaultDeiControlli() {
  if (!FaultAritmetico()) return false;
  MostraFault(TESTO_FAULT_VERIFICA);
  return true;
}

static EsitoVerifica VerificaNodo() {
  const bool possibile = ControlliGeometrici();
  if (FaultDeiControlli()) return EsitoVerifica::Interrotta;
  if (!possibile) {
    Messaggio("Verifica non possibile", TitoloProg, Icona::Esclamazione);
    return EsitoVerifica::Rifiutata;
  }
  const bool ammesso = nodo.TipoVer == 0 ? ControlloBordoCNR() : ControlloBordoNTC();
  if (FaultDeiControlli()) return EsitoVerifica::Interrotta;
  // The check of the method is advice: a breach only asks.
  if (!ammesso && !piattaforma.domanda("Continuare la verifica?", TitoloProg, Icona::Informazione)) return EsitoVerifica::Annullata;
  return EseguiVerifica() ? EsitoVerifica::Eseguita : EsitoVerifica::Interrotta;
}

void InsDati_Verifica(int) {
  piattaforma.attesa(true);
  verificaPannello.esito = VerificaNodo();
  piattaforma.attesa(false);
  piattaforma.fuoco(insDati.Verifica);
}
