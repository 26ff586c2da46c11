// app/qt/finestre.h - the windows of the panels, shown and hidden as the program asks. Made once, at the start (app/qt/montaggio.h).
// State     finestre: the windows, what is going on. Lives as long as the process.
// Rule      a window paints its panel's records and turns input into their events; no rule of the program lives here.
#pragma once
#include "app/qt/testi.h"
#include "panels/controlli.h"

#include <QString>

#include <vector>

class QEventLoop;
class QWidget;

struct FinestraPannello {
  const Pannello* pannello = nullptr;
  QWidget* finestra = nullptr;
  QEventLoop* ciclo = nullptr;  // the wait of a modal panel, while it is on screen
};

struct StatoFinestre {
  std::vector<FinestraPannello> elenco;
  int comandi = 0;                                    // events of the user that are running on the panel in front: 0 or 1
  bool occupato = false;                              // an outside program is waited for: input is dropped
  bool finita = false;                                // the program has asked for its end
  QString ultimaCartella;                             // of the last file dialog
  void (*dentroModale)(const Pannello& p) = nullptr;  // tests: works inside a modal panel once it is on screen
};
inline StatoFinestre finestre;

FinestraPannello* FinestraDi(const Pannello& p);    // nullptr: not made
void ApriPannello(const Pannello& p, bool modale);  // modal: returns when the panel has closed
void ChiudiPannello(const Pannello& p);
void ChiudiConLaCroce(const Pannello& p);  // its own Annulla or Chiudi; a panel without either just closes
void AggiornaTitoli();
QWidget* FinestraDavanti();  // parent of the next box; nullptr: none is on screen
