// The main panel's fields and texts against the model.
#include "core/aritmetica.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "corredo/banco_insdati.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

using Testi = std::vector<std::string>;

void AttendiTirafondi(const std::vector<double>& z, const std::vector<double>& y) {
  ASSERT_EQ(nodo.NTir, static_cast<int>(z.size()));
  for (std::size_t i = 0; i < z.size(); i++) {
    EXPECT_EQ(nodo.TfZ[i + 1], z[i]) << "TfZ " << i + 1;
    EXPECT_EQ(nodo.TfY[i + 1], y[i]) << "TfY " << i + 1;
  }
}

TEST_F(Pannello71, TabsAndFrames) {
  EXPECT_EQ(insDati.SSTab.voci,
            (Testi{"Profilo", "Nervature", "Piastra", "Tirafondi e Saldature", "Materiali", "Sollecitazioni", "Calcolo"}));
  const std::pair<const char*, const char*> dove[] = {{"Colonna", "SSTab/0"},   {"Tipi", "SSTab/1"},  {"Piastra", "SSTab/2"},
                                                      {"Tirafondi", "SSTab/3"}, {"Sald", "SSTab/3"},  {"Materiali", "SSTab/4"},
                                                      {"Soll", "SSTab/5"},      {"Frame1", "SSTab/6"}};
  for (const auto& [cornice, scheda] : dove) EXPECT_STREQ(TrovaRiga(InsDati, cornice)->cornice, scheda);
  for (const char* n : {"Colonna", "Tipi", "Piastra"}) EXPECT_EQ(C(n).testo, "[mm]");
  EXPECT_EQ(insDati.Tirafondi.testo, "Tirafondi [mm]");
  EXPECT_EQ(insDati.Sald.testo, "Saldature [mm]");
  EXPECT_EQ(insDati.Frame1.testo, "Tipo di verifica");
}

TEST_F(Pannello71, CaptionsOfChoicesAndCommands) {
  // clang-format off
  const struct { const char* nome; int i; const char* testo; } attesi[] = {
      {"TipoVer", 0, "Tensioni ammissibili (CNR 10011/88)"}, {"TipoVer", 1, "Stati limite (NTC 2008)"},
      {"GeoP", 0, " Lati"}, {"GeoP", 1, " Margini"}, {"Op_Tip", 0, " Tipo 1"}, {"Op_Tip", 1, " Tipo 2"},
      {"OptionNTir", 0, "4 Tirafondi"}, {"OptionNTir", 1, "8 Tirafondi"}, {"OptionNTir", 2, "6 Tirafondi Vert."},
      {"OptionNTir", 3, "6 Tirafondi Orizz."}, {"Label8", 0, "Altezza nervature"}, {"Label8", 1, "Spessore nervature"},
      {"LSi", -1, "Saldature interne"}, {"Label7", -1, "Lato saldatura"},
      {"geom", 0, "h"}, {"geom", 1, "b"}, {"geom", 2, "a"}, {"geom", 3, "e"}, {"geom", 4, "r"},
      {"LDTf", 1, "Dz1"}, {"LDTf", 2, "Dz2"}, {"LDTf", 3, "Dy1"}, {"LDTf", 4, "Dy2"},
      {"Label3", 0, "LFt"}, {"Label3", 1, "L"}, {"Label3", 2, "R"}, {"Label3", 3, "L1"}, {"Label3", 4, "LF"}, {"Label3", 5, "Fi"},
      {"Gen_Dis", -1, "Salva Disegno"}, {"ApriVis", -1, "Visualizza Disegno"}, {"Opz", -1, ""}, {"DimTf", -1, "Dim. tirafondi"},
      {"PropMatButton", -1, "Proprietà"}, {"Command1", -1, "Importa nodi 3D"}, {"ImpS3D", -1, "Imp. 3D"},
      {"Verifica", -1, "Verifica"}, {"Sav_Nodo", -1, "Salva Nodo"}, {"Car_Nodo", -1, "Carica Nodo"},
      {"CheckMatBase", -1, "Imposta da Materiali-Base"}, {"LegendaButt", -1, "<"}, {"Chiudi", -1, "Chiudi"},
      {"Versione", -1, "Versione NTC 2008"}};
  // clang-format on
  for (const auto& a : attesi) EXPECT_EQ(C(a.nome, a.i).testo, a.testo) << a.nome << a.i;
}

