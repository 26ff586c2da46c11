// reports/celle.cpp - digits straight into the report's text. A report has some hundred thousand cells.
#include "reports/celle.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "model/stato.h"

constexpr double POTENZE[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
constexpr double QUINDICI_CIFRE = 1e15;
constexpr int PRIMO_ESPONENTE = 4;  // below 1E-4 a number is written with an exponent
constexpr int MinLarghezza = 1, MaxLarghezza = 255;

// u / 10^decimali, trailing zeros of the decimals dropped.
static int ScriviDecimale(char* a, bool negativo, unsigned long long u, int decimali) {
  while (decimali > 0 && u % 10 == 0) {
    u /= 10;
    --decimali;
  }
  char* p = a;
  if (negativo) *p++ = '-';
  char cifre[24];
  const int n = static_cast<int>(std::to_chars(cifre, cifre + sizeof cifre, u).ptr - cifre);
  const int intere = n - decimali;  // digits before the mark; <= 0: zeros behind it
  if (intere <= 0) {
    *p++ = '0';
  } else {
    std::memcpy(p, cifre, static_cast<std::size_t>(intere));
    p += intere;
  }
  if (decimali > 0) {
    *p++ = suite.Decimale;
    for (int i = intere; i < 0; ++i) *p++ = '0';
    const int da = intere > 0 ? intere : 0;
    std::memcpy(p, cifre + da, static_cast<std::size_t>(n - da));
    p += n - da;
  }
  return static_cast<int>(p - a);
}

template <class Valore>
static void AggiungiNumero(std::string& t, Valore v) {
  char a[MaxNumero];
  t.append(a, static_cast<std::size_t>(ScriviVoce(a, v)));
}

// caratteri: those of voce, which may have more bytes.
static void Incolonna(std::string& t, const char* voce, std::size_t byte, std::size_t caratteri, Cella c) {
  if (c.larghezza < MinLarghezza || c.larghezza > MaxLarghezza) {
    t.append(c.larghezza > 0 ? static_cast<std::size_t>(c.larghezza) : 0, '*');
    return;
  }
  const std::size_t larghezza = static_cast<std::size_t>(c.larghezza);
  const std::size_t vuoti = larghezza > caratteri ? larghezza - caratteri : 0;
  const std::size_t inizio = t.size();
  t.resize(inizio + (c.barra ? 1 : 0) + vuoti + byte);
  char* p = t.data() + inizio;
  if (c.barra) *p++ = '|';
  if (c.allineamento != 'L') {
    std::memset(p, ' ', vuoti);
    p += vuoti;
  }
  if (byte > 0) std::memcpy(p, voce, byte);
  if (c.allineamento == 'L') std::memset(p + byte, ' ', vuoti);
}

template <class Valore>
static void IncolonnaNumero(std::string& t, Valore v, Cella c) {
  char a[MaxNumero];
  const std::size_t n = static_cast<std::size_t>(ScriviVoce(a, v));
  Incolonna(t, a, n, n, c);
}

int ScriviVoce(char* a, double v) {
  if (!std::isfinite(v)) {
    SegnalaFault();
    return 0;
  }
  return ScriviNumero(v, a, suite.Decimale, true);
}

int ScriviVoce(char* a, int v) { return static_cast<int>(std::to_chars(a, a + MaxNumero, v).ptr - a); }

// The rounded value is m / 10^n with m whole: with m below 10^15 its 15-digit text is m's digits with the mark set in, which
// spares the search for the shortest digits. What is left goes the plain way.
int ScriviVoce(char* a, Arrotondato v) {
  const int n = v.decimali > 0 ? v.decimali : 0;
  if (n < static_cast<int>(std::size(POTENZE))) {
    const double m = std::nearbyint(v.valore * POTENZE[n]);
    const double assoluto = std::fabs(m);
    if (assoluto < QUINDICI_CIFRE && (n <= PRIMO_ESPONENTE || assoluto * 1e4 >= POTENZE[n]))
      return ScriviDecimale(a, m < 0, static_cast<unsigned long long>(assoluto), n);
  }
  return ScriviVoce(a, ArrotondaPari(v.valore, n));
}

void Aggiungi(std::string& t, double v) { AggiungiNumero(t, v); }
void Aggiungi(std::string& t, int v) { AggiungiNumero(t, v); }
void Aggiungi(std::string& t, Arrotondato v) { AggiungiNumero(t, v); }

void AggiungiCella(std::string& t, std::string_view voce, Cella c) { Incolonna(t, voce.data(), voce.size(), NumCaratteri(voce), c); }
void AggiungiCella(std::string& t, double v, Cella c) { IncolonnaNumero(t, v, c); }
void AggiungiCella(std::string& t, int v, Cella c) { IncolonnaNumero(t, v, c); }
void AggiungiCella(std::string& t, Arrotondato v, Cella c) { IncolonnaNumero(t, v, c); }

std::string FormattazioneValore(std::string_view valore, int larghezza, bool barra, char allineamento) {
  std::string t;
  AggiungiCella(t, valore, {larghezza, barra, allineamento});
  return t;
}

std::string FormattazioneValore(double valore, int larghezza, bool barra, char allineamento) {
  std::string t;
  AggiungiCella(t, valore, {larghezza, barra, allineamento});
  return t;
}
