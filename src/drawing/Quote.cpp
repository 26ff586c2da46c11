// drawing/Quote.cpp - one dimension, and chains.
#include "drawing/Quote.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/numeri.h"
#include "core/testo.h"
#include "drawing/disegno.h"
#include "drawing/edizione.h"
#include "model/stato.h"
#include "model/suite.h"

std::string NumeroDis(double v) {
  if (std::isfinite(v)) return NumeroPiano(v);
  InterrompiDisegno();
  return {};
}

std::string FormatoMisura(double v) {
  std::string t = NumeroDis(v);
  const std::size_t punto = t.find('.');
  if (punto != std::string::npos) t.resize(std::min(t.size(), punto + 2));
  return t;
}

std::string SenzaSpaziDoppi(std::string_view t) {
  std::string parole;
  for (t = Rifila(t); !t.empty();) {
    const std::string_view parola = PrimaParola(t);
    if (!parole.empty()) parole += ' ';
    parole += parola;
    t = t.substr(parola.size());
    t.remove_prefix(std::min(t.find_first_not_of(' '), t.size()));
  }
  return parole;
}

// Text angle of a dimension: whole degrees, upward when vertical.
static std::int16_t AngoloQuota(double x1, double x2, double y1, double y2) {
  if (std::abs(x2 - x1) <= TOLL_GEO) return y2 > y1 ? 90 : -90;
  return InCorto(std::atan((y2 - y1) / (x2 - x1)) * 180 / PI_PROG);
}

// Among the neighbours of a chain too narrow for their text, every other one goes to the other side of its line.
static double DistanzaInCatena(bool largo, double distanza) {
  if (!largo) {
    quote.QuotaRibaltata = false;
    return distanza;
  }
  if (!quote.CatenaAttiva) return distanza;
  quote.QuotaRibaltata = !quote.QuotaRibaltata;
  return quote.QuotaRibaltata ? -distanza - suite.ParNodo[7] : distanza;
}

void DisQuota(const std::string& testo, double x1, double x2, double y1, double y2, std::int16_t coloreLinea, std::int16_t coloreTesto,
              double larghezza, double altezza, double distanza, double scala) {
  const bool verticale = std::abs(x1 - x2) < TOLL_GEO;
  if (verticale && std::abs(y1 - y2) < TOLL_GEO) return;
  if (verticale ? y1 > y2 : x1 > x2) {
    std::swap(x1, x2);
    std::swap(y1, y2);
  }
  if (coloreLinea != -1) {
    DisArco(nullptr, x1, y1, suite.ParNodo[14], coloreLinea);
    DisArco(nullptr, x2, y2, suite.ParNodo[14], coloreLinea);
    DisLinea(nullptr, x1, y1, x2, y2, coloreLinea);
  }
  const double L = std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2));
  const std::int16_t angolo = AngoloQuota(x1, x2, y1, y2);
  const std::string scritto = testo.empty() ? FormatoMisura(std::abs(scala) * L) : testo;
  const double w = static_cast<double>(NumCaratteri(scritto)) * larghezza, d = DistanzaInCatena(w > L, distanza), t = w / L;
  const double x = (x1 + x2) / 2 + (x1 - x2) * t / 2 + (y1 - y2) * d / L;
  const double y = (y1 + y2) / 2 + (y1 - y2) * t / 2 - (x1 - x2) * d / L;
  DisTesto(scritto, x, y, angolo, larghezza, altezza, coloreTesto);
}

// A chain along one axis: posizione is the other coordinate. Equal neighbours draw nothing.
static void Catena(const double* a, int n, double posizione, bool verticale, bool dettaglio) {
  quote.CatenaAttiva = true;
  quote.QuotaRibaltata = false;
  for (int i = 1; i < n; ++i) {
    if (verticale) edizione.quota(posizione, posizione, a[i], a[i + 1], dettaglio);
    else edizione.quota(a[i], a[i + 1], posizione, posizione, dettaglio);
  }
  quote.CatenaAttiva = false;
}

void CatenaV(const double* a, int n, double x) { Catena(a, n, x, true, false); }
void CatenaO(const double* a, int n, double y) { Catena(a, n, y, false, false); }
void CatenaVScala(const double* a, int n, double x) { Catena(a, n, x, true, true); }
void CatenaOScala(const double* a, int n, double y) { Catena(a, n, y, false, true); }