TEST_F(Pannello71, PlateFieldsStoreAtOnce) {
  Scrivi("LatoTxt", 0, "600");
  Scrivi("LatoTxt", 1, "700");
  EXPECT_EQ(nodo.LatoZ, 600);
  EXPECT_EQ(nodo.LatoY, 700);
  Scrivi("LatoTxt", 2, "75.5");
  Scrivi("LatoTxt", 3, "20");
  EXPECT_EQ(nodo.LatoZ, 2 * 75.5 + 280);
  EXPECT_EQ(nodo.LatoY, 2 * 20 + 300);
  Scrivi("LatoTxt", 4, "25");
  EXPECT_EQ(nodo.SpessPiastra, 25);
}

TEST_F(Pannello71, NumericHeadOfTheText) {
  Scrivi("LatoTxt", 4, "12mm");
  EXPECT_EQ(nodo.SpessPiastra, 12);
  Scrivi("LatoTxt", 4, "12,5");  // the point is the mark
  EXPECT_EQ(nodo.SpessPiastra, 12);
  for (const char* vuoto : {"", "abc", "nan", "inf"}) {
    nodo.SpessPiastra = 9;
    Scrivi("LatoTxt", 4, vuoto);
    EXPECT_EQ(nodo.SpessPiastra, 0) << vuoto;
  }
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Pannello71, EmptyGeometryIsZero) {
  Scrivi("LatoTxt", 0, "");
  Scrivi("LatoTxt", 1, "");
  EXPECT_EQ(nodo.LatoZ, 0);
  EXPECT_EQ(nodo.LatoY, 0);
  Scrivi("LatoTxt", 2, "");
  Scrivi("LatoTxt", 3, "");
  EXPECT_EQ(nodo.LatoZ, 280);  // a margin of 0: the section's sides
  EXPECT_EQ(nodo.LatoY, 300);
  for (int i = 1; i <= 4; i++) Scrivi("DTf", i, "");
  AttendiTirafondi({0, 280, 0, 280}, {0, 0, 300, 300});
  for (int i = 0; i < 2; i++) Scrivi("HFazzTxt", i, "");
  Scrivi("GolaTxt", SENZA_INDICE, "");
  for (const double v : {nodo.HNerv, nodo.SpNerv, nodo.Gola, nodo.GolaCalc}) EXPECT_EQ(v, 0);
}

TEST_F(Pannello71, AnOverflowIsAFailedStepAndKeepsTheValue) {
  Scrivi("LatoTxt", 4, "1e999");
  EXPECT_TRUE(passi.fallito);
  EXPECT_EQ(nodo.SpessPiastra, 10);
  Scrivi("HFazzTxt", 0, "1e999");
  EXPECT_EQ(nodo.HNerv, 150);
  Scrivi("GolaTxt", SENZA_INDICE, "1e999");
  EXPECT_EQ(nodo.Gola, 7);
  Scrivi("DTf", 1, "1e999");
  EXPECT_EQ(nodo.TfZ[1], 50);
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Pannello71, AResultThatOverflowsIsAFaultAndIsNotStored) {
  Scrivi("LatoTxt", 2, "1e308");  // 2 * 1e308 is no double
  EXPECT_EQ(nodo.LatoZ, 480);
  EXPECT_EQ(registratore.eventi,
            (Testi{"[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: il comando non può continuare."}));
}

