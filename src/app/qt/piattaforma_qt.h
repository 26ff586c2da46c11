// app/qt/piattaforma_qt.h - the platform of the desktop: boxes, file dialogs, outside programs, timers, pointer, windows.
// Faults    each operation leaves the arithmetic flags as it found them: what the toolkit computes is no step of the program.
// Failure   as the seam tells; a program that could not be started, a window that is not there: false.
#pragma once
#include "core/piattaforma.h"

#include <QString>
#include <QStringList>

void MontaPiattaformaQt();
char DecimaleDelDesktop();                             // decimal mark of the user's locale
QStringList FiltriDialogo(const std::string& filtro);  // "text|pattern|text|pattern" as the toolkit's name filters

bool EseguiProgrammaQt(const std::string& programma,
                       const std::string& argomento);  // input is dropped and the windows stay painted until it ends
bool AvviaProgrammaQt(const std::string& programma, const std::string& argomento);
