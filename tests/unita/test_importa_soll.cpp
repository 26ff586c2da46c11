// Import of sextets: file names, lists, records, envelope, limits. Expected values by hand from the records written here.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "core/aritmetica.h"
#include "corredo/modello_minimo.h"
#include "corredo/registratore.h"
#include "link/casi.h"
#include "link/collegamento.h"
#include "link/importa_soll.h"
#include "link/liste.h"
#include "model/stato.h"

namespace {

struct Importa : testing::Test {
  std::string lavoro;
  Collegamento& c = collegamento;
  void SetUp() override {
    MontaRegistratore();
    lavoro = CartellaProva("importa");
    suite.DirLavoro = lavoro;
    nodo.NumSoll = 0;
    nodo.NumNodiStr = 1;
    nodo.NodiStr[1] = 20;
    c.NumAsteNodo = c.NumCasiStr = c.NumCondStr = c.NumSestettiStr = 0;
    Asta(5, 0, 1);
    c.CasiStr[++c.NumCasiStr] = 7;
    c.SestettiStr[++c.NumSestettiStr] = 0;
  }
  void Asta(std::int16_t numero, int posto, std::int16_t lato) {
    c.AsteNodo[++c.NumAsteNodo] = numero;
    c.AstaNodo[c.NumAsteNodo] = posto;
    c.LatoAsta[c.NumAsteNodo] = lato;
  }
  void Scrivi(const std::string& nome, const std::string& byte) { ScriviByte(lavoro + "/" + nome, byte); }
};

// Bar 5 then bar 6; two sections, two sextets: N tells bar, section and sextet.
// clang-format off
const std::vector<RecordRisultati> OTTO = {
    {5, 511, 1, 2, 3, 4, 5},  {5, 512, 1, 2, 3, 4, 5}, {5, 521, 1, 2, 3, 4, 5}, {5, 522, 10.25, -2.25, 0.5, 1.5, 2.5},
    {6, 611, 0, 0, 0, 0, 0},  {6, 612, 0, 0, 0, 0, 0}, {6, 621, 0, 0, 0, 0, 0}, {6, 622, 0, 0, 0, 0, 0}};
// clang-format on

std::string DaLista(const char* testo, int limite = 2000) {
  std::vector<std::int16_t> lista(static_cast<std::size_t>(limite) + 1);
  std::int16_t n = -1;
  bool troppi = false;
  const bool valida = LeggiLista(testo, lista.data(), limite, n, troppi);
  std::string r = valida ? "" : "errore";
  for (int i = 1; i <= n; ++i) r += (i > 1 ? " " : "") + std::to_string(lista[static_cast<std::size_t>(i)]);
  return r + (troppi ? " troppi" : "");
}

}  // namespace

TEST_F(Importa, ListeValide) {
  EXPECT_EQ(DaLista("1,2,3-9"), "1 2 3 4 5 6 7 8 9");
  EXPECT_EQ(DaLista("  7 "), "7");
  EXPECT_EQ(DaLista("9-3"), "");             // a range downward adds none
  EXPECT_EQ(DaLista("4,4,3-4"), "4 4 3 4");  // doubles stay
  EXPECT_EQ(DaLista("0"), "0");
  EXPECT_EQ(DaLista("1-5", 3), "1 2 3 troppi");
  EXPECT_EQ(DaLista("32767"), "32767");
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Importa, ListeErrate) {
  for (const char* t : {"", "   ", ",1", "1,", "1,,2", "-1", "1-", "1--2", "3-4-5", "1;2", "a", "1 2", "32768", "1-99999", "1,-2"}) {
    registratore.eventi.clear();
    EXPECT_EQ(DaLista(t), "errore") << t;
    ASSERT_EQ(registratore.eventi.size(), 1u);
    EXPECT_EQ(registratore.eventi[0], "[messaggio] esclamazione | ERRORE | Inserimento dati errato");
  }
}

TEST_F(Importa, NomiDeiFile) {
  EXPECT_EQ(NomeFileRisultati(false, 7), "astec007.bin");
  EXPECT_EQ(NomeFileRisultati(true, 12), "aste_012.bin");
  EXPECT_EQ(NomeFileRisultati(false, 0), "astec000.bin");
  EXPECT_EQ(NomeFileRisultati(false, 999), "astec999.bin");
  EXPECT_EQ(NomeFileRisultati(false, 12345), "astec345.bin");
}

