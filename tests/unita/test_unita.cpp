// The job's units: the file's lines, the three tables, the composed factors and decimals.
#include <gtest/gtest.h>

#include "core/aritmetica.h"
#include "core/unita.h"
#include "corredo/registratore.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

struct UnitaLavoro : testing::Test {
  std::string cartella;
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    cartella = CartellaProva("unita");
    suite.DirLavoro = cartella;
  }
  void TearDown() override { AzzeraFault(); }
  bool Imposta(const std::string& byte) {
    ScriviByte(cartella + "/parametrilavoro", byte);
    return ImpostaUnita();
  }
  void AttesoGuasto(const std::string& byte) {
    AzzeraFault();
    EXPECT_FALSE(Imposta(byte)) << byte;
    EXPECT_TRUE(FaultAritmetico()) << byte;
    EXPECT_TRUE(registratore.eventi.empty());  // the box is the caller's
  }
};

std::string File(const std::string& g, const std::string& lung, const std::string& forze, const std::string& mom, const std::string& tens,
                 const std::string& sez, const std::string& car) {
  return "PARAMETRI\r\n" + g + " [Accelerazione_G]\r\n15 [Nord_Geografico]\r\n" + lung + " [Lunghezze]\r\n" + forze + " [Forze]\r\n" + mom +
         " [Coppie_Momenti]\r\n " + tens + "  [TENSIONI]\r\n" + sez + " [dati_sezioni]\r\n" + car + " [carichi_superficie]\r\n";
}

}  // namespace

TEST_F(UnitaLavoro, UnitaInterne) {
  ASSERT_TRUE(Imposta(File("9.81", "cm", "daN", "daNcm", "daN8cm2", "mm", "daN8m2")));
  EXPECT_EQ(suite.AccelG, 9.81);
  EXPECT_EQ(suite.NordGeo, 15);
  EXPECT_EQ(suite.UnitaTensioni, "daN/cm2");  // trimmed, 8 is the slash
  EXPECT_EQ(suite.UnitaCarichi, "daN/m2");
  EXPECT_EQ(suite.UnitaLung, "cm");
  EXPECT_EQ(suite.UnitaSezioni, "mm");
  EXPECT_EQ(suite.UnitaMomenti, "daNcm");
  EXPECT_EQ(suite.FattLung, 1);
  EXPECT_EQ(suite.DecLung, 1);
  EXPECT_EQ(suite.FattForze, 1);
  EXPECT_EQ(suite.DecForze, 1);
  EXPECT_EQ(suite.FattMomenti, 1);
  EXPECT_EQ(suite.DecMomenti, 1);  // 1 - 0 - 0
  EXPECT_EQ(suite.FattTensioni, 1);
  EXPECT_EQ(suite.DecTensioni, 1);  // 1 - 0 + 2 0
  EXPECT_EQ(suite.FattSezioni, 10);
  EXPECT_EQ(suite.DecSezioni, 0);
  EXPECT_NEAR(suite.FattCarichi, 1e4, 1e-8);  // 1 / 0.01^2
  EXPECT_EQ(suite.DecCarichi, 1);             // 5 - 0 + 2 (1 - 3)
}

TEST_F(UnitaLavoro, ChiloNewtonEMetri) {
  ASSERT_TRUE(Imposta(File("9.81", "m", "kN", "kN8m", "N8mm2", "cm", "kN8m2")));
  EXPECT_EQ(suite.FattLung, 0.01);
  EXPECT_EQ(suite.DecLung, 3);
  EXPECT_EQ(suite.FattForze, 0.01);
  EXPECT_EQ(suite.DecForze, 3);
  EXPECT_DOUBLE_EQ(suite.FattMomenti, 1e-4);   // 0.01 0.01
  EXPECT_EQ(suite.DecMomenti, 5);              // 1 + 2 + 2
  EXPECT_DOUBLE_EQ(suite.FattTensioni, 0.1);   // 10 / 100
  EXPECT_EQ(suite.DecTensioni, 2);             // 1 - 1 + 2 1
  EXPECT_NEAR(suite.FattCarichi, 100, 1e-10);  // 0.01 / 0.01^2
  EXPECT_EQ(suite.DecCarichi, 3);              // 5 + 2 - 4
}

