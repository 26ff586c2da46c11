// panels/lavoro_finestre.h - the one Lavoro of the panels' run: what a verification leaves behind counts for the next one.
// State     lavoro: of the joint on the panels, until the process ends. Drawing and verification share its table of welds.
#pragma once
#include "engine/lavoro.h"
#include "panels/InsDati.h"

inline Lavoro lavoro;

void LegaLavoro();    // to the joint and the suite in use, and the sheet to it; the start does it
void AzzeraLavoro();  // as at the start of the program
// The command Verifica but for its report: input checks, questions, verification by l, boxes of its diagnoses. The two concrete values that
// the method sets go to the joint on the panels.
EsitoVerifica GiudicaConRiquadri(Lavoro& l);
// The verification by `lavoro` and its report, without the input checks; then the tables as they stay in sight: the units of the report
// (daN/cm2), ratios rounded, as far as the checks came. False: stopped by a failure, its boxes already shown.
bool VerificaNodoFinestre();
EsitoVerifica VerificaConRelazione();  // the whole command Verifica
