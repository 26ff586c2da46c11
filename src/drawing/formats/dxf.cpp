// drawing/formats/dxf.cpp - the store as a drawing of the CAD exchange format, in its minimal text dialect: header, one layer, entities.
// Units     mm; angles in degrees. The store is written as it is, without the clean-up.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "drawing/disegno.h"
#include "drawing/formats/scrittori.h"
#include "drawing/formats/tipi_linea.h"
#include "model/suite.h"

#define RIGA "\r\n"

int ColoreDxf(int colore, int mono) {
  //                            0  1  2  3  4  5  6  7
  static const int COLORI[] = {18, 7, 5, 1, 3, 2, 8, 6};
  return mono == 1 || colore < 0 || colore > 7 ? 7 : COLORI[colore];
}

const char* NomeTipoDxf(int tipo) {
  static const char* const NOMI[] = {"CONTINUOUS", "CENTER", "DASHED", "DIVIDE", "DASHED2"};
  return NOMI[tipo >= 1 && tipo <= 4 ? tipo : 0];
}

double AngoloArco(double px, double py, double cx, double cy) {
  if (std::abs(px - cx) < TOLL_GEO) return py <= cy ? 270 : 90;
  const double a = std::abs(std::atan((py - cy) / (px - cx))) * 180 / PI_PROG;
  const bool destra = px >= cx, alto = py >= cy;
  const double angolo = destra ? (alto ? a : 360 - a) : (alto ? 180 - a : 180 + a);
  return angolo >= 360 ? angolo - 360 : angolo;
}

namespace {
struct Dxf {
  std::string* t = nullptr;
  int mono = 0;
};

// An entity is put together in a field on the stack and goes to the file in one piece.
struct Entita {
  char a[512];
  char* p = a;
};
}  // namespace

template <std::size_t N>
static void Metti(Entita& e, const char (&letterale)[N]) {
  std::memcpy(e.p, letterale, N - 1);
  e.p += N - 1;
}

static void Numero(Entita& e, double v) {
  e.p += ScriviNumero(v, e.p, '.', false);
  Metti(e, RIGA);
}

template <std::size_t N>
static void Coppia(Entita& e, const char (&codice)[N], double v) {
  Metti(e, codice);
  Numero(e, v);
}

static void Esce(const Dxf& f, Entita& e) {
  f.t->append(e.a, static_cast<std::size_t>(e.p - e.a));
  e.p = e.a;
}

static void Testata(const Dxf& f) {
  const Disegno& d = disegno;
  const double mx = 0.05 * (d.EstXMax - d.EstXMin), my = 0.05 * (d.EstYMax - d.EstYMin), m = MaxDi(mx, my);
  Entita e;
  Metti(e, " 0" RIGA "SECTION" RIGA " 2" RIGA "HEADER" RIGA " 9" RIGA "$EXTMIN" RIGA);
  Coppia(e, " 10" RIGA, d.EstXMin - m);
  Coppia(e, " 20" RIGA, d.EstYMin - m);
  Metti(e, " 30" RIGA "0.0" RIGA " 9" RIGA "$EXTMAX" RIGA);
  Coppia(e, " 10" RIGA, d.EstXMax + m);
  Coppia(e, " 20" RIGA, d.EstYMax + m);
  Esce(f, e);
  f.t->append(" 30" RIGA "0.0" RIGA " 0" RIGA "ENDSEC" RIGA " 0" RIGA "SECTION" RIGA " 2" RIGA "TABLES" RIGA " 0" RIGA "TABLE" RIGA
              " 2" RIGA "LAYER" RIGA " 70" RIGA "1" RIGA " 0" RIGA "LAYER" RIGA " 2" RIGA "0" RIGA " 70" RIGA "0" RIGA " 62" RIGA "7" RIGA
              " 6" RIGA "CONTINUOUS" RIGA " 0" RIGA "ENDTAB" RIGA " 0" RIGA "ENDSEC" RIGA " 0" RIGA "SECTION" RIGA " 2" RIGA
              "ENTITIES" RIGA);
}

