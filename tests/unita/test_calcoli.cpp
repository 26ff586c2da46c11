// tests/unita/test_calcoli.cpp - the driver: order, rows, typologies, failures, messages. Base joint of corredo/nodo_prova.h.
#include "engine/Calcoli.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "corredo/lavoro_prova.h"
#include "corredo/nodo_prova.h"
#include "engine/Piastra.h"
#include "engine/PresInfl.h"
#include "engine/Saldature.h"
#include "engine/righe.h"
#include "model/stato.h"

namespace {

using Eventi = std::vector<std::string>;
const std::string FAULT = "[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: la verifica non può continuare.";
const std::string DIAMETRO =
  "[messaggio] informazione | NODO COLONNA - PLINTO | Il diametro dei tirafondi non è compreso tra i valori del file c:\\custom\\QbDiam.txt .";
const std::string ESTRAPOLATO = DIAMETRO + "\\nIl valore dell'area corrispondente è stato calcolato per estrapolazione.";
const std::string INTERPOLATO = DIAMETRO + "\\nIl valore dell'area corrispondente è stato calcolato per interpolazione.";

// The base joint with units, a folder for the reports and one load.
void Prepara() {
  NodoProva();
  suite.DirLavoro = CartellaProva("calcoli");
  suite.UnitaForze = "daN";
  suite.UnitaMomenti = "daN cm";
  suite.UnitaTensioni = "daN/cm2";
  suite.FattForze = suite.FattMomenti = suite.FattTensioni = 1;
  suite.DecForze = suite.DecMomenti = suite.DecTensioni = 1;
  nodo.NomeNodo = "Prova";
  SestettoProva(-30000, 1000, 2000, 5000, 150000, 200000);
}

bool Relazione(const std::string& evento) { return evento.rfind("[testo] ", 0) == 0; }
bool Scritta() { return std::any_of(registratore.eventi.begin(), registratore.eventi.end(), Relazione); }

struct CalcoliTest : testing::Test {
  void SetUp() override { Prepara(); }
  void TearDown() override { AzzeraFault(); }
};

}  // namespace

TEST_F(CalcoliTest, CostantiPerMetodo) {
  nodo.TfFi = 24;
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  EXPECT_EQ(verifica.AreaTf, 353);
  EXPECT_EQ(verifica.SommaR2, 250000);
  EXPECT_EQ(verifica.ArmZ[1], -150);
  EXPECT_EQ(lavoro.SAmmCls, 9.75);  // daN/mm2 scale of Rck / 10
  EXPECT_EQ(lavoro.TauCls, 0.1);
  EXPECT_GT(ris.TadRd, 0);
  EXPECT_EQ(ris.FvRd, 0);
  nodo.MatCls.SAmm = 5;
  nodo.TipoVer = 1;
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  EXPECT_NEAR(ris.FtRd, 0.9 * 3600 * 353 / 100 / 1.25, 1e-9);
  EXPECT_NEAR(lavoro.TauCls, 0.28 * std::sqrt(16.6), 1e-12);
  EXPECT_EQ(lavoro.SAmmCls, 5);    // allowable stresses only
  EXPECT_EQ(nodo.MatCls.SAmm, 5);  // the joint is not written
  EXPECT_EQ(nodo.MatCls.TauCls, 0);
}

TEST_F(CalcoliTest, AreaPrimaDelleResistenze) {  // the cap of the bond by limit states: this run's area, 353, not the one before
  nodo.TipoVer = 1;
  nodo.TipoTirafondo = 1;
  nodo.NumSoll = 0;
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  EXPECT_NEAR(ris.TadRd, 7056, 1e-9);  // 245 / 100 x 3600 / 1.25
  nodo.TfFi = 24;
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  EXPECT_NEAR(ris.TadRd, 10166.4, 1e-9);  // 353 / 100 x 3600 / 1.25
}

TEST_F(CalcoliTest, MomentiPerDieci) {  // daN cm to daN mm; forces as stored
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  EXPECT_EQ(verifica.N, -30000);
  EXPECT_EQ(verifica.Ty, 1000);
  EXPECT_EQ(verifica.Tz, 2000);
  EXPECT_EQ(verifica.Mt, 50000);
  EXPECT_EQ(verifica.My, 1500000);
  EXPECT_EQ(verifica.Mz, 2000000);
}

