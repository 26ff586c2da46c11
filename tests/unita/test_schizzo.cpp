// The sketches: chamfers, scale, strokes in their order. Positions by hand from the plate and the section.
#include <gtest/gtest.h>

#include "core/aritmetica.h"
#include "corredo/registratore.h"
#include "drawing/pianta.h"
#include "drawing/schizzo.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

struct Schizzo : testing::Test {
  Tela t;
  void SetUp() override {
    MontaRegistratore();
    suite.ParNodo[19] = 1;
    nodo.Sezione.H = 200;
    nodo.Sezione.B = 100;
    nodo.Sezione.A = 6;
    nodo.Sezione.E = 10;
    nodo.Sezione.R = 12;
    nodo.LatoZ = 300;
    nodo.LatoY = 400;
    nodo.TipoNodo = 1;
    nodo.SpNerv = 8;
    nodo.HNerv = 150;
    nodo.NTir = 4;
    nodo.TfFi = 20;
    for (int i = 1; i <= 4; ++i) {
      nodo.TfZ[i] = i % 2 == 1 ? 50 : 250;
      nodo.TfY[i] = i <= 2 ? 60 : 340;
    }
    t.larghezza = 2000;
    t.altezza = 1000;
  }
  int Segmenti() const {
    int n = 0;
    for (const Tratto& x : t.tratti) n += x.forma == Tratto::Forma::Segmento;
    return n;
  }
};

void Segmento(const Tratto& s, double x1, double y1, double x2, double y2) {
  EXPECT_EQ(s.forma, Tratto::Forma::Segmento);
  EXPECT_DOUBLE_EQ(s.x1, x1);
  EXPECT_DOUBLE_EQ(s.y1, y1);
  EXPECT_DOUBLE_EQ(s.x2, x2);
  EXPECT_DOUBLE_EQ(s.y2, y2);
}

}  // namespace

TEST_F(Schizzo, SmussiDelleNervature) {
  CalcolaSmussi();
  EXPECT_EQ(nodo.NervTaglio, 50);  // 150 / 3 = 50
  EXPECT_EQ(nodo.NervZ, 30);       // (300 - 100 - 16) / 2 / 3 = 30.67 -> 30 -> 3.0 + .5 -> 3 tens
  EXPECT_EQ(nodo.NervY, 30);       // (400 - 200) / 2 / 3 = 33.3 -> 33 -> 3.3 + .5 -> 3 tens
  nodo.HNerv = 170;
  nodo.LatoZ = 90;  // narrower than the column: floors, also below zero
  CalcolaSmussi();
  EXPECT_EQ(nodo.NervTaglio, 60);  // 56.7 -> 56 -> 5.6 + .5 -> 6 tens
  EXPECT_EQ(nodo.NervZ, 0);        // (90 - 100 - 16) / 2 / 3 = -4.33 -> -5 -> -.5 + .5 -> 0
}

TEST_F(Schizzo, LaMisuraCheGovernaRiempieLaTela) {
  DisegnaNodo(t);  // 400 / 1000 against 300 / 2000: the height governs, r = 1/2
  EXPECT_DOUBLE_EQ(t.sy, 240);
  EXPECT_DOUBLE_EQ(t.dy, -240);
  EXPECT_DOUBLE_EQ(t.sx, -480);
  EXPECT_DOUBLE_EQ(t.dx, 480);
  t.altezza = 4000;  // 400 / 4000 against 300 / 2000: the width, r = 2
  DisegnaNodo(t);
  EXPECT_DOUBLE_EQ(t.sx, -180);
  EXPECT_DOUBLE_EQ(t.sy, 360);
}

TEST_F(Schizzo, SezionePiuLargaDellaPiastra) {
  nodo.LatoZ = 60;  // narrower than B = 100, lower than H = 200
  nodo.LatoY = 150;
  t.altezza = 3000;  // 100 / 2000 and 200 / 3000: the height governs by the section's H
  DisegnaNodo(t);
  EXPECT_DOUBLE_EQ(t.sy, 120);
  EXPECT_DOUBLE_EQ(t.sx, -80);  // r = 3/2
  t.altezza = 5000;             // 200 / 5000: the width by the section's B, r = 5/2
  DisegnaNodo(t);
  EXPECT_DOUBLE_EQ(t.sx, -60);
  EXPECT_DOUBLE_EQ(t.sy, 150);
  Segmento(t.tratti[16], -30, -75, -30, 75);  // the plate's outline lies inside the section's
}

