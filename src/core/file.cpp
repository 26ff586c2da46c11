// core/file.cpp - paths, the reader of lines and values, text output.
#include "core/file.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace fs = std::filesystem;

constexpr std::size_t MASSIMO_RIGA = 1u << 20;     // a line is cut here
constexpr std::uintmax_t MASSIMO_FILE = 1u << 28;  // no text file of the suite is larger; one that is counts as unreadable

static bool Separa(char c) { return c == '\\' || c == '/'; }
static bool FineRiga(char c) { return c == '\r' || c == '\n'; }

// A system path that stands as it is; false also where the system refuses it (a name too long, a NUL).
static bool Esiste(const std::string& p) {
  std::error_code e;
  return p.find('\0') == std::string::npos && fs::exists(fs::symlink_status(p, e)) && !e;
}

// The entry of a folder that equals nome without regard to case, lowest byte order first; nome itself when there is none.
static std::string ComponenteEsistente(const std::string& cartella, const std::string& nome) {
  if (Esiste(cartella + nome)) return nome;
  const std::string minuscolo = Minuscolo(nome);
  std::string trovato;
  std::error_code e;
  fs::directory_iterator voce(cartella.empty() ? "." : cartella, e);
  for (; !e && voce != fs::directory_iterator(); voce.increment(e)) {
    std::string candidato = voce->path().filename().string();
    if (Minuscolo(candidato) == minuscolo && (trovato.empty() || candidato < trovato)) trovato = std::move(candidato);
  }
  return trovato.empty() ? nome : trovato;
}

static void SaltaFineRiga(FileLettura& f) {
  if (f.pos < f.byte.size() && f.byte[f.pos] == '\r') ++f.pos;
  else if (f.pos < f.byte.size() && f.byte[f.pos] == '\n') {
    ++f.pos;
    return;
  } else return;
  if (f.pos < f.byte.size() && f.byte[f.pos] == '\n') ++f.pos;
}

static bool PassoFallito() {
  passi.fallito = true;
  return false;
}

static bool PuoLeggere(FileLettura& f) { return (f.aperto && !FineFile(f)) || PassoFallito(); }

static void SaltaBlank(FileLettura& f) {
  while (f.pos < f.byte.size() && f.byte[f.pos] == ' ') ++f.pos;
}

// Behind a value: one comma, or the line's end.
static void SaltaDelimitatore(FileLettura& f) {
  if (f.pos < f.byte.size() && f.byte[f.pos] == ',') ++f.pos;
  else SaltaFineRiga(f);
}

static std::string_view TestoNumero(FileLettura& f) {
  SaltaBlank(f);
  const std::size_t da = f.pos;
  while (f.pos < f.byte.size() && f.byte[f.pos] != ',' && f.byte[f.pos] != ' ' && !FineRiga(f.byte[f.pos])) ++f.pos;
  const std::string_view t = std::string_view(f.byte).substr(da, std::min(f.pos - da, MASSIMO_RIGA));
  SaltaBlank(f);
  SaltaDelimitatore(f);
  return t;
}

template <class Intero>
static bool LeggiIntero(FileLettura& f, Intero& v) {
  if (!PuoLeggere(f)) return false;
  double d = 0;
  Intero n = 0;
  if (!Val(TestoNumero(f), d) || !InIntero(d, n)) return PassoFallito();
  v = n;
  return true;
}

namespace {
struct Motivo {
  std::errc errore;
  const char* testo;
};
}  // namespace

// clang-format off
constexpr Motivo MOTIVI[] = {
  { std::errc::no_space_on_device,           "spazio su disco esaurito" },
  { std::errc::file_too_large,               "dimensione massima dei file superata" },
  { std::errc::permission_denied,            "permesso negato" },
  { std::errc::operation_not_permitted,      "permesso negato" },
  { std::errc::read_only_file_system,        "disco di sola lettura" },
  { std::errc::no_such_file_or_directory,    "la cartella o il file dietro il collegamento non esiste" },
  { std::errc::not_a_directory,              "il percorso passa per un file" },
  { std::errc::is_a_directory,               "il nome è di una cartella" },
  { std::errc::not_supported,                "il nome non è di un file" },
  { std::errc::invalid_argument,             "nome non ammesso" },
  { std::errc::filename_too_long,            "nome troppo lungo" },
  { std::errc::too_many_symbolic_link_levels, "troppi collegamenti" },
  { std::errc::too_many_files_open,          "troppi file aperti" },
  { std::errc::too_many_files_open_in_system, "troppi file aperti" },
  { std::errc::io_error,                     "errore del disco" },
};
// clang-format on

// With the system's separators, a run of them as one.
static std::string ComeScritto(std::string_view percorso) {
  std::string sistema;
  for (const char c : percorso)
    if (!Separa(c)) sistema += c;
    else if (sistema.empty() || sistema.back() != '/') sistema += '/';
  return sistema;
}

