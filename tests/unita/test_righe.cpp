// tests/unita/test_righe.cpp - the checks as rows: each comparison on its limit and just beyond, order and presence, limits, what a
// Lavoro keeps, where a fault came up. The tables are filled by hand, limits chosen to be round numbers.
#include "engine/righe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include "corredo/lavoro_prova.h"
#include "corredo/nodo_prova.h"
#include "engine/Saldature.h"

namespace {

// Four anchors, ribs, four welds, one sextet without any stress.
//   TA:  plate and ribs 1000, anchors 3990 / 1.33 / 1.5 = 2000 and 2000 / 1.7320508 = 1154.7, bearing 2 x 1000 (edge (500 - 460) / 20),
//        bond 250 x 2000 / 100 = 5000 daN, concrete 11; welds 0.85 x 1000.
//   SLU: plate and ribs 2000, welds 0.85 x 2000 = 1700 and 2000, concrete 0.85 x 0.83 x 200 = 141.1.
struct RigheTest : testing::Test {
  void SetUp() override {
    NodoProva();
    nodo.TipoNodo = 2;
    nodo.SpNerv = 8;
    nodo.TfY[3] = nodo.TfY[4] = 460;
    nodo.MatAcc.SAmm = 1000;
    nodo.MatAcc.SAmm40 = 900;
    nodo.MatAcc.Fyk = 2000;
    nodo.MatAcc.Fyk40 = 1800;
    nodo.MatAcc.GammaM = 1;
    nodo.MatTir.Fyk = 3990;
    nodo.MatCls.Rck = 200;
    nodo.MatCls.GammaC = 1;
    nodo.NumSoll = 1;
    verifica.AreaTf = 250;
    ris.TadRd = 9000;
    lavoro.SAmmCls = 11;
    Saldature(4);
  }
  void TearDown() override { AzzeraFault(); }

  static void Saldature(int n) {
    lavoro.NumSaldature = static_cast<std::int16_t>(n);
    for (int w = 1; w <= n; ++w) ris.Saldature[w].Lung = 100;
  }
  // The rows of the tables as they stand.
  static void Righe(int metodo) {
    AzzeraFault();
    lavoro.TipoVer = metodo;
    Giudica(lavoro);
  }
  static const RigaControllo* Riga(int s, int criterio, int elemento) {
    for (const RigaControllo& r : RigheCriterio(lavoro, s, criterio))
      if (r.elemento == elemento) return &r;
    return nullptr;
  }
};

// One number of the tables that alone decides a row.
struct Prova {
  int metodo, criterio, elemento;
  double* (*dove)();
  double limite;            // of the row
  double al_limite, oltre;  // the number on its limit; just beyond it, 0: the next double that changes the demand
};

double* Sigma2() { return &ris.SigmaTir[1][2]; }
double* Tau3() { return &ris.TauTir[1][3]; }
double* SRf1() { return &ris.SRfTir[1][1]; }
double* Tiro4() { return &ris.TiroTir[1][4]; }
double* Spina1() { return &ris.Saldature[4].SPrp[1][1]; }
double* Parallela3() { return &ris.Saldature[4].TauPa[1][3]; }
double* Trasversale1() { return &ris.Saldature[1].TauPe[1][1]; }
double* Lamiera() { return &ris.SMaxPiastra[1]; }
double* Pressione() { return &ris.SMaxCls[1]; }
template <int p>
double* Nervatura() {
  return &ris.SNerv[1][p];
}
double* Rapporto1() { return &ris.Co1[1][1]; }
double* Rapporto2() { return &ris.Co2[1][4]; }
double* Rapporto3() { return &ris.Co3[1][2]; }

// Numbers rounded before the comparison: the next step of the rounding begins at half of it. A ratio 1.005 (1000.05 daN/cm2) is the first
// that rounds upward, in binary a little to either side of it.
const double TA_COEFF_OLTRE = 20 * std::sqrt(1.00501), TA_TAU_OLTRE = 11.547 * std::sqrt(1.00501);
// clang-format off
const Prova PROVE[] = {
  { MetodoTA, TA_TIR_COEFF, 2, Sigma2, 1, 20, TA_COEFF_OLTRE },
  { MetodoTA, TA_TIR_COEFF, 2, Sigma2, 1, -20, -TA_COEFF_OLTRE },
  { MetodoTA, TA_TIR_COEFF, 2, Sigma2, 1, 20 * std::sqrt(1.00499), TA_COEFF_OLTRE },
  { MetodoTA, TA_TIR_COEFF, 3, Tau3, 1, 11.547, TA_TAU_OLTRE },
  { MetodoTA, TA_TIR_COEFF, 3, Tau3, 1, -11.547, -TA_TAU_OLTRE },
  { MetodoTA, TA_TIR_RIF, 1, SRf1, 2000, 20, 0 },
  { MetodoTA, TA_TIR_RIF, 1, SRf1, 2000, -20, 0 },
  { MetodoTA, TA_TIR_TIRO, 4, Tiro4, 5000, 5000, 0 },
  { MetodoTA, TA_TIR_TIRO, 4, Tiro4, 5000, -5000, 0 },
  { MetodoTA, TA_SALD, 4, Spina1, 1, 8.5, 0 },
  { MetodoTA, TA_SALD, 4, Parallela3, 1, -8.5, 0 },
  { MetodoTA, TA_SALD, 1, Trasversale1, 1, 8.5, 0 },
  { MetodoTA, TA_PIASTRA, 0, Lamiera, 1000, 10, 10.00051 },
  { MetodoTA, TA_PIASTRA, 0, Lamiera, 1000, 10.00049, 10.00051 },
  { MetodoTA, TA_NERV_Z, 0, Nervatura<3>, 1000, 10, 10.00051 },
  { MetodoTA, TA_NERV_Z, 0, Nervatura<4>, 1000, 10.00049, 10.00051 },
  { MetodoTA, TA_NERV_Z, 0, Nervatura<7>, 1000, 10, 10.00051 },
  { MetodoTA, TA_NERV_Z, 0, Nervatura<8>, 1000, 10, 10.00051 },
  { MetodoTA, TA_NERV_Y, 0, Nervatura<1>, 1000, 10, 10.00051 },
  { MetodoTA, TA_NERV_Y, 0, Nervatura<2>, 1000, 10.00049, 10.00051 },
  { MetodoTA, TA_NERV_Y, 0, Nervatura<5>, 1000, 10, 10.00051 },
  { MetodoTA, TA_NERV_Y, 0, Nervatura<6>, 1000, 10, 10.00051 },
  { MetodoTA, TA_CLS, 0, Pressione, 11, 0.11, 0.11051 },
  { MetodoTA, TA_CLS, 0, Pressione, 11, 0.11049, 0.11051 },
  { MetodoSLU, SLU_TIR_CO1, 1, Rapporto1, 1, 1, 1.00501 },
  { MetodoSLU, SLU_TIR_CO1, 1, Rapporto1, 1, 1.00499, 1.00501 },
  { MetodoSLU, SLU_TIR_CO2, 4, Rapporto2, 1, 1, 1.00501 },
  { MetodoSLU, SLU_TIR_CO2, 4, Rapporto2, 1, 1.00499, 1.00501 },
  { MetodoSLU, SLU_TIR_CO3, 2, Rapporto3, 1, 1, 1.00501 },
  { MetodoSLU, SLU_TIR_CO3, 2, Rapporto3, 1, 1.00499, 1.00501 },
  { MetodoSLU, SLU_SALD_1, 4, Parallela3, 1700, 17, 0 },
  { MetodoSLU, SLU_SALD_1, 4, Spina1, 1700, -17, 0 },
  { MetodoSLU, SLU_SALD_1, 1, Trasversale1, 1700, 17, 0 },
  { MetodoSLU, SLU_PIASTRA, 0, Lamiera, 2000, 20, 0 },
  { MetodoSLU, SLU_PIASTRA, 0, Lamiera, 2000, -20, 0 },
  { MetodoSLU, SLU_NERV_Z, 0, Nervatura<3>, 2000, 20, 0 },
  { MetodoSLU, SLU_NERV_Z, 0, Nervatura<4>, 2000, 20, 0 },
  { MetodoSLU, SLU_NERV_Z, 0, Nervatura<7>, 2000, 20, 0 },
  { MetodoSLU, SLU_NERV_Z, 0, Nervatura<8>, 2000, 20, 0 },
  { MetodoSLU, SLU_NERV_Y, 0, Nervatura<1>, 2000, 20, 0 },
  { MetodoSLU, SLU_NERV_Y, 0, Nervatura<2>, 2000, 20, 0 },
  { MetodoSLU, SLU_NERV_Y, 0, Nervatura<5>, 2000, 20, 0 },
  { MetodoSLU, SLU_NERV_Y, 0, Nervatura<6>, 2000, 20, 0 },
};
// clang-format on

constexpr double FCD_200 = 0.85 * 0.83 * 200;  // 141.1 but for its last binary digit

}  // namespace

