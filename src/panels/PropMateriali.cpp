// panels/PropMateriali.cpp - values of the materials on their panel.
#include "panels/PropMateriali.h"

#include <cmath>

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "materials/regole_materiali.h"
#include "model/materiali.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/righe.h"

constexpr double CLASSE_II = 1.125;  // increase of the allowable stresses for load class II
constexpr double RCK_FCK = 0.83;     // NTC 2008 11.2.10.1 (11.2.1)
constexpr double ALFA_CC = 0.85;     // NTC 2008 4.1.2.1.1.1

namespace {
struct Valore {
  double v = 0;
  bool piano = false;  // a factor: neither unit nor rounding
};
}  // namespace

// A value rounded as it is, where ImpostaValoreMat_ shows none below 0.
static std::string Arrotondato(double v, int decimali) { return NumeroPiano(ArrotondaPari(v, decimali)); }

static void Mostra(Controllo* etichette, std::initializer_list<Valore> valori, std::string (*testo)(double, int) = ImpostaValoreMat_) {
  for (const Valore& x : valori) {
    if (FaultAritmetico()) return;
    MostraTesto(*etichette++, x.piano ? NumeroPiano(x.v) : testo(x.v * suite.FattTensioni, suite.DecTensioni));
  }
}

// NTC 2008 11.3.4.1, 4.2.4.1.1: strengths and design strengths; allowable stresses of both load classes.
static void MostraAcciaio(Controllo* etichette, const MatAcciaio& m) {
  Mostra(etichette, {{m.Fyk},
                     {m.GammaM, true},
                     {m.GammaMT, true},
                     {m.Fyk / m.GammaM},
                     {m.Fyk / m.GammaMT},
                     {m.Fyk40 / m.GammaM},
                     {m.Fyk40 / m.GammaMT},
                     {m.SAmm},
                     {m.SAmm * CLASSE_II}});
}

static void MostraViti(Controllo* etichette, const MatViti& m) {
  Mostra(etichette, {{m.Fy},
                     {m.GammaM2, true},
                     {m.Fy / m.GammaM2},
                     {m.Ft},
                     {m.Ft / m.GammaM2},
                     {m.SAmm},
                     {m.SAmm * CLASSE_II},
                     {m.TauAmm},
                     {m.TauAmm * CLASSE_II}});
}

// The rods take the partial factor of the bolt class, not one of their steel: they are verified as bolts.
static void MostraTirafondi(Controllo* etichette, const MatAcciaio& m, double gammaM2) {
  const double tau = m.SAmm / std::sqrt(3.0);
  Mostra(
    etichette,
    {{m.Fyk}, {gammaM2, true}, {m.Fyk / gammaM2}, {m.Ftk}, {m.Ftk / gammaM2}, {m.SAmm}, {m.SAmm * CLASSE_II}, {tau}, {tau * CLASSE_II}});
}

static void MostraCls(Controllo* etichette, const MatCls& m) {
  Mostra(etichette, {{m.Rck}, {m.Rck * RCK_FCK}, {m.GammaC, true}, {m.Rck * RCK_FCK * ALFA_CC / m.GammaC}, {60 + (m.Rck - 150) / 4}},
         Arrotondato);
}

static void Carica() {
  StatoPropMateriali& p = propMateriali;
  p.Unit.coloreSfondo = 0xFFFFC8;  // red 200, green 255, blue 255
  MostraVisibile(p.FrameAccPia, materiali.UsaAccPiastre);
  MostraVisibile(p.FrameBull, materiali.UsaViti);
  MostraVisibile(p.FrameTir, materiali.UsaTirafondi);
  MostraVisibile(p.FrameCls, materiali.UsaCls);
}

static void PropMateriali_Chiudi(int) { piattaforma.chiudi(PropMateriali); }

static constexpr StatoPropMateriali& P = propMateriali;
constexpr Genere CORNICE = Genere::Cornice, ETICHETTA = Genere::Etichetta;

