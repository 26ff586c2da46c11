// app/qt/mostra_testo.cpp - text and help files.
#include "app/qt/mostra_testo.h"

#include "app/qt/finestre.h"
#include "app/qt/pitture.h"
#include "core/file.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "model/suite.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPagedPaintDevice>
#include <QPlainTextEdit>
#include <QProcess>
#include <QScreen>
#include <QShortcut>
#include <QStandardPaths>
#include <QTextDocument>
#include <QToolBar>
#include <QUrl>

#ifdef QB07_STAMPA
#include <QPrintDialog>
#include <QPrinter>
#endif

// ---- the platform's own programs ----

// Unix desktops hand every file to one opener, which says nothing when it knows no program: the kind is asked for first.
static bool ApriConIlDesktop(const QString& file, const char* genere) {
#ifdef Q_OS_UNIX
#ifndef Q_OS_MACOS
  const QString apri = QStandardPaths::findExecutable("xdg-open"), chiedi = QStandardPaths::findExecutable("xdg-mime");
  if (apri.isEmpty() || chiedi.isEmpty()) return false;
  QProcess domanda;
  domanda.start(chiedi, {"query", "default", genere});
  if (!domanda.waitForFinished(3000) || domanda.readAllStandardOutput().trimmed().isEmpty()) return false;
  return QProcess::startDetached(apri, {file});
#endif
#endif
  static_cast<void>(genere);
  return QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

// ---- the window of our own ----

constexpr int TABULAZIONE = 8;           // the columns of the reports count on it
constexpr double BORDO_STAMPA = 20;      // mm on each side: those that the toolkit leaves
constexpr double ARROTONDAMENTO = 0.97;  // letters are whole dots wide

static QString TestoDelFile(const QString& file) {
  FileLettura f;
  QString testo;
  std::string riga;
  if (!ApriLettura(f, Utf8(file))) return testo;
  while (!FineFile(f) && LeggiRiga(f, riga)) testo += Testo(riga) + '\n';
  return testo;
}

static void Cerca(QPlainTextEdit& testo, QLineEdit& che, bool indietro) {
  if (che.text().isEmpty()) return;
  const QTextDocument::FindFlags come = indietro ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  bool trovato = testo.find(che.text(), come);
  if (!trovato) {  // once more from the other end
    QTextCursor c = testo.textCursor();
    c.movePosition(indietro ? QTextCursor::End : QTextCursor::Start);
    testo.setTextCursor(c);
    trovato = testo.find(che.text(), come);
  }
  QPalette colori;
  if (!trovato) colori.setColor(QPalette::Text, QColor(200, 40, 40));
  che.setPalette(colori);
}

// A stop that rounding brings beyond a text as wide as the column would take the next one's place: it stands a hair before.
static qreal Tabulazione(const QFont& carattere) { return QFontMetricsF(carattere).horizontalAdvance(QString(TABULAZIONE, ' ')) - 0.2; }

// ---- on paper ----

// On paper letters are of broken widths, on which no tab stop falls exactly.
static QString SenzaTabulazioni(const QString& testo) {
  QString t;
  qsizetype inizio = 0;  // of the line
  for (const QChar c : testo) {
    if (c != '\t') t += c;
    else t += QString(TABULAZIONE - (t.size() - inizio) % TABULAZIONE, ' ');
    if (c == '\n') inizio = t.size();
  }
  return t;
}

void StampaDocumento(const QString& testo, const QFont& carattere, QPagedPaintDevice& carta) {
  const double puntiMm = carta.logicalDpiX() / 25.4;
  const double larga = carta.pageLayout().paintRect(QPageLayout::Millimeter).width() - 2 * BORDO_STAMPA;
  QTextDocument d;
  d.documentLayout()->setPaintDevice(&carta);
  d.setDefaultFont(carattere);
  d.setPlainText(SenzaTabulazioni(testo));
  QFont adatto = carattere;
  const double riduzione = larga * puntiMm / d.idealWidth();
  if (riduzione < 1) adatto.setPointSizeF(QFontInfo(carattere).pointSizeF() * riduzione * ARROTONDAMENTO);
  d.setDefaultFont(adatto);
  d.print(&carta);
}

static void StampaConDialogo(QPlainTextEdit& testo) {
#ifdef QB07_STAMPA
  QPrinter stampante(QPrinter::HighResolution);
  stampante.setDocName(testo.window()->windowTitle());
  QPrintDialog dialogo(&stampante, &testo);
  dialogo.setWindowTitle("Stampa");
  if (dialogo.exec() == QDialog::Accepted) StampaDocumento(testo.toPlainText(), testo.font(), stampante);
#else
  static_cast<void>(testo);
#endif
}

static QWidget* TestoAperto(const QString& file) {
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w->objectName() == "FinestraTesto" && w->windowFilePath() == file && w->isVisible()) return w;
  return nullptr;
}

