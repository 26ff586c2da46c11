// test_tirafondi_dis.cpp - rods in a view, the anchor detail and the schedule, by hand.
// Rod of 20 mm, 500 deep, 120 out, plate 20, grout 50: foundation at -70, top at 50, lower end at -570.
#include <gtest/gtest.h>

#include <cmath>

#include "corredo/foglio_prova.h"
#include "corredo/lavoro_prova.h"
#include "engine/Saldature.h"
#include "model/stato.h"

namespace {

class Pezzi : public FoglioDisegno {
 protected:
  void SetUp() override {
    FoglioDisegno::SetUp();
    Vuota();
  }
  void Vuota() {
    AzzeraDisegno();
    AzzeraEstensioni();
    disegno.DestDis = GENDIS;
    disegno.ColCorr = 4;
  }
  void Arco(double x, double y, double r, double gradi1, double gradi2, int colore) {
    for (int i = TrovaArco(x, y, r); i >= 0; i = TrovaArco(x, y, r, 0, 0, i)) {
      const auto sta = [&](int p, double g) {
        return std::abs(disegno.CoordX[p] - x - r * std::cos(g * 3.141592 / 180)) < 1e-3 &&
               std::abs(disegno.CoordY[p] - y - r * std::sin(g * 3.141592 / 180)) < 1e-3;
      };
      if (!sta(disegno.ArcIni[i], gradi1) || !sta(disegno.ArcFin[i], gradi2)) continue;
      EXPECT_EQ(disegno.ArcCol[i], colore);
      return;
    }
    FAIL() << "no arc at " << x << ' ' << y;
  }
};

TEST_F(Pezzi, Dadi) {
  Dado(100, 40, 1);
  ASSERT_EQ(disegno.NumLinee, 5);
  Linea(80, 40, 120, 40, 2);
  for (const double x : {80.0, 120.0, 90.0, 110.0}) Linea(x, 40, x, 20, 2);
  Vuota();
  Dado(100, 40, 2);
  Linea(80, 20, 120, 20, 2);
  Linea(80, 40, 80, 20, 2);
}

TEST_F(Pezzi, ParteComune) {
  TirafondoDiritto(100, 0);
  Linea(90, 50, 90, 40, 4);  // from the top to twice Fi over the plate
  Linea(110, 50, 110, 40, 4);
  Linea(90, 50, 110, 50, 4);  // cap
  Linea(80, 20, 120, 20, 2);  // two nuts on the plate, one under it
  Linea(80, 40, 120, 40, 2);
  Linea(80, -40, 120, -40, 2);
}

TEST_F(Pezzi, Uncinato) {
  TirafondoUncinato(100, 0);
  Linea(90, -40, 90, -500, 4);  // to the height of the hook's centre, -570 + 70
  Linea(110, -40, 110, -500, 4);
  Arco(40, -500, 70, 180, 360, 4);  // centre 100 + 10 - 70
  Arco(40, -500, 50, 180, 360, 4);
  Linea(-30, -500, -30, -50, 4);  // rising leg, 450
  Linea(-10, -500, -10, -50, 4);
  Linea(-30, -50, -10, -50, 4);
  Linea(110, 10, 90, 10, 4);  // end of the thread, 40 from the top
  // the anchor plate plays no part
  const int linee = disegno.NumLinee;
  nodo.TfLF = 999;
  Vuota();
  TirafondoUncinato(100, 0);
  EXPECT_EQ(disegno.NumLinee, linee);
}

// Plate 70 x 10 with its lower face at -70 - 450 = -520.
TEST_F(Pezzi, DirittoConPiastra) {
  TirafondoDiritto(100, 0);
  Linea(90, -40, 90, -500, 4);     // to twice LF over the plate's lower face
  Linea(110, -530, 110, -570, 4);  // from LF under it
  Linea(65, -520, 65, -510, 4);
  Linea(135, -520, 135, -510, 4);
  Linea(65, -520, 135, -520, 4);
  Linea(65, -510, 135, -510, 4);
  Linea(90, -530, 110, -530, 9);
  Linea(90, -500, 110, -500, 9);
  Arco(90, -510, 10, 90, 180, 9);
  Arco(110, -510, 10, 0, 90, 9);
  Arco(90, -520, 10, 180, 270, 9);
  Arco(110, -520, 10, -90, 0, 9);
  EXPECT_LT(TrovaLinea(90, -570, 110, -570), 0);
}

TEST_F(Pezzi, DirittoSenzaPiastra) {
  nodo.TipoTirafondo = 2;
  TirafondoDiritto(100, 0);
  Linea(90, -40, 90, -570, 4);
  Linea(90, -570, 110, -570, 4);  // cap
  Linea(110, 10, 90, 10, 4);      // end of the thread
  EXPECT_EQ(disegno.NumArchi, 0);
}

// Twice as large: rod of 1240 about height 0: top 620, hook's centre -620 + 140 = -480, diameter 40, radius 140, leg 900, thread 80.
TEST_F(Pezzi, DettaglioUncinato) {
  nodo.TipoTirafondo = 1;
  suite.ParNodo[19] = 2;
  DettaglioTirafondo();
  Linea(-20, 616, 20, 616, 9);  // thread
  Linea(-16, 620, -16, 540, 9);
  Linea(16, 620, 16, 540, 9);
  Linea(-16, 620, 16, 620, 2);  // top with chamfers of a tenth
  Linea(-16, 620, -20, 616, 2);
  Linea(16, 620, 20, 616, 2);
  Linea(-20, 616, -20, -480, 2);
  Linea(20, 616, 20, -480, 2);
  Linea(20, 540, -20, 540, 2);
  Arco(-120, -480, 140, 180, 360, 2);
  Arco(-120, -480, 100, 180, 360, 2);
  Linea(-260, -480, -260, 420, 2);
  Linea(-220, -480, -220, 420, 2);
  Linea(-260, 420, -220, 420, 2);
  Linea(-120 - 154, -480, -120 + 154, -480, 4, 1);  // axes, 1.1 R each way
  Linea(-120, -480 - 154, -120, -480 + 154, 4, 1);
  EXPECT_EQ(disegno.TipoLinCorr, 0);
  // chains: right of 34 at 34 + 18 + 45 = 97 and 172, left of -274 at -337, over 620 at 690; measures of the model
  Linea(97, 540, 97, 620, 5);
  Linea(172, -480, 172, 620, 5);
  Linea(-337, -480, -337, 420, 5);
  Linea(-20, 690, 20, 690, 5);
  for (const char* t : {"40", "510", "70", "550", "450", "20"}) EXPECT_GE(TrovaTesto(t), 0) << t;
}

TEST_F(Pezzi, DettaglioUncinatoSenzaQuote) {
  nodo.TipoTirafondo = 1;
  for (const double quote : {0.0, 2.0}) {  // 1 alone draws chains
    suite.ParNodo[15] = quote;
    Vuota();
    DettaglioTirafondo();
    EXPECT_EQ(disegno.NumTesti, 0);
  }
}

// k = 2: yc = -620 + 1000 + 100 + 40 = 520, the rod's top at (520 - 120 - 90) x 2 = 620.
TEST_F(Pezzi, DettaglioConPiastra) {
  suite.ParNodo[19] = 2;
  DettaglioTirafondo();
  Linea(-20, 620, 20, 620, 2);
  Linea(-20, 616, 20, 616, 9);
  Linea(-16, 620, -16, 420, 9);  // thread as deep as TfDForo
  Linea(16, 620, 16, 420, 9);
  Linea(-20, 420, 20, 420, 2);
  // plate's lower face: 310 - 120 - 450 = -260, times 2
  Linea(-20, 620, -20, -480, 2);
  Linea(20, -540, 20, -620, 2);
  Linea(-70, -520, 70, -520, 2);
  Linea(-70, -500, 70, -500, 2);
  Linea(-20, -540, 20, -540, 9);
  Arco(20, -500, 20, 0, 90, 9);
  // dimensions: width at (310 + 15) x 2; hole at (-10 - 35 - 15) x 2; rising length at -105 x 2; total at 60 x 2
  Linea(-20, 650, 20, 650, 5);
  Linea(-120, 620, -120, 420, 5);
  Linea(-210, 620, -210, -520, 5);
  Linea(120, 620, 120, -620, 5);
  for (const char* t : {"20", "100", "570", "620"}) {
    const int i = TrovaTesto(t);
    ASSERT_GE(i, 0) << t;
    EXPECT_EQ(disegno.TesCol[i], 6);
  }
  const int i = TrovaTesto("piatto 70x70x10");
  ASSERT_GE(i, 0);
  EXPECT_DOUBLE_EQ(disegno.CoordY[disegno.TesPos[i]], (310 - 620 - 30) * 2);
  EXPECT_DOUBLE_EQ(disegno.CoordX[disegno.TesPos[i]], -75);  // 15 characters of 10
  EXPECT_EQ(disegno.TesCol[i], 6);
  suite.ParNodo[15] = 0;  // they are drawn all the same
  Vuota();
  DettaglioTirafondo();
  EXPECT_GE(TrovaTesto("570"), 0);
  nodo.TipoTirafondo = 3;  // any type but the hook
  Vuota();
  DettaglioTirafondo();
  EXPECT_GE(TrovaTesto("piatto 70x70x10"), 0);
}

TEST_F(Pezzi, Griglia) {
  const double larghezze[] = {30, 20};
  Griglia(5, 100, 10, 3, larghezze, 2);
  ASSERT_EQ(disegno.NumLinee, 7);
  for (const double y : {100.0, 90.0, 80.0, 70.0}) Linea(5, y, 55, y, 4);
  for (const double x : {5.0, 35.0, 55.0}) Linea(x, 100, x, 70, 4);
}

class Tabelle : public Pezzi {
 protected:
  void SetUp() override {
    Pezzi::SetUp();
    CostruisciSaldature(lavoro);
  }
  double Y(const char* t) { return disegno.CoordY[disegno.TesPos[TrovaTesto(t)]]; }
};

// Rows of 22.5; text raised by 15 / 4.
TEST_F(Tabelle, BlocchiConNervature) {
  Distinta();
  EXPECT_DOUBLE_EQ(Y("Prof."), -22.5 + 3.75);
  EXPECT_DOUBLE_EQ(Y("HEX 200"), -45 + 3.75);
  EXPECT_DOUBLE_EQ(Y("N. piastre"), -4 * 22.5 + 3.75);
  EXPECT_DOUBLE_EQ(Y("Nome"), -7 * 22.5 + 3.75);
  EXPECT_DOUBLE_EQ(Y("Y"), -8 * 22.5 + 3.75);
  EXPECT_DOUBLE_EQ(Y("Z"), -9 * 22.5 + 3.75);
  EXPECT_DOUBLE_EQ(Y("N. t.fondi"), -11 * 22.5 + 3.75);
  EXPECT_DOUBLE_EQ(Y("Sald."), -14 * 22.5 + 3.75);
  const char* const testi[] = {"h", "b", "a", "e", "lz", "ly", "s", "l", "]", "L tot", "lungh", "lato"};
  for (const char* t : testi) EXPECT_GE(TrovaTesto(t), 0) << t;
  EXPECT_EQ(ContaTesti("500"), 2);  // LatoY of plate and rib; 400 likewise
  EXPECT_EQ(ContaTesti("400"), 2);
  EXPECT_EQ(ContaTesti("620"), 1);  // L tot of the straight rod
  // columns: "HEX 200" + 2 = 9, "200" + 2, "180" + 2, "10" + 2, "15" + 2 characters
  for (const double x : {0.0, 90.0, 140.0, 190.0, 230.0, 270.0}) Linea(x, 0, x, -45, 4);
  for (const double x : {0.0, 120.0, 170.0, 220.0, 260.0}) Linea(x, -67.5, x, -112.5, 4);  // plate: 12 fixed
  for (const double x : {0.0, 80.0, 130.0, 180.0, 210.0}) Linea(x, -135, x, -202.5, 4);    // ribs: 8 fixed
  for (const double x : {0.0, 120.0, 160.0, 230.0}) Linea(x, -225, x, -270, 4);
}

// Every cell in its order.
TEST_F(Tabelle, Celle) {
  nodo.NTir = 6;
  Distinta();
  // clang-format off
  const char* const celle[] = {
    "Prof.", "h", "b", "a", "e", "HEX 200", "200", "180", "10", "15",
    "N. piastre", "lz", "ly", "s", "1", "400", "500", "20",
    "Nome", "l", "h", "s", "Y", "500", "150", "8", "Z", "400", "150", "8",
    "N. t.fondi", "]", "L tot", "6", "20", "620",
    "Sald.", "lungh", "lato", "S1", "146", "7",          // along the web: 200 - 2 (15 + 12)
  };
  // clang-format on
  ASSERT_GE(disegno.NumTesti, 42);
  for (std::size_t i = 0; i < std::size(celle); ++i) EXPECT_EQ(disegno.TesStr[i], celle[i]) << i;
}

// Characters of 20 x 12 in their own colour: rows of 30, columns of 9, 5 and so on characters, cells raised by 5 and centred.
TEST_F(Tabelle, MisureProprie) {
  suite.ParNodo[11] = 20;
  suite.ParNodo[12] = 12;
  edizione = EdizioneDis();
  Distinta();
  Linea(0, -30, 12 * 27, -30, 4);  // 9 + 5 + 5 + 4 + 4
  Linea(108, 0, 108, -60, 4);
  const int i = TrovaTesto("Prof.");
  EXPECT_DOUBLE_EQ(disegno.CoordX[disegno.TesPos[i]], (9 - 5) * 6);
  EXPECT_DOUBLE_EQ(disegno.CoordY[disegno.TesPos[i]], -25);
  EXPECT_EQ(disegno.TesAlt[i], 200);
  EXPECT_EQ(disegno.TesLarg[i], 120);
  EXPECT_EQ(disegno.TesCol[i], 1);
}

TEST_F(Tabelle, BlocchiSenzaNervature) {
  nodo.TipoNodo = 1;
  CostruisciSaldature(lavoro);
  Distinta();
  EXPECT_LT(TrovaTesto("Nome"), 0);
  EXPECT_DOUBLE_EQ(Y("N. t.fondi"), -7 * 22.5 + 3.75);
  EXPECT_DOUBLE_EQ(Y("Sald."), -10 * 22.5 + 3.75);
  EXPECT_DOUBLE_EQ(Y("S8"), -18 * 22.5 + 3.75);
  lavoro.NumSaldature = 9;  // without ribs no row is left out
  ris.Saldature[9].Nome = "S9";
  Vuota();
  Distinta();
  EXPECT_DOUBLE_EQ(Y("S9"), -19 * 22.5 + 3.75);
}

TEST_F(Tabelle, RigheDelleSaldature) {
  Distinta();  // SaldInt 0: 40 welds, 9 and 19 left out
  EXPECT_EQ(lavoro.NumSaldature, 40);
  const auto riga = [&](const char* t) { return (-13 * 22.5 - (Y(t) - 3.75)) / 22.5; };  // 1 is the head
  EXPECT_DOUBLE_EQ(riga("S8"), 9);
  EXPECT_LT(TrovaTesto("S9"), 0);
  EXPECT_DOUBLE_EQ(riga("S10"), 10);  // row i - 1 behind the head
  EXPECT_DOUBLE_EQ(riga("S18"), 18);
  EXPECT_LT(TrovaTesto("S19"), 0);
  EXPECT_DOUBLE_EQ(riga("S20"), 19);
  EXPECT_DOUBLE_EQ(riga("S40"), 39);
  Linea(0, -13 * 22.5, 0, -52 * 22.5, 4);  // 39 rows with the head
  EXPECT_EQ(ContaTesti("7"), 38);          // the weld's side in each row
  nodo.SaldInt = 1;
  CostruisciSaldature(lavoro);
  Vuota();
  Distinta();
  EXPECT_DOUBLE_EQ(riga("S9"), 10);
  EXPECT_DOUBLE_EQ(riga("S44"), 45);
}

TEST_F(Tabelle, SenzaSaldatureNessunBlocco) {
  lavoro.NumSaldature = 0;
  Distinta();
  EXPECT_LT(TrovaTesto("Sald."), 0);
}

// 120 + 500 - 70 + 3.141592 x 70 + 450 = 1219.91144 -> 1219.9
TEST_F(Tabelle, LunghezzaDellUncino) {
  nodo.TipoTirafondo = 1;
  Distinta();
  EXPECT_GE(TrovaTesto("1219.9"), 0);
  nodo.TipoTirafondo = 2;  // 1 alone has a hook
  Vuota();
  Distinta();
  EXPECT_LT(TrovaTesto("1219.9"), 0);
  EXPECT_GE(TrovaTesto("620"), 0);
}

}  // namespace
