// link/nomi_collegamento.cpp - names of collegamento; lists from 1.
#include "link/nomi_collegamento.h"

#include "link/collegamento.h"

std::span<const RigaNome> NomiCollegamento() {
  // clang-format off
  static const RigaNome NOMI[] = {
    VOCE(collegamento, NumAsteNodo), VOCE(collegamento, AsteNodo), VOCE(collegamento, SezAsteNodo),
    VOCE(collegamento, SezioniStr, DA_1, CampiSezione()), VOCE(collegamento, SezioneImp, DA_1, CampiSezione()),
    VOCE(collegamento, AstaNodo), VOCE(collegamento, LatoAsta), VOCE(collegamento, NumCasiStr), VOCE(collegamento, CasiStr),
    VOCE(collegamento, NumCondStr), VOCE(collegamento, CondStr), VOCE(collegamento, NumSestettiStr), VOCE(collegamento, SestettiStr),
    VOCE(collegamento, TipiCaso), VOCE(collegamento, Letti), VOCE(collegamento, Presi),
  };
  // clang-format on
  return NOMI;
}
