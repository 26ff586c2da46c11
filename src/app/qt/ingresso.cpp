// app/qt/ingresso.cpp - signals of the widgets, and one filter of the application for what has no signal.
#include "app/qt/ingresso.h"

#include "app/qt/finestre.h"
#include "app/qt/legame.h"
#include "panels/pannelli.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QDialog>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTabWidget>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>

// ---- one event of the user ----

namespace {
struct ComandoInCorso {  // counted out also where it ends for lack of memory
  ComandoInCorso() { ++finestre.comandi; }
  ~ComandoInCorso() { --finestre.comandi; }
  ComandoInCorso(const ComandoInCorso&) = delete;
  ComandoInCorso& operator=(const ComandoInCorso&) = delete;
};
}  // namespace

// Runs what an event does, if nothing runs on this panel and no other panel stands in front.
template <class F>
static void SeLibero(const Legame& l, F fai) {
  if (finestre.comandi > 0 || finestre.occupato || finestre.finita || !Raggiungibile(*l.pannello)) {
    Dipingi(*l.controllo);  // the widget shows again what holds
    return;
  }
  {
    const ComandoInCorso inCorso;
    fai();
  }
  AggiornaTitoli();
}

static void Accade(const Legame& l, Evento e) {
  SeLibero(l, [&l, e] { Scatena(*l.pannello, *l.controllo, e); });
}

// A position that the control cannot take is painted back.
static void Scegli(const Legame& l, int posizione) {
  SeLibero(l, [&l, posizione] { UtenteSceglie(*l.pannello, *l.controllo, posizione); });
  Dipingi(*l.controllo);
}

// ---- fields ----

constexpr const char* AIUTO_PUNTO = "Il separatore decimale è il punto: di «12,5» vale solo 12";

static bool Numerico(const QWidget& w) { return w.property("numerico").toBool(); }

static void Scritto(const Legame& l, const QString& testo) {
  SeLibero(l, [&l, &testo] { UtenteScrive(*l.pannello, *l.controllo, Utf8(testo)); });
  if (Numerico(*l.oggetto) && testo.contains(','))
    QToolTip::showText(l.oggetto->mapToGlobal(QPoint(0, l.oggetto->height())), Testo(AIUTO_PUNTO), l.oggetto);
}

// ---- commands ----

// A shortcut leaves the field that was being filled in, as a click does.
static void Premi(QAbstractButton& b) {
  if (!b.isEnabled() || !b.isVisible()) return;
  b.setFocus(Qt::ShortcutFocusReason);
  b.click();
}

// The letter of a caption presses at once: the toolkit's own press ends a tenth of a second later, behind the keys typed meanwhile.
static bool Lettera(QWidget& w) {
  const Legame* l = LegameDi(&w);
  if (l == nullptr || l->oggetto != &w || l->riga->genere != Genere::Comando) return false;
  Premi(static_cast<QAbstractButton&>(w));
  return true;
}

void CollegaTasto(QAbstractButton& b) {
  const QString tasto = b.property("tasto").toString();
  if (tasto.isEmpty()) return;
  auto* scorciatoia = new QShortcut(QKeySequence(tasto, QKeySequence::PortableText), b.window());
  QObject::connect(scorciatoia, &QShortcut::activated, &b, [&b] { Premi(b); });
  if (b.toolTip().isEmpty()) b.setToolTip(QString("Tasto: %1").arg(scorciatoia->key().toString(QKeySequence::NativeText)));
  else b.setToolTip(QString("%1 (%2)").arg(b.toolTip(), scorciatoia->key().toString(QKeySequence::NativeText)));
}

// Control and the page's number turn to it from anywhere in the window; the next Tab enters the page.
static void CollegaPagine(QTabWidget& schede) {
  for (int k = 0; k < schede.count(); ++k) {
    auto* scorciatoia = new QShortcut(QKeySequence(QString("Ctrl+%1").arg(k + 1), QKeySequence::PortableText), schede.window());
    QObject::connect(scorciatoia, &QShortcut::activated, &schede, [&schede, k] {
      schede.setFocus(Qt::ShortcutFocusReason);
      schede.setCurrentIndex(k);
    });
    schede.setTabToolTip(k, QString("Tasto: %1").arg(scorciatoia->key().toString(QKeySequence::NativeText)));
  }
}

