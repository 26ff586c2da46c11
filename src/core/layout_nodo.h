// core/layout_nodo.h - the lines of the node file: one list of rows that serves writer, reader and tests.
// File      one value a line, no keys; Windows-1252, CR LF. The current generation begins with "VERNTC"; the older one, still
//           read, begins with the section's name and carries eight material values in place of three names and the exposure.
// State     scambio: what goes between file and model only by way of the panel; refilled by each save and each load.
// Failure   a failed step leaves its variable as it was and sets passi.fallito; the next row is read all the same.
#pragma once
#include <cstdint>
#include <span>
#include <string>

#include "core/file.h"
#include "model/node_model.h"

constexpr const char* MARCA_NODO = "VERNTC";

enum class FormaNodo : unsigned char {
  Valore,       // number with its blanks, or text as it is
  Marca,        // the first line; its text is MARCA_NODO
  NomeSezione,  // text padded to LungNomeSez; in the old generation it is the first line itself
  Cifra,        // one digit without blanks, read as text; empty: no line is written
  UnaRiga       // text kept on one line: CR becomes a blank, LF is dropped
};
enum class QuandoNodo : unsigned char { Sempre, Nervature, Attuale, Vecchia };

// What the load does as soon as the row was read, or could not be read.
enum class PassoNodo : unsigned char { Nessuno, Sezione, Motivo, Diametro, Esposizione, Metodo };

struct DatoNodo {  // one of the three; of a repeated row: the array's element 0
  double* numero = nullptr;
  std::int16_t* intero = nullptr;
  std::string* testo = nullptr;
  constexpr DatoNodo() = default;
  constexpr DatoNodo(double* v) : numero(v) {}
  constexpr DatoNodo(std::int16_t* v) : intero(v) {}
  constexpr DatoNodo(std::string* v) : testo(v) {}
};

struct RigaNodo {
  const char* nome = "";  // as in the model, for messages of the tests
  DatoNodo dato = {};
  FormaNodo forma = FormaNodo::Valore;
  QuandoNodo quando = QuandoNodo::Sempre;
  PassoNodo passo = PassoNodo::Nessuno;
  int massimo = 0;      // of a count: its upper bound; the rows of that list follow
  bool elenco = false;  // repeated for 1..count; adjacent rows alternate
};

struct ScambioNodo {
  bool attuale = true;                                // generation of the file being read
  std::string riga;                                   // its first line
  double TfZ[MaxTir + 1] = {}, TfY[MaxTir + 1] = {};  // mm; the panel rebuilds the model's own, the file's must win
  std::string motivo;                                 // "0".."3" entry of OptionNTir, empty none
  std::int16_t TfDiamIdx = 0;                         // 0 not read
  std::int16_t Esposizione = 0;                       // position plus one, 0 not read
  std::string metodo;                                 // "0" allowable stresses, "1" limit states
};
inline ScambioNodo scambio;

std::span<const RigaNodo> RigheNodo();
std::string ComponiNodo();                                 // the whole text of the model, current generation, CR LF
void LeggiNodo(FileLettura& f, void (*passo)(PassoNodo));  // rows in order into the model and scambio
