// tests/corredo/banco_pannelli.h - a test on the panels of the program, started on a copy of the sample suite.
#pragma once
#include <gtest/gtest.h>

#include "core/file.h"
#include "corredo/modello_minimo.h"
#include "corredo/registratore.h"
#include "corredo/suite_prova.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"

struct Pannelli_ : testing::Test {
  std::string lavoro;
  void SetUp() override {
    const std::string radice = PreparaSuite("pannelli");
    ASSERT_TRUE(AvviaSuite(radice));
    lavoro = CartellaLavoro(radice);
    registratore.eventi.clear();
  }
  void Modello() {
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\struttur.str"), STRUTTURA_MINIMA);
    ScriviByte(RisolviPercorso(suite.DirLavoro + "\\sezioni_"),
               "2\r\n1,\"P_HEA 200\",0\r\nr\r\nr\r\nr\r\nr\r\n2,\"Composta saldata 1\",0\r\nr\r\nr\r\nr\r\nr\r\n");
  }
};

inline Controllo& C(const Pannello& p, const char* nome, int i = SENZA_INDICE) {
  Controllo* c = TrovaControllo(p, nome, i);
  EXPECT_NE(c, nullptr) << nome;
  static Controllo manca;
  return c == nullptr ? manca : *c;
}

inline bool Premi(const Pannello& p, const char* nome, int i = SENZA_INDICE) { return Scatena(p, C(p, nome, i), Evento::Cambio); }
inline void Scrivi(const Pannello& p, const char* nome, int i, const char* testo) { EXPECT_TRUE(UtenteScrive(p, C(p, nome, i), testo)); }

// Status text or tip of a control, as a host asks for it.
inline std::string Suggerimento(const Pannello& p, const char* nome, int i = SENZA_INDICE) {
  const Controllo& c = C(p, nome, i);
  if (c.riga == nullptr) return "";
  if (c.riga->statoDi != nullptr) return c.riga->statoDi(c.indice);
  const Testi& t = c.riga->stato;
  return t.uno != nullptr ? t.uno : t.voci[static_cast<std::size_t>(c.indice - c.riga->primo)];
}

struct TestoAtteso {
  const char* nome;
  int i;
  const char* testo;
};

inline std::string UltimoEvento() { return registratore.eventi.empty() ? "" : registratore.eventi.back(); }
