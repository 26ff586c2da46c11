// test_grb.cpp - the edition with styles, its file byte by byte, and the commands of the panel.
#include <gtest/gtest.h>

#include <memory>

#include "core/aritmetica.h"
#include "corredo/lavoro_prova.h"
#include "corredo/nodo_disegno.h"
#include "corredo/registratore.h"
#include "drawing/Quote.h"
#include "drawing/edizione_dis.h"
#include "drawing/esecutivo.h"
#include "drawing/formats/formati.h"
#include "drawing/formats/grb_edizione.h"
#include "drawing/formats/grb_stili.h"
#include "drawing/formats/scrittori.h"
#include "drawing/pezzi.h"
#include "drawing/saldature_dis.h"
#include "drawing/tavola.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/comandi_disegno.h"

namespace {

class Grb : public ::testing::Test {
 protected:
  std::string cartella, nome;
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    cartella = CartellaProva("grb");
    nome = cartella + "\\prova.grb";
    suite.DirLavoro = cartella;
    NodoDiProva();
    OpzioniDiProva();
    suite.ParNodo[25] = 3;
    suite.ParNodo[26] = 1;
    suite.ParNodo[27] = 2;
    stiliGrb.NumStili = 3;
    stiliGrb.AltStile[1] = 24;
    stiliGrb.LargStile[1] = 16;
    disegno.DestDis = GENDIS;
  }
  void TearDown() override { AzzeraFault(); }
  std::string File(const char* f = "/prova.grb") { return LeggiByte(cartella + f); }
  double X(int coord) { return disegno.CoordX[coord]; }
  double Y(int coord) { return disegno.CoordY[coord]; }
  double TX(int t) { return X(disegno.TesPos[t]); }
  double TY(int t) { return Y(disegno.TesPos[t]); }
};

TEST_F(Grb, TestiPerAllineamento) {
  disegno.OffX = 100;
  TestoGrb("c", 0, 10, 20, 30, 12.5, 1, 4);
  TestoGrb("d", 0, 10, 20, 30, 13.5, 2, 4);
  TestoGrb("s", 0, 10, 20, 30, 0, 0, 4);
  TestoGrb("t", 0, 10, 20, 30, 0, 3, 4);
  ASSERT_EQ(disegno.NumTesti, 4);
  EXPECT_EQ(TX(0), 110);
  EXPECT_EQ(TY(0), 20);
  EXPECT_EQ(TX(1), 120);
  EXPECT_EQ(TY(1), 30);
  EXPECT_EQ(TX(2), 100);
  EXPECT_EQ(TX(3), 100);
  EXPECT_EQ(disegno.TesAng[0], 12);  // ties to even
  EXPECT_EQ(disegno.TesAng[1], 14);
  EXPECT_EQ(disegno.TesCol[0], 4);
  EXPECT_EQ(disegno.TesAllin[1], 2);
  EXPECT_EQ(disegno.TesStr[1], "d");
}

TEST_F(Grb, LimiteDeiTesti) {
  disegno.NumTesti = 14998;
  TestoGrb("a", 0, 0, 1, 0, 0, 1, 1);
  EXPECT_TRUE(registratore.eventi.empty());
  TestoGrb("b", 0, 0, 1, 0, 0, 1, 1);
  EXPECT_EQ(registratore.eventi,
            std::vector<std::string>{"[messaggio] esclamazione | NODO COLONNA - PLINTO | Superato il numero massimo di testi"});
  EXPECT_EQ(disegno.NumTesti, 15000);
  TestoGrb("c", 0, 0, 1, 0, 0, 1, 1);
  EXPECT_EQ(disegno.NumTesti, 15000);
  EXPECT_EQ(registratore.eventi.size(), 1u);
  disegno.NumTesti = 0;
  disegno.NumCoord = 50000;  // no room for its place: taken back
  TestoGrb("d", 777, 0, 778, 0, 0, 1, 1);
  EXPECT_EQ(disegno.NumTesti, 0);
}

