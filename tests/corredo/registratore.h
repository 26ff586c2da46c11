// tests/corredo/registratore.h - a platform that records every event in the batch host's own line form and answers from queues.
#pragma once
#include <string>
#include <utility>
#include <vector>

struct Registratore {
  std::vector<std::string> eventi;                        // "[messaggio] critica | TITOLO | TESTO" and so on, in order
  std::vector<bool> risposte;                             // queued answers to questions, first first; then OK
  std::vector<std::pair<std::string, int>> file;          // queued answers to file dialogs: path ("" = Annulla), filter
  bool programmi = false;                                 // outside programs can be started
};
inline Registratore registratore;

void MontaRegistratore();      // a fresh record, and piattaforma filled with it; every state record back at its start value
std::string CartellaProva(const std::string& nome);       // an empty scratch folder for this test, absolute path
void ScriviByte(const std::string& percorso, const std::string& byte);   // creates folders on the way
std::string LeggiByte(const std::string& percorso);
