// tests/unita/test_nervature.cpp - pressure integrals and the four cuts, by hand calculation.
// Column 180 x 190, ribs 150 x 20, throat 5, plate 400 x 500 x 20, concrete 300000 daN/cm2 = 3000 daN/mm2, anchors of 250 mm2
// at p = +-150, q = +-185: cut 1, 2 at p = +-110, cut 3, 4 at q = -+95.
#include <gtest/gtest.h>

#include <cmath>

#include "corredo/lavoro_prova.h"
#include "corredo/nodo_prova.h"
#include "engine/Nervature.h"
#include "engine/PresInfl.h"
#include "model/stato.h"

namespace {

struct NervatureTest : testing::Test {
  void SetUp() override {
    NodoProva();
    nodo.TipoNodo = 2;
    nodo.Sezione.B = 180;
    nodo.SpNerv = 20;
    nodo.HNerv = 150;
    nodo.EcCls = 300000;
    SchemaProva(0, 50, 65);
    verifica.AreaTf = 250;
  }
  // value = a q + b p + c in the plate's axes.
  static void Piano(double a, double b, double c) {
    presInfl.PianoDef[1] = a;
    presInfl.PianoDef[2] = -b;
    presInfl.PianoDef[3] = c;
  }
};

void Confronta(const AzioniPiastra& z, double V, double Mq, double Mp) {
  EXPECT_NEAR(z.V, V, 1e-9 * (1 + std::fabs(V)));
  EXPECT_NEAR(z.MomentoQ, Mq, 1e-9 * (1 + std::fabs(Mq)));
  EXPECT_NEAR(z.MomentoP, Mp, 1e-9 * (1 + std::fabs(Mp)));
}

double Ideale(double sigma, double tau) { return std::sqrt(3 * tau * tau + sigma * sigma); }

// The section of cuts 1, 2 (W = 500) and 3, 4 (W = 400): ribs, then welds.
//   Yg = (400 W / 2 + 6000 x 95) / (20 W + 6000), I = 8000 W / 12 + 20 W (Yg - 10)^2 + 2 [5625000 + 3000 (Yg - 95)^2],
//   J = (8000 W + 2 x 8000 x 150) / 3.
struct Attesa {
  double M, M2, V, W;
  bool lungoP;
};

double AttesaSopra(const Attesa& z) {
  const double Yg = (200 * z.W + 570000) / (20 * z.W + 6000);
  const double I = 8000 * z.W / 12 + 20 * z.W * std::pow(Yg - 10, 2) + 2 * (5625000 + 3000 * std::pow(Yg - 95, 2)),
               J = (8000 * z.W + 2400000) / 3;
  return Ideale(z.M / I * (170 - Yg), std::fabs(z.V) / 6000 + std::fabs(z.M2) / J * 10);
}
double AttesaSotto(const Attesa& z) {
  const double Yg = (200 * z.W + 570000) / (20 * z.W + 6000);
  const double I = 8000 * z.W / 12 + 20 * z.W * std::pow(Yg - 10, 2) + 2 * (5625000 + 3000 * std::pow(Yg - 95, 2)),
               J = (8000 * z.W + 2400000) / 3;
  return Ideale(z.M / I * Yg, z.M2 / J * 10);
}

void ConfrontaTaglio(const Attesa& z, int p1, int p2) {
  const double id = std::max(AttesaSopra(z), AttesaSotto(z));
  EXPECT_NEAR(ris.SNerv[1][p1], id, 1e-9 * id) << p1;
  EXPECT_EQ(ris.SNerv[1][p2], ris.SNerv[1][p1]) << p2;
}

}  // namespace

TEST_F(NervatureTest, PressioneCostante) {  // P = -1e-4 x 3000 = -0.3: resultant P x area, no moments
  Piano(0, 0, -1e-4);
  Confronta(AzioniSuPiastra(lavoro, 110, 200, -250, 250), -0.3 * 90 * 500, 0, 0);
  Piano(0, 0, 1e-4);
  Confronta(AzioniSuPiastra(lavoro, 110, 200, -250, 250), 0, 0, 0);
  Piano(0, 0, 0);
  Confronta(AzioniSuPiastra(lavoro, 110, 200, -250, 250), 0, 0, 0);
  Piano(1e-12, -1e-12, -1e-4);  // coefficients up to 1e-12 count as zero
  Confronta(AzioniSuPiastra(lavoro, 110, 200, -250, 250), -13500, 0, 0);
}