TEST_F(Pannello71, EnterUnderMarginsGivesTheSides) {
  Scrivi("LatoTxt", 2, "50");
  Invio("LatoTxt", 2);
  EXPECT_EQ(insDati.LatoTxt[0].testo, "380");  // 2 * 50 + 280
  EXPECT_EQ(insDati.LatoTxt[1].testo, "500");
  EXPECT_EQ(nodo.LatoZ, 380);
  Scrivi("LatoTxt", 3, "30");
  Invio("LatoTxt", 3);
  EXPECT_EQ(insDati.LatoTxt[1].testo, "360");  // 2 * 30 + 300
  EXPECT_EQ(nodo.LatoY, 360);
}

TEST_F(Pannello71, EnterUnderSidesGivesTheMargins) {
  Scegli("GeoP", 0);
  Scrivi("LatoTxt", 0, "381");
  Invio("LatoTxt", 0);
  EXPECT_EQ(insDati.LatoTxt[2].testo, "50.5");  // (381 - 280) / 2
  EXPECT_EQ(insDati.LatoTxt[3].testo, "100");
  EXPECT_EQ(nodo.LatoZ, 381);
}

TEST_F(Pannello71, GeoPEnablesItsPairOfFields) {
  const auto abilitati = [](bool a, bool b, bool c, bool d) {
    const bool attesi[] = {a, b, c, d};
    for (int i = 0; i < 4; i++) {
      EXPECT_EQ(insDati.LatoTxt[i].abilitato, attesi[i]) << i;
      EXPECT_EQ(insDati.Label2[i].abilitato, attesi[i]) << i;
    }
  };
  abilitati(false, false, true, true);  // after the reset: margins
  Scegli("GeoP", 0);
  abilitati(true, true, false, false);
  Scegli("GeoP", 1);
  abilitati(false, false, true, true);
  EXPECT_TRUE(insDati.LatoTxt[4].abilitato);
}

TEST_F(Pannello71, SectionUnderSidesKeepsThePlate) {
  Scegli("GeoP", 0);
  UtenteSceglie(InsDati, insDati.TraveP, 9);  // P10: H 110, B 60
  EXPECT_EQ(nodo.LatoZ, 480);
  EXPECT_EQ(nodo.LatoY, 500);
  EXPECT_EQ(insDati.LatoTxt[2].testo, "210");  // (480 - 60) / 2
  EXPECT_EQ(insDati.LatoTxt[3].testo, "195");  // (500 - 110) / 2
}

TEST_F(Pannello71, SectionUnderMarginsMovesThePlate) {
  UtenteSceglie(InsDati, insDati.TraveP, 9);
  EXPECT_EQ(nodo.LatoZ, 260);  // 60 + 200
  EXPECT_EQ(nodo.LatoY, 310);  // 110 + 200
  EXPECT_EQ(insDati.LatoTxt[0].testo, "260");
  EXPECT_EQ(insDati.LatoTxt[2].testo, "100");
}

TEST_F(Pannello71, SectionIsCopiedWholeAndShown) {
  UtenteSceglie(InsDati, insDati.TraveP, 9);
  EXPECT_EQ(nodo.Sezione.Nome, "P10               ");
  EXPECT_EQ(nodo.Sezione.Area, 1100);
  EXPECT_EQ(nodo.Sezione.Tipo, "I");
  const char* attesi[] = {"110", "60", "5", "8", "10"};
  for (int i = 0; i < 5; i++) EXPECT_EQ(insDati.geomp[i].testo, attesi[i]);
}

