// panels/combo_materiali.cpp - the material combos of the main panel: how the method filters them, what it remembers, and the
// check of the names that a node file brings.
// Rule      a selection takes the table entry of its position + 1, also where the filter has dropped entries
//           before it: the grade shown may then not be the one used, on either side.
#include <algorithm>
#include <string>
#include <vector>

#include "core/aritmetica.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "materials/regole_materiali.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/regole_nodo.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"
#include "panels/PropMateriali.h"
#include "panels/valori.h"

constexpr const char* PROFILI = "PROFILI";  // column and plates
constexpr const char* BULLONI = "BULLONI";  // anchors

constexpr const char* TITOLO_ATTENZIONE = "ATTENZIONE!";
constexpr const char* TESTO_MAT_TA =
  "Materiale non possibile per verifiche alle tensioni ammissibili. Verrà impostato un altro tipo di acciaio.";
constexpr const char* TESTO_MAT_SLU = "Materiale non possibile per verifiche agli stati limite. Verrà impostato un altro tipo di acciaio.";
constexpr const char* TESTO_MAT_RICORDATO =
  "Da questo momento in poi il materiale impostato sarà ricordato anche se si cambia il metodo di verifica.";
constexpr const char* TESTO_MAT_BASE = "Materiale-Base non valido per questo tipo di verifica. Verrà impostato un altro tipo di acciaio.";

static bool MetodoTA() { return nodo.TipoVer == 0; }

// A count may be the file's own, beyond the table.
static int Righe(int conteggio) { return std::clamp(conteggio, 0, MaxMateriali); }

static int Alternativo(bool metodoTA, const char* ruolo, const std::string& selezione) {
  return IndiceMaterialeAlternativo(metodoTA, ruolo, selezione, Righe(materiali.NumAcciai), materiali.AcciaiBase);
}

// ---- filling ----

void RiempiComboMateriali(Controllo& combo, bool metodoTA, const char* ruolo, const std::string& selezione) {
  std::vector<std::string> voci;
  for (int n = 1; n <= Righe(materiali.NumAcciai); n++)
    if (MaterialeValido(metodoTA, ruolo, materiali.AcciaiBase[n])) voci.push_back(materiali.AcciaiBase[n].Nome);
  const bool vuota = voci.empty();
  MostraVoci(combo, std::move(voci));
  if (vuota) return;
  if (selezione.empty()) {
    ImpostaScelta(combo, 0);
    return;
  }
  if (ImpostaVoce(combo, selezione)) return;
  Messaggio(std::string(metodoTA ? TESTO_MAT_TA : TESTO_MAT_SLU) + "\r" + TESTO_MAT_RICORDATO, TITOLO_ATTENZIONE, Icona::Esclamazione);
  ImpostaScelta(combo, Alternativo(metodoTA, ruolo, selezione));
}

// ---- method ----

// What is in use goes to the memory of the method left; a first use of the method chosen starts from the same grade.
static void CambiaMemoria(Controllo& combo, const char* ruolo, const MatAcciaio& inUso, MatAcciaio& lasciata, MatAcciaio& scelta) {
  lasciata = inUso;
  if (scelta.Nome.empty()) scelta = inUso;
  RiempiComboMateriali(combo, MetodoTA(), ruolo, scelta.Nome);
}

void CambioMetodo() {
  MatAcciaio* const memoria = materiali.MemoriaMateriali;
  const int scelto = MetodoTA() ? 0 : 1, lasciato = 1 - scelto;
  CambiaMemoria(insDati.Acc, PROFILI, nodo.MatAcc, memoria[lasciato], memoria[scelto]);
  CambiaMemoria(insDati.Cviti, BULLONI, nodo.MatTir, memoria[2 + lasciato], memoria[2 + scelto]);
}

// ---- selections ----

// Table entry of a combo's selection; 0, and a failed step: beyond the table.
static int VoceDiTabella(const Controllo& combo, int conteggio) {
  const int n = combo.scelta + 1;
  if (n >= 1 && n <= Righe(conteggio)) return n;
  passi.fallito = true;
  return 0;
}

void InsDati_Acc(int) {
  const int n = VoceDiTabella(insDati.Acc, materiali.NumAcciai);
  if (n == 0) return;
  nodo.MatAcc = materiali.AcciaiBase[n];
  MostraTesto(insDati.LabNormaProf, nodo.MatAcc.Norma);
}

