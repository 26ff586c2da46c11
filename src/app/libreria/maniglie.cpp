// app/libreria/maniglie.cpp - the registry, the texts of the errors, texts in and out.
#include "app/libreria/maniglie.h"

#include <cstring>
#include <iterator>
#include <mutex>

// clang-format off
static constexpr const char* TESTI[] = {
  "nessun errore",                               // by code
  "puntatore nullo",
  "maniglia non valida",
  "indice fuori dai limiti",
  "numero non valido",
  "testo non valido",
  "nome sconosciuto",
  "il valore è di un altro tipo",
  "scelta inesistente",
  "la suite non si apre",
  "il nodo non si carica",
  "dato non presente",
  "spazio insufficiente",
  "verifica fermata",
  "memoria esaurita",
  "errore interno",
};
// clang-format on
static_assert(std::size(TESTI) == QB07_INTERNO + 1);

const char* TestoErrore(int codice) {
  return codice >= 0 && codice < static_cast<int>(std::size(TESTI)) ? TESTI[codice] : "codice sconosciuto";
}

// Without memory for its text, an error has its code alone.
int Rifiuta(int codice, std::string_view cosa) {
  try {
    ultimoErrore = TESTI[codice];
    if (!cosa.empty()) ultimoErrore.append(": ").append(cosa);
  } catch (...) {
    ultimoErrore.clear();
  }
  return codice;
}

int Rifiuta(int codice, const char* nome, std::string_view cosa) {
  try {
    return Rifiuta(codice, std::string(nome).append(": ").append(cosa));
  } catch (...) {
    return Rifiuta(codice);
  }
}

// ---- handles ----

constexpr std::uintptr_t PASSO = 16;  // looks like an aligned address

std::uintptr_t NuovaManiglia(GenereManiglia genere, std::shared_ptr<void> oggetto) {
  const std::unique_lock chiusa(registro.serratura);
  const std::uintptr_t m = registro.prossima;
  registro.voci.emplace(m, VoceRegistro{genere, std::move(oggetto)});
  registro.prossima += PASSO;
  return m;
}

std::shared_ptr<void> TrovaManiglia(GenereManiglia genere, const void* maniglia) {
  const std::shared_lock chiusa(registro.serratura);
  const auto v = registro.voci.find(reinterpret_cast<std::uintptr_t>(maniglia));
  if (v != registro.voci.end() && v->second.genere == genere) return v->second.oggetto;
  Rifiuta(QB07_MANIGLIA, maniglia == nullptr ? "nulla" : "");
  return nullptr;
}

// What it stands for goes when the last call that uses it has ended, outside the lock.
int LiberaManiglia(GenereManiglia genere, const void* maniglia) {
  if (maniglia == nullptr) return QB07_OK;
  std::shared_ptr<void> oggetto;
  const std::unique_lock chiusa(registro.serratura);
  const auto v = registro.voci.find(reinterpret_cast<std::uintptr_t>(maniglia));
  if (v == registro.voci.end() || v->second.genere != genere) return Rifiuta(QB07_MANIGLIA);
  oggetto.swap(v->second.oggetto);
  registro.voci.erase(v);
  return QB07_OK;
}

// ---- texts ----

// Bytes of the well-formed character at the front of t, 0: none (overlong, surrogate, cut, beyond the last plane).
static std::size_t UnCarattere(std::string_view t) {
  const auto byte = [&t](std::size_t k) { return static_cast<unsigned char>(t[k]); };
  const unsigned a = byte(0);
  if (a < 0x80) return 1;
  const std::size_t n = a >= 0xC2 && a <= 0xDF ? 2 : (a & 0xF0) == 0xE0 ? 3 : a >= 0xF0 && a <= 0xF4 ? 4 : 0;
  if (n == 0 || t.size() < n) return 0;
  for (std::size_t k = 1; k < n; ++k)
    if ((byte(k) & 0xC0) != 0x80) return 0;
  const unsigned b = byte(1);
  if ((a == 0xE0 && b < 0xA0) || (a == 0xED && b >= 0xA0) || (a == 0xF0 && b < 0x90) || (a == 0xF4 && b >= 0x90)) return 0;
  return n;
}

int ControllaTesto(const char* testo, const char* cosa, bool ancheVuoto) {
  if (testo == nullptr) return Rifiuta(QB07_NULLO, cosa);
  const std::size_t lunghezza = strnlen(testo, QB07_MAX_TESTO + 1);
  if (lunghezza > QB07_MAX_TESTO) return Rifiuta(QB07_TESTO, cosa, "troppo lungo");
  if (lunghezza == 0 && !ancheVuoto) return Rifiuta(QB07_TESTO, cosa, "vuoto");
  std::string_view t(testo, lunghezza);
  while (!t.empty()) {
    const std::size_t n = UnCarattere(t);
    if (n == 0) return Rifiuta(QB07_TESTO, cosa, "non è UTF-8");
    const unsigned char a = static_cast<unsigned char>(t[0]);
    if (a < 0x20 || a == 0x7F) return Rifiuta(QB07_TESTO, cosa, "contiene un carattere di controllo");
    t.remove_prefix(n);
  }
  return QB07_OK;
}

int Copia(std::string_view testo, char* dove, std::size_t spazio, std::size_t* serve) {
  if (dove == nullptr && spazio > 0) return Rifiuta(QB07_NULLO, "dove");
  if (serve != nullptr) *serve = testo.size() + 1;
  if (dove == nullptr) return serve != nullptr ? static_cast<int>(QB07_OK) : Rifiuta(QB07_NULLO, "dove");
  if (spazio > testo.size()) {
    std::memcpy(dove, testo.data(), testo.size());
    dove[testo.size()] = '\0';
    return QB07_OK;
  }
  if (spazio > 0) dove[0] = '\0';
  return Rifiuta(QB07_SPAZIO);
}