QWidget* FinestraTesto(const QString& file) {
  if (QWidget* aperto = TestoAperto(file)) {
    aperto->findChild<QPlainTextEdit*>()->setPlainText(TestoDelFile(file));
    return aperto;
  }
  auto* f = new QMainWindow;
  f->setAttribute(Qt::WA_DeleteOnClose);
  f->setObjectName("FinestraTesto");
  f->setWindowFilePath(file);
  f->setWindowTitle(QFileInfo(file).fileName());
  f->setWindowIcon(IconaProgramma());
  auto* testo = new QPlainTextEdit(f);
  testo->setReadOnly(true);
  testo->setLineWrapMode(QPlainTextEdit::NoWrap);
  QFont carattere = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  carattere.setStyleHint(QFont::Monospace);
  testo->setFont(carattere);
  testo->setTabStopDistance(Tabulazione(carattere));
  testo->setPlainText(TestoDelFile(file));
  f->setCentralWidget(testo);

  QToolBar* barra = f->addToolBar("Comandi");
  barra->setMovable(false);
  barra->setContextMenuPolicy(Qt::PreventContextMenu);
  barra->addWidget(new QLabel(" Cerca: "));
  auto* che = new QLineEdit;
  che->setMaximumWidth(260);
  che->setClearButtonEnabled(true);
  barra->addWidget(che);
  const auto comando = [f, barra](const char* nome, const QKeySequence& tasto, auto fai) {
    QAction* a = barra->addAction(nome);
    a->setShortcut(tasto);
    a->setToolTip(QString("%1 (%2)").arg(nome, tasto.toString(QKeySequence::NativeText)));
    QObject::connect(a, &QAction::triggered, f, fai);
  };
  comando("Precedente", QKeySequence("Shift+F3"), [testo, che] { Cerca(*testo, *che, true); });
  comando("Successivo", QKeySequence("F3"), [testo, che] { Cerca(*testo, *che, false); });
  barra->addSeparator();
#ifdef QB07_STAMPA
  comando("Stampa...", QKeySequence::Print, [testo] { StampaConDialogo(*testo); });
#else
  static_cast<void>(StampaConDialogo);
#endif
  comando("Chiudi", QKeySequence("Esc"), [f] { f->close(); });
  QObject::connect(che, &QLineEdit::returnPressed, f, [testo, che] { Cerca(*testo, *che, false); });
  QObject::connect(new QShortcut(QKeySequence::Find, f), &QShortcut::activated, che, [che] {
    che->setFocus();
    che->selectAll();
  });
  const QSize schermo = f->screen()->availableSize();
  f->resize(std::min(1000, schermo.width() - 40), std::min(700, schermo.height() - 60));
  testo->setFocus();
  return f;
}

void MostraFileTesto(const std::string& percorso) {
  const QString file = Testo(RisolviPercorso(percorso));
  if (ApriConIlDesktop(file, "text/plain")) return;
  QWidget* f = FinestraTesto(file);
  f->show();
  f->raise();
  f->activateWindow();
}

void MostraFileAiuto(const std::string& percorso) {
  const QString file = Testo(RisolviPercorso(percorso));
  if (QFileInfo::exists(file) && ApriConIlDesktop(file, "application/pdf")) return;
  Messaggio(QFileInfo::exists(file) ? "La guida è nel file " + Utf8(file) : "Manca il file della guida: " + Utf8(file), TitoloProg,
            Icona::Informazione);
}
