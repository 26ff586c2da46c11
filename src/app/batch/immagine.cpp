// app/batch/immagine.cpp - load, judge, draw, write.
#include "app/batch/immagine.h"

#include "app/batch/dati.h"
#include "app/batch/piattaforma_batch.h"
#include "app/muto/ospite_muto.h"
#include "core/file.h"
#include "core/testo.h"
#include "model/stato.h"
#include "panels/lavoro_finestre.h"
#include "results/immagine.h"

bool UscitaImmagineAmmessa() {
  const std::string& u = ospite.opzioni.argomenti[1];
  return u.size() > 4 && UgualeSenzaMaiuscole(std::string_view(u).substr(u.size() - 4), ".svg");
}

static bool Giudica(NodoGiudicato& n) {
  if (!CaricaMuto(n.percorso)) {
    NonCaricato(n);
    return false;
  }
  if (ospite.opzioni.metodo >= 0) ScegliMetodoMuto(ospite.opzioni.metodo);
  GiudicaMuto(n, lavoro);
  return n.lavoro != nullptr;
}

int ComandoImmagine() {
  ospite.dati = true;
  const Opzioni& o = ospite.opzioni;
  if (!AvviaPerDati()) return 2;
  NodoGiudicato n;
  n.percorso = o.argomenti[0];
  if (!Giudica(n)) {
    Errore(n.percorso + ": " + n.motivo);
    return 2;
  }
  const int s = o.sestetto > 0 ? o.sestetto : SestettoGovernante(lavoro);
  if (s < 1 || s > nodo.NumSoll) {
    Errore(n.percorso + ": " +
           (nodo.NumSoll == 0 ? "nessun sestetto" : "il sestetto " + std::to_string(s) + " non c'è, sono " + std::to_string(nodo.NumSoll)));
    return 2;
  }
  if (SostituisciByte(o.argomenti[1], InSvg(ImmagineSestetto(lavoro, s)))) return 0;
  Errore(o.argomenti[1] + ": file non scritto");
  return 2;
}
