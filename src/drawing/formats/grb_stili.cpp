// drawing/formats/grb_stili.cpp - reader of the template's text styles.
#include "drawing/formats/grb_stili.h"

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "model/stato.h"
#include "model/suite.h"

double ConvStile(double v, double f, std::int16_t u) { return f * (u == 0 ? v / 1000 : u == 1 ? v / 10 : v); }

static bool SaltaRighe(FileLettura& f, int n) {
  std::string riga;
  bool esito = true;
  for (; n > 0; --n) esito = LeggiRiga(f, riga) && esito;
  return esito;
}

// The line of the number of styles. False: missing, or out of the tables.
static bool LeggiNumeroStili(FileLettura& f, std::int16_t& n) {
  std::string riga;
  double v = 0;
  return LeggiRiga(f, riga) && Val(riga, v) && InIntero(v, n) && n >= 0 && n <= MaxStiliGrb;
}

// A comment line, one record (width, height, a size not used, identifier), a comment line.
static bool LeggiStile(FileLettura& f, int i, double fattore, std::int16_t unita) {
  double larghezza = 0, altezza = 0, terzo = 0;
  std::int16_t id = 0;
  if (!SaltaRighe(f, 1) || !LeggiValore(f, larghezza) || !LeggiValore(f, altezza) || !LeggiValore(f, terzo) || !LeggiValore(f, id))
    return false;
  stiliGrb.LargStile[i] = ConvStile(larghezza, fattore, unita);
  stiliGrb.AltStile[i] = ConvStile(altezza, fattore, unita);
  stiliGrb.IdStile[i] = id;
  return SaltaRighe(f, 1);
}

static bool LeggiModello(FileLettura& f) {
  double fattore = 0;
  std::int16_t unita = 0, terzo = 0, n = 0;
  if (!SaltaRighe(f, 1) || !LeggiValore(f, fattore) || !LeggiValore(f, unita) || !LeggiValore(f, terzo) || !SaltaRighe(f, 1) ||
      !LeggiNumeroStili(f, n))
    return false;
  stiliGrb.NumStili = n;
  for (int i = 1; i <= n; ++i)
    if (!LeggiStile(f, i, fattore, unita)) return false;
  return SaltaRighe(f, 6);
}

bool LeggiStiliGrb() {
  const std::string nome = suite.DirCustom + "\\cad2dmodello.grb";
  const char* guasto = nullptr;
  FileLettura f;
  if (!ApriLettura(f, nome)) guasto = "Errore in apertura del file ";
  else if (!LeggiModello(f)) guasto = "Errore in lettura del file ";
  if (!guasto) return true;
  Messaggio(guasto + nome + "- verranno usati i parametri disegno della versione autonoma.", TitoloProg, Icona::Critica);
  passi = {};  // dealt with: the start goes on
  return false;
}
