// results/json.cpp - writer and reader of JSON (RFC 8259).
#include "results/json.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace json {

// ---- out ----

void AggiungiNumero(std::string& t, double v) {
  if (!std::isfinite(v)) {
    t += "null";
    return;
  }
  char a[40];
  t.append(a, std::to_chars(a, a + sizeof a, v == 0 ? 0.0 : v).ptr);  // no minus before a zero
}

void AggiungiNumero(std::string& t, int v) {
  char a[16];
  t.append(a, std::to_chars(a, a + sizeof a, v).ptr);
}

// Length of the UTF-8 sequence at the front, 0 for none (overlong, surrogate, cut).
static std::size_t LunghezzaUtf8(std::string_view t) {
  const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(t[k]); };
  const unsigned char c = byte(0);
  const std::size_t n = c < 0x80 ? 1 : c >= 0xC2 && c < 0xE0 ? 2 : c >= 0xE0 && c < 0xF0 ? 3 : c >= 0xF0 && c < 0xF5 ? 4 : 0;
  if (n == 0 || t.size() < n) return 0;
  for (std::size_t k = 1; k < n; ++k)
    if ((byte(k) & 0xC0) != 0x80) return 0;
  if ((c == 0xE0 && byte(1) < 0xA0) || (c == 0xED && byte(1) >= 0xA0) || (c == 0xF0 && byte(1) < 0x90) || (c == 0xF4 && byte(1) >= 0x90))
    return 0;
  return n;
}

static void AggiungiComando(std::string& t, char c) {
  switch (c) {
    case '\n': t += "\\n"; return;
    case '\r': t += "\\r"; return;
    case '\t': t += "\\t"; return;
    default: break;
  }
  char a[8];
  std::snprintf(a, sizeof a, "\\u%04x", static_cast<unsigned>(static_cast<unsigned char>(c)));
  t += a;
}

// Stands in a text as it is.
static bool Piano(char c) { return c >= 0x20 && c < 0x7f && c != '"' && c != '\\'; }

void AggiungiTesto(std::string& t, std::string_view v) {
  t += '"';
  while (!v.empty()) {
    const std::size_t piani = static_cast<std::size_t>(std::ranges::find_if_not(v, Piano) - v.begin());
    t.append(v.substr(0, piani));
    v.remove_prefix(piani);
    if (v.empty()) break;
    const char c = v.front();
    std::size_t n = LunghezzaUtf8(v);
    if (n == 0) {
      t += "\xEF\xBF\xBD";
      n = 1;
    } else if (n > 1) {
      t.append(v.substr(0, n));
    } else if (c == '"' || c == '\\') {
      (t += '\\') += c;
    } else if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) {
      AggiungiComando(t, c);
    } else {
      t += c;
    }
    v.remove_prefix(n);
  }
  t += '"';
}

static void Virgola(Scrittura& j) {
  if (!j.primo) j.testo += ',';
  j.primo = false;
}

void Apri(Scrittura& j, char parentesi) {
  Virgola(j);
  j.testo += parentesi;
  j.primo = true;
}

void Chiudi(Scrittura& j, char parentesi) {
  j.testo += parentesi;
  j.primo = false;
}

void Nome(Scrittura& j, std::string_view nome) {
  j.testo.append(j.primo ? "\"" : ",\"").append(nome).append("\":");
  j.primo = true;  // no comma between a name and its value
}

void Intero(Scrittura& j, std::string_view testo) {
  Virgola(j);
  j.testo += testo;
}

void Nullo(Scrittura& j) { Intero(j, "null"); }
void Valore(Scrittura& j, bool v) { Intero(j, v ? "true" : "false"); }

void Valore(Scrittura& j, double v) {
  Virgola(j);
  AggiungiNumero(j.testo, v);
}

void Valore(Scrittura& j, int v) {
  Virgola(j);
  AggiungiNumero(j.testo, v);
}

