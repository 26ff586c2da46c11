// test_esecutivo.cpp - the sheet by hand: places of the views, and lines, arcs and texts of each.
// The joint of corredo/nodo_disegno.h: column to height max(400, 225) = 400; chamfers 50 (up), 30 (Z), 50 (Y); rods' top at 120 - 70 = 50.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "core/aritmetica.h"
#include "corredo/nodo_disegno.h"
#include "corredo/registratore.h"
#include "drawing/Quote.h"
#include "drawing/edizione.h"
#include "drawing/esecutivo.h"
#include "drawing/formats/formati.h"
#include "drawing/pianta.h"
#include "engine/Saldature.h"
#include "model/suite.h"

namespace {

class Foglio : public ::testing::Test {
 protected:
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    NodoDiProva();
    OpzioniDiProva();
    edizione = EdizioneDis();
  }
  void TearDown() override { AzzeraFault(); }
  void Disegna() { ASSERT_TRUE(DisegnaFoglio()); }
  // One part alone, as the sheet would draw it.
  void Prepara() {
    AzzeraDisegno();
    AzzeraEstensioni();
    disegno.DestDis = GENDIS;
    CalcolaSmussi();
    esecutivo.HColDis = 400;
  }
  void Linea(double x1, double y1, double x2, double y2, int colore, int tipo = 0) {
    const int i = TrovaLinea(x1, y1, x2, y2, OX, OY);
    ASSERT_GE(i, 0) << x1 << ' ' << y1 << " - " << x2 << ' ' << y2;
    EXPECT_EQ(disegno.LinCol[i], colore) << x1 << ' ' << y1 << " - " << x2 << ' ' << y2;
    EXPECT_EQ(disegno.LinTipo[i], tipo) << x1 << ' ' << y1 << " - " << x2 << ' ' << y2;
  }
  void Manca(double x1, double y1, double x2, double y2) {
    EXPECT_LT(TrovaLinea(x1, y1, x2, y2, OX, OY), 0) << x1 << ' ' << y1 << " - " << x2 << ' ' << y2;
  }
  // Corner arc of the weld's size from the direction of quadrant q's beginning to its end.
  void Angolo(double x, double y, int q) {
    for (int i = TrovaArco(x, y, 7, OX, OY); i >= 0; i = TrovaArco(x, y, 7, OX, OY, i)) {
      const double a = (q - 1) * 1.570796;
      if (std::abs(disegno.CoordX[disegno.ArcIni[i]] - (OX + x + 7 * std::cos(a))) < 1e-3 && std::abs(disegno.CoordY[disegno.ArcIni[i]] - (OY + y + 7 * std::sin(a))) < 1e-3) {
        EXPECT_EQ(disegno.ArcCol[i], 9);
        return;
      }
    }
    FAIL() << "no corner arc at " << x << ' ' << y << " quadrant " << q;
  }
  // The text's anchor: n characters of 18 around xCentro.
  void TestoA(int i, double x, double y, int angolo, int colore) {
    ASSERT_GE(i, 0);
    EXPECT_NEAR(disegno.CoordX[disegno.TesPos[i]], OX + x, 1e-3);
    EXPECT_NEAR(disegno.CoordY[disegno.TesPos[i]], OY + y, 1e-3);
    EXPECT_EQ(disegno.TesAng[i], angolo);
    EXPECT_EQ(disegno.TesCol[i], colore);
  }
  double OX = 0, OY = 0;           // origin of the view that is looked at
};