// ---- each comparison

TEST_F(RigheTest, OgniConfronto) {
  for (const Prova& p : PROVE) {
    SetUp();
    const std::string nome = std::string(Criteri(p.metodo)[static_cast<std::size_t>(p.criterio)].id) + " " + std::to_string(p.al_limite);
    const auto giudica = [&](double v) {
      *p.dove() = v;
      Righe(p.metodo);
      EXPECT_FALSE(FaultAritmetico()) << nome;
      const RigaControllo* r = Riga(1, p.criterio, p.elemento);
      EXPECT_NE(r, nullptr) << nome;
      return r == nullptr ? RigaControllo{} : *r;
    };
    const RigaControllo si = giudica(p.al_limite);
    EXPECT_TRUE(si.passa) << nome;
    EXPECT_EQ(si.domanda, p.limite) << nome;
    EXPECT_EQ(si.limite, p.limite) << nome;
    EXPECT_TRUE(lavoro.passa[1] && lavoro.verificato) << nome;
    double v = p.oltre;
    RigaControllo no = si;
    for (int passi = 0; v == 0 && passi < 9; ++passi) {  // the next double whose hundredfold is another one
      const double u = std::nextafter(*p.dove(), p.al_limite > 0 ? 1e9 : -1e9);
      no = giudica(u);
      if (no.domanda > p.limite) v = u;
    }
    ASSERT_NE(v, 0) << nome;
    no = giudica(v);
    EXPECT_FALSE(no.passa) << nome;
    EXPECT_GT(no.domanda, p.limite) << nome;
    EXPECT_FALSE(lavoro.passa[1] || lavoro.verificato) << nome;
    // It alone turned, and not by the other side of its limit: half of the demand passes.
    for (const RigaControllo& r : lavoro.righe) {
      const bool lei = r.criterio == p.criterio && r.elemento == p.elemento;
      const bool compagna = p.metodo == MetodoSLU && p.criterio == SLU_SALD_1;  // the sum of one stress is that stress, its limit 2000
      EXPECT_EQ(r.passa, !lei) << nome << ": " << int{r.criterio};
      if (!lei && !compagna) {
        EXPECT_EQ(r.domanda, 0) << nome << ": " << int{r.criterio};
      }
    }
    EXPECT_TRUE(giudica(p.al_limite / 2).passa) << nome;
  }
}

