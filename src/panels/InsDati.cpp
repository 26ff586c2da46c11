// panels/InsDati.cpp - the main panel's fields keep the model in step; the commands of the panel itself; the status line.
// Each field stores the moment it changes, and every change of geometry rebuilds the anchor positions.
#include "panels/InsDati.h"

#include <string>

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "drawing/pianta.h"
#include "drawing/schizzo.h"
#include "model/node_model.h"
#include "model/regole_nodo.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati_eventi.h"
#include "panels/valori.h"

constexpr int MS_STATO = 800;                       // rest of the pointer before the status line shows
constexpr std::int32_t COLORE_SCHEDE = 0xFFFFD2;    // RGB(210, 255, 255)
constexpr std::int32_t COLORE_VERSIONE = 0x6464FF;  // RGB(255, 100, 100)
constexpr std::int32_t COLORE_BIANCO = 0xFFFFFF;

// ---- anchors ----

// A distance that is no number leaves its anchors where they stand.
static void PosizioniDaiCampi() {
  double *const Z = nodo.TfZ, *const Y = nodo.TfY;
  double dz1 = 0, dz2 = 0, dy1 = 0, dy2 = 0;  // mm, from the plate's edges
  if (LeggiCampo(insDati.DTf[1], dz1)) Z[1] = Z[3] = dz1;
  if (LeggiCampo(insDati.DTf[2], dz2) && AssegnaFinito(Z[2], nodo.LatoZ - dz2)) Z[4] = Z[2];
  if (LeggiCampo(insDati.DTf[3], dy1)) Y[1] = Y[2] = dy1;
  if (LeggiCampo(insDati.DTf[4], dy2) && AssegnaFinito(Y[3], nodo.LatoY - dy2)) Y[4] = Y[3];
  PosizioniExtra(nodo);
}

// ---- section and plate ----

void AggiornaGeomp() {
  const Sezione& s = nodo.Sezione;
  const double valori[] = {s.H, s.B, s.A, s.E, s.R};
  for (int i = 0; i < 5; i++) MostraTesto(insDati.geomp[i], NumeroPiano(valori[i]));
}

void InsDati_TraveP(int) {
  const int n = insDati.TraveP.scelta + 1;
  if (n < 1 || n > suite.NumProfili || n > MaxProfili) {
    passi.fallito = true;
    return;
  }
  nodo.Sezione = suite.ProfiliLib[n];
  AggiornaGeomp();
  InsDati_LatoTxt_Invio(0);
}

// Which pair of plate fields is live: the sides (0, 1) or the margins (2, 3).
void InsDati_GeoP(int) {
  const bool margini = VoceScelta(insDati.GeoP[0]) == 1;
  for (int i = 0; i < 4; i++) {
    const bool vivo = (i >= 2) == margini;
    MostraAbilitato(insDati.LatoTxt[i], vivo);
    MostraAbilitato(insDati.Label2[i], vivo);
  }
}

void InsDati_LatoTxt(int i) {
  double v = 0;
  if (LeggiCampo(insDati.LatoTxt[i], v)) {
    switch (i) {
      case 0: nodo.LatoZ = v; break;
      case 1: nodo.LatoY = v; break;
      case 2: AssegnaFinito(nodo.LatoZ, LatoDaMargine(v, nodo.Sezione.B)); break;  // 2 and 3 are the margins
      case 3: AssegnaFinito(nodo.LatoY, LatoDaMargine(v, nodo.Sezione.H)); break;
      case 4: nodo.SpessPiastra = v; break;
    }
  }
  PosizioniDaiCampi();
}

static void LatiDaMargini() {
  double mz = 0, my = 0;
  if (LeggiCampo(insDati.LatoTxt[2], mz)) AssegnaFinito(nodo.LatoZ, LatoDaMargine(mz, nodo.Sezione.B));
  if (LeggiCampo(insDati.LatoTxt[3], my)) AssegnaFinito(nodo.LatoY, LatoDaMargine(my, nodo.Sezione.H));
  ImpostaTesto(insDati.LatoTxt[0], NumeroPiano(nodo.LatoZ));
  ImpostaTesto(insDati.LatoTxt[1], NumeroPiano(nodo.LatoY));
}

// The change of a margin stores the side again, so the side ends as twice the shown margin and the section: equal up to 15 digits.
static void MarginiDaLati() {
  double mz = 0, my = 0;
  if (AssegnaFinito(mz, MargineDaLato(nodo.LatoZ, nodo.Sezione.B))) ImpostaTesto(insDati.LatoTxt[2], NumeroPiano(mz));
  if (AssegnaFinito(my, MargineDaLato(nodo.LatoY, nodo.Sezione.H))) ImpostaTesto(insDati.LatoTxt[3], NumeroPiano(my));
}

void InsDati_LatoTxt_Invio(int) {
  if (VoceScelta(insDati.GeoP[0]) == 1) LatiDaMargini();
  else MarginiDaLati();
  PosizioniDaiCampi();
  RidisegnaNodo();
}

// ---- ribs and welds ----

