// engine/limiti.cpp - allowable limits, CNR 10011/88; design strengths and weld factors, NTC 2008.
#include "engine/limiti.h"

#include <cmath>

#include "core/numeri.h"
#include "core/testo.h"
#include "model/node_model.h"

static double LimiteAcciaio(const Nodo& nodo, double spessore, double FattComb) {
  return Arrotonda1((spessore <= SpessSottile ? nodo.MatAcc.SAmm : nodo.MatAcc.SAmm40) * FattComb);
}

double CalcolaCoeffRifollamento(const Nodo& nodo) {
  const double Fi = nodo.TfFi;
  double a = Arrotonda1(MinDi(nodo.TfZ[1] / Fi, 2.5));
  a = Arrotonda1(MinDi(MinDi(nodo.TfZ[1] / Fi, a), MinDi(nodo.TfY[1] / Fi, a)));
  return Arrotonda1(MinDi(MinDi((nodo.LatoZ - nodo.TfZ[2]) / Fi, a), MinDi((nodo.LatoY - nodo.TfY[3]) / Fi, a)));
}

LimitiTA CalcolaLimitiTA(const Nodo& nodo, int s, double CoeffRifollamento) {
  LimitiTA l;
  l.FattComb = nodo.SollCC[s] == 0 ? 1.0 : CLASSE_II;
  l.SAdmPiastra = LimiteAcciaio(nodo, nodo.SpessPiastra, l.FattComb);
  l.SAdmNerv = LimiteAcciaio(nodo, nodo.SpNerv, l.FattComb);
  l.SAdmTir = Arrotonda1(nodo.MatTir.Fyk / 1.33 / 1.5 * l.FattComb);
  l.TauAdmTir = Arrotonda1(l.SAdmTir / std::sqrt(3.0));
  l.SRfAdm = Arrotonda1(l.SAdmPiastra * CoeffRifollamento);
  l.SAdmSald = Arrotonda1(l.FattComb * nodo.MatAcc.SAmm);
  return l;
}

namespace {
struct Famiglia {
  const char* grado;
  BetaSaldature beta;
};
}  // namespace

// clang-format off
static constexpr Famiglia FAMIGLIE[] = {   // in the order of the tests
  {"235", {0.85, 1.0}},
  {"275", {0.7, 0.85}}, {"355", {0.7, 0.85}},
  {"420", {0.62, 0.75}}, {"450", {0.62, 0.75}}, {"460", {0.62, 0.75}},
};
// clang-format on

BetaSaldature CalcolaBeta(const MatAcciaio& acciaio) {
  for (const Famiglia& f : FAMIGLIE)
    if (Contiene(acciaio.Nome, f.grado)) return f.beta;
  return {};
}

double CalcolaFd(const MatAcciaio& acciaio, double spessore) {
  return (spessore <= SpessSottile ? acciaio.Fyk : acciaio.Fyk40) / acciaio.GammaM;
}

LimitiSLU CalcolaLimitiSLU(const Nodo& nodo) {
  const BetaSaldature beta = CalcolaBeta(nodo.MatAcc);
  LimitiSLU l;
  l.FdPiastra = CalcolaFd(nodo.MatAcc, nodo.SpessPiastra);
  l.FdNerv = CalcolaFd(nodo.MatAcc, nodo.SpNerv);
  l.Fcd = 0.85 * 0.83 * nodo.MatCls.Rck / nodo.MatCls.GammaC;
  l.SLim1 = beta.Beta1 * nodo.MatAcc.Fyk;
  l.SLim2 = beta.Beta2 * nodo.MatAcc.Fyk;
  return l;
}

static constexpr CoeffSaldatura COEFFICIENTI[] = {
  {"S 235 (FE 360)", 0.85, 1.0},
  {"S 275 (FE 430)", 0.7, 0.85},
  {"S 355 (FE 510)", 0.7, 0.85},
};

CoeffSaldatura CoefficientiDi(const MatAcciaio& acciaio) {
  for (const CoeffSaldatura& c : COEFFICIENTI)  // as the catalogue writes it: no copy of the name a sextet
    if (acciaio.Nome == c.Nome) return c;
  const std::string nome = Maiuscolo(acciaio.Nome);
  for (const CoeffSaldatura& c : COEFFICIENTI)
    if (nome == c.Nome) return c;
  return {"", 0, 0};
}
