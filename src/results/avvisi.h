// results/avvisi.h - where what a method prescribes needs the engineer's eye on this joint, and on which side it errs.
// Given     the joint as loaded, the method, the suite's diameters; the rows of a verification that was carried out, null without one.
// Order     of the table; each once a joint, but grado_diverso once a material.
#pragma once
#include <string>
#include <vector>

#include "engine/lavoro.h"

struct Avviso {
  std::string id, testo;  // testo: Italian
};

// The grades that the node file names. letti false: there is no file, nothing is compared.
struct GradiFile {
  std::string acciaio, tirafondi, calcestruzzo;
  bool letti = false;
};

std::vector<Avviso> AvvisiNodo(const Nodo& nodo, int metodo, const Suite& suite, const GradiFile& gradi, const Lavoro* giudicato);
