// model/regole_nodo.cpp - positions, throats, margins, chamfers.
#include "model/regole_nodo.h"

#include <cmath>

#include "model/schemi.h"

void PosizioniExtra(Nodo& n) {
  const SchemaTirafondi& s = SCHEMI[SchemaTir(n)];
  n.NTir = static_cast<std::int16_t>(s.quanti);
  for (int i = 5; i <= s.quanti; ++i) {
    const PostoExtra p = s.extra[i - 5];
    n.TfZ[i] = p.z != 0 ? n.TfZ[p.z] : n.LatoZ / 2;
    n.TfY[i] = p.y != 0 ? n.TfY[p.y] : n.LatoY / 2;
  }
}

void PosizioniTirafondi(Nodo& n, const DistanzeTir& d) {
  n.TfZ[1] = n.TfZ[3] = d.z1;
  n.TfZ[2] = n.TfZ[4] = n.LatoZ - d.z2;
  n.TfY[1] = n.TfY[2] = d.y1;
  n.TfY[3] = n.TfY[4] = n.LatoY - d.y2;
  PosizioniExtra(n);
}

double GolaDaLato(double lato) { return lato / std::sqrt(2.0); }
double LatoDaMargine(double margine, double colonna) { return 2 * margine + colonna; }
double MargineDaLato(double lato, double colonna) { return (lato - colonna) / 2; }
double ModuloCls(double Rck) { return 5700 * std::sqrt(Rck / 10) * 10; }

static double TerzoInDecine(double lungo) { return 10 * std::floor(std::floor(lungo / 3) / 10 + 0.5); }

Smussi SmussiNervature(const Nodo& n) {
  return {TerzoInDecine(n.HNerv), TerzoInDecine((n.LatoZ - n.Sezione.B - 2 * n.SpNerv) / 2), TerzoInDecine((n.LatoY - n.Sezione.H) / 2)};
}

double LunghezzaTirafondo(const Nodo& n) {
  const double diritto = n.TfLFt + n.TfL;
  const double L = n.TipoTirafondo == 1 ? diritto - n.TfR + PI_PROG * n.TfR + n.TfL1 : diritto;
  return std::floor(10 * L + 0.5) / 10;
}
