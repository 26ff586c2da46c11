// The panels that look into the three-dimensional model: load import, bar selection, section import, nodes of the model. The program is
// started on a copy of the sample suite, the model is tests/corredo/modello_minimo.h; values by hand.
#include "corredo/banco_pannelli.h"

#include <algorithm>

#include "link/collegamento.h"
#include "model/stato.h"
#include "panels/Sez3D.h"
#include "panels/Soll3D.h"
#include "panels/selezione.h"

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

TEST_F(Pannelli_, SuggerimentiEDidascalieDellImportazione) {
  // clang-format off
  const struct { const char* nome; int i; const char* didascalia; const char* suggerimento; } attesi[] = {
      {"NodiTxt", -1, "", "Inserire i nodi dai quali importare le sollecitazioni"},
      {"AsteTxt", -1, "", "Inserire le aste associate ai nodi dalle quali importare le sollecitazioni"},
      {"CdCTxt", -1, "0", "Inserire i casi di carico dai quali importare le sollecitazioni"},
      {"CdC2Txt", -1, "0", "Inserire le condizioni di carico dalle quali importare le sollecitazioni"},
      {"SesTxt", -1, "0", "Inserire i sestetti dai quali importare le sollecitazioni"},
      {"Annulla", 0, "A", "Annulla i nodi inseriti"}, {"Annulla", 1, "A", "Annulla le aste inserite"},
      {"Cerca", 0, "Cerca", "Cerca le aste corrispondenti ai nodi inseriti"}, {"Cerca", 1, "Cerca", "Cerca i nodi di riferimento"},
      {"ACdc", -1, "A", "Annulla i casi di carico inseriti"}, {"ACdc2", -1, "A", "Annulla le condizioni di carico inserite"},
      {"TuttiCdc2", -1, "Tutti", "Seleziona tutte le condizioni di carico"}, {"ASes", -1, "A", "Annulla i sestetti inseriti"},
      {"TuttiSes", -1, "Tutti", "Seleziona tutti i sestetti"}, {"Importa", -1, "Importa", "Importa le sollecitazioni nel pannello principale"},
      {"Chiudi", -1, "Chiudi", "Chiude la finestra"}};
  // clang-format on
  for (const auto& a : attesi) {
    EXPECT_EQ(C(Soll3D, a.nome, a.i).testo, a.didascalia) << a.nome;
    EXPECT_EQ(Suggerimento(Soll3D, a.nome, a.i), a.suggerimento) << a.nome;
  }
  EXPECT_EQ(soll3D.LNodi.testo, "Inserimento nodi");
  EXPECT_EQ(soll3D.LAste.testo, "Inserimento aste");
  EXPECT_EQ(soll3D.LCdC2.testo, "Condizioni di carico");
  EXPECT_EQ(soll3D.LSes.testo, "Sestetti (0=tutti)");
}

TEST_F(Pannelli_, IlSuggerimentoDeiCasiEQuelloDelMetodoAlCaricamento) {
  UtenteSceglie(InsDati, insDati.TipoVer[1], 1);
  Premi(InsDati, "ImpS3D");
  EXPECT_EQ(Suggerimento(Soll3D, "TuttiCdc"), "Seleziona tutti i casi di carico per la verifica agli S.L.U.");
  UtenteSceglie(InsDati, insDati.TipoVer[0], 1);
  EXPECT_EQ(Suggerimento(Soll3D, "TuttiCdc"), "Seleziona tutti i casi di carico per la verifica agli S.L.U.");
  ASSERT_TRUE(AvviaSuite(PreparaSuite("pannelli_ta")));
  UtenteSceglie(InsDati, insDati.TipoVer[0], 1);
  Premi(InsDati, "ImpS3D");
  EXPECT_EQ(Suggerimento(Soll3D, "TuttiCdc"), "Seleziona tutti i casi di carico per la verifica alle T.A.");
}

