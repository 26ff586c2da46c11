// core/unita.h - the job's units: DirLavoro\parametrilavoro to the factors and decimals of suite.
// Units     each factor multiplies a model value (daN, daN cm, daN/cm2, cm) into the unit shown; a typed value is divided by it.
// Failure   the reading runs unguarded: a fault is raised and false returned; the caller shows the fault's box and ends
//           the process. A unit text that is not known gives the factor 0 and leaves its decimals. One with a "|", a quote or a control
//           character is such a text: it is kept and shown as "/" where it has a slash, else as the empty text.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

// Reads AccelG, NordGeo and the six unit texts. False: file missing or empty, a line without "[", a number that overflows.
bool LeggiParametriLavoro();

// LeggiParametriLavoro, then every factor and count of decimals. False also: a division by zero (AccelG 0 with kgf or t,
// a stress or surface load whose length is not known).
bool ImpostaUnita();

// Factor of a unit text from cm, daN, and (for a stress without "/") daN/cm2, and the decimals to show. 0: not known, dec untouched.
double FattLunghezza(std::string_view unita, std::int16_t& dec);
double FattForza(std::string_view unita, std::int16_t& dec);
double FattTensione(std::string_view unita, std::int16_t& dec);
inline double FattLunghezza(std::string_view unita) {
  std::int16_t dec = 0;
  return FattLunghezza(unita, dec);
}
inline double FattForza(std::string_view unita) {
  std::int16_t dec = 0;
  return FattForza(unita, dec);
}
inline double FattTensione(std::string_view unita) {
  std::int16_t dec = 0;
  return FattTensione(unita, dec);
}

// A header line of fixed width: a in 20 characters, b, c, d in 19 each, trimmed before, trailing blanks of the whole cut.
std::string ComponiUnita(std::string_view a, std::string_view b, std::string_view c, std::string_view d);
