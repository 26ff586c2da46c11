// test_layout_nodo - the node file's lines: bytes written, order of reading, both generations, truncations, hostile counts, flips.
// The expected lines are composed here by hand: a number is a blank, its digits and a blank; a text stands as it is.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <vector>

#include "core/aritmetica.h"
#include "core/layout_nodo.h"
#include "model/stato.h"

static const Nodo NODO_VUOTO;
static std::vector<PassoNodo> passiVisti;
static void Annota(PassoNodo p) { passiVisti.push_back(p); }

struct LayoutNodo : testing::Test {
  void SetUp() override {
    nodo = NODO_VUOTO;
    scambio = {};
    passi = {};
    passiVisti.clear();
  }
};

using Righe = std::vector<std::string>;
static std::string Unisci(const Righe& righe) {
  std::string t;
  for (const std::string& r : righe) t += r + "\r\n";
  return t;
}
static void Leggi(const std::string& byte) {
  passi = {};
  FileLettura f;
  f.byte = byte;
  f.aperto = true;
  LeggiNodo(f, Annota);
}

// A ribbed joint with four anchors, two loads and three structure nodes.
static void Modello() {
  nodo.Sezione.Nome = "HEA200";
  nodo.Sezione.H = 190;
  nodo.Sezione.B = 200;
  nodo.Sezione.A = 6.5;
  nodo.Sezione.E = 10;
  nodo.LatoZ = 400;
  nodo.LatoY = 500.25;
  nodo.SpessPiastra = 20;
  nodo.TipoNodo = 2;
  nodo.OptionNTir = 0;
  nodo.SpNerv = .5;
  nodo.HNerv = 150;
  nodo.SaldInt = 1;
  nodo.Gola = 7;
  nodo.NTir = 4;
  const double z[] = {0, 50, 350, 50, 350}, y[] = {0, 45, 45, 455.25, 455.25};
  for (int i = 1; i <= 4; ++i) {
    nodo.TfZ[i] = z[i];
    nodo.TfY[i] = y[i];
  }
  nodo.TfR = 70;
  nodo.TfL = 500;
  nodo.TfL1 = 450;
  nodo.TfLFt = 120;
  nodo.TfDiamIdx = 7;
  nodo.TfLF = 10;
  nodo.TfDForo = 100;
  nodo.TfHMalta = 50;
  nodo.TfLFil = 0;
  nodo.TfDistBordo = 200;
  nodo.TipoTirafondo = 1;
  nodo.MatAcc.Nome = "S 235 (FE 360)";
  nodo.MatTir.Nome = "S 355 (FE 510)";
  nodo.MatCls.Nome = "C25/30";
  nodo.Esposizione = 2;
  nodo.NumSoll = 2;
  nodo.SollN[1] = -12000.5;
  nodo.SollTy[1] = 1e20;
  nodo.SollTz[1] = 1.5e-7;
  nodo.SollMt[1] = 1.0 / 3;
  nodo.SollMy[1] = -.25;
  nodo.SollMz[1] = 1234567;
  nodo.SollCC[1] = 0;
  nodo.SollNome[1] = "Soll 1";
  nodo.SollCC[2] = 1;
  nodo.SollNome[2] = "Caso 3\r\nasta \xC3\xA0\n7\r";  // UTF-8 inside
  nodo.NumNodiStr = 3;
  nodo.NodiStr[1] = 11;
  nodo.NodiStr[2] = -1;
  nodo.NodiStr[3] = 32767;
  nodo.TipoVer = 1;
}
static Righe RigheModello() {
  return {"VERNTC",
          "HEA200            ",
          " 190 ",
          " 200 ",
          " 6.5 ",
          " 10 ",
          " 400 ",
          " 500.25 ",
          " 20 ",
          " 2 ",
          "0",
          " .5 ",
          " 150 ",
          " 1 ",
          " 7 ",
          " 4 ",
          " 50 ",
          " 45 ",
          " 350 ",
          " 45 ",
          " 50 ",
          " 455.25 ",
          " 350 ",
          " 455.25 ",
          " 70 ",
          " 500 ",
          " 450 ",
          " 120 ",
          " 7 ",
          " 10 ",
          " 100 ",
          " 50 ",
          " 0 ",
          " 200 ",
          " 1 ",
          "S 235 (FE 360)",
          "S 355 (FE 510)",
          "C25/30",
          " 3 ",
          " 2 ",
          "-12000.5 ",
          " 1E+20 ",
          " 1.5E-07 ",
          " .333333333333333 ",
          "-.25 ",
          " 1234567 ",
          " 0 ",
          "Soll 1",
          " 0 ",
          " 0 ",
          " 0 ",
          " 0 ",
          " 0 ",
          " 0 ",
          " 1 ",
          "Caso 3 asta \xC3\xA0"
          "7 ",
          " 3 ",
          " 11 ",
          "-1 ",
          " 32767 ",
          "1"};
}

