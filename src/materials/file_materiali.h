// materials/file_materiali.h - the two material files: the suite's catalogue and the job's own materials.
// State     materiali; the switches UsaViti .. SezChiuse are set before. Both files are read once, at the start.
// Units     stresses daN/cm2, stored as the files write them.
// Numbers   the catalogue by the mark of the user's locale (suite.Decimale), the job's file always with the point.
#pragma once
#include <string>
#include <string_view>

constexpr const char* FILE_CATALOGO = "\\MaterialiNTC08.tx1";   // behind DirCustom
constexpr const char* FILE_MAT_LAVORO = "\\propmateriali.tx1";  // behind DirLavoro
constexpr int MaxIndiciChiave = 5;                              // integers in the brackets of a key

// Fills the five tables. Only a file that cannot be opened is a failure: errore gets the text of its box (title "ERRORE", critical).
// A bad number leaves its field as it was; entries beyond 50 are read and dropped, the count stays as read.
void LeggiMaterialiCatalogo(const std::string& path, std::string& errore);

// Reads DirLavoro\propmateriali.tx1 and sets materiali.MatDaBase; shows the box of a missing file or of another release.
// False: a fatal fault of a bracket, raised by SegnalaFault; the caller shows its box and ends the process.
bool LeggiMaterialiBase();

// One line "value [KEY i1 i2]" of that file; a line without a known key is ignored. False: as above.
bool DecifraRigaMatBase(const std::string& riga);

// Looks for "[chiave" followed by a blank or "]" in the line, without regard to case. 1: found, with the text before it, trimmed, in
// valore and the integers up to "]" in indici from 0 (the rest 0). 0: not there. -1: more than five integers, or one
// beyond 16 bits; fault raised.
int CercaChiave(std::string_view riga, std::string_view chiave, std::string& valore, int (&indici)[MaxIndiciChiave]);
