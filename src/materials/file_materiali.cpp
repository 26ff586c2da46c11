// materials/file_materiali.cpp - the catalogue by sections, the job's materials by keys.
#include "materials/file_materiali.h"

#include <algorithm>
#include <cmath>

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "model/materiali.h"
#include "model/stato.h"
#include "model/suite.h"

// --- the catalogue ---------------------------------------------------------------------------------------------------------

// A number of the catalogue. A word without a number, or one that overflows, is a failed step: v stays, without a box.
static void NumeroCatalogo(std::string_view parola, double& v) {
  if (!ValLocale(parola, suite.Decimale, v)) passi.fallito = true;
}

template <class Record>
static void NumeriCatalogo(std::string riga, Record& m, std::initializer_list<double Record::*> campi) {
  for (double Record::*c : campi) NumeroCatalogo(TokenSuccessivo(riga), m.*c);
}

static void LeggiAcciaio(FileLettura& f, MatAcciaio& m) {
  std::string riga;
  LeggiRiga(f, m.Nome);  // name and reference as they stand, blanks included
  LeggiRiga(f, m.Norma);
  if (!LeggiRiga(f, riga)) return;
  NumeriCatalogo(riga, m,
                 {&MatAcciaio::SAmm, &MatAcciaio::SAmm40, &MatAcciaio::Fyk, &MatAcciaio::Ftk, &MatAcciaio::Fyk40, &MatAcciaio::Ftk40,
                  &MatAcciaio::GammaM, &MatAcciaio::GammaMT});
}

// The entries of two lines: the name, trimmed, then the numbers.
static bool LeggiNomeENumeri(FileLettura& f, std::string& nome, std::string& numeri) {
  std::string riga;
  if (LeggiRiga(f, riga)) nome = Rifila(riga);
  return LeggiRiga(f, numeri);
}

static void LeggiVite(FileLettura& f, MatViti& m) {
  std::string riga;
  if (!LeggiNomeENumeri(f, m.Nome, riga)) return;
  NumeriCatalogo(riga, m, {&MatViti::SAmm, &MatViti::TauAmm, &MatViti::Fy, &MatViti::Ft, &MatViti::NonUsato, &MatViti::GammaM2});
}

static void LeggiCls(FileLettura& f, MatCls& m) {
  std::string riga;
  if (!LeggiNomeENumeri(f, m.Nome, riga)) return;
  NumeriCatalogo(riga, m, {&MatCls::Rck, &MatCls::GammaC});
}

static void LeggiAcciaioCA(FileLettura& f, MatCA& m) {
  constexpr int ORDINE[] = {1, 8, 7, 3};
  std::string riga;
  if (!LeggiNomeENumeri(f, m.Nome, riga)) return;
  for (const int k : ORDINE) NumeroCatalogo(TokenSuccessivo(riga), m.V[k]);
}

// Count and entries of a section. A bad count stays as it was; entries beyond the table are read into a record that is dropped.
template <class Record>
static void LeggiSezione(FileLettura& f, std::int16_t& conteggio, Record (&tabella)[MaxMateriali + 1],
                         void (*leggi)(FileLettura&, Record&)) {
  std::string riga;
  if (!LeggiRiga(f, riga)) return;
  double n = conteggio;
  NumeroCatalogo(TokenSuccessivo(riga), n);
  if (!InIntero(n, conteggio)) passi.fallito = true;
  for (int i = 1; i <= conteggio && !FineFile(f); ++i) {
    Record oltre;
    leggi(f, i <= MaxMateriali ? tabella[i] : oltre);
  }
}

namespace {
// The first title that a line holds opens its section; the last one is the beginning of the first two.
struct SezioneCatalogo {
  const char* titolo;
  void (*leggi)(FileLettura& f);
};
}  // namespace

// clang-format off
constexpr SezioneCatalogo SEZIONI[] = {
    {"ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE", [](FileLettura& f) { LeggiSezione(f, materiali.NumAcciai, materiali.AcciaiBase, LeggiAcciaio); }},
    {"ACCIAIO_DA_CARPENTERIA_SEZIONI_CHIUSE", [](FileLettura& f) { LeggiSezione(f, materiali.NumAcciaiChiusi, materiali.AcciaiChiusiBase, LeggiAcciaio); }},
    {"VITI", [](FileLettura& f) { LeggiSezione(f, materiali.NumViti, materiali.VitiBase, LeggiVite); }},
    {"CALCESTRUZZI", [](FileLettura& f) { LeggiSezione(f, materiali.NumCls, materiali.ClsBase, LeggiCls); }},
    {"ACCIAIO_DA_CA", [](FileLettura& f) { LeggiSezione(f, materiali.NumAcciaiCA, materiali.AcciaiCABase, LeggiAcciaioCA); }},
};
// clang-format on

// --- the job's materials -----------------------------------------------------------------------------------------------------

constexpr const char* RELEASE_MAT_LAVORO = "[ReleaseQuestoFile=3]";
constexpr int MaxGammaM = 4;

