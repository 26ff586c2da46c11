// core/piattaforma.h - all that the program asks of the outside. app/qt, app/batch and the tests each fill it;
// nothing else knows which. One thread: every operation has ended when it returns.
#pragma once
#include <string>

#include "model/icona.h"

struct Pannello;
struct Controllo;

enum class Temporizzatore { Stato, Selezione };  // Timer1 of the main panel, TimerSel of the selection panel

struct RichiestaFile {
  bool salva = false;    // false: open
  std::string titolo;    // empty: the platform's own
  std::string filtro;    // "text|pattern|text|pattern"
  std::string cartella;  // starting folder, empty: where the last dialog ended
  std::string nomeIniziale;
  std::string estensione;  // default extension without the point, added to a name without one; empty: none
};

struct Piattaforma {
  void (*messaggio)(const std::string& testo, const std::string& titolo, Icona) = nullptr;
  bool (*domanda)(const std::string& testo, const std::string& titolo, Icona) = nullptr;   // true OK, false Annulla
  bool (*scegliFile)(const RichiestaFile&, std::string& percorso, int& filtro) = nullptr;  // false Annulla; filtro from 1
  // Outside programs: the program's path, suite path, and all that it is handed, as one argument (empty: none). Never joined into one line
  // that would have to be cut again.
  bool (*esegui)(const std::string& programma, const std::string& argomento) = nullptr;  // runs to its end; false: could not be started
  bool (*avvia)(const std::string& programma, const std::string& argomento) = nullptr;   // does not wait
  bool (*attivaFinestra)(const std::string& titolo) = nullptr;                           // false: no such window
  void (*tasti)(const std::string& finestra, const std::string& tasti) = nullptr;
  void (*mostraTesto)(const std::string& percorso) = nullptr;  // a finished text file, suite path
  void (*mostraAiuto)(const std::string& percorso) = nullptr;
  void (*timer)(Temporizzatore, int ms, void (*scaduto)()) = nullptr;  // one shot; restarts if running; ms 0 stops it
  void (*apri)(const Pannello&, bool modale) = nullptr;                // modal: returns when the panel has closed
  void (*chiudi)(const Pannello&) = nullptr;                           // hides it; ends the modal wait
  void (*aggiorna)(Controllo&) = nullptr;                              // its state changed: paint it
  void (*fuoco)(Controllo&) = nullptr;                                 // give it the input focus
  void (*attesa)(bool) = nullptr;                                      // wait pointer on, off
  void (*diario)(const std::string& riga) = nullptr;                   // one line of an import's log
  void (*fine)() = nullptr;  // ends the process; where it returns (tests, windows) the caller returns at once
};
Piattaforma PiattaformaAssente();  // each entry aborts by name: never a silent no-op
inline Piattaforma piattaforma = PiattaformaAssente();

// Of a command for which the system has no more memory; it ends there, and what was entered stays as the command had left it.
constexpr const char* TESTO_MEMORIA = "Memoria insufficiente: il comando non può continuare.";

// The boxes of the program. No title named is TitoloProg.
void Messaggio(const std::string& testo, const std::string& titolo, Icona icona);
