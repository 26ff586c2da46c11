// link/profili.cpp - one table of layouts, one reader.
#include "link/profili.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "model/suite.h"

constexpr const char* FINE_PROFILARIO = "*END*";

namespace {
// A value that follows from another one of the same line.
struct Derivato {
  double Sezione::*campo = nullptr;
  double Sezione::*da = nullptr;
  double per = 1;
};

// Words behind family and size, one letter a word: S Area, 1 2 t the second moments, c class, H B A E R, r R2, x Xc, y Yc, - skipped.
struct Layout {
  const char* famiglie;  // a blank on each side
  const char* parole;
  Derivato derivati[2];
};
}  // namespace

// clang-format off
constexpr Layout LAYOUT[] = {
    {FILTRO_PROFILI, "S1--2----t---" "c" "--HBAER", {}},
    {" INP ", "S1--2----t---" "c" "--HBAERr", {}},
    {" TUBO ", "S1-2-t--" "c" "--BA", {}},
    {" T.QUAD ", "S1-2-t--" "c" "--BA", {{&Sezione::H, &Sezione::B}}},
    {" LD ", "S1-2-t--" "c" "--HBAxyRr", {{&Sezione::E, &Sezione::R2}}},
    {" LLU ", "S12--" "c" "--BAE", {{&Sezione::H, &Sezione::E}}},
    {" LU ", "S1-2-t--" "c" "--BAxy-Rr", {{&Sezione::H, &Sezione::R2}, {&Sezione::E, &Sezione::R2}}},
    {" UPN ", "S1-2-t--" "c" "--HBAEyRr", {{&Sezione::Xc, &Sezione::B, 0.5}}},
};
// clang-format on

namespace {
// Which field a letter fills, and how it scales: 1 length, 2 area, 4 second moment.
struct Campo {
  char lettera;
  double Sezione::*campo;
  int potenza;
};
}  // namespace

// clang-format off
constexpr Campo CAMPI[] = {
    {'H', &Sezione::H, 1},    {'B', &Sezione::B, 1},  {'A', &Sezione::A, 1},  {'E', &Sezione::E, 1},
    {'R', &Sezione::R, 1},    {'r', &Sezione::R2, 1}, {'x', &Sezione::Xc, 1}, {'y', &Sezione::Yc, 1},
    {'S', &Sezione::Area, 2}, {'1', &Sezione::J1, 4}, {'2', &Sezione::J2, 4}, {'t', &Sezione::Jt, 4},
};
// clang-format on

static bool InElenco(std::string_view elenco, std::string_view famiglia) { return Contiene(elenco, " " + std::string(famiglia) + " "); }

static const Layout* LayoutDi(std::string_view famiglia) {
  for (const Layout& l : LAYOUT)
    if (!famiglia.empty() && InElenco(l.famiglie, famiglia)) return &l;
  return nullptr;
}

static double Sezione::*CampoDi(char lettera) {
  for (const Campo& c : CAMPI)
    if (c.lettera == lettera) return c.campo;
  return nullptr;
}

static void LeggiParole(const Layout& layout, std::string& resto, Sezione& sez) {
  for (const char* p = layout.parole; *p != '\0'; ++p) {
    const std::string parola = TokenSuccessivo(resto);
    if (*p == 'c') sez.Tipo = PrimiCaratteri(parola, 1);
    else if (*p != '-' && !Val(parola, sez.*CampoDi(*p))) passi.fallito = true;
  }
  for (const Derivato& d : layout.derivati)
    if (d.campo != nullptr) sez.*d.campo = sez.*d.da * d.per;
}

// A value that would overflow is a failed step and stays 0.
static void Scala(Sezione& sez, double fattLung, double fattArea) {
  const double a2 = fattArea * fattArea;
  for (const Campo& c : CAMPI) {
    const double k = c.potenza == 1 ? fattLung : c.potenza == 2 ? a2 : a2 * a2;
    double& v = sez.*c.campo;
    const bool troppo = k > 1 && std::abs(v) > std::numeric_limits<double>::max() / k;
    if (troppo) passi.fallito = true;
    v = troppo ? 0 : v * k;
  }
}

int LeggiProfili(std::string_view percorso, int primo, Sezione* tabella, double fattLung, double fattArea, std::string_view filtro,
                 std::string_view nome) {
  FileLettura f;
  if (primo < 1 || !ApriLettura(f, percorso)) return 0;
  int i = primo;
  std::string riga;
  while (i <= MaxProfili) {
    if (!LeggiRiga(f, riga)) {  // no end line: nothing is kept
      std::fill(tabella + primo, tabella + i, Sezione{});
      return 0;
    }
    std::string resto(Rifila(riga));
    if (resto == FINE_PROFILARIO) break;
    if (resto == "*" || resto == "%") continue;
    const std::string famiglia = TokenSuccessivo(resto);
    const std::string intero = famiglia + TokenSuccessivo(resto);
    if (filtro.empty() ? famiglia.empty() : !InElenco(filtro, famiglia)) continue;
    if (!nome.empty() && AllineaSinistra(intero, LungNomeSez) != AllineaSinistra(nome, LungNomeSez)) continue;
    const Layout* layout = LayoutDi(famiglia);
    if (layout == nullptr) continue;
    Sezione sez;
    sez.Nome = AllineaSinistra(intero, LungNomeSez);
    LeggiParole(*layout, resto, sez);
    Scala(sez, fattLung, fattArea);
    tabella[i++] = sez;
    if (!nome.empty()) break;
  }
  return i - primo;
}
