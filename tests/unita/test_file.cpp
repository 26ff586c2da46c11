// The file layer: suite paths on the system, the reader of lines and values, text output.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <set>

#include "core/aritmetica.h"
#include "core/file.h"
#include "corredo/disco.h"
#include "corredo/registratore.h"

namespace {

namespace fs = std::filesystem;

struct File : testing::Test {
  std::string radice;
  void SetUp() override {
    MontaRegistratore();
    radice = CartellaProva("file");
  }
  std::set<std::string> Voci(const std::string& cartella) {
    std::set<std::string> v;
    for (const auto& e : fs::directory_iterator(radice + cartella)) v.insert(e.path().filename().string());
    return v;
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
  EXPECT_FALSE(ChiudiScrittura(f));  // not open any more
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
  EXPECT_EQ(r, "cinque");  // a failed step keeps the variable
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
  EXPECT_EQ(n, 2);  // ties to even
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
  {
    const DiscoPieno pieno;
    EXPECT_FALSE(SostituisciFile(radice + "\\d\\nodo.qb7", "dopo"));
    EXPECT_FALSE(SostituisciFile(radice + "\\d\\nuovo.qb7", "dopo"));
  }
  EXPECT_EQ(LeggiByte(radice + "/d/nodo.qb7"), "\xE8\r\n");
  EXPECT_FALSE(SostituisciFile(radice + "\\d", "x"));
  EXPECT_FALSE(SostituisciFile("", "x"));
  EXPECT_FALSE(SostituisciFile(std::string("a\0b", 3), "x"));
  EXPECT_EQ(Voci("/d"), std::set<std::string>{"nodo.qb7"});  // nothing stays aside
}

// An output gathers its text: until it is closed nothing on the disk changes, and what was given up never was.
TEST_F(File, FinoAllaChiusuraIlFileEQuelloDiPrima) {
  ScriviByte(radice + "/d/r.txt", "prima");
  FileScrittura f;
  ASSERT_TRUE(ApriScrittura(f, radice + "\\d\\r.txt"));
  ScriviRiga(f, "mezza");
  EXPECT_EQ(LeggiByte(radice + "/d/r.txt"), "prima");
  EXPECT_EQ(Voci("/d").size(), 1u);
  LasciaScrittura(f);
  EXPECT_FALSE(ChiudiScrittura(f));
  EXPECT_EQ(LeggiByte(radice + "/d/r.txt"), "prima");
  ASSERT_TRUE(ApriScrittura(f, radice + "\\d\\r.txt"));
  EXPECT_EQ(f.testo, "");
  ScriviRiga(f, "dopo");
  {
    const DiscoPieno pieno;
    EXPECT_FALSE(ChiudiScrittura(f));
  }
  EXPECT_EQ(f.errore, std::errc::file_too_large);
  EXPECT_EQ(LeggiByte(radice + "/d/r.txt"), "prima");
  EXPECT_EQ(Voci("/d").size(), 1u);
}

// Names that could be guessed are taken, by what would turn the bytes aside or hold the writer up.
TEST_F(File, NomiOccupatiAccantoNonDisturbano) {
  ScriviByte(radice + "/d/nodo.qb7", "prima");
  ScriviByte(radice + "/altrui", "altrui");
  fs::create_symlink(radice + "/altrui", radice + "/d/nodo.qb7.~nuovo");
  ASSERT_EQ(mkfifo((radice + "/d/nodo.qb7.tmp").c_str(), 0600), 0);
  fs::create_directory(radice + "/d/nodo.qb7~");
  EXPECT_TRUE(SostituisciFile(radice + "\\d\\nodo.qb7", "dopo"));
  EXPECT_EQ(LeggiByte(radice + "/d/nodo.qb7"), "dopo");
  EXPECT_EQ(LeggiByte(radice + "/altrui"), "altrui");
  EXPECT_EQ(Voci("/d").size(), 4u);
}

TEST_F(File, SoloUnFileSiSostituisce) {
  const std::string p = radice + "/d/x", dietro = radice + "/vero";
  fs::create_directory(radice + "/d");
  struct Caso {
    const char* nome;
    int (*fai)(const char*);
    std::errc errore;
  };
  const Caso CASI[] = {
    {"FIFO", [](const char* n) { return mkfifo(n, 0600); }, std::errc::not_supported},
    {"device", [](const char* n) { return MettiDispositivo(n) ? 0 : mkfifo(n, 0600); }, std::errc::not_supported},
    {"folder", [](const char* n) { return mkdir(n, 0700); }, std::errc::is_a_directory},
    {"link to a folder", [](const char* n) { return symlink(".", n); }, std::errc::is_a_directory},
    {"link to nothing", [](const char* n) { return symlink("manca", n); }, std::errc::no_such_file_or_directory},
    {"link to itself", [](const char* n) { return symlink("x", n); }, std::errc::too_many_symbolic_link_levels},
  };
  for (const Caso& c : CASI) {
    ASSERT_EQ(c.fai(p.c_str()), 0) << c.nome;
    FileScrittura f;
    EXPECT_FALSE(ApriScrittura(f, radice + "\\d\\x")) << c.nome;
    EXPECT_EQ(f.errore, c.errore) << c.nome;
    EXPECT_FALSE(SostituisciFile(radice + "\\d\\x", "y")) << c.nome;
    EXPECT_FALSE(fs::is_regular_file(fs::symlink_status(p))) << c.nome;
    EXPECT_EQ(Voci("/d").size(), 1u) << c.nome;
    fs::remove(p);
  }
  ScriviByte(dietro, "prima");
  fs::create_symlink("../vero", p);
  EXPECT_TRUE(SostituisciFile(radice + "\\d\\x", "dopo"));
  EXPECT_TRUE(fs::is_symlink(p));
  EXPECT_EQ(LeggiByte(dietro), "dopo");
}

TEST_F(File, PermessiDiPrimaENomiLunghi) {
  const auto modo = [](const std::string& p) { return static_cast<unsigned>(fs::status(p).permissions()); };
  ScriviByte(radice + "/d/nodo.qb7", "prima");
  for (const unsigned m : {0600u, 0640u, 0666u, 0755u}) {
    fs::permissions(radice + "/d/nodo.qb7", static_cast<fs::perms>(m));
    EXPECT_TRUE(SostituisciFile(radice + "\\d\\nodo.qb7", "dopo"));
    EXPECT_EQ(modo(radice + "/d/nodo.qb7"), m);
  }
  const mode_t maschera = umask(027);
  EXPECT_TRUE(SostituisciFile(radice + "\\d\\nuovo.qb7", "x"));
  umask(maschera);
  EXPECT_EQ(modo(radice + "/d/nuovo.qb7"), 0640u);
  const std::string lungo(251, 'n');  // with the extension, 255 bytes
  EXPECT_TRUE(SostituisciFile(radice + "\\d\\" + lungo + ".qb7", "x"));
  EXPECT_EQ(LeggiByte(radice + "/d/" + lungo + ".qb7"), "x");
  FileScrittura f;
  EXPECT_FALSE(ApriScrittura(f, radice + "\\d\\n" + lungo + ".qb7"));
  EXPECT_EQ(f.errore, std::errc::filename_too_long);
}

TEST_F(File, UnFileDiSolaLetturaNonSiSostituisce) {
  ScriviByte(radice + "/d/nodo.qb7", "prima");
  fs::permissions(radice + "/d/nodo.qb7", fs::perms::owner_read | fs::perms::group_read);
  EXPECT_FALSE(SostituisciFile(radice + "\\d\\nodo.qb7", "dopo"));
  FileScrittura f;
  EXPECT_FALSE(ApriScrittura(f, radice + "\\d\\nodo.qb7"));
  EXPECT_EQ(f.errore, std::errc::permission_denied);
  EXPECT_EQ(LeggiByte(radice + "/d/nodo.qb7"), "prima");
  EXPECT_EQ(Voci("/d").size(), 1u);
  fs::permissions(radice + "/d/nodo.qb7", fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_TRUE(SostituisciFile(radice + "\\d\\nodo.qb7", "dopo"));
}

TEST_F(File, IlMotivoInItaliano) {
  EXPECT_EQ(TestoNonScritto("c:\\l\\r.txt", std::errc::no_space_on_device),
            "Impossibile scrivere il file c:\\l\\r.txt: spazio su disco esaurito.");
  EXPECT_EQ(TestoNonScritto("r", std::errc::read_only_file_system), "Impossibile scrivere il file r: disco di sola lettura.");
  EXPECT_EQ(TestoNonScritto("r", static_cast<std::errc>(9999)), "Impossibile scrivere il file r: errore 9999 del sistema.");
}

TEST_F(File, NomeDelNodo) {
  EXPECT_EQ(NomeSenzaEstensione("c:\\lavori\\a.b\\nodo.1.qb7"), "nodo");
  EXPECT_EQ(NomeSenzaEstensione("/x/y/nodo"), "nodo");
  EXPECT_EQ(NomeSenzaEstensione(".qb7"), "");
}
