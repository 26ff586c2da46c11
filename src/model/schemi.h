// model/schemi.h - the anchor patterns: one table that all rules by pattern read.
// Axes      anchors from the plate's corner: Z to the right, Y downward. 1, 2 stand on the upper row, 3, 4 on the lower, 1, 3 at the left.
// Indices   patterns 0..3 as OptionNTir: 0 four, 1 eight, 2 six "Vert." (extra pair at mid height), 3 six "Orizz." (at mid width).
#pragma once
#include "model/node_model.h"

// Where an extra anchor stands: on the line of corner anchor n (1..4), or at mid side (0).
struct PostoExtra {
  int z, y;
};

// Neighbouring anchors whose holes may overlap, compared along one axis only; a 0 ends the list.
struct CoppiaFori {
  char asse;
  int a, b;
};

// Sides of the plate, as the plan shows them.
enum LatoPiastra { SUPERIORE, DESTRO, INFERIORE, SINISTRO };

struct SchemaTirafondi {
  int quanti;
  PostoExtra extra[4];  // anchors 5..8
  CoppiaFori fori[4];
  int lato[4];  // anchor added at each side of the plate, 0 none; the row there has three
};

// clang-format off
constexpr SchemaTirafondi SCHEMI[4] = {
  // n  extra anchors                          holes                                                              upper, right, lower, left
  { 4, {},                                     { { 'Z', 1, 2 }, { 'Y', 1, 3 } },                                  { 0, 0, 0, 0 } },
  { 8, { {1, 0}, {2, 0}, {0, 3}, {0, 1} },     { { 'Z', 1, 8 }, { 'Z', 8, 2 }, { 'Y', 1, 5 }, { 'Y', 5, 3 } },    { 8, 6, 7, 5 } },
  { 6, { {1, 0}, {2, 0} },                     { { 'Z', 1, 2 }, { 'Y', 1, 5 }, { 'Y', 5, 3 } },                   { 0, 6, 0, 5 } },
  { 6, { {0, 3}, {0, 1} },                     { { 'Z', 1, 6 }, { 'Z', 6, 2 }, { 'Y', 1, 3 } },                   { 6, 0, 5, 0 } },
};
// clang-format on

// The joint's pattern; a choice outside the table counts as four.
inline int SchemaTir(const Nodo& nodo) { return nodo.OptionNTir >= 1 && nodo.OptionNTir <= 3 ? nodo.OptionNTir : 0; }
