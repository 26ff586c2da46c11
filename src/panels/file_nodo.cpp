// panels/file_nodo.cpp - the commands Salva Nodo and Carica Nodo.
// A load runs in the mode in which a failed step is skipped: the panel is brought in line with whatever was read, and the
// failure has one box, at the end. A save writes aside and renames, so that a failure leaves the former file whole.
#include "panels/file_nodo.h"

#include <algorithm>
#include <cstring>

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/layout_nodo.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "model/regole_nodo.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/FormTF.h"
#include "panels/InsDati.h"
#include "panels/lavoro_finestre.h"
#include "panels/valori.h"

// The name and the caption change before anything is read or written, also when that fails then.
static bool ScegliFileNodo(bool salva, std::string& percorso) {
  RichiestaFile r;
  r.salva = salva;
  r.filtro = "File nodo 3 (*.qb7)|*.qb7|Tutti i file (*.*)|*.*";
  r.cartella = insDati.CartellaDialogo;
  r.estensione = "qb7";
  int filtro = 1;
  if (!piattaforma.scegliFile(r, percorso, filtro)) return false;
  insDati.CartellaDialogo.clear();
  nodo.NomeNodo = NomeSenzaEstensione(percorso);
  ScriviTitolo();
  return true;
}

void SalvaNodo() {
  std::string percorso;
  esitoFile.annullato = !ScegliFileNodo(true, percorso);
  if (esitoFile.annullato) return;
  const std::string testo = ComponiNodo();
  if (passi.fallito || !SostituisciFile(percorso, testo)) passi.fallito = true;
}

// --- steps in the middle of the reading -----------------------------------------------------------------------------------

// A section of the library is copied whole over the file's: its four dimensions count only for a section that is not there.
static void SelezionaProfilo() {
  const int n = std::min<int>(suite.NumProfili, MaxProfili);
  for (int k = 1; k <= n; ++k)
    if (suite.ProfiliLib[k].Nome == nodo.Sezione.Nome) ImpostaScelta(insDati.TraveP, k - 1);
}

// A digit written as text: 0 to `ultima`, -1 for anything else.
static int CifraFinoA(const std::string& testo, char ultima) {
  const std::string_view t = Rifila(testo);
  return t.size() == 1 && t[0] >= '0' && t[0] <= ultima ? t[0] - '0' : -1;
}

static void SelezionaMotivo() {  // another digit selects nothing and is no failure
  const int voce = CifraFinoA(scambio.motivo, '3');
  if (voce >= 0) SelezionaVoce(insDati.OptionNTir[0], voce);
}

static void SelezionaDiametro() {  // rows 1..100 of a table counted from 0; a free row holds 0
  const int riga = scambio.TfDiamIdx;
  if (riga < 1 || riga > MaxDiam + 1) {
    passi.fallito = true;
    return;
  }
  nodo.TfDiamIdx = scambio.TfDiamIdx;
  nodo.TfFi = suite.DiamVal[riga - 1];
}

static void SelezionaEsposizione() { ImpostaScelta(insDati.ComboEsposizione, scambio.Esposizione - 1); }

// The change of method brings back the steels remembered for the method; those of the file win, by name, over them.
static void SelezionaMetodo() {
  const int voce = CifraFinoA(scambio.metodo, '1');
  if (voce < 0) {
    passi.fallito = true;
    return;
  }
  const std::string acc = nodo.MatAcc.Nome, tir = nodo.MatTir.Nome;
  SelezionaVoce(insDati.TipoVer[0], voce);
  nodo.MatAcc.Nome = acc;
  nodo.MatTir.Nome = tir;
}

static void EseguiPasso(PassoNodo passo) {
  switch (passo) {
    case PassoNodo::Nessuno: break;
    case PassoNodo::Sezione: SelezionaProfilo(); break;
    case PassoNodo::Motivo: SelezionaMotivo(); break;
    case PassoNodo::Diametro: SelezionaDiametro(); break;
    case PassoNodo::Esposizione: SelezionaEsposizione(); break;
    case PassoNodo::Metodo: SelezionaMetodo(); break;
  }
}

// --- the panel in line with the model -------------------------------------------------------------------------------------

static void MostraPiastra() {  // sides first, margins behind them: each change stores its value
  ImpostaNumero(insDati.LatoTxt[0], nodo.LatoZ);
  ImpostaNumero(insDati.LatoTxt[1], nodo.LatoY);
  ImpostaNumero(insDati.LatoTxt[2], MargineDaLato(nodo.LatoZ, nodo.Sezione.B));
  ImpostaNumero(insDati.LatoTxt[3], MargineDaLato(nodo.LatoY, nodo.Sezione.H));
  ImpostaNumero(insDati.LatoTxt[4], nodo.SpessPiastra);
}

