// From the command line to the folders of a run.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/avvio.h"
#include "core/file.h"
#include "core/testo.h"
#include "corredo/registratore.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

constexpr const char* ERRORE = "[messaggio] esclamazione | ERRORE | ";
constexpr const char* MANCA_ARGOMENTO = "[messaggio] critica | ERRORE | Avvio del programma: argomento non presente";
constexpr const char* NON_LAVORI = "[messaggio] esclamazione | ERRORE | Errore: il direttorio dei lavori deve terminare con < \\lavori >";

struct Avvio : testing::Test {
  std::string radice;  // of the suite, with capitals and a blank
  void SetUp() override {
    MontaRegistratore();
    radice = CartellaProva("Suite Prova");
    DirLav("C:\\Dati\\LAVORI\\\r\n");
    Lavoro("Ponte1\r\n");
  }
  void DirLav(const std::string& byte) { ScriviByte(radice + "/Impostazioni/DirLav", byte); }
  void Lavoro(const std::string& byte) { ScriviByte(radice + "/Impostazioni/Lavoro", byte); }
  void Trova() {
    registratore.eventi.clear();
    EXPECT_TRUE(TrovaPercorsi("|diroot=" + radice + "|"));
    EXPECT_TRUE(registratore.eventi.empty());
  }
  void Fallisce(const std::string& riga, const std::string& evento) {
    registratore.eventi.clear();
    EXPECT_FALSE(TrovaPercorsi(riga));
    ASSERT_EQ(registratore.eventi.size(), 1u) << riga;
    EXPECT_EQ(registratore.eventi[0], evento);
    EXPECT_FALSE(registratore.finito);  // the end is the caller's
  }
  void FallisceDirLav() {
    Fallisce("|diroot=" + radice + "|", ERRORE + ("Errore: file " + Minuscolo(radice)) + "\\impostazioni\\dirlav errato o mancante");
  }
  void FallisceLavoro() {
    Fallisce("|diroot=" + radice + "|", ERRORE + ("Errore: file " + Minuscolo(radice)) + "\\impostazioni\\lavoro errato o mancante");
  }
  void FallisceLavori() { Fallisce("|diroot=" + radice + "|", NON_LAVORI); }
};

}  // namespace

TEST_F(Avvio, Percorsi) {
  Trova();
  const std::string minuscola = Minuscolo(radice);
  EXPECT_EQ(suite.DirRoot, minuscola);
  EXPECT_EQ(suite.Lavoro, "Ponte1");                       // its case stays
  EXPECT_EQ(suite.DirLavoro, "c:\\dati\\lavori\\Ponte1");  // no final backslash
  EXPECT_EQ(suite.DirProgra, minuscola + "\\progra");
  EXPECT_EQ(suite.DirDriver, minuscola + "\\driver");
  EXPECT_EQ(suite.DirCustom, minuscola + "\\custom");
  EXPECT_TRUE(EsisteFile(suite.DirRoot + "\\impostazioni\\lavoro"));  // found again under its own case
}

TEST_F(Avvio, TestoPrimaEDopoMaiuscoleEBlank) {
  EXPECT_TRUE(TrovaPercorsi("  altro |x=1|DIROOT=   " + radice + "  |fine=2|"));
  EXPECT_EQ(suite.DirRoot, Minuscolo(radice));
  EXPECT_EQ(suite.DirCustom, Minuscolo(radice) + "\\custom");
}

TEST_F(Avvio, SenzaArgomento) {
  for (const char* riga : {"", "   ", "diroot=c:\\x|", "|diroot c:\\x|", "|dirroot=c:\\x|"}) Fallisce(riga, MANCA_ARGOMENTO);
}

TEST_F(Avvio, SenzaBarraFinale) {
  Fallisce("|diroot= " + radice + "  ", ERRORE + ("Errore: file " + Minuscolo(radice)) + "\\impostazioni\\dirlav errato o mancante");
  Fallisce("|diroot=", std::string(ERRORE) + "Errore: file \\impostazioni\\dirlav errato o mancante");
  Fallisce("|diroot=   ", std::string(ERRORE) + "Errore: file \\impostazioni\\dirlav errato o mancante");
}

TEST_F(Avvio, DirLavLetto) {
  for (const char* byte :
       {"C:\\Dati\\Lavori", "\"C:\\Dati\\Lavori\"", "  C:\\Dati\\Lavori  \r\n", "C:\\Dati\\Lavori,altro", "\"C:\\Dati\\Lavori\\\" \n"}) {
    DirLav(byte);
    Trova();
    EXPECT_EQ(suite.DirLavoro, "c:\\dati\\lavori\\Ponte1") << byte;
  }
  DirLav("/dati/Lavori/");  // a final slash counts as the separator
  Trova();
  EXPECT_EQ(suite.DirLavoro, "/dati/lavori/Ponte1");
  DirLav("c:\\maxilavori");  // only the last six letters are looked at
  Trova();
  EXPECT_EQ(suite.DirLavoro, "c:\\maxilavori\\Ponte1");
}