TEST_F(NervatureTest, TuttaCompressa) {
  // P = 3000 (1e-7 q - 2e-7 p - 1e-4) on p 100..200, q -50..150: middle (150, 50): -0.3 + 0.015 - 0.09 = -0.375;
  // V = -0.375 x 100 x 200; Mq = 3e-4 x 200^3 / 12 x 100; Mp = -6e-4 x 100^3 / 12 x 200, less 1e-4 of it: the strips' middles.
  Piano(1e-7, -2e-7, -1e-4);
  const AzioniPiastra z = AzioniSuPiastra(lavoro, 100, 200, -50, 150);
  EXPECT_NEAR(z.V, -7500, 1e-9);
  EXPECT_NEAR(z.MomentoQ, 20000, 1e-8);
  EXPECT_NEAR(z.MomentoP, -10000 * (1 - 1e-4), 1e-8);
  EXPECT_NEAR(RisultanteSuPiastra(lavoro, 100, 200, 150, -50), -7500, 1e-9);  // the length along q counts by its absolute value
  EXPECT_NEAR(RisultanteSuPiastra(lavoro, 200, 100, -50, 150), 7500, 1e-9);   // the strips' width by its sign
  EXPECT_EQ(RisultanteSuPiastra(lavoro, 100, 200, -50, 150), z.V);
  EXPECT_EQ(MomentoQSuPiastra(lavoro, 100, 200, -50, 150), z.MomentoQ);
  EXPECT_EQ(MomentoPSuPiastra(lavoro, 100, 200, -50, 150), z.MomentoP);
}

TEST_F(NervatureTest, ZeroDentroLungoQ) {
  // P = 3e-4 (q - 20) on q -100..100: compressed below 20: -3e-4 x 120^2 / 2 = -2.16 a mm; centroid at 20 - 80 = -60: Mq = 129.6 a mm.
  Piano(1e-7, 0, -2e-6);
  Confronta(AzioniSuPiastra(lavoro, -30, 70, -100, 100), -216, 12960, 0);
  // The reverse slope: compressed above 20: -3e-4 x 80^2 / 2 = -0.96, centroid 20 + 160/3.
  Piano(-1e-7, 0, 2e-6);
  Confronta(AzioniSuPiastra(lavoro, -30, 70, -100, 100), -96, -96 * (20 + 160.0 / 3), 0);
  // Off the middle line: q 0..100, qm = 50, compressed 0..20: -0.06, centroid 20/3 - 50.
  Piano(1e-7, 0, -2e-6);
  Confronta(AzioniSuPiastra(lavoro, -30, 70, 0, 100), -6, -6 * (20.0 / 3 - 50), 0);
  Piano(1e-7, 0, 2e-5);  // zero at -200: tension everywhere
  Confronta(AzioniSuPiastra(lavoro, -30, 70, -100, 100), 0, 0, 0);
  Piano(1e-7, 0, -1e-5);  // zero exactly at the end 100: a trapezium
  Confronta(AzioniSuPiastra(lavoro, -30, 70, -100, 100), -3e-4 * 200 * 200 / 2 * 100, 3e-4 * 200 * 200 * 200 / 12 * 100, 0);
  // Zero exactly at the first end, -64, in numbers without rounding: a = -2^-24, length 128.
  const double a = -0x1p-24;
  Piano(a, 0, 64 * a);
  Confronta(AzioniSuPiastra(lavoro, -30, 70, -64, 64), 3000 * a * 128 * 128 / 2 * 100, 3000 * a * 128 * 128 * 128 / 12 * 100, 0);
}

