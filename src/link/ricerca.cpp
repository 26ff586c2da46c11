// link/ricerca.cpp - search tools and bar selection.
#include "link/ricerca.h"

#include <algorithm>

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "link/struttura.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

constexpr const char* RISPOSTA = "\\SondaOut.txt";

void ScriviDomanda(const std::string& percorso, std::initializer_list<std::string> righe, const char* titoloErrore) {
  FileScrittura f;
  if (ApriScrittura(f, percorso)) {
    for (const std::string& r : righe) ScriviRiga(f, r);
    if (ChiudiScrittura(f)) return;
  }
  Messaggio("Impossibile scrivere il file di ingresso. Specificare l'elemento da selezionare", titoloErrore, Icona::Nessuna);
}

bool EseguiRicerca(const std::string& programma, const std::string& seguito) {
  if (piattaforma.esegui(suite.DirProgra + programma + " |Diroot=" + suite.DirRoot + "|" + seguito)) return true;
  Messaggio("Problemi con l'apertura dell'applicazione di ricerca", "Errore", Icona::Critica);
  return false;
}

}  // namespace

void CercaElemento(const std::string& titolo, std::string& campo, int tipo, bool primoSolo, const std::string& lavoro) {
  if (lavoro.find_first_of("/\\") != std::string::npos || Contiene(lavoro, "..")) return;   // a neighbour of this job, nothing else
  std::string cartella = suite.DirLavoro;
  if (!lavoro.empty()) cartella = PrimiCaratteri(cartella, NumCaratteri(cartella) - std::min<std::size_t>(6, NumCaratteri(cartella))) + lavoro;
  EliminaFile(cartella + RISPOSTA);
  ScriviDomanda(cartella + "\\SondaIn.txt", {std::string(Rifila(titolo)), std::string(Rifila(campo)), std::to_string(tipo)}, "ATTENZIONE!");
  if (!EseguiRicerca("\\Sonda.exe", lavoro.empty() ? "" : " |Lavoro=" + std::string(Rifila(lavoro)) + "|")) return;
  FileLettura f;
  std::string riga;
  if (!ApriLettura(f, cartella + RISPOSTA) || !LeggiRiga(f, riga)) return;
  if (primoSolo) riga = riga.substr(0, riga.find_first_of(",-"));
  if (!riga.empty()) campo = std::string(Rifila(riga));
}

NodoCercato CercaNodi(const std::string& titolo) {
  NodoCercato r;
  EliminaFile(suite.DirLavoro + RISPOSTA);
  ScriviDomanda(suite.DirLavoro + "\\SondaNIn.txt", {std::string(Rifila(titolo)), "3", "1", "C Colonna"}, "ATTENZIONE");
  if (!EseguiRicerca("\\SondaNod.exe", "")) return r;
  FileLettura f;
  if (!ApriLettura(f, suite.DirLavoro + RISPOSTA)) return r;
  r.risposta = true;
  std::int16_t primo = 0;
  LeggiValore(f, r.tipo);                    // two kinds: the last one stands
  LeggiValore(f, r.tipo);
  LeggiValore(f, r.nodo);
  LeggiValore(f, primo);
  LeggiValore(f, r.elemento);
  LeggiRiga(f, r.nome1);
  LeggiRiga(f, r.nome2);
  return r;
}

bool CercaAsta(std::int16_t nodoCercato, const FiltroAste& filtro, std::string& lista) {
  LettoreStruttura l;
  const std::string percorso = suite.DirLavoro + "\\struttur.str";
  if (!ApriStruttura(l, "\\struttur.str", PrimoBlocco::Righe)) {
    Messaggio("Errore: file " + percorso + " errato o mancante.", "ERRORE", Icona::Esclamazione);
    return false;
  }
  double indice = 0;
  bool presente = false;
  InizioBlocco(l);
  for (NodoStruttura n; ProssimoNodo(l, n);) {
    if (n.v[3] != nodoCercato) continue;     // here a node goes by its last value, its ends by the first
    indice = n.v[0];
    presente = true;
  }
  if (!presente) return true;
  InizioBlocco(l);
  for (AstaStruttura a; ProssimaAsta(l, a);) {
    if ((a.nodo1 != indice && a.nodo2 != indice) || a.numero < 1) continue;
    if (a.colore < 0 || a.colore > 9 || !filtro.colori[a.colore]) continue;
    if (a.tipoLinea < 0 || a.tipoLinea > 4 || !filtro.linee[a.tipoLinea]) continue;
    if (!filtro.tuttiNomi && (a.numero < filtro.nomi[1] || a.numero > filtro.nomi[2])) continue;
    lista += std::to_string(a.numero) + ",";
    return true;
  }
  Messaggio("Non esiste nessuna asta corrispondente alle caratteristiche selezionate che concorra nel nodo " + std::to_string(nodoCercato), TitoloProg,
            Icona::Esclamazione);
  return false;
}
