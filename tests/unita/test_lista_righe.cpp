// The five rows of the load list one by one: what each field writes and shows, what a row without a group keeps; the texts.
#include "corredo/banco_insdati.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

constexpr const char* CAMPI[] = {"TxtSN", "TxtTy", "TxtTz", "TxtMt", "TxtMy", "TxtMz"};

double* Memoria(int k) {
  double* const memoria[] = {nodo.SollN, nodo.SollTy, nodo.SollTz, nodo.SollMt, nodo.SollMy, nodo.SollMz};
  return memoria[k];
}

struct Righe72 : Pannello71 {};

void Aggiungi(int n) {
  for (int i = 0; i < n; i++) Scatena(InsDati, insDati.Singolo, Evento::Cambio);
}

void RigaVuota(int i) {
  EXPECT_EQ(insDati.Lsa[i].testo, "") << i;
  for (const char* c : CAMPI) EXPECT_EQ(C(c, i).testo, "") << c << i;
  EXPECT_EQ(insDati.CasCar[i].scelta, 0) << i;
}

// Groups 1..n: component k of group g is 10 g + k, class II.
void Riempi(int n) {
  for (int g = 1; g <= n; g++) {
    for (int k = 0; k < 6; k++) Memoria(k)[g] = 10 * g + k;
    nodo.SollCC[g] = 1;
  }
  AggiornaRighe();
}

TEST_F(Righe72, EveryFieldOfEveryRowStores) {
  Aggiungi(9);
  UtenteSceglie(InsDati, insDati.ScrollSa, 5);  // rows show groups 3 to 7
  for (int i = 0; i < 5; i++) {
    for (int k = 0; k < 6; k++) Scrivi(CAMPI[k], i, std::to_string(100 * i + k + 1).c_str());
    Scrivi("Lsa", i, ("n" + std::to_string(i)).c_str());
    UtenteSceglie(InsDati, insDati.CasCar[i], 1);
  }
  for (int g = 1; g <= 9; g++) {
    const bool scritto = g >= 3 && g <= 7;
    for (int k = 0; k < 6; k++) EXPECT_EQ(Memoria(k)[g], scritto ? 100 * (g - 3) + k + 1 : 0) << CAMPI[k] << g;
    EXPECT_EQ(nodo.SollNome[g], scritto ? "n" + std::to_string(g - 3) : "Soll " + std::to_string(g));
    EXPECT_EQ(nodo.SollCC[g], scritto ? 1 : 0) << g;
  }
  for (int i = 0; i < 5; i++) {
    for (int k = 0; k < 6; k++) {
      Scrivi(CAMPI[k], i, "");
      EXPECT_EQ(Memoria(k)[i + 3], 0) << CAMPI[k] << i;
    }
    UtenteSceglie(InsDati, insDati.CasCar[i], 0);
    EXPECT_EQ(nodo.SollCC[i + 3], 0) << i;
  }
}

TEST_F(Righe72, StatusTextsOfEveryRow) {
  // clang-format off
  const char* testi[] = {"Inserire il valore della sollecitazione di sforzo normale", "Inserire il valore della sollecitazione di taglio Y",
                         "Inserire il valore della sollecitazione di taglio Z", "Inserire il valore della sollecitazione di momento torcente",
                         "Inserire il valore della sollecitazione di momento Y", "Inserire il valore della sollecitazione di momento Z"};
  // clang-format on
  Aggiungi(5);
  for (int i = 0; i < 5; i++) {
    for (int k = 0; k < 6; k++) {
      Scatena(InsDati, C(CAMPI[k], i), Evento::Passa);
      EXPECT_EQ(insDati.StatoTxt, testi[k]) << i;
    }
    Scatena(InsDati, insDati.Lsa[i], Evento::Passa);
    EXPECT_EQ(insDati.StatoTxt, "Doppio click per rimuovere il gruppo di sollecitazioni") << i;
  }
}

