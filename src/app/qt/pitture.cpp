// app/qt/pitture.cpp - each drawing in its own units, y downward, on one sheet that knows the theme's colours.
#include "app/qt/pitture.h"

#include <QAbstractButton>
#include <QPainterPath>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {
struct FoglioPittura {
  QPainter& p;
  QTransform v;
  QColor linea, quota, ferro, piastra;
};
}  // namespace

QTransform VistaSu(const QRectF& r, const QRectF& posto) {
  if (r.width() == 0 || r.height() == 0) return {};
  const double s = std::min(posto.width() / std::fabs(r.width()), posto.height() / std::fabs(r.height()));
  QTransform v;
  v.translate(posto.center().x(), posto.center().y());
  v.scale(r.width() < 0 ? -s : s, r.height() < 0 ? -s : s);
  v.translate(-r.center().x(), -r.center().y());
  return v;
}

// ---- strokes ----

static void Linea(FoglioPittura& f, double x1, double y1, double x2, double y2) {
  f.p.drawLine(f.v.map(QPointF(x1, y1)), f.v.map(QPointF(x2, y2)));
}

static void Penna(FoglioPittura& f, const QColor& c, double spessore = 1.4, Qt::PenStyle stile = Qt::SolidLine) {
  f.p.setPen(QPen(c, spessore, stile, Qt::RoundCap, Qt::RoundJoin));
}

static void Riempi(FoglioPittura& f, const QPainterPath& forma, const QColor& c) {
  f.p.setBrush(c);
  f.p.drawPath(f.v.map(forma));
  f.p.setBrush(Qt::NoBrush);
}

static void Rettangolo(FoglioPittura& f, double x, double y, double l, double h, const QColor& c) {
  QPainterPath r;
  r.addRect(x, y, l, h);
  Riempi(f, r, c);
}

// A text centred on a point, moved by pixels.
static void Scritta(FoglioPittura& f, double x, double y, const QString& t, double dx = 0, double dy = 0) {
  const QPointF c = f.v.map(QPointF(x, y)) + QPointF(dx, dy);
  f.p.drawText(QRectF(c.x() - 100, c.y() - 20, 200, 40), Qt::AlignCenter, t);
}

static void Punta(FoglioPittura& f, const QPointF& dove, const QPointF& verso) {
  const double l = std::hypot(verso.x(), verso.y());
  if (l < 1) return;
  const QPointF u = verso / l, n(-u.y(), u.x());
  f.p.setBrush(f.quota);
  f.p.drawPolygon(QPolygonF{dove, dove + 7 * u + 2.5 * n, dove + 7 * u - 2.5 * n});
  f.p.setBrush(Qt::NoBrush);
}

// A measure between two points of the same abscissa or ordinate, its name beside the line. A short one has its arrows outside.
static void Quota(FoglioPittura& f, double x1, double y1, double x2, double y2, const QString& nome) {
  Penna(f, f.quota, 1);
  const QPointF a = f.v.map(QPointF(x1, y1)), b = f.v.map(QPointF(x2, y2));
  const double l = std::hypot(b.x() - a.x(), b.y() - a.y());
  f.p.drawLine(a, b);
  const bool stretta = l < 20;
  Punta(f, a, stretta ? a - b : b - a);
  Punta(f, b, stretta ? b - a : a - b);
  const double larga = f.p.fontMetrics().horizontalAdvance(nome);
  if (y1 == y2) Scritta(f, (x1 + x2) / 2, y1, nome, 0, -f.p.fontMetrics().height() * 0.62);
  else Scritta(f, x1, (y1 + y2) / 2, nome, larga / 2 + 6, 0);
}

static void Riferimento(FoglioPittura& f, double x1, double y1, double x2, double y2) {
  QColor c = f.quota;
  c.setAlpha(130);
  Penna(f, c, 1, Qt::DotLine);
  Linea(f, x1, y1, x2, y2);
}

// ---- I section and plates ----