TEST_F(Pannelli_, ComandiChePortanoAZero) {
  for (const char* campo : {"CdC2Txt", "SesTxt"}) Scrivi(Soll3D, campo, SENZA_INDICE, "5");
  Premi(Soll3D, "ACdc2");
  EXPECT_EQ(soll3D.CdC2Txt.testo, "0");
  Premi(Soll3D, "TuttiSes");
  EXPECT_EQ(soll3D.SesTxt.testo, "0");
}

TEST_F(Pannelli_, TroppiCasiETroppeCondizioni) {
  Scrivi(Soll3D, "CdCTxt", SENZA_INDICE, "5");
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\combinaz.tot"), "201\r\n");
  Premi(Soll3D, "TuttiCdc");
  EXPECT_EQ(soll3D.CdCTxt.testo, "0");
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | ERRORE | Errore: numero di combinazioni eccessivo");
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\struttur.str"), "release\r\n0\r\n0\r\n0\r\n0\r\n");
  Premi(Soll3D, "TuttiCdc2");
  EXPECT_EQ(soll3D.CdC2Txt.testo, "");  // no condition: the empty text
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\struttur.str"), "release\r\n0\r\n0\r\n0\r\n2000000000\r\n");
  Premi(Soll3D, "TuttiCdc2");
  EXPECT_TRUE(soll3D.CdC2Txt.testo.ends_with(",32766,32767"));  // as many as a list can name
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
  Premi(Soll3D, "Importa");  // case 0: astec000.bin is not there
  EXPECT_EQ(nodo.NumSoll, 2);
  EXPECT_EQ(nodo.SollN[1], -1e20);
  EXPECT_EQ(nodo.SollN[2], 1e20);
  EXPECT_EQ(UltimoEvento(), "[importazione] LETTI 0, PRESI 0, DOPPI TOLTI 10");
}

TEST_F(Pannelli_, ImportaSiFermaAlPrimoElencoErrato) {
  Modello();
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "10");
  Premi(Soll3D, "Importa");  // AsteTxt is empty
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | ERRORE | Inserimento dati errato");
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "10,20,30");
  Scrivi(Soll3D, "AsteTxt", SENZA_INDICE, "1-2001");
  Premi(Soll3D, "Importa");
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | ERRORE | Errore: numero di aste o nodi eccessivo");
}

// Nodes, bars, cases, sextets, conditions: an invalid list is emptied, and those behind it are not looked at.
TEST_F(Pannelli_, OrdineDegliElenchi) {
  static constexpr const char* CAMPI[] = {"NodiTxt", "AsteTxt", "CdCTxt", "SesTxt", "CdC2Txt"};
  const std::int16_t* const conteggi[] = {&nodo.NumNodiStr, &collegamento.NumAsteNodo, &collegamento.NumCasiStr,
                                          &collegamento.NumSestettiStr, &collegamento.NumCondStr};
  Modello();
  for (int errato = 0; errato < 5; ++errato) {
    for (const char* c : CAMPI) Scrivi(Soll3D, c, SENZA_INDICE, "1");
    Premi(Soll3D, "Importa");
    for (const char* c : CAMPI) Scrivi(Soll3D, c, SENZA_INDICE, "2,3");
    Scrivi(Soll3D, CAMPI[errato], SENZA_INDICE, "x");
    registratore.eventi.clear();
    Premi(Soll3D, "Importa");
    EXPECT_EQ(registratore.eventi.size(), 1u);
    for (int k = 0; k < 5; ++k) EXPECT_EQ(*conteggi[k], k < errato ? 2 : k == errato ? 0 : 1) << CAMPI[errato] << " " << CAMPI[k];
  }
}

TEST_F(Pannelli_, ChiudiChiudeAncheLaSelezione) {
  piattaforma.apri(Soll3D, false);
  piattaforma.apri(Selezione, false);
  Premi(Soll3D, "Chiudi");
  EXPECT_FALSE(selezione.aperto);
  EXPECT_FALSE(soll3D.aperto);
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
    EXPECT_FALSE(Abilitato(Selezione, selezione.ColoriCh[3]));  // "Tutti": the frame is off
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
  EXPECT_EQ(soll3D.AsteTxt.testo, "7,7");  // only bar 7 has colour 3; it meets at both nodes
  EXPECT_FALSE(selezione.aperto);
}

