// link/esporta_soll.cpp - writer of the load list.
#include "link/esporta_soll.h"

#include <cmath>

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "core/zone.h"
#include "model/stato.h"
#include "model/suite.h"

static std::string Intestazione() {
  std::string riga = "Unità di misura: " + suite.UnitaForze;
  const std::size_t colonne = NumCaratteri(riga);
  riga.append((colonne + COLONNE_ZONA - 1) / COLONNE_ZONA * COLONNE_ZONA - colonne, ' ');
  return riga + suite.UnitaLung;  // the length unit, though moments follow: their unit is the force's times it only in jobs that are set so
}

// One group; false: a value overflows in the user's unit, an arithmetic fault.
static bool ComponiRiga(const ElencoSoll& elenco, int i, std::string& riga) {
  riga = std::to_string(i - elenco.primo + 1) + "\t" + std::string(Rifila(elenco.nomi[i])) + "\t";
  for (int k = 0; k < 6; ++k) {
    const double v = elenco.usa[k] ? elenco.componente[k][i] * (k < 3 ? suite.FattForze : suite.FattMomenti) : 0;
    if (!std::isfinite(v)) {
      SegnalaFault();
      return false;
    }
    riga += NumeroPiano(v) + "\t";
  }
  return true;
}

EsitoEsporta EsportaSollecitazioni(const std::string& nomeFile, const ElencoSoll& elenco) {
  FileScrittura f;
  if (!ApriScrittura(f, nomeFile, Tenuta::Duratura)) return EsitoEsporta::NonAperto;
  ScriviRiga(f, Intestazione());
  ScriviRiga(f, "ses\tdescr.Ses.\tN\tTy\tTz\tMt\tMy\tMz");
  std::string riga;
  for (int i = elenco.primo; i < elenco.primo + elenco.conteggio; ++i) {
    if (!ComponiRiga(elenco, i, riga)) return EsitoEsporta::Interrotto;
    ScriviRiga(f, riga);
  }
  return ChiudiScrittura(f) ? EsitoEsporta::Scritto : EsitoEsporta::NonScritto;
}
