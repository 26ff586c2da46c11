// link/liste.cpp - parser of number lists.
#include "link/liste.h"

#include <utility>
#include <vector>

#include "core/piattaforma.h"
#include "core/testo.h"

constexpr int MASSIMO = 32767;

// A run of digits at i; false where there is none or it does not fit 16 bits.
static bool Numero(std::string_view t, std::size_t& i, int& n) {
  const std::size_t da = i;
  for (n = 0; i < t.size() && t[i] >= '0' && t[i] <= '9'; ++i) {
    n = n * 10 + (t[i] - '0');
    if (n > MASSIMO) return false;
  }
  return i > da;
}

static bool Analizza(std::string_view t, std::vector<std::pair<int, int>>& campi) {
  for (std::size_t i = 0;;) {
    int a = 0, b = 0;
    if (!Numero(t, i, a)) return false;
    b = a;
    if (i < t.size() && t[i] == '-' && !Numero(t, ++i, b)) return false;
    campi.emplace_back(a, b);
    if (i == t.size()) return true;
    if (t[i++] != ',') return false;
  }
}

bool LeggiLista(std::string_view testo, std::int16_t* lista, int limite, std::int16_t& conteggio, bool& troppi) {
  conteggio = 0;
  std::vector<std::pair<int, int>> campi;
  if (!Analizza(Rifila(testo), campi)) {
    Messaggio("Inserimento dati errato", "ERRORE", Icona::Esclamazione);
    return false;
  }
  for (const auto& [a, b] : campi) {
    for (int n = a; n <= b; ++n) {
      if (conteggio == limite) {
        troppi = true;
        return true;
      }
      lista[++conteggio] = static_cast<std::int16_t>(n);
    }
  }
  return true;
}
