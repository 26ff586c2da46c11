// test_viste.cpp - the two elevations of the sheet by hand: lines, arcs and texts.
#include <utility>

#include "corredo/foglio_prova.h"
#include "drawing/Quote.h"
#include "model/stato.h"

namespace {

TEST_F(FoglioDisegno, TirafondiPerVista) {
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

TEST_F(FoglioDisegno, TerziTirafondiDalloSchema) {
  nodo.TfZ[8] = 210;
  nodo.TfZ[6] = 190;
  for (const auto& [schema, x] : {std::pair{1, 10.0}, std::pair{3, -10.0}}) {
    nodo.OptionNTir = schema;
    Prepara();
    VistaBB();
    EXPECT_EQ(esecutivo.ForiX[2], x);
    Linea(x - 10, 50, x + 10, 50, 2);    // the rod's cap
    Linea(x - 50, -70, x - 10, -70, 3);  // footing up to it
  }
}

// View B-B takes the first and the second, its section the second; of a loaded joint the others need not stand in line with them.
TEST_F(FoglioDisegno, TirafondiDiBB) {
  nodo.TfZ[3] = 80, nodo.TfZ[4] = 300;
  Prepara();
  VistaBB();
  EXPECT_EQ(esecutivo.ForiX[0], -140);
  EXPECT_EQ(esecutivo.ForiX[1], 140);
  Linea(140, 120, 140, -627, 4, 1);
}

// What is being drawn when a view begins counts for nothing.
TEST_F(FoglioDisegno, OgniVistaCominciaContinua) {
  nodo.TipoNodo = 1;
  for (void (*vista)() : {VistaBB, VistaAA, VistaCC}) {
    Prepara();
    disegno.TipoLinCorr = 1;
    disegno.XMin = -7000;
    esecutivo.VistaX = esecutivo.VistaY = 33;
    vista();
    EXPECT_EQ(disegno.LinTipo[0], 0);
    EXPECT_GT(disegno.XMin, -7000);
    if (vista == VistaBB) Linea(-200, 0, -200, -20, 3);
    if (vista == VistaAA) Linea(-250, 0, -250, -20, 3);
    if (vista == VistaCC) Linea(-155, -180, -125, -180, 2);
  }
}

// View A-A takes the second, the fourth and, in both patterns, the sixth, which it draws last; of a loaded joint the first and the
// third need not stand in line with them.
TEST_F(FoglioDisegno, TerzoTirafondoDiAA) {
  nodo.TfY[5] = 240, nodo.TfY[6] = 262, nodo.TfY[8] = 75;
  nodo.TfY[1] = 85, nodo.TfY[3] = 410;
  for (const int schema : {1, 2}) {
    nodo.OptionNTir = schema;
    Prepara();
    VistaAA();
    EXPECT_EQ(esecutivo.ForiX[0], -180);
    Linea(-180, 120, -180, -627, 4, 1);  // the section through the second
    EXPECT_EQ(esecutivo.ForiX[1], 180);
    EXPECT_EQ(esecutivo.ForiX[2], 12);
    Linea(2, 50, 22, 50, 2);
    Linea(-38, -70, 2, -70, 3);
    Linea(-130, -70, -38, -70, 3);  // from hole to hole, the middle one between the others
    Linea(62, -70, 130, -70, 3);
  }
}

// The horizontal chains keep clear of the vertical ones: 700 take the first of these to -20 - 50 - 700, under the section line; then
// 50 + 45 down, and 75 from chain to chain.
TEST_F(FoglioDisegno, QuoteOrizzontaliSottoLeVerticali) {
  nodo.TipoTirafondo = 2;  // no anchor plate, whose thickness is measured all the same
  nodo.TfLF = 700;
  Prepara();
  VistaBB();
  Linea(-190, -865, -90, -865, 5);
  Linea(-200, -940, -128, -940, 5);
  Linea(-140, -1015, 140, -1015, 5);
  EXPECT_DOUBLE_EQ(esecutivo.BoxBYMin, -1015);
}

// The chains of view A-A. The foundation line reaches 250 + 5 x 50 = 500 to the left, so that the first vertical chain stands at
// -500 - 18 - 45 = -563 and the next one 75 farther out. The section line ends at 1.1 x -570 = -627: the first horizontal chain lies
// at -627 - 50 - 45 = -722, the others 75 below one another.
TEST_F(FoglioDisegno, QuoteDiAA) {
  Prepara();
  VistaAA();
  Linea(-563, 0, -563, 150, 5);  // plate to rib: without the cut of the ribs at 50, which is B-B's
  Linea(-563, -20, -563, 0, 5);
  Linea(-563, -80, -563, -70, 5);
  Linea(-638, -70, -638, 50, 5);
  Linea(-638, -570, -638, -70, 5);
  Linea(-230, -722, -130, -722, 5);  // holes of 100 around -180 and 180
  Linea(-130, -722, 130, -722, 5);
  Linea(130, -722, 230, -722, 5);
  Linea(-250, -797, -130, -797, 5);  // plate edge, 100 + NervZ 30
  Linea(-130, -797, 130, -797, 5);
  Linea(-350, -872, -300, -872, 5);  // grout in two steps, anchors
  Linea(-250, -872, -180, -872, 5);
  Linea(-180, -872, 180, -872, 5);
  EXPECT_EQ(esecutivo.BoxAXMin, -638);
  EXPECT_EQ(esecutivo.BoxAXMax, 500);
  EXPECT_EQ(esecutivo.BoxAYMin, -872);
  EXPECT_EQ(esecutivo.BoxAYMax, 400);
  Prepara();
  VistaBB();  // 200 + 250 = 450 to the right
  Linea(513, 0, 513, 50, 5);
  Linea(513, 50, 513, 150, 5);
  Linea(588, -570, 588, -70, 5);
  nodo.TipoNodo = 1;  // no chain of the ribs: the anchors' one moves up
  Prepara();
  VistaAA();
  Manca(-563, 0, -563, 150);
  Manca(-250, -797, -130, -797);
  Linea(-250, -797, -180, -797, 5);
}

TEST_F(FoglioDisegno, VistaBBPiastraEPlinto) {
  Prepara();
  VistaBB();
  Linea(-200, 0, -200, -20, 3);  // plate's ends
  Linea(200, 0, 200, -20, 3);
  for (const double y : {0.0, -20.0}) {  // metal, hole, metal, hole, metal
    Linea(-200, y, -150, y, 3);
    Linea(-150, y, -130, y, 2);
    Linea(-130, y, 130, y, 3);
    Linea(130, y, 150, y, 2);
    Linea(150, y, 200, y, 3);
  }
  Linea(-130, 0, -130, -20, 3);  // through the plate
  Linea(-150, 0, -150, -20, 3);
  Linea(-200, -20, -250, -20, 3);  // grout and slope
  Linea(-250, -20, -300, -70, 3);
  Linea(250, -20, 300, -70, 3);
  Linea(-450, -70, -190, -70, 3);  // foundation, 5 M beyond the plate, up to the hole
  Linea(-190, -70, -150, -70, 3);  // hole's edge to the rod
  Linea(-130, -70, -90, -70, 3);
  Linea(-90, -70, 90, -70, 3);
  Linea(450, -70, 190, -70, 3);
}

TEST_F(FoglioDisegno, VistaBBColonna) {
  Prepara();
  VistaBB();
  Linea(-90, 150, -90, 400, 2);  // above the ribs
  Linea(90, 150, 90, 400, 2);
  Linea(-90, 7, 90, 7, 9);      // foot weld, whole
  Linea(-5, 0, -5, 400, 2, 4);  // hidden web
  Linea(5, 0, 5, 400, 2, 4);
  Linea(-99, 400, 99, 400, 2, 1);  // axis
  nodo.TipoNodo = 1;
  nodo.OptionNTir = 3;
  Prepara();
  VistaBB();
  Linea(-90, 0, -90, 400, 2);
  Manca(-5, 0, -5, 400);
  Linea(-90, 7, -20, 7, 9);  // room for the middle anchor
  Linea(20, 7, 90, 7, 9);
  Manca(-20, 0, -20, 7);  // marks without strokes at their ends
  Manca(20, 0, 20, 7);
  Linea(-99, 400, 99, 400, 2, 1);
  nodo.OptionNTir = 1;
  Prepara();
  VistaBB();
  Linea(-90, 7, -20, 7, 9);
}

TEST_F(FoglioDisegno, VistaBBSezioniENome) {
  Prepara();
  VistaBB();
  Linea(-200, 320, 200, 320, 4, 1);  // C at 0.8 x 400
  Linea(-200, 320, -200, 357.5, 4, 1);
  Linea(200, 320, 200, 357.5, 4, 1);
  const int c1 = TrovaTesto("C"), c2 = TrovaTesto("C", c1);
  TestoA(c1, -220 - 13.5 - 9, 320, 0, 7);  // between -247 and -220
  TestoA(c2, 220 + 18 - 9, 320, 0, 7);     // between 229 and 247
  Linea(140, 120, 140, -627, 4, 1);        // A through the right anchor, 1.1 x 570 down
  Linea(140, 120, 167, 120, 4, 1);
  Linea(140, -627, 167, -627, 4, 1);
  const int a1 = TrovaTesto("A"), a2 = TrovaTesto("A", a1);
  TestoA(a1, 153.5 - 9, 132.5, 0, 7);
  TestoA(a2, 153.5 - 9, -627 - 37.5, 0, 7);
  TestoA(TrovaTesto("HEX 200"), -35, 220 - 7 * 9, 90, 7);  // (-90 - 5) / 2 + 12.5, around (40 + 400) / 2
  EXPECT_EQ(disegno.TipoLinCorr, 0);
}

TEST_F(FoglioDisegno, VistaBBNervature) {
  Prepara();
  VistaBB();
  for (const int s : {-1, 1}) {
    Linea(s * 200, 0, s * 200, 50, 2);    // plate's edge
    Linea(s * 200, 50, s * 128, 150, 2);  // slope, whole: the rods end below it
    Linea(s * 128, 150, s * 98, 150, 2);  // level
    Linea(s * 90, 150, s * 98, 150, 3);   // the cut rib
    Linea(s * 98, 0, s * 98, 150, 3);
    Linea(s * 90, 0, s * 90, 150, 3);
    Linea(s * 105, 0, s * 105, 150, 9);  // marks away from its steel
    Linea(s * 83, 0, s * 83, 150, 9);
    Linea(s * 98, 150, s * 105, 150, 9);  // end strokes on the outer face only
    Manca(s * 90, 150, s * 83, 150);
    Angolo(s * 90, 0, s < 0 ? 1 : 2);
    Angolo(s * 98, 0, s < 0 ? 2 : 1);
    Linea(s * 200, 7, s * 160, 7, 9);  // foot welds on both sides of the anchor
    Linea(s * 120, 7, s * 98, 7, 9);
  }
}

// Rods of 190 mm: top at 120. Slope from (200, 50) to (128, 150): y = 50 + (200 - x) 100 / 72. Rod 130 to 150: the slope is at 119.44
// on its outer side and passes the top at x = 149.6.
TEST_F(FoglioDisegno, TirafondoDavantiAllaNervatura) {
  nodo.TfLFt = 190;
  Prepara();
  NervatureBB();
  Linea(200, 50, 150, 50 + 50 * 100 / 72.0, 2);
  Linea(149.6, 120, 128, 150, 2);
  Linea(128, 150, 98, 150, 2);  // the level part is whole
  nodo.TfLFt = 215;             // top at 145: the slope is 147.22 on its inner side, and passes at 131.6
  Prepara();
  NervatureBB();
  Linea(131.6, 145, 128, 150, 2);
  nodo.TfLFt = 230;  // top at 160: over the level; rod moved to 110 .. 130, across the bend
  nodo.TfZ[2] = 320;
  Prepara();
  NervatureBB();
  Linea(200, 50, 130, 50 + 70 * 100 / 72.0, 2);
  Manca(130, 150, 128, 150);
  Linea(110, 150, 98, 150, 2);
  nodo.TfLFt = 200;  // top at 130, below the level: only the slope is looked at, and stays whole
  nodo.TfZ[2] = 325;
  Prepara();
  NervatureBB();
  Linea(128, 150, 98, 150, 2);
}

// View A-A shows anchors 2 and 4: a file may give them other places than 1 and 3. Rods 20 wide at -180 and 180, top at 160; the
// slope from (250, 50) to (150, 150) stands at 110 and 130 on their sides.
TEST_F(FoglioDisegno, NervaturaDietroITirafondiDiAA) {
  nodo.TfLFt = 230;
  nodo.TfY[1] = 40;
  nodo.TfY[3] = 460;
  Prepara();
  NervatureAA();
  for (const int s : {-1, 1}) {
    Linea(s * 250, 50, s * 190, 110, 2);
    Linea(s * 170, 130, s * 150, 150, 2);
  }
}

// Across the column the flat rib's edge at 150 passes behind the rods of view A-A, where there is one: top at 230 - 70 = 160.
TEST_F(FoglioDisegno, NervaturaDietroITirafondiAttraversoLaColonna) {
  nodo.TfLFt = 230;
  Prepara();
  NervatureAA();
  Linea(-92, 150, 92, 150, 2);  // four anchors: none at mid side
  nodo.OptionNTir = 2;
  nodo.TfY[6] = 256;  // 6 from the axis: rod from -4 to 16
  Prepara();
  NervatureAA();
  Linea(-92, 150, -4, 150, 2);
  Linea(16, 150, 92, 150, 2);
  nodo.TfY[2] = 200, nodo.TfY[4] = 300;  // anchors beside the web, at -50 and 50
  Prepara();
  NervatureAA();
  Linea(-92, 150, -60, 150, 2);
  Linea(-40, 150, -4, 150, 2);
  Linea(16, 150, 40, 150, 2);
  Linea(60, 150, 92, 150, 2);
}

TEST_F(FoglioDisegno, SaldaturePiedeSoloSePositive) {
  nodo.TfZ[1] = 15;  // anchor less Fi lies beyond the plate's edge
  Prepara();
  NervatureBB();
  nodo.TfZ[2] = 385;
  Prepara();
  NervatureBB();
  for (const int s : {-1, 1}) {
    Linea(s * 165, 7, s * 98, 7, 9);
    for (const int lato : {-7, 7}) Manca(s * 200, lato, s * 205, lato);
  }
  nodo.TfZ[1] = 250;  // anchors under the column, in the wrong order: the foot welds are whole
  nodo.TfZ[2] = 150;
  Prepara();
  NervatureBB();
  for (const int s : {-1, 1}) Linea(s * 200, 7, s * 98, 7, 9);
}

TEST_F(FoglioDisegno, VistaAA) {
  nodo.OptionNTir = 2;
  Prepara();
  VistaAA();
  for (const int s : {-1, 1}) {
    Linea(s * 250, 0, s * 250, 50, 2);
    Linea(s * 250, 50, s * 150, 150, 2);  // 100 + NervY 50
    Linea(s * 150, 150, s * 100, 150, 2);
    Linea(s * 92, 150, s * 100, 150, 3);
    Linea(s * 107, 0, s * 107, 150, 9);
    Linea(s * 85, 0, s * 85, 150, 9);
    Angolo(s * 92, 0, s < 0 ? 1 : 2);
    Angolo(s * 100, 0, s < 0 ? 2 : 1);
    Linea(s * 100, 150, s * 100, 400, 2);  // flanges above the ribs
    Linea(s * 85, 150, s * 85, 400, 2);
  }
  Linea(-92, 150, 92, 150, 2);  // the flat rib runs on across the column
  Manca(-85, 7, 85, 7);         // no foot weld between the flanges with ribs
  Linea(-110, 400, 110, 400, 2, 1);
  Linea(-250, 320, 250, 320, 4, 1);
  Linea(-180, 120, -180, -627, 4, 1);  // B through the lower anchors, ticks to the left
  Linea(-180, 120, -207, 120, 4, 1);
  const int b1 = TrovaTesto("B");
  TestoA(b1, -193.5 - 9, 132.5, 0, 7);
  const int c1 = TrovaTesto("C");
  TestoA(c1, -275 - 13.5 - 9, 320, 0, 7);
  TestoA(TrovaTesto("HEX 200"), 12.5, 220 - 63, 90, 7);
  Linea(-50, -70, -10, -70, 3);  // footing up to the middle anchor
}

TEST_F(FoglioDisegno, VistaAASenzaNervature) {
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
  nodo.OptionNTir = 1;
  Prepara();
  VistaAA();
  Linea(-85, 7, -20, 7, 9);
}

TEST_F(FoglioDisegno, UncinoDrittoInAA) {
  nodo.TipoTirafondo = 1;
  Prepara();
  VistaBB();
  EXPECT_GE(TrovaArco(-140 + 10 - 70, -70 - 500 + 70, 70), 0);
  Prepara();
  VistaAA();
  EXPECT_LT(TrovaArco(-180 + 10 - 70, -70 - 500 + 70, 70), 0);
  Linea(-190, -570, -170, -570, 2);  // its lower end
  nodo.TipoTirafondo = 2;            // 1 alone has a hook
  Prepara();
  VistaBB();
  EXPECT_LT(TrovaArco(-140 + 10 - 70, -70 - 500 + 70, 70), 0);
  Linea(-150, -570, -130, -570, 2);
}

TEST_F(FoglioDisegno, LineaConFori) {
  const double centri[] = {10, 50}, larghezze[] = {4, 10};
  Prepara();
  LineaConFori(3, 0, 3, 100, 2, centri, larghezze);  // vertical
  ASSERT_EQ(disegno.NumLinee, 5);
  Linea(3, 0, 3, 8, 3);
  Linea(3, 8, 3, 12, 2);
  Linea(3, 12, 3, 45, 3);
  Linea(3, 45, 3, 55, 2);
  Linea(3, 55, 3, 100, 3);
  Prepara();
  LineaConFori(0, 0, 50, 50, 2, centri, larghezze);  // neither
  LineaConFori(0, 0, 50, 0.0001, 2, centri, larghezze);
  LineaConFori(0, 0, 0.0001, 50, 2, centri, larghezze);
  EXPECT_EQ(disegno.NumLinee, 0);
}

// Holes of 400 around anchors at -140 and 140: from -340 to 340, beyond the grout's slope at 300.
TEST_F(FoglioDisegno, ForiOltreLaMalta) {
  nodo.TfDForo = 400;
  Prepara();
  VistaBB();
  Linea(-590, -70, -300, -70, 3);
  Linea(590, -70, 300, -70, 3);
  Linea(-340, -70, -150, -70, 3);
}

}  // namespace
