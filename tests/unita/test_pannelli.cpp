// The smaller panels: anchor chooser, drawing options, material properties, load import, bar selection, section import, and the main panel's
// commands that open them. The program is started on a copy of the sample suite; values by hand from what the test itself sets.
#include <gtest/gtest.h>

#include "core/file.h"
#include "corredo/modello_minimo.h"
#include "corredo/registratore.h"
#include "corredo/suite_prova.h"
#include "link/collegamento.h"
#include "model/materiali.h"
#include "panels/FormTF.h"
#include "panels/InsDati.h"
#include "panels/Op_Nodo.h"
#include "panels/PropMateriali.h"
#include "panels/Sez3D.h"
#include "panels/Soll3D.h"
#include "panels/pannelli.h"
#include "panels/selezione.h"

namespace {

struct Pannelli_ : testing::Test {
  std::string lavoro;
  void SetUp() override {
    const std::string radice = PreparaSuite("pannelli");
    ASSERT_TRUE(AvviaSuite(radice));
    lavoro = CartellaLavoro(radice);
    registratore.eventi.clear();
  }
  void Modello() {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\struttur.str"), STRUTTURA_MINIMA);
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\sezioni_"),
               "2\r\n1,\"P_HEA 200\",0\r\nr\r\nr\r\nr\r\nr\r\n2,\"Composta saldata 1\",0\r\nr\r\nr\r\nr\r\nr\r\n");
  }
};

Controllo& C(const Pannello& p, const char* nome, int i = SENZA_INDICE) {
  Controllo* c = TrovaControllo(p, nome, i);
  EXPECT_NE(c, nullptr) << nome;
  static Controllo manca;
  return c == nullptr ? manca : *c;
}

bool Premi(const Pannello& p, const char* nome, int i = SENZA_INDICE) { return Scatena(p, C(p, nome, i), Evento::Cambio); }
void Scrivi(const Pannello& p, const char* nome, int i, const char* testo) { EXPECT_TRUE(UtenteScrive(p, C(p, nome, i), testo)); }

std::string UltimoEvento() { return registratore.eventi.empty() ? "" : registratore.eventi.back(); }

}  // namespace

TEST_F(Pannelli_, OgniPannelloHaIlSuoNome) {
  for (const char* nome : {"InsDati", "Op_Nodo", "PropMateriali", "FormTF", "Soll3D", "selezione", "Sez3D"}) EXPECT_NE(TrovaPannello(nome), nullptr) << nome;
}

// ---- anchor chooser ----

TEST_F(Pannelli_, SceltaTirafondiAllaPrimaApertura) {
  Premi(InsDati, "DimTf");
  EXPECT_EQ(registratore.pannelli.back(), "FormTF");
  EXPECT_EQ(formTF.Combo1.voci.size(), 22u);
  EXPECT_EQ(formTF.Combo1.voci[6], "M20");
  EXPECT_EQ(formTF.Combo1.scelta, 6);                     // row 7, from 1
  EXPECT_EQ(formTF.Combo2.scelta, 6);
  EXPECT_EQ(C(FormTF, "Label6", 8).testo, "(diam.=20 ; Area=245)");
  EXPECT_EQ(C(FormTF, "Label6", 3).testo, "(diam.=20 ; Area=245)");
  const struct { int campo; const char* testo; } ATTESI[] = {
      {11, "120"}, {12, "500"}, {13, "70"}, {14, "450"}, {15, "10"}, {17, "50"}, {19, "100"}, {20, "200"}};
  for (const auto& a : ATTESI) EXPECT_EQ(C(FormTF, "GeoTfTxt", a.campo).testo, a.testo) << a.campo;
  EXPECT_EQ(C(FormTF, "Label6", 5).testo, "x 70");
  EXPECT_EQ(formTF.SSTab1.scelta, 0);
  EXPECT_EQ(C(FormTF, "SSTab1").voci[1], " Tipo 2");
  EXPECT_EQ(C(FormTF, "Label2", 0).testo, "dimensioni in mm");
  ASSERT_EQ(formTF.tela.tratti.size(), 2u);
  EXPECT_EQ(formTF.tela.tratti[1].raggio, 504);
  EXPECT_EQ(formTF.tela.tratti[0].colore, 192);
}

