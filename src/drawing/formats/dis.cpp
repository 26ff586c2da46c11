// drawing/formats/dis.cpp - the suite's neutral vector file: the store, table by table.
#include <algorithm>

#include "core/file.h"
#include "core/piattaforma.h"
#include "core/zone.h"
#include "drawing/disegno.h"
#include "drawing/formats/scrittori.h"

void ErroreScrittura(const std::string& nomeFile, int silenzioso) {
  if (silenzioso != 2) Messaggio("Errore durante la scrittura sul file" + nomeFile, "ERRORE", Icona::Nessuna);
}

void FileSalvato(const std::string& nomeFile, int silenzioso) {
  if (silenzioso <= 0) Messaggio("File " + nomeFile + " salvato.", "SALVA FILE DISEGNO", Icona::Informazione);
}

void CalcolaEstensioni() {
  Disegno& d = disegno;
  d.EstXMin = d.EstXMax = d.CoordX[0];
  d.EstYMin = d.EstYMax = d.CoordY[0];
  for (int i = 0; i < d.NumCoord; ++i) {
    d.EstXMin = std::min(d.EstXMin, d.CoordX[i]);
    d.EstXMax = std::max(d.EstXMax, d.CoordX[i]);
    d.EstYMin = std::min(d.EstYMin, d.CoordY[i]);
    d.EstYMax = std::max(d.EstYMax, d.CoordY[i]);
  }
}

static void Testata(std::string& t) {
  t += "                   4\r\n";  // version
  RigaZone(t, disegno.EstXMin, disegno.EstXMax);
  RigaZone(t, disegno.EstYMin, disegno.EstYMax);
  t += "-10000.000000        10000.000000\r\n";  // height range, always the same
}

static void Tabelle(std::string& t) {
  const Disegno& d = disegno;
  RigaZone(t, d.NumCoord);
  for (int i = 0; i < d.NumCoord; ++i) RigaZone(t, d.CoordX[i], d.CoordY[i], 0);
  RigaZone(t, d.NumCerchi);
  for (int i = 0; i < d.NumCerchi; ++i) RigaZone(t, d.CerCen[i], d.CerA[i], d.CerB[i]);
  RigaZone(t, d.NumLinee);
  for (int i = 0; i < d.NumLinee; ++i) RigaZone(t, d.LinIni[i], d.LinFin[i], d.LinCol[i], d.LinTipo[i]);
  RigaZone(t, d.NumTesti);
  for (int i = 0; i < d.NumTesti; ++i) {
    RigaZone(t, d.TesPos[i], 1, d.TesAng[i]);
    RigaZone(t, d.TesLarg[i] / 10.0, d.TesAlt[i] / 10.0, d.TesCol[i]);
    t.append(d.TesStr[static_cast<std::size_t>(i)]).append("\r\n");
  }
  RigaZone(t, d.NumArchi);
  for (int i = 0; i < d.NumArchi; ++i) {
    RigaZone(t, d.ArcCen[i], d.ArcIni[i], d.ArcCen2[i], d.ArcFin[i]);
    RigaZone(t, d.ArcCol[i], d.ArcTipo[i]);
  }
}

bool ScriviDis(const std::string& nomeFile, int silenzioso) {
  FileScrittura f;
  bool esito = ApriScrittura(f, nomeFile);
  if (esito) {
    f.testo.reserve(
      static_cast<std::size_t>(48 * (disegno.NumCoord + disegno.NumLinee + 2 * disegno.NumTesti + 2 * disegno.NumArchi + 16)));
    Testata(f.testo);
    Tabelle(f.testo);
    esito = ChiudiScrittura(f);
  }
  if (!esito) ErroreScrittura(nomeFile, silenzioso);
  return esito;
}

bool SalvaDis(const std::string& nomeFile, int silenzioso) {
  CalcolaEstensioni();
  CompattaDisegno();
  if (!ScriviDis(nomeFile, silenzioso)) return false;
  FileSalvato(nomeFile, silenzioso);
  return true;
}
