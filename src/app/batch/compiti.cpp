// app/batch/compiti.cpp - workers started while there is room, their outcomes kept until it is their turn.
#include "app/batch/compiti.h"

#include "app/batch/piattaforma_batch.h"
#include "app/batch/sistema.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

constexpr int STATO_MASSIMO = 2;  // of the program

namespace {
struct Andamento {
  std::size_t prossimo = 0;  // the next one to start
  std::size_t consegnati = 0;
  std::map<std::size_t, EsitoCompito> esiti;                 // ended, their turn not yet come
  std::vector<std::pair<std::size_t, std::string>> risorse;  // of those at work
};
}  // namespace

static EsitoCompito EsitoDi(Figlio& f) {
  EsitoCompito e;
  e.uscita = std::move(f.uscita);
  e.uscita.resize(e.uscita.rfind('\n') + 1);  // no line end: nothing is left
  if (f.segnale != 0) e.motivo = "il processo è stato terminato dal segnale " + NomeSegnale(f.segnale);
  else if (f.stato < 0) e.motivo = "il processo è finito senza dire come";
  else if (f.stato > STATO_MASSIMO) e.motivo = "il processo è finito con lo stato " + std::to_string(f.stato);
  else e.stato = f.stato;
  return e;
}

static bool InUso(const Andamento& a, const std::string& risorsa) {
  return std::any_of(a.risorse.begin(), a.risorse.end(), [&](const auto& r) { return r.second == risorsa; });
}

// Starts in the order of the list while there is room; the first that finds its resource in use holds up those behind it.
static void AvviaQuanti(const Compiti& c, Andamento& a) {
  const auto posti = static_cast<std::size_t>(std::max(c.insieme, 1));
  for (; a.prossimo < c.quanti && figli.size() < posti; ++a.prossimo) {
    const std::size_t k = a.prossimo;
    if (c.risorsa != nullptr) {
      const std::string sua = c.risorsa(k);
      if (InUso(a, sua)) return;
      a.risorse.emplace_back(k, sua);
    }
    if (AvviaFiglio(k, [&] { Esci(c.esegui(k)); })) continue;
    std::erase_if(a.risorse, [k](const auto& r) { return r.first == k; });
    if (!figli.empty()) return;  // the system has no room for it now: after the next one has ended
    a.esiti[k].motivo = "il processo non è partito";
  }
}

static void Ritira(Andamento& a) {
  for (Figlio& f : figli) {
    if (!f.finito) continue;
    a.esiti[f.compito] = EsitoDi(f);
    std::erase_if(a.risorse, [&f](const auto& r) { return r.first == f.compito; });
  }
  std::erase_if(figli, [](const Figlio& f) { return f.finito; });
}

void EseguiCompiti(const Compiti& c) {
  const GuardiaSegnali guardia;
  Andamento a;
  while (a.consegnati < c.quanti) {
    AvviaQuanti(c, a);
    const auto primo = a.esiti.find(a.consegnati);
    if (primo == a.esiti.end()) AttendiFigli();
    FinisciSeRichiesto();
    Ritira(a);
    if (primo == a.esiti.end()) continue;
    c.consegna(a.consegnati++, primo->second);
    a.esiti.erase(primo);
  }
}
