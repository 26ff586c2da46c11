// drawing/formats/grb_edizione.h - the edition of the drawing for the suite's graphic environment: texts and dimensions refer to styles, and
// dimensions are kept as such.
// Styles    1..stiliGrb.NumStili: ParNodo(25) dimensions of the detail, (26) texts, (27) dimensions of the views; cut to an integer.
#pragma once
#include <cstdint>
#include <string>

#include "drawing/edizione.h"

constexpr int QuoteGrbAmmesse = 999;                           // the tables hold one more, which stays free
constexpr const char* TESTO_QUOTA_GRB = "Stringa_di_default";  // of a dimension that shows its measure

enum AllineaGrb : std::int16_t { ALLINEA_INIZIO = 0, ALLINEA_CENTRO = 1, ALLINEA_FINE = 2 };

// False: an option names a style that the template does not have.
bool EdizioneGrb(Edizione& e);

// A text between two points; angolo in degrees.
void TestoGrb(const std::string& testo, double x1, double y1, double x2, double y2, double angolo, std::int16_t allineamento,
              std::int16_t stile);
// A dimension between two points; empty text: the measure.
void QuotaGrb(const std::string& testo, double x1, double y1, double x2, double y2, double distanza, std::int16_t stile);
