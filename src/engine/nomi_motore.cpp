// engine/nomi_motore.cpp - names of verifica and presInfl; vectors and matrices from 1, where the program counts from 1.
#include "engine/nomi_motore.h"

#include "engine/PresInfl.h"
#include "engine/verifica.h"

static constexpr RigaNome NOMI[] = {
  VOCE(verifica, AreaTf), VOCE(verifica, ArmZ), VOCE(verifica, ArmY), VOCE(verifica, SommaR2), VOCE(verifica, IzSald),
  VOCE(verifica, IySald), VOCE(verifica, IpSald), VOCE(verifica, LungTz), VOCE(verifica, LungTy),
  VOCE(verifica, N), VOCE(verifica, Ty), VOCE(verifica, Tz), VOCE(verifica, Mt), VOCE(verifica, My), VOCE(verifica, Mz),
  VOCE(presInfl, NumVertici), VOCE(presInfl, VertX), VOCE(presInfl, VertY), VOCE(presInfl, NumBarre), VOCE(presInfl, BarraX),
  VOCE(presInfl, BarraY), VOCE(presInfl, BarraA), VOCE(presInfl, ERif), VOCE(presInfl, Carichi), VOCE(presInfl, DentroBarra),
  VOCE(presInfl, NumPoli), VOCE(presInfl, PoliX), VOCE(presInfl, PoliY), VOCE(presInfl, K), VOCE(presInfl, ForzeInt),
  VOCE(presInfl, Residuo), VOCE(presInfl, PianoDef), VOCE(presInfl, IterPres),
};
std::span<const RigaNome> NomiMotore() { return NOMI; }
