// app/batch/main.cpp - the program without its windows: the same start, the same panels, the same commands, driven from the
// command line or from a script.
// Exit      0 done and every sextet verified, 1 done and some sextet is not verified, 2 not done.
#include "app/batch/copione.h"
#include "app/batch/disegno.h"
#include "app/batch/immagine.h"
#include "app/batch/memoria.h"
#include "app/batch/piattaforma_batch.h"
#include "app/batch/riepilogo.h"
#include "app/batch/sistema.h"
#include "app/batch/verifica.h"
#include "core/eventi.h"
#include "core/file.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "results/riepilogo.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string>

static void AvviaProgrammaOspite() {
  suite.Decimale = ospite.opzioni.decimale != 0 ? ospite.opzioni.decimale : DecimaleSistema();
  if (!CaricaInsDati(ospite.opzioni.rigaComando)) Esci(2);
  ospite.avviato = true;
}

static int ComandoVerifica() {
  AvviaProgrammaOspite();
  return VerificaNodi(ospite.opzioni.argomenti, ProcessiInsieme());
}

static int ComandoDisegno() {
  AvviaProgrammaOspite();
  return DisegnaNodoOspite(ospite.opzioni.argomenti[0], ospite.opzioni.argomenti[1]);
}

static int ComandoEsegui() {
  std::string testo;
  if (!LeggiTestoOspite(ospite.opzioni.argomenti[0], testo)) {
    std::fprintf(stderr, "copione non leggibile: %s\n", PercorsoSuUnaRiga(ospite.opzioni.argomenti[0]).c_str());
    return 2;
  }
  CaricaCopione(testo);
  ospite.dentroModale = [](const Pannello& p) { EseguiCopione(&p); };
  AvviaProgrammaOspite();
  EseguiCopione(nullptr);
  return copione.fermato ? 2 : StatoUscita();
}

static bool SenzaVuoti() {
  return std::ranges::none_of(ospite.opzioni.argomenti, [](const std::string& a) { return a.empty(); });
}

// clang-format off
static constexpr Verbo VERBI[] = {
  { "verifica", "NODO.qb7...", "verifica ogni nodo e scrive la sua relazione", 1, SIZE_MAX, ComandoVerifica },
  { "disegno", "NODO.qb7 USCITA.dis|.dxf|.grb|.svg", "scrive il disegno esecutivo del nodo", 2, 2, ComandoDisegno,
    [] { return FormatoAmmesso(ospite.opzioni.argomenti[1]); } },
  { "esegui", "COPIONE", "esegue un copione, una istruzione per riga (- per lo standard input)", 1, 1, ComandoEsegui },
  { "riepilogo", "[NODO.qb7...]", "giudica ogni nodo e dà tutti i controlli come dati, senza relazione", 0, SIZE_MAX, ComandoRiepilogo,
    [] { return (!ospite.opzioni.argomenti.empty() || !ospite.opzioni.elenco.empty()) && SenzaVuoti(); }, "--formato --righe --uscita --elenco --riprendi" },
  { "immagine", "NODO.qb7 USCITA.svg", "disegna un sestetto: pressioni, asse neutro, tirafondi e saldature", 2, 2, ComandoImmagine, UscitaImmagineAmmessa,
    "--sestetto" },
};
// clang-format on

static bool Ammesso(const Verbo& v) {
  const std::size_t n = ospite.opzioni.argomenti.size();
  return n >= v.minimo && n <= v.massimo && (v.ammesso == nullptr || v.ammesso());
}

static int UsoErrato(const std::string& motivo) {
  std::fprintf(stderr, "errore: %s\n%s", SuUnaRiga(motivo).c_str(), Uso(VERBI).c_str());
  return 2;
}

// --help and --version; the verb may stand anywhere. Output that cannot be written is status 2.
static int Informa() {
  ospite.dati = true;
  const Opzioni& o = ospite.opzioni;
  const Verbo* v = TrovaVerbo(VERBI, o.comando);
  if (v == nullptr) v = TrovaVerbo(VERBI, o.rigaComando);
  if (o.versione) StampaTesto(std::string("qb07-batch ") + VERSIONE + "\n");
  else StampaTesto(v != nullptr ? UsoVerbo(*v) : Uso(VERBI));
  return 0;
}

int main(int argc, char** argv) {
  PreparaCanali();
  std::string motivo;
  if (!LeggiArgomenti(argc, argv, VERBI, ospite.opzioni, motivo)) return UsoErrato(motivo);
  if (ospite.opzioni.aiuto || ospite.opzioni.versione) return Informa();
  const Verbo& v = *TrovaVerbo(VERBI, ospite.opzioni.comando);
  if (!Ammesso(v)) return UsoErrato(std::string(v.nome) + ": argomenti non validi");
  MontaPiattaforma();
  PreparaMemoria();
  Esci(v.esegui());
}