TEST_F(Righe72, ADoubleClickOnEveryRow) {
  for (int i = 0; i < 5; i++) {
    nodo.NumSoll = 0;
    Aggiungi(5);
    Scatena(InsDati, insDati.Lsa[i], Evento::Doppio);
    EXPECT_EQ(nodo.NumSoll, 4);
    for (int g = 1; g <= 4; g++) EXPECT_EQ(nodo.SollNome[g], "Soll " + std::to_string(g <= i ? g : g + 1)) << i;
  }
}

// A row whose group is gone is emptied whole: its last one, a group from the middle, all of them.
TEST_F(Righe72, RemovalEmptiesTheWholeRow) {
  Aggiungi(4);
  Riempi(4);
  EXPECT_EQ(insDati.TxtMz[3].testo, "45");
  EXPECT_EQ(insDati.CasCar[3].scelta, 1);
  Scatena(InsDati, insDati.RimuoviSA, Evento::Cambio);
  RigaVuota(3);
  EXPECT_EQ(insDati.TxtMz[2].testo, "35");
  Scatena(InsDati, insDati.Lsa[0], Evento::Doppio);
  for (int i = 2; i < 5; i++) RigaVuota(i);
  EXPECT_EQ(insDati.TxtSN[0].testo, "20");
  Scatena(InsDati, insDati.RimuoviTSA, Evento::Cambio);
  for (int i = 0; i < 5; i++) RigaVuota(i);
}

// What an earlier list left in a hidden row does not come back with a new group.
TEST_F(Righe72, ANewGroupStandsInAnEmptyRow) {
  Aggiungi(2);
  Riempi(2);
  nodo.NumSoll = 0;
  AggiornaRighe();
  EXPECT_FALSE(insDati.Lsa[0].visibile);
  Aggiungi(1);
  EXPECT_TRUE(insDati.Lsa[0].visibile);
  for (const char* c : CAMPI) EXPECT_EQ(C(c, 0).testo, "") << c;
  EXPECT_EQ(insDati.CasCar[0].scelta, 0);
  EXPECT_EQ(insDati.Lsa[0].testo, "Soll 1");
}

// Each component by itself: "0" after scrolling, empty after a removal. Any class but 0 is ticked.
TEST_F(Righe72, ZerosOfEveryComponent) {
  Aggiungi(7);
  nodo.SollCC[2] = 3;
  UtenteSceglie(InsDati, insDati.ScrollSa, 3);
  EXPECT_EQ(insDati.CasCar[1].scelta, 1);
  for (const char* c : CAMPI) EXPECT_EQ(C(c, 1).testo, "0") << c;
  Scatena(InsDati, insDati.Lsa[0], Evento::Doppio);
  for (const char* c : CAMPI) EXPECT_EQ(C(c, 0).testo, "") << c;
  EXPECT_EQ(insDati.CasCar[0].scelta, 1);
}

// Above five groups: a removal from the middle leaves the bar where it stands, that of the last group takes it to the end.
TEST_F(Righe72, TheBarAfterARemoval) {
  Aggiungi(9);
  UtenteSceglie(InsDati, insDati.ScrollSa, 3);
  Scatena(InsDati, insDati.Lsa[1], Evento::Doppio);
  EXPECT_EQ(insDati.ScrollSa.massimo, 6);  // 8 - 2
  EXPECT_EQ(insDati.ScrollSa.scelta, 3);
  EXPECT_EQ(insDati.Lsa[1].testo, "Soll 3");
  Scatena(InsDati, insDati.RimuoviSA, Evento::Cambio);
  EXPECT_EQ(insDati.ScrollSa.massimo, 5);
  EXPECT_EQ(insDati.ScrollSa.scelta, 5);
  EXPECT_EQ(insDati.Lsa[4].testo, "Soll 8");  // group 7
}

TEST_F(Righe72, LimitStatesHideTheClass) {
  UtenteSceglie(InsDati, insDati.TipoVer[1], 1);
  Aggiungi(6);
  for (const Controllo& c : insDati.CasCar) EXPECT_FALSE(c.visibile);
  EXPECT_TRUE(insDati.TxtMz[4].visibile);
}

