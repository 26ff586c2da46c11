// test_dxf.cpp - the CAD exchange file byte by byte, its modes, angles, colours, patterns and boxes.
#include <gtest/gtest.h>

#include "core/aritmetica.h"
#include "core/file.h"
#include "corredo/registratore.h"
#include "drawing/disegno.h"
#include "drawing/font.h"
#include "drawing/formats/scrittori.h"
#include "drawing/formats/tipi_linea.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

const std::string TABELLE =
  " 0|SECTION| 2|TABLES| 0|TABLE| 2|LAYER| 70|1| 0|LAYER| 2|0| 70|0| 62|7| 6|CONTINUOUS| 0|ENDTAB| 0|ENDSEC| 0|SECTION| 2|ENTITIES|";
const std::string CODA = " 0|ENDSEC| 0|EOF|";

std::string Righe(const std::string& barre) {  // a bar for each line end
  std::string t;
  for (const char c : barre) t += c == '|' ? std::string("\r\n") : std::string(1, c);
  return t;
}

class Dxf : public ::testing::Test {
 protected:
  std::string cartella, nome;
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    cartella = CartellaProva("dxf");
    suite.DirCustom = cartella;
    nome = cartella + "\\prova.dxf";
    disegno.DestDis = GENDIS;
  }
  void TearDown() override { AzzeraFault(); }
  std::string File() { return LeggiByte(cartella + "/prova.dxf"); }
  std::string Entita() {  // what stands between the head and the end
    const std::string t = File();
    const std::size_t inizio = t.find(" 2\r\nENTITIES\r\n") + 14, fine = t.rfind(" 0\r\nENDSEC");
    return t.substr(inizio, fine - inizio);
  }
};

// Margin: 5 % of the larger side, 100: 5 on all four.
TEST_F(Dxf, FileIntero) {
  DisLinea(nullptr, 0, 0, 100, 50.25, std::int16_t{3});
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 0));
  EXPECT_EQ(File(), Righe(" 0|SECTION| 2|HEADER| 9|$EXTMIN| 10|-5| 20|-5| 30|0.0| 9|$EXTMAX| 10|105| 20|55.25| 30|0.0| 0|ENDSEC|" +
                          TABELLE + " 0|LINE| 8|0| 10|0| 20|0| 30|0.0| 11|100| 21|50.25| 31|0.0| 62|1|" + CODA));
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{"[messaggio] nessuna | SALVA FILE DXF | File " + nome + " salvato."});
  EXPECT_EQ(disegno.EstXMin, 0);  // the margin stays in the header
  EXPECT_EQ(disegno.EstYMax, 50.25);
}

TEST_F(Dxf, MargineDelLatoAlto) {
  DisLinea(nullptr, 0, 0, 10, 100);
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  EXPECT_EQ(File().find(Righe(" 0|SECTION| 2|HEADER| 9|$EXTMIN| 10|-5| 20|-5| 30|0.0| 9|$EXTMAX| 10|15| 20|105|")), 0u);
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Dxf, VuotoMaValido) {
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  EXPECT_EQ(File(),
            Righe(" 0|SECTION| 2|HEADER| 9|$EXTMIN| 10|0| 20|0| 30|0.0| 9|$EXTMAX| 10|0| 20|0| 30|0.0| 0|ENDSEC|" + TABELLE + CODA));
}

// The extents start from coordinate 0, also where the table is empty.
TEST_F(Dxf, EstensioniDallaCoordinataZero) {
  disegno.CoordX[0] = 7;
  disegno.CoordY[0] = -3;
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  EXPECT_EQ(File().find(Righe(" 0|SECTION| 2|HEADER| 9|$EXTMIN| 10|7| 20|-3| 30|0.0| 9|$EXTMAX| 10|7| 20|-3| 30|0.0| 0|ENDSEC|")), 0u);
  EXPECT_EQ(Entita(), "");
}