// Outline of an I section: centre, height, width, web, flange, fillet.
static QPainterPath Profilo(double x, double y, double h, double b, double a, double e, double r) {
  QPainterPath s;
  const double H = h / 2, B = b / 2, A = a / 2;
  s.moveTo(x - B, y - H);
  s.lineTo(x + B, y - H);
  s.lineTo(x + B, y - H + e);
  s.lineTo(x + A + r, y - H + e);
  s.quadTo(x + A, y - H + e, x + A, y - H + e + r);
  s.lineTo(x + A, y + H - e - r);
  s.quadTo(x + A, y + H - e, x + A + r, y + H - e);
  s.lineTo(x + B, y + H - e);
  s.lineTo(x + B, y + H);
  s.lineTo(x - B, y + H);
  s.lineTo(x - B, y + H - e);
  s.lineTo(x - A - r, y + H - e);
  s.quadTo(x - A, y + H - e, x - A, y + H - e - r);
  s.lineTo(x - A, y - H + e + r);
  s.quadTo(x - A, y - H + e, x - A - r, y - H + e);
  s.lineTo(x - B, y - H + e);
  s.closeSubpath();
  return s;
}

static void Tipologia(FoglioPittura& f, bool nervature) {
  Penna(f, f.linea);
  Rettangolo(f, 110, 110, 1220, 1220, f.piastra);
  if (nervature) {
    for (const double x : {495.0, 905.0}) Rettangolo(f, x, 110, 40, 1220, f.ferro);
    for (const double y : {470.0, 930.0})
      for (const double x : {110.0, 945.0}) Rettangolo(f, x, y, 385, 40, f.ferro);
  }
  Riempi(f, Profilo(720, 720, 500, 370, 50, 60, 50), f.ferro);
}
static void Tipo1(FoglioPittura& f) { Tipologia(f, false); }
static void Tipo2(FoglioPittura& f) { Tipologia(f, true); }

// Y points up and Z to the right, as on the plan.
static void Assi(FoglioPittura& f, double x, double y, double l) {
  Penna(f, f.quota, 1);
  Linea(f, x, y, x + l, y);
  Linea(f, x, y, x, y - l);
  Punta(f, f.v.map(QPointF(x + l, y)), QPointF(-1, 0) * 10);
  Punta(f, f.v.map(QPointF(x, y - l)), QPointF(0, 1) * 10);
  Scritta(f, x + l, y, "Z", 9, 0);
  Scritta(f, x, y - l, "Y", 0, -9);
}

// Anchors stand at 685, 1511 and 361, 1187: the circles are the program's strokes.
static void SchemaTirafondi(FoglioPittura& f) {
  Penna(f, f.linea);
  Rettangolo(f, 505, 181, 1186, 1186, f.piastra);
  Riempi(f, Profilo(1098, 774, 480, 380, 50, 60, 50), f.ferro);
  for (const double x : {505.0, 685.0, 1511.0, 1691.0}) Riferimento(f, x, 60, x, 181);
  for (const double x : {685.0, 1511.0}) Riferimento(f, x, 181, x, 361);
  for (const double y : {181.0, 361.0, 1187.0, 1367.0}) Riferimento(f, 1691, y, 1850, y);
  for (const double y : {361.0, 1187.0}) Riferimento(f, 1511, y, 1691, y);
  Quota(f, 505, 95, 685, 95, "Dz1");
  Quota(f, 1511, 95, 1691, 95, "Dz2");
  Quota(f, 1810, 1187, 1810, 1367, "Dy1");
  Quota(f, 1810, 181, 1810, 361, "Dy2");
  Assi(f, 150, 1400, 260);
}

static void SchemaPiastra(FoglioPittura& f) {
  Penna(f, f.linea);
  Rettangolo(f, 300, 260, 1000, 1000, f.piastra);
  Riempi(f, Profilo(800, 760, 480, 400, 50, 60, 50), f.ferro);
  for (const double x : {300.0, 1300.0}) Riferimento(f, x, 100, x, 260);
  for (const double y : {260.0, 1260.0}) Riferimento(f, 1300, y, 1500, y);
  for (const double x : {300.0, 600.0}) Riferimento(f, x, 1000, x, 1420);
  Quota(f, 300, 140, 1300, 140, "Lato Z");
  Quota(f, 1460, 260, 1460, 1260, "Lato Y");
  Quota(f, 300, 1390, 600, 1390, "Margine Z");
  Quota(f, 700, 1000, 700, 1260, "Margine Y");
  Assi(f, 1610, 1400, 130);
}

