// Text: Windows-1252 and UTF-8, case, blanks, words. Byte values from the code page's public table.
#include <gtest/gtest.h>

#include "core/testo.h"

TEST(Testo, LettereItalianeNelLoroByte) {
  EXPECT_EQ(InAnsi("à è é ì ò ù °"), "\xE0 \xE8 \xE9 \xEC \xF2 \xF9 \xB0");
  EXPECT_EQ(DaAnsi("\xE0 \xE8 \xE9 \xEC \xF2 \xF9 \xB0"), "à è é ì ò ù °");
  EXPECT_EQ(InAnsi("€"), "\x80");
  EXPECT_EQ(DaAnsi("\x80"), "€");
  EXPECT_EQ(InAnsi("Ω"), "?");                 // no place in the code page
  EXPECT_EQ(InAnsi("\xF0\x9F\x98\x80"), "?");  // one character, one mark
  EXPECT_EQ(InAnsi("a\xFFz"), "a?z");          // a byte that is no UTF-8
  EXPECT_EQ(InAnsi("a\xC3"), "a?");
}

TEST(Testo, OgniByteTornaSeStesso) {
  std::string tutti;
  for (int b = 0; b < 256; ++b) tutti += static_cast<char>(b);
  EXPECT_EQ(InAnsi(DaAnsi(tutti)), tutti);  // the five undefined bytes pass as controls
  EXPECT_EQ(NumCaratteri(DaAnsi(tutti)), 256u);
}

TEST(Testo, MaiuscoleELatin1) {
  EXPECT_EQ(Maiuscolo("S 235 à ö ÷ ß ÿ ž"), "S 235 À Ö ÷ ß ÿ ž");
  EXPECT_EQ(Minuscolo("ABC È Ö ×"), "abc è ö ×");
  EXPECT_TRUE(UgualeSenzaMaiuscole("PerchÉ", "perché"));
  EXPECT_FALSE(UgualeSenzaMaiuscole("a", "a "));
}

TEST(Testo, LunghezzeInCaratteri) {
  EXPECT_EQ(NumCaratteri("città"), 5u);
  EXPECT_EQ(PrimiCaratteri("città nuova", 5), "città");
  EXPECT_EQ(AllineaSinistra("è", 3), "è  ");
  EXPECT_EQ(AllineaSinistra("abcdef", 3), "abc");
  EXPECT_EQ(Rifila("  a b  "), "a b");
  EXPECT_EQ(Rifila("   "), "");
  EXPECT_EQ(Rifila("\ta "), "\ta");  // a tab is no blank
  EXPECT_EQ(RifilaDestra(" a "), " a");
}

TEST(Testo, Parole) {
  std::string t = " \tHEA\t200  x";
  EXPECT_EQ(TokenSuccessivo(t), "HEA");
  EXPECT_EQ(t, "\t200  x");  // the separator stays
  EXPECT_EQ(TokenSuccessivo(t), "200");
  EXPECT_EQ(TokenSuccessivo(t), "x");
  EXPECT_EQ(t, "");
  t = " \t ";
  EXPECT_EQ(TokenSuccessivo(t), "");
  EXPECT_EQ(t, " \t ");  // separators only: left as it was
  t = "a,b;c d";
  EXPECT_EQ(TokenSuccessivo(t), "a,b;c");  // blank and tab are the only separators
  EXPECT_EQ(PrimaParola("HE 200 A"), "HE");
  EXPECT_EQ(PrimaParola("HE\t200 A"), "HE\t200");  // up to the first blank
  EXPECT_EQ(PrimaParola(" HE"), "");
  EXPECT_EQ(PrimaParola("HEA200"), "HEA200");
  EXPECT_EQ(SenzaSpazi(" P_HE 200 A "), "P_HE200A");
  EXPECT_EQ(SenzaSpazi("A\t B  C"), "A\tBC");  // a tab is no blank
  EXPECT_EQ(Componi("daN8cm2 8", "8", "/"), "daN/cm2 /");
}