TEST_F(Grb, Quote) {
  disegno.OffX = 1000;
  disegno.OffY = 50;
  QuotaGrb("", 0, 0, 100, 0.00009, 3.5, 7);
  QuotaGrb("  12 ", 0, 0, 0.00009, 100, 0, 7);
  QuotaGrb("   ", 0, 0, 100, 100, 0, 7);
  QuotaGrb("x", 5, 5, 5.00009, 5.00009, 0, 7);  // no extent: nothing
  ASSERT_EQ(disegno.NumQuote, 3);
  EXPECT_EQ(disegno.QuoTipo[0], 'H');
  EXPECT_EQ(disegno.QuoTipo[1], 'V');
  EXPECT_EQ(disegno.QuoTipo[2], 'P');
  EXPECT_EQ(disegno.QuoTesto[0], "Stringa_di_default");
  EXPECT_EQ(disegno.QuoTesto[1], "12");
  EXPECT_EQ(disegno.QuoTesto[2], "Stringa_di_default");
  EXPECT_EQ(disegno.QuoDist[0], 3.5);
  EXPECT_EQ(disegno.QuoStile[0], 7);
  EXPECT_EQ(X(disegno.QuoIni[2]), 1000);
  EXPECT_EQ(Y(disegno.QuoIni[2]), 50);
  EXPECT_EQ(X(disegno.QuoFin[2]), 1100);
  EXPECT_EQ(Y(disegno.QuoFin[2]), 150);
}

// Strictly below the tolerance only.
TEST_F(Grb, QuoteAlLimiteDellaTolleranza) {
  QuotaGrb("", 0, 0, 100, 0.0001, 0, 1);
  QuotaGrb("", 0, 0, 0.0001, 100, 0, 1);
  QuotaGrb("", 0, 0, 0.0001, 0, 0, 1);
  ASSERT_EQ(disegno.NumQuote, 3);
  EXPECT_EQ(disegno.QuoTipo[0], 'P');
  EXPECT_EQ(disegno.QuoTipo[1], 'P');
  EXPECT_EQ(disegno.QuoTipo[2], 'H');
}

// 999 are stored; each later one shows the message, a degenerate one too.
TEST_F(Grb, LimiteDelleQuote) {
  disegno.NumQuote = 998;
  disegno.QuoTesto.resize(998);
  QuotaGrb("", 0, 0, 1, 0, 0, 1);
  EXPECT_EQ(disegno.NumQuote, 999);
  EXPECT_TRUE(registratore.eventi.empty());
  QuotaGrb("", 0, 0, 2, 0, 0, 1);
  QuotaGrb("", 0, 0, 0, 0, 0, 1);
  EXPECT_EQ(disegno.NumQuote, 999);
  const std::string m = "[messaggio] esclamazione | NODO COLONNA - PLINTO | Superato il numero massimo di quote";
  EXPECT_EQ(registratore.eventi, (std::vector<std::string>{m, m}));
}

TEST_F(Grb, Riga4) {
  EXPECT_EQ(Riga4("12", "345", "-1", "H"),
            std::string(18, ' ') + "12" + std::string(17, ' ') + "345" + std::string(18, ' ') + "-1" + std::string(19, ' ') + "H");
  EXPECT_EQ(Riga4("123456789012345678901", "a", "b", " "),
            "12345678901234567890 " + std::string(18, ' ') + "a " + std::string(18, ' ') + "b");
  const std::string lungo = "12345678901234567890x", campo = "1234567890123456789";  // the other fields hold 19
  EXPECT_EQ(Riga4(lungo, lungo, lungo, lungo), "12345678901234567890 " + campo + " " + campo + " " + campo);
}

// One of each table by hand.
TEST_F(Grb, FileIntero) {
  DisLinea(nullptr, 0, 0, 10, 0, std::int16_t{3});
  DisArco(nullptr, 10, 5, 4, std::int16_t{4});
  TestoGrb("titolo", 0, 0, 10, 0, 0, 1, 2);
  QuotaGrb("", 0, 0, 10, 0, 2.5, 3);
  disegno.EstXMin = -1;
  disegno.EstXMax = 7.5;
  EXPECT_TRUE(ScriviGrb(nome, 0));
  const std::string zero = "                   0\r\n";
  EXPECT_EQ(File(), "                   4\r\n"
                    "                   5                   2                   0\r\n" +
                      zero + zero + zero + zero + zero + zero +
                      "-1             7.5 \r\n"
                      " 0             0 \r\n"
                      " 5 \r\n"
                      " 0             0 \r\n"
                      " 10            0 \r\n"
                      " 10            5 \r\n"
                      " 12            5 \r\n"
                      " 5             0 \r\n"
                      "0\r\n"
                      " 1 \r\n"
                      " 0             1 \r\n"
                      " 3             0             0 \r\n"
                      " 1 \r\n"
                      " 2             3             3 \r\n"
                      " 4             0             0 \r\n"
                      " 1 \r\n"
                      " 4             1             0             0             1 \r\n"
                      "titolo\r\n" +
                      zero + zero +
                      " 1 \r\n"
                      "                   0                   1                  -1                   H\r\n"
                      " 2             2.5          0\r\n"
                      "Stringa_di_default\r\n"
                      " 0 \r\n");
}

