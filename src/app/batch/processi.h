// app/batch/processi.h - outside programs, run without a shell.
// A command is the program's path, as composed, and the rest of the line, which is handed over as one argument. The path may hold
// blanks: the shortest head of the command that names an executable file is the program. The name is matched by the path layer, with or
// without its ".exe". Output and input of the programs are shut, since the host's own carry the events and the script.
// Failure   false: missing, not executable, or the system could not start it.
#pragma once
#include <string>
#include <string_view>

// The parts of a command; false: no head of it is an executable file.
bool DividiComando(std::string_view comando, std::string& programma, std::string& argomento);
bool EseguiProgramma(const std::string& comando);        // to its end, whatever its exit status
int AvviaProgramma(const std::string& comando);          // not waited for: its process number, 0 not started
bool ProgrammaVivo(int processo);                        // false: ended, and reaped
