// Every function of the library: what it gives, and every way of being called wrong. Expected values are sums, equilibria and the suite's
// tables.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>

#include "comune.h"

static const double NAN_ = std::numeric_limits<double>::quiet_NaN(), INF = std::numeric_limits<double>::infinity();

struct Libreria : testing::Test {
  qb07_suite* suite = nullptr;
  qb07_nodo* nodo = nullptr;
  qb07_esito* esito = nullptr;
  void SetUp() override {
    ASSERT_EQ(qb07_apri(RigaComando().c_str(), '.', 1, &suite), QB07_OK) << qb07_ultimo_errore();
    ASSERT_EQ(qb07_carica(suite, Campione("pilastro_A1").c_str(), &nodo), QB07_OK) << qb07_ultimo_errore();
    ASSERT_EQ(qb07_verifica(nodo, QB07_METODO_SLU, 0, &esito), QB07_OK) << qb07_ultimo_errore();
  }
  void TearDown() override {
    EXPECT_EQ(qb07_esito_libera(esito), QB07_OK);
    EXPECT_EQ(qb07_nodo_libera(nodo), QB07_OK);
    EXPECT_EQ(qb07_suite_libera(suite), QB07_OK);
  }
  double Numero(const char* nome) {
    double v = NAN_;
    EXPECT_EQ(qb07_nodo_numero(nodo, nome, &v), QB07_OK) << nome;
    return v;
  }
  std::string Testo(const char* nome) {
    char t[64] = "";
    size_t serve = 0;
    EXPECT_EQ(qb07_nodo_testo(nodo, nome, t, sizeof t, &serve), QB07_OK) << nome;
    EXPECT_EQ(serve, std::strlen(t) + 1);
    return t;
  }
};

// ---- handles: each function, with none, one given back, one of each other kind, and an address ----

struct Maniglie {
  const void *suite, *nodo, *esito;
};
static const char* testo_;
static size_t quanti_;
static int intero_;
static double numero_;
static qb07_riga riga_;
static qb07_fatti fatti_;
static qb07_geometria geo_;
static qb07_sestetto sest_ = {nullptr, 1, 0, 0, 0, 0, 0, 0};
static qb07_nodo* nuovo_;
static qb07_esito* nuovoEsito_;

static const qb07_suite* S(const void* p) { return static_cast<const qb07_suite*>(p); }
static const qb07_nodo* N(const void* p) { return static_cast<const qb07_nodo*>(p); }
static qb07_nodo* NM(const void* p) { return const_cast<qb07_nodo*>(N(p)); }
static const qb07_esito* E(const void* p) { return static_cast<const qb07_esito*>(p); }

struct Chiamata {
  const char* nome;
  int (*f)(const void*);
};
static const Chiamata DI_SUITE[] = {
  {"suite_num_avvisi", [](const void* m) { return qb07_suite_num_avvisi(S(m), &quanti_); }},
  {"suite_avviso", [](const void* m) { return qb07_suite_avviso(S(m), 0, &testo_); }},
  {"carica", [](const void* m) { return qb07_carica(S(m), "x.qb7", &nuovo_); }},
  {"nodo_nuovo", [](const void* m) { return qb07_nodo_nuovo(S(m), &nuovo_); }},
};
static const Chiamata DI_NODO[] = {
  {"copia", [](const void* m) { return qb07_nodo_copia(N(m), &nuovo_); }},
  {"metodo", [](const void* m) { return qb07_nodo_metodo(N(m), &intero_); }},
  {"metti_metodo", [](const void* m) { return qb07_nodo_metti_metodo(NM(m), 0); }},
  {"numero", [](const void* m) { return qb07_nodo_numero(N(m), "LatoZ", &numero_); }},
  {"metti_numero", [](const void* m) { return qb07_nodo_metti_numero(NM(m), "LatoZ", 1); }},
  {"testo", [](const void* m) { return qb07_nodo_testo(N(m), "NomeNodo", nullptr, 0, &quanti_); }},
  {"metti_testo", [](const void* m) { return qb07_nodo_metti_testo(NM(m), "NomeNodo", "x"); }},
  {"da_tabella", [](const void* m) { return qb07_nodo_da_tabella(NM(m), "MatAcc", "x"); }},
  {"grado_file", [](const void* m) { return qb07_nodo_grado_file(N(m), "MatAcc", nullptr, 0, &quanti_); }},
  {"regole", [](const void* m) { return qb07_nodo_regole(NM(m), QB07_REGOLA_GOLA); }},
  {"distanze", [](const void* m) { return qb07_nodo_distanze(NM(m), 1, 1, 1, 1); }},
  {"metti_sestetti", [](const void* m) { return qb07_nodo_metti_sestetti(NM(m), &sest_, 1); }},
  {"num_sestetti", [](const void* m) { return qb07_nodo_num_sestetti(N(m), &quanti_); }},
  {"sestetto", [](const void* m) { return qb07_nodo_sestetto(N(m), 1, &sest_); }},
  {"nome_sestetto", [](const void* m) { return qb07_nodo_nome_sestetto(N(m), 1, nullptr, 0, &quanti_); }},
  {"verifica", [](const void* m) { return qb07_verifica(N(m), QB07_METODO_TA, 0, &nuovoEsito_); }},
  {"ferma", [](const void* m) { return qb07_nodo_ferma(N(m)); }},
};
static const Chiamata DI_ESITO[] = {
  {"stato", [](const void* m) { return qb07_esito_stato(E(m), &intero_); }},
  {"motivo", [](const void* m) { return qb07_esito_motivo(E(m), &testo_); }},
  {"metodo", [](const void* m) { return qb07_esito_metodo(E(m), &intero_); }},
  {"num_sestetti", [](const void* m) { return qb07_esito_num_sestetti(E(m), &quanti_); }},
  {"passa", [](const void* m) { return qb07_esito_passa(E(m), 1, &intero_); }},
  {"num_righe", [](const void* m) { return qb07_esito_num_righe(E(m), &quanti_); }},
  {"righe_per_sestetto", [](const void* m) { return qb07_esito_righe_per_sestetto(E(m), &quanti_); }},
  {"riga", [](const void* m) { return qb07_esito_riga(E(m), 0, &riga_); }},
  {"righe", [](const void* m) { return qb07_esito_righe(E(m), 0, 1, &riga_); }},
  {"governante", [](const void* m) { return qb07_esito_governante(E(m), &riga_); }},
  {"governante_sestetto", [](const void* m) { return qb07_esito_governante_sestetto(E(m), 1, &riga_); }},
  {"governante_controllo", [](const void* m) { return qb07_esito_governante_controllo(E(m), 0, &riga_); }},
  {"fatti", [](const void* m) { return qb07_esito_fatti(E(m), 1, &fatti_); }},
  {"num_geometria", [](const void* m) { return qb07_esito_num_geometria(E(m), &quanti_); }},
  {"geometria", [](const void* m) { return qb07_esito_geometria(E(m), 0, &geo_); }},
  {"num_avvisi", [](const void* m) { return qb07_esito_num_avvisi(E(m), &quanti_); }},
  {"avviso", [](const void* m) { return qb07_esito_avviso(E(m), 0, &testo_, &testo_); }},
};

