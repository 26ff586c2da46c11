// app/batch/riepilogo.cpp - the list, the earlier output that is taken up, the workers, the output.
#include "app/batch/riepilogo.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/batch/compiti.h"
#include "app/batch/dati.h"
#include "app/batch/piattaforma_batch.h"
#include "app/batch/sistema.h"
#include "app/muto/ospite_muto.h"
#include "core/eventi.h"
#include "core/file.h"
#include "core/testo.h"
#include "model/stato.h"
#include "panels/lavoro_finestre.h"
#include "panels/programma.h"
#include "results/riepilogo.h"

constexpr int ENTRAMBI[] = {MetodoTA, MetodoSLU};

namespace {
struct Incarico {  // one node by one method
  std::string percorso;
  int metodo = -1;  // -1: the file's own
};

struct CorsaRiepilogo {
  const Opzioni& o = ospite.opzioni;
  std::vector<Incarico> incarichi;
  std::vector<RigaRipresa> ripresa;
  FormatoRiepilogo formato = FormatoRiepilogo::Json;
  std::string suiteSha;
  std::string uscita;                        // gathered, when it goes to a file
  FotografiaProgramma inizio;                // the panels right behind the start
  bool toccato = false;                      // in a worker: a joint was loaded since
  std::map<std::size_t, std::string> fatti;  // objects that wait for their turn
  std::size_t emessi = 0;
  std::string ultimoErrore;
  int stato = 0;
};
}  // namespace

// ---- what to do ----

static std::vector<std::string> Righe(std::string_view t) {
  std::vector<std::string> righe;
  while (!t.empty()) {
    const std::size_t fine = std::min(t.find('\n'), t.size());
    std::string_view riga = t.substr(0, fine);
    if (riga.ends_with('\r')) riga.remove_suffix(1);
    righe.emplace_back(riga);
    t.remove_prefix(std::min(fine + 1, t.size()));
  }
  return righe;
}

static bool LeggiElenco(const std::string& nome, std::vector<std::string>& percorsi) {
  std::string testo;
  if (!LeggiFlusso(nome, testo)) {
    Errore("--elenco=" + nome + ": elenco non leggibile");
    return false;
  }
  constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";
  if (testo.starts_with(MARCA_UTF8)) testo.erase(0, MARCA_UTF8.size());
  for (std::string& r : Righe(testo))
    if (!Rifila(r).empty()) percorsi.push_back(std::move(r));
  return true;
}

static bool RaccogliIncarichi(CorsaRiepilogo& c) {
  std::vector<std::string> percorsi = c.o.argomenti;
  if (!c.o.elenco.empty() && !LeggiElenco(c.o.elenco, percorsi)) return false;
  for (const std::string& p : percorsi) {
    if (!c.o.entrambi) c.incarichi.push_back({p, c.o.metodo});
    else
      for (const int m : ENTRAMBI) c.incarichi.push_back({p, m});
  }
  return true;
}

static bool LeggiRipresa(CorsaRiepilogo& c) {
  if (c.o.riprendi.empty()) return true;
  FileLettura f;
  if (!ApriLettura(f, c.o.riprendi)) {
    Errore("--riprendi=" + c.o.riprendi + ": file non leggibile");
    return false;
  }
  const bool finita = f.byte.empty() || f.byte.back() == '\n';
  const std::vector<std::string> righe = Righe(f.byte);
  for (std::size_t k = 0; k < righe.size(); ++k) {
    RigaRipresa r;
    const EsitoRipresa e = LeggiRigaRipresa(righe[k], finita || k + 1 < righe.size(), r);
    if (e == EsitoRipresa::Letta) c.ripresa.push_back(std::move(r));
    if (e == EsitoRipresa::Troncata)
      std::fprintf(stderr, "avviso: %s: l'ultima riga è troncata, sarà rifatta\n", SuUnaRiga(c.o.riprendi).c_str());
    if (e != EsitoRipresa::NonValida) continue;
    Errore("--riprendi=" + c.o.riprendi + ": riga " + std::to_string(k + 1) + ": non è un risultato di riepilogo");
    return false;
  }
  return true;
}

// ---- one piece of work, in its own process ----

constexpr char PRESA = '=';  // in front of the position of an earlier line that holds

