// link/casi.h - the types of the job's load cases, file combinaz.tot.
#pragma once

enum class EsitoCasi { Letti, Assente, Troppi };  // Assente, Troppi: its box was shown
// CasiStr, TipiCaso, NumCasiStr of collegamento. A type is what stands behind "TIPOVER=" up to the next "|" or the line's end.
EsitoCasi LeggiTipiCaso();
