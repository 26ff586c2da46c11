// reports/relazione_ta.cpp - report by allowable stresses (CNR 10011/88). Items joined by tabs. Values are judged after Arrotonda1 or
// Arrotonda2 and shown rounded with ties to even: at a half the number on paper may lie on the other side of its verdict.
#include "core/area_resistente.h"
#include "core/nomi_file.h"
#include "core/numeri.h"
#include "engine/limiti.h"
#include "engine/righe.h"
#include "model/stato.h"
#include "reports/Relazioni.h"
#include "reports/foglio.h"

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

static bool ScriviUnita(Foglio& f) {
  return Riga(f, TitoloNodi(), TITOLO_METODO) && Riga(f) && Riga(f, "UNITA' DI MISURA:") && Riga(f, "FORZE:\t\t", suite.UnitaForze) &&
         Riga(f, "MOMENTI:\t", suite.UnitaMomenti) && Riga(f, "TENSIONI:\t", suite.UnitaTensioni) && Riga(f, "DIMENSIONI:\tmm");
}

static bool ScriviGeometria(Foglio& f) {
  const Nodo& nodo = *f.l.nodo;
  const Sezione& z = nodo.Sezione;
  return Righe(f, RIGHE_PROFILI) &&
         Riga(f, "\t", NomeProfiloPerRelazione(z.Nome), "\t\t", z.H, "\t", z.B, "\t", z.A, "\t", z.E, "\t", z.R) &&
         Righe(f, RIGHE_PIASTRE) && Riga(f, "\t1\t", nodo.LatoZ, "\t", nodo.LatoY, "\t", nodo.SpessPiastra);
}

static bool ScriviTirafondi(Foglio& f) {
  const Nodo& nodo = *f.l.nodo;
  if (!Righe(f, RIGHE_TIRAFONDI) || !Riga(f, "\tTirafondi num.: ", nodo.NTir) || !Riga(f, "\tNum.\tZ\tY\tFi\tArea")) return false;
  for (int i = 1; i <= nodo.NTir; ++i)
    if (!Riga(f, "\t", i, "\t", nodo.LatoZ - nodo.TfZ[i], "\t", nodo.TfY[i], "\t", nodo.TfFi, "\t", AreaResistente(suite, nodo.TfFi)))
      return false;
  return Riga(f) && Riga(f, "\tl\tlft\tl1\tr") && Riga(f, "\t", nodo.TfL, "\t", nodo.TfLFt, "\t", nodo.TfL1, "\t", nodo.TfR);
}

// Written whatever TipoNodo, also for a joint without ribs.
static bool ScriviNervature(Foglio& f) {
  const Nodo& nodo = *f.l.nodo;
  return Righe(f, RIGHE_NERVATURE) && Riga(f, "\tY\t", nodo.LatoY, "\t", nodo.HNerv, "\t", nodo.SpNerv) &&
         Riga(f, "\tZ\t", (nodo.LatoZ - nodo.Sezione.B) / 2 - nodo.SpNerv, "\t", nodo.HNerv, "\t", nodo.SpNerv);
}

static bool ScriviSaldature(Foglio& f) {
  const Nodo& nodo = *f.l.nodo;
  if (!Righe(f, RIGHE_SALDATURE) || !Riga(f, "\tNum. saldature: ", f.l.NumSaldature) || !Riga(f, "\tNome\tLungh.\tLato")) return false;
  for (int w = 1; w <= f.l.NumSaldature; ++w)
    if (SaldaturaElencata(nodo, w) && !Riga(f, "\t", f.l.ris.Saldature[w].Nome, "\t", f.l.ris.Saldature[w].Lung, "\t", nodo.Gola))
      return false;
  return true;
}

static bool ScriviMateriali(Foglio& f) {
  const Nodo& nodo = *f.l.nodo;
  const MatAcciaio &acc = nodo.MatAcc, &tir = nodo.MatTir;
  return Righe(f, RIGHE_MATERIALI) && Riga(f, "\t\t\tAcciaio ", acc.Nome, ", S_adm\t\tCls ", nodo.MatCls.Nome) &&
         Riga(f, "\t\t\tsp <= 40mm\tsp > 40mm\tS_adm") &&
         Riga(f, "\tComb. car. I\t", RD(acc.SAmm), "\t\t", RD(acc.SAmm40), "\t\t", RD(f.l.SAmmCls)) &&
         Riga(f, "\tComb. car. II\t", RD(acc.SAmm * CLASSE_II), "\t\t", RD(acc.SAmm40 * CLASSE_II), "\t") &&
         Riga(f, "\t\t\tAcciaio tirafondi ", tir.Nome, ", S_adm\t\t") && Riga(f, "\tComb. car. I\t", RD(tir.Fyk / 1.5 / 1.33)) &&
         Riga(f, "\tComb. car. II\t", RD(tir.Fyk / 1.5 * CLASSE_II / 1.33));
}

static bool ScriviTestata(Foglio& f) {
  return ScriviUnita(f) && ScriviGeometria(f) && ScriviTirafondi(f) && ScriviNervature(f) && ScriviSaldature(f) && ScriviMateriali(f) &&
         Righe(f, RIGHE_STATO);
}

