// link/liste.h - lists of numbers as users write them: 1,2,3-9.
#pragma once
#include <cstdint>
#include <string_view>

// Expands a list into lista[1..limite] in order; a range a-b adds a to b, none when b < a; duplicates stay. More numbers than the limit:
// the first `limite` are kept and troppi is set. An invalid text, an empty one or a number above 32767 shows its box, conteggio is 0.
// False: invalid.
bool LeggiLista(std::string_view testo, std::int16_t* lista, int limite, std::int16_t& conteggio, bool& troppi);
