// panels/FormTF.h - the anchor chooser: form, diameter and sizes of the rods, one tab a form.
// Units     mm.
// State     formTF: what the fields show. The model follows at OK; the form and the diameter's row follow at once.
#pragma once
#include "drawing/tela.h"
#include "panels/controlli.h"

constexpr int MaxGeoTf = 20;

struct StatoFormTF {
  bool aperto = false, caricato = false;
  std::string titolo = "Dimensioni tirafondi";
  Controllo SSTab1, PictureTF[2], Combo1, Combo2, GeoTfTxt[MaxGeoTf + 1], Label6[9], Label2[2], MatBulOK;
  Controllo LGeo[MaxGeoTf + 1];  // captions beside the fields, same indices; L, R, L fuori plinto, Dist. bordo plinto are of Label6
  Tela tela;                     // strokes on the panel itself: two half circles
};
inline StatoFormTF formTF;
extern const Pannello FormTF;

void RileggiFormTF();     // combos and the fields of the current form from the model; also after a node was loaded
void LeggiGeoTf();        // fields of the current form, and its diameter, into the model
void InsDati_DimTf(int);  // shows the panel modally