TEST_F(UnitaLavoro, ConLaGravita) {
  ASSERT_TRUE(Imposta(File("9.81", "mm", "t", "t8m", "kgf8cm2", "m", "t8m2")));
  EXPECT_EQ(suite.FattLung, 10);
  EXPECT_EQ(suite.DecLung, 0);
  EXPECT_NEAR(suite.FattForze, 0.00101936799184506, 1e-16);  // 0.01 / 9.81
  EXPECT_EQ(suite.DecForze, 4);
  EXPECT_NEAR(suite.FattMomenti, 0.0000101936799184506, 1e-18);
  EXPECT_EQ(suite.DecMomenti, 6);                            // 1 - (1 - 4) - (1 - 3)
  EXPECT_NEAR(suite.FattTensioni, 1.01936799184506, 1e-12);  // 10 / 9.81
  EXPECT_EQ(suite.DecTensioni, 1);
  EXPECT_NEAR(suite.FattCarichi, 10.1936799184506, 1e-11);
  EXPECT_EQ(suite.DecCarichi, 4);  // 5 + 3 - 4
}

TEST_F(UnitaLavoro, DecimaliNonSottoZero) {
  ASSERT_TRUE(Imposta(File("9.81", "cm", "N", "N8mm", "kN8m2", "cm", "N8mm2")));
  EXPECT_EQ(suite.FattForze, 10);
  EXPECT_EQ(suite.DecForze, 0);
  EXPECT_EQ(suite.FattMomenti, 100);
  EXPECT_EQ(suite.DecMomenti, 0);  // 1 - 1 - 1 = -1
  EXPECT_NEAR(suite.FattTensioni, 100, 1e-10);
  EXPECT_EQ(suite.DecTensioni, 0);  // 1 + 2 - 4 = -1
  EXPECT_EQ(suite.DecCarichi, 6);   // 5 - 1 + 2
  ASSERT_TRUE(Imposta(File("9.81", "cm", "N", "Ncm", "daN8mm2", "cm", "daN8cm2")));
  EXPECT_DOUBLE_EQ(suite.FattTensioni, 0.01);  // one per square millimetre takes "mm"
  EXPECT_EQ(suite.DecTensioni, 3);             // 1 - 0 + 2
  EXPECT_EQ(suite.DecMomenti, 0);              // 1 - 1 - 0
  EXPECT_EQ(suite.FattCarichi, 1);
  EXPECT_EQ(suite.DecCarichi, 5);
}

TEST_F(UnitaLavoro, TensioniSenzaBarra) {
  ASSERT_TRUE(Imposta(File("9.81", "cm", "daN", "daNcm", "MPa", "cm", "daN8m2")));
  EXPECT_EQ(suite.FattTensioni, 0.1);
  EXPECT_EQ(suite.DecTensioni, 2);
  ASSERT_TRUE(Imposta(File("9.81", "cm", "daN", "daNcm", "kPa", "cm", "daN8m2")));
  EXPECT_EQ(suite.FattTensioni, 100);
  EXPECT_EQ(suite.DecTensioni, 0);
  suite.DecTensioni = 7;
  ASSERT_TRUE(Imposta(File("9.81", "cm", "daN", "daNcm", "bar", "cm", "daN8m2")));
  EXPECT_EQ(suite.FattTensioni, 0);
  EXPECT_EQ(suite.DecTensioni, 7);  // as it was
}

// A text that would end in the calculator's arguments as one of its own, or break a line, counts as one that no table knows.
TEST_F(UnitaLavoro, TestiCheNonSonoUnita) {
  for (const char* forze : {"xyz", "daN|fileout=C:\\altrove", "|", "daN\x01", "\tdaN", "daN\x7F", "\"daN\"", "da'N"}) {
    suite.DecForze = 7;
    ASSERT_TRUE(Imposta(File("9.81", "cm", forze, "daNcm", "daN8cm2", "cm", "daN8m2"))) << forze;
    EXPECT_EQ(suite.UnitaForze, std::string_view(forze) == "xyz" ? "xyz" : "") << forze;
    EXPECT_EQ(suite.FattForze, 0) << forze;
    EXPECT_EQ(suite.DecForze, 7) << forze;  // as it was
    EXPECT_EQ(suite.UnitaMomenti, "daNcm") << forze;
  }
  ASSERT_TRUE(Imposta(File("9.81", "mm|", "daN", "daN|cm", "MPa\"", "'m'", "daN8m2")));
  EXPECT_EQ(suite.FattLung, 0);
  EXPECT_EQ(suite.FattMomenti, 0);
  EXPECT_EQ(suite.FattTensioni, 0);
  EXPECT_EQ(suite.FattSezioni, 0);
  for (const char* superficie : {"xyz8w", "daN|8cm2", "'daN/cm2'"}) {  // divided by a length that is not known
    AttesoGuasto(File("9.81", "cm", "daN", "daNcm", superficie, "cm", "daN8m2"));
    AttesoGuasto(File("9.81", "cm", "daN", "daNcm", "daN8cm2", "cm", superficie));
  }
  EXPECT_EQ(suite.UnitaCarichi, "/");
}

