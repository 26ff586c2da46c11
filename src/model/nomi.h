// model/nomi.h - every variable and result table by its name, for the script instruction that looks into the model.
// Name      "LatoZ", "TfZ(3)", "SPiastraTir(s,d,i)", "Sezione.H", "Saldature(3).TauPa(1,2)": letter for letter, every index given.
// Value     numbers with 15 significant digits (the %.15g form), truth as 1 or 0, texts as they are.
// Indices   as the program counts them, from primo to ultimo. Row 0 of the lists of loads, anchors' positions, materials and
//           results exists, free; it can be looked at, so that a script sees that nothing uses it.
// Lists     a text list that grows answers as an array of its capacity: behind its last entry the texts are empty.
// Failure   an unknown name, a missing, superfluous or bad index, an index outside its array: false, and nothing is read.
// A room with tables of its own fills a span of RigaNome by Voce and CAMPO and hands it over as `altri`.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

enum class GenereNome : unsigned char { Reale, Intero16, Intero32, Vero, Testo, Costante, Vista, Carattere, Elenco, Record };

struct DimensioneNome {
  int primo = 0, ultimo = -1;  // indices that a script may write
  int origine = 0;             // index of the array's first element
  std::size_t passo = 0;       // bytes from an element to the next
};

struct RigaNome {
  const char* nome = "";
  GenereNome genere = GenereNome::Reale;
  const void* base = nullptr;  // of a variable: where it lives
  std::size_t scarto = 0;      // of a record's field: bytes from the record's start
  int numDim = 0;
  DimensioneNome dim[3] = {};
  std::span<const RigaNome> campi = {};  // of a record: its fields
};

// First and last index of one dimension, where they differ from "as long as the array, from `primo`".
struct IndiciNome {
  int primo = 1, origine = 0;
};
constexpr IndiciNome DA_0 = {0, 0};     // rows from 0
constexpr IndiciNome DA_1 = {1, 0};     // index 0 is free and not offered
constexpr IndiciNome PRIMA_1 = {1, 1};  // the array's first element is number 1

template <class T>
consteval GenereNome GenereDi() {
  if constexpr (std::is_same_v<T, double>) return GenereNome::Reale;
  else if constexpr (std::is_same_v<T, std::int16_t>) return GenereNome::Intero16;
  else if constexpr (std::is_same_v<T, std::int32_t>) return GenereNome::Intero32;
  else if constexpr (std::is_same_v<T, bool>) return GenereNome::Vero;
  else if constexpr (std::is_same_v<T, std::string>) return GenereNome::Testo;
  else if constexpr (std::is_same_v<T, const char*>) return GenereNome::Costante;
  else if constexpr (std::is_same_v<T, std::string_view>) return GenereNome::Vista;
  else if constexpr (std::is_same_v<T, char>) return GenereNome::Carattere;
  else return GenereNome::Record;
}

// The shape of a variable or field of type T: `prima` tells the first dimension, the others leave index 0 free.
template <class T>
constexpr RigaNome FormaNome(const char* nome, IndiciNome prima, std::span<const RigaNome> campi) {
  RigaNome r;
  r.nome = nome;
  r.genere = GenereDi<std::remove_const_t<std::remove_all_extents_t<T>>>();
  r.numDim = static_cast<int>(std::rank_v<T>);
  static_assert(std::rank_v<T> <= 3);
  const std::size_t estesi[] = {std::extent_v<T, 0>, std::extent_v<T, 1>, std::extent_v<T, 2>};
  std::size_t passo = sizeof(std::remove_all_extents_t<T>);
  for (int d = r.numDim - 1; d >= 0; --d) {
    const IndiciNome ind = d == 0 ? prima : DA_1;
    r.dim[d] = {ind.primo, static_cast<int>(estesi[d]) - 1 + ind.origine, ind.origine, passo};
    passo *= estesi[d];
  }
  r.campi = campi;
  return r;
}
template <class T>
constexpr RigaNome Voce(const char* nome, const T& v, IndiciNome prima = DA_1, std::span<const RigaNome> campi = {}) {
  RigaNome r = FormaNome<T>(nome, prima, campi);
  r.base = &v;
  return r;
}
// A list of texts, entries from 0 to `ultimo`.
constexpr RigaNome VoceElenco(const char* nome, const std::vector<std::string>& v, int ultimo) {
  RigaNome r;
  r.nome = nome;
  r.genere = GenereNome::Elenco;
  r.base = &v;
  r.numDim = 1;
  r.dim[0] = {0, ultimo, 0, 0};
  return r;
}
template <class T>
constexpr RigaNome CampoNome(const char* nome, std::size_t scarto, IndiciNome prima = DA_1, std::span<const RigaNome> campi = {}) {
  RigaNome r = FormaNome<T>(nome, prima, campi);
  r.scarto = scarto;
  return r;
}
// The field `m` of record `R`, under its own name; further arguments as Voce's.
#define CAMPO(R, m, ...) CampoNome<decltype(R::m)>(#m, offsetof(R, m) __VA_OPT__(, ) __VA_ARGS__)
// The variable `m` of the state record `stato`, under its own name.
#define VOCE(stato, m, ...) Voce(#m, stato.m __VA_OPT__(, ) __VA_ARGS__)

using TabelleNomi = std::span<const std::span<const RigaNome>>;

std::span<const RigaNome> NomiModello();   // joint, suite and materials
std::span<const RigaNome> CampiSezione();  // fields of a Sezione, for records of other rooms
bool ValoreModello(std::string_view nome, std::string& valore, TabelleNomi altri = {});