TEST_F(Grb, StileFuoriTabella) {
  Edizione e;
  EXPECT_TRUE(EdizioneGrb(e));
  suite.ParNodo[26] = 3.9;  // cut, not rounded
  EXPECT_TRUE(EdizioneGrb(e));
  for (const double stile : {0.9, 4.0, -1.0, 1e9}) {
    suite.ParNodo[27] = stile;
    registratore.eventi.clear();
    EXPECT_FALSE(ComandoGrb(nome, 0));
    EXPECT_EQ(registratore.eventi, std::vector<std::string>{"[messaggio] esclamazione | NODO COLONNA - PLINTO | Scrittura GRB annullata"});
  }
  suite.ParNodo[27] = 100;
  stiliGrb = {};  // no template: any style, sizes 0
  EXPECT_TRUE(EdizioneGrb(e));
  EXPECT_EQ(e.AltTesti, 0);
  suite.ParNodo[27] = 101;
  EXPECT_FALSE(EdizioneGrb(e));
}

// Dimensions are no lines: view B-B ends at its foundation (x 450) and at the section line (y -627).
TEST_F(Grb, DifferenzeDelleViste) {
  nodo.SaldInt = 1;
  ASSERT_TRUE(EsportaGrb(nome, 1));
  const double P7 = 15, alto = 24, largo = 16;
  EXPECT_DOUBLE_EQ(esecutivo.BoxBXMax, 450);
  EXPECT_DOUBLE_EQ(esecutivo.BoxBYMin, -627);
  EXPECT_DOUBLE_EQ(esecutivo.XQuoteDx, 450 + largo + 3 * P7);
  // the plan drops by 20 ParNodo(7) more
  const int c = TrovaTesto("SEZIONE C-C");
  EXPECT_DOUBLE_EQ(TY(c), -627 - 350 - 7.5 * alto - 20 * P7 + 385 + 3 * alto);
  EXPECT_DOUBLE_EQ(TX(c), 0);  // centred by its alignment
  EXPECT_EQ(disegno.TesAllin[c], 1);
  EXPECT_EQ(disegno.TesCol[c], 1);
  const int b = TrovaTesto("SEZIONE B-B");
  EXPECT_DOUBLE_EQ(TY(b), 400 + 3 * alto);
  // section name upward, around (40 + 400) / 2
  const int n = TrovaTesto("HEX 200");
  EXPECT_EQ(disegno.TesAng[n], 90);
  EXPECT_DOUBLE_EQ(TX(n), -47.5 + alto / 2);
  EXPECT_DOUBLE_EQ(TY(n), 220);
  // schedule: rows of 48, columns 4 characters wider than their cells; cell raised by 12: "Prof." over "HEX 200", 11 characters of 16
  const int p = TrovaTesto("Prof.");
  EXPECT_DOUBLE_EQ(TX(p), 450 + 5 * largo + 11 * largo / 2);
  EXPECT_DOUBLE_EQ(TY(p), 400 - 48 + 12);
  EXPECT_EQ(disegno.TesCol[p], 1);
  const int q = TrovaTesto("N. piastre");
  EXPECT_DOUBLE_EQ(TX(q), 450 + 5 * largo + 6 * largo);  // 12 characters, fixed
  EXPECT_DOUBLE_EQ(TY(q), 400 - 4 * 48 + 12);
  // chains by style 2, detail by style 3, distance 0
  ASSERT_GT(disegno.NumQuote, 4);
  EXPECT_EQ(disegno.QuoStile[0], 2);
  EXPECT_EQ(disegno.QuoStile[disegno.NumQuote - 1], 3);
  for (int i = 0; i < disegno.NumQuote; ++i) EXPECT_EQ(disegno.QuoDist[i], 0);
  for (int i = 0; i < disegno.NumLinee; ++i) ASSERT_NE(disegno.LinCol[i], 5);  // no dimension line
  EXPECT_TRUE(registratore.eventi.empty());
}

