// engine/Calcoli.cpp - the driver of one verification.
#include "engine/Calcoli.h"

#include <cmath>
#include <string>

#include "core/aritmetica.h"
#include "core/diametri.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "engine/ModuloCalcoliNTC.h"
#include "engine/Nervature.h"
#include "engine/Piastra.h"
#include "engine/PresInfl.h"
#include "engine/Saldature.h"
#include "engine/Tirafondi.h"
#include "engine/verifica.h"
#include "model/suite.h"
#include "reports/Relazioni.h"

static bool TensioniAmmissibili() { return nodo.TipoVer == 0; }

// True: a fault was raised since the run began; its box is shown.
static bool FermaPerFault() {
  if (!FaultAritmetico()) return false;
  MostraFault(TESTO_FAULT_VERIFICA);
  return true;
}

static void LeggiSestetto(int s) {
  verifica.N = nodo.SollN[s];
  verifica.Ty = nodo.SollTy[s];
  verifica.Tz = nodo.SollTz[s];
  verifica.My = 10 * nodo.SollMy[s];         // daN cm to daN mm
  verifica.Mz = 10 * nodo.SollMz[s];
  verifica.Mt = 10 * nodo.SollMt[s];
}

// Only these rows: the bearing stress, the anchor force by allowable stresses and the ribbed plate's strips stay (deliberate).
static void AzzeraRighe(int s) {
  ris.SMaxPiastra[s] = 0;
  for (int p = 1; p <= MaxNerv; ++p) ris.SNerv[s][p] = 0;
  for (int i = 1; i <= nodo.NTir; ++i) ris.SigmaTir[s][i] = ris.TauTir[s][i] = ris.FtEd[s][i] = ris.FvEd[s][i] = 0;
  for (int w = 1; w <= nodo.NumSaldature; ++w) {
    Saldatura& d = ris.Saldature[w];
    for (int k = 1; k <= 3; ++k) d.SPrp[s][k] = d.TauPa[s][k] = d.TauPe[s][k] = 0;
    d.SEq1[s] = d.SEq2[s] = 0;
  }
}

static void VerificaNervata(int s) {
  TensioniSaldaturePiastra(s);
  CalcolaNervature(s);
  TensioniSaldatureColonna(s);
  PiastraConNervature(s, verifica.ArmZ, verifica.ArmY);
  for (int d = 1; d <= 2; ++d)
    for (int i = 1; i <= nodo.NTir; ++i) ris.SMaxPiastra[s] = MaxDi(ris.SMaxPiastra[s], ris.SPiastraTir[s][d][i]);
}

static bool CalcolaSestetto(int s) {
  LeggiSestetto(s);
  AzzeraRighe(s);
  bool esito = true;
  DatiSezione(s);
  PresInfl(1, ris.SMaxCls[s], ris.SigmaTir, s, esito);
  if (FermaPerFault()) return false;
  if (!esito) {
    Messaggio("Sestetto di sollecitazione n°" + std::to_string(s) +
                  ": situazione non equilibrata nel calcolo delle azioni sui tirafondi. La verifica non può continuare!",
              TitoloProg, Icona::Critica);
    return false;
  }
  ris.SMaxCls[s] = std::fabs(ris.SMaxCls[s]);
  if (!TensioniAmmissibili()) ForzeTirafondiNTC(s);
  TaglioTirafondi(s);
  if (nodo.TipoNodo == 1) {
    PiastraSenzaNervature(s);
    TensioniSaldaturePiastra(s);
  } else if (nodo.TipoNodo == 2) {
    VerificaNervata(s);
  }
  return !FermaPerFault();
}

static void ValoriComuni() {
  StatoVerifica& v = verifica;
  CostruisciSaldature();
  InerziaTirafondi(v.SommaR2, v.ArmZ, v.ArmY);
  InerziaSaldature(v.IzSald, v.IySald, v.IpSald, v.LungTz, v.LungTy);
  v.AreaTf = AreaResistente(nodo.TfFi);
  if (TensioniAmmissibili()) ResistenzeTA();
  else ResistenzeNTC();
}

static void MessaggioDiametro() {
  const char* metodo = nullptr;
  if (ris.FlagDiamEstrapolato) metodo = "estrapolazione.";
  else if (ris.FlagDiamInterpolato) metodo = "interpolazione.";
  if (metodo == nullptr) return;
  Messaggio("Il diametro dei tirafondi non è compreso tra i valori del file " + suite.DirCustom + "\\QbDiam.txt ." + "\r" +
                "Il valore dell'area corrispondente è stato calcolato per " + metodo,
            TitoloProg, Icona::Informazione);
}

bool CalcolaTabelle() {
  AzzeraFault();
  ris.FlagDiamEstrapolato = ris.FlagDiamInterpolato = false;
  ValoriComuni();
  if (FermaPerFault()) return false;
  for (int s = 1; s <= nodo.NumSoll; ++s)
    if (!CalcolaSestetto(s)) return false;
  return true;
}

bool EseguiVerifica() {
  esitoRelazione = {};
  if (!CalcolaTabelle()) return false;
  MessaggioDiametro();
  if (!TensioniAmmissibili()) {
    ScalaTensioniSaldature();
    RapportiTirafondiNTC();
    if (FermaPerFault()) return false;
  }
  if (TensioniAmmissibili() ? RelazioneTA() : RelazioneSLU()) return true;
  FermaPerFault();
  return false;
}