TEST_F(LayoutNodo, ScriveOgniRigaNelSuoOrdine) {
  Modello();
  EXPECT_EQ(ComponiNodo(), Unisci(RigheModello()));
  EXPECT_FALSE(passi.fallito);
}

TEST_F(LayoutNodo, SenzaNervatureSenzaCarichiSenzaMotivo) {
  Modello();
  nodo.TipoNodo = 1;     // no rib lines
  nodo.OptionNTir = -1;  // no pattern, no line 11
  nodo.NumSoll = 0;      // the structure's count follows directly
  nodo.TipoVer = 0;
  Righe r = RigheModello();
  r.erase(r.begin() + 40, r.begin() + 56);
  r[39] = " 0 ";
  r.erase(r.begin() + 10, r.begin() + 14);
  r[9] = " 1 ";
  r.back() = "0";
  EXPECT_EQ(ComponiNodo(), Unisci(r));
}

// Rows 1 to 200 are written and read; row 0 is neither.
TEST_F(LayoutNodo, DuecentoCarichiERigaZeroLibera) {
  Modello();
  nodo.NumSoll = MaxSoll;
  for (int n = 1; n <= MaxSoll; ++n) {
    nodo.SollN[n] = n;
    nodo.SollNome[n] = "Soll " + std::to_string(n);
  }
  nodo.SollN[0] = 777777;
  nodo.SollNome[0] = "riga zero";
  nodo.TfZ[0] = 777777;
  nodo.NodiStr[0] = 7777;
  const std::string t = ComponiNodo();
  EXPECT_EQ(t.find("7777"), std::string::npos);
  EXPECT_EQ(t.find("riga zero"), std::string::npos);
  EXPECT_NE(t.find("\r\n 200 \r\n 1 \r\n"), std::string::npos);     // the count, then group 1
  EXPECT_NE(t.find("\r\nSoll 200\r\n 3 \r\n"), std::string::npos);  // group 200, then the structure's count
  Leggi(t);
  EXPECT_EQ(nodo.SollN[200], 200);
  EXPECT_EQ(nodo.SollN[0], 777777);
  EXPECT_EQ(nodo.SollNome[0], "riga zero");
  EXPECT_EQ(nodo.NodiStr[0], 7777);
}

TEST_F(LayoutNodo, ConteggiImpossibiliSiFermanoAiLimiti) {
  Modello();
  nodo.NTir = 30000;
  nodo.NumSoll = -5;
  nodo.NumNodiStr = 2001;
  const std::string t = ComponiNodo();
  EXPECT_EQ(std::count(t.begin(), t.end(), '\n'), 16 + 16 + 16 + 0 + 1 + 2000 + 1);
  nodo.LatoZ = std::numeric_limits<double>::infinity();
  ComponiNodo();
  EXPECT_TRUE(passi.fallito) << "no infinity goes into a file";
}

