// panels/pannelli.h - the list of the panels, and which of them the user can reach now. Every host enters here: its apri calls
// PannelloMostrato before painting, its chiudi PannelloNascosto.
// State     pannelli: the modal panels on screen, innermost last.
#pragma once
#include "model/nomi.h"
#include "panels/controlli.h"

#include <span>
#include <string_view>
#include <vector>

struct StatoPannelli {
  std::vector<const Pannello*> modali;  // only the last can be used
};
inline StatoPannelli pannelli;

std::span<const Pannello* const> Pannelli();
std::span<const RigaNome> NomiPannelli();              // what the panels keep by a name of the model: StatoTxt
const Pannello* TrovaPannello(std::string_view nome);  // nullptr: none of that name
bool Raggiungibile(const Pannello& p);                 // on screen, and no modal panel in front of it
void PannelloMostrato(const Pannello& p, bool modale);
void PannelloNascosto(const Pannello& p);
