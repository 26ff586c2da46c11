// core/layout_nodo.cpp - writer and reader of the node file over one list of rows.
#include "core/layout_nodo.h"

#include <algorithm>
#include <cmath>

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "model/stato.h"

static bool Vale(const RigaNodo& r) {
  switch (r.quando) {
    case QuandoNodo::Sempre: return true;
    case QuandoNodo::Nervature: return nodo.TipoNodo == 2;
    case QuandoNodo::Attuale: return scambio.attuale;
    case QuandoNodo::Vecchia: return !scambio.attuale;
  }
  return false;
}

// The row behind the block that begins at r: a single row, or all the rows of one list.
static std::size_t FineBlocco(std::span<const RigaNodo> righe, std::size_t r) {
  if (!righe[r].elenco) return r + 1;
  while (r < righe.size() && righe[r].elenco) ++r;
  return r;
}

static std::string TestoNumero(double v) {
  if (std::isfinite(v)) return NumeroFile(v);
  passi.fallito = true;
  return {};
}

static void ScriviVoce(std::string& testo, const RigaNodo& r, int i) {
  if (r.dato.numero != nullptr) testo += TestoNumero(r.dato.numero[i]);
  else if (r.dato.intero != nullptr) testo += NumeroFile(r.dato.intero[i]);
  else if (r.forma == FormaNodo::Marca) testo += MARCA_NODO;
  else if (r.forma == FormaNodo::NomeSezione) testo += AllineaSinistra(r.dato.testo[i], LungNomeSez);
  else if (r.forma == FormaNodo::UnaRiga) testo += Componi(Componi(r.dato.testo[i], "\r", " "), "\n", "");
  else if (r.forma == FormaNodo::Cifra && r.dato.testo[i].empty()) return;
  else testo += r.dato.testo[i];
  testo += "\r\n";
}

static void ScambioDalModello() {
  scambio = {};
  std::copy(std::begin(nodo.TfZ), std::end(nodo.TfZ), scambio.TfZ);
  std::copy(std::begin(nodo.TfY), std::end(nodo.TfY), scambio.TfY);
  if (nodo.OptionNTir >= 0) scambio.motivo = std::to_string(nodo.OptionNTir);
  scambio.TfDiamIdx = nodo.TfDiamIdx;
  scambio.Esposizione = static_cast<std::int16_t>(nodo.Esposizione + 1);
  scambio.metodo = nodo.TipoVer == 0 ? "0" : "1";
}

std::string ComponiNodo() {
  ScambioDalModello();
  const std::span<const RigaNodo> righe = RigheNodo();
  std::string testo;
  int conta = 0;
  for (std::size_t r = 0; r < righe.size(); r = FineBlocco(righe, r)) {
    if (!Vale(righe[r])) continue;
    if (righe[r].massimo > 0) conta = std::clamp<int>(*righe[r].dato.intero, 0, righe[r].massimo);
    if (!righe[r].elenco) ScriviVoce(testo, righe[r], 0);
    else
      for (int i = 1; i <= conta; ++i)
        for (std::size_t q = r; q < FineBlocco(righe, r); ++q) ScriviVoce(testo, righe[q], i);
  }
  return testo;
}

static void LeggiNomeSezione(FileLettura& f, std::string& nome) {
  std::string letto(Rifila(scambio.riga));
  if (scambio.attuale && !LeggiValore(f, letto)) return;
  nome = AllineaSinistra(letto, LungNomeSez);
}

static void LeggiVoce(FileLettura& f, const RigaNodo& r, int i) {
  if (r.forma == FormaNodo::Marca) {
    LeggiRiga(f, scambio.riga);
    scambio.attuale = Contiene(scambio.riga, MARCA_NODO);
  } else if (r.forma == FormaNodo::NomeSezione) LeggiNomeSezione(f, r.dato.testo[i]);
  else if (r.dato.numero != nullptr) LeggiValore(f, r.dato.numero[i]);
  else if (r.dato.intero != nullptr) LeggiValore(f, r.dato.intero[i]);
  else LeggiValore(f, r.dato.testo[i]);
}

static void ScartaVoce(FileLettura& f, const RigaNodo& r) {
  double numero = 0;
  std::string testo;
  if (r.dato.testo != nullptr) LeggiValore(f, testo);
  else LeggiValore(f, numero);
}

// A count outside 0..massimo is a failed step: the bound stands in the model, the values of the file beyond it are dropped.
static int LeggiConta(FileLettura& f, const RigaNodo& r) {
  LeggiVoce(f, r, 0);
  const int scritti = *r.dato.intero;
  const int tenuti = std::clamp(scritti, 0, r.massimo);
  if (tenuti != scritti) passi.fallito = true;
  *r.dato.intero = static_cast<std::int16_t>(tenuti);
  return scritti;
}

static void LeggiElenco(FileLettura& f, std::span<const RigaNodo> colonne, int scritti, int tenuti) {
  for (int i = 1; i <= scritti; ++i)
    for (const RigaNodo& r : colonne) {
      if (FineFile(f)) {
        passi.fallito = true;  // every further step would fail alike
        return;
      }
      if (i <= tenuti) LeggiVoce(f, r, i);
      else ScartaVoce(f, r);
    }
}

