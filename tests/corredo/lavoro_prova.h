// tests/corredo/lavoro_prova.h - the panels' Lavoro under short names: tests fill its tables by hand and look into them.
#pragma once
#include "core/piattaforma.h"
#include "model/stato.h"
#include "panels/lavoro_finestre.h"

inline Risultati& ris = lavoro.ris;
inline StatoVerifica& verifica = lavoro.verifica;
inline StatoPresInfl& presInfl = lavoro.presInfl;

// By the joint's own method, as the panels take it.
inline Lavoro& LavoroProva() {
  lavoro.TipoVer = nodo.TipoVer;
  return lavoro;
}

// The notes as boxes on the platform, in their order.
inline void MostraDiagnosi(const Lavoro& l) {
  for (const Diagnosi& d : l.diagnosi) Messaggio(d.testo, d.titolo, d.icona);
}
