// app/libreria/esito_libreria.cpp - a verification asked for, and what it found read: results do not change, so that no lock is needed.
#include <cmath>
#include <mutex>

#include "app/libreria/nodo_libreria.h"
#include "results/governanti.h"

static constexpr const char* UNITA_C[] = {"N/mm2", "kN", "-"};  // by Grandezza, ended by NUL

static qb07_riga InRiga(const RigaControllo& r, int metodo) {
  const RigaUscita u = InUscita(r, metodo);
  const bool rapporto = std::isfinite(u.rapporto);
  return {.id = u.criterio->id,
          .controllo = r.criterio,
          .sestetto = u.sestetto,
          .elemento = u.elemento,
          .domanda = u.domanda,
          .limite = u.limite,
          .unita = UNITA_C[static_cast<int>(u.criterio->grandezza)],
          .con_rapporto = rapporto ? 1 : 0,
          .rapporto = rapporto ? u.rapporto : 0,
          .sfruttamento = rapporto ? u.sfruttamento : 0,
          .passa = u.passa ? 1 : 0,
          .clausola = u.criterio->clausola};
}

static qb07_riga RigaNumero(const EsitoLib& e, std::size_t k) {
  const std::size_t n = e.posti.size();
  const PostoRiga& p = e.posti[k % n];
  RigaControllo r;
  r.sestetto = static_cast<std::int32_t>(k / n + 1);
  r.elemento = p.elemento;
  r.criterio = p.criterio;
  r.passa = e.passaRiga[k] != 0;
  r.domanda = e.righe[k].domanda;
  r.limite = e.righe[k].limite;
  return InRiga(r, e.metodo);
}

static qb07_fatti InFatti(const EsitoLib& e, std::size_t s) {
  const FattiSestetto& f = e.fatti[s];
  qb07_fatti a = {};
  a.pressione_max = f.pressione_max;
  a.area_compressa = f.area_compressa;
  a.con_asse = f.conAsse ? 1 : 0;
  for (std::size_t k = 0; f.conAsse && k < 2; ++k) {
    a.asse[k][0] = f.asse_neutro[k].z;
    a.asse[k][1] = f.asse_neutro[k].y;
  }
  a.con_risultante = f.conRisultante ? 1 : 0;
  if (f.conRisultante) {
    a.risultante_N = f.risultante_kN;
    a.risultante_z = f.risultante.z;
    a.risultante_y = f.risultante.y;
  }
  a.residuo_percento = f.residuo_percento;
  a.iterazioni = f.iterazioni;
  a.num_tirafondi = e.numTirafondi;
  const std::size_t n = static_cast<std::size_t>(e.numTirafondi);
  for (std::size_t i = 0; i < n; ++i) a.forza_tir[i] = e.forze[s * n + i];
  return a;
}

// Reads a result: `dove` is where the answer goes.
template <class Dove, class F>
static int Leggi(const qb07_esito* esito, Dove* dove, F&& corpo) {
  return Proteggi([&]() -> int {
    const std::shared_ptr<EsitoLib> e = Trova<EsitoLib>(esito);
    if (e == nullptr) return QB07_MANIGLIA;
    if (dove == nullptr) return Rifiuta(QB07_NULLO, "risposta");
    return corpo(static_cast<const EsitoLib&>(*e), *dove);
  });
}

static bool Sestetto(const EsitoLib& e, std::size_t n) { return n >= 1 && n <= static_cast<std::size_t>(e.numSestetti); }

static bool EMetodo(int metodo) { return metodo == QB07_METODO_TA || metodo == QB07_METODO_SLU; }

