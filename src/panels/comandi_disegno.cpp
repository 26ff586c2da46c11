// panels/comandi_disegno.cpp - Gen_Dis: a file, a format, the drawing.
#include "panels/comandi_disegno.h"

#include "core/nomi_file.h"
#include "core/piattaforma.h"
#include "drawing/disegno.h"
#include "drawing/formats/formati.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"

static std::string FiltriDisegno() {
  std::string filtri;
  for (const Formato& f : FORMATI)
    if (*f.filtro != '\0') filtri.append(filtri.empty() ? "" : "|").append(f.filtro);
  return filtri;
}

// A drawing always starts over: with a file chosen the store is empty.
static bool ScegliFile(std::string& percorso, int& filtro) {
  RichiestaFile r;
  r.salva = true;
  r.titolo = "FILE DISEGNO DA GENERARE";
  r.filtro = FiltriDisegno();
  r.cartella = suite.DirLavoro;
  r.nomeIniziale = NomeFileDisegno("QB7", "GRB");
  if (!piattaforma.scegliFile(r, percorso, filtro)) return false;
  insDati.CartellaDialogo.clear();
  AzzeraDisegno();
  return true;
}

void ScegliFileDisegno() {
  std::string percorso;
  int filtro = 1;
  esitoDisegno = {};
  const bool stato = ScegliFile(percorso, filtro);
  if (percorso.empty()) {
    esitoDisegno.annullato = true;
    return;
  }
  if (!stato) {
    Messaggio("Errore: creazione disegno fallita", TitoloProg, Icona::Critica);
    esitoDisegno.fallito = true;
    return;
  }
  piattaforma.attesa(true);
  const int riga = filtro == 1 || filtro == 2 ? filtro - 1 : 2;  // any other filter counts as the last one
  esitoDisegno.fallito = !FORMATI[riga].esporta(percorso, 0);
  piattaforma.attesa(false);
}

void InsDati_Gen_Dis(int) { ScegliFileDisegno(); }