static void MostraTipologia() {
  if (nodo.TipoNodo == 2) {
    SelezionaVoce(insDati.Op_Tip[0], 1);
    ImpostaNumero(insDati.HFazzTxt[0], nodo.HNerv);
    ImpostaNumero(insDati.HFazzTxt[1], nodo.SpNerv);
    ImpostaScelta(insDati.ChSI, nodo.SaldInt != 0 ? 1 : 0);
  } else SelezionaVoce(insDati.Op_Tip[0], 0);
  ImpostaNumero(insDati.GolaTxt, nodo.Gola);
}

// Setting a distance rebuilds the anchors by rule, and their number from the pattern; the file's positions are put over
// the rebuilt ones afterwards, for as many anchors as the pattern has.
static void MostraTirafondi() {
  ImpostaNumero(insDati.DTf[1], scambio.TfZ[1]);
  ImpostaNumero(insDati.DTf[3], scambio.TfY[1]);
  ImpostaNumero(insDati.DTf[2], nodo.LatoZ - scambio.TfZ[2]);
  ImpostaNumero(insDati.DTf[4], nodo.LatoY - scambio.TfY[3]);
  for (int i = 1; i <= std::min<int>(nodo.NTir, MaxTir); ++i) {
    nodo.TfZ[i] = scambio.TfZ[i];
    nodo.TfY[i] = scambio.TfY[i];
  }
}

// Position k - 1 for each row k of the name, so that the last equal one stays; on a combo that the method filtered the
// position is the table's all the same, so that the record is the named grade's whatever the list shows. Blanks at both ends do not count.
template <class Materiale>
static void SelezionaPerNome(Controllo& combo, const Materiale* tabella, int conteggio, const std::string& nome) {
  const std::string cercato(Rifila(nome));
  for (int k = 1; k <= std::min(conteggio, MaxMateriali); ++k)
    if (Rifila(tabella[k].Nome) == cercato) ImpostaScelta(combo, k - 1);
}

static void SelezionaMateriali() {
  SelezionaPerNome(insDati.ComboCalcestruzzo, materiali.ClsBase, materiali.NumCls, nodo.MatCls.Nome);
  SelezionaPerNome(insDati.Acc, materiali.AcciaiBase, materiali.NumAcciai, nodo.MatAcc.Nome);
  SelezionaPerNome(insDati.Cviti, materiali.AcciaiBase, materiali.NumAcciai, nodo.MatTir.Nome);
}

template <class... Tabella>
static void Svuota(Tabella&... t) {
  (std::memset(t, 0, sizeof t), ...);
}

// The tables of the verification belong to the former node. What a verification does not rebuild by itself, and finds as an
// earlier one left it, stays: plate stresses beside the anchors, geometry of the welds, the running bond limit.
static void AzzeraRisultati() {
  if (!lavoro.usato) return;
  Risultati& ris = lavoro.ris;
  Svuota(ris.SigmaTir, ris.TauTir, ris.SRfTir, ris.TiroTir, ris.FvEd, ris.FtEd, ris.Co1, ris.Co2, ris.Co3);
  Svuota(ris.SMaxCls, ris.SMaxPiastra, ris.SNerv);
  for (Saldatura& w : ris.Saldature) Svuota(w.TauPa, w.TauPe, w.SPrp, w.SEq1, w.SEq2);
  lavoro.NumSaldature = 0;
}

// A fault in a handler is one failed step more; nothing that it left is painted.
static void FaultInPassoFallito() {
  if (FaultAritmetico()) passi.fallito = true;
  AzzeraFault();
}

void CaricaNodo() {
  std::string percorso;
  esitoFile.annullato = !ScegliFileNodo(false, percorso);
  if (esitoFile.annullato) return;
  FileLettura f;
  if (!ApriLettura(f, percorso)) passi.fallito = true;
  LeggiNodo(f, EseguiPasso);
  gradiLetti = {nodo.MatAcc.Nome, nodo.MatTir.Nome, nodo.MatCls.Nome, true};
  ControllaMateriali();
  MostraPiastra();
  MostraTipologia();
  MostraTirafondi();
  RileggiFormTF();
  AggiornaTFLab();
  FaultInPassoFallito();
  RidisegnaNodo();
  SelezionaMateriali();
  AggiornaRighe();
  FaultInPassoFallito();
  AzzeraRisultati();
}

static void Esegui(void (*operazione)(), const char* errore) {
  passi = {};
  esitoFile = {};
  AzzeraFault();
  operazione();
  esitoFile.fallito = passi.fallito;
  if (passi.fallito) Messaggio(errore, "ERRORE", Icona::Nessuna);
}

void InsDati_Sav_Nodo(int) { Esegui(SalvaNodo, "Errore: salvataggio fallito"); }

void InsDati_Car_Nodo(int) {
  Esegui(CaricaNodo, "Errore: caricamento fallito");
  if (esitoFile.fallito) nodo.Sezione.Nome = suite.ProfiliLib[ProfiloBase].Nome;
}