TEST_F(Pannelli_, OkPortaLeMisureDelTipoUno) {
  registratore.dentro.push_back([] {
    Scrivi(FormTF, "GeoTfTxt", 13, "80");
    EXPECT_EQ(formTF.Label6[5].testo, "x 80");
    Scrivi(FormTF, "GeoTfTxt", 12, "");                   // an empty field gives 0
    Scrivi(FormTF, "GeoTfTxt", 1, "999");                 // the other tab's field
    UtenteSceglie(FormTF, formTF.Combo1, 8);              // M24
    EXPECT_EQ(nodo.TfDiamIdx, 9);
    EXPECT_EQ(nodo.TfFi, 20);                             // only OK takes the diameter
    EXPECT_EQ(formTF.Combo2.scelta, 6);
    Premi(FormTF, "MatBulOK");
  });
  Premi(InsDati, "DimTf");
  EXPECT_FALSE(formTF.aperto);
  EXPECT_EQ(nodo.TfR, 80);
  EXPECT_EQ(nodo.TfL, 0);
  EXPECT_EQ(nodo.TfLFt, 120);
  EXPECT_EQ(nodo.TfFi, 24);
  EXPECT_EQ(insDati.TFLab[5].testo, "24");
}

TEST_F(Pannelli_, TipoDueLeggeDueVolteIlCampoNove) {
  registratore.dentro.push_back([] {
    UtenteSceglie(FormTF, formTF.SSTab1, 1);
    EXPECT_EQ(nodo.TipoTirafondo, 1);
    EXPECT_EQ(C(FormTF, "GeoTfTxt", 9).testo, "100");     // the panel's own text until it is loaded for this form
    Scrivi(FormTF, "GeoTfTxt", 9, "35");
    Scrivi(FormTF, "GeoTfTxt", 15, "77");                 // no field of this form
    Premi(FormTF, "MatBulOK");
  });
  Premi(InsDati, "DimTf");
  EXPECT_EQ(nodo.TfLFil, 35);
  EXPECT_EQ(nodo.TfDForo, 35);
  EXPECT_EQ(nodo.TfLF, 10);
  EXPECT_EQ(nodo.TfHMalta, 50);
}

TEST_F(Pannelli_, DiametroEIndicePossonoDivergere) {
  registratore.dentro.push_back([] {
    UtenteSceglie(FormTF, formTF.Combo2, 0);              // the other form's list moves the row
    Premi(FormTF, "MatBulOK");
  });
  Premi(InsDati, "DimTf");
  EXPECT_EQ(nodo.TfDiamIdx, 1);
  EXPECT_EQ(nodo.TfFi, 20);
}

TEST_F(Pannelli_, ChiusoSenzaOkLasciaIlModello) {
  registratore.dentro.push_back([] {
    Scrivi(FormTF, "GeoTfTxt", 13, "80");
    piattaforma.chiudi(FormTF);
  });
  Premi(InsDati, "DimTf");
  EXPECT_EQ(nodo.TfR, 70);
}

// ---- drawing options ----

TEST_F(Pannelli_, OpzioniRiempiteAllAvvio) {
  for (int i = 0; i <= 14; ++i) EXPECT_FALSE(C(Op_Nodo, "Par_Nodo", i).testo.empty()) << i;
  EXPECT_EQ(suite.ParNodo[17], suite.ParNodo[13]);        // set from entry 13 at each reading
  EXPECT_EQ(TrovaControllo(Op_Nodo, "Par_Nodo", 17), nullptr);
  EXPECT_EQ(C(Op_Nodo, "LPar", 5).testo, "Colore testo");
  EXPECT_EQ(C(Op_Nodo, "LPar", 15).testo, "Scala nodo/Scala tiraf.");
  EXPECT_EQ(C(Op_Nodo, "LPar", 25).testo, "Stile quote particolari GRB");
  EXPECT_EQ(C(Op_Nodo, "Option1", 1).testo, "Quote inf.");
  EXPECT_EQ(C(Op_Nodo, "Def").testo, "Salva");
}

