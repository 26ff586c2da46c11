// panels/controlli.cpp - records and events of the panels: lookup, events of the user, setting from code.
#include "panels/controlli.h"

#include <algorithm>
#include <new>
#include <utility>

#include "core/aritmetica.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "model/suite.h"

// ---- rows and controls ----

static int Quanti(const RigaPannello& r) { return r.ultimo - r.primo + 1; }

static std::span<Controllo> Fratelli(const RigaPannello& r) { return {r.controllo, static_cast<std::size_t>(Quanti(r))}; }

// The text of index i of a row; a missing one is empty.
static const char* TestoDi(const Testi& testi, const RigaPannello& r, int i) {
  if (testi.uno != nullptr) return testi.uno;
  const std::size_t k = static_cast<std::size_t>(i - r.primo);
  return k < testi.voci.size() ? testi.voci[k] : "";
}

static void PreparaControllo(const RigaPannello& r, Controllo& c, int i) {
  c.riga = &r;
  c.indice = i;
  switch (r.genere) {
    case Genere::Schede:
      c.voci.assign(r.didascalia.voci.begin(), r.didascalia.voci.end());
      c.scelta = 0;
      break;
    case Genere::Spunta:
    case Genere::Scelta: c.scelta = 0; break;
    default: break;
  }
  if (r.genere != Genere::Schede) c.testo = TestoDi(r.didascalia, r, i);
}

void PreparaPannello(const Pannello& p) {
  for (const RigaPannello& r : p.righe)
    for (int i = r.primo; i <= r.ultimo; i++) PreparaControllo(r, r.controllo[i - r.primo], i);
}

void PannelloAperto(const Pannello& p) {
  if (p.aperto != nullptr) *p.aperto = true;
  if (p.caricato != nullptr && !*p.caricato) {
    *p.caricato = true;
    if (p.carica != nullptr) p.carica();
  }
  if (p.mostrato != nullptr) p.mostrato();
}

void PannelloChiuso(const Pannello& p) {
  if (p.aperto != nullptr) *p.aperto = false;
}

const RigaPannello* TrovaRiga(const Pannello& p, std::string_view nome) {
  for (const RigaPannello& r : p.righe)
    if (r.nome == nome) return &r;
  return nullptr;
}

Controllo* TrovaControllo(const Pannello& p, std::string_view nome, int indice) {
  for (const RigaPannello& r : p.righe) {  // the indices of one name may stand in several rows
    if (r.nome != nome) continue;
    if (!r.indicizzato) return indice == SENZA_INDICE || indice == r.primo ? r.controllo : nullptr;
    if (indice == SENZA_INDICE && r.genere == Genere::Scelta) return r.controllo;
    if (indice >= r.primo && indice <= r.ultimo) return &r.controllo[indice - r.primo];
  }
  return nullptr;
}

// The frame or row of tabs that holds a control; nullptr: the panel itself.
static const Controllo* Contenitore(const Pannello& p, const Controllo& c) {
  if (c.riga == nullptr || *c.riga->cornice == '\0') return nullptr;
  const std::string_view cornice = c.riga->cornice;
  const RigaPannello* r = TrovaRiga(p, cornice.substr(0, cornice.find('/')));
  return r == nullptr ? nullptr : r->controllo;
}

bool Visibile(const Pannello& p, const Controllo& c) {
  if (p.aperto != nullptr && !*p.aperto) return false;
  for (const Controllo* k = &c; k != nullptr; k = Contenitore(p, *k))
    if (!k->visibile) return false;
  return true;
}

bool Abilitato(const Pannello& p, const Controllo& c) {
  for (const Controllo* k = &c; k != nullptr; k = Contenitore(p, *k))
    if (!k->abilitato) return false;
  return true;
}

// ---- events of the user ----

static void Cambio(Controllo& c) {
  if (c.riga != nullptr && c.riga->cambio != nullptr) c.riga->cambio(c.indice);
}

// Kinds on which a press does nothing but run the handler.
static bool Premibile(Genere g) { return g == Genere::Comando || g == Genere::Immagine || g == Genere::Etichetta || g == Genere::Cornice; }

// Runs a handler as a command of its own. The one place where a failed allocation is met: the command ends, the program does not. Without a
// handler the answer is senzaVaBene.
static bool Esegui(void (*gestore)(int), int indice, bool senzaVaBene) {
  if (gestore == nullptr) return senzaVaBene;
  passi = {};
  AzzeraFault();
  try {
    gestore(indice);
  } catch (const std::bad_alloc&) {
    AzzeraFault();
    piattaforma.attesa(false);
    Messaggio(TESTO_MEMORIA, TitoloProg, Icona::Critica);
  }
  if (FaultAritmetico()) MostraFault();
  return true;
}

