// core/testo.h - text: UTF-8 inside, Windows-1252 in files. Lengths, widths and padding count characters.
// Upper and lower case: ASCII and Latin-1 letters, whatever the locale. Blank means the blank character alone.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>

std::string DaAnsi(std::string_view byte);  // the five undefined bytes pass as the control character of the same value
std::string InAnsi(std::string_view utf8);  // a character without a place is written '?'
bool SoloAscii(std::string_view t);         // the same bytes in both codings
std::size_t NumCaratteri(std::string_view t);
std::string PrimiCaratteri(std::string_view t, std::size_t n);
std::string Maiuscolo(std::string_view t);
std::string Minuscolo(std::string_view t);
std::string_view Rifila(std::string_view t);                     // without leading and trailing blanks
std::string_view RifilaDestra(std::string_view t);               // without trailing blanks
std::string AllineaSinistra(std::string_view t, std::size_t n);  // padded with blanks at the right; longer: cut to n
inline bool Contiene(std::string_view t, std::string_view parte) { return t.find(parte) != std::string_view::npos; }
bool UgualeSenzaMaiuscole(std::string_view a, std::string_view b);
std::string Componi(std::string_view t, std::string_view da, std::string_view a);  // every `da` replaced by `a`

// Blank and tab separate. Returns the next word; testo keeps what follows from the separator on, or becomes empty when the word
// reached the end. A text of separators only yields the empty word and is left as it was.
std::string TokenSuccessivo(std::string& testo);
std::string_view PrimaParola(std::string_view t);  // up to the first blank
std::string SenzaSpazi(std::string_view t);        // without any blank (names of the structure's sections)
