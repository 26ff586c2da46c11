// app/libreria/verifica_libreria.cpp - a list of sextets of any length judged on one Lavoro, MaxSoll at a time, as one list.
// Over the list the bond of allowable stresses is a running minimum: it is taken along from piece to piece.
#include <algorithm>
#include <charconv>
#include <string_view>

#include "app/libreria/nodo_libreria.h"
#include "core/fault.h"
#include "engine/Calcoli.h"
#include "engine/Controlli.h"
#include "engine/righe.h"
#include "results/avvisi.h"
#include "results/governanti.h"

namespace {
struct CorsaLib {
  const NodoLib& n;
  unsigned opzioni;
  std::unique_ptr<Nodo> nodo = std::make_unique<Nodo>();  // the joint with the sextets of one piece
  std::unique_ptr<Lavoro> l = std::make_unique<Lavoro>();
  std::shared_ptr<EsitoLib> esito = std::make_shared<EsitoLib>();
  std::vector<RiquadroMuto> riquadri = {};
  std::vector<RigaControllo> alLimite = {};
  double TadRd = 0;  // of the sextets so far
};
}  // namespace

// ---- questions of the geometry: the answer is the same for all ----

static bool Chiedi(CorsaLib& c, const std::string& testo) {
  c.riquadri.push_back({true, c.n.rispondiOk, testo});
  return c.n.rispondiOk;
}

static bool Ferma(CorsaLib& c, const std::string& testo) {
  c.riquadri.push_back({false, false, testo});
  return false;
}

// In the order of the checks: questions until one is refused, then only what forbids; the fault of a check that was reached stops it.
static bool AmmettePosizioni(CorsaLib& c, bool& fault) {
  bool esito = true;
  for (const RigaGeometria& r : c.esito->geometria) {
    if (r.genere == GenereGeometria::Bordo || (r.genere == GenereGeometria::Domanda && !esito)) continue;
    fault = fault || r.fault;
    if (r.passa) continue;
    esito = r.genere == GenereGeometria::Domanda ? Chiedi(c, r.testo) : Ferma(c, r.testo);
  }
  return esito;
}

static bool Ammette(CorsaLib& c) {
  bool fault = false;
  const bool possibile = AmmettePosizioni(c, fault);
  if (fault) return Ferma(c, TESTO_FAULT_VERIFICA);
  if (!possibile) return Ferma(c, "Verifica non possibile");
  const RigaGeometria& bordo = c.esito->geometria.back();
  if (!bordo.passa) Ferma(c, bordo.testo);
  if (bordo.fault) return Ferma(c, TESTO_FAULT_VERIFICA);
  return bordo.passa || Chiedi(c, "Continuare la verifica?");
}

// ---- one piece ----

static void MettiSestetti(CorsaLib& c, std::size_t da, int quanti) {
  c.nodo->NumSoll = static_cast<std::int16_t>(quanti);
  for (int s = 1; s <= quanti; ++s) {
    const SestettoLib& d = c.n.sestetti[da + static_cast<std::size_t>(s - 1)];
    c.nodo->SollCC[s] = d.classe;
    for (int k = 0; k < 6; ++k) *ComponenteSoll(*c.nodo, k, s) = d.v[k];
  }
}

// As EseguiVerifica, with the bond limit of the pieces before. What else a Lavoro keeps is written anew for the same elements each time.
static bool EseguiSeguito(CorsaLib& c) {
  Lavoro& l = *c.l;
  if (l.TipoVer != MetodoTA) return EseguiVerifica(l);
  if (!CalcolaTabelle(l)) return false;
  l.ris.TadRd = c.TadRd;
  Giudica(l);
  if (!FaultAritmetico()) return true;
  AzzeraFault();
  l.diagnosi.push_back({TESTO_FAULT_VERIFICA, TitoloProg, Icona::Critica});
  return false;
}

