// core/aritmetica.h - what a command does of a fault, and the status of its steps.
#pragma once
#include "core/fault.h"

// The box of a fault, critical, titled TitoloProg, and the flags cleared. The verification has its own text.
void MostraFault(const char* testo = TESTO_FAULT);

// A failed step is skipped: the variable keeps its value, this status is set, the next step runs. Whoever commands looks at
// it once, at the end; Scatena clears it before a command of the user.
struct StatoPassi {
  bool fallito = false;
};
inline StatoPassi passi;
