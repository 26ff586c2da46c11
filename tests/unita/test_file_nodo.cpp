// test_file_nodo - the commands Salva Nodo and Carica Nodo on the sample suite: dialogs, bytes, the panel in line with the file.
// Library: HEA200 190 x 200 x 6.5 x 10, r 18 and entry 32 HEA360 350 x 300 x 10 x 17.5, r 27 (EN 10365). Diameters: row 7 M20, 9 M24.
// The job's materials are S 275 (FE 430) and C25/30; the first steel of the catalogue is S 235 (FE 360).
#include "corredo/banco_nodo.h"
#include "corredo/lavoro_prova.h"

#include <cmath>
#include <filesystem>

#include "core/layout_nodo.h"
#include "model/materiali.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/FormTF.h"
#include "panels/file_nodo.h"

TEST_F(FileNodo, SalvaIlNodoNuovo) {
  Salva(lavoro + "primo.qb7");
  EXPECT_EQ(registratore.eventi, (Righe{std::string("[file] salva |  | ") + FILTRO + " |  -> " + lavoro + "primo.qb7"}));
  EXPECT_TRUE(registratore.richiesta.salva);
  EXPECT_EQ(registratore.richiesta.estensione, "qb7");
  EXPECT_EQ(registratore.richiesta.filtro, FILTRO);
  EXPECT_EQ(registratore.richiesta.nomeIniziale, "");
  EXPECT_EQ(registratore.richiesta.titolo, "");
  EXPECT_FALSE(esitoFile.annullato || esitoFile.fallito);
  // Plate 300 + 200 by 350 + 200; edge distances a quarter of what stands out, 50; the defaults of a new joint.
  EXPECT_EQ(LeggiByte(lavoro + "primo.qb7"), Unisci({"VERNTC",
                                                     "HEA360            ",
                                                     " 350 ",
                                                     " 300 ",
                                                     " 10 ",
                                                     " 17.5 ",
                                                     " 500 ",
                                                     " 550 ",
                                                     " 10 ",
                                                     " 2 ",
                                                     "0",
                                                     " 6 ",
                                                     " 150 ",
                                                     " 0 ",
                                                     " 7 ",
                                                     " 4 ",
                                                     " 50 ",
                                                     " 50 ",
                                                     " 450 ",
                                                     " 50 ",
                                                     " 50 ",
                                                     " 500 ",
                                                     " 450 ",
                                                     " 500 ",
                                                     " 70 ",
                                                     " 500 ",
                                                     " 450 ",
                                                     " 120 ",
                                                     " 7 ",
                                                     " 10 ",
                                                     " 100 ",
                                                     " 50 ",
                                                     " 0 ",
                                                     " 200 ",
                                                     " 0 ",
                                                     "S 275 (FE 430)",
                                                     "S 235 (FE 360)",
                                                     "C25/30",
                                                     " 1 ",
                                                     " 0 ",
                                                     " 0 ",
                                                     "0"}));
}

TEST_F(FileNodo, SalvaInWindows1252) {
  nodo.NumSoll = 1;
  nodo.SollNome[1] = "Neve \xC3\xA0 1\r\nx";
  Salva(lavoro + "a.qb7");
  EXPECT_NE(LeggiByte(lavoro + "a.qb7").find("\r\nNeve \xE0 1 x\r\n"), std::string::npos);
}

TEST_F(FileNodo, NomeTitoloECartella) {
  EXPECT_EQ(insDati.titolo, "NODO COLONNA - PLINTO - Lavoro: Nuovo");
  Salva(lavoro + "Pilastro.1.bis.qb7");
  EXPECT_EQ(registratore.richiesta.cartella, suite.DirLavoro);
  EXPECT_EQ(nodo.NomeNodo, "Pilastro");
  EXPECT_EQ(insDati.titolo, "NODO COLONNA - PLINTO - Lavoro: Pilastro");
  Carica(lavoro + "pilastro_A1");  // the default extension is added
  EXPECT_EQ(registratore.richiesta.cartella, "") << "later dialogs open where the last one ended";
  EXPECT_FALSE(registratore.richiesta.salva);
  EXPECT_EQ(registratore.eventi.back(), std::string("[file] apri |  | ") + FILTRO + " |  -> " + lavoro + "pilastro_A1.qb7");
  EXPECT_EQ(nodo.NomeNodo, "pilastro_A1");
  std::string conBarre = lavoro + "portale_F1.qb7";
  for (char& c : conBarre)
    if (c == '/') c = '\\';
  Carica(conBarre);
  EXPECT_EQ(nodo.NomeNodo, "portale_F1");
  EXPECT_FALSE(esitoFile.fallito);
}

