// core/opzioni.cpp - the drawing options' file, in both directions.
#include "core/opzioni.h"

#include <string>

#include "core/file.h"
#include "core/numeri.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr int OFFSET_QUOTE = 13;           // signed offset of the dimension text
constexpr int OFFSET_QUOTE_INSERITO = 17;  // the value of its field

bool LeggiOpzioni() {
  FileLettura f;
  if (!ApriLettura(f, suite.DirCustom + FILE_OPZIONI)) return false;
  bool riuscita = true;
  for (double& p : suite.ParNodo)
    if (!LeggiValore(f, p)) riuscita = false;
  suite.ParNodo[OFFSET_QUOTE_INSERITO] = suite.ParNodo[OFFSET_QUOTE];  // also with "Quote inf.": the field then shows the sign
  return riuscita;
}

bool ScriviOpzioni() {
  std::string testo;
  for (const double p : suite.ParNodo) testo.append(NumeroFile(p)).append("\r\n");
  return SostituisciFile(suite.DirCustom + FILE_OPZIONI, testo);
}
