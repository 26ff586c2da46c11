// panels/valori.cpp - numbers of fields.
#include "panels/valori.h"

#include <cmath>

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "panels/controlli.h"

bool LeggiCampo(const Controllo& c, double& v) {
  if (Val(c.testo, v)) return true;
  passi.fallito = true;
  return false;
}

bool AssegnaFinito(double& variabile, double v) {
  if (!std::isfinite(v)) {
    SegnalaFault();
    return false;
  }
  variabile = v;
  return true;
}

void ImpostaNumero(Controllo& c, double v) {
  if (std::isfinite(v)) ImpostaTesto(c, NumeroPiano(v));
  else passi.fallito = true;
}
