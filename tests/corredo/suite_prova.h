// tests/corredo/suite_prova.h - the sample suite in a scratch folder, and the program started on it as a user does.
#pragma once
#include <string>

// A copy of the sample suite with its dirlav, ready for a start; the folder is emptied first. Returns its absolute path.
std::string PreparaSuite(const std::string& nome);
// Recording platform, every record at its start value, start with that root. False: the start ended in a message.
bool AvviaSuite(const std::string& radice);
// The scratch copy's job folder, as the system spells it, with its final separator.
std::string CartellaLavoro(const std::string& radice);
