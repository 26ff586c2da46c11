// tests/unita/test_ammissibilita.cpp - admissibility checks and edge distances: the rows, and the boxes of the command Verifica.
// Base joint: column 200 x 190, plate 400 x 500 x 20, M20 at 50 mm from each edge, holes of 100 mm, grout 50 mm, 120 mm out of the footing.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "corredo/nodo_prova.h"
#include "engine/Controlli.h"
#include "model/stato.h"
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"

namespace {

constexpr const char* T1 = "Incompatibilità geometrica fra piastra e colonna";
constexpr const char* T2 = "Dimensioni della piastra negative o nulle";
constexpr const char* T3 = "Dimensioni del tirafondo negative o nulle";
constexpr const char* T4 = "Sovrapposizione fori nel plinto";
constexpr const char* T5 = "Lunghezza fuori terra del tirafondo insufficiente";
constexpr const char* T6 = "Lunghezza di filettatura del tirafondo insufficiente";
constexpr const char* T7 = "Diametro fori insufficiente";
constexpr const char* T8 = "Altezza di malta sotto la piastra insufficiente";
constexpr const char* T9 = "Tirafondi fuori dalla piastra";
constexpr const char* T10 = "Tirafondi previsti nelle zone d'angolo della piastra";

std::string Domanda(const std::string& t, const char* risposta = "OK") {
  return "[domanda] esclamazione | ATTENZIONE! | " + t + " -> " + risposta;
}
std::string Avviso(const std::string& t) { return "[messaggio] esclamazione | ATTENZIONE! | " + t; }

using Eventi = std::vector<std::string>;

constexpr std::size_t BORDO = NumGeometria - 1;

// Of the boxes, those of the checks but the edge's.
bool DeiControlli(const std::string& evento) {
  return evento.find(" | ATTENZIONE! | ") != std::string::npos && evento.find("La distanza dei tirafondi") == std::string::npos;
}

struct ControlliTest : testing::Test {
  void SetUp() override {
    NodoProva();
    suite.DirLavoro = "manca";  // whatever passes the checks ends at the report
  }

  // The boxes of the checks, in the command Verifica after `modifica` of the base joint; every question answered with OK. Each box is of
  // a row that fails, and as long as no question was refused each failing row has its box.
  Eventi Dopo(const std::function<void()>& modifica) {
    SetUp();
    modifica();
    const RigheGeometria righe = ControlliGeometria(nodo, nodo.TipoVer);
    InsDati_Verifica(0);
    esito = verificaPannello.esito != EsitoVerifica::Rifiutata;
    Eventi box;
    std::copy_if(registratore.eventi.begin(), registratore.eventi.end(), std::back_inserter(box), DeiControlli);
    Eventi fallite;
    bool rifiutata = false;
    for (const RigaGeometria& r : righe) {
      if (r.passa || r.genere == GenereGeometria::Bordo) continue;
      const bool domanda = r.genere == GenereGeometria::Domanda;
      if (domanda && rifiutata) continue;
      rifiutata = domanda && std::count(box.begin(), box.end(), Domanda(r.testo, "Annulla")) > 0;
      fallite.push_back(!domanda ? Avviso(r.testo) : Domanda(r.testo, rifiutata ? "Annulla" : "OK"));
    }
    EXPECT_EQ(box, fallite);
    return box;
  }
  // Whether the edge's row passes; it never tells another text than the method's.
  static bool Bordo(int metodo, const std::string& testo) {
    const RigaGeometria r = ControlliGeometria(nodo, metodo)[BORDO];
    EXPECT_STREQ(r.id, "geo.bordo");
    EXPECT_EQ(r.testo, testo);
    EXPECT_EQ(r.genere, GenereGeometria::Bordo);
    return r.passa;
  }
  bool esito = false;
};

}  // namespace

TEST_F(ControlliTest, NodoSano) {
  EXPECT_EQ(Dopo([] {}), Eventi{});
  EXPECT_TRUE(esito);
}

