// panels/pannelli.cpp - which panels there are, which can be reached.
#include "panels/pannelli.h"

#include "panels/InsDati.h"

static const Pannello* const PANNELLI[] = {
  &InsDati,
};

std::span<const Pannello* const> Pannelli() { return PANNELLI; }

const Pannello* TrovaPannello(std::string_view nome) {
  for (const Pannello* p : PANNELLI)
    if (nome == p->nome) return p;
  return nullptr;
}

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
