// app/libreria/nodo_libreria.cpp - a joint's values, rules and loads.
#include "app/libreria/nodo_libreria.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <mutex>

#include "core/fault.h"
#include "core/testo.h"
#include "model/regole_nodo.h"
#include "results/governanti.h"

double* ComponenteSoll(Nodo& n, int c, int s) {
  double* const liste[] = {n.SollN, n.SollTy, n.SollTz, n.SollMt, n.SollMy, n.SollMz};
  return liste[c] + s;
}

// ---- places within a joint ----

template <class T>
static T& In(Nodo& n, const PostoValore& p) {
  return *reinterpret_cast<T*>(reinterpret_cast<std::byte*>(&n) + p.scarto);
}
template <class T>
static const T& In(const Nodo& n, const PostoValore& p) {
  return *reinterpret_cast<const T*>(reinterpret_cast<const std::byte*>(&n) + p.scarto);
}

static const Nodo& Proprio(const NodoLib& n) { return n.dati.variante[n.dati.metodo]; }

// Esposizione and the pattern are int, all others int16.
static bool Lungo(const PostoValore& p) { return p.radice == "Esposizione" || p.radice == "OptionNTir"; }

static int NumeroNel(const NodoLib& n, const PostoValore& p, double& v) {
  switch (p.genere) {
    case GenereValore::Reale: v = In<double>(Proprio(n), p); return QB07_OK;
    case GenereValore::Intero: v = Lungo(p) ? In<int>(Proprio(n), p) : In<std::int16_t>(Proprio(n), p); return QB07_OK;
    case GenereValore::Testo: break;
  }
  return Rifiuta(QB07_TIPO, p.radice);
}

static int MettiNumero(NodoLib& n, const PostoValore& p, double v) {
  if (p.genere == GenereValore::Testo) return Rifiuta(QB07_TIPO, p.radice);
  if (!std::isfinite(v)) return Rifiuta(QB07_NUMERO, p.radice);
  if (p.genere == GenereValore::Intero && (v != std::floor(v) || v < p.minimo || v > p.massimo)) return Rifiuta(QB07_NUMERO, p.radice);
  for (Nodo& m : n.dati.variante) {
    if (p.genere == GenereValore::Reale) In<double>(m, p) = v;
    else if (Lungo(p)) In<int>(m, p) = static_cast<int>(v);
    else In<std::int16_t>(m, p) = static_cast<std::int16_t>(v);
  }
  return QB07_OK;
}

// A grade set by the caller is no longer compared with the file's.
static std::string* GradoFile(GradiFile& g, std::string_view cosa) {
  if (cosa == "MatAcc") return &g.acciaio;
  if (cosa == "MatTir") return &g.tirafondi;
  return cosa == "MatCls" ? &g.calcestruzzo : nullptr;
}

static void DimenticaGrado(NodoLib& n, std::string_view cosa) {
  if (std::string* g = GradoFile(n.dati.gradi, cosa)) g->clear();
}

static int MettiTesto(NodoLib& n, const PostoValore& p, const char* nome, const char* testo) {
  if (p.genere != GenereValore::Testo) return Rifiuta(QB07_TIPO, nome);
  const bool sezione = std::string_view(nome) == "Sezione.Nome";
  if (sezione && NumCaratteri(testo) > LungNomeSez) return Rifiuta(QB07_TESTO, nome, "troppo lungo");
  const std::string t = sezione ? AllineaSinistra(testo, LungNomeSez) : std::string(testo);
  std::string copia = t;  // everything that may fail goes first
  In<std::string>(n.dati.variante[0], p).swap(copia);
  In<std::string>(n.dati.variante[1], p) = t;
  if (std::string_view(nome).ends_with(".Nome")) DimenticaGrado(n, p.radice);
  return QB07_OK;
}

// ---- records of the suite's tables: of equal names the last, as a load takes ----

template <class Record>
static const Record* InTabella(const Record* tabella, int conteggio, int massimo, std::string_view nome) {
  for (int k = std::min(conteggio, massimo); k >= 1; --k)
    if (Rifila(tabella[k].Nome) == Rifila(nome)) return &tabella[k];
  return nullptr;
}

template <class Record>
static int Prendi(NodoLib& n, Record Nodo::*campo, const Record* r, const char* nome) {
  if (r == nullptr) return Rifiuta(QB07_NOME, nome);
  for (Nodo& m : n.dati.variante) m.*campo = *r;
  return QB07_OK;
}

static int PrendiCls(NodoLib& n, const MatCls* r, const char* nome) {
  if (r == nullptr) return Rifiuta(QB07_NOME, nome);
  const double E = ModuloCls(r->Rck);
  if (!std::isfinite(E)) return Rifiuta(QB07_NUMERO, nome);
  for (Nodo& m : n.dati.variante) {
    m.MatCls = *r;
    m.EcCls = E;
  }
  return QB07_OK;
}

