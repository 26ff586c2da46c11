// test_esecutivo.cpp - the sheet by hand: places of the views, titles, what each option leaves out, items counted, faults.
#include <memory>

#include "corredo/foglio_prova.h"
#include "corredo/lavoro_prova.h"
#include "drawing/Quote.h"
#include "engine/Saldature.h"
#include "model/stato.h"

namespace {

// B-B ends at x 588 (chains at 450 + 18 + 45 = 513 and 588) and y -872 (-627 - 50 - 45 = -722, -797, -872).
TEST_F(FoglioDisegno, PostoDelleViste) {
  Disegna();
  EXPECT_GE(TrovaTesto("280"), 0);
  const Esecutivo& e = esecutivo;
  EXPECT_DOUBLE_EQ(e.HColDis, 400);
  EXPECT_DOUBLE_EQ(e.XQuoteDx, 513);
  EXPECT_DOUBLE_EQ(e.BoxBXMax, 588);
  EXPECT_DOUBLE_EQ(e.BoxBXMin, -450);
  EXPECT_DOUBLE_EQ(e.BoxBYMax, 400);
  EXPECT_DOUBLE_EQ(e.BoxBYMin, -872);
  TestoA(TrovaTesto("SEZIONE B-B"), -11 * 9, 475, 0, 7);
  // A-A: -450 - 0.8 x 700 = -1010; its foundation reaches 500, its chains stand at -563 and -638.
  EXPECT_DOUBLE_EQ(e.BoxAXMin, -1010 - 638);
  TestoA(TrovaTesto("SEZIONE A-A"), -1010 - 11 * 9, 475, 0, 7);
  // C-C: -872 - 350 - 187.5 = -1409.5; its section line reaches 385.
  TestoA(TrovaTesto("SEZIONE C-C"), -11 * 9, -1409.5 + 460, 0, 7);
  EXPECT_DOUBLE_EQ(e.YTitoloC, -949.5);
  TestoA(TrovaTesto("ESECUTIVO NODI"), (588 - 1648) / 2.0 - 14 * 9, 550, 0, 7);
  TestoA(TrovaTesto("TIRAFONDO"), -1010 - 9 * 9, -949.5, 0, 7);
  // Schedule: 588 + 90, 400; first cell's text: "Prof." in a column of "HEX 200" + 2 = 9 characters.
  TestoA(TrovaTesto("Prof."), 678 + 45 - 25, 400 - 22.5 + 3.75, 0, 1);
  EXPECT_EQ(disegno.ColCorr, 2);
  OX = 678, OY = 400;  // its lines in their own colour
  Linea(0, 0, 0, -45, 1);
}

// Tenths of mm: titles 25 x 18, dimensions, weld names and the detail's label 15 x 10.
TEST_F(FoglioDisegno, MisureDeiTesti) {
  Disegna();
  for (const char* t : {"SEZIONE B-B", "SEZIONE C-C", "TIRAFONDO", "A", "HEX 200"}) {
    EXPECT_EQ(disegno.TesAlt[TrovaTesto(t)], 250) << t;
    EXPECT_EQ(disegno.TesLarg[TrovaTesto(t)], 180) << t;
  }
  for (const char* t : {"280", "S1", "piatto 70x70x10"}) {
    EXPECT_EQ(disegno.TesAlt[TrovaTesto(t)], 150) << t;
    EXPECT_EQ(disegno.TesLarg[TrovaTesto(t)], 100) << t;
    EXPECT_EQ(disegno.TesCol[TrovaTesto(t)], 6) << t;
  }
}

// The detail twice as large stands at -450 - 0.8 x 700 = -1010 and -872 - 310 x 2 - 7.5 x 25 - 3 x 15 = -1724.5; its chains keep to its own
// extents: right of 34 at 97 and 172, left of -274 at -337, above 620 at 690.
TEST_F(FoglioDisegno, PostoDelDettaglio) {
  suite.ParNodo[19] = 2;
  OX = -1010, OY = -1724.5;
  Disegna();
  Linea(-20, 620, 20, 620, 2);
  nodo.TipoTirafondo = 1;
  Disegna();
  Linea(-16, 620, 16, 620, 2);
  Linea(97, 540, 97, 620, 5);
  Linea(172, -480, 172, 620, 5);
  Linea(-337, -480, -337, 420, 5);
  Linea(-20, 690, 20, 690, 5);
}

// Two numbers of a file: grout that moves view A-A beyond the digits of its own sizes, and a plate whose welds there would be a thousand
// million strokes of one place. They fill the store, which ends them, and the sheet goes out with what it holds.
TEST_F(FoglioDisegno, DueNumeriCheRiempionoIlMagazzino) {
  nodo.TfHMalta = 1e25;
  nodo.LatoY = 1e10;
  registratore.eventi.clear();
  Disegna();
  EXPECT_EQ(disegno.NumLinee, 50000);
  EXPECT_LT(disegno.NumCoord, 32767);
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(registratore.eventi[0], "[messaggio] informazione | ERRORE !! | Si è raggiunto il numero massimo di linee.");
}

TEST_F(FoglioDisegno, TitoloConINodi) {
  nodo.NumNodiStr = 2;
  nodo.NodiStr[1] = 12;
  nodo.NodiStr[2] = 15;
  Disegna();
  EXPECT_GE(TrovaTesto("ESECUTIVO NODI: 12,15"), 0);
}

TEST_F(FoglioDisegno, SenzaQuoteLeVisteSiAvvicinano) {
  suite.ParNodo[15] = 0;
  Disegna();
  EXPECT_DOUBLE_EQ(esecutivo.BoxBXMax, 450);
  EXPECT_DOUBLE_EQ(esecutivo.BoxBYMin, -627);
  TestoA(TrovaTesto("SEZIONE C-C"), -11 * 9, -627 - 350 - 187.5 + 460, 0, 7);
  TestoA(TrovaTesto("Prof."), 540 + 45 - 25, 400 - 22.5 + 3.75, 0, 1);
  EXPECT_LT(TrovaTesto("280"), 0);  // between the anchors: a measure of a chain
  // the detail's four stay: width, hole, rising length, total
  for (const char* t : {"20", "100", "570", "620"}) {
    const int i = TrovaTesto(t);
    ASSERT_GE(i, 0) << t;
    EXPECT_EQ(disegno.TesCol[i], 6) << t;
  }
  suite.ParNodo[15] = 2;  // only 1 draws chains
  Disegna();
  EXPECT_DOUBLE_EQ(esecutivo.BoxBXMax, 450);
  EXPECT_DOUBLE_EQ(esecutivo.BoxAXMax, -1010 + 500);
  EXPECT_DOUBLE_EQ(esecutivo.BoxCYMin, -627 - 350 - 187.5 - 385);
  EXPECT_LT(TrovaTesto("280"), 0);
}

TEST_F(FoglioDisegno, SenzaDistinta) {
  Disegna();
  const auto con = std::make_unique<Disegno>(disegno);
  suite.ParNodo[18] = 0;
  Disegna();
  ASSERT_LT(disegno.NumLinee, con->NumLinee);
  EXPECT_EQ(disegno.NumArchi, con->NumArchi);
  for (int i = 0; i < disegno.NumLinee; ++i) ASSERT_TRUE(disegno.LinIni[i] == con->LinIni[i] && disegno.LinFin[i] == con->LinFin[i]);
  for (int i = 0; i < disegno.NumTesti; ++i)
    ASSERT_EQ(disegno.TesStr[static_cast<std::size_t>(i)], con->TesStr[static_cast<std::size_t>(i)]);
  EXPECT_EQ(con->TesStr[static_cast<std::size_t>(disegno.NumTesti)], "Prof.");
  suite.ParNodo[18] = 2;  // only 1 draws it
  Disegna();
  EXPECT_LT(TrovaTesto("Prof."), 0);
}

TEST_F(FoglioDisegno, NomiDelleSaldature) {
  Disegna();
  for (int w = 1; w <= 8; ++w) EXPECT_EQ(ContaTesti("S" + std::to_string(w)), 2) << w;  // plan and schedule
  EXPECT_EQ(ContaTesti("S19"), 0);
  nodo.SaldInt = 1;
  Disegna();
  EXPECT_EQ(ContaTesti("S19"), 3);  // both sides carry it
  OY = -1409.5;
  for (const int s : {-1, 1}) {
    Linea(s * 83, -85, s * 83, 85, 9);  // inside the flanges, without strokes at the ends
    Manca(s * 90, -85, s * 83, -85);
    Manca(s * 90, 85, s * 83, 85);
    Linea(s * 90, -85, s * 90, 85, 2);  // and the line itself
  }
  EXPECT_EQ(ContaTesti("S9"), 1);
}

TEST_F(FoglioDisegno, FaultDaScalaNulla) {
  suite.ParNodo[19] = 0;
  nodo.TipoTirafondo = 1;
  EXPECT_FALSE(DisegnaFoglio());
  EXPECT_EQ(registratore.eventi, std::vector<std::string>{std::string("[messaggio] critica | NODO COLONNA - PLINTO | ") + TESTO_FAULT});
  EXPECT_TRUE(disegno.DestDis.empty());
  EXPECT_FALSE(FaultAritmetico());
}

// A fault of an earlier command is not this drawing's.
TEST_F(FoglioDisegno, FaultDiPrima) {
  SegnalaFault();
  EXPECT_TRUE(DisegnaFoglio());
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(FoglioDisegno, FaultDaGolaMinuscola) {
  nodo.Gola = 0.001;
  EXPECT_FALSE(DisegnaFoglio());
  EXPECT_EQ(disegno.NumCoord, 32767);
  EXPECT_TRUE(disegno.DestDis.empty());
}

// What an earlier sheet or panel left behind counts for nothing.
TEST_F(FoglioDisegno, PartePulito) {
  nodo.NervTaglio = nodo.NervZ = nodo.NervY = 1;
  lavoro.NumSaldature = 3;
  quote.EtichetteSald = true;
  Disegna();
  EXPECT_EQ(nodo.NervTaglio, 50);
  EXPECT_EQ(nodo.NervZ, 30);
  EXPECT_EQ(nodo.NervY, 50);
  EXPECT_EQ(lavoro.NumSaldature, 40);
  EXPECT_EQ(ContaTesti("S21"), 1);  // in the schedule; the ribs of the plan carry no names
}

// Ribs of 300 show 450 of the column; a column of 900 is larger than the plan: A-A at -450 - 0.8 x 900, C-C at -872 - 450 - 187.5, where
// the weld on the upper flange reaches 450 + 7 and the title stands 75 above it.
TEST_F(FoglioDisegno, MisureGrandi) {
  nodo.HNerv = 300;
  Disegna();
  EXPECT_DOUBLE_EQ(esecutivo.HColDis, 450);
  nodo.HNerv = 150;
  nodo.Sezione.H = 900;
  Disegna();
  TestoA(TrovaTesto("SEZIONE A-A"), -1170 - 11 * 9, 475, 0, 7);
  TestoA(TrovaTesto("SEZIONE C-C"), -11 * 9, -872 - 450 - 187.5 + 532, 0, 7);
}

// Welded inside means 1; with another value the weld table holds 44 rows, the sheet leaves out 9 and 19, also those of an earlier sheet.
TEST_F(FoglioDisegno, SaldaturaInternaSoloUno) {
  ris.Saldature[9].Nome = "S9";
  ris.Saldature[19].Nome = "S19";
  nodo.SaldInt = 2;
  Disegna();
  EXPECT_EQ(lavoro.NumSaldature, 44);
  EXPECT_EQ(ContaTesti("S9"), 0);
  EXPECT_EQ(ContaTesti("S19"), 0);
  EXPECT_EQ(ContaTesti("S20"), 1);
  OY = -1409.5;
  for (const int s : {-1, 1}) {
    Manca(s * 83, -85, s * 83, 85);
    Linea(s * 90, -85, s * 90, 85, 2);
  }
}

TEST_F(FoglioDisegno, GolaNullaSenzaMarchi) {
  nodo.Gola = 0;
  nodo.TipoTirafondo = 2;  // no weld of the anchor plate
  suite.ParNodo[18] = 0;
  Prepara();
  VistaBB();
  VistaAA();
  VistaCC();
  for (int i = 0; i < disegno.NumLinee; ++i) ASSERT_NE(disegno.LinCol[i], 9) << i;
  EXPECT_EQ(ContaTesti("S1"), 0);
  Disegna();  // names that were never built leave their cells empty
  EXPECT_EQ(ContaTesti("S1"), 0);
}

// Every item of the sheet without chains, counted by hand. A mark of length L has Int(L / 7 + 0.5) - 1 strokes, one parallel line, and two
// strokes more when of kind 1.
TEST_F(FoglioDisegno, OgniElementoContato) {
  suite.ParNodo[15] = 0;
  const auto conta = [&](void (*parte)(), int linee, int archi, int testi) {
    const int l = disegno.NumLinee, a = disegno.NumArchi, t = disegno.NumTesti;
    parte();
    EXPECT_EQ(disegno.NumLinee - l, linee);
    EXPECT_EQ(disegno.NumArchi - a, archi);
    EXPECT_EQ(disegno.NumTesti - t, testi);
  };
  CostruisciSaldature(lavoro);
  Prepara();
  // rod: 2 through the plate, 2 sides and cap, 3 nuts of 5, 4 sides, 4 of the anchor plate, 2 of its welds = 30 and 4 arcs
  // ribs a side: 4 edges, faces of 150 (20 + 2 + 1 + 1 and 20 + 1 + 1), foot 40 (6) and 22 (3) = 59; plate 12, column 2 + 26 + 2 + 1,
  // footing 11, sections 6
  conta(VistaBB, 2 * 59 + 2 * 30 + 12 + 31 + 11 + 6, 4 + 8, 5);
  // foot 50 (7) and 60 (9), the rib across the column, no foot weld of the column
  conta(VistaAA, 2 * 66 + 1 + 2 * 30 + 12 + 5 + 11 + 6, 4 + 8, 5);
  // ribs a side: 4 faces of 150 (22), one of 184 (27), 4 of 102 (16), 6 ends; 3 rectangles, 4 diagonals, 4 crosses; section 12 with marks
  // 2 of 146 (21), 4 of 73 (10), 2 of 180 (26); 2 inner lines; sections 6. Arcs: 28 corners, 4 anchors, 4 fillets
  conta(VistaCC, 2 * (88 + 27 + 64 + 6) + 12 + 4 + 8 + 12 + 42 + 40 + 52 + 2 + 6, 28 + 4 + 4, 4 + 8);
  // head 5, rod 10, four dimensions with two circles each; label
  conta(DettaglioTirafondo, 15 + 4, 4 + 8, 5);
  // grids: rows + 1 and columns + 1; cells: 10, 8, 12, 6, 39 x 3
  conta(Distinta, 9 + 8 + 9 + 7 + 44, 0, 10 + 8 + 12 + 6 + 117);
}

}  // namespace