// However many nodes are looked for, the structure is read once: here it goes with the first box, and the search does not miss it. The box
// of an old release comes for each node all the same.
TEST_F(Pannelli_, LaSelezioneLeggeLaStrutturaUnaVolta) {
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\struttur.str"), STRUTTURA_MINIMA.substr(STRUTTURA_MINIMA.find('\n') + 1));
  static void (*registra)(const std::string&, const std::string&, Icona);
  registra = piattaforma.messaggio;
  piattaforma.messaggio = [](const std::string& testo, const std::string& titolo, Icona icona) {
    registra(testo, titolo, icona);
    EliminaFile(suite.DirLavoro + "\\struttur.str");
  };
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "20,30,99,10");
  registratore.dentro.push_back([] { Premi(Selezione, "Cerca"); });
  Premi(Soll3D, "Cerca", 0);
  EXPECT_EQ(soll3D.AsteTxt.testo, "5,7,5");
  ASSERT_EQ(registratore.eventi.size(), 4u);
  for (const std::string& e : registratore.eventi) EXPECT_NE(e.find("Versione 3.8 o precedente"), std::string::npos);
}

TEST_F(Pannelli_, SuggerimentiDellaSelezione) {
  // clang-format off
  const TestoAtteso attesi[] = {
      {"Cerca", -1, "Cliccare per importare i nomi delle aste trovate"}, {"Chiudi", -1, "Cliccare per chiudere la finestra"},
      {"ColoriOp", 0, "Cliccare per selezionare le aste di tutti i colori"},
      {"ColoriOp", 1, "Cliccare per selezionare le aste dei colori desiderati"},
      {"LineeOp", 0, "Cliccare per selezionare le aste con qualunque tipo di linea"},
      {"LineeOp", 1, "Cliccare per selezionare le aste con i tipi di linea desiderati"},
      {"NomiOp", 0, "Cliccare per selezionare le aste con qualunque nome"},
      {"NomiOp", 1, "Cliccare per selezionare le aste con il nome compreso in un'intervallo"},
      {"NomiTxt", 0, "Inserire il limite minimo dell'intervallo"}, {"NomiTxt", 1, "Inserire il limite massimo dell'intervallo"}};
  // clang-format on
  for (const auto& a : attesi) EXPECT_EQ(Suggerimento(Selezione, a.nome, a.i), a.testo) << a.nome;
  const TestoAtteso didascalie[] = {
    {"ColoriOp", 0, "Tutti"}, {"ColoriOp", 1, "Selezione"}, {"LineeOp", 0, "Tutte"}, {"LineeOp", 1, "Selezione"},
    {"NomiOp", 0, "Tutti"},   {"NomiOp", 1, "Selezione"},   {"LNomi", 0, "da"},      {"LNomi", 1, "a"}};
  for (const auto& a : didascalie) EXPECT_EQ(C(Selezione, a.nome, a.i).testo, a.testo) << a.nome;
}

TEST_F(Pannelli_, OgniSceltaAccendeLaSuaCornice) {
  registratore.dentro.push_back([] {
    // clang-format off
    const struct { Controllo* scelta; const Controllo& dentro; } coppie[] = {{selezione.ColoriOp, selezione.ColoriCh[9]},
                                                                             {selezione.LineeOp, selezione.LineeCh[4]},
                                                                             {selezione.NomiOp, selezione.NomiTxt[1]}};
    // clang-format on
    for (const auto& c : coppie) {
      EXPECT_FALSE(Abilitato(Selezione, c.dentro));
      UtenteSceglie(Selezione, c.scelta[1], 1);
      EXPECT_TRUE(Abilitato(Selezione, c.dentro));
      UtenteSceglie(Selezione, c.scelta[0], 1);
      EXPECT_FALSE(Abilitato(Selezione, c.dentro));
    }
    Premi(Selezione, "Chiudi");
  });
  Premi(Soll3D, "Cerca", 0);
  EXPECT_FALSE(selezione.aperto);
}

