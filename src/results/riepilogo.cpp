// results/riepilogo.cpp - one joint as an object of JSON.
#include "results/riepilogo.h"

#include <cmath>

#include <utility>

#include "core/area_resistente.h"
#include "core/testo.h"
#include "engine/fatti.h"
#include "results/governanti.h"

using json::Apri, json::Chiudi, json::Membro, json::Nome, json::Nullo, json::Scrittura, json::Valore;

static void MembroTesto(Scrittura& j, const char* nome, std::string_view v) { Membro(j, nome, Rifila(v)); }

static void MembroONullo(Scrittura& j, const char* nome, std::string_view v) {
  Nome(j, nome);
  if (v.empty()) Nullo(j);
  else Valore(j, v);
}

static void Coppia(Scrittura& j, double a, double b) {
  Apri(j, '[');
  Valore(j, a);
  Valore(j, b);
  Chiudi(j, ']');
}

// ---- rows ----

static void Riga(Scrittura& j, const RigaUscita& u) {
  Apri(j, '{');
  Membro(j, "id", u.criterio->id);
  Membro(j, "sestetto", u.sestetto);
  Membro(j, "elemento", u.elemento);
  Membro(j, "domanda", u.domanda);
  Membro(j, "limite", u.limite);
  Membro(j, "unita", UnitaRiga(u.criterio->grandezza));
  Membro(j, "rapporto", u.rapporto);
  Membro(j, "sfruttamento", u.sfruttamento);
  Membro(j, "passa", u.passa);
  Membro(j, "clausola", u.criterio->clausola);
  Chiudi(j, '}');
}

static void RigheScelte(Scrittura& j, const char* nome, const Lavoro& l, const std::vector<std::size_t>& quali) {
  Nome(j, nome);
  Apri(j, '[');
  for (const std::size_t k : quali) Riga(j, InUscita(l.righe[k], l.TipoVer));
  Chiudi(j, ']');
}

static void MembroGovernanti(Scrittura& j, const Lavoro* l) {
  Nome(j, "governanti");
  if (l == nullptr) return Nullo(j);
  const Governanti g = TrovaGovernanti(*l);
  Apri(j, '{');
  Nome(j, "nodo");
  if (g.nodo == NESSUNA_RIGA) Nullo(j);
  else Riga(j, InUscita(l->righe[g.nodo], l->TipoVer));
  RigheScelte(j, "per_controllo", *l, g.perControllo);
  RigheScelte(j, "per_sestetto", *l, g.perSestetto);
  Chiudi(j, '}');
}

static void MembroControlli(Scrittura& j, const Lavoro* l) {
  Nome(j, "controlli");
  Apri(j, '[');
  if (l != nullptr)
    for (const RigaControllo& r : l->righe) Riga(j, InUscita(r, l->TipoVer));
  Chiudi(j, ']');
}

static void MembroGeometria(Scrittura& j, const NodoGiudicato& n) {
  Nome(j, "geometria");
  if (n.nodo == nullptr) return Nullo(j);
  Apri(j, '[');
  for (const RigaGeometria& r : n.geometria) {
    Apri(j, '{');
    Membro(j, "id", r.id);
    Membro(j, "passa", r.passa);
    Membro(j, "testo", r.testo);
    const double nessuno = std::nan("");
    Membro(j, "domanda", r.confronta ? r.domanda : nessuno);
    Membro(j, "limite", r.confronta ? r.limite : nessuno);
    Chiudi(j, '}');
  }
  Chiudi(j, ']');
}

// ---- the joint ----

static void MembroTirafondi(Scrittura& j, const Nodo& n, const Suite& suite) {
  Nome(j, "tirafondi");
  Apri(j, '{');
  Membro(j, "tipo", static_cast<int>(n.TipoTirafondo));
  Membro(j, "n", static_cast<int>(n.NTir));
  Membro(j, "fi", n.TfFi);
  Membro(j, "area_mm2", AreaResistente(suite, n.TfFi));
  Nome(j, "posizioni");
  Apri(j, '[');
  for (int i = 1; i <= n.NTir; ++i) Coppia(j, n.TfZ[i], n.TfY[i]);
  Chiudi(j, ']');
  // clang-format off
  const std::pair<const char*, double> misure[] = {
    {"l", n.TfL},   {"lft", n.TfLFt},        {"l1", n.TfL1},          {"r", n.TfR},
    {"lf", n.TfLF}, {"d_foro", n.TfDForo},   {"h_malta", n.TfHMalta}, {"dist_bordo", n.TfDistBordo},
  };
  // clang-format on
  for (const auto& [nome, v] : misure) Membro(j, nome, v);
  Chiudi(j, '}');
}

