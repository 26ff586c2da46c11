// tests/unita/test_copione.cpp - the script's instructions on the sample suite: what is carried out, what is refused.
#include "app/batch/copione.h"

#include <gtest/gtest.h>

#include "app/batch/piattaforma_batch.h"
#include "corredo/registratore.h"
#include "corredo/suite_prova.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "panels/FormTF.h"
#include "panels/InsDati.h"
#include "panels/pannelli.h"

static const StatoOspite OSPITE_VUOTO;

class Copione : public testing::Test {
 protected:
  void SetUp() override {
    radice = PreparaSuite("copione");
    ospite = OSPITE_VUOTO;
    copione = {};
    ASSERT_TRUE(AvviaSuite(radice));
  }
  std::string Stampa(const char* riga) {  // what the line prints; "!" in front when it was refused
    testing::internal::CaptureStdout();
    const bool riuscita = EseguiRiga(riga);
    return (riuscita ? "" : "!") + testing::internal::GetCapturedStdout();
  }
  std::string radice;
};

TEST_F(Copione, RigheRifiutate) {
  static const char* const RIGHE[] = {
    "prova",
    "premi",
    "premi InsDati",
    "premi InsDati.Inesistente",
    "premi insdati.Chiudi",
    "premi InsDati.chiudi",
    "premi Altro.Chiudi",
    "premi InsDati.Chiudi(0)",
    "premi InsDati.Chiudi altro",
    "premi InsDati.LatoTxt(4)",
    "premi InsDati.EsportaSollButt",
    "scrivi InsDati.LatoTxt(0) 5",
    "scrivi InsDati.LatoTxt 5",
    "scrivi InsDati.LatoTxt(5) 5",
    "scrivi InsDati.LatoTxt(-1) 5",
    "scrivi InsDati.LatoTxt(x) 5",
    "scrivi InsDati.LatoTxt(4 5",
    "scrivi InsDati.TxtSN(0) 5",
    "scrivi InsDati.DTf(0) 5",
    "scrivi InsDati.TraveP HEA200",
    "invio InsDati.TraveP",
    "scegli InsDati.TraveP",
    "scegli InsDati.TraveP -1",
    "scegli InsDati.TraveP 132",
    "scegli InsDati.TraveP \"HEA201\"",
    "scegli InsDati.TraveP HEA200",
    "scegli InsDati.TipoVer",
    "scegli InsDati.TipoVer 1",
    "scegli InsDati.TipoVer(2)",
    "scegli InsDati.TipoVer(1) 1",
    "scegli InsDati.ChSI 1",
    "spunta InsDati.ChSI",
    "spunta InsDati.ChSI 2",
    "spunta InsDati.ChSI -1",
    "spunta InsDati.CheckMatBase 0",  // ticking is pressing; there is nothing to untick
    "spunta InsDati.CasCar(0) 1",
    "spunta InsDati.Verifica 1",
    "scorri InsDati.ScrollSa 3",
    "scorri InsDati.LatoTxt(4) 3",
    "scorri InsDati.ComboEsposizione 1",
    "scorri InsDati.ChSI 1",
    "doppioclic InsDati.Lsa(0)",
    "passa InsDati.LatoTxt(0)",
    "passa Op_Nodo",
    "attendi",
    "attendi -1",
    "attendi 1s",
    "rispondi Si",
    "file",
    "file altro.qb7 0",
    "mostra InsDati",
    "mostra InsDati.Inesistente",
    "mostra InsDati.LatoTxt",
    "mostra InsDati.LatoTxt(5)",
    "voci InsDati.LatoTxt(4)",
    "modello",
    "modello Inesistente",
    "modello TfZ",
    "modello TfZ(9)",
    "modello TfZ(1,1)",
    "modello SollN(201)",
    "modello LatoZ(1)",
    "Mostra InsDati.SSTab",
  };
  for (const char* riga : RIGHE) {
    const std::string modello = nodo.NomeNodo + std::to_string(nodo.TipoVer) + std::to_string(nodo.SpessPiastra);
    EXPECT_EQ(Stampa(riga), "!") << riga;
    EXPECT_EQ(nodo.NomeNodo + std::to_string(nodo.TipoVer) + std::to_string(nodo.SpessPiastra), modello) << riga;
  }
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Copione, RigheSenzaIstruzione) {
  for (const char* riga : {"", "   ", "\t", "# premi InsDati.Boh", "  # altro"}) EXPECT_EQ(Stampa(riga), "") << riga;
}

