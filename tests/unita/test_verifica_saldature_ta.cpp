// tests/unita/test_verifica_saldature_ta.cpp - limits of the allowable-stress method and the ratio of one weld (CNR 10011/88).
// Weld stresses are given in daN/mm2; the check takes them to daN/cm2 (factor 100).
#include "corredo/relazioni_campione.h"

#include <cmath>

#include "core/numeri.h"
#include "engine/Saldature.h"
#include "model/stato.h"

namespace {

struct Punto {
  double S, Pa, Pe;
};

struct Esito {
  bool esito = true;
  double sp = -1, tpa = -1, tpe = -1, rapporto = -1;
};

class SaldatureTA : public ProvaRelazione {
 protected:
  void SetUp() override {
    ProvaRelazione::SetUp();
    nodo.MatAcc.Nome = "S 235 (FE 360)";  // k1 0.85, k2 1
  }
  static void Tensioni(int k, Punto p) {
    ris.Saldature[2].SPrp[5][k] = p.S, ris.Saldature[2].TauPa[5][k] = p.Pa, ris.Saldature[2].TauPe[5][k] = p.Pe;
  }
  // Ratio and verdict as the weld's row has them; the stresses of the end that gives the ratio, daN/cm2.
  static Esito Verifica(double Sadm) {
    RapportiSaldatureTA(lavoro, 5, Sadm);
    const Criterio& c = Criteri(MetodoTA)[TA_SALD];
    const Saldatura& d = ris.Saldature[2];
    const int k = d.Estremo[5];
    const double R = c.domanda(lavoro, 5, 2);
    return {c.passa(R, c.limite(lavoro, 5, 2)), d.SPrp[5][k] * 100, d.TauPa[5][k] * 100, d.TauPe[5][k] * 100, R};
  }
  static double Rapporto(Punto p, double Sadm = 1600) {
    Tensioni(1, p), Tensioni(3, p);
    return Verifica(Sadm).rapporto;
  }
};

TEST_F(SaldatureTA, SeiCombinazioni) {
  // k1 Sadm = 0.85 x 1600 = 1360
  EXPECT_NEAR(Rapporto({6, 3, 2}), 700.0 / 1360, 1e-12);  // sqrt(36 + 9 + 4) = 7
  EXPECT_NEAR(Rapporto({2, 0, 6}), 600.0 / 1360, 1e-12);  // the transverse stress alone leads
  EXPECT_NEAR(Rapporto({6, 0, 2}), 600.0 / 1360, 1e-12);  // the normal stress alone leads
  EXPECT_NEAR(Rapporto({0, 3, 4}), 500.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({6, 8, 0}), 1000.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({5, 0, 0}), 500.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({0, 5, 0}), 500.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({0, 0, 5}), 500.0 / 1360, 1e-12);
  EXPECT_EQ(Rapporto({0, 0, 0}), 0);
}

TEST_F(SaldatureTA, SegniSenzaPeso) {
  EXPECT_NEAR(Rapporto({-6, 3, -2}), 700.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({2, 0, -6}), 600.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({-6, 0, -2}), 600.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({-5, 0, 0}), 500.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({0, -5, 0}), 500.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({0, 0, -5}), 500.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({-2, 0, 6}), 600.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({6, -3, 2}), 700.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({0, -3, -4}), 500.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({0, 3, -4}), 500.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({-6, -8, 0}), 1000.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({6, -8, 0}), 1000.0 / 1360, 1e-12);
}

// A stress counts as soon as it is not zero, a stress of zero never: 0.5 daN/mm2 here. With Sadm below zero the rows that have a
// sum show it (see below); the others have none.
TEST_F(SaldatureTA, NonNullaEDiversaDaZero) {
  EXPECT_NEAR(Rapporto({0.5, 0, 0}), 50.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({1, 1, 1}, -1600), -101.0 / 1600, 1e-12);
  EXPECT_NEAR(Rapporto({1, 0, 1}, -1600), -101.0 / 1600, 1e-12);
  EXPECT_NEAR(Rapporto({0, 3, 4}, -1600), -500.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({6, 8, 0}, -1600), -1000.0 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({0, 1, 1}), std::sqrt(2.0) * 100 / 1360, 1e-12);
  EXPECT_NEAR(Rapporto({1, 1, 0}), std::sqrt(2.0) * 100 / 1360, 1e-12);
}

// A point with a normal and a transverse stress takes the larger of the two, not their root: 5 where the root would give 7.07.
TEST_F(SaldatureTA, NormaleETrasversaleNonSiCompongono) { EXPECT_NEAR(Rapporto({5, 0, 5}), 500.0 / 1360, 1e-12); }

// The sum |S| + |Pe| leads only where Pe carries no factor: with Sadm below zero the larger is the one nearest to zero,
// (100 x 6 + 2) / 1 / -1600 = -0.37625 against -0.5147 and -0.4412.
TEST_F(SaldatureTA, SommaSenzaFattoreSullaTrasversale) {
  EXPECT_NEAR(Rapporto({6, 3, 2}, -1600), -602.0 / 1600, 1e-12);
  EXPECT_NEAR(Rapporto({6, 0, 6}, -1600), -606.0 / 1600, 1e-12);
  EXPECT_NEAR(Rapporto({-6, 3, -2}, -1600), -602.0 / 1600, 1e-12);  // absolute values
  EXPECT_NEAR(Rapporto({-6, 0, -6}, -1600), -606.0 / 1600, 1e-12);
}

TEST_F(SaldatureTA, CoefficientiDeiTreAcciai) {
  const Punto p = {0, 3, 4};  // 500 / k1 / 1000
  EXPECT_NEAR(Rapporto(p, 1000), 0.5 / 0.85, 1e-12);
  nodo.MatAcc.Nome = "S 275 (FE 430)";
  EXPECT_NEAR(Rapporto(p, 1000), 0.5 / 0.7, 1e-12);
  EXPECT_NEAR(Rapporto({6, 3, 2}, -1000), -602.0 / 850, 1e-12);  // k2 0.85, see above
  nodo.MatAcc.Nome = "S 355 (FE 510)";
  EXPECT_NEAR(Rapporto(p, 1000), 0.5 / 0.7, 1e-12);
  EXPECT_NEAR(Rapporto({6, 3, 2}, -1000), -602.0 / 850, 1e-12);  // k2 0.85, see above
  nodo.MatAcc.Nome = "s 355 (fe 510)";                           // compared in capitals
  EXPECT_NEAR(Rapporto(p, 1000), 0.5 / 0.7, 1e-12);
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(SaldatureTA, AcciaioSconosciuto) {
  for (const char* nome : {"S 235", "S 235 (FE 360) ", " S 235 (FE 360)", "S 450", ""}) {
    nodo.MatAcc.Nome = nome;
    AzzeraFault();
    EXPECT_EQ(Rapporto({0, 0, 0}), 0) << nome;
    EXPECT_FALSE(FaultAritmetico()) << nome;  // no stress, no division
    for (const Punto p : {Punto{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 0}, {0, 1, 1}, {1, 0, 1}, {1, 1, 1}}) {
      AzzeraFault();
      Rapporto(p);
      EXPECT_TRUE(FaultAritmetico()) << nome;
    }
    AzzeraFault();
  }
}

TEST_F(SaldatureTA, SceltaDelPunto) {
  Tensioni(1, {5, 0, 0}), Tensioni(2, {50, 50, 50}), Tensioni(3, {-5, 0, 0});
  Esito e = Verifica(1600);
  EXPECT_EQ(e.sp, 500);  // equal ratios: point 1; the middle never
  EXPECT_NEAR(e.rapporto, 500.0 / 1360, 1e-12);
  Tensioni(3, {-5.5, 0.25, 2});
  e = Verifica(1600);
  EXPECT_EQ(e.sp, -550);  // times 100, with their signs
  EXPECT_EQ(e.tpa, 25);
  EXPECT_EQ(e.tpe, 200);
  EXPECT_TRUE(e.esito);
}

TEST_F(SaldatureTA, EsitoSoloAbbassato) {
  Tensioni(1, {8.5, 0, 0});  // 850 / 0.85 / 1000 = 1 exactly: passes
  EXPECT_EQ(Verifica(1000).rapporto, 1);
  EXPECT_TRUE(Verifica(1000).esito);
  Tensioni(1, {8.5001, 0, 0});
  EXPECT_FALSE(Verifica(1000).esito);
  EXPECT_EQ(Arrotonda2(Verifica(1000).rapporto), 1);  // judged unrounded, shown rounded
  Tensioni(1, {0, 0, 0}), Tensioni(3, {0, 0, 8.6});
  EXPECT_FALSE(Verifica(1000).esito);
  for (const int cattiva : {1, 2, 4}) {  // a good weld does not cancel an earlier failure
    for (int w = 1; w <= 4; ++w) ris.Saldature[w].SPrp[1][1] = w == cattiva ? 8.6 : 1;
    Sestetti(1), nodo.MatAcc.SAmm = 1000;
    GiudicaEScrivi(MetodoTA);
    EXPECT_FALSE(lavoro.passa[1]) << cattiva;
    for (const RigaControllo& r : RigheCriterio(lavoro, 1, TA_SALD)) EXPECT_EQ(r.passa, r.elemento != cattiva);
  }
}

// ---- limits of a sextet

TEST_F(SaldatureTA, LimitiClasseI) {
  const LimitiTA l = CalcolaLimitiTA(nodo, 1, 2);
  EXPECT_EQ(l.FattComb, 1);
  EXPECT_EQ(l.SAdmPiastra, 1900);
  EXPECT_EQ(l.SAdmNerv, 1900);
  EXPECT_EQ(l.SAdmTir, 3208);      // 6400 / 1.33 / 1.5 = 3208.0200
  EXPECT_EQ(l.TauAdmTir, 1852.1);  // 3208 / 1.7320508 = 1852.1397
  EXPECT_EQ(l.SRfAdm, 3800);
  EXPECT_EQ(l.SAdmSald, 1900);
}

TEST_F(SaldatureTA, LimitiClasseII) {
  nodo.SollCC[1] = 1;
  const LimitiTA l = CalcolaLimitiTA(nodo, 1, 2);
  EXPECT_EQ(l.FattComb, 1.125);
  EXPECT_EQ(l.SAdmPiastra, 2137.5);  // 1900 x 1.125
  EXPECT_EQ(l.SAdmNerv, 2137.5);
  EXPECT_EQ(l.SAdmTir, 3609);      // 3208.0200 x 1.125 = 3609.0226: raised before the rounding
  EXPECT_EQ(l.TauAdmTir, 2083.7);  // 3609 / 1.7320508 = 2083.6571
  EXPECT_EQ(l.SRfAdm, 4275);
  EXPECT_EQ(l.SAdmSald, 2137.5);
  nodo.SollCC[1] = 7;  // any class but 0
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 2).FattComb, 1.125);
  nodo.SollCC[1] = -1;
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 2).FattComb, 1.125);
}

