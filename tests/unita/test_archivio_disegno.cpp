// test_archivio_disegno.cpp - the drawing store and its primitives: references, colours, extents, capacities.
#include <gtest/gtest.h>

#include <cmath>

#include "core/aritmetica.h"
#include "corredo/registratore.h"
#include "drawing/disegno.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

class Archivio : public ::testing::Test {
 protected:
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    disegno.DestDis = GENDIS;
    disegno.ColCorr = 5;
    AzzeraEstensioni();
  }
  void TearDown() override { AzzeraFault(); }
};

TEST_F(Archivio, LineaConOrigineDellaVista) {
  disegno.OffX = 100;
  disegno.OffY = -20;
  DisLinea(nullptr, 1, 2, 3, 4);
  DisLineaRel(nullptr, 3, 4, 10, 0, std::int16_t{2});
  ASSERT_EQ(disegno.NumLinee, 2);
  ASSERT_EQ(disegno.NumCoord, 3);
  EXPECT_EQ(disegno.CoordX[0], 101);
  EXPECT_EQ(disegno.CoordY[0], -18);
  EXPECT_EQ(disegno.LinIni[1], 1);
  EXPECT_EQ(disegno.LinFin[1], 2);
  EXPECT_EQ(disegno.CoordX[2], 113);
  EXPECT_EQ(disegno.LinCol[0], 5);
  EXPECT_EQ(disegno.LinCol[1], 2);
}

TEST_F(Archivio, LineaDegenere) {
  DisLinea(nullptr, 0, 0, 0.00009, -0.00009);
  EXPECT_EQ(disegno.NumLinee, 0);
  EXPECT_EQ(disegno.NumCoord, 0);
  EXPECT_EQ(disegno.XMax, -1e10);
  DisLinea(nullptr, 0, 0, 0.0001, 0);  // strictly below the tolerance only
  EXPECT_EQ(disegno.NumLinee, 1);
}

TEST_F(Archivio, ColoreZeroDiventaUno) {
  DisLinea(nullptr, 0, 0, 1, 0, std::int16_t{0});
  DisArco(nullptr, 0, 0, 5, std::int16_t{0});
  DisTesto("a", 0, 0, 0, 1, 1, std::int16_t{0});
  disegno.ColCorr = 0;
  DisLinea(nullptr, 0, 0, 2, 0);
  EXPECT_EQ(disegno.LinCol[0], 1);
  EXPECT_EQ(disegno.ArcCol[0], 1);
  EXPECT_EQ(disegno.TesCol[0], 1);
  EXPECT_EQ(disegno.LinCol[1], 1);
  DisLinea(nullptr, 0, 0, 3, 0, std::int16_t{-2});  // 0 alone
  EXPECT_EQ(disegno.LinCol[2], -2);
}

TEST_F(Archivio, TipoDiLinea) {
  disegno.LinTipo[0] = disegno.LinTipo[3] = 9;
  const std::int16_t stili[] = {0, 1, 3, 2};
  for (int i = 0; i < 4; ++i) {
    disegno.TipoLinCorr = stili[i];
    DisLinea(nullptr, 0, 0, i + 1, 0);
  }
  EXPECT_EQ(disegno.LinTipo[0], 0);
  EXPECT_EQ(disegno.LinTipo[1], 4);
  EXPECT_EQ(disegno.LinTipo[2], 1);
  EXPECT_EQ(disegno.LinTipo[3], 9);  // an unknown style leaves what the place held
}

TEST_F(Archivio, RicercaSulleUltime31) {
  for (int i = 0; i < 31; ++i) EXPECT_EQ(IndiceCoord(10 * i, 0), i);
  EXPECT_EQ(IndiceCoord(0, 0), 0);  // the 31st from the end
  EXPECT_EQ(IndiceCoord(1000, 0), 31);
  EXPECT_EQ(IndiceCoord(0, 0), 32);  // now the 32nd: a new one
  EXPECT_EQ(IndiceCoord(10, 0), 33);
  for (int i = 0; i < 40; ++i) IndiceCoord(5000 + i, 1);
  EXPECT_EQ(IndiceCoord(10, 0), 74);  // again 40 coordinates later
}

TEST_F(Archivio, ToleranzaStrettaSuiDueAssi) {
  IndiceCoord(0, 0);
  EXPECT_EQ(IndiceCoord(0.00009, 0.00009), 0);
  EXPECT_EQ(IndiceCoord(0.0001, 0), 1);
  EXPECT_EQ(IndiceCoord(-0.0001, 0.00001), 2);
  EXPECT_EQ(IndiceCoord(0, 0.0001), 3);
  AzzeraDisegno();
  IndiceCoord(0, 0);
  IndiceCoord(0.00015, 0);
  EXPECT_EQ(IndiceCoord(0.00008, 0), 1);  // both are near: the newest
}