void Valore(Scrittura& j, std::string_view v) {
  Virgola(j);
  AggiungiTesto(j.testo, v);
}

// ---- in ----

static void SaltaBianchi(std::string_view& t) {
  while (!t.empty() && (t.front() == ' ' || t.front() == '\t' || t.front() == '\n' || t.front() == '\r')) t.remove_prefix(1);
}

static bool Prendi(std::string_view& t, std::string_view parola) {
  if (!t.starts_with(parola)) return false;
  t.remove_prefix(parola.size());
  return true;
}

static bool Cifra(char c) { return c >= '0' && c <= '9'; }

static std::size_t Cifre(std::string_view t) {
  std::size_t n = 0;
  while (n < t.size() && Cifra(t[n])) ++n;
  return n;
}

static bool LeggiNumero(std::string_view& t, std::string& v) {
  std::string_view r = t;
  Prendi(r, "-");
  const std::size_t intere = Cifre(r);
  if (intere == 0 || (intere > 1 && r.front() == '0')) return false;
  r.remove_prefix(intere);
  if (Prendi(r, ".")) {
    const std::size_t decimali = Cifre(r);
    if (decimali == 0) return false;
    r.remove_prefix(decimali);
  }
  if (Prendi(r, "e") || Prendi(r, "E")) {
    if (!Prendi(r, "+")) Prendi(r, "-");
    const std::size_t esponente = Cifre(r);
    if (esponente == 0) return false;
    r.remove_prefix(esponente);
  }
  v = t.substr(0, t.size() - r.size());
  t = r;
  return true;
}

static void AggiungiUtf8(std::string& t, unsigned c) {
  const auto byte = [&](unsigned b) { t += static_cast<char>(b); };
  if (c < 0x80) return byte(c);
  if (c < 0x800) return byte(0xC0 | c >> 6), byte(0x80 | (c & 0x3F));
  if (c < 0x10000) return byte(0xE0 | c >> 12), byte(0x80 | (c >> 6 & 0x3F)), byte(0x80 | (c & 0x3F));
  byte(0xF0 | c >> 18), byte(0x80 | (c >> 12 & 0x3F)), byte(0x80 | (c >> 6 & 0x3F)), byte(0x80 | (c & 0x3F));
}

static bool QuattroCifre(std::string_view& t, unsigned& c) {
  if (t.size() < 4) return false;
  const auto [dove, errore] = std::from_chars(t.data(), t.data() + 4, c, 16);
  if (errore != std::errc() || dove != t.data() + 4) return false;
  t.remove_prefix(4);
  return true;
}

static bool LeggiCodice(std::string_view& t, std::string& v) {
  unsigned c = 0, basso = 0;
  if (!QuattroCifre(t, c) || (c >= 0xDC00 && c < 0xE000)) return false;
  if (c >= 0xD800 && c < 0xDC00) {
    if (!Prendi(t, "\\u") || !QuattroCifre(t, basso) || basso < 0xDC00 || basso >= 0xE000) return false;
    c = 0x10000 + ((c - 0xD800) << 10) + (basso - 0xDC00);
  }
  AggiungiUtf8(v, c);
  return true;
}

static bool LeggiFuga(std::string_view& t, std::string& v) {
  constexpr std::string_view SEGNI = "\"\\/bfnrt", VALORI = "\"\\/\b\f\n\r\t";
  if (t.empty()) return false;
  const char c = t.front();
  t.remove_prefix(1);
  if (c == 'u') return LeggiCodice(t, v);
  const std::size_t k = SEGNI.find(c);
  if (k == std::string_view::npos) return false;
  v += VALORI[k];
  return true;
}

