// link/esporta_soll.cpp - writer of the load list.
#include "link/esporta_soll.h"

#include "core/file.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "model/suite.h"

namespace {

constexpr std::size_t ZONA = 14;             // columns of a print zone

std::string Intestazione() {
  std::string riga = "Unità di misura: " + suite.UnitaForze;
  const std::size_t colonne = NumCaratteri(riga);
  riga.append((colonne + ZONA - 1) / ZONA * ZONA - colonne, ' ');
  return riga + suite.UnitaLung;             // the length unit, though moments follow; deliberate
}

}  // namespace

bool EsportaSollecitazioni(const std::string& nomeFile, const ElencoSoll& elenco) {
  FileScrittura f;
  if (!ApriScrittura(f, nomeFile)) return false;
  ScriviRiga(f, Intestazione());
  ScriviRiga(f, "ses\tdescr.Ses.\tN\tTy\tTz\tMt\tMy\tMz");
  for (int i = elenco.primo; i < elenco.primo + elenco.conteggio; ++i) {
    std::string riga = std::to_string(i - elenco.primo + 1) + "\t" + std::string(Rifila(elenco.nomi[i])) + "\t";
    for (int k = 0; k < 6; ++k) {
      const double fattore = k < 3 ? suite.FattForze : suite.FattMomenti;
      riga += (elenco.usa[k] ? NumeroPiano(elenco.componente[k][i] * fattore) : "0") + "\t";
    }
    ScriviRiga(f, riga);
  }
  return ChiudiScrittura(f);
}
