// The panels' records and events, on a small panel of the test's own.
#include "panels/controlli.h"

#include <gtest/gtest.h>

#include <new>

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "corredo/registratore.h"

namespace {

struct StatoFinto {
  bool aperto = false, caricato = false;
  std::string titolo;
  Controllo Schede, Fuori, Dentro, Campo, Serie[3], Comando, Muto, Spunta, Voce[3], Lista, Barra, Figura;
  std::vector<std::string> fatti;  // handlers that ran, with their index
};
StatoFinto finto;

void Fatto(const char* che, int i) { finto.fatti.push_back(std::string(che) + std::to_string(i)); }
void Cambia(int i) { Fatto("cambio", i); }
void Entra(int i) { Fatto("invio", i); }
void Raddoppia(int i) { Fatto("doppio", i); }
void Guasta(int) { SegnalaFault(); }
void Esaurisce(int) {
  Fatto("prima", 0);
  piattaforma.attesa(true);
  SegnalaFault();
  throw std::bad_alloc();
}
void Guarda(int) { Fatto(passi.fallito || FaultAritmetico() ? "sporco" : "pulito", 0); }
const char* StatoDi(int i) { return i == 1 ? "uno" : ""; }
void Passa(const char* t) { finto.fatti.push_back(std::string("passa:") + t); }
void Carica() { finto.fatti.push_back("carica"); }
void Mostrato() { finto.fatti.push_back("mostrato"); }

constexpr const char* NOMI[] = {"zero", "uno", "due"};
constexpr const char* AIUTI[] = {"aiuto 4", "aiuto 5", "aiuto 6"};
const RigaPannello RIGHE[] = {
  {"Schede", Genere::Schede, &finto.Schede, 0, 0, false, "", NOMI},
  {"Fuori", Genere::Cornice, &finto.Fuori, 0, 0, false, "Schede/1", "[mm]"},
  {"Dentro", Genere::Cornice, &finto.Dentro, 0, 0, false, "Fuori"},
  {"Campo", Genere::Campo, &finto.Campo, 0, 0, false, "Dentro", {}, "scrivere", nullptr, Cambia, Entra, Raddoppia},
  {"Serie", Genere::Campo, finto.Serie, 4, 6, true, "", {}, AIUTI, nullptr, Cambia},
  {"Comando", Genere::Comando, &finto.Comando, 0, 0, false, "", "Fai", {}, nullptr, Guarda},
  {"Muto", Genere::Comando, &finto.Muto, 0, 0, false, "", "Niente"},
  {"Spunta", Genere::Spunta, &finto.Spunta, 0, 0, false, "", {}, {}, nullptr, Cambia},
  {"Voce", Genere::Scelta, finto.Voce, 0, 2, true, "", NOMI, {}, StatoDi, Cambia},
  {"Lista", Genere::Lista, &finto.Lista, 0, 0, false, "", {}, {}, nullptr, Cambia},
  {"Barra", Genere::Barra, &finto.Barra, 0, 0, false, "", {}, {}, nullptr, Cambia},
  {"Figura", Genere::Immagine, &finto.Figura, 0, 0, false, "", {}, {}, nullptr, Guasta, nullptr, Esaurisce},
};
const Pannello FINTO = {"Finto", RIGHE, false, &finto.titolo, Carica, Mostrato, Passa, &finto.aperto, &finto.caricato};

using Fatti = std::vector<std::string>;

class Controlli : public testing::Test {
 protected:
  void SetUp() override {
    MontaRegistratore();
    finto = {};
    PreparaPannello(FINTO);
    MostraVoci(finto.Lista, {"Alfa", "beta ", "ALFA"});
    finto.Barra.minimo = 3;
    MostraMassimo(finto.Barra, 10);
    MostraScelta(finto.Barra, 3);
    PannelloAperto(FINTO);
    finto.fatti.clear();
    AzzeraFault();
  }
};

TEST_F(Controlli, CreationTiesRowsAndTexts) {
  EXPECT_EQ(finto.Comando.testo, "Fai");
  EXPECT_EQ(finto.Voce[2].testo, "due");
  EXPECT_EQ(finto.Serie[2].indice, 6);
  EXPECT_EQ(finto.Schede.voci.size(), 3u);
  EXPECT_EQ(finto.Schede.scelta, 0);
  EXPECT_EQ(finto.Lista.scelta, -1);
  EXPECT_EQ(finto.Spunta.scelta, 0);
  EXPECT_EQ(VoceScelta(finto.Voce[0]), -1);
}

TEST_F(Controlli, FindsByNameAndIndexOfTheRow) {
  EXPECT_EQ(TrovaControllo(FINTO, "Serie", 4), &finto.Serie[0]);
  EXPECT_EQ(TrovaControllo(FINTO, "Serie", 6), &finto.Serie[2]);
  EXPECT_EQ(TrovaControllo(FINTO, "Serie", 3), nullptr);
  EXPECT_EQ(TrovaControllo(FINTO, "Serie", 7), nullptr);
  EXPECT_EQ(TrovaControllo(FINTO, "Serie", SENZA_INDICE), nullptr);
  EXPECT_EQ(TrovaControllo(FINTO, "Campo", SENZA_INDICE), &finto.Campo);
  EXPECT_EQ(TrovaControllo(FINTO, "Campo", 1), nullptr);
  EXPECT_EQ(TrovaControllo(FINTO, "Voce", SENZA_INDICE), &finto.Voce[0]);  // stands for the whole choice
  EXPECT_EQ(TrovaControllo(FINTO, "campo", SENZA_INDICE), nullptr);
  EXPECT_EQ(TrovaRiga(FINTO, "Nessuno"), nullptr);
}

TEST_F(Controlli, FramesHideAndDisableWhatTheyHold) {
  MostraScelta(finto.Schede, 2);  // another tab on top does not hide
  EXPECT_TRUE(Visibile(FINTO, finto.Campo));
  MostraVisibile(finto.Fuori, false);
  EXPECT_FALSE(Visibile(FINTO, finto.Campo));
  EXPECT_TRUE(Visibile(FINTO, finto.Comando));
  MostraVisibile(finto.Fuori, true);
  MostraAbilitato(finto.Dentro, false);
  EXPECT_FALSE(Abilitato(FINTO, finto.Campo));
  EXPECT_TRUE(Abilitato(FINTO, finto.Fuori));
  PannelloChiuso(FINTO);
  EXPECT_FALSE(Visibile(FINTO, finto.Comando));
}

TEST_F(Controlli, OpeningLoadsOnceAndTellsEachTime) {
  PannelloChiuso(FINTO);
  PannelloAperto(FINTO);
  EXPECT_EQ(finto.fatti, (Fatti{"mostrato"}));
  finto.caricato = false;
  PannelloAperto(FINTO);
  EXPECT_EQ(finto.fatti, (Fatti{"mostrato", "carica", "mostrato"}));
}

TEST_F(Controlli, SettingFromCodeRunsTheHandlerAlsoOnTheSameValue) {
  ImpostaTesto(finto.Serie[1], "7");
  ImpostaTesto(finto.Serie[1], "7");
  ImpostaScelta(finto.Lista, 0);
  ImpostaScelta(finto.Lista, 0);
  EXPECT_EQ(finto.fatti, (Fatti{"cambio5", "cambio5", "cambio0", "cambio0"}));
}

TEST_F(Controlli, ShowingRunsNoHandler) {
  MostraTesto(finto.Campo, "x");
  MostraScelta(finto.Spunta, 1);
  MostraMassimo(finto.Barra, 5);
  MostraVoci(finto.Lista, {"a"});
  EXPECT_TRUE(finto.fatti.empty());
  EXPECT_EQ(finto.Campo.testo, "x");
  EXPECT_EQ(finto.Lista.scelta, -1);
}

TEST_F(Controlli, APositionOutOfRangeIsAFailedStep) {
  ImpostaScelta(finto.Lista, 1);
  finto.fatti.clear();
  for (int p : {-1, 3, 1000}) {
    passi = {};
    ImpostaScelta(finto.Lista, p);
    EXPECT_TRUE(passi.fallito) << p;
  }
  EXPECT_EQ(finto.Lista.scelta, 1);
  EXPECT_TRUE(finto.fatti.empty());
}

TEST_F(Controlli, BarClipsAndTickTakesAnyNumberButZero) {
  ImpostaScelta(finto.Barra, 99);
  EXPECT_EQ(finto.Barra.scelta, 10);
  ImpostaScelta(finto.Barra, -5);
  EXPECT_EQ(finto.Barra.scelta, 3);
  ImpostaScelta(finto.Barra, 9);
  MostraMassimo(finto.Barra, 7);
  EXPECT_EQ(finto.Barra.scelta, 7);
  MostraMassimo(finto.Barra, 0);
  EXPECT_EQ(finto.Barra.massimo, 3);  // never below the minimum
  ImpostaScelta(finto.Spunta, 7);
  EXPECT_EQ(finto.Spunta.scelta, 1);
  ImpostaScelta(finto.Spunta, 0);
  EXPECT_EQ(finto.Spunta.scelta, 0);
}

TEST_F(Controlli, ExclusiveChoiceHasOneEntry) {
  SelezionaVoce(finto.Voce[0], 2);
  SelezionaVoce(finto.Voce[0], 1);
  EXPECT_EQ(VoceScelta(finto.Voce[0]), 1);
  EXPECT_EQ(finto.Voce[0].scelta + finto.Voce[1].scelta + finto.Voce[2].scelta, 1);
  EXPECT_EQ(finto.fatti, (Fatti{"cambio2", "cambio1"}));
  SelezionaVoce(finto.Voce[0], 3);
  EXPECT_TRUE(passi.fallito);
  EXPECT_EQ(VoceScelta(finto.Voce[0]), 1);
}

TEST_F(Controlli, ListByTextIgnoresCaseAndKeepsBlanks) {
  EXPECT_TRUE(ImpostaVoce(finto.Lista, "BETA "));
  EXPECT_EQ(finto.Lista.scelta, 1);
  EXPECT_FALSE(ImpostaVoce(finto.Lista, "beta"));  // the entry has a trailing blank
  EXPECT_EQ(finto.Lista.scelta, 1);
  EXPECT_TRUE(ImpostaVoce(finto.Lista, "alfa"));
  EXPECT_EQ(finto.Lista.scelta, 0);  // the first that is equal
  EXPECT_FALSE(passi.fallito);       // a refused text is an expected answer
  EXPECT_EQ(finto.fatti.size(), 2u);
}

TEST_F(Controlli, UserEventsClearTheStatusBeforeTheHandler) {
  passi.fallito = true;
  SegnalaFault();
  EXPECT_TRUE(Scatena(FINTO, finto.Comando, Evento::Cambio));
  EXPECT_EQ(finto.fatti, (Fatti{"pulito0"}));
  EXPECT_TRUE(registratore.eventi.empty());
}

// One box, no fault beside it; the pointer no longer waits, and the next command runs as ever.
TEST_F(Controlli, AHandlerWithoutMemoryEndsWithItsBox) {
  EXPECT_TRUE(Scatena(FINTO, finto.Figura, Evento::Doppio));
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(registratore.eventi[0], "[messaggio] critica | NODO COLONNA - PLINTO | Memoria insufficiente: il comando non può continuare.");
  EXPECT_FALSE(FaultAritmetico());
  EXPECT_FALSE(registratore.attesa);
  Scatena(FINTO, finto.Comando, Evento::Cambio);
  EXPECT_EQ(finto.fatti, (Fatti{"prima0", "pulito0"}));
}

TEST_F(Controlli, AFaultOfAHandlerShowsItsBox) {
  Scatena(FINTO, finto.Figura, Evento::Cambio);
  EXPECT_EQ(registratore.eventi,
            (Fatti{"[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: il comando non può continuare."}));
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(Controlli, WhatHasNoHandlerIsNotCarriedOut) {
  EXPECT_FALSE(Scatena(FINTO, finto.Muto, Evento::Cambio));
  EXPECT_FALSE(Scatena(FINTO, finto.Muto, Evento::Doppio));
  EXPECT_FALSE(Scatena(FINTO, finto.Muto, Evento::Invio));
  EXPECT_TRUE(Scatena(FINTO, finto.Serie[0], Evento::Invio));  // Enter in a field always goes
  EXPECT_TRUE(UtenteSceglie(FINTO, finto.Schede, 1));          // a page turns without a handler
  EXPECT_EQ(finto.Schede.scelta, 1);
}

TEST_F(Controlli, UserInputStoresThenFires) {
  EXPECT_TRUE(UtenteScrive(FINTO, finto.Serie[2], "12"));
  EXPECT_EQ(finto.Serie[2].testo, "12");
  EXPECT_FALSE(UtenteScrive(FINTO, finto.Comando, "12"));
  EXPECT_EQ(finto.Comando.testo, "Fai");
  EXPECT_TRUE(UtenteSceglie(FINTO, finto.Voce[1], 1));
  EXPECT_FALSE(UtenteSceglie(FINTO, finto.Lista, 3));
  EXPECT_TRUE(UtenteSceglie(FINTO, finto.Barra, 99));
  EXPECT_EQ(finto.Barra.scelta, 10);
  EXPECT_EQ(finto.fatti, (Fatti{"cambio6", "cambio1", "cambio0"}));
  Scatena(FINTO, finto.Campo, Evento::Invio);
  Scatena(FINTO, finto.Campo, Evento::Doppio);
  EXPECT_EQ(finto.fatti.back(), "doppio0");
  EXPECT_EQ(finto.fatti[3], "invio0");
}

TEST_F(Controlli, PointerTellsTextsAndFramesClearThem) {
  Scatena(FINTO, finto.Campo, Evento::Passa);
  Scatena(FINTO, finto.Serie[1], Evento::Passa);
  Scatena(FINTO, finto.Voce[1], Evento::Passa);
  Scatena(FINTO, finto.Voce[2], Evento::Passa);  // no text just now: nothing
  Scatena(FINTO, finto.Comando, Evento::Passa);  // no text: nothing
  Scatena(FINTO, finto.Fuori, Evento::Passa);
  PassaSulPannello(FINTO);
  EXPECT_EQ(finto.fatti, (Fatti{"passa:scrivere", "passa:aiuto 5", "passa:uno", "passa:", "passa:"}));
}

}  // namespace
