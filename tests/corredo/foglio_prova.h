// tests/corredo/foglio_prova.h - the sheet under test: drawn whole or part by part, and what to look for in it.
// The joint of nodo_disegno.h: column to height max(400, 225) = 400; chamfers 50 (up), 30 (Z), 50 (Y); rods' top at 120 - 70 = 50.
#pragma once
#include <gtest/gtest.h>

#include <cmath>

#include "core/aritmetica.h"
#include "corredo/nodo_disegno.h"
#include "corredo/registratore.h"
#include "drawing/edizione_dis.h"
#include "drawing/esecutivo.h"
#include "drawing/formats/formati.h"
#include "drawing/pezzi.h"
#include "drawing/pianta.h"
#include "drawing/tavola.h"
#include "drawing/viste.h"
#include "model/suite.h"

class FoglioDisegno : public ::testing::Test {
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
      if (std::abs(disegno.CoordX[disegno.ArcIni[i]] - (OX + x + 7 * std::cos(a))) < 1e-3 &&
          std::abs(disegno.CoordY[disegno.ArcIni[i]] - (OY + y + 7 * std::sin(a))) < 1e-3) {
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
  double OX = 0, OY = 0;  // origin of the view that is looked at
};
