// results/governanti.cpp - units of the rows, and the rows that govern.
#include "results/governanti.h"

#include <array>
#include <cmath>
#include <limits>

constexpr double SCARTO_LIMITE = 1e-6;
constexpr double SCARTO_ARROTONDA = 0.1;  // farther from its limit no rounding of a check brings a demand across

namespace {
struct Unita {
  const char* nome;
  double fattore;
};
}  // namespace

static constexpr Unita UNITA[] = {{"N/mm2", NMM2_DI_DANCM2}, {"kN", KN_DI_DAN}, {"-", 1}};  // by Grandezza

std::string_view UnitaRiga(Grandezza g) { return UNITA[static_cast<int>(g)].nome; }

// Not a number: the limit is not above 0, or a number is too large.
static double RapportoDi(double domanda, double limite) {
  const double r = limite > 0 && std::isfinite(limite) ? domanda / limite : std::numeric_limits<double>::quiet_NaN();
  return std::isfinite(r) ? r : std::numeric_limits<double>::quiet_NaN();
}

RigaUscita InUscita(const RigaControllo& r, int metodo) {
  const Criterio& c = Criteri(metodo)[r.criterio];
  const double fattore = UNITA[static_cast<int>(c.grandezza)].fattore;
  RigaUscita u;
  u.criterio = &c;
  u.sestetto = r.sestetto;
  u.elemento = r.elemento;
  u.domanda = r.domanda * fattore;
  u.limite = r.limite * fattore;
  u.rapporto = RapportoDi(u.domanda, u.limite);
  u.sfruttamento = c.quadrato ? std::sqrt(u.rapporto) : u.rapporto;
  u.passa = r.passa;
  return u;
}

// What ranks: a failing row above every passing one.
static double Peso(const RigaControllo& r, const Criterio& c) {
  const double fattore = UNITA[static_cast<int>(c.grandezza)].fattore;
  const double rapporto = RapportoDi(r.domanda * fattore, r.limite * fattore);
  if (std::isnan(rapporto)) return r.passa ? 0 : std::numeric_limits<double>::infinity();
  return c.quadrato ? std::sqrt(rapporto) : rapporto;
}

namespace {
struct Capofila {
  std::size_t riga = NESSUNA_RIGA;
  bool passa = true;
  double peso = 0;
};
}  // namespace

// Rows come in the order of the ties, so that only a heavier one takes the place.
static void Candida(Capofila& c, std::size_t k, bool passa, double peso) {
  const bool prende = c.riga == NESSUNA_RIGA || (c.passa && !passa) || (c.passa == passa && peso > c.peso);
  if (prende) c = {k, passa, peso};
}

Governanti TrovaGovernanti(const Lavoro& l) {
  const std::span<const Criterio> criteri = Criteri(l.TipoVer);
  Governanti g;
  Capofila nodo;
  std::array<Capofila, MaxCriteri> controlli;
  std::vector<Capofila> sestetti(static_cast<std::size_t>(l.nodo->NumSoll > 0 ? l.nodo->NumSoll : 0));
  for (std::size_t k = 0; k < l.righe.size(); ++k) {
    const RigaControllo& r = l.righe[k];
    const double peso = Peso(r, criteri[r.criterio]);
    Candida(nodo, k, r.passa, peso);
    Candida(controlli[r.criterio], k, r.passa, peso);
    Candida(sestetti[static_cast<std::size_t>(r.sestetto - 1)], k, r.passa, peso);
  }
  g.nodo = nodo.riga;
  for (const Capofila& c : controlli)
    if (c.riga != NESSUNA_RIGA) g.perControllo.push_back(c.riga);
  for (const Capofila& c : sestetti)
    if (c.riga != NESSUNA_RIGA) g.perSestetto.push_back(c.riga);
  return g;
}

bool AlLimite(const RigaControllo& r, int metodo) {
  const double grande = std::fmax(std::fabs(r.domanda), std::fabs(r.limite));
  if (std::fabs(r.domanda - r.limite) > SCARTO_ARROTONDA + 2 * SCARTO_LIMITE * grande) return false;
  const Criterio& c = Criteri(metodo)[r.criterio];
  const auto passa = [&](double grezza) { return c.passa(c.arrotonda != nullptr ? c.arrotonda(grezza) : grezza, r.limite); };
  return passa(r.grezza * (1 - SCARTO_LIMITE)) != r.passa || passa(r.grezza * (1 + SCARTO_LIMITE)) != r.passa;
}
