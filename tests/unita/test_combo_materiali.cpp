// The material combos. Table of the tests: 1 S 235, 2 S 275, 3 S 355, 4 "S 450" (limit states only), 5 "S 185" (allowable stresses
// only); concretes Rck 250, 300, 350 daN/cm2.
#include <gtest/gtest.h>

#include "core/aritmetica.h"
#include "core/piattaforma.h"
#include "corredo/pannello_prova.h"
#include "corredo/registratore.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "panels/InsDati.h"
#include "panels/PropMateriali.h"

namespace {

using Testi = std::vector<std::string>;

const char* RICORDATO = "\\nDa questo momento in poi il materiale impostato sarà ricordato anche se si cambia il metodo di verifica.";
const std::string BOX_TA =
  std::string("[messaggio] esclamazione | ATTENZIONE! | Materiale non possibile per verifiche alle tensioni ammissibili. Verrà "
              "impostato un altro tipo di acciaio.") +
  RICORDATO;
const std::string BOX_SLU =
  std::string("[messaggio] esclamazione | ATTENZIONE! | Materiale non possibile per verifiche agli stati limite. Verrà impostato "
              "un altro tipo di acciaio.") +
  RICORDATO;

class Combo62 : public testing::Test {
 protected:
  void SetUp() override {
    PannelloPronto();
    registratore.eventi.clear();
  }
};

void Metodo(int m) { UtenteSceglie(InsDati, insDati.TipoVer[m], 1); }
void Scegli(Controllo& c, int p) { ASSERT_TRUE(UtenteSceglie(InsDati, c, p)); }

TEST_F(Combo62, FillFiltersByMethodAndRole) {
  EXPECT_EQ(insDati.Acc.voci, (Testi{"S 235 (FE 360)", "S 275 (FE 430)", "S 355 (FE 510)", "S 185"}));
  EXPECT_EQ(insDati.Cviti.voci, insDati.Acc.voci);
  Metodo(1);
  EXPECT_EQ(insDati.Acc.voci, (Testi{"S 235 (FE 360)", "S 275 (FE 430)", "S 355 (FE 510)", "S 450"}));
  Metodo(0);
  EXPECT_EQ(insDati.Acc.voci.back(), "S 185");
  materiali.AcciaiBase[2].Fyk40 = 0;  // columns need Fyk, anchors Ftk
  Metodo(1);
  EXPECT_EQ(insDati.Acc.voci, (Testi{"S 235 (FE 360)", "S 355 (FE 510)", "S 450"}));
  EXPECT_EQ(insDati.Cviti.voci.size(), 4u);
}

TEST_F(Combo62, FillWithoutANameTakesTheFirst) {
  nodo.MatAcc = {};
  RiempiComboMateriali(insDati.Acc, true, "PROFILI", "");
  EXPECT_EQ(insDati.Acc.scelta, 0);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");  // the fill fires the selection
}

TEST_F(Combo62, FillWithANameSelectsIt) {
  RiempiComboMateriali(insDati.Cviti, true, "BULLONI", "s 275 (fe 430)");  // case does not count
  EXPECT_EQ(insDati.Cviti.scelta, 1);
  EXPECT_EQ(nodo.MatTir.Nome, "S 275 (FE 430)");
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Combo62, FillWithAStrangeNameSaysSoAndTakesAnother) {
  RiempiComboMateriali(insDati.Acc, true, "PROFILI", "S 355");
  EXPECT_EQ(registratore.eventi, (Testi{BOX_TA}));
  EXPECT_EQ(insDati.Acc.scelta, 2);  // "S 355 (FE 510)" contains it: table entry 3 less 1
  EXPECT_EQ(nodo.MatAcc.Nome, "S 355 (FE 510)");
  RiempiComboMateriali(insDati.Acc, false, "PROFILI", "zzz");
  EXPECT_EQ(registratore.eventi.back(), BOX_SLU);
  EXPECT_EQ(insDati.Acc.scelta, 0);  // no overlap: 0
}

// The two lines are joined by a carriage return alone.
TEST_F(Combo62, TheTwoLinesOfTheBox) {
  static std::string testo;
  piattaforma.messaggio = [](const std::string& t, const std::string&, Icona) { testo = t; };
  RiempiComboMateriali(insDati.Acc, true, "PROFILI", "zzz");
  EXPECT_EQ(testo, "Materiale non possibile per verifiche alle tensioni ammissibili. Verrà impostato un altro tipo di acciaio.\r"
                   "Da questo momento in poi il materiale impostato sarà ricordato anche se si cambia il metodo di verifica.");
}

TEST_F(Combo62, AlternativeByMethodAndRole) {
  RiempiComboMateriali(insDati.Acc, false, "PROFILI", "S 450 N");
  EXPECT_EQ(insDati.Acc.scelta, 3);  // "S 450", entry 4, which has no allowable stress
  materiali.AcciaiBase[1].Nome = "S 355 A";
  materiali.AcciaiBase[2].Nome = "S 355 B";
  materiali.AcciaiBase[1].Ftk = 0;  // no anchor steel by limit states
  RiempiComboMateriali(insDati.Cviti, false, "BULLONI", "S 355");
  EXPECT_EQ(insDati.Cviti.scelta, 1);  // entry 2 less 1
  RiempiComboMateriali(insDati.Acc, false, "PROFILI", "S 355");
  EXPECT_EQ(insDati.Acc.scelta, 0);  // entry 1 serves a column
}

TEST_F(Combo62, AlternativeCountsTableEntriesNotItems) {
  materiali.AcciaiBase[1].SAmm = 0;  // the combo loses its first item
  RiempiComboMateriali(insDati.Acc, true, "PROFILI", "S 275");
  EXPECT_EQ(insDati.Acc.scelta, 1);  // table entry 2 less 1: the second item, which is entry 3
  EXPECT_EQ(insDati.Acc.voci[1], "S 355 (FE 510)");
  EXPECT_EQ(nodo.MatAcc.Nome, "S 275 (FE 430)");  // and the record of position + 1
}

TEST_F(Combo62, AlternativeBeyondTheComboSelectsNothing) {
  for (int n = 1; n <= 3; n++) materiali.AcciaiBase[n].SAmm = 0;
  materiali.AcciaiBase[5].Nome = "S 185 W";
  const std::string prima = nodo.MatAcc.Nome;
  RiempiComboMateriali(insDati.Acc, true, "PROFILI", "S 185");  // entry 5 less 1 = 4, one item
  EXPECT_EQ(insDati.Acc.voci, (Testi{"S 185 W"}));
  EXPECT_EQ(insDati.Acc.scelta, -1);
  EXPECT_EQ(nodo.MatAcc.Nome, prima);
}

TEST_F(Combo62, NoUsableGradeLeavesTheComboEmptyAndTheRecord) {
  for (int n = 1; n <= 5; n++) materiali.AcciaiBase[n].Fyk = materiali.AcciaiBase[n].Ftk = 0;
  Metodo(1);
  EXPECT_TRUE(insDati.Acc.voci.empty());
  EXPECT_EQ(insDati.Acc.scelta, -1);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Combo62, ACountBeyondTheTableIsSafe) {
  materiali.NumAcciai = 60;
  for (int n = 6; n <= 50; n++) materiali.AcciaiBase[n] = materiali.AcciaiBase[1];
  RiempiComboMateriali(insDati.Acc, true, "PROFILI", "");
  EXPECT_EQ(insDati.Acc.voci.size(), 49u);  // 50 entries without "S 450"
  materiali.NumAcciai = -3;
  RiempiComboMateriali(insDati.Acc, true, "PROFILI", "");
  EXPECT_TRUE(insDati.Acc.voci.empty());
}

TEST_F(Combo62, MemoriesOfBothMethods) {
  Scegli(insDati.Acc, 1);  // TA: S 275, anchors S 355
  Scegli(insDati.Cviti, 2);
  Metodo(1);  // first use: the same grades
  EXPECT_EQ(nodo.MatAcc.Nome, "S 275 (FE 430)");
  EXPECT_EQ(nodo.MatTir.Nome, "S 355 (FE 510)");
  Scegli(insDati.Acc, 0);  // SLU: S 235 and anchors S 275
  Scegli(insDati.Cviti, 1);
  Metodo(0);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 275 (FE 430)");
  EXPECT_EQ(nodo.MatTir.Nome, "S 355 (FE 510)");
  Metodo(1);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");
  EXPECT_EQ(nodo.MatTir.Nome, "S 275 (FE 430)");
  const char* attese[] = {"S 275 (FE 430)", "S 235 (FE 360)", "S 355 (FE 510)", "S 275 (FE 430)"};  // column TA, SLU, anchors TA, SLU
  const double fyk[] = {2750, 2350, 3550, 2750};                                                    // whole records are kept
  for (int i = 0; i < 4; i++) {
    EXPECT_EQ(materiali.MemoriaMateriali[i].Nome, attese[i]);
    EXPECT_EQ(materiali.MemoriaMateriali[i].Fyk, fyk[i]) << i;
  }
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Combo62, AGradeOfTheOtherMethodIsReplacedAndRemembered) {
  Metodo(1);
  materiali.MemoriaMateriali[0] = {};     // no memory of allowable stresses yet
  nodo.MatAcc = materiali.AcciaiBase[4];  // S 450: no allowable stress
  Metodo(0);
  EXPECT_EQ(registratore.eventi, (Testi{BOX_TA}));
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");  // nothing overlaps: position 0
  Metodo(1);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 450");  // and position 3 of the limit states is entry 4
  Metodo(0);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");  // remembered: no second box
  EXPECT_EQ(registratore.eventi.size(), 1u);
}

TEST_F(Combo62, SelectionTakesTheEntryOfItsPositionAlsoWhenFiltered) {
  materiali.AcciaiBase[1].SAmm = 0;
  RiempiComboMateriali(insDati.Acc, true, "PROFILI", "");
  Scegli(insDati.Acc, 1);  // shows "S 355 (FE 510)", table entry 2 is S 275
  EXPECT_EQ(insDati.Acc.voci[1], "S 355 (FE 510)");
  EXPECT_EQ(nodo.MatAcc.Nome, "S 275 (FE 430)");
  EXPECT_EQ(insDati.LabNormaProf.testo, "norma 2");
}

TEST_F(Combo62, SelectionEvents) {
  Scegli(insDati.Acc, 2);
  EXPECT_EQ(nodo.MatAcc.Fyk, 3550);
  EXPECT_EQ(insDati.LabNormaProf.testo, "norma 3");
  Scegli(insDati.Cviti, 1);
  EXPECT_EQ(nodo.MatTir.Ftk, 4300);
  EXPECT_EQ(insDati.LabNormaTir.testo, "norma 2");
  materiali.ClsBase[2].GammaC = 1.6;
  Scegli(insDati.ComboCalcestruzzo, 1);
  EXPECT_EQ(nodo.MatCls.Nome, "C25/30");
  EXPECT_EQ(nodo.MatCls.GammaC, 1.6);           // the whole record
  EXPECT_NEAR(nodo.EcCls, 312201.85778, 1e-5);  // 5700 sqrt(300 / 10) 10 daN/cm2
  Scegli(insDati.ComboCalcestruzzo, 0);
  EXPECT_DOUBLE_EQ(nodo.EcCls, 285000);  // 5700 * 5 * 10
}

TEST_F(Combo62, ANegativeClassIsAFaultAndKeepsTheModulus) {
  materiali.ClsBase[1].Rck = -1;
  const double prima = nodo.EcCls;
  Scegli(insDati.ComboCalcestruzzo, 0);
  EXPECT_EQ(nodo.EcCls, prima);
  EXPECT_EQ(registratore.eventi.size(), 1u);
}

// ---- the job's materials ----

TEST_F(Combo62, JobMaterialsComeFromTheTables) {
  materiali.MatBaseAcc1.Nome = "S 275 (FE 430)";  // the job's file writes upper case
  materiali.MatBaseAcc1.Fyk = 1;
  materiali.MatBaseCls.Nome = "C25/30";
  InsDati_CheckMatBase(0);
  EXPECT_EQ(nodo.MatAcc.Fyk, 2750);
  EXPECT_EQ(insDati.Acc.scelta, 1);
  EXPECT_EQ(nodo.MatCls.Rck, 300);
  EXPECT_NEAR(nodo.EcCls, 312201.85778, 1e-5);
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(propMateriali.FrameAcc.testo, "Acciaio profili e piastre - [NTC08 11.3.4.1] - Tipo S 275 (FE 430)");
}

// The labels that cannot be shown are the panel's own matter: neither the command nor a new joint ends in a fault.
TEST_F(Combo62, JobMaterialsWithoutAPartialFactor) {
  materiali.MatBaseAcc1.Nome = "S 275 (FE 430)";
  materiali.AcciaiBase[2].GammaM = 0;
  UtenteSceglie(InsDati, insDati.Acc, 0);
  materiali.MatDaBase = true;
  MostraAbilitato(insDati.CheckMatBase, true);
  EXPECT_TRUE(Scatena(InsDati, insDati.CheckMatBase, Evento::Cambio));
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(nodo.MatAcc.Nome, "S 275 (FE 430)");
  AzzeraFault();
  AzzeraNodo();
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(Combo62, JobSteelThatTheMethodRefuses) {
  materiali.MatBaseAcc1.Nome = "S 355";
  materiali.MatBaseCls.Nome = "C25/30";
  InsDati_CheckMatBase(0);
  EXPECT_EQ(registratore.eventi, (Testi{"[messaggio] esclamazione | ATTENZIONE! | Materiale-Base non valido per questo tipo di "
                                        "verifica. Verrà impostato un altro tipo di acciaio."}));
  EXPECT_EQ(nodo.MatAcc.Nome, "S 355 (FE 510)");
  EXPECT_EQ(insDati.Acc.scelta, 2);
  EXPECT_TRUE(propMateriali.FrameAcc.testo.ends_with(" - Tipo S 355 (FE 510)"));
}

// The job's steel is replaced by one that the method allows for columns.
TEST_F(Combo62, JobSteelReplacedByMethodAndRole) {
  Metodo(1);
  materiali.MatBaseCls.Nome = "C25/30";
  materiali.MatBaseAcc1.Nome = "S 450 N";
  InsDati_CheckMatBase(0);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 450");  // contained; allowable stresses do not have it
  EXPECT_EQ(insDati.Acc.scelta, 3);
  materiali.AcciaiBase[4].Fyk = 0;  // an anchor steel only
  InsDati_CheckMatBase(0);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");  // nothing overlaps: entry 1
}

TEST_F(Combo62, JobConcreteThatTheComboLacksKeepsTheCopy) {
  materiali.MatBaseAcc1.Nome = "S 235 (FE 360)";
  materiali.MatBaseCls.Nome = "C99";
  materiali.MatBaseCls.Rck = 990;
  const double ec = nodo.EcCls;
  const int scelta = insDati.ComboCalcestruzzo.scelta;
  InsDati_CheckMatBase(0);
  EXPECT_EQ(nodo.MatCls.Rck, 990);
  EXPECT_EQ(nodo.EcCls, ec);
  EXPECT_EQ(insDati.ComboCalcestruzzo.scelta, scelta);
  EXPECT_TRUE(registratore.eventi.empty());
}

// ---- names of a loaded node ----

class Nomi62 : public Combo62 {
 protected:
  void SetUp() override {
    Combo62::SetUp();
    materiali.UsaViti = materiali.UsaAccPiastre = materiali.SezChiuse = false;
    materiali.UsaTirafondi = materiali.UsaCls = true;
    nodo.MatAcc.Nome = nodo.MatPiastra.Nome = nodo.MatTir.Nome = "S 275 (FE 430)";
    nodo.MatCls.Nome = "C20/25";
    nodo.MatVit.Nome = "8.8";
  }
};

TEST_F(Nomi62, KnownNamesPassBlanksAside) {
  materiali.AcciaiBase[2].Nome = "S 275 (FE 430) ";  // the catalogue's steels are not trimmed
  ControllaMateriali();
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(nodo.MatAcc.Nome, "S 275 (FE 430)");
  nodo.MatAcc.Nome = "S 185";  // the last entry
  nodo.MatTir.Nome = " S 235 (FE 360) ";
  materiali.UsaViti = true;
  materiali.NumViti = 2;
  materiali.VitiBase[2].Nome = nodo.MatVit.Nome = "10.9";
  ControllaMateriali();
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(nodo.MatVit.Nome, "10.9");
  nodo.MatAcc.Nome = "s 275 (FE 430)";  // case counts
  ControllaMateriali();
  EXPECT_EQ(registratore.eventi.size(), 1u);
}

TEST_F(Nomi62, UnknownNamesAreToldAndReplacedByNameOnly) {
  nodo.MatAcc.Nome = " S 355 ";
  nodo.MatAcc.Fyk = 77;
  nodo.MatTir.Nome = "zz";
  nodo.MatCls.Nome = "C1";
  nodo.MatCls.Rck = 88;
  nodo.MatPiastra.Nome = "ignota";  // switched off
  nodo.MatVit.Nome = "ignota";
  ControllaMateriali();
  EXPECT_EQ(registratore.eventi,
            (Testi{"[messaggio] nessuna | NODO COLONNA - PLINTO | Attenzione: tipo acciaio non accettabile (S 355). Scegliere un acciaio "
                   "dalla tendina dei  materiali",
                   "[messaggio] nessuna | NODO COLONNA - PLINTO | Attenzione: tipo acciaio per tirafondi non accettabile (zz). Scegliere "
                   "un acciaio dalla tendina dei  materiali",
                   "[messaggio] nessuna | NODO COLONNA - PLINTO | Attenzione: classe calcestruzzo non accettabile (C1). Scegliere una "
                   "classe dalla tendina dei calcestruzzi"}));
  EXPECT_EQ(nodo.MatTir.Nome, "S 235 (FE 360)");  // no overlap: entry 1
  EXPECT_EQ(nodo.MatCls.Nome, "C20/25");
  EXPECT_EQ(nodo.MatCls.Rck, 88);
  EXPECT_EQ(nodo.MatAcc.Fyk, 77);
  EXPECT_EQ(nodo.MatPiastra.Nome, "ignota");
}

TEST_F(Nomi62, ReplacementOverlapsTheName) {
  nodo.MatAcc.Nome = "S 355";
  ControllaMateriali();
  EXPECT_EQ(nodo.MatAcc.Nome, "S 355 (FE 510)");
}

TEST_F(Nomi62, ReplacementFollowsTheMethod) {
  nodo.MatAcc.Nome = "S 185 bis";  // TA: "S 185" is usable and contained; SLU: it is not
  ControllaMateriali();
  EXPECT_EQ(nodo.MatAcc.Nome, "S 185");
  Metodo(1);
  nodo.MatAcc.Nome = "S 185 bis";
  nodo.MatTir.Nome = "S 275 (FE 430)";
  ControllaMateriali();
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");
}

TEST_F(Nomi62, ReplacementFollowsTheRole) {
  Metodo(1);
  materiali.AcciaiBase[1].Nome = "S 355 A";
  materiali.AcciaiBase[1].Ftk = 0;  // by limit states a column's steel only
  materiali.AcciaiBase[2].Nome = "S 355 B";
  materiali.AcciaiBase[2].Fyk = 0;  // an anchor's only
  nodo.MatAcc.Nome = nodo.MatTir.Nome = "S 355";
  ControllaMateriali();
  EXPECT_EQ(nodo.MatAcc.Nome, "S 355 A");
  EXPECT_EQ(nodo.MatTir.Nome, "S 355 B");
}

TEST_F(Nomi62, RowsThatAreSwitchedOffToday) {
  materiali.UsaViti = materiali.UsaAccPiastre = true;
  materiali.UsaTirafondi = materiali.UsaCls = false;
  nodo.MatPiastra.Nome = "p";
  nodo.MatVit.Nome = "v";
  nodo.MatVit.Ft = 99;
  nodo.MatTir.Nome = nodo.MatCls.Nome = "ignoti";
  ControllaMateriali();
  EXPECT_EQ(registratore.eventi,
            (Testi{"[messaggio] nessuna | NODO COLONNA - PLINTO | Attenzione: tipo acciaio per piastre non accettabile (p). Scegliere un "
                   "acciaio dalla tendina dei  materiali",
                   "[messaggio] nessuna | NODO COLONNA - PLINTO | Attenzione: classe viti non accettabile (v). Scegliere una classe dalla "
                   "tendina delle viti"}));
  EXPECT_EQ(nodo.MatPiastra.Nome, "S 235 (FE 360)");
  EXPECT_EQ(nodo.MatVit.Nome, "8.8");
  EXPECT_EQ(nodo.MatVit.Ft, 99);  // by name only
  EXPECT_EQ(nodo.MatTir.Nome, "ignoti");
}

TEST_F(Nomi62, ClosedSectionsHaveTheirOwnTable) {
  materiali.SezChiuse = true;
  materiali.NumAcciaiChiusi = 1;
  materiali.AcciaiChiusiBase[1] = materiali.AcciaiBase[3];
  materiali.AcciaiChiusiBase[1].Nome = "S 355 H";
  materiali.AcciaiChiusiBase[2].Nome = nodo.MatAcc.Nome;  // beyond the table's own count
  ControllaMateriali();                                   // S 275 is not in it
  EXPECT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 355 H");
  materiali.NumAcciaiChiusi = 2;  // its own count and its own order
  materiali.NumAcciai = 1;
  materiali.AcciaiChiusiBase[2] = materiali.AcciaiBase[1];
  materiali.AcciaiChiusiBase[2].Nome = "S 235 H";
  nodo.MatTir.Nome = "S 235 (FE 360)";
  nodo.MatAcc.Nome = "S 235 H";
  ControllaMateriali();
  EXPECT_EQ(registratore.eventi.size(), 1u);
  nodo.MatAcc.Nome = "S 235";
  ControllaMateriali();
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 H");  // entry 2 of its table, where the other holds S 235 first
}

}  // namespace