TEST_F(RigheTest, SommaDelleTensioniDellaSaldatura) {  // 1000 + 1000 on its limit, while their root stays under 1700
  ris.Saldature[2].SPrp[1][3] = 10;
  ris.Saldature[2].TauPe[1][3] = -10;
  Righe(MetodoSLU);
  EXPECT_EQ(Riga(1, SLU_SALD_2, 2)->domanda, 2000);
  EXPECT_EQ(Riga(1, SLU_SALD_2, 2)->limite, 2000);
  EXPECT_TRUE(lavoro.verificato);
  double& S = ris.Saldature[2].SPrp[1][3];
  for (int passi = 0; passi < 9 && lavoro.verificato; ++passi) {
    S = std::nextafter(S, 100.0);
    Righe(MetodoSLU);
  }
  EXPECT_GT(Riga(1, SLU_SALD_2, 2)->domanda, 2000);
  EXPECT_FALSE(Riga(1, SLU_SALD_2, 2)->passa);
  EXPECT_TRUE(Riga(1, SLU_SALD_1, 2)->passa);
  EXPECT_FALSE(lavoro.verificato);
}

TEST_F(RigheTest, PressioneSulCalcestruzzoSLU) {  // fcd is not a round number: the last double that passes, and the next
  double v = FCD_200 / 100;
  while (v * 100 > FCD_200) v = std::nextafter(v, 0.0);
  while (std::nextafter(v, 2.0) * 100 <= FCD_200) v = std::nextafter(v, 2.0);
  for (const double segno : {1.0, -1.0}) {
    ris.SMaxCls[1] = segno * v;
    Righe(MetodoSLU);
    EXPECT_EQ(Riga(1, SLU_CLS, 0)->limite, FCD_200);
    EXPECT_NEAR(Riga(1, SLU_CLS, 0)->domanda, 141.1, 1e-10);
    EXPECT_TRUE(Riga(1, SLU_CLS, 0)->passa);
    ris.SMaxCls[1] = segno * std::nextafter(v, 2.0);
    Righe(MetodoSLU);
    EXPECT_GT(Riga(1, SLU_CLS, 0)->domanda, FCD_200);
    EXPECT_FALSE(Riga(1, SLU_CLS, 0)->passa);
    EXPECT_FALSE(lavoro.verificato);
  }
  // On the limit itself: 128 times a number, over that number.
  nodo.MatCls.Rck = 128;
  nodo.MatCls.GammaC = 0.85 * 0.83;
  ris.SMaxCls[1] = 1.28;
  Righe(MetodoSLU);
  EXPECT_EQ(Riga(1, SLU_CLS, 0)->limite, 128);
  EXPECT_EQ(Riga(1, SLU_CLS, 0)->domanda, 128);
  EXPECT_TRUE(Riga(1, SLU_CLS, 0)->passa);
}

// Only the limit states judge absolute values of plate, ribs and concrete. The ribs: of the largest of their four positions.
TEST_F(RigheTest, ValoriAssoluti) {
  ris.SMaxPiastra[1] = ris.SMaxCls[1] = -50;
  for (double& S : ris.SNerv[1]) S = -50;
  Righe(MetodoTA);
  EXPECT_TRUE(lavoro.verificato);
  EXPECT_EQ(Riga(1, TA_PIASTRA, 0)->domanda, -5000);
  EXPECT_EQ(Riga(1, TA_NERV_Z, 0)->domanda, -5000);
  EXPECT_EQ(Riga(1, TA_NERV_Y, 0)->domanda, -5000);
  EXPECT_EQ(Riga(1, TA_CLS, 0)->domanda, -5000);
  Righe(MetodoSLU);
  for (const int c : {SLU_PIASTRA, SLU_NERV_Z, SLU_NERV_Y, SLU_CLS}) {
    EXPECT_EQ(Riga(1, c, 0)->domanda, 5000) << c;
    EXPECT_FALSE(Riga(1, c, 0)->passa) << c;
  }
  ris.SNerv[1][3] = -20;
  ris.SNerv[1][5] = -20;
  Righe(MetodoSLU);
  EXPECT_TRUE(Riga(1, SLU_NERV_Z, 0)->passa);
  EXPECT_TRUE(Riga(1, SLU_NERV_Y, 0)->passa);
}