// All fourteen fields are the library's; nothing of the section before stays.
TEST_F(Pannello71, NoFieldOfTheFormerSectionStays) {
  Sezione& p = suite.ProfiliLib[10];
  // clang-format off
  double Sezione::*const campi[] = {&Sezione::H,  &Sezione::B,    &Sezione::A,  &Sezione::E,  &Sezione::R,  &Sezione::R2,
                                    &Sezione::Xc, &Sezione::Yc,   &Sezione::Area, &Sezione::J1, &Sezione::J2, &Sezione::Jt};
  // clang-format on
  double v = 100;
  for (double Sezione::*c : campi) {
    p.*c = v++;
    nodo.Sezione.*c = -1;
  }
  p.Tipo = "U";
  nodo.Sezione.Tipo = "I";
  nodo.Sezione.Nome = AllineaSinistra("ALTRA", LungNomeSez);
  UtenteSceglie(InsDati, insDati.TraveP, 9);
  v = 100;
  for (double Sezione::*c : campi) EXPECT_EQ(nodo.Sezione.*c, v++);
  EXPECT_EQ(nodo.Sezione.Tipo, "U");
  EXPECT_EQ(nodo.Sezione.Nome, "P10               ");
}

TEST_F(Pannello71, TypologyEnablesExactlySixControls) {
  const auto sei = [](bool si) {
    for (const Controllo* c :
         {&insDati.HFazzTxt[0], &insDati.HFazzTxt[1], &insDati.Label8[0], &insDati.Label8[1], &insDati.ChSI, &insDati.LSi})
      EXPECT_EQ(c->abilitato, si);
    for (const Controllo* c : {&insDati.GolaTxt, &insDati.Op_Tip[0], &insDati.Op_Tip[1], &insDati.Pic_Tipo[0], &insDati.Tipi})
      EXPECT_TRUE(c->abilitato);
  };
  sei(true);
  EXPECT_EQ(nodo.TipoNodo, 2);
  Scegli("Op_Tip", 0);
  EXPECT_EQ(nodo.TipoNodo, 1);
  sei(false);
  EXPECT_EQ(nodo.HNerv, 150);  // the rib values stay in the model
  EXPECT_EQ(nodo.SpNerv, 6);
  Scegli("Op_Tip", 1);
  EXPECT_EQ(nodo.TipoNodo, 2);
  sei(true);
}

TEST_F(Pannello71, RibsAndInnerWelds) {
  Scrivi("HFazzTxt", 0, "180");
  Scrivi("HFazzTxt", 1, "12");
  EXPECT_EQ(nodo.HNerv, 180);
  EXPECT_EQ(nodo.SpNerv, 12);
  UtenteSceglie(InsDati, insDati.ChSI, 1);
  EXPECT_EQ(nodo.SaldInt, 1);
  UtenteSceglie(InsDati, insDati.ChSI, 0);
  EXPECT_EQ(nodo.SaldInt, 0);
}

TEST_F(Pannello71, WeldSideAndThroat) {
  Scrivi("GolaTxt", SENZA_INDICE, "10");
  EXPECT_EQ(nodo.Gola, 10);
  EXPECT_DOUBLE_EQ(nodo.GolaCalc, 7.0710678118654755);  // 10 / sqrt 2
}

TEST_F(Pannello71, FourAnchors) {
  Scrivi("DTf", 1, "40");
  AttendiTirafondi({40, 430, 40, 430}, {50, 50, 450, 450});
  Scrivi("DTf", 2, "45");
  AttendiTirafondi({40, 435, 40, 435}, {50, 50, 450, 450});
  Scrivi("DTf", 3, "55");
  AttendiTirafondi({40, 435, 40, 435}, {55, 55, 450, 450});
  Scrivi("DTf", 4, "65");
  AttendiTirafondi({40, 435, 40, 435}, {55, 55, 435, 435});  // 480 - 45, 500 - 65
}

TEST_F(Pannello71, PatternsOfEightAndSix) {
  const double z = 480.0 / 2, y = 500.0 / 2;
  Scegli("OptionNTir", 1);
  AttendiTirafondi({50, 430, 50, 430, 50, 430, z, z}, {50, 50, 450, 450, y, y, 450, 50});
  Scegli("OptionNTir", 3);  // 6 Orizz.
  AttendiTirafondi({50, 430, 50, 430, z, z}, {50, 50, 450, 450, 450, 50});
  Scegli("OptionNTir", 2);  // 6 Vert.
  AttendiTirafondi({50, 430, 50, 430, 50, 430}, {50, 50, 450, 450, y, y});
  Scegli("OptionNTir", 0);
  AttendiTirafondi({50, 430, 50, 430}, {50, 50, 450, 450});
  EXPECT_EQ(nodo.OptionNTir, 0);
}

