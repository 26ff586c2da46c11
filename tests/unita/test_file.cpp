// The file layer: suite paths on the system, the reader of lines and values, text output.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/aritmetica.h"
#include "core/file.h"
#include "corredo/registratore.h"

namespace {

namespace fs = std::filesystem;

struct File : testing::Test {
  std::string radice;
  void SetUp() override {
    MontaRegistratore();
    radice = CartellaProva("file");
  }
  FileLettura Apri(const std::string& byte) {
    ScriviByte(radice + "/prova.txt", byte);
    FileLettura f;
    EXPECT_TRUE(ApriLettura(f, radice + "\\prova.txt"));
    passi.fallito = false;
    return f;
  }
};

}  // namespace

TEST_F(File, IComponentiSiTrovanoSenzaRiguardoAlleMaiuscole) {
  ScriviByte(radice + "/Impostazioni/DirLav", "x");
  EXPECT_EQ(RisolviPercorso(radice + "\\impostazioni\\dirlav"), radice + "/Impostazioni/DirLav");
  EXPECT_EQ(RisolviPercorso(radice + "\\\\IMPOSTAZIONI/dirlav"), radice + "/Impostazioni/DirLav");
  EXPECT_TRUE(EsisteFile(radice + "\\impostazioni\\DIRLAV"));
  EXPECT_EQ(RisolviPercorso(radice + "\\impostazioni\\Nuovo.txt"), radice + "/Impostazioni/Nuovo.txt");
}

TEST_F(File, IlNomeScrittoVincePoiIlPrimoInOrdineDiByte) {
  ScriviByte(radice + "/d/Abc", "1");
  ScriviByte(radice + "/d/aBc", "2");
  EXPECT_EQ(RisolviPercorso(radice + "\\d\\aBc"), radice + "/d/aBc");
  EXPECT_EQ(RisolviPercorso(radice + "\\d\\ABC"), radice + "/d/Abc");
}

TEST_F(File, ScrivereSuUnNomeUgualeLoSostituisce) {
  ScriviByte(radice + "/Relazione.TXT", "vecchia");
  FileScrittura f;
  ASSERT_TRUE(ApriScrittura(f, radice + "\\relazione.txt"));
  ScriviRiga(f, "n° 1");
  ASSERT_TRUE(ChiudiScrittura(f));
  EXPECT_EQ(LeggiByte(radice + "/Relazione.TXT"), "n\xB0 1\r\n");
  EXPECT_FALSE(fs::exists(radice + "/relazione.txt"));
  EXPECT_FALSE(ChiudiScrittura(f));                       // not open any more
}

TEST_F(File, CartellaOFileAssenteNonSiApre) {
  FileLettura f;
  EXPECT_FALSE(ApriLettura(f, radice));
  EXPECT_FALSE(ApriLettura(f, radice + "\\manca.txt"));
  EXPECT_FALSE(ApriLettura(f, ""));
  EXPECT_FALSE(ApriLettura(f, std::string("a\0b", 3)));
  FileScrittura s;
  EXPECT_FALSE(ApriScrittura(s, radice + "\\manca\\x.txt"));
  EXPECT_FALSE(ApriScrittura(s, radice));
}

TEST_F(File, RigheConOgniFine) {
  FileLettura f = Apri("uno\r\ndue\ntre\r\r\ncinque");
  std::string r;
  const char* const ATTESE[] = {"uno", "due", "tre", "", "cinque"};
  for (const char* attesa : ATTESE) {
    EXPECT_TRUE(LeggiRiga(f, r));
    EXPECT_EQ(r, attesa);
  }
  EXPECT_FALSE(LeggiRiga(f, r));
  EXPECT_EQ(r, "cinque");                                 // a failed step keeps the variable
  EXPECT_TRUE(passi.fallito);
}

TEST_F(File, UnFileCheFinisceConLaFineRigaNonHaUnRigaInPiu) {
  FileLettura f = Apri("uno\r\n");
  std::string r;
  EXPECT_TRUE(LeggiRiga(f, r));
  EXPECT_TRUE(FineFile(f));
}

TEST_F(File, ValoriDiTesto) {
  FileLettura f = Apri("  uno  ,due\r\n\"tre, quattro\" ,cinque\r\n\r\n\"sei\r\nsette");
  std::string v;
  const char* const ATTESI[] = {"uno  ", "due", "tre, quattro", "cinque", "", "sei", "sette"};
  for (const char* atteso : ATTESI) {
    ASSERT_TRUE(LeggiValore(f, v));
    EXPECT_EQ(v, atteso);
  }
  EXPECT_FALSE(LeggiValore(f, v));
}