// What is judged is rounded; what it was before is kept beside it.
TEST_F(RigheTest, GrezzaEArrotondata) {
  ris.SigmaTir[1][1] = 10;  // (1 / 2)^2 and (1 / 4)^2
  ris.TauTir[1][1] = 11.547 / 4;
  ris.SRfTir[1][1] = -12.34567;
  ris.TiroTir[1][1] = -123.456789;
  ris.SMaxPiastra[1] = 1.23456;
  ris.SNerv[1][4] = 2.34567;
  ris.SNerv[1][6] = 3.45678;
  ris.SMaxCls[1] = 0.012345;
  Righe(MetodoTA);
  const auto riga = [](int c, int e) { return *Riga(1, c, e); };
  EXPECT_NEAR(riga(TA_TIR_COEFF, 1).grezza, 0.3125, 1e-12);
  EXPECT_EQ(riga(TA_TIR_COEFF, 1).domanda, 0.31);
  EXPECT_DOUBLE_EQ(riga(TA_TIR_RIF, 1).grezza, 1234.567);
  EXPECT_DOUBLE_EQ(riga(TA_TIR_RIF, 1).domanda, 1234.567);
  EXPECT_EQ(riga(TA_TIR_TIRO, 1).grezza, 123.456789);  // a force: daN, as the table has it
  EXPECT_EQ(riga(TA_TIR_TIRO, 1).domanda, 123.456789);
  EXPECT_DOUBLE_EQ(riga(TA_PIASTRA, 0).grezza, 123.456);
  EXPECT_EQ(riga(TA_PIASTRA, 0).domanda, 123.5);
  EXPECT_DOUBLE_EQ(riga(TA_NERV_Z, 0).grezza, 234.567);
  EXPECT_EQ(riga(TA_NERV_Z, 0).domanda, 234.6);
  EXPECT_DOUBLE_EQ(riga(TA_NERV_Y, 0).grezza, 345.678);
  EXPECT_EQ(riga(TA_NERV_Y, 0).domanda, 345.7);
  EXPECT_DOUBLE_EQ(riga(TA_CLS, 0).grezza, 1.2345);
  EXPECT_EQ(riga(TA_CLS, 0).domanda, 1.2);

  ris.Co1[1][1] = 0.125, ris.Co2[1][1] = 0.625, ris.Co3[1][1] = 0.125;  // ties to even
  ris.Co1[1][2] = 0.375, ris.Co2[1][2] = 0.12501, ris.Co3[1][2] = 0.875;
  ris.Saldature[1].SPrp[1][1] = 1.23456;
  ris.Saldature[1].TauPe[1][1] = -2.34567;
  Righe(MetodoSLU);
  EXPECT_EQ(riga(SLU_TIR_CO1, 1).grezza, 0.125);
  EXPECT_EQ(riga(SLU_TIR_CO1, 1).domanda, 0.12);
  EXPECT_EQ(riga(SLU_TIR_CO2, 1).domanda, 0.62);
  EXPECT_EQ(riga(SLU_TIR_CO3, 1).domanda, 0.12);
  EXPECT_EQ(riga(SLU_TIR_CO1, 2).domanda, 0.38);
  EXPECT_EQ(riga(SLU_TIR_CO2, 2).domanda, 0.13);
  EXPECT_EQ(riga(SLU_TIR_CO3, 2).domanda, 0.88);
  EXPECT_DOUBLE_EQ(riga(SLU_SALD_1, 1).domanda, 100 * std::hypot(1.23456, 2.34567));
  EXPECT_DOUBLE_EQ(riga(SLU_SALD_2, 1).domanda, 100 * (1.23456 + 2.34567));
  EXPECT_DOUBLE_EQ(riga(SLU_PIASTRA, 0).domanda, 123.456);
  EXPECT_DOUBLE_EQ(riga(SLU_NERV_Z, 0).domanda, 234.567);
  EXPECT_DOUBLE_EQ(riga(SLU_NERV_Y, 0).domanda, 345.678);
  EXPECT_DOUBLE_EQ(riga(SLU_CLS, 0).domanda, 1.2345);
}

TEST_F(RigheTest, RapportoAlCentesimoPerEccesso) {  // by allowable stresses halves go up: 0.25 of each, 0.125
  nodo.MatTir.Fyk = 5152;                           // 2582.5, and 2582.5 / 1.7320508 = 1491.007: 1491
  ris.SigmaTir[1][1] = 6.45625;
  ris.TauTir[1][1] = 3.7275;
  Righe(MetodoTA);
  EXPECT_EQ(Riga(1, TA_TIR_COEFF, 1)->grezza, 0.125);
  EXPECT_EQ(Riga(1, TA_TIR_COEFF, 1)->domanda, 0.13);
}

// ---- the tables' other columns

TEST_F(RigheTest, NomiUnitaClausole) {
  const auto U = [](Grandezza g) { return g == Grandezza::Tensione ? "daN/cm2" : g == Grandezza::Forza ? "daN" : "-"; };
  const auto E = [](Elementi e) { return e == Elementi::Nodo ? "" : e == Elementi::Tirafondi ? "tirafondo" : "saldatura"; };
  using R = std::tuple<std::string, std::string, std::string, std::string>;
  const auto elenco = [&](int metodo) {
    std::vector<R> righe;
    for (const Criterio& c : Criteri(metodo)) {
      righe.emplace_back(c.id, U(c.grandezza), E(c.elementi), c.clausola);
      EXPECT_NE(std::string(c.nome), "");
    }
    return righe;
  };
  const std::string CNR = "CNR 10011/88", TIR = "NTC 2008 4.2.8.1.1 (4.2.65)", ACC = "NTC 2008 4.2.4.1.1";
  // clang-format off
  EXPECT_EQ(elenco(MetodoTA), (std::vector<R>{
    { "tir.coeff", "-", "tirafondo", CNR }, { "tir.rif", "daN/cm2", "tirafondo", CNR }, { "tir.tiro", "daN", "tirafondo", CNR },
    { "sald", "-", "saldatura", CNR },      { "piastra", "daN/cm2", "", CNR },          { "nerv.z", "daN/cm2", "", CNR },
    { "nerv.y", "daN/cm2", "", CNR },       { "cls", "daN/cm2", "", CNR } }));
  EXPECT_EQ(elenco(MetodoSLU), (std::vector<R>{
    { "tir.co1", "-", "tirafondo", TIR }, { "tir.co2", "-", "tirafondo", TIR },
    { "tir.co3", "-", "tirafondo", "Ft,Ed / Tad,Rd, aderenza del tirafondo" },
    { "sald.1", "daN/cm2", "saldatura", "NTC 2008 4.2.8.2.4 (4.2.78)" }, { "sald.2", "daN/cm2", "saldatura", "NTC 2008 4.2.8.2.4 (4.2.79)" },
    { "piastra", "daN/cm2", "", ACC }, { "nerv.z", "daN/cm2", "", ACC }, { "nerv.y", "daN/cm2", "", ACC },
    { "cls", "daN/cm2", "", "NTC 2008 4.1.2.1.1.1" } }));
  // clang-format on
}

// ---- order and presence