static void GradoNonStandard(const char* testo, std::string& nome, const std::string& sostituto) {
  Messaggio(testo, TitoloProg, Icona::Esclamazione);
  nome = sostituto;
}

constexpr const char* TESTO_CLS_PERSONALIZZATO =
  "Non è possibile utilizzare una classe personalizzata per il calcestruzzo. Impostare una classe standard";
constexpr const char* TESTO_ACC_PERSONALIZZATO =
  "Non è possibile utilizzare una tipo di acciaio personalizzato. Impostare un tipo standard";

static bool NomeCls(const std::string& valore, const int*) {
  materiali.MatBaseCls.Nome = valore;
  if (materiali.UsaCls && Maiuscolo(valore) == "ALTRA")
    GradoNonStandard(TESTO_CLS_PERSONALIZZATO, materiali.MatBaseCls.Nome, materiali.ClsBase[1].Nome);
  return true;
}

static bool NomeAcc1(const std::string& valore, const int*) {
  materiali.MatBaseAcc1.Nome = valore;
  if (!materiali.SezChiuse && valore == "ALTRO")
    GradoNonStandard(TESTO_ACC_PERSONALIZZATO, materiali.MatBaseAcc1.Nome, materiali.AcciaiBase[1].Nome);
  return true;
}

static bool NomeAcc2(const std::string& valore, const int*) {
  materiali.MatBaseAcc2.Nome = valore;
  if (materiali.SezChiuse && valore == "ALTRO")
    GradoNonStandard(TESTO_ACC_PERSONALIZZATO, materiali.MatBaseAcc2.Nome, materiali.AcciaiChiusiBase[1].Nome);
  return true;
}

static bool ModuloE(const std::string& valore, const int*) {
  double v = 0;
  if (Val(valore, v)) materiali.ModuloEBase = v / 10;
  else passi.fallito = true;
  return true;
}

static bool GammaM(const std::string& valore, const int* indici) {
  const int k = indici[0];
  if (k < 1 || k > MaxGammaM) {
    SegnalaFault();
    return false;
  }
  if (!Val(valore, materiali.GammaMBase[k])) passi.fallito = true;
  return true;
}

namespace {
// A key fills a field of the job's concrete, a field of one of its steels, or has a rule of its own.
struct ChiaveMat {
  const char* chiave;
  double MatCls::*cls = nullptr;
  MatAcciaio Materiali::*acc = nullptr;
  double MatAcciaio::*campo = nullptr;
  bool (*regola)(const std::string& valore, const int* indici) = nullptr;  // false: fault of the bracket
};
}  // namespace

static constexpr ChiaveMat ChiaveCls(const char* chiave, double MatCls::*campo) { return {chiave, campo}; }
static constexpr ChiaveMat ChiaveAcc(const char* chiave, MatAcciaio Materiali::*acc, double MatAcciaio::*campo) {
  return {chiave, nullptr, acc, campo};
}
static constexpr ChiaveMat ChiaveRegola(const char* chiave, bool (*regola)(const std::string&, const int*)) {
  return {chiave, nullptr, nullptr, nullptr, regola};
}

constexpr ChiaveMat CHIAVI[] = {
  ChiaveRegola("CLS_CLASSE", NomeCls),
  ChiaveCls("VALORECALCOLATO_CLS_RCK", &MatCls::Rck),
  ChiaveCls("CLS_COEFFICIENTE_GAMMAC", &MatCls::GammaC),
  ChiaveCls("VALORECALCOLATO_CLS_FCK", &MatCls::Fck),
  ChiaveCls("VALORECALCOLATO_CLS_ALFACC", &MatCls::AlfaCC),
  ChiaveCls("VALORECALCOLATO_CLS_FCD", &MatCls::Fcd),
  ChiaveCls("VALORECALCOLATO_CLS_ECM", &MatCls::Ecm),
  ChiaveCls("VALORECALCOLATO_CLS_SAMM", &MatCls::SAmm),
  ChiaveRegola("ACC_CARP_1_TIPO", NomeAcc1),
  ChiaveRegola("ACC_CARP_MODULODIELASTICITA_E", ModuloE),
  ChiaveRegola("ACC_CARP_COEFFICIENTE_GAMMAM", GammaM),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_1_FYK_SP_MIN_40", &Materiali::MatBaseAcc1, &MatAcciaio::Fyk),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_1_FTK_SP_MIN_40", &Materiali::MatBaseAcc1, &MatAcciaio::Ftk),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_1_FYD_SP_MIN_40", &Materiali::MatBaseAcc1, &MatAcciaio::Fyd),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_1_FYK_SP_MIN_80", &Materiali::MatBaseAcc1, &MatAcciaio::Fyk40),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_1_FTK_SP_MIN_80", &Materiali::MatBaseAcc1, &MatAcciaio::Ftk40),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_1_FYD_SP_MIN_80", &Materiali::MatBaseAcc1, &MatAcciaio::Fyd40),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_1_SAMM", &Materiali::MatBaseAcc1, &MatAcciaio::SAmm),
  ChiaveRegola("ACC_CARP_2_TIPO", NomeAcc2),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_2_FYK_SP_MIN_40", &Materiali::MatBaseAcc2, &MatAcciaio::Fyk),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_2_FTK_SP_MIN_40", &Materiali::MatBaseAcc2, &MatAcciaio::Ftk),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_2_FYD_SP_MIN_40", &Materiali::MatBaseAcc2, &MatAcciaio::Fyd),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_2_FYK_SP_MIN_80", &Materiali::MatBaseAcc2, &MatAcciaio::Fyk40),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_2_FTK_SP_MIN_80", &Materiali::MatBaseAcc2, &MatAcciaio::Ftk40),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_2_FYD_SP_MIN_80", &Materiali::MatBaseAcc2, &MatAcciaio::Fyd40),
  ChiaveAcc("VALORECALCOLATO_ACC_CARP_2_SAMM", &Materiali::MatBaseAcc2, &MatAcciaio::SAmm),
};

