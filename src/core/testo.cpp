// core/testo.cpp - UTF-8 and Windows-1252, case, blanks, words.
#include "core/testo.h"

#include <array>
#include <cstdint>
#include <cstring>

// Characters of the bytes 0x80 to 0x9F; an undefined byte is the control character of the same value.
// clang-format off
constexpr std::array<std::uint16_t, 32> ALTI = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
    0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
// clang-format on

constexpr char32_t SENZA_POSTO = 0xFFFD;

static void AggiungiUtf8(std::string& t, char32_t c) {
  if (c < 0x80) {
    t += static_cast<char>(c);
  } else if (c < 0x800) {
    t += static_cast<char>(0xC0 | (c >> 6));
    t += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    t += static_cast<char>(0xE0 | (c >> 12));
    t += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    t += static_cast<char>(0x80 | (c & 0x3F));
  }
}

// The character at i, and i behind it. A byte that starts no well-formed sequence is one character without a place.
static char32_t ProssimoCarattere(std::string_view t, std::size_t& i) {
  const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(t[k]); };
  const unsigned char b = byte(i++);
  if (b < 0x80) return b;
  const int seguito = b >= 0xC2 && b <= 0xDF ? 1 : b >= 0xE0 && b <= 0xEF ? 2 : b >= 0xF0 && b <= 0xF4 ? 3 : 0;
  if (seguito == 0) return SENZA_POSTO;
  char32_t c = seguito == 1 ? b & 0x1Fu : seguito == 2 ? b & 0x0Fu : b & 0x07u;
  for (int k = 0; k < seguito; ++k) {
    if (i + static_cast<std::size_t>(k) >= t.size() || (byte(i + static_cast<std::size_t>(k)) & 0xC0) != 0x80) return SENZA_POSTO;
    c = (c << 6) | (byte(i + static_cast<std::size_t>(k)) & 0x3Fu);
  }
  i += static_cast<std::size_t>(seguito);
  return c;
}

// Position behind the first n characters, at most the text's end.
static std::size_t DopoCaratteri(std::string_view t, std::size_t n) {
  std::size_t i = 0;
  while (n > 0 && i < t.size()) {
    ProssimoCarattere(t, i);
    --n;
  }
  return i;
}

static char32_t InMaiuscolo(char32_t c) {
  if (c >= 'a' && c <= 'z') return c - 32;
  if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 32;
  return c;
}

static char32_t InMinuscolo(char32_t c) {
  if (c >= 'A' && c <= 'Z') return c + 32;
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;
  return c;
}

template <class Cambio>
static std::string CambiaLettere(std::string_view t, Cambio cambio) {
  std::string r;
  r.reserve(t.size());
  for (std::size_t i = 0; i < t.size();) {
    const std::size_t da = i;
    const char32_t c = ProssimoCarattere(t, i);
    if (c == SENZA_POSTO || c >= 0x100) r.append(t.substr(da, i - da));
    else AggiungiUtf8(r, cambio(c));
  }
  return r;
}

static bool Separatore(char c) { return c == ' ' || c == '\t'; }

std::string DaAnsi(std::string_view byte) {
  std::string t;
  t.reserve(byte.size() + byte.size() / 8);
  for (const char k : byte) {
    const auto b = static_cast<unsigned char>(k);
    if (b < 0x80) t += k;
    else AggiungiUtf8(t, b < 0xA0 ? ALTI[b - 0x80] : b);
  }
  return t;
}

// Where the run of ASCII that begins at i ends; eight characters at a time.
static std::size_t FineAscii(std::string_view t, std::size_t i) {
  for (std::uint64_t otto = 0; i + sizeof otto <= t.size(); i += sizeof otto) {
    std::memcpy(&otto, t.data() + i, sizeof otto);
    if ((otto & 0x8080808080808080u) != 0) break;
  }
  while (i < t.size() && static_cast<unsigned char>(t[i]) < 0x80) ++i;
  return i;
}

bool SoloAscii(std::string_view t) { return FineAscii(t, 0) == t.size(); }

std::string InAnsi(std::string_view utf8) {
  std::string byte;
  byte.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const std::size_t j = FineAscii(utf8, i);  // runs of ASCII pass whole
    byte.append(utf8.substr(i, j - i));
    if (j == utf8.size()) break;
    i = j;
    const char32_t c = ProssimoCarattere(utf8, i);
    char b = '?';
    if (c >= 0xA0 && c <= 0xFF) b = static_cast<char>(c);
    else
      for (std::size_t k = 0; k < ALTI.size(); ++k)
        if (ALTI[k] == c) b = static_cast<char>(0x80 + k);
    byte += b;
  }
  return byte;
}

std::size_t NumCaratteri(std::string_view t) {
  std::size_t n = 0;
  for (std::size_t i = 0; i < t.size(); ++n) ProssimoCarattere(t, i);
  return n;
}

std::string PrimiCaratteri(std::string_view t, std::size_t n) { return std::string(t.substr(0, DopoCaratteri(t, n))); }

std::string Maiuscolo(std::string_view t) { return CambiaLettere(t, InMaiuscolo); }
std::string Minuscolo(std::string_view t) { return CambiaLettere(t, InMinuscolo); }

std::string_view RifilaDestra(std::string_view t) {
  while (!t.empty() && t.back() == ' ') t.remove_suffix(1);
  return t;
}

std::string_view Rifila(std::string_view t) {
  while (!t.empty() && t.front() == ' ') t.remove_prefix(1);
  return RifilaDestra(t);
}

std::string AllineaSinistra(std::string_view t, std::size_t n) {
  std::string r = PrimiCaratteri(t, n);
  const std::size_t lungo = NumCaratteri(r);
  if (lungo < n) r.append(n - lungo, ' ');
  return r;
}

bool UgualeSenzaMaiuscole(std::string_view a, std::string_view b) { return Minuscolo(a) == Minuscolo(b); }

std::string Componi(std::string_view t, std::string_view da, std::string_view a) {
  std::string r;
  if (da.empty()) return std::string(t);
  for (std::size_t i = 0;;) {
    const std::size_t p = t.find(da, i);
    if (p == std::string_view::npos) return r.append(t.substr(i));
    r.append(t.substr(i, p - i)).append(a);
    i = p + da.size();
  }
}

std::string TokenSuccessivo(std::string& testo) {
  std::size_t i = 0;
  while (i < testo.size() && Separatore(testo[i])) ++i;
  if (i == testo.size()) return {};
  std::size_t j = i;
  while (j < testo.size() && !Separatore(testo[j])) ++j;
  std::string parola = testo.substr(i, j - i);
  testo.erase(0, j);
  return parola;
}

std::string_view PrimaParola(std::string_view t) { return t.substr(0, t.find(' ')); }

std::string SenzaSpazi(std::string_view t) { return Componi(t, " ", ""); }
