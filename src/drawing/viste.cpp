// drawing/viste.cpp - the two elevations, which are one frame with different contents, and the plan.
#include "drawing/viste.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/testo.h"
#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/edizione.h"
#include "drawing/pezzi.h"
#include "drawing/pianta.h"
#include "drawing/saldature_dis.h"
#include "drawing/tavola.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr std::int16_t CONTINUA = 0, NASCOSTA = 1, ASSE = 3;  // disegno.TipoLinCorr

static void Linea(double x1, double y1, double x2, double y2) { DisLinea(nullptr, x1, y1, x2, y2); }

static void CambiaColore(int opzione) { disegno.ColCorr = ColoreOpz(opzione); }

namespace {
// What differs between the two elevations.
struct Prospetto {
  void (*nervature)();
  void (*colonna)();
  double lato;                   // plate along the horizontal axis
  double primo, secondo, terzo;  // anchors from the plate's corner; terzo at mid side
  bool conTerzo;
  bool uncini;          // a hooked rod shows its hook
  double sezione;       // where the other view's section passes, from the plate's corner
  const char* lettera;  // its letter
  int verso;            // +1: its ticks and letters go to the right
  double xNome;         // section name
  void (*quoteVerticali)(double x);
  void (*quoteFori)(double y);
  void (*quoteNervature)(double y);
  void (*quoteTirafondi)(double y);
  double (*ascissaQuote)();  // of the first vertical chain
  double passoQuote;         // from a vertical chain to the next one
};
}  // namespace

// ---- plate, footing, column --------------------------------------------------------------------------------------------------

static void TirafondoVista(double x, bool uncini) {
  Esecutivo& e = esecutivo;
  const double Fi = nodo.TfFi, Sp = nodo.SpessPiastra;
  e.ForiX[e.NumFori] = x;
  e.ForiD[e.NumFori++] = Fi;
  DisLineaRel(nullptr, x + Fi / 2, 0, 0, -Sp);
  DisLineaRel(nullptr, x - Fi / 2, 0, 0, -Sp);
  CambiaColore(0);
  if (uncini && nodo.TipoTirafondo == 1) TirafondoUncinato(x, 0);
  else TirafondoDiritto(x, 0);
  CambiaColore(2);
}

static void PiastraVista(double l) {
  const Esecutivo& e = esecutivo;
  const double x1 = e.VistaX, x2 = e.VistaX + l, y1 = e.VistaY, y2 = e.VistaY - nodo.SpessPiastra;
  Linea(x1, y1, x1, y2);
  Linea(x2, y1, x2, y2);
  LineaConFori(x1, y1, x2, y1, e.NumFori, e.ForiX, e.ForiD);
  LineaConFori(x1, y2, x2, y2, e.NumFori, e.ForiX, e.ForiD);
}

// The foundation line closing up to the rod at d from the plate's corner; the hole's depth in the footing is not shown.
static void ForoPlinto(double l, double d) {
  const double c = esecutivo.VistaX + d - l / 2, y1 = esecutivo.VistaY - nodo.SpessPiastra - nodo.TfHMalta;
  const double D = nodo.TfDForo, Fi = nodo.TfFi;
  Linea(c - D / 2, y1, c - Fi / 2, y1);
  Linea(c + Fi / 2, y1, c + D / 2, y1);
}

// The grout with its slopes and the foundation line, broken at the n anchors d.
static void PlintoVista(double l, const double* d, int n) {
  const double M = nodo.TfHMalta, D = nodo.TfDForo, X = esecutivo.VistaX, y0 = esecutivo.VistaY - nodo.SpessPiastra, y1 = y0 - M;
  for (const int s : {-1, 1}) {
    const double x0 = X + s * l / 2;
    Linea(x0, y0, x0 + s * M, y0);
    Linea(x0 + s * M, y0, x0 + s * 2 * M, y1);
  }
  const double primo = -l / 2 + d[0] - D / 2, ultimo = -l / 2 + d[n - 1] + D / 2;
  Linea(X + std::min(-l / 2, primo) - 5 * M, y1, X + std::max(-l / 2 - 2 * M, primo), y1);
  for (int i = 0; i < n; ++i) {
    if (i > 0) Linea(X - l / 2 + d[i - 1] + D / 2, y1, X - l / 2 + d[i] - D / 2, y1);
    ForoPlinto(l, d[i]);
  }
  Linea(X + std::max(l / 2, ultimo) + 5 * M, y1, X + std::min(l / 2 + 2 * M, ultimo), y1);
}

