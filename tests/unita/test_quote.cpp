// test_quote.cpp - dimensions, chains, the named chains' values and weld marks, by hand.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "core/aritmetica.h"
#include "corredo/lavoro_prova.h"
#include "corredo/registratore.h"
#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/edizione_dis.h"
#include "drawing/saldature_dis.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

class Misure : public ::testing::Test {
 protected:
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    disegno.DestDis = GENDIS;
    double* p = suite.ParNodo;
    p[3] = 6;
    p[4] = 7;
    p[5] = 2;
    p[7] = 15;
    p[8] = 10;
    p[13] = 5;
    p[14] = 4;
    p[19] = 1;
    p[20] = 3;
    edizione = EdizioneDis();
  }
  void TearDown() override { AzzeraFault(); }
  void Quota(const char* testo, double x1, double x2, double y1, double y2, double distanza = 5, double scala = 1) {
    DisQuota(testo, x1, x2, y1, y2, 7, 6, 10, 15, distanza, scala);
  }
  double X(int t) { return disegno.CoordX[disegno.TesPos[t]]; }
  double Y(int t) { return disegno.CoordY[disegno.TesPos[t]]; }
};

// Length 100, text of 3 characters of 10 mm: it begins 15 left of the middle, 5 above the line.
TEST_F(Misure, Orizzontale) {
  Quota("", 100, 0, 20, 20);
  ASSERT_EQ(disegno.NumLinee, 1);
  ASSERT_EQ(disegno.NumArchi, 2);
  ASSERT_EQ(disegno.NumTesti, 1);
  EXPECT_EQ(disegno.CoordX[disegno.LinIni[0]], 0);  // ends ordered left to right
  EXPECT_EQ(disegno.CoordX[disegno.ArcIni[0]], 2);  // diameter 4
  EXPECT_EQ(disegno.ArcIni[0], disegno.ArcFin[0]);
  EXPECT_EQ(disegno.CoordX[disegno.ArcIni[1]], 102);
  EXPECT_EQ(disegno.LinCol[0], 7);
  EXPECT_EQ(disegno.ArcCol[0], 7);
  EXPECT_EQ(disegno.ArcCol[1], 7);
  EXPECT_EQ(disegno.TesCol[0], 6);
  EXPECT_EQ(disegno.TesStr[0], "100");
  EXPECT_EQ(disegno.TesAng[0], 0);
  EXPECT_DOUBLE_EQ(X(0), 35);
  EXPECT_DOUBLE_EQ(Y(0), 25);
  EXPECT_EQ(disegno.TesLarg[0], 100);
  EXPECT_EQ(disegno.TesAlt[0], 150);
}

TEST_F(Misure, VerticaleVersoLAlto) {
  Quota("", 10, 10, 100, 0);
  EXPECT_EQ(disegno.TesAng[0], 90);
  EXPECT_DOUBLE_EQ(X(0), 5);  // left of the upward direction
  EXPECT_DOUBLE_EQ(Y(0), 35);
}

// 3-4-5: length 50, angle atan(30/40) = 36.87 -> 37; text "abc" 30 wide: middle (20, 15) less 15 along (0.8, 0.6), plus 5 along (-0.6, 0.8).
TEST_F(Misure, Obliqua) {
  Quota("abc", 40, 0, 30, 0);
  EXPECT_EQ(disegno.TesAng[0], 37);
  EXPECT_DOUBLE_EQ(X(0), 20 - 12 - 3);
  EXPECT_DOUBLE_EQ(Y(0), 15 - 9 + 4);
  Quota("abc", 0, 40, 30, 0);
  EXPECT_EQ(disegno.TesAng[1], -37);
}

TEST_F(Misure, DegenereNonDisegnaNulla) {
  Quota("titolo", 5, 5.00005, 7, 7);
  DisQuota("titolo", 5, 5, 7, 7, -1, 6, 10, 15, 0, 1);  // a text alone neither
  EXPECT_EQ(disegno.NumTesti + disegno.NumLinee + disegno.NumArchi, 0);
}

