// drawing/tirafondi_dis.cpp - an anchor rod in a view, and the enlarged detail of one rod.
// Heights   yb the foundation's level, yt the rod's top; the detail stands with the rod's middle at height 0.
#include <string>

#include "drawing/Quote.h"
#include "drawing/disegno.h"
#include "drawing/edizione.h"
#include "drawing/pezzi.h"
#include "drawing/tavola.h"
#include "model/stato.h"
#include "model/suite.h"

static void Linea(double x1, double y1, double x2, double y2) { DisLinea(nullptr, x1, y1, x2, y2); }
static void LineaRel(double x, double y, double dx, double dy) { DisLineaRel(nullptr, x, y, dx, dy); }
static void CambiaColore(int opzione) { disegno.ColCorr = ColoreOpz(opzione); }

// The two sides of a rod around x.
static void Fianchi(double x, double fi, double y1, double y2) {
  Linea(x - fi / 2, y1, x - fi / 2, y2);
  Linea(x + fi / 2, y1, x + fi / 2, y2);
}

void Dado(double x, double y, int tipo) {
  const double Fi = nodo.TfFi;
  const std::int16_t colore = ColoreOpz(0);
  DisLineaRel(nullptr, x - Fi, tipo == 2 ? y - Fi : y, 2 * Fi, 0, colore);
  for (const double d : {-Fi, Fi, -Fi / 2, Fi / 2}) DisLineaRel(nullptr, x + d, y, 0, -Fi, colore);
}

static double LivelloFondazione(double y0) { return y0 - nodo.SpessPiastra - nodo.TfHMalta; }

// Above the plate, and the nuts: two on it, one under it.
static void ParteAlta(double x, double y0) {
  const double Fi = nodo.TfFi, yt = LivelloFondazione(y0) + nodo.TfLFt;
  Fianchi(x, Fi, yt, y0 + 2 * Fi);
  LineaRel(x - Fi / 2, yt, Fi, 0);
  Dado(x, y0 + Fi, 1);
  Dado(x, y0 + 2 * Fi, 1);
  Dado(x, y0 - nodo.SpessPiastra, 2);
}

// The hook bends to the left: two half circles about (x + fi/2 - r, yc), then the leg rising by l1, closed by its cap.
static void Uncino(double x, double yc, double fi, double r, double l1) {
  const double cx = x + fi / 2 - r, gamba = x + fi / 2 - 2 * r;
  DisArco(nullptr, cx, yc, 2 * r, {}, PI_PROG, 2 * PI_PROG);
  DisArco(nullptr, cx, yc, 2 * (r - fi), {}, PI_PROG, 2 * PI_PROG);
  LineaRel(gamba, yc, 0, l1);
  LineaRel(gamba + fi, yc, 0, l1);
  LineaRel(gamba, yc + l1, fi, 0);
}

void TirafondoUncinato(double x, double y0) {
  const double Fi = nodo.TfFi, yb = LivelloFondazione(y0), yc = yb - nodo.TfL + nodo.TfR;
  ParteAlta(x, y0);
  Fianchi(x, Fi, y0 - nodo.SpessPiastra - Fi, yc);
  Uncino(x, yc, Fi, nodo.TfR, nodo.TfL1);
  LineaRel(x + Fi / 2, yb + nodo.TfLFt - nodo.TfLFil, -Fi, 0);  // end of the thread
}

// The rod below ya, broken at its square plate seen edge-on, with the plate's welds; yb the foundation's level, k the enlargement.
static void FustoConPiastra(double x, double ya, double yb, double k) {
  const double Fi = nodo.TfFi, R = nodo.TfR, LF = nodo.TfLF, yp = yb - nodo.TfL1;  // yp: the plate's lower face
  const double X = x * k, fi = Fi * k;
  Fianchi(X, fi, ya * k, (yp + 2 * LF) * k);
  Fianchi(X, fi, (yp - LF) * k, (yb - nodo.TfL) * k);
  LineaRel(X - R * k / 2, yp * k, 0, LF * k);
  LineaRel(X + R * k / 2, yp * k, 0, LF * k);
  LineaRel(X - R * k / 2, yp * k, R * k, 0);
  LineaRel(X - R * k / 2, (yp + LF) * k, R * k, 0);
  const std::int16_t colore = ColoreOpz(20);
  DisLineaRel(nullptr, X - fi / 2, (yp - LF) * k, fi, 0, colore);
  DisLineaRel(nullptr, X - fi / 2, (yp + 2 * LF) * k, fi, 0, colore);
  const double q = PI_PROG / 2;  // a quarter
  DisArco(nullptr, X - fi / 2, (yp + LF) * k, 2 * LF * k, colore, q, 2 * q);
  DisArco(nullptr, X + fi / 2, (yp + LF) * k, 2 * LF * k, colore, 0, q);
  DisArco(nullptr, X - fi / 2, yp * k, 2 * LF * k, colore, 2 * q, 3 * q);
  DisArco(nullptr, X + fi / 2, yp * k, 2 * LF * k, colore, -q, 0);
}

