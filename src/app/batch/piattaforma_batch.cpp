// app/batch/piattaforma_batch.cpp - the operations of the platform without a screen.
#include "app/batch/piattaforma_batch.h"

#include "app/batch/sistema.h"
#include "core/eventi.h"
#include "core/file.h"
#include "panels/pannelli.h"

#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

void Stampa(const std::string& riga) { StampaTesto(riga + '\n'); }

void StampaTesto(const std::string& testo) {
  std::string motivo;
  if (ScriviUscita(testo, motivo)) return;
  FinisciSeRichiesto();  // no loss: a signal that asks for the end broke off the write
  std::fprintf(stderr, "%suscita standard persa: %s\n", ospite.dati ? "errore: " : "", motivo.c_str());
  Esci(2);
}

static bool LeggiTutto(std::FILE* f, std::string& testo) {
  char byte[4096];
  for (std::size_t n = 0; (n = std::fread(byte, 1, sizeof byte, f)) > 0;) testo.append(byte, n);
  return std::ferror(f) == 0;
}

bool LeggiFlusso(const std::string& percorso, std::string& testo) {
  if (percorso == "-") return LeggiTutto(stdin, testo);
  std::FILE* f = std::fopen(RisolviPercorso(percorso).c_str(), "rb");
  if (f == nullptr) return false;
  const bool letto = LeggiTutto(f, testo);
  std::fclose(f);
  return letto;
}

bool LeggiTestoOspite(const std::string& percorso, std::string& testo) {
  if (percorso == "-") return LeggiTutto(stdin, testo);
  FileLettura f;
  if (!ApriLettura(f, percorso)) return false;
  testo = std::move(f.byte);
  return true;
}

int ProcessiInsieme() {
  if (ospite.opzioni.processi > 0) return ospite.opzioni.processi;
  const unsigned nuclei = std::thread::hardware_concurrency();
  return nuclei > 0 ? static_cast<int>(nuclei) : 1;
}

int StatoUscita() {
  if (!ospite.avviato) return 2;
  return ospite.nonVerificato ? 1 : 0;
}

void Esci(int stato) {
  FermaFigli();
  std::fflush(stdout);
  std::fflush(stderr);
  std::_Exit(stato);  // ends at once, as the program does: nothing is written at the end of a run
}

static void OspiteMessaggio(const std::string& testo, const std::string& titolo, Icona icona) {
  Stampa(RigaMessaggio(testo, titolo, icona));
}

static bool OspiteDomanda(const std::string& testo, const std::string& titolo, Icona icona) {
  bool ok = ospite.opzioni.rispondiOk;
  if (!ospite.risposte.empty()) {
    ok = ospite.risposte.front();
    ospite.risposte.pop_front();
  }
  Stampa(RigaDomanda(testo, titolo, icona, ok));
  return ok;
}

static bool OspiteScegliFile(const RichiestaFile& r, std::string& percorso, int& filtro) {
  RispostaFile risposta;
  if (!ospite.file.empty()) {
    risposta = ospite.file.front();
    ospite.file.pop_front();
  }
  if (risposta.scelto) {
    percorso = ConEstensione(r, risposta.percorso);
    filtro = risposta.filtro;
  }
  Stampa(RigaFile(r, risposta.scelto, percorso));
  return risposta.scelto;
}

static bool OspiteEsegui(const std::string& programma, const std::string& argomento) {
  if (ospite.opzioni.senzaProgrammi || !EseguiProgramma(programma, argomento)) return false;
  Stampa(RigaProgramma(programma, argomento));
  return true;
}

static bool OspiteAvvia(const std::string& programma, const std::string& argomento) {
  if (ospite.opzioni.senzaProgrammi) return false;
  const int processo = AvviaProgramma(programma, argomento);
  if (processo == 0) return false;
  ospite.avviati.push_back({processo, ospite.finestraCercata});
  Stampa(RigaAvvia(programma, argomento));
  return true;
}

static bool OspiteAttivaFinestra(const std::string& titolo) {
  std::erase_if(ospite.avviati, [](const ProgrammaAvviato& p) { return !ProgrammaVivo(p.processo); });
  for (const ProgrammaAvviato& p : ospite.avviati)
    if (p.finestra == titolo) return true;
  ospite.finestraCercata = titolo;
  return false;
}

static void OspiteTimer(Temporizzatore quale, int ms, void (*scaduto)()) {
  ospite.timer[static_cast<int>(quale)] = {ms > 0, ospite.orologio + ms, scaduto};
}

static void OspiteApri(const Pannello& p, bool modale) {
  PannelloMostrato(p, modale);
  if (!modale) return;
  if (ospite.dentroModale == nullptr) Esci(2);  // nobody could close it
  ospite.dentroModale(p);
  // The script has ended inside it: the run ends where it stands, as a process that is taken down.
  if (p.aperto != nullptr && *p.aperto) Esci(StatoUscita());
}

static void OspiteFine() {
  Stampa(RIGA_FINE);
  Esci(StatoUscita());
}

void AvanzaTempo(int ms) {
  const long long fine = ospite.orologio + ms;
  while (true) {
    TimerOspite* primo = nullptr;
    for (TimerOspite& t : ospite.timer)
      if (t.attivo && t.scadenza <= fine && (primo == nullptr || t.scadenza < primo->scadenza)) primo = &t;
    if (primo == nullptr) break;
    ospite.orologio = primo->scadenza;
    primo->attivo = false;
    if (primo->scaduto != nullptr) primo->scaduto();  // may start a timer again
  }
  ospite.orologio = fine;
}

void MontaPiattaforma() {
  piattaforma.messaggio = OspiteMessaggio;
  piattaforma.domanda = OspiteDomanda;
  piattaforma.scegliFile = OspiteScegliFile;
  piattaforma.esegui = OspiteEsegui;
  piattaforma.avvia = OspiteAvvia;
  piattaforma.attivaFinestra = OspiteAttivaFinestra;
  piattaforma.tasti = [](const std::string& finestra, const std::string& tasti) { Stampa(RigaTasti(finestra, tasti)); };
  piattaforma.mostraTesto = [](const std::string& percorso) { Stampa(RigaTesto(percorso)); };
  piattaforma.mostraAiuto = [](const std::string& percorso) { Stampa(RigaAiuto(percorso)); };
  piattaforma.timer = OspiteTimer;
  piattaforma.apri = OspiteApri;
  piattaforma.chiudi = PannelloNascosto;
  piattaforma.aggiorna = [](Controllo&) {};  // nothing to paint
  piattaforma.fuoco = [](Controllo&) {};
  piattaforma.attesa = [](bool) {};
  piattaforma.diario = [](const std::string& riga) { Stampa(RigaDiario(riga)); };
  piattaforma.fine = OspiteFine;
}
