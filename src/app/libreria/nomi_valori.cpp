// app/libreria/nomi_valori.cpp - a joint's values by their names: the model's own table of names, read as places within any Nodo.
#include <algorithm>
#include <charconv>
#include <functional>

#include "app/libreria/nodo_libreria.h"
#include "model/nomi.h"
#include "model/stato.h"

// ---- bounds of whole numbers: what indexes a table or chooses must exist ----

namespace {
struct Limiti {
  std::string_view nome;
  int minimo, massimo;
};
}  // namespace

// clang-format off
static constexpr Limiti INTERI[] = {
  { "TipoNodo", 1, 2 },         { "SaldInt", 0, 1 },           { "NTir", 1, MaxTir },
  { "TipoTirafondo", 0, 1 },    { "TfDiamIdx", 0, MaxDiam + 1 }, { "OptionNTir", 0, 3 },
  { "Esposizione", -1, 2 },     { "NumNodiStr", 0, MaxNodiStr }, { "NodiStr", -32768, 32767 },
};
// clang-format on

// The method and the loads have functions of their own.
static bool Escluso(std::string_view nome) { return nome == "TipoVer" || nome == "NumSoll" || nome.starts_with("Soll"); }

static const RigaNome* RigaDi(std::span<const RigaNome> righe, std::string_view nome) {
  const auto r = std::ranges::find_if(righe, [&](const RigaNome& v) { return nome == v.nome; });
  return r != righe.end() ? &*r : nullptr;
}

static bool NelNodo(const RigaNome& r) {
  const std::less<const void*> prima;
  return r.base != nullptr && !prima(r.base, &nodo) && prima(r.base, &nodo + 1);
}

// "(3)" at the front of t: the element's place; index 0 is free and not offered. A code.
static int PrendiIndice(const RigaNome& r, std::string_view& t, std::size_t& scarto) {
  if (r.numDim == 0) return QB07_OK;
  if (r.numDim != 1 || t.empty() || t.front() != '(') return QB07_NOME;
  int n = 0;
  const auto letto = std::from_chars(t.data() + 1, t.data() + t.size(), n);
  const bool fuori = letto.ec == std::errc::result_out_of_range;
  if ((letto.ec != std::errc() && !fuori) || letto.ptr == t.data() + t.size() || *letto.ptr != ')') return QB07_NOME;
  t.remove_prefix(static_cast<std::size_t>(letto.ptr - t.data()) + 1);
  const DimensioneNome& d = r.dim[0];
  if (fuori || n < std::max(1, d.primo) || n > d.ultimo) return QB07_INDICE;
  scarto += static_cast<std::size_t>(n - d.origine) * d.passo;
  return QB07_OK;
}

static int Segui(std::span<const RigaNome> righe, bool campi, std::string_view t, PostoValore& p) {
  const std::string_view nome = t.substr(0, t.find_first_of("(."));
  const RigaNome* r = RigaDi(righe, nome);
  if (r == nullptr || (!campi && (!NelNodo(*r) || Escluso(nome)))) return QB07_NOME;
  if (campi) {
    p.scarto += r->scarto;
  } else {
    p.scarto = static_cast<std::size_t>(static_cast<const std::byte*>(r->base) - reinterpret_cast<const std::byte*>(&nodo));
    p.radice = nome;
  }
  t.remove_prefix(nome.size());
  if (const int e = PrendiIndice(*r, t, p.scarto); e != QB07_OK) return e;
  if (r->genere == GenereNome::Record) return t.starts_with('.') ? Segui(r->campi, true, t.substr(1), p) : static_cast<int>(QB07_NOME);
  if (!t.empty()) return QB07_NOME;
  switch (r->genere) {
    case GenereNome::Reale: p.genere = GenereValore::Reale; return QB07_OK;
    case GenereNome::Testo: p.genere = GenereValore::Testo; return QB07_OK;
    case GenereNome::Intero16:
    case GenereNome::Intero32: break;
    default: return QB07_NOME;
  }
  const auto l = std::ranges::find_if(INTERI, [&](const Limiti& v) { return v.nome == p.radice; });
  if (l == std::end(INTERI)) return QB07_NOME;
  p.genere = GenereValore::Intero;
  p.minimo = l->minimo;
  p.massimo = l->massimo;
  return QB07_OK;
}

int TrovaValore(const char* nome, PostoValore& p) {
  if (const int e = ControllaTesto(nome, "nome", false); e != QB07_OK) return e;
  const int e = Segui(NomiModello(), false, nome, p);
  return e == QB07_OK ? e : Rifiuta(e, nome);
}
