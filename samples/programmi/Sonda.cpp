// samples/programmi/Sonda.cpp - stand-in for the suite's search of an element.
// Called    Sonda "|Diroot=ROOT|" or "|Diroot=ROOT| |Lavoro=NAME|"
// Reads     SondaIn.txt in the job's folder: title, the field's present text, kind (1 nodes, else bars).
// Writes    SondaOut.txt there, one line: the field's new text.
// Answer    QB07_SONDA, or the first line of sonda_risposta.txt in the job's folder; an empty one writes an empty line, "annulla" nothing.
//           Without an answer it adds to the field's list the next element of struttur.str: the lowest number above all in the list. With
//           none left the list goes back as it came.
#include "modello.h"

// The largest number in a list like "1,2,5-9"; 0 if there is none.
static int Ultimo(const std::string& lista) {
  int massimo = 0;
  for (std::size_t i = 0; i < lista.size(); ++i)
    if (lista[i] >= '0' && lista[i] <= '9' && (i == 0 || lista[i - 1] < '0' || lista[i - 1] > '9'))
      massimo = std::max(massimo, Intero(std::string_view(lista).substr(i)));
  return massimo;
}

static std::string Aggiungi(const std::string& lista, const std::vector<int>& numeri) {
  int prossimo = 0;
  for (const int n : numeri)
    if (n > Ultimo(lista) && (prossimo == 0 || n < prossimo)) prossimo = n;
  if (prossimo == 0) return lista;
  return lista + (lista.empty() ? "" : ",") + std::to_string(prossimo);
}

int main(int quanti, char** testi) {
  const auto cartella = CartellaLavoro(Argomento(quanti, testi));
  if (!cartella) return UsoErrato;
  const auto domanda = LeggiRighe(*cartella + "\\SondaIn.txt");
  if (!domanda || domanda->size() != 3) return NonFatto;
  const std::string uscita = *cartella + "\\SondaOut.txt";
  if (const auto risposta = Risposta("QB07_SONDA", *cartella + "\\sonda_risposta.txt")) {
    if (*risposta == ANNULLA) return Fatto;
    return ScriviRighe(uscita, {*risposta}) ? Fatto : NonFatto;
  }
  const auto modello = LeggiModello(*cartella + "\\struttur.str");
  if (!modello) return NonFatto;
  std::vector<int> numeri;
  if ((*domanda)[2] == "1")
    for (const NodoModello& n : modello->nodi) numeri.push_back(n.numero);
  else
    for (const AstaModello& a : modello->aste) numeri.push_back(a.numero);
  return ScriviRighe(uscita, {Aggiungi((*domanda)[1], numeri)}) ? Fatto : NonFatto;
}
