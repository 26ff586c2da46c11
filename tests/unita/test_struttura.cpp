// Structure and section files: counts, version, bars of a node, sections, ends. The model is tests/corredo/modello_minimo.h, followed by hand.
#include <gtest/gtest.h>

#include "core/testo.h"
#include "corredo/modello_minimo.h"
#include "corredo/registratore.h"
#include "link/struttura.h"
#include "model/stato.h"

namespace {

struct Struttura : testing::Test {
  std::string lavoro;
  void SetUp() override {
    MontaRegistratore();
    collegamento.NumAsteNodo = 0;
    lavoro = CartellaProva("struttura");
    suite.DirLavoro = lavoro;
    suite.NumProfili = 2;
    suite.ProfiliLib[1].Nome = AllineaSinistra("IPE300", LungNomeSez);
    suite.ProfiliLib[2].Nome = AllineaSinistra("HEA200", LungNomeSez);
    suite.ProfiliLib[2].H = 190;
    suite.ProfiliLib[2].R = 18;
    Scrivi("Struttur.Str", STRUTTURA_MINIMA);
    Scrivi("sezioni_", SEZIONI_MINIME);
  }
  void Scrivi(const std::string& nome, const std::string& byte) { ScriviByte(lavoro + "/" + nome, byte); }
  void Nodi(std::initializer_list<std::int16_t> lista) {
    nodo.NumNodiStr = 0;
    for (const std::int16_t n : lista) nodo.NodiStr[++nodo.NumNodiStr] = n;
  }
  void Aste(std::initializer_list<std::int16_t> lista) {
    collegamento.NumAsteNodo = 0;
    for (const std::int16_t a : lista) collegamento.AsteNodo[++collegamento.NumAsteNodo] = a;
  }
  void AttesoSolo(const std::string& evento) {
    ASSERT_EQ(registratore.eventi.size(), 1u);
    EXPECT_EQ(registratore.eventi[0], evento);
  }
};

}  // namespace

TEST_F(Struttura, SezioneDiUnAsta) {
  EXPECT_EQ(SezioneDiAsta(5), 1);
  EXPECT_EQ(SezioneDiAsta(6), 2);
  EXPECT_EQ(SezioneDiAsta(99), -1);
  EXPECT_EQ(SezioneDiAsta(4), -1);  // bars with a greater number follow
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Struttura, SezioneDiUnAstaSenzaFile) {
  suite.DirLavoro = lavoro + "\\manca";
  EXPECT_EQ(SezioneDiAsta(5), -1);
  AttesoSolo("[messaggio] esclamazione | VESTRAWIN | Errore in lettura del file STRUTTUR.STR");
}

// The section of a bar is looked for under the name in capitals, unlike the bars of a node.
TEST_F(Struttura, IlNomeInMaiuscolePerLaSezioneDiUnAsta) {
  std::string t = STRUTTURA_MINIMA;
  Scrivi("struttur.str", t);
  t.replace(t.find(" 5 1 0"), 6, " 5 9 0");
  Scrivi("STRUTTUR.STR", t);
  EXPECT_EQ(SezioneDiAsta(5), 9);
  ASSERT_EQ(AsteDelNodo(10), EsitoAste::Trovate);
  EXPECT_EQ(collegamento.SezAsteNodo[1], 1);
}

TEST_F(Struttura, VersioneVecchiaSiDiceESiLeggeDallaStessaRiga) {
  std::string t = STRUTTURA_MINIMA;
  t.erase(0, t.find('\n') + 1);
  t.replace(t.find("1 2 3"), 1, "9");  // taken for the counter, the line behind " 2 altro" would skip nine records
  Scrivi("Struttur.Str", t);
  EXPECT_EQ(SezioneDiAsta(7), 1);
  AttesoSolo("[messaggio] critica | ATTENZIONE! | Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Ambiente Grafico'");
}

// Nineteen blanks and 12: within the first 20 characters stands the 1, and one line is skipped.
TEST_F(Struttura, IlPrimoContatoreStaNeiPrimiVentiCaratteri) {
  const std::string t = STRUTTURA_MINIMA;
  Scrivi("Struttur.Str", "release\r\n" + std::string(19, ' ') + "12\r\n1 2 3\r\n" + t.substr(t.find(" 4 nodi")));
  EXPECT_EQ(SezioneDiAsta(6), 2);
  EXPECT_TRUE(registratore.eventi.empty());
}

