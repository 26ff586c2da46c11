// materials/regole_materiali.cpp - usable grades, the grade that stands in, values as text.
#include "materials/regole_materiali.h"

#include <algorithm>

#include "core/numeri.h"
#include "core/testo.h"
#include "model/materiali.h"

static bool Entrambi(double a, double b) { return a > 0 && b > 0; }

bool MaterialeValido(bool metodoTA, std::string_view ruolo, const MatAcciaio& mat) {
  const bool profili = ruolo == "PROFILI";
  if (!profili && ruolo != "BULLONI") return false;
  if (metodoTA) return Entrambi(mat.SAmm, mat.SAmm40);
  return profili ? Entrambi(mat.Fyk, mat.Fyk40) : Entrambi(mat.Ftk, mat.Ftk40);
}

int IndiceMaterialeAlternativo(bool metodoTA, std::string_view ruolo, std::string_view selezione, int conteggio,
                               const MatAcciaio* tabella) {
  for (int i = 1; i <= std::min(conteggio, MaxMateriali); ++i) {
    const MatAcciaio& m = tabella[i];
    if (!MaterialeValido(metodoTA, ruolo, m) || m.Nome == selezione) continue;
    if (Contiene(m.Nome, selezione) || Contiene(selezione, m.Nome)) return i - 1;
  }
  return 0;
}

std::string ImpostaValoreMat_(double valore, int decimali) { return valore < 0 ? "-" : NumeroPiano(ArrotondaPari(valore, decimali)); }