TEST_F(ControlliTest, Colonna) {  // as wide as the plate passes; anchors then stand at the column: check 10
  EXPECT_EQ(Dopo([] { nodo.Sezione.B = 400; }), Eventi{Avviso(T10)});
  EXPECT_EQ(Dopo([] { nodo.Sezione.B = 400.5; }), (Eventi{Domanda(T1), Avviso(T10)}));
  EXPECT_EQ(Dopo([] { nodo.Sezione.H = 500; }), Eventi{Avviso(T10)});
  EXPECT_EQ(Dopo([] { nodo.Sezione.H = 500.5; }), (Eventi{Domanda(T1), Avviso(T10)}));
}

TEST_F(ControlliTest, Piastra) {
  EXPECT_EQ(Dopo([] { nodo.SpessPiastra = 0; }), Eventi{Domanda(T2)});
  EXPECT_TRUE(esito);  // OK leaves the result
  EXPECT_EQ(Dopo([] { nodo.SpessPiastra = 0.5; }), Eventi{});
  EXPECT_EQ(Dopo([] { nodo.LatoZ = 0; })[1], Domanda(T2));
  EXPECT_EQ(Dopo([] { nodo.LatoY = 0; })[1], Domanda(T2));
}

TEST_F(ControlliTest, Tirafondo) {
  const auto soloT3 = Eventi{Domanda(T3)};
  EXPECT_EQ(Dopo([] { nodo.TfL = 0; }), soloT3);
  EXPECT_EQ(Dopo([] { nodo.TfL = 0.5; }), Eventi{});
  EXPECT_EQ(Dopo([] {
              nodo.TfL1 = 0;
              nodo.TfR = 0;
            }),
            Eventi{});  // these may be 0
  EXPECT_EQ(Dopo([] { nodo.TfL1 = -1; }), soloT3);
  EXPECT_EQ(Dopo([] { nodo.TfR = -1; }), soloT3);
  EXPECT_EQ(Dopo([] { nodo.TfLF = 0; }), Eventi{});
  EXPECT_EQ(Dopo([] { nodo.TfLF = -1; }), soloT3);
  EXPECT_EQ(Dopo([] { nodo.TfFi = 0; }), soloT3);
  EXPECT_EQ(Dopo([] { nodo.TfLFt = 0; })[0], Domanda(T3));
  EXPECT_EQ(Dopo([] { nodo.TfDForo = 0; })[0], Domanda(T3));
  EXPECT_EQ(Dopo([] { nodo.TfHMalta = -1; })[0], Domanda(T3));
  EXPECT_EQ(Dopo([] { nodo.TfHMalta = 0; })[0], Domanda(T6));  // 0 - 20 < 120 - 100
}

TEST_F(ControlliTest, LimitiDeiPositivi) {  // the bound is zero itself: above it, or at it, by a hair
  const auto conta = [&](double Nodo::*campo, double valore, const char* testo) {
    const Eventi e = Dopo([&] { nodo.*campo = valore; });
    return std::count(e.begin(), e.end(), Domanda(testo));
  };
  for (double Nodo::*campo : {&Nodo::SpessPiastra, &Nodo::LatoZ, &Nodo::LatoY}) {
    EXPECT_EQ(conta(campo, 0.001, T2), 0);
    EXPECT_EQ(conta(campo, 0, T2), 1);
    EXPECT_EQ(conta(campo, -1, T2), 1);
  }
  for (double Nodo::*campo : {&Nodo::TfL, &Nodo::TfLFt, &Nodo::TfFi, &Nodo::TfDForo}) {
    EXPECT_EQ(conta(campo, 0.001, T3), 0);
    EXPECT_EQ(conta(campo, 0, T3), 1);
    EXPECT_EQ(conta(campo, -1, T3), 1);
  }
  for (double Nodo::*campo : {&Nodo::TfL1, &Nodo::TfR, &Nodo::TfHMalta, &Nodo::TfLF}) {
    EXPECT_EQ(conta(campo, 0, T3), 0);
    EXPECT_EQ(conta(campo, -0.001, T3), 1);
  }
}