void InsDati_Op_Tip(int) {
  const bool nervature = VoceScelta(insDati.Op_Tip[0]) == 1;
  nodo.TipoNodo = nervature ? 2 : 1;
  for (Controllo* c : {&insDati.HFazzTxt[0], &insDati.HFazzTxt[1], &insDati.Label8[0], &insDati.Label8[1], &insDati.ChSI, &insDati.LSi})
    MostraAbilitato(*c, nervature);
  RidisegnaNodo();
}

void InsDati_HFazzTxt(int i) { LeggiCampo(insDati.HFazzTxt[i], i == 0 ? nodo.HNerv : nodo.SpNerv); }

void InsDati_ChSI(int) { nodo.SaldInt = insDati.ChSI.scelta == 1 ? 1 : 0; }

void InsDati_GolaTxt(int) {
  if (LeggiCampo(insDati.GolaTxt, nodo.Gola)) nodo.GolaCalc = GolaDaLato(nodo.Gola);
}

// ---- pattern ----

void InsDati_DTf(int) { PosizioniDaiCampi(); }

void InsDati_OptionNTir(int) {
  nodo.OptionNTir = VoceScelta(insDati.OptionNTir[0]);
  PosizioniDaiCampi();
  RidisegnaNodo();
}

void AggiornaTFLab() {
  const double valori[] = {nodo.TfLFt, nodo.TfL, nodo.TfR, nodo.TfL1, nodo.TfLF, nodo.TfFi};
  for (int i = 0; i < 6; i++) MostraTesto(insDati.TFLab[i], NumeroPiano(valori[i]));
}

// ---- method and exposure ----

void InsDati_TipoVer(int i) {
  if (nodo.TipoVer == i) return;  // only a real change counts
  nodo.TipoVer = i;
  CambioMetodo();
  const bool classi = i == 0;  // load classes belong to allowable stresses
  MostraVisibile(insDati.Label4, classi);
  for (int r = 0; r < 5; r++) MostraVisibile(insDati.CasCar[r], classi && insDati.Lsa[r].visibile);
}

void InsDati_ComboEsposizione(int) { nodo.Esposizione = insDati.ComboEsposizione.scelta; }

// ---- plan ----

void RidisegnaNodo() {
  if (passi.fallito) CalcolaSmussi();  // the canvas stays as it was
  else DisegnaNodo(insDati.telaNodo);
  piattaforma.aggiorna(insDati.Nodo);
}

void InsDati_Ridisegna_Invio(int) { RidisegnaNodo(); }

// ---- commands ----

void InsDati_LegendaButt(int) { piattaforma.mostraAiuto(suite.DirRoot + "\\help" + "\\HelpQB07.pdf"); }

// Ends the run at once: no question, nothing is saved.
void InsDati_Chiudi(int) {
  piattaforma.attesa(true);
  piattaforma.fine();
}

// ---- window and status line ----

void ScriviTitolo() { insDati.titolo = std::string(TitoloProg) + " - Lavoro: " + nodo.NomeNodo; }

void InsDati_Mostrato() {
  insDati.SSTab.coloreSfondo = COLORE_SCHEDE;
  insDati.Versione.coloreSfondo = COLORE_VERSIONE;
  insDati.Versione.coloreTesto = COLORE_BIANCO;
  piattaforma.aggiorna(insDati.SSTab);
  piattaforma.aggiorna(insDati.Versione);
  RidisegnaNodo();
  insDati.TitoloCerca = "NODO COLONNA - PLINTO - IMPORTA SOLLECITAZIONI DA 3D - Cerca nodi";
}

static void Timer1() {
  MostraTesto(insDati.Help, insDati.StatoTxt);
  MostraVisibile(insDati.Help, true);
}

void ImpostaStato(const char* testo) {
  insDati.StatoTxt = testo;
  piattaforma.timer(Temporizzatore::Stato, MS_STATO, Timer1);
}

void InsDati_Passa(const char* testo) {
  if (*testo != '\0') {
    ImpostaStato(testo);
    return;
  }
  MostraTesto(insDati.Help, "");
  MostraVisibile(insDati.Help, false);
  piattaforma.timer(Temporizzatore::Stato, 0, Timer1);
}

const char* InsDati_Label30_Stato(int i) {
  const bool ta = nodo.TipoVer == 0;
  switch (i) {
    case 0:
      return ta ? "Tensione ammissibile dell'acciaio, combinazione di carico di tipo I"
                : "Tensione limite elastica di calcolo dell'acciaio";
    case 1: return "Tensione ammissibile dell'acciaio, combinazione di carico di tipo II";
    case 2: return "Tensione ammissibile dell'acciaio tirafondi, combinazione di carico di tipo II";
    case 3: return ta ? "Tensione ammissibile del calcestruzzo" : "Tensione massima di calcolo del calcestruzzo";
    case 4:
      return ta ? "Tensione ammissibile dell'acciaio Tirafondi, combinazione di carico di tipo I"
                : "Tensione limite elastica di calcolo dell'acciaio tirafondi";
    default: return "";
  }
}
