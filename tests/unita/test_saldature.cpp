// tests/unita/test_saldature.cpp - weld table, inertias and stresses. Column 200 x 190, web 6.5, flange 10, radius 18; throat 5 (half 2.5);
// plate 400 x 500; ribs 150 x 10. Positions to 1e-4: the program's pi is 3.141592.
#include <gtest/gtest.h>

#include <cmath>

#include "corredo/lavoro_prova.h"
#include "corredo/nodo_prova.h"
#include "engine/PresInfl.h"
#include "engine/Saldature.h"
#include "model/stato.h"

namespace {

struct SaldatureTest : testing::Test {
  void SetUp() override { NodoProva(); }

  static void Nervato(std::int16_t interne) {
    nodo.TipoNodo = 2;
    nodo.SaldInt = interne;
    CostruisciSaldature(lavoro);
    Inerzie();
  }
  static void Inerzie() {
    InerziaSaldature(lavoro, verifica.IzSald, verifica.IySald, verifica.IpSald, verifica.LungTz, verifica.LungTy);
    DirezioniSaldature(lavoro);
  }
  static void Azioni(double N, double Ty, double Tz, double Mt, double My, double Mz) {
    verifica.N = N;
    verifica.Ty = Ty;
    verifica.Tz = Tz;
    verifica.Mt = Mt;
    verifica.My = My;
    verifica.Mz = Mz;
  }
};

// Points 1 (f end) and 3 (i end) on the throat's mid-line, and the length.
struct Posto {
  int w;
  double z1, y1, z3, y3, lung;
};

void Confronta(const Posto& p) {
  const Saldatura& d = ris.Saldature[p.w];
  EXPECT_NEAR(d.PZ[1], p.z1, 1e-4) << p.w;
  EXPECT_NEAR(d.PY[1], p.y1, 1e-4) << p.w;
  EXPECT_NEAR(d.PZ[3], p.z3, 1e-4) << p.w;
  EXPECT_NEAR(d.PY[3], p.y3, 1e-4) << p.w;
  EXPECT_NEAR(d.PZ[2], (p.z1 + p.z3) / 2, 1e-4) << p.w;
  EXPECT_NEAR(d.PY[2], (p.y1 + p.y3) / 2, 1e-4) << p.w;
  EXPECT_EQ(d.Lung, p.lung) << p.w;
  EXPECT_EQ(d.Nome, "S" + std::to_string(p.w));
}

// Column: throats outside the profile's lines. H/2 - e - r = 67, a/2 = 3.25, a/2 + r = 21.25.
// clang-format off
constexpr Posto COLONNA[] = {
  { 1, 5.75, 67, 5.75, -67, 134 },      { 2, 100, 82.5, 21.25, 82.5, 78.8 },      { 3, -100, 97.5, 100, 97.5, 200 },
  { 4, -21.25, 82.5, -100, 82.5, 78.8 }, { 5, -5.75, -67, -5.75, 67, 134 },       { 6, -100, -82.5, -21.25, -82.5, 78.8 },
  { 7, 100, -97.5, -100, -97.5, 200 },  { 8, 21.25, -82.5, 100, -82.5, 78.8 },
};
// clang-format on

// Ribs without the inner welds. Side -1: lato +1, but for 33 and 40; side +1: lato -1 throughout.
// clang-format off
constexpr Posto NERVATURE[] = {
  { 13, -102.5, -250, -102.5, -95, 155 }, { 11, -97.5, 250, -97.5, 95, 155 },   { 14, -112.5, -250, -112.5, -95, 155 },
  { 10, -112.5, -85, -112.5, 85, 170 },   { 12, -107.5, 250, -107.5, 95, 155 }, { 18, -200, -92.5, -110, -92.5, 90 },
  { 17, -200, -82.5, -110, -82.5, 90 },   { 15, -200, 87.5, -110, 87.5, 90 },   { 16, -200, 97.5, -110, 97.5, 90 },
  { 29, -97.5, 150, -97.5, 0, 150 },      { 38, -97.5, 150, -97.5, 0, 150 },    { 30, -107.5, 150, -107.5, 0, 150 },
  { 33, -87.5, 150, -87.5, 0, 150 },      { 40, -87.5, 150, -87.5, 0, 150 },
  { 23, 102.5, -250, 102.5, -95, 155 },   { 21, 97.5, 250, 97.5, 95, 155 },     { 24, 112.5, -250, 112.5, -95, 155 },
  { 20, 112.5, -85, 112.5, 85, 170 },     { 22, 107.5, 250, 107.5, 95, 155 },   { 28, 200, -92.5, 110, -92.5, 90 },
  { 27, 200, -82.5, 110, -82.5, 90 },     { 25, 200, 87.5, 110, 87.5, 90 },     { 26, 200, 97.5, 110, 97.5, 90 },
  { 31, 97.5, 150, 97.5, 0, 150 },        { 36, 97.5, 150, 97.5, 0, 150 },      { 32, 107.5, 150, 107.5, 0, 150 },
  { 35, 82.5, 150, 82.5, 0, 150 },        { 39, 82.5, 150, 82.5, 0, 150 },
  { 34, 92.5, 150, 92.5, 0, 150 },        { 37, -112.5, 150, -112.5, 0, 150 },
};
// clang-format on

// The inner welds; with them weld 23 takes the side that the first pass left, +1.
// clang-format off
constexpr Posto INTERNE[] = {
  { 9, -102.5, -85, -102.5, 85, 170 }, { 41, -97.5, 150, -97.5, 0, 150 }, { 43, -97.5, 150, -97.5, 0, 150 },
  { 19, 102.5, -85, 102.5, 85, 170 },  { 42, 97.5, 150, 97.5, 0, 150 },   { 44, 97.5, 150, 97.5, 0, 150 },
};
// clang-format on

}  // namespace

