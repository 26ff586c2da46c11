// tests/libreria/comune.h - the sample suite as the tests of the library use it, and the bytes of a result.
// Suite     prepared by con-suite, named by QB07_SUITE; its folder of jobs holds the joints.
#pragma once
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "qb07.h"

inline std::string CartellaSuite() {
  const char* c = std::getenv("QB07_SUITE");
  return c != nullptr ? c : "";
}
inline std::string RigaComando() { return "|diroot=" + CartellaSuite() + "|"; }

inline std::vector<std::string> NodiCampione() {
  std::vector<std::string> nodi;
  for (const auto& v : std::filesystem::directory_iterator(CartellaSuite() + "/lavori/NODI01"))
    if (v.path().extension() == ".qb7") nodi.push_back(v.path().string());
  std::sort(nodi.begin(), nodi.end());
  return nodi;
}
inline std::string Campione(const char* nome) { return CartellaSuite() + "/lavori/NODI01/" + nome + ".qb7"; }

// All that a result tells, byte by byte: texts as they are, numbers by their bits. Empty: a read failed.
struct Byte {
  std::string b;
  void operator()(double v) { b.append(reinterpret_cast<const char*>(&v), sizeof v); }
  void operator()(int v) { b.append(reinterpret_cast<const char*>(&v), sizeof v); }
  void operator()(const char* v) { b.append(v).push_back('\0'); }
};
inline void Metti(Byte& b, const qb07_riga& r) {
  b(r.id), b(r.controllo), b(r.sestetto), b(r.elemento), b(r.domanda), b(r.limite), b(r.unita);
  b(r.con_rapporto), b(r.rapporto), b(r.sfruttamento), b(r.passa), b(r.clausola);
}
inline void Metti(Byte& b, const qb07_fatti& f) {
  b(f.pressione_max), b(f.area_compressa), b(f.con_asse), b(f.con_risultante);
  for (const auto& p : f.asse) b(p[0]), b(p[1]);
  b(f.risultante_N), b(f.risultante_z), b(f.risultante_y), b(f.residuo_percento), b(f.iterazioni), b(f.num_tirafondi);
  for (const double v : f.forza_tir) b(v);
}
inline bool MettiRighe(Byte& b, const qb07_esito* e) {
  size_t n = 0;
  if (qb07_esito_num_righe(e, &n) != QB07_OK) return false;
  std::vector<qb07_riga> righe(n);
  if (qb07_esito_righe(e, 0, n, righe.data()) != QB07_OK) return false;
  for (const qb07_riga& r : righe) Metti(b, r);
  return true;
}
inline bool MettiSestetti(Byte& b, const qb07_esito* e) {
  size_t n = 0;
  if (qb07_esito_num_sestetti(e, &n) != QB07_OK) return false;
  for (size_t s = 1; s <= n; ++s) {
    int passa = 0;
    qb07_fatti f;
    qb07_riga r;
    if (qb07_esito_passa(e, s, &passa) != QB07_OK || qb07_esito_fatti(e, s, &f) != QB07_OK) return false;
    b(passa), Metti(b, f);
    if (qb07_esito_governante_sestetto(e, s, &r) == QB07_OK) Metti(b, r);
  }
  return true;
}
inline bool MettiContorno(Byte& b, const qb07_esito* e) {
  int stato = 0;
  const char *motivo = "", *id = "", *testo = "";
  size_t n = 0;
  if (qb07_esito_stato(e, &stato) != QB07_OK || qb07_esito_motivo(e, &motivo) != QB07_OK) return false;
  b(stato), b(motivo);
  if (qb07_esito_num_avvisi(e, &n) != QB07_OK) return false;
  for (size_t k = 0; k < n; ++k) {
    if (qb07_esito_avviso(e, k, &id, &testo) != QB07_OK) return false;
    b(id), b(testo);
  }
  if (qb07_esito_num_geometria(e, &n) != QB07_OK) return false;
  for (size_t k = 0; k < n; ++k) {
    qb07_geometria g;
    if (qb07_esito_geometria(e, k, &g) != QB07_OK) return false;
    b(g.id), b(g.testo), b(g.passa), b(g.con_confronto), b(g.domanda), b(g.limite);
  }
  return true;
}
inline std::string ByteEsito(const qb07_esito* e) {
  Byte b;
  const bool tutto = MettiContorno(b, e) && MettiRighe(b, e) && MettiSestetti(b, e);
  return tutto ? b.b : std::string();
}
inline std::string ByteVerifica(const qb07_nodo* n, int metodo) {
  qb07_esito* e = nullptr;
  if (qb07_verifica(n, metodo, 0, &e) != QB07_OK) return {};
  std::string b = ByteEsito(e);
  qb07_esito_libera(e);
  return b;
}
