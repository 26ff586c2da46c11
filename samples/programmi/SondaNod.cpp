// samples/programmi/SondaNod.cpp - stand-in for the suite's search of a joint in the structure.
// Called    SondaNod "|Diroot=ROOT|"
// Reads     SondaNIn.txt in the job's folder: title, "3", "1", "C Colonna" (one item of a list, by its letter and name).
// Writes    SondaOut.txt there: "kind,kind"; the node's number; "1,bar", the item and the bar chosen for it; two names, the node's text
//           and the item's.
// Answer    QB07_SONDANOD, or the first line of sondanod_risposta.txt in the job's folder: "node", "node,kind" or "node,kind,bar";
//           "annulla" or an empty one writes nothing. Left out: node, the first one of struttur.str at the foot or head of an upright bar;
//           kind 2; bar, the first upright one of the file at that node (0 if there is none).
#include "modello.h"

constexpr int TIPO_PREDEFINITO = 2;

static const NodoModello* Trova(const Modello& m, int numero) {
  for (const NodoModello& n : m.nodi)
    if (n.numero == numero) return &n;
  return nullptr;
}

// First upright bar at a node: both ends have the same x and y.
static int Colonna(const Modello& m, int nodo) {
  for (const AstaModello& a : m.aste) {
    const NodoModello *i = Trova(m, a.nodo1), *j = Trova(m, a.nodo2);
    if ((a.nodo1 == nodo || a.nodo2 == nodo) && i && j && i->x == j->x && i->y == j->y) return a.numero;
  }
  return 0;
}

int main(int quanti, char** testi) {
  const auto cartella = CartellaLavoro(Argomento(quanti, testi));
  if (!cartella) return UsoErrato;
  const auto domanda = LeggiRighe(*cartella + "\\SondaNIn.txt");
  if (!domanda || domanda->size() != 4) return NonFatto;
  const auto risposta = Risposta("QB07_SONDANOD", *cartella + "\\sondanod_risposta.txt");
  if (risposta && (*risposta == ANNULLA || risposta->empty())) return Fatto;
  const auto modello = LeggiModello(*cartella + "\\struttur.str");
  if (!modello) return NonFatto;
  const std::vector<std::string> scelte = risposta ? Campi(*risposta) : std::vector<std::string>();
  int nodo = scelte.empty() ? 0 : Intero(scelte[0]);
  for (std::size_t i = 0; scelte.empty() && nodo == 0 && i < modello->nodi.size(); ++i)
    if (Colonna(*modello, modello->nodi[i].numero) > 0) nodo = modello->nodi[i].numero;
  const int tipo = scelte.size() > 1 ? Intero(scelte[1]) : TIPO_PREDEFINITO;
  const int asta = scelte.size() > 2 ? Intero(scelte[2]) : Colonna(*modello, nodo);
  const NodoModello* n = Trova(*modello, nodo);
  return ScriviRighe(*cartella + "\\SondaOut.txt", {std::to_string(tipo) + "," + std::to_string(tipo), std::to_string(nodo),
                                                    "1," + std::to_string(asta), n ? n->testo : "", (*domanda)[3]})
           ? Fatto
           : NonFatto;
}