std::string RisolviPercorso(std::string_view percorso) {
  std::string sistema = ComeScritto(percorso);
  if (Esiste(sistema)) return sistema;  // every component stands as it is written: one question in place of one each
  sistema.clear();
  for (std::size_t i = 0; i < percorso.size();) {
    if (Separa(percorso[i])) {
      if (sistema.empty() || sistema.back() != '/') sistema += '/';
      ++i;
      continue;
    }
    std::size_t j = i;
    while (j < percorso.size() && !Separa(percorso[j])) ++j;
    sistema += ComponenteEsistente(sistema, std::string(percorso.substr(i, j - i)));
    i = j;
  }
  return sistema;
}

bool EsisteFile(std::string_view percorso) {
  std::error_code e;
  const std::string p = RisolviPercorso(percorso);
  return Esiste(p) && fs::is_regular_file(p, e) && !e;
}

bool EliminaFile(std::string_view percorso) {
  std::error_code e;
  return EsisteFile(percorso) && fs::remove(RisolviPercorso(percorso), e) && !e;
}

std::string NomeSenzaEstensione(std::string_view percorso) {
  const std::size_t p = percorso.find_last_of("\\/");
  if (p != std::string_view::npos) percorso.remove_prefix(p + 1);
  return std::string(percorso.substr(0, percorso.find('.')));
}

bool ApriLettura(FileLettura& f, std::string_view percorso) {
  f = {};
  const std::string sistema = RisolviPercorso(percorso);
  std::error_code e;
  if (!Esiste(sistema) || !fs::is_regular_file(sistema, e) || fs::file_size(sistema, e) > MASSIMO_FILE || e) return false;
  std::FILE* file = std::fopen(sistema.c_str(), "rb");
  if (file == nullptr) return false;
  char blocco[1 << 16];
  std::size_t n = 0;
  while ((n = std::fread(blocco, 1, sizeof blocco, file)) > 0) f.byte.append(blocco, n);
  f.aperto = std::ferror(file) == 0;
  std::fclose(file);
  return f.aperto;
}

bool FineFile(const FileLettura& f) { return f.pos >= f.byte.size(); }

bool LeggiRiga(FileLettura& f, std::string& riga) {
  if (!PuoLeggere(f)) return false;
  const std::size_t da = f.pos;
  while (f.pos < f.byte.size() && !FineRiga(f.byte[f.pos])) ++f.pos;
  riga = DaAnsi(std::string_view(f.byte).substr(da, std::min(f.pos - da, MASSIMO_RIGA)));
  SaltaFineRiga(f);
  return true;
}

bool LeggiValore(FileLettura& f, std::string& v) {
  if (!PuoLeggere(f)) return false;
  SaltaBlank(f);
  const bool virgolette = f.pos < f.byte.size() && f.byte[f.pos] == '"';
  if (virgolette) ++f.pos;
  const std::size_t da = f.pos;
  const auto fine = [&](char c) { return FineRiga(c) || c == (virgolette ? '"' : ','); };
  while (f.pos < f.byte.size() && !fine(f.byte[f.pos])) ++f.pos;
  v = DaAnsi(std::string_view(f.byte).substr(da, std::min(f.pos - da, MASSIMO_RIGA)));
  if (virgolette) {
    if (f.pos < f.byte.size() && f.byte[f.pos] == '"') ++f.pos;
    SaltaBlank(f);
  }
  SaltaDelimitatore(f);
  return true;
}

bool LeggiValore(FileLettura& f, double& v) {
  if (!PuoLeggere(f)) return false;
  return Val(TestoNumero(f), v) || PassoFallito();
}

bool LeggiValore(FileLettura& f, std::int16_t& v) { return LeggiIntero(f, v); }
bool LeggiValore(FileLettura& f, std::int32_t& v) { return LeggiIntero(f, v); }

bool ApriScrittura(FileScrittura& f, std::string_view percorso, Tenuta tenuta) {
  f.testo.clear();
  f.tenuta = tenuta;
  f.sistema = RisolviPercorso(percorso);
  f.errore = ControllaPosto(f.sistema);
  if (f.errore != std::errc{}) f.sistema.clear();
  return f.errore == std::errc{};
}

bool ChiudiScrittura(FileScrittura& f) {
  if (f.sistema.empty()) return false;
  if (!SoloAscii(f.testo)) f.testo = InAnsi(f.testo);
  f.errore = MettiAlPosto(f.sistema, f.testo, f.tenuta);
  LasciaScrittura(f);
  return f.errore == std::errc{};
}

void LasciaScrittura(FileScrittura& f) {
  f.testo.clear();
  f.sistema.clear();
}

bool SostituisciFile(std::string_view percorso, std::string_view testo) {
  return MettiAlPosto(RisolviPercorso(percorso), InAnsi(testo), Tenuta::Duratura) == std::errc{};
}

bool SostituisciByte(std::string_view percorso, std::string_view byte) {
  return MettiAlPosto(RisolviPercorso(percorso), byte, Tenuta::Rifacibile) == std::errc{};
}

std::string TestoNonScritto(std::string_view percorso, std::errc errore) {
  std::string motivo = "errore " + std::to_string(static_cast<int>(errore)) + " del sistema";
  for (const Motivo& m : MOTIVI)
    if (m.errore == errore) motivo = m.testo;
  return "Impossibile scrivere il file " + std::string(percorso) + ": " + motivo + ".";
}