TEST_F(Pannello71, EightAnchorsStandAtMidSideWhateverTheDistances) {
  Scegli("OptionNTir", 1);
  const char* distanze[] = {"90", "10", "30", "80"};
  for (int i = 1; i <= 4; i++) Scrivi("DTf", i, distanze[i - 1]);
  AttendiTirafondi({90, 470, 90, 470, 90, 470, 240, 240}, {30, 30, 420, 420, 250, 250, 420, 30});
  Scegli("OptionNTir", 2);  // 6 Vert.
  AttendiTirafondi({90, 470, 90, 470, 90, 470}, {30, 30, 420, 420, 250, 250});
  Scegli("OptionNTir", 3);  // 6 Orizz.
  AttendiTirafondi({90, 470, 90, 470, 240, 240}, {30, 30, 420, 420, 420, 30});
  Scegli("OptionNTir", 1);
  Scrivi("LatoTxt", 0, "600");
  EXPECT_EQ(nodo.TfZ[7], 300);
  EXPECT_EQ(nodo.TfZ[8], 300);
}

TEST_F(Pannello71, ASideMovesTheAnchorsOfTheFarEdge) {
  Scrivi("LatoTxt", 0, "600");
  AttendiTirafondi({50, 550, 50, 550}, {50, 50, 450, 450});
  EXPECT_EQ(insDati.DTf[2].testo, "50");  // Dz2 itself stays
  Scrivi("LatoTxt", 1, "700");
  AttendiTirafondi({50, 550, 50, 550}, {50, 50, 650, 650});
  EXPECT_EQ(insDati.DTf[4].testo, "50");
  Scrivi("LatoTxt", 2, "60");  // 2 * 60 + 280 = 400
  AttendiTirafondi({50, 350, 50, 350}, {50, 50, 650, 650});
  Scrivi("LatoTxt", 3, "70");  // 2 * 70 + 300 = 440
  AttendiTirafondi({50, 350, 50, 350}, {50, 50, 390, 390});
}

TEST_F(Pannello71, AnchorLabels) {
  const char* attesi[] = {"120", "500", "70", "450", "10", "20"};  // LFt, L, R, L1, LF, Fi
  for (int i = 0; i < 6; i++) EXPECT_EQ(insDati.TFLab[i].testo, attesi[i]);
}

TEST_F(Pannello71, MethodRemembersTheSteelOfEach) {
  UtenteSceglie(InsDati, insDati.Acc, 0);  // TA: S 235
  Scegli("TipoVer", 1);
  UtenteSceglie(InsDati, insDati.Acc, 2);  // SLU: S 355
  Scegli("TipoVer", 0);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");
  EXPECT_EQ(insDati.Acc.scelta, 0);
  Scegli("TipoVer", 1);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 355 (FE 510)");
  EXPECT_EQ(nodo.TipoVer, 1);
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Pannello71, MethodActsOnARealChangeOnly) {
  materiali.MemoriaMateriali[0].Nome = "S 275 (FE 430)";
  Scegli("TipoVer", 0);  // already there
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");
  EXPECT_TRUE(materiali.MemoriaMateriali[1].Nome.empty());
  Scegli("TipoVer", 1);
  materiali.MemoriaMateriali[0] = materiali.AcciaiBase[5];
  nodo.MatAcc.Fyk = 1;  // a new fill would copy the table's record
  Scegli("TipoVer", 1);
  EXPECT_EQ(nodo.MatAcc.Fyk, 1);
  EXPECT_EQ(materiali.MemoriaMateriali[0].Nome, "S 185");
}

