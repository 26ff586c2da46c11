// tests/unita/test_piastra.cpp - both models of the base plate, by hand calculation; the ribbed one also on an asymmetric plate
// against a second writing of the strips that does without tables.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "corredo/lavoro_prova.h"
#include "corredo/nodo_prova.h"
#include "engine/Piastra.h"
#include "engine/Tirafondi.h"
#include "model/stato.h"

namespace {

struct PiastraTest : testing::Test {
  void SetUp() override {
    NodoProva();
    verifica.AreaTf = 245;
  }

  static void ConNervature(int s) {
    InerziaTirafondi(nodo, verifica.SommaR2, verifica.ArmZ, verifica.ArmY);
    PiastraConNervature(lavoro, s, verifica.ArmZ, verifica.ArmY);
  }

  // Ribs of 20 mm on a column 180 x 190: reference lines Zr = 100, Yr = 85. Anchors 150 and 185 mm from the centre, T = 1000 daN each.
  static void Nervata(int schema) {
    nodo.TipoNodo = 2;
    nodo.Sezione.B = 180;
    nodo.SpNerv = 20;
    SchemaProva(schema, 50, 65);
    verifica.AreaTf = 250;
    for (double& S : ris.SigmaTir[1]) S = 4;
  }
};

}  // namespace

TEST_F(PiastraTest, MensolaSottoPressione) {
  // Ly = (500 - 0.95 x 190) / 2 = 159.75 > Lz = (400 - 0.8 x 200) / 2 = 120; 6 x 0.5 x 0.5 x 159.75^2 / 400
  ris.SMaxCls[1] = 0.5;
  PiastraSenzaNervature(lavoro, 1);
  EXPECT_NEAR(ris.SMaxPiastra[1], 95.700234375, 1e-9);
  nodo.LatoZ = 600;  // Lz = 220
  SchemaProva(0);
  PiastraSenzaNervature(lavoro, 1);
  EXPECT_NEAR(ris.SMaxPiastra[1], 6 * 0.25 * 48400 / 400, 1e-9);
}

TEST_F(PiastraTest, QuattroLati) {
  // One side at a time has a lever, 45 mm. Stresses are powers of two, so that each sum tells its anchors; the extra ones are
  // compressed, since absolute values are added. Faces: (500 - 190) / 2 = 155, (400 - 200) / 2 = 100.
  struct Riga {
    int lato;
    double coppia;
    double extra[4];
    double W;
  };
  const double Wz = 400.0 * 400 / 6, Wy = 400.0 * 500 / 6;
  // clang-format off
  const Riga RIGHE[] = {
    { 1, 3,  { 0, 128, 0, 32 }, Wz },                  // 1 + 2; anchor 8 of eight, 6 of six Orizz.
    { 2, 10, { 0, 32, 32, 0 },  Wy },                  // 2 + 4; anchor 6
    { 3, 12, { 0, 64, 0, 16 },  Wz },                  // 3 + 4; anchor 7 or 5
    { 4, 5,  { 0, 16, 16, 0 },  Wy },                  // 1 + 3; anchor 5
  };
  // clang-format on
  for (const Riga& r : RIGHE)
    for (int schema = 0; schema < 4; ++schema) {
      SchemaProva(schema);
      for (int i = 1; i <= 8; ++i) ris.SigmaTir[1][i] = (i > 4 ? -1.0 : 1.0) * std::pow(2, i - 1);
      nodo.TfY[1] = r.lato == 1 ? 110 : 155;
      nodo.TfZ[2] = r.lato == 2 ? 345 : 300;
      nodo.TfY[3] = r.lato == 3 ? 390 : 345;
      nodo.TfZ[1] = r.lato == 4 ? 55 : 100;
      PiastraSenzaNervature(lavoro, 1);
      EXPECT_NEAR(ris.SMaxPiastra[1], 45 * (r.coppia + r.extra[schema]) * 245 / r.W, 1e-9) << r.lato << ' ' << schema;
    }
  // A pair that is compressed, a lever below zero: absolute values again. Side 1, anchor 8 pulled: 45 (3 + 128).
  SchemaProva(1);
  for (int i = 1; i <= 8; ++i) ris.SigmaTir[1][i] = (i > 4 ? 1.0 : -1.0) * std::pow(2, i - 1);
  for (const double y : {110.0, 200.0}) {
    nodo.TfY[1] = y;
    nodo.TfZ[2] = 300;
    nodo.TfY[3] = 345;
    nodo.TfZ[1] = 100;
    PiastraSenzaNervature(lavoro, 1);
    EXPECT_NEAR(ris.SMaxPiastra[1], 45 * 131 * 245 / Wz, 1e-9) << y;
  }
  // The pair's sum is taken before its absolute value: 1 and 2 cancel.
  SchemaProva(0);
  const double S[] = {0, 8, -8, 0, 0};
  std::copy(S, S + 5, ris.SigmaTir[1]);
  nodo.TfZ[2] = 300;
  nodo.TfZ[1] = 100;
  PiastraSenzaNervature(lavoro, 1);
  EXPECT_EQ(ris.SMaxPiastra[1], 0);
}

