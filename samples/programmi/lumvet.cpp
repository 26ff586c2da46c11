// samples/programmi/lumvet.cpp - stand-in for the suite's viewer: shows the DIS file that lumvet.inp names, under the title that the program
// looks for; Ctrl+V reads it again.
// Input     lumvet.inp beside the program, or its path as the argument: the number 2, then the DIS file.
// Writes    with QB07_LUMVET the number of lines shown, at the end of that file, each time it reads.
// A file that is not there, or that ends early, shows what could be read.
#include "comune.h"

#include <QApplication>
#include <QPainter>
#include <QShortcut>
#include <QWidget>

#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

struct Disegno {
  struct Punto {
    double x = 0, y = 0;
  };
  struct Linea {
    int a = 0, b = 0, colore = 0, tipo = 0;
  };
  struct Testo {
    int dove = 0, angolo = 0, colore = 0;
    double larghezza = 0, altezza = 0;
    std::string testo;
  };
  struct Arco {
    int centro = 0, inizio = 0, fine = 0, colore = 0, tipo = 0;
  };
  std::vector<Punto> punti;
  std::vector<Linea> linee;
  std::vector<Testo> testi;
  std::vector<Arco> archi;
  bool Vale(int i) const { return i >= 0 && i < static_cast<int>(punti.size()); }
};

// The lines of a DIS file one behind the other; past the end they are empty.
struct Lettore {
  std::vector<std::string> righe;
  std::size_t prossima = 0;
  std::string Riga() { return prossima < righe.size() ? righe[prossima++] : std::string(); }
  std::vector<double> Numeri(std::size_t quanti) {
    std::istringstream t(Riga());
    std::vector<double> v(quanti, 0.0);
    for (double& x : v) t >> x;
    return v;
  }
  int Quanti() { return std::clamp(static_cast<int>(Numeri(1)[0]), 0, static_cast<int>(righe.size())); }
};

static int Intero(double v) { return static_cast<int>(v); }

static Disegno LeggiDis(const std::string& percorso) {
  Disegno d;
  Lettore l{LeggiRighe(percorso).value_or(std::vector<std::string>()), 4};  // version, extents, heights
  for (int n = l.Quanti(); n > 0; --n) {
    const auto v = l.Numeri(3);
    d.punti.push_back({v[0], v[1]});
  }
  for (int n = l.Quanti(); n > 0; --n) l.Riga();  // circles: always none
  for (int n = l.Quanti(); n > 0; --n) {
    const auto v = l.Numeri(4);
    d.linee.push_back({Intero(v[0]), Intero(v[1]), Intero(v[2]), Intero(v[3])});
  }
  for (int n = l.Quanti(); n > 0; --n) {
    const auto a = l.Numeri(3), b = l.Numeri(3);
    d.testi.push_back({Intero(a[0]), Intero(a[2]), Intero(b[2]), b[0], b[1], l.Riga()});
  }
  for (int n = l.Quanti(); n > 0; --n) {
    const auto a = l.Numeri(4), b = l.Numeri(2);
    d.archi.push_back({Intero(a[0]), Intero(a[1]), Intero(a[3]), Intero(b[0]), Intero(b[1])});
  }
  return d;
}

static QColor Colore(int i) {
  static const char* const COLORI[] = {"#000000", "#000000", "#000080", "#c00000", "#008000", "#a08000", "#006000", "#800080"};
  return QColor(QLatin1String(COLORI[i >= 0 && i <= 7 ? i : 0]));
}

static QPen Penna(int colore, int tipo) {
  return QPen(Colore(colore), 1, tipo == 1 || tipo == 3 ? Qt::DashDotLine : tipo == 0 ? Qt::SolidLine : Qt::DashLine);
}

struct Visualizzatore : QWidget {
  std::string file;
  Disegno disegno;