// At the tolerance there is a dimension; its direction counts as vertical, downward when it does not rise.
TEST_F(Misure, AlLimiteDellaTolleranza) {
  Quota("a", 0, 0.0001, 0, 0);
  Quota("b", 0, 0, 0, 0.0001);
  ASSERT_EQ(disegno.NumTesti, 2);
  EXPECT_EQ(disegno.TesAng[0], -90);
  EXPECT_EQ(disegno.TesAng[1], 90);
}

TEST_F(Misure, SoloTesto) {
  DisQuota("SEZIONE B-B", -1, 1, 50, 50, -1, 2, 18, 25, 0, 1);
  EXPECT_EQ(disegno.NumLinee + disegno.NumArchi, 0);
  EXPECT_DOUBLE_EQ(X(0), -11 * 18 / 2.0);  // centred on 0, 11 characters
  EXPECT_DOUBLE_EQ(Y(0), 50);
}

TEST_F(Misure, ScalaInValoreAssoluto) {
  Quota("", 0, 100, 0, 0, 5, -0.25);
  EXPECT_EQ(disegno.TesStr[0], "25");
}

TEST_F(Misure, LarghezzaInCaratteri) {
  Quota("àèì", 0, 100, 0, 0);
  EXPECT_DOUBLE_EQ(X(0), 35);
}

TEST_F(Misure, FormatoMisura) {
  EXPECT_EQ(FormatoMisura(250), "250");
  EXPECT_EQ(FormatoMisura(12.37), "12.3");  // cut, not rounded
  EXPECT_EQ(FormatoMisura(12.99), "12.9");
  EXPECT_EQ(FormatoMisura(0.05), ".0");
  EXPECT_EQ(FormatoMisura(0.5), ".5");
  EXPECT_EQ(FormatoMisura(0), "0");
  EXPECT_EQ(FormatoMisura(1.25e-5), "1.2");  // the exponent goes with the rest of the text
  EXPECT_EQ(FormatoMisura(1e20), "1E+20");
  EXPECT_FALSE(FaultAritmetico());
  EXPECT_EQ(FormatoMisura(std::numeric_limits<double>::infinity()), "");
  EXPECT_TRUE(FaultAritmetico());
}

TEST_F(Misure, SpaziDeiNomi) {
  EXPECT_EQ(SenzaSpaziDoppi("  HE   200 A    "), "HE 200 A");
  EXPECT_EQ(SenzaSpaziDoppi("IPE200"), "IPE200");
  EXPECT_EQ(SenzaSpaziDoppi("    "), "");
  EXPECT_EQ(SenzaSpaziDoppi(""), "");
}

// Links of 5 mm, texts of 10: across (-5 - 15 = -20), at its side (5), across again.
TEST_F(Misure, TreViciniStretti) {
  const double a[] = {0, 0, 5, 10, 15};
  CatenaO(a, 4, 100);
  ASSERT_EQ(disegno.NumTesti, 3);
  EXPECT_DOUBLE_EQ(Y(0), 80);
  EXPECT_DOUBLE_EQ(Y(1), 105);
  EXPECT_DOUBLE_EQ(Y(2), 80);
  EXPECT_FALSE(quote.CatenaAttiva);
}

TEST_F(Misure, UgualiSaltatiLascianoLAlternanza) {
  const double a[] = {0, 0, 5, 5, 10};
  CatenaO(a, 4, 100);
  ASSERT_EQ(disegno.NumTesti, 2);
  EXPECT_DOUBLE_EQ(Y(0), 80);
  EXPECT_DOUBLE_EQ(Y(1), 105);
}

TEST_F(Misure, LargaABastanzaAzzeraLAlternanza) {
  const double a[] = {0, 0, 5, 105, 110};
  CatenaV(a, 4, 100);
  ASSERT_EQ(disegno.NumTesti, 3);
  EXPECT_DOUBLE_EQ(X(0), 120);  // vertical: across is to the right
  EXPECT_DOUBLE_EQ(X(1), 95);
  EXPECT_DOUBLE_EQ(X(2), 120);  // across again, since the wide one in between cleared it
}

