// The drawing options' file in both directions.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/opzioni.h"
#include "corredo/registratore.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

struct Opzioni : testing::Test {
  std::string cartella, file;
  void SetUp() override {
    MontaRegistratore();
    cartella = CartellaProva("opzioni");
    file = cartella + "/OpzioniNodi1-5.txt";
    suite.DirCustom = cartella;
  }
  bool Leggi(const std::string& byte) {
    ScriviByte(file, byte);
    return LeggiOpzioni();
  }
};

std::string Numeri(int quanti, const std::string& fra) {
  std::string t;
  for (int i = 0; i < quanti; ++i) t += std::to_string(i) + (i + 1 < quanti ? fra : "");
  return t;
}

}  // namespace

TEST_F(Opzioni, NumeriPerRigaVirgolaEBlank) {
  for (const char* fra : {"\r\n", "\n", ",", " ", "   ", " , ", " \r\n "}) {
    SetUp();
    ASSERT_TRUE(Leggi(Numeri(28, fra))) << fra;
    for (int i = 0; i < 28; ++i) EXPECT_EQ(suite.ParNodo[i], i == 17 ? 13 : i) << fra << i;  // 17 takes 13
  }
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Opzioni, IlPuntoQualunqueSiaLaLingua) {
  suite.Decimale = ',';
  std::string t = " .5 \r\n-3.25 \r\n 1E+20 \r\n";
  for (int i = 3; i < 28; ++i) t += " 7 \r\n";
  ASSERT_TRUE(Leggi(t));
  EXPECT_EQ(suite.ParNodo[0], 0.5);
  EXPECT_EQ(suite.ParNodo[1], -3.25);
  EXPECT_EQ(suite.ParNodo[2], 1e20);
  EXPECT_EQ(suite.ParNodo[27], 7);
}

TEST_F(Opzioni, Diciassette) {
  std::string t;
  for (int i = 0; i < 28; ++i) t += i == 13 ? "-20\r\n" : i == 17 ? "5\r\n" : "1\r\n";
  ASSERT_TRUE(Leggi(t));
  EXPECT_EQ(suite.ParNodo[13], -20);
  EXPECT_EQ(suite.ParNodo[17], -20);  // the signed value, whatever the file says
}

TEST_F(Opzioni, FileCortoOMancante) {
  EXPECT_FALSE(LeggiOpzioni());
  EXPECT_FALSE(Leggi(""));
  EXPECT_FALSE(Leggi(Numeri(27, "\r\n") + "\r\n"));
  EXPECT_EQ(suite.ParNodo[26], 26);  // what could be read stays
  EXPECT_TRUE(Leggi(Numeri(28, "\r\n") + "\r\n"));
  EXPECT_TRUE(registratore.eventi.empty());  // the box is the caller's
}

TEST_F(Opzioni, NumeriInPiuIgnorati) {
  EXPECT_TRUE(Leggi(Numeri(28, "\r\n") + "\r\n99\r\n1e400\r\n"));
  EXPECT_EQ(suite.ParNodo[27], 27);
}

TEST_F(Opzioni, TestoSenzaNumeroValeZeroETroppoGrandeFallisce) {
  EXPECT_TRUE(Leggi("abc\r\n" + Numeri(27, "\r\n")));
  EXPECT_EQ(suite.ParNodo[0], 0);
  EXPECT_EQ(suite.ParNodo[1], 0);
  EXPECT_EQ(suite.ParNodo[2], 1);
  EXPECT_FALSE(Leggi("1e400\r\n" + Numeri(27, "\r\n")));
  EXPECT_EQ(suite.ParNodo[2], 1);  // the others were read all the same
}

TEST_F(Opzioni, ScrittaAlByte) {
  for (int i = 0; i < 28; ++i) suite.ParNodo[i] = i;
  suite.ParNodo[0] = 0.5;
  suite.ParNodo[1] = -3.25;
  suite.ParNodo[2] = 1e20;
  ASSERT_TRUE(ScriviOpzioni());
  std::string atteso = " .5 \r\n-3.25 \r\n 1E+20 \r\n";
  for (int i = 3; i < 28; ++i) atteso += " " + std::to_string(i) + " \r\n";
  EXPECT_EQ(LeggiByte(file), atteso);
  const double prima = suite.ParNodo[1];
  suite.ParNodo[1] = 0;
  ASSERT_TRUE(LeggiOpzioni());
  EXPECT_EQ(suite.ParNodo[1], prima);
}

TEST_F(Opzioni, ScritturaFallitaLasciaIlFileComEra) {
  ScriviByte(file, "intatto");
  suite.DirCustom = cartella + "\\manca";
  EXPECT_FALSE(ScriviOpzioni());
  EXPECT_FALSE(std::filesystem::exists(cartella + "/manca"));  // no folder is ever made
  std::filesystem::remove(file);
  std::filesystem::create_directory(file);  // a folder stands in the file's place
  suite.DirCustom = cartella;
  EXPECT_FALSE(ScriviOpzioni());
  EXPECT_TRUE(std::filesystem::is_directory(file));
  int voci = 0;
  for (const auto& v : std::filesystem::directory_iterator(cartella)) voci += v.exists() ? 1 : 0;
  EXPECT_EQ(voci, 1);  // nothing left aside
}
