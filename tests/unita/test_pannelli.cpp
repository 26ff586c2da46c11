// The smaller panels: anchor chooser, drawing options, and the main panel's commands that open them, call the unit calculator or export.
// The program is started on a copy of the sample suite; values by hand from what the test itself sets.
#include "corredo/banco_pannelli.h"
#include "model/stato.h"

#include <filesystem>
#include <set>

#include "core/aritmetica.h"
#include "corredo/disco.h"
#include "panels/FormTF.h"
#include "panels/Op_Nodo.h"
#include "panels/pannelli.h"

TEST_F(Pannelli_, OgniPannelloHaIlSuoNome) {
  for (const char* nome : {"InsDati", "Op_Nodo", "PropMateriali", "FormTF", "Soll3D", "selezione", "Sez3D"})
    EXPECT_NE(TrovaPannello(nome), nullptr) << nome;
}

// No control stands in two rows, no name and index twice, and a frame is a frame of the panel, or a page of one of its rows of tabs.
TEST_F(Pannelli_, OgniControlloHaUnaRigaSola) {
  std::set<const Controllo*> visti;
  for (const Pannello* p : Pannelli()) {
    std::set<std::string> nomi;
    for (const RigaPannello& r : p->righe) {
      for (int i = r.primo; i <= r.ultimo; ++i) {
        EXPECT_TRUE(visti.insert(&r.controllo[i - r.primo]).second) << p->nome << "." << r.nome << " " << i;
        EXPECT_TRUE(nomi.insert(r.nome + std::to_string(i)).second) << p->nome << "." << r.nome << " " << i;
      }
      const std::string cornice = r.cornice;
      if (cornice.empty()) continue;
      const std::size_t barra = cornice.find('/');
      const RigaPannello* tiene = TrovaRiga(*p, cornice.substr(0, barra));
      ASSERT_NE(tiene, nullptr) << p->nome << "." << r.nome << " in " << cornice;
      if (barra == std::string::npos) {
        EXPECT_EQ(tiene->genere, Genere::Cornice) << p->nome << "." << r.nome;
        continue;
      }
      EXPECT_EQ(tiene->genere, Genere::Schede) << p->nome << "." << r.nome;
      ASSERT_EQ(cornice.size(), barra + 2) << p->nome << "." << r.nome;
      EXPECT_LT(static_cast<std::size_t>(cornice.back() - '0'), tiene->controllo->voci.size()) << p->nome << "." << r.nome;
    }
  }
}

// ---- anchor chooser ----

TEST_F(Pannelli_, TestiDellaSceltaTirafondiAllaCreazione) {
  // clang-format off
  const TestoAtteso attesi[] = {                          // the sizes of a new node, on both tabs
      {"GeoTfTxt", 11, "120"}, {"GeoTfTxt", 12, "500"}, {"GeoTfTxt", 13, "70"}, {"GeoTfTxt", 14, "450"}, {"GeoTfTxt", 15, "10"},
      {"GeoTfTxt", 17, "50"}, {"GeoTfTxt", 19, "100"}, {"GeoTfTxt", 20, "200"},
      {"GeoTfTxt", 1, "120"}, {"GeoTfTxt", 2, "500"}, {"GeoTfTxt", 3, "70"}, {"GeoTfTxt", 4, "450"},
      {"GeoTfTxt", 7, "50"}, {"GeoTfTxt", 9, "100"}, {"GeoTfTxt", 10, "200"},
      {"Label6", 0, "L"}, {"Label6", 1, "R"}, {"Label6", 2, "L fuori plinto"}, {"Label6", 4, "Dist. bordo plinto"}, {"Label6", 5, "x 70"}, {"Label6", 6, "L"},
      {"Label6", 7, "L fuori plinto"}, {"Label2", 0, "dimensioni in mm"}, {"Label2", 1, "dimensioni in mm"}, {"MatBulOK", -1, "OK"},
      {"LGeo", 4, "L1"}, {"LGeo", 7, "Altezza malta"}, {"LGeo", 9, "Diametro fori"},
      {"LGeo", 13, "Lato piastra"}, {"LGeo", 14, "L1"}, {"LGeo", 15, "LF"},
      {"LGeo", 17, "Altezza malta"}, {"LGeo", 19, "Diametro fori"}, {"LGeo", 20, "Dist. bordo plinto"}};
  // clang-format on
  for (const auto& a : attesi) EXPECT_EQ(C(FormTF, a.nome, a.i).testo, a.testo) << a.nome << " " << a.i;
  EXPECT_EQ(C(FormTF, "SSTab1").voci, (std::vector<std::string>{" Tipo 1", " Tipo 2"}));
}