// A text of 20 on a link of 20 is not too wide; the narrow link behind it is the first to go across.
TEST_F(Misure, LargoQuantoLaLineaResta) {
  const double a[] = {0, 0, 20, 25};
  CatenaO(a, 3, 100);
  ASSERT_EQ(disegno.NumTesti, 2);
  EXPECT_DOUBLE_EQ(Y(0), 105);
  EXPECT_DOUBLE_EQ(Y(1), 80);
}

// Only -1 is text alone; colour 0 arrives as 1, another negative one as it is.
TEST_F(Misure, ColoreZeroHaLaLinea) {
  DisQuota("", 0, 100, 0, 0, 0, 6, 10, 15, 5, 1);
  ASSERT_EQ(disegno.NumLinee, 1);
  EXPECT_EQ(disegno.LinCol[0], 1);
  EXPECT_EQ(disegno.NumArchi, 2);
  DisQuota("", 0, 100, 50, 50, -2, 6, 10, 15, 5, 1);
  ASSERT_EQ(disegno.NumLinee, 2);
  EXPECT_EQ(disegno.LinCol[1], -2);
}

TEST_F(Misure, FuoriCatenaIlTestoLargoResta) {
  Quota("", 0, 5, 0, 0);
  Quota("", 5, 10, 0, 0);
  EXPECT_DOUBLE_EQ(Y(0), 5);
  EXPECT_DOUBLE_EQ(Y(1), 5);
}

TEST_F(Misure, CatenaParteDallUgualeLato) {
  quote.QuotaRibaltata = true;  // left by an earlier chain
  const double a[] = {0, 0, 5};
  CatenaO(a, 2, 0);
  EXPECT_DOUBLE_EQ(Y(0), -20);
}

TEST_F(Misure, CateneDelDettaglioInScala) {
  suite.ParNodo[19] = 4;
  const double a[] = {0, 0, 400};
  CatenaOScala(a, 2, 0);
  CatenaVScala(a, 2, 0);
  CatenaO(a, 2, 0);
  EXPECT_EQ(disegno.TesStr[0], "100");
  EXPECT_EQ(disegno.TesStr[1], "100");
  EXPECT_EQ(disegno.TesStr[2], "400");
  suite.ParNodo[19] = 0;
  CatenaOScala(a, 2, 0);
  EXPECT_TRUE(FaultAritmetico());
}

// Recording edition: where each link runs.
struct Raccolta {
  std::vector<double> estremi;
  double posizione = 0;
  bool verticale = false, dettaglio = false;
};
Raccolta raccolta;

void RaccogliQuota(double x1, double x2, double y1, double y2, bool dettaglio) {
  raccolta.verticale = x1 == x2;
  raccolta.dettaglio = dettaglio;
  raccolta.posizione = raccolta.verticale ? x1 : y1;
  if (raccolta.estremi.empty()) raccolta.estremi.push_back(raccolta.verticale ? y1 : x1);
  raccolta.estremi.push_back(raccolta.verticale ? y2 : x2);
}

class Catene : public Misure {
 protected:
  void SetUp() override {
    Misure::SetUp();
    edizione.quota = RaccogliQuota;
    nodo.Sezione.H = 200;
    nodo.Sezione.B = 180;
    nodo.LatoZ = 400;
    nodo.LatoY = 500;
    nodo.SpessPiastra = 20;
    nodo.TipoNodo = 2;
    nodo.HNerv = 150;
    nodo.SpNerv = 8;
    nodo.NervTaglio = 50;
    nodo.NervZ = 30;
    nodo.NervY = 40;
    nodo.TfZ[1] = 60;
    nodo.TfZ[2] = 340;
    nodo.TfY[2] = 70;
    nodo.TfY[4] = 430;
    nodo.TfY[6] = 250;
    nodo.TfFi = 20;
    nodo.TfLFt = 120;
    nodo.TfL = 500;
    nodo.TfR = 70;
    nodo.TfL1 = 450;
    nodo.TfLF = 10;
    nodo.TfDForo = 100;
    nodo.TfHMalta = 50;
    nodo.TfLFil = 40;
    nodo.OptionNTir = 0;
    suite.ParNodo[19] = 2;
  }
  void Attesa(void (*catena)(double), bool verticale, std::vector<double> valori, bool dettaglio = false) {
    raccolta = {};
    catena(77);
    EXPECT_EQ(raccolta.estremi, valori);
    EXPECT_EQ(raccolta.posizione, 77);
    EXPECT_EQ(raccolta.verticale, verticale);
    EXPECT_EQ(raccolta.dettaglio, dettaglio);
  }
};