template <std::size_t n>
static void Rifiutano(const Chiamata (&chiamate)[n], const std::vector<const void*>& cattive) {
  for (const Chiamata& c : chiamate)
    for (const void* m : cattive) {
      EXPECT_EQ(c.f(m), QB07_MANIGLIA) << c.nome << " " << m;
      EXPECT_STRNE(qb07_ultimo_errore(), "") << c.nome;
    }
}

TEST_F(Libreria, OgniFunzioneRifiutaLeManiglieCattive) {
  qb07_suite* s2 = nullptr;
  qb07_nodo* n2 = nullptr;
  qb07_esito* e2 = nullptr;
  ASSERT_EQ(qb07_apri(RigaComando().c_str(), ',', 0, &s2), QB07_OK);
  ASSERT_EQ(qb07_nodo_copia(nodo, &n2), QB07_OK);
  ASSERT_EQ(qb07_verifica(n2, QB07_METODO_NODO, 0, &e2), QB07_OK);
  ASSERT_EQ(qb07_suite_libera(s2), QB07_OK);
  ASSERT_EQ(qb07_nodo_libera(n2), QB07_OK);
  ASSERT_EQ(qb07_esito_libera(e2), QB07_OK);
  int qui = 0;
  const void* const indirizzo = &qui;
  Rifiutano(DI_SUITE, {nullptr, s2, nodo, esito, indirizzo});
  Rifiutano(DI_NODO, {nullptr, n2, suite, esito, indirizzo});
  Rifiutano(DI_ESITO, {nullptr, e2, suite, nodo, indirizzo});
  EXPECT_EQ(qb07_suite_libera(s2), QB07_MANIGLIA);  // a second time
  EXPECT_EQ(qb07_nodo_libera(n2), QB07_MANIGLIA);
  EXPECT_EQ(qb07_esito_libera(e2), QB07_MANIGLIA);
  EXPECT_EQ(qb07_suite_libera(nullptr), QB07_OK);
  EXPECT_EQ(qb07_nodo_libera(nullptr), QB07_OK);
  EXPECT_EQ(qb07_esito_libera(nullptr), QB07_OK);
  for (const Chiamata& c : DI_ESITO) {
    const int r = c.f(esito);
    const bool senzaAvvisi = std::string_view(c.nome) == "avviso";
    EXPECT_TRUE(r == QB07_OK || (senzaAvvisi && r == QB07_INDICE)) << c.nome;
  }
}

// ---- pointers ----

TEST_F(Libreria, PuntatoriNulli) {
  const int attesi[] = {
    qb07_apri(nullptr, '.', 1, &suite),
    qb07_apri("x", '.', 1, nullptr),
    qb07_suite_num_avvisi(suite, nullptr),
    qb07_suite_avviso(suite, 0, nullptr),
    qb07_carica(suite, nullptr, &nodo),
    qb07_carica(suite, "x", nullptr),
    qb07_nodo_nuovo(suite, nullptr),
    qb07_nodo_copia(nodo, nullptr),
    qb07_nodo_metodo(nodo, nullptr),
    qb07_nodo_numero(nodo, nullptr, &numero_),
    qb07_nodo_numero(nodo, "LatoZ", nullptr),
    qb07_nodo_metti_numero(nodo, nullptr, 1),
    qb07_nodo_testo(nodo, nullptr, nullptr, 0, &quanti_),
    qb07_nodo_testo(nodo, "NomeNodo", nullptr, 0, nullptr),
    qb07_nodo_testo(nodo, "NomeNodo", nullptr, 8, &quanti_),
    qb07_nodo_metti_testo(nodo, nullptr, "x"),
    qb07_nodo_metti_testo(nodo, "NomeNodo", nullptr),
    qb07_nodo_da_tabella(nodo, nullptr, "x"),
    qb07_nodo_da_tabella(nodo, "MatAcc", nullptr),
    qb07_nodo_grado_file(nodo, nullptr, nullptr, 0, &quanti_),
    qb07_nodo_metti_sestetti(nodo, nullptr, 1),
    qb07_nodo_num_sestetti(nodo, nullptr),
    qb07_nodo_sestetto(nodo, 1, nullptr),
    qb07_nodo_nome_sestetto(nodo, 1, nullptr, 0, nullptr),
    qb07_verifica(nodo, 0, 0, nullptr),
    qb07_esito_stato(esito, nullptr),
    qb07_esito_motivo(esito, nullptr),
    qb07_esito_metodo(esito, nullptr),
    qb07_esito_num_sestetti(esito, nullptr),
    qb07_esito_passa(esito, 1, nullptr),
    qb07_esito_num_righe(esito, nullptr),
    qb07_esito_righe_per_sestetto(esito, nullptr),
    qb07_esito_riga(esito, 0, nullptr),
    qb07_esito_righe(esito, 0, 1, nullptr),
    qb07_esito_governante(esito, nullptr),
    qb07_esito_governante_sestetto(esito, 1, nullptr),
    qb07_esito_governante_controllo(esito, 0, nullptr),
    qb07_num_controlli(0, nullptr),
    qb07_leggi_controllo(0, 0, nullptr),
    qb07_esito_fatti(esito, 1, nullptr),
    qb07_esito_num_geometria(esito, nullptr),
    qb07_esito_geometria(esito, 0, nullptr),
    qb07_esito_num_avvisi(esito, nullptr),
    qb07_esito_avviso(esito, 0, nullptr, &testo_),
    qb07_esito_avviso(esito, 0, &testo_, nullptr),
  };
  for (std::size_t k = 0; k < std::size(attesi); ++k) EXPECT_EQ(attesi[k], QB07_NULLO) << k;
  EXPECT_EQ(qb07_esito_righe(esito, 0, 0, nullptr), QB07_OK);
  EXPECT_EQ(qb07_nodo_metti_sestetti(nodo, nullptr, 0), QB07_OK);
}

// ---- indices and choices ----

