// test_pianta.cpp - the plan of the sheet by hand: outlines, sections, chains, anchors, ribs and their welds.
#include <string>

#include "corredo/foglio_prova.h"
#include "corredo/lavoro_prova.h"
#include "drawing/Quote.h"
#include "model/stato.h"

namespace {

TEST_F(FoglioDisegno, VistaCC) {
  esecutivo.XQuoteDx = 513;
  Prepara();
  VistaCC();
  Linea(-200, -250, -200, 250, 2);  // plate, grout bed, its slope
  Linea(-250, 300, 250, 300, 2);
  Linea(300, -350, 300, 350, 2);
  for (const int sx : {-1, 1})
    for (const int sy : {-1, 1}) Linea(sx * 250, sy * 300, sx * 300, sy * 350, 2);
  Linea(-155, -180, -125, -180, 2);  // anchor 1: cross of 1.5 Fi
  Linea(-140, -195, -140, -165, 2);
  EXPECT_GE(TrovaArco(-140, -180, 10), 0);
  Linea(-90, 100, 90, 100, 3);         // section, cut
  Linea(-90, 107, 90, 107, 9);         // its weld 3, outside the steel
  Linea(5 + 7, 73, 5 + 7, -73, 9);     // weld 1 right of the web
  Linea(-330, -180, 330, -180, 4, 1);  // B at the lower anchors, ticks downward
  Linea(330, -180, 330, -217.5, 4, 1);
  const int b1 = TrovaTesto("B"), b2 = TrovaTesto("B", b1);
  TestoA(b1, -330 - 13.5 - 9, -180 - 37.5, 0, 7);
  TestoA(b2, 330 + 18 - 9, -180 - 37.5, 0, 7);
  Linea(140, -385, 140, 385, 4, 1);  // A
  Linea(140, 385, 167, 385, 4, 1);
  const int a1 = TrovaTesto("A"), a2 = TrovaTesto("A", a1);
  TestoA(a1, 153.5 - 9, -385 - 37.5, 0, 7);
  TestoA(a2, 153.5 - 9, 385 + 12.5, 0, 7);
  for (int w = 1; w <= 8; ++w) EXPECT_EQ(ContaTesti("S" + std::to_string(w)), 0);  // the table was not built here
  EXPECT_LT(TrovaTesto("HEX 200"), 0);                                             // with ribs there is no room for the name
  EXPECT_FALSE(quote.EtichetteSald);
  EXPECT_DOUBLE_EQ(esecutivo.BoxCXMax, 513 + 150);
  EXPECT_DOUBLE_EQ(esecutivo.BoxCXMin, -330 - 36 - 45);
  EXPECT_DOUBLE_EQ(esecutivo.BoxCYMin, -385 - 50 - 45 - 150);
  EXPECT_DOUBLE_EQ(esecutivo.BoxCYMax, 385);
}

// Sections pass through anchor 2, wherever 1 and 4 stand. The plan's chains: from XQuoteDx outward by 75, and below -385 - 50 - 45 = -480;
// the ribs' one 36 + 45 left of -330.
TEST_F(FoglioDisegno, SezioniEQuoteInPianta) {
  nodo.TfY[1] = 85;
  nodo.TfZ[4] = 300;
  esecutivo.XQuoteDx = 513;
  Prepara();
  VistaCC();
  Linea(-330, -180, 330, -180, 4, 1);
  Linea(-330, -180, -330, -217.5, 4, 1);
  Linea(140, -385, 140, 385, 4, 1);
  Linea(140, -385, 167, -385, 4, 1);
  for (const int s : {-1, 1}) {
    Linea(513, s * 250, 513, s * 100, 5);
    Linea(588, s * 350, 588, s * 250, 5);
    Linea(-411, s * 250, -411, s * 100, 5);
    Linea(-411, s * 100, -411, s * 92, 5);
    Linea(s * 200, -480, s * 90, -480, 5);
    Linea(s * 300, -555, s * 200, -555, 5);
  }
  Linea(513, -100, 513, 100, 5);
  Linea(588, -250, 588, 250, 5);
  Linea(663, -350, 663, 350, 5);
  Linea(-411, -92, -411, 92, 5);
  Linea(-90, -480, 90, -480, 5);
  Linea(-200, -555, 200, -555, 5);
  Linea(-300, -630, 300, -630, 5);
  nodo.TipoNodo = 1;  // neither the ribs' chain nor the inner weld lines
  Prepara();
  VistaCC();
  Manca(-411, -250, -411, -100);
  Manca(90, -85, 90, 85);
  EXPECT_EQ(esecutivo.BoxCXMin, -330);
  Linea(-200, -480, -90, -480, 5);
}

TEST_F(FoglioDisegno, OttoTirafondiInPianta) {
  nodo.NTir = 8;
  Prepara();
  VistaCC();
  for (int i = 1; i <= 8; ++i) {
    const int arco = TrovaArco(nodo.TfZ[i] - 200, nodo.TfY[i] - 250, 10);
    ASSERT_GE(arco, 0) << i;
    EXPECT_EQ(disegno.ArcCol[arco], 2);  // of the steel parts
  }
}

TEST_F(FoglioDisegno, NomeInPiantaSenzaNervature) {
  nodo.TipoNodo = 1;
  Prepara();
  VistaCC();
  // right end -5 - 7 - 18 = -30; height (100 - 15 - 7) / 2 - 12.5 = 26.5
  TestoA(TrovaTesto("HEX 200"), -30 - 7 * 18, 26.5, 0, 7);
  nodo.TipoNodo = 3;  // 1 alone
  Prepara();
  VistaCC();
  EXPECT_LT(TrovaTesto("HEX 200"), 0);
}

// Faces of the ribs in plan with their marks on the outer side of the steel, the six ends, the corner arcs.
TEST_F(FoglioDisegno, NervatureInPianta) {
  Prepara();
  disegno.ColCorr = 2;
  NervaturePianta();
  // clang-format off
  struct {
    double x1, y1, x2, y2, mx, my;             // face, displacement of its mark; x times s
  } facce[] = {
    {90, -250, 90, -100, -7, 0}, {90, 250, 90, 100, -7, 0}, {98, -250, 98, -100, 7, 0}, {98, -92, 98, 92, 7, 0}, {98, 250, 98, 100, 7, 0},
    {200, -100, 98, -100, 0, -7}, {200, -92, 98, -92, 0, 7}, {200, 92, 98, 92, 0, -7}, {200, 100, 98, 100, 0, 7},
  };
  // clang-format on
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
    const bool d = s > 0;  // quadrants of the right side; the left one is its mirror
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
  nodo.SaldInt = 2;  // welded inside means 1
  Prepara();
  NervaturePianta();
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

// Each face carries its own weld, in this order on either side; the sheet writes no names here.
TEST_F(FoglioDisegno, SaldatureDelleNervatureInPianta) {
  for (int w = 1; w <= 44; ++w) ris.Saldature[w].Nome = std::to_string(w);
  Prepara();
  quote.EtichetteSald = true;
  NervaturePianta();
  quote.EtichetteSald = false;
  ASSERT_EQ(disegno.NumTesti, 18);
  const char* const numeri[] = {"23", "21", "24", "20", "22", "28", "27", "25", "26"};
  for (std::size_t i = 0; i < 18; ++i) EXPECT_EQ(disegno.TesStr[i], numeri[i % 9]) << i;
}

}  // namespace