TEST_F(SaldatureTest, Direzioni) {
  const double p = 3.141592;
  EXPECT_EQ(Direzione(1, 2, 1, 5), p / 2);
  EXPECT_EQ(Direzione(1, 5, 1.00009, 2), -p / 2);
  EXPECT_EQ(Direzione(1, 2, 1, 2), -p / 2);  // equal points
  EXPECT_EQ(Direzione(1, 2, 4, 2.00009), 0);
  EXPECT_EQ(Direzione(4, 2, 1, 2), p);
  EXPECT_DOUBLE_EQ(Direzione(0, 0, 2, 1), std::atan(0.5));
  EXPECT_DOUBLE_EQ(Direzione(0, 0, 2, -1), std::atan(-0.5));
  EXPECT_DOUBLE_EQ(Direzione(-5, 0, -4.5, 1), std::atan(2.0));
  EXPECT_DOUBLE_EQ(Direzione(3, 0, 1, 1), std::atan(0.5) + p / 2);
  EXPECT_DOUBLE_EQ(Direzione(0, 0, -2, 1), std::atan(0.5) + p / 2);  // second quadrant: the true direction at 45 degrees only
  EXPECT_DOUBLE_EQ(Direzione(0, 0, -2, -1), std::atan(-0.5) - p / 2);
  EXPECT_DOUBLE_EQ(Direzione(1, 2, 3, 5), std::atan(1.5));  // neither point on an axis
  EXPECT_DOUBLE_EQ(Direzione(3, 1, 1, 4), std::atan(1.5) + p / 2);
  EXPECT_DOUBLE_EQ(Direzione(0, 0, 1e-4, 1), std::atan(1e4));  // 0.0001 itself is no longer the same place
  EXPECT_DOUBLE_EQ(Direzione(0, 0, 1, 1e-4), std::atan(1e-4));
}

