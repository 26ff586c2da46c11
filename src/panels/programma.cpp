// panels/programma.cpp - every state record back to its start value.
#include "panels/programma.h"

#include <algorithm>
#include <iterator>

#include "core/aritmetica.h"
#include "core/layout_nodo.h"
#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/edizione.h"
#include "drawing/font.h"
#include "drawing/formats/grb_stili.h"
#include "drawing/formats/tipi_linea.h"
#include "drawing/tavola.h"
#include "link/collegamento.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/FormTF.h"
#include "panels/InsDati.h"
#include "panels/Op_Nodo.h"
#include "panels/PropMateriali.h"
#include "panels/Sez3D.h"
#include "panels/Soll3D.h"
#include "panels/comandi_disegno.h"
#include "panels/file_nodo.h"
#include "panels/lavoro_finestre.h"
#include "panels/pannelli.h"
#include "panels/selezione.h"

// Large records are reset from these, not from a temporary on the stack.
static const Suite SUITE_VUOTA;
static const Materiali MATERIALI_VUOTI;
static const Nodo NODO_VUOTO;
static const Collegamento COLLEGAMENTO_VUOTO;
static const Disegno DISEGNO_VUOTO;
static const Font FONT_VUOTO;
static const StiliGrb STILI_VUOTI;
static const StatoInsDati INSDATI_VUOTO;
static const StatoFormTF FORMTF_VUOTO;
static const StatoOpNodo OPNODO_VUOTO;
static const StatoPropMateriali PROPMATERIALI_VUOTO;
static const StatoSez3D SEZ3D_VUOTO;
static const StatoSoll3D SOLL3D_VUOTO;
static const StatoSelezione SELEZIONE_VUOTA;

static void AzzeraModello() {
  suite = SUITE_VUOTA;
  materiali = MATERIALI_VUOTI;
  nodo = NODO_VUOTO;
  AzzeraLavoro();
  scambio = {};
  esitoFile = {};
  gradiLetti = {};
  collegamento = COLLEGAMENTO_VUOTO;
}

static void AzzeraDisegni() {
  disegno = DISEGNO_VUOTO;
  edizione = {};
  quote = {};
  font = FONT_VUOTO;
  stiliGrb = STILI_VUOTI;
  tipiLinea = {};
  esecutivo = {};
  esitoDisegno = {};
}

static void AzzeraPannelli() {
  pannelli = {};
  verificaPannello = {};
  insDati = INSDATI_VUOTO;
  formTF = FORMTF_VUOTO;
  opNodo = OPNODO_VUOTO;
  propMateriali = PROPMATERIALI_VUOTO;
  sez3D = SEZ3D_VUOTO;
  soll3D = SOLL3D_VUOTO;
  selezione = SELEZIONE_VUOTA;
  PreparaPannelli();
}

void PreparaPannelli() {
  LegaLavoro();
  for (const Pannello* p : Pannelli()) PreparaPannello(*p);
  PreparaInsDati();
}

void AzzeraProgramma() {
  passi = {};
  AzzeraFault();
  AzzeraModello();
  AzzeraDisegni();
  AzzeraPannelli();
}

// ---- a picture of the program ----

struct Fotografia {
  Nodo nodo_;
  Materiali materiali_;
  double ParNodo[NumParNodo];
  ScambioNodo scambio_;
  EsitoFile esitoFile_;
  GradiFile gradi_;
  StatoPannelli pannelli_;
  StatoVerificaPannello verifica_;
  StatoInsDati insDati_;
  StatoFormTF formTF_;
  StatoOpNodo opNodo_;
  StatoPropMateriali propMateriali_;
};

void DistruggiFotografia::operator()(Fotografia* f) const { delete f; }

FotografiaProgramma FotografaProgramma() {
  FotografiaProgramma f(new Fotografia{
    nodo, materiali, {}, scambio, esitoFile, gradiLetti, pannelli, verificaPannello, insDati, formTF, opNodo, propMateriali});
  std::copy(std::begin(suite.ParNodo), std::end(suite.ParNodo), f->ParNodo);
  return f;
}

void RipristinaProgramma(const Fotografia& f) {
  passi = {};
  AzzeraFault();
  nodo = f.nodo_;
  materiali = f.materiali_;
  std::copy(std::begin(f.ParNodo), std::end(f.ParNodo), suite.ParNodo);
  scambio = f.scambio_;
  esitoFile = f.esitoFile_;
  gradiLetti = f.gradi_;
  pannelli = f.pannelli_;
  verificaPannello = f.verifica_;
  insDati = f.insDati_;
  formTF = f.formTF_;
  opNodo = f.opNodo_;
  propMateriali = f.propMateriali_;
}