// The name's line stands outward of the mark by half a height where its letters rise that way, by one and a half where they point back.
TEST_F(Grb, NomiDelleSaldature) {
  ASSERT_TRUE(EdizioneGrb(edizione));
  quote.EtichetteSald = true;
  ris.Saldature[3].Nome = "S3";
  // clang-format off
  struct {
    double x2, y2;
    int lato;
    double x, y, angolo, scarto;
  } casi[] = {
    {100, 0, 1, 50, 7 + 12, 0, 12},    {100, 0, -1, 50, -7 - 36, 0, 36},   {-100, 0, 1, -50, -7 - 36, 0, 36},
    {0, 100, 1, -7 - 12, 50, 90, 12},  {0, 100, -1, 7 + 36, 50, 90, 36},   {0, -100, 1, 7 + 36, -50, 90, 36},
  };
  // clang-format on
  for (const auto& k : casi) {
    AzzeraDisegno();
    DisSaldatura(nullptr, 0, 0, k.x2, k.y2, k.lato, 2, 3);
    ASSERT_EQ(disegno.NumTesti, 1);
    EXPECT_NEAR(TX(0), k.x, 1e-4);
    EXPECT_NEAR(TY(0), k.y, 1e-4);
    EXPECT_EQ(disegno.TesAng[0], k.angolo);
    EXPECT_EQ(quote.OffEtichSald, k.scarto);
  }
}

TEST_F(Grb, DettaglioEtichettaEQuote) {
  ASSERT_TRUE(EdizioneGrb(edizione));
  suite.ParNodo[19] = 2;
  DettaglioTirafondo();
  ASSERT_EQ(disegno.NumQuote, 4);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(disegno.QuoStile[i], 3);
  EXPECT_EQ(disegno.QuoTipo[0], 'H');
  EXPECT_EQ(X(disegno.QuoIni[0]), -20);
  EXPECT_EQ(disegno.QuoTipo[3], 'V');
  EXPECT_EQ(Y(disegno.QuoFin[3]), -620);
  const int t = TrovaTesto("piatto 70x70x10");
  ASSERT_GE(t, 0);
  EXPECT_EQ(disegno.TesCol[t], 1);
  EXPECT_EQ(TX(t), 0);
}

// Lines and arcs without dimensions are those of the other edition, when the texts' sizes are the same and the plan does not drop.
TEST_F(Grb, StessaGeometria) {
  suite.ParNodo[15] = 0;
  suite.ParNodo[18] = 0;
  suite.ParNodo[19] = 2;
  nodo.TipoTirafondo = 1;
  ASSERT_TRUE(EdizioneGrb(edizione));
  edizione.AltTesti = suite.ParNodo[9];
  edizione.LargTesti = suite.ParNodo[10];
  edizione.CaloPianta = 0;
  ASSERT_TRUE(DisegnaFoglio());
  const auto grb = std::make_unique<Disegno>(disegno);
  edizione = EdizioneDis();
  ASSERT_TRUE(DisegnaFoglio());
  ASSERT_EQ(disegno.NumLinee, grb->NumLinee);
  ASSERT_EQ(disegno.NumArchi, grb->NumArchi);
  for (int i = 0; i < disegno.NumLinee; ++i) {
    ASSERT_DOUBLE_EQ(disegno.CoordX[disegno.LinIni[i]], grb->CoordX[grb->LinIni[i]]);
    ASSERT_DOUBLE_EQ(disegno.CoordY[disegno.LinFin[i]], grb->CoordY[grb->LinFin[i]]);
    ASSERT_EQ(disegno.LinTipo[i], grb->LinTipo[i]);
  }
}

TEST_F(Grb, EstensioniDellUltimoDis) {
  ASSERT_TRUE(EsportaGrb(nome, 1));
  const std::string prima = File();
  EXPECT_NE(prima.find("0\r\n 0             0 \r\n 0             0 \r\n"), std::string::npos);
  ASSERT_TRUE(EsportaDisegno(cartella + "\\altro.dis", 1, "dis"));
  ASSERT_TRUE(EsportaGrb(nome, 1));
  EXPECT_EQ(File().find("0\r\n 0             0 \r\n 0             0 \r\n"), std::string::npos);
  disegno.EstXMin = -1, disegno.EstXMax = 2, disegno.EstYMin = -3, disegno.EstYMax = 4;
  ASSERT_TRUE(EsportaGrb(nome, 1));  // as they stand, whatever is drawn
  EXPECT_NE(File().find("0\r\n-1             2 \r\n-3             4 \r\n"), std::string::npos);
}

TEST_F(Grb, QuoteDaCapoAOgniDisegno) {
  ASSERT_TRUE(EsportaGrb(nome, 1));
  const int quante = disegno.NumQuote;
  ASSERT_GT(quante, 0);
  ASSERT_TRUE(EsportaGrb(nome, 1));
  EXPECT_EQ(disegno.NumQuote, quante);
}

