// tests/unita/test_fatti.cpp - what a sextet's plane tells: closed formulas of the rectangle, of the pyramid on a triangle, of statics.
// Plate 400 x 500, concrete 3000 daN/mm2. Planes are laid by hand, value(z, y) = a + bz z + by y in the plan's axes (y downward), so
// that a pressure of -1 N/mm2 is a value of -1e-4 / 3.
#include "engine/fatti.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "corredo/lavoro_prova.h"
#include "corredo/nodo_prova.h"
#include "engine/PresInfl.h"

namespace {

constexpr double E_CLS = 3000;  // daN/mm2

struct FattiTest : testing::Test {
  void SetUp() override {
    NodoProva();
    nodo.EcCls = 100 * E_CLS;
    nodo.NTir = 0;
    SestettoProva(-60000, 0, 0, 0, 0, 0);
  }

  // Of sextet 1. The solver's y runs upward, and the region is the plate.
  static void Piano(double a, double bz, double by) {
    DatiSezione(lavoro, 1);
    for (double* v : {presInfl.VertX, presInfl.VertY}) v[5] = v[1];
    verifica.AreaTf = 245;
    lavoro.piani[1] = {{0, -by, bz, a}, 4};
  }
  // By the pressures in N/mm2 at the middle, and its slopes in N/mm2 a mm.
  static void Pressione(double a, double bz, double by) { Piano(a / 10 / E_CLS, bz / 10 / E_CLS, by / 10 / E_CLS); }
  static FattiSestetto F() { return Fatti(lavoro, 1); }

  static void Asse(const FattiSestetto& f, double z1, double y1, double z2, double y2) {
    EXPECT_TRUE(f.conAsse);
    EXPECT_NEAR(f.asse_neutro[0].z, z1, 1e-9);
    EXPECT_NEAR(f.asse_neutro[0].y, y1, 1e-9);
    EXPECT_NEAR(f.asse_neutro[1].z, z2, 1e-9);
    EXPECT_NEAR(f.asse_neutro[1].y, y2, 1e-9);
  }
  static void Risultante(const FattiSestetto& f, double kN, double z, double y) {
    EXPECT_TRUE(f.conRisultante);
    EXPECT_NEAR(f.risultante_kN, kN, 1e-9 * std::fabs(kN));
    EXPECT_NEAR(f.risultante.z, z, 1e-9);
    EXPECT_NEAR(f.risultante.y, y, 1e-9);
  }
};

}  // namespace

// ---- the pressure's figure, laid by hand

TEST_F(FattiTest, PressioneUniforme) {  // 3 N/mm2 on 200000 mm2: 600 kN
  Pressione(-3, 0, 0);
  const FattiSestetto f = F();
  EXPECT_NEAR(f.area_compressa, 100, 1e-12);
  EXPECT_FALSE(f.conAsse);
  Risultante(f, -600, 0, 0);
  EXPECT_NEAR(f.residuo_percento, 0, 1e-9);
  EXPECT_EQ(f.iterazioni, 4);
  EXPECT_NEAR(PressioneNelPunto(lavoro, 1, {200, -250}), -3, 1e-12);
}

TEST_F(FattiTest, TuttaCompressaInclinata) {
  // -3 - 0.01 z + 0.002 y: -5.5 to -0.5 at the corners. Centre of pressure of a rectangle under a linear pressure: bz LatoZ^2 / 12 / a.
  Pressione(-3, -0.01, 0.002);
  const FattiSestetto f = F();
  EXPECT_NEAR(f.area_compressa, 100, 1e-12);
  EXPECT_FALSE(f.conAsse);
  Risultante(f, -600, 0.01 * 160000 / 12 / 3, -0.002 * 250000 / 12 / 3);  // 44.44, -13.89: where it presses more
  EXPECT_NEAR(PressioneNelPunto(lavoro, 1, {200, -250}), -5.5, 1e-12);
  EXPECT_NEAR(PressioneNelPunto(lavoro, 1, {-200, 250}), -0.5, 1e-12);
  EXPECT_NEAR(PressioneNelPunto(lavoro, 1, {100, 50}), -3.9, 1e-12);
}