TEST_F(PiastraTest, MaggioreDeiDue) {  // the pressure's stress stays when the anchors' is smaller
  ris.SMaxCls[1] = 0.5;
  ris.SigmaTir[1][1] = 0.1;
  PiastraSenzaNervature(lavoro, 1);
  EXPECT_NEAR(ris.SMaxPiastra[1], 95.700234375, 1e-9);
  ris.SigmaTir[1][1] = ris.SigmaTir[1][2] = 100;  // 105 x 200 x 245 / 26666.67 = 192.94
  PiastraSenzaNervature(lavoro, 1);
  EXPECT_NEAR(ris.SMaxPiastra[1], 105 * 200 * 245 / (160000.0 / 6), 1e-9);
}

TEST_F(PiastraTest, NervataSchema2) {
  // Cz = |100 - 150| = 50, Cz2 = |(200 - 100) - 50| = 50, Cy = |85 - 185| = 100, Cy2 = |(250 - 85) - 100| = 65;
  // Bz = min(60, 100) + min(60, 65) = 120, By = min(50, 110) + min(110, 50) = 100. Anchor 5: Cy = Cy2 = 85, Bz 120, By 100.
  // Corner: R = (100^3/100 + 100^2 85/100) / (50^3/120 + 50^2 100/120) = 18500 / 3125 = 5.92; Tz = 5.92 / 6.92 x 1000 = 855.4913.
  Nervata(2);
  ConNervature(1);
  const double Tz = 5.92 / 6.92 * 1000, Mz = 50 * Tz, My = 100 * (1000 - Tz);
  for (int i = 1; i <= 4; ++i) {
    EXPECT_NEAR(ris.SPiastraTir[1][1][i], 6 * (Mz / 120) / 400, 1e-9) << i;  // 5.3468
    EXPECT_NEAR(ris.SPiastraTir[1][2][i], 6 * (My / 100) / 400, 1e-9) << i;  // 2.1676
  }
  // Anchor 5: R = (170^3 / 4800) / (50^3 / 360) = 1023.5417 / 347.2222 = 2.9478; My = |170 x Ty / 4 - 14450.87|; net width 80.
  const double Tz5 = 2.9478 / 3.9478 * 1000, My5 = std::fabs(170 * (1000 - Tz5) / 4 - My);
  for (int i = 5; i <= 6; ++i) {
    EXPECT_NEAR(ris.SPiastraTir[1][1][i], 6 * (50 * Tz5 / 120) / 400, 1e-9) << i;
    EXPECT_NEAR(ris.SPiastraTir[1][2][i], 6 * (My5 / 80) / 400, 1e-9) << i;
  }
  EXPECT_EQ(ris.SPiastraTir[1][1][7] + ris.SPiastraTir[1][2][8], 0);  // no anchors there
}

