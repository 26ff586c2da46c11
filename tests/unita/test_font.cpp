// test_font.cpp - the stroke font and the drawing template of the suite, from files written byte by byte.
#include <gtest/gtest.h>

#include <cmath>

#include "core/aritmetica.h"
#include "corredo/registratore.h"
#include "drawing/disegno.h"
#include "drawing/font.h"
#include "drawing/formats/grb_stili.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

class Carattere : public ::testing::Test {
 protected:
  void SetUp() override {
    MontaRegistratore();
    suite.DirProgra = CartellaProva("font");
    suite.DirCustom = suite.DirProgra;
  }
  bool Leggi(const std::string& byte) {
    ScriviByte(suite.DirProgra + "/font.001", byte);
    return LeggiFont();
  }
};

TEST_F(Carattere, MancanteSenzaGlifi) {
  EXPECT_FALSE(LeggiFont());
  EXPECT_EQ(font.FontN[0], -1);
  EXPECT_EQ(font.FontN[254], -1);
}

TEST_F(Carattere, GlifoDiUnSegmento) {
  ASSERT_TRUE(Leggi("15\r\nI45994530\r\n"));
  EXPECT_EQ(font.FontStretta, 15);
  EXPECT_EQ(font.FontN[int{'I'}], 2);
  EXPECT_EQ(font.FontCar[int{'I'}], 'I');
  EXPECT_EQ(font.FontX[int{'I'}][0], 45);
  EXPECT_EQ(font.FontY[int{'I'}][0], 99);
  EXPECT_EQ(font.FontX[int{'I'}][1], 45);
  EXPECT_EQ(font.FontY[int{'I'}][1], 30);
  EXPECT_EQ(font.FontN[int{'J'}], -1);
}

// 2 round((length - 1) / 8), ties to even: 4 -> 0.5 -> 0 points, 12 -> 1.5 -> 4, 20 -> 2.5 -> 4, 16 -> 2 -> 4.
TEST_F(Carattere, NumeroPuntiArrotondatoAlPari) {
  ASSERT_TRUE(Leggi("0\r\nA" + std::string(4, '1') + "\r\nB" + std::string(12, '1') + "\r\nC" + std::string(20, '1') + "\r\nD" +
                    std::string(16, '1') + "\r\n"));
  EXPECT_EQ(font.FontN[int{'A'}], 0);
  EXPECT_EQ(font.FontN[int{'B'}], 4);
  EXPECT_EQ(font.FontX[int{'B'}][3], 0);  // beyond the text: no number, 0
  EXPECT_EQ(font.FontN[int{'C'}], 4);
  EXPECT_EQ(font.FontN[int{'D'}], 4);
}

TEST_F(Carattere, SpaziFinaliNonContanoESpazioHaZeroPunti) {
  ASSERT_TRUE(Leggi("0\r\nA 1 2 3 4      \r\n \r\n"));
  EXPECT_EQ(font.FontN[int{'A'}], 2);
  EXPECT_EQ(font.FontX[int{'A'}][0], 1);
  EXPECT_EQ(font.FontY[int{'A'}][1], 4);
  EXPECT_EQ(font.FontN[int{' '}], 0);
}

TEST_F(Carattere, CentoPuntiAlMassimo) {
  ASSERT_TRUE(Leggi("0\r\nA" + std::string(4 * 104, '7') + "\r\n"));
  EXPECT_EQ(font.FontN[int{'A'}], 100);
  EXPECT_EQ(font.FontX[int{'A'}][99], 77);
  EXPECT_EQ(font.FontX[int{'A'}][100], 0);
}

TEST_F(Carattere, RigheVuoteSaltateETestoSenzaNumeroZero) {
  ASSERT_TRUE(Leggi("0\r\n\r\nAxy99zz30\r\n"));
  EXPECT_EQ(font.FontX[int{'A'}][0], 0);
  EXPECT_EQ(font.FontY[int{'A'}][0], 99);
}