// The search of one bar's section skips the first block by values, the search of a node's bars by lines.
TEST_F(Struttura, IlPrimoBloccoSiSaltaAValoriOARighe) {
  const std::string resto = STRUTTURA_MINIMA.substr(STRUTTURA_MINIMA.find(" 4 nodi"));
  Scrivi("Struttur.Str", "release\r\n2\r\n1,2,3,4,5,6\r\n" + resto);
  EXPECT_EQ(SezioneDiAsta(6), 2);
  Scrivi("Struttur.Str", "release\r\n2\r\n1,2,3,4\r\n5\r\n" + resto);
  EXPECT_EQ(AsteDelNodo(20), EsitoAste::Trovate);
  EXPECT_EQ(collegamento.NumAsteNodo, 3);
}

TEST_F(Struttura, ProfiloDallaSezioneConPrefissoEBlank) {
  EXPECT_EQ(ProfiloDaAsta(5), 2);  // "P_HE A 200" is HEA200 without its prefix and blanks
  Scrivi("sezioni_", "1\r\n1,\"HEA 200\",0\r\nr\r\nr\r\nr\r\nr\r\n");
  EXPECT_EQ(ProfiloDaAsta(5), 2);  // here a name without the prefix counts too
  EXPECT_TRUE(registratore.eventi.empty());
}

// The prefix is "P_" at the beginning of the name without its blanks; the rest is the library's name, blanks aside, letter for letter.
TEST_F(Struttura, PrefissoENomeInteri) {
  suite.ProfiliLib[2].Nome = AllineaSinistra("HE A200", LungNomeSez);
  // clang-format off
  const struct { const char* nome; int profilo; } casi[] = {
      {"P_IPE300", 1}, {"P _HE A200", 2}, {" HEA 20 0", 2},
      {"PXIPE300", 0}, {"p_IPE300", 0}, {"IPEP_300", 0}, {"P_P_IPE300", 0}, {"P_HEA20", 0}, {"P_HEA2000", 0}, {"P_hea200", 0}};
  // clang-format on
  for (const auto& c : casi) {
    Scrivi("sezioni_", std::string("1\r\n1,\"") + c.nome + "\",0\r\nr\r\nr\r\nr\r\nr\r\n");
    EXPECT_EQ(ProfiloDaAsta(5), c.profilo) << c.nome;
  }
  EXPECT_EQ(registratore.eventi.size(), 7u);
}

// Section 0 is a section like the others; of records with one number the last counts, and no record of another number.
TEST_F(Struttura, LaSezioneColNumeroDellAsta) {
  std::string t = STRUTTURA_MINIMA;
  t.replace(t.find(" 5 1 0"), 6, " 5 0 0");
  Scrivi("Struttur.Str", t);
  const std::string righe = ",0\r\nr\r\nr\r\nr\r\nr\r\n";
  Scrivi("sezioni_", "4\r\n2,P_IPE300" + righe + "0,P_IPE300" + righe + "0,P_HEA200" + righe + "-1,P_IPE300" + righe);
  EXPECT_EQ(ProfiloDaAsta(5), 2);
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Struttura, DiDueProfiliDelloStessoNomeVinceLUltimo) {
  suite.NumProfili = 3;
  suite.ProfiliLib[3] = suite.ProfiliLib[2];
  suite.ProfiliLib[3].H = 195;
  EXPECT_EQ(ProfiloDaAsta(5), 3);
  ASSERT_EQ(AsteDelNodo(20), EsitoAste::Trovate);
  ASSERT_EQ(SezioniAsteNodo(), EsitoAste::Trovate);
  EXPECT_EQ(collegamento.SezioniStr[1].H, 195);
}

TEST_F(Struttura, ProfiloNonApplicabileOFileAssente) {
  EXPECT_EQ(ProfiloDaAsta(6), 0);
  AttesoSolo("[messaggio] critica | INFORMAZIONE | Il profilo della colonna non è applicabile");
  registratore.eventi.clear();
  EXPECT_EQ(ProfiloDaAsta(99), 0);  // a bar that is not there: nothing is said
  EXPECT_TRUE(registratore.eventi.empty());
  suite.DirLavoro = CartellaProva("senza_sezioni");
  ScriviByte(suite.DirLavoro + "/struttur.str", STRUTTURA_MINIMA);
  EXPECT_EQ(ProfiloDaAsta(5), 0);
  AttesoSolo("[messaggio] esclamazione | ERRORE | Errore: file " + suite.DirLavoro + "\\sezioni_ errato o mancante.");
}

