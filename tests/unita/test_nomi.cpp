// test_nomi - every variable and result table by its name: spelling, indices, forms, and refusals that read nothing.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "corredo/lavoro_prova.h"
#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/formats/grb_stili.h"
#include "drawing/nomi_disegno.h"
#include "drawing/tavola.h"
#include "engine/PresInfl.h"
#include "link/collegamento.h"
#include "link/nomi_collegamento.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/nomi.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/nomi_lavoro.h"
#include "panels/pannelli.h"

static const Risultati RIS_VUOTI;
static const Suite SUITE_VUOTA;
static const Nodo NODO_VUOTO;
static const Materiali MATERIALI_VUOTI;

struct Nomi : testing::Test {
  void SetUp() override {
    ris = RIS_VUOTI;
    suite = SUITE_VUOTA;
    nodo = NODO_VUOTO;
    materiali = MATERIALI_VUOTI;
  }
};

static std::string Valore(std::string_view nome) {
  const std::span<const RigaNome> altri[] = {NomiLavoro()};
  std::string v = "resta";
  return ValoreModello(nome, v, altri) ? v : "<" + v + ">";  // a refusal leaves the text alone: "<resta>"
}
static const char* const RIFIUTO = "<resta>";

TEST_F(Nomi, ScalariDiOgniGenere) {
  nodo.LatoZ = 400.25;
  nodo.TipoNodo = 2;
  nodo.TipoVer = 1;
  nodo.Esposizione = -1;
  nodo.NomeNodo = "Nuovo, \"due\"";
  ris.FlagDiamInterpolato = true;
  EXPECT_EQ(Valore("LatoZ"), "400.25");
  EXPECT_EQ(Valore("TipoNodo"), "2");
  EXPECT_EQ(Valore("TipoVer"), "1");
  EXPECT_EQ(Valore("Esposizione"), "-1");
  EXPECT_EQ(Valore("NomeNodo"), "Nuovo, \"due\"");
  EXPECT_EQ(Valore("FlagDiamInterpolato"), "1");
  EXPECT_EQ(Valore("FlagDiamEstrapolato"), "0");
  EXPECT_EQ(Valore("TitoloProg"), "NODO COLONNA - PLINTO");
  EXPECT_EQ(Valore("StrTmp"), "");
}

TEST_F(Nomi, NumeriConQuindiciCifre) {
  // The digits are those of 7 / sqrt 2 = 4.94974746830583267... and of 1/3 cut to fifteen.
  nodo.GolaCalc = 4.949747468305833;
  EXPECT_EQ(Valore("GolaCalc"), "4.94974746830583");
  nodo.GolaCalc = 1.0 / 3;
  EXPECT_EQ(Valore("GolaCalc"), "0.333333333333333");
  nodo.GolaCalc = 1e20;
  EXPECT_EQ(Valore("GolaCalc"), "1e+20");
  nodo.GolaCalc = 1e-5;
  EXPECT_EQ(Valore("GolaCalc"), "1e-05");
  nodo.GolaCalc = 0.1 + 0.2;
  EXPECT_EQ(Valore("GolaCalc"), "0.3");
  // The C library's printf is the second method (the C locale is the start's).
  for (const double v :
       {0.0, -0.0, 1e15, 123456789012345.0, 1234567890123456.0, 9.99999999999999e14, 0.0001, 0.00009999, -2.5e-300, 1.7e308}) {
    char atteso[64];
    std::snprintf(atteso, sizeof atteso, "%.15g", v);
    nodo.GolaCalc = v;
    EXPECT_EQ(Valore("GolaCalc"), atteso);
  }
}

