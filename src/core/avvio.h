// core/avvio.h - from the command line to the folders of a run.
// State     suite.DirRoot, DirLavoro, Lavoro, DirProgra, DirDriver, DirCustom.
#pragma once
#include <string>

// rigaComando: the command line whole; holds "|diroot=" path "|", text may stand before and behind. Paths come out in lower
// case, Lavoro as its file writes it. False: the box of the failure was shown; the caller ends the process.
bool TrovaPercorsi(const std::string& rigaComando);
