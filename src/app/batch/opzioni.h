// app/batch/opzioni.h - the command line of the host without windows.
// Failure   false: wrong usage.
#pragma once
#include <string>
#include <vector>

struct Opzioni {
  int metodo = -1;                        // entry of TipoVer to select after a load, -1 what the node says
  char decimale = 0;                      // decimal mark, 0 the system's
  bool rispondiOk = true;                 // answer to a question for which none is queued
  int processi = 0;                       // nodes side by side, 0 one a core
  bool senzaProgrammi = false;            // every outside program counts as not started
  std::string rigaComando;                // the first argument that is no option: the start takes it whole
  std::string comando;                    // verifica, disegno, esegui
  std::vector<std::string> argomenti;     // what follows
};

bool LeggiOpzioni(int argc, const char* const* argv, Opzioni& o);
char DecimaleSistema();                   // decimal mark of the user's locale
extern const char* const USO;             // the text for wrong usage
