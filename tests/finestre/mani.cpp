// finestre/mani.cpp - one way of doing and of reading for each kind of control.
#include "mani.h"

#include "app/qt/finestre.h"
#include "app/qt/legame.h"
#include "app/qt/quadro.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

static void Assesta() { QCoreApplication::processEvents(); }

static QWidget& Oggetto(const Controllo& c) { return *LegameDi(c)->oggetto; }

static void PortaInVista(QWidget& w) {
  for (QWidget* figlio = &w; figlio != nullptr && !figlio->isWindow(); figlio = figlio->parentWidget())
    for (QWidget* p = figlio->parentWidget(); p != nullptr; p = p->parentWidget())
      if (auto* schede = dynamic_cast<QTabWidget*>(p); schede != nullptr && schede->indexOf(figlio) >= 0) {
        const QSignalBlocker muto(schede);
        schede->setCurrentIndex(schede->indexOf(figlio));
      }
  Assesta();
}

static QWidget& Pronto(const Controllo& c) {
  QWidget& w = Oggetto(c);
  PortaInVista(w);
  return w;
}

// ---- doing ----

static void Fuoco(QWidget& w) {
  if (w.hasFocus()) return;
  QTest::mouseClick(&w, Qt::LeftButton);
  Assesta();
}

// A number is typed key by key; a text with letters beyond the keyboard's, or whose heads are other numbers, is pasted.
static bool DaIncollare(const QString& t) {
  for (const QChar k : t)
    if (k.unicode() > 126) return true;
  return t.size() > 24 || t.contains('e', Qt::CaseInsensitive);
}

static bool Scrivi(const Pannello&, Controllo& c, const std::string& testo) {
  if (c.riga->genere != Genere::Campo) return false;
  auto& campo = static_cast<QLineEdit&>(Pronto(c));
  Fuoco(campo);
  const QString t = Testo(testo);
  QTest::keyClick(&campo, Qt::Key_A, Qt::ControlModifier);
  if (t.isEmpty()) {
    QTest::keyClick(&campo, Qt::Key_Delete);
  } else if (DaIncollare(t)) {
    QApplication::clipboard()->setText(t);
    QTest::keyClick(&campo, Qt::Key_V, Qt::ControlModifier);
  } else {
    QTest::keyClicks(&campo, t);
  }
  Assesta();
  return true;
}

static void ScegliLista(QComboBox& lista, int posizione) {
  Fuoco(lista);
  if (!lista.view()->isVisible()) lista.showPopup();
  Assesta();
  lista.view()->setCurrentIndex(lista.model()->index(posizione, 0));
  QTest::keyClick(lista.view(), Qt::Key_Return);
  Assesta();
}

static void Scorri(QScrollBar& barra, int valore) {
  const int meta = std::clamp(valore, barra.minimum(), barra.maximum());
  for (int k = 0; k < 1000 && barra.value() != meta; ++k) QTest::keyClick(&barra, barra.value() < meta ? Qt::Key_Down : Qt::Key_Up);
}

static QPoint Segno(const QWidget& w) { return QPoint(9, w.height() / 2); }  // of a tick or a choice

static bool Sceglie(const Pannello&, Controllo& c, int posizione) {
  QWidget& w = Pronto(c);
  const bool nellElenco = posizione >= 0 && posizione < static_cast<int>(c.voci.size());
  switch (c.riga->genere) {
    case Genere::Lista:
      if (!nellElenco) return false;
      ScegliLista(static_cast<QComboBox&>(w), posizione);
      return true;
    case Genere::Schede: {
      if (!nellElenco) return false;
      Dipingi(c);
      const QTabBar* barra = static_cast<QTabWidget&>(w).tabBar();
      QTest::mouseClick(const_cast<QTabBar*>(barra), Qt::LeftButton, {}, barra->tabRect(posizione).center());
      return true;
    }
    case Genere::Spunta:
      if (static_cast<QAbstractButton&>(w).isChecked() != (posizione != 0)) QTest::mouseClick(&w, Qt::LeftButton, {}, Segno(w));
      return true;
    case Genere::Scelta: QTest::mouseClick(&w, Qt::LeftButton, {}, Segno(w)); return posizione == 1;
    case Genere::Barra: Scorri(static_cast<QScrollBar&>(w), posizione); return true;
    default: return false;
  }
}