// B-B ends at x 588 (chains at 450 + 18 + 45 = 513 and 588) and y -872 (-627 - 50 - 45 = -722, -797, -872).
TEST_F(Foglio, PostoDelleViste) {
  Disegna();
  EXPECT_GE(TrovaTesto("280"), 0);
  const Esecutivo& e = esecutivo;
  EXPECT_DOUBLE_EQ(e.HColDis, 400);
  EXPECT_DOUBLE_EQ(e.XQuoteDx, 513);
  EXPECT_DOUBLE_EQ(e.BoxBXMax, 588);
  EXPECT_DOUBLE_EQ(e.BoxBXMin, -450);
  EXPECT_DOUBLE_EQ(e.BoxBYMax, 400);
  EXPECT_DOUBLE_EQ(e.BoxBYMin, -872);
  TestoA(TrovaTesto("SEZIONE B-B"), -11 * 9, 475, 0, 7);
  // A-A: -450 - 0.8 x 700 = -1010; its foundation reaches 500, its chains stand at -563 and -638.
  EXPECT_DOUBLE_EQ(e.BoxAXMin, -1010 - 638);
  TestoA(TrovaTesto("SEZIONE A-A"), -1010 - 11 * 9, 475, 0, 7);
  // C-C: -872 - 350 - 187.5 = -1409.5; its section line reaches 385.
  TestoA(TrovaTesto("SEZIONE C-C"), -11 * 9, -1409.5 + 460, 0, 7);
  EXPECT_DOUBLE_EQ(e.YTitoloC, -949.5);
  TestoA(TrovaTesto("ESECUTIVO NODI"), (588 - 1648) / 2.0 - 14 * 9, 550, 0, 7);
  TestoA(TrovaTesto("TIRAFONDO"), -1010 - 9 * 9, -949.5, 0, 7);
  // Schedule: 588 + 90, 400; first cell's text: "Prof." in a column of "HEX 200" + 2 = 9 characters.
  TestoA(TrovaTesto("Prof."), 678 + 45 - 25, 400 - 22.5 + 3.75, 0, 1);
  EXPECT_EQ(disegno.ColCorr, 2);
}

TEST_F(Foglio, TitoloConINodi) {
  nodo.NumNodiStr = 2;
  nodo.NodiStr[1] = 12;
  nodo.NodiStr[2] = 15;
  Disegna();
  EXPECT_GE(TrovaTesto("ESECUTIVO NODI: 12,15"), 0);
}

TEST_F(Foglio, SenzaQuoteLeVisteSiAvvicinano) {
  suite.ParNodo[15] = 0;
  Disegna();
  EXPECT_DOUBLE_EQ(esecutivo.BoxBXMax, 450);
  EXPECT_DOUBLE_EQ(esecutivo.BoxBYMin, -627);
  TestoA(TrovaTesto("SEZIONE C-C"), -11 * 9, -627 - 350 - 187.5 + 460, 0, 7);
  TestoA(TrovaTesto("Prof."), 540 + 45 - 25, 400 - 22.5 + 3.75, 0, 1);
  EXPECT_LT(TrovaTesto("280"), 0);             // between the anchors: a measure of a chain
  // the detail's four stay: width, hole, rising length, total
  for (const char* t : {"20", "100", "570", "620"}) {
    const int i = TrovaTesto(t);
    ASSERT_GE(i, 0) << t;
    EXPECT_EQ(disegno.TesCol[i], 6) << t;
  }
}

TEST_F(Foglio, SenzaDistinta) {
  Disegna();
  const auto con = std::make_unique<Disegno>(disegno);
  suite.ParNodo[18] = 0;
  Disegna();
  ASSERT_LT(disegno.NumLinee, con->NumLinee);
  EXPECT_EQ(disegno.NumArchi, con->NumArchi);
  for (int i = 0; i < disegno.NumLinee; ++i) ASSERT_TRUE(disegno.LinIni[i] == con->LinIni[i] && disegno.LinFin[i] == con->LinFin[i]);
  for (int i = 0; i < disegno.NumTesti; ++i) ASSERT_EQ(disegno.TesStr[static_cast<std::size_t>(i)], con->TesStr[static_cast<std::size_t>(i)]);
  EXPECT_EQ(con->TesStr[static_cast<std::size_t>(disegno.NumTesti)], "Prof.");
}

TEST_F(Foglio, TirafondiPerVista) {
  const int attesiB[] = {2, 3, 2, 3}, attesiA[] = {2, 3, 3, 2};
  for (int i = 0; i < 4; ++i) {
    nodo.OptionNTir = i;
    Prepara();
    VistaBB();
    EXPECT_EQ(esecutivo.NumFori, attesiB[i]) << i;
    VistaAA();
    EXPECT_EQ(esecutivo.NumFori, attesiA[i]) << i;
  }
}