TEST_F(SaldatureTest, Aggiunta) {
  AggiungiSaldatura(lavoro, 30, 10, 30, 110.04, -1, 7);  // along Y, L = 100.04
  const Saldatura& d = ris.Saldature[7];
  EXPECT_EQ(d.Nome, "S7");
  EXPECT_EQ(d.Lung, 100);                                // to one decimal
  EXPECT_DOUBLE_EQ(d.Iz, std::pow(100.04, 3) * 5 / 12);  // of the length that is not rounded
  EXPECT_DOUBLE_EQ(d.Iy, 125 * 100.04 / 12);
  EXPECT_DOUBLE_EQ(d.Ip, d.Iz + d.Iy);
  EXPECT_DOUBLE_EQ(d.Ang[1], std::atan(10.0 / 30));
  EXPECT_DOUBLE_EQ(d.Ang[3], std::atan(110.04 / 30));
  EXPECT_EQ(d.Ang[2], 3.141592 / 2);
  EXPECT_NEAR(d.PZ[1], 32.5, 1e-6);                  // z + 2.5 for lato -1
  AggiungiSaldatura(lavoro, -30, 10, 50, 10, 1, 8);  // along Z: inertias exchanged
  EXPECT_DOUBLE_EQ(ris.Saldature[8].Iy, 512000.0 * 5 / 12);
  EXPECT_DOUBLE_EQ(ris.Saldature[8].Iz, 125.0 * 80 / 12);
  EXPECT_DOUBLE_EQ(ris.Saldature[8].PY[2], 12.5);
  AggiungiSaldatura(lavoro, 0, 0, 0, 100.25, 1, 8);
  EXPECT_EQ(ris.Saldature[8].Lung, 100.3);          // halves go up
  AggiungiSaldatura(lavoro, 0, 0, 1e-4, 80, 1, 8);  // 0.0001 off: no longer along Y
  EXPECT_NEAR(ris.Saldature[8].Iz, 125.0 * 80 / 12, 1e-6);
  AggiungiSaldatura(lavoro, 5, 5, 5, 5, 1, 9);  // no length: direction -pi/2, no inertia
  EXPECT_EQ(ris.Saldature[9].Ang[2], -3.141592 / 2);
  EXPECT_EQ(ris.Saldature[9].Iz + ris.Saldature[9].Iy + ris.Saldature[9].Ip, 0);
}

TEST_F(SaldatureTest, GolaNulla) {  // the record stays; the count is set all the same
  ris.Saldature[3].Lung = 77;
  nodo.Gola = 0;
  nodo.TipoNodo = 2;
  CostruisciSaldature(lavoro);
  EXPECT_EQ(ris.Saldature[3].Lung, 77);
  EXPECT_EQ(ris.Saldature[1].Nome, "");
  EXPECT_EQ(lavoro.NumSaldature, 40);
  nodo.Gola = -8;  // only 0 stops it
  AggiungiSaldatura(lavoro, 0, 0, 0, 10, 1, 3);
  EXPECT_EQ(ris.Saldature[3].Lung, 10);
}

TEST_F(SaldatureTest, TabellaColonna) {
  CostruisciSaldature(lavoro);
  EXPECT_EQ(lavoro.NumSaldature, 8);
  for (const Posto& p : COLONNA) Confronta(p);
  EXPECT_EQ(ris.Saldature[9].Nome, "");
  EXPECT_EQ(ris.Saldature[10].Nome, "");
}

TEST_F(SaldatureTest, TabellaNervature) {
  Nervato(0);
  EXPECT_EQ(lavoro.NumSaldature, 40);
  for (const Posto& p : COLONNA) Confronta(p);
  for (const Posto& p : NERVATURE) Confronta(p);
  for (const Posto& p : INTERNE) EXPECT_EQ(ris.Saldature[p.w].Nome, "") << p.w;
}

TEST_F(SaldatureTest, TabellaInterne) {
  Nervato(1);
  EXPECT_EQ(lavoro.NumSaldature, 44);
  for (const Posto& p : NERVATURE)
    if (p.w != 23) Confronta(p);
  Confronta({23, 97.5, -250, 97.5, -95, 155});
  for (const Posto& p : INTERNE) Confronta(p);
  for (const std::int16_t altro : {std::int16_t(2), std::int16_t(-1)}) {
    SetUp();
    Nervato(altro);  // counted with any value but 0, made with 1 only
    EXPECT_EQ(lavoro.NumSaldature, 44) << altro;
    EXPECT_EQ(ris.Saldature[9].Nome + ris.Saldature[19].Nome + ris.Saldature[41].Nome, "") << altro;
  }
}

