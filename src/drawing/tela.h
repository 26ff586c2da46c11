// drawing/tela.h - a canvas as a record of operations: clear, user scale, size, foreground, segment, circle or arc.
// A host paints what the record holds; the batch host and the tests read it stroke by stroke.
// Units     user units of the scale; colours 0xBBGGRR; angles radians, counter-clockwise; the size is the host's own.
#pragma once
#include <cstdint>
#include <vector>

struct Tratto {
  enum class Forma { Segmento, Arco } forma = Forma::Segmento;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;              // segment: ends
  double xc = 0, yc = 0, raggio = 0, a1 = 0, a2 = 0;  // arc; a1 == a2: full circle
  std::int32_t colore = 0;
};

struct Tela {
  double larghezza = 4000, altezza = 4000;  // ScaleWidth, ScaleHeight before a scale is set (absolute)
  double sx = 0, sy = 0, dx = 0, dy = 0;    // user scale: upper left (sx, sy), lower right (dx, dy)
  std::int32_t primoPiano = 0;              // foreground colour
  std::vector<Tratto> tratti;
};
void PulisciTela(Tela& t);
void ImpostaScala(Tela& t, double sx, double sy, double dx, double dy);
void SegmentoTela(Tela& t, double x1, double y1, double x2, double y2, std::int32_t colore);
void ArcoTela(Tela& t, double xc, double yc, double raggio, double a1, double a2, std::int32_t colore);