// Node 40 has no bar: its box ends the search, and node 20 behind it is not looked at; what was found before stays.
TEST_F(Pannelli_, UnNodoSenzaAsteFermaLaRicerca) {
  Modello();
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "30,40,20");
  registratore.dentro.push_back([] { Premi(Selezione, "Cerca"); });
  Premi(Soll3D, "Cerca", 0);
  EXPECT_EQ(soll3D.AsteTxt.testo, "7");  // bar 6 has colour 10, which passes under no choice
  EXPECT_EQ(registratore.eventi.size(), 1u);
  EXPECT_TRUE(UltimoEvento().ends_with("che concorra nel nodo 40"));
}

TEST_F(Pannelli_, SelezioneSenzaAsteLasciaIlCampo) {
  Modello();
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "20");
  Scrivi(Soll3D, "AsteTxt", SENZA_INDICE, "1");
  registratore.dentro.push_back([] {
    UtenteSceglie(Selezione, selezione.NomiOp[1], 1);
    Scrivi(Selezione, "NomiTxt", 0, "99999");  // clipped to 32767
    Scrivi(Selezione, "NomiTxt", 1, "3");
    Premi(Selezione, "Cerca");
  });
  Premi(Soll3D, "Cerca", 0);
  EXPECT_EQ(soll3D.AsteTxt.testo, "1");
  EXPECT_EQ(UltimoEvento(),
            "[messaggio] esclamazione | NODO COLONNA - PLINTO | Non esiste nessuna asta corrispondente alle caratteristiche "
            "selezionate che concorra nel nodo 20");
}

// A limit that does not fit 16 bits is the nearest one that does, not none.
TEST_F(Pannelli_, LimiteDeiNomiOltreISediciBit) {
  Modello();
  Scrivi(Soll3D, "NodiTxt", SENZA_INDICE, "20");
  registratore.dentro.push_back([] {
    UtenteSceglie(Selezione, selezione.NomiOp[1], 1);
    Scrivi(Selezione, "NomiTxt", 0, "1");
    Scrivi(Selezione, "NomiTxt", 1, "99999");
    Premi(Selezione, "Cerca");
  });
  Premi(Soll3D, "Cerca", 0);
  EXPECT_EQ(soll3D.AsteTxt.testo, "5");
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Pannelli_, CercaINodiDiRiferimento) {
  registratore.programmi = true;
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\SondaOut.txt"), "12,15\r\n");
    return true;
  };
  Premi(Soll3D, "Cerca", 1);
  EXPECT_EQ(soll3D.NodiTxt.testo, "12,15");
  EXPECT_EQ(LeggiByte(RisolviPercorso(suite.DirLavoro + "\\SondaIn.txt")),
            "NODO COLONNA - PLINTO - IMPORTA SOLLECITAZIONI DA 3D - Cerca nodi\r\n\r\n1\r\n");
}

// The pointer waits while a command searches or imports, which its first box shows, and no longer.
TEST_F(Pannelli_, PuntatoreDiAttesa) {
  static std::vector<bool> nelRiquadro;
  nelRiquadro.clear();
  piattaforma.messaggio = [](const std::string&, const std::string&, Icona) { nelRiquadro.push_back(registratore.attesa); };
  piattaforma.apri(Sez3D, false);
  Premi(Sez3D, "Cerca");  // no structure file
  EXPECT_FALSE(registratore.attesa);
  Premi(Sez3D, "Annulla");
  Premi(Soll3D, "Importa");  // no nodes
  EXPECT_FALSE(registratore.attesa);
  registratore.dentro.push_back([] { Premi(Selezione, "Cerca"); });
  Premi(Soll3D, "Cerca", 0);  // no nodes
  EXPECT_FALSE(registratore.attesa);
  Premi(InsDati, "ApriVis");  // no viewer
  EXPECT_FALSE(registratore.attesa);
  EXPECT_EQ(nelRiquadro, (std::vector<bool>{true, true, true, true}));
}

// ---- section import and nodes of the model ----