static void SchemaSezione(FoglioPittura& f) {
  Penna(f, f.linea);
  Riempi(f, Profilo(500, 560, 800, 620, 70, 100, 110), f.ferro);
  for (const double y : {160.0, 960.0}) Riferimento(f, 810, y, 990, y);
  for (const double x : {190.0, 810.0}) Riferimento(f, x, 60, x, 160);
  Quota(f, 950, 160, 950, 960, "h");
  Quota(f, 190, 90, 810, 90, "b");
  Quota(f, 465, 700, 535, 700, "a");
  Quota(f, 260, 860, 260, 960, "e");
  Penna(f, f.quota, 1);
  const QPointF raccordo(567, 292);
  Linea(f, raccordo.x(), raccordo.y(), 690, 400);
  Punta(f, f.v.map(raccordo), f.v.map(QPointF(690, 400)) - f.v.map(raccordo));
  Scritta(f, 690, 400, "r", 9, 6);
}

// ---- rods ----

static void Fondazione(FoglioPittura& f, double fondo) {
  QColor cemento = f.quota;
  cemento.setAlpha(28);
  f.p.setPen(Qt::NoPen);
  Rettangolo(f, 60, 330, 880, fondo - 330, cemento);
  Penna(f, f.linea, 1);
  Linea(f, 60, 330, 940, 330);
  Rettangolo(f, 200, 255, 600, 40, f.piastra);  // base plate, on its mortar
}

static void Dadi(FoglioPittura& f, double x) {
  for (const double y : {185.0, 220.0, 295.0}) Rettangolo(f, x - 55, y, 110, 35, f.ferro);
}

// Form 0: the straight rod with its square plate.
static void TirafondoPiastra(FoglioPittura& f) {
  Fondazione(f, 1340);
  Penna(f, f.linea);
  Rettangolo(f, 475, 90, 50, 1110, f.ferro);
  Dadi(f, 500);
  Rettangolo(f, 350, 960, 300, 40, f.ferro);
  for (const double y : {90.0, 330.0, 1200.0}) Riferimento(f, 525, y, 1130, y);
  Riferimento(f, 160, 1000, 350, 1000);
  for (const double x : {350.0, 650.0}) Riferimento(f, x, 1000, x, 1130);
  Quota(f, 1090, 90, 1090, 330, "L fuori plinto");
  Quota(f, 1090, 330, 1090, 1200, "L");
  Quota(f, 200, 330, 200, 1000, "L1");
  Quota(f, 350, 1110, 650, 1110, "");
  Scritta(f, 650, 1110, "Lato piastra", 8 + f.p.fontMetrics().horizontalAdvance("Lato piastra") / 2.0);
  Quota(f, 700, 960, 700, 1000, "LF");
  Riferimento(f, 500, 1200, 500, 1320);
  Quota(f, 60, 1300, 500, 1300, "Dist. bordo plinto");
}

// Form 1: the hooked rod, which bends to the left.
static void TirafondoUncino(FoglioPittura& f) {
  Fondazione(f, 1260);
  Penna(f, f.linea);
  QPainterPath asta;
  asta.moveTo(575, 90);
  asta.lineTo(625, 90);
  asta.lineTo(625, 1040);
  asta.arcTo(265, 860, 360, 360, 0, -180);
  asta.lineTo(265, 640);
  asta.lineTo(315, 640);
  asta.lineTo(315, 1040);
  asta.arcTo(315, 910, 260, 260, 180, 180);
  asta.closeSubpath();
  Riempi(f, asta, f.ferro);
  Dadi(f, 600);
  for (const double y : {90.0, 330.0, 1220.0}) Riferimento(f, 625, y, 1040, y);
  for (const double y : {640.0, 1040.0}) Riferimento(f, 120, y, 265, y);
  Quota(f, 1000, 90, 1000, 330, "L fuori plinto");
  Quota(f, 1000, 330, 1000, 1220, "L");
  Quota(f, 160, 640, 160, 1040, "L1");
  Quota(f, 60, 480, 600, 480, "Dist. bordo plinto");
  Penna(f, f.quota, 1);
  Linea(f, 445, 1040, 318, 1167);
  Punta(f, f.v.map(QPointF(318, 1167)), QPointF(10, -10));
  Scritta(f, 445, 1040, "R", 0, -10);
}

