// tests/corredo/lavoro_prova.h - the panels' Lavoro under short names: tests fill its tables by hand and look into them.
#pragma once
#include <memory>

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

// A Lavoro of its own on copies of the joint and the suite as they stand: nothing on the panels touches it.
struct LavoroSuo {
  Nodo nodo = ::nodo;
  Suite suite = ::suite;
  Lavoro l;
  LavoroSuo() {
    l.nodo = &nodo;
    l.suite = &suite;
    l.TipoVer = nodo.TipoVer;
  }
  LavoroSuo(const LavoroSuo&) = delete;
  LavoroSuo& operator=(const LavoroSuo&) = delete;
};
inline std::unique_ptr<LavoroSuo> CreaLavoroSuo() { return std::make_unique<LavoroSuo>(); }

// The notes as boxes on the platform, in their order.
inline void MostraDiagnosi(const Lavoro& l) {
  for (const Diagnosi& d : l.diagnosi) Messaggio(d.testo, d.titolo, d.icona);
}
