// app/batch/disegno.h - a node's executive drawing, in the format of the output's extension.
// Returns   0 written, 2 not written: node not loaded, or a failure that showed its box.
#pragma once
#include <string>

bool FormatoAmmesso(const std::string& uscita);  // the extension, in any case, is one of the formats
int DisegnaNodoOspite(const std::string& percorso, const std::string& uscita);
