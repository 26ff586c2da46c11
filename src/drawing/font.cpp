// drawing/font.cpp - reader of the stroke font.
#include "drawing/font.h"

#include <algorithm>
#include <cmath>

#include "core/file.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "model/stato.h"
#include "model/suite.h"

// One glyph line, bytes of the file's code page. False: the key has no place.
static bool LeggiGlifo(std::string_view riga) {
  if (riga.empty()) return true;
  const unsigned char codice = static_cast<unsigned char>(riga[0]);
  if (codice == 255) return false;
  font.FontCar[codice] = codice;
  // 8 characters a segment; ties to even, so that a half segment at the end counts or falls with its neighbour.
  const double lunghezza = static_cast<double>(RifilaDestra(riga).size());
  const int n = std::min(2 * static_cast<int>(std::nearbyint((lunghezza - 1) / 8)), MaxPuntiGlifo);
  font.FontN[codice] = static_cast<std::int16_t>(n);
  for (int k = 0; k < n; ++k) {
    const std::size_t inizio = std::min(riga.size(), static_cast<std::size_t>(1 + 4 * k));
    const std::string_view punto = riga.substr(inizio, 4);
    double x = 0, y = 0;  // two characters never overflow
    Val(punto.substr(0, 2), x);
    Val(punto.size() > 2 ? punto.substr(2) : std::string_view{}, y);
    InIntero(x, font.FontX[codice][k]);
    InIntero(y, font.FontY[codice][k]);
  }
  return true;
}

bool LeggiFont() {
  std::fill(std::begin(font.FontN), std::end(font.FontN), std::int16_t{-1});
  FileLettura f;
  if (!ApriLettura(f, suite.DirProgra + "\\font.001")) return false;
  bool esito = LeggiValore(f, font.FontStretta);
  std::string riga;
  while (!FineFile(f)) {
    if (!LeggiRiga(f, riga)) return false;
    if (!LeggiGlifo(InAnsi(riga))) esito = false;
  }
  return esito;
}
