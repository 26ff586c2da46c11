// prova_fili [N FILI] - the sample joints verified by both methods N times in all (1000) on FILI threads (8), while each thread also loads
// joints and sets values of a joint of its own: every result has the bytes that one thread got. Meant for the thread sanitizer too.
#include <atomic>
#include <thread>

#include "comune.h"

struct Attesa {
  std::string percorso;
  qb07_nodo* nodo = nullptr;
  std::string byte[2];  // by method
};

static std::atomic<int> errori = 0;

static void Sbaglia(const std::string& cosa) {
  if (errori++ < 20) std::fprintf(stderr, "FALLITO: %s: %s\n", cosa.c_str(), qb07_ultimo_errore());
}

static void Confronta(const Attesa& a, const qb07_nodo* n, int metodo, const char* come) {
  if (ByteVerifica(n, metodo) != a.byte[metodo]) Sbaglia(a.percorso + " " + come);
}

// Every tenth verification is of a joint just loaded, every tenth of a copy that is changed and put back.
static void Verifica(const qb07_suite* suite, const Attesa& a, int giro) {
  const int metodo = giro % 2;
  if (giro % 10 > 1) return Confronta(a, a.nodo, metodo, "condiviso");
  qb07_nodo* n = nullptr;
  const int e = giro % 10 == 0 ? qb07_carica(suite, a.percorso.c_str(), &n) : qb07_nodo_copia(a.nodo, &n);
  if (e != QB07_OK) return Sbaglia(a.percorso);
  double lato = 0;
  if (qb07_nodo_numero(n, "LatoZ", &lato) != QB07_OK || qb07_nodo_metti_numero(n, "LatoZ", lato + 1) != QB07_OK) Sbaglia("LatoZ");
  if (ByteVerifica(n, metodo) == a.byte[metodo]) Sbaglia("un altro lato dà lo stesso esito");
  qb07_nodo_metti_numero(n, "LatoZ", lato);
  Confronta(a, n, metodo, "proprio");
  qb07_nodo_libera(n);
}

// Told again and again to stop while another thread verifies a long list: it ends with QB07_FERMATA, or had ended. True: it was stopped.
static bool Ferma(const qb07_suite* suite, const std::string& percorso) {
  qb07_nodo* n = nullptr;
  if (qb07_carica(suite, percorso.c_str(), &n) != QB07_OK) return Sbaglia(percorso), false;
  const std::vector<qb07_sestetto> s(20000, {nullptr, 1, -100, 1, 1, 0, 5, 5});
  if (qb07_nodo_metti_sestetti(n, s.data(), s.size()) != QB07_OK) Sbaglia("sestetti");
  std::atomic<bool> finita = false;
  int esito = QB07_OK;
  std::thread t([&] {
    qb07_esito* e = nullptr;
    esito = qb07_verifica(n, QB07_METODO_SLU, QB07_SOLO_GOVERNANTI, &e);
    if (esito == QB07_OK) qb07_esito_libera(e);
    finita = true;
  });
  while (!finita) {
    if (qb07_nodo_ferma(n) != QB07_OK) Sbaglia("ferma");
    std::this_thread::yield();
  }
  t.join();
  if (esito != QB07_OK && esito != QB07_FERMATA) Sbaglia("una verifica fermata");
  qb07_nodo_libera(n);
  return esito == QB07_FERMATA;
}

int main(int argc, char** argv) {
  const int quante = argc > 1 ? std::atoi(argv[1]) : 1000, fili = argc > 2 ? std::atoi(argv[2]) : 8;
  qb07_suite* suite = nullptr;
  if (qb07_apri(RigaComando().c_str(), '.', 1, &suite) != QB07_OK) return Sbaglia("avvio"), 1;
  std::vector<Attesa> nodi;
  for (const std::string& p : NodiCampione()) {
    Attesa a = {p, nullptr, {}};
    if (qb07_carica(suite, p.c_str(), &a.nodo) != QB07_OK) return Sbaglia(p), 1;
    for (const int m : {QB07_METODO_TA, QB07_METODO_SLU}) a.byte[m] = ByteVerifica(a.nodo, m);
    if (a.byte[0].empty() || a.byte[1].empty()) return Sbaglia(p), 1;
    nodi.push_back(std::move(a));
  }
  if (nodi.size() != 12) return Sbaglia("mancano nodi"), 1;
  std::atomic<int> prossima = 0, fatte = 0;
  std::vector<std::thread> squadra;
  for (int f = 0; f < fili; ++f)
    squadra.emplace_back([&] {
      for (int k = prossima++; k < quante; k = prossima++) {
        Verifica(suite, nodi[static_cast<std::size_t>(k / 2) % nodi.size()], k);
        ++fatte;
      }
    });
  for (std::thread& t : squadra) t.join();
  int fermate = 0;
  for (int k = 0; k < 50 && fermate == 0; ++k) fermate += Ferma(suite, nodi[0].percorso) ? 1 : 0;
  if (fermate == 0) Sbaglia("nessuna verifica si è fermata");
  qb07_suite_libera(suite);
  for (const Attesa& a : nodi) qb07_nodo_libera(a.nodo);
  std::printf("%d verifiche su %d fili, %d errori\n", fatte.load(), fili, errori.load());
  return errori == 0 && fatte == quante ? 0 : 1;
}
