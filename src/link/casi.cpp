// link/casi.cpp - reader of the load cases' types.
#include "link/casi.h"

#include "core/file.h"
#include "core/piattaforma.h"
#include "link/collegamento.h"
#include "model/stato.h"

constexpr std::string_view CHIAVE = "TIPOVER=";

static std::string TipoDaRiga(std::string_view riga) {
  const std::size_t p = riga.find(CHIAVE);
  if (p == std::string_view::npos) return {};
  riga.remove_prefix(p + CHIAVE.size());
  return std::string(riga.substr(0, riga.find('|')));
}

// A count, then that many groups of values, all dropped.
static void SaltaGruppi(FileLettura& f, int valori) {
  std::int32_t n = 0;
  std::string scarto;
  LeggiValore(f, n);
  for (; n > 0 && !FineFile(f); --n)
    for (int i = 0; i < valori; ++i) LeggiValore(f, scarto);
}

EsitoCasi LeggiTipiCaso() {
  FileLettura f;
  const std::string percorso = suite.DirLavoro + "\\combinaz.tot";
  if (!ApriLettura(f, percorso)) {
    Messaggio("Errore: file " + percorso + " errato o mancante.", "ERRORE", Icona::Esclamazione);
    return EsitoCasi::Assente;
  }
  std::int32_t n = 0;
  LeggiValore(f, n);
  if (n > MaxCasi) {
    Messaggio("Errore: numero di combinazioni eccessivo", "ERRORE", Icona::Esclamazione);
    return EsitoCasi::Troppi;
  }
  Collegamento& c = collegamento;
  for (c.NumCasiStr = 0; c.NumCasiStr < n && !FineFile(f);) {
    const int i = ++c.NumCasiStr;
    std::string riga;
    c.CasiStr[i] = 0;
    LeggiValore(f, c.CasiStr[i]);
    for (int k = 0; k < 3; ++k) LeggiRiga(f, riga);
    c.TipiCaso[i] = TipoDaRiga(riga);
    SaltaGruppi(f, 3);
    SaltaGruppi(f, 2);
  }
  return EsitoCasi::Letti;
}
