// The library beside the program's own way: each sample joint, by both methods and with both answers, has the rows, facts, verdicts,
// geometry rows and notices that GiudicaMuto gives, bit for bit. The core linked in here and the library's own do not know each other.
#include <gtest/gtest.h>

#include <cmath>

#include "app/muto/ospite_muto.h"
#include "comune.h"
#include "engine/fatti.h"
#include "model/stato.h"
#include "panels/lavoro_finestre.h"
#include "panels/programma.h"
#include "results/governanti.h"

static void RigheUguali(const qb07_esito* e, const Lavoro& l) {
  size_t n = 0;
  ASSERT_EQ(qb07_esito_num_righe(e, &n), QB07_OK);
  ASSERT_EQ(n, l.righe.size());
  for (size_t k = 0; k < n; ++k) {
    qb07_riga r;
    ASSERT_EQ(qb07_esito_riga(e, k, &r), QB07_OK);
    const RigaUscita u = InUscita(l.righe[k], l.TipoVer);
    ASSERT_STREQ(r.id, u.criterio->id);
    ASSERT_STREQ(r.clausola, u.criterio->clausola);
    ASSERT_EQ(std::string_view(r.unita), UnitaRiga(u.criterio->grandezza));
    ASSERT_EQ(r.sestetto, u.sestetto);
    ASSERT_EQ(r.elemento, u.elemento);
    ASSERT_EQ(r.domanda, u.domanda);
    ASSERT_EQ(r.limite, u.limite);
    ASSERT_EQ(r.passa != 0, u.passa);
    ASSERT_EQ(r.con_rapporto == 0, std::isnan(u.rapporto));
    if (r.con_rapporto) {
      ASSERT_EQ(r.rapporto, u.rapporto);
    }
    if (r.con_rapporto) {
      ASSERT_EQ(r.sfruttamento, u.sfruttamento);
    }
  }
}

static void FattiUguali(const qb07_esito* e, const Lavoro& l) {
  for (int s = 1; s <= l.nodo->NumSoll; ++s) {
    qb07_fatti a;
    int passa = 0;
    ASSERT_EQ(qb07_esito_fatti(e, static_cast<size_t>(s), &a), QB07_OK);
    ASSERT_EQ(qb07_esito_passa(e, static_cast<size_t>(s), &passa), QB07_OK);
    ASSERT_EQ(passa != 0, l.passa[s]);
    const FattiSestetto f = Fatti(l, s);
    ASSERT_EQ(a.pressione_max, f.pressione_max);
    ASSERT_EQ(a.area_compressa, f.area_compressa);
    ASSERT_EQ(a.con_asse != 0, f.conAsse);
    for (std::size_t k = 0; f.conAsse && k < 2; ++k) {
      ASSERT_EQ(a.asse[k][0], f.asse_neutro[k].z);
      ASSERT_EQ(a.asse[k][1], f.asse_neutro[k].y);
    }
    ASSERT_EQ(a.con_risultante != 0, f.conRisultante);
    if (f.conRisultante) {
      ASSERT_EQ(a.risultante_N, f.risultante_kN);
    }
    if (f.conRisultante) {
      ASSERT_EQ(a.risultante_z, f.risultante.z);
    }
    if (f.conRisultante) {
      ASSERT_EQ(a.risultante_y, f.risultante.y);
    }
    ASSERT_EQ(a.residuo_percento, f.residuo_percento);
    ASSERT_EQ(a.iterazioni, f.iterazioni);
    ASSERT_EQ(a.num_tirafondi, l.nodo->NTir);
    for (int i = 1; i <= l.nodo->NTir; ++i) ASSERT_EQ(a.forza_tir[i - 1], l.verifica.AreaTf * l.ris.SigmaTir[s][i] * KN_DI_DAN);
  }
}