TEST_F(CalcoliTest, TabelleTA) {
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  // Pressure and anchor stress of this load: reference solution of the strain plane; shear of anchor 1: (370000)^0.5 by hand.
  EXPECT_NEAR(ris.SMaxCls[1], 0.37543, 1e-5);  // absolute
  EXPECT_NEAR(ris.SigmaTir[1][4], -2.0727, 1e-4);
  EXPECT_NEAR(ris.SRfTir[1][1], std::sqrt(370000.0) / 400, 1e-9);
  EXPECT_NEAR(ris.TauTir[1][1], std::sqrt(370000.0) / 245, 1e-9);
  EXPECT_NEAR(ris.TiroTir[1][4], 245 * ris.SigmaTir[1][4], 1e-9);
  EXPECT_EQ(ris.FvEd[1][1], 0);
  EXPECT_EQ(ris.FtEd[1][4], 0);
  // Plate: 3 x 0.37543 x 159.75^2 / 400 = 71.86, more than any side's anchors.
  EXPECT_NEAR(ris.SMaxPiastra[1], 3 * ris.SMaxCls[1] * 159.75 * 159.75 / 400, 1e-9);
  EXPECT_EQ(lavoro.NumSaldature, 8);
  EXPECT_NE(ris.Saldature[8].SPrp[1][1], 0);
}

TEST_F(CalcoliTest, TabelleSLU) {
  nodo.TipoVer = 1;
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  EXPECT_NEAR(ris.FvEd[1][1], std::sqrt(370000.0), 1e-9);
  EXPECT_NEAR(ris.FtEd[1][4], 245 * ris.SigmaTir[1][4], 1e-9);
  EXPECT_EQ(ris.SRfTir[1][1] + ris.TauTir[1][1] + ris.TiroTir[1][1], 0);
}

TEST_F(CalcoliTest, RigheAzzerate) {  // what step by step is cleared, and what stays
  nodo.TipoNodo = 5;                  // nothing behind the anchors: the cleared rows can be seen
  for (int s = 1; s <= 2; ++s) {
    ris.SMaxPiastra[s] = 9;
    for (int p = 0; p <= 8; ++p) ris.SNerv[s][p] = 9;
    for (int i = 0; i <= 8; ++i) {
      ris.SigmaTir[s][i] = ris.TauTir[s][i] = ris.FtEd[s][i] = ris.FvEd[s][i] = ris.SRfTir[s][i] = ris.TiroTir[s][i] = 9;
      ris.SPiastraTir[s][1][i] = 9;
    }
    for (Saldatura& d : ris.Saldature) {
      for (int k = 0; k <= 3; ++k) d.SPrp[s][k] = d.TauPa[s][k] = d.TauPe[s][k] = 9;
      d.SEq1[s] = d.SEq2[s] = 9;
    }
  }
  nodo.TipoVer = 1;
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  EXPECT_EQ(ris.SMaxPiastra[1], 0);
  for (int p = 1; p <= 8; ++p) EXPECT_EQ(ris.SNerv[1][p], 0);
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(ris.TauTir[1][i], 0);
  EXPECT_EQ(ris.SigmaTir[1][5], 9);  // beyond the anchors
  EXPECT_EQ(ris.SRfTir[1][1], 9);    // of the other method
  EXPECT_EQ(ris.TiroTir[1][1], 9);
  EXPECT_EQ(ris.SPiastraTir[1][1][2], 9);
  for (int w = 1; w <= 8; ++w) {
    for (int k = 1; k <= 3; ++k) EXPECT_EQ(ris.Saldature[w].SPrp[1][k] + ris.Saldature[w].TauPa[1][k] + ris.Saldature[w].TauPe[1][k], 0);
    EXPECT_EQ(ris.Saldature[w].SEq1[1] + ris.Saldature[w].SEq2[1], 0);
  }
  EXPECT_EQ(ris.Saldature[9].SPrp[1][1], 9);  // beyond NumSaldature
  EXPECT_EQ(ris.SMaxPiastra[2], 9);           // beyond NumSoll
  nodo.TipoVer = 0;
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  EXPECT_EQ(ris.FvEd[1][1] + ris.FtEd[1][1], 0);
}