TEST_F(Libreria, IndiciFuori) {
  constexpr size_t MAX = std::numeric_limits<size_t>::max();
  size_t righe = 0, sestetti = 0, geometria = 0, avvisi = 0, avvisiSuite = 0;
  qb07_esito_num_righe(esito, &righe);
  qb07_esito_num_sestetti(esito, &sestetti);
  qb07_esito_num_geometria(esito, &geometria);
  qb07_esito_num_avvisi(esito, &avvisi);
  qb07_suite_num_avvisi(suite, &avvisiSuite);
  ASSERT_GT(righe, 0u);
  ASSERT_GT(sestetti, 0u);
  EXPECT_EQ(geometria, 11u);
  int quanti = 0;
  ASSERT_EQ(qb07_num_controlli(QB07_METODO_SLU, &quanti), QB07_OK);
  EXPECT_EQ(quanti, 9);
  EXPECT_EQ(qb07_num_controlli(QB07_METODO_TA, &quanti), QB07_OK);
  EXPECT_EQ(quanti, 8);
  const int attesi[] = {
    qb07_suite_avviso(suite, avvisiSuite, &testo_),
    qb07_suite_avviso(suite, MAX, &testo_),
    qb07_nodo_sestetto(nodo, 0, &sest_),
    qb07_nodo_sestetto(nodo, sestetti + 1, &sest_),
    qb07_nodo_sestetto(nodo, MAX, &sest_),
    qb07_nodo_nome_sestetto(nodo, 0, nullptr, 0, &quanti_),
    qb07_nodo_nome_sestetto(nodo, sestetti + 1, nullptr, 0, &quanti_),
    qb07_nodo_metti_sestetti(nodo, &sest_, MAX),
    qb07_esito_passa(esito, 0, &intero_),
    qb07_esito_passa(esito, sestetti + 1, &intero_),
    qb07_esito_passa(esito, MAX, &intero_),
    qb07_esito_riga(esito, righe, &riga_),
    qb07_esito_riga(esito, MAX, &riga_),
    qb07_esito_righe(esito, righe, 1, &riga_),
    qb07_esito_righe(esito, 1, MAX, &riga_),
    qb07_esito_righe(esito, MAX, 2, &riga_),
    qb07_esito_righe(esito, righe + 1, 0, nullptr),
    qb07_esito_governante_sestetto(esito, 0, &riga_),
    qb07_esito_governante_sestetto(esito, sestetti + 1, &riga_),
    qb07_esito_governante_controllo(esito, -1, &riga_),
    qb07_esito_governante_controllo(esito, 9, &riga_),
    qb07_leggi_controllo(0, -1, nullptr) == QB07_NULLO ? QB07_INDICE : -1,
    qb07_esito_fatti(esito, 0, &fatti_),
    qb07_esito_fatti(esito, sestetti + 1, &fatti_),
    qb07_esito_geometria(esito, 11, &geo_),
    qb07_esito_avviso(esito, avvisi, &testo_, &testo_),
    qb07_nodo_numero(nodo, "TfZ(0)", &numero_),
    qb07_nodo_numero(nodo, "TfZ(9)", &numero_),
    qb07_nodo_numero(nodo, "TfZ(-1)", &numero_),
    qb07_nodo_numero(nodo, "TfZ(99999999999999)", &numero_),
    qb07_nodo_numero(nodo, "NodiStr(2001)", &numero_),
  };
  for (std::size_t k = 0; k < std::size(attesi); ++k) EXPECT_EQ(attesi[k], QB07_INDICE) << k;
  qb07_controllo c;
  EXPECT_EQ(qb07_leggi_controllo(0, 8, &c), QB07_INDICE);
  EXPECT_EQ(qb07_leggi_controllo(0, -1, &c), QB07_INDICE);
}

