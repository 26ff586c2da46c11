// reports/celle.h - numbers and cells of the reports, appended to the text in writing.
// Numbers   plain (a double or an integer as it is) or rounded first, ties to even, to so many decimals; both with the
//           locale's decimal mark and the zero before it. Trailing zeros never show: 12.50 reads 12.5.
// Cells     a text padded with blanks to a width in characters; a longer text is written whole and pushes the line on.
// Failure   a value that is not finite raises an arithmetic fault and writes nothing: whoever writes the line tests the
//           flags before the line counts.
#pragma once
#include <string>
#include <string_view>
#include "model/stato.h"
#include "model/suite.h"

// A value to be rounded, ties to even, before it is written.
struct Arrotondato {
  double valore = 0;
  int decimali = 0;
};
inline Arrotondato RD(double x) { return {x * suite.FattTensioni, suite.DecTensioni}; }  // stress, from daN/cm2
inline Arrotondato RF(double x) { return {x * suite.FattForze, suite.DecForze}; }        // force, from daN
inline Arrotondato R1(double x) { return {x, 1}; }
inline Arrotondato R2(double x) { return {x, 2}; }

constexpr int MaxNumero = 32;       // bytes of the longest number
int ScriviVoce(char* a, double v);  // plain; a[MaxNumero], returns the length
int ScriviVoce(char* a, int v);
int ScriviVoce(char* a, Arrotondato v);

inline void Aggiungi(std::string& t, std::string_view voce) { t.append(voce); }
void Aggiungi(std::string& t, double v);
void Aggiungi(std::string& t, int v);
void Aggiungi(std::string& t, Arrotondato v);

// Width in characters, '|' in front or not, alignment 'L' left, any other right.
struct Cella {
  int larghezza = 0;
  bool barra = false;
  char allineamento = 'L';
};
constexpr Cella L(int larghezza) { return {larghezza, false, 'L'}; }
constexpr Cella LB(int larghezza) { return {larghezza, true, 'L'}; }
constexpr Cella RB(int larghezza) { return {larghezza, true, 'R'}; }

void AggiungiCella(std::string& t, std::string_view voce, Cella c);
void AggiungiCella(std::string& t, double v, Cella c);
void AggiungiCella(std::string& t, int v, Cella c);
void AggiungiCella(std::string& t, Arrotondato v, Cella c);

// One cell by itself. A width outside 1..255 gives as many asterisks, without a bar (none below 1).
std::string FormattazioneValore(std::string_view valore, int larghezza, bool barra, char allineamento);
std::string FormattazioneValore(double valore, int larghezza, bool barra, char allineamento);
