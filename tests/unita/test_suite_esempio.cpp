// The sample suite as the start reads it: catalogue, diameters, options, units, job materials. (Its library: test_profili.)
#include <gtest/gtest.h>

#include "core/aritmetica.h"
#include "core/diametri.h"
#include "core/opzioni.h"
#include "core/unita.h"
#include "corredo/registratore.h"
#include "materials/file_materiali.h"
#include "materials/regole_materiali.h"
#include "model/materiali.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

struct SuiteEsempio : testing::Test {
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    suite.DirCustom = QB07_RADICE "/samples/suite/custom";
    suite.DirLavoro = QB07_RADICE "/samples/suite/lavori/NODI01";
  }
  void TearDown() override {
    EXPECT_TRUE(registratore.eventi.empty());
    EXPECT_FALSE(FaultAritmetico());
    AzzeraFault();
  }
  void Catalogo() {
    std::string errore;
    LeggiMaterialiCatalogo(suite.DirCustom + FILE_CATALOGO, errore);
    ASSERT_EQ(errore, "");
  }
};

}  // namespace

TEST_F(SuiteEsempio, CatalogoConOgniLingua) {
  for (const char mark : {'.', ','}) {
    SetUp();
    suite.Decimale = mark;
    Catalogo();
    ASSERT_EQ(materiali.NumAcciai, 20);
    // NTC 2008 table 11.3.IX (fyk, ftk up to 40 mm), CNR 10011/88 table 2-II (sigma amm), 4.2.4.1.1: gamma M0 1.05
    const struct {
      const char* nome;
      double s, s40, fyk, ftk;
    } attesi[] = {
      {"S 235 (FE 360)", 1600, 1400, 2350, 3600}, {"S 275 (FE 430)", 1900, 1700, 2750, 4300}, {"S 355 (FE 510)", 2400, 2100, 3550, 5100}};
    int i = 0;
    for (const auto& a : attesi) {
      const MatAcciaio& m = materiali.AcciaiBase[++i];
      EXPECT_EQ(m.Nome, a.nome);
      EXPECT_EQ(m.SAmm, a.s);
      EXPECT_EQ(m.SAmm40, a.s40);
      EXPECT_EQ(m.Fyk, a.fyk);
      EXPECT_EQ(m.Ftk, a.ftk);
      EXPECT_EQ(m.GammaM, 1.05);
      EXPECT_EQ(m.GammaMT, 1.1);
    }
    EXPECT_EQ(materiali.AcciaiBase[1].Fyk40, 2150);  // 40 to 80 mm
    EXPECT_EQ(materiali.AcciaiBase[2].Ftk40, 4100);
    EXPECT_EQ(materiali.AcciaiBase[20].Nome, "ACCIAIO DOLCE (RD 2229/39)");
    EXPECT_EQ(materiali.AcciaiBase[20].SAmm, 1373);  // 1400 kg/cm2 9.81 / 10
    EXPECT_FALSE(MaterialeValido(false, "PROFILI", materiali.AcciaiBase[20]));
    EXPECT_EQ(materiali.NumAcciaiChiusi, 7);
    EXPECT_EQ(materiali.AcciaiChiusiBase[7].Nome, "S 460 NH");
    ASSERT_EQ(materiali.NumViti, 5);
    EXPECT_EQ(materiali.VitiBase[1].Nome, "8.8");  // gamma M2 1.25, NTC 2008 4.2.8.1.1
    EXPECT_EQ(materiali.VitiBase[1].GammaM2, 1.25);
    EXPECT_EQ(materiali.VitiBase[5].Ft, 10000);
    ASSERT_GE(materiali.NumCls, 16);
    EXPECT_EQ(materiali.ClsBase[3].Nome, "C25/30");  // the class of a new node without job materials
    EXPECT_EQ(materiali.ClsBase[3].Rck, 300);
    for (int c = 1; c <= materiali.NumCls; ++c) {
      EXPECT_EQ(materiali.ClsBase[c].GammaC, 1.5) << c;
      // the name is Cfck/Rck in N/mm2
      const std::string& nome = materiali.ClsBase[c].Nome;
      EXPECT_EQ(materiali.ClsBase[c].Rck, 10 * std::stod(nome.substr(nome.find('/') + 1))) << nome;
    }
    EXPECT_GE(materiali.NumAcciaiCA, 1);
  }
}

TEST_F(SuiteEsempio, DiametriComeGliInterni) {
  LeggiDiametri();
  EXPECT_EQ(suite.NumDiam, 22);
  EXPECT_EQ(suite.DiamNome[6], "M20");  // row 7 of a new node
  EXPECT_EQ(suite.DiamVal[6], 20);
  EXPECT_EQ(suite.DiamArea[6], 245);
  EXPECT_EQ(suite.DiamNome[21], "M68");
  EXPECT_EQ(AreaResistente(suite, 24), 353);
}

TEST_F(SuiteEsempio, Opzioni) {
  ASSERT_TRUE(LeggiOpzioni());
  EXPECT_EQ(suite.ParNodo[0], 2);
  EXPECT_EQ(suite.ParNodo[7], 15);
  EXPECT_EQ(suite.ParNodo[17], suite.ParNodo[13]);
  EXPECT_EQ(suite.ParNodo[27], 2);
}

TEST_F(SuiteEsempio, UnitaDelLavoro) {  // daN, cm
  ASSERT_TRUE(ImpostaUnita());
  EXPECT_EQ(suite.AccelG, 9.81);
  EXPECT_EQ(suite.FattLung, 1);
  EXPECT_EQ(suite.FattForze, 1);
  EXPECT_EQ(suite.FattMomenti, 1);
  EXPECT_EQ(suite.FattTensioni, 1);
  EXPECT_EQ(suite.FattSezioni, 1);
  EXPECT_NEAR(suite.FattCarichi, 1e4, 1e-8);
  EXPECT_EQ(suite.UnitaTensioni, "daN/cm2");
  EXPECT_EQ(suite.DecForze, 1);
  EXPECT_EQ(suite.DecMomenti, 1);
  EXPECT_EQ(suite.DecTensioni, 1);
}

TEST_F(SuiteEsempio, MaterialiDelLavoro) {
  Catalogo();
  ASSERT_TRUE(LeggiMaterialiBase());
  EXPECT_TRUE(materiali.MatDaBase);
  EXPECT_EQ(materiali.MatBaseCls.Nome, "C25/30");
  EXPECT_EQ(materiali.MatBaseCls.Rck, 300);
  EXPECT_EQ(materiali.MatBaseCls.Fck, 249);  // 0.83 Rck
  EXPECT_EQ(materiali.MatBaseAcc1.Nome, "S 275 (FE 430)");
  EXPECT_EQ(materiali.MatBaseAcc1.Fyd40, 2428.57);
  EXPECT_EQ(materiali.MatBaseAcc2.Nome, "S 275 H (FE 430)");
  EXPECT_EQ(materiali.ModuloEBase, 210000);
  EXPECT_EQ(materiali.GammaMBase[3], 1.25);
  bool acciaio = false, cls = false;  // both names are the catalogue's
  for (int i = 1; i <= materiali.NumAcciai; ++i) acciaio |= materiali.AcciaiBase[i].Nome == materiali.MatBaseAcc1.Nome;
  for (int i = 1; i <= materiali.NumCls; ++i) cls |= materiali.ClsBase[i].Nome == materiali.MatBaseCls.Nome;
  EXPECT_TRUE(acciaio);
  EXPECT_TRUE(cls);
}