TEST_F(Foglio, TerziTirafondiDalloSchema) {
  nodo.TfZ[8] = 210;
  nodo.TfZ[6] = 190;
  for (const auto& [schema, x] : {std::pair{1, 10.0}, std::pair{3, -10.0}}) {
    nodo.OptionNTir = schema;
    Prepara();
    VistaBB();
    EXPECT_EQ(esecutivo.ForiX[2], x);
    Linea(x - 10, 50, x + 10, 50, 2);          // the rod's cap
    Linea(x - 50, -70, x - 10, -70, 3);        // footing up to it
  }
}

TEST_F(Foglio, VistaBBPiastraEPlinto) {
  Prepara();
  VistaBB();
  Linea(-200, 0, -200, -20, 3);                // plate's ends
  Linea(200, 0, 200, -20, 3);
  for (const double y : {0.0, -20.0}) {        // metal, hole, metal, hole, metal
    Linea(-200, y, -150, y, 3);
    Linea(-150, y, -130, y, 2);
    Linea(-130, y, 130, y, 3);
    Linea(130, y, 150, y, 2);
    Linea(150, y, 200, y, 3);
  }
  Linea(-130, 0, -130, -20, 3);                // through the plate
  Linea(-150, 0, -150, -20, 3);
  Linea(-200, -20, -250, -20, 3);              // grout and slope
  Linea(-250, -20, -300, -70, 3);
  Linea(250, -20, 300, -70, 3);
  Linea(-450, -70, -190, -70, 3);              // foundation, 5 M beyond the plate, up to the hole
  Linea(-190, -70, -150, -70, 3);              // hole's edge to the rod
  Linea(-130, -70, -90, -70, 3);
  Linea(-90, -70, 90, -70, 3);
  Linea(450, -70, 190, -70, 3);
}

TEST_F(Foglio, VistaBBColonna) {
  Prepara();
  VistaBB();
  Linea(-90, 150, -90, 400, 2);                // above the ribs
  Linea(90, 150, 90, 400, 2);
  Linea(-90, 7, 90, 7, 9);                     // foot weld, whole
  Linea(-5, 0, -5, 400, 2, 4);                 // hidden web
  Linea(5, 0, 5, 400, 2, 4);
  Linea(-99, 400, 99, 400, 2, 1);              // axis
  nodo.TipoNodo = 1;
  nodo.OptionNTir = 3;
  Prepara();
  VistaBB();
  Linea(-90, 0, -90, 400, 2);
  Manca(-5, 0, -5, 400);
  Linea(-90, 7, -20, 7, 9);                    // room for the middle anchor
  Linea(20, 7, 90, 7, 9);
  Linea(-99, 400, 99, 400, 2, 1);
}

TEST_F(Foglio, VistaBBSezioniENome) {
  Prepara();
  VistaBB();
  Linea(-200, 320, 200, 320, 4, 1);            // C at 0.8 x 400
  Linea(-200, 320, -200, 357.5, 4, 1);
  Linea(200, 320, 200, 357.5, 4, 1);
  const int c1 = TrovaTesto("C"), c2 = TrovaTesto("C", c1);
  TestoA(c1, -220 - 13.5 - 9, 320, 0, 7);      // between -247 and -220
  TestoA(c2, 220 + 18 - 9, 320, 0, 7);         // between 229 and 247
  Linea(140, 120, 140, -627, 4, 1);            // A through the right anchor, 1.1 x 570 down
  Linea(140, 120, 167, 120, 4, 1);
  Linea(140, -627, 167, -627, 4, 1);
  const int a1 = TrovaTesto("A"), a2 = TrovaTesto("A", a1);
  TestoA(a1, 153.5 - 9, 132.5, 0, 7);
  TestoA(a2, 153.5 - 9, -627 - 37.5, 0, 7);
  TestoA(TrovaTesto("HEX 200"), -35, 220 - 7 * 9, 90, 7);   // (-90 - 5) / 2 + 12.5, around (40 + 400) / 2
  EXPECT_EQ(disegno.TipoLinCorr, 0);
}

