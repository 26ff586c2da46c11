// The table of anchor diameters: built-in rows, the file over them, the area by the square of the diameter.
#include <gtest/gtest.h>

#include "core/aritmetica.h"
#include "core/diametri.h"
#include "corredo/registratore.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

struct Diametri : testing::Test {
  std::string cartella;
  OrigineArea origine;
  double AreaResistente(double d) { return ::AreaResistente(suite, d, origine); }
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    cartella = CartellaProva("diametri");
    suite.DirCustom = cartella;
  }
  void Leggi(const std::string& byte) {
    ScriviByte(cartella + "/QbDiam.txt", byte);
    LeggiDiametri();
  }
  std::string Eccesso() const {
    return "[messaggio] esclamazione | NODO COLONNA - PLINTO | Il file " + cartella +
           "\\QbDiam.txt contiene un numero eccessivo di diametri (max 100)";
  }
  void AttesoSolo(const std::string& evento) {
    ASSERT_EQ(registratore.eventi.size(), 1u);
    EXPECT_EQ(registratore.eventi[0], evento);
  }
};

constexpr const char* ERRORE_LETTURA = "[messaggio] critica | ERRORE | Errore nella lettura del file QbDiam.txt";

std::string Righe(int n) {
  std::string t;
  for (int i = 1; i <= n; ++i) t += "D" + std::to_string(i) + "|" + std::to_string(i) + "|" + std::to_string(10 * i) + "|\r\n";
  return t;
}

}  // namespace

TEST_F(Diametri, SenzaFileRigheInterne) {
  LeggiDiametri();
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(suite.NumDiam, 22);
  // ISO 898-1 / ISO 724: name, diameter mm, resistant area mm2.
  // clang-format off
  const struct { const char* nome; double d, area; } attese[] = {
      {"M8", 8, 38.6},   {"M10", 10, 58},   {"M12", 12, 84.3}, {"M14", 14, 115},  {"M16", 16, 157},  {"M18", 18, 192},
      {"M20", 20, 245},  {"M22", 22, 303},  {"M24", 24, 353},  {"M27", 27, 459},  {"M30", 30, 561},  {"M33", 33, 694},
      {"M36", 36, 817},  {"M39", 39, 976},  {"M42", 42, 1120}, {"M45", 45, 1310}, {"M48", 48, 1470}, {"M52", 52, 1760},
      {"M56", 56, 2030}, {"M60", 60, 2360}, {"M64", 64, 2680}, {"M68", 68, 3060}};
  // clang-format on
  int i = 0;
  for (const auto& a : attese) {
    EXPECT_EQ(suite.DiamNome[i], a.nome);
    EXPECT_EQ(suite.DiamVal[i], a.d);
    EXPECT_EQ(suite.DiamArea[i], a.area);
    ++i;
  }
  EXPECT_EQ(i, 22);
  EXPECT_EQ(suite.DiamNome[22], "");
}

TEST_F(Diametri, FilePiuCortoLasciaRigheInterneDietro) {
  Leggi("T1|12.5|100.25|\r\n T2 |14,5|130|altro\nT3|16|1e2|\r\n");
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(suite.NumDiam, 3);
  EXPECT_EQ(suite.DiamNome[0], "T1");
  EXPECT_EQ(suite.DiamVal[0], 12.5);
  EXPECT_EQ(suite.DiamArea[0], 100.25);
  EXPECT_EQ(suite.DiamNome[1], " T2 ");  // the name as it stands
  EXPECT_EQ(suite.DiamVal[1], 14);       // always the point: a comma ends the number
  EXPECT_EQ(suite.DiamArea[2], 100);
  EXPECT_EQ(suite.DiamNome[3], "M14");  // built-in rows behind the count
  EXPECT_EQ(suite.DiamVal[3], 14);
  EXPECT_EQ(suite.DiamArea[3], 115);
  EXPECT_EQ(suite.DiamNome[21], "M68");
  EXPECT_EQ(suite.DiamVal[21], 68);
  EXPECT_EQ(suite.DiamArea[21], 3060);
}

TEST_F(Diametri, RemESenzaBarraSaltate) {
  Leggi("rem|1|2|\r\nREMO|3|4|\r\nReM x|5|6|\r\nnulla\r\n\r\n rem|7|8|\r\nM9|9|50|");
  EXPECT_EQ(suite.NumDiam, 2);
  EXPECT_EQ(suite.DiamNome[0], " rem");  // blanks before it: a row
  EXPECT_EQ(suite.DiamVal[0], 7);
  EXPECT_EQ(suite.DiamNome[1], "M9");
}

TEST_F(Diametri, NovantanoveRigheEntrano) {
  Leggi("rem\r\n" + Righe(99));
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(suite.NumDiam, 99);
  EXPECT_EQ(suite.DiamNome[98], "D99");
  EXPECT_EQ(suite.DiamNome[99], "");
}

TEST_F(Diametri, CentesimaRigaFermaSenzaContare) {
  Leggi(Righe(100) + "senza fine|1\r\n");
  AttesoSolo(Eccesso());
  EXPECT_EQ(suite.NumDiam, 22);
  EXPECT_EQ(suite.DiamNome[98], "D99");
  EXPECT_EQ(suite.DiamNome[99], "");
}