extern "C" {

const char* qb07_versione(void) { return VERSIONE; }

const char* qb07_testo_errore(int codice) { return TestoErrore(codice); }

const char* qb07_ultimo_errore(void) { return ultimoErrore.c_str(); }

int qb07_verifica(const qb07_nodo* nodo, int metodo, unsigned opzioni, qb07_esito** esito) {
  return Proteggi([&]() -> int {
    const std::shared_ptr<NodoLib> n = Trova<NodoLib>(nodo);
    if (n == nullptr) return QB07_MANIGLIA;
    if (esito == nullptr) return Rifiuta(QB07_NULLO, "esito");
    if (metodo != QB07_METODO_NODO && !EMetodo(metodo)) return Rifiuta(QB07_SCELTA, "metodo");
    if ((opzioni & ~static_cast<unsigned>(QB07_SENZA_FATTI | QB07_SOLO_GOVERNANTI)) != 0) return Rifiuta(QB07_SCELTA, "opzioni");
    const std::shared_lock aperta(n->serratura);
    const std::shared_ptr<EsitoLib> e = VerificaLib(*n, metodo == QB07_METODO_NODO ? n->dati.metodo : metodo, opzioni);
    if (e == nullptr) return Rifiuta(QB07_FERMATA);
    Consegna(esito, e);
    return QB07_OK;
  });
}

int qb07_esito_libera(qb07_esito* esito) {
  return Proteggi([&] { return LiberaManiglia(GenereManiglia::Esito, esito); });
}

int qb07_esito_stato(const qb07_esito* esito, int* stato) {
  return Leggi(esito, stato, [](const EsitoLib& e, int& v) -> int {
    v = static_cast<int>(e.stato);
    return QB07_OK;
  });
}

int qb07_esito_motivo(const qb07_esito* esito, const char** testo) {
  return Leggi(esito, testo, [](const EsitoLib& e, const char*& v) -> int {
    v = e.motivo.c_str();
    return QB07_OK;
  });
}

int qb07_esito_metodo(const qb07_esito* esito, int* metodo) {
  return Leggi(esito, metodo, [](const EsitoLib& e, int& v) -> int {
    v = e.metodo;
    return QB07_OK;
  });
}

int qb07_esito_num_sestetti(const qb07_esito* esito, size_t* quanti) {
  return Leggi(esito, quanti, [](const EsitoLib& e, size_t& v) -> int {
    v = static_cast<std::size_t>(e.numSestetti);
    return QB07_OK;
  });
}

int qb07_esito_passa(const qb07_esito* esito, size_t n, int* passa) {
  return Leggi(esito, passa, [&](const EsitoLib& e, int& v) -> int {
    if (!Sestetto(e, n)) return Rifiuta(QB07_INDICE, "sestetto");
    v = e.passa[n - 1];
    return QB07_OK;
  });
}

int qb07_esito_num_righe(const qb07_esito* esito, size_t* quante) {
  return Leggi(esito, quante, [](const EsitoLib& e, size_t& v) -> int {
    v = e.righe.size();
    return QB07_OK;
  });
}

int qb07_esito_righe_per_sestetto(const qb07_esito* esito, size_t* quante) {
  return Leggi(esito, quante, [](const EsitoLib& e, size_t& v) -> int {
    v = e.righe.empty() ? 0 : e.posti.size();
    return QB07_OK;
  });
}

int qb07_esito_riga(const qb07_esito* esito, size_t indice, qb07_riga* riga) {
  return Leggi(esito, riga, [&](const EsitoLib& e, qb07_riga& v) -> int {
    if (indice >= e.righe.size()) return Rifiuta(QB07_INDICE, "riga");
    v = RigaNumero(e, indice);
    return QB07_OK;
  });
}

int qb07_esito_righe(const qb07_esito* esito, size_t indice, size_t quante, qb07_riga* righe) {
  qb07_riga nessuna = {};
  return Leggi(esito, quante == 0 ? &nessuna : righe, [&](const EsitoLib& e, qb07_riga&) -> int {
    if (indice > e.righe.size() || quante > e.righe.size() - indice) return Rifiuta(QB07_INDICE, "righe");
    for (std::size_t k = 0; k < quante; ++k) righe[k] = RigaNumero(e, indice + k);
    return QB07_OK;
  });
}

int qb07_esito_governante(const qb07_esito* esito, qb07_riga* riga) {
  return Leggi(esito, riga, [](const EsitoLib& e, qb07_riga& v) -> int {
    if (e.governa.empty()) return Rifiuta(QB07_ASSENTE, "riga governante");
    v = InRiga(e.governa.front(), e.metodo);
    return QB07_OK;
  });
}

int qb07_esito_governante_sestetto(const qb07_esito* esito, size_t n, qb07_riga* riga) {
  return Leggi(esito, riga, [&](const EsitoLib& e, qb07_riga& v) -> int {
    if (!Sestetto(e, n)) return Rifiuta(QB07_INDICE, "sestetto");
    if (n > e.governaSestetto.size()) return Rifiuta(QB07_ASSENTE, "riga governante");
    v = InRiga(e.governaSestetto[n - 1], e.metodo);
    return QB07_OK;
  });
}

int qb07_esito_governante_controllo(const qb07_esito* esito, int controllo, qb07_riga* riga) {
  return Leggi(esito, riga, [&](const EsitoLib& e, qb07_riga& v) -> int {
    if (controllo < 0 || controllo >= static_cast<int>(Criteri(e.metodo).size())) return Rifiuta(QB07_INDICE, "controllo");
    for (const RigaControllo& r : e.governaControllo)
      if (r.criterio == controllo) {
        v = InRiga(r, e.metodo);
        return QB07_OK;
      }
    return Rifiuta(QB07_ASSENTE, "riga governante");
  });
}

int qb07_num_controlli(int metodo, int* quanti) {
  return Proteggi([&]() -> int {
    if (!EMetodo(metodo)) return Rifiuta(QB07_SCELTA, "metodo");
    if (quanti == nullptr) return Rifiuta(QB07_NULLO, "quanti");
    *quanti = static_cast<int>(Criteri(metodo).size());
    return QB07_OK;
  });
}

int qb07_leggi_controllo(int metodo, int controllo, qb07_controllo* dove) {
  return Proteggi([&]() -> int {
    if (!EMetodo(metodo)) return Rifiuta(QB07_SCELTA, "metodo");
    if (dove == nullptr) return Rifiuta(QB07_NULLO, "dove");
    const std::span<const Criterio> criteri = Criteri(metodo);
    if (controllo < 0 || controllo >= static_cast<int>(criteri.size())) return Rifiuta(QB07_INDICE, "controllo");
    const Criterio& c = criteri[static_cast<std::size_t>(controllo)];
    *dove = {c.id, c.nome, UNITA_C[static_cast<int>(c.grandezza)], c.clausola};
    return QB07_OK;
  });
}

int qb07_esito_fatti(const qb07_esito* esito, size_t n, qb07_fatti* fatti) {
  return Leggi(esito, fatti, [&](const EsitoLib& e, qb07_fatti& v) -> int {
    if (!Sestetto(e, n)) return Rifiuta(QB07_INDICE, "sestetto");
    if (e.fatti.empty()) return Rifiuta(QB07_ASSENTE, "fatti");
    v = InFatti(e, n - 1);
    return QB07_OK;
  });
}

int qb07_esito_num_geometria(const qb07_esito* esito, size_t* quante) {
  return Leggi(esito, quante, [](const EsitoLib& e, size_t& v) -> int {
    v = e.geometria.size();
    return QB07_OK;
  });
}

int qb07_esito_geometria(const qb07_esito* esito, size_t indice, qb07_geometria* riga) {
  return Leggi(esito, riga, [&](const EsitoLib& e, qb07_geometria& v) -> int {
    if (indice >= e.geometria.size()) return Rifiuta(QB07_INDICE, "geometria");
    const RigaGeometria& r = e.geometria[indice];
    const bool due = r.confronta && std::isfinite(r.domanda) && std::isfinite(r.limite);
    v = {r.id, r.testo, r.passa ? 1 : 0, due ? 1 : 0, due ? r.domanda : 0, due ? r.limite : 0};
    return QB07_OK;
  });
}

int qb07_esito_num_avvisi(const qb07_esito* esito, size_t* quanti) {
  return Leggi(esito, quanti, [](const EsitoLib& e, size_t& v) -> int {
    v = e.avvisi.size();
    return QB07_OK;
  });
}

int qb07_esito_avviso(const qb07_esito* esito, size_t indice, const char** id, const char** testo) {
  return Leggi(esito, id, [&](const EsitoLib& e, const char*& v) -> int {
    if (testo == nullptr) return Rifiuta(QB07_NULLO, "testo");
    if (indice >= e.avvisi.size()) return Rifiuta(QB07_INDICE, "avviso");
    v = e.avvisi[indice].id.c_str();
    *testo = e.avvisi[indice].testo.c_str();
    return QB07_OK;
  });
}

}  // extern "C"