TEST_F(ControlliTest, ForiSovrapposti) {
  // Pattern by pattern the holes that touch pass, a tenth of a millimetre more does not. Spacing along Z 300, along Y 400.
  struct Riga {
    int schema;
    double foro;
    bool passa;
  };
  // clang-format off
  const Riga RIGHE[] = {
    { 0, 300, true }, { 0, 300.1, false },             // 1-2 at 300 along Z; 1-3 at 400 along Y
    { 1, 150, true }, { 1, 150.1, false },             // 1-8 and 8-2 at 150; 1-5, 5-3 at 200
    { 2, 200, true }, { 2, 200.1, false },             // 1-5, 5-3 at 200 along Y
    { 3, 150, true }, { 3, 150.1, false },             // 1-6, 6-2 at 150 along Z
  };
  // clang-format on
  for (const Riga& r : RIGHE) {
    const Eventi e = Dopo([&] {
      SchemaProva(r.schema);
      nodo.TfDForo = r.foro;
      nodo.TfLFt = r.foro + 20;
    });
    EXPECT_EQ(e, r.passa ? Eventi{} : Eventi{Domanda(T4)}) << r.schema << ' ' << r.foro;
  }
  // Each listed pair by itself.
  struct Coppia {
    int schema, sposta;
    char asse;
    double valore;
  };
  // clang-format off
  const Coppia COPPIE[] = {
    { 0, 3, 'Y', 149 }, { 1, 8, 'Z', 149 }, { 1, 8, 'Z', 251 }, { 1, 5, 'Y', 149 }, { 1, 5, 'Y', 351 },
    { 2, 5, 'Y', 149 }, { 2, 5, 'Y', 351 }, { 3, 6, 'Z', 149 }, { 3, 6, 'Z', 251 }, { 3, 3, 'Y', 149 },
    { 1, 3, 'Y', 349 }, { 2, 3, 'Y', 349 },
  };
  // clang-format on
  for (const Coppia& c : COPPIE)
    EXPECT_EQ(Dopo([&] {
                SchemaProva(c.schema);
                (c.asse == 'Z' ? nodo.TfZ : nodo.TfY)[c.sposta] = c.valore;
              }),
              Eventi{Domanda(T4)})
      << c.schema << ' ' << c.sposta;
  for (const int schema : {0, 1, 2, 3}) {  // anchors 1 and 2 also meet the column's face; 2 along Y and 4 are in no pair
    EXPECT_EQ(Dopo([&] {
                SchemaProva(schema);
                nodo.TfZ[2] = 149;
              }),
              (Eventi{Domanda(T4), Avviso(T10)}))
      << schema;
    EXPECT_EQ(Dopo([&] {
                SchemaProva(schema);
                nodo.TfY[1] = 401;
              }),
              (Eventi{Domanda(T4), Avviso(T10)}))
      << schema;
    EXPECT_EQ(Dopo([&] {
                SchemaProva(schema);
                nodo.TfY[2] = 449;
                nodo.TfZ[4] = 51;
                nodo.TfZ[3] = 349;
              }),
              Eventi{})
      << schema;
  }
  // Two pairs at fault: one box. Without holes in the footing none, wherever the anchors stand.
  EXPECT_EQ(Dopo([] {
              nodo.TfDForo = 500;
              nodo.TfLFt = 520;
            }),
            Eventi{Domanda(T4)});
  EXPECT_EQ(Dopo([] {
              nodo.TfDForo = 500;
              nodo.TfLFt = 520;
              nodo.TfLF = 0;
            }),
            Eventi{});
  EXPECT_EQ(Dopo([] {
              nodo.TfDForo = 500;
              nodo.TfLFt = 520;
              nodo.TfLF = 0.001;
            }),
            Eventi{Domanda(T4)});
}