TEST_F(NervatureTest, ZeroDentroLungoP) {  // no change along q: closed along p, times |qb - qa|
  Piano(0, 1e-7, -2e-6);
  Confronta(AzioniSuPiastra(lavoro, -100, 100, -30, 70), -216, 0, 12960);
  Confronta(AzioniSuPiastra(lavoro, -100, 100, 70, -30), -216, 0, 12960);  // the length along q by its absolute value
  Piano(0, -1e-7, 2e-6);
  Confronta(AzioniSuPiastra(lavoro, -100, 100, -30, 70), -96, 0, -96 * (20 + 160.0 / 3));
  Piano(1e-12, -1e-7, 2e-6);  // 1e-12 along q still counts as no change
  EXPECT_EQ(MomentoQSuPiastra(lavoro, -100, 100, -30, 70), 0);
  Piano(1.1e-12, -1e-7, 2e-6);
  EXPECT_NE(MomentoQSuPiastra(lavoro, -100, 100, -30, 70), 0);
  Piano(0, 1e-7, -1e-4);  // all compressed: mean -0.3, Mp = 3e-4 x 200^3 / 12 x 100
  Confronta(AzioniSuPiastra(lavoro, -100, 100, -30, 70), -6000, 0, 20000);
}

TEST_F(NervatureTest, TriangoloInAngolo) {  // P = 3e-4 (p + q - 150) on 0..100 squared: only by strips, against a fine sum
  Piano(1e-7, 1e-7, -1.5e-5);
  double V = 0, Mq = 0, Mp = 0;
  for (int n = 0; n < 1000; ++n)
    for (int m = 0; m < 1000; ++m) {
      const double p = (n + 0.5) / 10, q = (m + 0.5) / 10, P = std::min(0.0, 3e-4 * (p + q - 150)) * 0.01;
      V += P;
      Mq += P * (q - 50);
      Mp += P * (p - 50);
    }
  const AzioniPiastra z = AzioniSuPiastra(lavoro, 0, 100, 0, 100);
  EXPECT_NEAR(z.V, V, 1e-4 * std::fabs(V));
  EXPECT_NEAR(z.MomentoQ, Mq, 1e-3 * std::fabs(Mq));
  EXPECT_NEAR(z.MomentoP, Mp, 1e-3 * std::fabs(Mp));
}

TEST_F(NervatureTest, TagliPressioneCostante) {
  // T = -1e-4 x 20000 x 250 = -500 daN, hole 0.3 x 250 = 75 daN.
  // Cuts 1, 2: V = -0.3 x 90 x 500 = -13500, M = 45 x 13500 = 607500; arm |150 - 110| = 40: M + 2 x 500 x 40 - 2 x 75 x 40 = 641500;
  //   V - 1000 + 150 = -14350; M2 = 0.
  // Cut 3: V = -0.3 x 400 x 155 = -18600, M = 77.5 x 18600 = 1441500; arm |-185 - 95| = 280, the far face: + 280000 - 42000 = 1679500;
  //   V = -19450. Cut 4: arm 90: 1441500 + 90000 - 13500 = 1518000.
  Piano(0, 0, -1e-4);
  CalcolaNervature(lavoro, 1);
  const Attesa t12 = {641500, 0, -14350, 500, true}, t3 = {1679500, 0, -19450, 400, false}, t4 = {1518000, 0, -19450, 400, false};
  ConfrontaTaglio(t12, 1, 2);
  ConfrontaTaglio(t12, 5, 6);
  ConfrontaTaglio(t3, 3, 4);
  ConfrontaTaglio(t4, 7, 8);
  // Cut 1 in figures: Yg 41.875, I 38677083, sigma 641500 / 38677083 x 128.125 = 2.12509, tau 14350 / 6000 = 2.39167: 4.65577.
  EXPECT_NEAR(ris.SNerv[1][1], 4.65577, 1e-5);
  // Plate: the largest underside, cut 3: Yg = 650000 / 14000 = 46.4286.
  EXPECT_NEAR(ris.SMaxPiastra[1], AttesaSotto(t3), 1e-9);
  EXPECT_LT(AttesaSotto(t12), AttesaSotto(t3));
}