TEST_F(CalcoliTest, TipologiaConNervature) {
  nodo.TipoNodo = 2;
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  EXPECT_EQ(lavoro.NumSaldature, 40);
  EXPECT_GT(ris.SNerv[1][1], 0);
  EXPECT_GT(ris.SMaxPiastra[1], 0);
  EXPECT_NE(ris.Saldature[28].SPrp[1][1], 0);
  EXPECT_NE(ris.Saldature[38].TauPa[1][1], 0);
  // Welds 29, 31, 36, 38: the share of the column replaced what the cuts had put there.
  constexpr int COLONNA[] = {29, 31, 36, 38};
  double dirette[4], minima = 0;
  for (int n = 0; n < 4; ++n) minima = std::min(minima, dirette[n] = ris.Saldature[COLONNA[n]].TauPa[1][1]);
  EXPECT_LT(minima, 0);  // which a shear of the cuts, raised only, never is
  TensioniSaldatureColonna(lavoro, 1);
  for (int n = 0; n < 4; ++n) EXPECT_EQ(ris.Saldature[COLONNA[n]].TauPa[1][1], dirette[n]) << COLONNA[n];
  nodo.SaldInt = 1;
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  EXPECT_EQ(lavoro.NumSaldature, 44);
  EXPECT_NE(ris.Saldature[44].TauPa[1][1], 0);
}

TEST_F(CalcoliTest, PiastraNervataPrendeLaMaggiore) {  // the strips' stresses raise SMaxPiastra; six anchors write them, four keep them
  nodo.TipoNodo = 2;
  SchemaProva(2);
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  double massima = 0;
  for (int d = 1; d <= 2; ++d)
    for (int i = 1; i <= 6; ++i) massima = std::max(massima, ris.SPiastraTir[1][d][i]);
  EXPECT_GT(massima, 0);
  EXPECT_GE(ris.SMaxPiastra[1], massima);
  // The strips' own stresses, with the arms of this run's anchors.
  double tabella[2 + 1][MaxTir + 1];
  for (int d = 1; d <= 2; ++d) std::copy(std::begin(ris.SPiastraTir[1][d]), std::end(ris.SPiastraTir[1][d]), tabella[d]);
  PiastraConNervature(lavoro, 1, verifica.ArmZ, verifica.ArmY);
  for (int d = 1; d <= 2; ++d)
    for (int i = 1; i <= 6; ++i) EXPECT_EQ(tabella[d][i], ris.SPiastraTir[1][d][i]) << d << ' ' << i;
  // Pulled, with ribs so high that the cuts stress the plate little: the strips govern.
  Prepara();
  nodo.TipoNodo = 2;
  nodo.HNerv = 800;
  SchemaProva(2);
  nodo.SollN[1] = 100000;
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  massima = 0;
  for (int d = 1; d <= 2; ++d)
    for (int i = 1; i <= 6; ++i) massima = std::max(massima, ris.SPiastraTir[1][d][i]);
  EXPECT_EQ(ris.SMaxPiastra[1], massima);
  // Four anchors: what an earlier verification left still counts, in both directions and for each anchor there is.
  SchemaProva(0);
  for (int d = 1; d <= 2; ++d)
    for (int i = 1; i <= 4; ++i) {
      for (auto& riga : ris.SPiastraTir[1]) std::fill(std::begin(riga), std::end(riga), 0.0);
      ris.SPiastraTir[1][d][i] = 12345;
      ris.SPiastraTir[1][d][5] = 99999;  // no such anchor
      ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
      EXPECT_EQ(ris.SMaxPiastra[1], 12345) << d << ' ' << i;
    }
}

TEST_F(CalcoliTest, AltraTipologia) {
  for (const std::int16_t tipo : {std::int16_t(3), std::int16_t(0)}) {
    Prepara();
    nodo.TipoNodo = tipo;
    ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
    EXPECT_EQ(lavoro.NumSaldature, 8);
    EXPECT_EQ(ris.SMaxPiastra[1], 0) << tipo;
    EXPECT_EQ(ris.SNerv[1][1], 0);
    EXPECT_EQ(ris.Saldature[1].SPrp[1][1], 0);
    EXPECT_NE(ris.SigmaTir[1][1], 0);
  }
}