TEST_F(Catene, Piastra) {
  Attesa([](double x) { QuoteQuotePiastra(x, 2); }, true, {-80, -70, -20, 0, 50, 150});
  Attesa([](double x) { QuoteQuotePiastra(x, 1); }, true, {-80, -70, -20, 0, 150});
  for (const int tipo : {1, 3}) {
    nodo.TipoNodo = static_cast<std::int16_t>(tipo);
    Attesa([](double x) { QuoteQuotePiastra(x, 2); }, true, {-80, -70, -20, 0});
  }
}

TEST_F(Catene, FondazioneEMalta) {
  Attesa(QuoteFondazioneV, true, {-570, -70, 50});
  Attesa(QuoteMaltaV, true, {-350, 350});
  Attesa(QuoteMaltaO, false, {-300, 300});
}

TEST_F(Catene, TirafondiZ) {
  const std::vector<double> due = {-300, -250, -200, -140, 140, 200, 250, 300}, tre = {-300, -250, -200, -140, 0, 140, 200, 250, 300};
  const bool terzo[] = {false, true, false, true};
  for (int i = 0; i < 4; ++i) {
    nodo.OptionNTir = i;
    Attesa(QuoteTirafondiZ, false, terzo[i] ? tre : due);
  }
}

TEST_F(Catene, TirafondiY) {
  nodo.TfY[6] = 260;
  const std::vector<double> due = {-350, -300, -250, -180, 180, 250, 300, 350}, tre = {-350, -300, -250, -180, 10, 180, 250, 300, 350};
  const bool terzo[] = {false, true, true, false};
  for (int i = 0; i < 4; ++i) {
    nodo.OptionNTir = i;
    Attesa(QuoteTirafondiY, false, terzo[i] ? tre : due);
  }
}

TEST_F(Catene, Fori) {
  Attesa(QuoteForiZ, false, {-190, -90, 90, 190});
  Attesa(QuoteForiY, false, {-230, -130, 130, 230});
  nodo.TfZ[6] = nodo.TfZ[8] = 210;  // the middle hole is drawn about 0
  nodo.TfY[6] = 260;
  nodo.OptionNTir = 3;
  Attesa(QuoteForiZ, false, {-190, -90, -50, 50, 90, 190});
  Attesa(QuoteForiY, false, {-230, -130, 130, 230});
  nodo.OptionNTir = 1;
  Attesa(QuoteForiZ, false, {-190, -90, -50, 50, 90, 190});
  Attesa(QuoteForiY, false, {-230, -130, -50, 50, 130, 230});
  nodo.OptionNTir = 2;
  Attesa(QuoteForiZ, false, {-190, -90, 90, 190});
  Attesa(QuoteForiY, false, {-230, -130, -50, 50, 130, 230});
}

TEST_F(Catene, Nervature) {
  Attesa(QuoteNervY, false, {-250, -130, 130, 250});  // 100 + NervZ
  Attesa(QuoteNervZ, false, {-200, -128, -98, -90, 90, 98, 128, 200});
  Attesa(QuoteNervPianta, true, {-250, -100, -92, 92, 100, 250});
}