// ---- signals ----

static void CollegaIngresso(Legame& l) {
  const Legame* p = &l;
  QWidget* w = l.oggetto;
  switch (l.riga->genere) {
    case Genere::Campo: {
      auto* campo = static_cast<QLineEdit*>(w);
      QObject::connect(campo, &QLineEdit::textEdited, w, [p](const QString& t) { Scritto(*p, t); });
      QObject::connect(campo, &QLineEdit::returnPressed, w, [p] { Accade(*p, Evento::Invio); });
      break;
    }
    case Genere::Comando:
      QObject::connect(static_cast<QAbstractButton*>(w), &QAbstractButton::clicked, w, [p] { Accade(*p, Evento::Cambio); });
      CollegaTasto(*static_cast<QAbstractButton*>(w));
      break;
    case Genere::Spunta:
      QObject::connect(static_cast<QCheckBox*>(w), &QCheckBox::clicked, w, [p](bool si) { Scegli(*p, si ? 1 : 0); });
      break;
    case Genere::Scelta: QObject::connect(static_cast<QRadioButton*>(w), &QRadioButton::clicked, w, [p] { Scegli(*p, 1); }); break;
    case Genere::Lista: QObject::connect(static_cast<QComboBox*>(w), &QComboBox::activated, w, [p](int k) { Scegli(*p, k); }); break;
    case Genere::Barra: QObject::connect(static_cast<QScrollBar*>(w), &QScrollBar::valueChanged, w, [p](int v) { Scegli(*p, v); }); break;
    case Genere::Schede:
      QObject::connect(static_cast<QTabWidget*>(w), &QTabWidget::currentChanged, w, [p](int k) { Scegli(*p, k); });
      CollegaPagine(*static_cast<QTabWidget*>(w));
      break;
    case Genere::Cornice:
    case Genere::Etichetta:
    case Genere::Immagine: break;
  }
}

void CollegaPannello(const Pannello& p) {
  for (const RigaPannello& r : p.righe)
    for (int i = r.primo; i <= r.ultimo; ++i)
      if (Legame* l = LegameDi(r.controllo[i - r.primo])) CollegaIngresso(*l);
}

// ---- pointer ----

// A disabled control lets the pointer through to what holds it.
static Legame* SottoIlPuntatore(QWidget* w) {
  for (Legame* l = LegameDi(w); l != nullptr; l = LegameDi(l->oggetto->parent()))
    if (l->oggetto->isEnabled()) return l;
  return nullptr;
}

void PassaPuntatore(const Pannello& p, QWidget& finestra, int x, int y) {
  if (finestre.comandi > 0 || finestre.occupato || !Raggiungibile(p)) return;
  const Legame* l = SottoIlPuntatore(finestra.childAt(x, y));
  if (l != nullptr && l->riga->genere != Genere::Schede) Scatena(p, *l->controllo, Evento::Passa);
  else PassaSulPannello(p);
}

static const FinestraPannello* FinestraDelWidget(const QWidget& w) {
  for (const FinestraPannello& f : finestre.elenco)
    if (f.finestra == w.window()) return &f;
  return nullptr;
}

static void Puntatore(const QWidget& w, const QMouseEvent& e) {
  const FinestraPannello* f = FinestraDelWidget(w);
  if (f == nullptr) return;
  const QPoint dove = f->finestra->mapFromGlobal(e.globalPosition().toPoint());
  PassaPuntatore(*f->pannello, *f->finestra, dove.x(), dove.y());
}

// ---- tips of the panels without a status line ----

// What a field is too narrow for; empty: all of it shows.
static QString TestoTagliato(const QWidget& w) {
  const auto* campo = dynamic_cast<const QLineEdit*>(&w);
  if (campo == nullptr) return {};
  const int visibile = campo->width() - 2 * campo->fontMetrics().averageCharWidth();
  return campo->fontMetrics().horizontalAdvance(campo->text()) > visibile ? campo->text() : QString();
}