TEST_F(PiastraTest, NervataSchema3) {
  // Places 7, 8: Cz = 0, Cy = 85, mean widths. Anchor 5 (0, 185): Cz = Cz2 = 100, Cy = 100, Cy2 = 65,
  // Bz = min(110, 100) + min(110, 65) = 165, By = min(100, 110) + min(110, 100) = 200.
  // Corner: R = (10000 + 100^2 85/100) / (50^3/120 + 50^2 100/165) = 18500 / (1041.667 + 1515.152) = 7.235595; Wz = min(120, 165).
  Nervata(3);
  ConNervature(1);
  const double R = 18500 / (125000.0 / 120 + 250000.0 / 165), Tz = R / (1 + R) * 1000, Mz = 50 * Tz, My = 100 * (1000 - Tz);
  for (int i = 1; i <= 4; ++i) {
    EXPECT_NEAR(ris.SPiastraTir[1][1][i], 6 * (Mz / 120) / 400, 1e-9) << i;
    EXPECT_NEAR(ris.SPiastraTir[1][2][i], 6 * (My / 100) / 400, 1e-9) << i;
  }
  // Anchor 5: R = [100^3 / 600] / [200^3 / (48 x 165)] = 1666.667 / 1010.101 = 1.65; Tz = 622.6415, Ty = 377.3585;
  // Mz = |200 Tz / 4 - Mz corner|, net width 165 - 20; My = 100 Ty, width 200.
  const double Tz5 = 1.65 / 2.65 * 1000;
  for (int i = 5; i <= 6; ++i) {
    EXPECT_NEAR(ris.SPiastraTir[1][1][i], 6 * (std::fabs(50 * Tz5 - Mz) / 145) / 400, 1e-9) << i;
    EXPECT_NEAR(ris.SPiastraTir[1][2][i], 6 * (100 * (1000 - Tz5) / 200) / 400, 1e-9) << i;
  }
}

TEST_F(PiastraTest, LuceRestanteInValoreAssoluto) {  // anchors beyond the plate's edge: the remaining span has no sign
  // Plate 260 long: Cz2 = |30 - 50| = 20, By = min(50, 110) + min(110, 20) = 70, of anchor 5 too; Bz = 120.
  // R = (100^3/70 + 100^2 85/70) / 3125 = 26428.571 / 3125 = 8.457143; Ty = 1000 / 9.457143.
  Nervata(2);
  nodo.LatoZ = 260;
  SchemaProva(2, -20, 65);
  ConNervature(1);
  const double Ty = 1000 / (1 + 1850000.0 / 70 / 3125);
  EXPECT_NEAR(ris.SPiastraTir[1][1][1], 6 * (50 * (1000 - Ty) / 120) / 400, 1e-9);  // 5.58912
  EXPECT_NEAR(ris.SPiastraTir[1][2][1], 6 * (100 * Ty / 70) / 400, 1e-9);           // 2.26586
  // Plate 300 high: Cy2 = |65 - 100| = 35, Bz = min(60, 100) + min(60, 35) = 95, By = 100.
  // R = 18500 / (50^3/95 + 50^2 100/95) = 18500 x 95 / 375000 = 4.686667.
  nodo.LatoZ = 400;
  nodo.LatoY = 300;
  SchemaProva(2, 50, -35);
  ConNervature(1);
  const double Ty2 = 1000 / (1 + 18500.0 * 95 / 375000);
  EXPECT_NEAR(ris.SPiastraTir[1][1][1], 6 * (50 * (1000 - Ty2) / 95) / 400, 1e-9);  // 6.50645
  EXPECT_NEAR(ris.SPiastraTir[1][2][1], 6 * (100 * Ty2 / 100) / 400, 1e-9);         // 2.63775
}

TEST_F(PiastraTest, NervataSchema3LarghezzaPropria) {  // the corners' strips along Y keep their own width, also beside a narrower one
  // Anchor 5, 6 at 95 from the centre: Cy = 10, Bz = min(110, 10) + min(110, 155) = 120, By = min(100, 20) + min(20, 100) = 40 < 100.
  // Corner: R = 18500 / (50^3/120 + 50^2 100/120) = 5.92, My = 100 (1000 - 5.92 / 6.92 x 1000).
  Nervata(3);
  nodo.TfY[5] = 345;
  nodo.TfY[6] = 155;
  ConNervature(1);
  for (int i = 1; i <= 4; ++i) EXPECT_NEAR(ris.SPiastraTir[1][2][i], 6 * (100 * (1000 - 5.92 / 6.92 * 1000) / 100) / 400, 1e-9) << i;
}

TEST_F(PiastraTest, NervataSchema1NervaturaIntera) {  // anchors 5, 6: Cy = 95 - 20 = 75, against 85 of six anchors
  // R = (150^3 / 4800) / (50^3 / 360) = 703.125 / 347.2222 = 2.025; stress 1 = 6 (50 Tz / 120) / 400
  Nervata(1);
  ConNervature(1);
  EXPECT_NEAR(ris.SPiastraTir[1][1][5], 6 * (50 * (2.025 / 3.025 * 1000) / 120) / 400, 1e-9);
}