TEST_F(Dxf, ColoriETipi) {
  const int attesi[] = {18, 7, 5, 1, 3, 2, 8, 6, 7};
  for (int c = 0; c <= 8; ++c) {
    EXPECT_EQ(ColoreDxf(c, 0), attesi[c]);
    EXPECT_EQ(ColoreDxf(c, 1), 7);
    EXPECT_EQ(ColoreDxf(c, 2), attesi[c]);  // 1 alone
  }
  EXPECT_EQ(ColoreDxf(-1, 0), 7);
  const char* const tipi[] = {"CONTINUOUS", "CENTER", "DASHED", "DIVIDE", "DASHED2", "CONTINUOUS"};
  for (int t = 0; t <= 5; ++t) EXPECT_STREQ(NomeTipoDxf(t), tipi[t]);
}

TEST_F(Dxf, ColoreUnoSenza62ETipoNascosto) {
  disegno.TipoLinCorr = 1;
  DisLinea(nullptr, 0, 0, 1, 0, std::int16_t{1});
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  EXPECT_EQ(Entita(), Righe(" 0|LINE| 8|0| 10|0| 20|0| 30|0.0| 11|1| 21|0| 31|0.0| 6|DASHED2|"));
}

TEST_F(Dxf, Monocromo) {
  DisLinea(nullptr, 0, 0, 1, 0, std::int16_t{3});
  EXPECT_TRUE(SalvaDxf(nome, 0, 1, 0, 0, 1));
  EXPECT_EQ(Entita(), Righe(" 0|LINE| 8|0| 10|0| 20|0| 30|0.0| 11|1| 21|0| 31|0.0| 62|7|"));
}

TEST_F(Dxf, NonCompattato) {
  DisLinea(nullptr, 0, 0, 10, 0, std::int16_t{1});
  disegno.TipoLinCorr = 1;
  DisLinea(nullptr, 0, 0, 10, 0, std::int16_t{1});
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  EXPECT_NE(Entita().find("DASHED2"), std::string::npos);
}

// Height 20, width 10 in units: 200 and 100 tenths. Only the first "]" is the diameter sign.
TEST_F(Dxf, Testi) {
  DisTesto("a]b]", 1, 2, -90, 10, 20, std::int16_t{6});
  DisTesto("]", 1, 2, 0, 15, 20, std::int16_t{1});
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  EXPECT_EQ(Entita(), Righe(" 0|TEXT| 8|0| 10|1| 20|2| 30|0.0| 40|20| 1|a%%cb]| 50|-90| 41|.5| 62|8|"
                            " 0|TEXT| 8|0| 10|1| 20|2| 30|0.0| 40|20| 1|%%c| 50|0| 41|.75|"));
  AzzeraDisegno();
  DisTesto("t", 1, 2, 0, 2, 2.5, std::int16_t{1});  // 20 and 25 tenths
  DisTesto("u", 1, 2, 0, 0.2, 0.1, std::int16_t{1});
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  EXPECT_EQ(Entita(), Righe(" 0|TEXT| 8|0| 10|1| 20|2| 30|0.0| 40|2.5| 1|t| 50|0| 41|.8|"
                            " 0|TEXT| 8|0| 10|1| 20|2| 30|0.0| 40|.1| 1|u| 50|0| 41|2|"));
}

TEST_F(Dxf, TestoSenzaAltezzaFermaIlFile) {
  ScriviByte(RisolviPercorso(nome), "di prima");
  DisTesto("a", 0, 0, 0, 10, 0);
  DisArco(nullptr, 0, 0, 5);
  EXPECT_FALSE(SalvaDxf(nome, 0, 0, 0, 0, 0));
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{std::string("[messaggio] critica | NODO COLONNA - PLINTO | ") + TESTO_FAULT});
  EXPECT_EQ(File(), "di prima");
}

TEST_F(Dxf, ArchiECerchi) {
  DisArco(nullptr, 10, 20, 8, std::int16_t{1});
  const int i = disegno.NumArchi;
  disegno.CoordX[disegno.NumCoord] = 10, disegno.CoordY[disegno.NumCoord] = 24;
  disegno.ArcCen[i] = disegno.ArcCen2[i] = disegno.ArcCen[0];
  disegno.ArcIni[i] = disegno.ArcIni[0];
  disegno.ArcFin[i] = disegno.NumCoord++;
  disegno.ArcCol[i] = 4;
  disegno.ArcTipo[i] = 1;
  disegno.ArcCen[i + 1] = disegno.ArcIni[i + 1] = 0;  // no radius: skipped
  disegno.ArcFin[i + 1] = 1;
  disegno.NumArchi = i + 2;
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  EXPECT_EQ(Entita(), Righe(" 0|CIRCLE| 8|0| 10|10| 20|20| 30|0.0| 40|4|"
                            " 0|ARC| 8|0| 10|10| 20|20| 30|0.0| 40|4| 50|0| 51|90| 62|3| 6|CENTER|"));
}

