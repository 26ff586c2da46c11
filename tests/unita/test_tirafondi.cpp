// tests/unita/test_tirafondi.cpp - anchors: arms, shear and torsion, bond, resistances, ratios. Base joint of corredo/nodo_prova.h:
// M20 (245 mm2), embedded 500, L1 450, R 70, LF 10, 200 mm from the footing's edge, Rck 300 daN/cm2.
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "corredo/lavoro_prova.h"
#include "corredo/nodo_prova.h"
#include "engine/ModuloCalcoliNTC.h"
#include "engine/Tirafondi.h"
#include "model/stato.h"

namespace {

struct TirafondiTest : testing::Test {
  void SetUp() override { NodoProva(); }

  static void Prepara() {
    InerziaTirafondi(nodo, verifica.SommaR2, verifica.ArmZ, verifica.ArmY);
    verifica.AreaTf = 245;
  }
};

// Bond of a millimetre over TauCls: 3.141592 x 20 / (1 + 20/200)^2 = 62.83184 / 1.21.
constexpr double B_UNITARIA = 62.83184 / 1.21;

}  // namespace

TEST_F(TirafondiTest, Bracci) {
  Prepara();
  const double z[] = {0, -150, 150, -150, 150}, y[] = {0, -200, -200, 200, 200};
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(verifica.ArmZ[i], z[i]);
    EXPECT_EQ(verifica.ArmY[i], y[i]);
  }
  EXPECT_EQ(verifica.SommaR2, 250000);  // 4 (150^2 + 200^2)
  SchemaProva(1);
  Prepara();
  EXPECT_EQ(verifica.SommaR2, 250000 + 2 * 150 * 150 + 2 * 200 * 200);
  const double z8[] = {-150, 150, 0, 0}, y8[] = {0, 0, 200, -200};
  for (int i = 5; i <= 8; ++i) {
    EXPECT_EQ(verifica.ArmZ[i], z8[i - 5]);
    EXPECT_EQ(verifica.ArmY[i], y8[i - 5]);
  }
}

TEST_F(TirafondiTest, TaglioETorsione) {
  Prepara();
  verifica.Ty = 1000;
  verifica.Tz = 2000;
  verifica.Mt = 50000;  // Mt / SommaR2 = 0.2 daN/mm
  // Anchor 1: Fz = 500 + 200 x 0.2 = 540, Fy = 250 + 150 x 0.2 = 280; 2: 540, 220; 3: 460, 280; 4: 460, 220.
  const double F[] = {0, std::sqrt(370000.0), std::sqrt(340000.0), std::sqrt(290000.0), std::sqrt(260000.0)};
  for (int i = 1; i <= 4; ++i) EXPECT_NEAR(TaglioTirafondo(lavoro, i), F[i], 1e-9) << i;

  ris.SigmaTir[3][2] = -4;
  ris.FvEd[3][2] = 77;
  nodo.TipoVer = 0;
  TaglioTirafondi(LavoroProva(), 3);
  EXPECT_NEAR(ris.SRfTir[3][2], F[2] / 20 / 20, 1e-9);  // thickness x Fi
  EXPECT_NEAR(ris.TauTir[3][2], F[2] / 245, 1e-9);
  EXPECT_EQ(ris.TiroTir[3][2], -980);  // 245 x -4
  EXPECT_EQ(ris.FvEd[3][2], 77);       // limit states only
  ris.SRfTir[3][2] = ris.TauTir[3][2] = ris.TiroTir[3][2] = 5;
  nodo.TipoVer = 1;
  TaglioTirafondi(LavoroProva(), 3);
  EXPECT_NEAR(ris.FvEd[3][2], F[2], 1e-9);
  EXPECT_EQ(ris.SRfTir[3][2] + ris.TauTir[3][2] + ris.TiroTir[3][2], 15);
}

TEST_F(TirafondiTest, CostantiTA) {
  ResistenzeTA(lavoro);
  EXPECT_EQ(lavoro.SAmmCls, 9.75);  // (30 - 15) / 4 + 6
  EXPECT_EQ(lavoro.TauCls, 0.1);    // (15 / 75 + 0.4) 0.15 = 0.09, to one decimal
  nodo.MatCls.Rck = 100;
  ResistenzeTA(lavoro);
  EXPECT_EQ(lavoro.SAmmCls, 4.75);  // (10 - 15) / 4 + 6
  EXPECT_EQ(lavoro.TauCls, 0.1);    // (-5 / 75 + 0.4) 0.15 = 0.05: halves go up
  nodo.MatCls.Rck = 500;
  ResistenzeTA(lavoro);
  EXPECT_EQ(lavoro.SAmmCls, 14.75);
  EXPECT_EQ(lavoro.TauCls, 0.1);  // (35 / 75 + 0.4) 0.15 = 0.13
  nodo.MatCls.Rck = 599;          // about Rck 60, where (45 / 75 + 0.4) 0.15 = 0.15: 0.1498 and 0.1502
  ResistenzeTA(lavoro);
  EXPECT_EQ(lavoro.TauCls, 0.1);
  nodo.MatCls.Rck = 601;
  ResistenzeTA(lavoro);
  EXPECT_EQ(lavoro.TauCls, 0.2);
}