// Weld at the column's foot from -x to x, with room for a middle anchor.
static void SaldaturaPiede(double x, bool conMezzo) {
  const double Fi = nodo.TfFi;
  if (conMezzo) {
    DisSaldatura(nullptr, -x, 0, -Fi, 0, 1, 2, 0);
    DisSaldatura(nullptr, Fi, 0, x, 0, 1, 2, 0);
  } else {
    DisSaldatura(nullptr, -x, 0, x, 0, 1, 2, 0);
  }
}

// The column's edges, above the ribs where there are some.
static void FustoColonna(const double* x, int n) {
  const double y = nodo.TipoNodo == 2 ? nodo.HNerv : 0;
  for (int i = 0; i < n; ++i) Linea(x[i], y, x[i], esecutivo.HColDis);
}

// Closes the column.
static void AsseColonna(double largo) {
  const double h = esecutivo.HColDis;
  disegno.TipoLinCorr = ASSE;
  Linea(-Sporgenza * largo / 2, h, Sporgenza * largo / 2, h);
  disegno.TipoLinCorr = CONTINUA;
}

static void ColonnaBB() {
  const double B = nodo.Sezione.B, A = nodo.Sezione.A, h = esecutivo.HColDis;
  const double x[] = {-B / 2, B / 2};
  FustoColonna(x, 2);
  SaldaturaPiede(B / 2, TerzoTirafondoZ());
  if (nodo.TipoNodo == 2) {
    disegno.TipoLinCorr = NASCOSTA;  // the web, behind the flange
    Linea(-A / 2, 0, -A / 2, h);
    Linea(A / 2, 0, A / 2, h);
  }
  AsseColonna(B);
}

static void ColonnaAA() {
  const double H = nodo.Sezione.H, E = nodo.Sezione.E;
  const double x[] = {-H / 2, H / 2, -H / 2 + E, H / 2 - E};
  static const int QUADRANTI[] = {2, 1, 1, 2};
  FustoColonna(x, 4);
  if (nodo.TipoNodo == 1) {
    SaldaturaPiede(H / 2 - E, TerzoTirafondoY());
    for (int i = 0; i < 4; ++i) DisAngoloSald(nullptr, x[i], 0, QUADRANTI[i]);
  }
  AsseColonna(H);
}

// ---- elevations --------------------------------------------------------------------------------------------------------------

// Line of section C with its ticks upward and its letters outside the plate.
static void SezioneC(double lato) {
  const double P9 = edizione.AltTesti, P10 = edizione.LargTesti, y = 0.8 * esecutivo.HColDis, x = Sporgenza * lato / 2;
  Linea(-lato / 2, y, lato / 2, y);
  DisLineaRel(nullptr, -lato / 2, y, 0, 1.5 * P9);
  DisLineaRel(nullptr, lato / 2, y, 0, 1.5 * P9);
  edizione.testo("C", -x - 1.5 * P10, -x, y, y);
  edizione.testo("C", x + 0.5 * P10, x + 1.5 * P10, y, y);
}

static void SezioneVerticale(const Prospetto& p) {
  const double P9 = edizione.AltTesti, tacca = p.verso * 1.5 * edizione.LargTesti, x = -p.lato / 2 + p.sezione;
  const double alto = nodo.TfLFt, basso = Sporgenza * (-nodo.SpessPiastra - nodo.TfHMalta - nodo.TfL);
  Linea(x, alto, x, basso);
  DisLineaRel(nullptr, x, alto, tacca, 0);
  DisLineaRel(nullptr, x, basso, tacca, 0);
  edizione.testo(p.lettera, x, x + tacca, alto + 0.5 * P9, alto + 0.5 * P9);
  edizione.testo(p.lettera, x, x + tacca, basso - 1.5 * P9, basso - 1.5 * P9);
}

static void QuoteProspetto(const Prospetto& p) {
  const double P7 = suite.ParNodo[7], x = p.ascissaQuote();
  p.quoteVerticali(x);
  QuoteFondazioneV(x + p.passoQuote);
  double y = disegno.YMin - disegno.OffY - 2 * edizione.AltTesti - 3 * P7;
  p.quoteFori(y);
  if (nodo.TipoNodo == 2) p.quoteNervature(y -= 5 * P7);
  p.quoteTirafondi(y - 5 * P7);
}

