// app/batch/copione.cpp - the instructions as a table of words, each a short procedure over the panels' events.
#include "app/batch/copione.h"

#include "app/batch/piattaforma_batch.h"
#include "core/eventi.h"
#include "core/testo.h"
#include "drawing/nomi_disegno.h"
#include "drawing/tela.h"
#include "link/nomi_collegamento.h"
#include "model/nomi.h"
#include "panels/InsDati.h"
#include "panels/nomi_lavoro.h"
#include "panels/pannelli.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <map>

// --- the rest of a line, word by word -------------------------------------------------------------------------------------------

static bool Intero(std::string_view t, int& n) {
  const char* fine = t.data() + t.size();
  const auto [dove, errore] = std::from_chars(t.data(), fine, n);
  return !t.empty() && errore == std::errc() && dove == fine;
}

// The first word; resto keeps what stands behind the one blank that ends it.
static std::string_view Parola(std::string_view& resto) {
  const std::size_t fine = resto.find(' ');
  const std::string_view p = resto.substr(0, fine);
  resto = fine == std::string_view::npos ? std::string_view() : resto.substr(fine + 1);
  return p;
}

namespace {
struct Bersaglio {  // the control that an instruction names
  const Pannello* pannello = nullptr;
  const RigaPannello* riga = nullptr;
  Controllo* controllo = nullptr;
  bool intera = false;  // an exclusive choice named without index: its first entry stands for all
  std::string nome;     // as typed
};
}  // namespace

static bool Trova(std::string_view nome, Bersaglio& b) {
  const std::size_t punto = nome.find('.');
  if (punto == std::string_view::npos) return false;
  b.nome = nome;
  b.pannello = TrovaPannello(nome.substr(0, punto));
  if (b.pannello == nullptr) return false;
  std::string_view c = nome.substr(punto + 1);
  const std::size_t parentesi = c.find('(');
  const bool conIndice = parentesi != std::string_view::npos;
  int indice = 0;
  if (conIndice) {
    if (!c.ends_with(')') || !Intero(c.substr(parentesi + 1, c.size() - parentesi - 2), indice)) return false;
    c = c.substr(0, parentesi);
  }
  b.controllo = TrovaControllo(*b.pannello, c, conIndice ? indice : SENZA_INDICE);
  if (b.controllo == nullptr || b.controllo->riga == nullptr) return false;
  b.riga = b.controllo->riga;
  b.intera = b.riga->indicizzato && !conIndice;
  return b.riga->indicizzato || !conIndice;
}

// The control at the line's head, if a user could reach it now.
static bool Usabile(std::string_view& resto, Bersaglio& b) {
  return Trova(Parola(resto), b) && !b.intera && Raggiungibile(*b.pannello) && azioniUtente.visibile(*b.pannello, *b.controllo) &&
         azioniUtente.abilitato(*b.pannello, *b.controllo);
}

static bool UsabileSolo(std::string_view resto, Bersaglio& b) { return Usabile(resto, b) && Rifila(resto).empty(); }

// --- what the user does ---------------------------------------------------------------------------------------------------------

// A command whose name says tick; ticking it is pressing it.
constexpr std::string_view COMANDO_SPUNTA = "CheckMatBase";

static bool Scrivi(std::string_view resto) {
  Bersaglio b;
  return Usabile(resto, b) && azioniUtente.scrivi(*b.pannello, *b.controllo, std::string(resto));
}

static bool Invio(std::string_view resto) {
  Bersaglio b;
  return UsabileSolo(resto, b) && azioniUtente.scatena(*b.pannello, *b.controllo, Evento::Invio);
}

// Position of the entry of that text: blanks at the ends do not count; as written first, then without regard to case. -1 none.
static int PosizioneVoce(const Controllo& c, std::string_view testo) {
  const std::string_view cercato = Rifila(testo);
  for (std::size_t k = 0; k < c.voci.size(); ++k)
    if (Rifila(c.voci[k]) == cercato) return static_cast<int>(k);
  for (std::size_t k = 0; k < c.voci.size(); ++k)
    if (UgualeSenzaMaiuscole(Rifila(c.voci[k]), cercato)) return static_cast<int>(k);
  return -1;
}

static bool Scegli(std::string_view resto) {
  Bersaglio b;
  if (!Usabile(resto, b)) return false;
  const std::string_view quale = Rifila(resto);
  if (b.riga->genere == Genere::Scelta) return quale.empty() && azioniUtente.sceglie(*b.pannello, *b.controllo, 1);
  if (b.riga->genere != Genere::Lista && b.riga->genere != Genere::Schede) return false;
  int posizione = -1;
  if (quale.size() >= 2 && quale.front() == '"' && quale.back() == '"')
    posizione = PosizioneVoce(*b.controllo, quale.substr(1, quale.size() - 2));
  else if (!Intero(quale, posizione)) return false;
  return azioniUtente.sceglie(*b.pannello, *b.controllo, posizione);
}