// Blanks in front of the control do not count; those of the text do.
TEST_F(Copione, BlankTraLeParole) {
  EXPECT_EQ(Stampa("  mostra   InsDati.Verifica"), Stampa("mostra InsDati.Verifica"));
  EXPECT_EQ(Stampa("scrivi   InsDati.GolaTxt  7"), "");
  EXPECT_EQ(insDati.GolaTxt.testo, " 7");
}

TEST_F(Copione, RigheDelTesto) {
  CaricaCopione("\xEF\xBB\xBFuno\r\n\ndue\nà\\n");
  EXPECT_EQ(copione.righe, (std::vector<std::string>{"uno", "", "due", "à\\n"}));
  CaricaCopione("");
  EXPECT_TRUE(copione.righe.empty());
}

TEST_F(Copione, CodeDelleRisposteEDeiFile) {
  for (const char* riga : {"rispondi Annulla", "rispondi OK", "file Annulla", "file /a b/c.qb7", "file c:\\x y.dxf 3", "file 7"}) {
    EXPECT_EQ(Stampa(riga), "") << riga;
  }
  EXPECT_EQ(ospite.risposte, (std::deque<bool>{false, true}));
  ASSERT_EQ(ospite.file.size(), 4u);
  EXPECT_FALSE(ospite.file[0].scelto);
  EXPECT_EQ(ospite.file[1].percorso, "/a b/c.qb7");
  EXPECT_EQ(ospite.file[1].filtro, 1);  // no filter named: the first
  EXPECT_EQ(ospite.file[2].percorso, "c:\\x y.dxf");
  EXPECT_EQ(ospite.file[2].filtro, 3);
  EXPECT_EQ(ospite.file[3].percorso, "7");  // a number alone is a path
}

// A picture: strokes of each colour as red green blue (0xBBGGRR in the model), in rising order.
TEST_F(Copione, TrattiDiUnImmagine) {
  Tela& t = insDati.telaNodo;
  PulisciTela(t);
  EXPECT_EQ(Stampa("mostra InsDati.Nodo"), "InsDati.Nodo = 0\n");
  SegmentoTela(t, 0, 0, 1, 1, 0x0000FF);
  SegmentoTela(t, 0, 0, 1, 1, 0xFF8000);
  ArcoTela(t, 0, 0, 1, 0, 0, 0x0000FF);
  EXPECT_EQ(Stampa("mostra InsDati.Nodo"), "InsDati.Nodo = 1 #0080FF, 2 #FF0000\n");
}

// A line end inside a text is printed as \\n, blanks as they stand, wherever the text comes from.
TEST_F(Copione, TestiSuUnaRiga) {
  insDati.Label7.testo = " a\r\nb ";
  EXPECT_EQ(Stampa("mostra InsDati.Label7"), "InsDati.Label7 =  a\\nb \n");
  MostraVoci(insDati.ComboEsposizione, {" c\rd ", "e\nf"});
  EXPECT_EQ(Stampa("voci InsDati.ComboEsposizione"), "InsDati.ComboEsposizione(0) =  c\\nd \nInsDati.ComboEsposizione(1) = e\\nf\n");
  MostraScelta(insDati.ComboEsposizione, 0);
  EXPECT_EQ(Stampa("mostra InsDati.ComboEsposizione"), "InsDati.ComboEsposizione = 0 \" c\\nd \"\n");
  nodo.SollNome[1] = " g\r\nh ";
  EXPECT_EQ(Stampa("modello SollNome(1)"), "SollNome(1) =  g\\nh \n");
}