TEST_F(Importa, PrimaSezioneAlPrimoEstremo) {
  Scrivi("astec007.bin", FileRisultatiDi(2, 2, 2, OTTO));
  nodo.NumSoll = 1;
  nodo.SollCC[1] = 1;
  ImportaSollecitazioni(false);
  ASSERT_EQ(nodo.NumSoll, 3);
  EXPECT_EQ(nodo.SollN[2], 511);
  EXPECT_EQ(nodo.SollN[3], 512);
  EXPECT_EQ(nodo.SollTy[2], 1);
  EXPECT_EQ(nodo.SollTz[2], 2);
  EXPECT_EQ(nodo.SollMt[2], 3);
  EXPECT_EQ(nodo.SollMy[2], 4);
  EXPECT_EQ(nodo.SollMz[2], 5);
  EXPECT_EQ(nodo.SollNome[2], "Caso 7 As. 5 Nd. 20");
  EXPECT_EQ(nodo.SollCC[1], 0);  // also the row that was there before
  EXPECT_EQ(c.Letti, 2);
  EXPECT_EQ(c.Presi, 2);
}

TEST_F(Importa, UltimaSezioneAlSecondoEstremoConTyCambiatoDiSegno) {
  Scrivi("astec007.bin", FileRisultatiDi(2, 2, 2, OTTO));
  c.LatoAsta[1] = 2;
  c.SestettiStr[1] = 2;
  ImportaSollecitazioni(false);
  ASSERT_EQ(nodo.NumSoll, 1);
  EXPECT_EQ(nodo.SollN[1], 522);
  EXPECT_EQ(nodo.SollTy[1], -10.3);  // floor(102.5 + .5) / 10 = 10.3, then the sign
  EXPECT_EQ(nodo.SollTz[1], -2.2);   // floor(-22.5 + .5) / 10
  EXPECT_EQ(nodo.SollMt[1], 0);      // 0.5, 1.5, 2.5: ties to even
  EXPECT_EQ(nodo.SollMy[1], 2);
  EXPECT_EQ(nodo.SollMz[1], 2);
}

TEST_F(Importa, NessunoZeroNegativoNellElenco) {
  Scrivi("astec007.bin", FileRisultatiDi(1, 1, 1, {{5, -0.04, 0.04, 0, -0.4, 0, 0}}));
  c.LatoAsta[1] = 2;
  ImportaSollecitazioni(false);
  ASSERT_EQ(nodo.NumSoll, 1);
  EXPECT_EQ(nodo.SollTy[1], 0);
  EXPECT_FALSE(std::signbit(nodo.SollN[1]) || std::signbit(nodo.SollTy[1]) || std::signbit(nodo.SollMt[1]));
}

TEST_F(Importa, IlPostoDelFileVinceSuQuelloDellaStruttura) {
  Scrivi("astec007.bin", FileRisultatiDi(2, 2, 2, OTTO));
  c.NumAsteNodo = 0;
  Asta(6, 0, 1);
  ImportaSollecitazioni(false);
  ASSERT_EQ(nodo.NumSoll, 2);
  EXPECT_EQ(nodo.SollN[1], 611);
  EXPECT_EQ(c.AstaNodo[1], 1);
}

TEST_F(Importa, ElencoDiSestetti) {
  Scrivi("astec007.bin", FileRisultatiDi(2, 2, 2, OTTO));
  c.SestettiStr[1] = 9;  // above the file's: none
  ImportaSollecitazioni(false);
  EXPECT_EQ(nodo.NumSoll, 0);
  c.SestettiStr[1] = 0;
  c.SestettiStr[2] = 0;
  c.NumSestettiStr = 2;  // two zeros: each twice
  ImportaSollecitazioni(false);
  EXPECT_EQ(nodo.NumSoll, 4);
}

