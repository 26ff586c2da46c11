// Written and read numbers, roundings. Second method for the digits: the C library's %.14e, laid out anew.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

#include "core/aritmetica.h"
#include "core/numeri.h"

namespace {

std::string NumeroRelazione(double v, char segno) {
  char a[32];
  return std::string(a, static_cast<std::size_t>(ScriviNumero(v, a, segno, true)));
}

std::string PianoDaPrintf(double v) {
  if (v == 0) return "0";
  char a[64];
  std::snprintf(a, sizeof a, "%.14e", std::fabs(v));
  std::string cifre(1, a[0]);
  const char* e = std::strchr(a, 'e');
  cifre.append(a + 2, static_cast<std::size_t>(e - a - 2));
  const int esp = std::atoi(e + 1);
  while (cifre.size() > 1 && cifre.back() == '0') cifre.pop_back();
  std::string t;
  if (esp < -4 || esp >= 15) {
    t = cifre.substr(0, 1) + (cifre.size() > 1 ? "." + cifre.substr(1) : "");
    std::snprintf(a, sizeof a, "E%+03d", esp);
    t += a;
  } else if (esp < 0) {
    t = "." + std::string(static_cast<std::size_t>(-esp - 1), '0') + cifre;
  } else {
    while (cifre.size() < static_cast<std::size_t>(esp) + 1) cifre += '0';
    t = cifre.substr(0, static_cast<std::size_t>(esp) + 1);
    if (cifre.size() > t.size()) t += "." + cifre.substr(t.size());
  }
  return (v < 0 ? "-" : "") + t;
}

}  // namespace

TEST(Numeri, FormaPiana) {
  EXPECT_EQ(NumeroPiano(120), "120");
  EXPECT_EQ(NumeroPiano(.5), ".5");
  EXPECT_EQ(NumeroPiano(-3.25), "-3.25");
  EXPECT_EQ(NumeroPiano(-.5), "-.5");
  EXPECT_EQ(NumeroPiano(0.1 + 0.2), ".3");  // 17 digits would show .30000000000000004
  EXPECT_EQ(NumeroPiano(1.0 / 3), ".333333333333333");
  EXPECT_EQ(NumeroPiano(2.0 / 3), ".666666666666667");
  EXPECT_EQ(NumeroPiano(-0.0), "0");
}

TEST(Numeri, EsponenteSottoUnDecimillesimoEDaUnMilioneDiMiliardi) {
  EXPECT_EQ(NumeroPiano(0.0001), ".0001");
  EXPECT_EQ(NumeroPiano(0.00009), "9E-05");
  EXPECT_EQ(NumeroPiano(0.0000999999), "9.99999E-05");
  EXPECT_EQ(NumeroPiano(999999999999999.0), "999999999999999");
  EXPECT_EQ(NumeroPiano(1e15), "1E+15");
  EXPECT_EQ(NumeroPiano(-1.5e20), "-1.5E+20");
  EXPECT_EQ(NumeroPiano(1e20), "1E+20");
  EXPECT_EQ(NumeroPiano(1.25e-100), "1.25E-100");
  EXPECT_EQ(NumeroPiano(999999999999999.6), "1E+15");  // the 15th digit carries
}

TEST(Numeri, FormaDiFile) {
  EXPECT_EQ(NumeroFile(120), " 120 ");
  EXPECT_EQ(NumeroFile(.5), " .5 ");
  EXPECT_EQ(NumeroFile(-3.25), "-3.25 ");
  EXPECT_EQ(NumeroFile(0), " 0 ");
}

TEST(Numeri, FormaDiRelazioneColSegnoDellUtente) {
  EXPECT_EQ(NumeroRelazione(.5, ','), "0,5");
  EXPECT_EQ(NumeroRelazione(-1234.25, ','), "-1234,25");
  EXPECT_EQ(NumeroRelazione(3, ','), "3");
  EXPECT_EQ(NumeroRelazione(1.5e-7, ','), "1,5E-07");
  EXPECT_EQ(NumeroRelazione(.05, '.'), "0.05");
}

TEST(Numeri, QuindiciCifreComeIlSecondoMetodoSuUnMilioneDiValori) {
  std::mt19937_64 caso(20260101);
  std::uniform_int_distribution<std::uint64_t> bit;
  std::uniform_real_distribution<double> piccolo(-1e6, 1e6);
  for (int i = 0; i < 1000000; ++i) {
    double v = 0;
    switch (i % 6) {
      case 0: {  // any bit pattern
        const std::uint64_t b = bit(caso);
        std::memcpy(&v, &b, sizeof v);
        if (!std::isfinite(v)) v = 0;
        break;
      }
      case 1: v = piccolo(caso); break;
      case 2: v = std::nearbyint(piccolo(caso) * 100) / 100; break;
      case 3: {  // ties at the sixteenth digit, where they exist
        v = static_cast<double>(bit(caso) % 9000000000000000u + 1000000000000000u) / static_cast<double>(1u << (bit(caso) % 20));
        while (v >= 1e15) v /= 2;
        break;
      }
      case 4: {  // at most three steps from a power of ten
        v = std::pow(10, static_cast<double>(bit(caso) % 19) - 4);
        const double verso = bit(caso) % 2 == 0 ? 0 : 1e18;
        for (std::uint64_t k = bit(caso) % 4; k > 0; --k) v = std::nextafter(v, verso);
        break;
      }
      default: v = std::nearbyint(piccolo(caso)) + 0.5; break;
    }
    ASSERT_EQ(NumeroPiano(v), PianoDaPrintf(v));
  }
}

