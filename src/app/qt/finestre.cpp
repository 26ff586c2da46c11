// app/qt/finestre.cpp - which window belongs to a panel; showing and hiding. Modal ones wait in an event loop of their own.
#include "app/qt/finestre.h"

#include "app/qt/legame.h"
#include "panels/InsDati.h"
#include "panels/pannelli.h"

#include <QApplication>
#include <QEventLoop>
#include <QGridLayout>
#include <QLineEdit>
#include <QScreen>
#include <QTimer>

#include <utility>

FinestraPannello* FinestraDi(const Pannello& p) {
  for (FinestraPannello& f : finestre.elenco)
    if (f.pannello == &p) return &f;
  return nullptr;
}

void AggiornaTitoli() {
  for (const FinestraPannello& f : finestre.elenco)
    if (f.pannello->titolo != nullptr) f.finestra->setWindowTitle(Testo(*f.pannello->titolo));
}

QWidget* FinestraDavanti() {
  if (QWidget* w = QApplication::activeModalWidget()) return w;
  const FinestraPannello* f = FinestraDi(InsDati);
  return f != nullptr && f->finestra->isVisible() ? f->finestra : nullptr;
}

// ---- showing and hiding ----

// Inside a modal panel the user works on: its events run although the command that opened it has not ended.
static void AspettaChiusura(FinestraPannello& f) {
  QEventLoop ciclo;
  f.ciclo = &ciclo;
  const int comandi = std::exchange(finestre.comandi, 0);
  if (finestre.dentroModale != nullptr) QTimer::singleShot(0, f.finestra, [p = f.pannello] { finestre.dentroModale(*p); });
  ciclo.exec();
  finestre.comandi = comandi;
  f.ciclo = nullptr;
}

// A grid of frames of which some may be out of use: those in use stand in order, two to a row.
static void Impagina(QWidget& finestra) {
  auto* griglia = finestra.findChild<QGridLayout*>("_griglia");
  if (griglia == nullptr || griglia->parentWidget()->window() != &finestra) return;  // the other windows are children of the main one
  QList<QWidget*> cornici;
  while (QLayoutItem* posto = griglia->takeAt(0)) {
    cornici += posto->widget();
    delete posto;
  }
  int k = 0;
  for (const bool inUso : {true, false})
    for (QWidget* c : cornici)
      if (c->isHidden() != inUso) {
        griglia->addWidget(c, k / 2, k % 2);
        ++k;
      }
  finestra.layout()->activate();
  finestra.resize(finestra.sizeHint());
}

// A window is never larger than its screen, whose frame and bars take this much.
constexpr int CORNICE_L = 16, CORNICE_A = 48;

static void Contieni(QWidget& finestra) {
  finestra.resize(finestra.size().boundedTo(finestra.screen()->availableSize() - QSize(CORNICE_L, CORNICE_A)));
}

// A panel comes up with the keyboard on its first control, however it was left.
static void FuocoIniziale(QWidget& finestra) {
  for (QWidget* w = finestra.nextInFocusChain(); w != nullptr && w != &finestra; w = w->nextInFocusChain())
    if ((w->focusPolicy() & Qt::TabFocus) != 0 && w->isEnabledTo(&finestra) && w->isVisibleTo(&finestra)) {
      w->setFocus(Qt::TabFocusReason);
      return;
    }
}

void ApriPannello(const Pannello& p, bool modale) {
  FinestraPannello* f = FinestraDi(p);
  if (f == nullptr || finestre.finita) return;
  QWidget& w = *f->finestra;
  PannelloMostrato(p, modale);
  // The main panel comes up when every record has its texts of creation: the others are painted for the first time with it.
  for (const FinestraPannello& altra : finestre.elenco)
    if (altra.pannello == &p || &p == &InsDati) DipingiPannello(*altra.pannello);
  Impagina(w);
  if (!w.isVisible()) {
    Contieni(w);
    FuocoIniziale(w);
  }
  AggiornaTitoli();
  w.setWindowModality(modale ? Qt::ApplicationModal : Qt::NonModal);
  w.show();
  w.raise();
  w.activateWindow();
  if (auto* campo = dynamic_cast<QLineEdit*>(w.focusWidget())) campo->selectAll();
  if (!modale) return;
  QApplication::setOverrideCursor(Qt::ArrowCursor);
  AspettaChiusura(*f);
  QApplication::restoreOverrideCursor();
}

void ChiudiPannello(const Pannello& p) {
  PannelloNascosto(p);
  FinestraPannello* f = FinestraDi(p);
  if (f == nullptr) return;
  f->finestra->hide();
  if (f->ciclo != nullptr) f->ciclo->quit();
}

void ChiudiConLaCroce(const Pannello& p) {
  if (!Raggiungibile(p) && p.modale) return;
  for (const char* nome : {"Annulla", "Chiudi"}) {
    const RigaPannello* r = TrovaRiga(p, nome);
    if (r == nullptr || r->indicizzato || r->genere != Genere::Comando) continue;
    ++finestre.comandi;
    Scatena(p, *r->controllo, Evento::Cambio);
    --finestre.comandi;
    AggiornaTitoli();
    return;
  }
  ChiudiPannello(p);
}