TEST_F(RigheTest, OrdinePerSestettoControlloElemento) {
  nodo.NumSoll = 3;
  Saldature(20);
  ris.Saldature[5].Lung = 0;  // by limit states alone a weld without length has no row
  for (const int metodo : {MetodoTA, MetodoSLU}) {
    Righe(metodo);
    std::vector<std::tuple<int, int, int>> attese, lette;
    const int criteri = metodo == MetodoTA ? 8 : 9;
    for (int s = 1; s <= 3; ++s)
      for (int c = 0; c < criteri; ++c) {
        const bool tir = c <= 2, sald = metodo == MetodoTA ? c == 3 : c == 3 || c == 4;
        if (!tir && !sald) attese.emplace_back(s, c, 0);
        for (int i = 1; tir && i <= 4; ++i) attese.emplace_back(s, c, i);
        for (int w = 1; sald && w <= 20; ++w)
          if (metodo == MetodoTA ? w != 9 && w != 19 : w != 5) attese.emplace_back(s, c, w);
      }
    for (const RigaControllo& r : lavoro.righe) lette.emplace_back(r.sestetto, r.criterio, r.elemento);
    EXPECT_EQ(lette, attese);
    EXPECT_EQ(lavoro.righePerSestetto, metodo == MetodoTA ? 12 + 18 + 4 : 12 + 2 * 19 + 4);
    EXPECT_EQ(RigheSestetto(lavoro, 2).data(), lavoro.righe.data() + lavoro.righePerSestetto);
    EXPECT_EQ(RigheSestetto(lavoro, 3).size(), static_cast<std::size_t>(lavoro.righePerSestetto));
    for (int s = 1; s <= 3; ++s)
      for (int c = 0; c < criteri; ++c)
        for (const RigaControllo& r : RigheCriterio(lavoro, s, c)) EXPECT_TRUE(r.sestetto == s && r.criterio == c);
    EXPECT_EQ(RigheCriterio(lavoro, 3, criteri - 1).size(), 1u);
    EXPECT_EQ(&RigheCriterio(lavoro, 3, criteri - 1)[0], &lavoro.righe.back());
  }
}

TEST_F(RigheTest, SaldatureInterne) {
  Saldature(20);
  ris.Saldature[9].SPrp[1][1] = 100;  // stale, far over any limit
  const auto elementi = [](int criterio) {
    std::vector<int> w;
    for (const RigaControllo& r : RigheCriterio(lavoro, 1, criterio)) w.push_back(r.elemento);
    return w;
  };
  for (const std::int16_t si : {std::int16_t(0), std::int16_t(2), std::int16_t(-1)}) {
    nodo.SaldInt = si;
    Righe(MetodoTA);
    EXPECT_EQ(elementi(TA_SALD), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 14, 15, 16, 17, 18, 20})) << si;
    EXPECT_TRUE(lavoro.verificato) << si;
  }
  nodo.SaldInt = 1;
  Righe(MetodoTA);
  EXPECT_EQ(elementi(TA_SALD).size(), 20u);
  EXPECT_FALSE(Riga(1, TA_SALD, 9)->passa);
  EXPECT_FALSE(lavoro.verificato);
  // By limit states the length alone decides, whatever SaldInt says.
  nodo.SaldInt = 0;
  Righe(MetodoSLU);
  EXPECT_EQ(elementi(SLU_SALD_1).size(), 20u);
  EXPECT_FALSE(lavoro.verificato);
  ris.Saldature[9].Lung = 0.0001;  // not above it
  ris.Saldature[10].Lung = 0.0002;
  Righe(MetodoSLU);
  EXPECT_EQ(elementi(SLU_SALD_1).size(), 19u);
  EXPECT_EQ(elementi(SLU_SALD_1), elementi(SLU_SALD_2));
  EXPECT_EQ(Riga(1, SLU_SALD_2, 9), nullptr);
  EXPECT_NE(Riga(1, SLU_SALD_2, 10), nullptr);
  EXPECT_TRUE(lavoro.verificato);
}

TEST_F(RigheTest, SenzaNervature) {  // what the ribs' positions still hold is neither told nor judged
  for (double& S : ris.SNerv[1]) S = 1000;
  for (const std::int16_t tipo : {std::int16_t(1), std::int16_t(0), std::int16_t(3)}) {
    nodo.TipoNodo = tipo;
    Righe(MetodoTA);
    const std::size_t quanteTA[] = {4, 4, 4, 4, 1, 0, 0, 1}, quanteSLU[] = {4, 4, 4, 4, 4, 1, 0, 0, 1};
    for (int c = 0; c < 8; ++c) EXPECT_EQ(RigheCriterio(lavoro, 1, c).size(), quanteTA[c]) << tipo << ' ' << c;
    EXPECT_TRUE(lavoro.verificato) << tipo;
    Righe(MetodoSLU);
    for (int c = 0; c < 9; ++c) EXPECT_EQ(RigheCriterio(lavoro, 1, c).size(), quanteSLU[c]) << tipo << ' ' << c;
    EXPECT_TRUE(lavoro.verificato) << tipo;
  }
}

TEST_F(RigheTest, SenzaSestetti) {
  nodo.NumSoll = 0;
  for (const int metodo : {MetodoTA, MetodoSLU}) {
    Righe(metodo);
    EXPECT_TRUE(lavoro.righe.empty());
    EXPECT_TRUE(lavoro.verificato);
    EXPECT_FALSE(lavoro.fermo.c_e);
  }
  EXPECT_EQ(ris.TadRd, 9000);
}

TEST_F(RigheTest, UnSestettoFallitoTraBuoni) {
  nodo.NumSoll = 3;
  ris.SMaxPiastra[2] = 50;
  for (const int metodo : {MetodoTA, MetodoSLU}) {
    Righe(metodo);
    EXPECT_TRUE(lavoro.passa[1] && lavoro.passa[3]);
    EXPECT_FALSE(lavoro.passa[2] || lavoro.verificato);
  }
  ris.SMaxPiastra[2] = 0;
  Righe(MetodoTA);
  EXPECT_TRUE(lavoro.passa[2] && lavoro.verificato);
}

// ---- limits, by hand