TEST_F(UnitaLavoro, Tabelle) {
  suite.AccelG = 10;
  std::int16_t d = 9;
  EXPECT_EQ(FattLunghezza("mm", d), 10);
  EXPECT_EQ(d, 0);
  EXPECT_EQ(FattLunghezza("xcm", d), 1);
  EXPECT_EQ(d, 1);
  EXPECT_EQ(FattLunghezza("m", d), 0.01);
  EXPECT_EQ(d, 3);
  EXPECT_EQ(FattLunghezza("CM", d), 0);  // case counts
  EXPECT_EQ(d, 3);
  EXPECT_EQ(FattLunghezza("in", d), 0);
  EXPECT_EQ(FattLunghezza("cm/mm"), 10);   // mm is tried first, then cm
  EXPECT_EQ(FattForza("t kgf kN"), 0.01);  // kN before N, kgf before t
  EXPECT_EQ(FattForza("t kgf"), 1);
  EXPECT_EQ(FattForza("daN", d), 1);
  EXPECT_EQ(d, 1);
  EXPECT_EQ(FattForza("kN", d), 0.01);
  EXPECT_EQ(d, 3);
  EXPECT_EQ(FattForza("N", d), 10);
  EXPECT_EQ(d, 0);
  EXPECT_EQ(FattForza("kgf", d), 1);  // 10 / 10
  EXPECT_EQ(d, 1);
  EXPECT_EQ(FattForza("t", d), 0.001);
  EXPECT_EQ(d, 4);
  EXPECT_EQ(FattForza("lb", d), 0);
  EXPECT_EQ(d, 4);
  EXPECT_EQ(FattTensione("MPa kPa", d), 100);  // kPa is tried first
  EXPECT_EQ(FattTensione("MPa"), 0.1);
  EXPECT_EQ(FattForza("kgf"), 1);
  EXPECT_EQ(FattLunghezza("mm"), 10);
}

TEST_F(UnitaLavoro, OrdineDelleChiavi) {
  ScriviByte(cartella + "/parametrilavoro",
             "9.81 [accelerazione_g] forze\n"  // goes on to the unit keys; 8 becomes the slash
             "x, y\n");
  EXPECT_FALSE(LeggiParametriLavoro());  // first line was the value dropped, second has no bracket
  AzzeraFault();
  ScriviByte(
    cartella + "/parametrilavoro",
    "via\n9.81 [accelerazione_g] forze\na [forze lunghezze]\nb [TENSIONI dati_sezioni coppie_momenti]\nc [carichi_superficie forze]\n"
    "dati_sezioni [x]\n");
  ASSERT_TRUE(LeggiParametriLavoro());
  EXPECT_EQ(suite.AccelG, 9.81);
  EXPECT_EQ(suite.UnitaLung, "a");
  EXPECT_EQ(suite.UnitaForze, "c");  // forze is tried before carichi_superficie
  EXPECT_EQ(suite.UnitaMomenti, "b");
  EXPECT_EQ(suite.UnitaCarichi, "");
  EXPECT_EQ(suite.UnitaTensioni, "");
  EXPECT_EQ(suite.UnitaSezioni, "dati_sezioni");  // the value counts as part of the key
}