static int DaTabella(NodoLib& n, std::string_view cosa, const char* nome) {
  const Suite& s = n.tabelle->suite;
  const Materiali& m = n.tabelle->materiali;
  const auto acciaio = [&] { return InTabella(m.AcciaiBase, m.NumAcciai, MaxMateriali, nome); };
  if (cosa == "Sezione") return Prendi(n, &Nodo::Sezione, InTabella(s.ProfiliLib, s.NumProfili, MaxProfili, nome), nome);
  if (cosa == "MatAcc") return Prendi(n, &Nodo::MatAcc, acciaio(), nome);
  if (cosa == "MatPiastra") return Prendi(n, &Nodo::MatPiastra, acciaio(), nome);
  if (cosa == "MatTir") return Prendi(n, &Nodo::MatTir, acciaio(), nome);
  if (cosa == "MatCls") return PrendiCls(n, InTabella(m.ClsBase, m.NumCls, MaxMateriali, nome), nome);
  if (cosa == "MatVit") return Prendi(n, &Nodo::MatVit, InTabella(m.VitiBase, m.NumViti, MaxMateriali, nome), nome);
  return Rifiuta(QB07_NOME, cosa);
}

// ---- rules ----

static bool SonoFiniti(const Nodo& n) {
  for (int i = 1; i <= MaxTir; ++i)
    if (!std::isfinite(n.TfZ[i]) || !std::isfinite(n.TfY[i])) return false;
  const double valori[] = {n.TfFi, n.GolaCalc, n.EcCls, n.NervTaglio, n.NervZ, n.NervY};
  return std::ranges::all_of(valori, [](double v) { return std::isfinite(v); });
}

constexpr unsigned TUTTE_LE_REGOLE = QB07_REGOLA_DIAMETRO | QB07_REGOLA_TIRAFONDI | QB07_REGOLA_GOLA | QB07_REGOLA_CLS | QB07_REGOLA_SMUSSI;

static int Regole(Nodo& n, const Suite& s, unsigned quali) {
  if (quali & QB07_REGOLA_DIAMETRO) {
    if (n.TfDiamIdx < 1 || n.TfDiamIdx > MaxDiam + 1) return Rifiuta(QB07_INDICE, "TfDiamIdx");
    n.TfFi = s.DiamVal[n.TfDiamIdx - 1];
  }
  if (quali & QB07_REGOLA_TIRAFONDI) PosizioniExtra(n);
  if (quali & QB07_REGOLA_GOLA) n.GolaCalc = GolaDaLato(n.Gola);
  if (quali & QB07_REGOLA_CLS) n.EcCls = ModuloCls(n.MatCls.Rck);
  if (quali & QB07_REGOLA_SMUSSI) {
    const Smussi m = SmussiNervature(n);
    n.NervTaglio = m.Taglio;
    n.NervZ = m.Z;
    n.NervY = m.Y;
  }
  return SonoFiniti(n) ? static_cast<int>(QB07_OK) : Rifiuta(QB07_NUMERO, "la regola non dà un numero");
}

// On copies: a joint keeps all of its values where a rule fails.
template <class Regola>
static int PerEntrambe(NodoLib& n, Regola&& regola) {
  const auto nuove = std::make_unique<Nodo[]>(2);
  for (std::size_t m = 0; m < 2; ++m) {
    nuove[m] = n.dati.variante[m];
    if (const int e = regola(nuove[m]); e != QB07_OK) return e;
  }
  for (std::size_t m = 0; m < 2; ++m) std::swap(n.dati.variante[m], nuove[m]);
  return QB07_OK;
}

// ---- loads ----

static std::ptrdiff_t Cifre(double v) {
  char a[32];
  return std::to_chars(a, a + sizeof a, v).ptr - a;
}

// In the model's units: of the neighbours that read back as the value given, the one with the fewest digits, as a file would have it.
static double InModello(double v, double fattore) {
  const double d = v / fattore;
  double scelto = d;
  bool torna = false;
  for (const double c : {d, std::nextafter(d, 0), std::nextafter(d, std::copysign(HUGE_VAL, d))}) {
    if (c * fattore != v || (torna && Cifre(c) >= Cifre(scelto))) continue;
    scelto = c;
    torna = true;
  }
  return scelto;
}

constexpr double FATTORI[6] = {KN_DI_DAN, KN_DI_DAN, KN_DI_DAN, KNM_DI_DANCM, KNM_DI_DANCM, KNM_DI_DANCM};