TEST_F(Nomi, VettoriConUnoDueTreIndici) {
  nodo.TfZ[3] = 50;
  nodo.TfY[8] = -1;
  nodo.SollN[1] = -12000;
  nodo.SollN[200] = 7;
  nodo.SollCC[2] = 1;
  nodo.SollNome[1] = "Soll 1";
  nodo.NodiStr[2000] = 32767;
  suite.DiamVal[0] = 8;
  suite.DiamVal[99] = 64;
  suite.ParNodo[5] = 2.5;
  ris.SigmaTir[1][2] = 14.0747;
  ris.SigmaTir[2][1] = 99;
  ris.SPiastraTir[3][2][8] = 5;
  ris.SPiastraTir[3][1][8] = 6;
  ris.FbRd[1] = 11;
  ris.SNerv[200][8] = 3;
  EXPECT_EQ(Valore("TfZ(3)"), "50");
  EXPECT_EQ(Valore("TfY(8)"), "-1");
  EXPECT_EQ(Valore("SollN(1)"), "-12000");
  EXPECT_EQ(Valore("SollN(200)"), "7");
  EXPECT_EQ(Valore("SollCC(2)"), "1");
  EXPECT_EQ(Valore("SollNome(1)"), "Soll 1");
  EXPECT_EQ(Valore("NodiStr(2000)"), "32767");
  EXPECT_EQ(Valore("DiamVal(0)"), "8");
  EXPECT_EQ(Valore("DiamVal(99)"), "64");
  EXPECT_EQ(Valore("ParNodo(5)"), "2.5");
  EXPECT_EQ(Valore("SigmaTir(1,2)"), "14.0747");
  EXPECT_EQ(Valore("SigmaTir( 2 , 1 )"), "99");
  EXPECT_EQ(Valore("SPiastraTir(3,2,8)"), "5");
  EXPECT_EQ(Valore("SPiastraTir(3,1,8)"), "6");
  EXPECT_EQ(Valore("FbRd(1)"), "11");
  EXPECT_EQ(Valore("SNerv(200,8)"), "3");
}

TEST_F(Nomi, CampiDeiRecord) {
  nodo.Sezione.Nome = "HEA200            ";
  nodo.Sezione.H = 190;
  nodo.MatAcc.Fyk = 2350;
  nodo.MatVit.GammaM2 = 1.25;
  suite.ProfiliLib[3].Nome = "IPE100            ";
  suite.ProfiliLib[2000].Tipo = "I";
  materiali.AcciaiBase[2].Nome = "S 275 (FE 430)";
  materiali.VitiBase[1].Nome = "8.8";
  materiali.AcciaiCABase[50].V[9] = 4;
  materiali.MemoriaMateriali[0].Nome = "colonna TA";
  materiali.MemoriaMateriali[3].Nome = "tirafondi SLU";
  materiali.GammaMBase[4] = 1.35;
  ris.Saldature[3].PZ[1] = 100.5;
  ris.Saldature[3].TauPa[1][2] = 8;
  ris.Saldature[50].SEq2[200] = 9;
  ris.Saldature[50].Nome = "S50";
  EXPECT_EQ(Valore("Sezione.Nome"), "HEA200            ");
  EXPECT_EQ(Valore("Sezione.H"), "190");
  EXPECT_EQ(Valore("MatAcc.Fyk"), "2350");
  EXPECT_EQ(Valore("MatVit.GammaM2"), "1.25");
  EXPECT_EQ(Valore("ProfiliLib(3).Nome"), "IPE100            ");
  EXPECT_EQ(Valore("ProfiliLib(2000).Tipo"), "I");
  EXPECT_EQ(Valore("AcciaiBase(2).Nome"), "S 275 (FE 430)");
  EXPECT_EQ(Valore("VitiBase(1).Nome"), "8.8");
  EXPECT_EQ(Valore("AcciaiCABase(50).V(9)"), "4");
  EXPECT_EQ(Valore("MemoriaMateriali(1).Nome"), "colonna TA");
  EXPECT_EQ(Valore("MemoriaMateriali(4).Nome"), "tirafondi SLU");
  EXPECT_EQ(Valore("GammaMBase(4)"), "1.35");
  EXPECT_EQ(Valore("Saldature(3).PZ(1)"), "100.5");
  EXPECT_EQ(Valore("Saldature(3).TauPa(1,2)"), "8");
  EXPECT_EQ(Valore("Saldature(50).SEq2(200)"), "9");
  EXPECT_EQ(Valore("Saldature(50).Nome"), "S50");
}

