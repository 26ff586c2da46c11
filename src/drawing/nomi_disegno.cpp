// drawing/nomi_disegno.cpp - names of disegno; tables from 0.
#include "drawing/nomi_disegno.h"

#include "drawing/disegno.h"

static constexpr RigaNome NOMI[] = {
  VOCE(disegno, NumCoord), VOCE(disegno, CoordX, DA_0), VOCE(disegno, CoordY, DA_0),
  VOCE(disegno, NumLinee), VOCE(disegno, LinIni, DA_0), VOCE(disegno, LinFin, DA_0), VOCE(disegno, LinCol, DA_0), VOCE(disegno, LinTipo, DA_0),
  VOCE(disegno, NumArchi), VOCE(disegno, ArcCen, DA_0), VOCE(disegno, ArcIni, DA_0), VOCE(disegno, ArcCen2, DA_0), VOCE(disegno, ArcFin, DA_0),
  VOCE(disegno, ArcCol, DA_0), VOCE(disegno, ArcTipo, DA_0),
  VOCE(disegno, NumTesti), VOCE(disegno, TesPos, DA_0), VOCE(disegno, TesAng, DA_0), VOCE(disegno, TesLarg, DA_0), VOCE(disegno, TesAlt, DA_0),
  VOCE(disegno, TesCol, DA_0),
  VOCE(disegno, NumCerchi), VOCE(disegno, NumQuote),
  VOCE(disegno, EstXMin), VOCE(disegno, EstXMax), VOCE(disegno, EstYMin), VOCE(disegno, EstYMax),
};
std::span<const RigaNome> NomiDisegno() { return NOMI; }
