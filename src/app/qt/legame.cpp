// app/qt/legame.cpp - one row a kind: which widgets serve it, how it is painted.
#include "app/qt/legame.h"

#include "app/qt/quadro.h"
#include "app/qt/testi.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

// ---- texts and colours ----

// A caption with the letter that Alt reaches; an ampersand of its own stays one.
static QString Didascalia(const QWidget& w, const std::string& testo) {
  QString t = Testo(testo);
  t.replace('&', "&&");
  const QString lettera = w.property("mnemonica").toString();
  const qsizetype dove = lettera.isEmpty() ? -1 : t.indexOf(lettera, 0, Qt::CaseInsensitive);
  if (dove >= 0) t.insert(dove, '&');
  return t;
}

static QColor Colore(std::int32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

static QColor Leggibile(const QColor& sfondo) { return qGray(sfondo.rgb()) > 140 ? QColor(Qt::black) : QColor(Qt::white); }

static void DipingiColori(QWidget& w, const Controllo& c) {
  if (c.riga->genere == Genere::Schede || (c.coloreSfondo < 0 && c.coloreTesto < 0)) return;
  QPalette p = w.palette();
  if (c.coloreSfondo >= 0) {
    const QColor sfondo = Colore(c.coloreSfondo);
    const QColor testo = c.coloreTesto >= 0 ? Colore(c.coloreTesto) : Leggibile(sfondo);
    for (const QPalette::ColorRole r : {QPalette::Window, QPalette::Base}) p.setColor(r, sfondo);
    for (const QPalette::ColorRole r : {QPalette::WindowText, QPalette::Text}) p.setColor(r, testo);
    w.setAutoFillBackground(true);
  } else {
    for (const QPalette::ColorRole r : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) p.setColor(r, Colore(c.coloreTesto));
  }
  w.setPalette(p);
}

// ---- painting, by kind ----

static void DipingiCornice(Legame& l) { static_cast<QGroupBox*>(l.oggetto)->setTitle(Didascalia(*l.oggetto, l.controllo->testo)); }

static void DipingiEtichetta(Legame& l) { static_cast<QLabel*>(l.oggetto)->setText(Testo(l.controllo->testo)); }

static void DipingiCampo(Legame& l) {
  auto& w = *static_cast<QLineEdit*>(l.oggetto);
  const QString t = Testo(l.controllo->testo);
  if (w.text() == t) return;
  w.setText(t);
  if (!w.hasFocus()) w.setCursorPosition(0);  // of a long text the head shows
}

static void DipingiComando(Legame& l) { static_cast<QAbstractButton*>(l.oggetto)->setText(Didascalia(*l.oggetto, l.controllo->testo)); }

static void DipingiSpunta(Legame& l) {
  auto& w = *static_cast<QCheckBox*>(l.oggetto);
  w.setText(Didascalia(w, l.controllo->testo));
  w.setChecked(l.controllo->scelta > 0);
}

// An exclusive group refuses to have no entry chosen, which a record may. Tab comes to the chosen entry, from which the arrows choose.
static void DipingiScelta(Legame& l) {
  auto& w = *static_cast<QRadioButton*>(l.oggetto);
  w.setText(Didascalia(w, l.controllo->testo));
  l.gruppo->setExclusive(false);
  w.setChecked(l.controllo->scelta > 0);
  l.gruppo->setExclusive(true);
  const QAbstractButton* scelto = l.gruppo->checkedButton();
  for (QAbstractButton* b : l.gruppo->buttons()) b->setFocusPolicy(scelto == nullptr || b == scelto ? Qt::StrongFocus : Qt::ClickFocus);
}

static void DipingiLista(Legame& l) {
  auto& w = *static_cast<QComboBox*>(l.oggetto);
  if (l.voci != l.controllo->voci) {
    l.voci = l.controllo->voci;
    QStringList voci;
    for (const std::string& v : l.voci) voci += Testo(v);
    w.clear();
    w.addItems(voci);
  }
  w.setCurrentIndex(l.controllo->scelta);
}

static void DipingiBarra(Legame& l) {
  auto& w = *static_cast<QScrollBar*>(l.oggetto);
  w.setRange(l.controllo->minimo, l.controllo->massimo);
  w.setValue(l.controllo->scelta);
}

// The colour is that of the strip behind the tabs; the pages keep the desktop's.
static void DipingiStriscia(QTabWidget& w, const QColor& colore) {
  const QColor desktop = QGuiApplication::palette().color(QPalette::Window);
  QPalette striscia, pagina;
  striscia.setColor(QPalette::Window, colore);
  pagina.setColor(QPalette::Window, desktop);
  w.setPalette(striscia);
  w.setAutoFillBackground(true);
  for (int k = 0; k < w.count(); ++k) w.widget(k)->setPalette(pagina);
}

static void DipingiSchede(Legame& l) {
  auto& w = *static_cast<QTabWidget*>(l.oggetto);
  for (int k = 0; k < w.count() && k < static_cast<int>(l.controllo->voci.size()); ++k)
    w.setTabText(k, Testo(l.controllo->voci[static_cast<std::size_t>(k)]));
  w.setCurrentIndex(l.controllo->scelta);
  if (l.controllo->coloreSfondo >= 0) DipingiStriscia(w, Colore(l.controllo->coloreSfondo));
}

static void DipingiImmagine(Legame& l) { static_cast<Quadro*>(l.oggetto)->Mostra(l.controllo->tela); }

template <class T>
static bool Di(const QWidget& w) {
  return dynamic_cast<const T*>(&w) != nullptr;
}

namespace {
struct Classe {
  Genere genere;
  bool (*serve)(const QWidget& w);
  void (*dipingi)(Legame& l);
};
}  // namespace

// clang-format off
static constexpr Classe CLASSI[] = {
  { Genere::Cornice,   Di<QGroupBox>,       DipingiCornice },
  { Genere::Etichetta, Di<QLabel>,          DipingiEtichetta },
  { Genere::Campo,     Di<QLineEdit>,       DipingiCampo },
  { Genere::Comando,   Di<QAbstractButton>, DipingiComando },
  { Genere::Spunta,    Di<QCheckBox>,       DipingiSpunta },
  { Genere::Scelta,    Di<QRadioButton>,    DipingiScelta },
  { Genere::Lista,     Di<QComboBox>,       DipingiLista },
  { Genere::Barra,     Di<QScrollBar>,      DipingiBarra },
  { Genere::Schede,    Di<QTabWidget>,      DipingiSchede },
  { Genere::Immagine,  Di<Quadro>,          DipingiImmagine },
};
// clang-format on

static const Classe& ClasseDi(Genere g) {
  for (const Classe& c : CLASSI)
    if (c.genere == g) return c;
  return CLASSI[0];
}

// ---- names and differences ----

QString NomeOggetto(const RigaPannello& r, int indice) {
  return r.indicizzato ? QString("%1_%2").arg(QLatin1String(r.nome)).arg(indice) : QString::fromLatin1(r.nome);
}

// What serves the looks alone, and the toolkit's own parts of a widget.
static bool DiSoloAspetto(const QWidget& w) {
  const QString nome = w.objectName();
  return nome.isEmpty() || nome.startsWith('_') || nome.startsWith("qt_") || dynamic_cast<const QTabBar*>(w.parentWidget()) != nullptr;
}

QStringList DifferenzeForma(const Pannello& p, const QWidget& forma) {
  QStringList differenze, nomi;
  const QString pannello = QString::fromLatin1(p.nome);
  for (const RigaPannello& r : p.righe)
    for (int i = r.primo; i <= r.ultimo; ++i) {
      const QString nome = NomeOggetto(r, i);
      nomi += nome;
      const QList<QWidget*> trovati = forma.findChildren<QWidget*>(nome);
      if (trovati.isEmpty()) differenze += pannello + "." + nome + ": manca nella finestra";
      else if (trovati.size() > 1) differenze += pannello + "." + nome + ": più di uno nella finestra";
      else if (!ClasseDi(r.genere).serve(*trovati[0])) differenze += pannello + "." + nome + ": di un altro genere nella finestra";
    }
  for (const QWidget* w : forma.findChildren<QWidget*>())
    if (!DiSoloAspetto(*w) && !nomi.contains(w->objectName()))
      differenze += pannello + "." + w->objectName() + ": non è un controllo del pannello";
  return differenze;
}

// ---- the ties ----

static void PreparaOggetto(Legame& l) {
  const Genere g = l.riga->genere;
  if (g != Genere::Cornice && g != Genere::Schede && !l.oggetto->property("cede").toBool()) {
    QSizePolicy misura = l.oggetto->sizePolicy();
    misura.setRetainSizeWhenHidden(true);  // a row that hides leaves its place
    l.oggetto->setSizePolicy(misura);
  }
  if (auto* etichetta = dynamic_cast<QLabel*>(l.oggetto)) etichetta->setTextFormat(Qt::PlainText);
  if (auto* lista = dynamic_cast<QComboBox*>(l.oggetto)) {
    lista->setMaxVisibleItems(24);
    lista->setFocusPolicy(Qt::StrongFocus);  // a wheel that brought the focus would choose with it
  }
  l.oggetto->setMouseTracking(true);
}

void LegaPannello(const Pannello& p, QWidget& forma) {
  for (const RigaPannello& r : p.righe) {
    QButtonGroup* gruppo = r.genere == Genere::Scelta ? new QButtonGroup(&forma) : nullptr;
    for (int i = r.primo; i <= r.ultimo; ++i) {
      Controllo& c = r.controllo[i - r.primo];
      Legame& l = legami.perControllo[&c];
      l = {&p, &r, &c, forma.findChild<QWidget*>(NomeOggetto(r, i)), forma.findChild<QWidget*>("_di_" + NomeOggetto(r, i)), gruppo, {}};
      legami.perOggetto[l.oggetto] = &l;
      if (gruppo != nullptr) gruppo->addButton(static_cast<QAbstractButton*>(l.oggetto));
      PreparaOggetto(l);
    }
  }
}

void SciogliLegami() { legami = {}; }

Legame* LegameDi(const Controllo& c) {
  const auto dove = legami.perControllo.find(&c);
  return dove == legami.perControllo.end() ? nullptr : &dove->second;
}

Legame* LegameDi(const QObject* o) {
  for (; o != nullptr; o = o->parent()) {
    const auto dove = legami.perOggetto.find(o);
    if (dove != legami.perOggetto.end()) return dove->second;
    if (o->isWidgetType() && static_cast<const QWidget*>(o)->isWindow()) return nullptr;
  }
  return nullptr;
}

void Dipingi(const Controllo& c) {
  Legame* l = LegameDi(c);
  if (l == nullptr) return;
  QWidget& w = *l->oggetto;
  const QSignalBlocker muto(w);
  DipingiColori(w, c);
  ClasseDi(l->riga->genere).dipingi(*l);
  if (w.isEnabledTo(w.parentWidget()) != c.abilitato) w.setEnabled(c.abilitato);
  if (l->unita != nullptr) l->unita->setEnabled(c.abilitato);
  if (w.isHidden() == c.visibile) w.setVisible(c.visibile);
}

void DipingiPannello(const Pannello& p) {
  for (const RigaPannello& r : p.righe)
    for (int i = r.primo; i <= r.ultimo; ++i) Dipingi(r.controllo[i - r.primo]);
}
