// app/batch/piattaforma_batch.h - the platform of the host without windows: events go out as lines, answers come from queues,
// the timers' time passes only when the script says so.
// State     ospite: options, queues, timers and started programs of this run.
#pragma once
#include "app/batch/opzioni.h"
#include "core/piattaforma.h"

#include <deque>
#include <string>
#include <vector>

struct RispostaFile {
  bool scelto = false;  // false: Annulla
  std::string percorso;
  int filtro = 1;  // from 1
};

struct TimerOspite {
  bool attivo = false;
  long long scadenza = 0;  // on the timers' clock, ms
  void (*scaduto)() = nullptr;
};

struct ProgrammaAvviato {
  int processo = 0;
  std::string finestra;  // title of its window: the one looked for in vain before the start
};

// What the handler of a failed allocation needs, made while there is memory.
struct StatoMemoria {
  std::string riga;         // its message as an event line
  void* riserva = nullptr;  // given back before the message goes out
};

struct StatoOspite {
  Opzioni opzioni;
  std::deque<bool> risposte;      // to the next questions; then as the options say
  std::deque<RispostaFile> file;  // to the next file dialogs; then Annulla
  long long orologio = 0;         // the timers' time, ms since the start
  TimerOspite timer[2];           // by Temporizzatore
  std::vector<ProgrammaAvviato> avviati;
  std::string finestraCercata;  // the last window that was not found
  bool avviato = false;         // the start has ended well
  bool dati = false;            // the output is data or information: failures go to standard error, as "errore: ..."
  bool progresso = false;       // a count stands on the terminal's line
  bool lavorante = false;       // a worker: its output is a channel
  StatoMemoria memoria;
  bool nonVerificato = false;                         // a verification of this run found a sextet that is not verified
  void (*dentroModale)(const Pannello& p) = nullptr;  // works inside a modal panel until it closes; null: nobody does
};
inline StatoOspite ospite;

void MontaPiattaforma();                     // fills piattaforma
void Stampa(const std::string& riga);        // one line on standard output, at once; output that cannot be written ends the run, status 2
void StampaTesto(const std::string& testo);  // the same without a line end
bool LeggiTestoOspite(const std::string& percorso, std::string& testo);  // a file, or standard input for "-"
bool LeggiFlusso(const std::string& percorso, std::string& testo);       // the same of anything that can be read, a pipe too
int ProcessiInsieme();                                                   // as many as the options say, or one a core
void AvanzaTempo(int ms);                                                // fires the timers that come due, the earliest first
int StatoUscita();                                                       // 0, 1 or 2 for a run that ends now, its last line carried out
[[noreturn]] void Esci(int stato);                                       // ends the workers too