TEST_F(NervatureTest, SaldatureDeiTagli) {
  Piano(0, 0, -1e-4);
  CalcolaNervature(lavoro, 1);
  // Cuts 1, 2: Yg = (100000 + 3000 x 95) / 13000 = 29.61538; I = 333333.33 + 10000 x 19.61538^2 + 2 [150^3 10/12 + 1500 x 65.38462^2];
  //   Yt = 140.38462; TauPa = 14350 / 4 / 150 / 5 = 4.78333; SPrp = 641500 / I |75 (k - 1) - Yt|.
  const double Yg = 385000.0 / 13000, I = 8000 * 500.0 / 12 + 10000 * std::pow(Yg - 10, 2) + 2 * (2812500 + 1500 * std::pow(Yg - 95, 2)),
               Yt = 170 - Yg;
  for (const int w : {33, 35, 39, 40})  // these stand in no other cut
    for (int k = 1; k <= 3; ++k) {
      EXPECT_NEAR(ris.Saldature[w].TauPa[1][k], 14350.0 / 3000, 1e-9);
      EXPECT_NEAR(ris.Saldature[w].SPrp[1][k], 641500 / I * std::fabs(75 * (k - 1) - Yt), 1e-9);
      EXPECT_EQ(ris.Saldature[w].TauPe[1][k], 0);
    }
  // Cuts 3, 4: the ribs count too: areas 3000 + 6000: Yg = (80000 + 9000 x 95) / 17000; I adds 2 [5625000 + 3000 (Yg - 95)^2].
  //   TauPa = 19450 / 3000, the bending across the weld.
  const double Yg3 = 935000.0 / 17000, Yt3 = 170 - Yg3;
  const double I3 = 8000 * 400.0 / 12 + 8000 * std::pow(Yg3 - 10, 2) + 2 * (2812500 + 1500 * std::pow(Yg3 - 95, 2)) +
                    2 * (5625000 + 3000 * std::pow(Yg3 - 95, 2));
  for (const auto& [w, M] : {std::pair{36, 1679500.0}, {38, 1679500.0}, {29, 1518000.0}, {31, 1518000.0}})
    for (int k = 1; k <= 3; ++k) {
      EXPECT_NEAR(ris.Saldature[w].TauPa[1][k], 19450.0 / 3000, 1e-9);
      EXPECT_NEAR(ris.Saldature[w].TauPe[1][k], M / I3 * std::fabs(75 * (k - 1) - Yt3), 1e-9);
      EXPECT_EQ(ris.Saldature[w].SPrp[1][k], 0);
    }
  // 30, 37 (cut 1) and 32 (cut 2) stand in two cuts: the larger shear, and both bendings; 34 in cuts 2 and 3.
  for (const auto& [w, M] : {std::pair{30, 1518000.0}, {32, 1518000.0}, {34, 1679500.0}, {37, 1679500.0}}) {
    EXPECT_NEAR(ris.Saldature[w].TauPa[1][1], 19450.0 / 3000, 1e-9) << w;
    EXPECT_NEAR(ris.Saldature[w].SPrp[1][1], 641500 / I * Yt, 1e-9) << w;
    EXPECT_NEAR(ris.Saldature[w].TauPe[1][1], M / I3 * Yt3, 1e-9) << w;
  }
}

TEST_F(NervatureTest, TorsioneTagli12) {
  // Value 1e-7 q - 1e-4: Mq = 3e-4 x 500^3 / 12 x 90 = 281250; T c = 1e-7 q^2 x 5e6: 2 x 17112.5 = 34225; hole 0.3 - 3e-4 q:
  //   -3e-4 q^2 x 250: 2 x -2566.875 = -5133.75. Cut 1: -281250 - 34225 + 5133.75; cut 2 the same with the other sign.
  // M and V as with the constant pressure: 641500, -14350.
  Piano(1e-7, 0, -1e-4);
  CalcolaNervature(lavoro, 1);
  const Attesa t = {641500, 310341.25, -14350, 500, true};
  ConfrontaTaglio(t, 1, 2);
  ConfrontaTaglio(t, 5, 6);
  // Welds: J = (4 x 150 x 125 + 8000 x 500) / 3 = 1358333.33; TauPa = 4.78333 + 310341.25 / J x 2.5.
  EXPECT_NEAR(ris.Saldature[39].TauPa[1][2], 14350.0 / 3000 + 310341.25 / (4075000.0 / 3) * 2.5, 1e-9);
  EXPECT_NEAR(ris.Saldature[33].TauPa[1][2], 14350.0 / 3000 + 310341.25 / (4075000.0 / 3) * 2.5, 1e-9);
}