TEST_F(PiastraTest, TirafondoCompresso) {  // corners: the same stresses, positive
  Nervata(2);
  ConNervature(1);
  for (double& S : ris.SigmaTir[2]) S = -4;
  ConNervature(2);
  for (int d = 1; d <= 2; ++d)
    for (int i = 1; i <= 4; ++i) {
      EXPECT_EQ(ris.SPiastraTir[2][d][i], ris.SPiastraTir[1][d][i]);
      EXPECT_GT(ris.SPiastraTir[2][d][i], 0);
    }
  // Mid-side: Ty = -253.3055 keeps its sign, the corners' moments have none: |-10765.485 - 14450.867| = 25216.352.
  EXPECT_NEAR(ris.SPiastraTir[2][2][5], 6 * (25216.352 / 80) / 400, 1e-5);
}

TEST_F(PiastraTest, QuattroTirafondiNonScrivono) {
  Nervata(0);
  ris.SPiastraTir[1][1][3] = 33;
  ConNervature(1);
  EXPECT_EQ(ris.SPiastraTir[1][1][3], 33);
  EXPECT_EQ(ris.SPiastraTir[1][2][3], 0);
}

// The strips once more, written out pattern by pattern, on plates without any symmetry (fixed seed).
TEST_F(PiastraTest, NervataSecondaScrittura) {
  std::mt19937 gen(4);
  const auto fra = [&](double da, double a) { return std::uniform_real_distribution<double>(da, a)(gen); };
  for (int n = 0; n < 90; ++n) {
    const int schema = 1 + n % 3;
    NodoProva();
    nodo.LatoZ = 520;
    nodo.LatoY = 640;
    Nervata(schema);
    nodo.SpNerv = 14;
    for (int i = 1; i <= nodo.NTir; ++i) {
      nodo.TfZ[i] += (nodo.TfZ[i] > 260 ? -1 : 1) * fra(-30, 90);
      nodo.TfY[i] += (nodo.TfY[i] > 320 ? -1 : 1) * fra(-40, 120);
      ris.SigmaTir[1][i] = fra(-10, 10);
    }
    ConNervature(1);

    double Cz[9] = {}, Cy[9] = {}, Cz2[9] = {}, Cy2[9] = {}, Bz[9] = {}, By[9] = {}, Mz[9] = {}, My[9] = {}, atteso[3][9] = {};
    const double Zr = 90 + 7, Yr = 95 - 7, t2 = 400, r = 10;
    const auto braccioZ = [](int i) { return std::fabs(nodo.TfZ[i] - 260); };
    const auto braccioY = [](int i) { return std::fabs(nodo.TfY[i] - 320); };
    const auto corner_z = [&](int i) {
      Cz[i] = std::fabs(braccioZ(i) - Zr);
      Cz2[i] = std::fabs(260 - Zr - Cz[i]);
    };
    const auto corner_y = [&](int i) {
      Cy[i] = std::fabs(braccioY(i) - Yr);
      Cy2[i] = std::fabs(320 - Yr - Cy[i]);
    };
    const auto larghezze = [&](int i) {
      Bz[i] = std::min(r + Cz[i], Cy[i]) + std::min(r + Cz[i], Cy2[i]);
      By[i] = std::min(Cz[i], r + Cy[i]) + std::min(r + Cy[i], Cz2[i]);
    };
    for (int i = 1; i <= 4; ++i) {
      corner_z(i);
      corner_y(i);
      larghezze(i);
    }
    if (schema == 1) {
      for (int i : {5, 6}) {
        corner_z(i);
        Cy[i] = Cy2[i] = 95 - 14;
        larghezze(i);
      }
      for (int i : {7, 8}) {
        Cz[i] = Cz2[i] = 97;
        corner_y(i);
        larghezze(i);
      }
    } else if (schema == 2) {
      for (int i : {5, 6}) {
        corner_z(i);
        Cy[i] = Cy2[i] = 88;
        larghezze(i);
      }
      for (int i : {7, 8}) Cz[i] = Cz2[i] = 97;
      Bz[7] = (Bz[3] + Bz[4]) / 2;
      By[7] = (By[3] + By[4]) / 2;
      Bz[8] = (Bz[1] + Bz[2]) / 2;
      By[8] = (By[1] + By[2]) / 2;
    } else {
      for (int i : {5, 6}) {
        Cz[i] = Cz2[i] = 97;
        corner_y(i);
        larghezze(i);
      }
      for (int i : {7, 8}) Cy[i] = Cy2[i] = 88;
      Bz[7] = (Bz[3] + Bz[1]) / 2;
      By[7] = (By[3] + By[1]) / 2;
      Bz[8] = (Bz[4] + Bz[2]) / 2;
      By[8] = (By[4] + By[2]) / 2;
    }
    const auto forza = [](int i) { return 250 * ris.SigmaTir[1][i]; };
    const auto angolo = [&](int i, int u, int v, double Wz, double Wy) {
      const double R = (std::pow(Cy[i], 3) / By[i] + std::pow(Cy[i], 2) * Cy[u] / By[u]) /
                       (std::pow(Cz[i], 3) / Bz[i] + std::pow(Cz[i], 2) * Cz[v] / Bz[v]);
      const double Tz = R / (1 + R) * forza(i);
      Mz[i] = std::fabs(Tz * Cz[i]);
      My[i] = std::fabs((forza(i) - Tz) * Cy[i]);
      atteso[1][i] = 6 * Mz[i] / Wz / t2;
      atteso[2][i] = 6 * My[i] / Wy / t2;
    };
    const auto latoZ = [&](int i, int a, int b) {  // beam along Y
      const double R = (std::pow(Cy[i] + Cy2[i], 3) / 48 / By[i]) / (std::pow(Cz[i], 3) / 3 / Bz[i]), Tz = R / (1 + R) * forza(i);
      atteso[1][i] = 6 * std::fabs(Tz * Cz[i]) / Bz[i] / t2;
      atteso[2][i] = 6 * std::fabs((Cy[i] + Cy2[i]) * (forza(i) - Tz) / 4 - (My[a] + My[b]) / 2) / (By[i] - 20) / t2;
    };
    const auto latoY = [&](int i, int a, int b) {  // beam along Z
      const double R = (std::pow(Cy[i], 3) / 3 / By[i]) / (std::pow(Cz[i] + Cz2[i], 3) / 48 / Bz[i]), Tz = R / (1 + R) * forza(i);
      atteso[1][i] = 6 * std::fabs((Cz[i] + Cz2[i]) * Tz / 4 - (Mz[a] + Mz[b]) / 2) / (Bz[i] - 20) / t2;
      atteso[2][i] = 6 * std::fabs((forza(i) - Tz) * Cy[i]) / By[i] / t2;
    };
    if (schema == 2) {
      angolo(1, 5, 8, Bz[1], std::min(By[1], By[5]));
      angolo(2, 6, 8, Bz[2], std::min(By[2], By[6]));
      angolo(3, 5, 7, Bz[3], std::min(By[3], By[5]));
      angolo(4, 6, 7, Bz[4], std::min(By[4], By[6]));
      latoZ(5, 1, 3);
      latoZ(6, 2, 4);
    } else if (schema == 3) {
      angolo(1, 7, 6, std::min(Bz[1], Bz[6]), By[1]);
      angolo(2, 8, 6, std::min(Bz[2], Bz[6]), By[2]);
      angolo(3, 7, 5, std::min(Bz[3], Bz[5]), By[3]);
      angolo(4, 8, 5, std::min(Bz[4], Bz[5]), By[4]);
      latoY(5, 3, 4);
      latoY(6, 1, 2);
    } else {
      angolo(1, 5, 8, std::min(Bz[1], Bz[8]), std::min(By[1], By[5]));
      angolo(2, 6, 8, std::min(Bz[2], Bz[8]), std::min(By[2], By[6]));
      angolo(3, 5, 7, std::min(Bz[3], Bz[7]), By[5]);
      angolo(4, 6, 7, std::min(Bz[4], Bz[7]), std::min(By[4], By[6]));
      latoZ(5, 1, 3);
      latoZ(6, 2, 4);
      latoY(7, 3, 4);
      latoY(8, 1, 2);
    }
    for (int d = 1; d <= 2; ++d)
      for (int i = 1; i <= nodo.NTir; ++i)
        EXPECT_NEAR(ris.SPiastraTir[1][d][i], atteso[d][i], 1e-9 * (1 + atteso[d][i])) << n << ' ' << schema << ' ' << d << ' ' << i;
  }
}

TEST_F(PiastraTest, LuciNulle) {  // an anchor on the rib's line: Cz = 0, width 0: a fault of the run
  Nervata(2);
  SchemaProva(2, 100, 65);  // 100 from the centre = Zr
  AzzeraFault();
  ConNervature(1);
  EXPECT_TRUE(FaultAritmetico());
}