static bool Suggerimento(QWidget& w, const QHelpEvent& e) {
  const Legame* l = LegameDi(&w);
  if (l == nullptr || !w.toolTip().isEmpty()) return false;
  const RigaPannello& r = *l->riga;
  QString testo;
  if (l->pannello->passa == nullptr) {
    const std::size_t k = static_cast<std::size_t>(l->controllo->indice - r.primo);
    if (r.statoDi != nullptr) testo = Testo(r.statoDi(l->controllo->indice));
    else if (r.stato.uno != nullptr) testo = Testo(r.stato.uno);
    else if (k < r.stato.voci.size()) testo = Testo(r.stato.voci[k]);
  }
  if (testo.isEmpty()) testo = TestoTagliato(w);
  if (testo.isEmpty() && Numerico(w)) testo = "Il separatore decimale è il punto";
  if (testo.isEmpty()) return false;
  QToolTip::showText(e.globalPos(), testo, &w);
  return true;
}

// ---- load list: wheel and arrow keys ----

static QScrollBar* BarraVicina(const QWidget& w) {
  for (const QWidget* c = w.parentWidget(); c != nullptr && !c->isWindow(); c = c->parentWidget())
    for (QScrollBar* b : c->findChildren<QScrollBar*>(Qt::FindDirectChildrenOnly))
      if (LegameDi(b) != nullptr) return b;
  return nullptr;
}

static bool Rotella(const QWidget& w, QWheelEvent& e) {
  if (dynamic_cast<const QScrollBar*>(&w) != nullptr) return false;
  if (const auto* lista = dynamic_cast<const QComboBox*>(&w); lista != nullptr && !lista->hasFocus()) return true;  // no choice by accident
  QScrollBar* barra = BarraVicina(w);
  if (barra == nullptr || !barra->isEnabled() || !barra->isVisible() || e.angleDelta().y() == 0) return false;
  barra->setValue(barra->value() + (e.angleDelta().y() < 0 ? 1 : -1));
  return true;
}

// Up and down move along the column of a load field; at the ends of the screen's rows the list scrolls.
static bool Freccia(const Legame& l, int verso) {
  QScrollBar* barra = BarraVicina(*l.oggetto);
  if (barra == nullptr || !l.riga->indicizzato) return false;
  const int altro = l.controllo->indice + verso;
  if (altro >= l.riga->primo && altro <= l.riga->ultimo) {
    const Legame* vicino = LegameDi(l.riga->controllo[altro - l.riga->primo]);
    if (vicino != nullptr && vicino->oggetto->isVisible()) vicino->oggetto->setFocus(Qt::OtherFocusReason);
    return true;
  }
  if (barra->isEnabled()) barra->setValue(barra->value() + verso);
  static_cast<QLineEdit*>(l.oggetto)->selectAll();
  return true;
}

static bool Pagina(const QWidget& w, int verso) {
  QScrollBar* barra = BarraVicina(w);
  if (barra == nullptr || !barra->isEnabled()) return false;
  barra->setValue(barra->value() + verso * barra->pageStep());
  return true;
}

static bool Tasto(QWidget& w, const QKeyEvent& e) {
  const Legame* l = LegameDi(&w);
  if (l == nullptr || l->oggetto != &w) return false;
  if (e.key() == Qt::Key_Return || e.key() == Qt::Key_Enter) {
    auto* comando = dynamic_cast<QAbstractButton*>(&w);
    if (comando == nullptr || l->riga->genere != Genere::Comando) return false;
    comando->click();
    return true;
  }
  if (l->riga->genere != Genere::Campo || e.modifiers() != Qt::NoModifier) return false;
  switch (e.key()) {
    case Qt::Key_Up: return Freccia(*l, -1);
    case Qt::Key_Down: return Freccia(*l, +1);
    case Qt::Key_PageUp: return Pagina(w, -1);
    case Qt::Key_PageDown: return Pagina(w, +1);
    default: return false;
  }
}

// ---- focus ----

// Another window in front, a menu or a list of completions neither takes a field's focus nor gives it back.
static bool FuocoDiPassaggio(Qt::FocusReason causa) {
  return causa == Qt::ActiveWindowFocusReason || causa == Qt::PopupFocusReason || causa == Qt::MenuBarFocusReason;
}

static Legame* CampoDelPannello(QWidget& w) {
  Legame* l = LegameDi(&w);
  return l != nullptr && l->oggetto == &w && l->riga->genere == Genere::Campo ? l : nullptr;
}

