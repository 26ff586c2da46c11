// app/batch/memoria.cpp - the handler of a failed allocation.
#include "app/batch/memoria.h"

#include "app/batch/piattaforma_batch.h"
#include "core/eventi.h"
#include "model/suite.h"

#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>

constexpr std::size_t RISERVA = 1u << 16;  // bytes given back before the message goes out

static std::string riga;  // composed while there is memory
static void* riserva = nullptr;

static void MemoriaEsaurita() {
  std::free(riserva);
  riserva = nullptr;
  if (ospite.dati && !ospite.lavorante) std::fprintf(stderr, "errore: %s\n", TESTO_MEMORIA);
  else Stampa(riga);
  Esci(2);
}

void PreparaMemoria() {
  riga = RigaMessaggio(TESTO_MEMORIA, TitoloProg, Icona::Critica);
  riserva = std::malloc(RISERVA);
  std::set_new_handler(MemoriaEsaurita);
}
