// tests/corredo/casa.cpp - a reader of C++ that knows comments, literals and braces: enough for includes and namespace scope.
#include "corredo/casa.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>

namespace {

// From the ground upward; rooms of one storey do not know each other.
struct Stanza {
  const char* nome;
  int piano;
};
// clang-format off
constexpr Stanza STANZE[] = {
  {"model", 0}, {"core", 1}, {"engine", 2}, {"results", 3}, {"reports", 3}, {"drawing", 3}, {"link", 3}, {"materials", 3}, {"panels", 4}, {"app", 5},
};
// clang-format on

// What the engine must not reach: rooms above it, boxes, the status of a command's steps, the records of what the user sees.
constexpr std::string_view FUORI_PORTATA[] = {
  "panels/", "reports/", "results/", "app/", "drawing/", "link/", "materials/", "core/piattaforma.h", "core/aritmetica.h", "model/stato.h",
};

// Each names who told the author instead of the reason. Cut in two, so that this file does not hold them.
const std::string PAROLE[] = {"deliber"
                              "ate",
                              "as "
                              "told",
                              "the rules "
                              "say",
                              "the text "
                              "says"};

int Piano(const std::string& file) {
  for (const Stanza& k : STANZE)
    if (file.starts_with(std::string(k.nome) + "/")) return k.piano;
  return -1;
}

std::string NomeStanza(const std::string& file) { return file.substr(0, file.find('/')); }

// The includes in quotes, as paths within src; those of made files (ui_*.h) are left out.
std::vector<std::string> Inclusi(const Sorgenti& s, const std::string& testo) {
  static const std::regex INCLUDE("(?:^|\n)[ \t]*#[ \t]*include[ \t]*\"([^\"]+)\"");
  std::vector<std::string> r;
  for (std::sregex_iterator i(testo.begin(), testo.end(), INCLUDE), fine; i != fine; ++i)
    if (s.contains((*i)[1])) r.push_back((*i)[1]);
  return r;
}

// Comments, preprocessor lines and the insides of literals go.
std::string SenzaCommenti(const std::string& t) {
  std::string r;
  for (std::size_t i = 0; i < t.size(); ++i) {
    const bool inizioRiga = r.find_last_not_of(" \t") == std::string::npos || r[r.find_last_not_of(" \t")] == '\n';
    if (t.compare(i, 2, "//") == 0 || (t[i] == '#' && inizioRiga)) {
      while (i < t.size() && t[i] != '\n') i += t[i] == '\\' && i + 1 < t.size() ? 2 : 1;
      r += '\n';
    } else if (t.compare(i, 2, "/*") == 0) {
      i = t.find("*/", i);
      if (i == std::string::npos) return r;
      ++i;
    } else if (t.compare(i, 3, "R\"(") == 0) {
      i = t.find(")\"", i);
      if (i == std::string::npos) return r;
      ++i;
      r += "\"\"";
    } else if (t[i] == '"' || (t[i] == '\'' && (r.empty() || !std::isalnum(static_cast<unsigned char>(r.back()))))) {
      const char virgoletta = t[i];
      r += virgoletta;
      for (++i; i < t.size() && t[i] != virgoletta; ++i)
        if (t[i] == '\\') ++i;
      r += virgoletta;
    } else {
      r += t[i];
    }
  }
  return r;
}

std::string UnaRiga(const std::string& t) {
  std::istringstream in(t);
  std::string parola, r;
  while (in >> parola) r += (r.empty() ? "" : " ") + parola;
  return r;
}

// A declaration at namespace scope: what stands outside of its braces (each pair as {}), and what in them.
struct Dichiarazione {
  std::string testo, corpo;
  bool anonima = false;  // in an anonymous namespace
};

bool EFunzione(const std::string& t) {
  const std::size_t p = t.find('('), u = t.find('=');
  return p != std::string::npos && (u == std::string::npos || p < u) && t.compare(p, 2, "(*") != 0;
}

std::vector<Dichiarazione> Dichiarazioni(const std::string& sorgente) {
  const std::string t = SenzaCommenti(sorgente);
  std::vector<Dichiarazione> r;
  std::vector<bool> spazi;  // namespaces around, true the anonymous ones
  Dichiarazione d;
  const auto chiudi = [&] {
    d.testo = UnaRiga(d.testo);
    d.anonima = std::find(spazi.begin(), spazi.end(), true) != spazi.end();
    if (!d.testo.empty()) r.push_back(d);
    d = {};
  };
  for (std::size_t i = 0; i < t.size(); ++i) {
    const std::string testa = t[i] == '{' ? UnaRiga(d.testo) : "";
    if (t[i] == '{' && (testa.starts_with("namespace") || testa.starts_with("extern \"\""))) {
      spazi.push_back(testa == "namespace");
      d = {};
    } else if (t[i] == '{') {
      int livello = 0;
      const std::size_t da = i;
      do livello += t[i] == '{' ? 1 : t[i] == '}' ? -1 : 0;
      while (livello > 0 && ++i < t.size());
      d.corpo += t.substr(da, i - da);
      d.testo += "{}";
      if (EFunzione(testa)) chiudi();
    } else if (t[i] == '}') {
      if (!spazi.empty()) spazi.pop_back();
      d = {};
    } else if (t[i] == ';') {
      chiudi();
    } else {
      d.testo += t[i];
    }
  }
  return r;
}

// Declared type, empty: none. `struct X;` declares without being one.
std::string Tipo(const Dichiarazione& d) {
  static const std::regex TIPO(
    "(?:template ?<.*> ?)?(?:struct|class|union|enum class|enum) (?:alignas\\(.*\\) )?(\\w+)(?: final)?(?: ?:[^{]*)? ?\\{.*");
  std::smatch m;
  return std::regex_match(d.testo, m, TIPO) ? m[1].str() : "";
}

// A variable that can change: no type, function, alias or constant.
bool Mutabile(const Dichiarazione& d) {
  static const std::regex ALTRO("(using|typedef|static_assert|template|friend|extern \"\"|namespace)\\b.*");
  static const std::regex SOLO_TIPO("(struct|class|union|enum)\\b[^{=(]*(\\{\\})?");
  if (std::regex_match(d.testo, ALTRO) || std::regex_match(d.testo, SOLO_TIPO) || EFunzione(d.testo)) return false;
  const std::string prima = d.testo.substr(0, d.testo.find_first_of("={"));
  if (prima.find("constexpr") != std::string::npos) return false;
  const std::size_t stella = prima.find_last_of('*');
  return prima.find("const ", stella == std::string::npos ? 0 : stella) == std::string::npos;
}

bool StaticMutabile(const Dichiarazione& d) {
  static const std::regex STATICA("\\bstatic\\s+(?!const\\b|constexpr\\b)");
  return EFunzione(d.testo) && std::regex_search(d.corpo, STATICA);
}

// One node a header and its source.
std::string Modulo(const std::string& file) { return file.substr(0, file.rfind('.')); }

struct Grafo {
  std::map<std::string, std::set<std::string>> archi;
  std::map<std::string, int> numero, basso;
  std::vector<std::string> pila;
  Rilievi anelli;

