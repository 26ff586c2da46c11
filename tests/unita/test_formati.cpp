// test_formati.cpp - print zones, the DIS file byte by byte, its boxes, and the picture for looking.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/zone.h"
#include "corredo/disco.h"
#include "corredo/registratore.h"
#include "drawing/disegno.h"
#include "drawing/formats/carta.h"
#include "drawing/formats/scrittori.h"

namespace {

TEST(Zone, CampiDaQuattordiciColonne) {
  std::string t;
  RigaZone(t, 1, -2, .5);
  EXPECT_EQ(t, " 1            -2             .5 \r\n");
}

// " 12345678901 " fills 13 columns, " 123456789012 " all 14: the next zone follows at once; one more takes two zones.
TEST(Zone, CampoCheFinisceSullUltimaColonna) {
  std::string t;
  RigaZone(t, 12345678901.0, 7);
  EXPECT_EQ(t, " 12345678901   7 \r\n");
  t.clear();
  RigaZone(t, 123456789012.0, 7);
  EXPECT_EQ(t, " 123456789012  7 \r\n");
  t.clear();
  RigaZone(t, 1234567890123.0, 7);
  EXPECT_EQ(t, " 1234567890123               7 \r\n");
}

TEST(Zone, LetteraliSenzaSpazi) {
  std::string t;
  RigaZone(t, "-1", "1", 0);
  EXPECT_EQ(t, "-1            1              0 \r\n");
}

class Dis : public ::testing::Test {
 protected:
  std::string cartella, nome;
  void SetUp() override {
    MontaRegistratore();
    cartella = CartellaProva("formati");
    nome = cartella + "\\prova.dis";
    disegno.DestDis = GENDIS;
  }
  std::string File() { return LeggiByte(cartella + "/prova.dis"); }
};

// One line of each table, written out by hand: a number is " 1 ", zones begin at columns 1, 15, 29, 43.
TEST_F(Dis, FileIntero) {
  disegno.ColCorr = 3;
  DisLinea(nullptr, 0, 0, 100, -50.5);
  disegno.TipoLinCorr = 1;
  DisLinea(nullptr, 0, 0, 0, 7);
  DisTesto("Città ] 12", 10, 20, 90, 1.25, 2, std::int16_t{6});
  DisArco(nullptr, 200, 0, 10, std::int16_t{4});
  EXPECT_TRUE(SalvaDis(nome, 0));
  EXPECT_EQ(File(),
            "                   4\r\n"
            " 0             205 \r\n"
            "-50.5          20 \r\n"
            "-10000.000000        10000.000000\r\n"
            " 6 \r\n"
            " 0             0             0 \r\n"
            " 100          -50.5          0 \r\n"
            " 0             7             0 \r\n"
            " 10            20            0 \r\n"
            " 200           0             0 \r\n"
            " 205           0             0 \r\n"
            " 0 \r\n"
            " 2 \r\n"
            " 0             1             3             0 \r\n"
            " 0             2             3             4 \r\n"
            " 1 \r\n"
            " 3             1             90 \r\n"
            " 1.2           2             6 \r\n"  // 12.5 tenths go to the even 12
            "Citt\xE0 ] 12\r\n"
            " 1 \r\n"
            " 4             5             4             5 \r\n"
            " 4             0 \r\n");
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{"[messaggio] informazione | SALVA FILE DISEGNO | File " + nome + " salvato."});
}

TEST_F(Dis, EstensioniPrimaDellaPulizia) {
  DisLinea(nullptr, 10, 10, 20, 20);
  IndiceCoord(500, -300);  // of nothing: goes in the clean-up
  EXPECT_TRUE(SalvaDis(nome, 1));
  EXPECT_NE(File().find("\r\n 10            500 \r\n-300           20 \r\n"), std::string::npos);
  EXPECT_EQ(disegno.NumCoord, 2);
  EXPECT_EQ(disegno.EstXMax, 500);  // they outlive the file
}

// From coordinate 0, not from the origin.
TEST_F(Dis, EstensioniLontanoDallOrigine) {
  for (const int s : {1, -1}) {
    AzzeraDisegno();
    DisLinea(nullptr, s * 10, s * 30, s * 20, s * 40);
    CalcolaEstensioni();
    EXPECT_EQ(disegno.EstXMin, s > 0 ? 10 : -20);
    EXPECT_EQ(disegno.EstXMax, s > 0 ? 20 : -10);
    EXPECT_EQ(disegno.EstYMin, s > 0 ? 30 : -40);
    EXPECT_EQ(disegno.EstYMax, s > 0 ? 40 : -30);
  }
}

TEST_F(Dis, VuotoMaValido) {
  EXPECT_TRUE(SalvaDis(nome, 2));
  EXPECT_EQ(File(), "                   4\r\n 0             0 \r\n 0             0 \r\n-10000.000000        10000.000000\r\n"
                    " 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n");
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Dis, BoxSecondoSilenzioso) {
  for (const int silenzioso : {-1, 0, 1, 2}) {
    registratore.eventi.clear();
    EXPECT_TRUE(SalvaDis(nome, silenzioso));
    EXPECT_EQ(registratore.eventi.size(), silenzioso <= 0 ? 1u : 0u) << silenzioso;
  }
  const std::string assente = cartella + "\\manca\\prova.dis";
  for (const int silenzioso : {0, 1, 2, 3}) {  // 2 alone leaves the box of a failure out
    registratore.eventi.clear();
    EXPECT_FALSE(SalvaDis(assente, silenzioso));
    if (silenzioso == 2) EXPECT_TRUE(registratore.eventi.empty());
    else
      EXPECT_EQ(registratore.eventi,
                std::vector<std::string>{"[messaggio] nessuna | ERRORE | Errore durante la scrittura sul file" + assente});
  }
}