static bool ScriviSestetto(Foglio& f, int s) {
  const Nodo& nodo = *f.l.nodo;
  const double F = suite.FattForze, M = suite.FattMomenti;
  return TitoloCombinazione(f, s) && Riga(f, "N: ", F * nodo.SollN[s], "\tTy: ", F * nodo.SollTy[s], "\tTz: ", F * nodo.SollTz[s], "\t") &&
         Riga(f, "Mt: ", M * nodo.SollMt[s], "\tMy: ", M * nodo.SollMy[s], "\tMz: ", M * nodo.SollMz[s], "\t\t") &&
         Riga(f, "Combinazione di carico tipo ", nodo.SollCC[s] == 0 ? "I" : "II");
}

static bool RigaTirafondo(Foglio& f, int s, int i) {
  const Risultati& ris = f.l.ris;
  const RigaControllo& coeff = RigheCriterio(f.l, s, TA_TIR_COEFF)[static_cast<std::size_t>(i - 1)];
  return Riga(f, "\t", i, "\t", RD(ris.SigmaTir[s][i] * MM2_SU_CM2), "\t\t", RD(ris.TauTir[s][i] * MM2_SU_CM2), "\t", coeff.domanda, "\t",
              RF(ris.TiroTir[s][i]), "\t\t", RD(ris.SRfTir[s][i] * MM2_SU_CM2));
}

// The limits' line shows a force, the bond, rounded to the decimals of stresses: in kN at fewer decimals than other forces.
static bool BloccoTirafondi(Foglio& f, int s) {
  const LimitiTA& l = f.l.limitiTA[s];
  const Arrotondato tiro = {l.TadRd * suite.FattForze, suite.DecTensioni};
  if (!Righe(f, RIGHE_LIMITI) || !Riga(f, "\t\t", RD(l.SAdmTir), "\t\t", RD(l.TauAdmTir), "\t\t", tiro, "\t\t", RD(l.SRfAdm)) ||
      !Riga(f, "\tNum.\tSigma\t\tTau\tCoeff\tTiro tf\t\tS_rf p"))
    return false;
  for (int i = 1; i <= f.l.nodo->NTir; ++i)
    if (!RigaTirafondo(f, s, i)) return false;
  return true;
}

// The stresses of the end that gives the ratio; "% su adm" shows the ratio itself.
static bool RigaSaldatura(Foglio& f, int s, const RigaControllo& r) {
  const Saldatura& d = f.l.ris.Saldature[r.elemento];
  const int k = d.Estremo[s];
  return Riga(f, "\t", d.Nome, "\t", RD(d.SPrp[s][k] * MM2_SU_CM2), "\t", RD(d.TauPa[s][k] * MM2_SU_CM2), "\t",
              RD(d.TauPe[s][k] * MM2_SU_CM2), "\t", Arrotonda2(r.domanda));
}

static bool BloccoSaldature(Foglio& f, int s) {
  if (!Righe(f, RIGHE_BLOCCO_SALDATURE)) return false;
  for (const RigaControllo& r : RigheCriterio(f.l, s, TA_SALD))
    if (!RigaSaldatura(f, s, r)) return false;
  return true;
}

static bool RigaValoreLimite(Foglio& f, double valore, const RigaControllo& r) { return Riga(f, "\t\t", RD(valore), "\t\t", RD(r.limite)); }

static bool BloccoPiastra(Foglio& f, int s) {
  return Riga(f) && Riga(f, "\tPiastra\tS_max\t\tS_adm") &&
         RigaValoreLimite(f, f.l.ris.SMaxPiastra[s] * MM2_SU_CM2, RigheCriterio(f.l, s, TA_PIASTRA)[0]);
}

static bool RigaNervatura(Foglio& f, int s, const char* nome, const int (&posizioni)[4], int criterio) {
  return Riga(f, "\t", nome, "\t", RD(SMaxNervatura(f.l.ris, s, posizioni) * MM2_SU_CM2), "\t\t",
              RD(RigheCriterio(f.l, s, criterio)[0].limite));
}

static bool BloccoNervature(Foglio& f, int s) {
  if (f.l.nodo->TipoNodo != 2) return true;
  return Riga(f) && Riga(f, "\tFazz.\tS_id max\tS_adm") && RigaNervatura(f, s, "Z", POSIZIONI_Z, TA_NERV_Z) &&
         RigaNervatura(f, s, "Y", POSIZIONI_Y, TA_NERV_Y);
}

static bool BloccoPlinto(Foglio& f, int s) {
  return Riga(f) && Riga(f, "\tPlinto\tS_max\t\tS_adm") &&
         RigaValoreLimite(f, f.l.ris.SMaxCls[s] * MM2_SU_CM2, RigheCriterio(f.l, s, TA_CLS)[0]);
}

static bool ScriviBlocco(Foglio& f, int s) {
  return ScriviSestetto(f, s) && BloccoTirafondi(f, s) && BloccoSaldature(f, s) && BloccoPiastra(f, s) && BloccoNervature(f, s) &&
         BloccoPlinto(f, s) && EsitoCombinazione(f, s);
}

static bool ScriviTutto(Foglio& f) {
  if (!ScriviTestata(f) || !Riga(f, "\t", f.l.CoeffRifollamento)) return false;
  for (int s = 1; s <= f.l.nodo->NumSoll; ++s)
    if (!ScriviBlocco(f, s)) return false;
  return true;
}

bool RelazioneTA(const Lavoro& l) {
  Foglio f{l, {}, {}};
  return ApriFoglio(f, "TA") && ConcludiFoglio(f, ScriviTutto(f));
}