TEST_F(Pannelli_, QuoteInferioriCapovolgonoLaDistanza) {
  Scrivi(Op_Nodo, "Par_Nodo", 7, "20");
  Scrivi(Op_Nodo, "Par_Nodo", 13, "5");
  Scrivi(Op_Nodo, "Par_Nodo", 15, "3");
  Scrivi(Op_Nodo, "Par_Nodo", 16, "6");
  Scrivi(Op_Nodo, "Par_Nodo", 26, "2");
  UtenteSceglie(Op_Nodo, opNodo.Option1[1], 1);
  UtenteSceglie(Op_Nodo, opNodo.CheckQuote, 0);
  UtenteSceglie(Op_Nodo, opNodo.CheckDistinta, 1);
  ApplicaOpzioni();
  EXPECT_EQ(suite.ParNodo[13], -25);                      // -(5) - (20): with the new height
  EXPECT_EQ(suite.ParNodo[16], 1);
  EXPECT_EQ(suite.ParNodo[17], 5);
  EXPECT_EQ(suite.ParNodo[19], 3);
  EXPECT_EQ(suite.ParNodo[20], 6);
  EXPECT_EQ(suite.ParNodo[26], 2);
  EXPECT_EQ(suite.ParNodo[15], 0);
  EXPECT_EQ(suite.ParNodo[18], 1);
  Scrivi(Op_Nodo, "Par_Nodo", 16, "4");                   // stays on the panel: Opz does not set it
  Premi(InsDati, "Opz");
  EXPECT_EQ(C(Op_Nodo, "Par_Nodo", 13).testo, "5");
  EXPECT_EQ(C(Op_Nodo, "Par_Nodo", 16).testo, "4");
  EXPECT_TRUE(opNodo.aperto);
  UtenteSceglie(Op_Nodo, opNodo.Option1[0], 1);
  ApplicaOpzioni();
  EXPECT_EQ(suite.ParNodo[13], 5);
  EXPECT_EQ(suite.ParNodo[16], 0);
  Premi(Op_Nodo, "Annulla");
  EXPECT_FALSE(opNodo.aperto);
}

TEST_F(Pannelli_, SalvaRiscriveIlFileDelleOpzioni) {
  Scrivi(Op_Nodo, "Par_Nodo", 0, "3.5");
  Premi(Op_Nodo, "Def");
  EXPECT_EQ(LeggiByte(RisolviPercorso(suite.DirCustom + "\\OpzioniNodi1-5.txt")).substr(0, 7), " 3.5 \r\n");
  EXPECT_FALSE(registratore.finito);
  suite.DirCustom += "\\manca";
  Premi(Op_Nodo, "Def");
  ASSERT_GE(registratore.eventi.size(), 2u);
  EXPECT_EQ(registratore.eventi[registratore.eventi.size() - 2],
            "[messaggio] nessuna | ERRORE | Errore: file " + suite.DirCustom + "\\OpzioniNodi1-5.txt errato o mancante.");
  EXPECT_TRUE(registratore.finito);
}

// ---- material properties ----

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
  nodo.MatTir.Ftk = 4300;
  nodo.MatVit.GammaM2 = 1.25;
  nodo.MatCls.Nome = "C25/30";
  nodo.MatCls.Rck = 300;
  nodo.MatCls.GammaC = 1.5;
  Premi(InsDati, "PropMatButton");
  EXPECT_EQ(registratore.pannelli.back(), "PropMateriali");
  const struct { const char* nome; const char* testo; } ATTESI[] = {
      {"Unit", "[N/mm2]"},
      {"FrameAcc", "Acciaio profili e piastre - [NTC08 11.3.4.1] - Tipo S 275 (FE 430)"},
      {"fkLabel", "275"}, {"gMLabel", "1.05"}, {"gMTLabel", "1.1"},
      {"fdLabel", "261.9"},                               // 275 / 1.05 = 261.905
      {"fdtLabel", "250"}, {"fd40Label", "-"},            // a negative stress
      {"SAmmILabel", "190"}, {"SAmmIILabel", "213.75"},
      {"FrameTir", "Tirafondi - [NTC08 11.3.4.1] - Tipo S 275 (FE 430)"},
      {"fyTirLabel", "275"}, {"gMTirLabel", "1.25"}, {"fydTirLabel", "220"}, {"ftTirLabel", "430"}, {"ftdTirLabel", "344"},
      {"SAmmITirLabel", "190"}, {"TauAmmITirLabel", "109.7"},        // 190 / sqrt 3 = 109.697
      {"TauAmmIITirLabel", "123.41"},                     // 123.409
      {"FrameCls", "Calcestruzzo - [NTC08 4.1] - Classe C25/30"},
      {"RckClsLabel", "30"}, {"fckClsLabel", "24.9"}, {"gMClsLabel", "1.5"},
      {"fcdClsLabel", "14.11"},                           // 24.9 * .85 / 1.5
      {"SammClsLabel", "9.75"}};                          // 60 + 150 / 4 = 97.5 daN/cm2
  for (const auto& a : ATTESI) EXPECT_EQ(C(PropMateriali, a.nome).testo, a.testo) << a.nome;
  EXPECT_FALSE(propMateriali.FrameBull.visibile);
  EXPECT_FALSE(propMateriali.FrameAccPia.visibile);
  EXPECT_TRUE(propMateriali.FrameTir.visibile);
}

