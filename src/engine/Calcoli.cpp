// engine/Calcoli.cpp - the driver of one verification.
#include "engine/Calcoli.h"

#include <cmath>
#include <string>

#include "core/fault.h"
#include "core/numeri.h"
#include "engine/ModuloCalcoliNTC.h"
#include "engine/Nervature.h"
#include "engine/Piastra.h"
#include "engine/PresInfl.h"
#include "engine/Saldature.h"
#include "engine/Tirafondi.h"
#include "engine/righe.h"

static bool TensioniAmmissibili(const Lavoro& l) { return l.TipoVer == MetodoTA; }

// True: a fault was raised since the run began; it is noted.
static bool FermaPerFault(Lavoro& l) {
  if (!FaultAritmetico()) return false;
  AzzeraFault();
  l.diagnosi.push_back({TESTO_FAULT_VERIFICA, TitoloProg, Icona::Critica});
  return true;
}

static void LeggiSestetto(Lavoro& l, int s) {
  const Nodo& nodo = *l.nodo;
  StatoVerifica& verifica = l.verifica;
  verifica.N = nodo.SollN[s];
  verifica.Ty = nodo.SollTy[s];
  verifica.Tz = nodo.SollTz[s];
  verifica.My = 10 * nodo.SollMy[s];  // daN cm to daN mm
  verifica.Mz = 10 * nodo.SollMz[s];
  verifica.Mt = 10 * nodo.SollMt[s];
}

// Only these rows: the bearing stress and the anchor force by allowable stresses are written anew, the ribbed plate's strips may stay.
static void AzzeraRighe(Lavoro& l, int s) {
  const Nodo& nodo = *l.nodo;
  Risultati& ris = l.ris;
  ris.SMaxPiastra[s] = 0;
  for (int p = 1; p <= MaxNerv; ++p) ris.SNerv[s][p] = 0;
  for (int i = 1; i <= nodo.NTir; ++i) ris.SigmaTir[s][i] = ris.TauTir[s][i] = ris.FtEd[s][i] = ris.FvEd[s][i] = 0;
  for (int w = 1; w <= l.NumSaldature; ++w) {
    Saldatura& d = ris.Saldature[w];
    for (int k = 1; k <= 3; ++k) d.SPrp[s][k] = d.TauPa[s][k] = d.TauPe[s][k] = 0;
    d.SEq1[s] = d.SEq2[s] = 0;
  }
}

static void VerificaNervata(Lavoro& l, int s) {
  const Nodo& nodo = *l.nodo;
  Risultati& ris = l.ris;
  TensioniSaldaturePiastra(l, s);
  CalcolaNervature(l, s);
  TensioniSaldatureColonna(l, s);
  PiastraConNervature(l, s, l.verifica.ArmZ, l.verifica.ArmY);
  for (int d = 1; d <= 2; ++d)
    for (int i = 1; i <= nodo.NTir; ++i) ris.SMaxPiastra[s] = MaxDi(ris.SMaxPiastra[s], ris.SPiastraTir[s][d][i]);
}

static void NotaNonEquilibrato(Lavoro& l, int s) {
  l.diagnosi.push_back({"Sestetto di sollecitazione n°" + std::to_string(s) +
                          ": situazione non equilibrata nel calcolo delle azioni sui tirafondi. La verifica non può continuare!",
                        TitoloProg, Icona::Critica});
}

static bool CalcolaSestetto(Lavoro& l, int s) {
  LeggiSestetto(l, s);
  AzzeraRighe(l, s);
  DatiSezione(l, s);
  const bool esito = PresInfl(l, s);
  if (FermaPerFault(l)) return false;
  if (!esito) {
    NotaNonEquilibrato(l, s);
    return false;
  }
  l.ris.SMaxCls[s] = std::fabs(l.ris.SMaxCls[s]);
  if (!TensioniAmmissibili(l)) ForzeTirafondiNTC(l, s);
  TaglioTirafondi(l, s);
  if (l.nodo->TipoNodo == 1) {
    PiastraSenzaNervature(l, s);
    TensioniSaldaturePiastra(l, s);
  } else if (l.nodo->TipoNodo == 2) {
    VerificaNervata(l, s);
  }
  return !FermaPerFault(l);
}

static void ValoriComuni(Lavoro& l) {
  StatoVerifica& v = l.verifica;
  l.SAmmCls = l.nodo->MatCls.SAmm;  // by limit states the joint's own, which nothing reads
  l.TauCls = l.nodo->MatCls.TauCls;
  CostruisciSaldature(l);
  InerziaTirafondi(*l.nodo, v.SommaR2, v.ArmZ, v.ArmY);
  InerziaSaldature(l, v.IzSald, v.IySald, v.IpSald, v.LungTz, v.LungTy);
  DirezioniSaldature(l);
  v.AreaTf = AreaTirafondo(l);
  if (TensioniAmmissibili(l)) ResistenzeTA(l);
  else ResistenzeNTC(l);
}

static void NotaDiametro(Lavoro& l) {
  const char* metodo = nullptr;
  if (l.ris.FlagDiamEstrapolato) metodo = "estrapolazione.";
  else if (l.ris.FlagDiamInterpolato) metodo = "interpolazione.";
  if (metodo == nullptr) return;
  l.diagnosi.push_back({"Il diametro dei tirafondi non è compreso tra i valori del file " + l.suite->DirCustom + "\\QbDiam.txt ." + "\r" +
                          "Il valore dell'area corrispondente è stato calcolato per " + metodo,
                        TitoloProg, Icona::Informazione});
}

bool CalcolaTabelle(Lavoro& l) {
  AzzeraFault();
  l.diagnosi.clear();
  l.righe.clear();
  l.fermo = {};
  l.verificato = false;
  l.ris.FlagDiamEstrapolato = l.ris.FlagDiamInterpolato = false;
  ValoriComuni(l);
  if (FermaPerFault(l)) return false;
  for (int s = 1; s <= l.nodo->NumSoll; ++s)
    if (!CalcolaSestetto(l, s)) return false;
  return true;
}

bool EseguiVerifica(Lavoro& l) {
  if (!CalcolaTabelle(l)) return false;
  NotaDiametro(l);
  if (!TensioniAmmissibili(l)) {
    RapportiTirafondiNTC(l);
    if (FermaPerFault(l)) return false;
  }
  Giudica(l);
  return !FermaPerFault(l);
}
