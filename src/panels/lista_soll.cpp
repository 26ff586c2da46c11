// panels/lista_soll.cpp - the load list: five rows on screen over at most 200 groups, its commands and its two reductions.
// Rows      row i = 0..4 shows group i + v - 2, v the value of ScrollSa, 3 or more.
// Units     stored daN and daN cm; shown times FattForze and FattMomenti, a typed value is divided by the same factor.
// Rule      the row operations only show and never store; only what is typed is stored.
#include <cmath>
#include <string>

#include "core/aritmetica.h"
#include "core/nomi_file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"
#include "panels/valori.h"

constexpr int NumRighe = 5;
constexpr int ScrollMin = 3;          // value of the bar at which the rows show groups 1 to 5
constexpr double TOLL_SOLL = 0.0001;  // stored units: components nearer than this are equal

namespace {
// The six components in the order of the list: where each is stored, its column on the panel, its factor.
struct Componente {
  double (Nodo::*valori)[MaxSoll + 1];
  Controllo (StatoInsDati::*campi)[NumRighe];
  double Suite::*fattore;
};
}  // namespace

// clang-format off
static constexpr Componente COMPONENTI[] = {
    {&Nodo::SollN, &StatoInsDati::TxtSN, &Suite::FattForze},
    {&Nodo::SollTy, &StatoInsDati::TxtTy, &Suite::FattForze},
    {&Nodo::SollTz, &StatoInsDati::TxtTz, &Suite::FattForze},
    {&Nodo::SollMt, &StatoInsDati::TxtMt, &Suite::FattMomenti},
    {&Nodo::SollMy, &StatoInsDati::TxtMy, &Suite::FattMomenti},
    {&Nodo::SollMz, &StatoInsDati::TxtMz, &Suite::FattMomenti},
};
// clang-format on
constexpr int NumComp = 6;

static double& Valore(int k, int n) { return (nodo.*COMPONENTI[k].valori)[n]; }
static Controllo& Campo(int k, int i) { return (insDati.*COMPONENTI[k].campi)[i]; }
static double Fattore(int k) { return suite.*COMPONENTI[k].fattore; }

// ---- rows ----

static int GruppoDiRiga(int i) { return i + insDati.ScrollSa.scelta - 2; }

static void RigaVisibile(int i, bool si) {
  MostraVisibile(insDati.Lsa[i], si);
  for (int k = 0; k < NumComp; k++) MostraVisibile(Campo(k, i), si);
  MostraVisibile(insDati.CasCar[i], si && nodo.TipoVer == 0);  // load classes belong to allowable stresses
}

void MostraRiga(int i) { RigaVisibile(i, true); }

void NascondiRiga(int i) { RigaVisibile(i, false); }

void SvuotaRiga(int i) {
  MostraTesto(insDati.Lsa[i], "");
  for (int k = 0; k < NumComp; k++) MostraTesto(Campo(k, i), "");
  MostraScelta(insDati.CasCar[i], 0);
}

static void RiempiRigaCome(int i, bool zeriVuoti) {
  const int n = GruppoDiRiga(i);
  if (n < 1 || n > MaxSoll) return;
  MostraRiga(i);
  MostraTesto(insDati.Lsa[i], nodo.SollNome[n]);
  for (int k = 0; k < NumComp; k++) {
    double mostrato = 0;
    if (!AssegnaFinito(mostrato, Valore(k, n) * Fattore(k))) continue;
    MostraTesto(Campo(k, i), zeriVuoti && Valore(k, n) == 0 ? "" : NumeroPiano(mostrato));
  }
  MostraScelta(insDati.CasCar[i], nodo.SollCC[n] != 0 ? 1 : 0);
}

void RiempiRiga(int i) { RiempiRigaCome(i, false); }

// After the removal of a group a component of zero leaves its field empty, where scrolling shows "0": the same value to whoever reads it back.
static void RiempiRigaDopoRimozione(int i) { RiempiRigaCome(i, true); }

// Rows that have a group are filled and shown, the others hidden.
static void RiempiRighe(void (*riempi)(int)) {
  for (int i = 0; i < NumRighe; i++) {
    if (GruppoDiRiga(i) <= nodo.NumSoll) riempi(i);
    else NascondiRiga(i);
  }
}

void InsDati_ScrollSa(int) { RiempiRighe(RiempiRiga); }

static void ImpostaBarra(int massimo) {
  MostraMassimo(insDati.ScrollSa, massimo);
  ImpostaScelta(insDati.ScrollSa, massimo);
}

