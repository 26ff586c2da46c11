// drawing/disegno.h - the drawing store and its primitives: an indexed vector drawing, or strokes at once on a canvas.
// Road      while DestDis is GENDIS a primitive writes into the store, otherwise it paints on the canvas that it is given.
// Canvas    nullptr is the canvas of those that give none: the colour is then ColCorr, and outside the store nothing shows.
// Units     mm on the sheet, y upward; text sizes in tenths of mm, text angles in whole degrees, arc angles in radians.
// Indices   every table from 0; a reference is the position in the coordinate table.
// State     disegno: one drawing, emptied by AzzeraDisegno before each run, filled until the next one. EstXMin.. outlive it:
//           they are those of the last DIS or DXF written in this run of the program.
// Failure   capacities show one box when the last place is taken, then items are lost in silence. The 32768th coordinate, or a number
//           too large for its field, is an arithmetic fault: Interrotto, and nothing is stored until the next AzzeraDisegno.
#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/tela.h"

constexpr int MaxCoordDis = 50000, MaxLineeDis = 50000;  // items; the arrays hold one more
constexpr int MaxArchiDis = 15000, MaxTestiDis = 15000, MaxCerchiDis = 5000;
constexpr int MaxQuoteDis = 1000;
constexpr int CoordIndicizzabili = 32767;  // an index travels as a 16-bit number
constexpr int RicercaCoord = 31;           // newest coordinates that a look-up compares
constexpr std::string_view GENDIS = "gendis";

using Colore = std::optional<std::int16_t>;  // index 0..7; absent: the current one

struct Disegno {
  std::int32_t NumCoord = 0;
  double CoordX[MaxCoordDis + 1] = {}, CoordY[MaxCoordDis + 1] = {};

  std::int32_t NumLinee = 0;
  std::int32_t LinIni[MaxLineeDis + 1] = {}, LinFin[MaxLineeDis + 1] = {};
  std::int16_t LinCol[MaxLineeDis + 1] = {}, LinTipo[MaxLineeDis + 1] = {};  // type 0 continuous, 1 axis, 4 hidden

  std::int32_t NumArchi = 0;  // equal start and end: full circle
  std::int32_t ArcCen[MaxArchiDis + 1] = {}, ArcIni[MaxArchiDis + 1] = {}, ArcCen2[MaxArchiDis + 1] = {}, ArcFin[MaxArchiDis + 1] = {};
  std::int16_t ArcCol[MaxArchiDis + 1] = {}, ArcTipo[MaxArchiDis + 1] = {};

  std::int32_t NumTesti = 0;  // position: lower left corner of the first character, before rotation
  std::int32_t TesPos[MaxTestiDis + 1] = {};
  std::int16_t TesAng[MaxTestiDis + 1] = {}, TesLarg[MaxTestiDis + 1] = {}, TesAlt[MaxTestiDis + 1] = {};
  std::int16_t TesCol[MaxTestiDis + 1] = {};    // colour; in the GRB edition the style
  std::int16_t TesAllin[MaxTestiDis + 1] = {};  // GRB: 1 centred, 2 on the second point, others on the first
  std::vector<std::string> TesStr;

  std::int32_t NumCerchi = 0;  // a table of the file only: full circles are arcs, so it stays empty
  std::int32_t CerCen[MaxCerchiDis + 1] = {};
  std::int16_t CerA[MaxCerchiDis + 1] = {}, CerB[MaxCerchiDis + 1] = {};

  std::int16_t NumQuote = 0;  // GRB: dimensions kept as such
  std::int32_t QuoIni[MaxQuoteDis + 1] = {}, QuoFin[MaxQuoteDis + 1] = {};
  char QuoTipo[MaxQuoteDis + 1] = {};  // H horizontal, V vertical, P oblique
  std::int16_t QuoStile[MaxQuoteDis + 1] = {};
  double QuoDist[MaxQuoteDis + 1] = {};
  std::vector<std::string> QuoTesto;

  std::string_view DestDis;                       // GENDIS or empty
  bool Interrotto = false;                        // a fault ended this drawing
  double OffX = 0, OffY = 0;                      // origin of the view, added to what goes to the store
  std::int16_t ColCorr = 0;                       // current colour
  std::int16_t TipoLinCorr = 0;                   // 0 continuous, 1 hidden, 3 axis
  double XMax = 0, YMax = 0, XMin = 0, YMin = 0;  // extents of the lines stored since AzzeraEstensioni, sheet coordinates

  double EstXMin = 0, EstXMax = 0, EstYMin = 0, EstYMax = 0;  // extents of all coordinates, before the clean-up
};
inline Disegno disegno;

void AzzeraDisegno();      // empties the five tables; leaves the extents
void AzzeraEstensioni();   // at the start of each view
void InterrompiDisegno();  // raises the fault that ends the running drawing

bool LineeEsaurite();  // a further line would leave nothing: the drawing was ended, or the store takes no more lines

void DisLinea(Tela* tela, double x1, double y1, double x2, double y2, Colore colore = {});
void DisLineaRel(Tela* tela, double x, double y, double dx, double dy, Colore colore = {});
// Third argument: the diameter. No end angle: the start angle, which is a full circle.
void DisArco(Tela* tela, double x, double y, double diametro, Colore colore = {}, double angIni = 0, std::optional<double> angFin = {});
void DisTesto(const std::string& testo, double x, double y, std::int16_t angolo, double larghezza, double altezza, Colore colore = {});

std::int16_t IndiceCoord(double x, double y);  // sheet coordinates; -1: the table is full
void MemLinea(double x1, double y1, double x2, double y2, std::int16_t colore);

// The segments that paint a text with the stroke font; angolo in whole degrees, sizes in mm.
struct TrattoTesto {
  double x1, y1, x2, y2;
};
std::vector<TrattoTesto> TrattiTesto(std::string_view testo, double x, double y, double angolo, double larghezza, double altezza);

std::int16_t ColoreDaRgb(std::int32_t rgb);  // 0xBBGGRR to index
std::int32_t RgbDaColore(int indice);        // two palettes, chosen by the scale of the anchor detail: the option's number serves both

std::int16_t InCorto(double v);     // ties to even; out of range: the fault, and 0
std::int16_t ColoreOpz(int i);      // drawing option i as a colour
void OrdinaVett(double* v, int n);  // v[1..n] ascending