TEST_F(FattiTest, TriangoloSuUnAsse) {
  // Zero at y = 100, -6 at the upper edge y = -250: depth 350; 0.5 x 6 x 350 x 400 = 420 kN at a third of the depth from the edge.
  Pressione(-6 * 100 / 350.0, 0, 6 / 350.0);
  FattiSestetto f = F();
  EXPECT_NEAR(f.area_compressa, 70, 1e-9);
  Asse(f, -200, 100, 200, 100);
  Risultante(f, -420, 0, -250 + 350 / 3.0);
  EXPECT_GT(PressioneNelPunto(lavoro, 1, {0, 250}), 0);  // lifted
  EXPECT_NEAR(PressioneNelPunto(lavoro, 1, {0, -250}), -6, 1e-9);
  // Turned by a right angle: zero at z = -50, -4 at the right edge: 0.5 x 4 x 250 x 500 = 250 kN. Upright: the lower y first.
  Pressione(-4 * 50 / 250.0, -4 / 250.0, 0);
  f = F();
  EXPECT_NEAR(f.area_compressa, 62.5, 1e-9);
  Asse(f, -50, -250, -50, 250);
  Risultante(f, -250, 200 - 250 / 3.0, 0);
  // Pressing to the left.
  Pressione(-4 * 50 / 250.0, 4 / 250.0, 0);
  f = F();
  Asse(f, 50, -250, 50, 250);
  Risultante(f, -250, -200 + 250 / 3.0, 0);
}

TEST_F(FattiTest, TriangoloInUnAngolo) {
  // A pyramid on the triangle with legs 100 along Z and 150 along Y at each corner, peak 6: 6 x 7500 / 3 = 15 kN, a quarter of the legs
  // from the corner; 7500 / 200000.
  for (const double sz : {-1.0, 1.0})
    for (const double sy : {-1.0, 1.0}) {
      const double bz = -sz * 6 / 100, by = -sy * 6 / 150.0;
      Pressione(-6 - bz * sz * 200 - by * sy * 250, bz, by);
      const FattiSestetto f = F();
      EXPECT_NEAR(f.area_compressa, 3.75, 1e-9);
      Risultante(f, -15, sz * (200 - 25), sy * (250 - 37.5));
      if (sz > 0) Asse(f, 100, sy * 250, 200, sy * 100);  // lower z first
      else Asse(f, -200, sy * 100, -100, sy * 250);
      const PoligonoCompresso p = ParteCompressa(lavoro, 1);
      EXPECT_EQ(p.n, 3);
    }
}

TEST_F(FattiTest, AngoloSollevato) {
  // The whole rectangle's linear pressure less the pyramid that would pull, on legs of 100 and 150.
  const double bz = 6 / 100.0, by = 6 / 150.0, a = 6 - bz * 200 - by * 250;  // +6 at (200, 250), the corner that lifts
  Pressione(a, bz, by);
  const FattiSestetto f = F();
  EXPECT_NEAR(f.area_compressa, 96.25, 1e-9);
  Asse(f, 100, 250, 200, 100);
  // Whole: a x 200000 N at (bz LatoZ^2 / 12 / a, by LatoY^2 / 12 / a); pyramid: +15000 N at (175, 212.5).
  const double N = a * 200000 - 15000;
  const double z = (a * 200000 * (bz * 160000 / 12 / a) - 15000 * 175) / N, y = (a * 200000 * (by * 250000 / 12 / a) - 15000 * 212.5) / N;
  Risultante(f, N / 1000, z, y);
  EXPECT_EQ(ParteCompressa(lavoro, 1).n, 5);
}

TEST_F(FattiTest, ContattoInUnAngolo) {  // the axis through one corner and no more: it does not cut the plate
  // In numbers without rounding: zero at (200, 250), the plane falls or rises from there.
  Piano(-0x1p-14 * 450, 0x1p-14, 0x1p-14);
  FattiSestetto f = F();
  EXPECT_FALSE(f.conAsse);
  EXPECT_NEAR(f.area_compressa, 100, 1e-12);
  EXPECT_TRUE(f.conRisultante);
  Piano(0x1p-14 * 450, -0x1p-14, -0x1p-14);
  f = F();
  EXPECT_FALSE(f.conAsse);
  EXPECT_EQ(f.area_compressa, 0);
  EXPECT_FALSE(f.conRisultante);
  EXPECT_EQ(f.risultante_kN, 0);
  // Along an edge, from either side: none as well.
  Piano(-0x1p-14 * 200, 0x1p-14, 0);
  f = F();
  EXPECT_FALSE(f.conAsse);
  EXPECT_NEAR(f.area_compressa, 100, 1e-12);
  Piano(0x1p-14 * 200, -0x1p-14, 0);
  f = F();
  EXPECT_FALSE(f.conAsse);
  EXPECT_EQ(f.area_compressa, 0);
  EXPECT_FALSE(f.conRisultante);
}