static void DisabilitaBarra() {
  MostraAbilitato(insDati.ScrollSa, false);
  ImpostaBarra(ScrollMin);
}

void AggiornaTitoloSoll() {
  MostraTesto(insDati.Soll, TitoloFrameSoll());
  MostraAbilitato(insDati.EsportaSollButt, nodo.NumSoll >= 1);
}

void AggiornaRighe() {
  if (nodo.NumSoll > NumRighe) {
    for (int i = 0; i < NumRighe; i++) MostraRiga(i);
    ImpostaBarra(nodo.NumSoll - 2);
    MostraAbilitato(insDati.ScrollSa, true);
  } else {
    DisabilitaBarra();  // its handler fills the rows and hides those without a group
  }
  AggiornaTitoloSoll();
}

// ---- typing ----

static bool GruppoScrivibile(int n) {
  if (n >= 1 && n <= MaxSoll) return true;
  passi.fallito = true;
  return false;
}

static void MemorizzaComponente(int k, int i) {
  const int n = GruppoDiRiga(i);
  double v = 0;
  if (!GruppoScrivibile(n) || !LeggiCampo(Campo(k, i), v)) return;
  AssegnaFinito(Valore(k, n), v / Fattore(k));
}

void InsDati_TxtSN(int i) { MemorizzaComponente(0, i); }
void InsDati_TxtTy(int i) { MemorizzaComponente(1, i); }
void InsDati_TxtTz(int i) { MemorizzaComponente(2, i); }
void InsDati_TxtMt(int i) { MemorizzaComponente(3, i); }
void InsDati_TxtMy(int i) { MemorizzaComponente(4, i); }
void InsDati_TxtMz(int i) { MemorizzaComponente(5, i); }

void InsDati_Lsa(int i) {
  const int n = GruppoDiRiga(i);
  if (GruppoScrivibile(n)) nodo.SollNome[n] = insDati.Lsa[i].testo;
}

void InsDati_CasCar(int i) {
  const int n = GruppoDiRiga(i);
  if (GruppoScrivibile(n)) nodo.SollCC[n] = insDati.CasCar[i].scelta == 1 ? 1 : 0;
}

const char* InsDati_Lsa_Stato(int i) {
  return insDati.Lsa[i].testo.empty() ? "" : "Doppio click per rimuovere il gruppo di sollecitazioni";
}

// ---- groups ----

void AzzeraGruppo(int n) {
  for (int k = 0; k < NumComp; k++) Valore(k, n) = 0;
  nodo.SollCC[n] = 0;
}

void CopiaGruppo(int da, int a) {
  for (int k = 0; k < NumComp; k++) Valore(k, a) = Valore(k, da);
  nodo.SollCC[a] = nodo.SollCC[da];
  nodo.SollNome[a] = nodo.SollNome[da];
}

void RimuoviGruppo(int n) {
  if (n < 1 || n > nodo.NumSoll) return;
  for (int g = n + 1; g <= nodo.NumSoll; g++) CopiaGruppo(g, g - 1);
  AzzeraGruppo(nodo.NumSoll);
  nodo.SollNome[nodo.NumSoll].clear();
  nodo.NumSoll--;
  if (nodo.NumSoll > NumRighe) {
    MostraMassimo(insDati.ScrollSa, nodo.NumSoll - 2);  // clips the value
  } else if (nodo.NumSoll == NumRighe) {
    DisabilitaBarra();
  }
  RiempiRighe(RiempiRigaDopoRimozione);
  for (int i = nodo.NumSoll; i < NumRighe; i++) SvuotaRiga(i);
}

// ---- commands ----

void InsDati_Singolo(int) {
  if (nodo.NumSoll >= MaxSoll) {
    Messaggio("Errore:numero di sollecitazioni eccessivo", "ERRORE", Icona::Esclamazione);
    return;
  }
  const int n = ++nodo.NumSoll;
  nodo.SollNome[n] = "Soll " + std::to_string(n);
  AzzeraGruppo(n);
  if (n > NumRighe) {
    ImpostaBarra(n - 2);
    MostraAbilitato(insDati.ScrollSa, true);
  } else {
    MostraRiga(n - 1);
    SvuotaRiga(n - 1);
    MostraTesto(insDati.Lsa[n - 1], nodo.SollNome[n]);
  }
  AggiornaTitoloSoll();
}

