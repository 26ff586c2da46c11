// core/aritmetica.cpp - the processor's exception flags as the program's arithmetic faults.
#include "core/aritmetica.h"

#include <cfenv>

#include "core/piattaforma.h"
#include "model/suite.h"

namespace {
constexpr int FAULT = FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW;
}

void AzzeraFault() { std::feclearexcept(FAULT); }

void SegnalaFault() { std::feraiseexcept(FE_INVALID); }

bool FaultAritmetico() { return std::fetestexcept(FAULT) != 0; }

void MostraFault(const char* testo) {
  AzzeraFault();
  Messaggio(testo, TitoloProg, Icona::Critica);
}
