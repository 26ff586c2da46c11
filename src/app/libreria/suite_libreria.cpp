// app/libreria/suite_libreria.cpp - opening a suite and loading joints: the panels' records serve one call at a time.
#include <cstring>
#include <mutex>

#include "app/libreria/nodo_libreria.h"
#include "model/stato.h"
#include "panels/file_nodo.h"
#include "panels/lavoro_finestre.h"

constexpr std::size_t MAX_PERCORSO = 65535;  // bytes

static int ControllaPercorso(const char* t, const char* cosa) {
  if (t == nullptr) return Rifiuta(QB07_NULLO, cosa);
  const std::size_t n = strnlen(t, MAX_PERCORSO + 1);
  if (n == 0 || n > MAX_PERCORSO) return Rifiuta(QB07_TESTO, cosa, n == 0 ? "vuoto" : "troppo lungo");
  return QB07_OK;
}

static std::string UltimoRiquadro() { return muto.riquadri.empty() ? std::string() : muto.riquadri.back().testo; }

// The joint on the panels, without its sextets.
static void Ritrai(NodoDoppio& d, int metodo) {
  d.variante[metodo] = nodo;
  d.variante[metodo].NumSoll = 0;
  d.riquadri[metodo] = muto.riquadri;
}

// By its own method first, then as behind a change of method.
static void RitraiDoppio(NodoDoppio& d) {
  d.metodo = nodo.TipoVer == 0 ? MetodoTA : MetodoSLU;
  d.gradi = gradiLetti;
  Ritrai(d, d.metodo);
  ScegliMetodoMuto(1 - d.metodo);
  Ritrai(d, 1 - d.metodo);
}

// The panels' records as behind the start of that suite.
static void Prepara(const SuiteLib& s) {
  if (pannelliLib.attiva != &s) suite = s.tabelle->suite;
  pannelliLib.attiva = nullptr;  // until the load has ended
  RipristinaProgramma(*s.inizio);
  AzzeraLavoro();
  muto.riquadri.clear();
  muto.rispondiOk = s.rispondiOk;
}

static void PrendiSestetti(NodoLib& n) {
  const int quanti = nodo.NumSoll > 0 ? nodo.NumSoll : 0;
  n.sestetti.resize(static_cast<std::size_t>(quanti));
  for (int s = 1; s <= quanti; ++s) {
    SestettoLib& d = n.sestetti[static_cast<std::size_t>(s - 1)];
    d.nome = nodo.SollNome[s];
    d.classe = nodo.SollCC[s];
    for (int c = 0; c < 6; ++c) d.v[c] = *ComponenteSoll(nodo, c, s);
  }
}

static std::shared_ptr<SuiteLib> Apri(const char* riga, char decimale, bool ok) {
  const auto s = std::make_shared<SuiteLib>();
  s->rispondiOk = ok;
  pannelliLib.attiva = nullptr;
  AzzeraProgramma();
  MontaPiattaformaMuta();
  muto.rispondiOk = ok;
  if (!AvviaMuto(riga, decimale)) return nullptr;
  s->avvisi = muto.riquadri;
  muto.riquadri.clear();
  s->inizio = FotografaProgramma();
  const auto tabelle = std::make_shared<TabelleSuite>();
  tabelle->suite = suite;
  tabelle->materiali = materiali;
  s->tabelle = tabelle;
  RitraiDoppio(s->nuovo);
  pannelliLib.attiva = s.get();
  return s;
}

static std::shared_ptr<NodoLib> NuovoNodo(const SuiteLib& s) {
  const auto n = std::make_shared<NodoLib>();
  n->tabelle = s.tabelle;
  n->rispondiOk = s.rispondiOk;
  return n;
}

// Null: it failed; the reason is the last box.
static std::shared_ptr<NodoLib> Carica(const SuiteLib& s, const char* percorso) {
  const auto n = NuovoNodo(s);
  Prepara(s);
  if (!CaricaMuto(percorso)) return nullptr;
  PrendiSestetti(*n);
  RitraiDoppio(n->dati);
  pannelliLib.attiva = &s;
  return n;
}

extern "C" {

int qb07_apri(const char* riga_comando, char decimale, int rispondi_ok, qb07_suite** suite_) {
  return Proteggi([&]() -> int {
    if (suite_ == nullptr) return Rifiuta(QB07_NULLO, "suite");
    if (const int e = ControllaPercorso(riga_comando, "riga_comando"); e != QB07_OK) return e;
    if (decimale != '.' && decimale != ',') return Rifiuta(QB07_SCELTA, "decimale");
    if (rispondi_ok != 0 && rispondi_ok != 1) return Rifiuta(QB07_SCELTA, "rispondi_ok");
    const std::unique_lock chiusa(pannelliLib.serratura);
    const std::shared_ptr<SuiteLib> s = Apri(riga_comando, decimale, rispondi_ok == 1);
    if (s == nullptr) return Rifiuta(QB07_AVVIO, UltimoRiquadro());
    Consegna(suite_, s);
    return QB07_OK;
  });
}

int qb07_suite_libera(qb07_suite* suite_) {
  return Proteggi([&] { return LiberaManiglia(GenereManiglia::Suite, suite_); });
}

int qb07_suite_num_avvisi(const qb07_suite* suite_, size_t* quanti) {
  return Proteggi([&]() -> int {
    const std::shared_ptr<SuiteLib> s = Trova<SuiteLib>(suite_);
    if (s == nullptr) return QB07_MANIGLIA;
    if (quanti == nullptr) return Rifiuta(QB07_NULLO, "quanti");
    *quanti = s->avvisi.size();
    return QB07_OK;
  });
}

int qb07_suite_avviso(const qb07_suite* suite_, size_t indice, const char** testo) {
  return Proteggi([&]() -> int {
    const std::shared_ptr<SuiteLib> s = Trova<SuiteLib>(suite_);
    if (s == nullptr) return QB07_MANIGLIA;
    if (testo == nullptr) return Rifiuta(QB07_NULLO, "testo");
    if (indice >= s->avvisi.size()) return Rifiuta(QB07_INDICE, "avviso");
    *testo = s->avvisi[indice].testo.c_str();
    return QB07_OK;
  });
}

int qb07_carica(const qb07_suite* suite_, const char* percorso, qb07_nodo** nodo_) {
  return Proteggi([&]() -> int {
    const std::shared_ptr<SuiteLib> s = Trova<SuiteLib>(suite_);
    if (s == nullptr) return QB07_MANIGLIA;
    if (nodo_ == nullptr) return Rifiuta(QB07_NULLO, "nodo");
    if (const int e = ControllaPercorso(percorso, "percorso"); e != QB07_OK) return e;
    const std::unique_lock chiusa(pannelliLib.serratura);
    const std::shared_ptr<NodoLib> n = Carica(*s, percorso);
    if (n == nullptr) return Rifiuta(QB07_FILE, percorso, UltimoRiquadro());
    Consegna(nodo_, n);
    return QB07_OK;
  });
}

int qb07_nodo_nuovo(const qb07_suite* suite_, qb07_nodo** nodo_) {
  return Proteggi([&]() -> int {
    const std::shared_ptr<SuiteLib> s = Trova<SuiteLib>(suite_);
    if (s == nullptr) return QB07_MANIGLIA;
    if (nodo_ == nullptr) return Rifiuta(QB07_NULLO, "nodo");
    const std::shared_ptr<NodoLib> n = NuovoNodo(*s);
    n->dati = s->nuovo;
    Consegna(nodo_, n);
    return QB07_OK;
  });
}

}  // extern "C"
