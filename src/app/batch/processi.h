// app/batch/processi.h - outside programs, run without a shell.
// The program is found as core/comando.h tells. Output and input of the programs are shut, since the host's own carry the events
// and the script.
// Failure   false: missing, not executable, or the system could not start it.
#pragma once
#include "core/comando.h"

#include <string>

bool EseguiProgramma(const std::string& programma, const std::string& argomento);   // to its end, whatever its exit status
int AvviaProgramma(const std::string& programma, const std::string& argomento);     // not waited for: its process number, 0 not started
bool ProgrammaVivo(int processo);                        // false: ended, and reaped
