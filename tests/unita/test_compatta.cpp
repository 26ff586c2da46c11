// test_compatta.cpp - the five passes of the clean-up: edge cases by hand, and random stores against the loops written out.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>

#include "corredo/registratore.h"
#include "drawing/disegno.h"
#include "drawing/formats/scrittori.h"

namespace {

int Coord(double x, double y) {  // appended without a look-up
  disegno.CoordX[disegno.NumCoord] = x;
  disegno.CoordY[disegno.NumCoord] = y;
  return disegno.NumCoord++;
}

void LineaTra(int a, int b, int colore, int tipo) {
  Disegno& d = disegno;
  d.LinIni[d.NumLinee] = a;
  d.LinFin[d.NumLinee] = b;
  d.LinCol[d.NumLinee] = static_cast<std::int16_t>(colore);
  d.LinTipo[d.NumLinee++] = static_cast<std::int16_t>(tipo);
}

void Linea(double x1, double y1, double x2, double y2, int colore, int tipo) {
  const int a = Coord(x1, y1), b = Coord(x2, y2);
  LineaTra(a, b, colore, tipo);
}

void Arco(int cen, int ini, int cen2, int fin, int colore = 1, int tipo = 0) {
  Disegno& d = disegno;
  d.ArcCen[d.NumArchi] = cen;
  d.ArcIni[d.NumArchi] = ini;
  d.ArcCen2[d.NumArchi] = cen2;
  d.ArcFin[d.NumArchi] = fin;
  d.ArcCol[d.NumArchi] = static_cast<std::int16_t>(colore);
  d.ArcTipo[d.NumArchi++] = static_cast<std::int16_t>(tipo);
}

void Testo(int pos, int larghezza, int altezza, const std::string& t) {
  Disegno& d = disegno;
  d.TesPos[d.NumTesti] = pos;
  d.TesLarg[d.NumTesti] = static_cast<std::int16_t>(larghezza);
  d.TesAlt[d.NumTesti] = static_cast<std::int16_t>(altezza);
  d.TesAng[d.NumTesti] = static_cast<std::int16_t>(d.NumTesti % 180);
  d.TesStr.resize(static_cast<std::size_t>(d.NumTesti) + 1);
  d.TesStr[static_cast<std::size_t>(d.NumTesti++)] = t;
}

class Compatta : public ::testing::Test {
 protected:
  void SetUp() override { MontaRegistratore(); }
};

TEST_F(Compatta, NascostaSottoContinua) {
  Linea(0, 0, 10, 0, 1, 0);
  Linea(2, 0, 8, 0, 2, 4);
  CompattaDisegno();
  ASSERT_EQ(disegno.NumLinee, 1);
  EXPECT_EQ(disegno.LinTipo[0], 0);
  EXPECT_EQ(disegno.NumCoord, 2);
}

// 0.00004 mm beyond the end make the way over it 0.00008 longer, 0.00006 make 0.00012. An axis counts as a hidden line does.
TEST_F(Compatta, ToleranzaDelCoperto) {
  Linea(0, 0, 10, 0, 1, 0);
  Linea(2, 0, 10.00004, 0, 2, 1);
  Linea(2, 0, 8, 0, 4, 0);
  Linea(0, 50, 10, 50, 1, 0);
  Linea(2, 50, 10.00006, 50, 3, 1);
  Linea(-0.00004, 0, 5, 0, 5, 4);  // and before its beginning
  CompattaDisegno();
  ASSERT_EQ(disegno.NumLinee, 4);
  EXPECT_EQ(disegno.LinCol[1], 4);
  EXPECT_EQ(disegno.LinCol[3], 3);
  EXPECT_EQ(disegno.LinTipo[3], 1);
}

TEST_F(Compatta, ContinuaSopraNascostaAncheSeVieneDopo) {
  Linea(0, 0, 10, 0, 2, 4);
  Linea(0, 0, 10, 0, 1, 0);
  CompattaDisegno();
  ASSERT_EQ(disegno.NumLinee, 1);
  EXPECT_EQ(disegno.LinTipo[0], 0);
}

TEST_F(Compatta, DoppieContinueRestano) {
  Linea(0, 0, 10, 0, 1, 0);
  Linea(0, 0, 10, 0, 1, 0);
  CompattaDisegno();
  EXPECT_EQ(disegno.NumLinee, 2);
  EXPECT_EQ(disegno.NumCoord, 2);
}

// Of two equal hidden lines the first goes, covered by the second; the second then has nothing over it.
TEST_F(Compatta, DiDueNascosteUgualiRestaLaSeconda) {
  Linea(0, 0, 10, 0, 2, 4);
  Linea(0, 0, 10, 0, 3, 1);
  CompattaDisegno();
  ASSERT_EQ(disegno.NumLinee, 1);
  EXPECT_EQ(disegno.LinCol[0], 3);
}

TEST_F(Compatta, SporgenteOFuoriLineaRestano) {
  Linea(0, 0, 10, 0, 1, 0);
  Linea(2, 0, 11, 0, 2, 4);     // sticks out
  Linea(2, 0.1, 8, 0.1, 2, 4);  // beside: the way over it is longer by some 2 h h / L = 0.002 and more
  CompattaDisegno();
  EXPECT_EQ(disegno.NumLinee, 3);
}

// One end on the other line is not enough, whichever it is.
TEST_F(Compatta, UnCapoSoloNonBasta) {
  Linea(0, 0, 10, 0, 1, 0);
  Linea(5, 0, 5, 1, 2, 4);      // the first end lies on it
  Linea(5.2, 1, 5.2, 0, 2, 4);  // the second
  CompattaDisegno();
  EXPECT_EQ(disegno.NumLinee, 3);
}

// A point 0.15 mm beside the middle of 1000 mm makes the way longer by 0.000045 only: covered, also across a border of the grid
// (four cells of 250 mm a side).
TEST_F(Compatta, AccantoAUnaLineaLunga) {
  Linea(0, 0, 1000, 1000, 1, 0);
  Linea(0, 249.9, 1000, 249.9, 1, 0);
  Linea(500, 250.05, 510, 250.05, 2, 4);
  Linea(249.9, 0, 249.9, 1000, 1, 0);
  Linea(250.05, 510, 250.05, 500, 2, 4);
  CompattaDisegno();
  EXPECT_EQ(disegno.NumLinee, 3);
}

TEST_F(Compatta, ColoreZeroNonSiToccaENegativoVia) {
  Linea(0, 0, 10, 0, 1, 0);
  Linea(2, 0, 8, 0, 0, 4);  // colour not positive: stays
  Linea(50, 0, 58, 0, -1, 0);
  Linea(60, 0, 68, 0, 1, -1);
  CompattaDisegno();
  ASSERT_EQ(disegno.NumLinee, 2);
  EXPECT_EQ(disegno.LinCol[1], 0);
}

TEST_F(Compatta, ArchiDoppi) {
  for (int i = 0; i < 4; ++i) Coord(i * 10, 0);
  Arco(0, 1, 0, 2, 3);
  Arco(0, 1, 0, 3, 3);
  Arco(0, 1, 0, 2, 4);
  Arco(0, 1, 0, 2, 3);
  Arco(0, 1, 0, 2, 3, 1);
  Arco(0, 1, 0, 3, 3);
  CompattaDisegno();
  ASSERT_EQ(disegno.NumArchi, 4);
  EXPECT_EQ(disegno.ArcFin[1], 3);
  EXPECT_EQ(disegno.ArcCol[2], 4);
  EXPECT_EQ(disegno.ArcTipo[3], 1);
}

// Any one reference that differs keeps the arc; those that agree only after the merging of coordinates stay two.
TEST_F(Compatta, ArchiConUnRiferimentoDiverso) {
  for (int i = 0; i < 4; ++i) Coord(i * 10, 0);
  Coord(10, 0);
  Arco(0, 1, 0, 2);
  Arco(3, 1, 0, 2);
  Arco(0, 3, 0, 2);
  Arco(0, 1, 3, 2);
  Arco(0, 4, 0, 2);
  CompattaDisegno();
  ASSERT_EQ(disegno.NumArchi, 5);
  EXPECT_EQ(disegno.ArcIni[4], 1);
}

TEST_F(Compatta, TestiVuoti) {
  for (int i = 0; i < 4; ++i) Coord(i * 10, 0);
  Testo(0, 0, 10, "a");
  Testo(1, 12, 14, "b");
  Testo(2, 10, 0, "c");
  Testo(3, -5, 10, "d");
  Testo(1, 1, 1, "e");  // a tenth is a size
  disegno.TesCol[1] = 5;
  disegno.TesAllin[1] = 2;
  CompattaDisegno();
  ASSERT_EQ(disegno.NumTesti, 2);
  EXPECT_EQ(disegno.TesStr[0], "b");
  EXPECT_EQ(disegno.TesLarg[0], 12);
  EXPECT_EQ(disegno.TesAlt[0], 14);
  EXPECT_EQ(disegno.TesAng[0], 1);
  EXPECT_EQ(disegno.TesCol[0], 5);
  EXPECT_EQ(disegno.TesAllin[0], 2);
  EXPECT_EQ(disegno.TesStr[1], "e");
  EXPECT_EQ(disegno.TesPos[0], 0);
  EXPECT_EQ(disegno.NumCoord, 1);
  EXPECT_EQ(disegno.CoordX[0], 10);
}

TEST_F(Compatta, CoordinateVicineLontaneNellaTabella) {
  Linea(5, 5, 100, 0, 1, 0);
  for (int i = 0; i < 40; ++i) Linea(i, 1000, i, 2000, 1, 0);
  Linea(5.00009, 5, 200, 0, 1, 0);
  CompattaDisegno();
  EXPECT_EQ(disegno.LinIni[0], disegno.LinIni[41]);
  EXPECT_EQ(disegno.CoordX[disegno.LinIni[41]], 5);
}

// Centres, both, starts and places of texts go to the first of the near coordinates; what nothing refers to any more is removed.
TEST_F(Compatta, UnioneDiArchiETesti) {
  Coord(0, 0);
  Coord(5, 0);
  const int centro = Coord(0, 0.00009), inizio = Coord(5, 0.00009);
  Arco(0, 1, 0, 1, 2);
  Arco(centro, inizio, centro, 1, 3);
  Testo(inizio, 10, 10, "a");
  CompattaDisegno();
  ASSERT_EQ(disegno.NumArchi, 2);
  EXPECT_EQ(disegno.ArcCen[1], 0);
  EXPECT_EQ(disegno.ArcIni[1], 1);
  EXPECT_EQ(disegno.ArcCen2[1], 0);
  EXPECT_EQ(disegno.TesPos[0], 1);
  EXPECT_EQ(disegno.NumCoord, 2);
}

TEST_F(Compatta, LEstremoDellArcoTieneIlSuo) {
  const int a = Coord(10, 0), centro = Coord(0, 0), b = Coord(10.00005, 0);
  Coord(777, 777);
  LineaTra(a, centro, 1, 0);
  Arco(centro, b, centro, b);
  CompattaDisegno();
  EXPECT_EQ(disegno.ArcIni[0], 0);
  EXPECT_EQ(disegno.ArcFin[0], 2);  // its coordinate stays in the file
  EXPECT_EQ(disegno.NumCoord, 3);
  EXPECT_EQ(disegno.CoordX[2], 10.00005);
}

// 0.00008 apart each: the second goes to the first, the third only to the second, which is its own smallest neighbour.
TEST_F(Compatta, UnioneSenzaCatene) {
  const int a = Coord(0, 0), b = Coord(0.00008, 0), c = Coord(0.00016, 0), z = Coord(50, 0);
  LineaTra(a, z, 1, 0);
  LineaTra(b, z, 1, 0);
  LineaTra(c, z, 1, 0);
  CompattaDisegno();
  EXPECT_EQ(disegno.LinIni[0], disegno.LinIni[1]);
  EXPECT_NE(disegno.LinIni[2], disegno.LinIni[1]);
  EXPECT_EQ(disegno.CoordX[disegno.LinIni[2]], 0.00008);
}

// At the tolerance, on either axis, they stay two.
TEST_F(Compatta, UnioneSottoLaTolleranza) {
  const int a = Coord(0, 0), x = Coord(0.0001, 0), y = Coord(0, 0.0001), z = Coord(50, 0);
  for (const int i : {a, x, y}) LineaTra(i, z, 1, 0);
  CompattaDisegno();
  EXPECT_EQ(disegno.NumCoord, 4);
  EXPECT_EQ(disegno.LinIni[1], 1);
  EXPECT_EQ(disegno.LinIni[2], 2);
}

// Each of an arc's four references keeps its coordinate.
TEST_F(Compatta, QuattroRiferimentiDegliArchi) {
  Coord(900, 900);
  for (int i = 0; i < 4; ++i) Coord(10 * i, 0);
  Arco(1, 2, 3, 4);
  CompattaDisegno();
  ASSERT_EQ(disegno.NumCoord, 4);
  EXPECT_EQ(disegno.ArcCen[0], 0);
  EXPECT_EQ(disegno.ArcIni[0], 1);
  EXPECT_EQ(disegno.ArcCen2[0], 2);
  EXPECT_EQ(disegno.ArcFin[0], 3);
}

TEST_F(Compatta, Vuoto) {
  CompattaDisegno();
  EXPECT_EQ(disegno.NumCoord, 0);
}

// ---- the loops as they are told, on the store itself ----

double Dist(int a, int b) {
  const Disegno& d = disegno;
  return std::sqrt((d.CoordX[a] - d.CoordX[b]) * (d.CoordX[a] - d.CoordX[b]) + (d.CoordY[a] - d.CoordY[b]) * (d.CoordY[a] - d.CoordY[b]));
}

bool Giace(int p, int j) {
  return Dist(p, disegno.LinIni[j]) + Dist(p, disegno.LinFin[j]) - Dist(disegno.LinIni[j], disegno.LinFin[j]) < 0.0001;
}

void Passo1() {
  Disegno& d = disegno;
  for (int i = 0; i < d.NumLinee;) {
    bool via = d.LinCol[i] < 0 || d.LinTipo[i] < 0;
    if (d.LinTipo[i] >= 1 && d.LinCol[i] > 0)
      for (int j = 0; j < d.NumLinee && !via; ++j) via = j != i && Giace(d.LinIni[i], j) && Giace(d.LinFin[i], j);
    if (!via) {
      ++i;
      continue;
    }
    --d.NumLinee;
    for (int k = i; k < d.NumLinee; ++k) {
      d.LinIni[k] = d.LinIni[k + 1];
      d.LinFin[k] = d.LinFin[k + 1];
      d.LinCol[k] = d.LinCol[k + 1];
      d.LinTipo[k] = d.LinTipo[k + 1];
    }
  }
}

bool UnArcoDoppio() {
  Disegno& d = disegno;
  for (int i = 0; i < d.NumArchi; ++i)
    for (int j = i + 1; j < d.NumArchi; ++j) {
      if (d.ArcCen[i] != d.ArcCen[j] || d.ArcIni[i] != d.ArcIni[j] || d.ArcCen2[i] != d.ArcCen2[j] || d.ArcFin[i] != d.ArcFin[j] ||
          d.ArcCol[i] != d.ArcCol[j] || d.ArcTipo[i] != d.ArcTipo[j])
        continue;
      --d.NumArchi;
      for (int k = j; k < d.NumArchi; ++k) {
        d.ArcCen[k] = d.ArcCen[k + 1];
        d.ArcIni[k] = d.ArcIni[k + 1];
        d.ArcCen2[k] = d.ArcCen2[k + 1];
        d.ArcFin[k] = d.ArcFin[k + 1];
        d.ArcCol[k] = d.ArcCol[k + 1];
        d.ArcTipo[k] = d.ArcTipo[k + 1];
      }
      return true;
    }
  return false;
}

bool UnTestoVuoto() {
  Disegno& d = disegno;
  for (int i = 0; i < d.NumTesti; ++i) {
    if (!(d.TesLarg[i] < 0.0001 || d.TesAlt[i] < 0.0001)) continue;
    --d.NumTesti;
    for (int k = i; k < d.NumTesti; ++k) {
      d.TesPos[k] = d.TesPos[k + 1];
      d.TesAng[k] = d.TesAng[k + 1];
      d.TesLarg[k] = d.TesLarg[k + 1];
      d.TesAlt[k] = d.TesAlt[k + 1];
      d.TesCol[k] = d.TesCol[k + 1];
      d.TesStr[static_cast<std::size_t>(k)] = d.TesStr[static_cast<std::size_t>(k) + 1];
    }
    return true;
  }
  return false;
}

void Passo4() {
  Disegno& d = disegno;
  const auto porta = [](std::int32_t* t, int n, int da, int a) {
    for (int k = 0; k < n; ++k)
      if (t[k] == da) t[k] = a;
  };
  for (int i = 0; i < d.NumCoord; ++i)
    for (int j = i + 1; j < d.NumCoord; ++j) {
      if (!(std::abs(d.CoordX[i] - d.CoordX[j]) < 0.0001 && std::abs(d.CoordY[i] - d.CoordY[j]) < 0.0001)) continue;
      porta(d.LinIni, d.NumLinee, j, i);
      porta(d.LinFin, d.NumLinee, j, i);
      porta(d.ArcCen, d.NumArchi, j, i);
      porta(d.ArcIni, d.NumArchi, j, i);
      porta(d.ArcCen2, d.NumArchi, j, i);
      porta(d.TesPos, d.NumTesti, j, i);
    }
}

void Passo5() {
  Disegno& d = disegno;
  // clang-format off
  struct {
    std::int32_t* t;
    int n;
  } tabelle[] = {{d.LinIni, d.NumLinee}, {d.LinFin, d.NumLinee}, {d.ArcCen, d.NumArchi}, {d.ArcIni, d.NumArchi},
                 {d.ArcCen2, d.NumArchi}, {d.ArcFin, d.NumArchi}, {d.TesPos, d.NumTesti}, {d.CerCen, d.NumCerchi}};
  // clang-format on
  for (int i = 0; i < d.NumCoord;) {
    bool usata = false;
    for (const auto& t : tabelle)
      for (int k = 0; k < t.n; ++k) usata = usata || t.t[k] == i;
    if (usata) {
      ++i;
      continue;
    }
    for (const auto& t : tabelle)
      for (int k = 0; k < t.n; ++k)
        if (t.t[k] > i) --t.t[k];
    --d.NumCoord;
    for (int k = i; k < d.NumCoord; ++k) {
      d.CoordX[k] = d.CoordX[k + 1];
      d.CoordY[k] = d.CoordY[k + 1];
    }
  }
}

void CompattaPerEsteso() {
  Passo1();
  while (UnArcoDoppio()) {
  }
  while (UnTestoVuoto()) {
  }
  Passo4();
  Passo5();
}

void ConfrontaCon(const Disegno& a) {
  const Disegno& d = disegno;
  ASSERT_EQ(d.NumCoord, a.NumCoord);
  ASSERT_EQ(d.NumLinee, a.NumLinee);
  ASSERT_EQ(d.NumArchi, a.NumArchi);
  ASSERT_EQ(d.NumTesti, a.NumTesti);
  for (int i = 0; i < d.NumCoord; ++i) ASSERT_TRUE(d.CoordX[i] == a.CoordX[i] && d.CoordY[i] == a.CoordY[i]) << i;
  for (int i = 0; i < d.NumLinee; ++i)
    ASSERT_TRUE(d.LinIni[i] == a.LinIni[i] && d.LinFin[i] == a.LinFin[i] && d.LinCol[i] == a.LinCol[i] && d.LinTipo[i] == a.LinTipo[i])
      << i;
  for (int i = 0; i < d.NumArchi; ++i)
    ASSERT_TRUE(d.ArcCen[i] == a.ArcCen[i] && d.ArcIni[i] == a.ArcIni[i] && d.ArcCen2[i] == a.ArcCen2[i] && d.ArcFin[i] == a.ArcFin[i] &&
                d.ArcCol[i] == a.ArcCol[i] && d.ArcTipo[i] == a.ArcTipo[i])
      << i;
  for (int i = 0; i < d.NumTesti; ++i)
    ASSERT_TRUE(d.TesPos[i] == a.TesPos[i] && d.TesAng[i] == a.TesAng[i] && d.TesLarg[i] == a.TesLarg[i] && d.TesAlt[i] == a.TesAlt[i] &&
                d.TesCol[i] == a.TesCol[i] && d.TesStr[static_cast<std::size_t>(i)] == a.TesStr[static_cast<std::size_t>(i)])
      << i;
}

using Caso = std::mt19937;
int Intero(Caso& c, int da, int a) { return std::uniform_int_distribution<int>(da, a)(c); }
double Reale(Caso& c, double da, double a) { return std::uniform_real_distribution<double>(da, a)(c); }

// A store with what the passes look for: points that nearly repeat, lines on lines in all directions and sizes, double arcs.
void RiempiACaso(Caso& c, int numCoord, int numLinee, double scala) {
  AzzeraDisegno();
  for (int i = 0; i < numCoord; ++i) {
    const int come = Intero(c, 0, 5);
    if (i > 0 && come == 0) {
      const int k = Intero(c, 0, i - 1);
      Coord(disegno.CoordX[k] + Reale(c, -0.00015, 0.00015), disegno.CoordY[k] + Reale(c, -0.00015, 0.00015));
    } else if (i > 1 && come == 1) {  // on the line between two others, or just beside
      const int a = Intero(c, 0, i - 1), b = Intero(c, 0, i - 1);
      const double t = Reale(c, -0.1, 1.1), s = Intero(c, 0, 1) * Reale(c, -0.1, 0.1);
      Coord(disegno.CoordX[a] + t * (disegno.CoordX[b] - disegno.CoordX[a]) + s,
            disegno.CoordY[a] + t * (disegno.CoordY[b] - disegno.CoordY[a]));
    } else if (come <= 3) {
      Coord(Intero(c, 0, 6) * scala, Intero(c, 0, 6) * scala);
    } else {
      Coord(Reale(c, -3, 3) * scala, Reale(c, -3, 3) * scala);
    }
  }
  const auto indice = [&] { return Intero(c, 0, numCoord - 1); };
  for (int i = 0; i < numLinee; ++i) {
    const int tipi[] = {0, 0, 1, 4, 4, -1};
    LineaTra(indice(), indice(), Intero(c, -1, 7) / (Intero(c, 0, 9) ? 1 : 8) + (Intero(c, 0, 5) ? 1 : 0),
             tipi[Intero(c, 0, 4 + (Intero(c, 0, 20) == 0))]);
  }
  for (int i = 0; i < numLinee / 4; ++i) Arco(Intero(c, 0, 2), Intero(c, 3, 5), Intero(c, 0, 1), indice() % 6, Intero(c, 1, 2), 0);
  for (int i = 0; i < numLinee / 4; ++i) Testo(indice(), Intero(c, -1, 3), Intero(c, 0, 4), std::to_string(i));
}

TEST_F(Compatta, ACasoComePerEsteso) {
  const auto prima = std::make_unique<Disegno>(), atteso = std::make_unique<Disegno>();
  for (unsigned seme = 1; seme <= 120; ++seme) {
    Caso c(seme);
    const double scale[] = {0.0001, 0.01, 1, 100, 5000};
    RiempiACaso(c, Intero(c, 6, 150), Intero(c, 1, 150), scale[seme % 5]);
    *prima = disegno;
    CompattaPerEsteso();
    *atteso = disegno;
    disegno = *prima;
    CompattaDisegno();
    ConfrontaCon(*atteso);
    if (HasFatalFailure()) FAIL() << "seed " << seme;
  }
}

}  // namespace
