// tests/corredo/banco_nodo.h - bench of the node file's commands: the program started on the sample suite, the two commands
// pressed with a queued path, and a good file of the current generation line by line.
#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "corredo/registratore.h"
#include "corredo/suite_prova.h"
#include "panels/InsDati.h"

using Righe = std::vector<std::string>;

// SetUp starts the program anew for each case.
struct FileNodo : testing::Test {
  std::string radice, lavoro;
  void SetUp() override {
    radice = PreparaSuite("file_nodo");
    lavoro = CartellaLavoro(radice);
    ASSERT_TRUE(AvviaSuite(radice));
  }
};

inline std::string Unisci(const Righe& righe) {
  std::string t;
  for (const std::string& r : righe) t += r + "\r\n";
  return t;
}
inline void Premi(Controllo& c, const std::string& percorso) {
  registratore.file.push_back({percorso, 1});
  Scatena(InsDati, c, Evento::Cambio);
}
inline void Salva(const std::string& percorso) { Premi(insDati.Sav_Nodo, percorso); }
inline void Carica(const std::string& percorso) { Premi(insDati.Car_Nodo, percorso); }
inline void CaricaByte(const std::string& percorso, const std::string& byte) {
  ScriviByte(percorso, byte);
  registratore.eventi.clear();
  Carica(percorso);
}
inline int Box(const std::string& testo) {
  int n = 0;
  for (const std::string& e : registratore.eventi) n += e == "[messaggio] nessuna | ERRORE | " + testo;
  return n;
}
inline constexpr const char* SALVATAGGIO = "Errore: salvataggio fallito";
inline constexpr const char* CARICAMENTO = "Errore: caricamento fallito";
inline constexpr const char* FILTRO = "File nodo 3 (*.qb7)|*.qb7|Tutti i file (*.*)|*.*";

// A joint in the current generation: HEA200, four anchors, ribs, limit states, one load, two structure nodes.
inline Righe Buono() {
  return {"VERNTC",
          "HEA200            ",
          " 190 ",
          " 200 ",
          " 6.5 ",
          " 10 ",
          " 400 ",
          " 500 ",
          " 20 ",
          " 2 ",
          "0",
          " 8 ",
          " 120 ",
          " 1 ",
          " 6 ",
          " 4 ",
          " 50 ",
          " 45 ",
          " 340 ",
          " 45 ",
          " 50 ",
          " 430 ",
          " 340 ",
          " 430 ",
          " 90 ",
          " 600 ",
          " 400 ",
          " 110 ",
          " 9 ",
          " 12 ",
          " 80 ",
          " 40 ",
          " 70 ",
          " 250 ",
          " 1 ",
          "S 235 (FE 360)",
          "Barra classe 8.8",
          "C28/35",
          " 2 ",
          " 1 ",
          "-12000.5 ",
          " 100 ",
          "-200 ",
          " 300 ",
          "-400 ",
          " 500 ",
          " 1 ",
          "Caso 1",
          " 2 ",
          " 7 ",
          " 8 ",
          "1"};
}
