// tests/corredo/registratore.h - a platform that records every event in the batch host's own line form and answers from queues.
#pragma once
#include "core/piattaforma.h"

#include <string>
#include <utility>
#include <vector>

struct TimerProva {
  int ms = 0;  // what is left of it; 0: not running
  void (*scaduto)() = nullptr;
};

struct Registratore {
  std::vector<std::string> eventi;                // "[messaggio] critica | TITOLO | TESTO" and so on, in order
  std::vector<bool> risposte;                     // queued answers to questions, first first; then OK
  std::vector<std::pair<std::string, int>> file;  // queued answers to file dialogs: path ("" = Annulla), filter; then Annulla
  bool programmi = false;                         // outside programs can be started
  bool (*eseguito)(const std::string& programma,
                   const std::string& argomento) = nullptr;  // plays an outside program; false: could not be started
  std::vector<std::string> finestre;                         // titles of the windows that can be activated
  std::vector<void (*)()> dentro;                            // what the user does in each modal panel that opens, first first
  std::vector<std::string> pannelli;                         // names of the panels opened, in order
  TimerProva timer[2];                                       // by Temporizzatore
  bool attesa = false;                                       // wait pointer
  Controllo* fuoco = nullptr;                                // control that was given the focus last
  RichiestaFile richiesta;                                   // the last file dialog asked for
  bool finito = false;                                       // fine() was called
};
inline Registratore registratore;

void MontaRegistratore();  // a fresh record, and piattaforma filled with it; every state record back at its start value
void PassaTempo(int ms);   // lets that much of the timers' time pass; a timer fires when its interval is reached
std::string CartellaProva(const std::string& nome);                     // an empty scratch folder for this test, absolute path
void ScriviByte(const std::string& percorso, const std::string& byte);  // creates folders on the way
std::string LeggiByte(const std::string& percorso);                     // the whole file; "" when it cannot be opened