TEST_F(Struttura, AsteDiUnNodo) {
  EXPECT_EQ(AsteDelNodo(20), EsitoAste::Trovate);
  ASSERT_EQ(collegamento.NumAsteNodo, 3);
  EXPECT_EQ(collegamento.AsteNodo[1], 5);
  EXPECT_EQ(collegamento.AsteNodo[2], 6);
  EXPECT_EQ(collegamento.AsteNodo[3], 7);
  EXPECT_EQ(collegamento.SezAsteNodo[2], 2);
  EXPECT_EQ(AsteDelNodo(40), EsitoAste::Trovate);  // a node without bars
  EXPECT_EQ(collegamento.NumAsteNodo, 0);
}

// A bar counts from number 1 on.
TEST_F(Struttura, AsteDiNumeroZeroONegativoNonContano) {
  std::string t = STRUTTURA_MINIMA;
  t.replace(t.find(" 5 1 0"), 6, " 0 1 0");
  t.replace(t.find(" 6 2 0"), 6, "-6 2 0");
  t.replace(t.find(" 7 1 0"), 6, " 1 1 0");
  Scrivi("Struttur.Str", t);
  ASSERT_EQ(AsteDelNodo(20), EsitoAste::Trovate);
  ASSERT_EQ(collegamento.NumAsteNodo, 1);
  EXPECT_EQ(collegamento.AsteNodo[1], 1);
}

TEST_F(Struttura, NodoInesistenteEFileAssente) {
  ASSERT_EQ(AsteDelNodo(20), EsitoAste::Trovate);
  EXPECT_EQ(AsteDelNodo(25), EsitoAste::Fallito);  // between the model's 20 and 30
  EXPECT_EQ(collegamento.NumAsteNodo, 3);          // the list is emptied only for a node that exists
  AttesoSolo("[messaggio] nessuna | ERRORE | Errore: nodo inesistente");
  registratore.eventi.clear();
  EXPECT_EQ(AsteDelNodo(50), EsitoAste::Fallito);
  AttesoSolo("[messaggio] nessuna | ERRORE | Errore: nodo inesistente");
  registratore.eventi.clear();
  suite.DirLavoro = lavoro + "\\manca";
  EXPECT_EQ(AsteDelNodo(20), EsitoAste::Fallito);
  AttesoSolo("[messaggio] nessuna | ERRORE | Errore: file " + suite.DirLavoro + "\\struttur.str errato o mancante.");
}

TEST_F(Struttura, TroppeAste) {
  std::string t = "release\r\n0\r\n1\r\n1,0,0,1,n\r\n2001\r\n";
  for (int i = 1; i <= 2001; ++i) t += "1,2,0,0\r\n" + std::to_string(i) + " 1\r\n";
  Scrivi("Struttur.Str", t);
  EXPECT_EQ(AsteDelNodo(1), EsitoAste::Troppe);
  EXPECT_EQ(collegamento.NumAsteNodo, 2000);
}

TEST_F(Struttura, SezioniDelleAste) {
  Scrivi("sezioni_", "2\r\n1,\"P_HEA 200\",0\r\nr\r\nr\r\nr\r\nr\r\n2,\"Composta saldata 1\",0\r\nr\r\nr\r\nr\r\nr\r\n");
  suite.ProfiliLib[2].B = 200;
  suite.ProfiliLib[2].A = 6.5;
  suite.ProfiliLib[2].E = 10;
  ASSERT_EQ(AsteDelNodo(20), EsitoAste::Trovate);
  ASSERT_EQ(SezioniAsteNodo(), EsitoAste::Trovate);
  for (const int i : {1, 3}) {  // bars 5 and 7 share section 1
    const Sezione& s = collegamento.SezioniStr[i];
    EXPECT_EQ(s.Nome, "HEA200            ");
    EXPECT_EQ(s.H, 190);
    EXPECT_EQ(s.B, 200);
    EXPECT_EQ(s.A, 6.5);
    EXPECT_EQ(s.E, 10);
    EXPECT_EQ(s.R, 18);
  }
  EXPECT_EQ(collegamento.SezioniStr[2].Nome, "Non app. Composta ");  // cut to 18 characters
  EXPECT_EQ(collegamento.SezioniStr[2].H, 0);
  // Without "P_" also a name of the library is refused, and with it one that the library lacks; a section that the file lacks has no name.
  Scrivi("sezioni_", "2\r\n2,\"HEA 200\",0\r\nr\r\nr\r\nr\r\nr\r\n3,P_HEA200,0\r\nr\r\nr\r\nr\r\nr\r\n");
  ASSERT_EQ(SezioniAsteNodo(), EsitoAste::Trovate);
  EXPECT_EQ(collegamento.SezioniStr[1].Nome, "Non app.          ");
  EXPECT_EQ(collegamento.SezioniStr[1].H, 0);
  EXPECT_EQ(collegamento.SezioniStr[2].Nome, "Non app. HEA 200  ");
  Scrivi("sezioni_", "1\r\n2,\"P_HE 220\",0\r\nr\r\nr\r\nr\r\nr\r\n");
  ASSERT_EQ(SezioniAsteNodo(), EsitoAste::Trovate);
  EXPECT_EQ(collegamento.SezioniStr[2].Nome, "Non app. P_HE 220 ");
}