// Numbers of a point to the nearest integer, a half to the even one: .6 is 1, .4 and .5 are 0.
TEST_F(Carattere, PuntiArrotondati) {
  ASSERT_TRUE(Leggi("0\r\nA.6.4.5.6\r\n"));
  EXPECT_EQ(font.FontX[int{'A'}][0], 1);
  EXPECT_EQ(font.FontY[int{'A'}][0], 0);
  EXPECT_EQ(font.FontX[int{'A'}][1], 0);
  EXPECT_EQ(font.FontY[int{'A'}][1], 1);
}

TEST_F(Carattere, CodiceAnsiDelleAccentate) {
  ASSERT_TRUE(Leggi("0\r\n\xE0"
                    "11223344\r\n"));  // a with grave accent in Windows-1252
  EXPECT_EQ(font.FontN[0xE0], 2);
}

TEST_F(Carattere, Codice255NonHaPosto) {
  EXPECT_FALSE(Leggi("0\r\nA11223344\r\n\xFF"
                     "11223344\r\nB11223344\r\n"));
  EXPECT_EQ(font.FontN[int{'B'}], 2);  // a failed step is skipped
}

TEST_F(Carattere, FileVuotoFallisce) { EXPECT_FALSE(Leggi("")); }

// larghezza 99, altezza 69, no narrowing: one glyph unit is one mm; the base line stands at 30.
TEST_F(Carattere, MappaDelGlifo) {
  ASSERT_TRUE(Leggi("0\r\nL10991030"
                    "10305030\r\n"));
  const std::vector<TrattoTesto> t = TrattiTesto("L?L", 1000, 500, 0, 99, 69);
  ASSERT_EQ(t.size(), 4u);
  EXPECT_DOUBLE_EQ(t[0].x1, 1010);
  EXPECT_DOUBLE_EQ(t[0].y1, 569);
  EXPECT_DOUBLE_EQ(t[0].y2, 500);
  EXPECT_DOUBLE_EQ(t[1].x2, 1050);
  EXPECT_DOUBLE_EQ(t[2].x1, 1000 + 2 * 99 + 10);  // no glyph: the pen still advances
}

// A letter of the text becomes the byte of its code, whatever it is.
TEST_F(Carattere, MappaDelleAccentate) {
  ASSERT_TRUE(Leggi("0\r\n\xE0"
                    "10991030\r\n"));
  const std::vector<TrattoTesto> t = TrattiTesto("aàa", 0, 0, 0, 99, 69);
  ASSERT_EQ(t.size(), 1u);
  EXPECT_DOUBLE_EQ(t[0].x1, 109);
  EXPECT_DOUBLE_EQ(t[0].y1, 69);
}

TEST_F(Carattere, MappaRuotataEStretta) {
  ASSERT_TRUE(Leggi("50\r\nL10991030\r\n"));
  const std::vector<TrattoTesto> t = TrattiTesto("LL", 0, 0, 90, 99, 69);
  const double a = 90 * 3.141592 / 180;  // not a quarter turn to the last digit
  ASSERT_EQ(t.size(), 2u);
  EXPECT_DOUBLE_EQ(t[0].x1, 5 * std::cos(a) - 69 * std::sin(a));
  EXPECT_DOUBLE_EQ(t[0].y1, 5 * std::sin(a) + 69 * std::cos(a));
  EXPECT_DOUBLE_EQ(t[1].y2, 99 * std::sin(a) + 5 * std::sin(a));
}

TEST_F(Carattere, TestoFuoriDalDisegnoNonLasciaTraccia) {
  ASSERT_TRUE(Leggi("0\r\nL10991030\r\n"));
  DisTesto("L", 0, 0, 0, 10, 10);
  EXPECT_EQ(disegno.NumTesti, 0);
  EXPECT_EQ(disegno.NumLinee, 0);
}

class Modello : public Carattere {
 protected:
  bool Leggi(const std::string& testo) {
    ScriviByte(suite.DirCustom + "/cad2dmodello.grb", testo);
    return LeggiStiliGrb();
  }
  const std::string coda = "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n";
};

