// core/fault.h - arithmetic faults: division by zero, invalid operation, overflow, by the processor's flags of this thread.
// A step runs, its results are stored, the flags are tested, the command ends on a fault. No exceptions; no
// not-a-number and no infinity ever reaches a report, a file or a drawing.
#pragma once

void AzzeraFault();      // clears the flags; before a step that is to be judged
void SegnalaFault();     // raises a fault by hand: integer overflow, index outside its array, file not opened in an unguarded place
bool FaultAritmetico();  // true: a fault was raised since AzzeraFault

// The flags as they stood, put back at the end of a block whose own arithmetic is nobody's business (a window toolkit, a notice).
class RiparoFault {
 public:
  RiparoFault();
  ~RiparoFault();
  RiparoFault(const RiparoFault&) = delete;
  RiparoFault& operator=(const RiparoFault&) = delete;

 private:
  int prima;
};

constexpr const char* TESTO_FAULT_VERIFICA = "Errore aritmetico: la verifica non può continuare.";
constexpr const char* TESTO_FAULT = "Errore aritmetico: il comando non può continuare.";
