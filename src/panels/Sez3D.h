// panels/Sez3D.h - the section import: the column's section from the bars that meet at a node of the model. No command opens it
// today; it stays reachable by other callers.
// State     sez3D: node, list, last valid position; the sections themselves in collegamento.
#pragma once
#include "drawing/tela.h"
#include "panels/controlli.h"

struct StatoSez3D {
  bool aperto = false, caricato = false;
  std::string titolo = "Importa sezioni da 3D";
  int UltimaValida = 0;  // last position of ComboP that could be taken
  std::int16_t UltimoNodo = 0;
  Controllo Label1, Label2, NodoTxt, command1, Cerca, ComboP, geom[5], geomp[5], DisPri, OK, Annulla;
  Tela telaDisPri;
};
inline StatoSez3D sez3D;
extern const Pannello Sez3D;