// ---- line samples ----

static void Campione(FoglioPittura& f, Qt::PenStyle stile) {
  Penna(f, f.linea, 2, stile);
  Linea(f, 0, 5, 100, 5);
}
static void Linea0(FoglioPittura& f) { Campione(f, Qt::SolidLine); }
static void Linea1(FoglioPittura& f) { Campione(f, Qt::DashLine); }
static void Linea2(FoglioPittura& f) { Campione(f, Qt::DotLine); }
static void Linea3(FoglioPittura& f) { Campione(f, Qt::DashDotLine); }
static void Linea4(FoglioPittura& f) { Campione(f, Qt::DashDotDotLine); }

namespace {
struct RigaPittura {
  const char* nome;
  QRectF riquadro;
  void (*dipingi)(FoglioPittura& f);
};
}  // namespace

// clang-format off
static const RigaPittura PITTURE[] = {
  { "tipo1",     QRectF(0, 0, 1440, 1440),   Tipo1 },
  { "tipo2",     QRectF(0, 0, 1440, 1440),   Tipo2 },
  { "tirafondi", QRectF(0, 0, 2196, 1548),   SchemaTirafondi },
  { "piastra",   QRectF(240, 40, 1580, 1440), SchemaPiastra },
  { "sezione",   QRectF(120, 0, 960, 1000),  SchemaSezione },
  { "asta1",     QRectF(40, 40, 1470, 1320), TirafondoPiastra },
  { "asta2",     QRectF(40, 40, 1400, 1240), TirafondoUncino },
  { "linea0",    QRectF(0, 0, 100, 10),      Linea0 },
  { "linea1",    QRectF(0, 0, 100, 10),      Linea1 },
  { "linea2",    QRectF(0, 0, 100, 10),      Linea2 },
  { "linea3",    QRectF(0, 0, 100, 10),      Linea3 },
  { "linea4",    QRectF(0, 0, 100, 10),      Linea4 },
};
// clang-format on

void DipingiPittura(QPainter& p, const QString& nome, const QWidget& w, const QRectF& posto) {
  const QPalette& c = w.palette();
  const bool scuro = qGray(c.color(QPalette::Window).rgb()) < 128;
  for (const RigaPittura& r : PITTURE) {
    if (nome != QLatin1String(r.nome)) continue;
    FoglioPittura f{p,
                    VistaSu(r.riquadro, posto),
                    c.color(QPalette::WindowText),
                    scuro ? QColor(120, 190, 255) : QColor(20, 80, 150),
                    scuro ? QColor(82, 116, 156) : QColor(176, 196, 216),
                    scuro ? QColor(88, 94, 102) : QColor(236, 238, 240)};
    if (!w.isEnabled()) p.setOpacity(0.45);
    p.save();
    r.dipingi(f);
    p.restore();
    p.setPen(f.linea);
  }
}

// ---- icons ----

static void SegnoVerifica(QPainter& p) { p.drawPolyline(QPolygonF{{3, 9}, {7, 13}, {14, 4}}); }

static void SegnoSalva(QPainter& p) {
  p.drawRect(QRectF(2.5, 2.5, 12, 12));
  p.drawRect(QRectF(5.5, 9.5, 6, 5));
  p.drawRect(QRectF(5.5, 2.5, 5, 3.5));
}

static void SegnoCarica(QPainter& p) {
  p.drawPolyline(QPolygonF{{2, 14}, {2, 4}, {6.5, 4}, {8, 6}, {13, 6}, {13, 8.5}});
  p.drawPolygon(QPolygonF{{2, 14}, {5, 8.5}, {16, 8.5}, {13, 14}});
}

static void SegnoDisegno(QPainter& p) {
  p.drawPolyline(QPolygonF{{4, 2}, {4, 15}, {15, 15}});
  p.drawPolygon(QPolygonF{{6.5, 12.5}, {7.5, 9}, {13, 3.5}, {15, 5.5}, {9.5, 11}});
}