static void MettiColore(const Dxf& f, Entita& e, int colore) { Coppia(e, " 62" RIGA, ColoreDxf(colore, f.mono)); }

static void Attributi(const Dxf& f, Entita& e, int colore, int tipo) {
  if (colore != 1) MettiColore(f, e, colore);
  if (tipo == 0) return;
  Metti(e, " 6" RIGA);
  const char* const nome = NomeTipoDxf(tipo);
  e.p = std::copy(nome, nome + std::strlen(nome), e.p);
  Metti(e, RIGA);
}

// A segment without its colour and type.
static void MettiLinea(Entita& e, double x1, double y1, double x2, double y2) {
  Coppia(e, " 0" RIGA "LINE" RIGA " 8" RIGA "0" RIGA " 10" RIGA, x1);
  Coppia(e, " 20" RIGA, y1);
  Coppia(e, " 30" RIGA "0.0" RIGA " 11" RIGA, x2);
  Coppia(e, " 21" RIGA, y2);
  Metti(e, " 31" RIGA "0.0" RIGA);
}

static void ScriviLinea(const Dxf& f, int i) {
  const Disegno& d = disegno;
  const int a = d.LinIni[i], b = d.LinFin[i];
  Entita e;
  MettiLinea(e, d.CoordX[a], d.CoordY[a], d.CoordX[b], d.CoordY[b]);
  Attributi(f, e, d.LinCol[i], d.LinTipo[i]);
  Esce(f, e);
}

// Returns how many lines were broken.
static int ScriviLineeSpezzate(const Dxf& f, double scala) {
  const Disegno& d = disegno;
  StatoTratteggio stato;
  std::vector<TrattoLinea> tratti;
  int spezzate = 0;
  for (int i = 0; i < d.NumLinee; ++i) {
    const int a = d.LinIni[i], b = d.LinFin[i], tipo = d.LinTipo[i];
    if (tipo <= 0 || !SpezzaLinea(d.CoordX[a], d.CoordY[a], d.CoordX[b], d.CoordY[b], tipo, stato, false, scala, tratti)) {
      ScriviLinea(f, i);
      continue;
    }
    ++spezzate;
    for (const TrattoLinea& t : tratti) {
      Entita e;
      MettiLinea(e, t.x1, t.y1, t.x2, t.y2);
      Attributi(f, e, d.LinCol[i], 0);
      Esce(f, e);
    }
  }
  return spezzate;
}

static void ScriviTestiALinee(const Dxf& f) {
  const Disegno& d = disegno;
  for (int i = 0; i < d.NumTesti; ++i) {
    const int p = d.TesPos[i];
    for (const TrattoTesto& t : TrattiTesto(d.TesStr[static_cast<std::size_t>(i)], d.CoordX[p], d.CoordY[p], d.TesAng[i],
                                            d.TesLarg[i] / 10.0, d.TesAlt[i] / 10.0)) {
      Entita e;
      MettiLinea(e, t.x1, t.y1, t.x2, t.y2);
      if (ColoreDxf(d.TesCol[i], f.mono) != 7) MettiColore(f, e, d.TesCol[i]);
      Esce(f, e);
    }
  }
}

// The first "]" is the diameter sign.
static std::string TestoDxf(const std::string& testo) {
  const std::size_t p = testo.find(']');
  return p == std::string::npos ? testo : testo.substr(0, p) + "%%c" + testo.substr(p + 1);
}

// False: a text of no height has no width to height ratio.
static bool ScriviTesti(const Dxf& f) {
  const Disegno& d = disegno;
  for (int i = 0; i < d.NumTesti; ++i) {
    Entita e;
    Coppia(e, " 0" RIGA "TEXT" RIGA " 8" RIGA "0" RIGA " 10" RIGA, d.CoordX[d.TesPos[i]]);
    Coppia(e, " 20" RIGA, d.CoordY[d.TesPos[i]]);
    Coppia(e, " 30" RIGA "0.0" RIGA " 40" RIGA, d.TesAlt[i] / 10.0);
    Metti(e, " 1" RIGA);
    Esce(f, e);
    f.t->append(TestoDxf(d.TesStr[static_cast<std::size_t>(i)]));
    Coppia(e, RIGA " 50" RIGA, d.TesAng[i]);
    Metti(e, " 41" RIGA);
    if (d.TesAlt[i] != 0) {
      Numero(e, d.TesLarg[i] / static_cast<double>(d.TesAlt[i]));
      Attributi(f, e, d.TesCol[i], 0);
    }
    Esce(f, e);
    if (d.TesAlt[i] == 0) return false;
  }
  return true;
}

