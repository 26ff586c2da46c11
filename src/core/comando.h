// core/comando.h - the file of an outside program.
// The whole text is the program's path, blanks and all: no head of it is ever tried, so that nothing that lies beside a folder on the way
// runs in the program's place. The name is matched by the path layer, with or without its ".exe".
#pragma once
#include <string>
#include <string_view>

std::string TrovaProgramma(std::string_view programma);  // the system's path of the executable file; "" none