static bool Spunta(std::string_view resto) {
  Bersaglio b;
  int valore = -1;
  if (!Usabile(resto, b) || !Intero(Rifila(resto), valore) || valore < 0 || valore > 1) return false;
  if (b.riga->genere == Genere::Comando && b.riga->nome == COMANDO_SPUNTA && valore == 1)
    return azioniUtente.scatena(*b.pannello, *b.controllo, Evento::Cambio);
  return b.riga->genere == Genere::Spunta && azioniUtente.sceglie(*b.pannello, *b.controllo, valore);
}

static bool Premi(std::string_view resto) {
  Bersaglio b;
  if (!UsabileSolo(resto, b)) return false;
  const Genere g = b.riga->genere;
  const bool premibile = g == Genere::Comando || g == Genere::Immagine || g == Genere::Etichetta;
  return premibile && azioniUtente.scatena(*b.pannello, *b.controllo, Evento::Cambio);
}

static bool DoppioClic(std::string_view resto) {
  Bersaglio b;
  return UsabileSolo(resto, b) && azioniUtente.scatena(*b.pannello, *b.controllo, Evento::Doppio);
}

static bool Scorri(std::string_view resto) {
  Bersaglio b;
  int valore = 0;
  if (!Usabile(resto, b) || b.riga->genere != Genere::Barra || !Intero(Rifila(resto), valore)) return false;
  return azioniUtente.sceglie(*b.pannello, *b.controllo, valore);
}

static bool Passa(std::string_view resto) {
  const std::string_view nome = Rifila(resto);
  if (const Pannello* p = TrovaPannello(nome)) {
    if (!Raggiungibile(*p)) return false;
    azioniUtente.passaSulPannello(*p);
    return true;
  }
  Bersaglio b;
  return UsabileSolo(nome, b) && azioniUtente.scatena(*b.pannello, *b.controllo, Evento::Passa);
}

static bool Attendi(std::string_view resto) {
  int ms = -1;
  if (!Intero(Rifila(resto), ms) || ms < 0) return false;
  AvanzaTempo(ms);
  return true;
}

static bool Rispondi(std::string_view resto) {
  const std::string_view r = Rifila(resto);
  if (r != "OK" && r != "Annulla") return false;
  ospite.risposte.push_back(r == "OK");
  return true;
}

static bool FileScelto(std::string_view resto) {
  std::string_view percorso = Rifila(resto);
  if (percorso.empty()) return false;
  if (percorso == "Annulla") {
    ospite.file.push_back({});
    return true;
  }
  RispostaFile r;
  const std::size_t ultimo = percorso.rfind(' ');
  if (ultimo != std::string_view::npos && Intero(percorso.substr(ultimo + 1), r.filtro)) {
    if (r.filtro < 1) return false;
    percorso = Rifila(percorso.substr(0, ultimo));
  }
  r.scelto = true;
  r.percorso = percorso;
  ospite.file.push_back(r);
  return true;
}

// --- looking ----------------------------------------------------------------------------------------------------------------------

// "12 #000000, 4 #FF0000": strokes of each colour, red green blue, colours in rising order; "0" for an empty picture.
static std::string ContaTratti(const Tela* tela) {
  std::map<std::string, int> conta;
  if (tela != nullptr)
    for (const Tratto& t : tela->tratti) {
      char colore[8];
      const unsigned c = static_cast<unsigned>(t.colore);
      std::snprintf(colore, sizeof colore, "#%02X%02X%02X", c & 0xFFu, (c >> 8) & 0xFFu, (c >> 16) & 0xFFu);
      ++conta[colore];
    }
  std::string r;
  for (const auto& [colore, n] : conta) r += (r.empty() ? "" : ", ") + std::to_string(n) + " " + colore;
  return r.empty() ? "0" : r;
}