TEST_F(RigheTest, LimitiTA) {
  nodo.NumSoll = 2;
  nodo.SollCC[2] = 1;  // class II: 1.125
  nodo.SpNerv = 40.01;
  Righe(MetodoTA);
  EXPECT_EQ(lavoro.CoeffRifollamento, 2);
  const double attesi[][8] = {{1, 2000, 5000, 1, 1000, 900, 900, 11},
                              {1, 2250, 5000, 1, 1125, 1012.5, 1012.5, 11}};  // the concrete and the bond do not rise
  for (int s = 1; s <= 2; ++s)
    for (int c = 0; c < 8; ++c)
      for (const RigaControllo& r : RigheCriterio(lavoro, s, c)) EXPECT_EQ(r.limite, attesi[s - 1][c]) << s << ' ' << c;
  EXPECT_EQ(lavoro.limitiTA[1].SAdmTir, 2000);
  EXPECT_EQ(lavoro.limitiTA[1].TauAdmTir, 1154.7);
  EXPECT_EQ(lavoro.limitiTA[2].SAdmTir, 2250);
  EXPECT_EQ(lavoro.limitiTA[2].TauAdmTir, 1299);  // 2250 / 1.7320508 = 1299.0381
  EXPECT_EQ(lavoro.limitiTA[2].SAdmSald, 1125);
  // The weld's ratio and the anchor's sum follow the class: 850 / 0.85 / 1125, (2000 / 2250)^2.
  for (int s = 1; s <= 2; ++s) ris.Saldature[3].SPrp[s][1] = 8.5, ris.SigmaTir[s][1] = 20;
  Righe(MetodoTA);
  EXPECT_EQ(Riga(1, TA_SALD, 3)->domanda, 1);
  EXPECT_NEAR(Riga(2, TA_SALD, 3)->domanda, 1 / 1.125, 1e-12);
  EXPECT_NEAR(Riga(2, TA_TIR_COEFF, 1)->grezza, 64.0 / 81, 1e-12);
}

TEST_F(RigheTest, LimitiSLU) {
  nodo.MatCls.GammaC = 1.6;
  nodo.MatAcc.GammaM = 1.25;
  nodo.SpessPiastra = 40.01;
  nodo.SollCC[1] = 1;  // no effect
  Righe(MetodoSLU);
  // 1800 / 1.25, 2000 / 1.25, 0.85 x 0.83 x 200 / 1.6; the welds by Fyk of thin plates, without a factor
  const double attesi[] = {1, 1, 1, 1700, 2000, 1440, 1600, 1600, 88.1875};
  for (int c = 0; c < 9; ++c)
    for (const RigaControllo& r : RigheCriterio(lavoro, 1, c)) EXPECT_NEAR(r.limite, attesi[c], 1e-12) << c;
  nodo.MatAcc.Nome = "S 275";
  Righe(MetodoSLU);
  EXPECT_NEAR(Riga(1, SLU_SALD_1, 1)->limite, 1400, 1e-12);
  EXPECT_NEAR(Riga(1, SLU_SALD_2, 1)->limite, 1700, 1e-12);
  nodo.MatAcc.Nome = "ignoto";  // no factor: a weld without stress passes, any other does not
  ris.Saldature[2].TauPa[1][1] = 1e-9;
  Righe(MetodoSLU);
  EXPECT_EQ(Riga(1, SLU_SALD_1, 1)->limite, 0);
  EXPECT_TRUE(Riga(1, SLU_SALD_1, 1)->passa);
  EXPECT_FALSE(Riga(1, SLU_SALD_1, 2)->passa);
}

// The bond of each sextet, a running minimum: 250 x 2250 / 100 = 5625 by class II, 5000 by class I.
TEST_F(RigheTest, AderenzaNonRisale) {
  nodo.NumSoll = 4;
  nodo.SollCC[1] = nodo.SollCC[3] = 1;
  for (int s = 1; s <= 4; ++s) ris.TiroTir[s][1] = 5300;
  Righe(MetodoTA);
  const double limiti[] = {5625, 5000, 5000, 5000};
  for (int s = 1; s <= 4; ++s) {
    EXPECT_EQ(lavoro.limitiTA[s].TadRd, limiti[s - 1]) << s;
    for (int i = 1; i <= 4; ++i) EXPECT_EQ(Riga(s, TA_TIR_TIRO, i)->limite, limiti[s - 1]) << s;
    EXPECT_EQ(Riga(s, TA_TIR_TIRO, 1)->passa, s == 1);
  }
  EXPECT_EQ(ris.TadRd, 5000);
  Righe(MetodoTA);  // on the same tables once more: no sextet begins higher
  EXPECT_EQ(lavoro.limitiTA[1].TadRd, 5000);
  ris.TadRd = 5400;  // the bond itself, where it is the lesser
  Righe(MetodoTA);
  EXPECT_EQ(lavoro.limitiTA[1].TadRd, 5400);
  EXPECT_EQ(lavoro.limitiTA[4].TadRd, 5000);
  ris.TadRd = 6000;  // by limit states nothing lowers it
  Righe(MetodoSLU);
  EXPECT_EQ(ris.TadRd, 6000);
}

// ---- where a fault came up