TEST_F(Pannelli_, FattoreParzialeNulloNonApreIlPannello) {
  nodo.MatAcc.GammaM = 0;
  Premi(InsDati, "PropMatButton");
  EXPECT_EQ(UltimoEvento(), "[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: il comando non può continuare.");
  EXPECT_FALSE(propMateriali.aperto);
}

// ---- load import ----

TEST_F(Pannelli_, ElenchiDellImportazione) {
  EXPECT_EQ(C(Soll3D, "CdCTxt").testo, "0");
  EXPECT_EQ(C(Soll3D, "NodiTxt").testo, "");
  EXPECT_EQ(C(Soll3D, "Label2").testo, "Esempio di inserimento: 1,2,3-9");
  EXPECT_EQ(C(Soll3D, "LCdC").testo, "Casi di carico ");
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "1");
  Scrivi(Soll3D, "AsteTxt", SENZA_INDICE, "2");
  Scrivi(Soll3D, "CdCTxt", SENZA_INDICE, "3");
  Scrivi(Soll3D, "SesTxt", SENZA_INDICE, "4");
  Premi(Soll3D, "Annulla", 0);
  EXPECT_EQ(soll3D.NodiTxt.testo, "");
  EXPECT_EQ(soll3D.AsteTxt.testo, "2");
  Premi(Soll3D, "Annulla", 1);
  Premi(Soll3D, "ACdc");
  Premi(Soll3D, "ASes");
  EXPECT_EQ(soll3D.AsteTxt.testo, "");
  EXPECT_EQ(soll3D.CdCTxt.testo, "0");
  EXPECT_EQ(soll3D.SesTxt.testo, "0");
}

TEST_F(Pannelli_, TuttiICasiDelMetodo) {
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\combinaz.tot"),
             "4\r\n1\r\nn\r\na\r\nTIPOVER=TENSAMM|\r\n0\r\n0\r\n2\r\nn\r\na\r\nTIPOVER=SLU|\r\n0\r\n0\r\n"
             "5\r\nn\r\na\r\nTIPOVER=RARA\r\n0\r\n0\r\n9\r\nn\r\na\r\nx\r\n0\r\n0\r\n");
  SelezionaVoce(insDati.TipoVer[0], 1);
  Premi(Soll3D, "TuttiCdc");
  EXPECT_EQ(soll3D.CdCTxt.testo, "2");
  SelezionaVoce(insDati.TipoVer[0], 0);
  Premi(Soll3D, "TuttiCdc");
  EXPECT_EQ(soll3D.CdCTxt.testo, "1,5");
  EliminaFile(suite.DirLavoro + "\\combinaz.tot");
  Premi(Soll3D, "TuttiCdc");
  EXPECT_EQ(soll3D.CdCTxt.testo, "0");
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | ERRORE | Errore: file " + suite.DirLavoro + "\\combinaz.tot errato o mancante.");
}