TEST_F(Catene, LatiESezione) {
  Attesa(QuoteLatoV, true, {-350, -250, 250, 350});
  Attesa(QuoteLatoO, false, {-300, -200, 200, 300});
  Attesa(QuoteSezV, true, {-250, -100, 100, 250});
  Attesa(QuoteSezO, false, {-200, -90, 90, 200});
}

// Rod of 620 mm about height 0, times 2: top 620, thread end 540, hook centre -480, lower end -620, hook's top -480 + 900.
TEST_F(Catene, Dettaglio) {
  Attesa(QuoteTfDxA, true, {-620, -480, 540, 620}, true);
  Attesa(QuoteTfDxB, true, {-480, 620}, true);
  Attesa(QuoteTfSx, true, {-480, 420}, true);
  Attesa(QuoteTfSu, false, {-20, 20}, true);
}

struct SegmentoAtteso {
  double x1, y1, x2, y2;
};
void Segmento(int i, SegmentoAtteso s) {
  EXPECT_NEAR(disegno.CoordX[disegno.LinIni[i]], s.x1, 1e-4) << i;
  EXPECT_NEAR(disegno.CoordY[disegno.LinIni[i]], s.y1, 1e-4) << i;
  EXPECT_NEAR(disegno.CoordX[disegno.LinFin[i]], s.x2, 1e-4) << i;
  EXPECT_NEAR(disegno.CoordY[disegno.LinFin[i]], s.y2, 1e-4) << i;
}

class Marchi : public Misure {
 protected:
  void SetUp() override {
    Misure::SetUp();
    nodo.Gola = 7;
    ris.Saldature[3].Nome = "S3";
  }
};

// Length 20, side 7: Int(2.857 + 0.5) = 3, strokes at 7 and 14, then the parallel line.
TEST_F(Marchi, TrattiInterni) {
  DisSaldatura(nullptr, 0, 0, 20, 0, 1, 2, 3);
  ASSERT_EQ(disegno.NumLinee, 3);
  Segmento(0, {7, 0, 7, 7});
  Segmento(1, {14, 0, 14, 7});
  Segmento(2, {0, 7, 20, 7});
  EXPECT_EQ(disegno.LinCol[0], 3);
  EXPECT_EQ(disegno.NumTesti, 0);  // names are off
}

TEST_F(Marchi, Tipo1HaGliEstremi) {
  DisSaldatura(nullptr, 0, 0, 20, 0, -1, 1, 3);
  ASSERT_EQ(disegno.NumLinee, 5);
  Segmento(0, {0, 0, 0, -7});
  Segmento(1, {7, 0, 7, -7});
  Segmento(3, {20, 0, 20, -7});
  Segmento(4, {0, -7, 20, -7});
}

// Directions: upward, downward, leftward, and the two oblique ones; the mark of a weld of length 0.
TEST_F(Marchi, Direzioni) {
  // clang-format off
  struct {
    double x2, y2, vx, vy;
  } casi[] = {
    {0, 10, -7, 0}, {0, -10, 7, 0}, {-10, 0, 0, -7},
    {10, 10, -7 * std::sqrt(0.5), 7 * std::sqrt(0.5)},
    // (-10, 20): 90 + atan 2 = 153.435 degrees, not 116.565: v = (-7 sin, 7 cos) = (-7 / sqrt 5, -14 / sqrt 5)
    {-10, 20, -7 / std::sqrt(5.0), -14 / std::sqrt(5.0)},
    {-10, -20, 7 / std::sqrt(5.0), -14 / std::sqrt(5.0)},
    {0, 0, 7, 0},
  };
  // clang-format on
  for (const auto& c : casi) {
    AzzeraDisegno();
    DisSaldatura(nullptr, 0, 0, c.x2, c.y2, 1, 1, 0);
    Segmento(0, {0, 0, c.vx, c.vy});
  }
}

