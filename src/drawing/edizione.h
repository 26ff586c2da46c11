// drawing/edizione.h - the two editions of the executive drawing as one record: geometry is the same, texts and dimensions are
// made in different ways. The views call these operations; nothing else knows which edition is being drawn.
// State     edizione: set by whoever starts a drawing, before DisegnoEsecutivo.
// Ends      texts and dimensions are given both abscissas, then both ordinates, of the segment that they belong to.
#pragma once
#include <string>

struct Edizione {
  double AltTesti = 0, LargTesti = 0;  // mm; height and width of a title's character, used as distances all over the sheet
  double CaloPianta = 0;               // mm; by how much more the plan drops below the elevation
  double AltRiga = 0;                  // mm; height of a row of the schedule
  double LargCar = 0;                  // mm; width of a character of the schedule
  int MargineCella = 0;                // characters that a column has more than its longest cell
  // Title, section letter, section name; horizontal, or vertical reading upward.
  void (*testo)(const std::string& testo, double x1, double x2, double y1, double y2) = nullptr;
  // Measure of a link of a chain or of a single dimension; dettaglio: of the enlarged anchor.
  void (*quota)(double x1, double x2, double y1, double y2, bool dettaglio) = nullptr;
  // Label of the anchor detail, between two points.
  void (*etichetta)(const std::string& testo, double x1, double x2, double y) = nullptr;
  // Cell of the schedule, from its lower left corner to the lower right one.
  void (*cella)(const std::string& testo, double x1, double x2, double y) = nullptr;
  // Name of a weld along the parallel line of its mark; (vx, vy) leads from the weld to that line. sopra: the name stands on the
  // side to which its letters' tops point.
  void (*nomeSald)(const std::string& testo, double x1, double x2, double y1, double y2, double vx, double vy, bool sopra) = nullptr;
};
inline Edizione edizione;
