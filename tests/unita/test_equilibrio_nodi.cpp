// tests/unita/test_equilibrio_nodi.cpp - every sextet of every sample node: the plane found gives N, My, Mz back, by an
// integration that shares nothing with the engine (corredo/equilibrio).
#include <gtest/gtest.h>

#include <filesystem>

#include "core/aritmetica.h"
#include "corredo/banco_nodo.h"
#include "corredo/equilibrio.h"
#include "model/node_model.h"
#include "model/stato.h"

TEST(EquilibrioNodi, OgniSestetto) {
  const std::string radice = PreparaSuite("equilibrio"), lavoro = CartellaLavoro(radice);
  int nodi = 0, sestetti = 0;
  for (const auto& voce : std::filesystem::directory_iterator(lavoro)) {
    if (voce.path().extension() != ".qb7") continue;
    ASSERT_TRUE(AvviaSuite(radice));
    Carica(voce.path().string());
    AzzeraFault();
    registratore.eventi.clear();
    EXPECT_GT(nodo.NumSoll, 0) << voce.path();
    for (int s = 1; s <= nodo.NumSoll; ++s) {
      double scarto[3] = {};
      EXPECT_TRUE(EquilibrioSestetto(s, scarto))
        << voce.path().filename() << " sestetto " << s << ": N " << scarto[0] << " My " << scarto[1] << " Mz " << scarto[2];
      ++sestetti;
    }
    EXPECT_TRUE(registratore.eventi.empty()) << voce.path();
    EXPECT_FALSE(FaultAritmetico()) << voce.path();
    ++nodi;
  }
  EXPECT_GE(nodi, 8);
  EXPECT_GT(sestetti, 200);
}
