// The section library: eight layouts, filter, scaling, end line, single name, and the sample library against the public dimensions.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <vector>

#include "core/aritmetica.h"
#include "core/testo.h"
#include "corredo/registratore.h"
#include "link/profili.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

struct Profili : testing::Test {
  std::string file;
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    file = CartellaProva("profili") + "/prof_pro";
  }
  void TearDown() override { EXPECT_TRUE(registratore.eventi.empty()); }  // the reader shows nothing
  int Leggi(const std::string& byte, std::string_view filtro = {}, std::string_view nome = {}, double fL = 1, double fA = 1,
            int primo = 1) {
    ScriviByte(file, byte);
    return LeggiProfili(file, primo, suite.ProfiliLib, fL, fA, filtro, nome);
  }
};

// Words numbered from 1 to n, the class word `Kx` behind word `dopo`: each field then holds its word's number.
std::string Riga(const std::string& famiglia, int dopo, int n) {
  std::string t = famiglia + " 10 ";
  for (int i = 1; i <= n; ++i) t += std::to_string(i) + (i == dopo ? "\t Kx " : " ");
  return t + "99 99\r\n";
}

void Attesa(const Sezione& s, double H, double B, double A, double E, double R, double R2, double Xc, double Yc, double J2, double Jt) {
  EXPECT_EQ(s.Area, 1) << s.Nome;  // word 1 and word 2 in every layout
  EXPECT_EQ(s.J1, 2) << s.Nome;
  EXPECT_EQ(s.H, H) << s.Nome;
  EXPECT_EQ(s.B, B) << s.Nome;
  EXPECT_EQ(s.A, A) << s.Nome;
  EXPECT_EQ(s.E, E) << s.Nome;
  EXPECT_EQ(s.R, R) << s.Nome;
  EXPECT_EQ(s.R2, R2) << s.Nome;
  EXPECT_EQ(s.Xc, Xc) << s.Nome;
  EXPECT_EQ(s.Yc, Yc) << s.Nome;
  EXPECT_EQ(s.J2, J2) << s.Nome;
  EXPECT_EQ(s.Jt, Jt) << s.Nome;
  EXPECT_EQ(s.Tipo, "K") << s.Nome;
}

}  // namespace

TEST_F(Profili, OttoDisposizioni) {
  ASSERT_EQ(Leggi(Riga("INP", 13, 21) + Riga("TUBO", 8, 12) + Riga("T.QUAD", 8, 12) + Riga("LD", 8, 17) + Riga("LLU", 5, 10) +
                  Riga("LU", 8, 17) + Riga("UPN", 8, 17) + "*END*\r\n"),
            7);
  const Sezione* s = suite.ProfiliLib;
  //             H   B   A   E   R   R2  Xc  Yc  J2 Jt
  Attesa(s[1], 16, 17, 18, 19, 20, 21, 0, 0, 5, 10);   // INP
  Attesa(s[2], 0, 11, 12, 0, 0, 0, 0, 0, 4, 6);        // TUBO
  Attesa(s[3], 11, 11, 12, 0, 0, 0, 0, 0, 4, 6);       // T.QUAD: H as B
  Attesa(s[4], 11, 12, 13, 17, 16, 17, 14, 15, 4, 6);  // LD: E as R2
  Attesa(s[5], 10, 8, 9, 10, 0, 0, 0, 0, 3, 0);        // LLU: H as E
  Attesa(s[6], 17, 11, 12, 17, 16, 17, 13, 14, 4, 6);  // LU: H and E as R2
  Attesa(s[7], 11, 12, 13, 14, 16, 17, 6, 15, 4, 6);   // UPN: Xc half of B
}

TEST_F(Profili, FamiglieDelPannello) {
  const std::vector<std::string> famiglie = {"IPE", "IPEA", "IPER", "IPEO", "IPEV", "HEA", "HEAA", "HEB", "HEM",
                                             "HEC", "DIL",  "HER",  "HLAA", "HLA",  "HLB", "HLM",  "HLR", "HXAA",
                                             "HXA", "HXB",  "HXM",  "HXR",  "HD",   "HP",  "M",    "W"};
  std::string t;
  for (const std::string& f : famiglie) t += Riga(f, 13, 20);
  t += Riga("UPN", 8, 17) + Riga("INP", 13, 21) + Riga("ipe", 13, 20) + Riga("HE", 13, 20) + Riga("XYZ", 13, 20) + "*END*\r\n";
  ASSERT_EQ(Leggi(t, FILTRO_PROFILI), 26);
  for (std::size_t i = 0; i < famiglie.size(); ++i) {
    EXPECT_EQ(RifilaDestra(suite.ProfiliLib[i + 1].Nome), famiglie[i] + "10");
    Attesa(suite.ProfiliLib[i + 1], 16, 17, 18, 19, 20, 0, 0, 0, 5, 10);
  }
  EXPECT_EQ(
    std::string_view(FILTRO_PROFILI),
    " IPE  IPEA  IPER  IPEO  IPEV  HEA  HEAA  HEB  HEM  HEC  DIL  HER  HLAA  HLA  HLB  HLM  HLR  HXAA  HXA  HXB  HXM  HXR  HD  HP  M  W ");
}

