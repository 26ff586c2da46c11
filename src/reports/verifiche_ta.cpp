// reports/verifiche_ta.cpp - allowable limits and the weld ratio, CNR 10011/88.
#include "reports/verifiche_ta.h"

#include <cmath>

#include "core/numeri.h"
#include "core/testo.h"
#include "core/unita.h"
#include "model/node_model.h"

namespace {

// Weld coefficients by the steel's whole name in capitals. Another name has none, and its check divides by zero; the limit-state
// report matches parts of the name instead, deliberately: the two are not one table.
struct CoeffSaldatura { const char* Nome; double k1, k2; };
constexpr CoeffSaldatura COEFFICIENTI[] = {
  {"S 235 (FE 360)", 0.85, 1.0},
  {"S 275 (FE 430)", 0.7, 0.85},
  {"S 355 (FE 510)", 0.7, 0.85},
};

CoeffSaldatura CoefficientiDi(const MatAcciaio& mat) {
  for (const CoeffSaldatura& c : COEFFICIENTI)       // as the catalogue writes it: no copy of the name a weld
    if (mat.Nome == c.Nome) return c;
  const std::string nome = Maiuscolo(mat.Nome);
  for (const CoeffSaldatura& c : COEFFICIENTI)
    if (nome == c.Nome) return c;
  return {"", 0, 0};
}

double LimiteAcciaio(double spessore, double FattComb) {
  return Arrotonda1((spessore <= SpessSottile ? nodo.MatAcc.SAmm : nodo.MatAcc.SAmm40) * FattComb);
}

// Stress over limit at one point, by which of its three stresses are not zero. f takes daN/mm2 to daN/cm2; in the sums the
// transverse stress carries no f; deliberate.
double RapportoPunto(double S, double Pa, double Pe, double f, double k1, double k2, double Sadm) {
  const auto somma = [&] { return (f * std::fabs(S) + std::fabs(Pe)) / k2 / Sadm; };
  if (S != 0 && Pa != 0 && Pe != 0) return MaxDi(f * std::sqrt(S * S + Pa * Pa + Pe * Pe) / k1 / Sadm, somma());
  if (S != 0 && Pe != 0)
    return MaxDi(MaxDi(somma(), f * std::fabs(Pe) / k1 / Sadm), f * std::fabs(S) / k1 / Sadm);
  if (Pa != 0 && Pe != 0) return f * std::sqrt(Pa * Pa + Pe * Pe) / k1 / Sadm;
  if (S != 0 && Pa != 0) return f * std::sqrt(S * S + Pa * Pa) / k1 / Sadm;
  if (S != 0) return f * std::fabs(S) / k1 / Sadm;
  if (Pa != 0) return f * std::fabs(Pa) / k1 / Sadm;
  if (Pe != 0) return f * std::fabs(Pe) / k1 / Sadm;
  return 0;
}

}  // namespace

double CalcolaCoeffRifollamento() {
  const double Fi = nodo.TfFi;
  double a = Arrotonda1(MinDi(nodo.TfZ[1] / Fi, 2.5));
  a = Arrotonda1(MinDi(MinDi(nodo.TfZ[1] / Fi, a), MinDi(nodo.TfY[1] / Fi, a)));
  return Arrotonda1(MinDi(MinDi((nodo.LatoZ - nodo.TfZ[2]) / Fi, a), MinDi((nodo.LatoY - nodo.TfY[3]) / Fi, a)));
}

LimitiTA CalcolaLimitiTA(int s, double CoeffRifollamento) {
  LimitiTA l;
  l.FattComb = nodo.SollCC[s] == 0 ? 1.0 : CLASSE_II;
  l.SAdmPiastra = LimiteAcciaio(nodo.SpessPiastra, l.FattComb);
  l.SAdmNerv = LimiteAcciaio(nodo.SpNerv, l.FattComb);
  l.SAdmTir = Arrotonda1(nodo.MatTir.Fyk / 1.33 / 1.5 * l.FattComb);
  l.TauAdmTir = Arrotonda1(l.SAdmTir / std::sqrt(3.0));
  l.SRfAdm = Arrotonda1(l.SAdmPiastra * CoeffRifollamento);
  l.SAdmSald = Arrotonda1(l.FattComb * nodo.MatAcc.SAmm);
  return l;
}

void VerificaSaldaturaTA(int s, int w, double Sadm, bool& esito, double& sp, double& tpa, double& tpe, double& rapporto) {
  const CoeffSaldatura coeff = CoefficientiDi(nodo.MatAcc);
  const double mm = FattLunghezza("mm"), f = mm * mm;
  const Saldatura& sald = ris.Saldature[w];
  double R[4] = {};
  for (int k = 1; k <= 3; ++k)
    R[k] = RapportoPunto(sald.SPrp[s][k], sald.TauPa[s][k], sald.TauPe[s][k], f, coeff.k1, coeff.k2, Sadm);
  const int k = R[3] > R[1] ? 3 : 1;
  if (R[k] > 1) esito = false;
  rapporto = R[k];
  sp = sald.SPrp[s][k] * f;
  tpa = sald.TauPa[s][k] * f;
  tpe = sald.TauPe[s][k] * f;
}