// Without reading the whole: inside a text the quotes of this member would be escaped.
static int StatoOggetto(std::string_view oggetto) {
  constexpr std::string_view MEMBRO = "\"stato\":\"";
  const std::size_t dove = oggetto.find(MEMBRO);
  if (dove == std::string_view::npos) return 2;
  const std::string_view resto = oggetto.substr(dove + MEMBRO.size());
  for (int k = 0; k < 3; ++k)
    if (resto.starts_with(std::string(NOME_STATO[k]) + '"')) return k;
  return 2;
}

// Empty: no earlier line holds.
static std::string Ripresa(const CorsaRiepilogo& c, const NodoGiudicato& n) {
  for (std::size_t k = 0; k < c.ripresa.size(); ++k)
    if (c.ripresa[k].percorso == n.percorso && RipresaVale(c.ripresa[k], n, c.o.tutteLeRighe)) return PRESA + std::to_string(k);
  return {};
}

static NodoGiudicato Prepara(const CorsaRiepilogo& c, const Incarico& i) {
  NodoGiudicato n;
  n.percorso = i.percorso;
  n.nome = NomeSenzaEstensione(i.percorso);
  n.metodo = i.metodo;
  n.decimale = suite.Decimale;
  n.rispondiOk = c.o.rispondiOk;
  n.suite_sha256 = c.suiteSha;
  Sha256File(FileDelNodo(i.percorso), n.sha256);
  return n;
}

// One line: the object, or the earlier one that holds. The panels start as behind the start, the tables clean.
static std::string Lavora(CorsaRiepilogo& c, const Incarico& i) {
  NodoGiudicato n = Prepara(c, i);
  if (i.metodo >= 0)
    if (std::string presa = Ripresa(c, n); !presa.empty()) return presa;
  if (c.toccato) RipristinaProgramma(*c.inizio);
  AzzeraLavoro();
  c.toccato = true;
  if (!CaricaMuto(i.percorso)) {
    NonCaricato(n);
    return NodoInJson(n, c.o.tutteLeRighe);
  }
  if (i.metodo >= 0) ScegliMetodoMuto(i.metodo);
  n.metodo = nodo.TipoVer;
  if (i.metodo < 0)
    if (std::string presa = Ripresa(c, n); !presa.empty()) return presa;
  GiudicaMuto(n, lavoro);
  return NodoInJson(n, c.o.tutteLeRighe);
}

// ---- output ----

static void DiErrore(CorsaRiepilogo& c, std::string_view oggetto) {
  json::Letto v;
  if (!json::Leggi(oggetto, v)) return;
  const std::string testo =
    std::string(json::TestoDi(json::Cerca(v, "percorso"))) + ": " + std::string(json::TestoDi(json::Cerca(v, "motivo")));
  if (testo != c.ultimoErrore) Errore(testo);
  c.ultimoErrore = testo;
}

static void Emetti(CorsaRiepilogo& c, const std::string& testo) {
  if (c.o.uscita.empty()) StampaTesto(testo);
  else c.uscita += testo;
}

// For a person who waits: only where the result itself does not come to the same screen.
static void MostraProgresso(const CorsaRiepilogo& c) {
  if (!ErroriSuTerminale() || (c.o.uscita.empty() && UscitaSuTerminale())) return;
  const std::size_t n = c.incarichi.size();
  ospite.progresso = c.emessi < n;
  std::fprintf(stderr, "\r%zu/%zu%s", c.emessi, n, ospite.progresso ? "" : "\n");
}

// The next one of the list, and all behind it that are there.
static void EmettiPronti(CorsaRiepilogo& c) {
  for (auto f = c.fatti.find(c.emessi); f != c.fatti.end(); f = c.fatti.find(c.emessi)) {
    const std::string& riga = f->second;
    const bool presa = riga.front() == PRESA;
    const RigaRipresa* r = presa ? &c.ripresa[static_cast<std::size_t>(std::stoul(riga.substr(1)))] : nullptr;
    const std::string_view oggetto = presa ? std::string_view(r->oggetto) : std::string_view(riga);
    if (presa && c.formato == FormatoRiepilogo::Jsonl) Emetti(c, r->riga + "\n");
    else Emetti(c, PezzoRiepilogo(c.formato, oggetto, c.emessi == 0));
    const int stato = StatoOggetto(oggetto);
    if (stato == 2) DiErrore(c, oggetto);
    c.stato = std::max(c.stato, stato);
    c.fatti.erase(f);
    ++c.emessi;
    MostraProgresso(c);
  }
}