TEST_F(ControlliTest, AltezzeEFori) {                   // the bounds: 5 >, 6 <, 7 <=, 8 <=
  EXPECT_EQ(Dopo([] { nodo.TfLFt = 110; }), Eventi{});  // 50 + 20 + 40 = 110
  EXPECT_EQ(Dopo([] { nodo.TfLFt = 109.9; }), Eventi{Domanda(T5)});
  EXPECT_EQ(Dopo([] { nodo.TfLFt = 130; }), Eventi{});  // 50 - 20 = 130 - 100
  EXPECT_EQ(Dopo([] { nodo.TfLFt = 130.1; }), Eventi{Domanda(T6)});
  EXPECT_EQ(Dopo([] {
              nodo.TfDForo = 20;
              nodo.TfHMalta = 130;
              nodo.TfLFt = 190;
            }),
            (Eventi{Domanda(T6), Domanda(T7)}));  // 110 < 170
  EXPECT_EQ(Dopo([] {
              nodo.TfDForo = 20.1;
              nodo.TfHMalta = 130;
              nodo.TfLFt = 190;
            }),
            Eventi{Domanda(T6)});
  EXPECT_EQ(Dopo([] {
              nodo.TfHMalta = 20;
              nodo.TfLFt = 100;
            }),
            Eventi{Domanda(T8)});
  EXPECT_EQ(Dopo([] {
              nodo.TfHMalta = 20.1;
              nodo.TfLFt = 100;
            }),
            Eventi{});
}

TEST_F(ControlliTest, OrdineERifiuto) {
  // Column too wide, plate thickness 0, hole equal to the rod, grout as high as the rod: 1, 2, 6, 7, 8 and the notice 10.
  const auto guasta = [] {
    nodo.Sezione.B = 401;
    nodo.SpessPiastra = 0;
    nodo.TfDForo = 20;
    nodo.TfHMalta = 20;
    nodo.TfZ[1] = -1;
  };
  EXPECT_EQ(Dopo(guasta), (Eventi{Domanda(T1), Domanda(T2), Domanda(T6), Domanda(T7), Domanda(T8), Avviso(T9), Avviso(T10)}));
  EXPECT_FALSE(esito);  // the notices set it, whatever was answered
  EXPECT_EQ(Dopo([&] {
              guasta();
              registratore.risposte = {true, false};
            }),
            (Eventi{Domanda(T1), Domanda(T2, "Annulla"), Avviso(T9), Avviso(T10)}));
  EXPECT_FALSE(esito);
  EXPECT_EQ(Dopo([&] {
              guasta();
              registratore.risposte = {false};
            }),
            (Eventi{Domanda(T1, "Annulla"), Avviso(T9), Avviso(T10)}));
  EXPECT_EQ(Dopo([] {
              nodo.SpessPiastra = 0;
              registratore.risposte = {false};
            }),
            Eventi{Domanda(T2, "Annulla")});
  EXPECT_FALSE(esito);
}

TEST_F(ControlliTest, TuttiEDieciInOrdine) {
  // Column wider than the plate, no thickness, R below zero, rods and holes of 500 mm 300 mm apart: 50 + 0 + 1000 > 120,
  // 50 - 500 < 120 - 500, 500 <= 500, 50 <= 500; anchor 1 off the plate. Each Cancel stops the questions behind it, not the notices.
  const auto guasta = [] {
    nodo.Sezione.B = 401;
    nodo.SpessPiastra = 0;
    nodo.TfR = -1;
    nodo.TfFi = nodo.TfDForo = 500;
    nodo.TfZ[1] = -1;
  };
  const char* const TESTI[] = {T1, T2, T3, T4, T5, T6, T7, T8};
  for (int rifiutata = 0; rifiutata <= 8; ++rifiutata) {  // 8: none
    Eventi attesi;
    std::vector<bool> risposte;
    for (int k = 0; k < 8 && k <= rifiutata; ++k) {
      risposte.push_back(k != rifiutata);
      attesi.push_back(Domanda(TESTI[k], k != rifiutata ? "OK" : "Annulla"));
    }
    attesi.push_back(Avviso(T9));
    attesi.push_back(Avviso(T10));
    EXPECT_EQ(Dopo([&] {
                guasta();
                for (const bool r : risposte) registratore.risposte.push_back(r);
              }),
              attesi)
      << rifiutata;
    EXPECT_FALSE(esito);
  }
}