TEST_F(NervatureTest, TorsioneTagli34) {
  // Value 1e-7 p - 1e-4: Mp = 3e-4 x 400^3 / 12 x 155 = 248000; T c: 1e-7 x 150^2 x 5e6 x 2 = 22500; holes: -3e-4 x 150^2 x 250 x 2 = -3375.
  // Cut 3: 248000 - 22500 + 3375 = 228875; cut 4: 248000 + 22500 - 3375 = 267125. The welds take no torsion here.
  Piano(0, 1e-7, -1e-4);
  CalcolaNervature(lavoro, 1);
  ConfrontaTaglio({1679500, 228875, -19450, 400, false}, 3, 4);
  ConfrontaTaglio({1518000, 267125, -19450, 400, false}, 7, 8);
  EXPECT_NEAR(ris.Saldature[36].TauPa[1][1], 19450.0 / 3000, 1e-9);
  EXPECT_NEAR(ris.Saldature[29].TauPa[1][1], 19450.0 / 3000, 1e-9);
  // Cuts 1, 2 no longer alike. On the cut's strip, p 110..200, the mean is -0.3 + 3e-4 x 155 = -0.2535: V = -11407.5;
  // Mp = 3e-4 x 90^3 / 12 x 500 = 9112.5; M = 9112.5 + 45 x 11407.5 = 522450; T = (1.5e-5 - 1e-4) 5e6 = -425, hole 0.255 x 250 = 63.75:
  // M + 2 x 40 (425 - 63.75) = 551350; V - 850 + 127.5 = -12130.
  ConfrontaTaglio({551350, 0, -12130, 500, true}, 1, 2);
  // Cut 2: mean -0.3465: V = -15592.5, M = 9112.5 + 701662.5 = 710775; T = -575, hole 86.25: + 80 (575 - 86.25) = 749875; V = -16570.
  ConfrontaTaglio({749875, 0, -16570, 500, true}, 5, 6);
  // The plate takes the underside of cut 4, which bends less than cut 3 and twists more: Yg 46.42857, I 36288095, J 1866666.7;
  // sigma 1518000 / I Yg = 1.94220, tau 267125 / J x 10 = 1.43103: 3.14891.
  EXPECT_NEAR(ris.SMaxPiastra[1], AttesaSotto({1518000, 267125, -19450, 400, false}), 1e-9);
  EXPECT_NEAR(ris.SMaxPiastra[1], 3.14891, 1e-5);
}

TEST_F(NervatureTest, SoloTrazione) {  // no compression: anchors alone. T = 500, no hole.
  Piano(0, 0, 1e-4);
  CalcolaNervature(lavoro, 1);
  ConfrontaTaglio({-500 * 80, 0, 1000, 500, true}, 1, 2);
  ConfrontaTaglio({-500 * 560, 0, 1000, 400, false}, 3, 4);
  ConfrontaTaglio({-500 * 180, 0, 1000, 400, false}, 7, 8);
}