TEST_F(Modello, DueStiliDecimi) {
  ASSERT_TRUE(Leggi("testa\r\n2,1,0\r\nquanti\r\n2\r\nuno\r\n18,25,1,7\r\nfine\r\ndue\r\n10,15,1,8\r\nfine\r\n" + coda));
  EXPECT_EQ(stiliGrb.NumStili, 2);
  EXPECT_DOUBLE_EQ(stiliGrb.LargStile[1], 3.6);  // 2 x 18 / 10
  EXPECT_DOUBLE_EQ(stiliGrb.AltStile[1], 5);
  EXPECT_EQ(stiliGrb.IdStile[1], 7);
  EXPECT_DOUBLE_EQ(stiliGrb.AltStile[2], 3);
  EXPECT_EQ(stiliGrb.IdStile[2], 8);
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Modello, UnitaDellaMisura) {
  EXPECT_DOUBLE_EQ(ConvStile(25, 2, 0), 0.05);
  EXPECT_DOUBLE_EQ(ConvStile(25, 2, 1), 5);
  EXPECT_DOUBLE_EQ(ConvStile(25, 2, 2), 50);
  EXPECT_DOUBLE_EQ(ConvStile(25, 2, -1), 50);
}

TEST_F(Modello, MancanteAvvisaEProsegue) {
  suite.DirCustom = "C:\\suite\\custom";
  stiliGrb.NumStili = 1;  // of an earlier read
  stiliGrb.AltStile[1] = 25;
  EXPECT_FALSE(LeggiStiliGrb());
  EXPECT_EQ(
    registratore.eventi,
    std::vector<std::string>{
      "[messaggio] critica | NODO COLONNA - PLINTO | Errore in apertura del file C:\\suite\\custom\\cad2dmodello.grb- verranno usati i parametri disegno della versione autonoma."});
  EXPECT_EQ(stiliGrb.NumStili, 1);
  EXPECT_EQ(stiliGrb.AltStile[1], 25);
  EXPECT_FALSE(passi.fallito);  // dealt with: the start goes on
}

TEST_F(Modello, TroncatoTieneGliStiliLetti) {
  EXPECT_FALSE(Leggi("testa\r\n1,2,0\r\nquanti\r\n3\r\nuno\r\n18,25,1,7\r\nfine\r\ndue\r\n"));
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_NE(registratore.eventi[0].find("[messaggio] critica | NODO COLONNA - PLINTO | Errore in lettura del file "), std::string::npos);
  EXPECT_NE(registratore.eventi[0].find("cad2dmodello.grb- verranno usati i parametri disegno della versione autonoma."),
            std::string::npos);
  EXPECT_DOUBLE_EQ(stiliGrb.AltStile[1], 25);
  EXPECT_EQ(stiliGrb.NumStili, 3);
  EXPECT_EQ(stiliGrb.AltStile[2], 0);
  EXPECT_FALSE(passi.fallito);  // dealt with, likewise
}

TEST_F(Modello, SenzaLeSeiRigheFinali) { EXPECT_FALSE(Leggi("testa\r\n1,2,0\r\nquanti\r\n0\r\n1\r\n2\r\n3\r\n4\r\n5\r\n")); }

TEST_F(Modello, NumeroDiStiliFuoriTabella) {
  EXPECT_FALSE(Leggi("testa\r\n1,2,0\r\nquanti\r\n101\r\n" + coda));
  EXPECT_FALSE(Leggi("testa\r\n1,2,0\r\nquanti\r\n-1\r\n" + coda));
  EXPECT_FALSE(Leggi("testa\r\n1,2,0\r\nquanti\r\n99999\r\n" + coda));
  std::string cento, uno = "uno\r\n18,25,1,7\r\nfine\r\n";
  for (int i = 0; i < 100; ++i) cento += uno;
  EXPECT_TRUE(Leggi("testa\r\n1,2,0\r\nquanti\r\n100\r\n" + cento + coda));
  EXPECT_EQ(stiliGrb.AltStile[100], 25);
  EXPECT_FALSE(Leggi("testa\r\n1,2,0\r\nquanti\r\n101\r\n" + cento + uno + coda));  // also when they are all there
}

}  // namespace
