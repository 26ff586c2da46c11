// app/qt/montaggio.cpp - one row a panel: the form its window is made from.
#include "app/qt/montaggio.h"

#include "app/qt/anteprima.h"
#include "app/qt/finestre.h"
#include "app/qt/ingresso.h"
#include "app/qt/legame.h"
#include "app/qt/pitture.h"
#include "app/qt/quadro.h"
#include "panels/FormTF.h"
#include "panels/InsDati.h"
#include "panels/Op_Nodo.h"
#include "panels/PropMateriali.h"
#include "panels/Sez3D.h"
#include "panels/Soll3D.h"
#include "panels/pannelli.h"
#include "panels/selezione.h"

#include "ui_FormTF.h"
#include "ui_InsDati.h"
#include "ui_Op_Nodo.h"
#include "ui_PropMateriali.h"
#include "ui_Sez3D.h"
#include "ui_Soll3D.h"
#include "ui_selezione.h"

#include <QAbstractButton>
#include <QDialog>

// ---- forms ----

template <class Forma, class Finestra>
static QWidget* Nuova() {
  auto* f = new Finestra;
  Forma forma;
  forma.setupUi(f);
  return f;
}

namespace {
struct RigaForma {
  const Pannello* pannello;
  QWidget* (*nuova)();
};
}  // namespace

// clang-format off
static constexpr RigaForma FORME[] = {
  { &InsDati,       Nuova<Ui::InsDati, QWidget> },
  { &FormTF,        Nuova<Ui::FormTF, QDialog> },
  { &Op_Nodo,       Nuova<Ui::Op_Nodo, QDialog> },
  { &PropMateriali, Nuova<Ui::PropMateriali, QDialog> },
  { &Sez3D,         Nuova<Ui::Sez3D, QDialog> },
  { &Soll3D,        Nuova<Ui::Soll3D, QDialog> },
  { &Selezione,     Nuova<Ui::selezione, QDialog> },
};
// clang-format on

QWidget* NuovaFinestra(const Pannello& p) {
  for (const RigaForma& r : FORME)
    if (r.pannello == &p) return r.nuova();
  return nullptr;
}

// What the windows have beside the panels' controls.
static void CollegaAnteprima() {
  auto* b = FinestraDi(InsDati)->finestra->findChild<QAbstractButton*>("_Anteprima");
  if (b == nullptr) return;
  CollegaTasto(*b);
  QObject::connect(b, &QAbstractButton::clicked, b, ApriAnteprima);
}

// The bend of the hooked rod, which the panel itself carries.
static void CollegaGancio() {
  auto* q = FinestraDi(FormTF)->finestra->findChild<QWidget*>("_gancio");
  if (q == nullptr) return;
  ImpostaScala(formTF.tela, 1800, 4220, 2976, 4880);
  static_cast<Quadro*>(q)->Mostra(&formTF.tela);
}

QStringList CreaFinestre() {
  QStringList differenze;
  for (const Pannello* p : Pannelli()) {
    QWidget* w = NuovaFinestra(*p);
    if (w == nullptr) {
      differenze += QString::fromLatin1(p->nome) + ": manca la finestra";
      continue;
    }
    differenze += DifferenzeForma(*p, *w);
    finestre.elenco.push_back({p, w, nullptr});
  }
  if (!differenze.isEmpty()) return differenze;
  for (const FinestraPannello& f : finestre.elenco) {
    LegaPannello(*f.pannello, *f.finestra);
    CollegaPannello(*f.pannello);
    PreparaPitture(*f.finestra);
    if (f.pannello != &InsDati) f.finestra->setParent(finestre.elenco.front().finestra, f.finestra->windowFlags());
  }
  CollegaAnteprima();
  CollegaGancio();
  SpiaIngresso();
  return differenze;
}

void DistruggiFinestre() {
  SciogliLegami();
  if (!finestre.elenco.empty()) delete finestre.elenco.front().finestra;  // the others are its children
  finestre.elenco.clear();
}