TEST(Numeri, TestaNumerica) {
  // clang-format off
  const struct { const char* testo; double valore; } CASI[] = {
      {"12", 12},     {"  12.5 mm", 12.5}, {"", 0},     {"abc", 0},  {"-.5x", -0.5}, {"+7", 7},  {"1.2.3", 1.2}, {"1e3", 1000},
      {"1E+3", 1000}, {"1e", 1},           {"1e+", 1},  {".", 0},    {"-", 0},       {"5.", 5},  {"9,81", 9},    {"nan", 0},
      {"inf", 0},     {"-inf", 0},         {"0x10", 0}, {"1 2", 1},  {"1d5", 1},     {"--5", 0}, {"105E-2", 1.05},
      {"1e-400", 0},  {"0e999999", 0},     {"\t5", 0},  {"00012", 12}};
  // clang-format on
  for (const auto& c : CASI) {
    double v = -99;
    EXPECT_TRUE(Val(c.testo, v)) << c.testo;
    EXPECT_DOUBLE_EQ(v, c.valore) << c.testo;
  }
}

TEST(Numeri, UnNumeroTroppoGrandeEUnPassoFallito) {
  double v = 7;
  EXPECT_FALSE(Val("1e400", v));
  EXPECT_FALSE(Val("-1E+309 ", v));
  EXPECT_FALSE(Val(std::string(400, '9'), v));
  EXPECT_FALSE(Val("1e99999999999999999999", v));
  EXPECT_EQ(v, 7);
}

TEST(Numeri, ValoreSecondoLaLocalita) {
  double v = 0;
  EXPECT_TRUE(ValLocale("1.05", '.', v));
  EXPECT_EQ(v, 1.05);
  EXPECT_TRUE(ValLocale("1,05", '.', v));  // the comma is the thousands mark there
  EXPECT_EQ(v, 105);
  EXPECT_TRUE(ValLocale("1,05", ',', v));
  EXPECT_EQ(v, 1.05);
  EXPECT_TRUE(ValLocale("1.05", ',', v));
  EXPECT_EQ(v, 105);
  EXPECT_TRUE(ValLocale("105E-2", ',', v));
  EXPECT_EQ(v, 1.05);
}

TEST(Numeri, SenzaNumeroIlValoreLocaleResta) {
  double v = 7;
  for (const char* t : {"", "abc", "-", ".", "--5", "+-5", "..5", "nan"}) EXPECT_FALSE(ValLocale(t, '.', v)) << t;
  EXPECT_FALSE(ValLocale("1e400", '.', v));
  EXPECT_EQ(v, 7);
}

TEST(Numeri, InteriConParitaAlPariEIntervallo) {
  std::int16_t n = 5;
  EXPECT_TRUE(InIntero(2.5, n));
  EXPECT_EQ(n, 2);
  EXPECT_TRUE(InIntero(3.5, n));
  EXPECT_EQ(n, 4);
  EXPECT_TRUE(InIntero(-32768.4, n));
  EXPECT_EQ(n, -32768);
  EXPECT_TRUE(InIntero(32767.4, n));
  EXPECT_EQ(n, 32767);
  EXPECT_FALSE(InIntero(32767.5, n));  // ties to even: 32768
  EXPECT_FALSE(InIntero(1e30, n));
  EXPECT_EQ(n, 32767);
  std::int32_t g = 0;
  EXPECT_TRUE(InIntero(2147483647.0, g));
  EXPECT_FALSE(InIntero(2147483648.0, g));
}

TEST(Numeri, Arrotondamenti) {
  EXPECT_EQ(ArrotondaPari(2.5, 0), 2);
  EXPECT_EQ(ArrotondaPari(3.5, 0), 4);
  EXPECT_EQ(ArrotondaPari(12.50, 2), 12.5);
  EXPECT_EQ(ArrotondaPari(0.125, 2), 0.12);  // 12.5 is a tie
  EXPECT_EQ(ArrotondaPari(0.375, 2), 0.38);
  EXPECT_EQ(ArrotondaPari(27.5, -3), 28);               // fewer than no decimals counts as none
  EXPECT_EQ(NumeroPiano(ArrotondaPari(-0.3, 0)), "0");  // negative zero is 0
  EXPECT_EQ(Arrotonda1(-0.25), -0.2);
  EXPECT_EQ(Arrotonda1(0.25), 0.3);
  EXPECT_EQ(Arrotonda2(1.004), 1.0);
  EXPECT_EQ(Arrotonda2(1.006), 1.01);
  EXPECT_EQ(MaxDi(2, 2), 2);
  EXPECT_EQ(MaxDi(1, 2), 2);
  EXPECT_EQ(MinDi(1, 2), 1);
  EXPECT_EQ(MinDi(2, 1), 1);
}

TEST(Numeri, UnNumeroNonFinitoEUnFault) {
  for (const double v : {HUGE_VAL, -HUGE_VAL, std::nan("")}) {
    AzzeraFault();
    EXPECT_EQ(NumeroPiano(v), "0");
    EXPECT_TRUE(FaultAritmetico());
    EXPECT_EQ(NumeroFile(v), " 0 ");
  }
  AzzeraFault();
}

TEST(Numeri, ScrivereELeggereNonAlzaFault) {
  AzzeraFault();
  double v = 0;
  NumeroPiano(1e308);
  NumeroPiano(5e-324);
  Val("1e400", v);
  Val("1e-400", v);
  EXPECT_FALSE(FaultAritmetico());
}
