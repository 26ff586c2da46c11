// app/qt/piattaforma_qt.cpp - the operations of the platform with windows.
#include "app/qt/piattaforma_qt.h"

#include "app/qt/finestre.h"
#include "app/qt/legame.h"
#include "app/qt/mostra_testo.h"
#include "app/qt/quadro.h"
#include "app/qt/sagome.h"
#include "core/eventi.h"
#include "core/fault.h"
#include "core/file.h"
#include "panels/InsDati.h"
#include "panels/Soll3D.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QTreeView>

#include <utility>

namespace {
// An operation of the platform whose own arithmetic is not the program's: the flags are as before at its end.
template <auto operazione>
struct Riparata;
template <class Esito, class... Argomento, Esito (*operazione)(Argomento...)>
struct Riparata<operazione> {
  static Esito Chiama(Argomento... a) {
    const RiparoFault riparo;
    return operazione(a...);
  }
};

// ---- boxes ----

// The wait pointer would stay over the box.
struct FrecciaNelRiquadro {
  FrecciaNelRiquadro() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
  ~FrecciaNelRiquadro() { QApplication::restoreOverrideCursor(); }
  FrecciaNelRiquadro(const FrecciaNelRiquadro&) = delete;
  FrecciaNelRiquadro& operator=(const FrecciaNelRiquadro&) = delete;
};
}  // namespace

static QMessageBox::Icon IconaRiquadro(Icona i) {
  switch (i) {
    case Icona::Critica: return QMessageBox::Critical;
    case Icona::Esclamazione: return QMessageBox::Warning;
    case Icona::Informazione: return QMessageBox::Information;
    case Icona::Nessuna: break;
  }
  return QMessageBox::NoIcon;
}

static bool MostraRiquadro(const std::string& testo, const std::string& titolo, Icona icona, bool conAnnulla) {
  if (finestre.finita) return false;
  const FrecciaNelRiquadro freccia;
  QMessageBox box(FinestraDavanti());
  box.setIcon(IconaRiquadro(icona));
  box.setWindowTitle(Testo(titolo));
  box.setTextFormat(Qt::PlainText);
  box.setText(Testo(testo).replace("\r\n", "\n").replace('\r', '\n'));
  QPushButton* ok = box.addButton("OK", QMessageBox::AcceptRole);
  box.setDefaultButton(ok);
  QPushButton* annulla = conAnnulla ? box.addButton("Annulla", QMessageBox::RejectRole) : nullptr;
  box.setEscapeButton(annulla != nullptr ? annulla : ok);
  box.exec();
  return box.clickedButton() == ok;
}

static void QtMessaggio(const std::string& testo, const std::string& titolo, Icona icona) { MostraRiquadro(testo, titolo, icona, false); }

static bool QtDomanda(const std::string& testo, const std::string& titolo, Icona icona) {
  return MostraRiquadro(testo, titolo, icona, true);
}

// ---- file dialogs ----

static bool HaCartella(const std::string& nome) { return nome.find_first_of("\\/") != std::string::npos; }

static void PreparaNome(QFileDialog& d, const RichiestaFile& r) {
  if (!r.cartella.empty()) d.setDirectory(Testo(RisolviPercorso(r.cartella)));
  else if (!finestre.ultimaCartella.isEmpty()) d.setDirectory(finestre.ultimaCartella);
  if (r.nomeIniziale.empty()) return;
  if (!HaCartella(r.nomeIniziale)) {
    d.selectFile(Testo(r.nomeIniziale));
    return;
  }
  const QFileInfo file(Testo(RisolviPercorso(r.nomeIniziale)));
  d.setDirectory(file.absolutePath());
  d.selectFile(file.fileName());
}

// The toolkit's own dialog: wide enough for name, size and date. The platform's has none of this.
static void Allarga(QFileDialog& d) {
  auto* elenco = d.findChild<QTreeView*>("treeView");
  if (elenco == nullptr) return;
  d.resize(QSize(900, 480).boundedTo(d.screen()->availableSize() - QSize(40, 60)));
  const int lettera = d.fontMetrics().horizontalAdvance('0');
  const int colonne[] = {34 * lettera, 11 * lettera, 26 * lettera, 21 * lettera};
  for (int k = 0; k < 4; ++k) elenco->header()->resizeSection(k, colonne[k]);
}