TEST_F(Diametri, RigheSaltateNonContano) {
  std::string t;
  for (int i = 0; i < 300; ++i) t += "rem|\r\nx\r\n";
  Leggi(t + Righe(99));
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(suite.NumDiam, 99);
}

TEST_F(Diametri, BarraMancanteFermaLaLettura) {
  for (const char* riga : {"M9|9\r\n", "M9|9|50\r\n", "M9|\r\n", "M9|1e400|50|\r\n", "M9|9|1e400|\r\n"}) {
    MontaRegistratore();
    suite.DirCustom = cartella;
    Leggi(std::string("T1|5|20|\r\n") + riga + "T3|6|30|\r\n");
    AttesoSolo(ERRORE_LETTURA);
    EXPECT_EQ(suite.NumDiam, 22) << riga;
    EXPECT_EQ(suite.DiamNome[0], "T1");
    EXPECT_EQ(suite.DiamNome[1], "M10");
    EXPECT_EQ(suite.DiamVal[1], 10);
  }
}

TEST_F(Diametri, FileVuotoTabellaVuota) {
  Leggi("");
  EXPECT_EQ(suite.NumDiam, 0);
  EXPECT_EQ(AreaResistente(20), 0);
  EXPECT_FALSE(origine.estrapolata);
  EXPECT_FALSE(origine.interpolata);
}

TEST_F(Diametri, AreaDelleRigheSenzaSegnali) {
  LeggiDiametri();
  for (int i = 0; i < 22; ++i) EXPECT_DOUBLE_EQ(AreaResistente(suite.DiamVal[i]), suite.DiamArea[i]) << i;  // ends included
  EXPECT_FALSE(origine.estrapolata);
  EXPECT_FALSE(origine.interpolata);
}

TEST_F(Diametri, AreaFraDueRighe) {
  LeggiDiametri();
  // (21^2 - 20^2) (303 - 245) / (22^2 - 20^2) + 245 = 41 58 / 84 + 245
  EXPECT_NEAR(AreaResistente(21), 273.3095238095238, 1e-10);
  EXPECT_TRUE(origine.interpolata);
  EXPECT_FALSE(origine.estrapolata);
}

TEST_F(Diametri, AreaFuoriTabella) {
  LeggiDiametri();
  // (36 - 64) (58 - 38.6) / (100 - 64) + 38.6
  EXPECT_NEAR(AreaResistente(6), 23.5111111111111, 1e-10);
  EXPECT_TRUE(origine.estrapolata);
  EXPECT_FALSE(origine.interpolata);
  origine.estrapolata = false;
  // (72^2 - 64^2) (3060 - 2680) / (68^2 - 64^2) + 2680 = 1088 380 / 528 + 2680
  EXPECT_NEAR(AreaResistente(72), 3463.0303030303, 1e-9);
  EXPECT_TRUE(origine.estrapolata);
  EXPECT_FALSE(origine.interpolata);
}

TEST_F(Diametri, UnaRigaSola) {
  Leggi("T|20|245|\r\n");
  EXPECT_EQ(AreaResistente(20), 0);  // no pair of rows
  EXPECT_FALSE(origine.estrapolata);
  EXPECT_EQ(AreaResistente(21), 0);
  EXPECT_TRUE(origine.estrapolata);
}

TEST_F(Diametri, DueRigheBastanoFuoriTabella) {
  Leggi("A|10|100|\r\nB|20|400|\r\n");  // 1 mm2 for each mm2 of d^2
  EXPECT_NEAR(AreaResistente(8), 64, 1e-12);
  EXPECT_NEAR(AreaResistente(25), 625, 1e-12);
  EXPECT_TRUE(origine.estrapolata);
}

TEST_F(Diametri, DiametriFuoriOrdineIlPrimoIntervallo) {
  Leggi("A|10|100|\r\nB|8|80|\r\nC|30|300|\r\nD|20|200|\r\n");
  // 16: above the first, below the last; only 8..30 holds it
  EXPECT_NEAR(AreaResistente(16), (256. - 64) * 220 / (900 - 64) + 80, 1e-10);
  Leggi("A|10|100|\r\nB|30|80|\r\nC|5|50|\r\nD|20|200|\r\n");
  EXPECT_NEAR(AreaResistente(15), (225. - 100) * -20 / 800 + 100, 1e-10);  // the first interval wins
}

TEST_F(Diametri, RigheDiUgualeDiametroSonoUnaDivisionePerZero) {
  Leggi("A|10|100|\r\nB|10|120|\r\nC|20|200|\r\n");
  EXPECT_EQ(AreaResistente(10), 0);
  EXPECT_TRUE(FaultAritmetico());
  AzzeraFault();
  EXPECT_EQ(AreaResistente(5), 0);
  EXPECT_TRUE(FaultAritmetico());
  AzzeraFault();
}

TEST_F(Diametri, ConteggioOltreLaTabellaNonEsce) {
  LeggiDiametri();
  suite.NumDiam = 32767;
  (void)AreaResistente(1e6);
  SUCCEED();
}