TEST_F(Pannello71, MethodShowsTheLoadClassesOfVisibleRows) {
  for (int m : {1, 0}) {  // the heading follows the method also over an empty list
    Scegli("TipoVer", m);
    EXPECT_EQ(insDati.Label4.visibile, m == 0);
    EXPECT_FALSE(insDati.CasCar[0].visibile);
  }
  Scatena(InsDati, insDati.Singolo, Evento::Cambio);
  Scatena(InsDati, insDati.Singolo, Evento::Cambio);
  nodo.SollCC[2] = 1;
  EXPECT_TRUE(insDati.Label4.visibile);
  EXPECT_TRUE(insDati.CasCar[1].visibile);
  Scegli("TipoVer", 1);
  EXPECT_FALSE(insDati.Label4.visibile);
  for (int i = 0; i < 5; i++) EXPECT_FALSE(insDati.CasCar[i].visibile);
  EXPECT_TRUE(insDati.TxtSN[1].visibile);
  EXPECT_EQ(nodo.SollCC[2], 1);  // kept, though not shown
  EXPECT_EQ(nodo.NumSoll, 2);
  Scegli("TipoVer", 0);
  EXPECT_TRUE(insDati.Label4.visibile);
  EXPECT_TRUE(insDati.CasCar[0].visibile);
  EXPECT_TRUE(insDati.CasCar[1].visibile);
  EXPECT_FALSE(insDati.CasCar[2].visibile);
  for (int i = 0; i < 3; i++) Scatena(InsDati, insDati.Singolo, Evento::Cambio);
  for (int m : {1, 0}) Scegli("TipoVer", m);
  for (int i = 0; i < 5; i++) EXPECT_TRUE(insDati.CasCar[i].visibile) << i;
}

TEST_F(Pannello71, ExposureIsAPosition) {
  EXPECT_EQ(insDati.ComboEsposizione.voci,
            (Testi{"Esposto a fenomeni corrosivi", "Non esposto a fenomeni corrosivi", "Resistente alla corrosione"}));
  EXPECT_EQ(nodo.Esposizione, 0);
  UtenteSceglie(InsDati, insDati.ComboEsposizione, 2);
  EXPECT_EQ(nodo.Esposizione, 2);
}

TEST_F(Pannello71, StatusLineShowsAfterTheRest) {
  Scatena(InsDati, insDati.GolaTxt, Evento::Passa);
  EXPECT_EQ(insDati.StatoTxt, "Inserire il lato dei cordoni di saldatura");
  PassaTempo(799);
  EXPECT_FALSE(insDati.Help.visibile);
  PassaTempo(1);
  EXPECT_TRUE(insDati.Help.visibile);
  EXPECT_EQ(insDati.Help.testo, "Inserire il lato dei cordoni di saldatura");
  Scatena(InsDati, insDati.Verifica, Evento::Passa);
  EXPECT_EQ(insDati.Help.testo, "Inserire il lato dei cordoni di saldatura");  // until the next rest
  PassaTempo(800);
  EXPECT_EQ(insDati.Help.testo, "Verifica tensionale del nodo");
  insDati.Help.visibile = false;
  PassaTempo(800);
  EXPECT_FALSE(insDati.Help.visibile) << "the timer fires once";
}

TEST_F(Pannello71, PanelAndFramesClearTheStatusLine) {
  for (Controllo* cornice : {&insDati.Colonna, &insDati.Tipi, &insDati.Piastra, &insDati.Tirafondi, &insDati.Sald, &insDati.Materiali,
                             &insDati.Soll, &insDati.Frame1}) {
    ImpostaStato("x");
    PassaTempo(800);
    ImpostaStato("y");
    Scatena(InsDati, *cornice, Evento::Passa);
    EXPECT_FALSE(insDati.Help.visibile);
    EXPECT_EQ(insDati.Help.testo, "");
    PassaTempo(800);
    EXPECT_FALSE(insDati.Help.visibile) << "the timer is stopped";
  }
  ImpostaStato("x");
  PassaTempo(800);
  Scatena(InsDati, C("Label2", 0), Evento::Passa);  // a control without a text clears nothing
  EXPECT_TRUE(insDati.Help.visibile);
  EXPECT_EQ(insDati.Help.testo, "x");
  PassaSulPannello(InsDati);
  EXPECT_FALSE(insDati.Help.visibile);
}

