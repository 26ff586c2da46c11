// results/immagine.cpp - bands cut by planes, not by a raster; where each thing stands on the page.
#include "results/immagine.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <span>
#include <string>

#include "core/testo.h"
#include "engine/Saldature.h"
#include "engine/fatti.h"
#include "results/governanti.h"
#include "results/json.h"

// ---- bands ----

constexpr double PRESSIONE_NULLA = 1e-12;    // of the highest one
constexpr double PRESSIONE_UNIFORME = 1e-9;  // relative spread of the pressure up to which it is one band

static double Pressione(const Lavoro& l, int s, PuntoPiano p) { return std::max(0.0, -PressioneNelPunto(l, s, p)); }

namespace {
struct Contorno {  // the compressed part, with the pressure at its vertices
  int n = 0;
  std::array<PuntoScena, 8> v;
  std::array<double, 8> p;
};
}  // namespace

static Contorno ContornoCompresso(const Lavoro& l, int s) {
  const PoligonoCompresso c = ParteCompressa(l, s);
  Contorno k;
  k.n = c.n;
  for (int j = 0; j < c.n; ++j) {
    k.v[static_cast<std::size_t>(j)] = {c.v[j].z, c.v[j].y};
    k.p[static_cast<std::size_t>(j)] = Pressione(l, s, c.v[j]);
  }
  return k;
}

