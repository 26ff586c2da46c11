// reports/relazione_slu.cpp - report by limit states (NTC 2008). Cells of fixed width with bars. A narrow cell never cuts its text,
// and the blanks behind a left-aligned one stay.
#include <cmath>

#include "core/area_resistente.h"
#include "core/nomi_file.h"
#include "core/numeri.h"
#include "engine/Saldature.h"
#include "engine/righe.h"
#include "model/stato.h"
#include "reports/Relazioni.h"
#include "reports/foglio.h"

constexpr const char* TITOLO_METODO = " - METODO DEGLI STATI LIMITE (NTC 2008)";

namespace {
struct Colonna {
  const char* titolo;
  Cella cella;
};
}  // namespace

constexpr Cella VUOTO = L(1);  // a literal blank between two columns

constexpr Colonna COL_PROFILI[] = {{"Tipo prof.", LB(20)}, {"h", RB(20)}, {"b", RB(5)}, {"a", RB(5)}, {"e", RB(5)}, {"r", RB(5)}};
constexpr Colonna COL_PIASTRE[] = {{"Num", LB(5)}, {"Lz", RB(5)}, {"Ly", RB(5)}, {"Sp", RB(5)}};
constexpr Colonna COL_TIRAFONDI[] = {
  {"Num", LB(3)}, {"X", RB(3)}, {"Y", RB(5)}, {"Fi", RB(4)}, {"Area", RB(7)}, {" ", VUOTO},
  {"Num", LB(7)}, {"X", RB(3)}, {"Y", RB(5)}, {"Fi", RB(4)}, {"Area", RB(7)},
};
constexpr Colonna COL_DIMENSIONI[] = {{"l", RB(5)}, {"lft", RB(5)}, {"l1", RB(5)}, {"r", RB(5)}};
// clang-format off
constexpr Colonna COL_SALDATURE[] = {      // the second "Nome" is 4 wide over cells of 5: its column stands one to the left
  {"Nome", LB(5)}, {"Lung", RB(7)}, {"Lato", RB(4)}, {" ", VUOTO}, {"Nome", LB(4)}, {"Lung", RB(7)}, {"Lato", RB(4)},
};
// clang-format on
constexpr Colonna COL_MATERIALI[] = {{"fd s<40mm", LB(20)}, {"fd 40mm<s<80mm", LB(20)}, {"fcd", L(40)}};
constexpr Colonna COL_MAT_TIRAFONDI[] = {{"fd", LB(41)}};
// clang-format off
constexpr Colonna COL_VER_TIRAFONDI[] = {
  {"Num", LB(3)},    {"Fv,Ed", RB(7)}, {"Fv,Rd", RB(7)},  {"Fb,Rd", RB(7)}, {"Ft,Ed", RB(7)}, {"Ft,Rd", RB(7)},
  {"Bp,Rd", RB(7)}, {"Tad,Rd", RB(7)}, {"Co-1", RB(4)}, {"Co-2", RB(4)},  {"Co-3", RB(4)},  {"Ver", RB(4)},
};
constexpr Colonna COL_VER_SALDATURE[] = {
  {"Nome", RB(5)},  {"S_prp", RB(5)}, {"Tau_pa", RB(8)}, {"Tau_pe", RB(8)}, {"SEq-1", RB(8)},
  {"SEq-2", RB(8)}, {"SLim-1", RB(8)}, {"SLim-2", RB(8)}, {"Ver", RB(8)},
};
// clang-format on
constexpr Colonna COL_VER_PIASTRA[] = {{"Smax", RB(7)}, {"fd", RB(7)}, {"Ver", RB(7)}};
constexpr Colonna COL_VER_NERVATURE[] = {{"Posizione", LB(9)}, {"Smax", RB(7)}, {"fd", RB(7)}, {"Ver", RB(7)}};
constexpr Colonna COL_VER_CLS[] = {{"Smax", RB(7)}, {"fcd", RB(7)}, {"Ver", RB(7)}};

