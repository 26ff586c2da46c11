// link/collegamento.h - what the imports ask of the job's three-dimensional model, and what they found there.
// State     collegamento: filled by the import panels' commands, kept until the next one.
// Indices   lists 1-based, index 0 free; int16 as in the suite's files, places in a file from 0.
#pragma once
#include "model/node_model.h"
#include "model/suite.h"

constexpr int MaxAste = 2000;  // bars of an import, rows of the section list
constexpr int MaxCasi = 200;   // load cases, load conditions, sextets of a list

struct Collegamento {
  std::int16_t NumAsteNodo = 0;
  std::int16_t AsteNodo[MaxAste + 1] = {};     // bar numbers; negative: not in the structure file
  std::int16_t SezAsteNodo[MaxAste + 1] = {};  // section number of each bar (section import)
  Sezione SezioniStr[MaxAste + 1];             // section of each bar (section import)
  Sezione SezioneImp;                          // the section chosen there

  std::int32_t AstaNodo[MaxAste + 1] = {};  // place of each bar in the file, from 0; -1 not found
  std::int16_t LatoAsta[MaxAste + 1] = {};  // 1: the node is the bar's first end, 2: its second

  std::int16_t NumCasiStr = 0, CasiStr[MaxCasi + 1] = {};
  std::int16_t NumCondStr = 0, CondStr[MaxCasi + 1] = {};
  std::int16_t NumSestettiStr = 0, SestettiStr[MaxCasi + 1] = {};
  std::string TipiCaso[MaxCasi + 1];  // type of each case, same index as CasiStr after LeggiTipiCaso

  std::int32_t Letti = 0, Presi = 0;  // records read and taken by the last import
};
inline Collegamento collegamento;