void LeggiNodo(FileLettura& f, void (*passo)(PassoNodo)) {
  scambio = {};
  const std::span<const RigaNodo> righe = RigheNodo();
  int scritti = 0, tenuti = 0;
  for (std::size_t r = 0; r < righe.size(); r = FineBlocco(righe, r)) {
    const RigaNodo& riga = righe[r];
    if (!Vale(riga)) continue;
    if (riga.massimo > 0) {
      scritti = LeggiConta(f, riga);
      tenuti = *riga.dato.intero;
    } else if (riga.elenco) LeggiElenco(f, righe.subspan(r, FineBlocco(righe, r) - r), scritti, tenuti);
    else LeggiVoce(f, riga, 0);
    if (riga.passo != PassoNodo::Nessuno) passo(riga.passo);
  }
}

using enum FormaNodo;
using enum QuandoNodo;
static const RigaNodo RIGHE[] = {
  {"VERNTC", {}, Marca},
  {"Sezione.Nome", &nodo.Sezione.Nome, NomeSezione},
  {"Sezione.H", &nodo.Sezione.H},
  {"Sezione.B", &nodo.Sezione.B},
  {"Sezione.A", &nodo.Sezione.A},
  {"Sezione.E", &nodo.Sezione.E, Valore, Sempre, PassoNodo::Sezione},
  {"LatoZ", &nodo.LatoZ},
  {"LatoY", &nodo.LatoY},
  {"SpessPiastra", &nodo.SpessPiastra},
  {"TipoNodo", &nodo.TipoNodo},
  {"OptionNTir", &scambio.motivo, Cifra, Sempre, PassoNodo::Motivo},
  {"SpNerv", &nodo.SpNerv, Valore, Nervature},  // thickness before height, unlike the fields
  {"HNerv", &nodo.HNerv, Valore, Nervature},
  {"SaldInt", &nodo.SaldInt, Valore, Nervature},
  {"Gola", &nodo.Gola},
  {.nome = "NTir", .dato = &nodo.NTir, .massimo = MaxTir},
  {.nome = "TfZ", .dato = scambio.TfZ, .elenco = true},
  {.nome = "TfY", .dato = scambio.TfY, .elenco = true},
  {"TfR", &nodo.TfR},
  {"TfL", &nodo.TfL},
  {"TfL1", &nodo.TfL1},
  {"TfLFt", &nodo.TfLFt},
  {"TfDiamIdx", &scambio.TfDiamIdx, Valore, Sempre, PassoNodo::Diametro},
  {"TfLF", &nodo.TfLF},
  {"TfDForo", &nodo.TfDForo},
  {"TfHMalta", &nodo.TfHMalta},
  {"TfLFil", &nodo.TfLFil},
  {"TfDistBordo", &nodo.TfDistBordo},
  {"TipoTirafondo", &nodo.TipoTirafondo},
  {"MatAcc.Nome", &nodo.MatAcc.Nome, Valore, Attuale},
  {"MatTir.Nome", &nodo.MatTir.Nome, Valore, Attuale},
  {"MatCls.Nome", &nodo.MatCls.Nome, Valore, Attuale},
  {"Esposizione", &scambio.Esposizione, Valore, Attuale, PassoNodo::Esposizione},
  {"MatCls.Nome", &nodo.MatCls.Nome, Valore, Vecchia},
  {"MatCls.Rck", &nodo.MatCls.Rck, Valore, Vecchia},
  {"MatCls.SAmm", &nodo.MatCls.SAmm, Valore, Vecchia},
  {"MatAcc.Nome", &nodo.MatAcc.Nome, Valore, Vecchia},
  {"MatAcc.SAmm", &nodo.MatAcc.SAmm, Valore, Vecchia},
  {"MatAcc.SAmm40", &nodo.MatAcc.SAmm40, Valore, Vecchia},
  {"MatTir.Nome", &nodo.MatTir.Nome, Valore, Vecchia},
  {"MatTir.SAmm", &nodo.MatTir.SAmm, Valore, Vecchia},
  {.nome = "NumSoll", .dato = &nodo.NumSoll, .massimo = MaxSoll},
  {.nome = "SollN", .dato = nodo.SollN, .elenco = true},
  {.nome = "SollTy", .dato = nodo.SollTy, .elenco = true},
  {.nome = "SollTz", .dato = nodo.SollTz, .elenco = true},
  {.nome = "SollMt", .dato = nodo.SollMt, .elenco = true},
  {.nome = "SollMy", .dato = nodo.SollMy, .elenco = true},
  {.nome = "SollMz", .dato = nodo.SollMz, .elenco = true},
  {.nome = "SollCC", .dato = nodo.SollCC, .elenco = true},
  {.nome = "SollNome", .dato = nodo.SollNome, .forma = UnaRiga, .elenco = true},
  {.nome = "NumNodiStr", .dato = &nodo.NumNodiStr, .massimo = MaxNodiStr},
  {.nome = "NodiStr", .dato = nodo.NodiStr, .elenco = true},
  {"TipoVer", &scambio.metodo, Cifra, Sempre, PassoNodo::Metodo},
};
std::span<const RigaNodo> RigheNodo() { return RIGHE; }