// The drawing of before stands whole, and nothing beside it.
TEST_F(Dis, DiscoSenzaPosto) {
  ScriviByte(cartella + "/prova.dis", "di prima");
  const std::vector<std::string> box = {"[messaggio] nessuna | ERRORE | Errore durante la scrittura sul file" + nome};
  const auto dxf = [](const std::string& n, int silenzioso) { return SalvaDxf(n, 0, 0, 0, 0, silenzioso); };
  for (bool (*scrivi)(const std::string&, int) : {SalvaDis, +dxf, ScriviGrb, SalvaSvg}) {
    const DiscoPieno pieno;
    registratore.eventi.clear();
    EXPECT_FALSE(scrivi(nome, 0));
    EXPECT_EQ(registratore.eventi, box);
    registratore.eventi.clear();
    EXPECT_FALSE(scrivi(nome, 2));
    EXPECT_TRUE(registratore.eventi.empty());
  }
  EXPECT_EQ(LeggiByte(cartella + "/prova.dis"), "di prima");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella), {}), 1);
}

// A device is refused as a file that cannot be opened: never written, never replaced.
TEST_F(Dis, Dispositivo) {
  if (!MettiDispositivo(cartella + "/prova.dis")) GTEST_SKIP() << "no device to be had";
  const std::string scrittura = "[messaggio] nessuna | ERRORE | Errore durante la scrittura sul file" + nome;
  const std::string apertura = "[messaggio] esclamazione | NODO COLONNA - PLINTO | ERRORE: non riesco ad aprire il file " + nome;
  const auto dxf = [](const std::string& n, int silenzioso) { return SalvaDxf(n, 0, 0, 0, 0, silenzioso); };
  struct Caso {
    bool (*scrivi)(const std::string&, int);
    const std::string& box;
  };
  for (const Caso& c : {Caso{SalvaDis, scrittura}, Caso{+dxf, apertura}, Caso{ScriviGrb, scrittura}, Caso{SalvaSvg, scrittura}}) {
    registratore.eventi.clear();
    EXPECT_FALSE(c.scrivi(nome, 0));
    EXPECT_EQ(registratore.eventi, std::vector<std::string>{c.box});
    EXPECT_TRUE(std::filesystem::is_character_file(cartella + "/prova.dis"));
  }
}

TEST_F(Dis, CerchiScritti) {
  IndiceCoord(1, 2);
  disegno.NumCerchi = 1;
  disegno.CerA[0] = 3;
  disegno.CerB[0] = -4;
  EXPECT_TRUE(SalvaDis(nome, 1));
  EXPECT_NE(File().find(" 1             2             0 \r\n 1 \r\n 0             3            -4 \r\n 0 \r\n"), std::string::npos);
}

// y upward, white page of the drawing's size with its margin of 20 mm.
TEST_F(Dis, Figura) {
  disegno.TipoLinCorr = 1;
  DisLinea(nullptr, 0, 0, 100, 50, std::int16_t{3});
  DisTesto("a<b ]", 0, 0, 90, 10, 20, std::int16_t{1});
  DisArco(nullptr, 50, 20, 20, std::int16_t{4}, 0, 3.141592 / 2);
  DisArco(nullptr, 50, 20, 10, std::int16_t{4});
  EXPECT_TRUE(SalvaSvg(nome, 0));
  const std::string f = File();
  EXPECT_NE(f.find("width=\"160mm\" height=\"90mm\" viewBox=\"-40 -70 160 90\""), std::string::npos);
  EXPECT_NE(f.find("fill=\"#ffffff\""), std::string::npos);
  EXPECT_NE(f.find("<line x1=\"0\" y1=\"0\" x2=\"100\" y2=\"-50\" stroke=\"#c00000\" stroke-dasharray=\"6 4\"/>"), std::string::npos);
  EXPECT_NE(f.find("<path d=\"M60 -20A10 10 0 0 0 50 -30\" stroke=\"#008000\"/>"), std::string::npos);
  EXPECT_NE(f.find("<circle cx=\"50\" cy=\"-20\" r=\"5\" stroke=\"#008000\"/>"), std::string::npos);
  // font size 20 / 0.73 = 27.397; stretch 10 / (0.602 x 27.397) = 0.606
  EXPECT_NE(f.find("<text transform=\"translate(0 0) rotate(-90) scale(.606 1)\" font-size=\"27.397\" fill=\"#000000\">a&lt;b \xD8</text>"),
            std::string::npos);
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Dis, ColoriETipiDellaFigura) {
  const char* const colori[] = {"#000000", "#000000", "#000080", "#c00000", "#008000", "#a08000", "#006000", "#800080", "#000000"};
  for (int i = 0; i <= 8; ++i) EXPECT_STREQ(ColoreCarta(i), colori[i]) << i;
  EXPECT_STREQ(ColoreCarta(-1), "#000000");
  const char* const tratti[] = {"", "24 4 4 4", "8 4", "12 4 2 4 2 4", "6 4", ""};
  for (int t = 0; t <= 5; ++t) EXPECT_STREQ(TratteggioCarta(t), tratti[t]) << t;
}

}  // namespace
