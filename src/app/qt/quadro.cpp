// app/qt/quadro.cpp - painting of a canvas.
#include "app/qt/quadro.h"

#include "app/qt/pitture.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

constexpr double GRADI = 180 / 3.14159265358979323846;  // for the eye only
constexpr double SPESSORE = 1.4;                        // pen, device-independent pixels
constexpr double BORDO = 6;
constexpr double MARGINE = 1.2;  // of the sketch: canvas over drawing, as in its own scale

Quadro::Quadro(QWidget* padre) : QWidget(padre) { setMinimumSize(40, 20); }

void Quadro::Mostra(Tela* t) {
  tela = t;
  update();
}

static QColor ColoreTratto(std::int32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

static bool TrattiChiari(const Tela& t) {
  for (const Tratto& s : t.tratti)
    if (qGray(ColoreTratto(s.colore).rgb()) > 170) return true;
  return false;
}

// How far the strokes go from the origin, to the right as to the left, upward as downward.
static QSizeF Ingombro(const Tela& t) {
  double x = 0, y = 0;
  for (const Tratto& s : t.tratti) {
    const bool arco = s.forma == Tratto::Forma::Arco;
    x = std::max(x, arco ? std::fabs(s.xc) + s.raggio : std::max(std::fabs(s.x1), std::fabs(s.x2)));
    y = std::max(y, arco ? std::fabs(s.yc) + s.raggio : std::max(std::fabs(s.y1), std::fabs(s.y2)));
  }
  return {x, y};
}

// Without a user scale the canvas counts from its upper left corner, downward. With one, which is that of a square, the side that does not
// govern is narrowed to the same margin, so that the drawing is as large as the window's shape lets it be.
static QRectF Inquadratura(const Tela& t) {
  if (t.sx == t.dx || t.sy == t.dy) return QRectF(0, 0, t.larghezza, t.altezza);
  const QSizeF i = MARGINE * Ingombro(t);
  const auto stretto = [](double estremo, double vicino) {
    return vicino > 0 ? std::copysign(std::min(std::fabs(estremo), vicino), estremo) : estremo;
  };
  return QRectF(QPointF(stretto(t.sx, i.width()), stretto(t.sy, i.height())), QPointF(stretto(t.dx, i.width()), stretto(t.dy, i.height())));
}

static void DipingiTratto(QPainter& p, const QTransform& v, const Tratto& s, const QColor& nero) {
  const QColor colore = s.colore == 0 ? nero : ColoreTratto(s.colore);
  p.setPen(QPen(colore, SPESSORE, Qt::SolidLine, Qt::RoundCap));
  if (s.forma == Tratto::Forma::Segmento) {
    p.drawLine(v.map(QPointF(s.x1, s.y1)), v.map(QPointF(s.x2, s.y2)));
    return;
  }
  const QRectF cerchio = v.mapRect(QRectF(s.xc - s.raggio, s.yc - s.raggio, 2 * s.raggio, 2 * s.raggio));
  if (s.a1 == s.a2) {
    QColor dentro = colore;
    dentro.setAlpha(70);
    p.setBrush(dentro);
    p.drawEllipse(cerchio);
    p.setBrush(Qt::NoBrush);
    return;
  }
  double ampiezza = s.a2 - s.a1;
  while (ampiezza <= 0) ampiezza += 360 / GRADI;
  p.drawArc(cerchio, static_cast<int>(std::lround(s.a1 * GRADI * 16)), static_cast<int>(std::lround(ampiezza * GRADI * 16)));
}

void Quadro::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QRectF posto = QRectF(rect()).adjusted(BORDO, BORDO, -BORDO, -BORDO);
  const QString disegno = property("disegno").toString();
  if (!disegno.isEmpty()) DipingiPittura(p, disegno, *this, posto);
  if (tela == nullptr) return;
  const QTransform v = VistaSu(Inquadratura(*tela), posto);
  if (disegno.isEmpty()) {
    const bool scuro = TrattiChiari(*tela);
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.setBrush(scuro ? QColor(30, 34, 40) : QColor(252, 252, 250));
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    p.setBrush(Qt::NoBrush);
    p.setClipRect(rect().adjusted(1, 1, -1, -1));
    for (const Campitura& c : campiture) p.fillPath(v.map(c.forma), scuro ? c.colore.lighter(60) : c.colore);
  }
  // On a drawing of ours the ground is the desktop's, and so is what stands for black.
  const QColor nero = disegno.isEmpty() ? QColor(Qt::black) : palette().color(QPalette::WindowText);
  for (const Tratto& s : tela->tratti) DipingiTratto(p, v, s, nero);
}