TEST_F(Archivio, SoloLeLineeSpingonoLeEstensioni) {
  DisLinea(nullptr, -1, -2, 3, 4);
  DisArco(nullptr, 0, 0, 500);
  DisTesto("testo", 900, 900, 0, 10, 10);
  EXPECT_EQ(disegno.XMin, -1);
  EXPECT_EQ(disegno.YMin, -2);
  EXPECT_EQ(disegno.XMax, 3);
  EXPECT_EQ(disegno.YMax, 4);
  DisLinea(nullptr, 30, 40, -10, -20);  // both ends push, whichever comes first
  EXPECT_EQ(disegno.XMin, -10);
  EXPECT_EQ(disegno.YMin, -20);
  EXPECT_EQ(disegno.XMax, 30);
  EXPECT_EQ(disegno.YMax, 40);
  disegno.NumCerchi = 2;
  AzzeraDisegno();
  EXPECT_EQ(disegno.NumCoord + disegno.NumLinee + disegno.NumArchi + disegno.NumTesti + disegno.NumCerchi, 0);
  EXPECT_EQ(disegno.XMax, 30);  // emptying leaves the extents
  EXPECT_EQ(disegno.YMax, 40);
  EXPECT_EQ(disegno.XMin, -10);
  EXPECT_EQ(disegno.YMin, -20);
  AzzeraEstensioni();
  EXPECT_EQ(disegno.XMax, -1e10);
  EXPECT_EQ(disegno.YMax, -1e10);
  EXPECT_EQ(disegno.XMin, 1e10);
  EXPECT_EQ(disegno.YMin, 1e10);
}

TEST_F(Archivio, ArcoECerchio) {
  DisArco(nullptr, 10, 20, 8, std::int16_t{3}, 3.141592 / 2, 3.141592);
  DisArco(nullptr, 10, 20, 8);
  DisArco(nullptr, 10, 20, 8, {}, 1.0, 1.0);
  DisArco(nullptr, 10, 20, 0.0001);  // not above the tolerance
  ASSERT_EQ(disegno.NumArchi, 3);
  EXPECT_EQ(disegno.ArcCen[0], 0);
  EXPECT_EQ(disegno.ArcCen2[0], 0);
  EXPECT_EQ(disegno.ArcIni[0], 1);
  EXPECT_EQ(disegno.ArcFin[0], 2);
  EXPECT_DOUBLE_EQ(disegno.CoordX[1], 10 + 4 * std::cos(1.570796));  // off by 3.3E-7 r: the program's own circle constant
  EXPECT_DOUBLE_EQ(disegno.CoordY[1], 20 + 4 * std::sin(1.570796));
  EXPECT_EQ(disegno.ArcTipo[0], 0);
  EXPECT_EQ(disegno.ArcIni[1], disegno.ArcFin[1]);
  EXPECT_EQ(disegno.CoordX[disegno.ArcIni[1]], 14);
  EXPECT_EQ(disegno.ArcIni[2], disegno.ArcFin[2]);
  DisArco(nullptr, 10, 20, 8, {}, 1.0);  // without a second angle: the first one, wherever it lies
  ASSERT_EQ(disegno.NumArchi, 4);
  EXPECT_EQ(disegno.ArcIni[3], disegno.ArcIni[2]);
  EXPECT_EQ(disegno.ArcFin[3], disegno.ArcIni[2]);
}

// The diameter is measured, not the radius; of a large circle too the end is the start, and not a turn of 6.283184 farther, which would
// miss it by 1.3 mm on a radius of a kilometre.
TEST_F(Archivio, CerchiPiccoliEGrandi) {
  disegno.OffX = 100;
  disegno.OffY = 1000;
  disegno.ArcTipo[0] = 9;
  disegno.TipoLinCorr = 1;
  DisArco(nullptr, 0, 7, 0.00015);
  DisArco(nullptr, 0, 7, 2e6);
  ASSERT_EQ(disegno.NumArchi, 2);
  EXPECT_EQ(disegno.CoordX[disegno.ArcCen[0]], 100);
  EXPECT_EQ(disegno.CoordY[disegno.ArcCen[0]], 1007);
  EXPECT_EQ(disegno.ArcTipo[0], 0);  // an arc is continuous, whatever the current style
  EXPECT_EQ(disegno.ArcTipo[1], 0);
  EXPECT_EQ(disegno.ArcIni[1], disegno.ArcFin[1]);
  EXPECT_EQ(disegno.CoordX[disegno.ArcIni[1]], 1000100);
}