  void Rileggi() {
    disegno = LeggiDis(file);
    update();
    if (const char* diario = std::getenv("QB07_LUMVET")) std::ofstream(diario, std::ios::app) << disegno.linee.size() << '\n';
  }
  QRectF Estremi() const {
    QPolygonF p;
    for (const auto& k : disegno.punti) p << QPointF(k.x, k.y);
    return p.boundingRect().adjusted(-50, -50, 50, 50);
  }
  QPointF Punto(int i) const { return {disegno.punti[static_cast<std::size_t>(i)].x, disegno.punti[static_cast<std::size_t>(i)].y}; }

  void Linee(QPainter& p, const QTransform& v) const {
    for (const auto& l : disegno.linee) {
      if (!disegno.Vale(l.a) || !disegno.Vale(l.b)) continue;
      p.setPen(Penna(l.colore, l.tipo));
      p.drawLine(v.map(Punto(l.a)), v.map(Punto(l.b)));
    }
  }
  void Archi(QPainter& p, const QTransform& v) const {
    for (const auto& a : disegno.archi) {
      if (!disegno.Vale(a.centro) || !disegno.Vale(a.inizio) || !disegno.Vale(a.fine)) continue;
      const QLineF da(Punto(a.centro), Punto(a.inizio)), al(Punto(a.centro), Punto(a.fine));
      const double r = da.length(), inizio = 360 - da.angle();  // QLineF counts clockwise when y points up
      double ampiezza = da.angle() - al.angle();
      if (ampiezza <= 0.001) ampiezza += 360;
      p.setPen(Penna(a.colore, a.tipo));
      p.drawArc(v.mapRect(QRectF(Punto(a.centro).x() - r, Punto(a.centro).y() - r, 2 * r, 2 * r)),
                static_cast<int>(std::lround(inizio * 16)), static_cast<int>(std::lround(ampiezza * 16)));
    }
  }
  void Testi(QPainter& p, const QTransform& v, double scala) const {
    QFont carattere("monospace");
    carattere.setStyleHint(QFont::Monospace);
    for (const auto& t : disegno.testi) {
      if (!disegno.Vale(t.dove) || t.altezza <= 0) continue;
      const QString testo = QString::fromLatin1(t.testo.data(), static_cast<qsizetype>(t.testo.size())).replace(']', QChar(0x00D8));
      carattere.setPixelSize(100);
      const double passo = QFontMetricsF(carattere).horizontalAdvance('0');
      p.save();
      p.setFont(carattere);
      p.setPen(Colore(t.colore));
      p.translate(v.map(Punto(t.dove)));
      p.rotate(-t.angolo);
      p.scale(t.larghezza * scala / passo, t.altezza * scala / 73);
      p.drawText(0, 0, testo);
      p.restore();
    }
  }
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.fillRect(rect(), Qt::white);
    if (disegno.punti.empty()) {
      p.setPen(Qt::black);  // the sheet is white in any theme
      p.drawText(rect(), Qt::AlignCenter, "Nessun disegno");
      return;
    }
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF e = Estremi();
    const double scala = std::min(width() / e.width(), height() / e.height());
    QTransform v;
    v.translate(width() / 2.0, height() / 2.0);
    v.scale(scala, -scala);
    v.translate(-e.center().x(), -e.center().y());
    Linee(p, v);
    Archi(p, v);
    Testi(p, v, scala);
  }
};

int main(int argc, char** argv) {
  QApplication programma(argc, argv);
  const std::string ingresso = argc > 1 ? argv[1] : (QApplication::applicationDirPath() + "/lumvet.inp").toStdString();
  const auto righe = LeggiRighe(ingresso);
  if (!righe || righe->size() < 2) return NonFatto;
  Visualizzatore w;
  w.file = Rifila((*righe)[1]);
  w.setWindowTitle("VISUALIZZAZIONE FILE DISEGNO - " +
                   QString::fromLatin1((*righe)[1].data(), static_cast<qsizetype>((*righe)[1].size())).trimmed());
  w.resize(1000, 700);
  QObject::connect(new QShortcut(QKeySequence("Ctrl+V"), &w), &QShortcut::activated, &w, [&w] { w.Rileggi(); });
  w.Rileggi();
  w.show();
  return QApplication::exec();
}
