// app/batch/main.cpp - the program without its windows: the same start, the same panels, the same commands, driven from the
// command line or from a script.
// Exit      0 done and every sextet verified, 1 done and some sextet is not verified, 2 not done.
#include "app/batch/copione.h"
#include "app/batch/disegno.h"
#include "app/batch/memoria.h"
#include "app/batch/piattaforma_batch.h"
#include "app/batch/sistema.h"
#include "app/batch/verifica.h"
#include "core/eventi.h"
#include "core/file.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"

#include <cstdint>
#include <cstdio>
#include <thread>

static void AvviaProgrammaOspite() {
  suite.Decimale = ospite.opzioni.decimale != 0 ? ospite.opzioni.decimale : DecimaleSistema();
  if (!CaricaInsDati(ospite.opzioni.rigaComando)) Esci(2);
  ospite.avviato = true;
}

static int ComandoVerifica() {
  AvviaProgrammaOspite();
  const unsigned nuclei = std::thread::hardware_concurrency();
  const int processi = ospite.opzioni.processi > 0 ? ospite.opzioni.processi : nuclei > 0 ? static_cast<int>(nuclei) : 1;
  return VerificaNodi(ospite.opzioni.argomenti, processi);
}

static int ComandoDisegno() {
  AvviaProgrammaOspite();
  return DisegnaNodo(ospite.opzioni.argomenti[0], ospite.opzioni.argomenti[1]);
}

static bool LeggiCopione(const std::string& percorso, std::string& testo) {
  if (percorso == "-") {
    char byte[4096];
    for (std::size_t n = 0; (n = std::fread(byte, 1, sizeof byte, stdin)) > 0;) testo.append(byte, n);
    return std::ferror(stdin) == 0;
  }
  FileLettura f;
  if (!ApriLettura(f, percorso)) return false;
  testo = f.byte;
  return true;
}

static int ComandoEsegui() {
  std::string testo;
  if (!LeggiCopione(ospite.opzioni.argomenti[0], testo)) {
    std::fprintf(stderr, "copione non leggibile: %s\n", PercorsoSuUnaRiga(ospite.opzioni.argomenti[0]).c_str());
    return 2;
  }
  CaricaCopione(testo);
  ospite.dentroModale = [](const Pannello& p) { EseguiCopione(&p); };
  AvviaProgrammaOspite();
  EseguiCopione(nullptr);
  return copione.fermato ? 2 : StatoUscita();
}

struct RigaComandoOspite {
  const char* nome;
  std::size_t minimo, massimo;     // arguments
  int (*esegui)();
  bool (*ammesso)() = nullptr;     // of the arguments; null: any
};
static constexpr RigaComandoOspite COMANDI[] = {
  { "verifica", 1, SIZE_MAX, ComandoVerifica },
  { "disegno", 2, 2, ComandoDisegno, [] { return FormatoAmmesso(ospite.opzioni.argomenti[1]); } },
  { "esegui", 1, 1, ComandoEsegui },
};

static bool Ammesso(const RigaComandoOspite& r) {
  const std::size_t n = ospite.opzioni.argomenti.size();
  return n >= r.minimo && n <= r.massimo && (r.ammesso == nullptr || r.ammesso());
}

int main(int argc, char** argv) {
  PreparaCanali();
  if (LeggiOpzioni(argc, argv, ospite.opzioni))
    for (const RigaComandoOspite& r : COMANDI)
      if (ospite.opzioni.comando == r.nome && Ammesso(r)) {
        MontaPiattaforma();
        PreparaMemoria();
        Esci(r.esegui());
      }
  std::fputs(USO, stderr);
  return 2;
}