static void DisegnaProspetto(const Prospetto& p) {
  Esecutivo& e = esecutivo;
  AzzeraEstensioni();
  disegno.TipoLinCorr = CONTINUA;
  if (nodo.TipoNodo == 2) p.nervature();
  e.VistaX = -p.lato / 2;
  e.VistaY = 0;
  CambiaColore(2);
  e.NumFori = 0;
  TirafondoVista(e.VistaX + p.primo, p.uncini);
  TirafondoVista(e.VistaX + p.secondo, p.uncini);
  if (p.conTerzo) TirafondoVista(e.VistaX + p.terzo, p.uncini);
  PiastraVista(p.lato);
  CambiaColore(0);
  e.VistaX = 0;
  p.colonna();
  CambiaColore(2);
  const double tre[] = {p.primo, p.terzo, p.secondo}, due[] = {p.primo, p.secondo};
  PlintoVista(p.lato, p.conTerzo ? tre : due, p.conTerzo ? 3 : 2);
  CambiaColore(1);
  disegno.TipoLinCorr = ASSE;
  SezioneC(p.lato);
  SezioneVerticale(p);
  edizione.testo(SenzaSpaziDoppi(nodo.Sezione.Nome), p.xNome, p.xNome, 2 * nodo.TfFi, e.HColDis);
  disegno.TipoLinCorr = CONTINUA;
  if (suite.ParNodo[15] == 1) QuoteProspetto(p);
}

static double AscissaQuoteBB() { return esecutivo.XQuoteDx = disegno.XMax + edizione.LargTesti + 3 * suite.ParNodo[7]; }

static double AscissaQuoteAA() { return disegno.XMin - disegno.OffX - edizione.LargTesti - 3 * suite.ParNodo[7]; }

void VistaBB() {
  Esecutivo& e = esecutivo;
  const Sezione& s = nodo.Sezione;
  DisegnaProspetto({
    .nervature = NervatureBB,
    .colonna = ColonnaBB,
    .lato = nodo.LatoZ,
    .primo = nodo.TfZ[1],
    .secondo = nodo.TfZ[2],
    .terzo = nodo.TfZ[nodo.OptionNTir == 1 ? 8 : 6],
    .conTerzo = TerzoTirafondoZ(),
    .uncini = true,
    .sezione = nodo.TfZ[2],
    .lettera = "A",
    .verso = 1,
    .xNome = (-s.B / 2 - s.A / 2) / 2 + edizione.AltTesti / 2,
    .quoteVerticali = [](double x) { QuoteQuotePiastra(x, 2); },
    .quoteFori = QuoteForiZ,
    .quoteNervature = QuoteNervZ,
    .quoteTirafondi = QuoteTirafondiZ,
    .ascissaQuote = AscissaQuoteBB,
    .passoQuote = 5 * suite.ParNodo[7],
  });
  e.BoxBXMax = disegno.XMax, e.BoxBYMax = disegno.YMax, e.BoxBXMin = disegno.XMin, e.BoxBYMin = disegno.YMin;
}

void VistaAA() {  // seen across the hooks: rods are straight
  Esecutivo& e = esecutivo;
  DisegnaProspetto({
    .nervature = NervatureAA,
    .colonna = ColonnaAA,
    .lato = nodo.LatoY,
    .primo = nodo.TfY[2],
    .secondo = nodo.TfY[4],
    .terzo = nodo.TfY[6],
    .conTerzo = TerzoTirafondoY(),
    .uncini = false,
    .sezione = nodo.TfY[2],
    .lettera = "B",
    .verso = -1,
    .xNome = edizione.AltTesti / 2,
    .quoteVerticali = [](double x) { QuoteQuotePiastra(x, 1); },
    .quoteFori = QuoteForiY,
    .quoteNervature = QuoteNervY,
    .quoteTirafondi = QuoteTirafondiY,
    .ascissaQuote = AscissaQuoteAA,
    .passoQuote = -5 * suite.ParNodo[7],
  });
  e.BoxAXMax = disegno.XMax, e.BoxAYMax = disegno.YMax, e.BoxAXMin = disegno.XMin, e.BoxAYMin = disegno.YMin;
}

// ---- plan --------------------------------------------------------------------------------------------------------------------

static void SaldatureInterne() {
  const double x = nodo.Sezione.B / 2, y = nodo.Sezione.H / 2 - nodo.Sezione.E;
  if (nodo.SaldInt == 1)
    for (const int s : {-1, 1}) DisSaldatura(nullptr, s * x, -y, s * x, y, s, 2, 19);
  for (const int s : {-1, 1}) Linea(s * x, -y, s * x, y);
}