// The values that a reading leaves, as the lines that it would write; with the exchange's own in their places.
static std::string Riletto() {
  nodo.OptionNTir = scambio.motivo.empty() ? -1 : scambio.motivo[0] - '0';
  nodo.Esposizione = scambio.Esposizione - 1;
  nodo.TfDiamIdx = scambio.TfDiamIdx;
  nodo.TipoVer = scambio.metodo == "0" ? 0 : 1;
  std::copy(std::begin(scambio.TfZ), std::end(scambio.TfZ), nodo.TfZ);
  std::copy(std::begin(scambio.TfY), std::end(scambio.TfY), nodo.TfY);
  return ComponiNodo();
}

TEST_F(LayoutNodo, RileggeQuelloCheHaScritto) {
  const Righe righe = RigheModello();
  std::string byte = Unisci(righe);
  byte.replace(byte.find("\xC3\xA0"), 2, "\xE0");  // Windows-1252 in the file
  Leggi(byte);
  EXPECT_FALSE(passi.fallito);
  EXPECT_EQ(passiVisti,
            (std::vector{PassoNodo::Sezione, PassoNodo::Motivo, PassoNodo::Diametro, PassoNodo::Esposizione, PassoNodo::Metodo}));
  EXPECT_EQ(nodo.Sezione.Nome, "HEA200            ");
  EXPECT_EQ(nodo.SpNerv, .5);
  EXPECT_EQ(nodo.HNerv, 150);
  EXPECT_EQ(scambio.TfZ[2], 350);
  EXPECT_EQ(scambio.TfY[3], 455.25);
  EXPECT_EQ(nodo.TfZ[2], 0) << "the positions wait in the exchange";
  EXPECT_EQ(nodo.TfR, 70);
  EXPECT_EQ(nodo.TfLFt, 120);
  EXPECT_EQ(nodo.TfHMalta, 50);
  EXPECT_EQ(nodo.TfDistBordo, 200);
  EXPECT_EQ(nodo.MatTir.Nome, "S 355 (FE 510)");
  EXPECT_EQ(scambio.Esposizione, 3);
  EXPECT_EQ(nodo.SollTy[1], 1e20);
  EXPECT_EQ(nodo.SollNome[2], "Caso 3 asta \xC3\xA0"
                              "7 ");
  EXPECT_EQ(nodo.NodiStr[2], -1);
  EXPECT_EQ(scambio.metodo, "1");
  EXPECT_EQ(Riletto(), Unisci(righe));
}

TEST_F(LayoutNodo, PrendeINumeriComunqueScritti) {
  // LF and CR alone, no blanks, many blanks, values parted by commas on one line, an exponent, a fraction to the even integer.
  Leggi("xxVERNTCxx\n  HEA200\r190,200 , 6.5\n10\r\n   4e2   \n500\n20\n1.5\n3\n7\n0.5\n");
  EXPECT_EQ(nodo.Sezione.Nome, "HEA200            ");
  EXPECT_EQ(nodo.Sezione.H, 190);
  EXPECT_EQ(nodo.Sezione.B, 200);
  EXPECT_EQ(nodo.Sezione.A, 6.5);
  EXPECT_EQ(nodo.Sezione.E, 10);
  EXPECT_EQ(nodo.LatoZ, 400);
  EXPECT_EQ(nodo.TipoNodo, 2) << "1.5 rounds to even";
  EXPECT_EQ(scambio.motivo, "3");
  EXPECT_EQ(nodo.SpNerv, 7) << "TipoNodo 2: three more lines";
  EXPECT_EQ(nodo.HNerv, .5);
}

