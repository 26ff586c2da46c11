// drawing/formats/grb.cpp - the drawing file of the suite's graphic environment, and its command.
#include <array>
#include <string>

#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "core/zone.h"
#include "drawing/disegno.h"
#include "drawing/esecutivo.h"
#include "drawing/formats/grb_edizione.h"
#include "drawing/formats/scrittori.h"
#include "model/suite.h"

constexpr std::array<std::size_t, 4> CAMPI_RIGA4 = {20, 19, 19, 19};
constexpr const char* ZERO_ALLINEATO = "                   0\r\n";

// Four texts at the right of their fields, cut if longer, one blank between them.
std::string Riga4(const std::string& a, const std::string& b, const std::string& c, const std::string& d) {
  const std::string* const testi[] = {&a, &b, &c, &d};
  std::string riga;
  for (std::size_t k = 0; k < CAMPI_RIGA4.size(); ++k) {
    const std::string t = PrimiCaratteri(*testi[k], CAMPI_RIGA4[k]);
    if (k > 0) riga += ' ';
    riga.append(CAMPI_RIGA4[k] - NumCaratteri(t), ' ').append(t);
  }
  return std::string(RifilaDestra(riga));
}

static void Testata(std::string& t) {
  const Disegno& d = disegno;
  t += "                   4\r\n                   5                   2                   0\r\n";
  for (int i = 0; i < 6; ++i) t += ZERO_ALLINEATO;
  RigaZone(t, d.EstXMin, d.EstXMax);  // as they stand: of the last DIS or DXF, or 0
  RigaZone(t, d.EstYMin, d.EstYMax);
}

static void Geometria(std::string& t) {
  const Disegno& d = disegno;
  RigaZone(t, d.NumCoord);
  for (int i = 0; i < d.NumCoord; ++i) RigaZone(t, d.CoordX[i], d.CoordY[i]);
  t += "0\r\n";
  RigaZone(t, d.NumLinee);
  for (int i = 0; i < d.NumLinee; ++i) {
    RigaZone(t, d.LinIni[i], d.LinFin[i]);
    RigaZone(t, d.LinCol[i], d.LinTipo[i], 0);
  }
  RigaZone(t, d.NumArchi);
  for (int i = 0; i < d.NumArchi; ++i) {
    RigaZone(t, d.ArcCen[i], d.ArcIni[i], d.ArcFin[i]);
    RigaZone(t, d.ArcCol[i], d.ArcTipo[i], 0);
  }
}

// Styles go out less one.
static void TestiEQuote(std::string& t) {
  const Disegno& d = disegno;
  RigaZone(t, d.NumTesti);
  for (int i = 0; i < d.NumTesti; ++i) {
    RigaZone(t, d.TesPos[i], d.TesCol[i] - 1, d.TesAng[i], 0, d.TesAllin[i]);
    t.append(d.TesStr[static_cast<std::size_t>(i)]).append("\r\n");
  }
  t.append(ZERO_ALLINEATO).append(ZERO_ALLINEATO);
  RigaZone(t, d.NumQuote);
  for (int i = 0; i < d.NumQuote; ++i) {
    t.append(Riga4(std::to_string(d.QuoIni[i]), std::to_string(d.QuoFin[i]), "-1", std::string(1, d.QuoTipo[i]))).append("\r\n");
    RigaZone(t, d.QuoStile[i] - 1, d.QuoDist[i], "0");
    t.append(d.QuoTesto[static_cast<std::size_t>(i)]).append("\r\n");
  }
  RigaZone(t, 0);  // polylines: none
}

bool ScriviGrb(const std::string& nomeFile, int silenzioso) {
  FileScrittura f;
  bool esito = ApriScrittura(f, nomeFile);
  if (esito) {
    Testata(f.testo);
    Geometria(f.testo);
    TestiEQuote(f.testo);
    esito = ChiudiScrittura(f);
  }
  if (!esito) ErroreScrittura(nomeFile, silenzioso > 0 ? 2 : 0);
  return esito;
}

bool EsportaGrb(const std::string& nomeFile, int silenzioso) {
  disegno.NumQuote = 0;
  if (!EdizioneGrb(edizione) || !DisegnaFoglio() || !ScriviGrb(nomeFile, silenzioso)) return false;
  FileSalvato(nomeFile, silenzioso);
  return true;
}

bool ComandoGrb(const std::string& nomeFile, int silenzioso) {
  piattaforma.attesa(true);
  const bool esito = EsportaGrb(nomeFile, silenzioso);
  if (!esito) Messaggio("Scrittura GRB annullata", TitoloProg, Icona::Esclamazione);
  piattaforma.attesa(false);
  return esito;
}
