// app/batch/memoria.cpp - the handler of a failed allocation.
#include "app/batch/memoria.h"

#include "app/batch/piattaforma_batch.h"
#include "core/eventi.h"
#include "model/suite.h"

#include <cstdio>
#include <cstdlib>
#include <new>

constexpr std::size_t RISERVA = 1u << 16;  // bytes given back before the message goes out

static void MemoriaEsaurita() {
  std::free(ospite.memoria.riserva);
  ospite.memoria.riserva = nullptr;
  if (ospite.dati && !ospite.lavorante) std::fprintf(stderr, "errore: %s\n", TESTO_MEMORIA);
  else Stampa(ospite.memoria.riga);
  Esci(2);
}

void PreparaMemoria() {
  ospite.memoria.riga = RigaMessaggio(TESTO_MEMORIA, TitoloProg, Icona::Critica);
  ospite.memoria.riserva = std::malloc(RISERVA);
  std::set_new_handler(MemoriaEsaurita);
}