// The engine counts sextets within the piece; who reads it, within the list.
static std::string NelElenco(std::string testo, std::size_t prima) {
  constexpr std::string_view TESTA = "Sestetto di sollecitazione n°";
  int s = 0;
  if (prima == 0 || !testo.starts_with(TESTA)) return testo;
  const char* const cifre = testo.data() + TESTA.size();
  const auto letto = std::from_chars(cifre, testo.data() + testo.size(), s);
  return std::string(TESTA) + std::to_string(prima + static_cast<std::size_t>(s)) + std::string(static_cast<const char*>(letto.ptr));
}

// The message on the diameter comes once: with the first piece.
static void PrendiDiagnosi(CorsaLib& c, std::size_t prima) {
  for (const Diagnosi& d : c.l->diagnosi)
    if (prima == 0 || d.icona != Icona::Informazione) c.riquadri.push_back({false, false, NelElenco(d.testo, prima)});
}

static RigaControllo NelElenco(RigaControllo r, std::size_t prima) {
  r.sestetto += static_cast<std::int32_t>(prima);
  return r;
}

static void PrendiPosti(CorsaLib& c) {
  if (c.l->nodo->NumSoll < 1) return;
  for (const RigaControllo& r : RigheSestetto(*c.l, 1)) c.esito->posti.push_back({r.elemento, r.criterio});
}

static void PrendiRighe(CorsaLib& c, std::size_t prima) {
  EsitoLib& e = *c.esito;
  const bool tutte = (c.opzioni & QB07_SOLO_GOVERNANTI) == 0;
  for (const RigaControllo& r : c.l->righe) {
    if (tutte) {
      e.righe.push_back({r.domanda, r.limite});
      e.passaRiga.push_back(r.passa ? 1 : 0);
    }
    if (AlLimite(r, e.metodo)) c.alLimite.push_back(r);
  }
  const Governanti g = TrovaGovernanti(*c.l);
  const auto riga = [&](std::size_t k) { return NelElenco(c.l->righe[k], prima); };
  for (const std::size_t k : g.perSestetto) e.governaSestetto.push_back(riga(k));
  for (const std::size_t k : g.perControllo) e.governaControllo.push_back(riga(k));
  if (g.nodo != NESSUNA_RIGA) e.governa.push_back(riga(g.nodo));
}

static void PrendiFatti(CorsaLib& c) {
  EsitoLib& e = *c.esito;
  const Lavoro& l = *c.l;
  for (int s = 1; s <= l.nodo->NumSoll; ++s) {
    e.passa.push_back(l.passa[s] ? 1 : 0);
    if (c.opzioni & QB07_SENZA_FATTI) continue;
    e.fatti.push_back(Fatti(l, s));
    for (int i = 1; i <= e.numTirafondi; ++i) e.forze.push_back(l.verifica.AreaTf * l.ris.SigmaTir[s][i] * KN_DI_DAN);
  }
}

static bool Pezzo(CorsaLib& c, std::size_t prima) {
  MettiSestetti(c, prima, static_cast<int>(std::min<std::size_t>(MaxSoll, c.n.sestetti.size() - prima)));
  const bool riuscita = prima == 0 ? EseguiVerifica(*c.l) : EseguiSeguito(c);
  PrendiDiagnosi(c, prima);
  if (!riuscita) return false;
  c.TadRd = c.l->ris.TadRd;
  if (prima == 0) PrendiPosti(c);
  PrendiRighe(c, prima);
  PrendiFatti(c);
  if (!c.l->verificato) c.esito->stato = StatoNodo::NonVerificato;
  return true;
}

// ---- the whole list ----

// The first of the pieces' winners that is heaviest: the rule of one list, asked of the winners alone.
static std::vector<RigaControllo> Vincono(CorsaLib& c, const std::vector<RigaControllo>& candidate, bool perControllo) {
  Lavoro& l = *c.l;
  l.righe = candidate;
  for (RigaControllo& r : l.righe) r.sestetto = 1;
  c.nodo->NumSoll = 1;
  const Governanti g = TrovaGovernanti(l);
  std::vector<RigaControllo> vincono;
  if (perControllo)
    for (const std::size_t k : g.perControllo) vincono.push_back(candidate[k]);
  else if (g.nodo != NESSUNA_RIGA) vincono.push_back(candidate[g.nodo]);
  return vincono;
}

