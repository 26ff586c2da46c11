// finestre/scena.cpp - start and end of a program with windows.
#include "scena.h"

#include "app/qt/finestre.h"
#include "app/qt/legame.h"
#include "app/qt/montaggio.h"
#include "app/qt/piattaforma_qt.h"
#include "corredo/suite_prova.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/programma.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

Scena::Scena(const char* nome) : radice(PreparaSuite(nome)) {
  AzzeraProgramma();
  MontaPiattaformaQt();
  finestre = {};
  if (!CreaFinestre().isEmpty()) return;
  suite.Decimale = '.';
  if (!CaricaInsDati("|diroot=" + radice + "|")) return;
  principale = FinestraDi(InsDati)->finestra;
  if (!QTest::qWaitForWindowActive(principale)) qWarning("finestra non attiva");
}

Scena::~Scena() {
  DistruggiFinestre();
  for (QWidget* w : QApplication::topLevelWidgets()) w->close();
  // The end that a scene asked for would end every later loop at once: one turn of the outer loop takes it back.
  QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
  QApplication::exec();
}

QWidget* OggettoDi(const Controllo& c) {
  const Legame* l = LegameDi(c);
  return l == nullptr ? nullptr : l->oggetto;
}

QLineEdit* CampoDi(const Controllo& c) { return dynamic_cast<QLineEdit*>(OggettoDi(c)); }

void MostraPagina(QWidget* w) {
  for (QWidget* figlio = w; !figlio->isWindow(); figlio = figlio->parentWidget())
    for (QWidget* p = figlio->parentWidget(); p != nullptr; p = p->parentWidget())
      if (auto* schede = dynamic_cast<QTabWidget*>(p); schede != nullptr && schede->indexOf(figlio) >= 0)
        schede->setCurrentIndex(schede->indexOf(figlio));
  QCoreApplication::processEvents();
}

void Scrivi(const Controllo& c, const char* testo) {
  QLineEdit* campo = CampoDi(c);
  MostraPagina(campo);
  QTest::mouseClick(campo, Qt::LeftButton);
  QCoreApplication::processEvents();
  QTest::keyClick(campo, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(campo, QString::fromUtf8(testo));
}

// Asks again until a window or box is in front: events are also worked off before it opens.
void PoiDavanti(void (*fai)(QWidget* davanti)) {
  QWidget* davanti = QApplication::activeModalWidget();
  if (davanti == nullptr || !davanti->isVisible()) QTimer::singleShot(1, qApp, [fai] { PoiDavanti(fai); });
  else fai(davanti);
}
