// panels/Op_Nodo.cpp - the drawing options on their panel.
#include "panels/Op_Nodo.h"

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "core/opzioni.h"
#include "core/piattaforma.h"
#include "drawing/formats/formati.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati_eventi.h"
#include "panels/righe.h"
#include "panels/valori.h"
#include "panels/visualizzatore.h"

namespace {
// Entries of ParNodo that the code names.
enum Voce { ALTEZZA_QUOTE = 7, DISTANZA_TESTO = 13, QUOTE = 15, QUOTE_INF = 16, DISTANZA_SEGNO = 17, DISTINTA = 18 };
}  // namespace

constexpr int CAMPO_DISTANZA = 13;  // field of the unsigned distance

namespace {
// Entry of each field. Opz leaves the last four fields as they stand on the panel.
struct CampoOpzione {
  int campo, voce;
  bool opz;
};
}  // namespace

// clang-format off
constexpr CampoOpzione CAMPI[] = {
  {0, 0, true},   {1, 1, true},   {2, 2, true},   {3, 3, true},   {4, 4, true},   {5, 5, true},   {6, 6, true},
  {7, 7, true},   {8, 8, true},   {9, 9, true},   {10, 10, true}, {11, 11, true}, {12, 12, true}, {13, 13, true},
  {14, 14, true}, {15, 19, true}, {16, 20, false}, {25, 25, false}, {26, 26, false}, {27, 27, false},
};
// clang-format on

static void MostraScelte() {
  SelezionaVoce(opNodo.Option1[0], suite.ParNodo[QUOTE_INF] != 0 ? 1 : 0);
  ImpostaScelta(opNodo.CheckQuote, suite.ParNodo[QUOTE] == 1 ? 1 : 0);
  ImpostaScelta(opNodo.CheckDistinta, suite.ParNodo[DISTINTA] == 1 ? 1 : 0);
}

static void Op_Nodo_Annulla(int) { piattaforma.chiudi(Op_Nodo); }

static void Op_Nodo_Applica(int) {
  ApplicaOpzioni();
  if (!FaultAritmetico()) InsDati_ApriVis(0);
}

static void Op_Nodo_Chiudi(int) {
  piattaforma.chiudi(Op_Nodo);
  ApplicaOpzioni();
  if (!FaultAritmetico()) EsportaDisegno(suite.DirProgra + "\\nodo.dis", 1, "DIS");
}

// A failed write is as fatal as a missing file at the start.
static void Op_Nodo_Def(int) {
  ApplicaOpzioni();
  if (FaultAritmetico() || ScriviOpzioni()) return;
  Messaggio("Errore: file " + suite.DirCustom + FILE_OPZIONI + " errato o mancante.", "ERRORE", Icona::Nessuna);
  piattaforma.fine();
}

// clang-format off
constexpr const char* PARAMETRI[] = {
    "Colore disegno nodo", "Colore assi sezioni", "Colore sezioni", "Colore quote", "Colore linee quote", "Colore testo", "Colore distinta",
    "Altezza quote", "Larghezza quote", "Altezza testi", "Larghezza testi", "Altezza testi distinta", "Larghezza testi distinta",
    "Distanza testo-quote", "Diametro indicatori quote", "Scala nodo/Scala tiraf.", "Colore saldature"};
// clang-format on
constexpr const char* STILI[] = {"Stile quote particolari GRB", "Stile testi GRB", "Stile quote GRB"};
constexpr const char* OPTION1[] = {"Quote sup.", "Quote inf."};

static constexpr StatoOpNodo& P = opNodo;
constexpr Genere CAMPO = Genere::Campo, ETICHETTA = Genere::Etichetta, COMANDO = Genere::Comando;

// clang-format off
constexpr RigaPannello RIGHE[] = {
  Serie("Par_Nodo", CAMPO,     P.Par_Nodo,       0, 16, "", ""),
  Serie("Par_Nodo", CAMPO,     &P.Par_Nodo[25], 25, 27, "", ""),
  Serie("LPar",     ETICHETTA, P.LPar,           0, 16, "", PARAMETRI),
  Serie("LPar",     ETICHETTA, &P.LPar[25],     25, 27, "", STILI),
  Serie("Option1",  Genere::Scelta, P.Option1,   0,  1, "", OPTION1),
  Riga("CheckQuote",    Genere::Spunta, P.CheckQuote,    "", "Quote"),
  Riga("CheckDistinta", Genere::Spunta, P.CheckDistinta, "", "Distinta"),
  Riga("Annulla",   COMANDO, P.Annulla, "", "Annulla", {}, Op_Nodo_Annulla),
  Riga("Applica",   COMANDO, P.Applica, "", "Applica", {}, Op_Nodo_Applica),
  Riga("Chiudi",    COMANDO, P.Chiudi,  "", "Chiudi",  {}, Op_Nodo_Chiudi),
  Riga("Def",       COMANDO, P.Def,     "", "Salva",   {}, Op_Nodo_Def),
};
// clang-format on

const Pannello Op_Nodo = {"Op_Nodo", RIGHE, false, &opNodo.titolo, nullptr, nullptr, nullptr, &opNodo.aperto, &opNodo.caricato};

void RiempiOpNodo() {
  for (const CampoOpzione& c : CAMPI) ImpostaTesto(opNodo.Par_Nodo[c.campo], NumeroPiano(suite.ParNodo[c.voce]));
  MostraScelte();
}

void ApplicaOpzioni() {
  double* par = suite.ParNodo;
  for (const CampoOpzione& c : CAMPI)
    if (!Val(opNodo.Par_Nodo[c.campo].testo, par[c.voce])) passi.fallito = true;
  if (!Val(opNodo.Par_Nodo[CAMPO_DISTANZA].testo, par[DISTANZA_SEGNO])) passi.fallito = true;
  const bool inf = VoceScelta(opNodo.Option1[0]) == 1;
  par[QUOTE_INF] = inf ? 1 : 0;
  if (inf) AssegnaFinito(par[DISTANZA_TESTO], -par[DISTANZA_TESTO] - par[ALTEZZA_QUOTE]);
  par[QUOTE] = opNodo.CheckQuote.scelta == 1 ? 1 : 0;
  par[DISTINTA] = opNodo.CheckDistinta.scelta == 1 ? 1 : 0;
}

void InsDati_Opz(int) {
  for (const CampoOpzione& c : CAMPI)
    if (c.opz) ImpostaTesto(opNodo.Par_Nodo[c.campo], NumeroPiano(suite.ParNodo[c.voce]));
  if (suite.ParNodo[DISTANZA_SEGNO] != suite.ParNodo[DISTANZA_TESTO])
    ImpostaTesto(opNodo.Par_Nodo[CAMPO_DISTANZA], NumeroPiano(suite.ParNodo[DISTANZA_SEGNO]));
  MostraScelte();
  piattaforma.apri(Op_Nodo, false);
}