TEST_F(Foglio, VistaBBNervature) {
  Prepara();
  VistaBB();
  for (const int s : {-1, 1}) {
    Linea(s * 200, 0, s * 200, 50, 2);         // plate's edge
    Linea(s * 200, 50, s * 128, 150, 2);       // slope, whole: the rods end below it
    Linea(s * 128, 150, s * 98, 150, 2);       // level
    Linea(s * 90, 150, s * 98, 150, 3);        // the cut rib
    Linea(s * 98, 0, s * 98, 150, 3);
    Linea(s * 90, 0, s * 90, 150, 3);
    Linea(s * 105, 0, s * 105, 150, 9);        // marks away from its steel
    Linea(s * 83, 0, s * 83, 150, 9);
    Linea(s * 98, 150, s * 105, 150, 9);       // end strokes on the outer face only
    Manca(s * 90, 150, s * 83, 150);
    Angolo(s * 90, 0, s < 0 ? 1 : 2);
    Angolo(s * 98, 0, s < 0 ? 2 : 1);
    Linea(s * 200, 7, s * 160, 7, 9);          // foot welds on both sides of the anchor
    Linea(s * 120, 7, s * 98, 7, 9);
  }
}

// Rods of 190 mm: top at 120. Slope from (200, 50) to (128, 150): y = 50 + (200 - x) 100 / 72. Rod 130 to 150: the slope is at 119.44
// on its outer side and passes the top at x = 149.6.
TEST_F(Foglio, TirafondoDavantiAllaNervatura) {
  nodo.TfLFt = 190;
  Prepara();
  NervatureBB();
  Linea(200, 50, 150, 50 + 50 * 100 / 72.0, 2);
  Linea(149.6, 120, 128, 150, 2);
  Linea(128, 150, 98, 150, 2);                 // the level part is whole
  nodo.TfLFt = 215;                            // top at 145: the slope is 147.22 on its inner side, and passes at 131.6
  Prepara();
  NervatureBB();
  Linea(131.6, 145, 128, 150, 2);
  nodo.TfLFt = 230;                            // top at 160: over the level; rod moved to 110 .. 130, across the bend
  nodo.TfZ[2] = 320;
  Prepara();
  NervatureBB();
  Linea(200, 50, 130, 50 + 70 * 100 / 72.0, 2);
  Manca(130, 150, 128, 150);
  Linea(110, 150, 98, 150, 2);
  nodo.TfLFt = 200;                            // top at 130, below the level: only the slope is looked at, and stays whole
  nodo.TfZ[2] = 325;
  Prepara();
  NervatureBB();
  Linea(128, 150, 98, 150, 2);
}

// Across the column the flat rib's edge at 150 passes behind the rods of view A-A, where there is one: top at 230 - 70 = 160.
TEST_F(Foglio, NervaturaDietroITirafondiAttraversoLaColonna) {
  nodo.TfLFt = 230;
  Prepara();
  NervatureAA();
  Linea(-92, 150, 92, 150, 2);                 // four anchors: none at mid side
  nodo.OptionNTir = 2;
  nodo.TfY[6] = 256;                           // 6 from the axis: rod from -4 to 16
  Prepara();
  NervatureAA();
  Linea(-92, 150, -4, 150, 2);
  Linea(16, 150, 92, 150, 2);
  nodo.TfY[2] = 200, nodo.TfY[4] = 300;        // anchors beside the web, at -50 and 50
  Prepara();
  NervatureAA();
  Linea(-92, 150, -60, 150, 2);
  Linea(-40, 150, -4, 150, 2);
  Linea(16, 150, 40, 150, 2);
  Linea(60, 150, 92, 150, 2);
}

TEST_F(Foglio, SaldaturePiedeSoloSePositive) {
  nodo.TfZ[1] = 15;                            // anchor less Fi lies beyond the plate's edge
  Prepara();
  NervatureBB();
  Linea(-165, 7, -98, 7, 9);
  EXPECT_LT(TrovaLinea(-200, 7, -205, 7), 0);
}

