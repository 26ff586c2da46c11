// Every file of the job's model and every answer of the suite's programs, malformed: lists and tables stay in range, loads stay finite.
// The cases are those of corredo/ostili.h; the corpus holds the sample job's own files and thought-out ones.
#include "corredo/ostili.h"

#include <array>

#include "core/testo.h"
#include "corredo/modello_minimo.h"
#include "corredo/pannello_prova.h"
#include "link/casi.h"
#include "link/importa_soll.h"
#include "link/liste.h"
#include "link/ricerca.h"
#include "link/struttura.h"
#include "model/stato.h"
#include "panels/InsDati.h"

namespace {

Collegamento& c = collegamento;

std::string Campione(const char* nome) { return LeggiByte(std::string(QB07_RADICE) + "/samples/suite/lavori/NODI01/" + nome); }

void Nodi(std::initializer_list<std::int16_t> lista) {
  nodo.NumNodiStr = 0;
  for (const std::int16_t n : lista) nodo.NodiStr[++nodo.NumNodiStr] = n;
}

void Aste(std::initializer_list<std::int16_t> lista) {
  c.NumAsteNodo = 0;
  for (const std::int16_t a : lista) c.AsteNodo[++c.NumAsteNodo] = a;
}

void Profili() {
  suite.NumProfili = 2;
  suite.ProfiliLib[1].Nome = AllineaSinistra("IPE300", LungNomeSez);
  suite.ProfiliLib[2].Nome = AllineaSinistra("HEA200", LungNomeSez);
}

// ---- structure ----

void OstileStruttura(const std::string& cartella) {
  suite.DirLavoro = cartella;
  Nodi({10, 20, 20, 0, -5});
  Aste({5, 6, 7, 101, 0, 32767});
  const int trovate = NodiAste() ? c.NumAsteNodo : 0;
  for (int i = 1; i <= trovate; ++i) {
    if (c.AsteNodo[i] <= 0) continue;
    EXPECT_GE(c.AstaNodo[i], 0);
    EXPECT_TRUE(c.LatoAsta[i] == 1 || c.LatoAsta[i] == 2);
  }
  EXPECT_GE(SezioneDiAsta(5), -32768);
  AsteDelNodo(20);
  EXPECT_GE(c.NumAsteNodo, 0);
  EXPECT_LE(c.NumAsteNodo, MaxAste);
  std::int32_t n = 0;
  EXPECT_TRUE(CondizioniStruttura(n) || n == 0);
  FiltroAste filtro;
  std::fill(std::begin(filtro.colori), std::end(filtro.colori), true);
  std::fill(std::begin(filtro.linee), std::end(filtro.linee), true);
  std::string lista;
  CercaAste(std::array<std::int16_t, 2>{20, 20}, filtro, lista);
  EXPECT_TRUE(lista.empty() || lista.ends_with(','));
  SenzaFault();
}

void StrutturaMancante(const std::string& cartella) {
  OstileStruttura(cartella);
  ASSERT_EQ(registratore.eventi.size(), 4u);  // not one for the number of conditions, whose box is the panel's
  EXPECT_TRUE(registratore.eventi[1].ends_with("| VESTRAWIN | Errore in lettura del file STRUTTUR.STR"));
  for (const int k : {0, 2, 3})
    EXPECT_TRUE(registratore.eventi[static_cast<std::size_t>(k)].ends_with("\\struttur.str errato o mancante."));
}

std::string StrutturaDi(const std::string& n1, const std::string& n2, const std::string& n3, const std::string& n4) {
  return "release\r\n" + n1 + "\r\n1 2 3\r\n" + n2 + "\r\n10,0,0,10,a\r\n20,0,0,20,b\r\n" + n3 + "\r\n10,20,1,2\r\n5 1\r\n" + n4 + "\r\n";
}

std::vector<std::string> CorpoStruttura() {
  std::vector<std::string> corpo = {Campione("struttur.str")};
  for (const char* n :
       {"-1", "-2147483648", "2147483647", "4294967297", "99999999999999999999", "1e400", "1E9", "nan", "\"2", ",", "", "2,2"})
    for (int k = 0; k < 4; ++k) corpo.push_back(StrutturaDi(k == 0 ? n : "1", k == 1 ? n : "2", k == 2 ? n : "1", k == 3 ? n : "2"));
  corpo.push_back("release\r\n");
  corpo.push_back("release\rrelease\rrelease");
  corpo.push_back(StrutturaDi("1", "2", "1", "2") + std::string(1000, '\0'));
  corpo.push_back("release\r\n0\r\n1\r\n1e308,nan,inf,20,\"" + std::string(70000, 'x') +
                  "\r\n1\r\n1e308,20,99999999999,-1\r\n-5 99999\r\n");
  return corpo;
}

// ---- sections ----

void OstileSezioni(const std::string& cartella) {
  suite.DirLavoro = cartella;
  Profili();
  Altro(cartella, "struttur.str", STRUTTURA_MINIMA);
  Aste({5, 6, 7});
  for (int i = 1; i <= 3; ++i) c.SezAsteNodo[i] = static_cast<std::int16_t>(i);
  if (SezioniAsteNodo() == EsitoAste::Trovate) {
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(NumCaratteri(c.SezioniStr[i].Nome), static_cast<std::size_t>(LungNomeSez));
  }
  const int profilo = ProfiloDaAsta(5);
  EXPECT_TRUE(profilo >= 0 && profilo <= 2);
  SenzaFault();
}

std::vector<std::string> CorpoSezioni() {
  std::vector<std::string> corpo = {Campione("sezioni_")};
  for (const char* n : {"-1", "2147483647", "99999999999999999999", "1e400", "nan", "", "2,2"})
    corpo.push_back(std::string(n) + "\r\n1,\"P_HEA 200\",0\r\nr\r\nr\r\nr\r\nr\r\n");
  corpo.push_back("1\r\n1,\"P_" + std::string(70000, ' ') + "HEA200\",0\r\n");
  corpo.push_back("1\r\n99999999999,P_,\r\n\r\n\r\n\r\n\r\n");
  corpo.push_back("2\r\n1,P_P_HEA200,0\r\n\xE0\xE8\xEC\r\n1,\x81\x8D\x8F\x90\x9D,0\r\n");
  return corpo;
}

// ---- types of the cases ----

void OstileCasi(const std::string& cartella) {
  suite.DirLavoro = cartella;
  LeggiTipiCaso();
  EXPECT_GE(c.NumCasiStr, 0);
  EXPECT_LE(c.NumCasiStr, MaxCasi);
  SenzaFault();
}

constexpr const char* CASI =
  "2\r\n11\r\nnome\r\naltro\r\n|NORMA=X|TIPOVER=SLU|\r\n1\r\n1,2,3\r\n2\r\n1,2\r\n3,4\r\n4\r\nn\r\na\r\nTIPOVER=RARA\r\n0\r\n0\r\n";

std::vector<std::string> CorpoCasi() {
  std::vector<std::string> corpo = {Campione("combinaz.tot")};
  for (const char* n : {"-1", "200", "201", "2147483647", "99999999999999999999", "nan", ""}) {
    corpo.push_back(std::string(n) + "\r\n1\r\nn\r\na\r\nTIPOVER=SLU\r\n0\r\n0\r\n");
    corpo.push_back(std::string("1\r\n1\r\nn\r\na\r\nTIPOVER=SLU\r\n") + n + "\r\n1,2,3\r\n" + n + "\r\n1,2\r\n");
    corpo.push_back(std::string("1\r\n") + n + "\r\nn\r\na\r\nTIPOVER=\r\n0\r\n0\r\n");
  }
  std::string pieno = "200\r\n";
  for (int k = 1; k <= 200; ++k) pieno += std::to_string(k) + "\r\nn\r\na\r\nTIPOVER=SLU|\r\n0\r\n0\r\n";
  corpo.push_back(pieno);
  return corpo;
}

// ---- results ----

void OstileRisultati(const std::string& cartella) {
  suite.DirLavoro = cartella;
  c.CasiStr[1] = 7;
  c.NumCasiStr = 1;
  c.NumCondStr = 0;
  c.SestettiStr[1] = 0;
  c.NumSestettiStr = 1;
  Nodi({20, 30});
  for (const bool maxMin : {false, true}) {
    Aste({5, 6, -7, 101});
    for (int i = 1; i <= c.NumAsteNodo; ++i) {
      c.AstaNodo[i] = i - 2;  // the first has no place
      c.LatoAsta[i] = static_cast<std::int16_t>(1 + i % 2);
    }
    nodo.NumSoll = 0;
    ImportaSollecitazioni(maxMin);
    ASSERT_GE(nodo.NumSoll, 0);
    ASSERT_LE(nodo.NumSoll, MaxSoll);
    for (int s = 1; s <= nodo.NumSoll; ++s) {
      Finiti({nodo.SollN[s], nodo.SollTy[s], nodo.SollTz[s], nodo.SollMt[s], nodo.SollMy[s], nodo.SollMz[s]});
      EXPECT_EQ(nodo.SollCC[s], 0);
    }
  }
  SenzaFault();
}

const std::vector<RecordRisultati> DUE_ASTE = {{5, 511, 1, 2, 3, 4, 5}, {5, 512, 1, 2, 3, 4, 5}, {5, 521, 1, 2, 3, 4, 5},
                                               {5, 522, 1, 2, 3, 4, 5}, {6, 611, 0, 0, 0, 0, 0}, {6, 612, 0, 0, 0, 0, 0},
                                               {6, 621, 0, 0, 0, 0, 0}, {6, 622, 0, 0, 0, 0, 0}};

std::vector<std::string> CorpoRisultati() {
  std::vector<std::string> corpo = {Campione("astec011.bin"), Campione("aste_009.bin")};
  constexpr std::int32_t OSTILI[] = {-2147483647 - 1, -1, 0, 1, 2, 3, 4, 46341, 65536, 0x40000000, 2147483647};
  for (const std::int32_t sezioni : OSTILI)
    for (const std::int32_t sestetti : OSTILI)
      for (const std::int16_t aste : {std::int16_t{-1}, std::int16_t{2}, std::int16_t{32767}})
        corpo.push_back(FileRisultatiDi(aste, sezioni, sestetti, DUE_ASTE));
  for (const std::size_t resto : {1u, 12u, 55u})
    corpo.push_back(FileRisultatiDi(2, 2, 2, DUE_ASTE) + std::string(resto, '\x7F'));  // odd size
  corpo.push_back(FileRisultatiDi(1, 1, 1, {{5, 1e308, -1e308, 1e-320, 1e301, -1e300, 0}}));
  return corpo;
}

// ---- answers of the programs ----

std::string risposta;  // what the program played here writes
bool ScriveSondaOut(const std::string&, const std::string&) {
  ScriviByte(suite.DirLavoro + "/SondaOut.txt", risposta);
  return true;
}
bool ScriveTq(const std::string&, const std::string&) {
  ScriviByte(suite.DirLavoro + "/TQ_fermix.tmp", risposta);
  return true;
}

void Programma(const std::string& cartella, bool (*eseguito)(const std::string&, const std::string&)) {
  suite.DirLavoro = cartella;
  registratore.programmi = true;
  registratore.eseguito = eseguito;
  for (const char* domanda : {"/SondaIn.txt", "/SondaNIn.txt"}) std::filesystem::remove(cartella + domanda);  // as ScriviByte does
  if (eseguito != nullptr) risposta = LeggiByte(cartella + "/risposta");
}

void OstileElemento(const std::string& cartella) {
  Programma(cartella, ScriveSondaOut);
  std::string campo = "7";
  CercaElemento("t", campo, ELEMENTO_NODO);
  std::int16_t lista[10 + 1], quanti = 0;
  bool troppi = false;
  LeggiLista(campo, lista, 10, quanti, troppi);
  EXPECT_LE(quanti, 10);
  CercaElemento("t", campo, ELEMENTO_NODO, true);
  SenzaFault();
}

void OstileNodo(const std::string& cartella) {
  Programma(cartella, ScriveSondaOut);
  Profili();
  Altro(cartella, "struttur.str", STRUTTURA_MINIMA);
  Altro(cartella, "sezioni_", SEZIONI_MINIME);
  const NodoCercato r = CercaNodi("t");
  EXPECT_TRUE(r.risposta);
  const int profilo = ProfiloDaAsta(r.elemento);
  EXPECT_TRUE(profilo >= 0 && profilo <= 2);
  SenzaFault();
}

void OstileCalcolatrice(const std::string& cartella) {
  if (!insDati.aperto) {
    PannelloPronto();
    Scatena(InsDati, insDati.Singolo, Evento::Cambio);
  }
  Programma(cartella, ScriveTq);
  Scatena(InsDati, insDati.TxtSN[0], Evento::Doppio);
  Finiti({nodo.SollN[1]});
  SenzaFault();
}

// The program ran and wrote no answer.
void ElementoSenzaRisposta(const std::string& cartella) {
  Programma(cartella, nullptr);
  std::string campo = "7";
  CercaElemento("t", campo, ELEMENTO_NODO);
  EXPECT_EQ(campo, "7");
}

void NodoSenzaRisposta(const std::string& cartella) {
  Programma(cartella, nullptr);
  EXPECT_FALSE(CercaNodi("t").risposta);
}

void CalcolatriceSenzaRisposta(const std::string& cartella) {
  PannelloPronto();
  Scatena(InsDati, insDati.Singolo, Evento::Cambio);
  UtenteScrive(InsDati, insDati.TxtSN[0], "3");
  Programma(cartella, nullptr);
  Scatena(InsDati, insDati.TxtSN[0], Evento::Doppio);
  EXPECT_EQ(insDati.TxtSN[0].testo, "3");
  EXPECT_TRUE(registratore.eventi.back().ends_with("Errore aritmetico: il comando non può continuare."));
}

const std::vector<std::string> CORPO_RISPOSTE = {"\r\n",
                                                 "1,,2\r\n",
                                                 "-\r\n",
                                                 ",\r\n",
                                                 "99999,99999\r\n99999\r\n1,99999\r\n",
                                                 "-1,-1\r\n-1\r\n-1,-1\r\n",
                                                 "1e400\r\n1e400\r\n",
                                                 "nan\r\ninf\r\n",
                                                 "\"12,15\r\n",
                                                 "3-4-5\r\n",
                                                 "1-32767\r\n",
                                                 std::string(100000, '9') + "\r\n",
                                                 std::string(3, '\0')};

}  // namespace