static void ScriviArchi(const Dxf& f) {
  const Disegno& d = disegno;
  for (int i = 0; i < d.NumArchi; ++i) {
    const double cx = d.CoordX[d.ArcCen[i]], cy = d.CoordY[d.ArcCen[i]], x1 = d.CoordX[d.ArcIni[i]], y1 = d.CoordY[d.ArcIni[i]];
    const double x2 = d.CoordX[d.ArcFin[i]], y2 = d.CoordY[d.ArcFin[i]];
    const double r = std::sqrt((x1 - cx) * (x1 - cx) + (y1 - cy) * (y1 - cy));
    if (r < TOLL_GEO) continue;
    const bool cerchio = std::sqrt((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1)) < TOLL_GEO;
    Entita e;
    if (cerchio) Metti(e, " 0" RIGA "CIRCLE");
    else Metti(e, " 0" RIGA "ARC");
    Coppia(e, RIGA " 8" RIGA "0" RIGA " 10" RIGA, cx);
    Coppia(e, " 20" RIGA, cy);
    Coppia(e, " 30" RIGA "0.0" RIGA " 40" RIGA, r);
    if (!cerchio) {
      Coppia(e, " 50" RIGA, AngoloArco(x1, y1, cx, cy));
      Coppia(e, " 51" RIGA, AngoloArco(x2, y2, cx, cy));
    }
    Attributi(f, e, d.ArcCol[i], d.ArcTipo[i]);
    Esce(f, e);
  }
}

static void MessaggioFinale(const std::string& nomeFile, double scala, int spezzate) {
  std::string testo;
  if (spezzate > 0 && scala > 0)
    testo = "Le linee tratteggiate sono state disgregate ipotizzando una scala di plottaggio 1:" + NumeroPiano(scala) + "\r";
  Messaggio(testo + "File " + nomeFile + " salvato.", "SALVA FILE DXF", Icona::Nessuna);
}

bool SalvaDxf(const std::string& nomeFile, int testoLinee, int mono, double scala, int spezzaTratti, int silenzioso) {
  FileScrittura file;
  if (!ApriScrittura(file, nomeFile)) {
    Messaggio("ERRORE: non riesco ad aprire il file " + nomeFile, TitoloProg, Icona::Esclamazione);
    return false;
  }
  Dxf f;
  f.t = &file.testo;
  f.mono = mono;
  f.t->reserve(static_cast<std::size_t>(1024 + 144 * (disegno.NumLinee + disegno.NumTesti + disegno.NumArchi)));
  CalcolaEstensioni();
  Testata(f);
  int spezzate = 0;
  if (spezzaTratti == 1) {
    LeggiTipiLinea();
    spezzate = ScriviLineeSpezzate(f, scala > 0 ? scala : 1);
  } else {
    for (int i = 0; i < disegno.NumLinee; ++i) ScriviLinea(f, i);
  }
  bool esito = true;
  if (testoLinee == 1) ScriviTestiALinee(f);
  else esito = ScriviTesti(f);
  if (!esito) {
    MostraFault();
    return false;
  }
  ScriviArchi(f);
  f.t->append(" 0" RIGA "ENDSEC" RIGA " 0" RIGA "EOF" RIGA);
  if (!ChiudiScrittura(file)) {
    ErroreScrittura(nomeFile, silenzioso);
    return false;
  }
  if (silenzioso <= 0) MessaggioFinale(nomeFile, scala, spezzate);
  return true;
}