static int LeggiSestetto(const qb07_sestetto& da, std::size_t n, SestettoLib& a) {
  const std::string quale = "sestetto " + std::to_string(n);
  if (da.classe != 1 && da.classe != 2) return Rifiuta(QB07_SCELTA, quale + ", classe");
  const double v[6] = {da.N, da.Ty, da.Tz, da.Mt, da.My, da.Mz};
  for (int c = 0; c < 6; ++c) {
    a.v[c] = InModello(v[c], FATTORI[c]);
    if (!std::isfinite(v[c]) || !std::isfinite(a.v[c])) return Rifiuta(QB07_NUMERO, quale);
  }
  a.classe = static_cast<std::int16_t>(da.classe - 1);
  if (da.nome == nullptr || da.nome[0] == '\0') {
    a.nome = "Soll " + std::to_string(n);
    return QB07_OK;
  }
  if (const int e = ControllaTesto(da.nome, (quale + ", nome").c_str(), true); e != QB07_OK) return e;
  a.nome = da.nome;
  return QB07_OK;
}

constexpr std::size_t MAX_SESTETTI = 2'000'000'000;  // numbers of sextets are int

template <class F>
static int Leggi(const qb07_nodo* nodo, F&& corpo) {
  return Proteggi([&]() -> int {
    const std::shared_ptr<NodoLib> n = Trova<NodoLib>(nodo);
    if (n == nullptr) return QB07_MANIGLIA;
    const std::shared_lock aperta(n->serratura);
    return corpo(static_cast<const NodoLib&>(*n));
  });
}
template <class F>
static int Scrivi(qb07_nodo* nodo, F&& corpo) {
  return Proteggi([&]() -> int {
    const std::shared_ptr<NodoLib> n = Trova<NodoLib>(nodo);
    if (n == nullptr) return QB07_MANIGLIA;
    const std::unique_lock chiusa(n->serratura);
    return corpo(*n);
  });
}