static void MembroNervature(Scrittura& j, const Nodo& n) {
  Nome(j, "nervature");
  if (n.TipoNodo != 2) return Nullo(j);
  Apri(j, '{');
  Membro(j, "h", n.HNerv);
  Membro(j, "sp", n.SpNerv);
  Membro(j, "saldatura_interna", n.SaldInt != 0);
  Chiudi(j, '}');
}

static void MembroMateriali(Scrittura& j, const Nodo& n) {
  Nome(j, "materiali");
  Apri(j, '{');
  MembroTesto(j, "acciaio", n.MatAcc.Nome);
  MembroTesto(j, "tirafondi", n.MatTir.Nome);
  MembroTesto(j, "viti", n.MatVit.Nome);
  MembroTesto(j, "calcestruzzo", n.MatCls.Nome);
  Chiudi(j, '}');
}

static void MembroSezione(Scrittura& j, const Sezione& s) {
  Nome(j, "sezione");
  Apri(j, '{');
  MembroTesto(j, "nome", s.Nome);
  const std::pair<const char*, double> misure[] = {{"h", s.H}, {"b", s.B}, {"a", s.A}, {"e", s.E}, {"r", s.R}};
  for (const auto& [nome, v] : misure) Membro(j, nome, v);
  Chiudi(j, '}');
}

static void MembroIngresso(Scrittura& j, const NodoGiudicato& g) {
  Nome(j, "ingresso");
  if (g.nodo == nullptr) return Nullo(j);
  const Nodo& n = *g.nodo;
  Apri(j, '{');
  MembroSezione(j, n.Sezione);
  Nome(j, "piastra");
  Apri(j, '{');
  Membro(j, "lz", n.LatoZ);
  Membro(j, "ly", n.LatoY);
  Membro(j, "sp", n.SpessPiastra);
  Chiudi(j, '}');
  Membro(j, "tipo_nodo", static_cast<int>(n.TipoNodo));
  MembroNervature(j, n);
  Membro(j, "gola_lato", n.Gola);
  MembroTirafondi(j, n, *g.suite);
  MembroMateriali(j, n);
  Membro(j, "sestetti", static_cast<int>(n.NumSoll));
  Chiudi(j, '}');
}

static void MembroNodiStruttura(Scrittura& j, const NodoGiudicato& n) {
  Nome(j, "nodi_struttura");
  Apri(j, '[');
  if (n.lavoro != nullptr)
    for (int i = 1; i <= n.nodo->NumNodiStr; ++i) Valore(j, static_cast<int>(n.nodo->NodiStr[i]));
  Chiudi(j, ']');
}

// ---- sextets ----

static void MembroAsse(Scrittura& j, const FattiSestetto& f) {
  Nome(j, "asse_neutro");
  if (!f.conAsse) return Nullo(j);
  Apri(j, '[');
  for (const PuntoPiano& p : f.asse_neutro) Coppia(j, p.z, p.y);
  Chiudi(j, ']');
}

static void MembroRisultante(Scrittura& j, const FattiSestetto& f) {
  Nome(j, "risultante_cls");
  if (!f.conRisultante) return Nullo(j);
  Apri(j, '{');
  Membro(j, "N_kN", f.risultante_kN);
  Membro(j, "z", f.risultante.z);
  Membro(j, "y", f.risultante.y);
  Chiudi(j, '}');
}

