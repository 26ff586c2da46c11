// panels/pannelli.cpp - which panels there are, which can be reached.
#include "panels/pannelli.h"

#include "panels/FormTF.h"
#include "panels/InsDati.h"
#include "panels/Op_Nodo.h"
#include "panels/PropMateriali.h"
#include "panels/Sez3D.h"
#include "panels/Soll3D.h"
#include "panels/selezione.h"

static const Pannello* const PANNELLI[] = {
  &InsDati, &FormTF, &Op_Nodo, &PropMateriali, &Sez3D, &Soll3D, &Selezione,
};

std::span<const Pannello* const> Pannelli() { return PANNELLI; }

const Pannello* TrovaPannello(std::string_view nome) {
  for (const Pannello* p : PANNELLI)
    if (nome == p->nome) return p;
  return nullptr;
}

static constexpr RigaNome NOMI[] = {VOCE(insDati, StatoTxt)};
std::span<const RigaNome> NomiPannelli() { return NOMI; }

bool Raggiungibile(const Pannello& p) {
  if (p.aperto == nullptr || !*p.aperto) return false;
  return pannelli.modali.empty() || pannelli.modali.back() == &p;
}

void PannelloMostrato(const Pannello& p, bool modale) {
  if (modale) pannelli.modali.push_back(&p);
  PannelloAperto(p);
}

void PannelloNascosto(const Pannello& p) {
  std::erase(pannelli.modali, &p);
  PannelloChiuso(p);
}