TEST_F(Foglio, VistaAA) {
  nodo.OptionNTir = 2;
  Prepara();
  VistaAA();
  for (const int s : {-1, 1}) {
    Linea(s * 250, 0, s * 250, 50, 2);
    Linea(s * 250, 50, s * 150, 150, 2);       // 100 + NervY 50
    Linea(s * 150, 150, s * 100, 150, 2);
    Linea(s * 92, 150, s * 100, 150, 3);
    Linea(s * 107, 0, s * 107, 150, 9);
    Linea(s * 85, 0, s * 85, 150, 9);
    Angolo(s * 92, 0, s < 0 ? 1 : 2);
    Angolo(s * 100, 0, s < 0 ? 2 : 1);
    Linea(s * 100, 150, s * 100, 400, 2);      // flanges above the ribs
    Linea(s * 85, 150, s * 85, 400, 2);
  }
  Linea(-92, 150, 92, 150, 2);                 // the flat rib runs on across the column
  Manca(-85, 7, 85, 7);                        // no foot weld between the flanges with ribs
  Linea(-110, 400, 110, 400, 2, 1);
  Linea(-250, 320, 250, 320, 4, 1);
  Linea(-180, 120, -180, -627, 4, 1);          // B through the lower anchors, ticks to the left
  Linea(-180, 120, -207, 120, 4, 1);
  const int b1 = TrovaTesto("B");
  TestoA(b1, -193.5 - 9, 132.5, 0, 7);
  const int c1 = TrovaTesto("C");
  TestoA(c1, -275 - 13.5 - 9, 320, 0, 7);
  TestoA(TrovaTesto("HEX 200"), 12.5, 220 - 63, 90, 7);
  Linea(-50, -70, -10, -70, 3);                // footing up to the middle anchor
}

TEST_F(Foglio, VistaAASenzaNervature) {
  nodo.TipoNodo = 1;
  Prepara();
  VistaAA();
  Linea(-85, 7, 85, 7, 9);
  Linea(-100, 0, -100, 400, 2);
  Angolo(-100, 0, 2);
  Angolo(100, 0, 1);
  Angolo(-85, 0, 1);
  Angolo(85, 0, 2);
  nodo.OptionNTir = 2;
  Prepara();
  VistaAA();
  Linea(-85, 7, -20, 7, 9);
  Linea(20, 7, 85, 7, 9);
}

TEST_F(Foglio, UncinoDrittoInAA) {
  nodo.TipoTirafondo = 1;
  Prepara();
  VistaBB();
  EXPECT_GE(TrovaArco(-140 + 10 - 70, -70 - 500 + 70, 70), 0);
  Prepara();
  VistaAA();
  EXPECT_LT(TrovaArco(-180 + 10 - 70, -70 - 500 + 70, 70), 0);
  Linea(-190, -570, -170, -570, 2);            // its lower end
}