TEST_F(Pannelli_, TutteLeCondizioni) {
  Modello();
  Premi(Soll3D, "TuttiCdc2");
  EXPECT_EQ(soll3D.CdC2Txt.testo, "1,2");
  EliminaFile(suite.DirLavoro + "\\struttur.str");
  Premi(Soll3D, "TuttiCdc2");
  EXPECT_EQ(soll3D.CdC2Txt.testo, "1,2");
  EXPECT_EQ(UltimoEvento(), "[messaggio] nessuna | NODO COLONNA - PLINTO | ERRORE: STRUTTUR.STR errato o mancante");
}

TEST_F(Pannelli_, ImportaAccodaETogliIDoppi) {
  Modello();
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\astec007.bin"),
             FileRisultatiDi(1, 1, 3, {{5, 100, 1, 2, 3, 4, 5}, {5, 100, 1, 2, 3, 4, 5}, {5, -7, 0, 0, 0, 0, 0}}));
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\aste_001.bin"), FileRisultatiDi(1, 1, 1, {{5, 8, 0, 0, 0, 0, 0}}));
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "10");
  Scrivi(Soll3D, "AsteTxt", SENZA_INDICE, "5");
  Scrivi(Soll3D, "CdCTxt", SENZA_INDICE, "7");
  Scrivi(Soll3D, "CdC2Txt", SENZA_INDICE, "1");
  Premi(Soll3D, "Importa");
  EXPECT_EQ(nodo.NumSoll, 3);
  EXPECT_EQ(nodo.SollN[1], 100);
  EXPECT_EQ(nodo.SollN[2], -7);
  EXPECT_EQ(nodo.SollNome[3], "Cond 1 As. 5 Nd. 10");
  EXPECT_EQ(UltimoEvento(), "[importazione] LETTI 4, PRESI 4, DOPPI TOLTI 1");
  EXPECT_TRUE(insDati.EsportaSollButt.abilitato);
  EXPECT_TRUE(insDati.Lsa[2].visibile);
  EXPECT_EQ(insDati.Lsa[0].testo, "Caso 7 As. 5 Nd. 10");
  EXPECT_FALSE(registratore.attesa);
}

TEST_F(Pannelli_, InviluppoSenzaFileLasciaDueRigheDopoIDoppi) {
  Modello();
  UtenteSceglie(InsDati, insDati.CheckMaxMin, 1);
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "10");
  Scrivi(Soll3D, "AsteTxt", SENZA_INDICE, "5");
  Premi(Soll3D, "Importa");                               // case 0: astec000.bin is not there
  EXPECT_EQ(nodo.NumSoll, 2);
  EXPECT_EQ(nodo.SollN[1], -1e20);
  EXPECT_EQ(nodo.SollN[2], 1e20);
  EXPECT_EQ(UltimoEvento(), "[importazione] LETTI 0, PRESI 0, DOPPI TOLTI 10");
}

TEST_F(Pannelli_, ImportaSiFermaAlPrimoElencoErrato) {
  Modello();
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "10");
  Premi(Soll3D, "Importa");                               // AsteTxt is empty
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | ERRORE | Inserimento dati errato");
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "10,20,30");
  Scrivi(Soll3D, "AsteTxt", SENZA_INDICE, "1-2001");
  Premi(Soll3D, "Importa");
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | ERRORE | Errore: numero di aste o nodi eccessivo");
}

TEST_F(Pannelli_, ChiudiRidaIlTitoloAlRiquadro) {
  registratore.dentro.push_back([] {
    insDati.Soll.testo = "altro";
    Premi(Soll3D, "Chiudi");
  });
  Premi(InsDati, "ImpS3D");
  EXPECT_FALSE(soll3D.aperto);
  EXPECT_EQ(insDati.Soll.testo, "n° 0 [" + suite.UnitaForze + ", " + suite.UnitaMomenti + "]");
}

