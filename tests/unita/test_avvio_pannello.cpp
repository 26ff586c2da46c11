// The start in its order, and the reset of a joint, on copies of the sample suite. Entry 32 of its library is HEA 360:
// H 350, B 300, A 10, E 17.5, R 27; row 7 of its diameters M20.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "core/aritmetica.h"
#include "corredo/lavoro_prova.h"
#include "corredo/pannello_prova.h"
#include "corredo/registratore.h"
#include "corredo/suite_prova.h"
#include "drawing/disegno.h"
#include "drawing/formats/grb_stili.h"
#include "engine/Saldature.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/programma.h"

namespace {

using Testi = std::vector<std::string>;

// The start with its events kept.
bool Avvia(const std::string& radice) {
  MontaRegistratore();
  AzzeraProgramma();
  return CaricaInsDati("|diroot=" + radice + "|");
}
void Togli(const std::string& percorso) {
  std::error_code errore;
  EXPECT_TRUE(std::filesystem::remove(percorso, errore)) << percorso;
}
bool Finisce(const std::string& evento, const char* fine) { return evento.ends_with(fine); }

// A start that ends: false, its box last but one, [fine] last, no panel.
void AttendiFine(const std::string& radice, const std::string& messaggio) {
  EXPECT_FALSE(Avvia(radice));
  ASSERT_GE(registratore.eventi.size(), 2u);
  EXPECT_EQ(registratore.eventi[registratore.eventi.size() - 2], messaggio);
  EXPECT_EQ(registratore.eventi.back(), "[fine]");
  EXPECT_TRUE(registratore.finito);
  EXPECT_TRUE(registratore.pannelli.empty());
}

// ---- the start ----

TEST(AvvioPannello, ASoundSuiteStartsWithoutABox) {
  const std::string radice = PreparaSuite("avvio_sano");
  ASSERT_TRUE(Avvia(radice));
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(registratore.pannelli, (Testi{"InsDati"}));
  EXPECT_TRUE(insDati.aperto);
  EXPECT_EQ(insDati.titolo, "NODO COLONNA - PLINTO - Lavoro: Nuovo");
  EXPECT_EQ(nodo.NomeNodo, "Nuovo");
  EXPECT_EQ(insDati.CartellaDialogo, suite.DirLavoro);
  EXPECT_EQ(insDati.TitoloCerca, "NODO COLONNA - PLINTO - IMPORTA SOLLECITAZIONI DA 3D - Cerca nodi");
  EXPECT_EQ(insDati.SSTab.coloreSfondo, 0xFFFFD2);
  EXPECT_FALSE(FaultAritmetico());
}

TEST(AvvioPannello, TablesFillTheLists) {
  ASSERT_TRUE(Avvia(PreparaSuite("avvio_liste")));
  ASSERT_EQ(static_cast<int>(insDati.TraveP.voci.size()), suite.NumProfili);
  EXPECT_EQ(insDati.TraveP.voci[0], "IPE80");  // without the padding that the record keeps
  EXPECT_EQ(suite.ProfiliLib[1].Nome, "IPE80             ");
  EXPECT_EQ(suite.ProfiliLib[1].H, 80);             // mm: length factor 1
  EXPECT_DOUBLE_EQ(suite.ProfiliLib[1].Area, 764);  // 7.64 cm2 in mm2: area factor 10
  EXPECT_FALSE(insDati.Acc.voci.empty());
  EXPECT_EQ(insDati.Acc.voci[0], "S 235 (FE 360)");
  EXPECT_FALSE(insDati.Cviti.voci.empty());
  EXPECT_EQ(static_cast<int>(insDati.ComboCalcestruzzo.voci.size()), materiali.NumCls);
  EXPECT_EQ(insDati.ComboEsposizione.voci,
            (Testi{"Esposto a fenomeni corrosivi", "Non esposto a fenomeni corrosivi", "Resistente alla corrosione"}));
  EXPECT_TRUE(insDati.CheckMatBase.abilitato);
  EXPECT_FALSE(materiali.UsaViti);
  EXPECT_TRUE(materiali.UsaTirafondi);
  EXPECT_TRUE(materiali.UsaCls);
  EXPECT_FALSE(materiali.UsaAccPiastre);
  EXPECT_TRUE(Finisce(materiali.FileMatBase, "\\custom\\MaterialiNTC08.tx1"));
}

// The method of a new run is allowable stresses: only grades that have both of them (first two numbers of their line) are offered, for
// either role.
TEST(AvvioPannello, TheSteelsOfferedAreThoseOfAllowableStresses) {
  const std::string radice = PreparaSuite("avvio_acciai");
  ScriviByte(
    radice + "/custom/MaterialiNTC08.tx1",
    "ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE\r\n4\r\nuno\r\n\r\n1600 1400 2350 3600 2150 3600 1 1\r\ndue\r\n\r\n0 0 2350 3600 2150 3600 1 1\r\n"
    "tre\r\n\r\n1600 1400 0 0 0 0 1 1\r\nquattro\r\n\r\n1600 0 2350 3600 2150 3600 1 1\r\n");
  Avvia(radice);
  EXPECT_EQ(insDati.Acc.voci, (Testi{"uno", "tre"}));
  EXPECT_EQ(insDati.Cviti.voci, (Testi{"uno", "tre"}));
}

// The table of the concretes ends at entry 50, whatever the count.
TEST(AvvioPannello, FiftyConcretesAreOffered) {
  const std::string radice = PreparaSuite("avvio_classi");
  std::string catalogo = "CALCESTRUZZI\r\n52\r\n";
  for (int n = 1; n <= 52; n++) catalogo += "C" + std::to_string(n) + "\r\n300 15E-1\r\n";
  ScriviByte(radice + "/custom/MaterialiNTC08.tx1", catalogo);
  Avvia(radice);
  EXPECT_EQ(materiali.NumCls, 52);
  ASSERT_EQ(insDati.ComboCalcestruzzo.voci.size(), 50u);
  EXPECT_EQ(insDati.ComboCalcestruzzo.voci[0], "C1");
  EXPECT_EQ(insDati.ComboCalcestruzzo.voci[49], "C50");
}

TEST(AvvioPannello, TypologyPictures) {
  ASSERT_TRUE(Avvia(PreparaSuite("avvio_figure")));
  const double x[2][4] = {{301, 1139, 301, 1139}, {685, 1511, 685, 1511}};
  const double y[2][4] = {{1139, 1139, 301, 301}, {361, 361, 1187, 1187}};
  for (int p = 0; p < 3; p++) {
    const Tela& t = *insDati.Pic_Tipo[p].tela;
    ASSERT_EQ(t.tratti.size(), 4u);
    for (std::size_t k = 0; k < 4; k++) {
      EXPECT_EQ(t.tratti[k].forma, Tratto::Forma::Arco);
      EXPECT_EQ(t.tratti[k].raggio, 30);
      EXPECT_EQ(t.tratti[k].a1, t.tratti[k].a2);  // full circle
      EXPECT_EQ(t.tratti[k].xc, x[p == 2][k]);
      EXPECT_EQ(t.tratti[k].yc, y[p == 2][k]);
    }
  }
}

TEST(AvvioPannello, PathsThatFailEndTheProcess) {
  MontaRegistratore();
  AzzeraProgramma();
  EXPECT_FALSE(CaricaInsDati(""));
  EXPECT_EQ(registratore.eventi, (Testi{"[messaggio] critica | ERRORE | Avvio del programma: argomento non presente", "[fine]"}));
}

TEST(AvvioPannello, NoJobParametersEndTheProcessUnguarded) {
  const std::string radice = PreparaSuite("avvio_parametri");
  Togli(CartellaLavoro(radice) + "parametrilavoro");
  AttendiFine(radice, "[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: il comando non può continuare.");
}

TEST(AvvioPannello, FontMissing) {
  const std::string radice = PreparaSuite("avvio_font");
  Togli(radice + "/progra/font.001");
  AttendiFine(radice, "[messaggio] nessuna | ERRORE | Errore: file font.001 errato o mancante.");
}

TEST(AvvioPannello, LibraryMissingOrWithoutEndLine) {
  const std::string radice = PreparaSuite("avvio_profili");
  ScriviByte(radice + "/custom/prof_pro", "HEA 100 21.24 349 4.06 72.76\r\n");
  AttendiFine(radice, "[messaggio] nessuna | ERRORE | Profilario errato o mancante");
  Togli(radice + "/custom/prof_pro");
  AttendiFine(radice, "[messaggio] nessuna | ERRORE | Profilario errato o mancante");
}

TEST(AvvioPannello, CatalogueMissing) {
  const std::string radice = PreparaSuite("avvio_catalogo");
  Togli(radice + "/custom/MaterialiNTC08.tx1");
  EXPECT_FALSE(Avvia(radice));
  EXPECT_EQ(registratore.eventi,
            (Testi{"[messaggio] critica | ERRORE | File materiali (" + materiali.FileMatBase + ") non trovato o non valido", "[fine]"}));
}

TEST(AvvioPannello, JobMaterialsMissingGoOn) {
  const std::string radice = PreparaSuite("avvio_matbase");
  Togli(CartellaLavoro(radice) + "propmateriali.tx1");
  EXPECT_TRUE(Avvia(radice));
  EXPECT_EQ(registratore.eventi, (Testi{"[messaggio] esclamazione | NODO COLONNA - PLINTO | Materiali Base non impostati, specificare un "
                                        "materiale nell'apposita sezione"}));
  EXPECT_FALSE(insDati.CheckMatBase.abilitato);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");  // first steel, third concrete
  EXPECT_EQ(nodo.MatCls.Nome, materiali.ClsBase[3].Nome);
  EXPECT_EQ(insDati.ComboCalcestruzzo.scelta, 2);
}

TEST(AvvioPannello, ABadBracketInTheJobMaterialsEndsTheProcess) {
  const std::string radice = PreparaSuite("avvio_chiave");
  ScriviByte(CartellaLavoro(radice) + "propmateriali.tx1", "x [ReleaseQuestoFile=3]\r\n1 [Acc_Carp_Coefficiente_GammaM 9]\r\n");
  AttendiFine(radice, "[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: il comando non può continuare.");
}

TEST(AvvioPannello, OptionsMissing) {
  const std::string radice = PreparaSuite("avvio_opzioni");
  Togli(radice + "/custom/OpzioniNodi1-5.txt");
  EXPECT_FALSE(Avvia(radice));
  EXPECT_EQ(
    registratore.eventi,
    (Testi{"[messaggio] nessuna | ERRORE | Errore: file " + suite.DirCustom + "\\OpzioniNodi1-5.txt errato o mancante.", "[fine]"}));
}

TEST(AvvioPannello, BoxesComeInTheOrderOfTheStart) {
  const std::string radice = PreparaSuite("avvio_ordine");
  Togli(radice + "/custom/cad2dmodello.grb");
  Togli(CartellaLavoro(radice) + "propmateriali.tx1");
  ScriviByte(radice + "/custom/QbDiam.txt", "M8|");
  Togli(radice + "/custom/OpzioniNodi1-5.txt");
  EXPECT_FALSE(Avvia(radice));
  ASSERT_EQ(registratore.eventi.size(), 5u);
  EXPECT_NE(registratore.eventi[0].find("cad2dmodello.grb"), std::string::npos);  // template, materials, diameters, options
  EXPECT_NE(registratore.eventi[1].find("Materiali Base"), std::string::npos);
  EXPECT_NE(registratore.eventi[2].find("QbDiam.txt"), std::string::npos);
  EXPECT_NE(registratore.eventi[3].find("OpzioniNodi1-5.txt"), std::string::npos);
  EXPECT_EQ(registratore.eventi[4], "[fine]");
}

// A missing template stops nothing, so that its box tells its place: behind the parameters, the font and the library, before the
// catalogue.
TEST(AvvioPannello, TheTemplateComesBetweenLibraryAndCatalogue) {
  const std::string radice = PreparaSuite("avvio_modello"), altrove = PreparaSuite("avvio_modello_intera");
  Togli(radice + "/custom/cad2dmodello.grb");
  for (const char* file : {"/lavori/NODI01/parametrilavoro", "/progra/font.001", "/custom/prof_pro"}) {
    Togli(radice + file);
    EXPECT_FALSE(Avvia(radice));
    ASSERT_EQ(registratore.eventi.size(), 2u) << file;  // the file's own box, the end
    EXPECT_EQ(registratore.eventi[0].find("cad2dmodello.grb"), std::string::npos) << file;
    ScriviByte(radice + file, LeggiByte(altrove + file));
  }
  Togli(radice + "/custom/MaterialiNTC08.tx1");
  EXPECT_FALSE(Avvia(radice));
  ASSERT_EQ(registratore.eventi.size(), 3u);
  EXPECT_NE(registratore.eventi[0].find("cad2dmodello.grb"), std::string::npos);
  EXPECT_NE(registratore.eventi[1].find("MaterialiNTC08.tx1"), std::string::npos);
}

// Everything is missing at first; each file put back lets the start come one step further.
TEST(AvvioPannello, TheFirstFailureInTheOrderOfTheStartEndsIt) {
  const std::string radice = PreparaSuite("avvio_tutto"), altrove = PreparaSuite("avvio_intera");
  // clang-format off
  const struct { const char* file; const char* box; } passi_[] = {
      {"/impostazioni/dirlav", "dirlav errato o mancante"},
      {"/impostazioni/lavoro", "lavoro errato o mancante"},
      {"/lavori/NODI01/parametrilavoro", "Errore aritmetico: il comando non può continuare."},
      {"/progra/font.001", "Errore: file font.001 errato o mancante."},
      {"/custom/prof_pro", "Profilario errato o mancante"},
      {"/custom/MaterialiNTC08.tx1", "non trovato o non valido"},
      {"/custom/OpzioniNodi1-5.txt", "OpzioniNodi1-5.txt errato o mancante."},
  };
  // clang-format on
  const std::string dirlav = LeggiByte(radice + "/impostazioni/dirlav");
  for (const auto& p : passi_) Togli(radice + p.file);
  for (const auto& p : passi_) {
    EXPECT_FALSE(Avvia(radice));
    ASSERT_EQ(registratore.eventi.size(), 2u) << p.file;
    EXPECT_TRUE(Finisce(registratore.eventi[0], p.box)) << registratore.eventi[0];
    ScriviByte(radice + p.file, std::string(p.file).ends_with("dirlav") ? dirlav : LeggiByte(altrove + p.file));
  }
  EXPECT_TRUE(Avvia(radice));
}

// The parameters are read before the caption is written, the caption before the font is read.
TEST(AvvioPannello, TheCaptionFollowsTheUnits) {
  const std::string radice = PreparaSuite("avvio_titolo");
  Togli(radice + "/progra/font.001");
  EXPECT_FALSE(Avvia(radice));
  EXPECT_EQ(insDati.titolo, "NODO COLONNA - PLINTO - Lavoro: Nuovo");
  EXPECT_EQ(insDati.CartellaDialogo, suite.DirLavoro);
  Togli(CartellaLavoro(radice) + "parametrilavoro");
  EXPECT_FALSE(Avvia(radice));
  EXPECT_EQ(insDati.titolo, "");
}

TEST(AvvioPannello, NoDiameterFileIsNoFailure) {
  const std::string radice = PreparaSuite("avvio_diametri");
  Togli(radice + "/custom/QbDiam.txt");
  EXPECT_TRUE(Avvia(radice));
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(nodo.TfFi, 20);
}

TEST(AvvioPannello, AShortLibraryLeavesTheSectionCleared) {
  const std::string radice = PreparaSuite("avvio_corto");
  ScriviByte(radice + "/custom/prof_pro",
             "HEA 340 133.47 27690 14.4 1678 7436 7.46 495.7 1850 755.9 127.7 1.79e+06 104.8 0 I 0 0 330 300 9.5 16.5 27\r\n*END*\r\n");
  EXPECT_TRUE(Avvia(radice));
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(suite.NumProfili, 1);
  EXPECT_EQ(insDati.TraveP.scelta, -1);
  EXPECT_EQ(nodo.Sezione.H, 0);
  EXPECT_EQ(nodo.LatoZ, 200);  // 2 * 100 + 0
}

// ---- the reset ----

TEST(Azzeramento, DefaultsOfANewJoint) {
  ASSERT_TRUE(AvviaSuite(PreparaSuite("reset_valori")));
  EXPECT_EQ(nodo.Sezione.Nome, "HEA360            ");
  EXPECT_EQ(nodo.Sezione.R, 27);
  EXPECT_EQ(insDati.TraveP.scelta, 31);
  const char* geomp[] = {"350", "300", "10", "17.5", "27"};
  for (int i = 0; i < 5; i++) EXPECT_EQ(insDati.geomp[i].testo, geomp[i]);
  EXPECT_EQ(nodo.LatoZ, 500);  // B + 200
  EXPECT_EQ(nodo.LatoY, 550);  // H + 200
  EXPECT_EQ(nodo.SpessPiastra, 10);
  EXPECT_EQ(nodo.TipoNodo, 2);
  EXPECT_EQ(nodo.HNerv, 150);
  EXPECT_EQ(nodo.SpNerv, 6);
  EXPECT_EQ(nodo.SaldInt, 0);
  EXPECT_EQ(nodo.Gola, 7);
  EXPECT_DOUBLE_EQ(nodo.GolaCalc, 7 / std::sqrt(2.0));
  EXPECT_EQ(nodo.NTir, 4);
  EXPECT_EQ(lavoro.NumSaldature, 0);
  EXPECT_EQ(nodo.TipoTirafondo, 0);
  EXPECT_EQ(nodo.TfDiamIdx, 7);
  EXPECT_EQ(nodo.TfFi, 20);
  EXPECT_EQ(nodo.TfLFt, 120);
  EXPECT_EQ(nodo.TfL, 500);
  EXPECT_EQ(nodo.TfR, 70);
  EXPECT_EQ(nodo.TfL1, 450);
  EXPECT_EQ(nodo.TfLF, 10);
  EXPECT_EQ(nodo.TfDForo, 100);
  EXPECT_EQ(nodo.TfHMalta, 50);
  EXPECT_EQ(nodo.TfLFil, 0);
  EXPECT_EQ(nodo.TfDistBordo, 200);
  EXPECT_EQ(nodo.NumSoll, 0);
  EXPECT_EQ(nodo.NumNodiStr, 0);
  EXPECT_EQ(nodo.TipoVer, 0);
  EXPECT_EQ(nodo.OptionNTir, 0);
  EXPECT_EQ(nodo.Esposizione, 0);
}

TEST(Azzeramento, FieldsShowTheDefaults) {
  ASSERT_TRUE(AvviaSuite(PreparaSuite("reset_campi")));
  const char* lati[] = {"500", "550", "100", "100", "10"};
  for (int i = 0; i < 5; i++) EXPECT_EQ(insDati.LatoTxt[i].testo, lati[i]);
  for (int i = 1; i <= 4; i++) EXPECT_EQ(insDati.DTf[i].testo, "50");  // (500 - 300) / 4, (550 - 350) / 4
  EXPECT_EQ(insDati.HFazzTxt[0].testo, "150");
  EXPECT_EQ(insDati.HFazzTxt[1].testo, "6");
  EXPECT_EQ(insDati.GolaTxt.testo, "7");
  EXPECT_EQ(VoceScelta(insDati.GeoP[0]), 1);
  EXPECT_EQ(VoceScelta(insDati.Op_Tip[0]), 1);
  EXPECT_EQ(VoceScelta(insDati.OptionNTir[0]), 0);
  EXPECT_EQ(VoceScelta(insDati.TipoVer[0]), 0);
  EXPECT_EQ(insDati.ComboEsposizione.scelta, 0);
  EXPECT_EQ(insDati.SSTab.scelta, 0);
  const char* tirafondo[] = {"120", "500", "70", "450", "10", "20"};
  for (int i = 0; i < 6; i++) EXPECT_EQ(insDati.TFLab[i].testo, tirafondo[i]);
  for (const Controllo& c : insDati.Lsa) EXPECT_FALSE(c.visibile);
  EXPECT_EQ(nodo.TfZ[4], 450);
  EXPECT_EQ(nodo.TfY[4], 500);
}

TEST(Azzeramento, JobMaterialsAreApplied) {
  ASSERT_TRUE(AvviaSuite(PreparaSuite("reset_matbase")));
  EXPECT_TRUE(materiali.MatDaBase);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 275 (FE 430)");
  EXPECT_EQ(nodo.MatAcc.SAmm, 1900);  // the record is the catalogue's
  EXPECT_EQ(nodo.MatCls.Nome, "C25/30");
  EXPECT_NEAR(nodo.EcCls, 312201.85778, 1e-5);
  EXPECT_EQ(nodo.MatTir.Nome, "S 235 (FE 360)");
  EXPECT_EQ(insDati.Cviti.scelta, 0);
  EXPECT_EQ(nodo.MatVit.Nome, materiali.VitiBase[1].Nome);
  EXPECT_FALSE(nodo.MatVit.Nome.empty());
}

class AzzeramentoInMemoria : public testing::Test {
 protected:
  void SetUp() override { PannelloPronto(); }
};

TEST_F(AzzeramentoInMemoria, TablesThatAreTooShortGiveTheEmptyRecord) {
  materiali.NumAcciai = materiali.NumCls = materiali.NumViti = 0;
  materiali.AcciaiBase[1] = {};
  materiali.VitiBase[1] = {};
  materiali.ClsBase[3] = {};
  for (Controllo* c : {&insDati.Acc, &insDati.Cviti, &insDati.ComboCalcestruzzo}) MostraVoci(*c, {});
  registratore.eventi.clear();
  AzzeraNodo();
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_TRUE(nodo.MatAcc.Nome.empty());
  EXPECT_TRUE(nodo.MatVit.Nome.empty());
  EXPECT_EQ(insDati.ComboCalcestruzzo.scelta, -1);
}

TEST_F(AzzeramentoInMemoria, ResetBringsBackWhatWasChangedButNotTheMethod) {
  UtenteSceglie(InsDati, insDati.TipoVer[1], 1);
  UtenteSceglie(InsDati, insDati.OptionNTir[1], 1);
  UtenteSceglie(InsDati, insDati.Op_Tip[0], 1);
  UtenteSceglie(InsDati, insDati.TraveP, 2);
  UtenteSceglie(InsDati, insDati.ChSI, 1);
  UtenteSceglie(InsDati, insDati.SSTab, 4);
  UtenteSceglie(InsDati, insDati.GeoP[0], 1);
  nodo.TfLFil = 33;
  lavoro.NumSaldature = 8;
  disegno.DestDis = GENDIS;
  AzzeraNodo();
  EXPECT_EQ(nodo.TipoVer, 1);  // not part of the reset
  EXPECT_EQ(nodo.SaldInt, 1);
  EXPECT_EQ(nodo.TfLFil, 33);
  EXPECT_EQ(nodo.TipoNodo, 2);
  EXPECT_EQ(nodo.Sezione.H, 300);
  EXPECT_EQ(nodo.LatoZ, 480);
  EXPECT_EQ(VoceScelta(insDati.GeoP[0]), 1);
  EXPECT_EQ(insDati.SSTab.scelta, 0);
  EXPECT_EQ(nodo.NTir, 4);
  EXPECT_EQ(lavoro.NumSaldature, 0);
  EXPECT_TRUE(disegno.DestDis.empty());
}

// The anchor's form and measures are set whatever they were; the diameter is the one that row 7 of the table holds.
TEST_F(AzzeramentoInMemoria, ResetBringsBackTheAnchor) {
  nodo.TipoTirafondo = 1;
  nodo.TfDiamIdx = 3;
  nodo.TfFi = nodo.TfR = nodo.TfL1 = nodo.TfL = nodo.TfLFt = nodo.TfLF = nodo.TfDForo = nodo.TfHMalta = nodo.TfDistBordo = 1;
  suite.DiamVal[6] = 21;
  AzzeraNodo();
  EXPECT_EQ(nodo.TipoTirafondo, 0);
  EXPECT_EQ(nodo.TfDiamIdx, 7);
  EXPECT_EQ(nodo.TfFi, 21);
  EXPECT_EQ(nodo.TfDForo, 100);
  EXPECT_EQ(nodo.TfHMalta, 50);
  EXPECT_EQ(nodo.TfDistBordo, 200);
  const char* etichette[] = {"120", "500", "70", "450", "10", "21"};  // TfLFt, TfL, TfR, TfL1, TfLF, TfFi
  for (int i = 0; i < 6; i++) EXPECT_EQ(insDati.TFLab[i].testo, etichette[i]);
}

TEST_F(AzzeramentoInMemoria, ResetShowsTheFirstSteelAndTheThirdConcrete) {
  UtenteSceglie(InsDati, insDati.Acc, 1);
  UtenteSceglie(InsDati, insDati.Cviti, 2);
  UtenteSceglie(InsDati, insDati.ComboCalcestruzzo, 0);
  UtenteSceglie(InsDati, insDati.ComboEsposizione, 2);
  AzzeraNodo();
  EXPECT_EQ(insDati.Acc.scelta, 0);
  EXPECT_EQ(insDati.Cviti.scelta, 0);
  EXPECT_EQ(nodo.MatTir.Nome, "S 235 (FE 360)");
  EXPECT_EQ(insDati.LabNormaTir.testo, "norma 1");
  EXPECT_EQ(insDati.ComboCalcestruzzo.scelta, 2);
  EXPECT_EQ(nodo.MatCls.Rck, 350);
  EXPECT_EQ(nodo.Esposizione, 0);
}

TEST_F(AzzeramentoInMemoria, JobSteelThatIsRefusedTellsSoInTheReset) {
  materiali.MatDaBase = true;
  materiali.MatBaseAcc1.Nome = "ALTRO";
  materiali.MatBaseCls.Nome = "C25/30";
  registratore.eventi.clear();
  AzzeraNodo();
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_NE(registratore.eventi[0].find("Materiale-Base non valido"), std::string::npos);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");
}

TEST_F(AzzeramentoInMemoria, TheProgramGoesBackToItsStart) {
  UtenteSceglie(InsDati, insDati.TipoVer[1], 1);
  Scatena(InsDati, insDati.Singolo, Evento::Cambio);
  CostruisciSaldature(lavoro);  // as a verification or a drawing begins
  lavoro.righe.resize(3);
  verifica.AreaTf = 245;
  ris.SMaxCls[3] = 5;
  ris.Saldature[50].TauPa[200][3] = 1;
  stiliGrb.NumStili = 4;
  disegno.NumLinee = 7;
  passi.fallito = true;
  SegnalaFault();
  AzzeraProgramma();
  EXPECT_EQ(nodo.NumSoll, 0);
  EXPECT_EQ(nodo.SollNome[1], "");
  EXPECT_EQ(nodo.TipoVer, 0);
  EXPECT_EQ(VoceScelta(insDati.TipoVer[0]), 0);
  EXPECT_EQ(ris.SMaxCls[3], 0);
  EXPECT_EQ(ris.Saldature[50].TauPa[200][3], 0);
  EXPECT_EQ(ris.Saldature[1].Nome, "");
  EXPECT_EQ(lavoro.NumSaldature, 0);
  EXPECT_TRUE(lavoro.righe.empty());
  EXPECT_EQ(verifica.AreaTf, 0);
  EXPECT_TRUE(lavoro.nodo == &nodo && lavoro.suite == &suite);
  EXPECT_EQ(stiliGrb.NumStili, 0);
  EXPECT_EQ(disegno.NumLinee, 0);
  EXPECT_EQ(suite.NumProfili, 0);
  EXPECT_EQ(materiali.NumAcciai, 0);
  EXPECT_TRUE(materiali.MemoriaMateriali[1].Nome.empty());
  EXPECT_FALSE(insDati.aperto);
  EXPECT_FALSE(passi.fallito);
  EXPECT_FALSE(FaultAritmetico());
  EXPECT_NE(TrovaControllo(InsDati, "Verifica", SENZA_INDICE)->riga, nullptr);
}

TEST_F(AzzeramentoInMemoria, ThePanelAsCreated) {
  AzzeraProgramma();
  EXPECT_EQ(VoceScelta(insDati.GeoP[0]), 0);  // sides, until the reset takes margins
  EXPECT_FALSE(insDati.LatoTxt[2].abilitato);
  EXPECT_TRUE(insDati.LatoTxt[0].abilitato);
  EXPECT_EQ(VoceScelta(insDati.Op_Tip[0]), -1);
  EXPECT_EQ(insDati.ScrollSa.scelta, 3);
  EXPECT_FALSE(insDati.ScrollSa.abilitato);
  EXPECT_FALSE(insDati.EsportaSollButt.abilitato);
  EXPECT_FALSE(insDati.Help.visibile);
}

}  // namespace