TEST_F(SaldatureTest, InerzieColonna) {
  CostruisciSaldature(lavoro);
  Inerzie();
  EXPECT_NEAR(verifica.LungTy, 268, 1e-9);  // 1, 5
  EXPECT_NEAR(verifica.LungTz, 4 * 78.8 + 400, 1e-9);
  // Own inertias of the true lengths 134, 78.75, 200; areas of the rounded ones: 670, 394, 1000 mm2.
  const double Iz =
    2 * (134.0 * 134 * 134 * 5 / 12) + 4 * (125 * 78.75 / 12 + 394 * 82.5 * 82.5) + 2 * (125 * 200.0 / 12 + 1000 * 97.5 * 97.5);
  const double Iy =
    2 * (125 * 134.0 / 12 + 670 * 5.75 * 5.75) + 4 * (std::pow(78.75, 3) * 5 / 12 + 394 * 60.625 * 60.625) + 2 * (8e6 * 5 / 12);
  EXPECT_NEAR(verifica.IzSald, Iz, 1e-6 * Iz);  // 31751685
  EXPECT_NEAR(verifica.IySald, Iy, 1e-6 * Iy);
  EXPECT_NEAR(verifica.IpSald, Iz + Iy, 1e-6 * (Iz + Iy));
}

TEST_F(SaldatureTest, InerzieNervature) {
  Nervato(0);
  EXPECT_NEAR(verifica.LungTy, 268 + 2 * (170 + 4 * 155), 1e-9);
  EXPECT_NEAR(verifica.LungTz, 715.2 + 8 * 90, 1e-9);
  const double Iz0 = verifica.IzSald, Iy0 = verifica.IySald, Ip0 = verifica.IpSald;
  // Welds 9, 19: lengths count whatever SaldInt says (here stale ones), inertias only with 1.
  Nervato(1);
  EXPECT_NEAR(verifica.LungTy, 268 + 2 * (170 + 4 * 155) + 340, 1e-9);
  const double Iz9 = std::pow(170, 3) * 5 / 12, Iy9 = 125 * 170.0 / 12 + 850 * 102.5 * 102.5;
  const double z23 = 775 * (97.5 * 97.5 - 102.5 * 102.5);  // weld 23 changed side
  EXPECT_NEAR(verifica.IzSald - Iz0, 2 * Iz9, 100);
  EXPECT_NEAR(verifica.IySald - Iy0, 2 * Iy9 + z23, 100);
  EXPECT_NEAR(verifica.IpSald - Ip0, 2 * (Iz9 + Iy9) + z23, 200);
  nodo.SaldInt = 0;
  Inerzie();
  EXPECT_NEAR(verifica.LungTy, 268 + 2 * (170 + 4 * 155) + 340, 1e-9);
  EXPECT_NEAR(verifica.IzSald, Iz0, 1);  // but for weld 23, the inner ones are left out again
  nodo.TipoNodo = 1;
  Inerzie();
  EXPECT_NEAR(verifica.LungTy, 268, 1e-9);  // records of the ribs stay, and are not looked at
}

TEST_F(SaldatureTest, InerziaDellaNervatura) {  // the ribs' part, weld by weld
  Nervato(0);
  double Iz = 0, Iy = 0;
  const auto lungoY = [&](double L, double z, double y) {
    Iz += std::pow(L, 3) * 5 / 12 + 5 * L * y * y;
    Iy += 125 * L / 12 + 5 * L * z * z;
  };
  const auto lungoZ = [&](double L, double z, double y) {
    Iz += 125 * L / 12 + 5 * L * y * y;
    Iy += std::pow(L, 3) * 5 / 12 + 5 * L * z * z;
  };
  for (const double z : {102.5, 97.5, 112.5, 107.5}) {
    lungoY(155, z, 172.5);
    lungoY(155, z, 172.5);
  }
  lungoY(170, 112.5, 0);
  lungoY(170, 112.5, 0);
  for (const double y : {92.5, 82.5, 87.5, 97.5}) {
    lungoZ(90, 155, y);
    lungoZ(90, 155, y);
  }
  const double IzN = verifica.IzSald, IyN = verifica.IySald;
  nodo.TipoNodo = 1;
  Inerzie();
  EXPECT_NEAR(IzN - verifica.IzSald, Iz, 1e-6 * Iz);
  EXPECT_NEAR(IyN - verifica.IySald, Iy, 1e-6 * Iy);
}