TEST_F(FattiTest, AssePerUnVertice) {
  // Through the corner (200, 250) and the left edge at y = -150: it presses where y > z + 50, legs of 400 and 400.
  Piano(0x1p-14 * 50, 0x1p-14, -0x1p-14);
  FattiSestetto f = F();
  Asse(f, -200, -150, 200, 250);
  EXPECT_NEAR(f.area_compressa, 40, 1e-12);  // 80000 of 200000 mm2
  EXPECT_EQ(ParteCompressa(lavoro, 1).n, 3);
  // From corner to corner, on a square plate.
  nodo.LatoZ = 500;
  Piano(0, 0x1p-14, 0x1p-14);
  f = F();
  Asse(f, -250, 250, 250, -250);
  EXPECT_NEAR(f.area_compressa, 50, 1e-12);
  Piano(0, 0x1p-14, -0x1p-14);
  Asse(F(), -250, -250, 250, 250);
}

// Points whose z differ by no more than 1e-6 mm count as one above the other.
TEST_F(FattiTest, AsseQuasiVerticale) {
  for (const double segno : {1.0, -1.0}) {
    Piano(0, 1e-4, segno * 1e-4 * 0.4e-6 / 500);  // z = -segno 0.4e-6 y / 500: 0.4e-6 from end to end
    FattiSestetto f = F();
    EXPECT_LT(f.asse_neutro[0].y, f.asse_neutro[1].y) << segno;
    Piano(0, 1e-4, segno * 1e-4 * 4e-6 / 500);  // 4e-6: the lower z, at the lower end of the plan for a plane that rises downward
    f = F();
    EXPECT_LT(f.asse_neutro[0].z, f.asse_neutro[1].z);
    EXPECT_EQ(f.asse_neutro[0].y > 0, segno > 0);
  }
}

TEST_F(FattiTest, VerticiInGiro) {  // five of them, each beside the next, in the plan's axes
  Pressione(-3, 0.02, -0.012);      // +4 at (200, -250); -4, -10, -2 at the other corners
  const PoligonoCompresso p = ParteCompressa(lavoro, 1);
  ASSERT_EQ(p.n, 5);
  double doppia = 0;
  for (int j = 0; j < p.n; ++j) {
    const PuntoPiano u = p.v[j], w = p.v[(j + 1) % p.n];
    doppia += u.z * w.y - w.z * u.y;
    EXPECT_LE(PressioneNelPunto(lavoro, 1, u), 1e-12);
    EXPECT_TRUE(std::fabs(u.z) == 200 || std::fabs(u.y) == 250);
  }
  // Lifted: the triangle at (200, -250) with legs 4 / 0.02 = 200 and 4 / 0.012 = 333.3.
  EXPECT_NEAR(std::fabs(doppia) / 2, 200000 - 200 * (4 / 0.012) / 2, 1e-6);
  EXPECT_NEAR(F().area_compressa, 100 - 200 * (4 / 0.012) / 2 / 2000, 1e-9);
}

TEST_F(FattiTest, TrazioneSemplice) {  // four anchors of 245 mm2 at 20000 daN/mm2 hold 20000 daN
  SchemaProva(0);
  nodo.SollN[1] = 20000;
  Piano(20000 / (4 * 245 * 20000.0), 0, 0);
  const FattiSestetto f = F();
  EXPECT_EQ(f.area_compressa, 0);
  EXPECT_FALSE(f.conAsse);
  EXPECT_FALSE(f.conRisultante);
  EXPECT_EQ(f.pressione_max, 0);
  EXPECT_NEAR(f.residuo_percento, 0, 1e-9);
  EXPECT_EQ(ParteCompressa(lavoro, 1).n, 0);
}

TEST_F(FattiTest, NessunCarico) {  // a plane that is zero everywhere
  SchemaProva(0);
  nodo.SollN[1] = 0;
  Piano(0, 0, 0);
  const FattiSestetto f = F();
  EXPECT_EQ(f.area_compressa, 0);
  EXPECT_FALSE(f.conAsse);
  EXPECT_FALSE(f.conRisultante);
  EXPECT_EQ(f.pressione_max, 0);
  EXPECT_EQ(f.residuo_percento, 0);
  EXPECT_EQ(ParteCompressa(lavoro, 1).n, 0);
}

