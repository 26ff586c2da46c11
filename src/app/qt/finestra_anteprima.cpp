// app/qt/finestra_anteprima.cpp - the preview's window: the wheel zooms at the pointer, dragging moves the sheet.
#include "app/qt/anteprima.h"
#include "app/qt/finestre.h"
#include "app/qt/pitture.h"
#include "core/file.h"
#include "core/piattaforma.h"
#include "drawing/formats/formati.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QToolBar>
#include <QWheelEvent>

#include <cmath>

constexpr double PASSO_ZOOM = 1.25, MIN_ZOOM = 0.2, MAX_ZOOM = 60;  // 1: the whole sheet

namespace {
struct Lavagna : QWidget {
  FoglioVisto foglio;
  double zoom = 1;
  QPointF spostamento;  // of the sheet's centre from the window's, in pixels
  QPointF presa;

  QTransform Vista() const {
    QTransform v;
    v.translate(spostamento.x() + width() / 2.0, spostamento.y() + height() / 2.0);
    v.scale(zoom, zoom);
    v.translate(-width() / 2.0, -height() / 2.0);
    const QRectF carta(foglio.carta.left(), foglio.carta.bottom(), foglio.carta.width(), -foglio.carta.height());
    return VistaSu(carta, QRectF(rect()).adjusted(12, 12, -12, -12)) * v;
  }
  void Adatta() {
    zoom = 1;
    spostamento = {};
    update();
  }
  // The point of the sheet under `fermo` stays where it is.
  void Ingrandisci(double fattore, const QPointF& fermo) {
    const double nuovo = std::clamp(zoom * fattore, MIN_ZOOM, MAX_ZOOM);
    const QPointF centro(width() / 2.0, height() / 2.0);
    spostamento = (fermo - centro) - (fermo - centro - spostamento) * (nuovo / zoom);
    zoom = nuovo;
    update();
  }
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.fillRect(rect(), palette().color(QPalette::Dark));
    p.setRenderHint(QPainter::Antialiasing);
    DipingiFoglio(p, foglio, Vista());
  }
  void wheelEvent(QWheelEvent* e) override { Ingrandisci(std::pow(PASSO_ZOOM, e->angleDelta().y() / 120.0), e->position()); }
  void mousePressEvent(QMouseEvent* e) override {
    presa = e->position();
    setCursor(Qt::ClosedHandCursor);
  }
  void mouseReleaseEvent(QMouseEvent*) override { setCursor(Qt::OpenHandCursor); }
  void mouseDoubleClickEvent(QMouseEvent*) override { Adatta(); }
  void mouseMoveEvent(QMouseEvent* e) override {
    if (!(e->buttons() & (Qt::LeftButton | Qt::MiddleButton))) return;
    spostamento += e->position() - presa;
    presa = e->position();
    update();
  }
  QPointF Centro() const { return {width() / 2.0, height() / 2.0}; }
};
}  // namespace

// ---- files ----

static bool SalvaFoglioSvg(const FoglioVisto&, const QString& file) { return EsportaDisegno(Utf8(file), 2, "SVG"); }

namespace {
struct FormatoAnteprima {
  const char* voce;
  const char* filtro;
  const char* estensione;
  const char* tasto;
  bool (*salva)(const FoglioVisto& f, const QString& file);
};
}  // namespace

// clang-format off
static constexpr FormatoAnteprima FORMATI_ANTEPRIMA[] = {
  { "PDF...", "Documento PDF|*.pdf", "pdf", "Ctrl+P", SalvaFoglioPdf },
  { "PNG...", "Immagine PNG|*.png", "png", "Ctrl+N", SalvaFoglioPng },
  { "SVG...", "Disegno SVG|*.svg", "svg", "Ctrl+G", SalvaFoglioSvg },
};
// clang-format on

// What is saved is the node as it stands, and the window shows it.
static void SalvaAnteprima(const FormatoAnteprima& f, const FoglioVisto& foglio) {
  if (!ApriAnteprima()) return;
  RichiestaFile r;
  r.salva = true;
  r.titolo = "Salva l'anteprima del disegno";
  r.filtro = f.filtro;
  r.cartella = suite.DirLavoro;
  r.nomeIniziale = nodo.NomeNodo + "." + f.estensione;
  r.estensione = f.estensione;
  std::string percorso;
  int filtro = 1;
  if (!piattaforma.scegliFile(r, percorso, filtro)) return;
  if (!f.salva(foglio, Testo(RisolviPercorso(percorso))))
    Messaggio("Il file " + percorso + " non è stato scritto.", "ERRORE", Icona::Critica);
}

// ---- the window ----

static QMainWindow* NuovaAnteprima() {
  auto* f = new QMainWindow;
  f->setObjectName("Anteprima");
  f->setAttribute(Qt::WA_DeleteOnClose);
  f->setWindowIcon(IconaProgramma());
  auto* lavagna = new Lavagna;
  lavagna->setCursor(Qt::OpenHandCursor);
  lavagna->setMinimumSize(320, 240);
  f->setCentralWidget(lavagna);
  QToolBar* barra = f->addToolBar("Comandi");
  barra->setMovable(false);
  barra->setContextMenuPolicy(Qt::PreventContextMenu);
  const auto comando = [f, barra](const char* nome, const char* tasto, auto fai) {
    QAction* a = barra->addAction(Testo(nome));
    a->setShortcut(QKeySequence(QString(tasto), QKeySequence::PortableText));
    a->setToolTip(QString("%1 (%2)").arg(Testo(nome), a->shortcut().toString(QKeySequence::NativeText)));
    QObject::connect(a, &QAction::triggered, f, fai);
  };
  comando("Adatta", "Ctrl+0", [lavagna] { lavagna->Adatta(); });
  comando("Ingrandisci", "Ctrl++", [lavagna] { lavagna->Ingrandisci(PASSO_ZOOM, lavagna->Centro()); });
  comando("Riduci", "Ctrl+-", [lavagna] { lavagna->Ingrandisci(1 / PASSO_ZOOM, lavagna->Centro()); });
  comando("Aggiorna", "F5", [] { ApriAnteprima(); });
  barra->addSeparator();
  barra->addWidget(new QLabel(" Salva: "));
  for (const FormatoAnteprima& formato : FORMATI_ANTEPRIMA)
    comando(formato.voce, formato.tasto, [lavagna, &formato] { SalvaAnteprima(formato, lavagna->foglio); });
  barra->addSeparator();
  comando("Chiudi", "Esc", [f] { f->close(); });
  const QSize schermo = f->screen()->availableSize();
  f->resize(std::min(1100, schermo.width() - 40), std::min(720, schermo.height() - 60));
  return f;
}

static QMainWindow* AnteprimaAperta() {
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w->objectName() == "Anteprima") return static_cast<QMainWindow*>(w);
  return nullptr;
}

bool ApriAnteprima() {
  if (finestre.comandi > 0 || finestre.occupato || finestre.finita) return false;
  FoglioVisto foglio;
  if (!DisegnaFoglioVisto(foglio)) return false;
  QMainWindow* f = AnteprimaAperta();
  if (f == nullptr) f = NuovaAnteprima();
  f->setWindowTitle(Testo("Anteprima del disegno - " + nodo.NomeNodo));
  auto* lavagna = static_cast<Lavagna*>(f->centralWidget());
  lavagna->foglio = std::move(foglio);
  lavagna->update();
  f->show();
  f->raise();
  f->activateWindow();
  return true;
}