TEST_F(Struttura, FileDelleSezioniAssenteOConUnConteggioFuoriMisura) {
  ASSERT_EQ(AsteDelNodo(20), EsitoAste::Trovate);
  Scrivi("sezioni_", "99999999999\r\n1,\"P_HEA200\",0\r\nr\r\nr\r\nr\r\nr\r\n");
  EXPECT_EQ(SezioniAsteNodo(), EsitoAste::Troppe);
  EXPECT_TRUE(registratore.eventi.empty());  // the panel's box
  Scrivi("sezioni_", "");
  EXPECT_EQ(SezioniAsteNodo(), EsitoAste::Trovate);  // truncated: partial data, nothing is said
  suite.DirLavoro = CartellaProva("senza_sezioni");
  EXPECT_EQ(SezioniAsteNodo(), EsitoAste::Fallito);
  AttesoSolo("[messaggio] nessuna | ERRORE | Errore: file " + suite.DirLavoro + "\\sezioni_ errato o mancante.");
}

// A node's number is its first value; the fourth is its name, which only the selection looks at.
TEST_F(Struttura, IlNumeroDelNodoEIlPrimoValore) {
  Scrivi("Struttur.Str", "release\r\n0\r\n2\r\n1,0,0,900,a\r\n2,0,0,1,b\r\n1\r\n1,2,0,0\r\n5 1\r\n0\r\n");
  EXPECT_EQ(AsteDelNodo(900), EsitoAste::Fallito);
  EXPECT_EQ(AsteDelNodo(1), EsitoAste::Trovate);
  Aste({5});
  Nodi({900});
  EXPECT_FALSE(NodiAste());
  Nodi({1});
  ASSERT_TRUE(NodiAste());
  EXPECT_EQ(collegamento.LatoAsta[1], 1);
  Nodi({2});  // named 1, but its number is 2
  ASSERT_TRUE(NodiAste());
  EXPECT_EQ(collegamento.LatoAsta[1], 2);
}

TEST_F(Struttura, LatoDelleAste) {
  Nodi({10, 20, 20});
  Aste({5, 6, 7});
  ASSERT_TRUE(NodiAste());
  EXPECT_EQ(collegamento.AstaNodo[1], 0);
  EXPECT_EQ(collegamento.AstaNodo[3], 2);
  EXPECT_EQ(collegamento.LatoAsta[1], 1);  // node 10 is bar 5's first end
  EXPECT_EQ(collegamento.LatoAsta[2], 1);  // node 20 is bar 6's first end
  EXPECT_EQ(collegamento.LatoAsta[3], 2);  // and bar 7's second
}

TEST_F(Struttura, IlNodoDellaStessaPosizionePrimaDegliAltri) {
  Nodi({20, 10});
  Aste({5});
  ASSERT_TRUE(NodiAste());
  EXPECT_EQ(collegamento.LatoAsta[1], 2);  // position 1 is node 20, the second end; 10 would give the first
  Nodi({30, 20});
  ASSERT_TRUE(NodiAste());
  EXPECT_EQ(collegamento.LatoAsta[1], 2);  // 30 is on neither end: any listed node, here 20
  Nodi({30, 20, 10});
  ASSERT_TRUE(NodiAste());
  EXPECT_EQ(collegamento.LatoAsta[1], 1);  // both ends are listed: the first end before the second
  Nodi({10, 20});
  Aste({6, 5});
  ASSERT_TRUE(NodiAste());
  EXPECT_EQ(collegamento.LatoAsta[2], 2);  // the last position: node 20, bar 5's second end, before the listed 10
  std::string s = STRUTTURA_MINIMA;
  s.replace(s.find("20,30,2,10"), 5, "20,20");
  Scrivi("Struttur.Str", s);
  Nodi({20});
  Aste({6});
  ASSERT_TRUE(NodiAste());
  EXPECT_EQ(collegamento.LatoAsta[1], 1);  // a bar that ends where it begins
}