TEST_F(Nomi, Rifiuti) {
  for (const char* nome :
       {// outside the array
        "TfZ(9)", "TfZ(-1)", "SollN(201)", "NodiStr(0)", "NodiStr(2001)", "ProfiliLib(0).Nome", "ProfiliLib(2001).Nome", "DiamVal(100)",
        "DiamVal(-1)", "ParNodo(28)", "AcciaiBase(51).Nome", "MemoriaMateriali(0).Nome", "MemoriaMateriali(5).Nome", "Saldature(0).Lung",
        "Saldature(51).Lung", "Saldature(1).PZ(0)", "Saldature(1).PZ(4)", "Saldature(1).TauPa(201,1)", "SigmaTir(201,1)", "SigmaTir(1,9)",
        "SigmaTir(1,0)", "SPiastraTir(1,3,1)", "SPiastraTir(1,0,1)", "FbRd(0)", "GammaMBase(5)", "TfZ(4294967297)",
        "TfZ(99999999999999999999)",
        // number and form of the indices
        "TfZ", "TfZ()", "TfZ(1", "TfZ 1", "TfZ(1)(2)", "TfZ(1,2)", "TfZ(a)", "TfZ(1.5)", "TfZ(1 2)", "TfZ(,1)", "SigmaTir(1)",
        "SigmaTir(1,2,3)", "LatoZ(1)", "LatoZ.H", "TfZ(1).H", "TfZ(1) ", "TfZ(1)x",
        // unknown names, records without a field
        "", ".", "(", "latoz", "LatoX", "Sezione", "Sezione.", "Sezione.Q", "Sezione(1).H", "Saldature", "Saldature(1)", "Saldature(1).",
        "Saldature.Lung", "Sezione.H.H", "Sezione.Nome(1)", ".H"})
    EXPECT_EQ(Valore(nome), RIFIUTO) << nome;
}

// Row 0 of the lists exists and stays free: a script sees that nothing touches it.
TEST_F(Nomi, RigaZeroDegliElenchi) {
  EXPECT_EQ(Valore("SollN(0)"), "0");
  EXPECT_EQ(Valore("TfZ(0)"), "0");
  EXPECT_EQ(Valore("AcciaiBase(0).Nome"), "");
  EXPECT_EQ(Valore("SigmaTir(0,1)"), "0");
}

// Every row of the tables answers at its first and last indices, under a name that is there once.
static void OgniNome(std::span<const RigaNome> righe, const std::string& prefisso, int& contati) {
  for (const RigaNome& r : righe) {
    int uguali = 0;
    for (const RigaNome& q : righe) uguali += std::string(q.nome) == r.nome;
    EXPECT_EQ(uguali, 1) << r.nome;
    for (const bool ultimo : {false, true}) {
      std::string nome = prefisso + r.nome;
      for (int d = 0; d < r.numDim; ++d) nome += (d == 0 ? "(" : ",") + std::to_string(ultimo ? r.dim[d].ultimo : r.dim[d].primo);
      if (r.numDim > 0) nome += ")";
      if (r.genere == GenereNome::Record) {
        ASSERT_FALSE(r.campi.empty()) << nome;
        OgniNome(r.campi, nome + ".", contati);
        continue;
      }
      ++contati;
      EXPECT_NE(Valore(nome), RIFIUTO) << nome;
    }
  }
}
TEST_F(Nomi, OgniRigaRisponde) {
  int contati = 0;
  OgniNome(NomiModello(), "", contati);
  EXPECT_GT(contati, 400);
}

TEST_F(Nomi, TabelleDiAltreStanze) {
  static double PianoDef[4] = {0, 1, 2, 3};
  static double AreaTf = 245;
  static const RigaNome MOTORE[] = {Voce("PianoDef", PianoDef), Voce("AreaTf", AreaTf), Voce("LatoZ", AreaTf)};
  const std::span<const RigaNome> altre[] = {MOTORE};
  std::string v = "resta";
  EXPECT_TRUE(ValoreModello("PianoDef(3)", v, altre));
  EXPECT_EQ(v, "3");
  EXPECT_FALSE(ValoreModello("PianoDef(4)", v, altre));
  EXPECT_FALSE(ValoreModello("PianoDef(0)", v, altre));
  EXPECT_TRUE(ValoreModello("AreaTf", v, altre));
  EXPECT_EQ(v, "245");
  nodo.LatoZ = 7;
  EXPECT_TRUE(ValoreModello("LatoZ", v, altre));
  EXPECT_EQ(v, "7") << "the model's own names come first";
  EXPECT_FALSE(ValoreModello("AreaTf", v));
}

