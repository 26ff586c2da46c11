// test_rilettura_disegno.cpp - whole sheets read back from their files by a reader of their own, against the store.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "core/aritmetica.h"
#include "corredo/nodo_disegno.h"
#include "corredo/registratore.h"
#include "drawing/formats/formati.h"
#include "drawing/formats/grb_edizione.h"
#include "drawing/formats/grb_stili.h"
#include "drawing/formats/scrittori.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

// The lines of a file, and the numbers of a line.
struct Lettore {
  std::vector<std::string> righe;
  std::size_t n = 0;
  explicit Lettore(const std::string& byte) {
    for (std::size_t i = 0; i < byte.size();) {
      const std::size_t fine = byte.find("\r\n", i);
      righe.push_back(byte.substr(i, fine - i));
      i = fine + 2;
    }
  }
  std::string Riga() { return n < righe.size() ? righe[n++] : "(fine)"; }
  std::vector<double> Numeri() {
    std::istringstream f(Riga());
    std::vector<double> v;
    for (std::string t; f >> t;) v.push_back(std::stod(t));
    return v;
  }
  int Intero() { return static_cast<int>(Numeri().at(0)); }
};

void Uguali(const std::vector<double>& letti, const std::vector<double>& scritti) {
  ASSERT_EQ(letti.size(), scritti.size());
  for (std::size_t i = 0; i < letti.size(); ++i) ASSERT_NEAR(letti[i], scritti[i], 1e-14 * std::abs(scritti[i]));
}

struct Caso {
  int schema, tipoNodo, tipoTirafondo, saldInt;
};

class Rilettura : public ::testing::TestWithParam<Caso> {
 protected:
  std::string cartella;
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    cartella = CartellaProva("rilettura");
    NodoDiProva();
    OpzioniDiProva();
    const Caso c = GetParam();
    nodo.OptionNTir = c.schema;
    nodo.NTir = static_cast<std::int16_t>(c.schema == 0 ? 4 : c.schema == 1 ? 8 : 6);
    nodo.TipoNodo = static_cast<std::int16_t>(c.tipoNodo);
    nodo.TipoTirafondo = static_cast<std::int16_t>(c.tipoTirafondo);
    nodo.SaldInt = static_cast<std::int16_t>(c.saldInt);
    suite.ParNodo[25] = suite.ParNodo[26] = suite.ParNodo[27] = 1;
    suite.ParNodo[19] = 1.5;
    stiliGrb.NumStili = 1;
    stiliGrb.AltStile[1] = 25;
    stiliGrb.LargStile[1] = 18;
  }
};

TEST_P(Rilettura, Dis) {
  ASSERT_TRUE(EsportaDisegno(cartella + "\\f.dis", 1, "DIS"));
  const Disegno& d = disegno;
  Lettore f(LeggiByte(cartella + "/f.dis"));
  EXPECT_EQ(f.Riga(), "                   4");
  Uguali(f.Numeri(), {d.EstXMin, d.EstXMax});
  Uguali(f.Numeri(), {d.EstYMin, d.EstYMax});
  f.Riga();
  ASSERT_EQ(f.Intero(), d.NumCoord);
  for (int i = 0; i < d.NumCoord; ++i) Uguali(f.Numeri(), {d.CoordX[i], d.CoordY[i], 0});
  ASSERT_EQ(f.Intero(), 0);
  ASSERT_EQ(f.Intero(), d.NumLinee);
  for (int i = 0; i < d.NumLinee; ++i) {
    ASSERT_TRUE(d.LinIni[i] < d.NumCoord && d.LinFin[i] < d.NumCoord);
    Uguali(f.Numeri(), {1.0 * d.LinIni[i], 1.0 * d.LinFin[i], 1.0 * d.LinCol[i], 1.0 * d.LinTipo[i]});
  }
  ASSERT_EQ(f.Intero(), d.NumTesti);
  for (int i = 0; i < d.NumTesti; ++i) {
    Uguali(f.Numeri(), {1.0 * d.TesPos[i], 1, 1.0 * d.TesAng[i]});
    Uguali(f.Numeri(), {d.TesLarg[i] / 10.0, d.TesAlt[i] / 10.0, 1.0 * d.TesCol[i]});
    EXPECT_EQ(f.Riga(), d.TesStr[static_cast<std::size_t>(i)]);
  }
  ASSERT_EQ(f.Intero(), d.NumArchi);
  for (int i = 0; i < d.NumArchi; ++i) {
    Uguali(f.Numeri(), {1.0 * d.ArcCen[i], 1.0 * d.ArcIni[i], 1.0 * d.ArcCen2[i], 1.0 * d.ArcFin[i]});
    Uguali(f.Numeri(), {1.0 * d.ArcCol[i], 0});
  }
  EXPECT_EQ(f.n, f.righe.size());
}