TEST_F(FileNodo, AncheUnCaricamentoConsumaLaCartella) {
  Carica(lavoro + "pilastro_A1.qb7");
  EXPECT_EQ(registratore.richiesta.cartella, suite.DirLavoro);
  EXPECT_EQ(registratore.richiesta.estensione, "qb7");
  Carica(lavoro + "pilastro_A1.qb7");
  EXPECT_EQ(registratore.richiesta.cartella, "");
}

// The sides are the file's, whatever the margins of the node before: 460 by 520 around HEA200, 200 by 190, leave 130 and 165.
TEST_F(FileNodo, LatiEMarginiDelFile) {
  Righe r = Buono();
  r[6] = " 460 ";
  r[7] = " 520 ";
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  const char* lati[] = {"460", "520", "130", "165", "20"};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(insDati.LatoTxt[i].testo, lati[i]) << i;
  EXPECT_EQ(nodo.LatoZ, 460);
  EXPECT_EQ(nodo.LatoY, 520);
}

TEST_F(FileNodo, AnnullaNonCambiaNulla) {
  Carica(lavoro + "pilastro_A1.qb7");
  const std::string prima = ComponiNodo();
  insDati.CartellaDialogo = "resta";
  for (Controllo* c : {&insDati.Sav_Nodo, &insDati.Car_Nodo}) {
    registratore.eventi.clear();
    Premi(*c, "");
    EXPECT_TRUE(esitoFile.annullato);
    EXPECT_FALSE(esitoFile.fallito);
    EXPECT_EQ(registratore.eventi.size(), 1u) << "the dialog's own line";
    EXPECT_EQ(ComponiNodo(), prima);
    EXPECT_EQ(nodo.NomeNodo, "pilastro_A1");
    EXPECT_EQ(insDati.CartellaDialogo, "resta");
  }
}