std::string ValoreControllo(const Controllo& c, bool intera) {
  const std::string scelta = std::to_string(c.scelta);
  switch (c.riga != nullptr ? c.riga->genere : Genere::Etichetta) {
    case Genere::Cornice:
    case Genere::Etichetta:
    case Genere::Campo:
    case Genere::Comando: break;
    case Genere::Spunta: return c.scelta > 0 ? "1" : "0";
    case Genere::Scelta: return intera ? std::to_string(VoceScelta(c)) : c.scelta > 0 ? "1" : "0";
    case Genere::Lista:
    case Genere::Schede: {
      const bool scelto = c.scelta >= 0 && c.scelta < static_cast<int>(c.voci.size());
      return scelto ? scelta + " \"" + SuUnaRiga(c.voci[static_cast<std::size_t>(c.scelta)]) + "\"" : "-1 \"\"";
    }
    case Genere::Barra: return scelta + "/" + std::to_string(c.massimo);
    case Genere::Immagine: return ContaTratti(c.tela);
  }
  return SuUnaRiga(c.testo);
}

AzioniUtente AzioniSuiRecord() {
  return {UtenteScrive, UtenteSceglie, Scatena,         PassaSulPannello,
          Visibile,     Abilitato,     ValoreControllo, [](const Controllo& c) { return c.voci; }};
}

static bool Mostra(std::string_view resto) {
  Bersaglio b;
  if (!Trova(Rifila(resto), b)) return false;
  std::string riga = b.nome + " = " + azioniUtente.valore(*b.controllo, b.intera);
  if (!azioniUtente.visibile(*b.pannello, *b.controllo)) riga += " [nascosto]";
  if (!azioniUtente.abilitato(*b.pannello, *b.controllo)) riga += " [disabilitato]";
  Stampa(riga);
  return true;
}

static bool Voci(std::string_view resto) {
  Bersaglio b;
  if (!Trova(Rifila(resto), b) || (b.riga->genere != Genere::Lista && b.riga->genere != Genere::Schede)) return false;
  const std::vector<std::string> voci = azioniUtente.voci(*b.controllo);
  for (std::size_t k = 0; k < voci.size(); ++k) Stampa(b.nome + "(" + std::to_string(k) + ") = " + SuUnaRiga(voci[k]));
  return true;
}

static bool Modello(std::string_view resto) {
  const std::string nome(Rifila(resto));
  std::string valore;
  const std::span<const RigaNome> altri[] = {NomiLavoro(), NomiCollegamento(), NomiDisegno(), NomiPannelli()};
  if (nome.empty() || !ValoreModello(nome, valore, altri)) return false;
  Stampa(nome + " = " + SuUnaRiga(valore));
  return true;
}

namespace {
struct Istruzione {
  std::string_view parola;
  bool (*esegui)(std::string_view resto);
};
}  // namespace

// clang-format off
static constexpr Istruzione ISTRUZIONI[] = {
  { "scrivi", Scrivi },     { "invio", Invio },     { "scegli", Scegli },     { "spunta", Spunta },
  { "premi", Premi },       { "doppioclic", DoppioClic }, { "scorri", Scorri }, { "passa", Passa },
  { "attendi", Attendi },   { "rispondi", Rispondi }, { "file", FileScelto }, { "mostra", Mostra },
  { "voci", Voci },         { "modello", Modello },
};
// clang-format on

// --- the run ------------------------------------------------------------------------------------------------------------------------

void CaricaCopione(std::string_view testo) {
  copione = {};
  if (testo.starts_with("\xEF\xBB\xBF")) testo.remove_prefix(3);
  while (!testo.empty()) {
    const std::size_t fine = testo.find('\n');
    std::string_view riga = testo.substr(0, fine);
    if (riga.ends_with('\r')) riga.remove_suffix(1);
    copione.righe.emplace_back(riga);
    testo = fine == std::string_view::npos ? std::string_view() : testo.substr(fine + 1);
  }
}

bool EseguiRiga(std::string_view riga) {
  const std::size_t inizio = riga.find_first_not_of(" \t");
  if (inizio == std::string_view::npos || riga[inizio] == '#') return true;
  riga.remove_prefix(inizio);
  const std::string_view parola = Parola(riga);
  riga.remove_prefix(std::min(riga.find_first_not_of(' '), riga.size()));
  for (const Istruzione& i : ISTRUZIONI)
    if (parola == i.parola) return i.esegui(riga);
  return false;
}

void EseguiCopione(const Pannello* modale) {
  while (copione.prossima < copione.righe.size() && !copione.fermato) {
    const std::size_t n = copione.prossima++;
    if (!EseguiRiga(copione.righe[n])) {
      copione.fermato = true;
      std::fprintf(stderr, "riga %zu: %s\n", n + 1, copione.righe[n].c_str());
    }
    if (verificaPannello.esito == EsitoVerifica::Eseguita && !verificaPannello.verificato) ospite.nonVerificato = true;
    if (modale != nullptr && (modale->aperto == nullptr || !*modale->aperto)) return;
  }
  if (modale != nullptr && copione.fermato) Esci(2);
}