static void Passa(const Pannello& p, const RigaPannello& r, int indice) {
  if (p.passa == nullptr) return;
  const char* testo = r.statoDi != nullptr ? r.statoDi(indice) : TestoDi(r.stato, r, indice);
  if (*testo != '\0' || r.genere == Genere::Cornice) p.passa(testo);
}

bool Scatena(const Pannello& p, Controllo& c, Evento e) {
  if (c.riga == nullptr) return false;
  const RigaPannello& r = *c.riga;
  switch (e) {
    case Evento::Cambio: return Esegui(r.cambio, c.indice, !Premibile(r.genere));
    case Evento::Invio: return Esegui(r.invio, c.indice, r.genere == Genere::Campo);
    case Evento::Doppio: return Esegui(r.doppio, c.indice, false);
    case Evento::Passa: Passa(p, r, c.indice); return true;
  }
  return false;
}

void PassaSulPannello(const Pannello& p) {
  if (p.passa != nullptr) p.passa("");
}

bool UtenteScrive(const Pannello& p, Controllo& c, const std::string& testo) {
  if (c.riga == nullptr || c.riga->genere != Genere::Campo) return false;
  c.testo = testo;
  return Scatena(p, c, Evento::Cambio);
}

// ---- states of choice ----

// Moves an exclusive choice to c; the entries that change are painted.
static void ScegliVoce(Controllo& c) {
  for (Controllo& k : Fratelli(*c.riga)) {
    const int nuova = &k == &c ? 1 : 0;
    if (k.scelta == nuova) continue;
    k.scelta = nuova;
    piattaforma.aggiorna(k);
  }
}

// Puts a choice into the control, by its kind. False: no such position, nothing changed.
static bool MettiScelta(Controllo& c, int posizione) {
  if (c.riga == nullptr) return false;
  switch (c.riga->genere) {
    case Genere::Lista:
    case Genere::Schede:
      if (posizione < 0 || posizione >= static_cast<int>(c.voci.size())) return false;
      c.scelta = posizione;
      break;
    case Genere::Spunta: c.scelta = posizione != 0 ? 1 : 0; break;
    case Genere::Barra: c.scelta = std::clamp(posizione, c.minimo, std::max(c.minimo, c.massimo)); break;
    case Genere::Scelta:
      if (posizione != 1) return false;
      ScegliVoce(c);
      break;
    default: return false;
  }
  piattaforma.aggiorna(c);
  return true;
}

bool UtenteSceglie(const Pannello& p, Controllo& c, int posizione) {
  if (!MettiScelta(c, posizione)) return false;
  return Scatena(p, c, Evento::Cambio);
}

// ---- setting from code ----

void ImpostaTesto(Controllo& c, const std::string& testo) {
  MostraTesto(c, testo);
  Cambio(c);
}

void ImpostaScelta(Controllo& c, int posizione) {
  if (!MettiScelta(c, posizione)) {
    passi.fallito = true;
    return;
  }
  Cambio(c);
}

void SelezionaVoce(Controllo& primo, int indice) {
  const RigaPannello* r = primo.riga;
  if (r == nullptr || indice < r->primo || indice > r->ultimo) {
    passi.fallito = true;
    return;
  }
  ImpostaScelta(r->controllo[indice - r->primo], 1);
}

bool ImpostaVoce(Controllo& c, const std::string& testo) {
  for (std::size_t i = 0; i < c.voci.size(); i++) {
    if (!UgualeSenzaMaiuscole(c.voci[i], testo)) continue;
    ImpostaScelta(c, static_cast<int>(i));
    return true;
  }
  return false;
}

void MostraTesto(Controllo& c, const std::string& testo) {
  c.testo = testo;
  piattaforma.aggiorna(c);
}

void MostraScelta(Controllo& c, int posizione) {
  c.scelta = posizione;
  piattaforma.aggiorna(c);
}

void MostraMassimo(Controllo& barra, int massimo) {
  barra.massimo = std::max(barra.minimo, massimo);
  barra.scelta = std::clamp(barra.scelta, barra.minimo, barra.massimo);
  piattaforma.aggiorna(barra);
}

void MostraVoci(Controllo& c, std::vector<std::string> voci) {
  c.voci = std::move(voci);
  c.scelta = -1;
  piattaforma.aggiorna(c);
}

void MostraVisibile(Controllo& c, bool si) {
  c.visibile = si;
  piattaforma.aggiorna(c);
}

void MostraAbilitato(Controllo& c, bool si) {
  c.abilitato = si;
  piattaforma.aggiorna(c);
}

int VoceScelta(const Controllo& primo) {
  if (primo.riga == nullptr) return -1;
  for (const Controllo& k : Fratelli(*primo.riga))
    if (k.scelta == 1) return k.indice;
  return -1;
}
