// app/batch/dati.h - what the verbs share whose output is data: the start without boxes on the output, one line a failure.
#pragma once
#include <string>

void Errore(const std::string& testo);  // "errore: ..." on standard error, one line
// The quiet host mounted and the whole start; its boxes are told on standard error. False: it ended, the reason is told.
bool AvviaPerDati();