TEST_F(SaldatureTest, TensioniColonna) {
  CostruisciSaldature(lavoro);
  Inerzie();
  // N: 9832 daN over (715.2 + 268) x 5 = 4916 mm2: 2. Mz / Iz: 1e-2 a mm, My / Iy: -2e-2 a mm.
  Azioni(9832, 1340, 3576, 0, -0.02 * verifica.IySald, 0.01 * verifica.IzSald);
  TensioniSaldaturePiastra(lavoro, 4);
  const Saldatura &w1 = ris.Saldature[1], &w3 = ris.Saldature[3];
  EXPECT_NEAR(w1.SPrp[4][1], 2 + 0.67 - 0.115, 1e-6);  // at (5.75, 67)
  EXPECT_NEAR(w1.SPrp[4][2], 2 + 0 - 0.115, 1e-6);
  EXPECT_NEAR(w1.SPrp[4][3], 2 - 0.67 - 0.115, 1e-6);
  EXPECT_NEAR(w3.SPrp[4][1], 2 + 0.975 + 2, 1e-6);  // at (-100, 97.5)
  for (int k = 1; k <= 3; ++k) {
    EXPECT_NEAR(w1.TauPa[4][k], 1, 1e-12);  // Ty / 2 / G / Lung = 1340 / 2 / 5 / 134
    EXPECT_NEAR(w3.TauPa[4][k], 1, 1e-12);  // Tz / LungTz / G = 3576 / 715.2 / 5
    EXPECT_EQ(w1.TauPe[4][k], 0);           // no torque
    EXPECT_EQ(w3.TauPe[4][k], 0);
  }
  for (const int w : {1, 5}) EXPECT_NEAR(ris.Saldature[w].TauPa[4][1], 1, 1e-12);
  ris.Saldature[5].Lung = 67;  // each web weld by its own length
  TensioniSaldaturePiastra(lavoro, 4);
  EXPECT_NEAR(w1.TauPa[4][1], 1, 1e-12);
  EXPECT_NEAR(ris.Saldature[5].TauPa[4][1], 2, 1e-12);
  Azioni(0, 1340, 0, 0, 0, 0);
  TensioniSaldaturePiastra(lavoro, 4);
  for (const int w : {2, 3, 4, 6, 7, 8}) EXPECT_EQ(ris.Saldature[w].TauPa[4][2], 0) << w;
}

TEST_F(SaldatureTest, Torsione) {
  // Mt / Ip = 0.01 a mm. Weld 3 runs from (-100, 95) to (100, 95), axis direction 0; its point 1 at (-100, 97.5) is seen at
  // Ang[1] = atan(95 / 100) + pi/2 by the odd branch. ro = 0.01 (100^2 + 97.5^2)^0.5 = 1.396648, fi = pi/2 - Ang[1] = -atan 0.95:
  // TauPa = ro cos 0.759763, TauPe = -ro sin 0.759763.
  CostruisciSaldature(lavoro);
  Inerzie();
  Azioni(0, 0, 0, 0.01 * verifica.IpSald, 0, 0);
  TensioniSaldaturePiastra(lavoro, 1);
  const Saldatura& w = ris.Saldature[3];
  const double ro = 0.01 * std::hypot(100, 97.5);
  EXPECT_NEAR(w.TauPa[1][1], ro / std::sqrt(1 + 0.9025), 1e-5);
  EXPECT_NEAR(w.TauPe[1][1], -ro * 0.95 / std::sqrt(1 + 0.9025), 1e-5);
  // Point 3 at (100, 97.5), Ang[3] = atan 0.95: fi = pi/2 - 0.759763: cos = sin 0.759763.
  EXPECT_NEAR(w.TauPa[1][3], ro * 0.95 / std::sqrt(1 + 0.9025), 1e-5);
  EXPECT_NEAR(w.TauPe[1][3], ro / std::sqrt(1 + 0.9025), 1e-5);
  // Point 2: the difference of the angles is 0: cos(3.141592/2) = 3.27e-7, all of it across the weld.
  EXPECT_NEAR(w.TauPe[1][2], 0.975, 1e-5);
  EXPECT_GT(w.TauPa[1][2], 0);
  EXPECT_NEAR(w.TauPa[1][2], 0.975 * 3.268e-7, 1e-9);
  // Weld 1: axis -pi/2, point 1 at (5.75, 67) seen at atan(67 / 3.25): fi = -pi/2 - Ang + pi/2 = -Ang.
  const double r1 = 0.01 * std::hypot(5.75, 67), L1 = std::hypot(3.25, 67);
  EXPECT_NEAR(ris.Saldature[1].TauPa[1][1], r1 * 3.25 / L1, 1e-5);
  EXPECT_NEAR(ris.Saldature[1].TauPe[1][1], -r1 * 67 / L1, 1e-5);
}

