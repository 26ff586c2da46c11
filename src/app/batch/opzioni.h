// app/batch/opzioni.h - the command line of the host without windows: options, verbs, and the texts that tell them.
// Failure   false: wrong usage.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct Opzioni {
  int metodo = -1;                       // entry of TipoVer to select after a load, -1 what the node says
  bool entrambi = false;                 // both methods, one behind the other
  char decimale = 0;                     // decimal mark, 0 the system's
  bool rispondiOk = true;                // answer to a question for which none is queued
  int processi = 0;                      // nodes side by side, 0 one a core
  bool senzaProgrammi = false;           // every outside program counts as not started
  std::string formato;                   // of the output, empty: by where it goes
  bool tutteLeRighe = false;             // all rows, not the governing ones
  int sestetto = 0;                      // 1-based, 0 the governing one
  std::string uscita, elenco, riprendi;  // files: the output, a list of nodes, an earlier output
  bool aiuto = false, versione = false;
  std::string rigaComando;             // the first argument that is no option: the start takes it whole
  std::string comando;                 // the verb
  std::vector<std::string> argomenti;  // what follows
};

struct Verbo {
  const char* nome;
  const char* argomenti;        // as the usage shows them
  const char* aiuto;            // one line
  std::size_t minimo, massimo;  // arguments
  int (*esegui)();
  bool (*ammesso)() = nullptr;  // of the arguments; null: any
  const char* opzioni = "";     // its own ones, separated by blanks, beside those of every verb
};

// Options that the verb does not know are wrong usage, named in `motivo`. With --help or --version the rest may be missing.
bool LeggiArgomenti(int argc, const char* const* argv, std::span<const Verbo> verbi, Opzioni& o, std::string& motivo);
char DecimaleSistema();                         // decimal mark of the user's locale
std::string Uso(std::span<const Verbo> verbi);  // every verb, every option
std::string UsoVerbo(const Verbo& v);
const Verbo* TrovaVerbo(std::span<const Verbo> verbi, std::string_view nome);
