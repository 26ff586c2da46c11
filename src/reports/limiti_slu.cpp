// reports/limiti_slu.cpp - weld factors and design strengths, NTC 2008.
#include "reports/limiti_slu.h"

#include "core/testo.h"
#include "model/node_model.h"

namespace {

struct Famiglia { const char* grado; BetaSaldature beta; };
constexpr Famiglia FAMIGLIE[] = {          // in the order of the tests
  {"235", {0.85, 1.0}},
  {"275", {0.7, 0.85}}, {"355", {0.7, 0.85}},
  {"420", {0.62, 0.75}}, {"450", {0.62, 0.75}}, {"460", {0.62, 0.75}},
};

}  // namespace

BetaSaldature CalcolaBeta() {
  for (const Famiglia& f : FAMIGLIE)
    if (Contiene(nodo.MatAcc.Nome, f.grado)) return f.beta;
  return {};
}

double CalcolaFd(double spessore) {
  return (spessore <= SpessSottile ? nodo.MatAcc.Fyk : nodo.MatAcc.Fyk40) / nodo.MatAcc.GammaM;
}

double CalcolaFcd() { return 0.85 * 0.83 * nodo.MatCls.Rck / nodo.MatCls.GammaC; }
