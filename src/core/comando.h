// core/comando.h - the parts of an outside program's command line.
// A command is the program's path, as composed, and the rest of the line, which is handed over as one argument. The path may hold
// blanks: the shortest head of the command that names an executable file is the program. The name is matched by the path layer, with or
// without its ".exe".
#pragma once
#include <string>
#include <string_view>

bool DividiComando(std::string_view comando, std::string& programma, std::string& argomento);   // false: no head is an executable file
