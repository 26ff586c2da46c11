// samples/programmi/modello.h - nodes and bars of a structure file, as far as the search tools look at them.
#pragma once
#include "comune.h"

struct NodoModello {
  int numero = 0;
  double x = 0, y = 0;
  std::string testo;
};
struct AstaModello {
  int nodo1 = 0, nodo2 = 0, numero = 0;
};
struct Modello {
  std::vector<NodoModello> nodi;
  std::vector<AstaModello> aste;
};

inline int Intero(std::string_view t) { return static_cast<int>(std::strtol(std::string(t).c_str(), nullptr, 10)); }

inline std::vector<std::string> Campi(const std::string& riga) {  // parted by commas
  std::vector<std::string> campi;
  for (std::size_t i = 0; i <= riga.size();) {
    const std::size_t fine = std::min(riga.find(',', i), riga.size());
    campi.push_back(Rifila(std::string_view(riga).substr(i, fine - i)));
    i = fine + 1;
  }
  return campi;
}

// Blocks of "count, records": three values a record; nodes "number, x, y, name, text"; bars of two lines. What the file lacks is left out.
inline std::optional<Modello> LeggiModello(const std::string& percorso) {
  const auto righe = LeggiRighe(percorso);
  if (!righe) return std::nullopt;
  Modello m;
  std::size_t p = 1;  // behind the version line
  const auto prendi = [&] { return p < righe->size() ? (*righe)[p++] : std::string(); };
  for (int n = Intero(prendi()); n > 0 && p < righe->size(); --n) prendi();
  for (int n = Intero(prendi()); n > 0 && p < righe->size(); --n) {
    auto c = Campi(prendi());
    c.resize(5);
    m.nodi.push_back({Intero(c[0]), std::strtod(c[1].c_str(), nullptr), std::strtod(c[2].c_str(), nullptr), c[4]});
  }
  for (int n = Intero(prendi()); n > 0 && p < righe->size(); --n) {
    auto c = Campi(prendi());
    c.resize(2);
    m.aste.push_back({Intero(c[0]), Intero(c[1]), Intero(prendi())});
  }
  return m;
}
