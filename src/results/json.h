// results/json.h - JSON out and in: the few forms that the results take.
// Text      UTF-8, one line an object, no blanks; numbers by the shortest form that reads back to the same double, null for one that is
//           not finite. A byte sequence that is no UTF-8 is written as U+FFFD.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace json {

void AggiungiNumero(std::string& t, double v);  // "null" if it is not finite
void AggiungiNumero(std::string& t, int v);
void AggiungiTesto(std::string& t, std::string_view v);  // with its quotes

// An object or a list in writing: commas by themselves.
struct Scrittura {
  std::string testo;
  bool primo = true;  // nothing written yet at this level
};
void Apri(Scrittura& j, char parentesi);         // '{' or '['
void Chiudi(Scrittura& j, char parentesi);       // '}' or ']'
void Nome(Scrittura& j, std::string_view nome);  // of the member that follows; a name of our own, without signs to escape
void Nullo(Scrittura& j);
void Valore(Scrittura& j, double v);
void Valore(Scrittura& j, int v);
void Valore(Scrittura& j, bool v);
void Valore(Scrittura& j, std::string_view v);
inline void Valore(Scrittura& j, const char* v) { Valore(j, std::string_view(v)); }
void Intero(Scrittura& j, std::string_view testo);  // a value composed elsewhere
template <class T>
void Membro(Scrittura& j, std::string_view nome, const T& v) {
  Nome(j, nome);
  Valore(j, v);
}

// A value read. Numbers keep the text that they were written with.
struct Letto {
  enum class Genere : unsigned char { Nullo, Falso, Vero, Numero, Testo, Lista, Oggetto };
  Genere genere = Genere::Nullo;
  std::string testo;              // of a text, of a number
  std::vector<Letto> voci;        // of a list, of an object
  std::vector<std::string> nomi;  // of an object, one a voice
};
constexpr int MassimaProfondita = 32;
// One value, blanks around it allowed. False: no such text, a deeper nest than MassimaProfondita, a name that comes twice.
bool Leggi(std::string_view testo, Letto& v);
const Letto* Cerca(const Letto& oggetto, std::string_view nome);  // null: no object, no such member
std::string_view TestoDi(const Letto* v);                         // of a text; anything else: empty
bool VeroDi(const Letto* v);
double NumeroDi(const Letto* v);  // not a number where there is none
void Scrivi(std::string& t, const Letto& v);

}  // namespace json