// Where a level cuts the edge from a to b. The same numbers for both bands that meet there: always from the lower end.
static PuntoScena Incrocio(PuntoScena a, PuntoScena b, double pa, double pb, double livello) {
  if (pb < pa) std::swap(a, b), std::swap(pa, pb);
  const double t = (livello - pa) / (pb - pa);
  return {a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
}

static std::vector<PuntoScena> Fascia(const Contorno& c, double da, double a) {
  std::vector<PuntoScena> punti;
  const auto metti = [&](PuntoScena q) {
    if (punti.empty() || punti.back().x != q.x || punti.back().y != q.y) punti.push_back(q);
  };
  for (std::size_t j = 0; j < static_cast<std::size_t>(c.n); ++j) {
    const std::size_t k = (j + 1) % static_cast<std::size_t>(c.n);
    const double pj = c.p[j], pk = c.p[k];
    if (da <= pj && pj <= a) metti(c.v[j]);
    const auto taglia = [&](double livello) {
      if ((pj < livello && livello < pk) || (pk < livello && livello < pj)) metti(Incrocio(c.v[j], c.v[k], pj, pk, livello));
    };
    taglia(pj < pk ? da : a);
    taglia(pj < pk ? a : da);
  }
  if (punti.size() > 1 && punti.front().x == punti.back().x && punti.front().y == punti.back().y) punti.pop_back();
  return punti;
}

std::vector<Isobara> Isobare(const Lavoro& l, int s) {
  std::vector<Isobara> fasce;
  Contorno c = ContornoCompresso(l, s);
  if (c.n < 3) return fasce;
  const auto fine = c.p.begin() + c.n;
  for (double& p : c.p)  // where the axis cuts, rounding leaves a trace of pressure
    if (p < PRESSIONE_NULLA * *std::max_element(c.p.begin(), fine)) p = 0;
  const double massima = *std::max_element(c.p.begin(), fine), minima = *std::min_element(c.p.begin(), fine);
  if (!(massima > 0)) return fasce;
  const bool uniforme = massima - minima <= PRESSIONE_UNIFORME * massima;
  const int quante = uniforme ? 1 : FASCE_ISOBARE;
  const auto livello = [&](int k) { return k == quante ? massima : minima + (massima - minima) * k / quante; };
  for (int k = 0; k < quante; ++k) {
    Isobara f = {livello(k), livello(k + 1), Fascia(c, livello(k), livello(k + 1))};
    if (f.punti.size() >= 3) fasce.push_back(std::move(f));
  }
  return fasce;
}

// ---- colours: told apart by the common kinds of colour blindness; every state also has a width, a dash or a sign ----

constexpr const char* SCALA_PRESSIONI[FASCE_ISOBARE] = {"#fdf6d8", "#f3eab6", "#e3dfa0", "#cdd596", "#b1ca93", "#92bd96",
                                                        "#72ae9b", "#559d9f", "#408a9f", "#347599", "#2f5f8e", "#2c487d"};
namespace {
struct ColoreStato {
  double fino;
  const char* colore;
  double spessore;
};
}  // namespace

constexpr ColoreStato STATI[] = {{0.5, "#0072b2", 1.5}, {0.8, "#56b4e9", 2.5}, {1, "#e69f00", 3.5}, {HUGE_VAL, "#d55e00", 5}};
constexpr const char *INCHIOSTRO = "#222222", *GRIGIO = "#777777", *ACCIAIO = "#99a3ad", *BIANCO = "#ffffff";

static const ColoreStato& Stato(double sfruttamento, bool passa) {
  if (!passa) return STATI[std::size(STATI) - 1];
  for (const ColoreStato& c : STATI)
    if (!(sfruttamento > c.fino)) return c;
  return STATI[2];
}

// ---- texts ----

static std::string Cifre(double v) {
  std::string t;
  json::AggiungiNumero(t, v);
  return t;
}

static std::string Decimali(double v, int n) {
  char a[64];
  std::snprintf(a, sizeof a, "%.*f", n, v == 0 ? 0.0 : v);
  std::string t = a;
  if (t.find_first_not_of("-0.") == std::string::npos && t.front() == '-') t.erase(0, 1);  // no minus before a zero
  std::ranges::replace(t, '.', ',');
  return t;
}

static Elemento Scritta(double x, double y, std::string testo, double altezza = 12, Ancora ancora = Ancora::Inizio) {
  Elemento e;
  e.forma = Forma::Testo;
  e.punti = {{x, y}};
  e.testo = std::move(testo);
  e.altezza = altezza;
  e.ancora = ancora;
  e.riempi = INCHIOSTRO;
  return e;
}

static Elemento Tratto(PuntoScena a, PuntoScena b, const char* colore, double spessore) {
  Elemento e;
  e.punti = {a, b};
  e.tratto = colore;
  e.spessore = spessore;
  return e;
}

static Elemento Area(std::vector<PuntoScena> punti, std::string riempi, std::string tratto, double spessore) {
  Elemento e;
  e.forma = Forma::Poligono;
  e.punti = std::move(punti);
  e.riempi = std::move(riempi);
  e.tratto = std::move(tratto);
  e.spessore = spessore;
  return e;
}

static std::vector<PuntoScena> Rettangolo(double x1, double y1, double x2, double y2) { return {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}; }

// ---- what a rod or a weld carries ----

namespace {
struct Carico {
  bool c_e = false, passa = true;
  double sfruttamento = 0;
};
}  // namespace

static Carico CaricoDi(const Lavoro& l, int s, Elementi tipo, int e) {
  Carico c;
  const std::span<const Criterio> criteri = Criteri(l.TipoVer);
  for (const RigaControllo& r : RigheSestetto(l, s)) {
    if (criteri[r.criterio].elementi != tipo || r.elemento != e) continue;
    const double u = InUscita(r, l.TipoVer).sfruttamento;
    c.sfruttamento = c.c_e ? std::fmax(c.sfruttamento, u) : u;
    c.passa = c.passa && r.passa;
    c.c_e = true;
  }
  return c;
}

int SestettoGovernante(const Lavoro& l) {
  const Governanti g = TrovaGovernanti(l);
  if (g.nodo != NESSUNA_RIGA) return l.righe[g.nodo].sestetto;
  return l.nodo->NumSoll > 0 ? 1 : 0;
}

// ---- plan ----

static void AggiungiIsobare(Gruppo& g, const std::vector<Isobara>& fasce) {
  for (std::size_t k = 0; k < fasce.size(); ++k) {
    const std::size_t tinta = fasce.size() == 1 ? FASCE_ISOBARE - 1 : k * FASCE_ISOBARE / fasce.size();
    Elemento e = Area(fasce[k].punti, SCALA_PRESSIONI[tinta], "", 0);
    e.classe = "isobara";
    e.dati = {{"pmin", Cifre(fasce[k].pmin)}, {"pmax", Cifre(fasce[k].pmax)}};
    g.elementi.push_back(std::move(e));
  }
}

static std::vector<PuntoScena> SagomaColonna(const Sezione& s) {
  const double b = s.B / 2, h = s.H / 2, a = s.A / 2, e = s.E;
  return {{-b, -h}, {b, -h}, {b, -h + e}, {a, -h + e}, {a, h - e},   {b, h - e},
          {b, h},   {-b, h}, {-b, h - e}, {-a, h - e}, {-a, -h + e}, {-b, -h + e}};
}

static void AggiungiAcciaio(Gruppo& g, const Nodo& n) {
  g.elementi.push_back(Area(SagomaColonna(n.Sezione), "", INCHIOSTRO, 1.5));
  if (n.TipoNodo != 2) return;
  const double b = n.Sezione.B / 2, h = n.Sezione.H / 2, t = n.SpNerv, z = n.LatoZ / 2, y = n.LatoY / 2;
  for (const int c : {-1, 1}) {
    g.elementi.push_back(Area(Rettangolo(c * b, -y, c * (b + t), y), "", ACCIAIO, 1));
    for (const int k : {-1, 1}) g.elementi.push_back(Area(Rettangolo(c * (b + t), k * (h - t), c * z, k * h), "", ACCIAIO, 1));
  }
}

static std::vector<PuntoScena> SagomaSaldatura(const Saldatura& d, double gola) {
  const double dx = d.PZ[3] - d.PZ[1], dy = d.PY[3] - d.PY[1], L = std::sqrt(dx * dx + dy * dy);
  const double nx = L > 0 ? -dy / L * gola / 2 : 0, ny = L > 0 ? dx / L * gola / 2 : 0;
  return {
    {d.PZ[1] + nx, -(d.PY[1] + ny)}, {d.PZ[3] + nx, -(d.PY[3] + ny)}, {d.PZ[3] - nx, -(d.PY[3] - ny)}, {d.PZ[1] - nx, -(d.PY[1] - ny)}};
}

static Elemento ElementoSaldatura(const Saldatura& d, const Carico& c, std::vector<PuntoScena> punti) {
  const ColoreStato& stato = Stato(c.sfruttamento, c.passa);
  Elemento e = Area(std::move(punti), stato.colore, INCHIOSTRO, c.passa ? 0.6 : 2.5);
  e.classe = "saldatura";
  e.dati = {{"nome", d.Nome}, {"sfruttamento", c.c_e ? Cifre(c.sfruttamento) : ""}};
  if (c.c_e && !std::isfinite(c.sfruttamento)) e.dati[1].second.clear();
  return e;
}

static bool Costruita(const Saldatura& d) { return d.Lung > TOLL_GEO; }

static int UltimaSuPiastra(const Lavoro& l) { return l.nodo->TipoNodo == 2 ? SALD_PIASTRA : SALD_COLONNA; }

static bool SiVede(const Lavoro& l, int w) { return Costruita(l.ris.Saldature[w]) && SaldaturaElencata(*l.nodo, w); }

static void AggiungiSaldature(Gruppo& g, const Lavoro& l, int s) {
  for (int w = 1; w <= UltimaSuPiastra(l); ++w)
    if (SiVede(l, w)) {
      const Saldatura& d = l.ris.Saldature[w];
      g.elementi.push_back(ElementoSaldatura(d, CaricoDi(l, s, Elementi::Saldature, w), SagomaSaldatura(d, l.nodo->GolaCalc)));
    }
}

static void AggiungiTirafondi(Gruppo& g, const Lavoro& l, int s) {
  const Nodo& n = *l.nodo;
  for (int i = 1; i <= n.NTir; ++i) {
    const double x = n.TfZ[i] - n.LatoZ / 2, y = n.TfY[i] - n.LatoY / 2, forza = l.verifica.AreaTf * l.ris.SigmaTir[s][i] * KN_DI_DAN;
    const Carico c = CaricoDi(l, s, Elementi::Tirafondi, i);
    Elemento e;
    e.forma = Forma::Cerchio;
    e.punti = {{x, y}};
    e.raggio = n.TfFi / 2;
    e.riempi = forza > 0 ? BIANCO : GRIGIO;  // a pulled rod is hollow
    e.tratto = Stato(c.sfruttamento, c.passa).colore;
    e.spessore = c.passa ? 2 : 4;
    e.classe = "tirafondo";
    e.dati = {{"numero", std::to_string(i)}, {"forza", Cifre(forza)}, {"passa", c.passa ? "true" : "false"}};
    g.elementi.push_back(std::move(e));
  }
}

static void AggiungiRisultante(Gruppo& g, const FattiSestetto& f, double scala) {
  if (!f.conRisultante) return;
  Gruppo r;
  r.id = "risultante";
  r.x = f.risultante.z;
  r.y = f.risultante.y;
  r.dati = {{"n", Cifre(f.risultante_kN)}};
  const double d = 9 / scala;
  r.elementi.push_back(Tratto({-d, -d}, {d, d}, INCHIOSTRO, 2.5));
  r.elementi.push_back(Tratto({-d, d}, {d, -d}, INCHIOSTRO, 2.5));
  g.gruppi.push_back(std::move(r));
}

static void AggiungiAsse(Gruppo& g, const FattiSestetto& f) {
  if (!f.conAsse) return;
  Elemento e = Tratto({f.asse_neutro[0].z, f.asse_neutro[0].y}, {f.asse_neutro[1].z, f.asse_neutro[1].y}, INCHIOSTRO, 1.5);
  e.id = "asse-neutro";
  e.tratteggiata = true;
  g.elementi.push_back(std::move(e));
}

// ---- the page: plan at the left, scale and welds up the ribs at the right, headline above ----

constexpr double LARGHEZZA = 1080, ALTEZZA = 780, BORDO = 24, ALTO = 124;
constexpr double PIANTA_X = 90, PIANTA_LARGA = 600, PIANTA_ALTA = 560;
constexpr double LATO_X = 790;

static Gruppo Pianta(const Lavoro& l, int s, const FattiSestetto& f) {
  const Nodo& n = *l.nodo;
  Gruppo g;
  g.id = "pianta";
  g.scala = std::fmin(PIANTA_LARGA / n.LatoZ, PIANTA_ALTA / n.LatoY);
  g.x = PIANTA_X + PIANTA_LARGA / 2;
  g.y = ALTO + PIANTA_ALTA / 2;
  g.elementi.push_back(Area(Rettangolo(-n.LatoZ / 2, -n.LatoY / 2, n.LatoZ / 2, n.LatoY / 2), BIANCO, INCHIOSTRO, 1.5));
  AggiungiIsobare(g, Isobare(l, s));
  AggiungiAcciaio(g, n);
  AggiungiSaldature(g, l, s);
  AggiungiTirafondi(g, l, s);
  AggiungiAsse(g, f);
  AggiungiRisultante(g, f, g.scala);
  return g;
}

namespace {
// Labels keep apart: a rod's stands outward of it, away from the plate's centre, and moves on while it would cover another.
struct Casella {
  double x1, y1, x2, y2;
};
}  // namespace

static bool Copre(const Casella& a, const Casella& b) { return a.x1 < b.x2 && b.x1 < a.x2 && a.y1 < b.y2 && b.y1 < a.y2; }

static Casella CasellaTesto(double x, double y, const std::string& t, double altezza) {
  const double mezza = 0.32 * altezza * static_cast<double>(NumCaratteri(t));
  return {x - mezza, y - altezza, x + mezza, y + 0.25 * altezza};
}

static void Etichette(Gruppo& foglio, const Gruppo& pianta, const Lavoro& l, int s) {
  const Nodo& n = *l.nodo;
  std::vector<Casella> poste;
  for (int i = 1; i <= n.NTir; ++i) {
    const double x = pianta.x + pianta.scala * (n.TfZ[i] - n.LatoZ / 2), y = pianta.y + pianta.scala * (n.TfY[i] - n.LatoY / 2);
    const std::string t = std::to_string(i) + ": " + Decimali(l.verifica.AreaTf * l.ris.SigmaTir[s][i] * KN_DI_DAN, 1);
    const double verso = y <= pianta.y ? -1 : 1, r = pianta.scala * n.TfFi / 2;
    double yt = y + (verso < 0 ? -r - 6 : r + 16);
    while (std::ranges::any_of(poste, [&](const Casella& c) { return Copre(c, CasellaTesto(x, yt, t, 13)); })) yt += verso * 15;
    poste.push_back(CasellaTesto(x, yt, t, 13));
    const Casella& c = poste.back();
    foglio.elementi.push_back(Area(Rettangolo(c.x1 - 2, c.y1 + 1, c.x2 + 2, c.y2 + 1), BIANCO, GRIGIO, 0.5));
    Elemento e = Scritta(x, yt, t, 13, Ancora::Mezzo);
    e.grassetto = !CaricoDi(l, s, Elementi::Tirafondi, i).passa;
    foglio.elementi.push_back(std::move(e));
  }
}

static void Assi(Gruppo& foglio, const Gruppo& pianta, const Nodo& n) {
  const double x = pianta.x - pianta.scala * n.LatoZ / 2 - 40, y = pianta.y - pianta.scala * n.LatoY / 2 - 34;
  foglio.elementi.push_back(Tratto({x, y}, {x + 46, y}, INCHIOSTRO, 1.5));
  foglio.elementi.push_back(Tratto({x, y}, {x, y + 46}, INCHIOSTRO, 1.5));
  foglio.elementi.push_back(Area({{x + 54, y}, {x + 44, y - 4}, {x + 44, y + 4}}, INCHIOSTRO, "", 0));
  foglio.elementi.push_back(Area({{x, y + 54}, {x - 4, y + 44}, {x + 4, y + 44}}, INCHIOSTRO, "", 0));
  foglio.elementi.push_back(Scritta(x + 58, y + 4, "Z"));
  foglio.elementi.push_back(Scritta(x, y + 68, "Y", 12, Ancora::Mezzo));
}

static void ScalaPressioni(Gruppo& foglio, const Lavoro& l, int s) {
  const std::vector<Isobara> fasce = Isobare(l, s);
  foglio.elementi.push_back(Scritta(LATO_X, ALTO, "Pressione sul calcestruzzo [N/mm2]", 12));
  if (fasce.empty()) {
    foglio.elementi.push_back(Scritta(LATO_X, ALTO + 22, "nessuna: la piastra è tutta sollevata", 12));
    return;
  }
  constexpr double ALTA = 168, LARGA = 26;
  const double passo = ALTA / static_cast<double>(fasce.size());
  for (std::size_t k = 0; k < fasce.size(); ++k) {
    const double y = ALTO + 12 + ALTA - passo * static_cast<double>(k + 1);
    const std::size_t tinta = fasce.size() == 1 ? FASCE_ISOBARE - 1 : k * FASCE_ISOBARE / fasce.size();
    foglio.elementi.push_back(Area(Rettangolo(LATO_X, y, LATO_X + LARGA, y + passo), SCALA_PRESSIONI[tinta], GRIGIO, 0.5));
    if (k % 3 == 0) foglio.elementi.push_back(Scritta(LATO_X + LARGA + 8, y + passo + 4, Decimali(fasce[k].pmin, 2), 11));
  }
  foglio.elementi.push_back(Scritta(LATO_X + LARGA + 8, ALTO + 16, Decimali(fasce.back().pmax, 2), 11));
  const RigaControllo& cls = RigheCriterio(l, s, l.TipoVer == MetodoTA ? int{TA_CLS} : int{SLU_CLS})[0];
  const RigaUscita u = InUscita(cls, l.TipoVer);
  foglio.elementi.push_back(Scritta(LATO_X + 90, ALTO + 60, "limite " + Decimali(u.limite, 2), 12));
  foglio.elementi.push_back(Scritta(LATO_X + 90, ALTO + 78, std::isnan(u.rapporto) ? "" : "rapporto " + Decimali(u.rapporto, 2), 12));
}

// The welds up the ribs: height upward, those that stand at one place side by side.
static Gruppo Elevazione(const Lavoro& l, int s, Gruppo& foglio) {
  const Nodo& n = *l.nodo;
  Gruppo g;
  g.id = "elevazione";
  constexpr double LARGA = 250, ALTA = 150;
  double massimo = 1;
  std::vector<int> quali;
  for (int w = SALD_PIASTRA + 1; w <= l.NumSaldature; ++w)
    if (SiVede(l, w)) {
      quali.push_back(w);
      massimo = std::fmax(massimo, std::fabs(l.ris.Saldature[w].PZ[2]));
    }
  if (quali.empty()) return g;
  std::ranges::stable_sort(quali, {}, [&](int w) { return l.ris.Saldature[w].PZ[2]; });
  const double passo = LARGA / static_cast<double>(quali.size()), scala = ALTA / n.HNerv;
  g.x = LATO_X;
  g.y = ALTO + 480;
  for (std::size_t k = 0; k < quali.size(); ++k) {
    const Saldatura& d = l.ris.Saldature[quali[k]];
    const Carico c = CaricoDi(l, s, Elementi::Saldature, quali[k]);
    const double x = passo * static_cast<double>(k), y1 = -scala * d.PY[1], y2 = -scala * d.PY[3];
    g.elementi.push_back(ElementoSaldatura(d, c, Rettangolo(x + 0.25 * passo, std::fmin(y1, y2), x + 0.75 * passo, std::fmax(y1, y2))));
    Elemento nome = Scritta(g.x + x + passo / 2, g.y + 12 + (k % 2 == 0 ? 0 : 12), d.Nome, 9, Ancora::Mezzo);
    nome.grassetto = !c.passa;
    foglio.elementi.push_back(std::move(nome));
  }
  foglio.elementi.push_back(Scritta(LATO_X, g.y - ALTA - 12, "Saldature nervature - colonna", 12));
  return g;
}

static std::string DoveRiga(const Criterio& c, int elemento) {
  if (elemento == 0) return "";
  return (c.elementi == Elementi::Saldature ? " S" : " tirafondo ") + std::to_string(elemento);
}

static void Testata(Gruppo& foglio, const Lavoro& l, int s) {
  const Nodo& n = *l.nodo;
  Elemento titolo = Scritta(BORDO, 34,
                            std::string(l.passa[s] ? "VERIFICATO" : "NON VERIFICATO") + " - sestetto " + std::to_string(s) + " " +
                              PrimiCaratteri(n.SollNome[s], 60),
                            18);
  titolo.grassetto = true;
  foglio.elementi.push_back(std::move(titolo));
  const Governanti g = TrovaGovernanti(l);
  for (const std::size_t k : g.perSestetto) {
    const RigaControllo& r = l.righe[k];
    if (r.sestetto != s) continue;
    const RigaUscita u = InUscita(r, l.TipoVer);
    const std::string unita = u.criterio->grandezza == Grandezza::Rapporto ? "" : " " + std::string(UnitaRiga(u.criterio->grandezza));
    foglio.elementi.push_back(Scritta(BORDO, 56,
                                      "Governa: " + std::string(u.criterio->nome) + DoveRiga(*u.criterio, u.elemento) + ", domanda " +
                                        Decimali(u.domanda, 2) + unita + ", limite " + Decimali(u.limite, 2) + unita,
                                      13));
  }
  const std::string carichi = "N " + Decimali(n.SollN[s] * KN_DI_DAN, 1) + "  Ty " + Decimali(n.SollTy[s] * KN_DI_DAN, 1) + "  Tz " +
                              Decimali(n.SollTz[s] * KN_DI_DAN, 1) + " kN;  Mt " + Decimali(n.SollMt[s] * KNM_DI_DANCM, 1) + "  My " +
                              Decimali(n.SollMy[s] * KNM_DI_DANCM, 1) + "  Mz " + Decimali(n.SollMz[s] * KNM_DI_DANCM, 1) + " kN m";
  foglio.elementi.push_back(Scritta(BORDO, ALTEZZA - 16, carichi + "   (N positivo se di trazione; forze dei tirafondi in kN)", 12));
}

static void Legenda(Gruppo& foglio) {
  constexpr const char* TESTI[] = {"fino a 0,5", "fino a 0,8", "fino a 1", "oltre il limite"};
  const double y = ALTO + 212;
  foglio.elementi.push_back(Scritta(LATO_X, y, "Saldature e tirafondi: sfruttamento", 12));
  for (std::size_t k = 0; k < std::size(STATI); ++k) {
    const double x = LATO_X + (k % 2 == 0 ? 0 : 130), yk = y + 18 + (k < 2 ? 0 : 18);
    foglio.elementi.push_back(Tratto({x, yk}, {x + 26, yk}, STATI[k].colore, STATI[k].spessore));
    foglio.elementi.push_back(Scritta(x + 32, yk + 4, TESTI[k], 11));
  }
}

Scena ImmagineSestetto(const Lavoro& l, int s) {
  const FattiSestetto f = Fatti(l, s);
  Scena scena;
  scena.larghezza = LARGHEZZA;
  scena.altezza = ALTEZZA;
  scena.titolo = l.nodo->NomeNodo + ", sestetto " + std::to_string(s);
  Gruppo& foglio = scena.foglio;
  foglio.elementi.push_back(Area(Rettangolo(0, 0, LARGHEZZA, ALTEZZA), BIANCO, "", 0));
  Testata(foglio, l, s);
  Gruppo pianta = Pianta(l, s, f);
  Assi(foglio, pianta, *l.nodo);
  Etichette(foglio, pianta, l, s);
  ScalaPressioni(foglio, l, s);
  Legenda(foglio);
  Gruppo elevazione = Elevazione(l, s, foglio);
  std::vector<Elemento> scritte = std::move(foglio.elementi);
  Elemento sfondo = std::move(scritte.front());
  scritte.erase(scritte.begin());
  foglio.elementi = {std::move(sfondo)};
  Gruppo sopra;  // labels over the plan
  sopra.elementi = std::move(scritte);
  foglio.gruppi.push_back(std::move(pianta));
  foglio.gruppi.push_back(std::move(elevazione));
  foglio.gruppi.push_back(std::move(sopra));
  return scena;
}
