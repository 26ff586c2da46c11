// app/qt/anteprima.h - the executive drawing in a window of our own: zoom, pan, line types and colours; saved as PDF, PNG or SVG.
// Units     mm on the sheet, y upward.
// State     a copy of the drawing as it was when the window was opened or brought up to date; the store stays the program's.
// Failure   a drawing that cannot be made has shown its box, and no window opens.
#pragma once
#include <QColor>
#include <QLineF>
#include <QRectF>
#include <QString>
#include <QVector>

#include <vector>

class QPainter;
class QTransform;

struct LineaVista {
  QLineF linea;
  int colore = 0, tipo = 0;
};
struct ArcoVisto {
  double x = 0, y = 0, raggio = 0, inizio = 0, ampiezza = 0;  // degrees, counter-clockwise
  int colore = 0, tipo = 0;
};
struct FoglioVisto {
  std::vector<LineaVista> linee;  // the texts' strokes too
  std::vector<ArcoVisto> archi;
  QRectF carta;  // corners in sheet coordinates, margin included
};

bool DisegnaFoglioVisto(FoglioVisto& f);  // draws the sheet and copies it; false: its box was shown
void DipingiFoglio(QPainter& p, const FoglioVisto& f, const QTransform& v);
bool SalvaFoglioPdf(const FoglioVisto& f, const QString& file);  // fitted to an A3 page
bool SalvaFoglioPng(const FoglioVisto& f, const QString& file);
bool ApriAnteprima();  // opens the window, or brings the open one up to date; false: not now, or its box was shown