TEST_F(Pannello71, StatusTexts) {
  // clang-format off
  const struct { const char* nome; int i; const char* testo; } attesi[] = {
      {"LatoTxt", 0, "Inserire il valore del lato piastra lungo Z"}, {"LatoTxt", 1, "Inserire il valore del lato piastra lungo Y"},
      {"LatoTxt", 2, "Inserire il valore dei margini piastra-colonna lungo Z"},
      {"LatoTxt", 3, "Inserire il valore dei margini piastra_colonna lungo Y"}, {"LatoTxt", 4, "Inserire lo spessore della piastra"},
      {"GeoP", 0, "Inserimento dei lati della piastra"}, {"GeoP", 1, "Inserimento dei margini piastra-colonna"},
      {"DTf", 1, "Inserire il valore di Dz1"}, {"DTf", 2, "Inserire il valore di Dz2"}, {"DTf", 3, "Inserire il valore di Dy1"},
      {"DTf", 4, "Inserire il valore di Dy2"},
      {"HFazzTxt", 0, "Inserire l'altezza delle nervature"}, {"HFazzTxt", 1, "Inserire lo spessore delle nervature"},
      {"Label8", 0, "Inserire l'altezza delle nervature"}, {"Label8", 1, "Inserire lo spessore delle nervature"},
      {"GolaTxt", -1, "Inserire il lato dei cordoni di saldatura"}, {"Label7", -1, "Inserire il lato dei cordoni di saldatura"},
      {"Label2", 4, "Inserire lo spessore della piastra"},
      {"Op_Tip", 0, "Tipologia n°1: non è prevista nessuna nervatura"}, {"Op_Tip", 1, "Tipologia n°2: sono previste 4 nervature"},
      {"Pic_Tipo", 0, "Tipologia n°1: non è prevista nessuna nervatura"}, {"Pic_Tipo", 1, "Tipologia n°2: sono previste 4 nervature"},
      {"Pic_Tipo", 2, "Schema dei valori da inserire per posizionare i tirafondi"},
      {"LSi", -1, "Nodo con saldature fra il lembo interno delle nervature e la colonna"}, {"Label1", -1, "Scegliere la sezione della colonna"},
      {"geom", 0, "Altezza colonna"}, {"geom", 1, "Larghezza colonna"}, {"geom", 2, "Spessore anima colonna"},
      {"geom", 3, "Spessore ali colonna"}, {"geom", 4, "Raggio colonna"}, {"geomp", 0, "Altezza colonna"}, {"geomp", 1, "Larghezza colonna"},
      {"geomp", 2, "Spessore anima colonna"}, {"geomp", 3, "Spessore ali colonna"}, {"geomp", 4, "Raggio colonna"},
      {"Label3", 0, "Tirafondo: lunghezza fuori plinto"}, {"Label3", 1, "Tirafondo: lunghezza di annegamento"},
      {"Label3", 2, "Tirafondo: raggio di curvatura"}, {"Label3", 3, "Tirafondo: lunghezza di risalita"},
      {"Label3", 4, "Tirafondo: profondità dei fori nel plinto"}, {"Label3", 5, "Tirafondo: diametro nominale"},
      {"TFLab", 0, "Tirafondo: lunghezza fuori plinto"}, {"TFLab", 1, "Tirafondo: lunghezza di annegamento"},
      {"TFLab", 2, "Tirafondo: raggio di curvatura"}, {"TFLab", 3, "Tirafondo: lunghezza di risalita"},
      {"TFLab", 4, "Tirafondo: profondità dei fori nel plinto"}, {"TFLab", 5, "Tirafondo: diametro nominale"},
      {"Nodo", -1, "Rappresentazione in pianta del nodo"},
      {"Verifica", -1, "Verifica tensionale del nodo"}, {"Sav_Nodo", -1, "Salvataggio del nodo corrente"},
      {"Car_Nodo", -1, "Caricamento di un nodo salvato in precedenza"}, {"Chiudi", -1, "Chiusura del programma"},
      {"Gen_Dis", -1, "Generazione del file disegno rappresentante l'esecutivo del nodo"},
      {"ApriVis", -1, "Apertura del visualizzatore ed aggiornamento del file disegno"}, {"Opz", -1, "Opzioni di visualizzazione del disegno"},
      {"DimTf", -1, "Cliccare per dimensionare i tirafondi"},
      {"ImpS3D", -1, "Importazione  dal modello tridimensionale delle sollecitazioni agenti"}};
  // clang-format on
  for (const auto& a : attesi) {
    insDati.StatoTxt.clear();
    Scatena(InsDati, C(a.nome, a.i), Evento::Passa);
    EXPECT_EQ(insDati.StatoTxt, a.testo) << a.nome << a.i;
  }
  insDati.StatoTxt = "prima";  // no text of their own: nothing
  Scatena(InsDati, C("Label2", 0), Evento::Passa);
  for (const char* n : {"PropMatButton", "CheckMatBase", "Command1", "LegendaButt"}) Scatena(InsDati, C(n), Evento::Passa);
  EXPECT_EQ(insDati.StatoTxt, "prima");
}