void InsDati_RimuoviSA(int) {
  if (nodo.NumSoll > 0) {
    AzzeraGruppo(nodo.NumSoll);  // its name stays in the array until overwritten
    nodo.NumSoll--;
    if (nodo.NumSoll > NumRighe) {
      ImpostaBarra(nodo.NumSoll - 2);
    } else if (nodo.NumSoll == NumRighe) {
      DisabilitaBarra();
    } else {
      NascondiRiga(nodo.NumSoll);
      SvuotaRiga(nodo.NumSoll);
    }
  }
  AggiornaTitoloSoll();
}

void InsDati_RimuoviTSA(int) {
  if (!piattaforma.domanda("Rimozione totale dei dati relativi alle sollecitazioni agenti?", "ATTENZIONE!", Icona::Esclamazione)) return;
  for (int n = 1; n <= nodo.NumSoll; n++) {
    AzzeraGruppo(n);
    nodo.SollNome[n].clear();
  }
  nodo.NumSoll = 0;
  for (int i = NumRighe - 1; i >= 0; i--) {
    NascondiRiga(i);
    SvuotaRiga(i);
  }
  DisabilitaBarra();
  AggiornaTitoloSoll();
}

void InsDati_Lsa_Doppio(int i) {
  if (nodo.NumSoll <= 0) return;
  RimuoviGruppo(GruppoDiRiga(i));
  AggiornaTitoloSoll();
}

void InsDati_Doppi(int) { RimuoviDoppi(); }

void InsDati_MaxMin(int) { RiduciMaxMin(); }

// ---- doubles ----

static bool GruppiUguali(int a, int b) {  // the names do not count
  if (nodo.SollCC[a] != nodo.SollCC[b]) return false;
  for (int k = 0; k < NumComp; k++)
    if (!(std::fabs(Valore(k, a) - Valore(k, b)) < TOLL_SOLL)) return false;
  return true;
}

static bool RimuoviUnDoppio() {
  for (int a = 1; a <= nodo.NumSoll; a++)
    for (int b = 1; b <= nodo.NumSoll; b++)
      if (b != a && GruppiUguali(a, b)) {
        RimuoviGruppo(b);
        return true;
      }
  return false;
}

void RimuoviDoppi() {
  while (RimuoviUnDoppio()) {
  }
  AggiornaTitoloSoll();
}

// ---- maxima and minima ----

namespace {
struct Estremo {
  double v[NumComp] = {};
  int gruppo = 0;
};

struct EstremiClasse {
  int quanti = 0;                             // groups of the class
  Estremo massimo[NumComp], minimo[NumComp];  // by component
};
}  // namespace

static Estremo GruppoCome(int n) {
  Estremo e;
  for (int k = 0; k < NumComp; k++) e.v[k] = Valore(k, n);
  e.gruppo = n;
  return e;
}

static void AggiornaEstremi(EstremiClasse& c, int n) {
  const Estremo g = GruppoCome(n);
  const bool primo = c.quanti++ == 0;
  for (int k = 0; k < NumComp; k++) {  // a tie keeps the earlier group
    if (primo || g.v[k] > c.massimo[k].v[k]) c.massimo[k] = g;
    if (primo || g.v[k] < c.minimo[k].v[k]) c.minimo[k] = g;
  }
}

static void AggiungiEstremo(const Estremo& e, std::int16_t classe, const std::string (&nomi)[MaxSoll + 1]) {
  const int n = ++nodo.NumSoll;
  for (int k = 0; k < NumComp; k++) Valore(k, n) = e.v[k];
  nodo.SollCC[n] = classe;
  nodo.SollNome[n] = nomi[e.gruppo];
}

void RiduciMaxMin() {
  RimuoviDoppi();
  EstremiClasse classi[2];  // class I, class II (any value but 0)
  std::string nomi[MaxSoll + 1];
  for (int n = 1; n <= nodo.NumSoll; n++) {
    AggiornaEstremi(classi[nodo.SollCC[n] == 0 ? 0 : 1], n);
    nomi[n] = nodo.SollNome[n];
  }
  nodo.NumSoll = 0;
  for (std::int16_t c = 0; c < 2; c++)
    for (int k = 0; k < NumComp && classi[c].quanti > 0; k++) {
      AggiungiEstremo(classi[c].massimo[k], c, nomi);
      AggiungiEstremo(classi[c].minimo[k], c, nomi);
    }
  AggiornaRighe();
  RimuoviDoppi();
}
