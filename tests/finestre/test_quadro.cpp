// finestre/test_quadro.cpp - the sketch in windows of any shape. A pixel is dark where a stroke passes, light on the sheet.
#include "app/qt/quadro.h"
#include "drawing/tela.h"

#include <QImage>
#include <QPixmap>

#include <gtest/gtest.h>

// Lines of a plate of 2 z by 2 y around the origin, on the sketch's square canvas of 120.
static Tela Piastra(double z, double y) {
  Tela t;
  ImpostaScala(t, -60, 60, 60, -60);
  SegmentoTela(t, -z, -y, -z, y, 0);
  SegmentoTela(t, z, -y, z, y, 0);
  SegmentoTela(t, -z, -y, z, -y, 0);
  SegmentoTela(t, -z, y, z, y, 0);
  return t;
}

static QImage Dipinta(Tela& t, int larga, int alta) {
  Quadro q;
  q.resize(larga, alta);
  q.Mostra(&t);
  return q.grab().toImage();
}

static bool Scuro(const QImage& m, int x, int y) {
  for (int dx = -1; dx <= 1; ++dx)
    for (int dy = -1; dy <= 1; ++dy)
      if (qGray(m.pixel(x + dx, y + dy)) < 128) return true;
  return false;
}

// Borders of 6: 200 by 400 pixels for a plate of 50 by 100 with its margin, 60 by 120: 10 / 3 pixels a unit, not the square's 5 / 3.
TEST(Quadro, LaPiastraAltaRiempieLaFinestraAlta) {
  Tela t = Piastra(25, 50);
  const QImage m = Dipinta(t, 212, 412);
  EXPECT_TRUE(Scuro(m, 23, 206));  // left side, 106 - 83.3
  EXPECT_TRUE(Scuro(m, 189, 206));
  EXPECT_TRUE(Scuro(m, 106, 39));  // upper side, 206 - 166.7
  EXPECT_TRUE(Scuro(m, 106, 373));
  EXPECT_FALSE(Scuro(m, 64, 206));  // where the square's would be
}

// 400 by 200 pixels for the same plate: the height governs, 200 / 120 a unit.
TEST(Quadro, LaPiastraAltaInUnaFinestraLarga) {
  Tela t = Piastra(25, 50);
  const QImage m = Dipinta(t, 412, 212);
  EXPECT_TRUE(Scuro(m, 206 - 42, 106));  // 25 x 5 / 3 = 41.7
  EXPECT_TRUE(Scuro(m, 206, 106 - 83));
}

TEST(Quadro, LaPiastraLargaRiempieLaFinestraLarga) {
  Tela t = Piastra(50, 25);
  const QImage m = Dipinta(t, 412, 212);
  EXPECT_TRUE(Scuro(m, 39, 106));
  EXPECT_TRUE(Scuro(m, 206, 23));
}

// A drawing without height keeps the canvas' own.
TEST(Quadro, UnaLineaSola) {
  Tela t;
  ImpostaScala(t, -60, 60, 60, -60);
  SegmentoTela(t, -25, 0, 25, 0, 0);
  EXPECT_TRUE(Scuro(Dipinta(t, 212, 412), 106 - 82, 206));  // 25 x 200 / 60 = 83.3
}

// Anchors beyond the plate are seen as far as the canvas goes, never beyond it; nothing painted leaves the canvas as it is.
TEST(Quadro, CerchiEVuoto) {
  Tela t = Piastra(25, 50);
  ArcoTela(t, 35, 0, 5, 0, 0, 0);  // to 40: 48 with the margin, 200 / 96 a unit
  EXPECT_TRUE(Scuro(Dipinta(t, 212, 412), 106 - 52, 206));
  Tela vuota;
  ImpostaScala(vuota, -60, 60, 60, -60);
  EXPECT_FALSE(Scuro(Dipinta(vuota, 212, 412), 106, 206));
}