TEST_F(Pannelli_, SelezioneDelleAste) {
  Modello();
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "20,30");
  registratore.dentro.push_back([] {
    EXPECT_FALSE(Abilitato(Selezione, selezione.ColoriCh[3]));      // "Tutti": the frame is off
    UtenteSceglie(Selezione, selezione.ColoriOp[1], 1);
    EXPECT_TRUE(Abilitato(Selezione, selezione.ColoriCh[3]));
    EXPECT_FALSE(Abilitato(Selezione, selezione.LineeCh[0]));
    UtenteSceglie(Selezione, selezione.ColoriCh[3], 1);
    Scatena(Selezione, selezione.NomiOp[1], Evento::Passa);
    PassaTempo(800);
    EXPECT_EQ(selezione.HLabSel.testo, "Cliccare per selezionare le aste con il nome compreso in un'intervallo");
    PassaSulPannello(Selezione);
    EXPECT_EQ(selezione.HLabSel.testo, "");
    Premi(Selezione, "Cerca");
  });
  Premi(Soll3D, "Cerca", 0);
  EXPECT_EQ(soll3D.AsteTxt.testo, "7,7");                 // only bar 7 has colour 3; it meets at both nodes
  EXPECT_FALSE(selezione.aperto);
}

TEST_F(Pannelli_, SelezioneSenzaAsteLasciaIlCampo) {
  Modello();
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "20");
  Scrivi(Soll3D, "AsteTxt", SENZA_INDICE, "1");
  registratore.dentro.push_back([] {
    UtenteSceglie(Selezione, selezione.NomiOp[1], 1);
    Scrivi(Selezione, "NomiTxt", 0, "99999");             // clipped to 32767
    Scrivi(Selezione, "NomiTxt", 1, "3");
    Premi(Selezione, "Cerca");
  });
  Premi(Soll3D, "Cerca", 0);
  EXPECT_EQ(soll3D.AsteTxt.testo, "1");
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | NODO COLONNA - PLINTO | Non esiste nessuna asta corrispondente alle caratteristiche "
                            "selezionate che concorra nel nodo 20");
}

TEST_F(Pannelli_, CercaINodiDiRiferimento) {
  registratore.programmi = true;
  registratore.eseguito = [](const std::string&) {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\SondaOut.txt"), "12,15\r\n");
    return true;
  };
  Premi(Soll3D, "Cerca", 1);
  EXPECT_EQ(soll3D.NodiTxt.testo, "12,15");
  EXPECT_EQ(LeggiByte(RisolviPercorso(suite.DirLavoro + "\\SondaIn.txt")),
            "NODO COLONNA - PLINTO - IMPORTA SOLLECITAZIONI DA 3D - Cerca nodi\r\n\r\n1\r\n");
}

// ---- section import and nodes of the model ----

TEST_F(Pannelli_, ImportaSezione) {
  Modello();
  piattaforma.apri(Sez3D, false);
  EXPECT_FALSE(sez3D.geomp[0].visibile);
  Scrivi(Sez3D, "NodoTxt", SENZA_INDICE, "20");
  Premi(Sez3D, "Cerca");
  ASSERT_EQ(sez3D.ComboP.voci.size(), 3u);
  EXPECT_EQ(sez3D.ComboP.voci[0], "HEA200              Asta 5");   // the name's 18 characters, two blanks
  EXPECT_EQ(sez3D.ComboP.voci[1], "Non app. Composta   Asta 6");
  EXPECT_EQ(sez3D.ComboP.scelta, 0);
  EXPECT_EQ(sez3D.geomp[0].testo, "190");
  EXPECT_TRUE(sez3D.geomp[4].visibile);
  EXPECT_FALSE(sez3D.telaDisPri.tratti.empty());
  UtenteSceglie(Sez3D, sez3D.ComboP, 2);
  UtenteSceglie(Sez3D, sez3D.ComboP, 1);
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | Attenzione | Profilo non applicabile");
  EXPECT_EQ(sez3D.ComboP.scelta, 2);                      // back to the last valid entry
  Premi(Sez3D, "OK");
  EXPECT_EQ(nodo.Sezione.Nome, "HEA200            ");
  EXPECT_EQ(insDati.TraveP.voci[static_cast<std::size_t>(insDati.TraveP.scelta)], "HEA200");
  EXPECT_FALSE(sez3D.aperto);
}

TEST_F(Pannelli_, NodoSenzaAsteNonCambiaLaSezione) {
  Modello();
  const std::string prima = nodo.Sezione.Nome;
  piattaforma.apri(Sez3D, false);
  Scrivi(Sez3D, "NodoTxt", SENZA_INDICE, "40");
  Premi(Sez3D, "Cerca");
  EXPECT_TRUE(sez3D.ComboP.voci.empty());
  Premi(Sez3D, "OK");
  EXPECT_EQ(nodo.Sezione.Nome, prima);
}

