// drawing/esecutivo.cpp - the sheet: where each view goes.
#include "drawing/esecutivo.h"

#include <algorithm>

#include "core/aritmetica.h"
#include "core/nomi_file.h"
#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/edizione.h"
#include "drawing/pezzi.h"
#include "drawing/pianta.h"
#include "drawing/tavola.h"
#include "drawing/viste.h"
#include "engine/Saldature.h"
#include "model/stato.h"
#include "model/suite.h"

static void Titolo(const std::string& testo, double x, double y) { edizione.testo(testo, x - 1, x + 1, y, y); }

// Of the plan, with the slope of the grout, or of the column, whichever is larger.
static double IngombroY() { return std::max(4 * nodo.TfHMalta + nodo.LatoY, nodo.Sezione.H); }

static void Origine(double x, double y) {
  disegno.OffX = x;
  disegno.OffY = y;
}

void DisegnoEsecutivo() {
  Esecutivo& e = esecutivo;
  const double P7 = suite.ParNodo[7], P9 = edizione.AltTesti, P10 = edizione.LargTesti;
  lavoroDisegno->NumSaldature = 0;
  quote.EtichetteSald = false;
  CostruisciSaldature(*lavoroDisegno);
  CalcolaSmussi();
  e.HColDis = std::max(nodo.LatoZ, 1.5 * nodo.HNerv);

  Origine(0, 0);
  VistaBB();
  Titolo("SEZIONE B-B", 0, 3 * P9 + disegno.YMax);

  Origine(e.BoxBXMin - 0.8 * IngombroY(), 0);
  VistaAA();
  Titolo("SEZIONE A-A", 0, 3 * P9 + disegno.YMax);

  Origine(0, e.BoxBYMin - IngombroY() / 2 - 7.5 * P9 - edizione.CaloPianta);
  VistaCC();
  const double yTitolo = disegno.YMax - disegno.OffY + 3 * P9;
  Titolo("SEZIONE C-C", 0, yTitolo);
  e.YTitoloC = yTitolo + disegno.OffY;

  Origine(0, 0);
  Titolo("ESECUTIVO NODI" + ElencoNodi(), (e.BoxBXMax + e.BoxAXMin) / 2, 6 * P9 + e.BoxBYMax);

  Origine(e.BoxBXMin - 0.8 * IngombroY(), e.BoxBYMin - (nodo.TfL + nodo.TfLFt) / 2 * suite.ParNodo[19] - 7.5 * P9 - 3 * P7);
  DettaglioTirafondo();
  Titolo("TIRAFONDO", 0, e.YTitoloC - disegno.OffY);

  if (suite.ParNodo[18] != 1) return;
  Origine(5 * P10 + e.BoxBXMax, e.BoxBYMax);
  disegno.ColCorr = ColoreOpz(6);
  Distinta();
  disegno.ColCorr = ColoreOpz(0);
}

bool DisegnaFoglio() {
  AzzeraFault();
  AzzeraDisegno();
  disegno.DestDis = GENDIS;
  DisegnoEsecutivo();
  disegno.DestDis = {};
  if (!FaultAritmetico()) return true;
  MostraFault();
  return false;
}