TEST_F(ControlliTest, FuoriDallaPiastra) {
  const auto solo9 = Eventi{Avviso(T9)};
  EXPECT_EQ(Dopo([] { nodo.TfZ[1] = 0; }), Eventi{});  // on the edge
  EXPECT_EQ(Dopo([] {
              nodo.TfLF = 0;
              nodo.TfZ[2] = 0;
              nodo.TfY[4] = 0;
              nodo.TfY[1] = 500;
            }),
            Eventi{Avviso(T10)});  // on the far edges
  EXPECT_EQ(Dopo([] { nodo.TfZ[1] = -0.1; }), solo9);
  EXPECT_FALSE(esito);
  EXPECT_EQ(Dopo([] { nodo.TfZ[2] = 400.1; }), solo9);
  EXPECT_EQ(Dopo([] { nodo.TfY[1] = -0.1; }), solo9);
  EXPECT_EQ(Dopo([] { nodo.TfY[4] = 500.1; }), solo9);
  EXPECT_EQ(Dopo([] {
              nodo.TfLF = 0;
              nodo.TfZ[1] = 400.1;
            }),
            (Eventi{Avviso(T9), Avviso(T10)}));
  EXPECT_EQ(Dopo([] {
              nodo.TfLF = 0;
              nodo.TfZ[2] = -0.1;
            }),
            (Eventi{Avviso(T9), Avviso(T10)}));
  EXPECT_EQ(Dopo([] {
              nodo.TfLF = 0;
              nodo.TfY[1] = 500.1;
            }),
            (Eventi{Avviso(T9), Avviso(T10)}));
  EXPECT_EQ(Dopo([] {
              nodo.TfLF = 0;
              nodo.TfY[4] = -0.1;
            }),
            (Eventi{Avviso(T9), Avviso(T10)}));
  EXPECT_EQ(Dopo([] {
              nodo.TfZ[3] = -50;
              nodo.TfY[2] = -50;
            }),
            Eventi{});  // only anchors 1, 2, 4 are looked at
}

TEST_F(ControlliTest, ZoneDAngolo) {
  // F along Z = (400 - 200) / 2 - D, along Y = (500 - 190) / 2 - D = 155 - D; half a rod is 10: equal passes.
  EXPECT_EQ(Dopo([] { nodo.TfZ[1] = 90; }), Eventi{});
  EXPECT_EQ(Dopo([] { nodo.TfZ[1] = 90.1; }), Eventi{Avviso(T10)});
  EXPECT_FALSE(esito);
  EXPECT_EQ(Dopo([] { nodo.TfZ[2] = 310; }), Eventi{});
  EXPECT_EQ(Dopo([] { nodo.TfZ[2] = 309.9; }), Eventi{Avviso(T10)});
  EXPECT_EQ(Dopo([] { nodo.TfY[1] = 145; }), Eventi{});
  EXPECT_EQ(Dopo([] { nodo.TfY[1] = 145.1; }), Eventi{Avviso(T10)});
  EXPECT_EQ(Dopo([] { nodo.TfY[4] = 355; }), Eventi{});
  EXPECT_EQ(Dopo([] { nodo.TfY[4] = 354.9; }), Eventi{Avviso(T10)});
  // Ribs of 10 mm count along Z only, for every typology but 1.
  EXPECT_EQ(Dopo([] {
              nodo.TipoNodo = 2;
              nodo.TfZ[1] = 80;
              nodo.TfZ[2] = 320;
              nodo.TfY[1] = 145;
              nodo.TfY[4] = 355;
            }),
            Eventi{});
  EXPECT_EQ(Dopo([] {
              nodo.TipoNodo = 2;
              nodo.TfZ[1] = 80.1;
            }),
            Eventi{Avviso(T10)});
  EXPECT_EQ(Dopo([] {
              nodo.TipoNodo = 2;
              nodo.TfZ[2] = 319.9;
            }),
            Eventi{Avviso(T10)});
  for (const std::int16_t tipo : {std::int16_t(0), std::int16_t(5)})
    EXPECT_EQ(Dopo([&] {
                nodo.TipoNodo = tipo;
                nodo.TfZ[1] = 80.1;
              }),
              Eventi{Avviso(T10)})
      << tipo;
}

