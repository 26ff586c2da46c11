// reports/foglio.cpp - opening, sextet titles and verdicts, closing.
#include "reports/foglio.h"

#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/unita.h"
#include "reports/Relazioni.h"
#include "reports/nomi_file.h"

namespace {

// Bytes to set aside at once: head, a sextet's fixed lines, one anchor line, one weld line (of the wider report).
constexpr std::size_t BYTE_TESTATA = 16384, BYTE_BLOCCO = 2048, BYTE_TIRAFONDO = 96, BYTE_SALDATURA = 96;

std::size_t ByteAttesi() {
  const std::size_t blocco = BYTE_BLOCCO + BYTE_TIRAFONDO * static_cast<std::size_t>(nodo.NTir) +
                             BYTE_SALDATURA * static_cast<std::size_t>(nodo.NumSaldature);
  return BYTE_TESTATA + blocco * static_cast<std::size_t>(nodo.NumSoll);
}

}  // namespace

bool ApriFoglio(Foglio& f, const char* metodo) {
  f.percorso = NomeFileRelazione(metodo, CODICE_RELAZIONE);
  if (!ApriScrittura(f.file, f.percorso)) {
    SegnalaFault();
    return false;
  }
  const double mm = FattLunghezza("mm");
  f.c = mm * mm;
  f.file.testo.reserve(ByteAttesi());
  return true;
}

bool ConcludiFoglio(Foglio& f, bool intero) {
  if (!intero) {
    ChiudiScrittura(f.file);
    return false;
  }
  if (f.Fallito) Messaggio("ATTENZIONE: nodo non verificato!", TitoloProg, Icona::Esclamazione);
  if (!ChiudiScrittura(f.file)) {
    SegnalaFault();
    return false;
  }
  piattaforma.mostraTesto(f.percorso);
  esitoRelazione = {true, f.Fallito};
  return true;
}

bool TitoloCombinazione(Foglio& f, int s) {
  return Riga(f) && Riga(f, "Combinazione di sollecitazioni agenti ", TestoSuUnaRiga(nodo.SollNome[s])) &&
         Riga(f, "----------------------------------------------------------------------");
}

bool EsitoCombinazione(Foglio& f, int s) {
  if (!f.Verificato) f.Fallito = true;
  return Riga(f) && Riga(f,
                         f.Verificato ? "NODO VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI "
                                      : "ATTENZIONE: NODO NON VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI ",
                         TestoSuUnaRiga(nodo.SollNome[s]));
}

double SMaxNervatura(int s, const int (&posizioni)[4]) {
  double S = ris.SNerv[s][posizioni[0]];
  for (int p : posizioni) S = MaxDi(S, ris.SNerv[s][p]);
  return S;
}

bool Righe(Foglio& f, std::span<const char* const> righe) {
  for (const char* riga : righe)
    if (!Riga(f, riga)) return false;
  return true;
}
