// engine/diagnosi.h - what a verification has to say besides its numbers. The engine notes it, whoever called shows it.
// Order     that of the notes is that of happening; testo and titolo are those of the box.
#pragma once
#include <string>

#include "model/icona.h"
#include "model/suite.h"

struct Diagnosi {
  std::string testo;
  const char* titolo = TitoloProg;
  Icona icona = Icona::Nessuna;
};