TEST_F(Importa, CasoPoiCondizioneEAstaNegata) {
  Scrivi("astec007.bin", FileRisultatiDi(2, 2, 2, OTTO));
  Scrivi("aste_003.bin", FileRisultatiDi(1, 1, 1, {{5, 900, 0, 0, 0, 0, 0}}));
  c.CondStr[++c.NumCondStr] = 3;
  Asta(-6, 1, 1);
  ImportaSollecitazioni(false);
  ASSERT_EQ(nodo.NumSoll, 3);
  EXPECT_EQ(nodo.SollNome[3], "Cond 3 As. 5 Nd. 20");
  EXPECT_EQ(nodo.SollN[3], 900);
}

TEST_F(Importa, FileAssenteFinisceConLeRigheLette) {
  Scrivi("astec007.bin", FileRisultatiDi(2, 2, 2, OTTO));
  c.CasiStr[++c.NumCasiStr] = 0;
  ImportaSollecitazioni(false);
  EXPECT_EQ(nodo.NumSoll, 2);
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(registratore.eventi[0], "[messaggio] esclamazione | ERRORE | Errore: file " + lavoro + "\\astec000.bin errato o mancante.");
}

TEST_F(Importa, InviluppoDiDodiciRighe) {
  Scrivi("astec007.bin", FileRisultatiDi(1, 1, 3, {{5, 100, 1, -5, 0, 0, 7}, {5, -50, 9, 2, 0, 0, 7}, {5, 100, -3, 2, 0, 0, 7}}));
  ImportaSollecitazioni(true);
  ASSERT_EQ(nodo.NumSoll, 12);
  // clang-format off
  const struct { int riga; double N, Ty, Tz; } ATTESE[] = {
      {1, 100, 1, -5},  {2, -50, 9, 2},                   // N: the first of two equal ones stays
      {3, -50, 9, 2},   {4, 100, 1, -5},                  // Tz
      {5, -50, 9, 2},   {6, 100, -3, 2},                  // Ty
      {9, 100, 1, -5},  {10, 100, 1, -5}};                // Mz: all equal, the first
  // clang-format on
  for (const auto& a : ATTESE) {
    EXPECT_EQ(nodo.SollN[a.riga], a.N) << a.riga;
    EXPECT_EQ(nodo.SollTy[a.riga], a.Ty) << a.riga;
    EXPECT_EQ(nodo.SollTz[a.riga], a.Tz) << a.riga;
  }
  EXPECT_EQ(nodo.SollNome[1], "Caso 7 As. 5 Nd. 20");
}

// More sextets than are read at once: the extremes lie on both sides of the blocks' borders and at the end, and repeated ones count.
TEST_F(Importa, InviluppoDiMoltiSestetti) {
  std::vector<RecordRisultati> r(10000, {5, 1, 0, 0, 0, 0, 0});
  r[4095].N = 50;
  r[4096].N = -60;
  r[8191].Ty = 7;
  r[8192].Ty = -8;
  r[9999].Mt = 9;
  Scrivi("astec007.bin", FileRisultatiDi(1, 1, 10000, r));
  ImportaSollecitazioni(true);
  EXPECT_EQ(nodo.SollN[1], 50);
  EXPECT_EQ(nodo.SollN[2], -60);
  EXPECT_EQ(nodo.SollTy[5], 7);
  EXPECT_EQ(nodo.SollTy[6], -8);
  EXPECT_EQ(nodo.SollMt[11], 9);
  EXPECT_EQ(nodo.SollMt[12], 0);
  EXPECT_EQ(c.Letti, 10000);
  EXPECT_EQ(c.Presi, 10000);
  c.NumSestettiStr = 4;  // one and all, twice; two that are not beside each other; one above the file's
  const std::int16_t lista[] = {0, 4097, 0, 10001};
  std::copy(std::begin(lista), std::end(lista), c.SestettiStr + 1);
  ImportaSollecitazioni(true);
  EXPECT_EQ(c.Letti, 10000);
  EXPECT_EQ(c.Presi, 20001);
  const std::int16_t sola[] = {9, 4097, 8193, 4097};
  std::copy(std::begin(sola), std::end(sola), c.SestettiStr + 1);
  ImportaSollecitazioni(true);
  EXPECT_EQ(c.Letti, 3);
  EXPECT_EQ(c.Presi, 4);
  EXPECT_EQ(nodo.SollN[1], 1);
  EXPECT_EQ(nodo.SollN[2], -60);
  EXPECT_EQ(nodo.SollTy[6], -8);
}