TEST_F(SaldatureTest, TensioniPiastraNervata) {
  // LungTy 1848, LungTz 1435.2: Ty / 1848 / 5 = 1, Tz / 1435.2 / 5 = 2; N over (1848 + 1435.2) x 5 = 16416 mm2: 3.
  Nervato(0);
  Azioni(49248, 9240, 14352, 0, 0, 0);
  TensioniSaldaturePiastra(lavoro, 1);
  const std::string letter = ".yzzzyzzz.yyyyyzzzz.yyyyyzzzz";
  for (int w = 1; w <= 28; ++w)
    for (int k = 1; k <= 3; ++k) {
      EXPECT_NEAR(ris.Saldature[w].TauPa[1][k], letter[static_cast<std::size_t>(w)] == 'z' ? 2 : w == 9 || w == 19 ? 0 : 1, 1e-12) << w;
      EXPECT_NEAR(ris.Saldature[w].SPrp[1][k], 3, 1e-12) << w;  // 9 and 19 too, though never built
    }
  EXPECT_EQ(ris.Saldature[29].SPrp[1][1], 0);
  Nervato(1);  // LungTy 2188
  Azioni(0, 10940, 0, 0, 0, 0);
  TensioniSaldaturePiastra(lavoro, 1);
  EXPECT_NEAR(ris.Saldature[9].TauPa[1][1], 1, 1e-12);
  EXPECT_NEAR(ris.Saldature[19].TauPa[1][1], 1, 1e-12);
}

TEST_F(SaldatureTest, SaldatureDellaColonnaNervata) {
  // Constant pressure -0.1 on the column's 200 x 190: -3800 daN goes through the concrete. N = -6800: Nr = -3000;
  // Nr / 4 / 5 / 150 = -1. zc = 95 + 5 / sqrt 2, yc = 100 - 5 / sqrt 2, A4 = 3000. Mq / I1 zc = Mz / (zc A4), Mp / I2 yc = My / (yc A4).
  Nervato(0);
  presInfl.PianoDef[3] = -0.1 / 3122.0185778;
  const double zc = 95 + 5 / std::sqrt(2.0), yc = 100 - 5 / std::sqrt(2.0);
  Azioni(-6800, 0, 0, 0, 0.5 * yc * 3000, 0.25 * zc * 3000);
  ris.Saldature[29].TauPa[1][2] = 1000;  // replaced, not raised
  TensioniSaldatureColonna(lavoro, 1);
  for (int k = 1; k <= 3; ++k) {
    EXPECT_NEAR(ris.Saldature[29].TauPa[1][k], -1 + 0.25 + 0.5, 1e-9);
    EXPECT_NEAR(ris.Saldature[31].TauPa[1][k], -1 + 0.25 - 0.5, 1e-9);
    EXPECT_NEAR(ris.Saldature[36].TauPa[1][k], -1 - 0.25 - 0.5, 1e-9);
    EXPECT_NEAR(ris.Saldature[38].TauPa[1][k], -1 - 0.25 + 0.5, 1e-9);
    EXPECT_EQ(ris.Saldature[41].TauPa[1][k], 0);
  }
  // With the inner welds: eight of them, Nr / 8 / 5 / 150 = -0.5; zc' = zc - 10; I1 = (zc'^2 + zc^2) 3000, I2 = 2 yc^2 3000.
  Nervato(1);
  const double zi = zc - 10, a = 0.25 * zc * 3000 / ((zi * zi + zc * zc) * 3000), b = 0.25;
  TensioniSaldatureColonna(lavoro, 1);
  // clang-format off
  const std::pair<int, double> ATTESI[] = {
    { 29, a * zc + b }, { 31, a * zc - b }, { 36, -a * zc - b }, { 38, -a * zc + b },
    { 41, a * zi + b }, { 42, a * zi - b }, { 43, -a * zi + b }, { 44, -a * zi - b },
  };
  // clang-format on
  for (const auto& [w, v] : ATTESI) EXPECT_NEAR(ris.Saldature[w].TauPa[1][3], -0.5 + v, 1e-9) << w;
  nodo.SaldInt = -1;  // any value but 0
  ris.Saldature[44].TauPa[1][3] = 0;
  TensioniSaldatureColonna(lavoro, 1);
  EXPECT_NEAR(ris.Saldature[44].TauPa[1][3], -0.5 - a * zi - b, 1e-9);
}

