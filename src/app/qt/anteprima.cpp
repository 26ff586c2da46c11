// app/qt/anteprima.cpp - copy of the store, its painting, the files.
#include "app/qt/anteprima.h"

#include "app/qt/finestre.h"
#include "app/qt/pitture.h"
#include "core/file.h"
#include "drawing/disegno.h"
#include "drawing/edizione_dis.h"
#include "drawing/esecutivo.h"
#include "drawing/formats/carta.h"

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QStringList>

#include <algorithm>
#include <cmath>

constexpr int LATO_PNG = 4000;                                   // pixels of the longer side
constexpr double GRADI_RADIANTE = 180 / 3.14159265358979323846;  // for the eye only

// ---- copy of the store ----

static QPointF Punto(std::int32_t i) { return {disegno.CoordX[i], disegno.CoordY[i]}; }

static void CopiaLinee(FoglioVisto& f) {
  for (int i = 0; i < disegno.NumLinee; ++i)
    f.linee.push_back({QLineF(Punto(disegno.LinIni[i]), Punto(disegno.LinFin[i])), disegno.LinCol[i], disegno.LinTipo[i]});
}

static double Angolo(const QPointF& c, const QPointF& p) { return std::atan2(p.y() - c.y(), p.x() - c.x()) * GRADI_RADIANTE; }

static void CopiaArchi(FoglioVisto& f) {
  for (int i = 0; i < disegno.NumArchi; ++i) {
    const QPointF c = Punto(disegno.ArcCen[i]), a = Punto(disegno.ArcIni[i]), b = Punto(disegno.ArcFin[i]);
    double ampiezza = Angolo(c, b) - Angolo(c, a);
    if (ampiezza <= 0.001) ampiezza += 360;  // equal ends: a full circle
    f.archi.push_back(
      {c.x(), c.y(), std::hypot(a.x() - c.x(), a.y() - c.y()), Angolo(c, a), ampiezza, disegno.ArcCol[i], disegno.ArcTipo[i]});
  }
}

static void CopiaTesti(FoglioVisto& f) {
  for (int i = 0; i < disegno.NumTesti; ++i) {
    const QPointF p = Punto(disegno.TesPos[i]);
    for (const TrattoTesto& t : TrattiTesto(disegno.TesStr[static_cast<std::size_t>(i)], p.x(), p.y(), disegno.TesAng[i],
                                            disegno.TesLarg[i] / 10.0, disegno.TesAlt[i] / 10.0))
      f.linee.push_back({QLineF(t.x1, t.y1, t.x2, t.y2), disegno.TesCol[i], 0});
  }
}

static QRectF Carta(const FoglioVisto& f) {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  bool primo = true;
  const auto allarga = [&](const QPointF& p) {
    x1 = primo ? p.x() : std::min(x1, p.x());
    y1 = primo ? p.y() : std::min(y1, p.y());
    x2 = primo ? p.x() : std::max(x2, p.x());
    y2 = primo ? p.y() : std::max(y2, p.y());
    primo = false;
  };
  for (const LineaVista& l : f.linee) {
    allarga(l.linea.p1());
    allarga(l.linea.p2());
  }
  for (const ArcoVisto& a : f.archi) {
    allarga({a.x - a.raggio, a.y - a.raggio});
    allarga({a.x + a.raggio, a.y + a.raggio});
  }
  return QRectF(QPointF(x1, y1), QPointF(x2, y2)).adjusted(-MARGINE_CARTA, -MARGINE_CARTA, MARGINE_CARTA, MARGINE_CARTA);
}

bool DisegnaFoglioVisto(FoglioVisto& f) {
  edizione = EdizioneDis();
  if (!DisegnaFoglio()) return false;
  f = {};
  CopiaLinee(f);
  CopiaArchi(f);
  CopiaTesti(f);
  f.carta = Carta(f);
  return true;
}

// ---- painting ----

// Dashes in mm of the sheet; the pen counts them in its own widths.
static QPen Penna(int colore, int tipo, double spessore, double scala) {
  QPen p(QColor(QLatin1String(ColoreCarta(colore))), spessore, Qt::SolidLine, Qt::FlatCap);
  QList<qreal> tratti;
  for (const QString& t : QString(TratteggioCarta(tipo)).split(' ', Qt::SkipEmptyParts))
    tratti += std::max(0.5, t.toDouble() * scala / spessore);
  if (!tratti.isEmpty()) p.setDashPattern(tratti);
  return p;
}

void DipingiFoglio(QPainter& p, const FoglioVisto& f, const QTransform& v) {
  const double scala = std::hypot(v.m11(), v.m12());
  const double spessore = std::max(p.device()->logicalDpiX() / 96.0, 0.6 * scala);
  p.fillRect(v.mapRect(f.carta), Qt::white);
  p.setBrush(Qt::NoBrush);
  for (const LineaVista& l : f.linee) {
    p.setPen(Penna(l.colore, l.tipo, spessore, scala));
    p.drawLine(v.map(l.linea));
  }
  for (const ArcoVisto& a : f.archi) {
    p.setPen(Penna(a.colore, a.tipo, spessore, scala));
    p.drawArc(v.mapRect(QRectF(a.x - a.raggio, a.y - a.raggio, 2 * a.raggio, 2 * a.raggio)), static_cast<int>(std::lround(a.inizio * 16)),
              static_cast<int>(std::lround(a.ampiezza * 16)));
  }
}

// y upward on the sheet, downward on the page.
static QTransform VistaFoglio(const FoglioVisto& f, const QRectF& pagina) {
  return VistaSu(QRectF(f.carta.left(), f.carta.bottom(), f.carta.width(), -f.carta.height()), pagina);
}

// ---- files ----

// Made in memory; the file comes to stand as every other does.
static bool ScriviBuffer(const QBuffer& b, const QString& file) {
  return SostituisciByte(Utf8(file), {b.data().constData(), static_cast<std::size_t>(b.data().size())});
}

bool SalvaFoglioPdf(const FoglioVisto& f, const QString& file) {
  QBuffer byte;
  if (!byte.open(QIODevice::WriteOnly)) return false;
  QPdfWriter pdf(&byte);
  pdf.setTitle("NODO COLONNA - PLINTO");
  pdf.setResolution(600);
  pdf.setPageSize(QPageSize(QPageSize::A3));
  pdf.setPageOrientation(f.carta.width() > f.carta.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
  pdf.setPageMargins(QMarginsF(8, 8, 8, 8), QPageLayout::Millimeter);
  QPainter p;
  if (!p.begin(&pdf)) return false;
  DipingiFoglio(p, f, VistaFoglio(f, QRectF(0, 0, pdf.width(), pdf.height())));
  return p.end() && ScriviBuffer(byte, file);
}

bool SalvaFoglioPng(const FoglioVisto& f, const QString& file) {
  const double lungo = std::max(f.carta.width(), f.carta.height());
  QImage immagine(static_cast<int>(f.carta.width() / lungo * LATO_PNG), static_cast<int>(f.carta.height() / lungo * LATO_PNG),
                  QImage::Format_RGB32);
  if (immagine.isNull()) return false;
  immagine.fill(Qt::white);
  QPainter p(&immagine);
  p.setRenderHint(QPainter::Antialiasing);
  DipingiFoglio(p, f, VistaFoglio(f, immagine.rect()));
  p.end();
  QBuffer byte;
  return byte.open(QIODevice::WriteOnly) && immagine.save(&byte, "PNG") && ScriviBuffer(byte, file);
}