// Each key gives way to those before it, and only to them; every 8 of the value becomes a slash.
TEST_F(UnitaLavoro, OgniChiaveDopoLaPrecedente) {
  ScriviByte(cartella + "/parametrilavoro",
             "via\na [coppie_momenti carichi_superficie]\nb [tensioni coppie_momenti]\nc [dati_sezioni tensioni]\nd88e8 [dati_sezioni]\n");
  ASSERT_TRUE(LeggiParametriLavoro());
  EXPECT_EQ(suite.UnitaCarichi, "a");
  EXPECT_EQ(suite.UnitaMomenti, "b");
  EXPECT_EQ(suite.UnitaTensioni, "c");
  EXPECT_EQ(suite.UnitaSezioni, "d//e/");
}

TEST_F(UnitaLavoro, GravitaEUnitaSullaStessaRiga) {
  ScriviByte(cartella + "/parametrilavoro", "via\n9.81 [accelerazione_g forze]");
  ASSERT_TRUE(LeggiParametriLavoro());
  EXPECT_EQ(suite.AccelG, 9.81);
  EXPECT_EQ(suite.UnitaForze, "9./1");
}

// The value ends at the first bracket; the key is looked for in the whole line.
TEST_F(UnitaLavoro, PrimaParentesi) {
  ScriviByte(cartella + "/parametrilavoro", "via\nmm [nota] [lunghezze]\n");
  ASSERT_TRUE(LeggiParametriLavoro());
  EXPECT_EQ(suite.UnitaLung, "mm");
}

TEST_F(UnitaLavoro, PrimoValoreFinoAllaVirgola) {
  ScriviByte(cartella + "/parametrilavoro", "via,cm [lunghezze]\r\n9,81 [accelerazione_g]\r\n");
  ASSERT_TRUE(LeggiParametriLavoro());
  EXPECT_EQ(suite.UnitaLung, "cm");
  EXPECT_EQ(suite.AccelG, 9);  // always the point
}

TEST_F(UnitaLavoro, Guasti) {
  EXPECT_FALSE(ImpostaUnita());          // no file
  EXPECT_FALSE(LeggiParametriLavoro());  // the missing file itself, not the factors of empty units
  EXPECT_TRUE(FaultAritmetico());
  const std::string buono = File("9.81", "cm", "daN", "daNcm", "daN8cm2", "cm", "daN8m2");
  AttesoGuasto("");
  AttesoGuasto(buono + "\r\n");  // a blank line
  AttesoGuasto(buono + "senza parentesi");
  AttesoGuasto("via\r\nsenza parentesi\r\n" + buono.substr(11));
  AttesoGuasto("via\r\n1e400 [accelerazione_g]\r\n");
  AttesoGuasto("via\r\n1e400 [nord_geografico]\r\n");
  AttesoGuasto(File("0", "cm", "kgf", "daNcm", "daN8cm2", "cm", "daN8m2"));  // 10 / 0
  AttesoGuasto(File("0", "cm", "t", "daNcm", "daN8cm2", "cm", "daN8m2"));
  AttesoGuasto(File("9.81", "cm", "daN", "daNcm", "daN8in2", "cm", "daN8m2"));  // 1 / 0
  AttesoGuasto(File("9.81", "cm", "daN", "daNcm", "daN8cm2", "cm", "x"));       // 0 / 0
  AzzeraFault();
  EXPECT_TRUE(Imposta(buono));
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(UnitaLavoro, UnitaIgnotaFattoreZero) {
  ASSERT_TRUE(Imposta(File("9.81", "in", "lb", "lbin", "daN8cm2", "in", "daN8m2")));
  EXPECT_EQ(suite.FattLung, 0);
  EXPECT_EQ(suite.DecLung, 0);
  EXPECT_EQ(suite.FattForze, 0);
  EXPECT_EQ(suite.FattMomenti, 0);
  EXPECT_EQ(suite.FattSezioni, 0);
}

TEST_F(UnitaLavoro, RigaDiUnita) {
  EXPECT_EQ(ComponiUnita(" a ", "b", " c", "d  "), "a                   b                  c                  d");
  //                                                 1234567890123456789012345678901234567890
  EXPECT_EQ(ComponiUnita("Lunghezze più lunghe di venti", "", "", ""), "Lunghezze più lunghe");  // 20 characters, not bytes
  EXPECT_EQ(ComponiUnita("", "", "", ""), "");
  const std::string lungo(30, 'x');
  EXPECT_EQ(ComponiUnita(lungo, lungo, lungo, lungo), std::string(20 + 3 * 19, 'x'));
}