TEST_F(Righe72, RemovalOutsideTheListDoesNothing) {
  Aggiungi(2);
  for (int n : {-1, 0, 3, 201}) RimuoviGruppo(n);
  EXPECT_EQ(nodo.NumSoll, 2);
}

// ---- texts ----

TEST_F(Righe72, CaptionsAndStatusTexts) {
  // clang-format off
  const struct { Controllo* c; const char* didascalia; const char* stato; } attesi[] = {
      {&insDati.Singolo, "Agg. sing.", "Cliccare per inserire un nuovo gruppo di sollecitazioni agenti"},
      {&insDati.RimuoviSA, "Rim. ultimo", "Cliccare per rimuovere l'ultimo gruppo di sollecitazioni della lista"},
      {&insDati.RimuoviTSA, "Rim. tutto  ", "Cliccare per rimuovere tutti i gruppi di sollecitazioni"},
      {&insDati.Doppi, "Rim. doppi", "Cliccare per rimuovere i gruppi di sollecitazioni ripetuti più volte"},
      {&insDati.MaxMin, "Max e min",
       "Cliccare per ridurre l'elenco di sollecitazioni agenti ai gruppi contenenti le sollecitazioni massime e minime"},
      {&insDati.Label5, "Origine", "Nomi dei casi di carico (se importati da 3d indicano caso, asta e nodo di provenienza)"},
      {&insDati.Label27, "N", "Sollecitazioni di sforzo normale"}, {&insDati.Label26, "Ty", "Sollecitazioni di taglio Y"},
      {&insDati.Label13, "Tz", "Sollecitazioni di taglio Z"}, {&insDati.Label14, "My", "Sollecitazioni di momento Y"},
      {&insDati.Label16, "Mz", "Sollecitazioni di momento Z"}, {&insDati.Label18, "Mt", "Sollecitazioni di momento torcente"},
      {&insDati.TxtSN[0], "", "Inserire il valore della sollecitazione di sforzo normale"},
      {&insDati.TxtTy[1], "", "Inserire il valore della sollecitazione di taglio Y"},
      {&insDati.TxtTz[2], "", "Inserire il valore della sollecitazione di taglio Z"},
      {&insDati.TxtMt[3], "", "Inserire il valore della sollecitazione di momento torcente"},
      {&insDati.TxtMy[4], "", "Inserire il valore della sollecitazione di momento Y"},
      {&insDati.TxtMz[0], "", "Inserire il valore della sollecitazione di momento Z"}};
  // clang-format on
  for (const auto& a : attesi) {
    insDati.StatoTxt.clear();
    EXPECT_EQ(a.c->testo, a.didascalia);
    Scatena(InsDati, *a.c, Evento::Passa);
    EXPECT_EQ(insDati.StatoTxt, a.stato);
  }
  insDati.StatoTxt = "prima";  // none of its own
  Scatena(InsDati, insDati.Label4, Evento::Passa);
  EXPECT_EQ(insDati.StatoTxt, "prima");
  EXPECT_EQ(insDati.Label4.testo, "C.c. II");
  EXPECT_EQ(insDati.EsportaSollButt.testo, "Esporta su file");
  EXPECT_EQ(insDati.ImpS3D.testo, "Imp. 3D");
}

TEST_F(Righe72, NameTellsOfTheDoubleClickOnlyWhileNotEmpty) {
  insDati.StatoTxt = "prima";
  Scatena(InsDati, insDati.Lsa[0], Evento::Passa);
  EXPECT_EQ(insDati.StatoTxt, "prima");
  Aggiungi(1);
  Scatena(InsDati, insDati.Lsa[0], Evento::Passa);
  EXPECT_EQ(insDati.StatoTxt, "Doppio click per rimuovere il gruppo di sollecitazioni");
  Scrivi("Lsa", 0, "");  // a visible row without a name
  insDati.StatoTxt = "prima";
  Scatena(InsDati, insDati.Lsa[0], Evento::Passa);
  EXPECT_EQ(insDati.StatoTxt, "prima");
}

}  // namespace