TEST_F(Pannelli_, ImportaSezione) {
  Modello();
  piattaforma.apri(Sez3D, false);
  for (int i = 0; i < 5; ++i) EXPECT_FALSE(sez3D.geom[i].visibile || sez3D.geomp[i].visibile) << i;
  Scrivi(Sez3D, "NodoTxt", SENZA_INDICE, "20");
  Premi(Sez3D, "Cerca");
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(sez3D.geom[i].visibile && sez3D.geomp[i].visibile) << i;
  ASSERT_EQ(sez3D.ComboP.voci.size(), 3u);
  EXPECT_EQ(sez3D.ComboP.voci[0], "HEA200              Asta 5");  // the name's 18 characters, two blanks
  EXPECT_EQ(sez3D.ComboP.voci[1], "Non app. Composta   Asta 6");
  EXPECT_EQ(sez3D.ComboP.scelta, 0);
  EXPECT_EQ(sez3D.geomp[0].testo, "190");
  EXPECT_TRUE(sez3D.geomp[4].visibile);
  EXPECT_FALSE(sez3D.telaDisPri.tratti.empty());
  UtenteSceglie(Sez3D, sez3D.ComboP, 2);
  UtenteSceglie(Sez3D, sez3D.ComboP, 1);
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | Attenzione | Profilo non applicabile");
  EXPECT_EQ(sez3D.ComboP.scelta, 2);  // back to the last valid entry
  Premi(Sez3D, "OK");
  EXPECT_EQ(nodo.Sezione.Nome, "HEA200            ");
  EXPECT_EQ(insDati.TraveP.voci[static_cast<std::size_t>(insDati.TraveP.scelta)], "HEA200");
  EXPECT_FALSE(sez3D.aperto);
}

// Of two entries of the library with the chosen name the last one stays selected.
TEST_F(Pannelli_, OkSelezionaLUltimoProfiloDiNomeUguale) {
  Modello();
  piattaforma.apri(Sez3D, false);
  Scrivi(Sez3D, "NodoTxt", SENZA_INDICE, "10");
  Premi(Sez3D, "Cerca");
  suite.ProfiliLib[suite.NumProfili] = suite.ProfiliLib[24];
  ASSERT_EQ(suite.ProfiliLib[24].Nome, collegamento.SezioneImp.Nome);
  Premi(Sez3D, "OK");
  EXPECT_EQ(insDati.TraveP.scelta, suite.NumProfili - 1);
}

TEST_F(Pannelli_, DidascalieDellaSezione) {
  // clang-format off
  const TestoAtteso attesi[] = {{"command1", -1, "Cerca nodo"}, {"Cerca", -1, "Cerca profilo"}, {"OK", -1, "OK"}, {"Annulla", -1, "Annulla"},
                                {"Label2", -1, "Colonna"}, {"Label1", -1, "Nome Nodo"}, {"geom", 0, "h:"}, {"geom", 1, "b:"},
                                {"geom", 2, "a:"}, {"geom", 3, "e:"}, {"geom", 4, "r :"}};
  // clang-format on
  for (const auto& a : attesi) EXPECT_EQ(C(Sez3D, a.nome, a.i).testo, a.testo) << a.nome;
}

TEST_F(Pannelli_, SezioniInNumeroEccessivo) {
  Modello();
  piattaforma.apri(Sez3D, false);
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\sezioni_"), "99999999999\r\n");
  Scrivi(Sez3D, "NodoTxt", SENZA_INDICE, "20");
  Premi(Sez3D, "Cerca");
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{"[messaggio] esclamazione | ERRORE | Errore: numero di sezioni eccessivo."});
  std::string t = "release\r\n0\r\n1\r\n1,0,0,1,n\r\n2001\r\n";
  for (int i = 1; i <= 2001; ++i) t += "1,2,0,0\r\n" + std::to_string(i) + " 1\r\n";
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\struttur.str"), t);
  Scrivi(Sez3D, "NodoTxt", SENZA_INDICE, "1");
  Premi(Sez3D, "Cerca");
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | ERRORE | Errore: numero di aste collegate eccessivo.");
  EXPECT_FALSE(registratore.attesa);
}