TEST_F(Marchi, ScostamentoDelCerchioDelProgramma) {
  DisSaldatura(nullptr, 0, 0, 0, 20, 1, 2, 3);  // half of 3.141592 has a cosine of 3.268E-7
  EXPECT_NEAR(disegno.CoordX[disegno.LinIni[1]], 14 * std::cos(1.570796), 1e-15);
  EXPECT_NE(disegno.CoordX[disegno.LinIni[1]], 0);
}

// The name stands outward of the parallel line. Height 15, width 10: two characters 20 wide on a line of 100.
TEST_F(Marchi, NomeFuori) {
  // clang-format off
  struct {
    double x2, y2;
    int lato;
    double offset, x, y, angolo;
  } casi[] = {
    {100, 0, 1, 7.5, 40, 7 + 7.5, 0},
    {100, 0, -1, -22.5, 40, -7 - 22.5, 0},
    {-100, 0, 1, -22.5, -60, -7 - 22.5, 0},
    {-100, 0, -1, 7.5, -60, 7 + 7.5, 0},
    {0, 100, 1, 7.5, -7 - 7.5, 40, 90},
    {0, 100, -1, -22.5, 7 + 22.5, 40, 90},
    {0, -100, 1, -22.5, 7 + 22.5, -60, 90},
    {0, -100, -1, 7.5, -7 - 7.5, -60, 90},
  };
  // clang-format on
  quote.EtichetteSald = true;
  for (const auto& c : casi) {
    AzzeraDisegno();
    DisSaldatura(nullptr, 0, 0, c.x2, c.y2, c.lato, 2, 3);
    ASSERT_EQ(disegno.NumTesti, 1);
    EXPECT_EQ(disegno.TesStr[0], "S3");
    EXPECT_EQ(disegno.TesCol[0], 6);
    EXPECT_EQ(disegno.TesAng[0], c.angolo);
    EXPECT_EQ(quote.OffEtichSald, c.offset);
    EXPECT_NEAR(X(0), c.x, 1e-4);
    EXPECT_NEAR(Y(0), c.y, 1e-4);
  }
}

TEST_F(Marchi, GolaNullaNessunMarchio) {
  nodo.Gola = 0;
  quote.EtichetteSald = true;
  DisSaldatura(nullptr, 0, 0, 100, 0, 1, 1, 3);
  EXPECT_EQ(disegno.NumLinee + disegno.NumTesti, 0);
  DisLineaSald(0, 0, 100, 0, 1, 2, 3);  // the line itself stays
  EXPECT_EQ(disegno.NumLinee, 1);
}

// Nil alone draws nothing: a negative throat has no strokes between, and its parallel line on the other side.
TEST_F(Marchi, GolaNegativa) {
  nodo.Gola = -7;
  DisSaldatura(nullptr, 0, 0, 20, 0, 1, 2, 3);
  ASSERT_EQ(disegno.NumLinee, 1);
  Segmento(0, {0, -7, 20, -7});
}

TEST_F(Marchi, LineaSaldata) {
  disegno.ColCorr = 4;
  DisLineaSald(0, 0, 20, 0, 1, 2, 3);
  ASSERT_EQ(disegno.NumLinee, 4);
  Segmento(3, {0, 0, 20, 0});
  EXPECT_EQ(disegno.LinCol[3], 4);
}

// A count of strokes out of range ends the drawing; one that fits stops where the store is full.
TEST_F(Marchi, GolaMinuscola) {
  nodo.Gola = 1e-9;
  DisSaldatura(nullptr, 0, 0, 1000, 0, 1, 2, 3);
  EXPECT_TRUE(disegno.Interrotto);
  EXPECT_TRUE(FaultAritmetico());
  AzzeraFault();
  AzzeraDisegno();
  nodo.Gola = 1e-6;  // a thousand million strokes of no length
  DisSaldatura(nullptr, 0, 0, 1000, 0, 1, 2, 3);
  EXPECT_EQ(disegno.NumLinee, 1);
  EXPECT_FALSE(FaultAritmetico());
  AzzeraDisegno();
  nodo.Gola = 0.0001;  // strokes as long as the tolerance are drawn
  DisSaldatura(nullptr, 0, 0, 0.001, 0, 1, 2, 3);
  EXPECT_EQ(disegno.NumLinee, 10);
  nodo.Gola = 0.01;
  DisSaldatura(nullptr, 0, 0, 1000, 0, 1, 2, 3);
  EXPECT_TRUE(disegno.Interrotto);
  EXPECT_EQ(disegno.NumCoord, 32767);
}