TEST_F(ControlliTest, BordoCNR) {  // 2 x 20 = 40 <= D <= 6 x 20 = 120
  const std::string testo = "La distanza dei tirafondi dal bordo della piastra risulta difforme dalle prescrizioni della CNR-UNI 10011/88";
  EXPECT_TRUE(Bordo(0, testo));
  for (const double d : {40.0, 120.0}) {
    SchemaProva(0, d, d);
    EXPECT_TRUE(Bordo(0, testo)) << d;
  }
  for (const double d : {39.9, 120.1})
    for (int lato = 0; lato < 4; ++lato) {
      NodoProva();
      const double p[] = {d, 400 - d, d, 500 - d};
      (lato < 2 ? nodo.TfZ : nodo.TfY)[lato == 0 || lato == 2 ? 1 : lato == 1 ? 2 : 4] = p[lato];
      EXPECT_FALSE(Bordo(0, testo)) << d << ' ' << lato;
    }
  NodoProva();
  SchemaProva(0, 10, 10);  // four sides at fault, one box
  EXPECT_FALSE(Bordo(0, testo));
  suite.DirLavoro = "manca";
  registratore.risposte = {false};
  InsDati_Verifica(0);
  EXPECT_EQ(registratore.eventi,
            (Eventi{Avviso(testo), "[domanda] informazione | NODO COLONNA - PLINTO | Continuare la verifica? -> Annulla"}));
}

TEST_F(ControlliTest, BordoNTC) {
  const std::string testo = "La distanza dei tirafondi dal bordo della piastra risulta difforme dalle prescrizioni (NTC 2008)";
  // Lower bound 1.2 x 20 = 24. Upper: exposed 4 x 20 + 40 = 120, not exposed none, else the larger of 8 x 20 = 160 and 125.
  struct Riga {
    int esposizione;
    double t, D;
    bool passa;
  };
  // clang-format off
  const Riga RIGHE[] = {
    { 0, 20, 24, true },  { 0, 20, 23.9, false }, { 0, 20, 120, true },   { 0, 20, 120.1, false },
    { 1, 20, 24, true },  { 1, 20, 23.9, false }, { 1, 20, 10000, true },
    { 2, 20, 160, true }, { 2, 20, 160.1, false }, { 2, 10, 125, true },  { 2, 10, 125.1, false }, { 2, 20, 23.9, false },
    { -1, 20, 160, true }, { -1, 20, 160.1, false }, { -1, 10, 125.1, false },
  };
  // clang-format on
  for (const Riga& r : RIGHE) {
    NodoProva();
    nodo.Esposizione = r.esposizione;
    nodo.SpessPiastra = r.t;
    SchemaProva(0, 100, 100);
    nodo.TfZ[1] = r.D;
    EXPECT_EQ(Bordo(1, testo), r.passa) << r.esposizione << ' ' << r.t << ' ' << r.D;
  }
  NodoProva();
  nodo.TipoVer = 1;
  nodo.TfZ[1] = 23.9;
  registratore.risposte = {false};
  InsDati_Verifica(0);
  EXPECT_EQ(registratore.eventi,
            (Eventi{Avviso(testo), "[domanda] informazione | NODO COLONNA - PLINTO | Continuare la verifica? -> Annulla"}));
}

// ---- the two sides of each comparison, of the one with the least margin

