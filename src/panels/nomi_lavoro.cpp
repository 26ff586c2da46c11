// panels/nomi_lavoro.cpp - names of the results, of one verification and of the solver; vectors and matrices from 1, where the program counts
// from 1.
#include "panels/nomi_lavoro.h"

#include <cstddef>

#include "panels/lavoro_finestre.h"

static_assert(std::is_standard_layout_v<Saldatura>);  // offsetof is defined for this layout

// clang-format off
static constexpr RigaNome CAMPI_SALDATURA[] = {
  CAMPO(Saldatura, Nome), CAMPO(Saldatura, Lung), CAMPO(Saldatura, TauPa, DA_0), CAMPO(Saldatura, TauPe, DA_0),
  CAMPO(Saldatura, SPrp, DA_0), CAMPO(Saldatura, SEq1, DA_0), CAMPO(Saldatura, SEq2, DA_0), CAMPO(Saldatura, PZ),
  CAMPO(Saldatura, PY), CAMPO(Saldatura, Ip), CAMPO(Saldatura, Iz), CAMPO(Saldatura, Iy), CAMPO(Saldatura, Ang),
};

static constexpr RigaNome NOMI[] = {
  VOCE(lavoro, NumSaldature),
  VOCE(lavoro.ris, SigmaTir, DA_0), VOCE(lavoro.ris, TauTir, DA_0), VOCE(lavoro.ris, SRfTir, DA_0), VOCE(lavoro.ris, TiroTir, DA_0), VOCE(lavoro.ris, FvEd, DA_0),
  VOCE(lavoro.ris, FtEd, DA_0), VOCE(lavoro.ris, Co1, DA_0), VOCE(lavoro.ris, Co2, DA_0), VOCE(lavoro.ris, Co3, DA_0), VOCE(lavoro.ris, SMaxCls, DA_0),
  VOCE(lavoro.ris, SMaxPiastra, DA_0), VOCE(lavoro.ris, SPiastraTir, DA_0), VOCE(lavoro.ris, SNerv, DA_0), VOCE(lavoro.ris, Saldature, DA_1, CAMPI_SALDATURA),
  VOCE(lavoro.ris, FvRd), VOCE(lavoro.ris, FtRd), VOCE(lavoro.ris, BpRd), VOCE(lavoro.ris, FbRd), VOCE(lavoro.ris, TadRd), VOCE(lavoro.ris, FlagDiamEstrapolato),
  VOCE(lavoro.ris, FlagDiamInterpolato),
  VOCE(lavoro.verifica, AreaTf), VOCE(lavoro.verifica, ArmZ), VOCE(lavoro.verifica, ArmY), VOCE(lavoro.verifica, SommaR2), VOCE(lavoro.verifica, IzSald),
  VOCE(lavoro.verifica, IySald), VOCE(lavoro.verifica, IpSald), VOCE(lavoro.verifica, LungTz), VOCE(lavoro.verifica, LungTy),
  VOCE(lavoro.verifica, N), VOCE(lavoro.verifica, Ty), VOCE(lavoro.verifica, Tz), VOCE(lavoro.verifica, Mt), VOCE(lavoro.verifica, My), VOCE(lavoro.verifica, Mz),
  VOCE(lavoro.presInfl, NumVertici), VOCE(lavoro.presInfl, VertX), VOCE(lavoro.presInfl, VertY), VOCE(lavoro.presInfl, NumBarre), VOCE(lavoro.presInfl, BarraX),
  VOCE(lavoro.presInfl, BarraY), VOCE(lavoro.presInfl, BarraA), VOCE(lavoro.presInfl, ERif), VOCE(lavoro.presInfl, Carichi), VOCE(lavoro.presInfl, DentroBarra),
  VOCE(lavoro.presInfl, NumPoli), VOCE(lavoro.presInfl, PoliX), VOCE(lavoro.presInfl, PoliY), VOCE(lavoro.presInfl, K), VOCE(lavoro.presInfl, ForzeInt),
  VOCE(lavoro.presInfl, Residuo), VOCE(lavoro.presInfl, PianoDef), VOCE(lavoro.presInfl, IterPres),
};
// clang-format on
std::span<const RigaNome> NomiLavoro() { return NOMI; }
