// results/governanti.h - which row governs: of a joint, of a check, of a sextet. Rows in the fixed units of every output.
// Rule      the largest utilisation; a row that does not pass goes before all that pass; where a limit gives no ratio, one that does not
//           pass counts as infinite and one that passes as 0; ties: lower sextet, then order of the checks, then lower element.
// Units     N/mm2, kN, "-".
#pragma once
#include <cstddef>
#include <string_view>
#include <vector>

#include "engine/righe.h"

constexpr double KN_DI_DAN = 0.01, KNM_DI_DANCM = 0.0001, NMM2_DI_DANCM2 = 0.1;

struct RigaUscita {  // one row as it goes out
  const Criterio* criterio = nullptr;
  int sestetto = 0, elemento = 0;
  double domanda = 0, limite = 0;
  double rapporto = 0, sfruttamento = 0;  // not a number: none
  bool passa = true;
};
std::string_view UnitaRiga(Grandezza g);  // "N/mm2", "kN", "-"
RigaUscita InUscita(const RigaControllo& r, int metodo);

constexpr std::size_t NESSUNA_RIGA = static_cast<std::size_t>(-1);
struct Governanti {  // positions in the Lavoro's rows
  std::size_t nodo = NESSUNA_RIGA;
  std::vector<std::size_t> perControllo;  // of the checks that have rows, in their order
  std::vector<std::size_t> perSestetto;
};
Governanti TrovaGovernanti(const Lavoro& l);

// The verdict turns if the demand, before any rounding, changes by one part in a million.
bool AlLimite(const RigaControllo& r, int metodo);