TEST_F(LayoutNodo, NomeDellaSezione) {
  Leggi("VERNTC\r\nHEA200,999\r\n");  // current: a value, to the comma
  EXPECT_EQ(nodo.Sezione.Nome, "HEA200            ");
  EXPECT_EQ(nodo.Sezione.H, 999);
  Leggi("VERNTC\r\n\"  HEA, 200\"\r\n5\r\n");  // quoted
  EXPECT_EQ(nodo.Sezione.Nome, "  HEA, 200        ");
  EXPECT_EQ(nodo.Sezione.H, 5);
  Leggi("   HEA,200 B  \r\n7\r\n");  // old: the whole line, trimmed
  EXPECT_EQ(nodo.Sezione.Nome, "HEA,200 B         ");
  EXPECT_EQ(nodo.Sezione.H, 7);
  Leggi("verntc\r\n7\r\n");  // the marker is in capitals
  EXPECT_EQ(nodo.Sezione.Nome, "verntc            ");
  EXPECT_EQ(nodo.Sezione.H, 7);
  Leggi("1234567890123456789012345\r\n");
  EXPECT_EQ(nodo.Sezione.Nome, "123456789012345678");
  Leggi("H\xC8"
        "A\r\n");  // characters, not bytes, are counted
  EXPECT_EQ(nodo.Sezione.Nome, "H\xC3\x88"
                               "A               ");
}

TEST_F(LayoutNodo, VecchiaGenerazione) {
  Righe r = RigheModello();
  r.erase(r.begin());
  r[0] = "HEA200";
  r.erase(r.begin() + 34, r.begin() + 38);  // three names and the exposure
  const Righe otto = {"RCK 300", " 300 ", " 97.5 ", "FE 360", " 1600 ", " 1400 ", "FE 510", " 2400 "};
  r.insert(r.begin() + 34, otto.begin(), otto.end());
  std::string byte = Unisci(r);
  byte.replace(byte.find("\xC3\xA0"), 2, "\xE0");
  nodo.MatAcc.Fyk = 2350;
  Leggi(byte);
  EXPECT_FALSE(passi.fallito);
  EXPECT_EQ(passiVisti, (std::vector{PassoNodo::Sezione, PassoNodo::Motivo, PassoNodo::Diametro, PassoNodo::Metodo})) << "no exposure";
  EXPECT_EQ(nodo.MatCls.Nome, "RCK 300");
  EXPECT_EQ(nodo.MatCls.Rck, 300);
  EXPECT_EQ(nodo.MatCls.SAmm, 97.5);
  EXPECT_EQ(nodo.MatAcc.Nome, "FE 360");
  EXPECT_EQ(nodo.MatAcc.SAmm, 1600);
  EXPECT_EQ(nodo.MatAcc.SAmm40, 1400);
  EXPECT_EQ(nodo.MatTir.Nome, "FE 510");
  EXPECT_EQ(nodo.MatTir.SAmm, 2400);
  EXPECT_EQ(nodo.MatAcc.Fyk, 2350) << "the rest of the record stays";
  // Written back it is of the current generation, with the exposure that the panel shows.
  scambio.Esposizione = 1;
  Righe atteso = RigheModello();
  atteso[35] = "FE 360";
  atteso[36] = "FE 510";
  atteso[37] = "RCK 300";
  atteso[38] = " 1 ";
  EXPECT_EQ(Riletto(), Unisci(atteso));
}

// A name with a comma is not quoted by the writer: the reader ends it there and every later value moves one place.
TEST_F(LayoutNodo, VirgolaInUnNome) {
  Modello();
  nodo.NumSoll = 2;
  nodo.SollNome[1] = "Vento, +Y";
  nodo.SollNome[2] = "Due";
  const std::string byte = ComponiNodo();
  nodo = NODO_VUOTO;
  Leggi(byte);
  EXPECT_EQ(nodo.SollNome[1], "Vento");
  EXPECT_EQ(nodo.SollN[2], 0) << "\"+Y\" read as a number";
  EXPECT_EQ(nodo.SollCC[2], 0) << "the class moved into the name's place";
  EXPECT_EQ(nodo.SollNome[2], "1 ");
  EXPECT_EQ(nodo.NumNodiStr, 0) << "the name read as the count";
  EXPECT_EQ(scambio.metodo, "3 ");
}

TEST_F(LayoutNodo, SaldIntEVirgolette) {
  Modello();
  nodo.SollNome[1] = "\"tra\" virgolette";
  const std::string byte = ComponiNodo();
  EXPECT_NE(byte.find("\r\n\"tra\" virgolette\r\n"), std::string::npos);
  Leggi(byte);
  EXPECT_EQ(nodo.SollNome[1], "tra");  // a name that begins with a quote ends at the next one
}