static void MembriFatti(Scrittura& j, const Lavoro& l, int s) {
  const FattiSestetto f = Fatti(l, s);
  Membro(j, "pressione_max", f.pressione_max);
  Membro(j, "area_compressa", f.area_compressa);
  MembroAsse(j, f);
  MembroRisultante(j, f);
  Nome(j, "forza_tir_kN");
  Apri(j, '[');
  for (int i = 1; i <= l.nodo->NTir; ++i) Valore(j, l.verifica.AreaTf * l.ris.SigmaTir[s][i] * KN_DI_DAN);
  Chiudi(j, ']');
  Membro(j, "residuo_percento", f.residuo_percento);
  Membro(j, "iterazioni", f.iterazioni);
}

static void Sestetto(Scrittura& j, const Lavoro& l, int s) {
  const Nodo& n = *l.nodo;
  Apri(j, '{');
  Membro(j, "n", s);
  MembroTesto(j, "nome", n.SollNome[s]);
  Nome(j, "classe");
  if (l.TipoVer == MetodoTA) Valore(j, n.SollCC[s] == 0 ? "I" : "II");
  else Nullo(j);
  const std::pair<const char*, double> componenti[] = {
    {"N_kN", n.SollN[s] * KN_DI_DAN},       {"Ty_kN", n.SollTy[s] * KN_DI_DAN},     {"Tz_kN", n.SollTz[s] * KN_DI_DAN},
    {"Mt_kNm", n.SollMt[s] * KNM_DI_DANCM}, {"My_kNm", n.SollMy[s] * KNM_DI_DANCM}, {"Mz_kNm", n.SollMz[s] * KNM_DI_DANCM},
  };
  for (const auto& [nome, v] : componenti) Membro(j, nome, v);
  Membro(j, "passa", l.passa[s]);
  MembriFatti(j, l, s);
  Chiudi(j, '}');
}

static void MembroSestetti(Scrittura& j, const Lavoro* l) {
  Nome(j, "sestetti");
  Apri(j, '[');
  if (l != nullptr)
    for (int s = 1; s <= l->nodo->NumSoll; ++s) Sestetto(j, *l, s);
  Chiudi(j, ']');
}

// ---- the whole ----

static std::string_view NomeMetodo(int metodo) { return metodo < 0 ? "" : NOME_METODO[metodo]; }

static void MembroOpzioni(Scrittura& j, const NodoGiudicato& n) {
  Nome(j, "opzioni");
  Apri(j, '{');
  MembroONullo(j, "metodo", NomeMetodo(n.metodo));
  Membro(j, "decimale", std::string_view(&n.decimale, 1));
  Membro(j, "rispondi", n.rispondiOk ? "ok" : "annulla");
  Chiudi(j, '}');
}

static void MembroAvvisi(Scrittura& j, const std::vector<Avviso>& avvisi) {
  Nome(j, "avvisi");
  Apri(j, '[');
  for (const Avviso& a : avvisi) {
    Apri(j, '{');
    Membro(j, "id", std::string_view(a.id));
    Membro(j, "testo", std::string_view(a.testo));
    Chiudi(j, '}');
  }
  Chiudi(j, ']');
}

std::string NodoInJson(const NodoGiudicato& n, bool tutteLeRighe) {
  Scrittura j;
  Apri(j, '{');
  Membro(j, "percorso", std::string_view(n.percorso));
  MembroONullo(j, "sha256", n.sha256);
  MembroTesto(j, "nome", n.nome);
  MembroONullo(j, "metodo", NomeMetodo(n.metodo));
  Membro(j, "stato", NOME_STATO[static_cast<int>(n.stato)]);
  MembroONullo(j, "motivo", n.motivo);
  MembroOpzioni(j, n);
  MembroONullo(j, "suite_sha256", n.suite_sha256);
  MembroNodiStruttura(j, n);
  MembroIngresso(j, n);
  MembroGeometria(j, n);
  MembroSestetti(j, n.lavoro);
  if (tutteLeRighe) MembroControlli(j, n.lavoro);
  MembroGovernanti(j, n.lavoro);
  MembroAvvisi(j, n.avvisi);
  Chiudi(j, '}');
  return std::move(j.testo);
}

std::string NodoPersoInJson(NodoGiudicato n, const std::string& motivo, bool tutteLeRighe) {
  n.stato = StatoNodo::NonEseguito;
  n.motivo = motivo;
  n.nodo = nullptr;
  n.lavoro = nullptr;
  n.avvisi.clear();
  return NodoInJson(n, tutteLeRighe);
}