TEST_F(CalcoliTest, SolutoreFallitoAlTerzo) {
  // Anchors of 1e-9 mm2: the load ten plates off finds no equilibrium. The solver's box, then the driver's; rows 1, 2 stay, no more.
  for (double& a : suite.DiamArea) a = 1e-9;
  suite.DiamVal[0] = 18;  // 20 mm is now interpolated: no message after a failure
  nodo.NumSoll = 0;
  for (int s = 1; s <= 5; ++s) SestettoProva(-40000, 0, 0, 0, 0, s == 3 ? -1e7 : -s * 1000);
  EXPECT_FALSE(VerificaNodoFinestre());
  EXPECT_EQ(
    registratore.eventi,
    (Eventi{"[messaggio] nessuna | ERRORE ! | Convergenza non raggiunta !",
            "[messaggio] critica | NODO COLONNA - PLINTO | Sestetto di sollecitazione n°3: situazione non equilibrata nel calcolo delle "
            "azioni sui tirafondi. La verifica non può continuare!"}));
  EXPECT_GT(ris.SMaxPiastra[2], 0);
  EXPECT_EQ(ris.SMaxPiastra[3], 0);
  EXPECT_EQ(ris.SMaxCls[4], 0);
  EXPECT_FALSE(Scritta());
}

TEST_F(CalcoliTest, FaultFermanoLaVerifica) {  // one box, no report, nothing of the diameter
  struct Guasto {
    const char* nome;
    void (*modifica)();
  };
  // clang-format off
  const Guasto GUASTI[] = {
    { "SommaR2", [] { for (int i = 1; i <= 4; ++i) { nodo.TfZ[i] = 200; nodo.TfY[i] = 250; } } },
    { "LungTz", [] { nodo.TipoNodo = 1; nodo.Sezione.B = nodo.Sezione.A = nodo.Sezione.R = 0; } },
    { "LungTy", [] { nodo.Sezione.H = 0; nodo.Sezione.E = nodo.Sezione.R = 0; } },
    { "Gola", [] { nodo.Gola = nodo.GolaCalc = 0; } },
    { "Gola con nervature", [] { nodo.TipoNodo = 2; nodo.Gola = nodo.GolaCalc = 0; } },
    { "TfDistBordo", [] { nodo.TfDistBordo = 0; } },
    { "TfL1", [] { nodo.TfL1 = 0; } },
    { "SpessPiastra", [] { nodo.SpessPiastra = 0; } },
    { "TfFi", [] { nodo.TfFi = 0; } },
    { "EcCls", [] { nodo.EcCls = 0; } },
    { "GammaM2", [] { nodo.TipoVer = 1; nodo.MatVit.GammaM2 = 0; } },
    { "GammaC", [] { nodo.TipoVer = 1; nodo.MatCls.GammaC = 0; } },
    { "Ftk", [] { nodo.TipoVer = 1; nodo.MatAcc.Ftk = 0; } },
    { "HNerv", [] { nodo.TipoNodo = 2; nodo.HNerv = 0; } },
    { "SpNerv", [] { nodo.TipoNodo = 2; nodo.SpNerv = 0; } },
    { "rapporto", [] { nodo.TipoVer = 1; nodo.TipoTirafondo = 2; ris.TadRd = 1e-308; } },      // force over it: beyond a double
    { "area nulla", [] { for (double& a : suite.DiamArea) a = 0; } },
    { "troppo grande", [] { nodo.SollMz[1] = 1e308; nodo.SollN[1] = 1e308; } },
  };
  // clang-format on
  for (const Guasto& g : GUASTI) {
    Prepara();
    g.modifica();
    EXPECT_FALSE(VerificaNodoFinestre()) << g.nome;
    EXPECT_EQ(registratore.eventi, Eventi{FAULT}) << g.nome;
    EXPECT_FALSE(FaultAritmetico()) << g.nome;  // cleared: the program goes on
    EXPECT_FALSE(Scritta()) << g.nome;
  }
  Prepara();
  SegnalaFault();  // of somebody before: the run starts clean
  EXPECT_TRUE(VerificaNodoFinestre());
}