// A radius of the tolerance is written; ends at the tolerance from each other make an arc.
TEST_F(Dxf, ArchiAlLimiteDellaTolleranza) {
  const double x[] = {0, 0.0001, 5, 5, 5, 5.00009}, y[] = {0, 0, 0, 0.0001, 0.00009, 0.00009};
  for (int i = 0; i < 6; ++i) disegno.CoordX[i] = x[i], disegno.CoordY[i] = y[i];
  disegno.NumCoord = 6;
  disegno.ArcIni[0] = disegno.ArcFin[0] = 1;
  disegno.ArcIni[1] = 2;
  disegno.ArcFin[1] = 3;
  disegno.ArcCol[0] = disegno.ArcCol[1] = 1;
  disegno.NumArchi = 2;
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  const std::string t = Entita();
  EXPECT_EQ(t.find(Righe(" 0|CIRCLE| 8|0| 10|0| 20|0| 30|0.0| 40|.0001| 0|ARC|")), 0u) << t;
  disegno.ArcIni[0] = disegno.ArcIni[1] = 2;
  disegno.ArcFin[0] = 4;  // two coordinates, 0.00009 from each other
  disegno.ArcFin[1] = 5;  // that much on both axes: 0.00013 by distance
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  EXPECT_EQ(Entita().find(Righe(" 0|CIRCLE| 8|0| 10|0| 20|0| 30|0.0| 40|5| 0|ARC|")), 0u) << Entita();
}

TEST_F(Dxf, OrdineLineeTestiArchi) {
  DisArco(nullptr, 0, 0, 5);
  DisTesto("t", 0, 0, 0, 1, 1);
  DisLinea(nullptr, 0, 0, 1, 1);
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 0, 1));
  const std::string t = Entita();
  EXPECT_LT(t.find("LINE"), t.find("TEXT"));
  EXPECT_LT(t.find("TEXT"), t.find("CIRCLE"));
}

// 45 degrees by the program's circle constant: atan 1 x 180 / 3.141592 = 45.00000936...
TEST_F(Dxf, Angoli) {
  EXPECT_EQ(AngoloArco(0, 5, 0, 0), 90);
  EXPECT_EQ(AngoloArco(0.00009, -5, 0, 0), 270);
  EXPECT_EQ(AngoloArco(0, 0, 0, 0), 270);
  EXPECT_LT(AngoloArco(0.0001, 5, 0, 0), 90);  // at the tolerance it is no upright
  EXPECT_EQ(AngoloArco(5, 0, 0, 0), 0);
  EXPECT_EQ(AngoloArco(-5, 0, 0, 0), 180);
  EXPECT_NEAR(AngoloArco(5, 5, 0, 0), 45.00000936, 1e-8);
  EXPECT_NEAR(AngoloArco(-5, 5, 0, 0), 180 - 45.00000936, 1e-8);
  EXPECT_NEAR(AngoloArco(-5, -5, 0, 0), 180 + 45.00000936, 1e-8);
  EXPECT_NEAR(AngoloArco(5, -5, 0, 0), 360 - 45.00000936, 1e-8);
  EXPECT_EQ(AngoloArco(5, -1e-320, 0, 0), 0);  // 360 wraps
}

