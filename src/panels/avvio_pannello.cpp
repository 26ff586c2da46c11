// panels/avvio_pannello.cpp - the start of the program in its order, and the reset of a joint through the panel's fields.
#include <algorithm>
#include <string>
#include <vector>

#include "core/aritmetica.h"
#include "core/avvio.h"
#include "core/diametri.h"
#include "core/opzioni.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "core/unita.h"
#include "drawing/disegno.h"
#include "drawing/font.h"
#include "drawing/formats/grb_stili.h"
#include "link/profili.h"
#include "materials/file_materiali.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"
#include "panels/Op_Nodo.h"
#include "panels/lavoro_finestre.h"
#include "panels/programma.h"
#include "panels/valori.h"

constexpr int DiametroPredefinito = 7;  // row of the diameter table, from 1: M20

// ---- reset of a joint ----

static void AzzeraPiastra() {
  SelezionaVoce(insDati.GeoP[0], 1);
  ImpostaNumero(insDati.LatoTxt[2], 100);
  ImpostaNumero(insDati.LatoTxt[3], 100);
  ImpostaNumero(insDati.LatoTxt[4], 10);
  ImpostaNumero(insDati.LatoTxt[0], nodo.LatoZ);
  ImpostaNumero(insDati.LatoTxt[1], nodo.LatoY);
}

static void AzzeraNervature() {
  ImpostaNumero(insDati.HFazzTxt[0], 150);
  ImpostaNumero(insDati.HFazzTxt[1], 6);
  SelezionaVoce(insDati.Op_Tip[0], 1);
  ImpostaNumero(insDati.GolaTxt, 7);
}

static void AzzeraTirafondi() {
  for (int i = 1; i <= 2; i++) ImpostaNumero(insDati.DTf[i], (nodo.LatoZ - nodo.Sezione.B) / 4);
  for (int i = 3; i <= 4; i++) ImpostaNumero(insDati.DTf[i], (nodo.LatoY - nodo.Sezione.H) / 4);
  nodo.TipoTirafondo = 0;
  nodo.TfR = 70;
  nodo.TfL1 = 450;
  nodo.TfL = 500;
  nodo.TfLFt = 120;
  nodo.TfLF = 10;
  nodo.TfDForo = 100;
  nodo.TfDiamIdx = DiametroPredefinito;
  nodo.TfFi = suite.DiamVal[DiametroPredefinito - 1];
  nodo.TfHMalta = 50;
  nodo.TfDistBordo = 200;
  AggiornaTFLab();
}

static void AzzeraMateriali() {
  nodo.MatVit = materiali.VitiBase[1];
  nodo.MatTir = materiali.AcciaiBase[1];
  ImpostaVoce(insDati.Cviti, nodo.MatTir.Nome);
  if (materiali.MatDaBase) {
    InsDati_CheckMatBase(0);
    return;
  }
  nodo.MatAcc = materiali.AcciaiBase[1];
  nodo.MatCls = materiali.ClsBase[3];
  ImpostaVoce(insDati.Acc, nodo.MatAcc.Nome);
  ImpostaVoce(insDati.ComboCalcestruzzo, nodo.MatCls.Nome);
}

void AzzeraNodo() {
  ImpostaScelta(insDati.SSTab, 0);
  // A library with fewer entries selects nothing: the section stays as it is.
  if (suite.NumProfili >= ProfiloBase) ImpostaScelta(insDati.TraveP, ProfiloBase - 1);
  AzzeraPiastra();
  AzzeraNervature();
  AzzeraTirafondi();
  AzzeraMateriali();
  ImpostaScelta(insDati.ComboEsposizione, 0);
  for (int i = 0; i < 5; i++) NascondiRiga(i);
  AggiornaTitoloSoll();
  disegno.DestDis = {};
  nodo.NTir = 4;
  lavoro.NumSaldature = 0;
}

// ---- start ----

static bool Termina() {
  piattaforma.fine();
  return false;
}

static bool Errore(const std::string& testo, Icona icona) {
  Messaggio(testo, "ERRORE", icona);
  return Termina();
}

static bool FaultDiAvvio() {
  MostraFault();
  return Termina();
}

static bool CaricaProfilario() {
  const int n = LeggiProfili(suite.DirCustom + FILE_PROFILARIO, 1, suite.ProfiliLib, FATT_LUNG_PROFILI, FATT_AREA_PROFILI, FILTRO_PROFILI);
  suite.NumProfili = static_cast<std::int16_t>(n);
  if (n <= 0) return Errore("Profilario errato o mancante", Icona::Nessuna);
  std::vector<std::string> nomi;
  for (int i = 1; i <= n; i++) nomi.emplace_back(RifilaDestra(suite.ProfiliLib[i].Nome));
  MostraVoci(insDati.TraveP, std::move(nomi));
  return true;
}

static bool CaricaCatalogo() {
  materiali.UsaViti = false;
  materiali.UsaTirafondi = true;
  materiali.UsaCls = true;
  materiali.UsaAccPiastre = false;
  materiali.FileMatBase = suite.DirCustom + FILE_CATALOGO;
  std::string errore;
  LeggiMaterialiCatalogo(materiali.FileMatBase, errore);
  return errore.empty() || Errore(errore, Icona::Critica);
}

// The materials panel reads the job's own materials as it is created; then the combos are filled.
static bool CaricaMateriali() {
  if (!LeggiMaterialiBase()) return FaultDiAvvio();
  MostraAbilitato(insDati.CheckMatBase, materiali.MatDaBase);
  const bool ta = nodo.TipoVer == 0;
  RiempiComboMateriali(insDati.Acc, ta, "PROFILI", "");
  RiempiComboMateriali(insDati.Cviti, ta, "BULLONI", "");
  std::vector<std::string> classi;
  const int n = std::min<int>(materiali.NumCls, MaxMateriali);
  for (int i = 1; i <= n; i++) classi.push_back(materiali.ClsBase[i].Nome);
  MostraVoci(insDati.ComboCalcestruzzo, std::move(classi));
  MostraVoci(insDati.ComboEsposizione, {"Esposto a fenomeni corrosivi", "Non esposto a fenomeni corrosivi", "Resistente alla corrosione"});
  return true;
}

// A step of a reader that failed is the reader's own matter; a fault anywhere ends the start.
static bool Azzera() {
  passi = {};
  AzzeraNodo();
  return !FaultAritmetico() || FaultDiAvvio();
}

bool CaricaInsDati(const std::string& rigaComando) {
  AzzeraFault();
  PreparaPannelli();
  if (!TrovaPercorsi(rigaComando)) return Termina();
  if (!ImpostaUnita()) return FaultDiAvvio();
  nodo.NomeNodo = "Nuovo";
  ScriviTitolo();
  insDati.CartellaDialogo = suite.DirLavoro;
  if (!LeggiFont()) return Errore("Errore: file font.001 errato o mancante.", Icona::Nessuna);
  if (!CaricaProfilario()) return false;
  LeggiStiliGrb();  // a missing template shows its box and stops nothing
  if (!CaricaCatalogo() || !CaricaMateriali()) return false;
  LeggiDiametri();
  if (!LeggiOpzioni()) return Errore("Errore: file " + suite.DirCustom + FILE_OPZIONI + " errato o mancante.", Icona::Nessuna);
  RiempiOpNodo();
  DisegnaSegniTipo();
  if (!Azzera()) return false;
  piattaforma.apri(InsDati, false);
  return true;
}
