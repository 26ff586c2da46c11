// panels/lavoro_finestre.cpp - the panels' verification: boxes from diagnoses, the report, the tables as they stay in sight.
#include "panels/lavoro_finestre.h"

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "drawing/tavola.h"
#include "engine/Calcoli.h"
#include "engine/Controlli.h"
#include "engine/righe.h"
#include "model/stato.h"
#include "reports/Relazioni.h"

void LegaLavoro() {
  lavoro.nodo = &nodo;
  lavoro.suite = &suite;
  lavoroDisegno = &lavoro;
}

void AzzeraLavoro() {
  if (lavoro.usato) {
    static const Lavoro VUOTO;  // large: made only where it is needed
    lavoro = VUOTO;
  }
  LegaLavoro();
}

// ---- the tables in sight: daN/cm2 and rounded ratios, in the order in which a report's lines come to them ----

template <class... Valore>
static void InCentimetri(Valore&... v) {
  ((v *= MM2_SU_CM2), ...);
}

static void MostraTirafondo(Lavoro& l, int s, int i) {
  Risultati& ris = l.ris;
  if (l.TipoVer == MetodoTA) return InCentimetri(ris.SigmaTir[s][i], ris.TauTir[s][i], ris.SRfTir[s][i]);
  for (double* Co : {&ris.Co1[s][i], &ris.Co2[s][i], &ris.Co3[s][i]}) *Co = ArrotondaPari(*Co, 2);
}

// One sextet up to the check and element at which a fault came up, or whole.
static void MostraSestetto(Lavoro& l, int s, const PuntoFermo& fine) {
  const bool intero = !fine.c_e || s < fine.sestetto;
  const auto raggiunto = [&](int criterio) { return intero || fine.criterio >= criterio; };
  struct Tappe {
    int saldature, piastra, cls;
  };
  constexpr Tappe TA = {TA_SALD, TA_PIASTRA, TA_CLS}, SLU = {SLU_SALD_1, SLU_PIASTRA, SLU_CLS};
  const Tappe& tappe = l.TipoVer == MetodoTA ? TA : SLU;
  const bool tuttiTir = raggiunto(tappe.saldature);
  for (int i = 1; i <= l.nodo->NTir && (tuttiTir || i <= fine.elemento); ++i) MostraTirafondo(l, s, i);
  if (raggiunto(tappe.piastra)) InCentimetri(l.ris.SMaxPiastra[s]);
  if (raggiunto(tappe.cls)) InCentimetri(l.ris.SMaxCls[s]);
}

static void MostraTensioniSaldature(Lavoro& l) {
  for (int w = 1; w <= l.NumSaldature; ++w) {
    Saldatura& d = l.ris.Saldature[w];
    for (int s = 1; s <= l.nodo->NumSoll; ++s)
      for (int k = 1; k <= 3; ++k) InCentimetri(d.SPrp[s][k], d.TauPa[s][k], d.TauPe[s][k]);
  }
}

// Of a run that came to its checks.
static void MostraTabelle(Lavoro& l) {
  if (l.TipoVer != MetodoTA) MostraTensioniSaldature(l);
  const int ultimo = l.fermo.c_e ? l.fermo.sestetto : l.nodo->NumSoll;
  for (int s = 1; s <= ultimo; ++s) MostraSestetto(l, s, l.fermo);
}

// ---- the command ----

// A fault of the checks stops the run with the box that one of the engine has.
static EsitoVerifica FermaPerFault() {
  MostraFault(TESTO_FAULT_VERIFICA);
  return EsitoVerifica::Interrotta;
}

// Questions only while none was refused; what forbids a verification shows its box in any case. A fault counts where its check was reached.
static bool ChiediGeometria(const RigheGeometria& righe, bool& fault) {
  bool esito = true;
  for (const RigaGeometria& r : righe) {
    if (r.genere == GenereGeometria::Bordo || (r.genere == GenereGeometria::Domanda && !esito)) continue;
    fault = fault || r.fault;
    if (r.passa) continue;
    if (r.genere == GenereGeometria::Domanda) {
      esito = piattaforma.domanda(r.testo, TITOLO_GEOMETRIA, Icona::Esclamazione);
      continue;
    }
    Messaggio(r.testo, TITOLO_GEOMETRIA, Icona::Esclamazione);
    esito = false;
  }
  return esito;
}

// The distance from the plate's edge is advice: a breach only asks.
static bool ChiediBordo(const RigaGeometria& r, bool& fault) {
  if (!r.passa) Messaggio(r.testo, TITOLO_GEOMETRIA, Icona::Esclamazione);
  fault = r.fault;
  return r.passa || fault || piattaforma.domanda("Continuare la verifica?", TitoloProg, Icona::Informazione);
}

static void MostraDiagnosi(const Lavoro& l) {
  for (const Diagnosi& d : l.diagnosi) Messaggio(d.testo, d.titolo, d.icona);
}

static bool Esegui(Lavoro& l) {
  l.TipoVer = nodo.TipoVer == 0 ? MetodoTA : MetodoSLU;
  const bool riuscita = EseguiVerifica(l);
  nodo.MatCls.SAmm = l.SAmmCls;
  nodo.MatCls.TauCls = l.TauCls;
  MostraDiagnosi(l);
  return riuscita;
}

// Eseguita: nothing stands against the verification.
static EsitoVerifica Ammetti() {
  const RigheGeometria righe = ControlliGeometria(nodo, nodo.TipoVer);
  bool fault = FaultAritmetico();
  const bool possibile = ChiediGeometria(righe, fault);
  if (fault) return FermaPerFault();
  if (!possibile) {
    Messaggio("Verifica non possibile", TitoloProg, Icona::Esclamazione);
    return EsitoVerifica::Rifiutata;
  }
  const bool ammesso = ChiediBordo(righe.back(), fault);
  if (fault) return FermaPerFault();
  return ammesso ? EsitoVerifica::Eseguita : EsitoVerifica::Annullata;
}

EsitoVerifica GiudicaConRiquadri(Lavoro& l) {
  const EsitoVerifica esito = Ammetti();
  if (esito != EsitoVerifica::Eseguita) return esito;
  return Esegui(l) ? EsitoVerifica::Eseguita : EsitoVerifica::Interrotta;
}

static bool ScriviRelazione() {
  if (lavoro.TipoVer == MetodoTA ? RelazioneTA(lavoro) : RelazioneSLU(lavoro)) return true;
  if (FaultAritmetico()) MostraFault(TESTO_FAULT_VERIFICA);
  return false;
}

bool VerificaNodoFinestre() {
  const bool riuscita = Esegui(lavoro), scritta = riuscita && ScriviRelazione();
  if (riuscita || lavoro.fermo.c_e) MostraTabelle(lavoro);
  return scritta;
}

EsitoVerifica VerificaConRelazione() {
  const EsitoVerifica esito = Ammetti();
  if (esito != EsitoVerifica::Eseguita) return esito;
  return VerificaNodoFinestre() ? EsitoVerifica::Eseguita : EsitoVerifica::Interrotta;
}