extern "C" {

int qb07_nodo_copia(const qb07_nodo* nodo, qb07_nodo** copia) {
  return Leggi(nodo, [&](const NodoLib& n) -> int {
    if (copia == nullptr) return Rifiuta(QB07_NULLO, "copia");
    const auto c = std::make_shared<NodoLib>();
    c->tabelle = n.tabelle;
    c->rispondiOk = n.rispondiOk;
    c->dati = n.dati;
    c->sestetti = n.sestetti;
    Consegna(copia, c);
    return QB07_OK;
  });
}

int qb07_nodo_libera(qb07_nodo* nodo) {
  return Proteggi([&] { return LiberaManiglia(GenereManiglia::Nodo, nodo); });
}

int qb07_nodo_metodo(const qb07_nodo* nodo, int* metodo) {
  return Leggi(nodo, [&](const NodoLib& n) -> int {
    if (metodo == nullptr) return Rifiuta(QB07_NULLO, "metodo");
    *metodo = n.dati.metodo;
    return QB07_OK;
  });
}

int qb07_nodo_metti_metodo(qb07_nodo* nodo, int metodo) {
  return Scrivi(nodo, [&](NodoLib& n) -> int {
    if (metodo != QB07_METODO_TA && metodo != QB07_METODO_SLU) return Rifiuta(QB07_SCELTA, "metodo");
    n.dati.metodo = metodo;
    return QB07_OK;
  });
}

int qb07_nodo_numero(const qb07_nodo* nodo, const char* nome, double* valore) {
  return Leggi(nodo, [&](const NodoLib& n) -> int {
    PostoValore p;
    if (const int e = TrovaValore(nome, p); e != QB07_OK) return e;
    if (valore == nullptr) return Rifiuta(QB07_NULLO, "valore");
    double v = 0;
    const int e = NumeroNel(n, p, v);
    if (e == QB07_OK) *valore = v;
    return e;
  });
}

int qb07_nodo_metti_numero(qb07_nodo* nodo, const char* nome, double valore) {
  return Scrivi(nodo, [&](NodoLib& n) -> int {
    PostoValore p;
    if (const int e = TrovaValore(nome, p); e != QB07_OK) return e;
    return MettiNumero(n, p, valore);
  });
}

int qb07_nodo_testo(const qb07_nodo* nodo, const char* nome, char* dove, size_t spazio, size_t* serve) {
  return Leggi(nodo, [&](const NodoLib& n) -> int {
    PostoValore p;
    if (const int e = TrovaValore(nome, p); e != QB07_OK) return e;
    if (p.genere != GenereValore::Testo) return Rifiuta(QB07_TIPO, nome);
    return Copia(In<std::string>(Proprio(n), p), dove, spazio, serve);
  });
}

int qb07_nodo_metti_testo(qb07_nodo* nodo, const char* nome, const char* testo) {
  return Scrivi(nodo, [&](NodoLib& n) -> int {
    PostoValore p;
    if (const int e = TrovaValore(nome, p); e != QB07_OK) return e;
    if (const int e = ControllaTesto(testo, "testo", true); e != QB07_OK) return e;
    return MettiTesto(n, p, nome, testo);
  });
}

int qb07_nodo_da_tabella(qb07_nodo* nodo, const char* cosa, const char* nome) {
  return Scrivi(nodo, [&](NodoLib& n) -> int {
    if (const int e = ControllaTesto(cosa, "cosa", false); e != QB07_OK) return e;
    if (const int e = ControllaTesto(nome, "nome", false); e != QB07_OK) return e;
    const int e = DaTabella(n, cosa, nome);
    if (e == QB07_OK) DimenticaGrado(n, cosa);
    return e;
  });
}

int qb07_nodo_grado_file(const qb07_nodo* nodo, const char* cosa, char* dove, size_t spazio, size_t* serve) {
  return Leggi(nodo, [&](const NodoLib& n) -> int {
    if (const int e = ControllaTesto(cosa, "cosa", false); e != QB07_OK) return e;
    GradiFile g = n.dati.gradi;
    const std::string* t = GradoFile(g, cosa);
    return t != nullptr ? Copia(*t, dove, spazio, serve) : Rifiuta(QB07_NOME, cosa);
  });
}

int qb07_nodo_regole(qb07_nodo* nodo, unsigned regole) {
  return Scrivi(nodo, [&](NodoLib& n) -> int {
    if ((regole & ~TUTTE_LE_REGOLE) != 0) return Rifiuta(QB07_SCELTA, "regole");
    return PerEntrambe(n, [&](Nodo& m) { return Regole(m, n.tabelle->suite, regole); });
  });
}

int qb07_nodo_distanze(qb07_nodo* nodo, double sinistra, double destra, double sopra, double sotto) {
  return Scrivi(nodo, [&](NodoLib& n) -> int {
    for (const double v : {sinistra, destra, sopra, sotto})
      if (!std::isfinite(v)) return Rifiuta(QB07_NUMERO, "distanza");
    return PerEntrambe(n, [&](Nodo& m) -> int {
      PosizioniTirafondi(m, {sinistra, destra, sopra, sotto});
      return SonoFiniti(m) ? static_cast<int>(QB07_OK) : Rifiuta(QB07_NUMERO, "distanza");
    });
  });
}

int qb07_nodo_metti_sestetti(qb07_nodo* nodo, const qb07_sestetto* sestetti, size_t quanti) {
  return Scrivi(nodo, [&](NodoLib& n) -> int {
    if (sestetti == nullptr && quanti > 0) return Rifiuta(QB07_NULLO, "sestetti");
    if (quanti > MAX_SESTETTI) return Rifiuta(QB07_INDICE, "quanti");
    std::vector<SestettoLib> nuovi(quanti);
    for (std::size_t k = 0; k < quanti; ++k)
      if (const int e = LeggiSestetto(sestetti[k], k + 1, nuovi[k]); e != QB07_OK) return e;
    n.sestetti.swap(nuovi);
    return QB07_OK;
  });
}

int qb07_nodo_num_sestetti(const qb07_nodo* nodo, size_t* quanti) {
  return Leggi(nodo, [&](const NodoLib& n) -> int {
    if (quanti == nullptr) return Rifiuta(QB07_NULLO, "quanti");
    *quanti = n.sestetti.size();
    return QB07_OK;
  });
}

int qb07_nodo_sestetto(const qb07_nodo* nodo, size_t n, qb07_sestetto* sestetto) {
  return Leggi(nodo, [&](const NodoLib& d) -> int {
    if (sestetto == nullptr) return Rifiuta(QB07_NULLO, "sestetto");
    if (n < 1 || n > d.sestetti.size()) return Rifiuta(QB07_INDICE, "sestetto");
    const SestettoLib& s = d.sestetti[n - 1];
    double v[6];
    for (int c = 0; c < 6; ++c) v[c] = s.v[c] * FATTORI[c];
    *sestetto = {nullptr, s.classe == 0 ? 1 : 2, v[0], v[1], v[2], v[3], v[4], v[5]};
    return QB07_OK;
  });
}

int qb07_nodo_nome_sestetto(const qb07_nodo* nodo, size_t n, char* dove, size_t spazio, size_t* serve) {
  return Leggi(nodo, [&](const NodoLib& d) -> int {
    if (n < 1 || n > d.sestetti.size()) return Rifiuta(QB07_INDICE, "sestetto");
    return Copia(d.sestetti[n - 1].nome, dove, spazio, serve);
  });
}

int qb07_nodo_ferma(const qb07_nodo* nodo) {
  return Proteggi([&]() -> int {
    const std::shared_ptr<NodoLib> n = Trova<NodoLib>(nodo);
    if (n == nullptr) return QB07_MANIGLIA;
    ++n->fermate;
    return QB07_OK;
  });
}

}  // extern "C"