  void Visita(const std::string& v) {  // Tarjan's: a component of more than one module is a ring
    const int mio = static_cast<int>(numero.size()) + 1;
    numero[v] = basso[v] = mio;
    pila.push_back(v);
    for (const std::string& w : archi[v]) {
      if (!numero.contains(w)) {
        Visita(w);
        basso[v] = std::min(basso[v], basso[w]);
      } else if (std::find(pila.begin(), pila.end(), w) != pila.end()) {
        basso[v] = std::min(basso[v], numero[w]);
      }
    }
    if (basso[v] != mio) return;
    const auto da = std::find(pila.begin(), pila.end(), v);
    if (pila.end() - da > 1) {
      std::string riga = v + ": ring with";
      for (auto k = da + 1; k != pila.end(); ++k) riga += " " + *k;
      anelli.push_back(riga);
    }
    pila.erase(da, pila.end());
  }
};

}  // namespace

Sorgenti LeggiSorgenti(const std::string& cartella) {
  Sorgenti s;
  for (const auto& voce : std::filesystem::recursive_directory_iterator(cartella)) {
    const std::string estensione = voce.path().extension().string();
    if (estensione != ".h" && estensione != ".cpp") continue;
    std::ifstream f(voce.path(), std::ios::binary);
    s[std::filesystem::relative(voce.path(), cartella).generic_string()].assign(std::istreambuf_iterator<char>(f), {});
  }
  return s;
}

