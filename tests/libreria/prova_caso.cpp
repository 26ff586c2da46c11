// prova_caso [CALLS [SEED]] - random calls (20000, seed 1) with handles good, given back, of another kind or none, with hostile numbers,
// names and texts, on files cut and changed: each answers with a code that exists and a text, what is told with QB07_OK is finite, and at
// the end a joint that nobody touched has the bytes that it had. Crashes and leaks are the sanitizers' matter.
#include <cmath>
#include <fstream>
#include <iterator>
#include <limits>
#include <random>

#include "comune.h"

static int errori = 0;
static void Sbaglia(const char* cosa) {
  if (errori++ < 20) std::fprintf(stderr, "FALLITO: %s: %s\n", cosa, qb07_ultimo_errore());
}

struct Caso {
  std::mt19937 rng;
  std::vector<qb07_suite*> suite = {};
  std::vector<qb07_nodo*> nodi = {};
  std::vector<qb07_esito*> esiti = {};
  std::vector<const void*> andate = {};  // handles given back
  std::vector<std::string> file = {};
  int riuscite = 0;
};

static unsigned Dado(Caso& c, unsigned n) { return static_cast<unsigned>(c.rng()) % n; }

// Nine in ten of the kind asked for.
template <class M>
static M* Prendi(Caso& c, const std::vector<M*>& buone) {
  static int indirizzo = 0;
  const unsigned d = Dado(c, 40);
  if (d == 0) return nullptr;
  if (d == 1) return reinterpret_cast<M*>(&indirizzo);
  if (d == 2 && !c.andate.empty())
    return reinterpret_cast<M*>(const_cast<void*>(c.andate[Dado(c, static_cast<unsigned>(c.andate.size()))]));
  if (d == 3 && !c.nodi.empty()) return reinterpret_cast<M*>(c.nodi[0]);
  if (d == 4 && !c.esiti.empty()) return reinterpret_cast<M*>(c.esiti[0]);
  return buone.empty() ? nullptr : buone[Dado(c, static_cast<unsigned>(buone.size()))];
}

static double Numero(Caso& c) {
  constexpr double LIMITI[] = {0,
                               -0.0,
                               1,
                               -1,
                               4,
                               8,
                               9,
                               1e-300,
                               1e300,
                               -1e300,
                               1e18,
                               0.5,
                               40,
                               40.0001,
                               32768,
                               2001,
                               std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::denorm_min()};
  if (Dado(c, 3) == 0) return LIMITI[Dado(c, std::size(LIMITI))];
  return std::uniform_real_distribution<double>(-50, 900)(c.rng);
}

static size_t Indice(Caso& c) {
  constexpr size_t LIMITI[] = {0, 1, 2, 7, 8, 11, 200, 201, std::numeric_limits<size_t>::max()};
  return Dado(c, 2) == 0 ? LIMITI[Dado(c, std::size(LIMITI))] : Dado(c, 100);
}

static const char* Nome(Caso& c) {
  static const char* const NOMI[] = {"LatoZ",
                                     "LatoY",
                                     "SpessPiastra",
                                     "TipoNodo",
                                     "HNerv",
                                     "SpNerv",
                                     "SaldInt",
                                     "Gola",
                                     "GolaCalc",
                                     "NTir",
                                     "TfZ(1)",
                                     "TfZ(8)",
                                     "TfZ(9)",
                                     "TfZ(0)",
                                     "TfY(2)",
                                     "TipoTirafondo",
                                     "TfDiamIdx",
                                     "TfFi",
                                     "TfLFt",
                                     "TfL",
                                     "TfR",
                                     "TfL1",
                                     "TfLF",
                                     "TfDForo",
                                     "TfHMalta",
                                     "TfLFil",
                                     "Sezione.H",
                                     "Sezione.B",
                                     "Sezione.A",
                                     "Sezione.E",
                                     "Sezione.R",
                                     "Sezione.Nome",
                                     "MatAcc.SAmm",
                                     "MatAcc.Fyk",
                                     "MatAcc.Nome",
                                     "MatAcc.GammaM",
                                     "MatTir.Ftk",
                                     "MatTir.GammaM",
                                     "MatTir.Nome",
                                     "MatCls.Rck",
                                     "MatCls.GammaC",
                                     "MatCls.Nome",
                                     "EcCls",
                                     "NumNodiStr",
                                     "NodiStr(2000)",
                                     "OptionNTir",
                                     "Esposizione",
                                     "NomeNodo",
                                     "",
                                     "(",
                                     "TfZ(",
                                     "TfZ(1).x",
                                     "SollN(1)",
                                     "DirRoot",
                                     "\xFF",
                                     "TfZ(1,1)",
                                     "MatVit.Nome",
                                     "Sezione"};
  return NOMI[Dado(c, std::size(NOMI))];
}

static const char* Testo(Caso& c) {
  static const std::string LUNGO(300, 'x');
  static const char* const TESTI[] = {"",  "S 275", "S235",    "Fe 360", "C25/30", "HE 200 B", "8.8",    "a,b",        "\x80",
                                      "è", "\n",    "Sezione", "MatAcc", "MatTir", "MatCls",   "MatVit", LUNGO.c_str()};
  return TESTI[Dado(c, std::size(TESTI))];
}

