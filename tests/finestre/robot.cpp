// finestre/robot.cpp - boxes and file dialogs on the screen.
#include "robot.h"

#include "app/batch/piattaforma_batch.h"
#include "app/qt/finestre.h"
#include "app/qt/piattaforma_qt.h"
#include "core/eventi.h"
#include "core/file.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

struct StatoRobot {
  Piattaforma finestre;    // the real operations
  RispostaFile file;       // to the dialog on screen
  bool rifiutato = false;  // the dialog did not take the name
};
static StatoRobot robot;

static Icona IconaVista(QMessageBox::Icon i) {
  switch (i) {
    case QMessageBox::Critical: return Icona::Critica;
    case QMessageBox::Warning: return Icona::Esclamazione;
    case QMessageBox::Information: return Icona::Informazione;
    default: return Icona::Nessuna;
  }
}

static QPushButton* Bottone(QWidget& w, const char* testo) {
  for (QPushButton* b : w.findChildren<QPushButton*>())
    if (QString(b->text()).remove('&') == testo) return b;
  return nullptr;
}

static void Rispondi() {
  auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) {
    std::fputs("nessun riquadro sullo schermo\n", stderr);
    Esci(3);
  }
  const std::string testo = Utf8(box->text()), titolo = Utf8(box->windowTitle());
  QPushButton* annulla = Bottone(*box, "Annulla");
  bool ok = true;
  if (annulla != nullptr) {
    ok = ospite.opzioni.rispondiOk;
    if (!ospite.risposte.empty()) {
      ok = ospite.risposte.front();
      ospite.risposte.pop_front();
    }
    Stampa(RigaDomanda(testo, titolo, IconaVista(box->icon()), ok));
  } else {
    Stampa(RigaMessaggio(testo, titolo, IconaVista(box->icon())));
  }
  QTest::mouseClick(ok ? Bottone(*box, "OK") : annulla, Qt::LeftButton);
}

static void RobotMessaggio(const std::string& testo, const std::string& titolo, Icona icona) {
  QTimer::singleShot(0, qApp, Rispondi);
  robot.finestre.messaggio(testo, titolo, icona);
}

static bool RobotDomanda(const std::string& testo, const std::string& titolo, Icona icona) {
  QTimer::singleShot(0, qApp, Rispondi);
  return robot.finestre.domanda(testo, titolo, icona);
}

// ---- file dialogs ----

static void Sostituisci() {
  if (auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget()))
    if (QPushButton* si = Bottone(*box, "Sì")) QTest::mouseClick(si, Qt::LeftButton);
}

static void Scegli() {
  auto* d = dynamic_cast<QFileDialog*>(QApplication::activeModalWidget());
  if (d == nullptr) {
    std::fputs("nessun dialogo sullo schermo\n", stderr);
    Esci(3);
  }
  if (!robot.file.scelto) {
    QTest::keyClick(d, Qt::Key_Escape);
    return;
  }
  QTest::qWait(300);  // the folder's listing comes from a thread of the toolkit
  auto* filtri = d->findChild<QComboBox*>("fileTypeCombo");
  if (filtri != nullptr && filtri->count() >= robot.file.filtro) {
    filtri->setFocus();
    QTest::keyClick(filtri, Qt::Key_Home);
    for (int k = 1; k < robot.file.filtro; ++k) QTest::keyClick(filtri, Qt::Key_Down);
  }
  auto* nome = d->findChild<QLineEdit*>("fileNameEdit");
  QTest::mouseClick(nome, Qt::LeftButton);
  QTest::keyClick(nome, Qt::Key_A, Qt::ControlModifier);
  QApplication::clipboard()->setText(QFileInfo(Testo(RisolviPercorso(robot.file.percorso))).absoluteFilePath());
  QTest::keyClick(nome, Qt::Key_V, Qt::ControlModifier);
  QTimer::singleShot(0, qApp, Sostituisci);
  QTest::mouseClick(d->findChild<QDialogButtonBox*>()->buttons().first(), Qt::LeftButton);
  if (!d->isVisible()) return;
  robot.rifiutato = true;
  d->reject();
}

// A dialog opens only files that are there as they are spelled; a script may hand over others.
static bool DaAprire(const std::string& percorso) {
  return EsisteFile(percorso) && QString(Testo(percorso)).replace('\\', '/') == Testo(RisolviPercorso(percorso));
}

static bool RobotScegliFile(const RichiestaFile& r, std::string& percorso, int& filtro) {
  robot.file = {};
  robot.rifiutato = false;
  if (!ospite.file.empty()) {
    robot.file = ospite.file.front();
    ospite.file.pop_front();
  }
  const bool manca = robot.file.scelto && !r.salva && !DaAprire(robot.file.percorso);
  bool scelto = robot.file.scelto;
  if (!manca) {
    QTimer::singleShot(0, qApp, Scegli);
    scelto = robot.finestre.scegliFile(r, percorso, filtro);
  }
  if (robot.file.scelto && (manca || robot.rifiutato)) {
    scelto = true;
    percorso = ConEstensione(r, robot.file.percorso);
    filtro = robot.file.filtro;
  }
  Stampa(RigaFile(r, scelto, percorso));
  return scelto;
}

static bool RobotEsegui(const std::string& programma, const std::string& argomento) {
  if (ospite.opzioni.senzaProgrammi || !robot.finestre.esegui(programma, argomento)) return false;
  Stampa(RigaProgramma(programma, argomento));
  return true;
}

void MontaRobot() {
  MontaPiattaformaQt();
  robot.finestre = piattaforma;
  MontaPiattaforma();  // lines, virtual time, programs that are not waited for
  piattaforma.messaggio = RobotMessaggio;
  piattaforma.domanda = RobotDomanda;
  piattaforma.scegliFile = RobotScegliFile;
  piattaforma.esegui = RobotEsegui;
  piattaforma.apri = robot.finestre.apri;
  piattaforma.chiudi = robot.finestre.chiudi;
  piattaforma.aggiorna = robot.finestre.aggiorna;
  piattaforma.fuoco = robot.finestre.fuoco;
  piattaforma.attesa = robot.finestre.attesa;
}
