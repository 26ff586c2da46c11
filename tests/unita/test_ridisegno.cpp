// When the plan on the main panel is painted anew: after a change of the section, the plate, the pattern or the ribs, and not behind a
// step of the command that failed. Sections P1.. are 100 + n by 50 + n, see pannello_prova.h.
#include <gtest/gtest.h>

#include "core/aritmetica.h"
#include "corredo/pannello_prova.h"
#include "corredo/registratore.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "panels/InsDati.h"

namespace {

struct Ridisegno : testing::Test {
  const std::vector<Tratto>& tratti = insDati.telaNodo.tratti;
  void SetUp() override {
    PannelloPronto();
    insDati.telaNodo.tratti.clear();
  }
  int Cerchi() const {
    int n = 0;
    for (const Tratto& t : tratti) n += t.forma == Tratto::Forma::Arco && t.colore == 255;
    return n;
  }
  bool Linea(double x1, double y1, double x2, double y2) const {
    for (const Tratto& t : tratti)
      if (t.forma == Tratto::Forma::Segmento && t.x1 == x1 && t.y1 == y1 && t.x2 == x2 && t.y2 == y2) return true;
    return false;
  }
};

void Scrivi(Controllo& c, const char* testo) { ASSERT_TRUE(UtenteScrive(InsDati, c, testo)); }
void Invio(Controllo& c) { ASSERT_TRUE(Scatena(InsDati, c, Evento::Invio)); }

}  // namespace

TEST_F(Ridisegno, Sezione) {
  ASSERT_TRUE(UtenteSceglie(InsDati, insDati.TraveP, 19));  // P20: 120 x 70
  EXPECT_TRUE(Linea(-35, 60, 35, 60));
}

TEST_F(Ridisegno, LatiDellaPiastra) {
  ASSERT_TRUE(UtenteSceglie(InsDati, insDati.GeoP[0], 1));
  Scrivi(insDati.LatoTxt[0], "700");
  Scrivi(insDati.LatoTxt[1], "800");
  Invio(insDati.LatoTxt[1]);
  EXPECT_TRUE(Linea(-350, -400, -350, 400));
}

TEST_F(Ridisegno, NumeroDeiTirafondi) {
  const struct { int voce, cerchi; } attesi[] = {{1, 8}, {2, 6}, {3, 6}, {0, 4}};
  for (const auto& a : attesi) {
    insDati.telaNodo.tratti.clear();
    ASSERT_TRUE(UtenteSceglie(InsDati, insDati.OptionNTir[a.voce], 1));
    EXPECT_EQ(Cerchi(), a.cerchi) << a.voce;
  }
}

TEST_F(Ridisegno, DistanzeDaiBordi) {
  Scrivi(insDati.DTf[1], "33");
  Invio(insDati.DTf[1]);
  ASSERT_EQ(Cerchi(), 4);
  EXPECT_EQ(tratti[tratti.size() - 4].xc, 33 - nodo.LatoZ / 2);
}

TEST_F(Ridisegno, Nervature) {
  ASSERT_TRUE(UtenteSceglie(InsDati, insDati.Op_Tip[0], 1));
  const std::size_t senza = tratti.size();
  EXPECT_EQ(Cerchi(), 4);
  ASSERT_TRUE(UtenteSceglie(InsDati, insDati.Op_Tip[1], 1));
  EXPECT_EQ(tratti.size(), senza + 20);  // ten lines a side
  Scrivi(insDati.HFazzTxt[1], "15");
  Invio(insDati.HFazzTxt[1]);
  const double x = nodo.Sezione.B / 2 + 15;
  EXPECT_TRUE(Linea(x, -nodo.LatoY / 2, x, nodo.LatoY / 2));
}

TEST_F(Ridisegno, NonDopoUnPassoFallito) {
  ASSERT_TRUE(UtenteSceglie(InsDati, insDati.OptionNTir[1], 1));
  const std::size_t prima = tratti.size();
  Scrivi(insDati.DTf[1], "1e400");                                // no double holds it
  ASSERT_TRUE(UtenteSceglie(InsDati, insDati.OptionNTir[0], 1));  // reads the distance again
  EXPECT_EQ(tratti.size(), prima);
  EXPECT_EQ(nodo.NTir, 4);
}

// The joint may hold half of what was typed: the plan in sight stays, the chamfers follow the ribs.
TEST_F(Ridisegno, DopoUnPassoFallitoSeguonoSoloGliSmussi) {
  nodo.HNerv = 90;
  passi.fallito = true;
  RidisegnaNodo();
  EXPECT_TRUE(tratti.empty());
  EXPECT_EQ(nodo.NervTaglio, 30);  // 90 / 3
  passi = {};
  RidisegnaNodo();
  EXPECT_FALSE(tratti.empty());
}