TEST_F(CalcoliTest, ErroreNelPrimoSestettoFerma) {  // the later ones are not worked
  SestettoProva(-1000, 0, 0, 0, 0, 0);
  nodo.SpessPiastra = 0;
  ris.SMaxCls[2] = 7;
  EXPECT_FALSE(CalcolaTabelle(LavoroProva()));
  EXPECT_EQ(ris.SMaxCls[2], 7);
}

TEST_F(CalcoliTest, MessaggiSulDiametro) {
  // Rows 20, 24, 30. An exact value says nothing, between two rows interpolation, outside extrapolation.
  struct Riga {
    double fi;
    Eventi prima;
  };
  for (const Riga& r : {Riga{20, {}}, {24, {}}, {30, {}}, {22, {INTERPOLATO}}, {19, {ESTRAPOLATO}}, {31, {ESTRAPOLATO}}})
    for (const std::int16_t soll : {std::int16_t(0), std::int16_t(1)}) {
      Prepara();
      nodo.TfFi = r.fi;
      nodo.NumSoll = soll;
      EXPECT_TRUE(VerificaNodoFinestre());
      const auto relazione = std::find_if(registratore.eventi.begin(), registratore.eventi.end(), Relazione);
      ASSERT_NE(relazione, registratore.eventi.end()) << r.fi;
      Eventi prima(registratore.eventi.begin(), relazione);
      std::erase(prima, "[messaggio] esclamazione | NODO COLONNA - PLINTO | ATTENZIONE: nodo non verificato!");
      EXPECT_EQ(prima, r.prima) << r.fi << ' ' << soll;
      EXPECT_EQ(ris.FlagDiamInterpolato, r.fi == 22);
      EXPECT_EQ(ris.FlagDiamEstrapolato, r.fi == 19 || r.fi == 31);
    }
  // Extrapolation wins, and the flags of an earlier run are cleared.
  Prepara();
  ris.FlagDiamInterpolato = ris.FlagDiamEstrapolato = true;
  EXPECT_TRUE(VerificaNodoFinestre());
  EXPECT_FALSE(ris.FlagDiamInterpolato || ris.FlagDiamEstrapolato);
}

TEST_F(CalcoliTest, SenzaSestetti) {  // the report is written with no combinations
  nodo.NumSoll = 0;
  EXPECT_TRUE(VerificaNodoFinestre());
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_NE(registratore.eventi[0].find("RelTA_"), std::string::npos);
  EXPECT_TRUE(Scritta());
}

TEST_F(CalcoliTest, RelazionePerMetodo) {
  // Limit states: the weld stresses are scaled by 100 and the ratios worked out before the report; allowable stresses: neither.
  ASSERT_TRUE(CalcolaTabelle(LavoroProva()));
  const double prima = ris.Saldature[3].SPrp[1][1];
  EXPECT_TRUE(VerificaNodoFinestre());
  EXPECT_NEAR(ris.Saldature[3].SPrp[1][1], prima, 1e-12 * std::fabs(prima));
  EXPECT_EQ(ris.Co2[1][1], 0);
  EXPECT_NE(std::find_if(registratore.eventi.begin(), registratore.eventi.end(), Relazione)->find("RelTA_"), std::string::npos);
  registratore.eventi.clear();
  nodo.TipoVer = 1;
  EXPECT_TRUE(VerificaNodoFinestre());
  EXPECT_NEAR(ris.Saldature[3].SPrp[1][1], 100 * prima, 1e-10 * std::fabs(prima));
  EXPECT_GT(ris.Co1[1][1], 0);
  EXPECT_GT(ris.Saldature[3].SEq1[1], 0);
  EXPECT_NE(std::find_if(registratore.eventi.begin(), registratore.eventi.end(), Relazione)->find("RelSLU_"), std::string::npos);
}

