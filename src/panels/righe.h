// panels/righe.h - rows of a panel's table, written short.
#pragma once
#include "panels/controlli.h"

// A single control, and controls da..a of an array (primo is the one of index da).
constexpr RigaPannello Riga(const char* nome, Genere genere, Controllo& c, const char* cornice, Testi didascalia, Testi stato = {},
                            void (*cambio)(int) = nullptr, void (*invio)(int) = nullptr) {
  return {nome, genere, &c, 0, 0, false, cornice, didascalia, stato, nullptr, cambio, invio, nullptr};
}

constexpr RigaPannello Serie(const char* nome, Genere genere, Controllo* primo, int da, int a, const char* cornice, Testi didascalia,
                             Testi stato = {}, void (*cambio)(int) = nullptr, void (*invio)(int) = nullptr) {
  return {nome, genere, primo, da, a, true, cornice, didascalia, stato, nullptr, cambio, invio, nullptr};
}