constexpr const char* RIGHE_GEOMETRIA[] = {"", "GEOMETRIA NODO", "", "Profili utilizzati"};
constexpr const char* RIGHE_PIASTRE[] = {"", "Piastra e fazzoletti"};
constexpr const char* RIGHE_TIRAFONDI[] = {"", "TIRAFONDI", ""};
constexpr const char* RIGHE_DIMENSIONI[] = {"", "Dimensioni"};
constexpr const char* RIGHE_MATERIALI[] = {"", "MATERIALI"};
constexpr const char* RIGHE_STATO[] = {"", "", "SOLLECITAZIONI AGENTI E STATO TENSIONALE", ""};
constexpr const char* RIGHE_VER_TIRAFONDI[] = {"", "Verifica tirafondi", "Co-1, Co-2: NTC 2008, 4.2.8.1.1 formula (4.2.65)",
                                               "Co-3: Ft,Ed / Tad,Rd"};
constexpr const char* RIGHE_VER_SALDATURE[] = {"", "Verifica saldature", "SEq-1, SLim-1: NTC 2008, 4.2.8.2.4 formula (4.2.78)",
                                               "SEq-2, SLim-2: NTC 2008, 4.2.8.2.4 formula (4.2.79)"};
constexpr const char* RIGHE_VER_PIASTRA[] = {"", "Verifica piastra"};
constexpr const char* RIGHE_VER_NERVATURE[] = {"", "Verifica nervature"};
constexpr const char* RIGHE_VER_CLS[] = {"", "Verifica pressione sul calcestruzzo"};

static bool RigaTitoli(Foglio& f, std::span<const Colonna> colonne) {
  const std::size_t inizio = f.file.testo.size();
  for (const Colonna& c : colonne) AggiungiCella(f.file.testo, c.titolo, c.cella);
  return FineRiga(f, inizio);
}

// Several values in cells of one form.
template <class... Valore>
static void Celle(std::string& t, Cella c, const Valore&... v) {
  (AggiungiCella(t, v, c), ...);
}

// The verdict's cell, which ends the line.
static bool RigaVerdetto(Foglio& f, std::size_t inizio, bool passa) {
  AggiungiCella(f.file.testo, passa ? "SI'" : "NO", RB(3));
  return FineRiga(f, inizio);
}

// ---- head