TEST_F(File, ValoriNumerici) {
  FileLettura f = Apri(" 120 \r\n .5 ,-3.25 7\r\nabc\r\n\r\n1E+20 , 8 9");
  const double ATTESI[] = {120, .5, -3.25, 7, 0, 0, 1e20, 8, 9};
  for (const double atteso : ATTESI) {
    double v = -1;
    ASSERT_TRUE(LeggiValore(f, v));
    EXPECT_EQ(v, atteso);
  }
  EXPECT_FALSE(passi.fallito);
}

// A comma ends its value only: the empty one between it and the line's end is a value of its own.
TEST_F(File, VirgolaInFondoAllaRiga) {
  FileLettura f = Apri("5,\r\n6\r\na,\r\nb");
  for (const double atteso : {5., 0., 6.}) {
    double v = -1;
    ASSERT_TRUE(LeggiValore(f, v));
    EXPECT_EQ(v, atteso);
  }
  std::string t;
  for (const char* atteso : {"a", "", "b"}) {
    ASSERT_TRUE(LeggiValore(f, t));
    EXPECT_EQ(t, atteso);
  }
}

TEST_F(File, UnNumeroFuoriCampoSiConsumaESiSalta) {
  FileLettura f = Apri("1e400\r\n40000\r\n2.5\r\n12\r\n");
  double d = 7;
  EXPECT_FALSE(LeggiValore(f, d));
  EXPECT_EQ(d, 7);
  EXPECT_TRUE(passi.fallito);
  std::int16_t n = 3;
  EXPECT_FALSE(LeggiValore(f, n));
  EXPECT_EQ(n, 3);
  EXPECT_TRUE(LeggiValore(f, n));
  EXPECT_EQ(n, 2);                                        // ties to even
  EXPECT_TRUE(LeggiValore(f, n));
  EXPECT_EQ(n, 12);
}

TEST_F(File, RigheLungheEByteQualsiasi) {
  FileLettura f = Apri(std::string((1u << 20) + 10, 'x') + "\n" + std::string("a\0b", 3) + "\n");
  std::string r;
  EXPECT_TRUE(LeggiRiga(f, r));
  EXPECT_EQ(r.size(), 1u << 20);
  EXPECT_TRUE(LeggiRiga(f, r));
  EXPECT_EQ(r, std::string("a\0b", 3));
}

TEST_F(File, SostituireLasciaInteroIlFileDiPrimaSeFallisce) {
  ScriviByte(radice + "/d/nodo.qb7", "prima");
  ASSERT_TRUE(SostituisciFile(radice + "\\d\\nodo.qb7", "è\r\n"));
  EXPECT_EQ(LeggiByte(radice + "/d/nodo.qb7"), "\xE8\r\n");
  fs::create_directory(radice + "/d/nodo.qb7.~nuovo");    // the aside name cannot be opened
  EXPECT_FALSE(SostituisciFile(radice + "\\d\\nodo.qb7", "dopo"));
  EXPECT_EQ(LeggiByte(radice + "/d/nodo.qb7"), "\xE8\r\n");
  EXPECT_FALSE(SostituisciFile(radice + "\\d", "x"));
}

TEST_F(File, UnFileDiSolaLetturaNonSiSostituisce) {
  ScriviByte(radice + "/d/nodo.qb7", "prima");
  fs::permissions(radice + "/d/nodo.qb7", fs::perms::owner_read | fs::perms::group_read);
  EXPECT_FALSE(SostituisciFile(radice + "\\d\\nodo.qb7", "dopo"));
  EXPECT_EQ(LeggiByte(radice + "/d/nodo.qb7"), "prima");
  EXPECT_FALSE(fs::exists(radice + "/d/nodo.qb7.~nuovo"));
  fs::permissions(radice + "/d/nodo.qb7", fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_TRUE(SostituisciFile(radice + "\\d\\nodo.qb7", "dopo"));
}

TEST_F(File, NomeDelNodo) {
  EXPECT_EQ(NomeSenzaEstensione("c:\\lavori\\a.b\\nodo.1.qb7"), "nodo");
  EXPECT_EQ(NomeSenzaEstensione("/x/y/nodo"), "nodo");
  EXPECT_EQ(NomeSenzaEstensione(".qb7"), "");
}
