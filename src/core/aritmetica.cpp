// core/aritmetica.cpp - the box of a fault.
#include "core/aritmetica.h"

#include "core/piattaforma.h"
#include "model/suite.h"

void MostraFault(const char* testo) {
  AzzeraFault();
  Messaggio(testo, TitoloProg, Icona::Critica);
}
