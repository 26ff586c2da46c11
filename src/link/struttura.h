// link/struttura.h - the job's structure file and section file, as far as a joint needs them: which bars meet at a node, which
// section a bar has. The suite owns the files; fields that no joint needs are skipped by count.
// Layout    version line; count and n1 records; count and n2 nodes; count and n3 bars of two lines; the count of load conditions.
// Failure   a file that cannot be opened shows its own box; a truncated one yields what it holds. No count is trusted: every loop
//           stops at the file's end.
#pragma once
#include <string_view>

#include "core/file.h"
#include "link/collegamento.h"

struct NodoStruttura {
  double v[4] = {};  // number, then three values; the last is the node's name in the selection's reading
  std::string testo;
};
struct AstaStruttura {
  std::int32_t nodo1 = 0, nodo2 = 0, tipoLinea = 0, colore = 0;  // ends: a node's first value
  std::int32_t numero = 0, sezione = 0;
};
enum class PrimoBlocco { Righe, Terne };  // how the n1 records are passed over: whole lines, or three values each

struct LettoreStruttura {
  FileLettura file;
  std::int32_t restanti = 0;  // records left in the block being read
  bool vecchia = false;       // of an old release
};
// Opens, checks the version (its box if the first line is of an old release) and passes the first block. False: not opened.
bool ApriStruttura(LettoreStruttura& l, std::string_view nomeFile, PrimoBlocco modo);
void AvvisaVersione();                                     // the box of an old release
void InizioBlocco(LettoreStruttura& l);                    // the block's count, first token of a line
bool ProssimoNodo(LettoreStruttura& l, NodoStruttura& n);  // false: block or file ended
bool ProssimaAsta(LettoreStruttura& l, AstaStruttura& a);

std::int16_t SezioneDiAsta(std::int16_t asta);  // section number of a bar, -1: not there, or the file's box was shown
int ProfiloDaAsta(std::int16_t asta);  // library entry 1..NumProfili of a bar's section; 0: none, its box was shown or nothing to say
enum class EsitoAste { Trovate, Fallito, Troppe };  // Fallito: its box was shown; Troppe: the caller's box
EsitoAste AsteDelNodo(std::int16_t numeroNodo);     // NumAsteNodo, AsteNodo, SezAsteNodo
EsitoAste SezioniAsteNodo();                        // SezioniStr; a section that is not the library's gets "Non app. " before its name;
                                                    // Troppe: the file's count is out of range
bool NodiAste();                                    // AstaNodo, LatoAsta for AsteNodo and nodo.NodiStr; false: its box was shown
bool CondizioniStruttura(std::int32_t& n);          // number of load conditions; false: not readable (no box)