// ---- workers ----

// Pieces of work that one process does one behind the other, by their position in the list.
using Blocco = std::vector<std::size_t>;
constexpr std::size_t MASSIMO_BLOCCO = 64;

static std::vector<Blocco> InBlocchi(std::size_t quanti, std::size_t processi) {
  const std::size_t lungo = std::clamp<std::size_t>((quanti + 2 * processi - 1) / (2 * processi), 1, MASSIMO_BLOCCO);
  std::vector<Blocco> blocchi;
  for (std::size_t k = 0; k < quanti; ++k) {
    if (k % lungo == 0) blocchi.emplace_back();
    blocchi.back().push_back(k);
  }
  return blocchi;
}

// What the process has printed line by line belongs to its pieces in their order. It died at the first piece without a line: that one is lost;
// those behind it come again, each in a process of its own.
static void Ritira(CorsaRiepilogo& c, const Blocco& b, const EsitoCompito& e, std::vector<Blocco>& ancora) {
  std::vector<std::string> righe = Righe(e.uscita);
  std::erase_if(righe,
                [](const std::string& r) { return !r.starts_with('{') && !r.starts_with(PRESA); });  // the message of a lack of memory
  for (std::size_t k = 0; k < b.size(); ++k) {
    if (k < righe.size()) c.fatti[b[k]] = std::move(righe[k]);
    else if (k > righe.size()) ancora.push_back({b[k]});
    else c.fatti[b[k]] = NodoPersoInJson(Prepara(c, c.incarichi[b[k]]), e.motivo.empty() ? TESTO_MEMORIA : e.motivo, c.o.tutteLeRighe);
  }
}

// One piece alone has no others to keep from harm: this process does it, which spares a copy of itself.
static void Esegui(CorsaRiepilogo& c) {
  if (c.incarichi.size() == 1) {
    c.fatti[0] = Lavora(c, c.incarichi[0]);
    return EmettiPronti(c);
  }
  std::vector<Blocco> blocchi = InBlocchi(c.incarichi.size(), static_cast<std::size_t>(ProcessiInsieme()));
  while (!blocchi.empty()) {
    std::vector<Blocco> ancora;
    Compiti lavori;
    lavori.quanti = blocchi.size();
    lavori.insieme = ProcessiInsieme();
    lavori.esegui = [&](std::size_t b) {
      ospite.lavorante = true;
      for (const std::size_t k : blocchi[b]) Stampa(Lavora(c, c.incarichi[k]));
      return 0;
    };
    lavori.consegna = [&](std::size_t b, const EsitoCompito& e) {
      Ritira(c, blocchi[b], e, ancora);
      EmettiPronti(c);
    };
    EseguiCompiti(lavori);
    blocchi = std::move(ancora);
  }
}

// ---- the verb ----

static FormatoRiepilogo FormatoScelto(const Opzioni& o) {
  for (const RigaFormatoRiepilogo& f : FORMATI_RIEPILOGO)
    if (o.formato == f.nome) return f.formato;
  return o.uscita.empty() && UscitaSuTerminale() ? FormatoRiepilogo::Testo : FormatoRiepilogo::Json;
}

static bool ScriviUscitaSuFile(CorsaRiepilogo& c) {
  if (c.o.uscita.empty() || SostituisciByte(c.o.uscita, c.uscita)) return true;
  Errore("--uscita=" + c.o.uscita + ": file non scritto");
  return false;
}

int ComandoRiepilogo() {
  ospite.dati = true;
  CorsaRiepilogo c;
  c.formato = FormatoScelto(c.o);
  if (!RaccogliIncarichi(c) || !LeggiRipresa(c) || !AvviaPerDati()) return 2;
  c.suiteSha = Sha256Suite();
  c.inizio = FotografaProgramma();
  Emetti(c, TestaRiepilogo(c.formato));
  Esegui(c);
  Emetti(c, PiedeRiepilogo(c.formato));
  return ScriviUscitaSuFile(c) ? c.stato : 2;
}
