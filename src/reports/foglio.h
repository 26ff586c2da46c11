// reports/foglio.h - the report in writing: its text, and what both methods share: lines, opening, the title and the verdict of a
// sextet, the closing.
// State     a Foglio lives in the routine that writes the report.
// Failure   a line counts only if no arithmetic fault was raised until it is whole; otherwise it is taken back, false comes
//           back and the report ends there, given up: the file of before stands.
#pragma once
#include <cstddef>
#include <span>
#include <string>
#include "core/aritmetica.h"
#include "core/file.h"
#include "engine/lavoro.h"
#include "reports/celle.h"

struct Foglio {
  const Lavoro& l;
  FileScrittura file;
  std::string percorso;  // suite path of the report
};

bool ApriFoglio(Foglio& f, const char* metodo);  // false: the file cannot be written, its box was shown
bool ConcludiFoglio(Foglio& f, bool intero);     // box, close, show; what RelazioneTA and RelazioneSLU return
bool TitoloCombinazione(Foglio& f, int s);       // empty line, name, seventy dashes
bool EsitoCombinazione(Foglio& f, int s);        // empty line and verdict

[[nodiscard]] inline bool FineRiga(Foglio& f, std::size_t inizio) {  // inizio: where the line begins in the text
  f.file.testo.append("\r\n");
  if (!FaultAritmetico()) return true;
  f.file.testo.resize(inizio);
  return false;
}

// One line of items one after the other: texts, plain numbers, rounded numbers.
template <class... Voce>
[[nodiscard]] bool Riga(Foglio& f, const Voce&... voce) {
  const std::size_t inizio = f.file.testo.size();
  (Aggiungi(f.file.testo, voce), ...);
  return FineRiga(f, inizio);
}

[[nodiscard]] bool Righe(Foglio& f, std::span<const char* const> righe);
