// engine/Calcoli.h - the verification: strengths that do not depend on the load, then every sextet, then the report.
// State     verifica (engine/verifica.h). The tables are in ris, good for one report.
// Failure   a solver that fails or an arithmetic fault ends the run: its box is shown, earlier rows stay, no report.
#pragma once
// Everything but the messages on the diameter and the report. False: stopped, the boxes already shown.
bool CalcolaTabelle();
// The whole verification. False: stopped by a failure, its boxes already shown.
bool EseguiVerifica();