namespace {

struct Guasto {
  const char* nome;
  int metodo;
  void (*modifica)();
  int sestetto, criterio, elemento;
};
// clang-format off
const Guasto GUASTI[] = {
  { "TfFi",            MetodoTA,  [] { nodo.TfFi = 0; },                                   0, 0, 0 },
  { "GammaM",          MetodoSLU, [] { nodo.MatAcc.GammaM = 0; },                          0, 0, 0 },
  { "GammaC",          MetodoSLU, [] { nodo.MatCls.GammaC = 0; },                          0, 0, 0 },
  { "Fyk dei tir.",    MetodoTA,  [] { nodo.MatTir.Fyk = 0; },                             1, TA_TIR_COEFF, 1 },
  { "sigma",           MetodoTA,  [] { ris.SigmaTir[2][3] = 1e308; },                      2, TA_TIR_COEFF, 3 },
  { "tau",             MetodoTA,  [] { ris.TauTir[3][4] = -1e200; },                       3, TA_TIR_COEFF, 4 },
  { "rifollamento",    MetodoTA,  [] { ris.SRfTir[2][2] = 1e307; },                        2, TA_TIR_RIF, 2 },
  { "acciaio ignoto",  MetodoTA,  [] { nodo.MatAcc.Nome = "x"; ris.Saldature[3].TauPa[2][1] = 1; },  2, TA_SALD, 3 },
  { "saldatura",       MetodoTA,  [] { ris.Saldature[4].SPrp[2][3] = 1e307; },             2, TA_SALD, 4 },
  { "piastra",         MetodoTA,  [] { ris.SMaxPiastra[3] = 1e307; },                      3, TA_PIASTRA, 0 },
  { "nervatura Z",     MetodoTA,  [] { ris.SNerv[1][7] = 1e307; },                         1, TA_NERV_Z, 0 },
  { "nervatura Y",     MetodoTA,  [] { ris.SNerv[1][6] = 1e307; },                         1, TA_NERV_Y, 0 },
  { "cls",             MetodoTA,  [] { ris.SMaxCls[2] = 1e307; },                          2, TA_CLS, 0 },
  { "saldatura",       MetodoSLU, [] { ris.Saldature[2].TauPe[2][1] = 1e200; },            2, SLU_SALD_1, 2 },
  { "piastra",         MetodoSLU, [] { ris.SMaxPiastra[3] = -1e307; },                     3, SLU_PIASTRA, 0 },
  { "nervatura Z",     MetodoSLU, [] { ris.SNerv[1][7] = 1e307; },                         1, SLU_NERV_Z, 0 },
  { "nervatura Y",     MetodoSLU, [] { ris.SNerv[1][6] = 1e307; },                         1, SLU_NERV_Y, 0 },
  { "cls",             MetodoSLU, [] { ris.SMaxCls[2] = 1e307; },                          2, SLU_CLS, 0 },
  { "due",             MetodoTA,  [] { ris.SMaxCls[2] = ris.SMaxPiastra[2] = ris.SRfTir[3][1] = 1e307; }, 2, TA_PIASTRA, 0 },   // the first
};
// clang-format on

}  // namespace

TEST_F(RigheTest, DoveIlFault) {
  for (const Guasto& g : GUASTI) {
    SetUp();
    nodo.NumSoll = 3;
    Righe(g.metodo);
    EXPECT_FALSE(lavoro.fermo.c_e || FaultAritmetico()) << g.nome;
    g.modifica();
    Righe(g.metodo);
    EXPECT_TRUE(FaultAritmetico()) << g.nome;
    EXPECT_TRUE(lavoro.fermo.c_e) << g.nome;
    EXPECT_EQ(lavoro.fermo.sestetto, g.sestetto) << g.nome << ' ' << g.metodo;
    EXPECT_EQ(lavoro.fermo.criterio, g.criterio) << g.nome << ' ' << g.metodo;
    EXPECT_EQ(lavoro.fermo.elemento, g.elemento) << g.nome << ' ' << g.metodo;
  }
  ris.SMaxCls[2] = ris.SMaxPiastra[2] = ris.SRfTir[3][1] = 0;  // the next judgement is without it
  Righe(MetodoTA);
  EXPECT_FALSE(lavoro.fermo.c_e || FaultAritmetico());
  EXPECT_EQ(lavoro.righe.size(), 3u * 20);
}

// ---- a Lavoro of its own

namespace {

// Two joints that differ in all that a run keeps: ribs, inner welds, anchors, method.
struct Coppia {
  std::unique_ptr<LavoroSuo> a, b;
};
Coppia DueNodi() {
  Coppia c;
  NodoProva();
  SestettoProva(-30000, 1000, 2000, 5000, 150000, 200000);
  SestettoProva(20000, 300, 100, 0, 90000, -40000);
  c.a = CreaLavoroSuo();
  nodo.TipoNodo = 2;
  nodo.SaldInt = 1;
  nodo.TfFi = 24;
  nodo.TipoVer = 1;
  SchemaProva(1, 60, 55);
  SestettoProva(-90000, 0, 0, 0, -250000, 0);
  c.b = CreaLavoroSuo();
  return c;
}

// Every number that a run makes and shows.
std::vector<double> Impronta(const Lavoro& l) {
  std::vector<double> v = {l.verifica.AreaTf,
                           l.verifica.IzSald,
                           l.verifica.LungTy,
                           l.ris.TadRd,
                           l.ris.FvRd,
                           l.SAmmCls,
                           l.TauCls,
                           l.CoeffRifollamento,
                           l.limitiSLU.SLim1,
                           double(l.NumSaldature),
                           double(l.verificato),
                           double(l.diagnosi.size())};
  for (const RigaControllo& r : l.righe)
    v.insert(v.end(), {double(r.sestetto), double(r.criterio), double(r.elemento), r.grezza, r.domanda, r.limite, double(r.passa)});
  for (int s = 1; s <= l.nodo->NumSoll; ++s) {
    const PianoSestetto& p = l.piani[s];
    v.insert(v.end(), {l.ris.SMaxCls[s], l.ris.SMaxPiastra[s], p.P[1], p.P[2], p.P[3], double(p.IterPres)});
    v.insert(v.end(), std::begin(l.ris.SigmaTir[s]), std::end(l.ris.SigmaTir[s]));
    v.insert(v.end(), std::begin(l.ris.SNerv[s]), std::end(l.ris.SNerv[s]));
    for (const Saldatura& d : l.ris.Saldature) v.insert(v.end(), std::begin(d.TauPa[s]), std::end(d.TauPa[s]));
  }
  return v;
}

}  // namespace