TEST_F(Avvio, DirLavMancanteOCorto) {
  DirLav("c:\\lavori");  // nine characters
  Trova();
  EXPECT_EQ(suite.DirLavoro, "c:\\lavori\\Ponte1");
  DirLav("c:lavori");  // eight
  FallisceDirLav();
  DirLav("\xE0\xE0lavori");  // eight characters, ten bytes of UTF-8
  FallisceDirLav();
  DirLav("");
  FallisceDirLav();
  DirLav("\r\nc:\\dati\\lavori\r\n");  // one line is read
  FallisceDirLav();
  std::filesystem::remove(radice + "/Impostazioni/DirLav");
  FallisceDirLav();
  std::filesystem::create_directory(radice + "/Impostazioni/DirLav");
  FallisceDirLav();
}

TEST_F(Avvio, DirLavNonLavori) {
  for (const char* byte : {"c:\\dati\\lavorix", "c:\\dati\\lavori\\x", "c:\\dati\\lavori\\\\", "c:\\dati\\avori", "123456789"}) {
    DirLav(byte);
    FallisceLavori();
  }
}

TEST_F(Avvio, RadiceCorta) {
  const auto qui = std::filesystem::current_path();
  std::filesystem::current_path(std::filesystem::path(radice).parent_path());
  std::error_code errore;
  std::filesystem::remove_all("s", errore);
  std::filesystem::copy(radice, "s", std::filesystem::copy_options::recursive);
  Fallisce("|diroot=s|", std::string(ERRORE) + "Errore: file s\\impostazioni\\dirlav errato o mancante");
  Fallisce("|diroot=s\\|", std::string(ERRORE) + "Errore: file s\\\\impostazioni\\dirlav errato o mancante");
  for (const char* lunga : {"s\\.", "s/."}) {  // three characters are enough, a separator among them
    EXPECT_TRUE(TrovaPercorsi(std::string("|diroot=") + lunga + "|"));
    EXPECT_EQ(suite.DirRoot, lunga);
  }
  ScriviByte("s/Impostazioni/DirLav", "c:\\dati\\altrove");
  Fallisce("|diroot=s|", NON_LAVORI);  // the folder is judged before the root
  std::filesystem::remove_all("s", errore);
  std::filesystem::current_path(qui);
}

TEST_F(Avvio, BarraFinaleDellaRadice) {
  for (const char* barra : {"\\", "/"}) {
    EXPECT_TRUE(TrovaPercorsi("|diroot=" + radice + barra + "|"));
    EXPECT_EQ(suite.DirRoot, Minuscolo(radice));
    EXPECT_EQ(suite.DirProgra, Minuscolo(radice) + "\\progra");
  }
  EXPECT_TRUE(TrovaPercorsi("|diroot=" + radice + "\\\\|"));
  EXPECT_EQ(suite.DirRoot, Minuscolo(radice) + "\\");        // one is taken off, not more
  std::filesystem::remove(radice + "/Impostazioni/Lavoro");  // taken off by now
  Fallisce("|diroot=" + radice + "\\|", ERRORE + ("Errore: file " + Minuscolo(radice)) + "\\impostazioni\\lavoro errato o mancante");
  std::filesystem::remove(radice + "/Impostazioni/DirLav");  // still there
  Fallisce("|diroot=" + radice + "\\|", ERRORE + ("Errore: file " + Minuscolo(radice)) + "\\\\impostazioni\\dirlav errato o mancante");
}

TEST_F(Avvio, LavoroLetto) {
  Lavoro("  Ponte2  \r\naltra riga");
  Trova();
  EXPECT_EQ(suite.Lavoro, "Ponte2");
  Lavoro("P,nte3");  // a whole line, no comma rule
  Trova();
  EXPECT_EQ(suite.Lavoro, "P,nte3");
  Lavoro("Citt\xE0"
         "1\r\n");  // six characters, seven bytes of UTF-8
  Trova();
  EXPECT_EQ(suite.Lavoro, "Città1");
}

TEST_F(Avvio, LavoroMancanteODiAltraLunghezza) {
  for (const char* byte : {"Ponte", "Ponte12", "", "\r\nPonte1", "      "}) {
    Lavoro(byte);
    FallisceLavoro();
  }
  std::filesystem::remove(radice + "/Impostazioni/Lavoro");
  FallisceLavoro();
}

TEST_F(Avvio, FileEnormiOBinari) {
  DirLav(std::string(3u << 20, 'x'));
  FallisceLavori();
  DirLav(std::string(1u << 20, '\0'));
  FallisceLavori();
  DirLav("c:\\dati\\lavori");
  Lavoro(std::string(3u << 20, 'x'));
  FallisceLavoro();
  EXPECT_FALSE(std::filesystem::exists(radice + "/lavori"));  // no folder is made
}
