// results/scena.h - a picture as a list of shapes, which every painter follows: file, window, printed page.
// Axes      of a group: its own, brought to the page by a move and a scale, y downward. Page units are points of the screen.
// Colours   "#rrggbb"; empty: none. Widths in page units, whatever the group's scale.
#pragma once
#include <string>
#include <utility>
#include <vector>

struct PuntoScena {
  double x = 0, y = 0;
};

enum class Forma : unsigned char { Poligono, Linea, Cerchio, Testo };
enum class Ancora : unsigned char { Inizio, Mezzo, Fine };

struct Elemento {
  Forma forma = Forma::Linea;
  std::vector<PuntoScena> punti;  // of a circle its centre, of a text its base point
  double raggio = 0;              // of a circle, in the group's units
  std::string testo;
  double altezza = 12;  // of a text, page units
  Ancora ancora = Ancora::Inizio;
  std::string riempi, tratto;
  double spessore = 1;
  bool tratteggiata = false, grassetto = false;
  std::string classe, id;
  std::vector<std::pair<std::string, std::string>> dati;  // name without "data-", value
};

struct Gruppo {
  std::string id;
  double x = 0, y = 0, scala = 1;  // where its origin stands on the page, page units a unit
  std::vector<std::pair<std::string, std::string>> dati;
  std::vector<Elemento> elementi;
  std::vector<Gruppo> gruppi;  // in this group's axes
};

struct Scena {
  double larghezza = 0, altezza = 0;
  std::string titolo;
  Gruppo foglio;  // page units
};

// SVG 1.1, UTF-8, LF; no script, style sheet, picture or font from outside; text is text.
std::string InSvg(const Scena& s);