TEST_F(Archivio, TestoInDecimiAlPari) {
  disegno.OffX = 1;
  DisTesto("Città", 2, 3, -90, 0.25, 0.35, std::int16_t{6});
  ASSERT_EQ(disegno.NumTesti, 1);
  EXPECT_EQ(disegno.CoordX[disegno.TesPos[0]], 3);
  EXPECT_EQ(disegno.TesLarg[0], 2);  // 2.5 to the even neighbour
  EXPECT_EQ(disegno.TesAlt[0], 4);   // 3.5 likewise
  EXPECT_EQ(disegno.TesAng[0], -90);
  EXPECT_EQ(disegno.TesCol[0], 6);
  EXPECT_EQ(disegno.TesStr[0], "Città");
}

TEST_F(Archivio, CapacitaDeiTesti) {
  disegno.NumTesti = 14998;
  disegno.TesStr.resize(14998);
  DisTesto("a", 0, 0, 0, 1, 1);
  EXPECT_TRUE(registratore.eventi.empty());
  DisTesto("b", 0, 0, 0, 1, 1);  // the 15000th
  EXPECT_EQ(registratore.eventi,
            std::vector<std::string>{"[messaggio] informazione | ERRORE !! | Si è raggiunto il numero massimo di testi."});
  EXPECT_EQ(disegno.NumTesti, 15000);
  DisTesto("c", 0, 0, 0, 1, 1);
  EXPECT_EQ(disegno.NumTesti, 15000);
  EXPECT_EQ(registratore.eventi.size(), 1u);
}

TEST_F(Archivio, CapacitaDelleLinee) {
  disegno.NumLinee = 49999;
  DisLinea(nullptr, 0, 0, 1, 0);
  EXPECT_EQ(registratore.eventi,
            std::vector<std::string>{"[messaggio] informazione | ERRORE !! | Si è raggiunto il numero massimo di linee."});
  EXPECT_EQ(disegno.NumLinee, 50000);
  DisLinea(nullptr, 0, 0, 7, 0);
  EXPECT_EQ(disegno.NumLinee, 50000);
  EXPECT_EQ(disegno.XMax, 1);  // lost before it moves anything
  EXPECT_EQ(registratore.eventi.size(), 1u);
}

TEST_F(Archivio, CapacitaDegliArchiColTestoDelleLinee) {
  disegno.NumArchi = 14999;
  DisArco(nullptr, 0, 0, 1);
  EXPECT_EQ(registratore.eventi,
            std::vector<std::string>{"[messaggio] informazione | ERRORE !! | Si è raggiunto il numero massimo di linee."});
  EXPECT_EQ(disegno.NumArchi, 15000);
  DisArco(nullptr, 0, 0, 2);  // lost in silence
  EXPECT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(disegno.NumArchi, 15000);
}

TEST_F(Archivio, CapacitaDelleCoordinate) {
  disegno.NumCoord = 49999;  // out of reach of a drawing, whose indices end sooner
  IndiceCoord(1, 1);
  EXPECT_EQ(registratore.eventi,
            std::vector<std::string>{"[messaggio] informazione | ERRORE !! | Si è raggiunto il numero massimo di coordinate."});
}

// A full table: the line is taken back and still moves the extents; only its end is tested.
TEST_F(Archivio, TabellaPiena) {
  disegno.NumCoord = 50000;
  disegno.CoordX[49999] = 5;
  EXPECT_EQ(IndiceCoord(1, 1), -1);
  DisLinea(nullptr, 5, 0, 8, 0);
  EXPECT_EQ(disegno.NumLinee, 0);
  EXPECT_EQ(disegno.XMax, 8);
  EXPECT_FALSE(FaultAritmetico());
  DisArco(nullptr, 700, 700, 3);
  DisTesto("a", 700, 0, 0, 1, 1);
  EXPECT_EQ(disegno.NumArchi, 0);
  EXPECT_EQ(disegno.NumTesti, 0);
  EXPECT_TRUE(registratore.eventi.empty());  // the box came with the last place
}

TEST_F(Archivio, La32768esimaCoordinataEUnFault) {
  disegno.NumCoord = 32766;
  EXPECT_EQ(IndiceCoord(7, 7), 32766);  // the 32767th, the last that fits
  EXPECT_FALSE(FaultAritmetico());
  DisLinea(nullptr, 7, 7, 8, 8);
  EXPECT_TRUE(FaultAritmetico());
  EXPECT_TRUE(disegno.Interrotto);
  EXPECT_EQ(disegno.NumCoord, 32767);
  EXPECT_EQ(disegno.NumLinee, 0);  // its start had a place, its end has none: taken back
  const int linee = disegno.NumLinee;
  DisLinea(nullptr, 7, 7, 7, 8);  // nothing is stored any more
  EXPECT_EQ(disegno.NumLinee, linee);
  AzzeraDisegno();
  EXPECT_FALSE(disegno.Interrotto);
}