TEST_F(Profili, FamigliaInteraNelFiltro) {
  const std::string t = Riga("UPN", 8, 17) + Riga("LU", 8, 17) + "*END*";
  EXPECT_EQ(Leggi(t, " XUPN  UPNX UPN"), 0);
  EXPECT_EQ(Leggi(t, " LLU  UPN "), 1);
}

TEST_F(Profili, FiltroVuotoPassaOgniFamigliaConDisposizione) {
  EXPECT_EQ(Leggi("\r\n" + Riga("XYZ", 13, 20) + Riga("UPN", 8, 17) + "   \r\n*END*\r\n"), 1);
  EXPECT_EQ(RifilaDestra(suite.ProfiliLib[1].Nome), "UPN10");
}

TEST_F(Profili, NomeUnitoELargoDiciotto) {
  ASSERT_EQ(Leggi("\tIPE \t 80 1\r\nHEA 123456789012345678 1\r\nHD\r\n*END*"), 3);
  EXPECT_EQ(suite.ProfiliLib[1].Nome, "IPE80             ");
  EXPECT_EQ(suite.ProfiliLib[2].Nome, "HEA123456789012345");
  EXPECT_EQ(suite.ProfiliLib[3].Nome, "HD                ");
  EXPECT_EQ(suite.ProfiliLib[1].Area, 1);
  EXPECT_EQ(suite.ProfiliLib[1].H, 0);  // missing words count as 0
  EXPECT_EQ(suite.ProfiliLib[1].Tipo, "");
}

TEST_F(Profili, Scale) {
  ASSERT_EQ(Leggi(Riga("IPE", 13, 20) + Riga("UPN", 8, 17) + "*END*", {}, {}, 2, 10), 2);
  const Sezione& s = suite.ProfiliLib[1];
  EXPECT_EQ(s.Area, 100);  // cm2 to mm2
  EXPECT_EQ(s.J1, 20000);  // cm4 to mm4
  EXPECT_EQ(s.J2, 50000);
  EXPECT_EQ(s.Jt, 100000);
  EXPECT_EQ(s.H, 32);
  EXPECT_EQ(s.B, 34);
  EXPECT_EQ(s.A, 36);
  EXPECT_EQ(s.E, 38);
  EXPECT_EQ(s.R, 40);
  const Sezione& u = suite.ProfiliLib[2];
  EXPECT_EQ(u.R2, 34);
  EXPECT_EQ(u.Xc, 12);  // scaled once
  EXPECT_EQ(u.Yc, 30);
  EXPECT_EQ(FATT_LUNG_PROFILI, 1);
  EXPECT_EQ(FATT_AREA_PROFILI, 10);
}

TEST_F(Profili, FineAsteriscoEPercento) {
  EXPECT_EQ(
    Leggi("*\r\n%\r\n * \r\n" + Riga("*IPE", 13, 20) + "* IPE 80 1\r\n%x\r\n" + Riga("IPE", 13, 20) + "  *END*  \r\n" + Riga("IPE", 13, 20),
          FILTRO_PROFILI),
    1);
  EXPECT_EQ(Leggi("*END*"), 0);
}

TEST_F(Profili, SenzaRigaFinaleNiente) {
  EXPECT_EQ(Leggi(Riga("IPE", 13, 20) + Riga("HEA", 13, 20)), 0);
  EXPECT_EQ(suite.ProfiliLib[1].Nome, Sezione().Nome);  // nothing is kept
  EXPECT_EQ(suite.ProfiliLib[1].H, 0);
  EXPECT_EQ(Leggi(Riga("IPE", 13, 20) + "*end*\r\n*END* x\r\n"), 0);
  EXPECT_EQ(Leggi(""), 0);
  EXPECT_EQ(LeggiProfili(file + "manca", 1, suite.ProfiliLib, 1, 1, ""), 0);
}

TEST_F(Profili, Duemila) {
  std::string t;
  for (int i = 0; i < 2500; ++i) t += "IPE " + std::to_string(i) + " 1\r\n";
  EXPECT_EQ(Leggi(t), 2000);  // full: no end line is asked for
  EXPECT_EQ(RifilaDestra(suite.ProfiliLib[2000].Nome), "IPE1999");
  EXPECT_EQ(Leggi(t, {}, {}, 1, 1, 1990), 11);
  EXPECT_EQ(RifilaDestra(suite.ProfiliLib[2000].Nome), "IPE10");
  EXPECT_EQ(RifilaDestra(suite.ProfiliLib[1990].Nome), "IPE0");
  EXPECT_EQ(Leggi(t, {}, {}, 1, 1, 0), 0);
  EXPECT_EQ(Leggi(t, {}, {}, 1, 1, 2001), 0);
}