static void SezioniPianta() {
  const double P9 = edizione.AltTesti, P10 = edizione.LargTesti, M = nodo.TfHMalta;
  const double yB = -nodo.LatoY / 2 + nodo.TfY[2], x1 = -Sporgenza * (nodo.LatoZ / 2 + 2 * M);
  Linea(x1, yB, -x1, yB);
  DisLineaRel(nullptr, x1, yB, 0, -1.5 * P9);
  DisLineaRel(nullptr, -x1, yB, 0, -1.5 * P9);
  edizione.testo("B", x1 - 1.5 * P10, x1, yB - 1.5 * P9, yB - 1.5 * P9);
  edizione.testo("B", -x1 + 0.5 * P10, -x1 + 1.5 * P10, yB - 1.5 * P9, yB - 1.5 * P9);
  const double xA = -nodo.LatoZ / 2 + nodo.TfZ[2], y1 = Sporgenza * (-nodo.LatoY / 2 - 2 * M), y2 = Sporgenza * (nodo.LatoY / 2 + 2 * M);
  Linea(xA, y1, xA, y2);
  DisLineaRel(nullptr, xA, y1, 1.5 * P10, 0);
  DisLineaRel(nullptr, xA, y2, 1.5 * P10, 0);
  edizione.testo("A", xA, xA + 1.5 * P10, y1 - 1.5 * P9, y1 - 1.5 * P9);
  edizione.testo("A", xA, xA + 1.5 * P10, y2 + 0.5 * P9, y2 + 0.5 * P9);
}

// Horizontally, left of the web.
static void NomeSezionePianta() {
  const Sezione& s = nodo.Sezione;
  const std::string nome = SenzaSpaziDoppi(s.Nome);
  const double x2 = -s.A / 2 - nodo.Gola - edizione.LargTesti, y = (s.H / 2 - s.E - nodo.Gola) / 2 - edizione.AltTesti / 2;
  edizione.testo(nome, x2 - static_cast<double>(NumCaratteri(nome)) * edizione.LargTesti, x2, y, y);
}

static void QuotePianta() {
  const double P7 = suite.ParNodo[7], P9 = edizione.AltTesti, x = esecutivo.XQuoteDx;
  QuoteSezV(x);
  QuoteLatoV(x + 5 * P7);
  QuoteMaltaV(x + 10 * P7);
  if (nodo.TipoNodo == 2) QuoteNervPianta(disegno.XMin - 2 * edizione.LargTesti - 3 * P7);
  const double y = disegno.YMin - disegno.OffY - 2 * P9 - 3 * P7;
  QuoteSezO(y);
  QuoteLatoO(y - 5 * P7);
  QuoteMaltaO(y - 10 * P7);
}

void VistaCC() {
  Esecutivo& e = esecutivo;
  const double M = nodo.TfHMalta, LZ = nodo.LatoZ, LY = nodo.LatoY;
  AzzeraEstensioni();
  disegno.TipoLinCorr = CONTINUA;
  e.VistaX = e.VistaY = 0;
  CambiaColore(0);
  if (nodo.TipoNodo == 2) NervaturePianta();
  quote.EtichetteSald = false;
  Rettangolo(LZ, LY);  // plate, grout bed, its slope
  Rettangolo(2 * M + LZ, 2 * M + LY);
  Rettangolo(4 * M + LZ, 4 * M + LY);
  for (const int sy : {-1, 1})
    for (const int sx : {-1, 1}) Linea(sx * (LZ / 2 + M), sy * (LY / 2 + M), sx * (LZ / 2 + 2 * M), sy * (LY / 2 + 2 * M));
  PianoTirafondi(nullptr, e.VistaX, e.VistaY);
  quote.EtichetteSald = true;
  PiantaSezione(nullptr, nodo.Sezione, 0, 0, ColoreOpz(2), Segni::ConSaldature);
  CambiaColore(0);
  if (nodo.TipoNodo == 2) SaldatureInterne();
  quote.EtichetteSald = false;
  disegno.TipoLinCorr = ASSE;
  CambiaColore(1);
  SezioniPianta();
  if (nodo.TipoNodo == 1) NomeSezionePianta();
  disegno.TipoLinCorr = CONTINUA;
  if (suite.ParNodo[15] == 1) QuotePianta();
  e.BoxCXMax = disegno.XMax, e.BoxCYMax = disegno.YMax, e.BoxCXMin = disegno.XMin, e.BoxCYMin = disegno.YMin;
}
