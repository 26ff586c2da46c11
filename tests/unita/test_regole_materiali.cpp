// Usable grades of each method, the grade that stands in, values as text.
#include <gtest/gtest.h>

#include <vector>

#include "corredo/registratore.h"
#include "materials/regole_materiali.h"

namespace {

MatAcciaio Acciaio(const std::string& nome, double SAmm, double SAmm40, double Fyk, double Fyk40, double Ftk, double Ftk40) {
  MatAcciaio m;
  m.Nome = nome;
  m.SAmm = SAmm;
  m.SAmm40 = SAmm40;
  m.Fyk = Fyk;
  m.Fyk40 = Fyk40;
  m.Ftk = Ftk;
  m.Ftk40 = Ftk40;
  return m;
}

int Alternativo(bool ta, const char* ruolo, const std::string& nome, const std::vector<MatAcciaio>& tabella) {
  return IndiceMaterialeAlternativo(ta, ruolo, nome, static_cast<int>(tabella.size()) - 1, tabella.data());
}

}  // namespace

TEST(RegoleMateriali, Valido) {
  // clang-format off
  const struct { MatAcciaio m; bool ta, profili, bulloni; } casi[] = {
      {Acciaio("", 1, 1, 1, 1, 1, 1), true, true, true},     {Acciaio("", 0, 1, 1, 1, 1, 1), false, true, true},
      {Acciaio("", 1, 0, 1, 1, 1, 1), false, true, true},    {Acciaio("", 1, 1, 0, 1, 1, 1), true, false, true},
      {Acciaio("", 1, 1, 1, 0, 1, 1), true, false, true},    {Acciaio("", 1, 1, 1, 1, 0, 1), true, true, false},
      {Acciaio("", 1, 1, 1, 1, 1, 0), true, true, false},    {Acciaio("", -1, 1, 1, -1, 1, -1), false, false, false},
  };
  // clang-format on
  for (const auto& c : casi) {
    EXPECT_EQ(MaterialeValido(true, "PROFILI", c.m), c.ta);
    EXPECT_EQ(MaterialeValido(true, "BULLONI", c.m), c.ta);
    EXPECT_EQ(MaterialeValido(false, "PROFILI", c.m), c.profili);
    EXPECT_EQ(MaterialeValido(false, "BULLONI", c.m), c.bulloni);
    for (const char* altro : {"", "profili", "PIASTRE", "PROFILI "}) {
      EXPECT_FALSE(MaterialeValido(true, altro, c.m));
      EXPECT_FALSE(MaterialeValido(false, altro, c.m));
    }
  }
}

TEST(RegoleMateriali, Alternativo) {
  const MatAcciaio vuoto;
  const std::vector<MatAcciaio> t = {vuoto, Acciaio("S 235", 0, 0, 1, 1, 1, 1), Acciaio("S 355 (FE 510)", 1, 1, 1, 1, 1, 1),
                                     Acciaio("S 355", 1, 1, 1, 1, 0, 0), Acciaio("S 355 N", 1, 1, 1, 1, 1, 1)};
  EXPECT_EQ(Alternativo(true, "PROFILI", "S 355", t), 1);             // entry 2: its name holds S 355; the same name does not count
  EXPECT_EQ(Alternativo(true, "PROFILI", "S 355 (FE 510) x", t), 1);  // held by the one asked for
  EXPECT_EQ(Alternativo(true, "PROFILI", "S 355 N", t), 2);           // entry 3 is held by it
  EXPECT_EQ(Alternativo(false, "BULLONI", "S 355 N", t), 0);          // entry 3 has no Ftk; none left
  EXPECT_EQ(Alternativo(true, "PROFILI", "S 235 W", t), 0);           // entry 1 has no value by TA: none
  EXPECT_EQ(Alternativo(false, "PROFILI", "S 235 W", t), 0);          // entry 1
  EXPECT_EQ(Alternativo(true, "PROFILI", "s 355", t), 0);             // case counts
  EXPECT_EQ(Alternativo(true, "PROFILI", "", t), 1);                  // every name holds the empty one
  EXPECT_EQ(Alternativo(true, "ALTRO", "S 355", t), 0);
  EXPECT_EQ(Alternativo(true, "PROFILI", "S 355", {vuoto}), 0);
}

TEST(RegoleMateriali, AlternativoOltreCinquantaNonSiGuarda) {
  std::vector<MatAcciaio> t(51);
  t[50] = Acciaio("S 355 (FE 510)", 1, 1, 1, 1, 1, 1);
  EXPECT_EQ(IndiceMaterialeAlternativo(true, "PROFILI", "S 355", 60, t.data()), 49);
  t[50] = MatAcciaio();
  EXPECT_EQ(IndiceMaterialeAlternativo(true, "PROFILI", "S 355", 32767, t.data()), 0);
  EXPECT_EQ(IndiceMaterialeAlternativo(true, "PROFILI", "S 355", -1, t.data()), 0);
}

TEST(RegoleMateriali, ValoreComeTesto) {
  EXPECT_EQ(ImpostaValoreMat_(-0.001, 2), "-");
  EXPECT_EQ(ImpostaValoreMat_(0, 2), "0");
  EXPECT_EQ(ImpostaValoreMat_(-0.0, 2), "0");
  EXPECT_EQ(ImpostaValoreMat_(2350, 1), "2350");
  EXPECT_EQ(ImpostaValoreMat_(2238.0952, 1), "2238.1");
  EXPECT_EQ(ImpostaValoreMat_(0.254, 2), ".25");  // plain form
  EXPECT_EQ(ImpostaValoreMat_(0.125, 2), ".12");  // ties to even
  EXPECT_EQ(ImpostaValoreMat_(0.375, 2), ".38");
  EXPECT_EQ(ImpostaValoreMat_(2.5, 0), "2");
  EXPECT_EQ(ImpostaValoreMat_(3.5, -1), "4");  // fewer than 0 decimals count as 0
}