TEST_F(Nomi, ScalariDellaVerifica) {
  static const StatoPresInfl PRESINFL_VUOTO;
  presInfl = PRESINFL_VUOTO;
  verifica = {};
  presInfl.PianoDef[3] = -0.25;
  presInfl.DentroBarra[8] = true;
  presInfl.K[2][3] = 5;
  verifica.AreaTf = 245;
  const std::span<const RigaNome> altri[] = {NomiLavoro()};
  const auto valore = [&altri](const char* nome) {
    std::string v;
    return ValoreModello(nome, v, altri) ? v : "rifiuto";
  };
  EXPECT_EQ(valore("PianoDef(3)"), "-0.25");
  EXPECT_EQ(valore("PianoDef(0)"), "rifiuto");
  EXPECT_EQ(valore("PianoDef(4)"), "rifiuto");
  EXPECT_EQ(valore("DentroBarra(8)"), "1");
  EXPECT_EQ(valore("K(2,3)"), "5");
  EXPECT_EQ(valore("AreaTf"), "245");
  EXPECT_EQ(valore("SommaR2"), "0");
}

// The rooms beside the model: import, drawing store, panels; no name stands twice, or one would hide the other.
TEST_F(Nomi, AltreStanze) {
  const std::span<const RigaNome> altri[] = {NomiLavoro(), NomiCollegamento(), NomiDisegno(), NomiPannelli()};
  const auto valore = [&altri](const char* nome) {
    std::string v;
    return ValoreModello(nome, v, altri) ? v : "rifiuto";
  };
  collegamento.SezioneImp.Nome = "IPE200";
  collegamento.SezioniStr[2].H = 120;
  collegamento.AsteNodo[1] = -12;
  static const Disegno VUOTO;
  disegno = VUOTO;
  disegno.NumLinee = 3;
  disegno.CoordY[0] = 2.5;
  insDati.StatoTxt = "Opzioni";
  EXPECT_EQ(valore("SezioneImp.Nome"), "IPE200");
  EXPECT_EQ(valore("SezioniStr(2).H"), "120");
  EXPECT_EQ(valore("AsteNodo(1)"), "-12");
  EXPECT_EQ(valore("AsteNodo(0)"), "rifiuto");
  EXPECT_EQ(valore("AsteNodo(2001)"), "rifiuto");
  EXPECT_EQ(valore("NumLinee"), "3");
  EXPECT_EQ(valore("CoordY(0)"), "2.5");
  EXPECT_EQ(valore("CoordY(50001)"), "rifiuto");
  EXPECT_EQ(valore("StatoTxt"), "Opzioni");
  disegno.DestDis = GENDIS;
  disegno.ColCorr = 4;
  disegno.TesStr = {"A-A", "Pianta"};
  disegno.QuoTipo[1] = 'V';
  disegno.QuoTesto = {"", "Stringa_di_default"};
  stiliGrb.AltStile[100] = 2.5;
  esecutivo.BoxCYMin = -3;
  quote.QuotaRibaltata = true;
  EXPECT_EQ(valore("DestDis"), "gendis");
  EXPECT_EQ(valore("ColCorr"), "4");
  EXPECT_EQ(valore("TesStr(1)"), "Pianta");
  EXPECT_EQ(valore("TesStr(2)"), "") << "room of the table that no text has taken";
  EXPECT_EQ(valore("TesStr(15000)"), "");
  for (const char* nome : {"TesStr", "TesStr(-1)", "TesStr(15001)", "TesStr(1,1)", "TesStr(1).x", "QuoTesto(1001)"})
    EXPECT_EQ(valore(nome), "rifiuto") << nome;
  EXPECT_EQ(valore("QuoTipo(1)"), "V");
  EXPECT_EQ(valore("QuoTipo(0)"), "");
  EXPECT_EQ(valore("QuoTesto(1)"), "Stringa_di_default");
  EXPECT_EQ(valore("AltStile(100)"), "2.5");
  EXPECT_EQ(valore("BoxCYMin"), "-3");
  EXPECT_EQ(valore("QuotaRibaltata"), "1");
  disegno.DestDis = {};
  disegno.ColCorr = 0;
  disegno.TesStr.clear();
  disegno.QuoTipo[1] = '\0';
  disegno.QuoTesto.clear();
  stiliGrb = {};
  esecutivo = {};
  quote = {};
  std::vector<std::string> nomi;
  for (const RigaNome& r : NomiModello()) nomi.emplace_back(r.nome);
  for (const std::span<const RigaNome> righe : altri)
    for (const RigaNome& r : righe) nomi.emplace_back(r.nome);
  std::sort(nomi.begin(), nomi.end());
  const auto doppio = std::adjacent_find(nomi.begin(), nomi.end());
  EXPECT_EQ(doppio, nomi.end()) << *doppio;
}
