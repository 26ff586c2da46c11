// tests/corredo/banco_insdati.h - a test on the main panel with tables in memory. Default joint: HEB300 (H 300, B 280), plate by margins
// of 100: LatoZ = 280 + 200 = 480, LatoY = 300 + 200 = 500; edge distances (480 - 280) / 4 = 50 and (500 - 300) / 4 = 50.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "corredo/pannello_prova.h"
#include "corredo/registratore.h"
#include "panels/InsDati.h"

struct Pannello71 : testing::Test {
  void SetUp() override {
    PannelloPronto();
    registratore.eventi.clear();
  }
};

inline Controllo& C(const char* nome, int indice = SENZA_INDICE) {
  Controllo* c = TrovaControllo(InsDati, nome, indice);
  if (c == nullptr) ADD_FAILURE() << nome;
  return c != nullptr ? *c : insDati.Versione;
}
inline void Scrivi(const char* nome, int i, const char* testo) { UtenteScrive(InsDati, C(nome, i), testo); }
inline void Invio(const char* nome, int i) { Scatena(InsDati, C(nome, i), Evento::Invio); }
inline void Scegli(const char* nome, int i) { UtenteSceglie(InsDati, C(nome, i), 1); }