// The steps tried are never more than the store holds lines, whatever two numbers of a file say.
TEST_F(Marchi, TrattiMaiPiuDelleLinee) {
  // clang-format off
  const struct {
    double lunghezza, passo;
    std::int32_t attesi;
  } casi[] = {{20, 7, 3}, {20, -7, -3}, {50000, 1, 50000}, {50001, 1, 50001}, {50002, 1, 50001}, {2e9, 1, 50001}, {2147483647e12, 1e12, 50001}};
  // clang-format on
  for (const auto& k : casi) {
    std::int32_t n = 0;
    EXPECT_TRUE(TrattiSaldatura(k.lunghezza, k.passo, n)) << k.lunghezza;
    EXPECT_EQ(n, k.attesi) << k.lunghezza;
  }
  std::int32_t n = 0;
  EXPECT_FALSE(TrattiSaldatura(3e9, 1, n));
  EXPECT_FALSE(TrattiSaldatura(1e300, 1e-300, n));
  disegno.DestDis = {};
  Tela tela;
  nodo.Gola = 1;
  DisSaldatura(&tela, 0, 0, 1e6, 0, 1, 2, 0);  // a canvas, which holds any number
  EXPECT_EQ(tela.tratti.size(), 50001u);       // 50000 strokes and the parallel line
  disegno.DestDis = GENDIS;
}

// Far out every stroke has the same two coordinates, so that the lines fill the store and nothing else ends the mark: one box, and no fault.
TEST_F(Marchi, LontanoLeLineeRiempionoIlMagazzino) {
  nodo.Gola = 1;
  disegno.OffX = 1e21;
  registratore.eventi.clear();
  EXPECT_FALSE(LineeEsaurite());
  for (int i = 0; i < 2; ++i) DisSaldatura(nullptr, 0, 0, 1e6, 0, 1, 2, 0);
  EXPECT_TRUE(LineeEsaurite());
  EXPECT_FALSE(disegno.Interrotto);
  EXPECT_EQ(disegno.NumLinee, 50000);
  EXPECT_EQ(disegno.NumCoord, 2);
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(registratore.eventi[0], "[messaggio] informazione | ERRORE !! | Si è raggiunto il numero massimo di linee.");
}

TEST_F(Marchi, Angoli) {
  for (int q = 0; q <= 5; ++q) DisAngoloSald(nullptr, 100, 200, q);
  DisAngoloSald(nullptr, 100, 200, 1, std::int16_t{6});
  ASSERT_EQ(disegno.NumArchi, 5);
  const double px[] = {107, 100, 93, 100, 107}, py[] = {200, 207, 200, 193, 200};
  for (int q = 0; q < 4; ++q) {
    EXPECT_NEAR(disegno.CoordX[disegno.ArcIni[q]], px[q], 1e-4);
    EXPECT_NEAR(disegno.CoordY[disegno.ArcIni[q]], py[q], 1e-4);
    EXPECT_NEAR(disegno.CoordX[disegno.ArcFin[q]], px[q + 1], 1e-4);
    EXPECT_NEAR(disegno.CoordY[disegno.ArcFin[q]], py[q + 1], 1e-4);
    EXPECT_EQ(disegno.ArcCol[q], 3);
  }
  EXPECT_EQ(disegno.ArcCol[4], 6);
  nodo.Gola = 1000;  // four quarters of 3.141592 end 0.0013 short of where they began
  DisAngoloSald(nullptr, 0, 0, 4);
  EXPECT_DOUBLE_EQ(disegno.CoordY[disegno.ArcFin[5]], 1000 * std::sin(2 * 3.141592));
}

}  // namespace