// Sextets that stand alike beside one that cannot be rounded: each is judged by itself.
TEST_F(Importa, InviluppoConRipetutiNonFiniti) {
  const double inf = std::numeric_limits<double>::infinity();
  Scrivi(
    "astec007.bin",
    FileRisultatiDi(
      1, 1, 5, {{5, 3, 0, 0, 0, 0, 0}, {5, inf, 0, 0, 0, 0, 0}, {5, inf, 0, 0, 0, 0, 0}, {5, 3, 0, 0, 0, 0, 0}, {5, 3, 0, 0, 0, 0, 0}}));
  ImportaSollecitazioni(true);
  EXPECT_EQ(nodo.SollN[1], 3);
  EXPECT_EQ(c.Letti, 5);
  EXPECT_EQ(c.Presi, 3);
}

TEST_F(Importa, OgniRigaDellInviluppoHaLaSuaComponente) {
  // Sextets 1 to 12 in the order of the rows, each with one extreme, told apart by N's decimals or the name; a thirteenth beats none.
  std::vector<RecordRisultati> r;
  double RecordRisultati::*const componenti[] = {&RecordRisultati::N,  &RecordRisultati::Tz, &RecordRisultati::Ty,
                                                 &RecordRisultati::My, &RecordRisultati::Mz, &RecordRisultati::Mt};
  for (int riga = 1; riga <= 12; ++riga) {
    RecordRisultati x{5, 0, 0, 0, 0, 0, 0};
    x.*componenti[(riga - 1) / 2] = riga % 2 == 1 ? 1000 + riga : -1000 - riga;
    r.push_back(x);
  }
  r.push_back({5, 0, 0, 0, 0, 0, 0});
  Scrivi("astec007.bin", FileRisultatiDi(1, 1, 13, r));
  ImportaSollecitazioni(true);
  ASSERT_EQ(nodo.NumSoll, 12);
  const double* const valori[] = {nodo.SollN, nodo.SollTz, nodo.SollTy, nodo.SollMy, nodo.SollMz, nodo.SollMt};
  for (int riga = 1; riga <= 12; ++riga)
    for (int k = 0; k < 6; ++k)
      EXPECT_EQ(valori[k][riga], k != (riga - 1) / 2 ? 0 : riga % 2 == 1 ? 1000 + riga : -1000 - riga) << riga << " " << k;
  EXPECT_EQ(c.Presi, 13);
}

TEST_F(Importa, IlLimiteSiProvaFilePerFileEContaLeAsteNegate) {
  Scrivi("astec007.bin", FileRisultatiDi(1, 1, 120, std::vector<RecordRisultati>(120, {5, 1, 0, 0, 0, 0, 0})));
  Scrivi("astec008.bin", FileRisultatiDi(1, 1, 81, std::vector<RecordRisultati>(81, {5, 1, 0, 0, 0, 0, 0})));
  c.CasiStr[++c.NumCasiStr] = 8;
  c.SestettiStr[1] = 1;  // of each file one is taken
  ImportaSollecitazioni(false);
  EXPECT_EQ(nodo.NumSoll, 2);  // 0 + 120, then 1 + 81
  EXPECT_TRUE(registratore.eventi.empty());
  Asta(-6, 0, 1);  // skipped, and counted all the same: 2 + 2 * 120
  ImportaSollecitazioni(false);
  EXPECT_EQ(nodo.NumSoll, 0);
  EXPECT_EQ(registratore.eventi.size(), 1u);
}

TEST_F(Importa, InviluppoSenzaSestettiTieneGliEstremi) {
  Scrivi("astec007.bin", FileRisultatiDi(0, 1, 1, {}));
  c.AstaNodo[1] = -1;
  ImportaSollecitazioni(true);
  ASSERT_EQ(nodo.NumSoll, 12);
  EXPECT_EQ(nodo.SollN[1], -1e20);
  EXPECT_EQ(nodo.SollMz[2], 1e20);
  EXPECT_EQ(nodo.SollNome[1], "");
}