TEST_F(ControlliTest, DomandaELimite) {
  const auto riga = [](const char* id, int metodo = 0) {
    for (const RigaGeometria& r : ControlliGeometria(nodo, metodo))
      if (std::string(r.id) == id) return r;
    ADD_FAILURE() << id;
    return RigaGeometria{};
  };
  const auto due = [](const RigaGeometria& r) { return std::pair{r.domanda, r.limite}; };
  using P = std::pair<double, double>;
  EXPECT_EQ(due(riga("geo.colonna")), P(200, 400));  // 200 to spare; along Y 310
  nodo.Sezione.H = 450;
  EXPECT_EQ(due(riga("geo.colonna")), P(450, 500));  // 50
  nodo.Sezione.B = 401;
  EXPECT_EQ(due(riga("geo.colonna")), P(401, 400));
  SetUp();
  EXPECT_EQ(due(riga("geo.piastra")), P(20, 0));
  nodo.LatoZ = 7;
  EXPECT_EQ(due(riga("geo.piastra")), P(7, 0));
  SetUp();
  EXPECT_EQ(due(riga("geo.tirafondo")), P(10, 0));  // of 500, 120, 450, 70, 50, 20, 100 and LF 10
  nodo.TfR = -3;
  EXPECT_EQ(due(riga("geo.tirafondo")), P(-3, 0));
  nodo.TfL1 = 0;  // holds, with less margin than LF: the failed one stays
  EXPECT_EQ(due(riga("geo.tirafondo")), P(-3, 0));
  nodo.TfL = 0;  // fails as well, at its bound: -3 misses by more
  EXPECT_EQ(due(riga("geo.tirafondo")), P(-3, 0));
  SetUp();
  EXPECT_EQ(due(riga("geo.fori")), P(300, 100));  // 350 - 50 against 50 + 50; along Y 400 against 100
  SchemaProva(1);
  EXPECT_EQ(due(riga("geo.fori")), P(150, 100));  // 1-8: 200 - 50 against 100; 8-2 the same margin, later
  nodo.TfZ[8] = 240;
  EXPECT_EQ(due(riga("geo.fori")), P(300, 290));  // 8-2: 350 - 50 against 240 + 50
  EXPECT_TRUE(riga("geo.fori").confronta);
  nodo.TfLF = 0;
  EXPECT_FALSE(riga("geo.fori").confronta);
  EXPECT_TRUE(riga("geo.fori").passa);
  SetUp();
  EXPECT_EQ(due(riga("geo.fuori_terra")), P(110, 120));  // 50 + 20 + 40
  EXPECT_EQ(due(riga("geo.filettatura")), P(30, 20));    // 50 - 20, 120 - 100
  EXPECT_EQ(due(riga("geo.foro")), P(100, 20));
  EXPECT_EQ(due(riga("geo.malta")), P(50, 20));
  nodo.TfY[4] = 490;
  EXPECT_EQ(due(riga("geo.fuori_piastra")), P(10, 0));  // 500 - 490
  nodo.TfZ[2] = -5;
  EXPECT_EQ(due(riga("geo.fuori_piastra")), P(405, 400));
  SetUp();
  EXPECT_EQ(due(riga("geo.angolo")), P(10, 50));  // (400 - 200) / 2 - 50; along Y 155 - 50
  nodo.TipoNodo = 2;
  EXPECT_EQ(due(riga("geo.angolo")), P(10, 40));
  SetUp();
  EXPECT_EQ(due(riga("geo.bordo", 0)), P(50, 40));  // 2 x 20 against 6 x 20
  EXPECT_EQ(due(riga("geo.bordo", 1)), P(50, 24));  // 1.2 x 20 against 160
  nodo.TfZ[1] = 118;
  EXPECT_EQ(due(riga("geo.bordo", 0)), P(118, 120));
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(ControlliTest, FaultDellaRiga) {  // its own row alone, and nothing of it stays raised
  nodo.SpessPiastra = 1e308;             // 6 t overflows; 4 t + 40 too, 8 t as well
  for (const int metodo : {0, 1}) {
    const RigheGeometria righe = ControlliGeometria(nodo, metodo);
    for (std::size_t k = 0; k < righe.size(); ++k) EXPECT_EQ(righe[k].fault, k == BORDO) << righe[k].id;
  }
  EXPECT_FALSE(FaultAritmetico());
  SegnalaFault();  // what was raised before stays raised
  EXPECT_FALSE(ControlliGeometria(nodo, 0)[0].fault);
  EXPECT_TRUE(FaultAritmetico());
  AzzeraFault();
}
