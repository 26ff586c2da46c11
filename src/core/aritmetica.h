// core/aritmetica.h - arithmetic faults: division by zero, invalid operation, overflow.
// A step runs, its results are stored, the flags are tested, the command ends on a fault. No exceptions; no
// not-a-number and no infinity ever reaches a report, a file or a drawing.
#pragma once
#include <string>

void AzzeraFault();                // clears the processor's flags; before a step that is to be judged
void SegnalaFault();               // raises a fault by hand: integer overflow, index outside its array, file not opened in an unguarded place
bool FaultAritmetico();            // true: a fault was raised since AzzeraFault

// The box of a fault, critical, titled TitoloProg, and the flags cleared. The verification has its own text.
constexpr const char* TESTO_FAULT_VERIFICA = "Errore aritmetico: la verifica non può continuare.";
constexpr const char* TESTO_FAULT = "Errore aritmetico: il comando non può continuare.";
void MostraFault(const char* testo = TESTO_FAULT);

// A failed step is skipped: the variable keeps its value, this status is set, the next step runs. Whoever commands looks at
// it once, at the end; Scatena clears it before a command of the user.
struct StatoPassi { bool fallito = false; };
inline StatoPassi passi;
