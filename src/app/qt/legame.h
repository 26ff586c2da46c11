// app/qt/legame.h - ties the widgets of a form to the records of its panel, by name and kind.
// Names     a widget's object name is the control's own: Verifica, LatoTxt_0, DTf_1. What serves the looks alone carries a name
//           that begins with an underscore.
// Forms     dynamic properties of a widget that the binder reads: mnemonica (letter of the caption that Alt reaches), tasto
//           (shortcut), numerico (field of numbers), disegno (icon, or a drawing of ours on a picture), cede (gives up its
//           place when hidden).
// State     legami: controls and widgets, each found from the other.
// Failure   DifferenzeForma lists each control without a widget of its kind and each widget without a control.
#pragma once
#include "panels/controlli.h"

#include <QString>
#include <QStringList>

#include <string>
#include <unordered_map>
#include <vector>

class QButtonGroup;
class QObject;
class QWidget;

struct Legame {
  const Pannello* pannello = nullptr;
  const RigaPannello* riga = nullptr;
  Controllo* controllo = nullptr;
  QWidget* oggetto = nullptr;
  QWidget* unita = nullptr;        // the unit beside a field, which is enabled with it; nullptr: none
  QButtonGroup* gruppo = nullptr;  // of an exclusive choice
  std::vector<std::string> voci;   // entries that the widget shows now
};

struct StatoLegami {
  std::unordered_map<const Controllo*, Legame> perControllo;
  std::unordered_map<const QObject*, Legame*> perOggetto;
};
inline StatoLegami legami;  // filled with the windows, emptied with them

QString NomeOggetto(const RigaPannello& r, int indice);
QStringList DifferenzeForma(const Pannello& p, const QWidget& forma);
void LegaPannello(const Pannello& p, QWidget& forma);  // the form must be without differences
void SciogliLegami();

Legame* LegameDi(const Controllo& c);  // nullptr: not tied
Legame* LegameDi(const QObject* o);    // of the widget itself or the nearest one around it
void Dipingi(const Controllo& c);      // no event of ours follows
void DipingiPannello(const Pannello& p);
