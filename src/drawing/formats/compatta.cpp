// drawing/formats/compatta.cpp - the clean-up of the store before a DIS file. The look-ups of the primitives see the newest
// coordinates only; here the whole tables are compared, through grids, with the result of comparing each item with each other.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <unordered_map>
#include <vector>

#include "drawing/disegno.h"
#include "drawing/formats/scrittori.h"
#include "model/node_model.h"

// ---- pass 1: hidden and axis lines under lines -------------------------------------------------------------------------------

namespace {
struct Segmento {
  double x1, y1, x2, y2, lunghezza;
  double alone;  // a point farther than this from the segment does not lie on it
};
}  // namespace

static double Distanza(double x1, double y1, double x2, double y2) { return std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2)); }

static Segmento SegmentoDi(int i) {
  const Disegno& d = disegno;
  Segmento s{d.CoordX[d.LinIni[i]], d.CoordY[d.LinIni[i]], d.CoordX[d.LinFin[i]], d.CoordY[d.LinFin[i]], 0, 0};
  s.lunghezza = Distanza(s.x1, s.y1, s.x2, s.y2);
  // The points of the test below fill an ellipse; twice the tolerance keeps roundings out of it.
  const double somma = s.lunghezza + 2 * TOLL_GEO;
  s.alone = std::sqrt(somma * somma - s.lunghezza * s.lunghezza) / 2 + TOLL_GEO;
  return s;
}

// The way over the point is not longer than the segment.
static bool SulSegmento(const Segmento& s, double x, double y) {
  return Distanza(x, y, s.x1, s.y1) + Distanza(x, y, s.x2, s.y2) - s.lunghezza < TOLL_GEO;
}

namespace {
struct Griglia {  // lines by the cells that their surroundings touch
  double x0 = 0, y0 = 0, passo = 1;
  int nx = 1, ny = 1;
  std::vector<int> inizio, righe;  // cell c holds righe[inizio[c] .. inizio[c + 1])
};
}  // namespace

static int Cella(double v, double v0, double passo, int n) {
  const double c = std::floor((v - v0) / passo);
  return c > 0 ? (c < n - 1 ? static_cast<int>(c) : n - 1) : 0;
}

// Runs over the cells within the halo of a segment, column by column.
template <class F>
static void PerCella(const Griglia& g, const Segmento& s, F f) {
  const double sinistra = std::min(s.x1, s.x2), destra = std::max(s.x1, s.x2), a = s.alone;
  const double pendenza = destra > sinistra ? (s.y2 - s.y1) / (s.x2 - s.x1) : 0;
  const int c1 = Cella(sinistra - a, g.x0, g.passo, g.nx), c2 = Cella(destra + a, g.x0, g.passo, g.nx);
  for (int c = c1; c <= c2; ++c) {
    double ya = s.y1, yb = s.y2;
    if (c1 != c2 && destra > sinistra) {  // the stretch of the segment whose halo reaches this column
      const double xa = std::clamp(g.x0 + c * g.passo - a, sinistra, destra),
                   xb = std::clamp(g.x0 + (c + 1) * g.passo + a, sinistra, destra);
      ya = s.y1 + (xa - s.x1) * pendenza;
      yb = s.y1 + (xb - s.x1) * pendenza;
    }
    const int r1 = Cella(std::min(ya, yb) - a, g.y0, g.passo, g.ny), r2 = Cella(std::max(ya, yb) + a, g.y0, g.passo, g.ny);
    for (int r = r1; r <= r2; ++r) f(r * g.nx + c);
  }
}

static Griglia FaiGriglia(const std::vector<Segmento>& s, int numRicerche) {
  Griglia g;
  double x1 = s[0].x1, y1 = s[0].y1;
  g.x0 = x1, g.y0 = y1;
  for (const Segmento& t : s) {
    g.x0 = std::min({g.x0, t.x1, t.x2}), x1 = std::max({x1, t.x1, t.x2});
    g.y0 = std::min({g.y0, t.y1, t.y2}), y1 = std::max({y1, t.y1, t.y2});
  }
  // As many cells as look-ups: then filling the grid and searching it cost the same.
  const double lato = std::max({x1 - g.x0, y1 - g.y0, TOLL_GEO});
  const double n = std::clamp(std::sqrt(static_cast<double>(numRicerche)), 4.0, 256.0);
  g.passo = lato / n;
  g.nx = static_cast<int>(std::clamp((x1 - g.x0) / g.passo, 0.0, n)) + 1;
  g.ny = static_cast<int>(std::clamp((y1 - g.y0) / g.passo, 0.0, n)) + 1;
  g.inizio.assign(static_cast<std::size_t>(g.nx * g.ny + 1), 0);
  for (const Segmento& t : s) PerCella(g, t, [&](int c) { ++g.inizio[static_cast<std::size_t>(c + 1)]; });
  for (std::size_t c = 1; c < g.inizio.size(); ++c) g.inizio[c] += g.inizio[c - 1];
  g.righe.resize(static_cast<std::size_t>(g.inizio.back()));
  std::vector<int> posto(g.inizio.begin(), g.inizio.end() - 1);
  for (std::size_t i = 0; i < s.size(); ++i)
    PerCella(g, s[i], [&](int c) { g.righe[static_cast<std::size_t>(posto[static_cast<std::size_t>(c)]++)] = static_cast<int>(i); });
  return g;
}

