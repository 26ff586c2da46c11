// panels/comandi_suite.cpp - the main panel's commands that speak with the suite: nodes of the model, unit calculator, load export.
#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "link/esporta_soll.h"
#include "link/ricerca.h"
#include "link/struttura.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"

// ---- nodes of the model ----

// Kinds of a search that name no node of the structure.
static bool SenzaNodo(std::int16_t tipo) { return tipo == 0 || tipo == 1; }

void InsDati_Command1(int) {
  const NodoCercato r = CercaNodi("NODO COLONNA - PLINTO - Cerca nodi");
  if (!r.risposta) return;
  if (!SenzaNodo(r.tipo)) {
    nodo.NumNodiStr = 1;
    nodo.NodiStr[1] = r.nodo;
  }
  if (r.elemento <= 0) return;
  const int profilo = ProfiloDaAsta(r.elemento);
  if (profilo > 0) ImpostaScelta(insDati.TraveP, profilo - 1);
}

// ---- unit calculator ----

constexpr int CATEGORIA_FORZE = 4, CATEGORIA_MOMENTI = 5;

// Runs the calculator on the field's value; its answer becomes the field's text. A tool that cannot be started changes nothing; an answer that
// cannot be read is a fault.
static void ChiamaUnimis(Controllo& campo, const std::string& unita, int categoria) {
  double v = 0;
  if (!Val(campo.testo, v)) return;
  const std::string argomenti = "|primcipale=0|uniprinctesto=" + unita + "|categoriadiingresso=" + std::to_string(categoria) +
                                "|valoreingresso=" + NumeroPiano(v) + "|fileout=" + suite.DirLavoro + "\\TQ_fermix.tmp|";
  if (!piattaforma.esegui(suite.DirProgra + "\\tq_fermix.exe", argomenti)) return;
  FileLettura f;
  std::string riga;
  if (!ApriLettura(f, suite.DirLavoro + "\\tq_fermix.tmp") || !LeggiRiga(f, riga)) {
    SegnalaFault();
    return;
  }
  ImpostaTesto(campo, std::string(Rifila(riga)));
}

void InsDati_TxtSN_Doppio(int i) { ChiamaUnimis(insDati.TxtSN[i], suite.UnitaForze, CATEGORIA_FORZE); }
void InsDati_TxtTy_Doppio(int i) { ChiamaUnimis(insDati.TxtTy[i], suite.UnitaForze, CATEGORIA_FORZE); }
void InsDati_TxtTz_Doppio(int i) { ChiamaUnimis(insDati.TxtTz[i], suite.UnitaForze, CATEGORIA_FORZE); }
void InsDati_TxtMt_Doppio(int i) { ChiamaUnimis(insDati.TxtMt[i], suite.UnitaMomenti, CATEGORIA_MOMENTI); }
void InsDati_TxtMy_Doppio(int i) { ChiamaUnimis(insDati.TxtMy[i], suite.UnitaMomenti, CATEGORIA_MOMENTI); }
void InsDati_TxtMz_Doppio(int i) { ChiamaUnimis(insDati.TxtMz[i], suite.UnitaMomenti, CATEGORIA_MOMENTI); }

// ---- load export ----

static ElencoSoll ElencoDelNodo() {
  ElencoSoll e;
  const double* const componenti[] = {nodo.SollN, nodo.SollTy, nodo.SollTz, nodo.SollMt, nodo.SollMy, nodo.SollMz};
  for (int k = 0; k < 6; k++) e.componente[k] = componenti[k];
  e.nomi = nodo.SollNome;
  e.conteggio = nodo.NumSoll;
  return e;
}

void InsDati_EsportaSollButt(int) {
  RichiestaFile r;
  r.salva = true;
  r.estensione = "txt";
  r.filtro = "File di testo (*.txt)|*.txt|Tutti i file (*.*)|*.*";
  r.nomeIniziale = suite.DirLavoro + "\\Soll_Qb07.txt";
  std::string nome;
  int filtro = 1;
  if (!piattaforma.scegliFile(r, nome, filtro)) return;
  insDati.CartellaDialogo.clear();
  switch (EsportaSollecitazioni(nome, ElencoDelNodo())) {
    case EsitoEsporta::Scritto: break;
    case EsitoEsporta::Interrotto: break;  // the command's end shows the box of the fault
    case EsitoEsporta::NonAperto: Messaggio("Impossibile esportare le sollecitazioni in " + nome, TitoloProg, Icona::Critica); break;
    case EsitoEsporta::NonScritto: Messaggio("Salvataggio fallito", TitoloProg, Icona::Esclamazione); break;
  }
}
