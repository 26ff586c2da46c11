// drawing/formats/tipi_linea.cpp - dash patterns.
#include "drawing/formats/tipi_linea.h"

#include <cmath>

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr double MaxRipetizioni = 2000;  // repeats of its pattern from which on a line stays whole

// The number at the head of the next line that is no remark.
static bool LeggiNumero(FileLettura& f, double& v) {
  std::string riga;
  do {
    if (!LeggiRiga(f, riga)) return false;
  } while (UgualeSenzaMaiuscole(PrimiCaratteri(riga, 4), "Rem "));
  return Val(riga, v);
}

static bool LeggiTipo(FileLettura& f, int tipo) {
  double n = 0, v = 0;
  if (!LeggiNumero(f, n) || n < 0 || n > MaxTratti) return false;
  double tratti[MaxTratti] = {}, lunghezza = 0;
  for (int i = 0; i < static_cast<int>(n); ++i) {
    if (!LeggiNumero(f, v) || v < 0) return false;
    tratti[i] = 10 * v;
    lunghezza += tratti[i];
  }
  for (int i = 0; i < MaxTratti; ++i) tipiLinea.TipiTratto[tipo][i] = tratti[i];
  tipiLinea.TipiNTratti[tipo] = static_cast<int>(n);
  tipiLinea.TipiLungh[tipo] = lunghezza;
  return true;
}

bool LeggiTipiLinea() {
  tipiLinea = {};
  const StatoPassi prima = passi;  // the file may be missing
  FileLettura f;
  bool esito = ApriLettura(f, suite.DirCustom + "\\tipilinea.txt");
  for (int tipo = 0; esito && tipo < NumTipiLinea; ++tipo) esito = LeggiTipo(f, tipo);
  passi = prima;
  return esito;
}

bool SpezzaLinea(double x1, double y1, double x2, double y2, int tipo, StatoTratteggio& stato, bool ultimoPieno, double scala,
                 std::vector<TrattoLinea>& tratti) {
  tratti.clear();
  const double L = std::sqrt((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1));
  if (L < TOLL_GEO || tipo < 0 || tipo >= NumTipiLinea) return false;
  const double periodo = tipiLinea.TipiLungh[tipo] / 10 * scala;
  if (!(periodo > TOLL_GEO) || L / periodo >= MaxRipetizioni) return false;
  const int n = tipiLinea.TipiNTratti[tipo];
  const double ux = (x2 - x1) / L, uy = (y2 - y1) / L;
  if (stato.tratto >= n) stato = {};
  double corsa = 0;
  for (bool fine = false; !fine && corsa < L - TOLL_GEO;) {
    const double intero = tipiLinea.TipiTratto[tipo][stato.tratto] / 10 * scala;
    double tratto = stato.resto > 0 ? stato.resto : intero;
    const double resto = corsa + tratto - L;
    fine = resto > TOLL_GEO;  // cut by the line's end; what is left begins the next line
    if (fine) tratto = L - corsa;
    const bool pieno = stato.tratto % 2 == 0 || (ultimoPieno && corsa + tratto > L - TOLL_GEO);
    if (pieno) {
      if (static_cast<int>(tratti.size()) == MaxTrattiRiga) {
        Messaggio("Superato il numero massimo di tratti per le linee tratteggiate.", TitoloProg, Icona::Esclamazione);
        tratti.clear();
      }
      tratti.push_back({x1 + ux * corsa, y1 + uy * corsa, x1 + ux * (corsa + tratto), y1 + uy * (corsa + tratto)});
    }
    corsa += tratto;
    stato.resto = fine ? resto : 0;
    if (!fine) stato.tratto = (stato.tratto + 1) % n;
  }
  return true;
}