static void Muovi(QWidget& finestra, const QPoint& dove) {
  QWidget* sotto = finestra.childAt(dove);
  QWidget& w = sotto != nullptr ? *sotto : finestra;
  const QPointF globale = finestra.mapToGlobal(QPointF(dove));
  QMouseEvent e(QEvent::MouseMove, w.mapFromGlobal(globale), globale, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(&w, &e);
  Assesta();
}

static bool Fai(const Pannello&, Controllo& c, Evento e) {
  const RigaPannello& r = *c.riga;
  QWidget& w = Pronto(c);
  switch (e) {
    case Evento::Cambio:
      if (r.cambio == nullptr) return false;
      QTest::mouseClick(&w, Qt::LeftButton);
      break;
    case Evento::Invio:
      if (r.genere != Genere::Campo) return false;
      Fuoco(w);
      QTest::keyClick(&w, Qt::Key_Return);
      break;
    case Evento::Doppio:
      if (r.doppio == nullptr) return false;
      QTest::mouseDClick(&w, Qt::LeftButton);
      break;
    case Evento::Passa: Muovi(*w.window(), w.mapTo(w.window(), w.rect().center())); break;
  }
  Assesta();
  return true;
}

static void PassaSulBordo(const Pannello& p) { Muovi(*FinestraDi(p)->finestra, QPoint(2, 2)); }

// ---- looking ----

// As a user who turns the pages sees it.
static bool SiVede(const Pannello& p, const Controllo& c) {
  const QWidget* w = &Oggetto(c);
  if (!FinestraDi(p)->finestra->isVisible()) return false;
  for (; w != nullptr && !w->isWindow(); w = w->parentWidget()) {
    const bool pagina = w->parentWidget() != nullptr && w->parentWidget()->objectName() == "qt_tabwidget_stackedwidget";
    if (!pagina && w->isHidden()) return false;
  }
  return true;
}

static bool SiUsa(const Pannello&, const Controllo& c) { return Oggetto(c).isEnabled(); }

// Back from the caption's letter for Alt to the caption.
static std::string Didascalia(QString t) {
  QString r;
  for (qsizetype k = 0; k < t.size(); ++k) {
    if (t[k] == '&' && k + 1 < t.size()) ++k;
    r += t[k];
  }
  return Utf8(r);
}

static int Scelto(const Controllo& c, bool intera) {
  if (!intera) return static_cast<QAbstractButton&>(Oggetto(c)).isChecked() ? 1 : 0;
  for (int i = c.riga->primo; i <= c.riga->ultimo; ++i)
    if (static_cast<QAbstractButton&>(Oggetto(c.riga->controllo[i - c.riga->primo])).isChecked()) return i;
  return -1;
}

static std::vector<std::string> VociViste(const Controllo& c) {
  std::vector<std::string> voci;
  if (const auto* lista = dynamic_cast<QComboBox*>(&Oggetto(c)))
    for (int k = 0; k < lista->count(); ++k) voci.push_back(Utf8(lista->itemText(k)));
  if (const auto* schede = dynamic_cast<QTabWidget*>(&Oggetto(c)))
    for (int k = 0; k < schede->count(); ++k) voci.push_back(Utf8(schede->tabText(k)));
  return voci;
}

// What the widget shows goes into a copy of the record, whose value is then written as ever.
static std::string ValoreVisto(const Controllo& c, bool intera) {
  QWidget& w = Oggetto(c);
  Controllo visto = c;
  switch (c.riga->genere) {
    case Genere::Cornice: visto.testo = Didascalia(static_cast<QGroupBox&>(w).title()); break;
    case Genere::Etichetta: visto.testo = Utf8(static_cast<QLabel&>(w).text()); break;
    case Genere::Campo: visto.testo = Utf8(static_cast<QLineEdit&>(w).text()); break;
    case Genere::Comando: visto.testo = Didascalia(static_cast<QAbstractButton&>(w).text()); break;
    case Genere::Spunta: visto.scelta = Scelto(c, false); break;
    case Genere::Scelta: return std::to_string(Scelto(c, intera));
    case Genere::Lista:
      visto.voci = VociViste(c);
      visto.scelta = static_cast<QComboBox&>(w).currentIndex();
      break;
    case Genere::Schede:
      Dipingi(c);
      visto.voci = VociViste(c);
      visto.scelta = static_cast<QTabWidget&>(w).currentIndex();
      break;
    case Genere::Barra:
      visto.scelta = static_cast<QScrollBar&>(w).value();
      visto.massimo = static_cast<QScrollBar&>(w).maximum();
      break;
    case Genere::Immagine: visto.tela = static_cast<Quadro&>(w).Mostrata(); break;
  }
  return ValoreControllo(visto, intera);
}

AzioniUtente AzioniConLeMani() { return {Scrivi, Sceglie, Fai, PassaSulBordo, SiVede, SiUsa, ValoreVisto, VociViste}; }