TEST_F(TirafondiTest, AderenzaUncinoTA) {  // divided by 100, a tenth of the bond: safe
  nodo.TipoTirafondo = 1;
  ResistenzeTA(lavoro);
  // L + R + 6.4 R + 3.5 L1 = 500 + 70 + 448 + 1575 = 2593; 0.1 x 51.92714 x 2593 / 100 = 134.647.
  EXPECT_NEAR(ris.TadRd, 0.1 * B_UNITARIA * 2593 / 100, 1e-9);
  EXPECT_NEAR(ris.TadRd, 134.647, 1e-3);
}

TEST_F(TirafondiTest, AderenzaUncinoSLU) {  // by the factor of the newton, 10
  nodo.TipoTirafondo = 1;
  nodo.MatTir.Ftk = 20000;  // cap 245 / 100 x 20000 / 1.25 = 39200, out of the way
  Prepara();
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(lavoro.TauCls, 0.28 * std::sqrt(16.6), 1e-12);            // 0.83 x 30 / 1.5 = 16.6; 1.140807
  EXPECT_NEAR(ris.TadRd, 1.1408067320 * B_UNITARIA * 2593 / 10, 1e-5);  // 15360.6
  EXPECT_NEAR(ris.TadRd, 15360.6, 0.1);
  nodo.MatTir.Ftk = 3600;
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.TadRd, 7056, 1e-9);  // cap: 2.45 x 3600 / 1.25
}

TEST_F(TirafondiTest, AderenzaPiastrinaTA) {
  // L1 450 > c 200: e = 35 / 200 = 0.175. [0.1 x 51.92714 x 440 + 0.825 x 3.1416 x 1225 x 9.75] / 10
  //   = [2284.7942 + 30956.0501] / 10 = 3324.0844
  ResistenzeTA(lavoro);
  EXPECT_NEAR(ris.TadRd, 3324.08443, 1e-4);  // with 3.141592 it would be 3324.0766
  nodo.TfL1 = 150;                           // L1 <= c: e = 35 / 150 = 0.2333; [726.98 + 0.766667 x 3848.46 x 9.75] / 10
  ResistenzeTA(lavoro);
  EXPECT_NEAR(ris.TadRd, (0.1 * B_UNITARIA * 140 + 23.0 / 30 * 3848.46 * 9.75) / 10, 1e-8);
}

TEST_F(TirafondiTest, AderenzaPiastrinaSLU) {
  nodo.MatTir.Ftk = 20000;
  Prepara();
  ResistenzeNTC(lavoro);
  // 30 x 0.83 x 0.85 / 1.5 = 14.11; [59.23883 x 440 + 14.11 x 0.825 x 3.141592 x 1225] / 10
  //   = [26065.08 + 44798.85] / 10 = 7086.39
  EXPECT_NEAR(ris.TadRd, (1.1408067320 * B_UNITARIA * 440 + 14.11 * 0.825 * 3848.4502) / 10, 1e-5);
  EXPECT_NEAR(ris.TadRd, 7086.39, 0.01);
  nodo.TfL1 = 150;
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.TadRd, (1.1408067320 * B_UNITARIA * 140 + 14.11 * 23 / 30 * 3848.4502) / 10, 1e-5);
}

TEST_F(TirafondiTest, AltraForma) {  // keeps what the run had; by limit states the cap still acts on it
  for (const std::int16_t forma : {std::int16_t(2), std::int16_t(-1)}) {
    nodo.TipoTirafondo = forma;
    ris.TadRd = 9000;
    ResistenzeTA(lavoro);
    EXPECT_EQ(ris.TadRd, 9000) << forma;
    Prepara();
    ResistenzeNTC(lavoro);
    EXPECT_NEAR(ris.TadRd, 7056, 1e-9) << forma;
    ris.TadRd = 5000;
    ResistenzeNTC(lavoro);
    EXPECT_EQ(ris.TadRd, 5000) << forma;
  }
}

