// app/muto/ospite_muto.h - a host that shows nothing: boxes are gathered, questions answered by one rule, no program runs. For whoever
// loads and judges joints as data: the batch host and the library.
// State     muto: the boxes of the joint in hand, and the file that the next dialog names.
#pragma once
#include <string>
#include <vector>

#include "panels/InsDati.h"
#include "results/riepilogo.h"

struct RiquadroMuto {
  bool domanda = false, ok = false;  // ok: how the question was answered
  std::string testo;
};
struct StatoMuto {
  std::vector<RiquadroMuto> riquadri;
  std::string file;  // to the next file dialog
  bool rispondiOk = true;
  bool finito = false;  // the program ended itself: a start that failed
};
inline StatoMuto muto;

void MontaPiattaformaMuta();  // fills piattaforma
// The whole start, as CaricaInsDati; its boxes are in muto.riquadri. False: it ended in the last one.
bool AvviaMuto(const std::string& rigaComando, char decimale);
// The load command on a file. False: it ended in its failure box. Grades that the file names: gradiLetti.
bool CaricaMuto(const std::string& percorso);
std::string FileDelNodo(const std::string& percorso);  // what that command opens: a name without a point gets .qb7
void ScegliMetodoMuto(int metodo);                     // as the user does behind the load: grades follow it

std::string Sha256Suite();  // of the suite's files that a verification depends on; a missing file counts as such
bool Sha256File(const std::string& percorso, std::string& sha);

// The joint on the panels judged by l, from clean tables: checks, questions, verification, all but the report. n: percorso, fingerprints and
// options are given; everything else is filled. n.nodo, n.lavoro point to the panels' joint and to l.
void GiudicaMuto(NodoGiudicato& n, Lavoro& l);
void NonCaricato(NodoGiudicato& n);  // motivo and avvisi of a load that failed