// ---- displaced concrete

TEST_F(FattiTest, CalcestruzzoSpostato) {
  // 3 N/mm2 on 200000 mm2 less the anchors' 245 mm2 each: those inside, compressed. Left of the plate: none; beyond its right edge: counted.
  SchemaProva(0);
  Pressione(-3, 0, 0);
  Risultante(F(), -3 * (200000 - 980) / 1000.0, 0, 0);
  nodo.TfZ[1] = -10;  // left, outside: three of them; those left are (150, -200), (-150, 200), (150, 200)
  Pressione(-3, 0, 0);
  double N = -3 * (200000 - 735);
  Risultante(F(), N / 1000, 3 * 245 * 150 / N, 3 * 245 * 200 / N);
  nodo.TfZ[1] = 50;
  nodo.TfZ[2] = 410;  // right, counted: at z = 210
  Pressione(-3, 0, 0);
  N = -3 * (200000 - 980);
  Risultante(F(), N / 1000, 3 * 245 * (210 - 150) / N, 0);
  SchemaProva(0);
  nodo.TfY[1] = 0;  // on the upper edge: counted; on the lower one: not
  nodo.TfY[4] = 500;
  Pressione(-3, 0, 0);
  N = -3 * (200000 - 735);
  Risultante(F(), N / 1000, -3 * 245 * 150 / N, -3 * 245 * 250 / N);  // (-150, -250), (150, -200), (-150, 200)
  // Anchors that are pulled displace nothing: triangle of 350 mm from the upper edge, zero at y = 100; those at y = 200 stand beyond it.
  SchemaProva(0);
  Pressione(-6 * 100 / 350.0, 0, 6 / 350.0);
  const double p = 6 * 300 / 350.0;  // at y = -200
  N = -420000 + 2 * 245 * p;
  Risultante(F(), N / 1000, 0, (-420000 * (-250 + 350 / 3.0) + 2 * 245 * p * -200) / N);
}

// ---- residual

TEST_F(FattiTest, ResiduoDelCarico) {
  // Internal: 60000 daN at the middle. Each error in per cent of the component, of |N| times half the longer side for a moment.
  const auto residuo = [](double N, double My, double Mz) {
    nodo.SollN[1] = N;
    nodo.SollMy[1] = My;
    nodo.SollMz[1] = Mz;
    Pressione(-3, 0, 0);
    return F().residuo_percento;
  };
  EXPECT_NEAR(residuo(-50000, 0, 0), 20, 1e-9);
  EXPECT_NEAR(residuo(-75000, 0, 0), 20, 1e-9);
  EXPECT_NEAR(residuo(-60000, 1e5, 0), 100 * 1e6 / (60000 * 250.0), 1e-9);  // daN cm to daN mm: 6.6667
  EXPECT_NEAR(residuo(-60000, 0, -2e5), 100 * 2e6 / (60000 * 250.0), 1e-9);
  EXPECT_NEAR(residuo(-60000, 3e6, 0), 100, 1e-9);                            // the moment itself is the larger base
  EXPECT_NEAR(residuo(-50000, 1e5, 4e5), 100 * 4e6 / (50000 * 250.0), 1e-9);  // the largest: 20, 8, 32
  EXPECT_NEAR(residuo(-50000, 1e5, 2e5), 20, 1e-9);
  EXPECT_NEAR(residuo(0, 0, 0), 100 * 60000, 1e-6);  // of 1 daN
  EXPECT_NEAR(residuo(0.5, 0, 0), 100 * 60000.5, 1e-6);
  nodo.LatoZ = 800;  // the longer side: 120000 daN, 400 mm
  EXPECT_NEAR(residuo(-120000, 0, 1e5), 100 * 1e6 / (120000 * 400.0), 1e-9);
}

