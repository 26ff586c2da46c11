// core/fault.cpp - the processor's exception flags as the program's arithmetic faults.
#include "core/fault.h"

#include <cfenv>

constexpr int FAULT = FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW;

void AzzeraFault() { std::feclearexcept(FAULT); }

void SegnalaFault() { std::feraiseexcept(FE_INVALID); }

bool FaultAritmetico() { return std::fetestexcept(FAULT) != 0; }

RiparoFault::RiparoFault() : prima(std::fetestexcept(FAULT)) {}

RiparoFault::~RiparoFault() {
  std::feclearexcept(FAULT);
  if (prima != 0) std::feraiseexcept(prima);
}