// A number that no double holds: its size stays, and the plan is not painted anew.
TEST_F(Pannelli_, MisuraSmisurataDelTirafondo) {
  insDati.telaNodo.tratti.clear();
  registratore.dentro.push_back([] {
    Scrivi(FormTF, "GeoTfTxt", 12, "1e400");
    Scrivi(FormTF, "GeoTfTxt", 11, "90");
    Premi(FormTF, "MatBulOK");
  });
  Premi(InsDati, "DimTf");
  EXPECT_EQ(nodo.TfL, 500);
  EXPECT_EQ(nodo.TfLFt, 90);
  EXPECT_FALSE(formTF.aperto);
  EXPECT_TRUE(insDati.telaNodo.tratti.empty());
}

TEST_F(Pannelli_, SceltaTirafondiAllaPrimaApertura) {
  Premi(InsDati, "DimTf");
  EXPECT_EQ(registratore.pannelli.back(), "FormTF");
  EXPECT_EQ(formTF.Combo1.voci.size(), 22u);
  EXPECT_EQ(formTF.Combo1.voci[6], "M20");
  EXPECT_EQ(formTF.Combo1.scelta, 6);  // row 7, from 1
  EXPECT_EQ(formTF.Combo2.scelta, 6);
  EXPECT_EQ(C(FormTF, "Label6", 8).testo, "(diam.=20 ; Area=245)");
  EXPECT_EQ(C(FormTF, "Label6", 3).testo, "(diam.=20 ; Area=245)");
  const struct {
    int campo;
    const char* testo;
  } ATTESI[] = {{11, "120"}, {12, "500"}, {13, "70"}, {14, "450"}, {15, "10"}, {17, "50"}, {19, "100"}, {20, "200"}};
  for (const auto& a : ATTESI) EXPECT_EQ(C(FormTF, "GeoTfTxt", a.campo).testo, a.testo) << a.campo;
  EXPECT_EQ(C(FormTF, "Label6", 5).testo, "x 70");
  EXPECT_EQ(formTF.SSTab1.scelta, 0);
  EXPECT_EQ(C(FormTF, "SSTab1").voci[1], " Tipo 2");
  EXPECT_EQ(C(FormTF, "Label2", 0).testo, "dimensioni in mm");
  ASSERT_EQ(formTF.tela.tratti.size(), 2u);
  EXPECT_EQ(formTF.tela.tratti[0].raggio, 360);
  EXPECT_EQ(formTF.tela.tratti[1].raggio, 504);
  for (const Tratto& t : formTF.tela.tratti) {  // half circles, from pi to 2 pi
    EXPECT_EQ(t.forma, Tratto::Forma::Arco);
    EXPECT_EQ(t.xc, 2388);
    EXPECT_EQ(t.yc, 4296);
    EXPECT_EQ(t.a1, 3.141592);
    EXPECT_EQ(t.a2, 6.283184);
    EXPECT_EQ(t.colore, 192);
  }
}

