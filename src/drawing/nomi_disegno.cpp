// drawing/nomi_disegno.cpp - names of the drawing store, of its running state, of font, styles, line types and sheet; tables from 0.
#include "drawing/nomi_disegno.h"

#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/font.h"
#include "drawing/formats/grb_stili.h"
#include "drawing/formats/tipi_linea.h"
#include "drawing/tavola.h"

// clang-format off
static constexpr RigaNome NOMI[] = {
  // Store
  VOCE(disegno, NumCoord), VOCE(disegno, CoordX, DA_0), VOCE(disegno, CoordY, DA_0),
  VOCE(disegno, NumLinee), VOCE(disegno, LinIni, DA_0), VOCE(disegno, LinFin, DA_0), VOCE(disegno, LinCol, DA_0), VOCE(disegno, LinTipo, DA_0),
  VOCE(disegno, NumArchi), VOCE(disegno, ArcCen, DA_0), VOCE(disegno, ArcIni, DA_0), VOCE(disegno, ArcCen2, DA_0), VOCE(disegno, ArcFin, DA_0),
  VOCE(disegno, ArcCol, DA_0), VOCE(disegno, ArcTipo, DA_0),
  VOCE(disegno, NumTesti), VOCE(disegno, TesPos, DA_0), VOCE(disegno, TesAng, DA_0), VOCE(disegno, TesLarg, DA_0), VOCE(disegno, TesAlt, DA_0),
  VOCE(disegno, TesCol, DA_0), VOCE(disegno, TesAllin, DA_0), VoceElenco("TesStr", disegno.TesStr, MaxTestiDis),
  VOCE(disegno, NumCerchi), VOCE(disegno, CerCen, DA_0), VOCE(disegno, CerA, DA_0), VOCE(disegno, CerB, DA_0),
  VOCE(disegno, NumQuote), VOCE(disegno, QuoIni, DA_0), VOCE(disegno, QuoFin, DA_0), VOCE(disegno, QuoTipo, DA_0), VOCE(disegno, QuoStile, DA_0),
  VOCE(disegno, QuoDist, DA_0), VoceElenco("QuoTesto", disegno.QuoTesto, MaxQuoteDis),
  VOCE(disegno, EstXMin), VOCE(disegno, EstXMax), VOCE(disegno, EstYMin), VOCE(disegno, EstYMax),
  // Running state
  VOCE(disegno, DestDis), VOCE(disegno, OffX), VOCE(disegno, OffY), VOCE(disegno, ColCorr), VOCE(disegno, TipoLinCorr),
  VOCE(disegno, XMax), VOCE(disegno, YMax), VOCE(disegno, XMin), VOCE(disegno, YMin),
  // Font, text styles of the template, line types
  VOCE(font, FontN, DA_0), VOCE(font, FontStretta),
  VOCE(stiliGrb, LargStile, DA_0), VOCE(stiliGrb, AltStile, DA_0), VOCE(stiliGrb, IdStile, DA_0),
  VOCE(tipiLinea, TipiNTratti, DA_0), VOCE(tipiLinea, TipiLungh, DA_0),
  // Dimensions and sheet
  VOCE(quote, CatenaAttiva), VOCE(quote, QuotaRibaltata), VOCE(quote, EtichetteSald), VOCE(quote, OffEtichSald),
  VOCE(esecutivo, HColDis), VOCE(esecutivo, VistaX), VOCE(esecutivo, VistaY), VOCE(esecutivo, NumFori),
  VOCE(esecutivo, BoxBXMax), VOCE(esecutivo, BoxBYMax), VOCE(esecutivo, BoxBXMin), VOCE(esecutivo, BoxBYMin),
  VOCE(esecutivo, BoxAXMax), VOCE(esecutivo, BoxAYMax), VOCE(esecutivo, BoxAXMin), VOCE(esecutivo, BoxAYMin), VOCE(esecutivo, BoxCXMax),
  VOCE(esecutivo, BoxCYMax), VOCE(esecutivo, BoxCXMin), VOCE(esecutivo, BoxCYMin), VOCE(esecutivo, XQuoteDx), VOCE(esecutivo, YTitoloC),
};
// clang-format on
std::span<const RigaNome> NomiDisegno() { return NOMI; }