// All of it is selected: with the keyboard at once, with the mouse behind the press that brings the focus; never over what was typed since.
static void FuocoPreso(QWidget& w, Qt::FocusReason causa) {
  if (CampoDelPannello(w) == nullptr || FuocoDiPassaggio(causa)) return;
  auto* campo = static_cast<QLineEdit*>(&w);
  campo->selectAll();
  if (causa != Qt::MouseFocusReason) return;
  const QPointer<QLineEdit> p = campo;
  QTimer::singleShot(0, campo, [p, testo = campo->text()] {
    if (p && p->hasFocus() && p->text() == testo) p->selectAll();
  });
}

static void FuocoPerso(QWidget& w, Qt::FocusReason causa) {
  const Legame* l = CampoDelPannello(w);
  if (l == nullptr || FuocoDiPassaggio(causa)) return;
  static_cast<QLineEdit&>(w).setCursorPosition(0);  // of a long text the head shows
  if (finestre.comandi == 0) Accade(*l, Evento::Invio);
}

// ---- the filter ----

// Escape closes a dialog as its cross does; the main window stays.
static bool Fuga(QWidget& w, const QKeyEvent& e) {
  const FinestraPannello* f = e.key() == Qt::Key_Escape ? FinestraDelWidget(w) : nullptr;
  if (f == nullptr || f->finestra != &w || dynamic_cast<QDialog*>(&w) == nullptr) return false;
  if (finestre.comandi == 0) ChiudiConLaCroce(*f->pannello);
  return true;
}

static bool DellUtente(QEvent::Type t) {
  switch (t) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::Wheel:
    case QEvent::Close: return true;
    default: return false;
  }
}

static bool Chiusura(QWidget& w, QEvent& e) {
  const FinestraPannello* f = FinestraDelWidget(w);
  if (f == nullptr || f->finestra != &w || finestre.finita) return false;
  e.ignore();
  if (finestre.comandi == 0) ChiudiConLaCroce(*f->pannello);
  return true;
}

static bool Filtra(QWidget& w, QEvent& e) {
  switch (e.type()) {
    case QEvent::MouseMove: Puntatore(w, static_cast<QMouseEvent&>(e)); return false;
    case QEvent::MouseButtonDblClick: {
      const Legame* l = LegameDi(&w);
      if (l == nullptr || l->riga->doppio == nullptr || !l->oggetto->isEnabled()) return false;
      Accade(*l, Evento::Doppio);
      return true;
    }
    case QEvent::MouseButtonRelease: {
      const Legame* l = LegameDi(&w);
      const bool figura = l != nullptr && (l->riga->genere == Genere::Immagine || l->riga->genere == Genere::Etichetta);
      if (figura && l->riga->cambio != nullptr && l->oggetto->isEnabled()) Accade(*l, Evento::Cambio);
      return false;
    }
    case QEvent::Shortcut: return Lettera(w);
    case QEvent::KeyPress: return Tasto(w, static_cast<QKeyEvent&>(e)) || Fuga(w, static_cast<QKeyEvent&>(e));
    case QEvent::Wheel: return FinestraDelWidget(w) != nullptr && Rotella(w, static_cast<QWheelEvent&>(e));
    case QEvent::FocusIn: FuocoPreso(w, static_cast<QFocusEvent&>(e).reason()); return false;
    case QEvent::FocusOut: FuocoPerso(w, static_cast<QFocusEvent&>(e).reason()); return false;
    case QEvent::ToolTip: return Suggerimento(w, static_cast<QHelpEvent&>(e));
    case QEvent::Close: return Chiusura(w, e);
    default: return false;
  }
}

namespace {
struct Filtro : QObject {
  using QObject::QObject;
  bool eventFilter(QObject* o, QEvent* e) override {
    if (finestre.occupato && DellUtente(e->type())) return true;
    return o->isWidgetType() && Filtra(*static_cast<QWidget*>(o), *e);
  }
};
}  // namespace

void SpiaIngresso() {
  static constexpr const char* NOME = "SpiaIngresso";
  if (qApp->findChild<QObject*>(NOME) != nullptr) return;
  auto* filtro = new Filtro(qApp);
  filtro->setObjectName(NOME);
  qApp->installEventFilter(filtro);
}
