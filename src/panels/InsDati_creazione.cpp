// panels/InsDati_creazione.cpp - the main panel as created: first choices, pictures of the typologies.
#include "core/piattaforma.h"
#include "panels/InsDati.h"

constexpr double RAGGIO_TIPO = 30;  // anchor marks of the typology pictures, picture units

namespace {
// Anchor marks of a picture, and the picture's size: twice the marks' centre.
struct SegniTipo {
  double larghezza, altezza;
  double x[4], y[4];
};
}  // namespace

static constexpr SegniTipo SEGNI_TIPO[] = {
  {1440, 1440, {301, 1139, 301, 1139}, {1139, 1139, 301, 301}},
  {1440, 1440, {301, 1139, 301, 1139}, {1139, 1139, 301, 301}},
  {2196, 1548, {685, 1511, 685, 1511}, {361, 361, 1187, 1187}},
};

void PreparaInsDati() {
  PreparaPannello(InsDati);
  insDati.Nodo.tela = &insDati.telaNodo;
  for (int i = 0; i < 3; i++) {
    insDati.Pic_Tipo[i].tela = &insDati.telaTipo[i];
    insDati.telaTipo[i].larghezza = SEGNI_TIPO[i].larghezza;
    insDati.telaTipo[i].altezza = SEGNI_TIPO[i].altezza;
  }
  insDati.GeoP[0].scelta = 1;
  for (int i = 2; i < 4; i++) insDati.LatoTxt[i].abilitato = insDati.Label2[i].abilitato = false;
  insDati.OptionNTir[0].scelta = 1;  // nodo.OptionNTir and nodo.TipoVer start at 0 as well
  insDati.TipoVer[0].scelta = 1;
  insDati.ScrollSa.minimo = insDati.ScrollSa.massimo = insDati.ScrollSa.scelta = 3;
  insDati.ScrollSa.abilitato = false;
  insDati.EsportaSollButt.abilitato = insDati.CheckMatBase.abilitato = false;
  insDati.Help.visibile = false;
}

void DisegnaSegniTipo() {
  for (int i = 0; i < 3; i++) {
    Tela& t = insDati.telaTipo[i];
    for (int k = 0; k < 4; k++) ArcoTela(t, SEGNI_TIPO[i].x[k], SEGNI_TIPO[i].y[k], RAGGIO_TIPO, 0, 0, t.primoPiano);
    piattaforma.aggiorna(insDati.Pic_Tipo[i]);
  }
}
