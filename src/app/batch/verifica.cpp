// app/batch/verifica.cpp - one node's load and verification, and a list of them as pieces of work.
#include "app/batch/verifica.h"

#include "app/batch/compiti.h"
#include "app/batch/piattaforma_batch.h"
#include "core/eventi.h"
#include "core/file.h"
#include "core/testo.h"
#include "panels/InsDati.h"
#include "panels/file_nodo.h"

#include <algorithm>
#include <cstdio>

static const char* const ESITI[] = {"verificato", "non verificato", "non eseguito"};

bool CaricaNodoOspite(const std::string& percorso) {
  ospite.file.push_back({true, percorso, 1});
  Scatena(InsDati, insDati.Car_Nodo, Evento::Cambio);
  return !esitoFile.annullato && !esitoFile.fallito;
}

int VerificaNodo(const std::string& percorso) {
  if (!CaricaNodoOspite(percorso)) return 2;
  if (ospite.opzioni.metodo >= 0) UtenteSceglie(InsDati, insDati.TipoVer[ospite.opzioni.metodo], 1);
  Scatena(InsDati, insDati.Verifica, Evento::Cambio);
  if (verificaPannello.esito != EsitoVerifica::Eseguita) return 2;
  return verificaPannello.verificato ? 0 : 1;
}

int VerificaNodi(const std::vector<std::string>& percorsi, int processi) {
  int stato = 0;
  Compiti c;
  c.quanti = percorsi.size();
  c.insieme = processi;
  c.esegui = [&](std::size_t k) { return VerificaNodo(percorsi[k]); };
  c.risorsa = [&](std::size_t k) { return Minuscolo(NomeSenzaEstensione(percorsi[k])); };  // two nodes of one stem write the same report
  c.consegna = [&](std::size_t k, const EsitoCompito& e) {
    const std::string testa = "NODO " + PercorsoSuUnaRiga(percorsi[k]) + ": ";
    if (!e.motivo.empty()) std::fprintf(stderr, "%s%s\n", testa.c_str(), e.motivo.c_str());
    Stampa(e.uscita + testa + ESITI[e.stato]);
    stato = std::max(stato, e.stato);
  };
  EseguiCompiti(c);
  return stato;
}