TEST_F(Schizzo, SezionePiastraTirafondi) {
  DisegnaNodo(t);
  ASSERT_EQ(t.tratti.size(), 24u);       // 12 lines and 4 fillets of the section, 4 of the plate, 4 anchors
  Segmento(t.tratti[0], 3, 78, 3, -78);  // web: a/2, h' - e - r = 100 - 22
  Segmento(t.tratti[1], -3, -78, -3, 78);
  Segmento(t.tratti[2], -50, 100, 50, 100);  // upper flange, clockwise
  Segmento(t.tratti[3], 50, 100, 50, 90);
  Segmento(t.tratti[4], 50, 90, 15, 90);    // a/2 + r = 15
  Segmento(t.tratti[7], 15, -90, 50, -90);  // lower flange
  Segmento(t.tratti[8], 50, -90, 50, -100);
  Segmento(t.tratti[9], 50, -100, -50, -100);
  Segmento(t.tratti[10], -50, -100, -50, -90);
  Segmento(t.tratti[11], -50, -90, -15, -90);
  Segmento(t.tratti[14], -15, 90, -50, 90);
  Segmento(t.tratti[15], -50, 90, -50, 100);
  const struct {
    std::size_t k;
    double x, y, da, fino;
  } raccordi[] = {// angles in pi; the third from 1.5 pi to 0
                  {5, 15, 78, 0.5, 1},
                  {6, 15, -78, 1, 1.5},
                  {12, -15, -78, 1.5, 0},
                  {13, -15, 78, 0, 0.5}};
  for (const auto& r : raccordi) {
    EXPECT_EQ(t.tratti[r.k].forma, Tratto::Forma::Arco);
    EXPECT_DOUBLE_EQ(t.tratti[r.k].xc, r.x);
    EXPECT_DOUBLE_EQ(t.tratti[r.k].yc, r.y);
    EXPECT_DOUBLE_EQ(t.tratti[r.k].raggio, 12);
    EXPECT_DOUBLE_EQ(t.tratti[r.k].a1, r.da * 3.141592);
    EXPECT_DOUBLE_EQ(t.tratti[r.k].a2, r.fino * 3.141592);
  }
  Segmento(t.tratti[16], -150, -200, -150, 200);
  Segmento(t.tratti[17], 150, -200, 150, 200);
  Segmento(t.tratti[18], -150, -200, 150, -200);
  Segmento(t.tratti[19], -150, 200, 150, 200);
  const Tratto& primo = t.tratti[20];
  EXPECT_EQ(primo.forma, Tratto::Forma::Arco);
  EXPECT_EQ(primo.xc, -100);  // 50 - 150
  EXPECT_EQ(primo.yc, -140);  // 60 - 200
  EXPECT_EQ(primo.raggio, 10);
  EXPECT_EQ(primo.colore, 255);
}

TEST_F(Schizzo, NervatureSoloConTipoDue) {
  DisegnaNodo(t);
  const int senza = Segmenti();
  nodo.TipoNodo = 2;
  DisegnaNodo(t);
  EXPECT_EQ(Segmenti(), senza + 20);            // ten lines a side
  Segmento(t.tratti[20], -50, -200, -50, 200);  // s = -1 first: B/2
  Segmento(t.tratti[21], -58, -200, -58, 200);  // B/2 + SpNerv
  Segmento(t.tratti[22], -80, -100, -80, -92);  // B/2 + NervZ, from -H/2 upward
  Segmento(t.tratti[23], -80, 100, -80, 92);
  Segmento(t.tratti[24], -58, -130, -66, -130);  // -H/2 - NervY
  Segmento(t.tratti[25], -58, 130, -66, 130);
  Segmento(t.tratti[26], -58, -100, -150, -100);
  Segmento(t.tratti[27], -58, -92, -150, -92);
  Segmento(t.tratti[28], -58, 100, -150, 100);
  Segmento(t.tratti[29], -58, 92, -150, 92);
  Segmento(t.tratti[30], 50, -200, 50, 200);
  Segmento(t.tratti[34], 58, -130, 66, -130);
}

TEST_F(Schizzo, SenzaRaggioNessunArcoEStesseLinee) {
  DisegnaNodo(t);
  const int con = Segmenti();
  nodo.Sezione.R = 0;
  nodo.NTir = 0;
  DisegnaNodo(t);
  EXPECT_EQ(Segmenti(), con);
  EXPECT_EQ(t.tratti.size(), static_cast<std::size_t>(con));
}

TEST_F(Schizzo, OttoTirafondiOttoCerchi) {
  nodo.NTir = 8;
  nodo.OptionNTir = 0;  // the pattern does not count
  for (int i = 5; i <= 8; ++i) {
    nodo.TfZ[i] = 10 * i;
    nodo.TfY[i] = 300 + i;
  }
  DisegnaNodo(t);
  ASSERT_EQ(t.tratti.size(), 28u);
  for (std::size_t i = 5; i <= 8; ++i) {
    EXPECT_EQ(t.tratti[19 + i].xc, 10 * static_cast<double>(i) - 150);
    EXPECT_EQ(t.tratti[19 + i].yc, 100 + static_cast<double>(i));
  }
}

TEST_F(Schizzo, TelaSenzaMisure) {
  t.altezza = 0;
  DisegnaNodo(t);
  EXPECT_TRUE(t.tratti.empty());
}

TEST_F(Schizzo, SezioneImportata) {
  DisegnaSezImport(t, nodo.Sezione);  // 100 / 2000 <= 200 / 1000: h = 120, w = h / r = 240
  EXPECT_DOUBLE_EQ(t.sx, -240);
  EXPECT_DOUBLE_EQ(t.sy, 120);
  ASSERT_EQ(t.tratti.size(), 16u);
  Segmento(t.tratti[2], -50, 100, 50, 100);  // about the origin
  t.altezza = 4000;                          // 100 / 2000 > 200 / 4000 does not hold: the height, r = 2
  DisegnaSezImport(t, nodo.Sezione);
  EXPECT_DOUBLE_EQ(t.sy, 120);
  EXPECT_DOUBLE_EQ(t.sx, -60);
  t.altezza = 5000;  // the width: w = 60, h = w r = 150
  DisegnaSezImport(t, nodo.Sezione);
  EXPECT_DOUBLE_EQ(t.sx, -60);
  EXPECT_DOUBLE_EQ(t.sy, 150);
}