// clang-format off
constexpr RigaPannello RIGHE[] = {
  Riga("Unit", ETICHETTA, P.Unit, "", ""),

  Riga("FrameAcc",          CORNICE,   P.FrameAcc, "", ""),
  Riga("fkLabel",           ETICHETTA, P.acc[0],   "FrameAcc", ""),
  Riga("gMLabel",           ETICHETTA, P.acc[1],   "FrameAcc", ""),
  Riga("gMTLabel",          ETICHETTA, P.acc[2],   "FrameAcc", ""),
  Riga("fdLabel",           ETICHETTA, P.acc[3],   "FrameAcc", ""),
  Riga("fdtLabel",          ETICHETTA, P.acc[4],   "FrameAcc", ""),
  Riga("fd40Label",         ETICHETTA, P.acc[5],   "FrameAcc", ""),
  Riga("fdt40Label",        ETICHETTA, P.acc[6],   "FrameAcc", ""),
  Riga("SAmmILabel",        ETICHETTA, P.acc[7],   "FrameAcc", ""),
  Riga("SAmmIILabel",       ETICHETTA, P.acc[8],   "FrameAcc", ""),

  Riga("FrameAccPia",       CORNICE,   P.FrameAccPia, "", ""),
  Riga("fkPLabel",          ETICHETTA, P.pia[0],   "FrameAccPia", ""),
  Riga("gMPLabel",          ETICHETTA, P.pia[1],   "FrameAccPia", ""),
  Riga("gMTPLabel",         ETICHETTA, P.pia[2],   "FrameAccPia", ""),
  Riga("fdPLabel",          ETICHETTA, P.pia[3],   "FrameAccPia", ""),
  Riga("fdtPLabel",         ETICHETTA, P.pia[4],   "FrameAccPia", ""),
  Riga("fd40PLabel",        ETICHETTA, P.pia[5],   "FrameAccPia", ""),
  Riga("fdt40PLabel",       ETICHETTA, P.pia[6],   "FrameAccPia", ""),
  Riga("sAmmIPLabel",       ETICHETTA, P.pia[7],   "FrameAccPia", ""),
  Riga("sAmmIIPLabel",      ETICHETTA, P.pia[8],   "FrameAccPia", ""),

  Riga("FrameBull",         CORNICE,   P.FrameBull, "", ""),
  Riga("fyVitiLabel",       ETICHETTA, P.bull[0],  "FrameBull", ""),
  Riga("gMVitiLabel",       ETICHETTA, P.bull[1],  "FrameBull", ""),
  Riga("fydVitilabel",      ETICHETTA, P.bull[2],  "FrameBull", ""),
  Riga("ftVitiLabel",       ETICHETTA, P.bull[3],  "FrameBull", ""),
  Riga("ftdVitiLabel",      ETICHETTA, P.bull[4],  "FrameBull", ""),
  Riga("SAmmIVitiLabel",    ETICHETTA, P.bull[5],  "FrameBull", ""),
  Riga("SAmmIIVitiLabel",   ETICHETTA, P.bull[6],  "FrameBull", ""),
  Riga("TauAmmIVitiLabel",  ETICHETTA, P.bull[7],  "FrameBull", ""),
  Riga("TauAmmIIVitiLabel", ETICHETTA, P.bull[8],  "FrameBull", ""),

  Riga("FrameTir",          CORNICE,   P.FrameTir, "", ""),
  Riga("fyTirLabel",        ETICHETTA, P.tir[0],   "FrameTir", ""),
  Riga("gMTirLabel",        ETICHETTA, P.tir[1],   "FrameTir", ""),
  Riga("fydTirLabel",       ETICHETTA, P.tir[2],   "FrameTir", ""),
  Riga("ftTirLabel",        ETICHETTA, P.tir[3],   "FrameTir", ""),
  Riga("ftdTirLabel",       ETICHETTA, P.tir[4],   "FrameTir", ""),
  Riga("SAmmITirLabel",     ETICHETTA, P.tir[5],   "FrameTir", ""),
  Riga("SAmmIITirLabel",    ETICHETTA, P.tir[6],   "FrameTir", ""),
  Riga("TauAmmITirLabel",   ETICHETTA, P.tir[7],   "FrameTir", ""),
  Riga("TauAmmIITirLabel",  ETICHETTA, P.tir[8],   "FrameTir", ""),

  Riga("FrameCls",          CORNICE,   P.FrameCls, "", ""),
  Riga("RckClsLabel",       ETICHETTA, P.cls[0],   "FrameCls", ""),
  Riga("fckClsLabel",       ETICHETTA, P.cls[1],   "FrameCls", ""),
  Riga("gMClsLabel",        ETICHETTA, P.cls[2],   "FrameCls", ""),
  Riga("fcdClsLabel",       ETICHETTA, P.cls[3],   "FrameCls", ""),
  Riga("SammClsLabel",      ETICHETTA, P.cls[4],   "FrameCls", ""),

  Riga("Chiudi", Genere::Comando, P.Chiudi, "", "Chiudi", {}, PropMateriali_Chiudi),
};
// clang-format on

const Pannello PropMateriali = {"PropMateriali",        RIGHE, true, &propMateriali.titolo, Carica, nullptr, nullptr, &propMateriali.aperto,
                                &propMateriali.caricato};

void SettaLabelMat() { MostraTesto(propMateriali.Unit, "[" + suite.UnitaTensioni + "]"); }

void SettaMateriali() {
  StatoPropMateriali& p = propMateriali;
  MostraTesto(p.FrameAcc, std::string(materiali.UsaAccPiastre ? "Acciaio profili - [NTC08 11.3.4.1] - Tipo "
                                                              : "Acciaio profili e piastre - [NTC08 11.3.4.1] - Tipo ") +
                            nodo.MatAcc.Nome);
  MostraAcciaio(p.acc, nodo.MatAcc);
  if (materiali.UsaAccPiastre) {
    MostraTesto(p.FrameAccPia, "Acciaio piastre - [NTC08 11.3.4.1] - Tipo " + nodo.MatPiastra.Nome);
    MostraAcciaio(p.pia, nodo.MatPiastra);
  }
  if (materiali.UsaViti) {
    MostraTesto(p.FrameBull, "Bulloni - [NTC08 11.3.4.6.1] - Classe " + nodo.MatVit.Nome);
    MostraViti(p.bull, nodo.MatVit);
  }
  if (materiali.UsaTirafondi) {
    MostraTesto(p.FrameTir, "Tirafondi - [NTC08 11.3.4.1] - Tipo " + nodo.MatTir.Nome);
    MostraTirafondi(p.tir, nodo.MatTir, nodo.MatVit.GammaM2);
  }
  if (materiali.UsaCls) {
    MostraTesto(p.FrameCls, "Calcestruzzo - [NTC08 4.1] - Classe " + nodo.MatCls.Nome);
    MostraCls(p.cls, nodo.MatCls);
  }
}

void InsDati_PropMatButton(int) {
  SettaLabelMat();
  SettaMateriali();
  if (!FaultAritmetico()) piattaforma.apri(PropMateriali, true);
}