// Of an arc only the start is tested.
TEST_F(Archivio, ArcoSenzaPostoPerLaFine) {
  disegno.NumCoord = 32765;  // room for the centre and the start
  DisArco(nullptr, 500, 500, 20, {}, 0, 1);
  EXPECT_EQ(disegno.NumArchi, 1);
  EXPECT_EQ(disegno.ArcIni[0], 32766);
  EXPECT_LT(disegno.ArcFin[0], 0);
  EXPECT_TRUE(disegno.Interrotto);
  AzzeraDisegno();
  AzzeraFault();
  disegno.NumCoord = 32766;  // for the centre alone
  DisArco(nullptr, 700, 700, 20, {}, 0, 1);
  EXPECT_EQ(disegno.NumArchi, 0);
}

TEST_F(Archivio, NumeroFuoriDaSediciBit) {
  DisTesto("a", 0, 0, 0, 3276.71, 1);  // 32767.1 rounds into range
  EXPECT_FALSE(FaultAritmetico());
  DisTesto("a", 0, 0, 0, 3276.8, 1);
  EXPECT_TRUE(FaultAritmetico());
  AzzeraFault();
  suite.ParNodo[3] = 40000;
  ColoreOpz(3);
  EXPECT_TRUE(FaultAritmetico());
  suite.ParNodo[3] = 2.5;
  EXPECT_EQ(ColoreOpz(3), 2);
}

TEST_F(Archivio, SullaTela) {
  disegno.DestDis = {};
  disegno.OffX = disegno.OffY = 1000;  // never for a canvas
  suite.ParNodo[19] = 1;
  Tela t;
  t.primoPiano = 0x00C000;
  DisLinea(&t, -3, -4, 1, 2);
  DisLinea(&t, 0, 0, 0, 0.00001);
  DisLinea(&t, 0, 0, 3, 0, std::int16_t{3});
  DisArco(&t, 5, 6, 8, {}, 1.0, 2.0);
  DisLineaRel(&t, 10, 20, 3, 4, std::int16_t{0});  // only in the store is 0 replaced
  ASSERT_EQ(t.tratti.size(), 4u);
  EXPECT_EQ(t.tratti[0].x1, -3);
  EXPECT_EQ(t.tratti[0].y1, -4);
  EXPECT_EQ(t.tratti[0].x2, 1);
  EXPECT_EQ(t.tratti[0].y2, 2);
  EXPECT_EQ(t.tratti[0].colore, 0x00C000);
  EXPECT_EQ(t.tratti[2].xc, 5);
  EXPECT_EQ(t.tratti[2].yc, 6);
  EXPECT_EQ(t.tratti[2].colore, 0x00C000);
  EXPECT_EQ(t.tratti[3].x1, 10);
  EXPECT_EQ(t.tratti[3].y2, 24);
  EXPECT_EQ(t.tratti[3].colore, 0);
  EXPECT_EQ(t.tratti[1].colore, 0x000080);
  EXPECT_EQ(t.tratti[2].raggio, 4);
  EXPECT_EQ(t.tratti[2].a1, 1.0);
  EXPECT_EQ(t.tratti[2].a2, 2.0);
  EXPECT_EQ(disegno.NumLinee + disegno.NumArchi, 0);
  EXPECT_EQ(disegno.XMax, -1e10);
}

TEST_F(Archivio, Tavolozze) {
  const std::int32_t rgb[] = {0x000080, 0xFFFFFF, 0x800000, 0x00C000, 0x00C0C0, 0x008000, 0x800080, 0x123456};
  const int indici[] = {3, 1, 2, 4, 5, 6, 7, 0};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(ColoreDaRgb(rgb[i]), indici[i]);
  suite.ParNodo[19] = 1;
  const std::int32_t una[] = {0, 0xFFFFFF, 0x800000, 0x000080, 0x00C000, 0x00C0C0, 0x008000, 0x800080, 0};
  for (int i = 0; i <= 8; ++i) EXPECT_EQ(RgbDaColore(i), una[i]);
  suite.ParNodo[19] = 2;
  const std::int32_t altra[] = {0xFFFFFF, 0, 0xFFFF00, 0x0000FF, 0x00FF00, 0x00FFFF, 0x0080FF, 0xFF00FF, 0xFFFFFF};
  for (int i = 0; i <= 8; ++i) EXPECT_EQ(RgbDaColore(i), altra[i]);
  EXPECT_EQ(RgbDaColore(-1), 0xFFFFFF);
  suite.ParNodo[19] = 0.5;  // 1 alone has the other one
  EXPECT_EQ(RgbDaColore(1), 0);
}

TEST_F(Archivio, OrdinaVett) {
  double v[] = {99, 3, -1, 2, 2, -7};
  OrdinaVett(v, 5);
  EXPECT_EQ(v[0], 99);  // index 0 is free
  EXPECT_EQ(v[1], -7);
  EXPECT_EQ(v[2], -1);
  EXPECT_EQ(v[4], 2);
  EXPECT_EQ(v[5], 3);
}

}  // namespace
