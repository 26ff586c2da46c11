// results/riepilogo_testo.cpp - the table of a judged joint.
#include "results/riepilogo_testo.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <vector>

#include "core/testo.h"
#include "engine/righe.h"
#include "results/json.h"

using json::Cerca, json::Letto, json::NumeroDi, json::TestoDi, json::VeroDi;

constexpr std::size_t COLONNE = 100, COLONNE_BARRA = 20, COLONNE_NOME = 32;
constexpr int DECIMALI_RAPPORTO = 3;

// Cut to so many characters, three points in one where something was left out. Control characters would reach the terminal: blanks.
static std::string Entro(std::string_view t, std::size_t caratteri) {
  std::string r = NumCaratteri(t) <= caratteri ? std::string(t) : PrimiCaratteri(t, caratteri - 1) + "\u2026";
  std::ranges::replace_if(
    r, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; }, ' ');
  return r;
}

static std::string Rapporto(double r) {
  if (!std::isfinite(r)) return "-";
  char a[64];
  const auto fine = r < 1e6 ? std::to_chars(a, a + sizeof a, r, std::chars_format::fixed, DECIMALI_RAPPORTO)
                            : std::to_chars(a, a + sizeof a, r, std::chars_format::scientific, DECIMALI_RAPPORTO);
  return std::string(a, fine.ptr);
}

static std::string Barra(double r) {
  const double pieni = std::isfinite(r) ? std::clamp(r, 0.0, 1.0) * static_cast<double>(COLONNE_BARRA) : 0;
  std::string t(static_cast<std::size_t>(std::floor(pieni)), '#');
  t.resize(COLONNE_BARRA, '.');
  if (r > 1) t.back() = '>';
  return t;
}

static const Criterio* CriterioDi(std::string_view metodo, std::string_view id) {
  for (const Criterio& c : Criteri(metodo == "ta" ? MetodoTA : MetodoSLU))
    if (id == c.id) return &c;
  return nullptr;
}

// Element, then sextet: the sextet's name may be cut.
static std::string Dove(const Letto& riga, const Criterio* c, const Letto* nomeSestetto) {
  const int e = static_cast<int>(NumeroDi(Cerca(riga, "elemento")));
  std::string t;
  if (e > 0) t = (c != nullptr && c->elementi == Elementi::Saldature ? "S" : "tir. ") + std::to_string(e) + ", ";
  return (t += "sest. ").append(Cerca(riga, "sestetto")->testo).append(" ").append(TestoDi(nomeSestetto));
}

static const Letto* NomeSestetto(const Letto* sestetti, const Letto& riga) {
  const double n = NumeroDi(Cerca(riga, "sestetto"));
  if (sestetti == nullptr || !(n >= 1) || n > static_cast<double>(sestetti->voci.size())) return nullptr;
  return Cerca(sestetti->voci[static_cast<std::size_t>(n) - 1], "nome");
}

static std::string RigaTabella(const Letto& nodo, const Letto& riga) {
  const Criterio* c = CriterioDi(TestoDi(Cerca(nodo, "metodo")), TestoDi(Cerca(riga, "id")));
  const double r = NumeroDi(Cerca(riga, "rapporto")), peso = NumeroDi(Cerca(riga, "sfruttamento"));
  std::string t = VeroDi(Cerca(riga, "passa")) ? "  si'  " : "  NO   ";
  t += AllineaSinistra(Entro(c != nullptr ? c->nome : TestoDi(Cerca(riga, "id")), COLONNE_NOME), COLONNE_NOME);
  const std::string rapporto = Rapporto(r);
  t.append(rapporto.size() < 8 ? 8 - rapporto.size() : 0, ' ').append(rapporto).append("  ").append(Barra(peso)).append("  ");
  return Entro(t + Dove(riga, c, NomeSestetto(Cerca(nodo, "sestetti"), riga)), COLONNE) + "\n";
}

// Failing rows first, each group by falling utilisation, ties in the order of the checks.
static std::vector<const Letto*> Ordinate(const Letto& righe) {
  std::vector<const Letto*> v;
  for (const Letto& r : righe.voci) v.push_back(&r);
  const auto peso = [](const Letto* r) {
    const double p = NumeroDi(Cerca(*r, "sfruttamento"));
    return std::isnan(p) ? (VeroDi(Cerca(*r, "passa")) ? 0 : HUGE_VAL) : p;
  };
  std::ranges::stable_sort(v, [&](const Letto* a, const Letto* b) {
    const bool pa = VeroDi(Cerca(*a, "passa")), pb = VeroDi(Cerca(*b, "passa"));
    return pa != pb ? pb : peso(a) > peso(b);
  });
  return v;
}

// A text on lines of at most COLONNE, folded at blanks.
static std::string Piega(std::string_view testa, std::string_view testo) {
  std::string t, riga(testa);
  while (!testo.empty()) {
    const std::size_t fine = std::min(testo.find_first_of(" \r\n"), testo.size());
    const std::string_view parola = testo.substr(0, fine);
    testo.remove_prefix(std::min(fine + 1, testo.size()));
    if (parola.empty()) continue;
    if (NumCaratteri(riga) + 1 + NumCaratteri(parola) > COLONNE && NumCaratteri(riga) > NumCaratteri(testa)) {
      t += riga + "\n";
      riga.assign(NumCaratteri(testa), ' ');
    }
    if (NumCaratteri(riga) > 0 && riga.back() != ' ') riga += ' ';
    riga += Entro(parola, COLONNE - NumCaratteri(testa));
  }
  return t + riga + "\n";
}

std::string TabellaNodo(std::string_view oggetto, bool primo) {
  Letto nodo;
  if (!json::Leggi(oggetto, nodo)) return {};
  const std::string_view metodo = TestoDi(Cerca(nodo, "metodo"));
  std::string titolo(TestoDi(Cerca(nodo, "nome")));
  if (!metodo.empty()) titolo.append(metodo == "ta" ? " - tensioni ammissibili" : " - stati limite");
  std::string t = primo ? "" : "\n";
  t +=
    Piega("", titolo.append(": ").append(TestoDi(Cerca(nodo, "stato"))).append("  (").append(TestoDi(Cerca(nodo, "percorso"))).append(")"));
  if (const std::string_view motivo = TestoDi(Cerca(nodo, "motivo")); !motivo.empty()) t += Piega("  motivo: ", motivo);
  const Letto* governanti = Cerca(nodo, "governanti");
  const Letto* righe = governanti != nullptr ? Cerca(*governanti, "per_controllo") : nullptr;
  if (righe != nullptr)
    for (const Letto* r : Ordinate(*righe)) t += RigaTabella(nodo, *r);
  if (const Letto* avvisi = Cerca(nodo, "avvisi"))
    for (const Letto& a : avvisi->voci) t += Piega("  avviso: ", TestoDi(Cerca(a, "testo")));
  return t;
}