TEST_F(SaldatureTest, MomentiDelCalcestruzzo) {  // what the concrete under the column carries is deducted from the moments
  Nervato(0);
  presInfl.PianoDef[1] = 1e-7;  // value 1e-7 q + 2e-7 p - 1e-3, all compressed
  presInfl.PianoDef[2] = -2e-7;
  presInfl.PianoDef[3] = -1e-3;
  const double E = 3122.0185778, V = -1e-3 * E * 38000, Mq = 1e-7 * E * 190 * 190 * 190 / 12 * 200,
               Mp = 2e-7 * E * 8e6 / 12 * 190 * (1 - 1e-4);
  Azioni(V, 0, 0, 0, Mp, Mq);  // exactly what it carries
  TensioniSaldatureColonna(lavoro, 1);
  for (const int w : {29, 31, 36, 38}) EXPECT_NEAR(ris.Saldature[w].TauPa[1][1], 0, 1e-9) << w;
}

TEST_F(SaldatureTest, EquivalentiEMassime) {  // daN/cm2, from daN/mm2
  lavoro.NumSaldature = 2;
  Saldatura& d = ris.Saldature[2];
  const double sp[] = {0, -2, 90, 3}, pa[] = {0, 3, 90, -4}, pe[] = {0, -6, 90, 1};
  for (int k = 1; k <= 3; ++k) {
    d.SPrp[5][k] = sp[k];
    d.TauPa[5][k] = pa[k];
    d.TauPe[5][k] = pe[k];
  }
  TensioniEquivalentiSaldature(lavoro, 5);
  EXPECT_EQ(d.SEq1[5], 700);  // 100 (4 + 9 + 36)^0.5 against (9 + 16 + 1)^0.5; point 2 is not looked at
  EXPECT_EQ(d.SEq2[5], 800);  // 2 + 6 against 3 + 1
  ris.Saldature[1] = d;
  ris.Saldature[1].SEq1[5] = 0;
  TensioniEquivalentiSaldature(lavoro, 5);
  EXPECT_EQ(ris.Saldature[1].SEq1[5], 700);  // from the first weld on
  double a, b, c;
  MaxTensioniSaldatura(lavoro, a, b, c, 2, 5);
  EXPECT_EQ(a, 300);
  EXPECT_EQ(b, 400);
  EXPECT_EQ(c, 600);
  std::swap(d.SPrp[5][1], d.SPrp[5][3]);
  std::swap(d.TauPa[5][1], d.TauPa[5][3]);
  std::swap(d.TauPe[5][1], d.TauPe[5][3]);
  TensioniEquivalentiSaldature(lavoro, 5);
  EXPECT_EQ(d.SEq1[5], 700);
  EXPECT_EQ(d.SEq2[5], 800);
  EXPECT_EQ(d.SPrp[5][3], -2);  // the tables stay in daN/mm2
}
