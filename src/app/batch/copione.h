// app/batch/copione.h - the script of the host without windows: one instruction a line, each what a user does, or a look.
// Names     Pannello.Controllo, Pannello.Controllo(indice), with the panels' and controls' own names, letter for letter.
// Failure   a line that cannot be carried out - unknown instruction, control or name, or a control that is hidden, disabled
//           or not on the panel in front - stops the script: its number and text on standard error.
// State     copione: the lines and how far the run has come; a modal panel that opens from a command goes on in them.
#pragma once
#include "panels/controlli.h"

#include <string>
#include <string_view>
#include <vector>

struct StatoCopione {
  std::vector<std::string> righe;
  std::size_t prossima = 0;  // position of the next line
  bool fermato = false;      // a line could not be carried out
};
inline StatoCopione copione;

// How an instruction reaches the controls. At first straight to the records; a host with windows may put mouse, keyboard and what
// its widgets show in their place.
struct AzioniUtente {
  bool (*scrivi)(const Pannello& p, Controllo& c, const std::string& testo);
  bool (*sceglie)(const Pannello& p, Controllo& c, int posizione);
  bool (*scatena)(const Pannello& p, Controllo& c, Evento e);
  void (*passaSulPannello)(const Pannello& p);
  bool (*visibile)(const Pannello& p, const Controllo& c);
  bool (*abilitato)(const Pannello& p, const Controllo& c);
  std::string (*valore)(const Controllo& c, bool intera);  // as ValoreControllo
  std::vector<std::string> (*voci)(const Controllo& c);
};
AzioniUtente AzioniSuiRecord();
inline AzioniUtente azioniUtente = AzioniSuiRecord();

void CaricaCopione(std::string_view testo);  // lines ended by LF or CR LF, UTF-8
bool EseguiRiga(std::string_view riga);      // one line; false: could not be carried out
void EseguiCopione(const Pannello* modale);  // to the end, a stop, or until that modal panel has closed

// What `mostra` prints behind the equals sign, without the marks; intera: an exclusive choice as a whole.
std::string ValoreControllo(const Controllo& c, bool intera);