TEST_F(Pannelli_, OkPortaLeMisureDelTipoUno) {
  registratore.dentro.push_back([] {
    Scrivi(FormTF, "GeoTfTxt", 13, "80");
    EXPECT_EQ(formTF.Label6[5].testo, "x 80");
    Scrivi(FormTF, "GeoTfTxt", 12, "");       // an empty field gives 0
    Scrivi(FormTF, "GeoTfTxt", 1, "999");     // the other tab's field
    UtenteSceglie(FormTF, formTF.Combo1, 8);  // M24
    EXPECT_EQ(nodo.TfDiamIdx, 9);
    EXPECT_EQ(nodo.TfFi, 20);  // only OK takes the diameter
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
    EXPECT_EQ(C(FormTF, "GeoTfTxt", 9).testo, "100");  // the panel's own text until it is loaded for this form
    Scrivi(FormTF, "GeoTfTxt", 9, "35");
    Scrivi(FormTF, "GeoTfTxt", 15, "77");  // no field of this form
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
    UtenteSceglie(FormTF, formTF.Combo2, 0);  // the other form's list moves the row
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
  EXPECT_EQ(suite.ParNodo[17], suite.ParNodo[13]);  // set from entry 13 at each reading
  EXPECT_EQ(TrovaControllo(Op_Nodo, "Par_Nodo", 17), nullptr);
  // clang-format off
  const TestoAtteso attesi[] = {
      {"LPar", 0, "Colore disegno nodo"}, {"LPar", 1, "Colore assi sezioni"}, {"LPar", 2, "Colore sezioni"}, {"LPar", 3, "Colore quote"},
      {"LPar", 4, "Colore linee quote"}, {"LPar", 5, "Colore testo"}, {"LPar", 6, "Colore distinta"}, {"LPar", 7, "Altezza quote"},
      {"LPar", 8, "Larghezza quote"}, {"LPar", 9, "Altezza testi"}, {"LPar", 10, "Larghezza testi"}, {"LPar", 11, "Altezza testi distinta"},
      {"LPar", 12, "Larghezza testi distinta"}, {"LPar", 13, "Distanza testo-quote"}, {"LPar", 14, "Diametro indicatori quote"},
      {"LPar", 15, "Scala nodo/Scala tiraf."}, {"LPar", 16, "Colore saldature"}, {"LPar", 25, "Stile quote particolari GRB"},
      {"LPar", 26, "Stile testi GRB"}, {"LPar", 27, "Stile quote GRB"}, {"Option1", 0, "Quote sup."}, {"Option1", 1, "Quote inf."},
      {"CheckQuote", -1, "Quote"}, {"CheckDistinta", -1, "Distinta"}, {"Annulla", -1, "Annulla"}, {"Applica", -1, "Applica"},
      {"Chiudi", -1, "Chiudi"}, {"Def", -1, "Salva"}};
  // clang-format on
  for (const auto& a : attesi) EXPECT_EQ(C(Op_Nodo, a.nome, a.i).testo, a.testo) << a.nome << " " << a.i;
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
  EXPECT_EQ(suite.ParNodo[13], -25);  // -(5) - (20): with the new height
  EXPECT_EQ(suite.ParNodo[16], 1);
  EXPECT_EQ(suite.ParNodo[17], 5);
  EXPECT_EQ(suite.ParNodo[19], 3);
  EXPECT_EQ(suite.ParNodo[20], 6);
  EXPECT_EQ(suite.ParNodo[26], 2);
  EXPECT_EQ(suite.ParNodo[15], 0);
  EXPECT_EQ(suite.ParNodo[18], 1);
  Scrivi(Op_Nodo, "Par_Nodo", 16, "4");  // stays on the panel: Opz does not set it
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

// ---- unit calculator and export ----

TEST_F(Pannelli_, DoppioClicChiamaLaCalcolatrice) {
  Premi(InsDati, "Singolo");
  suite.UnitaForze = "kN";
  suite.FattForze = 0.01;
  Scrivi(InsDati, "TxtSN", 0, "12.50");
  registratore.programmi = true;
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\TQ_fermix.tmp"), "  7.25 \r\naltro\r\n");
    return true;
  };
  EXPECT_TRUE(Scatena(InsDati, insDati.TxtSN[0], Evento::Doppio));
  EXPECT_EQ(UltimoEvento(), "[programma] " + suite.DirProgra +
                              "\\tq_fermix.exe |primcipale=0|uniprinctesto=kN|categoriadiingresso=4|valoreingresso=12.5|fileout=" +
                              suite.DirLavoro + "\\TQ_fermix.tmp|");
  EXPECT_EQ(insDati.TxtSN[0].testo, "7.25");
  EXPECT_EQ(nodo.SollN[1], 725);
  suite.UnitaMomenti = "kNm";
  for (Controllo* c : {&insDati.TxtTy[0], &insDati.TxtTz[0], &insDati.TxtMt[0], &insDati.TxtMy[0], &insDati.TxtMz[0]}) {
    const bool forza = c == &insDati.TxtTy[0] || c == &insDati.TxtTz[0];
    EXPECT_TRUE(Scatena(InsDati, *c, Evento::Doppio));
    EXPECT_NE(UltimoEvento().find(forza ? "|uniprinctesto=kN|categoriadiingresso=4|valoreingresso=0|"
                                        : "|uniprinctesto=kNm|categoriadiingresso=5|valoreingresso=0|"),
              std::string::npos)
      << c->riga->nome;
    EXPECT_EQ(c->testo, "7.25");
  }
  EXPECT_EQ(nodo.SollTy[1], 725);
  EXPECT_EQ(nodo.SollTz[1], 725);
  // each row hands over its own value and takes its own answer
  Premi(InsDati, "Singolo");
  for (Controllo* c : {&insDati.TxtSN[1], &insDati.TxtTy[1], &insDati.TxtTz[1], &insDati.TxtMt[1], &insDati.TxtMy[1], &insDati.TxtMz[1]}) {
    UtenteScrive(InsDati, *c, "3");
    EXPECT_TRUE(Scatena(InsDati, *c, Evento::Doppio));
    EXPECT_NE(UltimoEvento().find("|valoreingresso=3|"), std::string::npos) << c->riga->nome;
    EXPECT_EQ(c->testo, "7.25") << c->riga->nome;
  }
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
  Scrivi(InsDati, "TxtSN", 0, "1e400");  // no number to convert: nothing runs
  registratore.eventi.clear();
  Scatena(InsDati, insDati.TxtSN[0], Evento::Doppio);
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Pannelli_, EsportaSuFile) {
  Premi(InsDati, "Singolo");
  Premi(InsDati, "EsportaSollButt");  // no queued file: Annulla
  EXPECT_EQ(UltimoEvento(),
            "[file] salva |  | File di testo (*.txt)|*.txt|Tutti i file (*.*)|*.* | " + suite.DirLavoro + "\\Soll_Qb07.txt -> Annulla");
  EXPECT_EQ(insDati.CartellaDialogo, suite.DirLavoro);
  registratore.file.emplace_back(suite.DirLavoro + "\\elenco", 1);
  Premi(InsDati, "EsportaSollButt");
  EXPECT_EQ(insDati.CartellaDialogo, "");  // the next dialog opens where this one ended
  EXPECT_NE(LeggiByte(RisolviPercorso(suite.DirLavoro + "\\elenco.txt")).find("1\tSoll 1\t0\t0\t0\t0\t0\t0\t\r\n"), std::string::npos);
  registratore.file.emplace_back(suite.DirLavoro + "\\manca\\x.txt", 1);
  Premi(InsDati, "EsportaSollButt");
  EXPECT_EQ(UltimoEvento(), "[messaggio] critica | NODO COLONNA - PLINTO | Impossibile esportare le sollecitazioni in " + suite.DirLavoro +
                              "\\manca\\x.txt");
}

TEST_F(Pannelli_, EsportaSuUnDiscoPieno) {
  ScriviByte(lavoro + "pieno.txt", "di prima");
  Premi(InsDati, "Singolo");
  registratore.file.emplace_back(suite.DirLavoro + "\\pieno.txt", 1);
  {
    const DiscoPieno pieno;
    Premi(InsDati, "EsportaSollButt");
  }
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | NODO COLONNA - PLINTO | Salvataggio fallito");
  EXPECT_EQ(LeggiByte(lavoro + "pieno.txt"), "di prima");
}

TEST_F(Pannelli_, EsportaSuUnDispositivo) {
  if (!MettiDispositivo(lavoro + "nulla.txt")) GTEST_SKIP() << "no device to be had";
  Premi(InsDati, "Singolo");
  registratore.file.emplace_back(suite.DirLavoro + "\\nulla.txt", 1);
  Premi(InsDati, "EsportaSollButt");
  EXPECT_EQ(UltimoEvento(),
            "[messaggio] critica | NODO COLONNA - PLINTO | Impossibile esportare le sollecitazioni in " + suite.DirLavoro + "\\nulla.txt");
  EXPECT_TRUE(std::filesystem::is_character_file(lavoro + "nulla.txt"));
}

// A load that overflows in the user's unit: the fault's box alone, and the list of before.
TEST_F(Pannelli_, EsportaUnCaricoCheTrabocca) {
  ScriviByte(lavoro + "carichi.txt", "di prima");
  Premi(InsDati, "Singolo");
  nodo.SollN[1] = 1e308;
  suite.FattForze = 100;
  registratore.file.emplace_back(suite.DirLavoro + "\\carichi.txt", 1);
  registratore.eventi.clear();
  Premi(InsDati, "EsportaSollButt");
  ASSERT_EQ(registratore.eventi.size(), 2u);  // the dialog's line and the box
  EXPECT_EQ(UltimoEvento(), std::string("[messaggio] critica | NODO COLONNA - PLINTO | ") + TESTO_FAULT);
  EXPECT_EQ(LeggiByte(lavoro + "carichi.txt"), "di prima");
}

// ---- viewer, options and the drawing ----

TEST_F(Pannelli_, PrimoClicAvviaIlVisualizzatoreEScriveIlDisegno) {
  registratore.programmi = true;
  Premi(InsDati, "ApriVis");
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(UltimoEvento(), "[avvia] " + suite.DirProgra + "\\lumvet.exe");
  EXPECT_EQ(LeggiByte(RisolviPercorso(suite.DirProgra + "\\lumvet.inp")),
            " 2 \r\n" + suite.DirProgra + "\\nodo.dis\r\n 0 \r\n 0 \r\n 8000 \r\n 8000 \r\n");
  EXPECT_TRUE(EsisteFile(suite.DirLavoro + "\\qb7tmp.grb"));
  EXPECT_FALSE(EsisteFile(suite.DirProgra + "\\nodo.dis"));
  EXPECT_FALSE(registratore.attesa);
}

// The viewer's input cannot be written, here because a folder has its name: not told, and the viewer starts all the same.
TEST_F(Pannelli_, IngressoDelVisualizzatoreNonScritto) {
  registratore.programmi = true;
  std::filesystem::create_directory(RisolviPercorso(suite.DirProgra + "\\lumvet.inp"));
  Premi(InsDati, "ApriVis");
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{"[avvia] " + suite.DirProgra + "\\lumvet.exe"});
  EXPECT_TRUE(EsisteFile(suite.DirLavoro + "\\qb7tmp.grb"));
}

TEST_F(Pannelli_, VisualizzatoreColPuntatoreDiAttesa) {
  static bool attesa;
  attesa = false;
  piattaforma.avvia = [](const std::string&, const std::string&) { return attesa = registratore.attesa; };
  Premi(InsDati, "ApriVis");
  EXPECT_TRUE(attesa);
  EXPECT_FALSE(registratore.attesa);
}

TEST_F(Pannelli_, SecondoClicLoFaRicaricare) {
  const std::string finestra = "VISUALIZZAZIONE FILE DISEGNO - " + suite.DirProgra + "\\nodo.dis";
  registratore.finestre.push_back(finestra);
  Premi(InsDati, "ApriVis");
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(UltimoEvento(), "[tasti] " + finestra + " | ^v");
  EXPECT_FALSE(EsisteFile(suite.DirProgra + "\\lumvet.inp"));
  EXPECT_TRUE(EsisteFile(suite.DirLavoro + "\\qb7tmp.grb"));
}

TEST_F(Pannelli_, VisualizzatoreAssenteNonScriveIlDisegno) {
  Premi(InsDati, "ApriVis");
  EXPECT_EQ(UltimoEvento(), "[messaggio] esclamazione | ERRORE | Visualizzatore incompleto o mancante");
  EXPECT_FALSE(EsisteFile(suite.DirLavoro + "\\qb7tmp.grb"));
  EXPECT_FALSE(registratore.attesa);
}

TEST_F(Pannelli_, ApplicaEChiudiDelleOpzioni) {
  registratore.programmi = true;
  Premi(InsDati, "Opz");
  Scrivi(Op_Nodo, "Par_Nodo", 0, "6");
  Premi(Op_Nodo, "Applica");
  EXPECT_EQ(suite.ParNodo[0], 6);
  EXPECT_TRUE(opNodo.aperto);
  EXPECT_EQ(UltimoEvento(), "[avvia] " + suite.DirProgra + "\\lumvet.exe");
  Scrivi(Op_Nodo, "Par_Nodo", 0, "5");
  Premi(Op_Nodo, "Chiudi");
  EXPECT_FALSE(opNodo.aperto);
  EXPECT_EQ(suite.ParNodo[0], 5);
  EXPECT_EQ(LeggiByte(RisolviPercorso(suite.DirProgra + "\\nodo.dis")).substr(0, 20), "                   4");
  EXPECT_EQ(UltimoEvento(), "[avvia] " + suite.DirProgra + "\\lumvet.exe");  // written without a box
}