TEST_F(SaldatureTA, LimitiArrotondatiAlDecimo) {
  nodo.SollCC[1] = 1, nodo.MatAcc.SAmm = 1601.3;
  const LimitiTA l = CalcolaLimitiTA(nodo, 1, 2.3);
  EXPECT_EQ(l.SAdmPiastra, 1801.5);  // 1801.4625
  EXPECT_EQ(l.SRfAdm, 4143.5);       // 1801.5 x 2.3 = 4143.45, from the rounded limit
}

// Halves go up, the rest to the nearest tenth: 1600.25, 1600.21, 1600.28; each limit by itself.
TEST_F(SaldatureTA, LimitiAlDecimoPiuVicino) {
  const struct { double SAmm, limite; } casi[] = {{1600.25, 1600.3}, {1600.21, 1600.2}, {1600.28, 1600.3}};
  for (const auto& c : casi) {
    nodo.MatAcc.SAmm = c.SAmm;
    const LimitiTA l = CalcolaLimitiTA(nodo, 1, 2);
    EXPECT_EQ(l.SAdmPiastra, c.limite);
    EXPECT_EQ(l.SAdmNerv, c.limite);
    EXPECT_EQ(l.SAdmSald, c.limite);
  }
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 1.1).SRfAdm, 1760.3);  // 1600.3 x 1.1 = 1760.33
  nodo.MatTir.Fyk = 6520;
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 2).SAdmTir, 3268.2);  // 3268.1704
}

