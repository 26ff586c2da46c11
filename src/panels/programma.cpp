// panels/programma.cpp - every state record back to its start value.
#include "panels/programma.h"

#include "core/aritmetica.h"
#include "core/layout_nodo.h"
#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/edizione.h"
#include "drawing/font.h"
#include "drawing/formats/grb_stili.h"
#include "engine/Calcoli.h"
#include "engine/PresInfl.h"
#include "link/collegamento.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/file_nodo.h"
#include "reports/Relazioni.h"

// Large records are reset from these, not from a temporary on the stack.
static const Suite SUITE_VUOTA;
static const Materiali MATERIALI_VUOTI;
static const Nodo NODO_VUOTO;
static const Risultati RIS_VUOTI;
static const Collegamento COLLEGAMENTO_VUOTO;
static const Disegno DISEGNO_VUOTO;
static const Font FONT_VUOTO;
static const StiliGrb STILI_VUOTI;
static const StatoInsDati INSDATI_VUOTO;

static void AzzeraModello() {
  suite = SUITE_VUOTA;
  materiali = MATERIALI_VUOTI;
  nodo = NODO_VUOTO;
  ris = RIS_VUOTI;
  scambio = {};
  esitoFile = {};
  verifica = {};
  presInfl = {};
  esitoRelazione = {};
  collegamento = COLLEGAMENTO_VUOTO;
}

static void AzzeraDisegni() {
  disegno = DISEGNO_VUOTO;
  edizione = {};
  quote = {};
  font = FONT_VUOTO;
  stiliGrb = STILI_VUOTI;
}

static void AzzeraPannelli() {
  verificaPannello = {};
  insDati = INSDATI_VUOTO;
  PreparaInsDati();
}

void AzzeraProgramma() {
  passi = {};
  AzzeraFault();
  AzzeraModello();
  AzzeraDisegni();
  AzzeraPannelli();
}