static void GovernantiUguali(const qb07_esito* e, const Lavoro& l) {
  const Governanti g = TrovaGovernanti(l);
  qb07_riga r;
  const auto uguale = [&](std::size_t k) {
    const RigaControllo& a = l.righe[k];
    ASSERT_EQ(r.sestetto, a.sestetto);
    ASSERT_EQ(r.elemento, a.elemento);
    ASSERT_EQ(r.controllo, a.criterio);
  };
  if (g.nodo == NESSUNA_RIGA) {
    ASSERT_EQ(qb07_esito_governante(e, &r), QB07_ASSENTE);
  } else {
    ASSERT_EQ(qb07_esito_governante(e, &r), QB07_OK);
    uguale(g.nodo);
  }
  for (const std::size_t k : g.perControllo) {
    ASSERT_EQ(qb07_esito_governante_controllo(e, l.righe[k].criterio, &r), QB07_OK);
    uguale(k);
  }
  for (const std::size_t k : g.perSestetto) {
    ASSERT_EQ(qb07_esito_governante_sestetto(e, static_cast<size_t>(l.righe[k].sestetto), &r), QB07_OK);
    uguale(k);
  }
}

static void ContornoUguale(const qb07_esito* e, const NodoGiudicato& n) {
  int stato = -1;
  size_t quanti = 0;
  const char *motivo = "", *id = "", *testo = "";
  ASSERT_EQ(qb07_esito_stato(e, &stato), QB07_OK);
  ASSERT_EQ(qb07_esito_motivo(e, &motivo), QB07_OK);
  ASSERT_EQ(stato, static_cast<int>(n.stato));
  ASSERT_EQ(motivo, n.motivo);
  ASSERT_EQ(qb07_esito_num_avvisi(e, &quanti), QB07_OK);
  ASSERT_EQ(quanti, n.avvisi.size());
  for (size_t k = 0; k < quanti; ++k) {
    ASSERT_EQ(qb07_esito_avviso(e, k, &id, &testo), QB07_OK);
    ASSERT_EQ(id, n.avvisi[k].id);
    ASSERT_EQ(testo, n.avvisi[k].testo);
  }
  for (size_t k = 0; k < n.geometria.size(); ++k) {
    qb07_geometria g;
    ASSERT_EQ(qb07_esito_geometria(e, k, &g), QB07_OK);
    ASSERT_STREQ(g.id, n.geometria[k].id);
    ASSERT_EQ(g.passa != 0, n.geometria[k].passa);
    ASSERT_EQ(g.con_confronto != 0, n.geometria[k].confronta);
    if (g.con_confronto) {
      ASSERT_EQ(g.domanda, n.geometria[k].domanda);
    }
    if (g.con_confronto) {
      ASSERT_EQ(g.limite, n.geometria[k].limite);
    }
  }
}

static void Prova(const qb07_suite* suite_, const std::string& percorso, int metodo, bool ok) {
  SCOPED_TRACE(percorso + " metodo " + std::to_string(metodo) + (ok ? " ok" : " annulla"));
  AzzeraProgramma();
  MontaPiattaformaMuta();
  muto.rispondiOk = ok;
  ASSERT_TRUE(AvviaMuto(RigaComando(), '.'));
  ASSERT_TRUE(CaricaMuto(percorso));
  if (metodo >= 0) ScegliMetodoMuto(metodo);
  const auto l = std::make_unique<Lavoro>();
  NodoGiudicato n;
  GiudicaMuto(n, *l);
  qb07_nodo* nodo_ = nullptr;
  qb07_esito* e = nullptr;
  ASSERT_EQ(qb07_carica(suite_, percorso.c_str(), &nodo_), QB07_OK);
  ASSERT_EQ(qb07_verifica(nodo_, metodo, 0, &e), QB07_OK);
  ContornoUguale(e, n);
  if (n.lavoro != nullptr) {
    RigheUguali(e, *l);
    FattiUguali(e, *l);
    GovernantiUguali(e, *l);
  }
  qb07_esito_libera(e);
  qb07_nodo_libera(nodo_);
}

TEST(Numeri, QuelliDelRiepilogo) {
  for (const bool ok : {true, false}) {
    qb07_suite* suite_ = nullptr;
    ASSERT_EQ(qb07_apri(RigaComando().c_str(), '.', ok ? 1 : 0, &suite_), QB07_OK);
    const std::vector<std::string> nodi = NodiCampione();
    ASSERT_EQ(nodi.size(), 12u);
    for (const std::string& p : nodi)
      for (const int m : {QB07_METODO_NODO, QB07_METODO_TA, QB07_METODO_SLU}) Prova(suite_, p, m, ok);
    qb07_suite_libera(suite_);
  }
}