// ---- calls ----

static int Apri(Caso& c) {
  qb07_suite* s = nullptr;
  const std::string riga = Dado(c, 3) == 0 ? Testo(c) : RigaComando();
  const int e = qb07_apri(riga.c_str(), ".,;"[Dado(c, 3)], static_cast<int>(Dado(c, 3)), &s);
  if (e == QB07_OK) c.suite.push_back(s);
  return e;
}

static int Carica(Caso& c) {
  qb07_nodo* n = nullptr;
  const std::string& f = c.file[Dado(c, static_cast<unsigned>(c.file.size()))];
  const int e = qb07_carica(Prendi(c, c.suite), f.c_str(), &n);
  if (e == QB07_OK) c.nodi.push_back(n);
  return e;
}

static int Nuovo(Caso& c) {
  qb07_nodo* n = nullptr;
  const int e = Dado(c, 2) ? qb07_nodo_nuovo(Prendi(c, c.suite), &n) : qb07_nodo_copia(Prendi(c, c.nodi), &n);
  if (e == QB07_OK) c.nodi.push_back(n);
  return e;
}

// The first of each kind stays, so that there always is one.
template <class M>
static int Libera(Caso& c, std::vector<M*>& v, int (*libera)(M*)) {
  M* const m = Prendi(c, v);
  if (m == nullptr || (!v.empty() && m == v[0]) || (!c.nodi.empty() && static_cast<void*>(m) == c.nodi[0]) ||
      (!c.esiti.empty() && static_cast<void*>(m) == c.esiti[0]))
    return QB07_OK;
  const int e = libera(m);
  if (e == QB07_OK) {
    std::erase(v, m);
    c.andate.push_back(m);
  }
  return e;
}

static int Metti(Caso& c) { return qb07_nodo_metti_numero(Prendi(c, c.nodi), Nome(c), Numero(c)); }
static int MettiTesto(Caso& c) { return qb07_nodo_metti_testo(Prendi(c, c.nodi), Nome(c), Testo(c)); }

static int Leggi(Caso& c) {
  double v = 0;
  const int e = qb07_nodo_numero(Prendi(c, c.nodi), Nome(c), &v);
  if (e == QB07_OK && !std::isfinite(v)) Sbaglia("un valore non finito");
  return e;
}

static int LeggiTesto(Caso& c) {
  char t[32];
  size_t serve = 0;
  return qb07_nodo_testo(Prendi(c, c.nodi), Nome(c), t, Dado(c, sizeof t + 1), &serve);
}

static int Regole(Caso& c) {
  qb07_nodo* const n = Prendi(c, c.nodi);
  switch (Dado(c, 4)) {
    case 0: return qb07_nodo_regole(n, Dado(c, 40));
    case 1: return qb07_nodo_distanze(n, Numero(c), Numero(c), Numero(c), Numero(c));
    case 2: return qb07_nodo_da_tabella(n, Testo(c), Testo(c));
    default: return qb07_nodo_metti_metodo(n, static_cast<int>(Dado(c, 4)) - 1);
  }
}

static int Sestetti(Caso& c) {
  std::vector<qb07_sestetto> s(Dado(c, 12) == 0 ? Dado(c, 450) : Dado(c, 4));
  const bool cattivi = Dado(c, 4) == 0;
  const auto v = [&] { return cattivi ? Numero(c) : std::uniform_real_distribution<double>(-300, 300)(c.rng); };
  for (qb07_sestetto& k : s)
    k = {cattivi ? Testo(c) : nullptr, static_cast<int>(1 + Dado(c, cattivi ? 3 : 2)), v(), v(), v(), v(), v(), v()};
  return qb07_nodo_metti_sestetti(Prendi(c, c.nodi), s.empty() ? nullptr : s.data(), s.size());
}

static int Verifica(Caso& c) {
  qb07_esito* e = nullptr;
  const int r = qb07_verifica(Prendi(c, c.nodi), static_cast<int>(Dado(c, 4)) - 1, Dado(c, 5), &e);
  if (r == QB07_OK) c.esiti.push_back(e);
  return r;
}

static void Finita(const qb07_riga& r) {
  if (!std::isfinite(r.domanda) || !std::isfinite(r.limite) || !std::isfinite(r.rapporto) || !std::isfinite(r.sfruttamento))
    Sbaglia("una riga non finita");
}