TEST_F(FileNodo, CaricaTutto) {
  CaricaByte(lavoro + "buono.qb7", Unisci(Buono()));
  EXPECT_EQ(registratore.eventi.size(), 1u);
  EXPECT_FALSE(esitoFile.fallito);
  // section and plate
  EXPECT_EQ(nodo.Sezione.Nome, "HEA200            ");
  EXPECT_EQ(nodo.Sezione.R, 18);
  EXPECT_EQ(insDati.TraveP.voci[static_cast<std::size_t>(insDati.TraveP.scelta)], "HEA200");
  EXPECT_EQ(insDati.geomp[0].testo, "190");
  const char* lati[] = {"400", "500", "100", "155", "20"};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(insDati.LatoTxt[i].testo, lati[i]) << i;
  EXPECT_EQ(nodo.LatoZ, 400);
  EXPECT_EQ(nodo.SpessPiastra, 20);
  // typology and weld: the file has the thickness first, field 0 is the height
  EXPECT_EQ(VoceScelta(insDati.Op_Tip[0]), 1);
  EXPECT_EQ(insDati.HFazzTxt[0].testo, "120");
  EXPECT_EQ(insDati.HFazzTxt[1].testo, "8");
  EXPECT_EQ(insDati.ChSI.scelta, 1);
  EXPECT_EQ(nodo.SaldInt, 1);
  EXPECT_EQ(insDati.GolaTxt.testo, "6");
  EXPECT_DOUBLE_EQ(nodo.GolaCalc, 4.242640687119285);  // 6 / sqrt 2
  // anchors: fields 1, 2, 3, 4 from anchors 1, 2, 1, 3
  EXPECT_EQ(insDati.DTf[1].testo, "50");
  EXPECT_EQ(insDati.DTf[2].testo, "60");
  EXPECT_EQ(insDati.DTf[3].testo, "45");
  EXPECT_EQ(insDati.DTf[4].testo, "70");
  EXPECT_EQ(nodo.NTir, 4);
  EXPECT_EQ(nodo.TfZ[4], 340);
  EXPECT_EQ(nodo.TfY[4], 430);
  EXPECT_EQ(nodo.TfDiamIdx, 9);
  EXPECT_EQ(nodo.TfFi, 24);
  const char* etichette[] = {"110", "600", "90", "400", "12", "24"};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(insDati.TFLab[i].testo, etichette[i]) << i;
  EXPECT_EQ(formTF.GeoTfTxt[1].testo, "110") << "the anchor chooser, hooked rod: LFt";
  EXPECT_EQ(formTF.GeoTfTxt[2].testo, "600");
  EXPECT_EQ(nodo.TfDForo, 80);
  EXPECT_EQ(nodo.TfHMalta, 40);
  EXPECT_EQ(nodo.TfLFil, 70);
  EXPECT_EQ(nodo.TfDistBordo, 250);
  EXPECT_EQ(nodo.TipoTirafondo, 1);
  // materials: whole records behind the names
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");
  EXPECT_EQ(nodo.MatAcc.Fyk, 2350);
  EXPECT_EQ(insDati.Acc.scelta, 0);
  EXPECT_EQ(nodo.MatTir.Nome, "Barra classe 8.8");
  EXPECT_EQ(nodo.MatTir.Ftk, 8000);
  EXPECT_EQ(nodo.MatCls.Nome, "C28/35");
  EXPECT_EQ(nodo.MatCls.Rck, 350);
  EXPECT_DOUBLE_EQ(nodo.EcCls, 5700 * std::sqrt(35.0) * 10);
  EXPECT_EQ(nodo.Esposizione, 1);
  EXPECT_EQ(insDati.ComboEsposizione.scelta, 1);
  EXPECT_EQ(VoceScelta(insDati.TipoVer[0]), 1);
  // loads, on the panel in the job's units: daN and daN cm
  EXPECT_EQ(nodo.NumSoll, 1);
  EXPECT_EQ(nodo.SollTz[1], -200);
  EXPECT_EQ(nodo.SollMz[1], 500);
  EXPECT_EQ(nodo.SollCC[1], 1);
  EXPECT_EQ(insDati.Lsa[0].testo, "Caso 1");
  EXPECT_EQ(insDati.TxtSN[0].testo, "-12000.5");
  EXPECT_TRUE(insDati.Lsa[0].visibile);
  EXPECT_FALSE(insDati.Lsa[1].visibile);
  EXPECT_NE(insDati.Soll.testo.find('1'), std::string::npos) << insDati.Soll.testo;
  EXPECT_TRUE(insDati.EsportaSollButt.abilitato);
  EXPECT_EQ(nodo.NodiStr[2], 8);
  // and back, byte by byte
  Salva(lavoro + "copia.qb7");
  EXPECT_EQ(LeggiByte(lavoro + "copia.qb7"), Unisci(Buono()));
}

TEST_F(FileNodo, LoSchizzoEDelNodoCaricato) {
  const auto capi = [] {
    std::vector<double> v;
    for (const Tratto& t : insDati.telaNodo.tratti) v.insert(v.end(), {t.x1, t.y1, t.x2, t.y2, t.xc, t.yc, t.raggio});
    return v;
  };
  const std::vector<double> prima = capi();
  CaricaByte(lavoro + "buono.qb7", Unisci(Buono()));
  const std::vector<double> caricato = capi();
  EXPECT_NE(caricato, prima);
  RidisegnaNodo();
  EXPECT_EQ(caricato, capi());
}

TEST_F(FileNodo, RisultatiDelNodoDiPrima) {
  ris.SigmaTir[1][1] = ris.SMaxCls[1] = ris.SNerv[200][8] = ris.FvEd[1][1] = ris.Saldature[3].SEq1[1] = 9;
  ris.SPiastraTir[1][1][5] = ris.Saldature[9].Lung = 7;
  ::lavoro.NumSaldature = 44;
  ::lavoro.usato = true;  // as after a verification
  Carica(lavoro + "pilastro_A1.qb7");
  EXPECT_EQ(ris.SigmaTir[1][1], 0);
  EXPECT_EQ(ris.SMaxCls[1], 0);
  EXPECT_EQ(ris.SNerv[200][8], 0);
  EXPECT_EQ(ris.FvEd[1][1], 0);
  EXPECT_EQ(ris.Saldature[3].SEq1[1], 0);
  EXPECT_EQ(::lavoro.NumSaldature, 0);
  // What the next verification finds as it was left: it rebuilds neither by itself.
  EXPECT_EQ(ris.SPiastraTir[1][1][5], 7);
  EXPECT_EQ(ris.Saldature[9].Lung, 7);
}