TEST_F(Libreria, ScelteInesistenti) {
  qb07_suite* s = nullptr;
  qb07_controllo c;
  const std::string riga = RigaComando();
  const int attesi[] = {
    qb07_apri(riga.c_str(), ';', 1, &s),
    qb07_apri(riga.c_str(), '\0', 1, &s),
    qb07_apri(riga.c_str(), '.', 2, &s),
    qb07_apri(riga.c_str(), '.', -1, &s),
    qb07_nodo_metti_metodo(nodo, -1),
    qb07_nodo_metti_metodo(nodo, 2),
    qb07_verifica(nodo, 2, 0, &nuovoEsito_),
    qb07_verifica(nodo, -2, 0, &nuovoEsito_),
    qb07_verifica(nodo, 0, 4, &nuovoEsito_),
    qb07_verifica(nodo, 0, ~0u, &nuovoEsito_),
    qb07_nodo_regole(nodo, 32),
    qb07_num_controlli(2, &intero_),
    qb07_num_controlli(-1, &intero_),
    qb07_leggi_controllo(2, 0, &c),
  };
  for (std::size_t k = 0; k < std::size(attesi); ++k) EXPECT_EQ(attesi[k], QB07_SCELTA) << k;
  EXPECT_EQ(s, nullptr);
  for (const int classe : {0, 3, -1}) {
    const qb07_sestetto cattivo = {nullptr, classe, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(qb07_nodo_metti_sestetti(nodo, &cattivo, 1), QB07_SCELTA);
  }
}

// ---- opening and loading ----

TEST_F(Libreria, AvvioECaricamentoFalliti) {
  qb07_suite* s = nullptr;
  qb07_nodo* n = nullptr;
  EXPECT_EQ(qb07_apri("|diroot=/non/esiste|", '.', 1, &s), QB07_AVVIO);
  EXPECT_STRNE(qb07_ultimo_errore(), "");
  EXPECT_EQ(qb07_apri("senza cartella", '.', 1, &s), QB07_AVVIO);
  EXPECT_EQ(qb07_apri("", '.', 1, &s), QB07_TESTO);
  EXPECT_EQ(s, nullptr);
  EXPECT_EQ(qb07_carica(suite, "", &n), QB07_TESTO);
  EXPECT_EQ(qb07_carica(suite, std::string(70000, 'a').c_str(), &n), QB07_TESTO);
  EXPECT_EQ(qb07_carica(suite, (CartellaSuite() + "/manca.qb7").c_str(), &n), QB07_FILE);
  EXPECT_NE(std::string(qb07_ultimo_errore()).find("caricamento fallito"), std::string::npos);
  EXPECT_EQ(qb07_carica(suite, CartellaSuite().c_str(), &n), QB07_FILE);
  EXPECT_EQ(n, nullptr);
  // An opening that failed, and loads that failed, leave nothing behind.
  const std::string prima = ByteVerifica(nodo, QB07_METODO_TA);
  ASSERT_EQ(qb07_carica(suite, Campione("pilastro_A1").c_str(), &n), QB07_OK);
  EXPECT_TRUE(ByteVerifica(n, QB07_METODO_TA) == prima);
  qb07_nodo_libera(n);
}

TEST_F(Libreria, DueSuiteNonSiConoscono) {
  const std::string primaTA = ByteVerifica(nodo, QB07_METODO_TA), prima = ByteVerifica(nodo, QB07_METODO_SLU);
  qb07_suite* altra = nullptr;
  ASSERT_EQ(qb07_apri(RigaComando().c_str(), ',', 0, &altra), QB07_OK);
  for (int k = 0; k < 3; ++k) {
    qb07_nodo *a = nullptr, *b = nullptr;
    ASSERT_EQ(qb07_carica(altra, Campione("pilastro_B1").c_str(), &b), QB07_OK);
    ASSERT_EQ(qb07_carica(suite, Campione("pilastro_A1").c_str(), &a), QB07_OK);
    EXPECT_TRUE(ByteVerifica(a, QB07_METODO_SLU) == prima);
    EXPECT_TRUE(ByteVerifica(a, QB07_METODO_TA) == primaTA);
    qb07_nodo_libera(a);
    qb07_nodo_libera(b);
  }
  qb07_suite_libera(altra);
}

TEST_F(Libreria, NodoEEsitoVivonoDaSoli) {
  const std::string prima = ByteEsito(esito);
  qb07_nodo* copia = nullptr;
  ASSERT_EQ(qb07_nodo_copia(nodo, &copia), QB07_OK);
  qb07_suite_libera(suite);
  qb07_nodo_libera(nodo);
  EXPECT_TRUE(ByteEsito(esito) == prima);
  EXPECT_TRUE(ByteVerifica(copia, QB07_METODO_SLU) == prima);
  nodo = copia;
  suite = nullptr;
}

// ---- values by their names ----

TEST_F(Libreria, NumeriETestiPerNome) {
  EXPECT_EQ(qb07_nodo_metti_numero(nodo, "LatoZ", 612.5), QB07_OK);
  EXPECT_EQ(Numero("LatoZ"), 612.5);
  EXPECT_EQ(qb07_nodo_metti_numero(nodo, "TfZ(3)", 71.25), QB07_OK);
  EXPECT_EQ(Numero("TfZ(3)"), 71.25);
  EXPECT_NE(Numero("TfZ(1)"), 71.25);
  EXPECT_EQ(qb07_nodo_metti_numero(nodo, "Sezione.H", 301), QB07_OK);
  EXPECT_EQ(Numero("Sezione.H"), 301);
  EXPECT_EQ(qb07_nodo_metti_numero(nodo, "MatAcc.Fyk", 2750), QB07_OK);
  EXPECT_EQ(Numero("MatAcc.Fyk"), 2750);
  EXPECT_EQ(qb07_nodo_metti_numero(nodo, "Esposizione", -1), QB07_OK);
  EXPECT_EQ(Numero("Esposizione"), -1);
  EXPECT_EQ(qb07_nodo_metti_testo(nodo, "MatTir.Nome", "8.8 è"), QB07_OK);
  EXPECT_EQ(Testo("MatTir.Nome"), "8.8 è");
  EXPECT_EQ(qb07_nodo_metti_testo(nodo, "Sezione.Nome", "HE 300"), QB07_OK);
  EXPECT_EQ(Testo("Sezione.Nome"), "HE 300            ");
  for (const int m : {0, 1}) {  // what is set counts for both methods
    ASSERT_EQ(qb07_nodo_metti_metodo(nodo, m), QB07_OK);
    ASSERT_EQ(qb07_nodo_metodo(nodo, &intero_), QB07_OK);
    EXPECT_EQ(intero_, m);
    EXPECT_EQ(Numero("MatAcc.Fyk"), 2750);
    EXPECT_EQ(Testo("MatTir.Nome"), "8.8 è");
  }
}

TEST_F(Libreria, NomiCattivi) {
  for (
    const char* nome :
    {"LatoX",   "latoz",   "LatoZ(1)",           "TfZ",       "TfZ(",         "TfZ(1",     "TfZ()", "TfZ(1)x",  "TfZ(1,2)", "TfZ(a)",
     "TfZ( 1)", "Sezione", "Sezione.",           "Sezione.X", "Sezione.H.x",  ".H",        "(1)",   "SollN(1)", "NumSoll",  "SollNome(1)",
     "TipoVer", "DirRoot", "AcciaiBase(1).Nome", "NumDiam",   "MatAcc..Nome", "TitoloProg"}) {
    EXPECT_EQ(qb07_nodo_numero(nodo, nome, &numero_), QB07_NOME) << nome;
    EXPECT_EQ(qb07_nodo_metti_numero(nodo, nome, 1), QB07_NOME) << nome;
    EXPECT_EQ(qb07_nodo_metti_testo(nodo, nome, "x"), QB07_NOME) << nome;
  }
  EXPECT_EQ(qb07_nodo_numero(nodo, "", &numero_), QB07_TESTO);
  EXPECT_EQ(qb07_nodo_numero(nodo, "NomeNodo", &numero_), QB07_TIPO);
  EXPECT_EQ(qb07_nodo_metti_numero(nodo, "MatAcc.Nome", 1), QB07_TIPO);
  EXPECT_EQ(qb07_nodo_metti_testo(nodo, "LatoZ", "1"), QB07_TIPO);
  EXPECT_EQ(qb07_nodo_testo(nodo, "LatoZ", nullptr, 0, &quanti_), QB07_TIPO);
}

TEST_F(Libreria, NumeriCattivi) {
  const double lato = Numero("LatoZ");
  for (const double v : {NAN_, INF, -INF}) {
    EXPECT_EQ(qb07_nodo_metti_numero(nodo, "LatoZ", v), QB07_NUMERO);
    EXPECT_EQ(qb07_nodo_metti_numero(nodo, "NTir", v), QB07_NUMERO);
    EXPECT_EQ(qb07_nodo_distanze(nodo, 50, v, 50, 50), QB07_NUMERO);
    const qb07_sestetto s[2] = {{nullptr, 1, 0, 0, 0, 0, 0, 0}, {nullptr, 1, 0, 0, 0, 0, v, 0}};
    EXPECT_EQ(qb07_nodo_metti_sestetti(nodo, s, 2), QB07_NUMERO);
  }
  EXPECT_EQ(Numero("LatoZ"), lato);
  const qb07_sestetto enorme = {nullptr, 1, 1e308, 0, 0, 0, 0, 0};  // not finite in the model's units
  EXPECT_EQ(qb07_nodo_metti_sestetti(nodo, &enorme, 1), QB07_NUMERO);
  struct Intero {
    const char* nome;
    double v;
  };
  for (const Intero& k : {Intero{"NTir", 0},
                          {"NTir", 9},
                          {"NTir", 4.5},
                          {"TipoNodo", 0},
                          {"TipoNodo", 3},
                          {"SaldInt", 2},
                          {"TipoTirafondo", -1},
                          {"TipoTirafondo", 2},
                          {"OptionNTir", 4},
                          {"OptionNTir", -1},
                          {"Esposizione", 3},
                          {"Esposizione", -2},
                          {"TfDiamIdx", 101},
                          {"TfDiamIdx", -1},
                          {"NumNodiStr", 2001},
                          {"NumNodiStr", -1},
                          {"NodiStr(1)", 32768},
                          {"NTir", 1e300}})
    EXPECT_EQ(qb07_nodo_metti_numero(nodo, k.nome, k.v), QB07_NUMERO) << k.nome << " " << k.v;
}

TEST_F(Libreria, TestiCattivi) {
  const std::string prima = Testo("NomeNodo");
  const std::string lungo(QB07_MAX_TESTO + 1, 'a'), giusto(QB07_MAX_TESTO, 'a');
  for (const char* t : {"\x80", "\xC3", "\xC0\xAF", "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "a\nb", "\x01",
                        "\x7F", lungo.c_str()}) {
    EXPECT_EQ(qb07_nodo_metti_testo(nodo, "NomeNodo", t), QB07_TESTO) << t;
    const qb07_sestetto s = {t, 1, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(qb07_nodo_metti_sestetti(nodo, &s, 1), QB07_TESTO) << t;
    EXPECT_EQ(qb07_nodo_da_tabella(nodo, "MatAcc", t), QB07_TESTO) << t;
  }
  EXPECT_EQ(Testo("NomeNodo"), prima);
  EXPECT_EQ(qb07_nodo_metti_testo(nodo, "NomeNodo", giusto.c_str()), QB07_OK);
  EXPECT_EQ(qb07_nodo_metti_testo(nodo, "NomeNodo", "😀 €"), QB07_OK);
  EXPECT_EQ(Testo("NomeNodo"), "😀 €");
  EXPECT_EQ(qb07_nodo_metti_testo(nodo, "Sezione.Nome", "1234567890123456789"), QB07_TESTO);
}

TEST_F(Libreria, SpazioDelTesto) {
  ASSERT_EQ(qb07_nodo_metti_testo(nodo, "NomeNodo", "abcd"), QB07_OK);
  size_t serve = 0;
  EXPECT_EQ(qb07_nodo_testo(nodo, "NomeNodo", nullptr, 0, &serve), QB07_OK);
  EXPECT_EQ(serve, 5u);
  char t[6] = "xxxxx";
  EXPECT_EQ(qb07_nodo_testo(nodo, "NomeNodo", t, 4, &serve), QB07_SPAZIO);
  EXPECT_STREQ(t, "");
  EXPECT_EQ(t[1], 'x');
  EXPECT_EQ(qb07_nodo_testo(nodo, "NomeNodo", t, 5, nullptr), QB07_OK);
  EXPECT_STREQ(t, "abcd");
}

// ---- tables and rules ----

TEST_F(Libreria, DalleTabelle) {
  ASSERT_EQ(qb07_nodo_da_tabella(nodo, "MatCls", " C25/30 "), QB07_OK) << qb07_ultimo_errore();
  const double Rck = Numero("MatCls.Rck");
  EXPECT_EQ(Rck, 300);  // daN/cm2
  EXPECT_NEAR(Numero("EcCls"), 5700 * std::sqrt(30.0) * 10, 1e-6);
  for (const char* cosa : {"Sezione", "MatAcc", "MatPiastra", "MatTir", "MatCls", "MatVit"})
    EXPECT_EQ(qb07_nodo_da_tabella(nodo, cosa, "manca"), QB07_NOME) << cosa;
  EXPECT_EQ(qb07_nodo_da_tabella(nodo, "Altro", "C25/30"), QB07_NOME);
  char grado[40];
  size_t serve = 0;
  EXPECT_EQ(qb07_nodo_grado_file(nodo, "MatCls", grado, sizeof grado, &serve), QB07_OK);
  EXPECT_STREQ(grado, "");  // set since: no longer the file's
  EXPECT_EQ(qb07_nodo_grado_file(nodo, "MatAcc", grado, sizeof grado, &serve), QB07_OK);
  EXPECT_STRNE(grado, "");
  EXPECT_EQ(qb07_nodo_grado_file(nodo, "MatVit", grado, sizeof grado, &serve), QB07_NOME);
}

TEST_F(Libreria, Regole) {
  for (const auto& [nome, v] : {std::pair{"LatoZ", 500.0}, {"LatoY", 600.0}, {"Gola", 10.0}, {"MatCls.Rck", 360.0}, {"OptionNTir", 1.0}})
    ASSERT_EQ(qb07_nodo_metti_numero(nodo, nome, v), QB07_OK) << nome;
  ASSERT_EQ(qb07_nodo_distanze(nodo, 60, 70, 80, 90), QB07_OK);
  const double z[] = {60, 430, 60, 430, 60, 430, 250, 250}, y[] = {80, 80, 510, 510, 300, 300, 510, 80};
  EXPECT_EQ(Numero("NTir"), 8);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(Numero(("TfZ(" + std::to_string(i + 1) + ")").c_str()), z[i]) << i + 1;
    EXPECT_EQ(Numero(("TfY(" + std::to_string(i + 1) + ")").c_str()), y[i]) << i + 1;
  }
  ASSERT_EQ(qb07_nodo_metti_numero(nodo, "OptionNTir", 0), QB07_OK);
  ASSERT_EQ(qb07_nodo_regole(nodo, QB07_REGOLA_TIRAFONDI | QB07_REGOLA_GOLA | QB07_REGOLA_CLS | QB07_REGOLA_SMUSSI), QB07_OK);
  EXPECT_EQ(Numero("NTir"), 4);
  EXPECT_NEAR(Numero("GolaCalc"), 10 / std::sqrt(2.0), 1e-12);
  EXPECT_NEAR(Numero("EcCls"), 5700 * 6.0 * 10, 1e-9);
  ASSERT_EQ(qb07_nodo_metti_numero(nodo, "TfDiamIdx", 1), QB07_OK);
  ASSERT_EQ(qb07_nodo_regole(nodo, QB07_REGOLA_DIAMETRO), QB07_OK);
  EXPECT_EQ(Numero("TfFi"), 8);  // first row of the table
  ASSERT_EQ(qb07_nodo_metti_numero(nodo, "TfDiamIdx", 0), QB07_OK);
  EXPECT_EQ(qb07_nodo_regole(nodo, QB07_REGOLA_DIAMETRO), QB07_INDICE);
  ASSERT_EQ(qb07_nodo_metti_numero(nodo, "MatCls.Rck", -1), QB07_OK);
  EXPECT_EQ(qb07_nodo_regole(nodo, QB07_REGOLA_GOLA | QB07_REGOLA_CLS), QB07_NUMERO);
  EXPECT_NEAR(Numero("EcCls"), 5700 * 6.0 * 10, 1e-9);  // as it was
}

// ---- loads ----

TEST_F(Libreria, SestettiTornanoComeDati) {
  const qb07_sestetto dati[] = {
    {"uno", 1, -123.456, 0.29, 0.1, 0.07, 33.3, -12.345}, {nullptr, 2, 1e-9, 0, -0.0, 1e6, 2.0 / 3, 0}, {"", 1, 0, 0, 0, 0, 0, 0}};
  ASSERT_EQ(qb07_nodo_metti_sestetti(nodo, dati, 3), QB07_OK);
  ASSERT_EQ(qb07_nodo_num_sestetti(nodo, &quanti_), QB07_OK);
  EXPECT_EQ(quanti_, 3u);
  for (size_t n = 1; n <= 3; ++n) {
    qb07_sestetto s;
    ASSERT_EQ(qb07_nodo_sestetto(nodo, n, &s), QB07_OK);
    const qb07_sestetto& d = dati[n - 1];
    EXPECT_EQ(s.classe, d.classe);
    EXPECT_DOUBLE_EQ(s.N, d.N);
    EXPECT_DOUBLE_EQ(s.Ty, d.Ty);
    EXPECT_DOUBLE_EQ(s.Tz, d.Tz);
    EXPECT_DOUBLE_EQ(s.Mt, d.Mt);
    EXPECT_DOUBLE_EQ(s.My, d.My);
    EXPECT_DOUBLE_EQ(s.Mz, d.Mz);
    EXPECT_EQ(s.nome, nullptr);
  }
  const char* const nomi[] = {"uno", "Soll 2", "Soll 3"};
  for (size_t n = 1; n <= 3; ++n) {
    char t[16];
    ASSERT_EQ(qb07_nodo_nome_sestetto(nodo, n, t, sizeof t, nullptr), QB07_OK);
    EXPECT_STREQ(t, nomi[n - 1]);
  }
}

// A file's sextet read and set again is verified to the same numbers.
TEST_F(Libreria, SestettiDelFileRimessi) {
  ASSERT_EQ(qb07_nodo_num_sestetti(nodo, &quanti_), QB07_OK);
  std::vector<qb07_sestetto> s(quanti_);
  for (size_t n = 1; n <= quanti_; ++n) ASSERT_EQ(qb07_nodo_sestetto(nodo, n, &s[n - 1]), QB07_OK);
  const std::string prima = ByteVerifica(nodo, QB07_METODO_SLU);
  ASSERT_EQ(qb07_nodo_metti_sestetti(nodo, s.data(), s.size()), QB07_OK);
  EXPECT_TRUE(ByteVerifica(nodo, QB07_METODO_SLU) == prima);
}

// ---- verification ----

// Pure compression: the whole plate is compressed, forces balance, and the pressure is N over the transformed area.
TEST_F(Libreria, CompressioneCentrataAMano) {
  qb07_nodo* n = nullptr;
  ASSERT_EQ(qb07_nodo_copia(nodo, &n), QB07_OK);
  const qb07_sestetto s = {"N", 1, -800, 0, 0, 0, 0, 0};
  ASSERT_EQ(qb07_nodo_metti_sestetti(n, &s, 1), QB07_OK);
  qb07_esito* e = nullptr;
  ASSERT_EQ(qb07_verifica(n, QB07_METODO_SLU, 0, &e), QB07_OK);
  qb07_fatti f;
  ASSERT_EQ(qb07_esito_fatti(e, 1, &f), QB07_OK);
  EXPECT_NEAR(f.area_compressa, 100, 1e-9);
  EXPECT_EQ(f.con_asse, 0);
  ASSERT_EQ(f.con_risultante, 1);
  double somma = f.risultante_N;
  for (int i = 0; i < f.num_tirafondi; ++i) {
    EXPECT_LT(f.forza_tir[i], 0);
    EXPECT_NEAR(f.forza_tir[i], f.forza_tir[0], 1e-9);
    somma += f.forza_tir[i];
  }
  EXPECT_NEAR(somma, -800, 1e-6);
  EXPECT_NEAR(f.risultante_z, 0, 1e-6);
  EXPECT_NEAR(f.risultante_y, 0, 1e-6);
  // forza_tir = -p m A with m = Es / Ec, Es = 200000 N/mm2 of the anchors; p A_plate + n A (m - 1) p = N.
  const double Ec = Numero("EcCls") / 10, m = 200000 / Ec, AF = -f.forza_tir[0] * 1000 / (f.pressione_max * m);
  EXPECT_NEAR(f.pressione_max * (Numero("LatoZ") * Numero("LatoY") + f.num_tirafondi * AF * (m - 1)), 800000, 1);
  qb07_riga r;
  size_t righe = 0;
  ASSERT_EQ(qb07_esito_num_righe(e, &righe), QB07_OK);
  ASSERT_EQ(qb07_esito_riga(e, righe - 1, &r), QB07_OK);
  EXPECT_STREQ(r.id, "cls");
  EXPECT_STREQ(r.unita, "N/mm2");
  EXPECT_NEAR(r.domanda, f.pressione_max, 1e-12);
  EXPECT_NEAR(r.limite, 0.85 * 0.83 * Numero("MatCls.Rck") / 10 / Numero("MatCls.GammaC"), 1e-9);
  qb07_esito_libera(e);
  qb07_nodo_libera(n);
}

TEST_F(Libreria, SenzaSestetti) {
  ASSERT_EQ(qb07_nodo_metti_sestetti(nodo, nullptr, 0), QB07_OK);
  qb07_esito* e = nullptr;
  ASSERT_EQ(qb07_verifica(nodo, QB07_METODO_TA, 0, &e), QB07_OK);
  ASSERT_EQ(qb07_esito_stato(e, &intero_), QB07_OK);
  EXPECT_EQ(intero_, QB07_VERIFICATO);
  EXPECT_EQ(qb07_esito_governante(e, &riga_), QB07_ASSENTE);
  EXPECT_EQ(qb07_esito_governante_controllo(e, 0, &riga_), QB07_ASSENTE);
  EXPECT_EQ(qb07_esito_fatti(e, 1, &fatti_), QB07_INDICE);
  const char *id = "", *testo = "";
  ASSERT_EQ(qb07_esito_avviso(e, 0, &id, &testo), QB07_OK);
  EXPECT_STREQ(id, "senza_sestetti");
  qb07_esito_libera(e);
}

TEST_F(Libreria, RifiutataDiceIlMotivo) {
  ASSERT_EQ(qb07_nodo_metti_numero(nodo, "TfZ(1)", -10), QB07_OK);
  qb07_esito* e = nullptr;
  ASSERT_EQ(qb07_verifica(nodo, QB07_METODO_TA, 0, &e), QB07_OK);
  const char* motivo = "";
  ASSERT_EQ(qb07_esito_stato(e, &intero_), QB07_OK);
  ASSERT_EQ(qb07_esito_motivo(e, &motivo), QB07_OK);
  EXPECT_EQ(intero_, QB07_NON_ESEGUITO);
  EXPECT_STREQ(motivo, "Verifica non possibile");
  qb07_esito_num_righe(e, &quanti_);
  EXPECT_EQ(quanti_, 0u);
  qb07_geometria g;
  ASSERT_EQ(qb07_esito_geometria(e, 8, &g), QB07_OK);
  EXPECT_STREQ(g.id, "geo.fuori_piastra");
  EXPECT_EQ(g.passa, 0);
  EXPECT_EQ(g.domanda, -10);
  qb07_esito_libera(e);
}

// ---- lists of more than 200 sextets ----

static std::vector<qb07_riga> Righe(const qb07_nodo* n, int metodo) {
  qb07_esito* e = nullptr;
  EXPECT_EQ(qb07_verifica(n, metodo, 0, &e), QB07_OK);
  size_t quante = 0;
  qb07_esito_num_righe(e, &quante);
  std::vector<qb07_riga> r(quante);
  EXPECT_EQ(qb07_esito_righe(e, 0, quante, r.data()), QB07_OK);
  qb07_esito_libera(e);
  return r;
}

// Forces that change from one sextet to the next, classes as given.
static std::vector<qb07_sestetto> Elenco(size_t quanti, size_t primoI, size_t primoII) {
  std::vector<qb07_sestetto> s(quanti);
  for (size_t k = 0; k < quanti; ++k) {
    const double t = static_cast<double>(k);
    s[k] = {nullptr, k >= primoI && k < primoII ? 1 : 2, -300 + 1.1 * t, 10 + 0.01 * t, 5 - 0.02 * t, 0, 20 - 0.1 * t, 15 + 0.05 * t};
  }
  return s;
}

TEST_F(Libreria, ElencoLungoComeUnoAllaVolta) {
  for (const char* nome : {"pilastro_A1", "pilastro_B1"}) {
    qb07_nodo *n = nullptr, *uno = nullptr;
    ASSERT_EQ(qb07_carica(suite, Campione(nome).c_str(), &n), QB07_OK);
    ASSERT_EQ(qb07_nodo_copia(n, &uno), QB07_OK);
    const std::vector<qb07_sestetto> s = Elenco(605, 0, 605);
    ASSERT_EQ(qb07_nodo_metti_sestetti(n, s.data(), s.size()), QB07_OK);
    for (const int m : {QB07_METODO_TA, QB07_METODO_SLU}) {
      const std::vector<qb07_riga> tutte = Righe(n, m);
      ASSERT_GT(tutte.size(), 605u);
      const size_t per = tutte.size() / 605;
      ASSERT_EQ(per * 605, tutte.size());
      for (size_t k = 0; k < 605; k += k < 190 || k > 210 ? 13 : 1) {
        ASSERT_EQ(qb07_nodo_metti_sestetti(uno, &s[k], 1), QB07_OK);
        std::vector<qb07_riga> solo = Righe(uno, m);
        ASSERT_EQ(solo.size(), per);
        for (size_t j = 0; j < per; ++j) {
          const qb07_riga &a = tutte[k * per + j], &b = solo[j];
          ASSERT_EQ(a.sestetto, static_cast<int>(k + 1));
          ASSERT_TRUE(std::string_view(a.id) == b.id && a.elemento == b.elemento && a.domanda == b.domanda && a.limite == b.limite &&
                      a.passa == b.passa)
            << nome << " metodo " << m << " sestetto " << k + 1 << " " << a.id << " " << a.elemento << ": " << a.domanda << " e "
            << b.domanda;
        }
      }
    }
    qb07_nodo_libera(n);
    qb07_nodo_libera(uno);
  }
}

static double LimiteTiro(const std::vector<qb07_riga>& righe, int sestetto) {
  for (const qb07_riga& r : righe)
    if (r.sestetto == sestetto && std::string_view(r.id) == "tir.tiro") return r.limite;
  return NAN_;
}

// The bond limit is the least of the sextets so far: class II raises it by 1.125, one sextet of class I lowers it for all that follow.
TEST_F(Libreria, AderenzaPerTuttoLElenco) {
  ASSERT_EQ(qb07_nodo_metti_numero(nodo, "TfL1", 1e6), QB07_OK);  // so long that the rod's strength governs, not the bond
  const std::vector<qb07_sestetto> s = Elenco(605, 250, 251);     // sextet 251 alone of class I
  ASSERT_EQ(qb07_nodo_metti_sestetti(nodo, &s[0], 1), QB07_OK);
  const double II = LimiteTiro(Righe(nodo, QB07_METODO_TA), 1);
  ASSERT_EQ(qb07_nodo_metti_sestetti(nodo, &s[250], 1), QB07_OK);
  const double I = LimiteTiro(Righe(nodo, QB07_METODO_TA), 1);
  ASSERT_NEAR(II, 1.125 * I, 1e-9 * II);
  ASSERT_EQ(qb07_nodo_metti_sestetti(nodo, s.data(), s.size()), QB07_OK);
  const std::vector<qb07_riga> r = Righe(nodo, QB07_METODO_TA);
  for (const int n : {1, 200, 201, 250}) EXPECT_EQ(LimiteTiro(r, n), II) << n;
  for (const int n : {251, 252, 400, 401, 600, 601, 605}) EXPECT_EQ(LimiteTiro(r, n), I) << n;
}

// The rule of the governing row, asked of all rows.
static bool Pesa(const qb07_riga& a, const qb07_riga& b) {
  if (a.passa != b.passa) return a.passa == 0;
  const auto peso = [](const qb07_riga& r) { return r.con_rapporto ? r.sfruttamento : r.passa ? 0 : INF; };
  return peso(a) > peso(b);
}
template <class F>
static const qb07_riga* Capofila(const std::vector<qb07_riga>& righe, F&& quali) {
  const qb07_riga* c = nullptr;
  for (const qb07_riga& r : righe)
    if (quali(r) && (c == nullptr || Pesa(r, *c))) c = &r;
  return c;
}
static std::string Byte1(const qb07_riga& r) {
  Byte b;
  Metti(b, r);
  return b.b;
}

// Heavier and heavier, and the other way round: the governing rows stand in the last piece and in the first.
TEST_F(Libreria, GovernantiDellElencoLungo) {
  for (const int giro : {0, 1, 2, 3}) {
    const int m = giro % 2;
    std::vector<qb07_sestetto> s = Elenco(605, 100, 300);
    if (giro > 1) std::reverse(s.begin(), s.end());
    ASSERT_EQ(qb07_nodo_metti_sestetti(nodo, s.data(), s.size()), QB07_OK);
    const std::vector<qb07_riga> righe = Righe(nodo, m);
    qb07_esito* e = nullptr;
    ASSERT_EQ(qb07_verifica(nodo, m, QB07_SENZA_FATTI | QB07_SOLO_GOVERNANTI, &e), QB07_OK);
    qb07_esito_num_righe(e, &quanti_);
    EXPECT_EQ(quanti_, 0u);
    EXPECT_EQ(qb07_esito_fatti(e, 1, &fatti_), QB07_ASSENTE);
    EXPECT_EQ(qb07_esito_righe(e, 0, 1, &riga_), QB07_INDICE);
    qb07_riga g;
    ASSERT_EQ(qb07_esito_governante(e, &g), QB07_OK);
    EXPECT_TRUE(Byte1(g) == Byte1(*Capofila(righe, [](const qb07_riga&) { return true; })));
    int quanti = 0;
    qb07_num_controlli(m, &quanti);
    for (int c = 0; c < quanti; ++c) {
      const qb07_riga* attesa = Capofila(righe, [c](const qb07_riga& r) { return r.controllo == c; });
      ASSERT_EQ(qb07_esito_governante_controllo(e, c, &g), attesa != nullptr ? QB07_OK : QB07_ASSENTE);
      if (attesa != nullptr) {
        EXPECT_TRUE(Byte1(g) == Byte1(*attesa)) << c;
      }
    }
    int tutti = 1;
    for (int n = 1; n <= 605; ++n) {
      ASSERT_EQ(qb07_esito_governante_sestetto(e, static_cast<size_t>(n), &g), QB07_OK);
      EXPECT_TRUE(Byte1(g) == Byte1(*Capofila(righe, [n](const qb07_riga& r) { return r.sestetto == n; }))) << n;
      int passa = 0, attesa = 1;
      qb07_esito_passa(e, static_cast<size_t>(n), &passa);
      for (const qb07_riga& r : righe)
        if (r.sestetto == n && r.passa == 0) attesa = 0;
      EXPECT_EQ(passa, attesa) << n;
      tutti &= attesa;
    }
    qb07_esito_stato(e, &intero_);
    EXPECT_EQ(intero_, tutti ? QB07_VERIFICATO : QB07_NON_VERIFICATO);
    qb07_esito_libera(e);
  }
}

static std::string Motivo(const qb07_esito* e) {
  const char* t = "";
  EXPECT_EQ(qb07_esito_motivo(e, &t), QB07_OK);
  return t;
}

// On a concrete so stiff that the anchors are nothing, a load ten plates off finds no equilibrium; a moment beyond all numbers is a fault.
TEST_F(Libreria, InterruzioneNominaIlSestettoDellElenco) {
  struct Guasto {
    const char* nome;
    double valore, N, Mz;
    const char* motivo;
  };
  for (const Guasto& g : {Guasto{"EcCls", 1e19, -400, 2000,
                                 "Sestetto di sollecitazione n°431: situazione non equilibrata nel calcolo delle azioni sui tirafondi. "
                                 "La verifica non può continuare!"},
                          Guasto{"Gola", 10, 0, 1e300, "Errore aritmetico: la verifica non può continuare."}}) {
    for (const int m : {QB07_METODO_TA, QB07_METODO_SLU}) {
      qb07_nodo* n = nullptr;
      ASSERT_EQ(qb07_nodo_copia(nodo, &n), QB07_OK);
      ASSERT_EQ(qb07_nodo_metti_numero(n, g.nome, g.valore), QB07_OK);
      std::vector<qb07_sestetto> s(450, {nullptr, 1, -400, 0, 0, 0, 0, 1});
      s[430].N = g.N;
      s[430].Mz = g.Mz;
      ASSERT_EQ(qb07_nodo_metti_sestetti(n, s.data(), s.size()), QB07_OK);
      qb07_esito* e = nullptr;
      ASSERT_EQ(qb07_verifica(n, m, 0, &e), QB07_OK);
      qb07_esito_stato(e, &intero_);
      EXPECT_EQ(intero_, QB07_NON_ESEGUITO);
      EXPECT_EQ(Motivo(e), g.motivo);
      qb07_esito_num_sestetti(e, &quanti_);
      EXPECT_EQ(quanti_, 0u);
      EXPECT_EQ(qb07_esito_governante(e, &riga_), QB07_ASSENTE);
      qb07_esito_libera(e);
      qb07_nodo_libera(n);
    }
  }
}

static int Avvisi(const qb07_esito* e, const char* id, std::string& testo) {
  size_t n = 0;
  qb07_esito_num_avvisi(e, &n);
  int trovati = 0;
  for (size_t k = 0; k < n; ++k) {
    const char *i = "", *t = "";
    qb07_esito_avviso(e, k, &i, &t);
    if (std::string_view(i) != id) continue;
    ++trovati;
    testo = t;
  }
  return trovati;
}

// Notices of a long list: one for all of its pieces. The pressure of sextets 1 and 431 stands on its limit; the last name has a comma; no
// row of the diameters holds a rod of 21 mm.
TEST_F(Libreria, AvvisiDellElencoLungo) {
  std::vector<qb07_sestetto> s(450, {nullptr, 1, -100, 0, 0, 0, 0, 0});
  s[0].N = s[430].N = -800;
  s[449].nome = "vento, neve";
  ASSERT_EQ(qb07_nodo_metti_numero(nodo, "TfFi", 21), QB07_OK);
  ASSERT_EQ(qb07_nodo_metti_sestetti(nodo, s.data(), s.size()), QB07_OK);
  qb07_esito* e = nullptr;
  ASSERT_EQ(qb07_verifica(nodo, QB07_METODO_SLU, 0, &e), QB07_OK);
  ASSERT_EQ(qb07_esito_fatti(e, 431, &fatti_), QB07_OK);
  qb07_esito_libera(e);
  ASSERT_EQ(qb07_nodo_metti_numero(nodo, "MatCls.Rck", fatti_.pressione_max * 10 * Numero("MatCls.GammaC") / (0.85 * 0.83)), QB07_OK);
  ASSERT_EQ(qb07_verifica(nodo, QB07_METODO_SLU, 0, &e), QB07_OK);
  std::string testo;
  EXPECT_EQ(Avvisi(e, "al_limite", testo), 1);
  EXPECT_EQ(testo, "Controlli al limite: 2. L'esito si capovolge se la domanda cambia di un milionesimo.");
  EXPECT_EQ(Avvisi(e, "nomi_con_virgola", testo), 1);
  EXPECT_EQ(Avvisi(e, "diametro", testo), 1);
  EXPECT_EQ(Avvisi(e, "messaggio", testo), 1);
  EXPECT_NE(testo.find("QbDiam.txt"), std::string::npos);
  qb07_esito_libera(e);
}

TEST_F(Libreria, FermarePrimaNonConta) {
  ASSERT_EQ(qb07_nodo_ferma(nodo), QB07_OK);
  EXPECT_TRUE(ByteVerifica(nodo, QB07_METODO_SLU) == ByteEsito(esito));
}

// ---- the caller's arithmetic ----

TEST_F(Libreria, ArrotondamentoEFlagDelChiamanteRestano) {
  const std::string attesi = ByteVerifica(nodo, QB07_METODO_TA);
  std::feclearexcept(FE_ALL_EXCEPT);
  std::fesetround(FE_UPWARD);
  const std::string b = ByteVerifica(nodo, QB07_METODO_TA);
  const int modo = std::fegetround(), flag = std::fetestexcept(FE_ALL_EXCEPT);
  std::fesetround(FE_TONEAREST);
  EXPECT_EQ(modo, FE_UPWARD);
  EXPECT_EQ(flag, 0);
  EXPECT_TRUE(b == attesi);
  std::feraiseexcept(FE_DIVBYZERO);
  qb07_verifica(nodo, QB07_METODO_TA, 0, &nuovoEsito_);
  EXPECT_NE(std::fetestexcept(FE_DIVBYZERO), 0);
  std::feclearexcept(FE_ALL_EXCEPT);
  qb07_esito_libera(nuovoEsito_);
}

TEST(Codici, OgnunoHaIlSuoTesto) {
  std::vector<std::string> testi;
  for (int c = QB07_OK; c <= QB07_INTERNO; ++c) testi.emplace_back(qb07_testo_errore(c));
  for (const std::string& t : testi) EXPECT_FALSE(t.empty());
  std::sort(testi.begin(), testi.end());
  EXPECT_EQ(std::unique(testi.begin(), testi.end()), testi.end());
  for (const int c : {-1, 16, 1000000, std::numeric_limits<int>::min()}) EXPECT_STREQ(qb07_testo_errore(c), "codice sconosciuto");
  EXPECT_STREQ(qb07_versione(), QB07_VERSIONE_ATTESA);
}
