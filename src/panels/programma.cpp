// panels/programma.cpp - every state record back to its start value.
#include "panels/programma.h"

#include "core/aritmetica.h"
#include "drawing/font.h"
#include "drawing/formats/grb_stili.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "reports/Relazioni.h"

// Large records are reset from these, not from a temporary on the stack.
static const Nodo NODO_VUOTO;
static const Risultati RIS_VUOTI;
static const Suite SUITE_VUOTA;
static const Materiali MATERIALI_VUOTI;
static const Font FONT_VUOTO;
static const StiliGrb STILI_VUOTI;
static const StatoInsDati INSDATI_VUOTO;

void AzzeraProgramma() {
  nodo = NODO_VUOTO;
  ris = RIS_VUOTI;
  suite = SUITE_VUOTA;
  materiali = MATERIALI_VUOTI;
  font = FONT_VUOTO;
  stiliGrb = STILI_VUOTI;
  esitoRelazione = {};
  verificaPannello = {};
  passi = {};
  AzzeraFault();
  insDati = INSDATI_VUOTO;
  PreparaInsDati();
}
