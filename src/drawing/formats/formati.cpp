// drawing/formats/formati.cpp - the table of the drawing's formats.
#include "drawing/formats/formati.h"

#include "core/testo.h"
#include "drawing/edizione_dis.h"
#include "drawing/esecutivo.h"
#include "drawing/formats/scrittori.h"

static bool DisegnaEdizioneDis() {
  edizione = EdizioneDis();
  return DisegnaFoglio();
}

static bool EsportaDis(const std::string& nomeFile, int silenzioso) { return DisegnaEdizioneDis() && SalvaDis(nomeFile, silenzioso); }
// The writer with all its options at 0, the boxes among them: also a silent export shows them.
static bool EsportaDxf(const std::string& nomeFile, int) { return DisegnaEdizioneDis() && SalvaDxf(nomeFile, 0, 0, 0, 0, 0); }
static bool EsportaSvg(const std::string& nomeFile, int silenzioso) { return DisegnaEdizioneDis() && SalvaSvg(nomeFile, silenzioso); }

bool EsportaDisegno(const std::string& nomeFile, int silenzioso, std::string_view tipo) {
  for (const Formato& f : FORMATI)
    if (f.esporta != ComandoGrb && UgualeSenzaMaiuscole(f.tipo, tipo)) return f.esporta(nomeFile, silenzioso);
  return false;
}

const Formato FORMATI[NumFormati] = {
  {"GRB", "File disegno (*.grb)|*.grb", ComandoGrb},
  {"DIS", "File disegno (*.dis)|*.dis", EsportaDis},
  {"DXF", "AutoCAD (*.dxf)|*.dxf", EsportaDxf},
  {"SVG", "", EsportaSvg},
};