void TirafondoDiritto(double x, double y0) {
  const double Fi = nodo.TfFi, yb = LivelloFondazione(y0), sotto = y0 - nodo.SpessPiastra - Fi, fondo = yb - nodo.TfL;
  ParteAlta(x, y0);
  if (nodo.TipoTirafondo == 0) {
    FustoConPiastra(x, sotto, yb, 1);
    return;
  }
  Fianchi(x, Fi, sotto, fondo);
  LineaRel(x - Fi / 2, fondo, Fi, 0);
  LineaRel(x + Fi / 2, yb + nodo.TfLFt - nodo.TfLFil, -Fi, 0);
}

// ---- detail ------------------------------------------------------------------------------------------------------------------

// yt the top; a tenth of the diameter is chamfered, and as deep is the thread.
static void TestaFilettata(double yt, double fi, double filetto) {
  const double c = 0.1 * fi;
  CambiaColore(20);
  LineaRel(-fi / 2, yt - c, fi, 0);
  LineaRel(-(fi / 2 - c), yt, 0, -filetto);
  LineaRel(fi / 2 - c, yt, 0, -filetto);
  CambiaColore(0);
  LineaRel(-(fi / 2 - c), yt, fi - 2 * c, 0);
  LineaRel(-(fi / 2 - c), yt, -c, -c);
  LineaRel(fi / 2 - c, yt, c, -c);
}

static void QuoteUncinato() {
  const double P7 = suite.ParNodo[7], x = disegno.XMax - disegno.OffX + edizione.LargTesti + 3 * P7;
  QuoteTfDxA(x);
  QuoteTfDxB(x + 5 * P7);
  QuoteTfSx(disegno.XMin - disegno.OffX - edizione.LargTesti - 3 * P7);
  QuoteTfSu(disegno.YMax - disegno.OffY + edizione.AltTesti + 3 * P7);
}

static void DettaglioUncinato(double yc) {
  const double k = suite.ParNodo[19], fi = k * nodo.TfFi, r = k * nodo.TfR;
  const double yb = yc - k * nodo.SpessPiastra - k * nodo.TfHMalta, yt = yb + k * nodo.TfLFt, yCentro = yb - k * nodo.TfL + r;
  TestaFilettata(yt, fi, k * nodo.TfLFil);
  Fianchi(0, fi, yt - 0.1 * fi, yCentro);
  Uncino(0, yCentro, fi, r, k * nodo.TfL1);
  LineaRel(fi / 2, yt - k * nodo.TfLFil, -fi, 0);
  CambiaColore(1);
  disegno.TipoLinCorr = 3;
  const double xCentro = fi / 2 - r, asse = Sporgenza * r;
  Linea(xCentro - asse, yCentro, xCentro + asse, yCentro);
  Linea(xCentro, yCentro - asse, xCentro, yCentro + asse);
  disegno.TipoLinCorr = 0;
  if (suite.ParNodo[15] == 1) QuoteUncinato();
}

void TirafondoPiastraDettaglio(double x, double y0, double k) {
  const double Fi = nodo.TfFi, c = 0.1 * Fi;
  CambiaColore(20);
  LineaRel((x - Fi / 2) * k, (y0 - c) * k, Fi * k, 0);
  LineaRel((x - (Fi / 2 - c)) * k, y0 * k, 0, -nodo.TfDForo * k);
  LineaRel((x + (Fi / 2 - c)) * k, y0 * k, 0, -nodo.TfDForo * k);
  CambiaColore(0);
  LineaRel((x - Fi / 2) * k, y0 * k, Fi * k, 0);
  LineaRel((x - Fi / 2) * k, (y0 - nodo.TfDForo) * k, Fi * k, 0);
  FustoConPiastra(x, y0, y0 - nodo.TfLFt, k);
}

// Four dimensions whatever the options say of chains, and the plate's label.
static void DettaglioPiastra(double yc) {
  const double k = suite.ParNodo[19], P7 = suite.ParNodo[7], Fi = nodo.TfFi, R = nodo.TfR, L = nodo.TfL, LFt = nodo.TfLFt;
  const double Yb = yc - LFt - 6 * P7;  // lengths of the sheet and of the model together: no effect but the place
  TirafondoPiastraDettaglio(0, Yb, k);
  const auto verticale = [&](double x, double fino) { edizione.quota(x * k, x * k, Yb * k, fino * k, true); };
  edizione.quota(-0.5 * Fi * k, 0.5 * Fi * k, (Yb + P7) * k, (Yb + P7) * k, true);
  verticale(-0.5 * Fi - 0.5 * R - P7, Yb - nodo.TfDForo);
  verticale(-0.5 * Fi - 0.5 * R - 4 * P7, Yb - nodo.TfL1 - LFt);
  verticale(0.5 * Fi + 0.5 * R + P7, Yb - LFt - L);
  const std::string lato = NumeroDis(R);
  edizione.etichetta("piatto " + lato + "x" + lato + "x" + NumeroDis(nodo.TfLF), -0.5 * Fi * k, 0.5 * Fi * k, (-LFt + Yb - L - 2 * P7) * k);
}

void DettaglioTirafondo() {
  const double k = suite.ParNodo[19], L = k * nodo.TfL, LFt = k * nodo.TfLFt;
  const double yc = -(L + LFt) / 2 + L + k * nodo.TfHMalta + k * nodo.SpessPiastra;
  AzzeraEstensioni();
  if (nodo.TipoTirafondo == 1) DettaglioUncinato(yc);
  else DettaglioPiastra(yc);
}