TEST_F(Dxf, TestiComeLinee) {
  font.FontN[int{'I'}] = 2;
  font.FontX[int{'I'}][0] = font.FontX[int{'I'}][1] = 10;
  font.FontY[int{'I'}][0] = 99;
  font.FontY[int{'I'}][1] = 30;
  font.FontN[int{'!'}] = -1;
  DisTesto("I!I", 100, 0, 0, 99, 69, std::int16_t{3});
  DisTesto("I", 0, 0, 0, 99, 69, std::int16_t{1});
  EXPECT_TRUE(SalvaDxf(nome, 1, 0, 0, 0, 1));
  EXPECT_EQ(Entita(), Righe(" 0|LINE| 8|0| 10|110| 20|69| 30|0.0| 11|110| 21|0| 31|0.0| 62|1|"
                            " 0|LINE| 8|0| 10|308| 20|69| 30|0.0| 11|308| 21|0| 31|0.0| 62|1|"
                            " 0|LINE| 8|0| 10|10| 20|69| 30|0.0| 11|10| 21|0| 31|0.0|"));
}

// 9.9 x 6.9 upward: a tenth of the glyph's units, turned; the quarter turn of 3.141592 / 2 leaves 3.3E-7 of the 1 along. Colour 7 of the
// file, here by monochrome, is not written.
TEST_F(Dxf, TestiComeLineeRuotati) {
  font.FontN[int{'I'}] = 2;
  font.FontX[int{'I'}][0] = font.FontX[int{'I'}][1] = 10;
  font.FontY[int{'I'}][0] = 99;
  font.FontY[int{'I'}][1] = 30;
  DisTesto("I", 0, 0, 90, 9.9, 6.9, std::int16_t{3});
  EXPECT_TRUE(SalvaDxf(nome, 1, 1, 0, 0, 1));
  const std::string t = Entita();
  EXPECT_EQ(t.find(Righe(" 0|LINE| 8|0| 10|-6.8999996")), 0u) << t;
  EXPECT_NE(t.find(Righe("| 20|1.00000")), std::string::npos) << t;
  EXPECT_EQ(t.find(" 62\r\n"), std::string::npos);
}

TEST_F(Dxf, ApertoSoloSeSiPuo) {
  const std::string assente = cartella + "\\manca\\prova.dxf";
  disegno.EstXMax = 77;
  EXPECT_FALSE(SalvaDxf(assente, 0, 0, 0, 0, 0));
  EXPECT_EQ(registratore.eventi,
            std::vector<std::string>{"[messaggio] esclamazione | NODO COLONNA - PLINTO | ERRORE: non riesco ad aprire il file " + assente});
  EXPECT_EQ(disegno.EstXMax, 77);
}

// Each mode is on with 1 alone; the final box is left out above 0.
TEST_F(Dxf, ModiConUnoSolo) {
  DisTesto("t", 0, 0, 0, 1, 1, std::int16_t{3});
  EXPECT_TRUE(SalvaDxf(nome, 2, 2, 0, 2, -1));
  EXPECT_EQ(Entita(), Righe(" 0|TEXT| 8|0| 10|0| 20|0| 30|0.0| 40|1| 1|t| 50|0| 41|1| 62|1|"));
  EXPECT_EQ(registratore.eventi.size(), 1u);
}

class Tratteggio : public Dxf {
 protected:
  // Type 4: 3 full, 2 gap; type 1: 6 full, 1 gap, 1 full, 1 gap.
  const std::string modello =
    "Rem SETTAGGIO\r\n0                   | TipoLinea 1\r\n4                   | TipoLinea 2\r\n    6\r\n    1\r\n    1\r\n    1\r\n"
    "2                   | TipoLinea 3\r\n    1.5\r\n    1.5\r\n6                   | TipoLinea 4\r\n    1\r\n    1\r\n    1\r\n    1\r\n    1\r\n    1\r\n"
    "2                   | TipoLinea 5\r\n    3\r\n    2\r\n";
  void Modello(const std::string& t) { ScriviByte(cartella + "/tipilinea.txt", t); }
};

