// core/nomi_file.cpp - file names, titles and names of the reports.
#include "core/nomi_file.h"

#include "core/testo.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {
struct Coppia {
  const char* chiave;
  const char* testo;
};
}  // namespace

constexpr Coppia PREFISSI[] = {{"TA", "\\RelTA_"}, {"SLU", "\\RelSLU_"}};
constexpr Coppia SUFFISSI[] = {{"GRB", ".grb"}, {"DIS", ".dis"}, {"DXF", ".dxf"}};

template <std::size_t N>
static const char* Cerca(const Coppia (&tavola)[N], std::string_view chiave) {
  for (const Coppia& c : tavola)
    if (chiave == c.chiave) return c.testo;
  return "";
}

static std::string CodiceENodo(std::string_view codice) { return std::string(Rifila(codice)) + "_" + std::string(Rifila(nodo.NomeNodo)); }

std::string NomeFileRelazione(std::string_view metodo, std::string_view codice) {
  return suite.DirLavoro + Cerca(PREFISSI, metodo) + CodiceENodo(codice) + ".txt";
}

std::string NomeFileDisegno(std::string_view codice, std::string_view tipo) {
  return suite.DirLavoro + "\\" + CodiceENodo(codice) + Cerca(SUFFISSI, tipo);
}

std::string TitoloFrameSoll() { return "n° " + std::to_string(nodo.NumSoll) + " [" + suite.UnitaForze + ", " + suite.UnitaMomenti + "]"; }

std::string ElencoNodi() {
  std::string t;
  for (int i = 1; i <= nodo.NumNodiStr; ++i) t.append(i == 1 ? ": " : ",").append(std::to_string(nodo.NodiStr[i]));
  return t;
}

std::string TitoloNodi() { return "VERIFICA TENSIONALE NODI" + ElencoNodi(); }

std::string NomeProfiloPerRelazione(std::string_view nome) {
  std::string r, parola;
  bool prima = true;
  for (char c : nome) {
    if (c != ' ') {
      parola += c;
      continue;
    }
    if (parola.empty()) continue;
    r += parola;
    if (prima) r += ' ';
    prima = false;
    parola.clear();
  }
  return r;
}

std::string TestoSuUnaRiga(std::string_view testo) {
  std::string r;
  r.reserve(testo.size());
  for (char c : testo)
    if (c == '\r') r += ' ';
    else if (c != '\n') r += c;
  return r;
}
