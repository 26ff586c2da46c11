// app/libreria/maniglie.h - handles, errors and the guard of every function of the library.
// Handles   numbers that are never used twice, dressed as pointers and never followed: one that was given back is refused for good.
// State     registro: what each handle stands for. ultimoErrore: of the calling thread.
#pragma once
#if defined(_WIN32)
#define QB07_API __declspec(dllexport)
#else
#define QB07_API __attribute__((visibility("default")))
#endif
#include <cfenv>
#include <cstdint>
#include <memory>
#include <new>
#include <shared_mutex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>

#include "qb07.h"

enum class GenereManiglia : unsigned char { Suite, Nodo, Esito };

struct VoceRegistro {
  GenereManiglia genere;
  std::shared_ptr<void> oggetto;
};
struct Registro {
  std::shared_mutex serratura;
  std::unordered_map<std::uintptr_t, VoceRegistro> voci;
  std::uintptr_t prossima = 0x1000;
};
inline Registro registro;
inline thread_local std::string ultimoErrore;

const char* TestoErrore(int codice);
int Rifiuta(int codice, std::string_view cosa = {});  // returns the code; the text of the error is the code's, then `cosa`
int Rifiuta(int codice, const char* nome, std::string_view cosa);

std::uintptr_t NuovaManiglia(GenereManiglia genere, std::shared_ptr<void> oggetto);
std::shared_ptr<void> TrovaManiglia(GenereManiglia genere, const void* maniglia);  // null: none
int LiberaManiglia(GenereManiglia genere, const void* maniglia);

struct SuiteLib;
struct NodoLib;
struct EsitoLib;
template <class T>
struct DiGenere;
template <>
struct DiGenere<SuiteLib> {
  static constexpr GenereManiglia genere = GenereManiglia::Suite;
};
template <>
struct DiGenere<NodoLib> {
  static constexpr GenereManiglia genere = GenereManiglia::Nodo;
};
template <>
struct DiGenere<EsitoLib> {
  static constexpr GenereManiglia genere = GenereManiglia::Esito;
};

template <class T>
std::shared_ptr<T> Trova(const void* maniglia) {
  return std::static_pointer_cast<T>(TrovaManiglia(DiGenere<T>::genere, maniglia));
}
// Into the caller's pointer, only once everything has succeeded.
template <class Maniglia, class T>
void Consegna(Maniglia** dove, std::shared_ptr<T> oggetto) {
  *dove = reinterpret_cast<Maniglia*>(NuovaManiglia(DiGenere<T>::genere, std::move(oggetto)));
}

// The caller's rounding mode and flags come back at the end; within, ties to even and no traps.
class AmbienteCalcolo {
 public:
  AmbienteCalcolo() {
    std::fegetenv(&prima);
    std::fesetenv(FE_DFL_ENV);
  }
  ~AmbienteCalcolo() { std::fesetenv(&prima); }
  AmbienteCalcolo(const AmbienteCalcolo&) = delete;
  AmbienteCalcolo& operator=(const AmbienteCalcolo&) = delete;

 private:
  std::fenv_t prima;
};

// Every function of the interface runs in here: no exception crosses it.
template <class F>
int Proteggi(F&& corpo) noexcept {
  ultimoErrore.clear();
  const AmbienteCalcolo ambiente;
  try {
    return corpo();
  } catch (const std::bad_alloc&) {
    return Rifiuta(QB07_MEMORIA);
  } catch (const std::length_error&) {
    return Rifiuta(QB07_MEMORIA);
  } catch (...) {
    return Rifiuta(QB07_INTERNO);
  }
}

// A text handed in: UTF-8 without control characters, at most QB07_MAX_TESTO bytes. A code, QB07_OK: it holds.
int ControllaTesto(const char* testo, const char* cosa, bool ancheVuoto);
// A text handed out into room of the caller's.
int Copia(std::string_view testo, char* dove, std::size_t spazio, std::size_t* serve);