TEST_F(CalcoliTest, FaultNellaRelazione) {  // a steel that the weld check does not know: the driver's box, once, no report
  nodo.MatAcc.Nome = "ignoto";
  EXPECT_FALSE(VerificaNodoFinestre());
  EXPECT_EQ(registratore.eventi, Eventi{FAULT});
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(CalcoliTest, EsitoDiPrimaCancellato) {  // a run that is stopped leaves no outcome of the one before it
  ASSERT_TRUE(VerificaNodoFinestre());
  ASSERT_TRUE(Scritta());
  EXPECT_FALSE(lavoro.righe.empty());
  registratore.eventi.clear();
  nodo.SpessPiastra = 0;
  lavoro.verificato = lavoro.fermo.c_e = true;
  EXPECT_FALSE(VerificaNodoFinestre());
  EXPECT_FALSE(Scritta());
  EXPECT_TRUE(lavoro.righe.empty());
  EXPECT_FALSE(lavoro.verificato || lavoro.fermo.c_e);
  EXPECT_EQ(lavoro.diagnosi.size(), 1u);
}

TEST_F(CalcoliTest, DueVerificheUguali) {  // the tables in sight are rescaled in place; the next run starts from its own rows
  nodo.TipoNodo = 2;
  nodo.TipoVer = 1;
  ASSERT_TRUE(VerificaNodoFinestre());
  const Risultati prima = ris;
  ASSERT_TRUE(VerificaNodoFinestre());
  EXPECT_EQ(ris.SMaxPiastra[1], prima.SMaxPiastra[1]);
  EXPECT_EQ(ris.SMaxCls[1], prima.SMaxCls[1]);
  EXPECT_EQ(ris.Saldature[30].TauPa[1][1], prima.Saldature[30].TauPa[1][1]);
  EXPECT_EQ(ris.SNerv[1][4], prima.SNerv[1][4]);
}

// ---- the tables as they stay in sight, against those of a Lavoro of its own

TEST_F(CalcoliTest, TabelleInVistaTA) {
  nodo.TipoNodo = 2;
  SestettoProva(-20000, 500, 0, 0, 90000, 0);
  ris.SMaxCls[3] = ris.SigmaTir[1][5] = 1;  // beyond the sextets, beyond the anchors: as they were
  const auto suo = CreaLavoroSuo();
  ASSERT_TRUE(EseguiVerifica(suo->l));
  ASSERT_TRUE(VerificaNodoFinestre());
  for (int s = 1; s <= 2; ++s) {
    for (int i = 1; i <= 4; ++i) {
      EXPECT_EQ(ris.SigmaTir[s][i], suo->l.ris.SigmaTir[s][i] * 100);
      EXPECT_EQ(ris.TauTir[s][i], suo->l.ris.TauTir[s][i] * 100);
      EXPECT_EQ(ris.SRfTir[s][i], suo->l.ris.SRfTir[s][i] * 100);
      EXPECT_EQ(ris.TiroTir[s][i], suo->l.ris.TiroTir[s][i]);
    }
    EXPECT_EQ(ris.SMaxPiastra[s], suo->l.ris.SMaxPiastra[s] * 100);
    EXPECT_EQ(ris.SMaxCls[s], suo->l.ris.SMaxCls[s] * 100);
    for (int p = 1; p <= 8; ++p) EXPECT_EQ(ris.SNerv[s][p], suo->l.ris.SNerv[s][p]);
    for (int w = 1; w <= 40; ++w) EXPECT_EQ(ris.Saldature[w].TauPa[s][1], suo->l.ris.Saldature[w].TauPa[s][1]);
    EXPECT_GT(ris.SMaxPiastra[s] * ris.SMaxCls[s] * ris.TauTir[s][1] * ris.SNerv[s][1], 0);
  }
  EXPECT_EQ(ris.SMaxCls[3] + ris.SigmaTir[1][5], 2);
  EXPECT_EQ(nodo.MatCls.SAmm, 9.75);  // the two values of the concrete are the joint's again
  EXPECT_EQ(nodo.MatCls.TauCls, 0.1);
}

TEST_F(CalcoliTest, TabelleInVistaSLU) {  // weld stresses x 10^2, every sextet and weld in use, points 1 to 3
  nodo.TipoVer = 1;
  SestettoProva(40000, 500, 3000, 7000, 90000, 110000);
  const auto suo = CreaLavoroSuo();
  ASSERT_TRUE(EseguiVerifica(suo->l));
  for (int s = 1; s <= 3; ++s) ris.Saldature[9].SPrp[s][1] = ris.Saldature[2].SPrp[3][1] = ris.Co1[3][1] = ris.SMaxPiastra[3] = 1;
  ASSERT_TRUE(VerificaNodoFinestre());
  for (int s = 1; s <= 2; ++s) {
    for (int w = 1; w <= 8; ++w)
      for (int k = 1; k <= 3; ++k) {
        const Saldatura &d = ris.Saldature[w], &e = suo->l.ris.Saldature[w];
        EXPECT_EQ(d.SPrp[s][k], e.SPrp[s][k] * 100);
        EXPECT_EQ(d.TauPa[s][k], e.TauPa[s][k] * 100);
        EXPECT_EQ(d.TauPe[s][k], e.TauPe[s][k] * 100);
      }
    for (int w = 1; w <= 8; ++w) EXPECT_EQ(ris.Saldature[w].SEq1[s], suo->l.ris.Saldature[w].SEq1[s]);
    for (int i = 1; i <= 4; ++i) {
      EXPECT_NEAR(ris.Co1[s][i], suo->l.ris.Co1[s][i], 0.00501);
      EXPECT_NEAR(100 * ris.Co1[s][i], std::round(100 * ris.Co1[s][i]), 1e-9);
      EXPECT_NEAR(100 * ris.Co2[s][i], std::round(100 * suo->l.ris.Co2[s][i]), 1e-9);
      EXPECT_NEAR(100 * ris.Co3[s][i], std::round(100 * suo->l.ris.Co3[s][i]), 1e-9);
      EXPECT_EQ(ris.SigmaTir[s][i], suo->l.ris.SigmaTir[s][i]);
      EXPECT_EQ(ris.FtEd[s][i], suo->l.ris.FtEd[s][i]);
    }
    EXPECT_EQ(ris.SMaxPiastra[s], suo->l.ris.SMaxPiastra[s] * 100);
    EXPECT_EQ(ris.SMaxCls[s], suo->l.ris.SMaxCls[s] * 100);
  }
  for (int s = 1; s <= 3; ++s) EXPECT_EQ(ris.Saldature[9].SPrp[s][1], 1);
  EXPECT_EQ(ris.Saldature[2].SPrp[3][1] + ris.Co1[3][1] + ris.SMaxPiastra[3], 3);
}

// A fault of the checks leaves in sight what was reached: of a weld, the anchors of its sextet, not its plate; of the ratios, nothing.
TEST_F(CalcoliTest, TabelleInVistaFinoAlFault) {
  SestettoProva(-20000, 500, 0, 0, 90000, 0);
  const auto suo = CreaLavoroSuo();
  ASSERT_TRUE(CalcolaTabelle(suo->l));
  nodo.MatAcc.Nome = "ignoto";
  EXPECT_FALSE(VerificaNodoFinestre());
  EXPECT_EQ(lavoro.fermo.sestetto, 1);
  EXPECT_EQ(lavoro.fermo.criterio, TA_SALD);
  EXPECT_EQ(lavoro.fermo.elemento, 1);
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(ris.SigmaTir[1][i], suo->l.ris.SigmaTir[1][i] * 100) << i;
  EXPECT_EQ(ris.SMaxPiastra[1], suo->l.ris.SMaxPiastra[1]);
  EXPECT_EQ(ris.SMaxCls[1], suo->l.ris.SMaxCls[1]);
  EXPECT_EQ(ris.SigmaTir[2][1], suo->l.ris.SigmaTir[2][1]);
  // The anchor's strength is null: its first anchor was come to.
  Prepara();
  nodo.MatTir.Fyk = 0;
  EXPECT_FALSE(VerificaNodoFinestre());
  EXPECT_EQ(lavoro.fermo.criterio, TA_TIR_COEFF);
  EXPECT_EQ(lavoro.fermo.elemento, 1);
  EXPECT_NE(ris.SigmaTir[1][1], suo->l.ris.SigmaTir[1][1]);
  EXPECT_NEAR(ris.SigmaTir[1][2], suo->l.ris.SigmaTir[1][2], 1e-12);
}