TEST_F(FileNodo, SezioneDiLibreriaEForestiera) {
  Righe r = Buono();
  r[1] = "HEA200";  // no padding: equal all the same
  r[2] = " 999 ";   // the library's own dimensions count
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_EQ(nodo.Sezione.H, 190);
  EXPECT_EQ(nodo.Sezione.R, 18);
  r[1] = "hea200";  // case counts: foreign
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_EQ(nodo.Sezione.H, 999);
  for (const int k : {1, static_cast<int>(suite.NumProfili)}) {  // the library's ends
    r[1] = suite.ProfiliLib[k].Nome;
    CaricaByte(lavoro + "x.qb7", Unisci(r));
    EXPECT_EQ(insDati.TraveP.scelta, k - 1);
    EXPECT_EQ(nodo.Sezione.H, suite.ProfiliLib[k].H);
  }
  suite.ProfiliLib[40] = suite.ProfiliLib[32];  // the last of two equal names wins
  suite.ProfiliLib[40].H = 352;
  r[1] = suite.ProfiliLib[32].Nome;
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_EQ(insDati.TraveP.scelta, 39);
  EXPECT_EQ(nodo.Sezione.H, 352);
  r[1] = "HEA200";
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  r[1] = "SALDATA 300       ";
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_FALSE(esitoFile.fallito);
  EXPECT_EQ(nodo.Sezione.Nome, "SALDATA 300       ");
  EXPECT_EQ(nodo.Sezione.H, 999);
  EXPECT_EQ(nodo.Sezione.R, 18) << "the radius of the node before";
  EXPECT_EQ(insDati.LatoTxt[3].testo, "-249.5");  // (500 - 999) / 2
}

TEST_F(FileNodo, SenzaNervatureRestanoQuelleDiPrima) {
  Righe r = Buono();
  r[9] = " 1 ";
  r.erase(r.begin() + 11, r.begin() + 14);
  nodo.HNerv = 33;
  nodo.SpNerv = 4;
  ImpostaScelta(insDati.ChSI, 1);
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_FALSE(esitoFile.fallito);
  EXPECT_EQ(VoceScelta(insDati.Op_Tip[0]), 0);
  EXPECT_EQ(nodo.TipoNodo, 1);
  EXPECT_FALSE(insDati.HFazzTxt[0].abilitato);
  EXPECT_EQ(nodo.HNerv, 33);
  EXPECT_EQ(nodo.SpNerv, 4);
  EXPECT_EQ(nodo.SaldInt, 1);
  EXPECT_EQ(insDati.ChSI.scelta, 1);
  EXPECT_EQ(insDati.GolaTxt.testo, "6");
  r[9] = " 3 ";  // another typology has no rib lines either and ends as 1
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_FALSE(esitoFile.fallito);
  EXPECT_EQ(nodo.TipoNodo, 1);
  EXPECT_EQ(nodo.HNerv, 33);
  EXPECT_EQ(nodo.Gola, 6);
}

// The pattern's own number of anchors counts, with the positions of the file.
static void Motivo(Righe& r, const char* cifra, int n) {
  r[10] = cifra;
  r[15] = " " + std::to_string(n) + " ";
  Righe coppie;
  for (int i = 1; i <= n; ++i) {
    coppie.push_back(" " + std::to_string(100 + i) + " ");
    coppie.push_back(" " + std::to_string(200 + i) + " ");
  }
  r.erase(r.begin() + 16, r.begin() + 24);
  r.insert(r.begin() + 16, coppie.begin(), coppie.end());
}

TEST_F(FileNodo, MotiviEPosizioni) {
  // clang-format off
  const struct { const char* cifra; int voce, scritti, NTir; } casi[] = {
    {"0", 0, 4, 4}, {"1", 1, 8, 8}, {"2", 2, 6, 6}, {"3", 3, 6, 6}, {" 3 ", 3, 6, 6},
    {"0", 0, 8, 4},                // four by the pattern, whatever the file counts
    {"1", 1, 4, 8},                // eight by the pattern: the four that the file lacks are zero
  };
  // clang-format on
  for (const auto& c : casi) {
    Righe r = Buono();
    Motivo(r, c.cifra, c.scritti);
    CaricaByte(lavoro + "x.qb7", Unisci(r));
    EXPECT_FALSE(esitoFile.fallito) << c.cifra;
    EXPECT_EQ(VoceScelta(insDati.OptionNTir[0]), c.voce);
    EXPECT_EQ(nodo.OptionNTir, c.voce);
    EXPECT_EQ(nodo.NTir, c.NTir);
    for (int i = 1; i <= c.NTir; ++i) {
      EXPECT_EQ(nodo.TfZ[i], i <= c.scritti ? 100 + i : 0) << c.cifra << " " << i;
      EXPECT_EQ(nodo.TfY[i], i <= c.scritti ? 200 + i : 0) << c.cifra << " " << i;
    }
    const char* distanze[] = {"101", "298", "201", "297"};  // of anchors 1, 2, 1, 3: 400 - 102, 500 - 203
    for (int i = 1; i <= 4; ++i) EXPECT_EQ(insDati.DTf[i].testo, distanze[i - 1]) << i;
  }
}