// Cut, not rounded: 1.7 is style 1.
TEST_F(Grb, StileTroncato) {
  suite.ParNodo[26] = 1.7;
  suite.ParNodo[27] = 2.9;
  ASSERT_TRUE(EsportaGrb(nome, 1));
  EXPECT_EQ(disegno.TesCol[TrovaTesto("SEZIONE B-B")], 1);
  EXPECT_EQ(disegno.QuoStile[0], 2);
}

TEST_F(Grb, NonCompattato) {
  ASSERT_TRUE(EsportaGrb(nome, 1));
  const int coord = disegno.NumCoord;
  CompattaDisegno();
  EXPECT_LT(disegno.NumCoord, coord);
}

TEST_F(Grb, BoxDelComando) {
  EXPECT_TRUE(ComandoGrb(nome, 0));
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{"[messaggio] informazione | SALVA FILE DISEGNO | File " + nome + " salvato."});
  EXPECT_TRUE(disegno.DestDis.empty());
  registratore.eventi.clear();
  EXPECT_TRUE(ComandoGrb(nome, 1));
  EXPECT_TRUE(registratore.eventi.empty());
  const std::string assente = cartella + "\\manca\\a.grb",
                    annullata = "[messaggio] esclamazione | NODO COLONNA - PLINTO | Scrittura GRB annullata";
  EXPECT_FALSE(ComandoGrb(assente, 0));
  EXPECT_EQ(registratore.eventi,
            (std::vector<std::string>{"[messaggio] nessuna | ERRORE | Errore durante la scrittura sul file" + assente, annullata}));
  registratore.eventi.clear();
  EXPECT_FALSE(ComandoGrb(assente, 1));
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{annullata});
  EXPECT_FALSE(registratore.attesa);
}

// ---- the panel's command ----

class GenDis : public Grb {
 protected:
  // Whether the wait pointer was up at each box.
  static inline std::string puntatore;
  void SegnaPuntatore() {
    puntatore.clear();
    piattaforma.messaggio = [](const std::string&, const std::string&, Icona) { puntatore += registratore.attesa ? '1' : '0'; };
  }
  std::string Salvato(const std::string& f) { return "[messaggio] informazione | SALVA FILE DISEGNO | File " + f + " salvato."; }
};

TEST_F(GenDis, Richiesta) {
  nodo.NomeNodo = "nodo1";
  registratore.file.push_back({"", 0});
  ScegliFileDisegno();
  const RichiestaFile& r = registratore.richiesta;
  EXPECT_TRUE(r.salva);
  EXPECT_EQ(r.titolo, "FILE DISEGNO DA GENERARE");
  EXPECT_EQ(r.cartella, cartella);
  EXPECT_EQ(r.nomeIniziale, cartella + "\\QB7_nodo1.grb");
  EXPECT_EQ(r.filtro, "File disegno (*.grb)|*.grb|File disegno (*.dis)|*.dis|AutoCAD (*.dxf)|*.dxf");
  EXPECT_EQ(r.estensione, "");
  EXPECT_TRUE(esitoDisegno.annullato);
  EXPECT_EQ(registratore.eventi.size(), 1u);
}

TEST_F(GenDis, AnnullaLasciaLArchivio) {
  DisLinea(nullptr, 0, 0, 1, 1);
  registratore.file.push_back({"", 0});
  ScegliFileDisegno();
  EXPECT_EQ(disegno.NumLinee, 1);
}

TEST_F(GenDis, FormatoDelFiltro) {
  const char* const nomi[] = {"/a.grb", "/a.dis", "/a.dxf"};
  const char* const inizi[] = {"                   4\r\n                   5", "                   4\r\n-", " 0\r\nSECTION"};
  for (int filtro = 1; filtro <= 3; ++filtro) {
    registratore.file.push_back({cartella + nomi[filtro - 1], filtro});
    ScegliFileDisegno();
    EXPECT_FALSE(esitoDisegno.fallito);
    EXPECT_EQ(File(nomi[filtro - 1]).find(inizi[filtro - 1]), 0u) << filtro;
  }
  registratore.file.push_back({cartella + "/b.dis", 1});  // the filter decides, not the name
  insDati.CartellaDialogo = cartella;
  ScegliFileDisegno();
  EXPECT_EQ(insDati.CartellaDialogo, "");  // the next dialog opens where this one ended
  EXPECT_EQ(File("/b.dis").find(inizi[0]), 0u);
  EXPECT_FALSE(registratore.attesa);
  EXPECT_EQ(registratore.eventi[5], "[messaggio] nessuna | SALVA FILE DXF | File " + cartella + "/a.dxf salvato.");
}