TEST_F(Pannello71, StatusTextsOfTheMaterialsByMethod) {
  // clang-format off
  const char* ta[] = {"Tensione ammissibile dell'acciaio, combinazione di carico di tipo I",
                      "Tensione ammissibile dell'acciaio, combinazione di carico di tipo II",
                      "Tensione ammissibile dell'acciaio tirafondi, combinazione di carico di tipo II",
                      "Tensione ammissibile del calcestruzzo",
                      "Tensione ammissibile dell'acciaio Tirafondi, combinazione di carico di tipo I"};
  // clang-format on
  const char* slu[] = {"Tensione limite elastica di calcolo dell'acciaio", ta[1], ta[2], "Tensione massima di calcolo del calcestruzzo",
                       "Tensione limite elastica di calcolo dell'acciaio tirafondi"};
  for (int m = 0; m < 2; m++) {
    Scegli("TipoVer", m);
    for (int i = 0; i < 5; i++) {
      Scatena(InsDati, C("Label30", i), Evento::Passa);
      EXPECT_EQ(insDati.StatoTxt, m == 0 ? ta[i] : slu[i]);
    }
  }
}

TEST_F(Pannello71, HelpFileAndEnd) {
  static std::string aiuto;
  suite.DirRoot = "c:\\suite";
  suite.DirCustom = "c:\\altra";
  piattaforma.mostraAiuto = [](const std::string& percorso) { aiuto = percorso; };
  Scatena(InsDati, insDati.LegendaButt, Evento::Cambio);
  EXPECT_EQ(aiuto, "c:\\suite\\help\\HelpQB07.pdf");
  Scatena(InsDati, insDati.Chiudi, Evento::Cambio);
  EXPECT_EQ(registratore.eventi, (Testi{"[fine]"}));  // no question
  EXPECT_TRUE(registratore.attesa);
  EXPECT_TRUE(registratore.finito);
}

TEST_F(Pannello71, CommandsWithoutTheirRoomCannotBePressed) {
  for (const char* n : {"Gen_Dis", "ApriVis", "Opz", "DimTf", "PropMatButton", "Command1", "ImpS3D"}) {
    const Controllo* c = TrovaControllo(InsDati, n, SENZA_INDICE);
    EXPECT_TRUE(c == nullptr || c->riga->cambio != nullptr) << n;
  }
}

}  // namespace