Rilievi FrecceAllaRovescia(const Sorgenti& s) {
  Rilievi r;
  for (const auto& [file, testo] : s) {
    const int piano = Piano(file);
    if (piano < 0) r.push_back(file + ": in no room");
    for (const std::string& i : Inclusi(s, testo))
      if (NomeStanza(i) != NomeStanza(file) && Piano(i) >= piano) r.push_back(file + ": includes " + i);
  }
  return r;
}

Rilievi AnelliDiFile(const Sorgenti& s) {
  Grafo g;
  for (const auto& [file, testo] : s)
    for (const std::string& i : Inclusi(s, testo))
      if (Modulo(i) != Modulo(file)) g.archi[Modulo(file)].insert(Modulo(i));
  for (const auto& [file, testo] : s)
    if (!g.numero.contains(Modulo(file))) g.Visita(Modulo(file));
  return g.anelli;
}

Rilievi PortataDelMotore(const Sorgenti& s) {
  Rilievi r;
  std::vector<std::string> coda;
  std::set<std::string> visti;
  for (const auto& [file, testo] : s)
    if (file.starts_with("engine/")) coda.push_back(file);
  while (!coda.empty()) {
    const std::string file = coda.back();
    coda.pop_back();
    if (!visti.insert(file).second) continue;
    for (const std::string_view f : FUORI_PORTATA)
      if (file.starts_with(f)) r.push_back(file + ": reached from engine");
    for (const Dichiarazione& d : Dichiarazioni(s.at(file))) {
      if (Mutabile(d)) r.push_back(file + ": mutable: " + d.testo);
      if (StaticMutabile(d)) r.push_back(file + ": mutable static in: " + d.testo);
    }
    for (const std::string& i : Inclusi(s, s.at(file))) coda.push_back(i);
  }
  return r;
}

Rilievi TipiDoppi(const Sorgenti& s) {
  struct Luogo {
    std::string file;
    bool anonimo;
  };
  std::map<std::string, std::vector<Luogo>> tipi;
  for (const auto& [file, testo] : s)
    for (const Dichiarazione& d : Dichiarazioni(testo))
      if (const std::string t = Tipo(d); !t.empty()) tipi[t].push_back({file, d.anonima});
  Rilievi r;
  for (const auto& [nome, luoghi] : tipi) {
    const auto aperti = std::count_if(luoghi.begin(), luoghi.end(), [](const Luogo& l) { return !l.anonimo; });
    if (luoghi.size() < 2 || aperti == 0) continue;
    std::string riga = luoghi[0].file + ": " + nome + " also in";
    for (std::size_t k = 1; k < luoghi.size(); ++k) riga += " " + luoghi[k].file;
    r.push_back(riga);
  }
  return r;
}

Rilievi FormaLocale(const Sorgenti& s) {
  static const std::regex ANNUNCIO("(?:struct|class|enum class|enum) (\\w+)(?: ?: ?\\w+)?");
  std::set<std::string> annunciati;
  for (const auto& [file, testo] : s)
    if (file.ends_with(".h"))
      for (const Dichiarazione& d : Dichiarazioni(testo))
        if (std::smatch m; std::regex_match(d.testo, m, ANNUNCIO)) annunciati.insert(m[1]);
  Rilievi r;
  for (const auto& [file, testo] : s) {
    if (!file.ends_with(".cpp")) continue;
    for (const Dichiarazione& d : Dichiarazioni(testo)) {
      const std::string tipo = Tipo(d);
      if (d.anonima && (EFunzione(d.testo) || Mutabile(d) || d.testo.starts_with("const"))) r.push_back(file + ": not static: " + d.testo);
      if (!d.anonima && !tipo.empty() && !annunciati.contains(tipo)) r.push_back(file + ": open type " + tipo);
    }
  }
  return r;
}

Rilievi ParoleVietate(const Sorgenti& s) {
  Rilievi r;
  for (const auto& [file, testo] : s) {
    std::string minuscolo = testo;
    for (char& c : minuscolo) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    for (const std::string& p : PAROLE)
      if (minuscolo.find(p) != std::string::npos) r.push_back(file + ": \"" + p + "\"");
  }
  return r;
}