TEST_F(TirafondiTest, ClasseETrazione) {  // daN: M24 8.8 203.3 and 135.6 kN, M20 10.9 176.4 and 98.0 kN
  Prepara();
  nodo.TfFi = 24;
  nodo.MatTir.Ftk = 8000;
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FtRd, 20332.8, 1e-6);  // 0.9 x 8000 x 353 / 100 / 1.25
  EXPECT_NEAR(ris.FvRd, 13555.2, 1e-6);  // 0.6
  nodo.TfFi = 20;
  nodo.MatTir.Ftk = 10000;
  nodo.MatVit.Nome = "classe 10.9";
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FtRd, 17640, 1e-6);
  EXPECT_NEAR(ris.FvRd, 9800, 1e-6);  // 0.5
  const std::pair<const char*, double> CLASSI[] = {{"4.6", 0.6}, {"5.6", 0.6}, {"8.8", 0.6},       {"6.8", 0.5}, {"10.9", 0.5},
                                                   {"12.9", 0},  {"", 0},      {"6.8 o 8.8", 0.6}, {"4.7", 0},   {"5.7", 0},
                                                   {"8.7", 0},   {"6.7", 0},   {"10.8", 0}};
  for (const auto& [nome, coeff] : CLASSI) {
    nodo.MatVit.Nome = nome;
    ResistenzeNTC(lavoro);
    EXPECT_NEAR(ris.FvRd, coeff * 19600, 1e-6) << nome;  // 10000 x 245 / 100 / 1.25
  }
}

TEST_F(TirafondiTest, Punzonamento) {  // 0.6 x 3.141592 x 3600 x 30 x 20 / 100 / 1.25
  Prepara();
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.BpRd, 32572.025856, 1e-6);
  nodo.SpessPiastra = 40;
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.BpRd, 32572.025856 * 2, 1e-6);  // 40 mm is still thin
  nodo.SpessPiastra = 40.01;
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.BpRd, 32572.025856 * 40.01 / 20 * 3400 / 3600, 1e-6);
}

TEST_F(TirafondiTest, RifollamentoDiEstremita) {  // four anchors: ends both ways; d0 = 20 + 2
  suite.ParNodo[5] = 2;
  SchemaProva(0, 30, 45);
  nodo.TfZ[2] = nodo.TfZ[4] = 375;  // 25 from the other edge
  nodo.TfY[3] = nodo.TfY[4] = 460;  // 40
  Prepara();
  ResistenzeNTC(lavoro);
  // k = 2.8 x 30 / 22 - 1.7 = 2.118182 or 2.8 x 25 / 22 - 1.7 = 1.481818; a = 45 / 66 = 0.681818 or 40 / 66 = 0.606061.
  // FbRd = k a 3600 x 20 x 20 / 100 / 1.25 = k a 11520.
  EXPECT_NEAR(ris.FbRd[1], 2.1181818182 * 0.6818181818 * 11520, 1e-4);
  EXPECT_NEAR(ris.FbRd[2], 1.4818181818 * 0.6818181818 * 11520, 1e-4);
  EXPECT_NEAR(ris.FbRd[3], 2.1181818182 * 0.6060606061 * 11520, 1e-4);
  EXPECT_NEAR(ris.FbRd[4], 1.4818181818 * 0.6060606061 * 11520, 1e-4);
  SchemaProva(0, 60, 80);  // bounds: k 2.5, a 1 (80 / 66)
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FbRd[1], 2.5 * 11520, 1e-6);
  nodo.MatVit.Ft = 1800;  // a = 1800 / 3600, with the thin strength also in a thick plate
  nodo.SpessPiastra = 50;
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FbRd[1], 2.5 * 0.5 * 3400 * 20 * 50 / 100 / 1.25, 1e-6);
  SchemaProva(0, 10, 80);  // k = 2.8 x 10 / 22 - 1.7 < 0: negative, kept
  ResistenzeNTC(lavoro);
  EXPECT_LT(ris.FbRd[1], 0);
}

