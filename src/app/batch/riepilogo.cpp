// app/batch/riepilogo.cpp - the list, the earlier output that is taken up, the workers, the output.
#include "app/batch/riepilogo.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/batch/compiti.h"
#include "app/batch/piattaforma_batch.h"
#include "app/batch/sistema.h"
#include "app/muto/ospite_muto.h"
#include "core/eventi.h"
#include "core/file.h"
#include "model/stato.h"
#include "results/riepilogo.h"

constexpr int ENTRAMBI[] = {MetodoTA, MetodoSLU};

struct Incarico {                  // one node by one method
  std::string percorso;
  int metodo = -1;                 // -1: the file's own
};

struct CorsaRiepilogo {
  const Opzioni& o;
  std::vector<Incarico> incarichi;
  std::vector<RigaRipresa> ripresa;
  FormatoRiepilogo formato = FormatoRiepilogo::Json;
  std::string suiteSha;
  std::string uscita;              // gathered, when it goes to a file
  std::string ultimoErrore;
  int stato = 0;
};

static void Errore(const std::string& testo) { std::fprintf(stderr, "errore: %s\n", SuUnaRiga(testo).c_str()); }

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
  if (!LeggiTestoOspite(nome, testo)) {
    Errore("--elenco=" + nome + ": elenco non leggibile");
    return false;
  }
  for (std::string& r : Righe(testo))
    if (!r.empty()) percorsi.push_back(std::move(r));
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
    if (e == EsitoRipresa::Troncata) std::fprintf(stderr, "avviso: %s: l'ultima riga è troncata, sarà rifatta\n", SuUnaRiga(c.o.riprendi).c_str());
    if (e != EsitoRipresa::NonValida) continue;
    Errore("--riprendi=" + c.o.riprendi + ": riga " + std::to_string(k + 1) + ": non è un risultato di riepilogo");
    return false;
  }
  return true;
}

// ---- one piece of work, in its own process ----

constexpr char PRESA = '=';        // in front of the position of an earlier line that holds

static int StatoDi(StatoNodo s) { return static_cast<int>(s); }

static int StatoOggetto(std::string_view oggetto) {
  json::Letto v;
  if (!json::Leggi(oggetto, v)) return 2;
  const std::string_view stato = json::TestoDi(json::Cerca(v, "stato"));
  for (int k = 0; k < 3; ++k)
    if (stato == NOME_STATO[k]) return k;
  return 2;
}

static bool Riprende(const CorsaRiepilogo& c, const NodoGiudicato& n, int& stato) {
  for (std::size_t k = 0; k < c.ripresa.size(); ++k) {
    if (c.ripresa[k].percorso != n.percorso || !RipresaVale(c.ripresa[k], n, c.o.tutteLeRighe)) continue;
    stato = StatoOggetto(c.ripresa[k].oggetto);
    Stampa(PRESA + std::to_string(k));
    return true;
  }
  return false;
}

static NodoGiudicato Prepara(const CorsaRiepilogo& c, const Incarico& i) {
  NodoGiudicato n;
  n.percorso = i.percorso;
  n.nome = NomeSenzaEstensione(i.percorso);
  n.metodo = i.metodo;
  n.decimale = suite.Decimale;
  n.rispondiOk = c.o.rispondiOk;
  n.suite_sha256 = c.suiteSha;
  Sha256File(i.percorso, n.sha256);
  return n;
}

static int Lavora(const CorsaRiepilogo& c, const Incarico& i) {
  NodoGiudicato n = Prepara(c, i);
  int stato = 2;
  if (i.metodo >= 0 && Riprende(c, n, stato)) return stato;
  const std::unique_ptr<Lavoro> l = std::make_unique<Lavoro>();
  if (!CaricaMuto(i.percorso)) {
    NonCaricato(n);
  } else {
    if (i.metodo >= 0) ScegliMetodoMuto(i.metodo);
    n.metodo = nodo.TipoVer;
    if (i.metodo < 0 && Riprende(c, n, stato)) return stato;
    GiudicaMuto(n, *l);
  }
  Stampa(NodoInJson(n, c.o.tutteLeRighe));
  return StatoDi(n.stato);
}

