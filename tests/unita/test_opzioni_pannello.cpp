// The options panel: which entry of the file each field shows and stores, and the values that Opz leaves alone. The file used
// here holds 100 + its entry's number at each entry, but for the choices 15, 16 and 18.
#include <gtest/gtest.h>

#include "core/aritmetica.h"
#include "core/file.h"
#include "corredo/registratore.h"
#include "corredo/suite_prova.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/Op_Nodo.h"

namespace {

// Field of the panel and entry of the options.
struct CampoVoce {
  int campo, voce;
};
// clang-format off
constexpr CampoVoce CAMPI[] = {{0, 0}, {1, 1}, {2, 2},   {3, 3},   {4, 4},   {5, 5},   {6, 6},   {7, 7},   {8, 8},   {9, 9},
                               {10, 10}, {11, 11}, {12, 12}, {13, 13}, {14, 14}, {15, 19}, {16, 20}, {25, 25}, {26, 26}, {27, 27}};
// clang-format on

struct OpzioniPannello : testing::Test {
  void Avvia(int quote, int inferiori, int distinta) {
    const std::string radice = PreparaSuite("opzioni_pannello");
    std::string t;
    for (int i = 0; i < NumParNodo; ++i) {
      const int v = i == 15 ? quote : i == 16 ? inferiori : i == 18 ? distinta : 100 + i;
      t += " " + std::to_string(v) + " \r\n";
    }
    ScriviByte(radice + "/custom/OpzioniNodi1-5.txt", t);
    ASSERT_TRUE(AvviaSuite(radice));
  }
  static void Premi(const Pannello& p, const char* nome) { Scatena(p, *TrovaControllo(p, nome, SENZA_INDICE), Evento::Cambio); }
  static std::string File() { return LeggiByte(RisolviPercorso(suite.DirCustom + "\\OpzioniNodi1-5.txt")); }
};

TEST_F(OpzioniPannello, OgniCampoLaSuaVoce) {
  Avvia(1, 0, 1);
  for (const CampoVoce& c : CAMPI) EXPECT_EQ(opNodo.Par_Nodo[c.campo].testo, std::to_string(100 + c.voce)) << c.campo;
  EXPECT_EQ(VoceScelta(opNodo.Option1[0]), 0);
  EXPECT_EQ(opNodo.CheckQuote.scelta, 1);
  EXPECT_EQ(opNodo.CheckDistinta.scelta, 1);
  EXPECT_EQ(suite.ParNodo[17], 113);
  Avvia(2, 7, 0);  // ticked by 1 alone; below by anything but 0
  EXPECT_EQ(VoceScelta(opNodo.Option1[0]), 1);
  EXPECT_EQ(opNodo.CheckQuote.scelta, 0);
  EXPECT_EQ(opNodo.CheckDistinta.scelta, 0);
  Avvia(1, 0, 0);  // each tick by its own entry, 15 and 18
  EXPECT_EQ(opNodo.CheckQuote.scelta, 1);
  EXPECT_EQ(opNodo.CheckDistinta.scelta, 0);
  Avvia(0, 0, 1);
  EXPECT_EQ(opNodo.CheckQuote.scelta, 0);
  EXPECT_EQ(opNodo.CheckDistinta.scelta, 1);
}

TEST_F(OpzioniPannello, OgniCampoScriveLaSuaVoce) {
  Avvia(1, 0, 1);
  for (const CampoVoce& c : CAMPI) UtenteScrive(Op_Nodo, opNodo.Par_Nodo[c.campo], std::to_string(200 + c.campo));
  Premi(Op_Nodo, "Def");
  double atteso[NumParNodo];
  for (int i = 0; i < NumParNodo; ++i) atteso[i] = 100 + i;  // 21 to 24 are not shown and stay
  for (const CampoVoce& c : CAMPI) atteso[c.voce] = 200 + c.campo;
  atteso[15] = 1, atteso[16] = 0, atteso[17] = 213, atteso[18] = 1;
  std::string t;
  for (int i = 0; i < NumParNodo; ++i) {
    EXPECT_EQ(suite.ParNodo[i], atteso[i]) << i;
    t += " " + std::to_string(static_cast<int>(atteso[i])) + " \r\n";
  }
  EXPECT_EQ(File(), t);
}

TEST_F(OpzioniPannello, OpzMostraIValoriMenoQuattroCampi) {
  Avvia(1, 0, 1);
  for (const CampoVoce& c : CAMPI) MostraTesto(opNodo.Par_Nodo[c.campo], "x");
  for (int i = 0; i < NumParNodo; ++i) suite.ParNodo[i] = 300 + i;
  registratore.pannelli.clear();
  Premi(InsDati, "Opz");
  EXPECT_EQ(registratore.pannelli, std::vector<std::string>{"Op_Nodo"});
  for (const CampoVoce& c : CAMPI) {
    const bool lasciato = c.campo == 16 || c.campo >= 25;
    const int mostrato = c.campo == 13 ? 317 : 300 + c.voce;  // the unsigned distance
    EXPECT_EQ(opNodo.Par_Nodo[c.campo].testo, lasciato ? "x" : std::to_string(mostrato)) << c.campo;
  }
  EXPECT_EQ(VoceScelta(opNodo.Option1[0]), 1);
  EXPECT_EQ(opNodo.CheckQuote.scelta, 0);
  EXPECT_EQ(opNodo.CheckDistinta.scelta, 0);
  suite.ParNodo[13] = suite.ParNodo[17] = 12;
  MostraTesto(opNodo.Par_Nodo[13], "x");  // typed and left
  Premi(InsDati, "Opz");
  EXPECT_EQ(opNodo.Par_Nodo[13].testo, "12");
}

// Back to "Quote sup.", and both ticks taken off: their entries go to 0, the signed distance is the one entered.
TEST_F(OpzioniPannello, SceltaESpunteTolte) {
  Avvia(1, 1, 1);
  ApplicaOpzioni();
  EXPECT_EQ(suite.ParNodo[16], 1);
  EXPECT_EQ(suite.ParNodo[13], -220);  // -113 - 107
  EXPECT_EQ(suite.ParNodo[15], 1);
  EXPECT_EQ(suite.ParNodo[18], 1);
  UtenteSceglie(Op_Nodo, opNodo.Option1[0], 1);
  UtenteSceglie(Op_Nodo, opNodo.CheckQuote, 0);
  UtenteSceglie(Op_Nodo, opNodo.CheckDistinta, 0);
  ApplicaOpzioni();
  EXPECT_EQ(suite.ParNodo[15], 0);
  EXPECT_EQ(suite.ParNodo[18], 0);
  EXPECT_EQ(suite.ParNodo[16], 0);
  EXPECT_EQ(suite.ParNodo[13], 113);
  EXPECT_EQ(suite.ParNodo[17], 113);
}

// Annulla only hides: the options stay, and so does what was typed in the fields that Opz leaves alone. Salva does not hide.
TEST_F(OpzioniPannello, AnnullaNascondeESalvaNo) {
  Avvia(1, 0, 1);
  Premi(InsDati, "Opz");
  UtenteScrive(Op_Nodo, opNodo.Par_Nodo[0], "7");
  UtenteScrive(Op_Nodo, opNodo.Par_Nodo[16], "8");
  Premi(Op_Nodo, "Annulla");
  EXPECT_FALSE(opNodo.aperto);
  EXPECT_EQ(suite.ParNodo[0], 100);
  EXPECT_EQ(suite.ParNodo[20], 120);
  EXPECT_EQ(opNodo.Par_Nodo[0].testo, "7");
  Premi(InsDati, "Opz");
  EXPECT_EQ(opNodo.Par_Nodo[0].testo, "100");
  EXPECT_EQ(opNodo.Par_Nodo[16].testo, "8");
  Premi(Op_Nodo, "Def");
  EXPECT_TRUE(opNodo.aperto);
  EXPECT_EQ(suite.ParNodo[20], 8);
}

// After a restart the field shows the signed distance, and the next application turns it again: -(-213) - 107.
TEST_F(OpzioniPannello, RiavvioConQuoteInferiori) {
  Avvia(1, 0, 1);
  UtenteSceglie(Op_Nodo, opNodo.Option1[1], 1);
  Premi(Op_Nodo, "Def");
  EXPECT_EQ(suite.ParNodo[13], -220);  // -113 - 107
  EXPECT_EQ(suite.ParNodo[17], 113);
  const std::string radice = suite.DirRoot;  // the start clears the record
  ASSERT_TRUE(AvviaSuite(radice));
  EXPECT_EQ(opNodo.Par_Nodo[13].testo, "-220");
  EXPECT_EQ(suite.ParNodo[17], -220);
  ApplicaOpzioni();
  EXPECT_EQ(suite.ParNodo[13], 113);  // 220 - 107
  EXPECT_EQ(suite.ParNodo[17], -220);
}

// A distance that no double holds: the fault's box, the value and the file as they were.
TEST_F(OpzioniPannello, DistanzaSmisurata) {
  Avvia(1, 0, 1);
  const std::string prima = File();
  UtenteScrive(Op_Nodo, opNodo.Par_Nodo[7], "1.7E+308");
  UtenteScrive(Op_Nodo, opNodo.Par_Nodo[13], "1.7E+308");
  UtenteSceglie(Op_Nodo, opNodo.Option1[1], 1);
  for (const char* comando : {"Def", "Applica", "Chiudi"}) {
    registratore.eventi.clear();
    Premi(Op_Nodo, comando);
    EXPECT_EQ(registratore.eventi,
              (std::vector<std::string>{"[messaggio] critica | NODO COLONNA - PLINTO | Errore aritmetico: il comando non può continuare."}))
      << comando;
    EXPECT_EQ(suite.ParNodo[13], 1.7e308);  // as entered
    EXPECT_FALSE(EsisteFile(suite.DirProgra + "\\nodo.dis"));
  }
  EXPECT_EQ(File(), prima);
  EXPECT_FALSE(registratore.finito);
}

}  // namespace
