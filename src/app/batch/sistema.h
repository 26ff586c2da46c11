// app/batch/sistema.h - what the host without windows asks of the operating system: its standard channels, outside programs, processes of its
// own. One file a platform fills it (sistema_posix.cpp); nothing else of app/batch calls the system.
// Programs  run without a shell; their output and input are shut, since the host's own carry the events and the script.
// Failure   false or "not started": missing, not executable, or the system has no room for it.
#pragma once
#include <csignal>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// ---- standard channels ----

// Before any file is opened. A standard channel that is missing is put on the null device, so that no file gets its number and no event line
// lands in a report: input and output the wrong way round, so that using them is the failure that it is. A reader that has gone is a failed write.
void PreparaCanali();
// The whole text at once. False: not written, and the reason in Italian.
bool ScriviUscita(std::string_view testo, std::string& motivo);
bool UscitaSuTerminale();  // a person reads the output
bool ErroriSuTerminale();

// ---- outside programs ----

bool EseguiProgramma(const std::string& programma, const std::string& argomento);  // to its end, whatever its exit status
int AvviaProgramma(const std::string& programma, const std::string& argomento);    // not waited for: its process number, 0 not started
bool ProgrammaVivo(int processo);                                                  // false: ended, and reaped

// ---- processes of its own ----

struct Figlio {
  std::size_t compito = 0;  // whose work it does
  int processo = 0;
  int canale = -1;      // what it prints; -1 at its end
  std::string uscita;   // printed so far
  bool finito = false;  // and reaped
  int stato = -1;       // exit status; -1 it did not end by itself
  int segnale = 0;      // the signal that ended it, 0 none
};
inline std::vector<Figlio> figli;  // alive or not yet taken; empty in each of them. None outlives this process, however that ends.

// A copy of this process does the work, which ends it; its standard output is the channel. Appended to figli.
bool AvviaFiglio(std::size_t compito, const std::function<void()>& lavoro);
void AttendiFigli();  // until one of them prints or ends, or a signal asks this process to end
void FermaFigli();    // ends and reaps them all

struct StatoSegnali {
  volatile std::sig_atomic_t giunto = 0;  // the one that came, 0 none
  int sveglia[2] = {-1, -1};              // a byte in it ends a wait that begins right behind the signal
};
inline StatoSegnali segnali;  // of the guard that lives

// While it lives, a signal that asks this process to end (interrupt, termination, hang-up) is only noted, and ends its waits; a second one ends
// it at once. One that was ignored at the start stays ignored.
struct GuardiaSegnali {
  GuardiaSegnali();
  ~GuardiaSegnali();
  GuardiaSegnali(const GuardiaSegnali&) = delete;
  GuardiaSegnali& operator=(const GuardiaSegnali&) = delete;
};
// If such a signal came: ends figli and then this process, by that signal, as its caller expects to see it (128 and its number in a shell).
void FinisciSeRichiesto();

std::string NomeSegnale(int segnale);  // "9 (SIGKILL)"; the number alone for one without a common name