TEST_F(TirafondiTest, RifollamentoFraDueTirafondi) {
  // Eight anchors on a plate of 200 x 200, 50 from the edges, d0 = 22. Anchor 8 at (100, 50) between 1 and 2, pitch 50:
  //   k = 1.4 x 50 / 22 - 1.7 = 1.481818; along Y it is an end: a = 50 / 66 = 0.757576.
  // Anchor 5 at (50, 100) between 1 and 3: a = 50 / 66 - 0.25 = 0.507576; along Z an end: k = 2.8 x 50 / 22 - 1.7 > 2.5.
  suite.ParNodo[5] = 2;
  nodo.LatoZ = nodo.LatoY = 200;
  SchemaProva(1, 50, 50);
  Prepara();
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FbRd[8], 1.4818181818 * 0.7575757576 * 11520, 1e-4);
  EXPECT_NEAR(ris.FbRd[7], 1.4818181818 * 0.7575757576 * 11520, 1e-4);  // (100, 150): 200 - 150
  EXPECT_NEAR(ris.FbRd[5], 2.5 * 0.5075757576 * 11520, 1e-4);
  EXPECT_NEAR(ris.FbRd[6], 2.5 * 0.5075757576 * 11520, 1e-4);
  EXPECT_NEAR(ris.FbRd[1], 2.5 * 0.7575757576 * 11520, 1e-4);
  // Unequal pitches: the smaller counts. Anchor 8 at 90: pitch 40, k = 1.4 x 40 / 22 - 1.7 = 0.845455.
  nodo.TfZ[8] = 90;
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FbRd[8], 0.8454545455 * 0.7575757576 * 11520, 1e-4);
  // Less than 0.01 mm from the end counts as the end; more takes the pitch, here next to nothing: k = -1.7.
  nodo.TfZ[8] = 50.00995;
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FbRd[8], 2.5 * 0.7575757576 * 11520, 1e-4);
  nodo.TfZ[8] = 50.01005;
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FbRd[8], (1.4 * 0.01005 / 22 - 1.7) * 0.7575757576 * 11520, 1e-4);
  // 0.01 itself is no longer the end, which would give 2.8.
  SchemaProva(1, 0, 50);
  nodo.TfZ[8] = 0.01;
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FbRd[8], (1.4 * 0.01 / 22 - 1.7) * 0.7575757576 * 11520, 1e-4);
}

TEST_F(TirafondiTest, TrentaGradiInclusi) {
  // Anchor 4 lies exactly 30 degrees from anchor 1 towards the lower edge: in line, so that 1 is the far end, 30 mm from the
  // plate's other edge, k = 2.8 x 30 / 22 - 1.7. A hair more and 1 stands alone: 2.8 x 100 / 22 - 1.7 > 2.5.
  suite.ParNodo[5] = 2;
  nodo.LatoZ = 130;
  const double d = 100 * std::tan(3.141592 / 6);
  const double z[] = {0, 100, 100, 100, 0}, y[] = {0, d, 1000, 1100, 0};
  for (int i = 1; i <= 4; ++i) {
    nodo.TfZ[i] = z[i];
    nodo.TfY[i] = y[i];
  }
  Prepara();
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FbRd[1], 2.1181818182 * d / 66 * 11520, 1e-4);
  nodo.TfY[1] = std::nextafter(d, 1000.0);
  ResistenzeNTC(lavoro);
  EXPECT_NEAR(ris.FbRd[1], 2.5 * d / 66 * 11520, 1e-4);
}

TEST_F(TirafondiTest, Forze) {  // tension positive
  Prepara();
  ris.SigmaTir[2][1] = 3;
  ris.SigmaTir[2][4] = -2;
  ForzeTirafondiNTC(lavoro, 2);
  EXPECT_EQ(ris.FtEd[2][1], 735);
  EXPECT_EQ(ris.FtEd[2][4], -490);
}

