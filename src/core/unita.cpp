// core/unita.cpp - the job's parameters and the factors of their unit texts.
#include "core/unita.h"

#include <algorithm>

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr const char* FILE_PARAMETRI = "\\parametrilavoro";  // behind DirLavoro

namespace {
// The first key that the line holds wins.
struct ChiaveUnita {
  const char* chiave;
  std::string Suite::*unita;
};
}  // namespace

// clang-format off
constexpr ChiaveUnita CHIAVI[] = {
    {"lunghezze", &Suite::UnitaLung},          {"forze", &Suite::UnitaForze},       {"carichi_superficie", &Suite::UnitaCarichi},
    {"coppie_momenti", &Suite::UnitaMomenti},  {"tensioni", &Suite::UnitaTensioni}, {"dati_sezioni", &Suite::UnitaSezioni},
};
// clang-format on

namespace {
// The first row whose text the unit holds wins; case counts.
struct Unita {
  const char* testo;
  double fattore;
  std::int16_t decimali;
  bool perG;  // divided by the job's gravity
};
}  // namespace

constexpr Unita LUNGHEZZE[] = {{"mm", 10, 0, false}, {"cm", 1, 1, false}, {"m", 0.01, 3, false}};
constexpr Unita FORZE[] = {
  {"daN", 1, 1, false}, {"kN", 1. / 100, 3, false}, {"N", 10, 0, false}, {"kgf", 10, 1, true}, {"t", 1. / 100, 4, true}};
constexpr Unita TENSIONI[] = {{"kPa", 100, 0, false}, {"MPa", 1. / 10, 2, false}};

template <std::size_t n>
static double CercaUnita(const Unita (&tabella)[n], std::string_view unita, std::int16_t& dec) {
  for (const Unita& u : tabella) {
    if (!Contiene(unita, u.testo)) continue;
    dec = u.decimali;
    return u.perG ? u.fattore / suite.AccelG : u.fattore;
  }
  return 0;
}

// Decimals of a compound unit, not below 0: base plus those of the force over 1, less `lunghezze` times those of the length over 1.
static std::int16_t Decimali(int base, int dF, int dL, int lunghezze) {
  return static_cast<std::int16_t>(std::max(0, base - (1 - dF) + lunghezze * (1 - dL)));
}

// A force over an area.
static void SuSuperficie(std::string_view unita, int base, double& fattore, std::int16_t& dec) {
  std::int16_t dF = 0, dL = 0;
  const double F = FattForza(unita, dF), L = FattLunghezza(unita, dL);
  fattore = F / (L * L);
  dec = Decimali(base, dF, dL, 2);
}

// A unit text goes into the calculator's arguments, which "|" separates, and into lines that are read back: of one that would break them
// nothing is kept but the slash, by which a stress is a force over an area. The suite stores that slash as the digit 8.
static std::string TestoUnita(std::string_view valore) {
  const auto rompe = [](unsigned char c) { return c < ' ' || c == 0x7F || c == '|' || c == '"' || c == '\''; };
  const std::string unita = Componi(valore, "8", "/");
  if (std::none_of(unita.begin(), unita.end(), rompe)) return unita;
  return Contiene(unita, "/") ? "/" : "";
}

static bool GuastoLettura() {
  SegnalaFault();
  return false;
}

bool LeggiParametriLavoro() {
  FileLettura f;
  std::string riga;
  if (!ApriLettura(f, suite.DirLavoro + FILE_PARAMETRI) || !LeggiValore(f, riga))
    return GuastoLettura();  // the first value is the file's own
  while (!FineFile(f)) {
    if (!LeggiRiga(f, riga)) return GuastoLettura();
    const std::size_t p = riga.find('[');
    if (p == std::string::npos) return GuastoLettura();
    const std::string_view valore = Rifila(std::string_view(riga).substr(0, p));
    const std::string chiave = Minuscolo(riga);
    if (Contiene(chiave, "accelerazione_g") && !Val(valore, suite.AccelG)) return GuastoLettura();
    if (Contiene(chiave, "nord_geografico") && !Val(valore, suite.NordGeo)) return GuastoLettura();
    for (const ChiaveUnita& c : CHIAVI) {
      if (!Contiene(chiave, c.chiave)) continue;
      suite.*c.unita = TestoUnita(valore);
      break;
    }
  }
  return true;
}

bool ImpostaUnita() {
  AzzeraFault();
  if (!LeggiParametriLavoro()) return false;
  std::int16_t dF = 0, dL = 0;
  suite.FattLung = FattLunghezza(suite.UnitaLung, suite.DecLung);
  suite.FattForze = FattForza(suite.UnitaForze, suite.DecForze);
  const double F = FattForza(suite.UnitaMomenti, dF), L = FattLunghezza(suite.UnitaMomenti, dL);
  suite.FattMomenti = F * L;
  suite.DecMomenti = Decimali(1, dF, dL, -1);
  if (Contiene(suite.UnitaTensioni, "/")) SuSuperficie(suite.UnitaTensioni, 1, suite.FattTensioni, suite.DecTensioni);
  else suite.FattTensioni = FattTensione(suite.UnitaTensioni, suite.DecTensioni);
  suite.FattSezioni = FattLunghezza(suite.UnitaSezioni, suite.DecSezioni);
  SuSuperficie(suite.UnitaCarichi, 5, suite.FattCarichi, suite.DecCarichi);
  return !FaultAritmetico();
}

double FattLunghezza(std::string_view unita, std::int16_t& dec) { return CercaUnita(LUNGHEZZE, unita, dec); }
double FattForza(std::string_view unita, std::int16_t& dec) { return CercaUnita(FORZE, unita, dec); }
double FattTensione(std::string_view unita, std::int16_t& dec) { return CercaUnita(TENSIONI, unita, dec); }

std::string ComponiUnita(std::string_view a, std::string_view b, std::string_view c, std::string_view d) {
  const std::string riga =
    AllineaSinistra(Rifila(a), 20) + AllineaSinistra(Rifila(b), 19) + AllineaSinistra(Rifila(c), 19) + AllineaSinistra(Rifila(d), 19);
  return std::string(RifilaDestra(riga));
}