TEST_F(NervatureTest, TirafondiAggiunti) {
  // One more anchor in each cut by pattern: V gains 500, M loses 500 x arm; mid-side anchors stand on the axis, so M2 stays 0.
  Piano(0, 0, 1e-4);
  struct Riga {
    int schema;
    bool z, y;
  };  // extra in cuts 1, 2; in cuts 3, 4
  for (const Riga& r : {Riga{0, false, false}, {1, true, true}, {2, true, false}, {3, false, true}}) {
    SetUp();
    Piano(0, 0, 1e-4);
    SchemaProva(r.schema, 50, 65);
    CalcolaNervature(lavoro, 1);
    const double nz = r.z ? 3 : 2, ny = r.y ? 3 : 2;
    ConfrontaTaglio({-500 * 40 * nz, 0, 500 * nz, 500, true}, 1, 2);
    ConfrontaTaglio({-500 * 40 * nz, 0, 500 * nz, 500, true}, 5, 6);
    ConfrontaTaglio({-500 * 280 * ny, 0, 500 * ny, 400, false}, 3, 4);
    ConfrontaTaglio({-500 * 90 * ny, 0, 500 * ny, 400, false}, 7, 8);
  }
}

TEST_F(NervatureTest, QualeTirafondoAggiunto) {  // a sloped plane tells the extra anchors apart, off the axis
  // Pattern 1, tension everywhere: value 1e-4 + 1e-7 q + 2e-7 p; T = value x 5e6.
  SchemaProva(1, 50, 65);
  nodo.TfY[5] = 260;  // q = -10
  nodo.TfY[6] = 230;  // q = 20
  nodo.TfZ[7] = 170;  // p = 30
  nodo.TfZ[8] = 240;  // p = -40
  Piano(1e-7, 2e-7, 1e-4);
  CalcolaNervature(lavoro, 1);
  const auto T = [](double p, double q) { return (1e-4 + 1e-7 * q + 2e-7 * p) * 5e6; };
  // Cut 1: anchors 1 (150, 185), 3 (150, -185), 5 (150, -10): M = -40 sum T, M2 = -sum T q, V = sum T. Cut 2 with p = -150, 6 at 20.
  const double V1 = T(150, 185) + T(150, -185) + T(150, -10), M21 = -(T(150, 185) * 185 - T(150, -185) * 185 - T(150, -10) * 10);
  ConfrontaTaglio({-40 * V1, M21, V1, 500, true}, 1, 2);
  const double V2 = T(-150, 185) + T(-150, -185) + T(-150, 20), M22 = T(-150, 185) * 185 - T(-150, -185) * 185 + T(-150, 20) * 20;
  ConfrontaTaglio({-40 * V2, M22, V2, 500, true}, 5, 6);
  const double V3 = T(150, -185) + T(-150, -185) + T(30, -185), M23 = -(T(150, -185) * 150 - T(-150, -185) * 150 + T(30, -185) * 30);
  ConfrontaTaglio({-280 * V3, M23, V3, 400, false}, 3, 4);
  const double V4 = T(150, 185) + T(-150, 185) + T(-40, 185), M24 = T(150, 185) * 150 - T(-150, 185) * 150 - T(-40, 185) * 40;
  ConfrontaTaglio({-90 * V4, M24, V4, 400, false}, 7, 8);
}

TEST_F(NervatureTest, MaiAbbassa) {
  Piano(0, 0, -1e-4);
  ris.SNerv[1][1] = 100;
  ris.SMaxPiastra[1] = 200;
  ris.Saldature[39].SPrp[1][2] = 300;
  ris.Saldature[36].TauPe[1][2] = 400;
  CalcolaNervature(lavoro, 1);
  EXPECT_EQ(ris.SNerv[1][1], 100);
  EXPECT_NEAR(ris.SNerv[1][2], 4.65577, 1e-5);
  EXPECT_EQ(ris.SMaxPiastra[1], 200);
  EXPECT_EQ(ris.Saldature[39].SPrp[1][2], 300);
  EXPECT_EQ(ris.Saldature[36].TauPe[1][2], 400);
}

TEST_F(NervatureTest, DivisoriNulli) {
  for (double Nodo::*campo : {&Nodo::HNerv, &Nodo::SpNerv, &Nodo::GolaCalc}) {
    SetUp();
    Piano(0, 0, -1e-4);
    AzzeraFault();
    nodo.*campo = 0;
    CalcolaNervature(lavoro, 1);
    EXPECT_TRUE(FaultAritmetico());
  }
}