TEST_F(Importa, DuecentunoSestettiSiRifiutanoEListaVuota) {
  std::vector<RecordRisultati> r(201, {5, 1, 0, 0, 0, 0, 0});
  Scrivi("astec007.bin", FileRisultatiDi(1, 1, 201, r));
  ImportaSollecitazioni(false);
  EXPECT_EQ(nodo.NumSoll, 0);
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(registratore.eventi[0], "[messaggio] esclamazione | ERRORE | Errore: numero di sollecitazioni eccessivo");
  r.pop_back();
  registratore.eventi.clear();
  Scrivi("astec007.bin", FileRisultatiDi(1, 1, 200, r));
  ImportaSollecitazioni(false);
  EXPECT_EQ(nodo.NumSoll, 200);
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Importa, OltreDuecentoConDueZeriSiFermaADuecento) {
  Scrivi("astec007.bin", FileRisultatiDi(1, 1, 150, std::vector<RecordRisultati>(150, {5, 1, 0, 0, 0, 0, 0})));
  c.SestettiStr[2] = 0;
  c.NumSestettiStr = 2;
  ImportaSollecitazioni(false);
  EXPECT_EQ(nodo.NumSoll, 200);
  ASSERT_EQ(registratore.eventi.size(), 1u);
}

// No section, no sextet: no record is a bar's, though the file holds some.
TEST_F(Importa, FileSenzaSezioniOSestetti) {
  for (const std::int16_t lato : {std::int16_t{1}, std::int16_t{2}}) {
    c.LatoAsta[1] = lato;
    Scrivi("astec007.bin", FileRisultatiDi(1, 0, 1, {{5, 1, 0, 0, 0, 0, 0}, {5, 2, 0, 0, 0, 0, 0}}));
    ImportaSollecitazioni(false);
    EXPECT_EQ(nodo.NumSoll, 0) << lato;
    Scrivi("astec007.bin", FileRisultatiDi(1, 1, 0, {{5, 1, 0, 0, 0, 0, 0}, {5, 2, 0, 0, 0, 0, 0}}));
    ImportaSollecitazioni(false);
    EXPECT_EQ(nodo.NumSoll, 0) << lato;
  }
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Importa, ValoreNonFinitoSiSalta) {
  Scrivi("astec007.bin", FileRisultatiDi(1, 1, 2, {{5, std::numeric_limits<double>::infinity(), 0, 0, 0, 0, 0}, {5, 8, 0, 0, 0, 0, 0}}));
  ImportaSollecitazioni(false);
  ASSERT_EQ(nodo.NumSoll, 1);
  EXPECT_EQ(nodo.SollN[1], 8);
}

TEST_F(Importa, ValoreCheNonSiArrotondaSiSaltaSenzaFault) {
  const double largo = std::numeric_limits<double>::max();  // ten times it overflows
  std::string b =
    FileRisultatiDi(1, 1, 4, {{5, 1, largo, 0, 0, 0, 0}, {5, 2, 0, 0, 0, -largo, 0}, {5, 3, 0, 0, 1e300, 0, 0}, {5, 4, 0, 0, 0, 0, 0}});
  const std::uint64_t segnale = 0x7FF0000000000001;  // a not-a-number whose comparison is a fault
  std::memcpy(&b[4 * 56 + 8], &segnale, 8);
  Scrivi("astec007.bin", b);
  AzzeraFault();
  ImportaSollecitazioni(false);
  ASSERT_EQ(nodo.NumSoll, 1);
  EXPECT_EQ(nodo.SollN[1], 3);
  EXPECT_EQ(nodo.SollMt[1], 1e300);
  EXPECT_FALSE(FaultAritmetico());
}