static bool LeggiTesto(std::string_view& t, std::string& v) {
  v.clear();
  if (!Prendi(t, "\"")) return false;
  while (!t.empty() && t.front() != '"') {
    const unsigned char c = static_cast<unsigned char>(t.front());
    const std::size_t n = LunghezzaUtf8(t);
    if (c < 0x20 || n == 0) return false;
    if (c != '\\') v.append(t.substr(0, n));
    t.remove_prefix(n);
    if (c == '\\' && !LeggiFuga(t, v)) return false;
  }
  return Prendi(t, "\"");
}

static bool LeggiValore(std::string_view& t, Letto& v, int profondita);

static bool LeggiVoce(std::string_view& t, Letto& v, int profondita) {
  if (v.genere == Letto::Genere::Oggetto) {
    std::string nome;
    SaltaBianchi(t);
    if (!LeggiTesto(t, nome) || std::ranges::find(v.nomi, nome) != v.nomi.end()) return false;
    v.nomi.push_back(std::move(nome));
    SaltaBianchi(t);
    if (!Prendi(t, ":")) return false;
  }
  return LeggiValore(t, v.voci.emplace_back(), profondita + 1);
}

static bool LeggiInsieme(std::string_view& t, Letto& v, std::string_view fine, int profondita) {
  if (profondita > MassimaProfondita) return false;
  SaltaBianchi(t);
  if (Prendi(t, fine)) return true;
  do
    if (!LeggiVoce(t, v, profondita)) return false;
  while (Prendi(t, ","));
  return Prendi(t, fine);
}

static bool LeggiValore(std::string_view& t, Letto& v, int profondita) {
  using enum Letto::Genere;
  SaltaBianchi(t);
  bool letto = true;
  if (Prendi(t, "null")) v.genere = Nullo;
  else if (Prendi(t, "true")) v.genere = Vero;
  else if (Prendi(t, "false")) v.genere = Falso;
  else if (t.starts_with('"')) v.genere = Testo, letto = LeggiTesto(t, v.testo);
  else if (Prendi(t, "[")) v.genere = Lista, letto = LeggiInsieme(t, v, "]", profondita);
  else if (Prendi(t, "{")) v.genere = Oggetto, letto = LeggiInsieme(t, v, "}", profondita);
  else v.genere = Numero, letto = LeggiNumero(t, v.testo);
  SaltaBianchi(t);
  return letto;
}

bool Leggi(std::string_view testo, Letto& v) {
  v = {};
  return LeggiValore(testo, v, 1) && testo.empty();
}

const Letto* Cerca(const Letto& oggetto, std::string_view nome) {
  for (std::size_t k = 0; k < oggetto.nomi.size(); ++k)
    if (oggetto.nomi[k] == nome) return &oggetto.voci[k];
  return nullptr;
}

std::string_view TestoDi(const Letto* v) {
  return v != nullptr && v->genere == Letto::Genere::Testo ? std::string_view(v->testo) : std::string_view();
}

bool VeroDi(const Letto* v) { return v != nullptr && v->genere == Letto::Genere::Vero; }

double NumeroDi(const Letto* v) {
  double n = std::numeric_limits<double>::quiet_NaN();
  if (v != nullptr && v->genere == Letto::Genere::Numero) std::from_chars(v->testo.data(), v->testo.data() + v->testo.size(), n);
  return n;
}

void Scrivi(std::string& t, const Letto& v) {
  using enum Letto::Genere;
  switch (v.genere) {
    case Nullo: t += "null"; return;
    case Vero: t += "true"; return;
    case Falso: t += "false"; return;
    case Numero: t += v.testo; return;
    case Testo: AggiungiTesto(t, v.testo); return;
    case Lista:
    case Oggetto: break;
  }
  const bool oggetto = v.genere == Oggetto;
  t += oggetto ? '{' : '[';
  for (std::size_t k = 0; k < v.voci.size(); ++k) {
    if (k > 0) t += ',';
    if (oggetto) AggiungiTesto(t, v.nomi[k]), t += ':';
    Scrivi(t, v.voci[k]);
  }
  t += oggetto ? '}' : ']';
}

}  // namespace json