TEST_F(FileNodo, CifraDelMotivoFuoriPosto) {
  for (const char* cifra : {"4", "9", "-1", "x", "", "12"}) {
    SelezionaVoce(insDati.OptionNTir[0], 2);  // six "Vert."
    Righe r = Buono();
    Motivo(r, cifra, 6);
    CaricaByte(lavoro + "x.qb7", Unisci(r));
    EXPECT_FALSE(esitoFile.fallito) << cifra;
    EXPECT_EQ(nodo.OptionNTir, 2) << cifra;
    EXPECT_EQ(nodo.NTir, 6);
    EXPECT_EQ(nodo.TfZ[5], 105) << "the anchors are set from the file all the same";
    EXPECT_EQ(nodo.TfY[6], 206);
  }
}

// A first node by allowable stresses with S 275, a second by limit states with S 355, a third by allowable stresses with S 235:
// the grade remembered for the method must not take the place of the file's.
TEST_F(FileNodo, IGradiDelFileVinconoSullaMemoria) {
  Righe r = Buono();
  r[35] = "S 275 (FE 430)";
  r.back() = "0";
  CaricaByte(lavoro + "uno.qb7", Unisci(r));
  r[35] = "S 355 (FE 510)";
  r[36] = "Barra classe 10.9";
  r[37] = "C20/25";
  r.back() = "1";
  CaricaByte(lavoro + "due.qb7", Unisci(r));
  EXPECT_EQ(nodo.MatAcc.Fyk, 3550);
  EXPECT_EQ(nodo.MatTir.Fyk, 9000);
  EXPECT_EQ(nodo.MatCls.Rck, 250);
  r[35] = "S 235 (FE 360)";
  r[36] = "Barra classe 4.6";
  r.back() = "0";
  CaricaByte(lavoro + "tre.qb7", Unisci(r));
  EXPECT_EQ(nodo.TipoVer, 0);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");
  EXPECT_EQ(nodo.MatAcc.SAmm, 1600);
  EXPECT_EQ(insDati.Acc.scelta, 0);
  EXPECT_EQ(nodo.MatTir.SAmm, 1600);
  EXPECT_EQ(registratore.eventi.size(), 1u) << "no box";
  // The other method starts from the node at hand, too.
  SelezionaVoce(insDati.TipoVer[0], 1);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");
}

TEST_F(FileNodo, MaterialiSconosciuti) {
  Righe r = Buono();
  r[35] = "  S 275 (FE 430)  ";  // blanks at both ends do not count
  r[36] = "Ferro vecchio";
  r[37] = "C99/99";
  r.back() = "0";
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_FALSE(esitoFile.fallito);
  ASSERT_EQ(registratore.eventi.size(), 3u);
  EXPECT_EQ(registratore.eventi[1], "[messaggio] nessuna | NODO COLONNA - PLINTO | Attenzione: tipo acciaio per tirafondi non accettabile "
                                    "(Ferro vecchio). Scegliere un acciaio dalla tendina dei  materiali");
  EXPECT_EQ(registratore.eventi[2], "[messaggio] nessuna | NODO COLONNA - PLINTO | Attenzione: classe calcestruzzo non accettabile "
                                    "(C99/99). Scegliere una classe dalla tendina dei calcestruzzi");
  EXPECT_EQ(nodo.MatAcc.SAmm, 1900);
  EXPECT_EQ(nodo.MatTir.Nome, "S 235 (FE 360)");  // no name overlaps: entry 1
  EXPECT_EQ(nodo.MatTir.SAmm, 1600);
  EXPECT_EQ(nodo.MatCls.Nome, "C16/20");  // entry 1
  EXPECT_EQ(nodo.MatCls.Rck, 200);
}

