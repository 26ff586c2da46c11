// The panel of the material properties: frames in use, strengths derived from the grades, units. The program is started on a copy of the
// sample suite; values by hand.
#include "corredo/banco_pannelli.h"

#include "model/materiali.h"
#include "model/stato.h"
#include "panels/PropMateriali.h"
#include "panels/pannelli.h"

TEST_F(Pannelli_, ProprietaDeiMateriali) {
  suite.UnitaTensioni = "N/mm2";
  suite.FattTensioni = 0.1;
  suite.DecTensioni = 2;
  nodo.MatAcc = {};
  nodo.MatAcc.Nome = "S 275 (FE 430)";
  nodo.MatAcc.SAmm = 1900;
  nodo.MatAcc.Fyk = 2750;
  nodo.MatAcc.Fyk40 = -1;
  nodo.MatAcc.GammaM = 1.05;
  nodo.MatAcc.GammaMT = 1.1;
  nodo.MatTir = nodo.MatAcc;
  nodo.MatTir.Nome = "S 275 J";
  nodo.MatTir.Ftk = 4300;
  nodo.MatVit.GammaM2 = 1.25;
  nodo.MatCls.Nome = "C25/30";
  nodo.MatCls.Rck = 300;
  nodo.MatCls.GammaC = 1.5;
  Premi(InsDati, "PropMatButton");
  EXPECT_EQ(registratore.pannelli.back(), "PropMateriali");
  // clang-format off
  const struct { const char* nome; const char* testo; } ATTESI[] = {
      {"Unit", "[N/mm2]"},
      {"FrameAcc", "Acciaio profili e piastre - [NTC08 11.3.4.1] - Tipo S 275 (FE 430)"},
      {"fkLabel", "275"}, {"gMLabel", "1.05"}, {"gMTLabel", "1.1"},
      {"fdLabel", "261.9"},                               // 275 / 1.05 = 261.905
      {"fdtLabel", "250"}, {"fd40Label", "-"},            // a negative stress
      {"SAmmILabel", "190"}, {"SAmmIILabel", "213.75"},
      {"FrameTir", "Tirafondi - [NTC08 11.3.4.1] - Tipo S 275 J"},
      {"fyTirLabel", "275"}, {"gMTirLabel", "1.25"}, {"fydTirLabel", "220"}, {"ftTirLabel", "430"}, {"ftdTirLabel", "344"},
      {"SAmmITirLabel", "190"}, {"TauAmmITirLabel", "109.7"},        // 190 / sqrt 3 = 109.697
      {"TauAmmIITirLabel", "123.41"},                     // 123.409
      {"FrameCls", "Calcestruzzo - [NTC08 4.1] - Classe C25/30"},
      {"RckClsLabel", "30"}, {"fckClsLabel", "24.9"}, {"gMClsLabel", "1.5"},
      {"fcdClsLabel", "14.11"},                           // 24.9 * .85 / 1.5
      {"SammClsLabel", "9.75"}};                          // 60 + 150 / 4 = 97.5 daN/cm2
  // clang-format on
  for (const auto& a : ATTESI) EXPECT_EQ(C(PropMateriali, a.nome).testo, a.testo) << a.nome;
  EXPECT_FALSE(propMateriali.FrameBull.visibile);
  EXPECT_FALSE(propMateriali.FrameAccPia.visibile);
  EXPECT_TRUE(propMateriali.FrameTir.visibile);
}

// A material that the node does not use has no frame.
TEST_F(Pannelli_, ProprietaSenzaTirafondiNeCalcestruzzo) {
  materiali.UsaTirafondi = materiali.UsaCls = false;
  Premi(InsDati, "PropMatButton");
  EXPECT_TRUE(propMateriali.FrameAcc.visibile);
  for (const Controllo* c : {&propMateriali.FrameAccPia, &propMateriali.FrameBull, &propMateriali.FrameTir, &propMateriali.FrameCls})
    EXPECT_FALSE(c->visibile) << c->riga->nome;
}