TEST_F(Profili, UnNomeSolo) {
  const std::string t = "IPE 80 1\r\nHEA 100 2\r\nHEA 100 3\r\nUPN 80 4\r\n";
  EXPECT_EQ(Leggi(t, {}, "HEA100"), 1);  // ends at the match: no end line needed
  EXPECT_EQ(suite.ProfiliLib[1].Area, 2);
  EXPECT_EQ(Leggi(t + "*END*", FILTRO_PROFILI, "UPN80"), 0);
  for (const char* altro : {"HEA10", "HEA1000", "hea100", "HEA 100"}) EXPECT_EQ(Leggi(t + "*END*", {}, altro), 0) << altro;
  EXPECT_EQ(Leggi(t + "*END*", {}, AllineaSinistra("UPN80", LungNomeSez)), 1);
}

TEST_F(Profili, NumeriStraniNonPassano) {
  ASSERT_EQ(Leggi("IPE 80 1e400 nan 3 4 -inf\r\nIPE 90 1e308 2 \r\n*END*", {}, {}, 1, 10), 2);
  EXPECT_EQ(suite.ProfiliLib[1].Area, 0);  // overflow: the value stays
  EXPECT_EQ(suite.ProfiliLib[1].J1, 0);
  EXPECT_EQ(suite.ProfiliLib[1].J2, 0);
  EXPECT_EQ(suite.ProfiliLib[2].Area, 0);  // would overflow when scaled
  EXPECT_EQ(suite.ProfiliLib[2].J1, 20000);
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(Profili, ProfilarioDiEsempio) {
  std::ifstream tsv(QB07_RADICE "/samples/strumenti/profili.tsv");
  std::string riga;
  ASSERT_TRUE(std::getline(tsv, riga));  // column heads
  suite.DirCustom = QB07_RADICE "/samples/suite/custom";
  const int n = LeggiProfili(suite.DirCustom + FILE_PROFILARIO, 1, suite.ProfiliLib, FATT_LUNG_PROFILI, FATT_AREA_PROFILI, FILTRO_PROFILI);
  int i = 0;
  while (std::getline(tsv, riga)) {
    std::istringstream campi(riga);
    std::string famiglia, misura;
    double h, b, tw, tf, r, massa, A, Iy, iy, Wely, Wply, Iz, iz, Welz, Wplz, It;
    campi >> famiglia >> misura >> h >> b >> tw >> tf >> r >> massa >> A >> Iy >> iy >> Wely >> Wply >> Iz >> iz >> Welz >> Wplz >> It;
    ASSERT_TRUE(campi) << riga;
    ASSERT_LE(++i, n);
    const Sezione& s = suite.ProfiliLib[i];
    EXPECT_EQ(RifilaDestra(s.Nome), famiglia + misura);
    EXPECT_EQ(s.H, h) << s.Nome;
    EXPECT_EQ(s.B, b) << s.Nome;
    EXPECT_EQ(s.A, tw) << s.Nome;
    EXPECT_EQ(s.E, tf) << s.Nome;
    EXPECT_EQ(s.R, r) << s.Nome;
    EXPECT_DOUBLE_EQ(s.Area, A * 100) << s.Nome;
    EXPECT_DOUBLE_EQ(s.J1, Iy * 1e4) << s.Nome;
    EXPECT_DOUBLE_EQ(s.J2, Iz * 1e4) << s.Nome;
    EXPECT_DOUBLE_EQ(s.Jt, It * 1e4) << s.Nome;
    EXPECT_EQ(s.Tipo, "I") << s.Nome;
  }
  EXPECT_EQ(i, n);
  EXPECT_GE(n, 132);
  const Sezione& prima = suite.ProfiliLib[1];  // IPE 80, EN 10365
  EXPECT_EQ(prima.Nome, "IPE80             ");
  EXPECT_EQ(prima.H, 80);
  EXPECT_EQ(prima.B, 46);
  // Every family of the file has a layout: nothing is lost without the filter either.
  const int tutte = LeggiProfili(suite.DirCustom + FILE_PROFILARIO, 1, suite.ProfiliLib, 1, 10, "");
  EXPECT_EQ(tutte, n + 22);                         // 4 INP, 6 UPN, 4 LU, 2 LD, 4 TUBO, 2 T.QUAD
  const Sezione& ultima = suite.ProfiliLib[tutte];  // T.QUAD 120 x 6.3, EN 10210-2
  EXPECT_EQ(RifilaDestra(ultima.Nome), "T.QUAD120x6.3");
  EXPECT_EQ(ultima.H, 120);
  EXPECT_EQ(ultima.B, 120);
  EXPECT_EQ(ultima.A, 6.3);
}