TEST_F(GenDis, PuntatoreDiAttesa) {
  SegnaPuntatore();
  EXPECT_TRUE(ComandoGrb(nome, 0));
  registratore.file.push_back({cartella + "/a.dis", 2});
  ScegliFileDisegno();
  EXPECT_EQ(puntatore, "11");
  EXPECT_FALSE(registratore.attesa);
}

TEST_F(GenDis, AltroFiltroEDxf) {
  registratore.file.push_back({cartella + "/a.svg", 4});
  ScegliFileDisegno();
  EXPECT_EQ(File("/a.svg").find(" 0\r\nSECTION"), 0u);
}

// A dialog that names no filter: the first.
TEST_F(GenDis, SenzaFiltroIlPrimo) {
  static std::string scelto;
  scelto = cartella + "/a.dis";
  piattaforma.scegliFile = [](const RichiestaFile&, std::string& percorso, int&) {
    percorso = scelto;
    return true;
  };
  ScegliFileDisegno();
  EXPECT_EQ(File("/a.dis").find("                   4\r\n                   5"), 0u);
}

// With a file chosen the store is empty, whatever becomes of the drawing.
TEST_F(GenDis, FileSceltoVuotaLArchivio) {
  DisLinea(nullptr, 0, 0, 1, 1);
  suite.ParNodo[26] = 0;  // no such style: nothing is drawn
  registratore.file.push_back({nome, 1});
  ScegliFileDisegno();
  EXPECT_TRUE(esitoDisegno.fallito);
  EXPECT_EQ(disegno.NumLinee, 0);
  EXPECT_EQ(disegno.NumCoord, 0);
}

TEST_F(GenDis, DialogoFallitoConUnNome) {
  piattaforma.scegliFile = [](const RichiestaFile&, std::string& percorso, int&) {
    percorso = "x.grb";
    return false;
  };
  ScegliFileDisegno();
  EXPECT_EQ(registratore.eventi,
            std::vector<std::string>{"[messaggio] critica | NODO COLONNA - PLINTO | Errore: creazione disegno fallita"});
  EXPECT_TRUE(esitoDisegno.fallito);
}

TEST_F(GenDis, TipoInOgniMaiuscola) {
  EXPECT_TRUE(EsportaDisegno(cartella + "\\a.dxf", 2, "dXf"));  // its box comes all the same
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{"[messaggio] nessuna | SALVA FILE DXF | File " + cartella + "\\a.dxf salvato."});
  EXPECT_FALSE(EsportaDisegno(cartella + "\\a.grb", 2, "GRB"));  // has its own command
  EXPECT_FALSE(EsportaDisegno(cartella + "\\a.pdf", 2, "PDF"));
  EXPECT_TRUE(EsportaDisegno(cartella + "\\a.svg", 1, "SVG"));
  EXPECT_NE(File("/a.svg").find("</svg>"), std::string::npos);
}

// The sheet with texts as texts, lines whole though there are patterns, and colours.
TEST_F(GenDis, DxfSenzaModi) {
  suite.DirCustom = cartella;
  ScriviByte(cartella + "/tipilinea.txt", "0\r\n2\r\n3\r\n2\r\n0\r\n0\r\n2\r\n3\r\n2\r\n");
  ASSERT_TRUE(EsportaDisegno(cartella + "\\a.dxf", 0, "DXF"));
  const std::string t = File("/a.dxf");
  for (const char* c : {" 0\r\nTEXT\r\n", " 6\r\nCENTER\r\n", " 6\r\nDASHED2\r\n", " 62\r\n5\r\n"})
    EXPECT_NE(t.find(c), std::string::npos) << c;
}

TEST_F(GenDis, FaultSenzaFile) {
  nodo.Gola = 0.001;
  registratore.file.push_back({cartella + "/guasto.dis", 2});
  ScegliFileDisegno();
  EXPECT_TRUE(esitoDisegno.fallito);
  EXPECT_EQ(registratore.eventi[1], std::string("[messaggio] critica | NODO COLONNA - PLINTO | ") + TESTO_FAULT);
  EXPECT_EQ(File("/guasto.dis"), "");
  EXPECT_FALSE(registratore.attesa);
}

}  // namespace
