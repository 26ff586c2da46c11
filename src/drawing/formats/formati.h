// drawing/formats/formati.h - the formats of the executive drawing, and the commands that draw the sheet anew and write it.
// nomeFile    suite path; silenzioso: 0 all boxes, 1 and above no success box, 2 no box of a failed write; DXF shows all of them always.
// Returns     true: the file was written. A failure has shown its box; an arithmetic fault ends the drawing and leaves no file.
#pragma once
#include <string>
#include <string_view>

struct Formato {
  const char* tipo;
  const char* filtro;  // of the file dialog, "text|pattern"; empty: not offered there
  bool (*esporta)(const std::string& nomeFile, int silenzioso);
};
constexpr int NumFormati = 4;
extern const Formato FORMATI[NumFormati];  // the row is the filter that the user chose, less one

// tipo "DIS", "DXF" or "SVG", in any case; any other: nothing, false.
bool EsportaDisegno(const std::string& nomeFile, int silenzioso, std::string_view tipo);