TEST_F(Tratteggio, Lettura) {
  Modello(modello);
  EXPECT_TRUE(LeggiTipiLinea());
  EXPECT_EQ(tipiLinea.TipiNTratti[0], 0);
  EXPECT_EQ(tipiLinea.TipiNTratti[1], 4);
  EXPECT_EQ(tipiLinea.TipiTratto[1][0], 60);  // tenths of mm
  EXPECT_EQ(tipiLinea.TipiLungh[1], 90);
  EXPECT_EQ(tipiLinea.TipiTratto[2][1], 15);
  EXPECT_EQ(tipiLinea.TipiLungh[4], 50);
  Modello(modello.substr(0, modello.size() - 10));
  EXPECT_FALSE(LeggiTipiLinea());
  EXPECT_EQ(tipiLinea.TipiLungh[3], 60);
  EXPECT_EQ(tipiLinea.TipiLungh[4], 0);
  EXPECT_FALSE(passi.fallito);  // no matter to the command that looks for it
  Modello("12\r\n");
  EXPECT_FALSE(LeggiTipiLinea());
}

// 3 full, 2 gap on 10 mm: 0-3, 5-8, gap to 10. On 12 mm the third stroke is cut after 2, and 1 mm of it begins the next line.
TEST_F(Tratteggio, Spezza) {
  Modello(modello);
  LeggiTipiLinea();
  StatoTratteggio stato;
  std::vector<TrattoLinea> t;
  ASSERT_TRUE(SpezzaLinea(0, 0, 10, 0, 4, stato, false, 1, t));
  ASSERT_EQ(t.size(), 2u);
  EXPECT_EQ(t[0].x2, 3);
  EXPECT_EQ(t[1].x1, 5);
  EXPECT_EQ(t[1].x2, 8);
  EXPECT_EQ(stato.tratto, 0);
  ASSERT_TRUE(SpezzaLinea(0, 0, 0, 12, 4, stato, false, 1, t));
  ASSERT_EQ(t.size(), 3u);
  EXPECT_EQ(t[2].y1, 10);
  EXPECT_EQ(t[2].y2, 12);
  EXPECT_EQ(stato.tratto, 0);
  EXPECT_NEAR(stato.resto, 1, 1e-12);
  ASSERT_TRUE(SpezzaLinea(0, 0, 2, 0, 4, stato, false, 1, t));
  ASSERT_EQ(t.size(), 1u);
  EXPECT_NEAR(t[0].x2, 1, 1e-12);
  EXPECT_EQ(stato.tratto, 1);
}

TEST_F(Tratteggio, VuotoFinaleEScala) {
  Modello(modello);
  LeggiTipiLinea();
  StatoTratteggio stato;
  std::vector<TrattoLinea> t;
  ASSERT_TRUE(SpezzaLinea(0, 0, 40, 0, 4, stato, true, 10, t));  // 30 full, gap of 20 cut at 40 and drawn
  ASSERT_EQ(t.size(), 2u);
  EXPECT_EQ(t[0].x2, 30);
  EXPECT_EQ(t[1].x1, 30);
  EXPECT_EQ(t[1].x2, 40);
}

TEST_F(Tratteggio, InteraDaDuemilaRipetizioni) {
  Modello(modello);
  LeggiTipiLinea();
  StatoTratteggio stato;
  std::vector<TrattoLinea> t;
  EXPECT_TRUE(SpezzaLinea(0, 0, 9999, 0, 4, stato, false, 1, t));
  EXPECT_EQ(t.size(), 2000u);
  EXPECT_FALSE(SpezzaLinea(0, 0, 10000, 0, 4, stato, false, 1, t));
  EXPECT_FALSE(SpezzaLinea(0, 0, 0.00009, 0, 4, stato, false, 1, t));
  EXPECT_FALSE(SpezzaLinea(0, 0, 10, 0, 0, stato, false, 1, t));  // continuous: no pattern
  EXPECT_FALSE(SpezzaLinea(0, 0, 10, 0, 5, stato, false, 1, t));  // no such type
  EXPECT_FALSE(SpezzaLinea(0, 0, 10, 0, -1, stato, false, 1, t));
}

TEST_F(Tratteggio, TroppiTratti) {
  Modello("0\r\n11\r\n1\r\n0\r\n1\r\n0\r\n1\r\n0\r\n1\r\n0\r\n1\r\n0\r\n1\r\n0\r\n0\r\n0\r\n");
  LeggiTipiLinea();
  StatoTratteggio stato;
  std::vector<TrattoLinea> t;
  EXPECT_TRUE(SpezzaLinea(0, 0, 11000, 0, 1, stato, false, 1, t));  // 6 strokes of 1 a repeat: 11000 full ones
  EXPECT_EQ(registratore.eventi,
            std::vector<std::string>{
              "[messaggio] esclamazione | NODO COLONNA - PLINTO | Superato il numero massimo di tratti per le linee tratteggiate."});
  EXPECT_EQ(t.size(), 1000u);  // the count restarts
}

