// tests/corredo/registratore.cpp - the recording platform, and the start state of every test.
#include "corredo/registratore.h"

#include "core/eventi.h"
#include "panels/lavoro_finestre.h"
#include "panels/pannelli.h"
#include "panels/programma.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

static void Evento(std::string riga) { registratore.eventi.push_back(std::move(riga)); }

template <class T>
static T Togli(std::vector<T>& coda) {
  T primo = coda.front();
  coda.erase(coda.begin());
  return primo;
}

static void RegMessaggio(const std::string& testo, const std::string& titolo, Icona icona) { Evento(RigaMessaggio(testo, titolo, icona)); }

static bool RegDomanda(const std::string& testo, const std::string& titolo, Icona icona) {
  const bool ok = registratore.risposte.empty() || Togli(registratore.risposte);
  Evento(RigaDomanda(testo, titolo, icona, ok));
  return ok;
}

static bool RegFile(const RichiestaFile& r, std::string& percorso, int& filtro) {
  registratore.richiesta = r;
  std::pair<std::string, int> scelta;
  if (!registratore.file.empty()) scelta = Togli(registratore.file);
  const bool scelto = !scelta.first.empty();
  if (scelto) {
    percorso = ConEstensione(r, scelta.first);
    filtro = scelta.second < 1 ? 1 : scelta.second;
  }
  Evento(RigaFile(r, scelto, percorso));
  return scelto;
}

static bool Programma(const std::string& programma, const std::string& argomento, std::string riga) {
  if (!registratore.programmi) return false;
  Evento(std::move(riga));
  return registratore.eseguito == nullptr || registratore.eseguito(programma, argomento);
}

static bool RegEsegui(const std::string& p, const std::string& a) { return Programma(p, a, RigaProgramma(p, a)); }
static bool RegAvvia(const std::string& p, const std::string& a) { return Programma(p, a, RigaAvvia(p, a)); }

static bool RegAttivaFinestra(const std::string& titolo) {
  for (const std::string& f : registratore.finestre)
    if (f == titolo) return true;
  return false;
}

static void RegTimer(Temporizzatore quale, int ms, void (*scaduto)()) { registratore.timer[static_cast<int>(quale)] = {ms, scaduto}; }

static void RegApri(const Pannello& p, bool modale) {
  registratore.pannelli.push_back(p.nome);
  PannelloMostrato(p, modale);
  if (!modale) return;
  if (!registratore.dentro.empty()) Togli(registratore.dentro)();
  if (p.aperto != nullptr && *p.aperto) PannelloNascosto(p);  // a test that forgot to close it must not hang
}

void MontaRegistratore() {
  registratore = {};
  piattaforma = {};
  piattaforma.messaggio = RegMessaggio;
  piattaforma.domanda = RegDomanda;
  piattaforma.scegliFile = RegFile;
  piattaforma.esegui = RegEsegui;
  piattaforma.avvia = RegAvvia;
  piattaforma.attivaFinestra = RegAttivaFinestra;
  piattaforma.tasti = [](const std::string& finestra, const std::string& tasti) { Evento(RigaTasti(finestra, tasti)); };
  piattaforma.mostraTesto = [](const std::string& percorso) { Evento(RigaTesto(percorso)); };
  piattaforma.mostraAiuto = [](const std::string& percorso) { Evento(RigaAiuto(percorso)); };
  piattaforma.timer = RegTimer;
  piattaforma.apri = RegApri;
  piattaforma.chiudi = PannelloNascosto;
  piattaforma.aggiorna = [](Controllo&) {};
  piattaforma.fuoco = [](Controllo& c) { registratore.fuoco = &c; };
  piattaforma.attesa = [](bool si) { registratore.attesa = si; };
  piattaforma.diario = [](const std::string& riga) { Evento(RigaDiario(riga)); };
  piattaforma.fine = [] {
    registratore.finito = true;
    Evento(RIGA_FINE);
  };
  lavoro.usato = true;  // tests fill its tables by hand
  AzzeraProgramma();
}

void PassaTempo(int ms) {
  for (TimerProva& t : registratore.timer) {
    if (t.ms <= 0) continue;
    t.ms -= ms;
    if (t.ms > 0) continue;
    t.ms = 0;
    if (t.scaduto != nullptr) t.scaduto();
  }
}

static std::filesystem::path CartellaProcesso() {
  std::error_code errore;
  return std::filesystem::temp_directory_path(errore) / ("qb07-prova-" + std::to_string(getpid()));
}

static void RipulisciCartelle() {  // a forked child has another number, and removes nothing of its parent
  std::error_code errore;
  std::filesystem::remove_all(CartellaProcesso(), errore);
}

std::string CartellaProva(const std::string& nome) {
  namespace fs = std::filesystem;
  std::error_code errore;
  if (!fs::exists(CartellaProcesso(), errore)) std::atexit(RipulisciCartelle);
  const fs::path cartella = CartellaProcesso() / nome;
  fs::remove_all(cartella, errore);
  fs::create_directories(cartella, errore);
  return cartella.string();
}

void ScriviByte(const std::string& percorso, const std::string& byte) {
  std::error_code errore;
  const std::filesystem::path p(percorso);
  if (p.has_parent_path()) std::filesystem::create_directories(p.parent_path(), errore);
  // A new file each time: some file systems write a truncated one to the disk as it is closed.
  if (std::filesystem::is_regular_file(std::filesystem::symlink_status(p, errore))) std::filesystem::remove(p, errore);
  std::ofstream f(p, std::ios::binary | std::ios::trunc);
  f.write(byte.data(), static_cast<std::streamsize>(byte.size()));
}

std::string LeggiByte(const std::string& percorso) {
  std::ifstream f(percorso, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), std::istreambuf_iterator<char>()};
}