static void Svuota(EsitoLib& e) {
  e.passa.clear();
  e.posti.clear();
  e.righe.clear();
  e.passaRiga.clear();
  e.governaSestetto.clear();
  e.governaControllo.clear();
  e.governa.clear();
  e.fatti.clear();
  e.forze.clear();
}

// Names count only by whether one of them holds a comma: the list's first such name stands for all.
static void PrendiAvvisi(CorsaLib& c, bool eseguita) {
  const std::vector<SestettoLib>& elenco = c.n.sestetti;
  c.nodo->NumSoll = elenco.empty() ? 0 : 1;
  const auto virgola = std::ranges::find_if(elenco, [](const SestettoLib& s) { return s.nome.find(',') != std::string::npos; });
  if (!elenco.empty()) c.nodo->SollNome[1] = virgola != elenco.end() ? virgola->nome : elenco.front().nome;
  c.l->righe = c.alLimite;
  EsitoLib& e = *c.esito;
  e.avvisi = AvvisiNodo(*c.nodo, e.metodo, c.n.tabelle->suite, c.n.dati.gradi, eseguita ? c.l.get() : nullptr);
  if (!eseguita && !c.riquadri.empty()) {
    e.motivo = c.riquadri.back().testo;
    c.riquadri.pop_back();
  }
  for (const RiquadroMuto& r : c.riquadri)
    e.avvisi.push_back(r.domanda ? Avviso{"domanda", r.testo + (r.ok ? " -> OK" : " -> Annulla")} : Avviso{"messaggio", r.testo});
}

static void Riserva(CorsaLib& c) {
  EsitoLib& e = *c.esito;
  const std::size_t n = c.n.sestetti.size();
  e.passa.reserve(n);
  e.governaSestetto.reserve(n);
  if ((c.opzioni & QB07_SENZA_FATTI) == 0) {
    e.fatti.reserve(n);
    e.forze.reserve(n * static_cast<std::size_t>(e.numTirafondi));
  }
}

static void Chiudi(CorsaLib& c, bool eseguita) {
  EsitoLib& e = *c.esito;
  if (eseguita) {
    e.numSestetti = static_cast<int>(c.n.sestetti.size());
    e.governa = Vincono(c, e.governa, false);
    e.governaControllo = Vincono(c, e.governaControllo, true);
  } else {
    e.stato = StatoNodo::NonEseguito;
    Svuota(e);
  }
  PrendiAvvisi(c, eseguita);
}

std::shared_ptr<EsitoLib> VerificaLib(const NodoLib& n, int metodo, unsigned opzioni) {
  const unsigned fermate = n.fermate;
  CorsaLib c = {.n = n, .opzioni = opzioni};
  EsitoLib& e = *c.esito;
  *c.nodo = n.dati.variante[metodo];
  c.riquadri = n.dati.riquadri[metodo];
  c.l->nodo = c.nodo.get();
  c.l->suite = &n.tabelle->suite;
  c.l->TipoVer = e.metodo = c.nodo->TipoVer = metodo;
  e.numTirafondi = c.nodo->NTir;
  AzzeraFault();
  e.geometria = ControlliGeometria(*c.nodo, metodo);
  e.stato = StatoNodo::Verificato;
  bool eseguita = Ammette(c);
  if (eseguita) Riserva(c);
  std::size_t prima = 0;
  do {
    if (n.fermate != fermate) return nullptr;
    eseguita = eseguita && Pezzo(c, prima);
    prima += MaxSoll;
  } while (eseguita && prima < n.sestetti.size());
  Chiudi(c, eseguita);
  return c.esito;
}
