// reports/Relazioni.h - the calculation report of each method: one text file, which also judges every sextet, since the
// order of the lines is the order of the checks and of their side effects on the result tables.
// Given     nodo, materials and ris as the verification left them, suite for units and folders.
// Effects   the tables are rescaled or rounded in place and ris.TadRd is lowered: good for one report only.
// Failure   false: an arithmetic fault, or a file that cannot be opened or written. The fault flag stays raised and the
//           caller shows the box; the file is closed with the lines so far, nothing is shown.
#pragma once

struct EsitoRelazione {
  bool scritta = false;            // the report is complete on disk and was shown
  bool fallito = false;            // at least one sextet is not verified
};
inline EsitoRelazione esitoRelazione;    // of the last verification: cleared when one starts, set by its report

bool RelazioneTA();                // allowable stresses, CNR 10011/88
bool RelazioneSLU();               // limit states, NTC 2008