// ---- output ----

static void DiErrore(CorsaRiepilogo& c, std::string_view oggetto) {
  json::Letto v;
  if (!json::Leggi(oggetto, v)) return;
  const std::string testo = std::string(json::TestoDi(json::Cerca(v, "percorso"))) + ": " + std::string(json::TestoDi(json::Cerca(v, "motivo")));
  if (testo != c.ultimoErrore) Errore(testo);
  c.ultimoErrore = testo;
}

static void Emetti(CorsaRiepilogo& c, const std::string& testo) {
  if (c.o.uscita.empty()) StampaTesto(testo);
  else c.uscita += testo;
}

static void Consegna(CorsaRiepilogo& c, std::size_t k, const EsitoCompito& e) {
  std::string_view riga = e.uscita;
  if (riga.ends_with('\n')) riga.remove_suffix(1);
  std::string perso;
  if (!e.motivo.empty() || riga.empty()) {
    perso = NodoPersoInJson(Prepara(c, c.incarichi[k]), e.motivo.empty() ? "il processo non ha dato un risultato" : e.motivo, c.o.tutteLeRighe);
    riga = perso;
  }
  int stato = e.motivo.empty() ? e.stato : 2;
  const bool presa = riga.front() == PRESA;
  const RigaRipresa* r = presa ? &c.ripresa[static_cast<std::size_t>(std::stoul(std::string(riga.substr(1))))] : nullptr;
  const std::string_view oggetto = presa ? std::string_view(r->oggetto) : riga;
  if (presa && c.formato == FormatoRiepilogo::Jsonl) Emetti(c, r->riga + "\n");
  else Emetti(c, PezzoRiepilogo(c.formato, oggetto, k == 0));
  if (stato == 2) DiErrore(c, oggetto);
  c.stato = std::max(c.stato, stato);
  if (ErroriSuTerminale()) std::fprintf(stderr, "\r%zu/%zu%s", k + 1, c.incarichi.size(), k + 1 == c.incarichi.size() ? "\n" : "");
}

static bool Avvia(CorsaRiepilogo& c) {
  MontaPiattaformaMuta();
  muto.rispondiOk = c.o.rispondiOk;
  const bool avviato = AvviaMuto(c.o.rigaComando, c.o.decimale != 0 ? c.o.decimale : DecimaleSistema());
  const std::size_t avvisi = muto.riquadri.size() - (avviato || muto.riquadri.empty() ? 0 : 1);
  for (std::size_t k = 0; k < avvisi; ++k) std::fprintf(stderr, "avviso: %s\n", SuUnaRiga(muto.riquadri[k].testo).c_str());
  if (!avviato) Errore(muto.riquadri.empty() ? "avvio non riuscito" : muto.riquadri.back().testo);
  return avviato;
}

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
  CorsaRiepilogo c = {.o = ospite.opzioni};
  c.formato = FormatoScelto(c.o);
  if (!RaccogliIncarichi(c) || !LeggiRipresa(c) || !Avvia(c)) return 2;
  c.suiteSha = Sha256Suite();
  Emetti(c, TestaRiepilogo(c.formato));
  Compiti lavori;
  lavori.quanti = c.incarichi.size();
  lavori.insieme = ProcessiInsieme();
  lavori.esegui = [&c](std::size_t k) { return Lavora(c, c.incarichi[k]); };
  lavori.consegna = [&c](std::size_t k, const EsitoCompito& e) { Consegna(c, k, e); };
  EseguiCompiti(lavori);
  Emetti(c, PiedeRiepilogo(c.formato));
  return ScriviUscitaSuFile(c) ? c.stato : 2;
}