TEST_F(SaldatureTA, LimitiOltre40mm) {
  nodo.SpessPiastra = 40, nodo.SpNerv = 40;
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 2).SAdmPiastra, 1900);
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 2).SAdmNerv, 1900);
  nodo.SpessPiastra = 40.01;
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 2).SAdmPiastra, 1700);
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 2).SAdmNerv, 1900);
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 2).SRfAdm, 3400);
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 2).SAdmSald, 1900);  // the welds keep the limit of thin plates
  nodo.SpNerv = 40.01;
  EXPECT_EQ(CalcolaLimitiTA(nodo, 1, 2).SAdmNerv, 1700);
}

TEST_F(SaldatureTA, CoefficienteDiRifollamento) {
  // TfZ1, TfY1, LatoZ - TfZ2, LatoY - TfY3 over 20 mm: 2.5, 2.5, 2.5, 2
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 2);
  nodo.TfY[3] = 400;  // 5: capped at 2.5
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 2.5);
  nodo.TfZ[1] = nodo.TfY[1] = 100, nodo.TfZ[2] = 300;  // 5 everywhere
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 2.5);
  nodo.TfY[1] = 50, nodo.TfZ[2] = 350;
  nodo.TfZ[1] = 37;  // 1.85 -> 1.9 (floor(18.5 + 0.5))
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 1.9);
  nodo.TfY[1] = 33;  // 1.65 -> 1.7
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 1.7);
  nodo.TfZ[2] = 375;  // 1.25 -> 1.3
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 1.3);
  nodo.TfY[3] = 479;  // 1.05 -> 1.1
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 1.1);
  nodo.TfY[3] = 475.8;  // 1.21 -> 1.2
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 1.2);
  nodo.TfY[3] = 400, nodo.TfY[1] = 24.2, nodo.TfZ[2] = 350;
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 1.2);
  nodo.TfY[1] = 50, nodo.TfZ[2] = 375.8;
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 1.2);
  nodo.TfY[3] = 479;
  nodo.TfZ[4] = nodo.TfY[4] = nodo.TfY[2] = nodo.TfZ[3] = 1;  // the other coordinates take no part
  EXPECT_EQ(CalcolaCoeffRifollamento(nodo), 1.1);
  EXPECT_FALSE(FaultAritmetico());
  nodo.TfFi = 0;
  CalcolaCoeffRifollamento(nodo);
  EXPECT_TRUE(FaultAritmetico());
}

}  // namespace
