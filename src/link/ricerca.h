// link/ricerca.h - the suite's search tools and the bars that meet at a node: pointing at something in the structure.
// Files     job folder: SondaIn.txt / SondaNIn.txt (asked), SondaOut.txt (the answer; none: the user cancelled).
#pragma once
#include <cstdint>
#include <span>
#include <string>
#include "model/stato.h"

constexpr int ELEMENTO_NODO = 1;  // kind of element that the search tool is asked for

// campo in and out: the field's text, replaced by the answer. primoSolo: only the first element of the answer. lavoro: six characters, a search
// in another job's folder; empty: this one's.
void CercaElemento(const std::string& titolo, std::string& campo, int tipo, bool primoSolo = false, const std::string& lavoro = {});

struct NodoCercato {
  bool risposta = false;  // false: cancelled, or a box was shown
  std::int16_t tipo = 0;  // kind of the search
  std::int16_t nodo = 0, elemento = 0;
  std::string nome1, nome2;
};
NodoCercato CercaNodi(const std::string& titolo);

// Filter of the selection panel, bounds included; colours 0..9, line types 0..4.
struct FiltroAste {
  bool colori[10] = {}, linee[5] = {};
  bool tuttiNomi = true;
  std::int16_t nomi[2 + 1] = {};  // [1], [2]
};
// Of each node in turn the first bar in the file's order that meets there and passes the filter: appended to lista with a comma. The
// structure is read once for all of them. An unknown node adds nothing. A missing file, or a node of which no bar passes, shows its box
// and ends the search there.
void CercaAste(std::span<const std::int16_t> nodi, const FiltroAste& filtro, std::string& lista);