TEST_F(FattiTest, ResiduoDeiMomenti) {
  // Closed: N = -60000 daN at (44.44, -13.89) as above. A positive My presses to the right, a positive Mz downward in the plan: M = -N e.
  Pressione(-3, -0.01, 0.002);
  nodo.SollMy[1] = 60000 * 0.01 * 160000 / 12 / 3 / 10;
  nodo.SollMz[1] = 60000 * -0.002 * 250000 / 12 / 3 / 10;
  EXPECT_NEAR(F().residuo_percento, 0, 1e-9);
  nodo.SollMy[1] *= -1;  // 2 x 2666666.7 over 15000000
  EXPECT_NEAR(F().residuo_percento, 100 * 2 * 60000 * 44.4444444444 / 15e6, 1e-6);
  // One anchor pulled at the upper left, alone: 4900 daN at (-150, -200).
  nodo.NTir = 1;
  nodo.SollN[1] = 4900;
  nodo.SollMy[1] = 4900 * 150 / 10.0;  // -4900 x -150
  nodo.SollMz[1] = 4900 * 200 / 10.0;
  Piano(4900 / (245 * 20000.0), 0, 0);
  EXPECT_NEAR(F().residuo_percento, 0, 1e-9);
}

// ---- behind the solver: statics tells where the resultant must be

TEST_F(FattiTest, DopoIlSolutore) {
  SchemaProva(0);
  nodo.EcCls = 312201.85778;
  for (double& a : suite.DiamArea) a = 1e-6;  // the anchors hold nothing
  struct Riga {
    double kz, ky, area, K;
  };  // eccentricities over the sides; K = pmax A / |N|
  // clang-format off
  const Riga RIGHE[] = {
    { 0, 0, 100, 1 },      { 0.1, 0, 100, 1.6 },  { 0, -0.12, 100, 1.72 }, { 0.05, 0.05, 100, 1.6 },     // kern: 1 + 6 k
    { 0.3, 0, 60, 10 / 3.0 }, { 0, 0.4, 30, 20 / 3.0 },                // one axis: depth 3 (1/2 - k), 2 / (3 (1/2 - k))
    { 0.3, 0.3, 100 * 0.5 * 0.8 * 0.8, 3 / (8 * 0.2 * 0.2) },            // a corner: legs 4 (1/2 - k)
  };
  // clang-format on
  nodo.NumSoll = 0;
  for (const Riga& r : RIGHE) SestettoProva(-40000, 0, 0, 0, r.kz * 40000 * 40, r.ky * 40000 * 50);
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  int s = 0;
  for (const Riga& r : RIGHE) {
    const FattiSestetto f = Fatti(lavoro, ++s);  // each of its own plane, also behind later sextets
    EXPECT_NEAR(f.area_compressa, r.area, 2e-3 * r.area) << s;
    EXPECT_NEAR(f.pressione_max, r.K * 40000 / 200000 * 10, 2e-3 * r.K * 2) << s;
    EXPECT_NEAR(f.risultante_kN, -400, 0.05) << s;
    EXPECT_NEAR(f.risultante.z, r.kz * 400, 0.05) << s;
    EXPECT_NEAR(f.risultante.y, r.ky * 500, 0.05) << s;  // Mz presses downward
    EXPECT_EQ(f.conAsse, r.area < 99.9) << s;
    EXPECT_LT(f.residuo_percento, 0.02) << s;
    EXPECT_GE(f.iterazioni, 3) << s;
    EXPECT_LE(f.iterazioni, 100) << s;
  }
}

TEST_F(FattiTest, DopoIlSolutoreConTirafondi) {
  // Plain compression, by hand: 199020 mm2 of concrete and 980 mm2 of steel at the ratio of the moduli; the concrete's share.
  SchemaProva(0);
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  FattiSestetto f = F();
  const double omogenea = 199020 + 980 * 20000 / E_CLS;
  EXPECT_NEAR(f.pressione_max, 60000 / omogenea * 10, 1e-9);
  Risultante(f, -600 * 199020 / omogenea, 0, 0);
  EXPECT_NEAR(f.residuo_percento, 0, 1e-9);
  // With tension: the anchors' forces and the concrete's resultant hold the load, moments about the middle.
  SestettoProva(-10000, 0, 0, 0, 300000, 300000);
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  f = Fatti(lavoro, 2);
  double N = f.risultante_kN * 100, My = -N * f.risultante.z, Mz = -N * f.risultante.y;
  for (int i = 1; i <= 4; ++i) {
    const double T = ris.SigmaTir[2][i] * 245;
    N += T;
    My -= T * (nodo.TfZ[i] - 200);
    Mz -= T * (nodo.TfY[i] - 250);
  }
  EXPECT_NEAR(N, -10000, 2);
  EXPECT_NEAR(My, 3000000, 301);
  EXPECT_NEAR(Mz, 3000000, 301);
  EXPECT_LT(f.residuo_percento, 0.02);
}