TEST_F(Copione, ListaSenzaScelta) {
  MostraScelta(insDati.TraveP, -1);
  EXPECT_EQ(Stampa("mostra InsDati.TraveP"), "InsDati.TraveP = -1 \"\"\n");
}

// What is hidden and disabled says both, in this order.
TEST_F(Copione, NascostoEDisabilitato) {
  MostraVisibile(insDati.GolaTxt, false);
  EXPECT_EQ(Stampa("mostra InsDati.GolaTxt"), "InsDati.GolaTxt = 7 [nascosto]\n");
  MostraAbilitato(insDati.GolaTxt, false);
  EXPECT_EQ(Stampa("mostra InsDati.GolaTxt"), "InsDati.GolaTxt = 7 [nascosto] [disabilitato]\n");
  MostraVisibile(insDati.GolaTxt, true);
  EXPECT_EQ(Stampa("mostra InsDati.GolaTxt"), "InsDati.GolaTxt = 7 [disabilitato]\n");
}

// The entry of a text: as written first, then without regard to case.
TEST_F(Copione, VocePerTesto) {
  MostraVoci(insDati.ComboEsposizione, {"prova", "Prova", " PROVA due "});
  EXPECT_EQ(Stampa("scegli InsDati.ComboEsposizione \"Prova\""), "");
  EXPECT_EQ(insDati.ComboEsposizione.scelta, 1);
  EXPECT_EQ(Stampa("scegli InsDati.ComboEsposizione \"PROVA\""), "");
  EXPECT_EQ(insDati.ComboEsposizione.scelta, 0);
  EXPECT_EQ(Stampa("scegli InsDati.ComboEsposizione \"prova DUE\""), "");
  EXPECT_EQ(insDati.ComboEsposizione.scelta, 2);
  EXPECT_EQ(Stampa("scegli InsDati.ComboEsposizione \"prova tre\""), "!");
}

// A look is no use: the entries of a list print also where a user could not reach it.
TEST_F(Copione, VociDiUnaListaFuoriPortata) {
  const std::string voci = "InsDati.ComboEsposizione(0) = prima\nInsDati.ComboEsposizione(1) = seconda\n";
  MostraVoci(insDati.ComboEsposizione, {"prima", "seconda"});
  MostraAbilitato(insDati.ComboEsposizione, false);
  EXPECT_EQ(Stampa("voci InsDati.ComboEsposizione"), voci);
  EXPECT_EQ(Stampa("scegli InsDati.ComboEsposizione 1"), "!");
  MostraAbilitato(insDati.ComboEsposizione, true);
  MostraVisibile(insDati.ComboEsposizione, false);
  EXPECT_EQ(Stampa("voci InsDati.ComboEsposizione"), voci);
  EXPECT_EQ(Stampa("scegli InsDati.ComboEsposizione 1"), "!");
}

// While a modal panel is open only its controls can be used; the others can be looked at.
TEST_F(Copione, DentroUnPannelloModale) {
  PannelloMostrato(FormTF, true);
  EXPECT_EQ(Stampa("premi InsDati.Singolo"), "!");
  EXPECT_EQ(Stampa("passa InsDati"), "!");
  EXPECT_EQ(Stampa("mostra InsDati.GolaTxt"), "InsDati.GolaTxt = 7\n");
  EXPECT_EQ(Stampa("modello LatoZ"), "LatoZ = 500\n");
  EXPECT_EQ(Stampa("voci InsDati.ComboEsposizione").substr(0, 50), "InsDati.ComboEsposizione(0) = Esposto a fenomeni c");
  PannelloNascosto(FormTF);
  EXPECT_EQ(Stampa("premi InsDati.Singolo"), "");
}
