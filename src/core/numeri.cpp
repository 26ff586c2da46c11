// core/numeri.cpp - numbers as text and back without a locale; roundings in double precision.
#include "core/numeri.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

#include "core/fault.h"

constexpr int CIFRE = 15;  // significant digits of every written number
constexpr double POTENZE[] = {1,    1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                              1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

static bool Cifra(char c) { return c >= '0' && c <= '9'; }

namespace {
struct Decimali {       // value = 0.d1 d2 ... dn x 10^esp, no trailing zeros
  char cifre[40] = {};  // read in blocks of 16
  int n = 0, esp = 0;
};
}  // namespace

// v = p + e exactly, p the product rounded; both factors far from the ends of the range.
static void ProdottoEsatto(double a, double b, double& p, double& e) {
  const double separa = 134217729;  // 2^27 + 1: halves of 26 bits multiply without rounding
  const double ta = separa * a, a1 = ta - (ta - a), a2 = a - a1, tb = separa * b, b1 = tb - (tb - b), b2 = b - b1;
  p = a * b;
  e = ((a1 * b1 - p) + a1 * b2 + a2 * b1) + a2 * b2;
}

// The usual range, 1E-4 to 1E15: the 15 digits are the whole number nearest to v 10^k. The powers up to 10^22 are exact, so that the
// product is known to the last bit; ties go to the even number.
static bool CifreConsuete(double v, Decimali& d) {
  if (!(v >= 1e-4 && v < 1e15)) return false;
  int esp = 1;  // v < 10^esp
  if (v >= 1) {
    while (v >= POTENZE[esp]) ++esp;
  } else {
    for (esp = 0; v * POTENZE[1 - esp] < 1; --esp) {
    }
  }
  double p = 0, e = 0;
  ProdottoEsatto(v, POTENZE[CIFRE - esp], p, e);
  constexpr double UNITA = 4503599627370496.0;  // 2^52: from there on doubles are whole numbers
  double intero = (p + UNITA) - UNITA;
  const double resto = p - intero;
  if (resto == 0.5 && e > 0) intero += 1;
  if (resto == -0.5 && e < 0) intero -= 1;
  if (intero < 1e14 || intero >= 1e15) return false;  // the power of ten was met by a rounding
  std::to_chars(d.cifre, d.cifre + sizeof d.cifre, static_cast<std::uint64_t>(intero));
  d.n = CIFRE;
  d.esp = esp;
  while (d.n > 1 && d.cifre[d.n - 1] == '0') --d.n;
  return true;
}

// Digits of v > 0, at most 15 significant. The shortest text that gives v back is tried first: with up to 15 digits it is the
// correctly rounded 15-digit text without its trailing zeros; a longer one is rounded anew from v itself, and so is a
// denormal, whose shortest text has fewer digits than were asked for.
static Decimali CifreDi(double v) {
  char testo[40];
  Decimali d;
  if (CifreConsuete(v, d)) return d;
  for (int prova = v < std::numeric_limits<double>::min() ? 1 : 0; prova < 2; ++prova) {
    const auto esito = prova == 0 ? std::to_chars(testo, testo + sizeof testo, v, std::chars_format::scientific)
                                  : std::to_chars(testo, testo + sizeof testo, v, std::chars_format::scientific, CIFRE - 1);
    const char* p = testo;
    d.n = 0;
    for (; *p != 'e'; ++p)
      if (*p != '.') d.cifre[d.n++] = *p;
    int esp = 0;
    const char* q = p + 1 + (p[1] == '+' ? 1 : 0);
    std::from_chars(q, esito.ptr, esp);
    d.esp = esp + 1;
    if (d.n <= CIFRE) break;
  }
  while (d.n > 1 && d.cifre[d.n - 1] == '0') --d.n;
  return d;
}

// n characters, at most 15; a whole block is moved, what lies behind is written over next.
static char* Copia(char* a, const char* da, int n) {
  std::memcpy(a, da, 16);
  return a + n;
}

// Below 1E-4 and from 1E15 on: mantissa with its point, E, sign, at least two digits.
static char* FormaEsponente(char* a, const Decimali& d, char mark) {
  *a++ = d.cifre[0];
  if (d.n > 1) {
    *a++ = mark;
    a = Copia(a, d.cifre + 1, d.n - 1);
  }
  int esp = d.esp - 1;
  *a++ = 'E';
  *a++ = esp < 0 ? '-' : '+';
  if (esp < 0) esp = -esp;
  if (esp < 10) *a++ = '0';
  return std::to_chars(a, a + 4, esp).ptr;
}

static char* FormaPiana(char* a, const Decimali& d, char mark, bool zeroIniziale) {
  if (d.esp <= 0) {
    if (zeroIniziale) *a++ = '0';
    *a++ = mark;
    for (int i = d.esp; i < 0; ++i) *a++ = '0';
    return Copia(a, d.cifre, d.n);
  }
  if (d.n <= d.esp) {
    a = Copia(a, d.cifre, d.n);
    for (int i = d.n; i < d.esp; ++i) *a++ = '0';
    return a;
  }
  a = Copia(a, d.cifre, d.esp);
  *a++ = mark;
  return Copia(a, d.cifre + d.esp, d.n - d.esp);
}

// The head's extent: sign, digits, one point, digits, exponent with at least one digit. Empty: no number there.
static std::string_view TestaNumerica(std::string_view t) {
  std::size_t i = 0;
  while (i < t.size() && t[i] == ' ') ++i;
  const std::size_t inizio = i;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
  bool cifre = false, punto = false;
  for (; i < t.size(); ++i) {
    if (Cifra(t[i])) cifre = true;
    else if (t[i] == '.' && !punto) punto = true;
    else break;
  }
  if (!cifre) return {};
  std::size_t e = i;
  if (e < t.size() && (t[e] == 'E' || t[e] == 'e')) {
    ++e;
    if (e < t.size() && (t[e] == '+' || t[e] == '-')) ++e;
    if (e < t.size() && Cifra(t[e])) {
      while (e < t.size() && Cifra(t[e])) ++e;
      i = e;
    }
  }
  return t.substr(inizio, i - inizio);
}

// A number too small for a double reads as 0 or as the platform's denormal; from_chars tells it apart from one too large by
// neither value nor code, so the sign of the decimal exponent of its first digit decides.
static bool TroppoPiccolo(std::string_view testa) {
  long esp = 0;
  const std::size_t e = testa.find_first_of("eE");
  if (e != std::string_view::npos) {
    std::string_view x = testa.substr(e + 1);
    const bool negativo = !x.empty() && x[0] == '-';
    if (!x.empty() && (x[0] == '+' || x[0] == '-')) x.remove_prefix(1);
    for (char c : x) esp = esp < 100000000 ? esp * 10 + (c - '0') : esp;
    if (negativo) esp = -esp;
  }
  const std::string_view m = testa.substr(0, e);
  const std::size_t punto = std::min(m.find('.'), m.size());
  const std::size_t prima = m.find_first_of("123456789");
  if (prima == std::string_view::npos) return true;
  return esp + static_cast<long>(punto) - static_cast<long>(prima) < 0;
}

template <class Intero>
static bool InInteroDi(double v, Intero& n) {
  const double r = std::nearbyint(v);
  if (!(r >= static_cast<double>(std::numeric_limits<Intero>::min()) && r <= static_cast<double>(std::numeric_limits<Intero>::max())))
    return false;
  n = static_cast<Intero>(r);
  return true;
}

int ScriviNumero(double v, char* a, char mark, bool zeroIniziale) {
  const bool finito = std::isfinite(v);
  if (!finito) SegnalaFault();
  if (v == 0 || !finito) {
    a[0] = '0';
    return 1;
  }
  char* p = a;
  if (v < 0) {
    *p++ = '-';
    v = -v;
  }
  const Decimali d = CifreDi(v);
  p = (d.esp <= -4 || d.esp > CIFRE) ? FormaEsponente(p, d, mark) : FormaPiana(p, d, mark, zeroIniziale);
  return static_cast<int>(p - a);
}

std::string NumeroPiano(double v) {
  char a[32];
  return std::string(a, static_cast<std::size_t>(ScriviNumero(v, a, '.', false)));
}

std::string NumeroFile(double v) {
  std::string t = NumeroPiano(v);
  if (t[0] != '-') t.insert(t.begin(), ' ');
  t += ' ';
  return t;
}

bool Val(std::string_view testo, double& v) {
  std::string_view testa = TestaNumerica(testo);
  if (testa.empty()) {
    v = 0;
    return true;
  }
  if (testa[0] == '+') testa.remove_prefix(1);
  double letto = 0;
  const auto esito = std::from_chars(testa.data(), testa.data() + testa.size(), letto);
  if (esito.ec == std::errc::result_out_of_range) {
    if (!TroppoPiccolo(testa)) return false;
    letto = 0;
  }
  v = letto;
  return true;
}

bool ValLocale(std::string_view testo, char mark, double& v) {
  std::string punto;
  for (char c : testo) {
    if (c == mark) punto += '.';
    else if (c != '.' && c != ',') punto += c;
  }
  return !TestaNumerica(punto).empty() && Val(punto, v);
}

bool InIntero(double v, std::int16_t& n) { return InInteroDi(v, n); }
bool InIntero(double v, std::int32_t& n) { return InInteroDi(v, n); }

double ArrotondaPari(double v, int decimali) {
  if (decimali <= 0) return std::nearbyint(v);
  const double p = decimali <= 22 ? POTENZE[decimali] : std::pow(10.0, decimali);
  return std::nearbyint(v * p) / p;
}

double Arrotonda1(double v) { return std::floor(v * 10 + 0.5) / 10; }
double Arrotonda2(double v) { return std::floor(v * 100 + 0.5) / 100; }