const std::vector<Lettore>& Lettori() {
  // clang-format off
  static const std::vector<Lettore> lettori = {
      {"struttura", "struttur.str", 110, STRUTTURA_MINIMA, OstileStruttura,
       {"Caricare e risalvare la struttura in 'Ambiente Grafico'", "Errore: uno o più nodi inesistenti", "Errore: mancata corrispondenza fra aste e nodi",
        "Errore: nodo inesistente", "che concorra nel nodo 20"},
       {"Errore: uno o più nodi inesistenti"}, StrutturaMancante, CorpoStruttura()},
      {"sezioni", "sezioni_", 137, SEZIONI_MINIME, OstileSezioni, {"Il profilo della colonna non è applicabile"}, {}, nullptr, CorpoSezioni()},
      {"casi", "combinaz.tot", 345, CASI, OstileCasi, {"Errore: numero di combinazioni eccessivo"}, {}, nullptr, CorpoCasi()},
      {"risultati", "astec007.bin", 190, FileRisultatiDi(2, 2, 2, DUE_ASTE), OstileRisultati, {"Errore: numero di sollecitazioni eccessivo"}, {}, nullptr, CorpoRisultati()},
      {"elemento", "risposta", 52, "12,15\r\n", OstileElemento, {"Inserimento dati errato"}, {}, ElementoSenzaRisposta, CORPO_RISPOSTE},
      {"nodo", "risposta", 74, "0,2\r\n15\r\n1,5\r\nA\r\nB\r\n", OstileNodo, {"Il profilo della colonna non è applicabile"}, {}, NodoSenzaRisposta, CORPO_RISPOSTE},
      {"calcolatrice", "risposta", 440, " 7.25 \r\n", OstileCalcolatrice, {"Errore aritmetico: il comando non può continuare."}, {}, CalcolatriceSenzaRisposta, CORPO_RISPOSTE},
  };
  // clang-format on
  return lettori;
}

INSTANTIATE_TEST_SUITE_P(Lettori, FileOstili, testing::Range<std::size_t>(0, 7));