TEST_F(Struttura, AstaAssenteSiNegaENodoAssenteFerma) {
  Nodi({20});
  Aste({5, 99});
  ASSERT_TRUE(NodiAste());
  EXPECT_EQ(collegamento.AsteNodo[1], 5);
  EXPECT_EQ(collegamento.AsteNodo[2], -99);
  EXPECT_EQ(collegamento.AstaNodo[2], -1);
  Aste({99});  // at a place that a former search found
  ASSERT_TRUE(NodiAste());
  EXPECT_EQ(collegamento.AsteNodo[1], -99);
  EXPECT_EQ(collegamento.AstaNodo[1], -1);
  Nodi({20, 77});
  EXPECT_FALSE(NodiAste());
  AttesoSolo("[messaggio] esclamazione | ERRORE | Errore: uno o più nodi inesistenti");
  Nodi({77, 20});
  EXPECT_FALSE(NodiAste());
  EXPECT_EQ(registratore.eventi.size(), 2u);
  registratore.eventi.clear();
  Nodi({40});
  Aste({5});
  EXPECT_FALSE(NodiAste());
  AttesoSolo("[messaggio] esclamazione | ERRORE | Errore: mancata corrispondenza fra aste e nodi");
  registratore.eventi.clear();
  suite.DirLavoro = lavoro + "\\manca";
  EXPECT_FALSE(NodiAste());
  AttesoSolo("[messaggio] esclamazione | ERRORE | Errore: file " + suite.DirLavoro + "\\struttur.str errato o mancante.");
}

TEST_F(Struttura, CondizioniDiCarico) {
  std::int32_t n = 0;
  ASSERT_TRUE(CondizioniStruttura(n));
  EXPECT_EQ(n, 2);
}

// An end that no integer holds counts as 0 and is no node of the model.
TEST_F(Struttura, NodoSmisurato) {
  Scrivi("Struttur.Str", "release\r\n0\r\n1\r\n99999999999,0,0,1,a\r\n0\r\n0\r\n");
  Nodi({0});
  Aste({5});
  EXPECT_FALSE(NodiAste());
  AttesoSolo("[messaggio] esclamazione | ERRORE | Errore: uno o più nodi inesistenti");
}

TEST_F(Struttura, EstremoSmisurato) {
  Scrivi("Struttur.Str", "release\r\n0\r\n1\r\n1,0,0,1,a\r\n1\r\n99999999999,7,0,0\r\n5 1\r\n0\r\n");
  EXPECT_EQ(AsteDelNodo(1), EsitoAste::Trovate);
  EXPECT_EQ(collegamento.NumAsteNodo, 0);
}

TEST_F(Struttura, FileTroncatoInOgniPunto) {
  for (std::size_t k = 0; k <= STRUTTURA_MINIMA.size(); ++k) {
    Scrivi("Struttur.Str", STRUTTURA_MINIMA.substr(0, k));
    Nodi({20});
    Aste({5, 6, 7});
    NodiAste();
    SezioneDiAsta(7);
    AsteDelNodo(20);
    EXPECT_LE(collegamento.NumAsteNodo, 3);
  }
  for (std::size_t k = 0; k <= SEZIONI_MINIME.size(); ++k) {
    Scrivi("sezioni_", SEZIONI_MINIME.substr(0, k));
    SezioniAsteNodo();
  }
}

TEST_F(Struttura, ConteggiOstili) {
  for (const char* n : {"-1", "2147483647", "99999999999999999999", "1e400", "x", ""}) {
    std::string t = std::string("release\r\n") + n + "\r\n1 2 3\r\n" + n + "\r\n1,0,0,1,n\r\n" + n + "\r\n1,1,0,0\r\n1 1\r\n";
    Scrivi("Struttur.Str", t);
    Scrivi("sezioni_", std::string(n) + "\r\n1,a,0\r\n");
    AsteDelNodo(1);
    SezioniAsteNodo();
    SezioneDiAsta(1);
    std::int32_t c = 0;
    CondizioniStruttura(c);
  }
}
