// app/batch/dati.h - what the verbs share whose output is data: the start without boxes on the output, one line a failure.
#pragma once
#include <string>

void Errore(const std::string& testo);  // "errore: ..." on standard error, one line
// Mounts the host that gathers boxes and runs the whole start; its boxes go to standard error. False: it ended, the reason stands there.
bool AvviaPerDati();