TEST_F(Pannelli_, ProprietaConTuttiIRiquadri) {
  materiali.UsaAccPiastre = materiali.UsaViti = true;
  suite.FattTensioni = 1;
  suite.DecTensioni = 1;
  nodo.MatPiastra = {};
  nodo.MatPiastra.Nome = "S 355";
  nodo.MatPiastra.SAmm = 2400;
  nodo.MatPiastra.Fyk = 3550;
  nodo.MatPiastra.Fyk40 = 3350;
  nodo.MatPiastra.GammaM = 1.05;
  nodo.MatPiastra.GammaMT = 1.25;
  nodo.MatVit = {};
  nodo.MatVit.Nome = "8.8";
  nodo.MatVit.SAmm = 3730;
  nodo.MatVit.TauAmm = 2640;
  nodo.MatVit.Fy = 6490;
  nodo.MatVit.Ft = 8000;
  nodo.MatVit.GammaM2 = 1.25;
  nodo.MatTir.SAmm = 1600;
  Premi(InsDati, "PropMatButton");
  // clang-format off
  const TestoAtteso attesi[] = {
      {"FrameAccPia", -1, "Acciaio piastre - [NTC08 11.3.4.1] - Tipo S 355"},
      {"fkPLabel", -1, "3550"}, {"gMPLabel", -1, "1.05"}, {"gMTPLabel", -1, "1.25"}, {"fdPLabel", -1, "3381"},      // 3380.95
      {"fdtPLabel", -1, "2840"}, {"fd40PLabel", -1, "3190.5"}, {"fdt40PLabel", -1, "2680"},                        // 3190.48
      {"sAmmIPLabel", -1, "2400"}, {"sAmmIIPLabel", -1, "2700"},
      {"FrameBull", -1, "Bulloni - [NTC08 11.3.4.6.1] - Classe 8.8"},
      {"fyVitiLabel", -1, "6490"}, {"gMVitiLabel", -1, "1.25"}, {"fydVitilabel", -1, "5192"}, {"ftVitiLabel", -1, "8000"},
      {"ftdVitiLabel", -1, "6400"}, {"SAmmIVitiLabel", -1, "3730"}, {"SAmmIIVitiLabel", -1, "4196.2"},              // 4196.25: tie to even
      {"TauAmmIVitiLabel", -1, "2640"}, {"TauAmmIIVitiLabel", -1, "2970"},
      {"SAmmIITirLabel", -1, "1800"}, {"TauAmmITirLabel", -1, "923.8"}};                                            // 1600 / sqrt 3 = 923.76
  // clang-format on
  for (const auto& a : attesi) EXPECT_EQ(C(PropMateriali, a.nome).testo, a.testo) << a.nome;
  EXPECT_TRUE(C(PropMateriali, "FrameAcc").testo.starts_with("Acciaio profili - [NTC08 11.3.4.1] - Tipo "));
  EXPECT_TRUE(propMateriali.FrameBull.visibile);
  EXPECT_TRUE(propMateriali.FrameAccPia.visibile);
  EXPECT_EQ(propMateriali.Unit.coloreSfondo, 0xFFFFC8);  // red 200, green 255, blue 255
}

// A frame not in use is hidden, and nothing is worked out for it: bolts of class 0 would divide by zero.
TEST_F(Pannelli_, ProprietaDelSoloAcciaio) {
  materiali.UsaViti = materiali.UsaAccPiastre = materiali.UsaTirafondi = materiali.UsaCls = false;
  suite.FattTensioni = 1;
  suite.DecTensioni = 1;
  nodo.MatVit = {};
  nodo.MatCls = {};
  nodo.MatAcc.Fyk40 = 3350;
  nodo.MatAcc.GammaMT = 1.25;
  for (Controllo* c : {&propMateriali.FrameBull, &propMateriali.FrameAccPia, &propMateriali.FrameTir, &propMateriali.FrameCls})
    c->testo = "prima";
  Premi(InsDati, "PropMatButton");
  for (const Controllo* c : {&propMateriali.FrameBull, &propMateriali.FrameAccPia, &propMateriali.FrameTir, &propMateriali.FrameCls}) {
    EXPECT_FALSE(c->visibile);
    EXPECT_EQ(c->testo, "prima");
  }
  EXPECT_TRUE(propMateriali.FrameAcc.visibile);
  EXPECT_EQ(C(PropMateriali, "fdt40Label").testo, "2680");  // 3350 / 1.25
  EXPECT_TRUE(registratore.eventi.empty());
}

// Over the main panel until its own command closes it.
TEST_F(Pannelli_, ProprietaModaleFinoAChiudi) {
  static bool sopra;
  sopra = false;
  registratore.dentro.push_back([] {
    sopra = pannelli.modali.size() == 1 && pannelli.modali.back() == &PropMateriali && !Raggiungibile(InsDati);
    EXPECT_TRUE(propMateriali.FrameTir.visibile && propMateriali.FrameCls.visibile);
    EXPECT_EQ(C(PropMateriali, "Chiudi").testo, "Chiudi");
    Premi(PropMateriali, "Chiudi");
    EXPECT_FALSE(propMateriali.aperto);
    EXPECT_TRUE(Raggiungibile(InsDati));
  });
  Premi(InsDati, "PropMatButton");
  EXPECT_TRUE(sopra);
}

// "-" stands for a steel without the value; the class of a concrete is rounded as it is.
TEST_F(Pannelli_, ClasseNegativaSiMostraComE) {
  suite.FattTensioni = 1;
  suite.DecTensioni = 0;
  nodo.MatCls.Rck = -2;
  nodo.MatCls.GammaC = 1.5;
  Premi(InsDati, "PropMatButton");
  EXPECT_EQ(C(PropMateriali, "RckClsLabel").testo, "-2");
  EXPECT_EQ(C(PropMateriali, "fckClsLabel").testo, "-2");   // -1.66
  EXPECT_EQ(C(PropMateriali, "SammClsLabel").testo, "22");  // 60 - 152 / 4
}

TEST_F(Pannelli_, FattoreParzialeNulloNonApreIlPannello) {
  nodo.MatAcc.GammaM = 0;
  Premi(InsDati, "PropMatButton");
  EXPECT_EQ(UltimoEvento(), "[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: il comando non può continuare.");
  EXPECT_FALSE(propMateriali.aperto);
}