static void SegnoVista(QPainter& p) {
  QPainterPath occhio;
  occhio.moveTo(1.5, 8.5);
  occhio.quadTo(8.5, 1.5, 15.5, 8.5);
  occhio.quadTo(8.5, 15.5, 1.5, 8.5);
  p.drawPath(occhio);
  p.drawEllipse(QPointF(8.5, 8.5), 2.2, 2.2);
}

static void SegnoAnteprima(QPainter& p) {
  p.drawPolygon(QPolygonF{{3, 1.5}, {10.5, 1.5}, {13.5, 4.5}, {13.5, 15.5}, {3, 15.5}});
  p.drawEllipse(QPointF(8, 9), 2.6, 2.6);
  p.drawLine(QPointF(10, 11), QPointF(12, 13));
}

static void SegnoOpzioni(QPainter& p) {
  for (const auto& [y, x] : {std::pair(4.0, 6.0), std::pair(8.5, 11.5), std::pair(13.0, 5.0)}) {
    p.drawLine(QPointF(2, y), QPointF(15, y));
    p.setBrush(p.pen().color());
    p.drawEllipse(QPointF(x, y), 1.8, 1.8);
  }
}

static void SegnoTermina(QPainter& p) {
  p.drawLine(QPointF(4, 4), QPointF(13, 13));
  p.drawLine(QPointF(13, 4), QPointF(4, 13));
}

namespace {
struct RigaIcona {
  const char* nome;
  void (*dipingi)(QPainter& p);  // on 17 by 17
};
}  // namespace

// clang-format off
static constexpr RigaIcona ICONE[] = {
  { "verifica", SegnoVerifica }, { "salva", SegnoSalva },         { "carica", SegnoCarica },   { "disegno", SegnoDisegno },
  { "vista", SegnoVista },       { "anteprima", SegnoAnteprima }, { "opzioni", SegnoOpzioni }, { "chiudi", SegnoTermina },
};
// clang-format on

static QPixmap Lastra(void (*dipingi)(QPainter&), int lato, const QColor& c) {
  QPixmap lastra(lato, lato);
  lastra.fill(Qt::transparent);
  QPainter p(&lastra);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(lato / 17.0, lato / 17.0);
  p.setPen(QPen(c, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  dipingi(p);
  return lastra;
}

QIcon IconaComando(const QString& nome, const QWidget& w) {
  QIcon icona;
  for (const RigaIcona& r : ICONE) {
    if (nome != QLatin1String(r.nome)) continue;
    for (const int lato : {16, 20, 24, 32, 40, 48, 64}) {
      icona.addPixmap(Lastra(r.dipingi, lato, w.palette().color(QPalette::Active, QPalette::ButtonText)), QIcon::Normal);
      icona.addPixmap(Lastra(r.dipingi, lato, w.palette().color(QPalette::Disabled, QPalette::ButtonText)), QIcon::Disabled);
    }
  }
  return icona;
}

// The mark of the program: a plate with four anchors and its column.
QIcon IconaProgramma() {
  QIcon icona;
  for (const int lato : {16, 24, 32, 48, 64, 128, 256}) {
    QPixmap lastra(lato, lato);
    lastra.fill(Qt::transparent);
    QPainter p(&lastra);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(lato / 64.0, lato / 64.0);
    p.setPen(QPen(QColor(40, 60, 90), 2));
    p.setBrush(QColor(214, 224, 236));
    p.drawRoundedRect(QRectF(4, 4, 56, 56), 5, 5);
    p.setBrush(QColor(70, 110, 160));
    p.drawPath(Profilo(32, 32, 32, 26, 5, 6, 3));
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(200, 30, 30));
    for (const double x : {12.0, 52.0})
      for (const double y : {12.0, 52.0}) p.drawEllipse(QPointF(x, y), 4, 4);
    p.end();
    icona.addPixmap(lastra);
  }
  return icona;
}

void PreparaPitture(QWidget& finestra) {
  for (QAbstractButton* b : finestra.findChildren<QAbstractButton*>()) {
    const QString nome = b->property("disegno").toString();
    if (!nome.isEmpty()) b->setIcon(IconaComando(nome, *b));
  }
}
