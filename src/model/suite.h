// model/suite.h - what one run of the program knows of the suite and of the job: paths, units, tables read at the start.
// State     suite: filled by the start, then read-only but for ParNodo (options panel); ends with the process.
// Units     each factor multiplies a model value (daN, daN cm, daN/cm2, cm) into the unit shown; a typed value is divided by it.
#pragma once
#include "model/node_model.h"

constexpr const char* TitoloProg = "NODO COLONNA - PLINTO";
constexpr int MaxProfili = 2000;  // library entries 1..2000
constexpr int ProfiloBase = 32;   // library entry of a new joint
constexpr int MaxDiam = 99;       // last row of the diameter table, rows from 0
constexpr int NumParNodo = 28;    // drawing options 0..27

struct Suite {
  std::string DirRoot, DirLavoro, DirProgra, DirDriver, DirCustom, Lavoro;  // as composed, with backslashes
  std::string StrTmp;   // scratch text of the suite's programs; it holds nothing between two operations
  char Decimale = '.';  // decimal mark of the user's locale, asked once by the host

  double AccelG = 0, NordGeo = 0;
  std::string UnitaLung, UnitaForze, UnitaMomenti, UnitaTensioni, UnitaSezioni, UnitaCarichi;
  double FattLung = 0, FattForze = 0, FattMomenti = 0, FattTensioni = 0, FattSezioni = 0, FattCarichi = 0;
  std::int16_t DecLung = 0, DecForze = 0, DecMomenti = 0, DecTensioni = 0, DecSezioni = 0, DecCarichi = 0;

  std::int16_t NumDiam = 0;
  std::string DiamNome[MaxDiam + 1];
  double DiamVal[MaxDiam + 1] = {}, DiamArea[MaxDiam + 1] = {};  // mm, mm2

  double ParNodo[NumParNodo] = {};

  std::int16_t NumProfili = 0;
  Sezione ProfiliLib[MaxProfili + 1];
};