void InsDati_Cviti(int) {
  const int n = VoceDiTabella(insDati.Cviti, materiali.NumAcciai);
  if (n == 0) return;
  nodo.MatTir = materiali.AcciaiBase[n];
  MostraTesto(insDati.LabNormaTir, nodo.MatTir.Norma);
}

void InsDati_ComboCalcestruzzo(int) {
  const int n = VoceDiTabella(insDati.ComboCalcestruzzo, materiali.NumCls);
  if (n == 0) return;
  nodo.MatCls = materiali.ClsBase[n];
  AssegnaFinito(nodo.EcCls, ModuloCls(nodo.MatCls.Rck));
}

// ---- the job's materials ----

// The labels of the materials' panel. What cannot be shown, a partial factor of 0, has its box when that panel opens.
static void AggiornaProprieta() {
  if (FaultAritmetico()) return;
  SettaMateriali();
  AzzeraFault();
}

void InsDati_CheckMatBase(int) {
  nodo.MatAcc = materiali.MatBaseAcc1;
  nodo.MatCls = materiali.MatBaseCls;
  // A class that the combo does not hold leaves the selection and the modulus as they are: its own strengths count, the former class's stiffness.
  ImpostaVoce(insDati.ComboCalcestruzzo, nodo.MatCls.Nome);
  if (!ImpostaVoce(insDati.Acc, nodo.MatAcc.Nome)) {
    Messaggio(TESTO_MAT_BASE, TITOLO_ATTENZIONE, Icona::Esclamazione);
    nodo.MatAcc = materiali.AcciaiBase[Alternativo(MetodoTA(), PROFILI, nodo.MatAcc.Nome) + 1];
    ImpostaVoce(insDati.Acc, nodo.MatAcc.Nome);
  }
  AggiornaProprieta();
}

// ---- names of a loaded node ----

constexpr const char* FINE_ACCIAI = "). Scegliere un acciaio dalla tendina dei  materiali";
constexpr const char* FINE_VITI = "). Scegliere una classe dalla tendina delle viti";
constexpr const char* FINE_CLS = "). Scegliere una classe dalla tendina dei calcestruzzi";

template <class Record>
static bool InTabella(const std::string& nome, const Record* tabella, int conteggio) {
  for (int n = 1; n <= Righe(conteggio); n++)
    if (Rifila(tabella[n].Nome) == Rifila(nome)) return true;
  return false;
}

static void NonAccettabile(const char* inizio, const std::string& nome, const char* fine) {
  Messaggio(inizio + std::string(Rifila(nome)) + fine, TitoloProg, Icona::Nessuna);
}

// Of a replaced material only the name is set: the record follows when the combo is selected.
static void ControllaAcciaio(MatAcciaio& mat, const MatAcciaio* tabella, int conteggio, const char* ruolo, const char* inizio) {
  if (InTabella(mat.Nome, tabella, conteggio)) return;
  NonAccettabile(inizio, mat.Nome, FINE_ACCIAI);
  const int n = IndiceMaterialeAlternativo(MetodoTA(), ruolo, mat.Nome, Righe(conteggio), tabella) + 1;
  mat.Nome = tabella[n].Nome;
}

void ControllaMateriali() {
  const Materiali& m = materiali;
  ControllaAcciaio(nodo.MatAcc, m.SezChiuse ? m.AcciaiChiusiBase : m.AcciaiBase, m.SezChiuse ? m.NumAcciaiChiusi : m.NumAcciai, PROFILI,
                   "Attenzione: tipo acciaio non accettabile (");
  if (m.UsaAccPiastre)
    ControllaAcciaio(nodo.MatPiastra, m.AcciaiBase, m.NumAcciai, PROFILI, "Attenzione: tipo acciaio per piastre non accettabile (");
  if (m.UsaViti && !InTabella(nodo.MatVit.Nome, m.VitiBase, m.NumViti)) {
    NonAccettabile("Attenzione: classe viti non accettabile (", nodo.MatVit.Nome, FINE_VITI);
    nodo.MatVit.Nome = m.VitiBase[1].Nome;
  }
  if (m.UsaTirafondi)
    ControllaAcciaio(nodo.MatTir, m.AcciaiBase, m.NumAcciai, BULLONI, "Attenzione: tipo acciaio per tirafondi non accettabile (");
  if (m.UsaCls && !InTabella(nodo.MatCls.Nome, m.ClsBase, m.NumCls)) {
    NonAccettabile("Attenzione: classe calcestruzzo non accettabile (", nodo.MatCls.Nome, FINE_CLS);
    nodo.MatCls.Nome = m.ClsBase[1].Nome;
  }
}
