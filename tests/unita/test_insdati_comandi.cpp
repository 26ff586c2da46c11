// The command Verifica of the main panel, its plan anew at each change of geometry, and its first show.
#include "core/piattaforma.h"
#include "corredo/banco_insdati.h"
#include "drawing/tela.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/pannelli.h"

namespace {

using Testi = std::vector<std::string>;

// ---- Verifica ----

TEST_F(Pannello71, VerificaRefused) {
  Scrivi("LatoTxt", 4, "0");  // a plate without thickness
  registratore.risposte = {false};
  Scatena(InsDati, insDati.Verifica, Evento::Cambio);
  EXPECT_EQ(registratore.eventi.back(), "[messaggio] esclamazione | NODO COLONNA - PLINTO | Verifica non possibile");
  EXPECT_EQ(verificaPannello.esito, EsitoVerifica::Rifiutata);
  EXPECT_FALSE(registratore.attesa);
  EXPECT_EQ(registratore.fuoco, &insDati.Verifica);
}

TEST_F(Pannello71, VerificaCancelledAtTheEdgeCheck) {
  Scrivi("LatoTxt", 4, "5");  // TA: edge distance 50 > 6 t = 30
  registratore.risposte = {false};
  Scatena(InsDati, insDati.Verifica, Evento::Cambio);
  EXPECT_EQ(registratore.eventi.back(), "[domanda] informazione | NODO COLONNA - PLINTO | Continuare la verifica? -> Annulla");
  EXPECT_TRUE(registratore.eventi[registratore.eventi.size() - 2].find("CNR-UNI 10011/88") != std::string::npos);
  EXPECT_EQ(verificaPannello.esito, EsitoVerifica::Annullata);
  EXPECT_FALSE(registratore.attesa);
}

TEST_F(Pannello71, VerificaAsksByTheMethod) {
  Scegli("TipoVer", 1);
  Scrivi("DTf", 1, "20");  // NTC: 1.2 * 20 = 24 > 20
  registratore.risposte = {false};
  Scatena(InsDati, insDati.Verifica, Evento::Cambio);
  EXPECT_EQ(verificaPannello.esito, EsitoVerifica::Annullata);
  EXPECT_TRUE(registratore.eventi[registratore.eventi.size() - 2].find("(NTC 2008)") != std::string::npos);
}

TEST_F(Pannello71, VerificaStopsAtAFaultOfTheEdgeCheck) {
  Scrivi("LatoTxt", 4, "1e308");  // six times the thickness overflows
  Scrivi("DTf", 1, "20");         // and the distance is a breach: 2 * 20 = 40 > 20
  Scatena(InsDati, insDati.Verifica, Evento::Cambio);
  EXPECT_EQ(registratore.eventi.back(), "[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: la verifica non può continuare.");
  for (const std::string& e : registratore.eventi) EXPECT_EQ(e.find("Continuare"), std::string::npos) << e;
  EXPECT_EQ(verificaPannello.esito, EsitoVerifica::Interrotta);
}

TEST_F(Pannello71, VerificaDoneAndStopped) {
  suite.DirLavoro = CartellaProva("insdati_verifica");
  Scatena(InsDati, insDati.Verifica, Evento::Cambio);  // no sextet: the report without combinations
  EXPECT_EQ(verificaPannello.esito, EsitoVerifica::Eseguita);
  EXPECT_TRUE(registratore.eventi.back().starts_with("[testo] "));
  registratore.eventi.clear();
  suite.DirLavoro += "/manca";  // the report cannot be opened
  Scatena(InsDati, insDati.Verifica, Evento::Cambio);
  EXPECT_EQ(verificaPannello.esito, EsitoVerifica::Interrotta);
  EXPECT_EQ(registratore.eventi, (Testi{"[messaggio] critica | NODO COLONNA - PLINTO | Impossibile scrivere il file " + suite.DirLavoro +
                                        "\\RelTA_QB07_.txt: la cartella o il file dietro il collegamento non esiste."}));
  EXPECT_FALSE(registratore.attesa);
  EXPECT_EQ(registratore.fuoco, &insDati.Verifica);
}

TEST_F(Pannello71, VerificaRunsUnderTheWaitPointer) {
  static bool sopra;  // was it there when the report was shown, before the focus came back?
  sopra = false;
  suite.DirLavoro = CartellaProva("insdati_attesa");
  piattaforma.mostraTesto = [](const std::string&) { sopra = registratore.attesa && registratore.fuoco == nullptr; };
  Scatena(InsDati, insDati.Verifica, Evento::Cambio);
  EXPECT_TRUE(sopra);
  EXPECT_FALSE(registratore.attesa);
  EXPECT_EQ(registratore.fuoco, &insDati.Verifica);
}

// ---- window ----

TEST_F(Pannello71, FirstShowSetsColoursAndSearchTitle) {
  EXPECT_EQ(insDati.SSTab.coloreSfondo, 0xFFFFD2);  // RGB(210, 255, 255), blue in the high byte
  EXPECT_EQ(insDati.Versione.coloreSfondo, 0x6464FF);
  EXPECT_EQ(insDati.Versione.coloreTesto, 0xFFFFFF);
  EXPECT_EQ(insDati.TitoloCerca, "NODO COLONNA - PLINTO - IMPORTA SOLLECITAZIONI DA 3D - Cerca nodi");
}

TEST_F(Pannello71, FirstShowDrawsTheSketch) {
  RidisegnaNodo();
  const std::size_t tratti = insDati.telaNodo.tratti.size();
  EXPECT_GT(tratti, 0u);
  PulisciTela(insDati.telaNodo);
  insDati.caricato = false;  // as before its first show
  PannelloMostrato(InsDati, false);
  EXPECT_EQ(insDati.telaNodo.tratti.size(), tratti);
}

TEST_F(Pannello71, Canvas) {
  Tela t;
  ImpostaScala(t, -1, 2, 3, -4);
  SegmentoTela(t, 1, 2, 3, 4, 255);
  ArcoTela(t, 5, 6, 7, 0.5, 1, 128);
  ASSERT_EQ(t.tratti.size(), 2u);
  EXPECT_EQ(t.tratti[0].forma, Tratto::Forma::Segmento);
  EXPECT_EQ(t.tratti[0].x2, 3);
  EXPECT_EQ(t.tratti[0].colore, 255);
  EXPECT_EQ(t.tratti[1].forma, Tratto::Forma::Arco);
  EXPECT_EQ(t.tratti[1].raggio, 7);
  EXPECT_EQ(t.tratti[1].a2, 1);
  EXPECT_EQ(t.dy, -4);
  PulisciTela(t);
  EXPECT_TRUE(t.tratti.empty());
  EXPECT_EQ(t.dx, 3);  // clearing keeps the scale
}

// The plan is drawn anew by Enter or a choice, not by each key.
TEST_F(Pannello71, WhatRedrawsTheSketch) {
  static bool dipinto;  // the picture is painted with its new strokes
  piattaforma.aggiorna = [](Controllo& c) { dipinto = dipinto || (&c == &insDati.Nodo && !insDati.telaNodo.tratti.empty()); };
  const auto ridisegna = [](const char* nome, int i, Evento e) {
    PulisciTela(insDati.telaNodo);
    dipinto = false;
    if (e == Evento::Invio) Invio(nome, i);
    else Scegli(nome, i);
    EXPECT_TRUE(dipinto) << nome << i;
  };
  for (int i = 0; i < 5; i++) ridisegna("LatoTxt", i, Evento::Invio);
  for (int i = 0; i < 2; i++) ridisegna("HFazzTxt", i, Evento::Invio);
  for (int i = 1; i <= 4; i++) ridisegna("DTf", i, Evento::Invio);
  for (int i = 0; i < 4; i++) ridisegna("OptionNTir", i, Evento::Cambio);
  for (int i = 0; i < 2; i++) ridisegna("Op_Tip", i, Evento::Cambio);
  PulisciTela(insDati.telaNodo);
  UtenteSceglie(InsDati, insDati.TraveP, 9);
  EXPECT_FALSE(insDati.telaNodo.tratti.empty());
  PulisciTela(insDati.telaNodo);
  Scrivi("LatoTxt", 2, "90");
  Scrivi("HFazzTxt", 0, "90");
  Scrivi("DTf", 1, "40");
  EXPECT_TRUE(insDati.telaNodo.tratti.empty());
}

// Each of them stays in front of the main panel until it closes.
TEST_F(Pannello71, PanelsOverTheMainOne) {
  static int davanti;
  davanti = 0;
  nodo.MatAcc.GammaMT = 1.25;  // the properties divide by it
  for (const char* comando : {"DimTf", "PropMatButton", "ImpS3D"}) {
    registratore.dentro.push_back([] { davanti += Raggiungibile(InsDati) ? 0 : 1; });
    EXPECT_TRUE(Scatena(InsDati, C(comando), Evento::Cambio));
  }
  EXPECT_EQ(davanti, 3);
  ASSERT_GE(registratore.pannelli.size(), 3u);
  EXPECT_EQ(Testi(registratore.pannelli.end() - 3, registratore.pannelli.end()), (Testi{"FormTF", "PropMateriali", "Soll3D"}));
}

}  // namespace