static bool Coperta(const Griglia& g, const std::vector<Segmento>& s, const std::vector<char>& via, std::size_t i) {
  const Segmento& q = s[i];
  const std::size_t c = static_cast<std::size_t>(Cella(q.y1, g.y0, g.passo, g.ny) * g.nx + Cella(q.x1, g.x0, g.passo, g.nx));
  for (int k = g.inizio[c]; k < g.inizio[c + 1]; ++k) {
    const std::size_t j = static_cast<std::size_t>(g.righe[static_cast<std::size_t>(k)]);
    if (j != i && !via[j] && SulSegmento(s[j], q.x1, q.y1) && SulSegmento(s[j], q.x2, q.y2)) return true;
  }
  return false;
}

static void TogliLineeCoperte() {
  Disegno& d = disegno;
  const auto ricerca = [&](int i) { return d.LinTipo[i] >= 1 && d.LinCol[i] > 0; };
  int numRicerche = 0;
  for (int i = 0; i < d.NumLinee; ++i) numRicerche += ricerca(i);
  std::vector<Segmento> s;
  Griglia g;
  if (numRicerche > 0) {
    s.reserve(static_cast<std::size_t>(d.NumLinee));
    for (int i = 0; i < d.NumLinee; ++i) s.push_back(SegmentoDi(i));
    g = FaiGriglia(s, numRicerche);
  }
  // In the order of the lines: a line that went covers nothing any more.
  std::vector<char> via(static_cast<std::size_t>(d.NumLinee), 0);
  int n = 0;
  for (int i = 0; i < d.NumLinee; ++i) {
    const std::size_t k = static_cast<std::size_t>(i);
    via[k] = d.LinCol[i] < 0 || d.LinTipo[i] < 0 || (ricerca(i) && Coperta(g, s, via, k));
    if (via[k]) continue;
    d.LinIni[n] = d.LinIni[i];
    d.LinFin[n] = d.LinFin[i];
    d.LinCol[n] = d.LinCol[i];
    d.LinTipo[n] = d.LinTipo[i];
    ++n;
  }
  d.NumLinee = n;
}

// ---- passes 2 and 3: double arcs, empty texts --------------------------------------------------------------------------------

static void TogliArchiDoppi() {
  Disegno& d = disegno;
  const auto chiave = [&](int i) {
    return std::array<std::int32_t, 6>{d.ArcCen[i], d.ArcIni[i], d.ArcCen2[i], d.ArcFin[i], d.ArcCol[i], d.ArcTipo[i]};
  };
  std::vector<int> ordine(static_cast<std::size_t>(d.NumArchi));
  for (std::size_t i = 0; i < ordine.size(); ++i) ordine[i] = static_cast<int>(i);
  std::stable_sort(ordine.begin(), ordine.end(), [&](int a, int b) { return chiave(a) < chiave(b); });
  std::vector<char> via(ordine.size(), 0);
  for (std::size_t k = 1; k < ordine.size(); ++k) via[static_cast<std::size_t>(ordine[k])] = chiave(ordine[k]) == chiave(ordine[k - 1]);
  int n = 0;
  for (int i = 0; i < d.NumArchi; ++i) {
    if (via[static_cast<std::size_t>(i)]) continue;
    d.ArcCen[n] = d.ArcCen[i];
    d.ArcIni[n] = d.ArcIni[i];
    d.ArcCen2[n] = d.ArcCen2[i];
    d.ArcFin[n] = d.ArcFin[i];
    d.ArcCol[n] = d.ArcCol[i];
    d.ArcTipo[n] = d.ArcTipo[i];
    ++n;
  }
  d.NumArchi = n;
}

static void TogliTestiVuoti() {
  Disegno& d = disegno;
  int n = 0;
  for (int i = 0; i < d.NumTesti; ++i) {
    if (d.TesLarg[i] < TOLL_GEO || d.TesAlt[i] < TOLL_GEO) continue;
    d.TesPos[n] = d.TesPos[i];
    d.TesAng[n] = d.TesAng[i];
    d.TesLarg[n] = d.TesLarg[i];
    d.TesAlt[n] = d.TesAlt[i];
    d.TesCol[n] = d.TesCol[i];
    d.TesAllin[n] = d.TesAllin[i];
    if (n != i) d.TesStr[static_cast<std::size_t>(n)] = d.TesStr[static_cast<std::size_t>(i)];
    ++n;
  }
  d.NumTesti = n;
}

// ---- pass 4: merging of coordinates ------------------------------------------------------------------------------------------

constexpr double PASSO_UNIONE = 0.01;  // mm; cells much larger than the tolerance, so that a point mostly looks into one