TEST_F(RigheTest, DueLavoriNonSiConoscono) {
  const Coppia soli = DueNodi();
  ASSERT_TRUE(EseguiVerifica(soli.a->l));
  const std::vector<double> a = Impronta(soli.a->l);
  ASSERT_TRUE(EseguiVerifica(soli.b->l));
  const std::vector<double> b = Impronta(soli.b->l);
  EXPECT_EQ(Impronta(soli.a->l), a);  // the other one's run changed nothing here
  EXPECT_NE(a, b);
  const Coppia misti = DueNodi();
  ASSERT_TRUE(EseguiVerifica(misti.b->l));
  ASSERT_TRUE(EseguiVerifica(misti.a->l));
  EXPECT_EQ(Impronta(misti.a->l), a);
  EXPECT_EQ(Impronta(misti.b->l), b);
  EXPECT_TRUE(lavoro.righe.empty());  // nor on the panels
  EXPECT_EQ(ris.SMaxCls[1], 0);
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(RigheTest, InsiemeSuDueFili) {
  const Coppia soli = DueNodi();
  ASSERT_TRUE(EseguiVerifica(soli.a->l) && EseguiVerifica(soli.b->l));
  const std::vector<double> a = Impronta(soli.a->l), b = Impronta(soli.b->l);
  const Coppia c = DueNodi();
  const auto giri = [](Lavoro& l, const std::vector<double>& attesa, int& uguali) {
    for (int n = 0; n < 50; ++n) uguali += EseguiVerifica(l) && Impronta(l) == attesa;
  };
  int ua = 0, ub = 0;
  std::thread t(giri, std::ref(c.a->l), std::cref(a), std::ref(ua));
  giri(c.b->l, b, ub);
  t.join();
  EXPECT_EQ(ua, 50);
  EXPECT_EQ(ub, 50);
}

// A fault of one run is its own: the flags are the thread's, the note that Lavoro's.
TEST_F(RigheTest, IlFaultDiUnoNonFermaLAltro) {
  const Coppia c = DueNodi();
  c.a->nodo.SpessPiastra = 0;
  EXPECT_FALSE(EseguiVerifica(c.a->l));
  ASSERT_EQ(c.a->l.diagnosi.size(), 1u);
  EXPECT_EQ(c.a->l.diagnosi[0].testo, TESTO_FAULT_VERIFICA);
  EXPECT_FALSE(FaultAritmetico());
  EXPECT_TRUE(EseguiVerifica(c.b->l));
  EXPECT_TRUE(c.b->l.diagnosi.empty());
}

// What no step clears outlives a verification on the same Lavoro; a fresh one has none.
TEST_F(RigheTest, CioCheResta) {
  const auto nuovo = [] {
    NodoProva();
    nodo.TipoNodo = 2;
    SestettoProva(-30000, 1000, 2000, 5000, 150000, 200000);
    return CreaLavoroSuo();
  };
  // Records of welds that are not rebuilt: the inner ones, of 170 mm each, still lengthen the group.
  auto u = nuovo();
  u->nodo.SaldInt = 1;
  ASSERT_TRUE(EseguiVerifica(u->l));
  const double conInterne = u->l.verifica.LungTy;
  u->nodo.SaldInt = 0;
  ASSERT_TRUE(EseguiVerifica(u->l));
  EXPECT_EQ(u->l.NumSaldature, 40);
  EXPECT_NEAR(u->l.verifica.LungTy, conInterne, 1e-9);
  auto v = nuovo();
  ASSERT_TRUE(EseguiVerifica(v->l));
  EXPECT_NEAR(v->l.verifica.LungTy, conInterne - 340, 1e-9);
  // The strips of six anchors, under four that write none.
  u = nuovo();
  for (double& S : u->l.ris.SPiastraTir[1][2]) S = 12345;
  ASSERT_TRUE(EseguiVerifica(u->l));
  EXPECT_EQ(u->l.ris.SMaxPiastra[1], 12345);
  EXPECT_LT(v->l.ris.SMaxPiastra[1], 12345);
  // A bond limit, of rods that are neither straight nor hooked: 0 with a fresh one, so that no anchor under stress passes.
  u = nuovo();
  u->nodo.SollN[1] = 20000;
  ASSERT_TRUE(EseguiVerifica(u->l));
  const double tiro = u->l.ris.TadRd;
  EXPECT_GT(tiro, 0);
  u->nodo.TipoTirafondo = 2;
  ASSERT_TRUE(EseguiVerifica(u->l));
  EXPECT_EQ(u->l.ris.TadRd, tiro);
  v = nuovo();
  v->nodo.TipoTirafondo = 2;
  ASSERT_TRUE(EseguiVerifica(v->l));
  EXPECT_EQ(v->l.ris.TadRd, 0);
  EXPECT_FALSE(v->l.verificato);
  // Straight rods are worked out anew: the minimum of the run before does not stay.
  u->nodo.TipoTirafondo = 0;
  u->l.ris.TadRd = 1;
  ASSERT_TRUE(EseguiVerifica(u->l));
  EXPECT_EQ(u->l.ris.TadRd, tiro);
  // The solver's residual: no effect.
  u = nuovo();
  for (double& r : u->l.presInfl.Residuo) r = 1e30;
  v = nuovo();
  ASSERT_TRUE(EseguiVerifica(u->l) && EseguiVerifica(v->l));
  EXPECT_EQ(Impronta(u->l), Impronta(v->l));
  // Notes, rows, verdict and the place of a fault are of the last run alone.
  u->l.diagnosi.push_back({});
  u->l.fermo = {true, 1, 2, 3};
  ASSERT_TRUE(EseguiVerifica(u->l));
  EXPECT_EQ(Impronta(u->l), Impronta(v->l));
  EXPECT_FALSE(u->l.fermo.c_e);
  u->nodo.SpessPiastra = 0;
  u->l.verificato = true;
  EXPECT_FALSE(EseguiVerifica(u->l));
  EXPECT_TRUE(u->l.righe.empty());
  EXPECT_FALSE(u->l.verificato);
}