TEST_F(FileNodo, UltimaRigaUguale) {
  materiali.ClsBase[6] = materiali.ClsBase[4];  // C28/35 again
  materiali.ClsBase[6].Rck = 351;
  CaricaByte(lavoro + "x.qb7", Unisci(Buono()));
  EXPECT_EQ(insDati.ComboCalcestruzzo.scelta, 5);
  EXPECT_EQ(nodo.MatCls.Rck, 351);
  materiali.ClsBase[6].Nome = "c28/35";  // case counts
  CaricaByte(lavoro + "x.qb7", Unisci(Buono()));
  EXPECT_EQ(insDati.ComboCalcestruzzo.scelta, 3);
  EXPECT_EQ(nodo.MatCls.Rck, 350);
}

TEST_F(FileNodo, VecchiaGenerazione) {
  ImpostaScelta(insDati.ComboEsposizione, 2);
  Carica(lavoro + "esistente_1998.qb7");
  EXPECT_FALSE(esitoFile.fallito);
  EXPECT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(nodo.Sezione.Nome, "HEA180            ");
  EXPECT_EQ(nodo.Sezione.R, 15);
  EXPECT_EQ(nodo.MatCls.Nome, "C20/25");
  EXPECT_EQ(nodo.MatAcc.Nome, "S 235 (FE 360)");
  EXPECT_EQ(nodo.Esposizione, 2) << "the panel's own stays";
  const std::string vecchio = LeggiByte(lavoro + "esistente_1998.qb7");
  Salva(lavoro + "nuovo.qb7");
  // Marker in front, padded name, three names and the exposure in place of the eight values.
  std::string atteso = "VERNTC\r\n" + vecchio;
  const std::string otto = "C20/25\r\n 250 \r\n 85 \r\nS 235 (FE 360)\r\n 1600 \r\n 1400 \r\nS 235 (FE 360)\r\n 1600 \r\n";
  const std::size_t p = atteso.find(otto);
  ASSERT_NE(p, std::string::npos);
  atteso.replace(p, otto.size(), "S 235 (FE 360)\r\nS 235 (FE 360)\r\nC20/25\r\n 3 \r\n");
  EXPECT_EQ(LeggiByte(lavoro + "nuovo.qb7"), atteso);
}

// A node stored by limit states, then judged by allowable stresses: its own grades, not the start's; one without allowable
// stresses is replaced, with a box.
TEST_F(FileNodo, LAltroMetodoParteDaiGradiDelFile) {
  Righe r = Buono();
  r[35] = "S 355 (FE 510)";
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  SelezionaVoce(insDati.TipoVer[0], 0);
  EXPECT_EQ(nodo.MatAcc.Nome, "S 355 (FE 510)");
  EXPECT_EQ(nodo.MatAcc.SAmm, 2400);
  EXPECT_EQ(nodo.MatTir.Nome, "Barra classe 8.8");
  EXPECT_EQ(registratore.eventi.size(), 1u);
  ASSERT_TRUE(AvviaSuite(radice));
  Carica(lavoro + "colonna_H1.qb7");  // S 460 M
  EXPECT_EQ(registratore.eventi.size(), 1u);
  SelezionaVoce(insDati.TipoVer[0], 0);
  ASSERT_EQ(registratore.eventi.size(), 2u);
  EXPECT_EQ(registratore.eventi[1].find("[messaggio] esclamazione | ATTENZIONE! | Materiale non possibile per verifiche alle tensioni"),
            0u);
}

// Every sample loads in a run of its own without a failed step or a box and saves back to the same bytes.
TEST_F(FileNodo, EsempiAndataERitorno) {
  int quanti = 0;
  std::vector<std::filesystem::path> nodi;
  for (const auto& v : std::filesystem::directory_iterator(lavoro))
    if (v.path().extension() == ".qb7" && v.path().stem() != "esistente_1998") nodi.push_back(v.path());
  for (const auto& p : nodi) {
    ASSERT_TRUE(AvviaSuite(radice));
    Carica(p.string());
    EXPECT_FALSE(esitoFile.fallito || esitoFile.annullato) << p;
    EXPECT_EQ(registratore.eventi.size(), 1u) << p << (registratore.eventi.size() > 1 ? registratore.eventi[1] : "");
    Salva(lavoro + "copia.qb7");
    EXPECT_EQ(LeggiByte(lavoro + "copia.qb7"), LeggiByte(p.string())) << p;
    ++quanti;
  }
  EXPECT_GE(quanti, 8);
}