// The integers of a bracket: leading numbers, fractions cut off.
static bool IndiciChiave(std::string testo, int (&indici)[MaxIndiciChiave]) {
  std::fill(indici, indici + MaxIndiciChiave, 0);
  for (int k = 0;; ++k) {
    const std::string parola = TokenSuccessivo(testo);
    if (parola.empty()) return true;
    double v = 0;
    std::int16_t n = 0;
    if (k >= MaxIndiciChiave || !Val(parola, v) || !InIntero(std::trunc(v), n)) return false;
    indici[k] = n;
  }
}

void LeggiMaterialiCatalogo(const std::string& path, std::string& errore) {
  FileLettura f;
  if (!ApriLettura(f, path)) {
    errore = "File materiali (" + path + ") non trovato o non valido";
    return;
  }
  errore.clear();
  std::string riga;
  while (!FineFile(f)) {
    if (!LeggiRiga(f, riga)) return;
    riga = Maiuscolo(riga);
    const auto* sez =
      std::find_if(std::begin(SEZIONI), std::end(SEZIONI), [&](const SezioneCatalogo& s) { return Contiene(riga, s.titolo); });
    if (sez != std::end(SEZIONI)) sez->leggi(f);
  }
}

bool LeggiMaterialiBase() {
  materiali.MatDaBase = false;
  FileLettura f;
  if (!ApriLettura(f, suite.DirLavoro + FILE_MAT_LAVORO)) {
    Messaggio("Materiali Base non impostati, specificare un materiale nell'apposita sezione", TitoloProg, Icona::Esclamazione);
    return true;
  }
  std::string riga;
  if (!LeggiRiga(f, riga) || !Contiene(riga, RELEASE_MAT_LAVORO)) {
    Messaggio("Materiali base non corretti. Aprire 'Materiali base' dal pannello principale di Vestra e salvarli", "ATTENZIONE!",
              Icona::Esclamazione);
    return true;
  }
  materiali.MatDaBase = true;
  while (!FineFile(f)) {
    if (!LeggiRiga(f, riga)) break;
    if (!DecifraRigaMatBase(riga)) return false;
  }
  return true;
}

bool DecifraRigaMatBase(const std::string& riga) {
  const std::string maiuscola(Rifila(Maiuscolo(riga)));
  std::string valore;
  int indici[MaxIndiciChiave] = {};
  for (const ChiaveMat& c : CHIAVI) {
    const int esito = CercaChiave(maiuscola, c.chiave, valore, indici);
    if (esito < 0) return false;
    if (esito == 0) continue;
    if (c.regola != nullptr) return c.regola(valore, indici);
    double& campo = c.cls != nullptr ? materiali.MatBaseCls.*c.cls : materiali.*c.acc.*c.campo;
    if (!Val(valore, campo)) passi.fallito = true;
    return true;
  }
  return true;
}

int CercaChiave(std::string_view riga, std::string_view chiave, std::string& valore, int (&indici)[MaxIndiciChiave]) {
  const std::string_view rifilata = Rifila(riga);
  const std::string minuscola = Minuscolo(rifilata);  // case changes no length in UTF-8: Latin-1 letters only
  const std::string cercato = "[" + Minuscolo(chiave);
  const std::size_t pos = minuscola.find(cercato);
  if (pos == std::string::npos) return 0;
  const std::size_t dopo = pos + cercato.size();
  if (dopo >= minuscola.size() || (minuscola[dopo] != ' ' && minuscola[dopo] != ']')) return 0;
  valore = Rifila(rifilata.substr(0, pos));
  const std::size_t chiusa = minuscola.find(']', dopo);
  if (chiusa == std::string::npos) return 0;
  if (IndiciChiave(std::string(Rifila(std::string_view(minuscola).substr(dopo, chiusa - dopo))), indici)) return 1;
  SegnalaFault();
  return -1;
}