namespace {
struct Casella {
  double cx, cy;
  bool operator==(const Casella&) const = default;
};
struct HashCasella {
  std::size_t operator()(const Casella& c) const {
    std::uint64_t a = 0, b = 0;
    std::memcpy(&a, &c.cx, sizeof a);
    std::memcpy(&b, &c.cy, sizeof b);
    return static_cast<std::size_t>((a * 0x9E3779B97F4A7C15ull) ^ (b * 0xC2B2AE3D27D4EB4Full >> 7));
  }
};
}  // namespace

// For each coordinate the smallest index within the tolerance of it, itself if there is none. No chaining: the measure is
// always taken to the coordinate itself.
static std::vector<int> PrimeVicine() {
  const Disegno& d = disegno;
  std::vector<int> prima(static_cast<std::size_t>(d.NumCoord));
  std::vector<int> successiva(static_cast<std::size_t>(d.NumCoord), -1);  // next coordinate of the same cell, ascending
  std::unordered_map<Casella, std::pair<int, int>, HashCasella> celle;    // first and last coordinate of the cell
  celle.reserve(static_cast<std::size_t>(d.NumCoord));
  for (int k = 0; k < d.NumCoord; ++k) {
    const double x = d.CoordX[k], y = d.CoordY[k];
    const double cx[] = {std::floor((x - TOLL_GEO) / PASSO_UNIONE) + 0.0, std::floor((x + TOLL_GEO) / PASSO_UNIONE) + 0.0};
    const double cy[] = {std::floor((y - TOLL_GEO) / PASSO_UNIONE) + 0.0, std::floor((y + TOLL_GEO) / PASSO_UNIONE) + 0.0};
    int migliore = k;
    for (int a = 0; a < (cx[0] == cx[1] ? 1 : 2); ++a)
      for (int b = 0; b < (cy[0] == cy[1] ? 1 : 2); ++b) {
        const auto cella = celle.find({cx[a], cy[b]});
        if (cella == celle.end()) continue;
        for (int i = cella->second.first; i >= 0 && i < migliore; i = successiva[static_cast<std::size_t>(i)])
          if (std::abs(x - d.CoordX[i]) < TOLL_GEO && std::abs(y - d.CoordY[i]) < TOLL_GEO) migliore = i;
      }
    prima[static_cast<std::size_t>(k)] = migliore;
    // An exact repetition can never be the smallest index for anybody.
    if (migliore != k && d.CoordX[migliore] == x && d.CoordY[migliore] == y) continue;
    const auto [cella, nuova] = celle.try_emplace({std::floor(x / PASSO_UNIONE) + 0.0, std::floor(y / PASSO_UNIONE) + 0.0}, k, k);
    if (nuova) continue;
    successiva[static_cast<std::size_t>(cella->second.second)] = k;
    cella->second.second = k;
  }
  return prima;
}

static void UnisciCoordinate() {
  Disegno& d = disegno;
  const std::vector<int> prima = PrimeVicine();
  const auto porta = [&](std::int32_t* riferimento, int n) {
    for (int i = 0; i < n; ++i) riferimento[i] = prima[static_cast<std::size_t>(riferimento[i])];
  };
  porta(d.LinIni, d.NumLinee);
  porta(d.LinFin, d.NumLinee);
  porta(d.ArcCen, d.NumArchi);
  porta(d.ArcIni, d.NumArchi);
  porta(d.ArcCen2, d.NumArchi);
  porta(d.TesPos, d.NumTesti);  // the ends of arcs and the circles keep their own: a coordinate more, no effect on the drawing
}

// ---- pass 5: unused coordinates ----------------------------------------------------------------------------------------------

static void TogliCoordinateInutili() {
  Disegno& d = disegno;
  // clang-format off
  struct {
    std::int32_t* riferimento;
    int n;
  } tabelle[] = {{d.LinIni, d.NumLinee}, {d.LinFin, d.NumLinee},  {d.ArcCen, d.NumArchi}, {d.ArcIni, d.NumArchi},
                 {d.ArcCen2, d.NumArchi}, {d.ArcFin, d.NumArchi}, {d.TesPos, d.NumTesti}, {d.CerCen, d.NumCerchi}};
  // clang-format on
  std::vector<int> nuova(static_cast<std::size_t>(d.NumCoord), -1);
  for (const auto& t : tabelle)
    for (int i = 0; i < t.n; ++i) nuova[static_cast<std::size_t>(t.riferimento[i])] = 0;
  int n = 0;
  for (int k = 0; k < d.NumCoord; ++k) {
    if (nuova[static_cast<std::size_t>(k)] < 0) continue;
    d.CoordX[n] = d.CoordX[k];
    d.CoordY[n] = d.CoordY[k];
    nuova[static_cast<std::size_t>(k)] = n++;
  }
  for (const auto& t : tabelle)
    for (int i = 0; i < t.n; ++i) t.riferimento[i] = nuova[static_cast<std::size_t>(t.riferimento[i])];
  d.NumCoord = n;
}

void CompattaDisegno() {
  TogliLineeCoperte();
  TogliArchiDoppi();
  TogliTestiVuoti();
  UnisciCoordinate();
  TogliCoordinateInutili();
}
