// The load list: rows, scroll bar, commands, the two reductions. Stored units daN and daN cm.
#include <gtest/gtest.h>

#include "core/aritmetica.h"
#include "corredo/pannello_prova.h"
#include "corredo/registratore.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"

namespace {

using Testi = std::vector<std::string>;

class Lista72 : public testing::Test {
 protected:
  void SetUp() override {
    PannelloPronto();
    registratore.eventi.clear();
  }
};

void Premi(Controllo& c) { ASSERT_TRUE(Scatena(InsDati, c, Evento::Cambio)); }
void Scrivi(Controllo& c, const char* t) { ASSERT_TRUE(UtenteScrive(InsDati, c, t)); }
void Aggiungi(int n) {
  for (int i = 0; i < n; i++) Premi(insDati.Singolo);
}
void Scorri(int v) { ASSERT_TRUE(UtenteSceglie(InsDati, insDati.ScrollSa, v)); }

void Gruppo(int n, double N, double ty = 0, double tz = 0, double mt = 0, double my = 0, double mz = 0, std::int16_t cc = 0) {
  nodo.SollN[n] = N;
  nodo.SollTy[n] = ty;
  nodo.SollTz[n] = tz;
  nodo.SollMt[n] = mt;
  nodo.SollMy[n] = my;
  nodo.SollMz[n] = mz;
  nodo.SollCC[n] = cc;
}

int RigheVisibili() {
  int n = 0;
  for (int i = 0; i < 5; i++) {
    if (!insDati.Lsa[i].visibile) {
      for (const Controllo* c : {&insDati.TxtSN[i], &insDati.TxtTy[i], &insDati.TxtTz[i], &insDati.TxtMt[i], &insDati.TxtMy[i],
                                 &insDati.TxtMz[i], &insDati.CasCar[i]})
        EXPECT_FALSE(c->visibile) << i;
      continue;
    }
    EXPECT_EQ(n, i) << "visible rows come first";
    n++;
    for (const Controllo* c :
         {&insDati.TxtSN[i], &insDati.TxtTy[i], &insDati.TxtTz[i], &insDati.TxtMt[i], &insDati.TxtMy[i], &insDati.TxtMz[i]})
      EXPECT_TRUE(c->visibile);
  }
  return n;
}

Testi Nomi() {
  Testi t;
  for (const Controllo& c : insDati.Lsa) t.push_back(c.testo);
  return t;
}

void Barra(bool abilitata, int valore, int massimo) {
  EXPECT_EQ(insDati.ScrollSa.abilitato, abilitata);
  EXPECT_EQ(insDati.ScrollSa.scelta, valore);
  EXPECT_EQ(insDati.ScrollSa.massimo, massimo);
  EXPECT_EQ(insDati.ScrollSa.minimo, 3);
}

TEST_F(Lista72, StartsEmptyAndHidden) {
  EXPECT_EQ(RigheVisibili(), 0);
  Barra(false, 3, 3);
  EXPECT_EQ(insDati.Soll.testo, "n° 0 [daN, daNcm]");
  EXPECT_FALSE(insDati.EsportaSollButt.abilitato);
}

TEST_F(Lista72, SingoloNamesAndShows) {
  Aggiungi(1);
  EXPECT_EQ(nodo.NumSoll, 1);
  EXPECT_EQ(nodo.SollNome[1], "Soll 1");
  EXPECT_EQ(insDati.Lsa[0].testo, "Soll 1");
  EXPECT_EQ(insDati.TxtSN[0].testo, "");  // empty, not "0"
  EXPECT_EQ(RigheVisibili(), 1);
  EXPECT_TRUE(insDati.CasCar[0].visibile);
  EXPECT_EQ(insDati.Soll.testo, "n° 1 [daN, daNcm]");
  EXPECT_TRUE(insDati.EsportaSollButt.abilitato);
  Aggiungi(4);
  EXPECT_EQ(RigheVisibili(), 5);
  Barra(false, 3, 3);
  Aggiungi(1);
  Barra(true, 4, 4);  // 6 - 2
  EXPECT_EQ(Nomi(), (Testi{"Soll 2", "Soll 3", "Soll 4", "Soll 5", "Soll 6"}));
  EXPECT_EQ(insDati.TxtSN[4].testo, "0");
}

TEST_F(Lista72, SingoloClearsWhatAnEarlierGroupLeft) {
  Gruppo(1, 5, 1, 1, 1, 1, 1, 1);
  Aggiungi(1);
  EXPECT_EQ(nodo.SollN[1], 0);
  EXPECT_EQ(nodo.SollCC[1], 0);
}

TEST_F(Lista72, TheList201) {
  Aggiungi(200);
  EXPECT_TRUE(registratore.eventi.empty());
  Aggiungi(1);
  EXPECT_EQ(registratore.eventi, (Testi{"[messaggio] esclamazione | ERRORE | Errore:numero di sollecitazioni eccessivo"}));
  EXPECT_EQ(nodo.NumSoll, 200);
  EXPECT_EQ(nodo.SollNome[200], "Soll 200");
  Barra(true, 198, 198);
  EXPECT_EQ(insDati.Soll.testo, "n° 200 [daN, daNcm]");
  EXPECT_EQ(insDati.Lsa[4].testo, "Soll 200");  // the last row: 4 + 198 - 2
  UtenteScrive(InsDati, insDati.TxtSN[4], "12.5");
  EXPECT_EQ(nodo.SollN[200], 12.5);
  // The full list uses its last place: with a group gone from the middle the 200th moves up, and the place is empty.
  for (int n = 1; n <= 200; n++) nodo.SollN[n] = n;
  RimuoviGruppo(7);
  EXPECT_EQ(nodo.NumSoll, 199);
  EXPECT_EQ(nodo.SollN[6], 6);
  EXPECT_EQ(nodo.SollN[7], 8);
  EXPECT_EQ(nodo.SollN[199], 200);
  EXPECT_EQ(nodo.SollNome[199], "Soll 200");
  EXPECT_EQ(nodo.SollN[200], 0);
  EXPECT_EQ(nodo.SollNome[200], "");
}

TEST_F(Lista72, FieldsStoreAtOnceDividedByTheFactor) {
  suite.FattForze = 0.01;      // kN
  suite.FattMomenti = 0.0001;  // kN m
  Aggiungi(1);
  Controllo* campi[] = {&insDati.TxtSN[0], &insDati.TxtTy[0], &insDati.TxtTz[0], &insDati.TxtMt[0], &insDati.TxtMy[0], &insDati.TxtMz[0]};
  const char* valori[] = {"-12.5", "1", "2", "3", "4", "5"};
  for (int k = 0; k < 6; k++) Scrivi(*campi[k], valori[k]);
  EXPECT_DOUBLE_EQ(nodo.SollN[1], -1250);  // -12.5 kN
  EXPECT_DOUBLE_EQ(nodo.SollTy[1], 100);
  EXPECT_DOUBLE_EQ(nodo.SollTz[1], 200);
  EXPECT_DOUBLE_EQ(nodo.SollMt[1], 30000);  // 3 kN m
  EXPECT_DOUBLE_EQ(nodo.SollMy[1], 40000);
  EXPECT_DOUBLE_EQ(nodo.SollMz[1], 50000);
  AggiornaRighe();
  for (int k = 0; k < 6; k++) EXPECT_EQ(campi[k]->testo, valori[k]);  // shown times the same factor
  Scrivi(insDati.TxtSN[0], "");
  EXPECT_EQ(nodo.SollN[1], 0);
  Scrivi(insDati.TxtTy[0], "abc");
  EXPECT_EQ(nodo.SollTy[1], 0);
  Scrivi(insDati.TxtTz[0], "7x");
  EXPECT_DOUBLE_EQ(nodo.SollTz[1], 700);
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(Lista72, AnUnknownUnitIsAFaultAtTheFirstEntry) {
  Aggiungi(1);
  nodo.SollN[1] = 77;
  suite.FattForze = 0;
  Scrivi(insDati.TxtSN[0], "5");
  EXPECT_EQ(nodo.SollN[1], 77);
  Scrivi(insDati.TxtSN[0], "0");  // 0 / 0
  EXPECT_EQ(nodo.SollN[1], 77);
  const std::string box = "[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: il comando non può continuare.";
  EXPECT_EQ(registratore.eventi, (Testi{box, box}));
  AggiornaRighe();
  EXPECT_EQ(insDati.TxtSN[0].testo, "0");  // 77 times 0
}

TEST_F(Lista72, AnOverflowKeepsTheStoredValue) {
  Aggiungi(1);
  nodo.SollN[1] = 77;
  Scrivi(insDati.TxtSN[0], "1e999");
  EXPECT_EQ(nodo.SollN[1], 77);
  EXPECT_TRUE(passi.fallito);
}

TEST_F(Lista72, RowsWriteToTheGroupTheyShow) {
  Aggiungi(8);
  Scorri(4);  // row i shows group i + 4 - 2
  Scrivi(insDati.TxtSN[0], "11");
  Scrivi(insDati.Lsa[4], "ultimo");
  UtenteSceglie(InsDati, insDati.CasCar[2], 1);
  EXPECT_EQ(nodo.SollN[2], 11);
  EXPECT_EQ(nodo.SollNome[6], "ultimo");
  EXPECT_EQ(nodo.SollCC[4], 1);
  UtenteSceglie(InsDati, insDati.CasCar[2], 0);
  EXPECT_EQ(nodo.SollCC[4], 0);
  Scrivi(insDati.Lsa[4], "");
  EXPECT_EQ(nodo.SollNome[6], "");  // an empty name stays empty
}

TEST_F(Lista72, ScrollingShowsAndNeverStores) {
  Aggiungi(7);
  for (int n = 1; n <= 7; n++) Gruppo(n, n * 10, 0, 0, 0, 0, 0, n == 2 ? 1 : 0);
  Scorri(3);
  EXPECT_EQ(Nomi(), (Testi{"Soll 1", "Soll 2", "Soll 3", "Soll 4", "Soll 5"}));
  EXPECT_EQ(insDati.TxtSN[0].testo, "10");
  EXPECT_EQ(insDati.TxtTy[0].testo, "0");
  EXPECT_EQ(insDati.CasCar[1].scelta, 1);
  EXPECT_EQ(insDati.CasCar[2].scelta, 0);
  Scorri(99);  // clipped
  Barra(true, 5, 5);
  Scorri(-99);
  Barra(true, 3, 5);
  for (int n = 1; n <= 7; n++) EXPECT_EQ(nodo.SollN[n], n * 10);
}

TEST_F(Lista72, RemoveLast) {
  Premi(insDati.RimuoviSA);  // empty list: nothing
  EXPECT_EQ(nodo.NumSoll, 0);
  Aggiungi(7);
  nodo.SollN[7] = 5;
  Premi(insDati.RimuoviSA);
  EXPECT_EQ(nodo.NumSoll, 6);
  EXPECT_EQ(nodo.SollN[7], 0);
  EXPECT_EQ(nodo.SollNome[7], "Soll 7");  // the name stays until overwritten
  Barra(true, 4, 4);                      // 7 to 6 disables nothing
  Premi(insDati.RimuoviSA);
  Barra(false, 3, 3);  // at 5 it is disabled
  EXPECT_EQ(Nomi(), (Testi{"Soll 1", "Soll 2", "Soll 3", "Soll 4", "Soll 5"}));
  EXPECT_EQ(RigheVisibili(), 5);
  Premi(insDati.RimuoviSA);
  EXPECT_EQ(RigheVisibili(), 4);
  EXPECT_EQ(insDati.Lsa[4].testo, "");
  for (int i = 0; i < 4; i++) Premi(insDati.RimuoviSA);
  EXPECT_EQ(RigheVisibili(), 0);
  EXPECT_FALSE(insDati.EsportaSollButt.abilitato);
  EXPECT_EQ(insDati.Soll.testo, "n° 0 [daN, daNcm]");
}

TEST_F(Lista72, RemoveAllAsks) {
  Aggiungi(8);
  for (int n = 1; n <= 8; n++) Gruppo(n, n, n, n, n, n, n, 1);
  registratore.risposte = {false};
  Premi(insDati.RimuoviTSA);
  const std::string domanda = "[domanda] esclamazione | ATTENZIONE! | Rimozione totale dei dati relativi alle sollecitazioni agenti?";
  EXPECT_EQ(registratore.eventi, (Testi{domanda + " -> Annulla"}));
  EXPECT_EQ(nodo.NumSoll, 8);
  EXPECT_EQ(nodo.SollN[8], 8);
  registratore.risposte = {true};
  Premi(insDati.RimuoviTSA);
  EXPECT_EQ(registratore.eventi.back(), domanda + " -> OK");
  EXPECT_EQ(nodo.NumSoll, 0);
  for (int n = 1; n <= 8; n++) {
    EXPECT_EQ(nodo.SollN[n] + nodo.SollTy[n] + nodo.SollTz[n] + nodo.SollMt[n] + nodo.SollMy[n] + nodo.SollMz[n], 0);
    EXPECT_EQ(nodo.SollCC[n], 0);
    EXPECT_EQ(nodo.SollNome[n], "");
  }
  EXPECT_EQ(RigheVisibili(), 0);
  EXPECT_EQ(Nomi(), (Testi{"", "", "", "", ""}));
  Barra(false, 3, 3);
  EXPECT_EQ(insDati.Soll.testo, "n° 0 [daN, daNcm]");
  EXPECT_FALSE(insDati.EsportaSollButt.abilitato);
}

TEST_F(Lista72, DoubleClickRemovesTheGroupOfTheRow) {
  Aggiungi(8);
  for (int n = 1; n <= 8; n++) Gruppo(n, n == 5 ? 0 : n * 10);
  Scorri(5);                                         // rows show 3 .. 7
  Scatena(InsDati, insDati.Lsa[1], Evento::Doppio);  // group 4
  EXPECT_EQ(nodo.NumSoll, 7);
  EXPECT_EQ(nodo.SollNome[4], "Soll 5");
  EXPECT_EQ(nodo.SollN[5], 60);
  EXPECT_EQ(nodo.SollN[8], 0);
  EXPECT_EQ(nodo.SollNome[8], "");  // the last place is emptied, name too
  Barra(true, 5, 5);
  EXPECT_EQ(Nomi(), (Testi{"Soll 3", "Soll 5", "Soll 6", "Soll 7", "Soll 8"}));
  EXPECT_EQ(insDati.Soll.testo, "n° 7 [daN, daNcm]");
  EXPECT_EQ(insDati.TxtSN[1].testo, "");  // zero right after a removal: empty
  EXPECT_EQ(insDati.TxtSN[2].testo, "60");
  EXPECT_EQ(insDati.TxtTy[2].testo, "");
  Scorri(5);
  EXPECT_EQ(insDati.TxtSN[1].testo, "0");  // after scrolling: 0
}

TEST_F(Lista72, RemovalClipsTheBarAndAtFiveDisablesIt) {
  Aggiungi(7);
  Scorri(5);
  Scatena(InsDati, insDati.Lsa[0], Evento::Doppio);
  Barra(true, 4, 4);
  Scatena(InsDati, insDati.Lsa[0], Evento::Doppio);
  Barra(false, 3, 3);
  EXPECT_EQ(RigheVisibili(), 5);
  Scatena(InsDati, insDati.Lsa[0], Evento::Doppio);
  EXPECT_EQ(RigheVisibili(), 4);
  EXPECT_EQ(insDati.Lsa[4].testo, "");
  for (int i = 0; i < 4; i++) Scatena(InsDati, insDati.Lsa[0], Evento::Doppio);
  EXPECT_EQ(nodo.NumSoll, 0);
  Scatena(InsDati, insDati.Lsa[0], Evento::Doppio);
  EXPECT_EQ(nodo.NumSoll, 0);
  EXPECT_FALSE(insDati.EsportaSollButt.abilitato);
}

TEST_F(Lista72, CopyTakesAllEight) {
  Gruppo(3, 1, 2, 3, 4, 5, 6, 1);
  nodo.SollNome[3] = "tre";
  CopiaGruppo(3, 9);
  EXPECT_EQ(nodo.SollN[9], 1);
  EXPECT_EQ(nodo.SollTy[9], 2);
  EXPECT_EQ(nodo.SollTz[9], 3);
  EXPECT_EQ(nodo.SollMt[9], 4);
  EXPECT_EQ(nodo.SollMy[9], 5);
  EXPECT_EQ(nodo.SollMz[9], 6);
  EXPECT_EQ(nodo.SollCC[9], 1);
  EXPECT_EQ(nodo.SollNome[9], "tre");
  AzzeraGruppo(9);
  EXPECT_EQ(nodo.SollMz[9], 0);
  EXPECT_EQ(nodo.SollCC[9], 0);
  EXPECT_EQ(nodo.SollNome[9], "tre");  // the name is left
}

TEST_F(Lista72, AggiornaRighe) {
  nodo.NumSoll = 3;
  for (int n = 1; n <= 3; n++) nodo.SollNome[n] = "g" + std::to_string(n);
  AggiornaRighe();
  EXPECT_EQ(RigheVisibili(), 3);
  Barra(false, 3, 3);
  EXPECT_EQ(insDati.Lsa[2].testo, "g3");
  EXPECT_EQ(insDati.Soll.testo, "n° 3 [daN, daNcm]");
  EXPECT_TRUE(insDati.EsportaSollButt.abilitato);
  nodo.NumSoll = 12;
  AggiornaRighe();
  EXPECT_EQ(RigheVisibili(), 5);
  Barra(true, 10, 10);  // rows show 8 .. 12
  nodo.NumSoll = 0;
  AggiornaRighe();
  EXPECT_EQ(RigheVisibili(), 0);
  Barra(false, 3, 3);
  EXPECT_FALSE(insDati.EsportaSollButt.abilitato);
}

// ---- doubles ----

TEST_F(Lista72, DoublesKeepTheFirstAndTheOrder) {
  nodo.NumSoll = 7;
  const double N[] = {0, 5, 7, 5.00009, 7, 5, 9, 5.0002};
  for (int n = 1; n <= 7; n++) {
    Gruppo(n, N[n]);
    nodo.SollNome[n] = "g" + std::to_string(n);
  }
  nodo.SollCC[5] = 1;  // differs in the class only
  AggiornaRighe();
  Premi(insDati.Doppi);
  ASSERT_EQ(nodo.NumSoll, 5);  // 3 equals 1 (0.00009 < 0.0001), 4 equals 2, 7 stays (0.0002)
  const char* attesi[] = {"g1", "g2", "g5", "g6", "g7"};
  for (int n = 1; n <= 5; n++) EXPECT_EQ(nodo.SollNome[n], attesi[n - 1]);
  EXPECT_EQ(insDati.Soll.testo, "n° 5 [daN, daNcm]");
  Barra(false, 3, 3);
}

TEST_F(Lista72, EachComponentCountsForADouble) {
  for (int k = 0; k < 6; k++) {
    nodo.NumSoll = 2;
    double v[6] = {};
    Gruppo(1, 0);
    v[k] = 0.0001;  // not less than the tolerance
    Gruppo(2, v[0], v[1], v[2], v[3], v[4], v[5]);
    RimuoviDoppi();
    EXPECT_EQ(nodo.NumSoll, 2) << k;
    v[k] = 0.00009;
    Gruppo(2, v[0], v[1], v[2], v[3], v[4], v[5]);
    RimuoviDoppi();
    EXPECT_EQ(nodo.NumSoll, 1) << k;
  }
}

// Equal class, by its value; near in stored units, whatever is shown.
TEST_F(Lista72, ClassAndUnitOfADouble) {
  nodo.NumSoll = 2;
  Gruppo(1, 5, 0, 0, 0, 0, 0, 1);
  Gruppo(2, 5, 0, 0, 0, 0, 0, 2);
  RimuoviDoppi();
  EXPECT_EQ(nodo.NumSoll, 2);
  suite.FattForze = 0.01;  // kN: the fields differ by 0.00001
  Gruppo(2, 5.001, 0, 0, 0, 0, 0, 1);
  RimuoviDoppi();
  EXPECT_EQ(nodo.NumSoll, 2);
}

TEST_F(Lista72, TwoHundredEqualGroupsBecomeOne) {
  nodo.NumSoll = 200;
  RimuoviDoppi();
  EXPECT_EQ(nodo.NumSoll, 1);
}

// ---- maxima and minima ----

TEST_F(Lista72, MaxMinOfAnEmptyList) {
  Premi(insDati.MaxMin);
  EXPECT_EQ(nodo.NumSoll, 0);
  EXPECT_EQ(RigheVisibili(), 0);
}

TEST_F(Lista72, MaxMinKeepsTheExtremesOnce) {
  // By hand. N: max b (9), min a (1); Ty: max c (3), min d (-4); Tz: all equal: a, a; Mt: max d, min a (tie of a, b, c keeps a);
  // My: max a (6), min b (5; tie of b, c, d keeps b); Mz: all equal: a. e lies between the extremes.
  // Rows b a | c d | a a | d a | a b | a a, without doubles: b a c d.
  nodo.NumSoll = 5;
  Gruppo(1, 1, 0, 2, 0, 6, 8);
  Gruppo(2, 9, 0, 2, 0, 5, 8);
  Gruppo(3, 4, 3, 2, 0, 5, 8);
  Gruppo(4, 4, -4, 2, 1, 5, 8);
  Gruppo(5, 4, 1, 2, 0, 5.5, 8);
  const char* nomi[] = {"", "a", "b", "c", "d", "e"};
  for (int n = 1; n <= 5; n++) nodo.SollNome[n] = nomi[n];
  Premi(insDati.MaxMin);
  ASSERT_EQ(nodo.NumSoll, 4);
  const char* attesi[] = {"b", "a", "c", "d"};
  for (int n = 1; n <= 4; n++) EXPECT_EQ(nodo.SollNome[n], attesi[n - 1]);
  EXPECT_EQ(nodo.SollN[1], 9);
  EXPECT_EQ(nodo.SollTy[4], -4);
  EXPECT_EQ(RigheVisibili(), 4);
  EXPECT_EQ(insDati.TxtTy[0].testo, "");  // b's zero: doubles were removed last
  EXPECT_EQ(insDati.TxtTy[3].testo, "-4");
  EXPECT_EQ(insDati.Soll.testo, "n° 4 [daN, daNcm]");
}

// A class of one group gives that group, once.
TEST_F(Lista72, MaxMinOfASingleGroupOfAClass) {
  nodo.NumSoll = 3;
  Gruppo(1, 4);
  Gruppo(2, 7, 0, 0, 0, 0, 0, 1);
  Gruppo(3, 6);
  Premi(insDati.MaxMin);
  ASSERT_EQ(nodo.NumSoll, 3);
  const double N[] = {6, 4, 7};  // class I: maximum, minimum; class II behind
  for (int n = 1; n <= 3; n++) EXPECT_EQ(nodo.SollN[n], N[n - 1]);
  EXPECT_EQ(nodo.SollCC[3], 1);
}

// Doubles go before the extremes are looked for: the second group, greater by less than the tolerance, is no maximum.
TEST_F(Lista72, MaxMinOfGroupsWithoutDoubles) {
  nodo.NumSoll = 3;
  Gruppo(1, 5);
  Gruppo(2, 5.00005);
  Gruppo(3, 1);
  Premi(insDati.MaxMin);
  ASSERT_EQ(nodo.NumSoll, 2);
  EXPECT_EQ(nodo.SollN[1], 5);
  EXPECT_EQ(nodo.SollN[2], 1);
}

// With its sign: of -5, 3 and 1 the maximum is 3, the minimum -5.
TEST_F(Lista72, MaxMinWithTheSign) {
  for (int k = 0; k < 6; k++) {
    nodo.NumSoll = 3;
    const double valori[] = {-5, 3, 1};
    for (int n = 1; n <= 3; n++) {
      double v[6] = {};
      v[k] = valori[n - 1];
      Gruppo(n, v[0], v[1], v[2], v[3], v[4], v[5]);
      nodo.SollNome[n] = "g" + std::to_string(n);
    }
    Premi(insDati.MaxMin);
    // Of the components that are all 0 the first group holds both extremes: it leads the list unless k is the first.
    ASSERT_EQ(nodo.NumSoll, 2) << k;
    EXPECT_EQ(nodo.SollNome[1], k == 0 ? "g2" : "g1") << k;
    EXPECT_EQ(nodo.SollNome[2], k == 0 ? "g1" : "g2") << k;
  }
}

TEST_F(Lista72, MaxMinOfSecondClassOnly) {
  nodo.NumSoll = 30;
  for (int n = 1; n <= 30; n++) Gruppo(n, n * 7 % 31, n * 11 % 31, n * 13 % 31, n * 17 % 31, n * 19 % 31, n * 23 % 31, 1);
  Premi(insDati.MaxMin);
  // The six permutations of 1..30: value 30 stands at n = 22, 14, 19, 20, 13, 4 and value 1 at n = 9, 17, 12, 11, 18, 27
  // (n = 30 / a and 1 / a modulo 31), twelve different groups.
  EXPECT_EQ(nodo.NumSoll, 12);
  for (int n = 1; n <= 12; n++) EXPECT_EQ(nodo.SollCC[n], 1);
  EXPECT_EQ(nodo.SollN[1], 30);
  EXPECT_EQ(nodo.SollN[2], 1);
  EXPECT_EQ(nodo.SollTy[3], 30);
  EXPECT_EQ(nodo.SollTy[4], 1);
  EXPECT_EQ(nodo.SollTz[5], 30);
  EXPECT_EQ(nodo.SollMt[7], 30);
  EXPECT_EQ(nodo.SollMy[9], 30);
  EXPECT_EQ(nodo.SollMz[11], 30);
  EXPECT_EQ(nodo.SollMz[12], 1);
  Barra(true, 10, 10);
}

TEST_F(Lista72, MaxMinPutsTheSecondClassBehind) {
  nodo.NumSoll = 4;
  Gruppo(1, 1, 0, 0, 0, 0, 0, 3);  // any value but 0 is class II
  Gruppo(2, 5);
  Gruppo(3, 2, 0, 0, 0, 0, 0, 3);
  Gruppo(4, 6);
  Premi(insDati.MaxMin);
  ASSERT_EQ(nodo.NumSoll, 4);  // I: max N 6, min N 5; II: max N 2, min N 1, written as 1
  const double N[] = {6, 5, 2, 1};
  const int cc[] = {0, 0, 1, 1};
  for (int n = 1; n <= 4; n++) {
    EXPECT_EQ(nodo.SollN[n], N[n - 1]);
    EXPECT_EQ(nodo.SollCC[n], cc[n - 1]);
  }
}

}  // namespace
