// panels/InsDati_verifica.cpp - the command Verifica.
#include "core/piattaforma.h"
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"
#include "panels/lavoro_finestre.h"

void InsDati_Verifica(int) {
  piattaforma.attesa(true);
  verificaPannello = {};
  verificaPannello.esito = VerificaConRelazione();
  verificaPannello.verificato = verificaPannello.esito == EsitoVerifica::Eseguita && lavoro.verificato;
  piattaforma.attesa(false);
  piattaforma.fuoco(insDati.Verifica);
}