TEST_F(Tratteggio, NelFileConMessaggio) {
  Modello(modello);
  disegno.TipoLinCorr = 1;
  DisLinea(nullptr, 0, 0, 40, 0, std::int16_t{3});
  disegno.TipoLinCorr = 0;
  DisLinea(nullptr, 0, 0, 0, 5, std::int16_t{1});
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 10, 1, 0));
  EXPECT_EQ(Entita(), Righe(" 0|LINE| 8|0| 10|0| 20|0| 30|0.0| 11|30| 21|0| 31|0.0| 62|1|"
                            " 0|LINE| 8|0| 10|0| 20|0| 30|0.0| 11|0| 21|5| 31|0.0|"));
  EXPECT_EQ(registratore.eventi,
            std::vector<std::string>{"[messaggio] nessuna | SALVA FILE DXF | Le linee tratteggiate sono state disgregate "
                                     "ipotizzando una scala di plottaggio 1:10\\nFile " +
                                     nome + " salvato."});
}

// Without a scale the pattern's own lengths, and no line about it in the box; with 2 the lines stay whole.
TEST_F(Tratteggio, SenzaScala) {
  Modello(modello);
  disegno.TipoLinCorr = 1;
  DisLinea(nullptr, 0, 0, 4, 0, std::int16_t{1});
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 1, 0));
  EXPECT_EQ(Entita(), Righe(" 0|LINE| 8|0| 10|0| 20|0| 30|0.0| 11|3| 21|0| 31|0.0|"));
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{"[messaggio] nessuna | SALVA FILE DXF | File " + nome + " salvato."});
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 0, 2, 1));
  EXPECT_NE(Entita().find("DASHED2"), std::string::npos);
}

// The pattern goes on from line to line of one pass, continuous ones left aside: 3 full, of which 1 is left for the second line of 2;
// then a gap of which 1 is left. The axis behind it begins with that gap, and goes on with its own strokes of 1 full and 1 gap.
TEST_F(Tratteggio, DaUnaLineaAllaSeguente) {
  Modello(modello);
  disegno.TipoLinCorr = 1;
  DisLinea(nullptr, 0, 0, 2, 0, std::int16_t{1});
  disegno.TipoLinCorr = 0;
  DisLinea(nullptr, 0, 5, 7, 5, std::int16_t{1});
  disegno.TipoLinCorr = 1;
  DisLinea(nullptr, 0, 10, 2, 10, std::int16_t{1});
  disegno.TipoLinCorr = 3;
  DisLinea(nullptr, 0, 20, 3, 20, std::int16_t{1});
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 1, 1, 1));
  EXPECT_EQ(Entita(), Righe(" 0|LINE| 8|0| 10|0| 20|0| 30|0.0| 11|2| 21|0| 31|0.0|"
                            " 0|LINE| 8|0| 10|0| 20|5| 30|0.0| 11|7| 21|5| 31|0.0|"
                            " 0|LINE| 8|0| 10|0| 20|10| 30|0.0| 11|1| 21|10| 31|0.0|"
                            " 0|LINE| 8|0| 10|1| 20|20| 30|0.0| 11|2| 21|20| 31|0.0|"));
}

TEST_F(Tratteggio, SenzaModelliLineeIntere) {
  disegno.TipoLinCorr = 1;
  DisLinea(nullptr, 0, 0, 40, 0, std::int16_t{1});
  EXPECT_TRUE(SalvaDxf(nome, 0, 0, 10, 1, 0));
  EXPECT_EQ(Entita(), Righe(" 0|LINE| 8|0| 10|0| 20|0| 30|0.0| 11|40| 21|0| 31|0.0| 6|DASHED2|"));
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{"[messaggio] nessuna | SALVA FILE DXF | File " + nome + " salvato."});
}

}  // namespace