TEST_F(Foglio, VistaCC) {
  esecutivo.XQuoteDx = 513;
  Prepara();
  VistaCC();
  Linea(-200, -250, -200, 250, 2);             // plate, grout bed, its slope
  Linea(-250, 300, 250, 300, 2);
  Linea(300, -350, 300, 350, 2);
  for (const int sx : {-1, 1})
    for (const int sy : {-1, 1}) Linea(sx * 250, sy * 300, sx * 300, sy * 350, 2);
  Linea(-155, -180, -125, -180, 2);            // anchor 1: cross of 1.5 Fi
  Linea(-140, -195, -140, -165, 2);
  EXPECT_GE(TrovaArco(-140, -180, 10), 0);
  Linea(-90, 100, 90, 100, 3);                 // section, cut
  Linea(-90, 107, 90, 107, 9);                 // its weld 3, outside the steel
  Linea(5 + 7, 73, 5 + 7, -73, 9);             // weld 1 right of the web
  Linea(-330, -180, 330, -180, 4, 1);          // B at the lower anchors, ticks downward
  Linea(330, -180, 330, -217.5, 4, 1);
  const int b1 = TrovaTesto("B"), b2 = TrovaTesto("B", b1);
  TestoA(b1, -330 - 13.5 - 9, -180 - 37.5, 0, 7);
  TestoA(b2, 330 + 18 - 9, -180 - 37.5, 0, 7);
  Linea(140, -385, 140, 385, 4, 1);            // A
  Linea(140, 385, 167, 385, 4, 1);
  const int a1 = TrovaTesto("A"), a2 = TrovaTesto("A", a1);
  TestoA(a1, 153.5 - 9, -385 - 37.5, 0, 7);
  TestoA(a2, 153.5 - 9, 385 + 12.5, 0, 7);
  for (int w = 1; w <= 8; ++w) EXPECT_EQ(ContaTesti("S" + std::to_string(w)), 0);   // the table was not built here
  EXPECT_LT(TrovaTesto("HEX 200"), 0);         // with ribs there is no room for the name
  EXPECT_FALSE(quote.EtichetteSald);
  EXPECT_DOUBLE_EQ(esecutivo.BoxCXMax, 513 + 150);
  EXPECT_DOUBLE_EQ(esecutivo.BoxCXMin, -330 - 36 - 45);
  EXPECT_DOUBLE_EQ(esecutivo.BoxCYMin, -385 - 50 - 45 - 150);
  EXPECT_DOUBLE_EQ(esecutivo.BoxCYMax, 385);
}

TEST_F(Foglio, NomiDelleSaldature) {
  Disegna();
  for (int w = 1; w <= 8; ++w) EXPECT_EQ(ContaTesti("S" + std::to_string(w)), 2) << w;       // plan and schedule
  EXPECT_EQ(ContaTesti("S19"), 0);
  nodo.SaldInt = 1;
  Disegna();
  EXPECT_EQ(ContaTesti("S19"), 3);             // both sides carry it
  for (const int s : {-1, 1}) EXPECT_GE(TrovaLinea(s * 83, -85, s * 83, 85, 0, -1409.5), 0);  // inside the flanges
  EXPECT_EQ(ContaTesti("S9"), 1);
}

TEST_F(Foglio, NomeInPiantaSenzaNervature) {
  nodo.TipoNodo = 1;
  Prepara();
  VistaCC();
  // right end -5 - 7 - 18 = -30; height (100 - 15 - 7) / 2 - 12.5 = 26.5
  TestoA(TrovaTesto("HEX 200"), -30 - 7 * 18, 26.5, 0, 7);
}

// Faces of the ribs in plan with their marks on the outer side of the steel, the six ends, the corner arcs.
TEST_F(Foglio, NervatureInPianta) {
  Prepara();
  disegno.ColCorr = 2;
  NervaturePianta();
  struct {
    double x1, y1, x2, y2, mx, my;             // face, displacement of its mark; x times s
  } facce[] = {
    {90, -250, 90, -100, -7, 0}, {90, 250, 90, 100, -7, 0}, {98, -250, 98, -100, 7, 0}, {98, -92, 98, 92, 7, 0}, {98, 250, 98, 100, 7, 0},
    {200, -100, 98, -100, 0, -7}, {200, -92, 98, -92, 0, 7}, {200, 92, 98, 92, 0, -7}, {200, 100, 98, 100, 0, 7},
  };
  for (const int s : {-1, 1}) {
    for (const auto& f : facce) {
      Linea(s * f.x1, f.y1, s * f.x2, f.y2, 2);
      Linea(s * (f.x1 + f.mx), f.y1 + f.my, s * (f.x2 + f.mx), f.y2 + f.my, 9);
    }
    for (const double y : {-250.0, 250.0}) Linea(s * 90, y, s * 98, y, 2);
    for (const double x : {200.0, 98.0}) {
      Linea(s * x, -100, s * x, -92, 2);
      Linea(s * x, 92, s * x, 100, 2);
    }
    const bool d = s > 0;                      // quadrants of the right side; the left one is its mirror
    Angolo(s * 90, -250, d ? 2 : 1);
    Angolo(s * 90, -100, d ? 3 : 4);
    Angolo(s * 90, 250, d ? 3 : 4);
    Angolo(s * 90, 100, d ? 2 : 1);
    Angolo(s * 98, -250, d ? 1 : 2);
    Angolo(s * 98, -100, d ? 4 : 3);
    Angolo(s * 98, -92, d ? 1 : 2);
    Angolo(s * 98, 92, d ? 4 : 3);
    Angolo(s * 98, 250, d ? 4 : 3);
    Angolo(s * 98, 100, d ? 1 : 2);
    Angolo(s * 200, -100, d ? 3 : 4);
    Angolo(s * 200, -92, d ? 2 : 1);
    Angolo(s * 200, 92, d ? 3 : 4);
    Angolo(s * 200, 100, d ? 2 : 1);
  }
  EXPECT_EQ(disegno.NumArchi, 28);
  nodo.SaldInt = 1;
  Prepara();
  NervaturePianta();
  EXPECT_EQ(disegno.NumArchi, 32);
  Angolo(90, -85, 2);
  Angolo(90, 85, 3);
  Angolo(-90, -85, 1);
  Angolo(-90, 85, 4);
}

