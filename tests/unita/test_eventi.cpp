// tests/unita/test_eventi.cpp - the event lines, as the table of the host without windows tells them.
#include "core/eventi.h"

#include <gtest/gtest.h>

#include "corredo/registratore.h"

TEST(Eventi, UnaRigaPerTesto) {
  EXPECT_EQ(SuUnaRiga("uno\rdue\ntre\r\nquattro\n\n"), "uno\\ndue\\ntre\\nquattro\\n\\n");
  EXPECT_EQ(SuUnaRiga("c:\\suite\\nodo"), "c:\\suite\\nodo");  // a backslash stays as it is
  EXPECT_EQ(SuUnaRiga("\r"), "\\n");
}

// A file's name may hold any byte. The two bytes of U+0085 are one control character; a letter of two bytes is none, nor is a lone byte.
TEST(Eventi, NessunCaratterediControlloDaUnPercorso) {
  EXPECT_EQ(PercorsoSuUnaRiga("c:\\a\nb\r\nc"), "c:\\a\\nb\\nc");
  EXPECT_EQ(PercorsoSuUnaRiga("\x1b[2J\t\x7f\xC2\x85z"), "\\x1B[2J\\x09\\x7F\\x85z");
  EXPECT_EQ(PercorsoSuUnaRiga("citt\xC3\xA0\xC2\xA0\x85\xC2"), "citt\xC3\xA0\xC2\xA0\x85\xC2");
  const std::string cartella = CartellaProva("eventi_controllo");
  EXPECT_EQ(RigaTesto(cartella + "\\a\n[fine]\x0B"), "[testo] " + cartella + "/a\\n[fine]\\x0B");
  EXPECT_EQ(RigaAiuto(cartella + "\\\x1b"), "[aiuto] " + cartella + "/\\x1B");
  RichiestaFile r;
  r.nomeIniziale = "a\x1b";
  EXPECT_EQ(RigaFile(r, true, cartella + "\\b\x08"), "[file] apri |  |  | a\\x1B -> " + cartella + "/b\\x08");
}

TEST(Eventi, QuattroIcone) {
  EXPECT_EQ(RigaMessaggio("T", "ERRORE", Icona::Critica), "[messaggio] critica | ERRORE | T");
  EXPECT_EQ(RigaMessaggio("T", "ERRORE !", Icona::Esclamazione), "[messaggio] esclamazione | ERRORE ! | T");
  EXPECT_EQ(RigaMessaggio("a\rb", "INFORMAZIONE", Icona::Informazione), "[messaggio] informazione | INFORMAZIONE | a\\nb");
  EXPECT_EQ(RigaMessaggio("T", "Errore", Icona::Nessuna), "[messaggio] nessuna | Errore | T");
}

TEST(Eventi, DomandaConLaRisposta) {
  EXPECT_EQ(RigaDomanda("Continuare?", "ATTENZIONE!", Icona::Informazione, true),
            "[domanda] informazione | ATTENZIONE! | Continuare? -> OK");
  EXPECT_EQ(RigaDomanda("Continuare?", "ATTENZIONE!", Icona::Esclamazione, false),
            "[domanda] esclamazione | ATTENZIONE! | Continuare? -> Annulla");
}

TEST(Eventi, DialogoDiFileColPercorsoDelSistema) {
  const std::string cartella = CartellaProva("eventi");
  ScriviByte(cartella + "/Nodi/Uno.qb7", "x");
  RichiestaFile r;
  r.filtro = "File nodo 3 (*.qb7)|*.qb7|Tutti i file (*.*)|*.*";
  EXPECT_EQ(RigaFile(r, false, ""), "[file] apri |  | File nodo 3 (*.qb7)|*.qb7|Tutti i file (*.*)|*.* |  -> Annulla");
  r.salva = true;
  r.titolo = "FILE";
  r.nomeIniziale = "c:\\x.dis";
  EXPECT_EQ(RigaFile(r, true, cartella + "\\nodi\\UNO.QB7"),
            "[file] salva | FILE | File nodo 3 (*.qb7)|*.qb7|Tutti i file (*.*)|*.* | c:\\x.dis -> " + cartella + "/Nodi/Uno.qb7");
  EXPECT_EQ(RigaTesto(cartella + "\\NODI\\uno.qb7"), "[testo] " + cartella + "/Nodi/Uno.qb7");
  EXPECT_EQ(RigaAiuto(cartella + "\\NODI\\uno.qb7"), "[aiuto] " + cartella + "/Nodi/Uno.qb7");
}

TEST(Eventi, ProgrammiETasti) {
  EXPECT_EQ(RigaProgramma("c:\\p\\a.exe", "|x|"), "[programma] c:\\p\\a.exe |x|");
  EXPECT_EQ(RigaAvvia("c:\\p\\a.exe", ""), "[avvia] c:\\p\\a.exe");
  EXPECT_EQ(RigaTasti("FINESTRA", "^v"), "[tasti] FINESTRA | ^v");
  EXPECT_EQ(RigaDiario("LETTI 3, PRESI 2, DOPPI TOLTI 1"), "[importazione] LETTI 3, PRESI 2, DOPPI TOLTI 1");
}

TEST(Eventi, EstensioneSoloSenzaPunto) {
  RichiestaFile r;
  r.estensione = "qb7";
  EXPECT_EQ(ConEstensione(r, "/cart.ella/nodo"), "/cart.ella/nodo.qb7");  // only the last component counts
  EXPECT_EQ(ConEstensione(r, "c:\\cart.ella\\nodo"), "c:\\cart.ella\\nodo.qb7");
  EXPECT_EQ(ConEstensione(r, "nodo.v2"), "nodo.v2");
  EXPECT_EQ(ConEstensione(r, "nodo."), "nodo.");
  EXPECT_EQ(ConEstensione(r, ""), "");
  r.estensione = "";
  EXPECT_EQ(ConEstensione(r, "nodo"), "nodo");
}