// What counts is where a record lies, not what the header claims of the rest of the file.
TEST_F(Importa, FileTroncatoDaIRecordCheHa) {
  Scrivi("astec007.bin", FileRisultatiDi(2, 2, 3, OTTO).substr(0, 6 * 56));  // bar 5: records 1 to 5 of its six
  ImportaSollecitazioni(false);
  ASSERT_EQ(nodo.NumSoll, 3);  // section 1 is whole
  EXPECT_EQ(nodo.SollN[1], 511);
  EXPECT_EQ(nodo.SollN[3], 521);
  nodo.NumSoll = 0;
  c.LatoAsta[1] = 2;
  ImportaSollecitazioni(false);
  ASSERT_EQ(nodo.NumSoll, 2);  // of section 2 the first two sextets, records 4 and 5
  EXPECT_EQ(nodo.SollN[1], 522);
  EXPECT_EQ(nodo.SollN[2], 611);
  nodo.NumSoll = 0;
  c.AsteNodo[1] = 9;  // not in the file: its place 1 begins at record 7
  c.AstaNodo[1] = 1;
  ImportaSollecitazioni(false);
  EXPECT_EQ(nodo.NumSoll, 0);
}

TEST_F(Importa, SezioniOltreIlFileLascianoLaPrima) {
  Scrivi("astec007.bin", FileRisultatiDi(32767, std::numeric_limits<std::int32_t>::max(), 2, OTTO));
  ImportaSollecitazioni(false);
  ASSERT_EQ(nodo.NumSoll, 2);
  EXPECT_EQ(nodo.SollN[1], 511);
  nodo.NumSoll = 0;
  c.LatoAsta[1] = 2;
  ImportaSollecitazioni(false);
  EXPECT_EQ(nodo.NumSoll, 0);
}

TEST_F(Importa, FileTroncatiEByteCambiatiNonFannoDanno) {
  const std::string intero = FileRisultatiDi(2, 2, 2, OTTO);
  for (std::size_t k = 0; k <= intero.size(); ++k) {
    Scrivi("astec007.bin", intero.substr(0, k));
    nodo.NumSoll = 0;
    ImportaSollecitazioni(false);
    EXPECT_LE(nodo.NumSoll, 200);
  }
  std::mt19937 caso(7);
  for (int k = 0; k < 3000; ++k) {
    std::string b = intero;
    for (int m = 0; m < 3; ++m) b[caso() % 16] = static_cast<char>(caso());
    Scrivi("astec007.bin", b);
    nodo.NumSoll = 0;
    ImportaSollecitazioni(k % 2 == 0);
    EXPECT_LE(nodo.NumSoll, 200);
    EXPECT_GE(nodo.NumSoll, 0);
  }
}

TEST_F(Importa, TipiDeiCasi) {
  Scrivi("combinaz.tot", "3\r\n1\r\nnome\r\naltro\r\nx|TIPOVER=TENSAMM|y\r\n1\r\n1,2,3\r\n2\r\n1,2\r\n3,4\r\n"
                         "4\r\nn\r\na\r\nTIPOVER=SLU\r\n0\r\n0\r\n9\r\nn\r\na\r\nsenza tipo\r\n0\r\n0\r\n");
  ASSERT_EQ(LeggiTipiCaso(), EsitoCasi::Letti);
  ASSERT_EQ(c.NumCasiStr, 3);
  EXPECT_EQ(c.CasiStr[2], 4);
  EXPECT_EQ(c.TipiCaso[1], "TENSAMM");
  EXPECT_EQ(c.TipiCaso[2], "SLU");
  EXPECT_EQ(c.TipiCaso[3], "");
}

TEST_F(Importa, CasiAssentiOTroppi) {
  EXPECT_EQ(LeggiTipiCaso(), EsitoCasi::Assente);
  EXPECT_EQ(registratore.eventi.back(), "[messaggio] esclamazione | ERRORE | Errore: file " + lavoro + "\\combinaz.tot errato o mancante.");
  Scrivi("combinaz.tot", "201\r\n");
  EXPECT_EQ(LeggiTipiCaso(), EsitoCasi::Troppi);
  EXPECT_EQ(registratore.eventi.back(), "[messaggio] esclamazione | ERRORE | Errore: numero di combinazioni eccessivo");
  Scrivi("combinaz.tot", "200\r\n1\r\n");
  EXPECT_EQ(LeggiTipiCaso(), EsitoCasi::Letti);  // truncated: what is there
  EXPECT_EQ(c.NumCasiStr, 1);
}
