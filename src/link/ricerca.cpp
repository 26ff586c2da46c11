// link/ricerca.cpp - search tools and bar selection.
#include "link/ricerca.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "link/struttura.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr const char* RISPOSTA = "\\SondaOut.txt";

static void ScriviDomanda(const std::string& percorso, std::initializer_list<std::string> righe, const char* titoloErrore) {
  FileScrittura f;
  if (ApriScrittura(f, percorso)) {
    for (const std::string& r : righe) ScriviRiga(f, r);
    if (ChiudiScrittura(f)) return;
  }
  Messaggio("Impossibile scrivere il file di ingresso. Specificare l'elemento da selezionare", titoloErrore, Icona::Nessuna);
}

static bool EseguiRicerca(const std::string& programma, const std::string& seguito) {
  if (piattaforma.esegui(suite.DirProgra + programma, "|Diroot=" + suite.DirRoot + "|" + seguito)) return true;
  Messaggio("Problemi con l'apertura dell'applicazione di ricerca", "Errore", Icona::Critica);
  return false;
}

void CercaElemento(const std::string& titolo, std::string& campo, int tipo, bool primoSolo, const std::string& lavoro) {
  if (lavoro.find_first_of("/\\") != std::string::npos || Contiene(lavoro, "..")) return;  // a neighbour of this job, nothing else
  std::string cartella = suite.DirLavoro;
  if (!lavoro.empty())
    cartella = PrimiCaratteri(cartella, NumCaratteri(cartella) - std::min<std::size_t>(6, NumCaratteri(cartella))) + lavoro;
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
  LeggiValore(f, r.tipo);  // two kinds: the last one stands
  LeggiValore(f, r.tipo);
  LeggiValore(f, r.nodo);
  LeggiValore(f, primo);
  LeggiValore(f, r.elemento);
  LeggiRiga(f, r.nome1);
  LeggiRiga(f, r.nome2);
  return r;
}

constexpr std::int32_t NESSUNA = 0;  // bars are numbered from 1

// Number of each node asked for, by its name: in the selection a node goes by its last value, its bars' ends by the first. Of two with one
// name the last.
static std::unordered_map<double, double> NodiPerNome(LettoreStruttura& l, std::span<const std::int16_t> nomi) {
  const std::unordered_set<double> chiesti(nomi.begin(), nomi.end());
  std::unordered_map<double, double> nodi;
  InizioBlocco(l);
  for (NodoStruttura n; ProssimoNodo(l, n);)
    if (chiesti.contains(n.v[3])) nodi[n.v[3]] = n.v[0];
  return nodi;
}

static bool Passa(const AstaStruttura& a, const FiltroAste& filtro) {
  if (a.numero < 1) return false;
  if (a.colore < 0 || a.colore > 9 || !filtro.colori[a.colore]) return false;
  if (a.tipoLinea < 0 || a.tipoLinea > 4 || !filtro.linee[a.tipoLinea]) return false;
  return filtro.tuttiNomi || (a.numero >= filtro.nomi[1] && a.numero <= filtro.nomi[2]);
}

// The bar of each of these nodes, by the node's number.
static std::unordered_map<double, std::int32_t> PrimeAste(LettoreStruttura& l, const FiltroAste& filtro,
                                                          const std::unordered_map<double, double>& nodi) {
  std::unordered_map<double, std::int32_t> prime;
  for (const auto& [nome, numero] : nodi) prime.emplace(numero, NESSUNA);
  InizioBlocco(l);
  for (AstaStruttura a; ProssimaAsta(l, a);) {
    if (!Passa(a, filtro)) continue;
    for (const std::int32_t estremo : {a.nodo1, a.nodo2})
      if (const auto p = prime.find(estremo); p != prime.end() && p->second == NESSUNA) p->second = a.numero;
  }
  return prime;
}

void CercaAste(std::span<const std::int16_t> nodi, const FiltroAste& filtro, std::string& lista) {
  if (nodi.empty()) return;
  LettoreStruttura l;
  const std::string percorso = suite.DirLavoro + "\\struttur.str";
  if (!ApriStruttura(l, "\\struttur.str", PrimoBlocco::Righe)) {
    Messaggio("Errore: file " + percorso + " errato o mancante.", "ERRORE", Icona::Esclamazione);
    return;
  }
  const auto perNome = NodiPerNome(l, nodi);
  const auto prime = PrimeAste(l, filtro, perNome);
  for (std::size_t k = 0; k < nodi.size(); ++k) {
    if (k > 0 && l.vecchia) AvvisaVersione();  // each node says it anew
    const auto numero = perNome.find(nodi[k]);
    if (numero == perNome.end()) continue;
    const std::int32_t asta = prime.at(numero->second);
    if (asta == NESSUNA) {
      Messaggio("Non esiste nessuna asta corrispondente alle caratteristiche selezionate che concorra nel nodo " + std::to_string(nodi[k]),
                TitoloProg, Icona::Esclamazione);
      return;
    }
    lista += std::to_string(asta) + ",";
  }
}