// Lines 0 to n of the file: what was read counts, every later value stays, the status is failed but for the whole file.
TEST_F(LayoutNodo, TroncatoAOgniRiga) {
  Modello();
  nodo.SollNome[2] = "Soll 2";
  const std::string intero = ComponiNodo();
  std::size_t fine = 0;
  for (int righe = 0; fine <= intero.size(); ++righe) {
    nodo = NODO_VUOTO;
    nodo.TipoNodo = 2;
    nodo.TfDistBordo = -77;
    nodo.SollMz[1] = -78;
    nodo.NodiStr[3] = -79;
    nodo.MatCls.Nome = "resta";
    Leggi(intero.substr(0, fine));
    EXPECT_EQ(passi.fallito, righe < 61) << righe;
    EXPECT_EQ(nodo.LatoZ, righe > 6 ? 400 : 0) << righe;
    EXPECT_EQ(nodo.TfDistBordo, righe > 33 ? 200 : -77) << righe;
    EXPECT_EQ(nodo.MatCls.Nome, righe > 37 ? "C25/30" : "resta") << righe;
    EXPECT_EQ(nodo.NumSoll, righe > 39 ? 2 : 0) << righe;
    EXPECT_EQ(nodo.SollMz[1], righe > 45 ? 1234567 : -78) << righe;
    EXPECT_EQ(nodo.NodiStr[3], righe > 59 ? 32767 : -79) << righe;
    EXPECT_EQ(scambio.metodo, righe > 60 ? "1" : "") << righe;
    if (fine == intero.size()) break;
    fine = intero.find("\r\n", fine) + 2;
  }
  FileLettura chiuso;  // a file that could not be opened: every step fails
  passi = {};
  LeggiNodo(chiuso, Annota);
  EXPECT_TRUE(passi.fallito);
}

struct Ostile {
  const char* testo;
  int NTir, NumSoll, NumNodiStr;
  bool fallito;
};  // the counts kept; before: 4, 2, 3
TEST_F(LayoutNodo, ConteggiOstili) {
  // clang-format off
  const Ostile casi[] = {
    {"-1", 0, 0, 0, true},
    {"-32768", 0, 0, 0, true},
    {"9", 8, 9, 9, true},                          // too many anchors; loads and nodes run into the file's end
    {"201", 8, 200, 201, true},
    {"2001", 8, 200, 2000, true},
    {"32767", 8, 200, 2000, true},
    {"32768", 4, 2, 3, true},                      // overflow of the integer: the count stays, its text is consumed
    {"99999", 4, 2, 3, true},
    {"1e400", 4, 2, 3, true},
    {"1e9", 4, 2, 3, true},
    {"testo", 0, 0, 0, false},                     // a text without a number is 0
    {"nan", 0, 0, 0, false},
    {"inf", 0, 0, 0, false},
    {"", 0, 0, 0, false},
  };
  // clang-format on
  for (const Ostile& c : casi)
    for (const int riga : {15, 39, 56}) {
      nodo = NODO_VUOTO;
      nodo.NTir = 4;
      nodo.NumSoll = 2;
      nodo.NumNodiStr = 3;
      Righe r = RigheModello();
      r[55] = "Soll 2";
      r[static_cast<std::size_t>(riga)] = c.testo;
      Leggi(Unisci(r));
      const std::string dove = std::string(c.testo) + " alla riga " + std::to_string(riga);
      const int conta = riga == 15 ? nodo.NTir : riga == 39 ? nodo.NumSoll : nodo.NumNodiStr;
      EXPECT_EQ(conta, riga == 15 ? c.NTir : riga == 39 ? c.NumSoll : c.NumNodiStr) << dove;
      // A count of 0 shifts what follows; behind the last one there is only the method, a text.
      if (c.fallito || riga == 56) {
        EXPECT_EQ(passi.fallito, c.fallito) << dove;
      }
    }
}