TEST_P(Rilettura, Grb) {
  ASSERT_TRUE(EsportaGrb(cartella + "\\f.grb", 1));
  const Disegno& d = disegno;
  Lettore f(LeggiByte(cartella + "/f.grb"));
  for (int i = 0; i < 10; ++i) f.Riga();
  ASSERT_EQ(f.Intero(), d.NumCoord);
  for (int i = 0; i < d.NumCoord; ++i) Uguali(f.Numeri(), {d.CoordX[i], d.CoordY[i]});
  EXPECT_EQ(f.Riga(), "0");
  ASSERT_EQ(f.Intero(), d.NumLinee);
  for (int i = 0; i < d.NumLinee; ++i) {
    Uguali(f.Numeri(), {1.0 * d.LinIni[i], 1.0 * d.LinFin[i]});
    Uguali(f.Numeri(), {1.0 * d.LinCol[i], 1.0 * d.LinTipo[i], 0});
  }
  ASSERT_EQ(f.Intero(), d.NumArchi);
  f.n += static_cast<std::size_t>(2 * d.NumArchi);
  ASSERT_EQ(f.Intero(), d.NumTesti);
  f.n += static_cast<std::size_t>(2 * d.NumTesti) + 2;
  ASSERT_EQ(f.Intero(), d.NumQuote);
  for (int i = 0; i < d.NumQuote; ++i) {
    EXPECT_EQ(f.Riga().size(), 80u);
    Uguali(f.Numeri(), {0, 0, 0});
    EXPECT_EQ(f.Riga(), TESTO_QUOTA_GRB);
  }
  EXPECT_EQ(f.Riga(), " 0 ");
  EXPECT_EQ(f.n, f.righe.size());
}

// Codes and values in pairs; every entity in the order of the store, its points to 15 digits.
TEST_P(Rilettura, Dxf) {
  ASSERT_TRUE(EsportaDisegno(cartella + "\\f.dxf", 1, "DXF"));
  const Disegno& d = disegno;
  Lettore f(LeggiByte(cartella + "/f.dxf"));
  while (f.Riga() != "ENTITIES") ASSERT_LT(f.n, f.righe.size());
  const auto codice = [&](const char* c) {
    EXPECT_EQ(f.Riga(), c);
    return f.Riga();
  };
  const auto punto = [&](const char* cx, const char* cy, int i) {
    EXPECT_NEAR(std::stod(codice(cx)), d.CoordX[i], 1e-14 * std::abs(d.CoordX[i]));
    EXPECT_NEAR(std::stod(codice(cy)), d.CoordY[i], 1e-14 * std::abs(d.CoordY[i]));
  };
  const auto salta = [&] {
    while (f.n < f.righe.size() && f.righe[f.n] != " 0") f.n += 2;
  };
  for (int i = 0; i < d.NumLinee; ++i) {
    ASSERT_EQ(codice(" 0"), "LINE");
    codice(" 8");
    punto(" 10", " 20", d.LinIni[i]);
    codice(" 30");
    punto(" 11", " 21", d.LinFin[i]);
    salta();
  }
  for (int i = 0; i < d.NumTesti; ++i) {
    ASSERT_EQ(codice(" 0"), "TEXT");
    codice(" 8");
    punto(" 10", " 20", d.TesPos[i]);
    salta();
  }
  for (int i = 0; i < d.NumArchi; ++i) {
    ASSERT_EQ(codice(" 0"), d.ArcIni[i] == d.ArcFin[i] ? "CIRCLE" : "ARC");
    codice(" 8");
    punto(" 10", " 20", d.ArcCen[i]);
    salta();
  }
  EXPECT_EQ(codice(" 0"), "ENDSEC");
  EXPECT_EQ(codice(" 0"), "EOF");
  EXPECT_EQ(f.n, f.righe.size());
}

INSTANTIATE_TEST_SUITE_P(Nodi, Rilettura,
                         ::testing::Values(Caso{0, 1, 0, 0}, Caso{1, 2, 1, 1}, Caso{2, 2, 0, 0}, Caso{3, 1, 1, 0}, Caso{1, 1, 2, 0},
                                           Caso{3, 2, 0, 1}));

}  // namespace