TEST_F(Pannelli_, NodiDelModello) {
  Modello();
  registratore.programmi = true;
  registratore.eseguito = [](const std::string&) {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\SondaOut.txt"), "0,2\r\n15\r\n1,5\r\nA\r\nB\r\n");
    return true;
  };
  Premi(InsDati, "Command1");
  EXPECT_EQ(nodo.NumNodiStr, 1);
  EXPECT_EQ(nodo.NodiStr[1], 15);
  EXPECT_EQ(nodo.Sezione.Nome, "HEA200            ");     // bar 5 has section 1
  registratore.eseguito = [](const std::string&) {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\SondaOut.txt"), "0,1\r\n77\r\n1,0\r\nA\r\nB\r\n");
    return true;
  };
  Premi(InsDati, "Command1");
  EXPECT_EQ(nodo.NodiStr[1], 15);                         // kind 1 names no node
}

// ---- unit calculator and export ----

TEST_F(Pannelli_, DoppioClicChiamaLaCalcolatrice) {
  Premi(InsDati, "Singolo");
  suite.UnitaForze = "kN";
  suite.FattForze = 0.01;
  Scrivi(InsDati, "TxtSN", 0, "12.50");
  registratore.programmi = true;
  registratore.eseguito = [](const std::string&) {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\TQ_fermix.tmp"), "  7.25 \r\naltro\r\n");
    return true;
  };
  EXPECT_TRUE(Scatena(InsDati, insDati.TxtSN[0], Evento::Doppio));
  EXPECT_EQ(UltimoEvento(), "[programma] " + suite.DirProgra + "\\tq_fermix.exe |primcipale=0|uniprinctesto=kN|categoriadiingresso=4|valoreingresso=12.5|fileout=" +
                                suite.DirLavoro + "\\TQ_fermix.tmp|");
  EXPECT_EQ(insDati.TxtSN[0].testo, "7.25");
  EXPECT_EQ(nodo.SollN[1], 725);
  suite.UnitaMomenti = "kNm";
  Scatena(InsDati, insDati.TxtMz[0], Evento::Doppio);
  EXPECT_NE(UltimoEvento().find("|uniprinctesto=kNm|categoriadiingresso=5|valoreingresso=0|"), std::string::npos);
}

TEST_F(Pannelli_, CalcolatriceCheNonParteONonRisponde) {
  Premi(InsDati, "Singolo");
  Scrivi(InsDati, "TxtSN", 0, "3");
  registratore.eventi.clear();
  Scatena(InsDati, insDati.TxtSN[0], Evento::Doppio);
  EXPECT_TRUE(registratore.eventi.empty());
  registratore.programmi = true;
  Scatena(InsDati, insDati.TxtSN[0], Evento::Doppio);
  EXPECT_EQ(UltimoEvento(), "[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: il comando non può continuare.");
  EXPECT_EQ(insDati.TxtSN[0].testo, "3");
}

TEST_F(Pannelli_, EsportaSuFile) {
  Premi(InsDati, "Singolo");
  Premi(InsDati, "EsportaSollButt");                      // no queued file: Annulla
  EXPECT_EQ(UltimoEvento(), "[file] salva |  | File di testo (*.txt)|*.txt|Tutti i file (*.*)|*.* | " + suite.DirLavoro + "\\Soll_Qb07.txt -> Annulla");
  registratore.file.emplace_back(suite.DirLavoro + "\\elenco", 1);
  Premi(InsDati, "EsportaSollButt");
  EXPECT_NE(LeggiByte(RisolviPercorso(suite.DirLavoro + "\\elenco.txt")).find("1\tSoll 1\t0\t0\t0\t0\t0\t0\t\r\n"), std::string::npos);
  registratore.file.emplace_back(suite.DirLavoro + "\\manca\\x.txt", 1);
  Premi(InsDati, "EsportaSollButt");
  EXPECT_EQ(UltimoEvento(), "[messaggio] critica | NODO COLONNA - PLINTO | Impossibile esportare le sollecitazioni in " + suite.DirLavoro + "\\manca\\x.txt");
}