// Every item of the sheet without chains, counted by hand. A mark of length L has Int(L / 7 + 0.5) - 1 strokes, one parallel line, and two
// strokes more when of kind 1.
TEST_F(Foglio, OgniElementoContato) {
  suite.ParNodo[15] = 0;
  const auto conta = [&](void (*parte)(), int linee, int archi, int testi) {
    const int l = disegno.NumLinee, a = disegno.NumArchi, t = disegno.NumTesti;
    parte();
    EXPECT_EQ(disegno.NumLinee - l, linee);
    EXPECT_EQ(disegno.NumArchi - a, archi);
    EXPECT_EQ(disegno.NumTesti - t, testi);
  };
  CostruisciSaldature();
  Prepara();
  // rod: 2 through the plate, 2 sides and cap, 3 nuts of 5, 4 sides, 4 of the anchor plate, 2 of its welds = 30 and 4 arcs
  // ribs a side: 4 edges, faces of 150 (20 + 2 + 1 + 1 and 20 + 1 + 1), foot 40 (6) and 22 (3) = 59; plate 12, column 2 + 26 + 2 + 1,
  // footing 11, sections 6
  conta(VistaBB, 2 * 59 + 2 * 30 + 12 + 31 + 11 + 6, 4 + 8, 5);
  // foot 50 (7) and 60 (9), the rib across the column, no foot weld of the column
  conta(VistaAA, 2 * 66 + 1 + 2 * 30 + 12 + 5 + 11 + 6, 4 + 8, 5);
  // ribs a side: 4 faces of 150 (22), one of 184 (27), 4 of 102 (16), 6 ends; 3 rectangles, 4 diagonals, 4 crosses; section 12 with marks
  // 2 of 146 (21), 4 of 73 (10), 2 of 180 (26); 2 inner lines; sections 6. Arcs: 28 corners, 4 anchors, 4 fillets
  conta(VistaCC, 2 * (88 + 27 + 64 + 6) + 12 + 4 + 8 + 12 + 42 + 40 + 52 + 2 + 6, 28 + 4 + 4, 4 + 8);
  // head 5, rod 10, four dimensions with two circles each; label
  conta(DettaglioTirafondo, 15 + 4, 4 + 8, 5);
  // grids: rows + 1 and columns + 1; cells: 10, 8, 12, 6, 39 x 3
  conta(Distinta, 9 + 8 + 9 + 7 + 44, 0, 10 + 8 + 12 + 6 + 117);
}

