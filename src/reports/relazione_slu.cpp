// reports/relazione_slu.cpp - report and verdicts by limit states (NTC 2008). Cells of fixed width with bars; the order of the
// lines is the order of the checks. Each check is strict: a value on its limit passes. A narrow cell never cuts its text, and
// the blanks behind a left-aligned one stay.
#include <cmath>

#include "core/diametri.h"
#include "core/numeri.h"
#include "engine/Saldature.h"
#include "model/node_model.h"
#include "reports/Relazioni.h"
#include "reports/foglio.h"
#include "reports/limiti_slu.h"
#include "reports/nomi_file.h"

namespace {

constexpr const char* TITOLO_METODO = " - METODO DEGLI STATI LIMITE (NTC 2008)";

struct Colonna { const char* titolo; Cella cella; };
constexpr Cella VUOTO = L(1);              // a literal blank between two columns

constexpr Colonna COL_PROFILI[] = {{"Tipo prof.", LB(20)}, {"h", RB(20)}, {"b", RB(5)}, {"a", RB(5)}, {"e", RB(5)}, {"r", RB(5)}};
constexpr Colonna COL_PIASTRE[] = {{"Num", LB(5)}, {"Lz", RB(5)}, {"Ly", RB(5)}, {"Sp", RB(5)}};
constexpr Colonna COL_TIRAFONDI[] = {
  {"Num", LB(3)}, {"X", RB(3)}, {"Y", RB(5)}, {"Fi", RB(4)}, {"Area", RB(7)}, {" ", VUOTO},
  {"Num", LB(7)}, {"X", RB(3)}, {"Y", RB(5)}, {"Fi", RB(4)}, {"Area", RB(7)},
};
constexpr Colonna COL_DIMENSIONI[] = {{"l", RB(5)}, {"lft", RB(5)}, {"l1", RB(5)}, {"r", RB(5)}};
constexpr Colonna COL_SALDATURE[] = {      // the second "Nome" is 4 wide over cells of 5; deliberate
  {"Nome", LB(5)}, {"Lung", RB(7)}, {"Lato", RB(4)}, {" ", VUOTO}, {"Nome", LB(4)}, {"Lung", RB(7)}, {"Lato", RB(4)},
};
constexpr Colonna COL_MATERIALI[] = {{"fd s<40mm", LB(20)}, {"fd 40mm<s<80mm", LB(20)}, {"fcd", L(40)}};
constexpr Colonna COL_MAT_TIRAFONDI[] = {{"fd", LB(41)}};
constexpr Colonna COL_VER_TIRAFONDI[] = {
  {"Num", LB(3)},    {"Fv,Ed", RB(7)}, {"Fv,Rd", RB(7)},  {"Fb,Rd", RB(7)}, {"Ft,Ed", RB(7)}, {"Ft,Rd", RB(7)},
  {"Bp,Rd", RB(7)}, {"Tad,Rd", RB(7)}, {"Co-1", RB(4)}, {"Co-2", RB(4)},  {"Co-3", RB(4)},  {"Ver", RB(4)},
};
constexpr Colonna COL_VER_SALDATURE[] = {
  {"Nome", RB(5)},  {"S_prp", RB(5)}, {"Tau_pa", RB(8)}, {"Tau_pe", RB(8)}, {"SEq-1", RB(8)},
  {"SEq-2", RB(8)}, {"SLim-1", RB(8)}, {"SLim-2", RB(8)}, {"Ver", RB(8)},
};
constexpr Colonna COL_VER_PIASTRA[] = {{"Smax", RB(7)}, {"fd", RB(7)}, {"Ver", RB(7)}};
constexpr Colonna COL_VER_NERVATURE[] = {{"Posizione", LB(9)}, {"Smax", RB(7)}, {"fd", RB(7)}, {"Ver", RB(7)}};
constexpr Colonna COL_VER_CLS[] = {{"Smax", RB(7)}, {"fcd", RB(7)}, {"Ver", RB(7)}};

constexpr const char* RIGHE_GEOMETRIA[] = {"", "GEOMETRIA NODO", "", "Profili utilizzati"};
constexpr const char* RIGHE_PIASTRE[] = {"", "Piastra e fazzoletti"};
constexpr const char* RIGHE_TIRAFONDI[] = {"", "TIRAFONDI", ""};
constexpr const char* RIGHE_DIMENSIONI[] = {"", "Dimensioni"};
constexpr const char* RIGHE_MATERIALI[] = {"", "MATERIALI"};
constexpr const char* RIGHE_STATO[] = {"", "", "SOLLECITAZIONI AGENTI E STATO TENSIONALE", ""};
constexpr const char* RIGHE_VER_TIRAFONDI[] = {
  "", "Verifica tirafondi", "Co-1, Co-2: NTC 2008, 4.2.8.1.1 formula (4.2.65)", "Co-3: Ft,Ed / Tad,Rd"};
constexpr const char* RIGHE_VER_SALDATURE[] = {
  "", "Verifica saldature", "SEq-1, SLim-1: NTC 2008, 4.2.8.2.4 formula (4.2.78)", "SEq-2, SLim-2: NTC 2008, 4.2.8.2.4 formula (4.2.79)"};
constexpr const char* RIGHE_VER_PIASTRA[] = {"", "Verifica piastra"};
constexpr const char* RIGHE_VER_NERVATURE[] = {"", "Verifica nervature"};
constexpr const char* RIGHE_VER_CLS[] = {"", "Verifica pressione sul calcestruzzo"};

bool RigaTitoli(Foglio& f, std::span<const Colonna> colonne) {
  const std::size_t inizio = f.file.testo.size();
  for (const Colonna& c : colonne) AggiungiCella(f.file.testo, c.titolo, c.cella);
  return FineRiga(f, inizio);
}

// Several values in cells of one form.
template <class... Valore>
void Celle(std::string& t, Cella c, const Valore&... v) { (AggiungiCella(t, v, c), ...); }

// The verdict's cell, which ends the line.
bool RigaVerdetto(Foglio& f, std::size_t inizio, bool passa) {
  if (!passa) f.Verificato = false;
  AggiungiCella(f.file.testo, passa ? "SI'" : "NO", RB(3));
  return FineRiga(f, inizio);
}

// ---- head

bool ScriviProfili(Foglio& f) {
  if (!Riga(f, TitoloNodi(), TITOLO_METODO) || !Riga(f) ||
      !Riga(f, "UNITA' DI MISURA: [", suite.UnitaForze, "] ; [", suite.UnitaMomenti, "] ; [", suite.UnitaTensioni, "] ; [mm]") ||
      !Righe(f, RIGHE_GEOMETRIA) || !RigaTitoli(f, COL_PROFILI))
    return false;
  const Sezione& z = nodo.Sezione;
  std::string& t = f.file.testo;
  const std::size_t inizio = t.size();
  AggiungiCella(t, z.Nome, LB(20));
  AggiungiCella(t, z.H, RB(20));
  Celle(t, RB(5), z.B, z.A, z.E, z.R);
  return FineRiga(f, inizio);
}

bool RigaPiastra(Foglio& f, const char* nome, double l, double h, double s) {
  const std::size_t inizio = f.file.testo.size();
  AggiungiCella(f.file.testo, nome, LB(5));
  Celle(f.file.testo, RB(5), R1(l), R1(h), R1(s));
  return FineRiga(f, inizio);
}

// The ribs' rows are written whatever TipoNodo; deliberate.
bool ScriviPiastre(Foglio& f) {
  return Righe(f, RIGHE_PIASTRE) && RigaTitoli(f, COL_PIASTRE) &&
         RigaPiastra(f, "1", nodo.LatoZ, nodo.LatoY, nodo.SpessPiastra) &&
         RigaPiastra(f, "2(Y)", nodo.LatoY, nodo.HNerv, nodo.SpNerv) &&
         RigaPiastra(f, "3(Z)", (nodo.LatoZ - nodo.Sezione.B) / 2 - nodo.SpNerv, nodo.HNerv, nodo.SpNerv);
}

void CelleTirafondo(std::string& t, int i, Cella numero) {
  AggiungiCella(t, i, numero);
  AggiungiCella(t, R1(nodo.LatoZ - nodo.TfZ[i]), RB(3));
  AggiungiCella(t, R1(nodo.TfY[i]), RB(5));
  AggiungiCella(t, R1(nodo.TfFi), RB(4));
  AggiungiCella(t, R2(AreaResistente(nodo.TfFi)), RB(7));
}

bool ScriviTirafondi(Foglio& f) {
  if (!Righe(f, RIGHE_TIRAFONDI) || !Riga(f, "Tirafondi (n° ", nodo.NTir, ")") || !RigaTitoli(f, COL_TIRAFONDI)) return false;
  std::string& t = f.file.testo;
  const int meta = nodo.NTir / 2 + nodo.NTir % 2;
  for (int i = 1, j = 1 + meta; i <= meta; ++i, ++j) {
    const std::size_t inizio = t.size();
    CelleTirafondo(t, i, LB(3));
    if (j <= nodo.NTir) {
      t += ' ';
      CelleTirafondo(t, j, LB(7));
    }
    if (!FineRiga(f, inizio)) return false;
  }
  if (!Righe(f, RIGHE_DIMENSIONI) || !RigaTitoli(f, COL_DIMENSIONI)) return false;
  const std::size_t inizio = t.size();
  Celle(t, RB(5), R1(nodo.TfL), R1(nodo.TfLFt), R1(nodo.TfL1), R1(nodo.TfR));
  return FineRiga(f, inizio);
}

void CelleSaldatura(std::string& t, int w) {
  AggiungiCella(t, ris.Saldature[w].Nome, LB(5));
  AggiungiCella(t, R1(ris.Saldature[w].Lung), RB(7));
  AggiungiCella(t, R1(nodo.Gola), RB(4));
}

// One of a pair: a weld that is not made shows its name and dashes.
void CelleSaldaturaInCoppia(std::string& t, int w) {
  if (!SaldaturaInterna(w) || nodo.SaldInt != 0) return CelleSaldatura(t, w);
  AggiungiCella(t, w == 9 ? "S9" : "S19", LB(5));
  AggiungiCella(t, "-", RB(7));
  AggiungiCella(t, "-", RB(4));
}

// An odd count leaves the last weld alone, with its own values in any case.
bool ScriviSaldature(Foglio& f) {
  if (!Riga(f) || !Riga(f) || !Riga(f, "SALDATURE (n° ", nodo.NumSaldature, ")") || !RigaTitoli(f, COL_SALDATURE)) return false;
  std::string& t = f.file.testo;
  const int meta = nodo.NumSaldature / 2 + nodo.NumSaldature % 2;
  for (int i = 1, j = 1 + meta; i <= meta; ++i, ++j) {
    const std::size_t inizio = t.size();
    if (j <= nodo.NumSaldature) {
      CelleSaldaturaInCoppia(t, i);
      t += ' ';
      CelleSaldaturaInCoppia(t, j);
    } else {
      CelleSaldatura(t, i);
    }
    if (!FineRiga(f, inizio)) return false;
  }
  return true;
}

bool ScriviMateriali(Foglio& f) {
  const MatAcciaio& acc = nodo.MatAcc;
  const MatCls& cls = nodo.MatCls;
  std::string& t = f.file.testo;
  if (!Righe(f, RIGHE_MATERIALI)) return false;
  std::size_t inizio = t.size();
  AggiungiCella(t, "Acciaio " + acc.Nome, LB(41));
  AggiungiCella(t, "Calcestruzzo " + cls.Nome, L(40));
  if (!FineRiga(f, inizio) || !RigaTitoli(f, COL_MATERIALI)) return false;
  inizio = t.size();
  Celle(t, LB(20), RD(acc.Fyk / acc.GammaM), RD(acc.Fyk40 / acc.GammaM));
  AggiungiCella(t, RD(cls.Rck * 0.85 * 0.83 / cls.GammaC), L(40));
  if (!FineRiga(f, inizio)) return false;
  inizio = t.size();
  AggiungiCella(t, "Acciaio tirafondi " + nodo.MatTir.Nome, LB(41));
  if (!FineRiga(f, inizio) || !RigaTitoli(f, COL_MAT_TIRAFONDI)) return false;
  inizio = t.size();
  AggiungiCella(t, RD(nodo.MatTir.Fyk / nodo.MatVit.GammaM2), LB(20));
  return FineRiga(f, inizio);
}

bool ScriviTestata(Foglio& f) {
  return ScriviProfili(f) && ScriviPiastre(f) && ScriviTirafondi(f) && ScriviSaldature(f) && ScriviMateriali(f) && Righe(f, RIGHE_STATO);
}

// ---- one sextet

// Three components "nome: valore", one cell each.
bool RigaSollecitazioni(Foglio& f, const char* const (&nomi)[3], const double (&valori)[3]) {
  const std::size_t inizio = f.file.testo.size();
  for (int n = 0; n < 3; ++n) {
    const std::string_view nome = nomi[n];
    char a[8 + MaxNumero];
    nome.copy(a, nome.size());
    const int cifre = ScriviVoce(a + nome.size(), valori[n]);
    AggiungiCella(f.file.testo, std::string_view(a, nome.size() + static_cast<std::size_t>(cifre)), L(20));
  }
  return FineRiga(f, inizio);
}

bool ScriviSestetto(Foglio& f, int s) {
  const double F = suite.FattForze, M = suite.FattMomenti;
  return TitoloCombinazione(f, s) &&
         RigaSollecitazioni(f, {"N: ", "Ty: ", "Tz: "}, {F * nodo.SollN[s], F * nodo.SollTy[s], F * nodo.SollTz[s]}) &&
         RigaSollecitazioni(f, {"Mt: ", "My: ", "Mz: "}, {M * nodo.SollMt[s], M * nodo.SollMy[s], M * nodo.SollMz[s]});
}

// The ratios are rounded in place, ties to even, and judged as rounded: 1.004 passes.
bool VerificaTirafondo(Foglio& f, int s, int i) {
  double &Co1 = ris.Co1[s][i], &Co2 = ris.Co2[s][i], &Co3 = ris.Co3[s][i];
  for (double* Co : {&Co1, &Co2, &Co3}) *Co = ArrotondaPari(*Co, 2);
  std::string& t = f.file.testo;
  const std::size_t inizio = t.size();
  AggiungiCella(t, i, LB(3));
  Celle(t, RB(7), RF(ris.FvEd[s][i]), RF(ris.FvRd), RF(ris.FbRd[i]), RF(ris.FtEd[s][i]), RF(ris.FtRd), RF(ris.BpRd), RF(ris.TadRd));
  Celle(t, RB(4), R2(Co1), R2(Co2), R2(Co3));
  return RigaVerdetto(f, inizio, Co1 <= 1 && Co2 <= 1 && Co3 <= 1);
}

bool BloccoTirafondi(Foglio& f, int s) {
  if (!Righe(f, RIGHE_VER_TIRAFONDI) || !RigaTitoli(f, COL_VER_TIRAFONDI)) return false;
  for (int i = 1; i <= nodo.NTir; ++i)
    if (!VerificaTirafondo(f, s, i)) return false;
  return true;
}

bool VerificaSaldatura(Foglio& f, int s, int w, double SLim1, double SLim2) {
  const Saldatura& sald = ris.Saldature[w];
  const double SEq1 = sald.SEq1[s], SEq2 = sald.SEq2[s];
  double a = 0, b = 0, d = 0;
  MaxTensioniSaldatura(a, b, d, w, s);
  std::string& t = f.file.testo;
  const std::size_t inizio = t.size();
  AggiungiCella(t, sald.Nome, RB(5));
  AggiungiCella(t, RD(a), RB(5));
  Celle(t, RB(8), RD(b), RD(d), RD(SEq1), RD(SEq2), RD(SLim1), RD(SLim2));
  return RigaVerdetto(f, inizio, !(SLim1 < SEq1 || SLim2 < SEq2));
}

// A weld without length was never made and has no row.
bool BloccoSaldature(Foglio& f, int s) {
  TensioniEquivalentiSaldature(s);
  if (!Righe(f, RIGHE_VER_SALDATURE) || !RigaTitoli(f, COL_VER_SALDATURE)) return false;
  TensioniEquivalentiSaldature(s);         // a second time, as before the first line; nothing changes, deliberate
  const BetaSaldature beta = CalcolaBeta();
  const double SLim1 = beta.Beta1 * nodo.MatAcc.Fyk, SLim2 = beta.Beta2 * nodo.MatAcc.Fyk;
  for (int w = 1; w <= nodo.NumSaldature; ++w)
    if (ris.Saldature[w].Lung > TOLL_GEO && !VerificaSaldatura(f, s, w, SLim1, SLim2)) return false;
  return true;
}

bool RigaValoreLimite(Foglio& f, std::size_t inizio, double valore, double limite) {
  Celle(f.file.testo, RB(7), RD(valore), RD(limite));
  return RigaVerdetto(f, inizio, !(std::fabs(valore) > limite));
}

bool BloccoPiastra(Foglio& f, int s, double FdPiastra) {
  if (!Righe(f, RIGHE_VER_PIASTRA) || !RigaTitoli(f, COL_VER_PIASTRA)) return false;
  ris.SMaxPiastra[s] *= f.c;
  return RigaValoreLimite(f, f.file.testo.size(), ris.SMaxPiastra[s], FdPiastra);
}

bool RigaNervatura(Foglio& f, int s, const char* nome, const int (&posizioni)[4], double FdNerv) {
  const std::size_t inizio = f.file.testo.size();
  AggiungiCella(f.file.testo, nome, LB(9));
  return RigaValoreLimite(f, inizio, SMaxNervatura(s, posizioni) * f.c, FdNerv);
}

bool BloccoNervature(Foglio& f, int s, double FdNerv) {
  if (nodo.TipoNodo != 2) return true;
  return Righe(f, RIGHE_VER_NERVATURE) && RigaTitoli(f, COL_VER_NERVATURE) && RigaNervatura(f, s, "Z", POSIZIONI_Z, FdNerv) &&
         RigaNervatura(f, s, "Y", POSIZIONI_Y, FdNerv);
}

bool BloccoCls(Foglio& f, int s) {
  if (!Righe(f, RIGHE_VER_CLS) || !RigaTitoli(f, COL_VER_CLS)) return false;
  ris.SMaxCls[s] *= f.c;
  return RigaValoreLimite(f, f.file.testo.size(), ris.SMaxCls[s], CalcolaFcd());
}

bool ScriviBlocco(Foglio& f, int s) {
  f.Verificato = true;
  if (!ScriviSestetto(f, s)) return false;
  const double FdPiastra = CalcolaFd(nodo.SpessPiastra), FdNerv = CalcolaFd(nodo.SpNerv);
  return BloccoTirafondi(f, s) && BloccoSaldature(f, s) && BloccoPiastra(f, s, FdPiastra) && BloccoNervature(f, s, FdNerv) &&
         BloccoCls(f, s) && EsitoCombinazione(f, s);
}

bool ScriviTutto(Foglio& f) {
  if (!ScriviTestata(f)) return false;
  for (int s = 1; s <= nodo.NumSoll; ++s)
    if (!ScriviBlocco(f, s)) return false;
  return true;
}

}  // namespace

bool RelazioneSLU() {
  Foglio f;
  return ApriFoglio(f, "SLU") && ConcludiFoglio(f, ScriviTutto(f));
}