TEST_F(Pannelli_, PrimaVoceNonApplicabileNonSelezionaNulla) {
  Modello();
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\sezioni_"), "1\r\n1,Composta,0\r\nr\r\nr\r\nr\r\nr\r\n");
  piattaforma.apri(Sez3D, false);
  Scrivi(Sez3D, "NodoTxt", SENZA_INDICE, "10");
  Premi(Sez3D, "Cerca");
  EXPECT_EQ(sez3D.ComboP.voci.size(), 1u);
  EXPECT_EQ(sez3D.ComboP.scelta, -1);
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | Attenzione | Profilo non applicabile");
  EXPECT_FALSE(sez3D.geomp[0].visibile);
}

// The section of a former node is not taken when the node asked for last has none.
TEST_F(Pannelli_, LaSezioneDiUnAltroNodoNonConta) {
  Modello();
  const std::string prima = nodo.Sezione.Nome;
  piattaforma.apri(Sez3D, false);
  for (const char* n : {"20", "40"}) {
    Scrivi(Sez3D, "NodoTxt", SENZA_INDICE, n);
    Premi(Sez3D, "Cerca");
  }
  Premi(Sez3D, "OK");
  EXPECT_EQ(nodo.Sezione.Nome, prima);
}

TEST_F(Pannelli_, CercaIlNodoDellaSezione) {
  registratore.programmi = true;
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\SondaOut.txt"), "12\r\n");
    return true;
  };
  piattaforma.apri(Sez3D, false);
  Scrivi(Sez3D, "NodoTxt", SENZA_INDICE, "3");
  Premi(Sez3D, "command1");
  EXPECT_EQ(sez3D.NodoTxt.testo, "12");
  EXPECT_EQ(LeggiByte(RisolviPercorso(suite.DirLavoro + "\\SondaIn.txt")),
            "NODO COLONNA - PLINTO - IMPORTA SEZIONI DA 3D - Cerca nodo\r\n3\r\n1\r\n");
}

TEST_F(Pannelli_, NodoSenzaAsteNonCambiaLaSezione) {
  Modello();
  const std::string prima = nodo.Sezione.Nome;
  piattaforma.apri(Sez3D, false);
  Scrivi(Sez3D, "NodoTxt", SENZA_INDICE, "40");
  Premi(Sez3D, "Cerca");
  EXPECT_TRUE(sez3D.ComboP.voci.empty());
  insDati.telaNodo.tratti.clear();
  Premi(Sez3D, "OK");
  EXPECT_EQ(nodo.Sezione.Nome, prima);
  EXPECT_FALSE(insDati.telaNodo.tratti.empty());  // painted anew all the same
}

TEST_F(Pannelli_, NodiDelModello) {
  Modello();
  registratore.programmi = true;
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\SondaOut.txt"), "0,2\r\n15\r\n1,5\r\nA\r\nB\r\n");
    return true;
  };
  Premi(InsDati, "Command1");
  EXPECT_EQ(nodo.NumNodiStr, 1);
  EXPECT_EQ(nodo.NodiStr[1], 15);
  EXPECT_EQ(nodo.Sezione.Nome, "HEA200            ");  // bar 5 has section 1
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\SondaOut.txt"), "0,1\r\n77\r\n1,0\r\nA\r\nB\r\n");
    return true;
  };
  Premi(InsDati, "Command1");
  EXPECT_EQ(nodo.NodiStr[1], 15);  // kind 1 names no node
  EXPECT_TRUE(std::none_of(registratore.eventi.begin(), registratore.eventi.end(),
                           [](const std::string& e) { return e.starts_with("[messaggio]"); }));
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\SondaOut.txt"), "0,0\r\n78\r\n1,1\r\nA\r\nB\r\n");
    return true;
  };
  ScriviByte(RisolviPercorso(suite.DirLavoro + "\\struttur.str"), "release\r\n0\r\n0\r\n1\r\n10,20,0,0\r\n1 2\r\n");
  Premi(InsDati, "Command1");
  EXPECT_EQ(nodo.NodiStr[1], 15);                                                                                // nor does kind 0
  EXPECT_EQ(UltimoEvento(), "[messaggio] critica | INFORMAZIONE | Il profilo della colonna non è applicabile");  // bar 1 has section 2
}