TEST_F(Foglio, LineaConFori) {
  const double centri[] = {10, 50}, larghezze[] = {4, 10};
  Prepara();
  LineaConFori(3, 0, 3, 100, 2, centri, larghezze);          // vertical
  ASSERT_EQ(disegno.NumLinee, 5);
  Linea(3, 0, 3, 8, 3);
  Linea(3, 8, 3, 12, 2);
  Linea(3, 12, 3, 45, 3);
  Linea(3, 45, 3, 55, 2);
  Linea(3, 55, 3, 100, 3);
  Prepara();
  LineaConFori(0, 0, 50, 50, 2, centri, larghezze);          // neither
  EXPECT_EQ(disegno.NumLinee, 0);
}

TEST_F(Foglio, FaultDaScalaNulla) {
  suite.ParNodo[19] = 0;
  nodo.TipoTirafondo = 1;
  EXPECT_FALSE(DisegnaFoglio());
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{std::string("[messaggio] critica | NODO COLONNA - PLINTO | ") + TESTO_FAULT});
  EXPECT_TRUE(disegno.DestDis.empty());
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(Foglio, FaultDaGolaMinuscola) {
  nodo.Gola = 0.001;
  EXPECT_FALSE(DisegnaFoglio());
  EXPECT_EQ(disegno.NumCoord, 32767);
  EXPECT_TRUE(disegno.DestDis.empty());
}

// What an earlier sheet or panel left behind counts for nothing.
TEST_F(Foglio, PartePulito) {
  nodo.NervTaglio = nodo.NervZ = nodo.NervY = 1;
  nodo.NumSaldature = 3;
  quote.EtichetteSald = true;
  Disegna();
  EXPECT_EQ(nodo.NervTaglio, 50);
  EXPECT_EQ(nodo.NervZ, 30);
  EXPECT_EQ(nodo.NervY, 50);
  EXPECT_EQ(nodo.NumSaldature, 40);
  EXPECT_EQ(ContaTesti("S21"), 1);             // in the schedule; the ribs of the plan carry no names
}

// Ribs of 300 show 450 of the column; a column of 900 is larger than the plan: A-A at -450 - 0.8 x 900, C-C at -872 - 450 - 187.5, where
// the weld on the upper flange reaches 450 + 7 and the title stands 75 above it.
TEST_F(Foglio, MisureGrandi) {
  nodo.HNerv = 300;
  Disegna();
  EXPECT_DOUBLE_EQ(esecutivo.HColDis, 450);
  nodo.HNerv = 150;
  nodo.Sezione.H = 900;
  Disegna();
  TestoA(TrovaTesto("SEZIONE A-A"), -1170 - 11 * 9, 475, 0, 7);
  TestoA(TrovaTesto("SEZIONE C-C"), -11 * 9, -872 - 450 - 187.5 + 532, 0, 7);
}

// Holes of 400 around anchors at -140 and 140: from -340 to 340, beyond the grout's slope at 300.
TEST_F(Foglio, ForiOltreLaMalta) {
  nodo.TfDForo = 400;
  Prepara();
  VistaBB();
  Linea(-590, -70, -300, -70, 3);
  Linea(590, -70, 300, -70, 3);
  Linea(-340, -70, -150, -70, 3);
}

// Welded inside means 1; with another value the weld table holds 44 rows, the sheet leaves out 9 and 19.
TEST_F(Foglio, SaldaturaInternaSoloUno) {
  nodo.SaldInt = 2;
  Disegna();
  EXPECT_EQ(nodo.NumSaldature, 44);
  EXPECT_EQ(ContaTesti("S9"), 0);
  EXPECT_EQ(ContaTesti("S19"), 0);
  EXPECT_EQ(ContaTesti("S20"), 1);
}

TEST_F(Foglio, GolaNullaSenzaMarchi) {
  nodo.Gola = 0;
  nodo.TipoTirafondo = 2;                      // no weld of the anchor plate
  suite.ParNodo[18] = 0;
  Prepara();
  VistaBB();
  VistaAA();
  VistaCC();
  for (int i = 0; i < disegno.NumLinee; ++i) ASSERT_NE(disegno.LinCol[i], 9) << i;
  EXPECT_EQ(ContaTesti("S1"), 0);
  Disegna();                                   // names that were never built leave their cells empty
  EXPECT_EQ(ContaTesti("S1"), 0);
}

}  // namespace