TEST_F(TirafondiTest, Rapporti) {
  nodo.NumSoll = 1;
  const auto rapporti = [](double Ft, double Fv) {
    ris.FtEd[1][1] = Ft;
    ris.FvEd[1][1] = Fv;
    RapportiTirafondiNTC(lavoro);
    return std::array<double, 3>{ris.Co1[1][1], ris.Co2[1][1], ris.Co3[1][1]};
  };
  const auto resistenze = [](double FvRd, double FbRd, double FtRd, double BpRd, double TadRd) {
    ris.FvRd = FvRd;
    ris.FbRd[1] = FbRd;
    ris.FtRd = FtRd;
    ris.BpRd = BpRd;
    ris.TadRd = TadRd;
  };
  using R = std::array<double, 3>;
  resistenze(1000, 800, 500, 400, 200);             // Fb = 800, Ft = 400
  EXPECT_EQ(rapporti(-100, 0), (R{0, 0.25, 0.5}));  // compressed, no shear: Co2 and Co3 by the absolute value
  EXPECT_EQ(rapporti(-100, 400), (R{0.5, 0.25, 0.5}));
  EXPECT_EQ(rapporti(0, -400), (R{0.5, 0, 0}));
  EXPECT_EQ(rapporti(100, 0), (R{0.25, 0.25, 0.5}));
  const R misto = rapporti(140, 400);  // 400 / 800 + 100 / 400
  EXPECT_DOUBLE_EQ(misto[0], 0.75);
  EXPECT_DOUBLE_EQ(misto[1], 0.35);
  EXPECT_DOUBLE_EQ(misto[2], 0.7);
  EXPECT_DOUBLE_EQ(rapporti(140, -400)[0], 0.75);
  EXPECT_DOUBLE_EQ(rapporti(-1, 0.5)[0], 0.5 / 800);  // any shear counts, any pull
  EXPECT_DOUBLE_EQ(rapporti(0.5, 0)[0], 0.5 / 400);
  resistenze(0.5, 0.5, 0.5, 0.5, 0.5);       // any resistance above 0
  EXPECT_DOUBLE_EQ(rapporti(0.7, 1)[0], 3);  // 1 / 0.5 + 0.5 / 0.5
  EXPECT_DOUBLE_EQ(rapporti(-1, 1)[0], 2);
  resistenze(1000, 2000, 500, 900, 200);  // the other resistance of each pair
  EXPECT_EQ(rapporti(-100, 400), (R{0.4, 0.2, 0.5}));
  EXPECT_DOUBLE_EQ(rapporti(140, 400)[0], 0.6);  // 400 / 1000 + 100 / 500
  // A resistance that is not positive: 100, only where it is used.
  resistenze(0, 800, 500, 400, 200);
  EXPECT_EQ(rapporti(-100, 400)[0], 100);
  EXPECT_EQ(rapporti(-100, 0)[0], 0);
  EXPECT_EQ(rapporti(100, 0)[0], 0.25);
  EXPECT_EQ(rapporti(100, 1)[0], 100);
  resistenze(1000, -1, 500, 400, 200);
  EXPECT_EQ(rapporti(-100, 400)[0], 100);
  EXPECT_EQ(rapporti(100, 400)[0], 100);
  resistenze(1000, 800, 0, 400, 200);
  EXPECT_EQ(rapporti(100, 0), (R{100, 100, 0.5}));
  EXPECT_EQ(rapporti(100, 400)[0], 100);
  EXPECT_EQ(rapporti(-100, 400), (R{0.5, 100, 0.5}));
  EXPECT_EQ(rapporti(0, 400)[0], 0.5);  // no pull: Ft is not looked at
  EXPECT_EQ(rapporti(0, 0)[0], 0);
  resistenze(1000, 0, 500, 400, 200);  // with pull and shear all four are
  EXPECT_EQ(rapporti(100, 400)[0], 100);
  resistenze(1000, 800, 500, 0, 200);
  EXPECT_EQ(rapporti(100, 400)[0], 100);
  resistenze(1000, 800, 500, -2, 200);
  EXPECT_EQ(rapporti(100, 400)[0], 100);
  resistenze(-2, 800, 500, 400, 200);
  EXPECT_EQ(rapporti(100, 400)[0], 100);
  resistenze(1000, 0, 500, 0, 200);
  EXPECT_EQ(rapporti(-100, 400), (R{100, 100, 0.5}));
  resistenze(1000, 800, 500, -3, 0);
  EXPECT_EQ(rapporti(100, 0), (R{100, 100, 100}));
  EXPECT_EQ(ris.Co3[1][4], 100);  // every anchor, the last too
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(TirafondiTest, DivisoriNulli) {  // each is a fault of the run
  const auto guasto = [](void (*modifica)()) {
    NodoProva();
    Prepara();
    modifica();
    AzzeraFault();
    nodo.TipoVer == 0 ? ResistenzeTA(lavoro) : ResistenzeNTC(lavoro);
    return FaultAritmetico();
  };
  EXPECT_FALSE(guasto([] {}));
  EXPECT_TRUE(guasto([] { nodo.TfDistBordo = 0; }));
  EXPECT_TRUE(guasto([] { nodo.TfL1 = 0; }));
  EXPECT_TRUE(guasto([] {
    nodo.TipoVer = 1;
    nodo.MatVit.GammaM2 = 0;
  }));
  EXPECT_TRUE(guasto([] {
    nodo.TipoVer = 1;
    nodo.MatAcc.Ftk = 0;
  }));
  EXPECT_TRUE(guasto([] {
    nodo.TipoVer = 1;
    nodo.MatCls.GammaC = 0;
  }));
  EXPECT_TRUE(guasto([] {
    nodo.TipoVer = 1;
    nodo.TfFi = 0;
  }));  // d0 = 0
}