static bool QtScegliFile(const RichiestaFile& r, std::string& percorso, int& filtro) {
  if (finestre.finita) return false;
  const FrecciaNelRiquadro freccia;
  QFileDialog d(FinestraDavanti(), Testo(r.titolo));
  d.setAcceptMode(r.salva ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  d.setFileMode(r.salva ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  d.setNameFilters(FiltriDialogo(r.filtro));
  d.setDefaultSuffix(Testo(r.estensione));
  PreparaNome(d, r);
  Allarga(d);
  if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty()) return false;
  percorso = ConEstensione(r, Utf8(QDir::toNativeSeparators(d.selectedFiles().first())));
  filtro = std::max(1, static_cast<int>(d.nameFilters().indexOf(d.selectedNameFilter())) + 1);
  finestre.ultimaCartella = d.directory().absolutePath();
  return true;
}

// ---- timers, pointer, focus ----

static void QtTimer(Temporizzatore quale, int ms, void (*scaduto)()) {
  static constexpr const char* NOMI[] = {"Timer1", "TimerSel"};
  const char* nome = NOMI[static_cast<int>(quale)];
  auto* t = qApp->findChild<QTimer*>(nome);
  if (t == nullptr) {
    t = new QTimer(qApp);
    t->setObjectName(nome);
    t->setSingleShot(true);
    t->setTimerType(Qt::PreciseTimer);  // a coarse one may come 5 per cent early
  }
  t->disconnect();
  if (ms <= 0 || scaduto == nullptr) {
    t->stop();
    return;
  }
  // A timer that comes due while a command runs waits for its end.
  QObject::connect(t, &QTimer::timeout, t, [t, scaduto] {
    if (finestre.comandi > 0 || finestre.occupato) t->start(50);
    else if (!finestre.finita) scaduto();
  });
  t->start(ms);
}

static void QtAttesa(bool si) {
  const QCursor* ora = QApplication::overrideCursor();
  const bool acceso = ora != nullptr && ora->shape() == Qt::WaitCursor;
  if (si && !acceso) QApplication::setOverrideCursor(Qt::WaitCursor);
  if (!si && acceso) QApplication::restoreOverrideCursor();
}

static void QtFuoco(Controllo& c) {
  if (const Legame* l = LegameDi(c)) l->oggetto->setFocus(Qt::OtherFocusReason);
}

static void QtAggiorna(Controllo& c) {
  if (&c == &insDati.Nodo)
    if (const Legame* l = LegameDi(c)) static_cast<Quadro*>(l->oggetto)->Campiture(CampitureNodo());
  Dipingi(c);
}

// The counts of an import stand on the panel that was used for it.
static void QtDiario(const std::string& riga) {
  if (const FinestraPannello* f = FinestraDi(Soll3D))
    if (auto* esito = f->finestra->findChild<QLabel*>("_esito")) esito->setText(Testo(riga));
}

// The event loops of the modal panels end too; whoever called returns at once.
static void QtFine() {
  finestre.finita = true;
  QCoreApplication::exit(0);
}

QStringList FiltriDialogo(const std::string& filtro) {
  QStringList filtri;
  const QStringList pezzi = Testo(filtro).split('|');
  for (qsizetype k = 0; k + 1 < pezzi.size(); k += 2) {
    const QString nome = pezzi[k].section('(', 0, 0).trimmed();
    filtri += QString("%1 (%2)").arg(nome, pezzi[k + 1].trimmed().replace(';', ' '));
  }
  return filtri;
}

char DecimaleDelDesktop() { return QLocale::system().decimalPoint() == "," ? ',' : '.'; }

void MontaPiattaformaQt() {
  piattaforma.messaggio = Riparata<QtMessaggio>::Chiama;
  piattaforma.domanda = Riparata<QtDomanda>::Chiama;
  piattaforma.scegliFile = Riparata<QtScegliFile>::Chiama;
  piattaforma.esegui = Riparata<EseguiProgrammaQt>::Chiama;
  piattaforma.avvia = Riparata<AvviaProgrammaQt>::Chiama;
  piattaforma.attivaFinestra = Riparata<AttivaFinestraEsterna>::Chiama;
  piattaforma.tasti = Riparata<TastiAFinestraEsterna>::Chiama;
  piattaforma.mostraTesto = Riparata<MostraFileTesto>::Chiama;
  piattaforma.mostraAiuto = Riparata<MostraFileAiuto>::Chiama;
  piattaforma.timer = Riparata<QtTimer>::Chiama;
  piattaforma.apri = Riparata<ApriPannello>::Chiama;
  piattaforma.chiudi = Riparata<ChiudiPannello>::Chiama;
  piattaforma.aggiorna = Riparata<QtAggiorna>::Chiama;
  piattaforma.fuoco = Riparata<QtFuoco>::Chiama;
  piattaforma.attesa = Riparata<QtAttesa>::Chiama;
  piattaforma.diario = Riparata<QtDiario>::Chiama;
  piattaforma.fine = QtFine;
}
