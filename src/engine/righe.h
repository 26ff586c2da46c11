// engine/righe.h - every check as a row: what is compared with what, and the verdict. Reports, windows and exports print these rows.
// Order     by sextet, then by the table of the method's checks, then by element. All sextets have the same rows.
// Units     of domanda and limite by Grandezza: daN/cm2, daN, or none.
// Another check is one line of the table in righe.cpp, and its tests.
#pragma once
#include <span>

#include "engine/lavoro.h"

enum class Grandezza : unsigned char { Tensione, Forza, Rapporto };
enum class Elementi : unsigned char { Nodo, Tirafondi, Saldature };

struct Criterio {
  const char* id;
  const char* nome;  // Italian, for a person
  Grandezza grandezza;
  const char* clausola;  // source of the limit
  Elementi elementi;
  bool (*presente)(const Lavoro& l, int e);          // the check has a row for element e; null: always
  double (*domanda)(const Lavoro& l, int s, int e);  // before any rounding
  double (*arrotonda)(double);                       // to the number that is compared; null: as it is
  double (*limite)(const Lavoro& l, int s, int e);
  bool (*passa)(double domanda, double limite);
  bool quadrato = false;  // the demand is a sum of squares: its root ranks it among the others
};

// Positions in the tables.
enum CriterioTA { TA_TIR_COEFF, TA_TIR_RIF, TA_TIR_TIRO, TA_SALD, TA_PIASTRA, TA_NERV_Z, TA_NERV_Y, TA_CLS };
enum CriterioSLU { SLU_TIR_CO1, SLU_TIR_CO2, SLU_TIR_CO3, SLU_SALD_1, SLU_SALD_2, SLU_PIASTRA, SLU_NERV_Z, SLU_NERV_Y, SLU_CLS };
std::span<const Criterio> Criteri(int metodo);

// Limits, rows and verdicts of every sextet, from the tables of l. Lowers ris.TadRd by allowable stresses: it never rises again.
// A fault leaves the processor's flags raised, and l.fermo tells where it came up.
void Giudica(Lavoro& l);

std::span<const RigaControllo> RigheSestetto(const Lavoro& l, int s);
std::span<const RigaControllo> RigheCriterio(const Lavoro& l, int s, int criterio);  // empty: the joint has none

// The weld is on the list of the allowable-stress method: the inner ones of the ribs (9 and 19) only where they are made.
bool SaldaturaElencata(const Nodo& nodo, int w);
// The weld at a rib's inner edge, one on each side of the column.
inline bool SaldaturaInterna(int w) { return w == 9 || w == 19; }

// Rib positions of the results along each axis, and the largest stress at them, daN/mm2.
constexpr int POSIZIONI_Z[] = {3, 4, 7, 8}, POSIZIONI_Y[] = {1, 2, 5, 6};
double SMaxNervatura(const Risultati& ris, int s, const int (&posizioni)[4]);
