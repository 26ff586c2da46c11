// reports/relazione_ta.cpp - report and verdicts by allowable stresses (CNR 10011/88). Items joined by tabs; the order of the
// lines is the order of the checks. Each check is strict: a value on its limit passes. Values are judged after Arrotonda1 or
// Arrotonda2 and shown rounded with ties to even; deliberate.
#include <cmath>

#include "core/diametri.h"
#include "core/numeri.h"
#include "model/node_model.h"
#include "reports/Relazioni.h"
#include "reports/foglio.h"
#include "reports/nomi_file.h"
#include "reports/verifiche_ta.h"

namespace {

constexpr const char* TITOLO_METODO = " - METODO DELLE TENSIONI AMMISSIBILI (CNR 10011/88)";

constexpr const char* RIGHE_PROFILI[] = {"", "GEOMETRIA NODO", "", "\tProfili utilizzati", "\tTipo prof.\th\tb\ta\te\tr"};
constexpr const char* RIGHE_PIASTRE[] = {"", "\tPiastre", "\tNum.\tlz\tly\ts"};
constexpr const char* RIGHE_TIRAFONDI[] = {"", "TIRAFONDI", ""};
constexpr const char* RIGHE_NERVATURE[] = {"", "NERVATURE", "", "\tNome\tl\th\ts"};
constexpr const char* RIGHE_SALDATURE[] = {"", "SALDATURE", ""};
constexpr const char* RIGHE_MATERIALI[] = {"", "MATERIALI", ""};
constexpr const char* RIGHE_STATO[] = {"", "", "SOLLECITAZIONI AGENTI E STATO TENSIONALE", "", "\tCoefficiente di rifollamento"};
constexpr const char* RIGHE_LIMITI[] = {"", "\tTirafondi", "\t\tS_adm tf\tT_adm tf\tTiro max tf\tS_rf_adm p"};
constexpr const char* RIGHE_BLOCCO_SALDATURE[] = {"", "\tSaldature", "\tNome\tS_prp\tTau_pa\tTau_pe\t% su adm"};

bool SaldaturaElencata(int w) { return !SaldaturaInterna(w) || nodo.SaldInt == 1; }

bool ScriviUnita(Foglio& f) {
  return Riga(f, TitoloNodi(), TITOLO_METODO) && Riga(f) && Riga(f, "UNITA' DI MISURA:") &&
         Riga(f, "FORZE:\t\t", suite.UnitaForze) && Riga(f, "MOMENTI:\t", suite.UnitaMomenti) &&
         Riga(f, "TENSIONI:\t", suite.UnitaTensioni) && Riga(f, "DIMENSIONI:\tmm");
}

bool ScriviGeometria(Foglio& f) {
  const Sezione& z = nodo.Sezione;
  return Righe(f, RIGHE_PROFILI) &&
         Riga(f, "\t", NomeProfiloPerRelazione(z.Nome), "\t\t", z.H, "\t", z.B, "\t", z.A, "\t", z.E, "\t", z.R) &&
         Righe(f, RIGHE_PIASTRE) && Riga(f, "\t1\t", nodo.LatoZ, "\t", nodo.LatoY, "\t", nodo.SpessPiastra);
}

bool ScriviTirafondi(Foglio& f) {
  if (!Righe(f, RIGHE_TIRAFONDI) || !Riga(f, "\tTirafondi num.: ", nodo.NTir) || !Riga(f, "\tNum.\tZ\tY\tFi\tArea")) return false;
  for (int i = 1; i <= nodo.NTir; ++i)
    if (!Riga(f, "\t", i, "\t", nodo.LatoZ - nodo.TfZ[i], "\t", nodo.TfY[i], "\t", nodo.TfFi, "\t", AreaResistente(nodo.TfFi)))
      return false;
  return Riga(f) && Riga(f, "\tl\tlft\tl1\tr") && Riga(f, "\t", nodo.TfL, "\t", nodo.TfLFt, "\t", nodo.TfL1, "\t", nodo.TfR);
}

// Written whatever TipoNodo, also for a joint without ribs; deliberate.
bool ScriviNervature(Foglio& f) {
  return Righe(f, RIGHE_NERVATURE) && Riga(f, "\tY\t", nodo.LatoY, "\t", nodo.HNerv, "\t", nodo.SpNerv) &&
         Riga(f, "\tZ\t", (nodo.LatoZ - nodo.Sezione.B) / 2 - nodo.SpNerv, "\t", nodo.HNerv, "\t", nodo.SpNerv);
}

bool ScriviSaldature(Foglio& f) {
  if (!Righe(f, RIGHE_SALDATURE) || !Riga(f, "\tNum. saldature: ", nodo.NumSaldature) || !Riga(f, "\tNome\tLungh.\tLato")) return false;
  for (int w = 1; w <= nodo.NumSaldature; ++w)
    if (SaldaturaElencata(w) && !Riga(f, "\t", ris.Saldature[w].Nome, "\t", ris.Saldature[w].Lung, "\t", nodo.Gola)) return false;
  return true;
}

bool ScriviMateriali(Foglio& f) {
  const MatAcciaio &acc = nodo.MatAcc, &tir = nodo.MatTir;
  return Righe(f, RIGHE_MATERIALI) && Riga(f, "\t\t\tAcciaio ", acc.Nome, ", S_adm\t\tCls ", nodo.MatCls.Nome) &&
         Riga(f, "\t\t\tsp <= 40mm\tsp > 40mm\tS_adm") &&
         Riga(f, "\tComb. car. I\t", RD(acc.SAmm), "\t\t", RD(acc.SAmm40), "\t\t", RD(nodo.MatCls.SAmm)) &&
         Riga(f, "\tComb. car. II\t", RD(acc.SAmm * CLASSE_II), "\t\t", RD(acc.SAmm40 * CLASSE_II), "\t") &&
         Riga(f, "\t\t\tAcciaio tirafondi ", tir.Nome, ", S_adm\t\t") &&
         Riga(f, "\tComb. car. I\t", RD(tir.Fyk / 1.5 / 1.33)) &&
         Riga(f, "\tComb. car. II\t", RD(tir.Fyk / 1.5 * CLASSE_II / 1.33));
}

bool ScriviTestata(Foglio& f) {
  return ScriviUnita(f) && ScriviGeometria(f) && ScriviTirafondi(f) && ScriviNervature(f) && ScriviSaldature(f) &&
         ScriviMateriali(f) && Righe(f, RIGHE_STATO);
}

bool ScriviSestetto(Foglio& f, int s) {
  const double F = suite.FattForze, M = suite.FattMomenti;
  return TitoloCombinazione(f, s) &&
         Riga(f, "N: ", F * nodo.SollN[s], "\tTy: ", F * nodo.SollTy[s], "\tTz: ", F * nodo.SollTz[s], "\t") &&
         Riga(f, "Mt: ", M * nodo.SollMt[s], "\tMy: ", M * nodo.SollMy[s], "\tMz: ", M * nodo.SollMz[s], "\t\t") &&
         Riga(f, "Combinazione di carico tipo ", nodo.SollCC[s] == 0 ? "I" : "II");
}

// The tables of anchor i go to daN/cm2 in place (the force does not) before they are judged.
bool VerificaTirafondo(Foglio& f, int s, int i, const LimitiTA& l) {
  double &Sigma = ris.SigmaTir[s][i], &Tau = ris.TauTir[s][i], &SRf = ris.SRfTir[s][i];
  Sigma *= f.c;
  Tau *= f.c;
  SRf *= f.c;
  const double t = Tau / l.TauAdmTir, n = Sigma / l.SAdmTir;
  const double Coeff = Arrotonda2(t * t + n * n);      // no root over the sum
  if (Coeff > 1) f.Verificato = false;
  if (std::fabs(SRf) > l.SRfAdm) f.Verificato = false;
  if (std::fabs(ris.TiroTir[s][i]) > ris.TadRd) f.Verificato = false;
  return Riga(f, "\t", i, "\t", RD(Sigma), "\t\t", RD(Tau), "\t", Coeff, "\t", RF(ris.TiroTir[s][i]), "\t\t", RD(SRf));
}

// The limits' line shows a force, the bond, rounded to the decimals of stresses; deliberate.
bool BloccoTirafondi(Foglio& f, int s, const LimitiTA& l) {
  const Arrotondato tiro = {ris.TadRd * suite.FattForze, suite.DecTensioni};
  if (!Righe(f, RIGHE_LIMITI) ||
      !Riga(f, "\t\t", RD(l.SAdmTir), "\t\t", RD(l.TauAdmTir), "\t\t", tiro, "\t\t", RD(l.SRfAdm)) ||
      !Riga(f, "\tNum.\tSigma\t\tTau\tCoeff\tTiro tf\t\tS_rf p"))
    return false;
  for (int i = 1; i <= nodo.NTir; ++i)
    if (!VerificaTirafondo(f, s, i, l)) return false;
  return true;
}

bool BloccoSaldature(Foglio& f, int s, const LimitiTA& l) {
  if (!Righe(f, RIGHE_BLOCCO_SALDATURE)) return false;
  for (int w = 1; w <= nodo.NumSaldature; ++w) {
    if (!SaldaturaElencata(w)) continue;
    double sPrp = 0, tauPa = 0, tauPe = 0, rapporto = 0;
    VerificaSaldaturaTA(s, w, l.SAdmSald, f.Verificato, sPrp, tauPa, tauPe, rapporto);
    // "% su adm" shows the ratio itself.
    if (!Riga(f, "\t", ris.Saldature[w].Nome, "\t", RD(sPrp), "\t", RD(tauPa), "\t", RD(tauPe), "\t", Arrotonda2(rapporto))) return false;
  }
  return true;
}

bool BloccoPiastra(Foglio& f, int s, const LimitiTA& l) {
  if (!Riga(f) || !Riga(f, "\tPiastra\tS_max\t\tS_adm")) return false;
  ris.SMaxPiastra[s] *= f.c;
  if (Arrotonda1(ris.SMaxPiastra[s]) > l.SAdmPiastra) f.Verificato = false;      // not absolute
  return Riga(f, "\t\t", RD(ris.SMaxPiastra[s]), "\t\t", RD(l.SAdmPiastra));
}

bool RigaNervatura(Foglio& f, int s, const char* nome, const int (&posizioni)[4], const LimitiTA& l) {
  const double S = SMaxNervatura(s, posizioni) * f.c;
  if (Arrotonda1(S) > l.SAdmNerv) f.Verificato = false;
  return Riga(f, "\t", nome, "\t", RD(S), "\t\t", RD(l.SAdmNerv));
}

bool BloccoNervature(Foglio& f, int s, const LimitiTA& l) {
  if (nodo.TipoNodo != 2) return true;
  return Riga(f) && Riga(f, "\tFazz.\tS_id max\tS_adm") && RigaNervatura(f, s, "Z", POSIZIONI_Z, l) &&
         RigaNervatura(f, s, "Y", POSIZIONI_Y, l);
}

bool BloccoPlinto(Foglio& f, int s) {
  if (!Riga(f) || !Riga(f, "\tPlinto\tS_max\t\tS_adm")) return false;
  ris.SMaxCls[s] *= f.c;
  if (Arrotonda1(ris.SMaxCls[s]) > nodo.MatCls.SAmm) f.Verificato = false;
  return Riga(f, "\t\t", RD(ris.SMaxCls[s]), "\t\t", RD(nodo.MatCls.SAmm));
}

bool ScriviBlocco(Foglio& f, int s, double CoeffRifollamento) {
  f.Verificato = true;
  if (!ScriviSestetto(f, s)) return false;
  const LimitiTA l = CalcolaLimitiTA(s, CoeffRifollamento);
  ris.TadRd = MinDi(AreaResistente(nodo.TfFi) * l.SAdmTir / 100, ris.TadRd);   // a running minimum over the sextets; deliberate
  return BloccoTirafondi(f, s, l) && BloccoSaldature(f, s, l) && BloccoPiastra(f, s, l) && BloccoNervature(f, s, l) &&
         BloccoPlinto(f, s) && EsitoCombinazione(f, s);
}

bool ScriviTutto(Foglio& f) {
  if (!ScriviTestata(f)) return false;
  const double CoeffRifollamento = CalcolaCoeffRifollamento();
  if (!Riga(f, "\t", CoeffRifollamento)) return false;
  for (int s = 1; s <= nodo.NumSoll; ++s)
    if (!ScriviBlocco(f, s, CoeffRifollamento)) return false;
  return true;
}

}  // namespace

bool RelazioneTA() {
  Foglio f;
  return ApriFoglio(f, "TA") && ConcludiFoglio(f, ScriviTutto(f));
}