static bool ScriviProfili(Foglio& f) {
  const Nodo& nodo = *f.l.nodo;
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

static bool RigaPiastra(Foglio& f, const char* nome, double lungo, double h, double s) {
  const std::size_t inizio = f.file.testo.size();
  AggiungiCella(f.file.testo, nome, LB(5));
  Celle(f.file.testo, RB(5), R1(lungo), R1(h), R1(s));
  return FineRiga(f, inizio);
}

// The ribs' rows are written whatever TipoNodo, also for a joint without ribs.
static bool ScriviPiastre(Foglio& f) {
  const Nodo& nodo = *f.l.nodo;
  return Righe(f, RIGHE_PIASTRE) && RigaTitoli(f, COL_PIASTRE) && RigaPiastra(f, "1", nodo.LatoZ, nodo.LatoY, nodo.SpessPiastra) &&
         RigaPiastra(f, "2(Y)", nodo.LatoY, nodo.HNerv, nodo.SpNerv) &&
         RigaPiastra(f, "3(Z)", (nodo.LatoZ - nodo.Sezione.B) / 2 - nodo.SpNerv, nodo.HNerv, nodo.SpNerv);
}

static void CelleTirafondo(std::string& t, const Nodo& nodo, int i, Cella numero) {
  AggiungiCella(t, i, numero);
  AggiungiCella(t, R1(nodo.LatoZ - nodo.TfZ[i]), RB(3));
  AggiungiCella(t, R1(nodo.TfY[i]), RB(5));
  AggiungiCella(t, R1(nodo.TfFi), RB(4));
  AggiungiCella(t, R2(AreaResistente(suite, nodo.TfFi)), RB(7));
}

static bool ScriviTirafondi(Foglio& f) {
  const Nodo& nodo = *f.l.nodo;
  if (!Righe(f, RIGHE_TIRAFONDI) || !Riga(f, "Tirafondi (n° ", nodo.NTir, ")") || !RigaTitoli(f, COL_TIRAFONDI)) return false;
  std::string& t = f.file.testo;
  const int meta = nodo.NTir / 2 + nodo.NTir % 2;
  for (int i = 1, j = 1 + meta; i <= meta; ++i, ++j) {
    const std::size_t inizio = t.size();
    CelleTirafondo(t, nodo, i, LB(3));
    if (j <= nodo.NTir) {
      t += ' ';
      CelleTirafondo(t, nodo, j, LB(7));
    }
    if (!FineRiga(f, inizio)) return false;
  }
  if (!Righe(f, RIGHE_DIMENSIONI) || !RigaTitoli(f, COL_DIMENSIONI)) return false;
  const std::size_t inizio = t.size();
  Celle(t, RB(5), R1(nodo.TfL), R1(nodo.TfLFt), R1(nodo.TfL1), R1(nodo.TfR));
  return FineRiga(f, inizio);
}

static void CelleSaldatura(std::string& t, const Lavoro& l, int w) {
  AggiungiCella(t, l.ris.Saldature[w].Nome, LB(5));
  AggiungiCella(t, R1(l.ris.Saldature[w].Lung), RB(7));
  AggiungiCella(t, R1(l.nodo->Gola), RB(4));
}

// One of a pair: a weld that is not made shows its name and dashes.
static void CelleSaldaturaInCoppia(std::string& t, const Lavoro& l, int w) {
  if (!SaldaturaInterna(w) || l.nodo->SaldInt != 0) return CelleSaldatura(t, l, w);
  AggiungiCella(t, w == 9 ? "S9" : "S19", LB(5));
  AggiungiCella(t, "-", RB(7));
  AggiungiCella(t, "-", RB(4));
}

// An odd count leaves the last weld alone, with its own values in any case.
static bool ScriviSaldature(Foglio& f) {
  if (!Riga(f) || !Riga(f) || !Riga(f, "SALDATURE (n° ", f.l.NumSaldature, ")") || !RigaTitoli(f, COL_SALDATURE)) return false;
  std::string& t = f.file.testo;
  const int meta = f.l.NumSaldature / 2 + f.l.NumSaldature % 2;
  for (int i = 1, j = 1 + meta; i <= meta; ++i, ++j) {
    const std::size_t inizio = t.size();
    if (j <= f.l.NumSaldature) {
      CelleSaldaturaInCoppia(t, f.l, i);
      t += ' ';
      CelleSaldaturaInCoppia(t, f.l, j);
    } else {
      CelleSaldatura(t, f.l, i);
    }
    if (!FineRiga(f, inizio)) return false;
  }
  return true;
}

static bool ScriviMateriali(Foglio& f) {
  const Nodo& nodo = *f.l.nodo;
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

static bool ScriviTestata(Foglio& f) {
  return ScriviProfili(f) && ScriviPiastre(f) && ScriviTirafondi(f) && ScriviSaldature(f) && ScriviMateriali(f) && Righe(f, RIGHE_STATO);
}

// ---- one sextet

// Three components "nome: valore", one cell each.
static bool RigaSollecitazioni(Foglio& f, const char* const (&nomi)[3], const double (&valori)[3]) {
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

static bool ScriviSestetto(Foglio& f, int s) {
  const Nodo& nodo = *f.l.nodo;
  const double F = suite.FattForze, M = suite.FattMomenti;
  return TitoloCombinazione(f, s) &&
         RigaSollecitazioni(f, {"N: ", "Ty: ", "Tz: "}, {F * nodo.SollN[s], F * nodo.SollTy[s], F * nodo.SollTz[s]}) &&
         RigaSollecitazioni(f, {"Mt: ", "My: ", "Mz: "}, {M * nodo.SollMt[s], M * nodo.SollMy[s], M * nodo.SollMz[s]});
}

static bool RigaTirafondo(Foglio& f, int s, int i) {
  const Risultati& ris = f.l.ris;
  const std::size_t k = static_cast<std::size_t>(i - 1);
  const RigaControllo &co1 = RigheCriterio(f.l, s, SLU_TIR_CO1)[k], &co2 = RigheCriterio(f.l, s, SLU_TIR_CO2)[k],
                      &co3 = RigheCriterio(f.l, s, SLU_TIR_CO3)[k];
  std::string& t = f.file.testo;
  const std::size_t inizio = t.size();
  AggiungiCella(t, i, LB(3));
  Celle(t, RB(7), RF(ris.FvEd[s][i]), RF(ris.FvRd), RF(ris.FbRd[i]), RF(ris.FtEd[s][i]), RF(ris.FtRd), RF(ris.BpRd), RF(ris.TadRd));
  Celle(t, RB(4), R2(co1.domanda), R2(co2.domanda), R2(co3.domanda));
  return RigaVerdetto(f, inizio, co1.passa && co2.passa && co3.passa);
}

static bool BloccoTirafondi(Foglio& f, int s) {
  if (!Righe(f, RIGHE_VER_TIRAFONDI) || !RigaTitoli(f, COL_VER_TIRAFONDI)) return false;
  for (int i = 1; i <= f.l.nodo->NTir; ++i)
    if (!RigaTirafondo(f, s, i)) return false;
  return true;
}

static bool RigaSaldatura(Foglio& f, int s, const RigaControllo& eq1, const RigaControllo& eq2) {
  double a = 0, b = 0, d = 0;
  MaxTensioniSaldatura(f.l, a, b, d, eq1.elemento, s);
  std::string& t = f.file.testo;
  const std::size_t inizio = t.size();
  AggiungiCella(t, f.l.ris.Saldature[eq1.elemento].Nome, RB(5));
  AggiungiCella(t, RD(a), RB(5));
  Celle(t, RB(8), RD(b), RD(d), RD(eq1.domanda), RD(eq2.domanda), RD(eq1.limite), RD(eq2.limite));
  return RigaVerdetto(f, inizio, eq1.passa && eq2.passa);
}

// A weld without length was never made and has no row.
static bool BloccoSaldature(Foglio& f, int s) {
  if (!Righe(f, RIGHE_VER_SALDATURE) || !RigaTitoli(f, COL_VER_SALDATURE)) return false;
  const std::span<const RigaControllo> eq1 = RigheCriterio(f.l, s, SLU_SALD_1), eq2 = RigheCriterio(f.l, s, SLU_SALD_2);
  for (std::size_t k = 0; k < eq1.size(); ++k)
    if (!RigaSaldatura(f, s, eq1[k], eq2[k])) return false;
  return true;
}

static bool RigaValoreLimite(Foglio& f, std::size_t inizio, double valore, const RigaControllo& r) {
  Celle(f.file.testo, RB(7), RD(valore), RD(r.limite));
  return RigaVerdetto(f, inizio, r.passa);
}

static bool BloccoPiastra(Foglio& f, int s) {
  if (!Righe(f, RIGHE_VER_PIASTRA) || !RigaTitoli(f, COL_VER_PIASTRA)) return false;
  return RigaValoreLimite(f, f.file.testo.size(), f.l.ris.SMaxPiastra[s] * MM2_SU_CM2, RigheCriterio(f.l, s, SLU_PIASTRA)[0]);
}

static bool RigaNervatura(Foglio& f, int s, const char* nome, const int (&posizioni)[4], int criterio) {
  const std::size_t inizio = f.file.testo.size();
  AggiungiCella(f.file.testo, nome, LB(9));
  return RigaValoreLimite(f, inizio, SMaxNervatura(f.l.ris, s, posizioni) * MM2_SU_CM2, RigheCriterio(f.l, s, criterio)[0]);
}

static bool BloccoNervature(Foglio& f, int s) {
  if (f.l.nodo->TipoNodo != 2) return true;
  return Righe(f, RIGHE_VER_NERVATURE) && RigaTitoli(f, COL_VER_NERVATURE) && RigaNervatura(f, s, "Z", POSIZIONI_Z, SLU_NERV_Z) &&
         RigaNervatura(f, s, "Y", POSIZIONI_Y, SLU_NERV_Y);
}

static bool BloccoCls(Foglio& f, int s) {
  if (!Righe(f, RIGHE_VER_CLS) || !RigaTitoli(f, COL_VER_CLS)) return false;
  return RigaValoreLimite(f, f.file.testo.size(), f.l.ris.SMaxCls[s] * MM2_SU_CM2, RigheCriterio(f.l, s, SLU_CLS)[0]);
}

static bool ScriviBlocco(Foglio& f, int s) {
  return ScriviSestetto(f, s) && BloccoTirafondi(f, s) && BloccoSaldature(f, s) && BloccoPiastra(f, s) && BloccoNervature(f, s) &&
         BloccoCls(f, s) && EsitoCombinazione(f, s);
}

static bool ScriviTutto(Foglio& f) {
  if (!ScriviTestata(f)) return false;
  for (int s = 1; s <= f.l.nodo->NumSoll; ++s)
    if (!ScriviBlocco(f, s)) return false;
  return true;
}

bool RelazioneSLU(const Lavoro& l) {
  Foglio f{l, {}, {}};
  return ApriFoglio(f, "SLU") && ConcludiFoglio(f, ScriviTutto(f));
}
