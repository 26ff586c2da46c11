// link/esporta_soll.h - the load list as a text file that a spreadsheet reads, in the user's units.
#pragma once
#include <string>

// Components in the file's order: N, Ty, Tz, Mt, My, Mz. A flag that is false writes 0 in its column.
struct ElencoSoll {
  const double* componente[6] = {};  // arrays of model values: daN, daN cm
  bool usa[6] = {true, true, true, true, true, true};
  const std::string* nomi = nullptr;
  int conteggio = 0, primo = 1;  // groups primo .. primo + conteggio - 1; the ordinal written counts from 1
};
enum class EsitoEsporta { Scritto, NonAperto, NonScritto, Interrotto };
// No box. A value that overflows in the user's unit is an arithmetic fault, Interrotto: the file of before stands.
EsitoEsporta EsportaSollecitazioni(const std::string& nomeFile, const ElencoSoll& elenco);
