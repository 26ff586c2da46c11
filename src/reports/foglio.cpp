// reports/foglio.cpp - opening, sextet titles and verdicts, closing.
#include "reports/foglio.h"

#include "core/nomi_file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "model/suite.h"

// Bytes to set aside at once: head, a sextet's fixed lines, one anchor line, one weld line (of the wider report).
constexpr std::size_t BYTE_TESTATA = 16384, BYTE_BLOCCO = 2048, BYTE_TIRAFONDO = 96, BYTE_SALDATURA = 96;

static std::size_t ByteAttesi(const Lavoro& l) {
  const std::size_t blocco =
    BYTE_BLOCCO + BYTE_TIRAFONDO * static_cast<std::size_t>(l.nodo->NTir) + BYTE_SALDATURA * static_cast<std::size_t>(l.NumSaldature);
  return BYTE_TESTATA + blocco * static_cast<std::size_t>(l.nodo->NumSoll);
}

// The box of a report that is not written; no arithmetic fault, so none is left raised.
static bool NonScritto(const Foglio& f) {
  Messaggio(TestoNonScritto(f.percorso, f.file.errore), TitoloProg, Icona::Critica);
  AzzeraFault();  // what a host raised while it showed the box is not the program's
  return false;
}

bool ApriFoglio(Foglio& f, const char* metodo) {
  f.percorso = NomeFileRelazione(metodo, CODICE_RELAZIONE);
  if (!ApriScrittura(f.file, f.percorso)) return NonScritto(f);
  f.file.testo.reserve(ByteAttesi(f.l));
  return true;
}

bool ConcludiFoglio(Foglio& f, bool intero) {
  if (!intero) {
    LasciaScrittura(f.file);
    return false;
  }
  if (!f.l.verificato) Messaggio("ATTENZIONE: nodo non verificato!", TitoloProg, Icona::Esclamazione);
  if (!ChiudiScrittura(f.file)) return NonScritto(f);
  piattaforma.mostraTesto(f.percorso);
  return true;
}

bool TitoloCombinazione(Foglio& f, int s) {
  return Riga(f) && Riga(f, "Combinazione di sollecitazioni agenti ", TestoSuUnaRiga(f.l.nodo->SollNome[s])) &&
         Riga(f, "----------------------------------------------------------------------");
}

bool EsitoCombinazione(Foglio& f, int s) {
  return Riga(f) && Riga(f,
                         f.l.passa[s] ? "NODO VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI "
                                      : "ATTENZIONE: NODO NON VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI ",
                         TestoSuUnaRiga(f.l.nodo->SollNome[s]));
}

bool Righe(Foglio& f, std::span<const char* const> righe) {
  for (const char* riga : righe)
    if (!Riga(f, riga)) return false;
  return true;
}