static int LeggiEsito(Caso& c) {
  const qb07_esito* const e = Prendi(c, c.esiti);
  qb07_riga r = {}, righe[4] = {};
  qb07_fatti f = {};
  qb07_geometria g = {};
  const char *a = "", *b = "";
  int v = 0, k = QB07_OK;
  switch (Dado(c, 9)) {
    case 0: k = qb07_esito_riga(e, Indice(c), &r); break;
    case 1: k = qb07_esito_righe(e, Indice(c), Dado(c, 5), righe); break;
    case 2: k = qb07_esito_governante(e, &r); break;
    case 3: k = qb07_esito_governante_sestetto(e, Indice(c), &r); break;
    case 4: k = qb07_esito_governante_controllo(e, static_cast<int>(Dado(c, 12)) - 1, &r); break;
    case 5: k = qb07_esito_fatti(e, Indice(c), &f); break;
    case 6: k = qb07_esito_geometria(e, Indice(c), &g); break;
    case 7: k = qb07_esito_avviso(e, Indice(c), &a, &b); break;
    default: k = qb07_esito_passa(e, Indice(c), &v); break;
  }
  Finita(r);
  for (const qb07_riga& q : righe) Finita(q);
  if (!std::isfinite(g.domanda) || !std::isfinite(g.limite)) Sbaglia("una riga di geometria non finita");
  return k;
}

static int LeggiSestetto(Caso& c) {
  qb07_sestetto s = {};
  char t[8];
  const qb07_nodo* const n = Prendi(c, c.nodi);
  return Dado(c, 2) ? qb07_nodo_sestetto(n, Indice(c), &s) : qb07_nodo_nome_sestetto(n, Indice(c), t, sizeof t, nullptr);
}

// Sample files whole, cut, with a byte changed; what is no file.
static void PreparaFile(Caso& c) {
  const std::string cartella = CartellaSuite() + "/caso";
  std::filesystem::create_directory(cartella);
  const std::vector<std::string> campioni = NodiCampione();
  c.file = campioni;
  c.file.insert(c.file.end(), {"", cartella, cartella + "/manca.qb7", "\x80", std::string(70000, 'a')});
  for (int k = 0; k < 60; ++k) {
    std::ifstream da(campioni[Dado(c, static_cast<unsigned>(campioni.size()))], std::ios::binary);
    std::string b((std::istreambuf_iterator<char>(da)), std::istreambuf_iterator<char>());
    if (k % 2) b.resize(Dado(c, static_cast<unsigned>(b.size())));
    for (unsigned m = 0; m < 1 + Dado(c, 4) && !b.empty(); ++m)
      b[Dado(c, static_cast<unsigned>(b.size()))] = "09-eE,.\r\n\"\xFF 1"[Dado(c, 13)];
    c.file.push_back(cartella + "/" + std::to_string(k) + ".qb7");
    std::ofstream(c.file.back(), std::ios::binary) << b;
  }
}

int main(int argc, char** argv) {
  const int quante = argc > 1 ? std::atoi(argv[1]) : 20000;
  Caso c = {.rng = std::mt19937(argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 1u)};
  PreparaFile(c);
  qb07_suite* suite = nullptr;
  qb07_nodo* fermo = nullptr;
  if (qb07_apri(RigaComando().c_str(), '.', 1, &suite) != QB07_OK || qb07_carica(suite, Campione("pilastro_B1").c_str(), &fermo) != QB07_OK)
    return Sbaglia("avvio"), 1;
  const std::string prima = ByteVerifica(fermo, QB07_METODO_SLU);
  c.suite.push_back(suite);
  int (*const CHIAMATE[])(Caso&) = {
    Carica,
    Nuovo,
    Nuovo,
    Metti,
    Metti,
    Metti,
    MettiTesto,
    Leggi,
    LeggiTesto,
    Regole,
    Regole,
    Sestetti,
    Sestetti,
    Verifica,
    Verifica,
    LeggiEsito,
    LeggiEsito,
    LeggiEsito,
    LeggiEsito,
    LeggiSestetto,
    [](Caso& k) { return Libera(k, k.nodi, qb07_nodo_libera); },
    [](Caso& k) { return Libera(k, k.esiti, qb07_esito_libera); },
    [](Caso& k) { return Libera(k, k.esiti, qb07_esito_libera); },
    [](Caso& k) { return Dado(k, 20) ? 0 : Libera(k, k.suite, qb07_suite_libera); },
    [](Caso& k) { return Dado(k, 40) ? 0 : Apri(k); },
  };
  for (int k = 0; k < quante; ++k) {
    const int e = CHIAMATE[Dado(c, std::size(CHIAMATE))](c);
    if (e < QB07_OK || e >= QB07_INTERNO) Sbaglia("un codice inatteso");
    if (e == QB07_OK) ++c.riuscite;
    while (c.nodi.size() > 40) qb07_nodo_libera(c.nodi.back()), c.nodi.pop_back();
    while (c.esiti.size() > 40) qb07_esito_libera(c.esiti.back()), c.esiti.pop_back();
  }
  if (ByteVerifica(fermo, QB07_METODO_SLU) != prima) Sbaglia("un nodo che nessuno ha toccato è cambiato");
  for (qb07_esito* e : c.esiti) qb07_esito_libera(e);
  for (qb07_nodo* n : c.nodi) qb07_nodo_libera(n);
  for (qb07_suite* s : c.suite) qb07_suite_libera(s);
  qb07_nodo_libera(fermo);
  std::printf("%d chiamate, %d riuscite, %d errori\n", quante, c.riuscite, errori);
  return errori == 0 && c.riuscite > quante / 4 ? 0 : 1;
}