// Values beyond the bound are consumed, so that what follows keeps its place.
TEST_F(LayoutNodo, ValoriOltreIlLimiteScartati) {
  Righe r = RigheModello();
  r[15] = " 10 ";
  const Righe dodici(12, " 1 ");
  r.insert(r.begin() + 24, dodici.begin(), dodici.end());  // pairs 5 to 10
  Leggi(Unisci(r));
  EXPECT_TRUE(passi.fallito);
  EXPECT_EQ(nodo.NTir, 8);
  EXPECT_EQ(scambio.TfZ[8], 1);
  EXPECT_EQ(nodo.TfR, 70);
  EXPECT_EQ(nodo.TfDistBordo, 200);

  r = RigheModello();
  r[56] = " 2003 ";
  r.resize(57);
  for (int i = 1; i <= 2003; ++i) r.push_back(" " + std::to_string(i) + " ");
  r.push_back("0");
  Leggi(Unisci(r));
  EXPECT_TRUE(passi.fallito);
  EXPECT_EQ(nodo.NumNodiStr, 2000);
  EXPECT_EQ(nodo.NodiStr[2000], 2000);
  EXPECT_EQ(scambio.metodo, "0");

  r = RigheModello();
  r[39] = " 201 ";
  r.resize(40);
  for (int i = 1; i <= 201; ++i) {
    for (int k = 0; k < 7; ++k) r.push_back(" " + std::to_string(i) + " ");
    r.push_back("Soll " + std::to_string(i));
  }
  r.insert(r.end(), {" 1 ", " 5 ", "0"});
  Leggi(Unisci(r));
  EXPECT_TRUE(passi.fallito);
  EXPECT_EQ(nodo.NumSoll, 200);
  EXPECT_EQ(nodo.SollNome[200], "Soll 200");
  EXPECT_EQ(nodo.SollN[0], 0);
  EXPECT_EQ(nodo.NodiStr[1], 5);
  EXPECT_EQ(scambio.metodo, "0");
}

TEST_F(LayoutNodo, NumeroTroppoGrande) {
  Righe r = RigheModello();
  r[6] = "1E400";
  nodo.LatoZ = 3;
  Leggi(Unisci(r));
  EXPECT_TRUE(passi.fallito);
  EXPECT_EQ(nodo.LatoZ, 3) << "the variable keeps its value";
  EXPECT_EQ(nodo.LatoY, 500.25) << "the text was consumed";
}

// Random bytes in a good file, and random files: nothing outside the arrays is touched (the sanitizers look on), and the
// counts stay within their bounds.
TEST_F(LayoutNodo, ByteCambiati) {
  std::mt19937 caso(20080114);  // fixed: the same files every time
  const std::string_view CARATTERI = "0123456789-,\"\r\n eE.";
  Modello();
  const std::string buono = ComponiNodo();
  for (int prova = 0; prova < 4000; ++prova) {
    std::string byte = buono;
    for (int k = 0; k < 1 + prova % 5; ++k)
      byte[caso() % byte.size()] = prova % 2 ? static_cast<char>(caso() % 256) : CARATTERI[caso() % CARATTERI.size()];
    if (prova % 16 == 15) byte.resize(caso() % byte.size());
    Leggi(byte);
    ASSERT_GE(nodo.NTir, 0);
    ASSERT_LE(nodo.NTir, MaxTir);
    ASSERT_GE(nodo.NumSoll, 0);
    ASSERT_LE(nodo.NumSoll, MaxSoll);
    ASSERT_GE(nodo.NumNodiStr, 0);
    ASSERT_LE(nodo.NumNodiStr, MaxNodiStr);
  }
  std::string rumore(200000, '\0');
  for (char& c : rumore) c = static_cast<char>(caso() % 256);
  Leggi(rumore);
  Leggi(std::string(3 << 20, 'x'));  // one line of 3 MiB
  EXPECT_TRUE(passi.fallito);
}
