// app/qt/finestre.h - the windows of the panels: made once at the start, shown and hidden as the program asks.
// State     finestre: the windows, what is going on. Lives as long as the process.
// Rule      a window paints its panel's records and turns input into their events; no rule of the program lives here.
#pragma once
#include "panels/controlli.h"

#include <QString>
#include <QStringList>

#include <string>
#include <string_view>
#include <vector>

class QEventLoop;
class QWidget;

struct FinestraPannello {
  const Pannello* pannello = nullptr;
  QWidget* finestra = nullptr;
  QEventLoop* ciclo = nullptr;            // the wait of a modal panel, while it is on screen
};

struct StatoFinestre {
  std::vector<FinestraPannello> elenco;
  int comandi = 0;                        // events of the user that are running on the panel in front: 0 or 1
  bool occupato = false;                  // an outside program is waited for: input is dropped
  bool finita = false;                    // the program has asked for its end
  QString ultimaCartella;                 // of the last file dialog
  void (*dentroModale)(const Pannello& p) = nullptr;   // tests: works inside a modal panel once it is on screen
};
inline StatoFinestre finestre;

inline QString Testo(std::string_view t) { return QString::fromUtf8(t.data(), static_cast<qsizetype>(t.size())); }
inline std::string Utf8(const QString& t) { return t.toStdString(); }

QWidget* NuovaFinestra(const Pannello& p);           // a fresh window from the panel's form, tied to nothing; the caller owns it
// Makes and ties all windows. The differences between forms and records, one a line; none: all is well.
QStringList CreaFinestre();
void DistruggiFinestre();
FinestraPannello* FinestraDi(const Pannello& p);     // nullptr: not made
void ApriPannello(const Pannello& p, bool modale);   // modal: returns when the panel has closed
void ChiudiPannello(const Pannello& p);
void ChiudiConLaCroce(const Pannello& p);            // its own Annulla or Chiudi; a panel without either just closes
void AggiornaTitoli();
QWidget* FinestraDavanti();                          // parent of the next box; nullptr: none is on screen
