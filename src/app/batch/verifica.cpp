// app/batch/verifica.cpp - the processes of a list of nodes, and one node's load and verification.
#include "app/batch/verifica.h"

#include "app/batch/piattaforma_batch.h"
#include "core/file.h"
#include "core/testo.h"
#include "panels/InsDati.h"
#include "panels/file_nodo.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

static const char* const ESITI[] = {"verificato", "non verificato", "non eseguito"};

struct LavoroNodo {
  std::string nome;                // stem without regard to case: two nodes of one stem write the same report
  pid_t processo = 0;
  int canale = -1;                 // what the process prints; -1 closed
  std::string uscita;              // printed by it, not yet by us
  bool avviato = false, finito = false;
  int stato = 2;
};

bool CaricaNodoOspite(const std::string& percorso) {
  ospite.file.push_back({true, percorso, 1});
  Scatena(InsDati, insDati.Car_Nodo, Evento::Cambio);
  return !esitoFile.annullato && !esitoFile.fallito;
}

int VerificaNodo(const std::string& percorso) {
  if (!CaricaNodoOspite(percorso)) return 2;
  if (ospite.opzioni.metodo >= 0) UtenteSceglie(InsDati, insDati.TipoVer[ospite.opzioni.metodo], 1);
  Scatena(InsDati, insDati.Verifica, Evento::Cambio);
  if (verificaPannello.esito != EsitoVerifica::Eseguita) return 2;
  return verificaPannello.verificato ? 0 : 1;
}

static bool Avvia(LavoroNodo& l, const std::string& percorso) {
  int canale[2];
  if (pipe(canale) != 0) return false;
  std::fflush(stdout);
  const pid_t processo = fork();
  if (processo < 0) {
    close(canale[0]);
    close(canale[1]);
    return false;
  }
  if (processo == 0) {
    close(canale[0]);
    dup2(canale[1], STDOUT_FILENO);
    close(canale[1]);
    Esci(VerificaNodo(percorso));
  }
  close(canale[1]);
  l.processo = processo;
  l.canale = canale[0];
  return true;
}

// Takes what the process has printed; at the end of it closes the channel and reaps the process.
static void Raccogli(LavoroNodo& l) {
  char byte[65536];
  const ssize_t letti = read(l.canale, byte, sizeof byte);
  if (letti < 0 && errno == EINTR) return;
  if (letti > 0) {
    l.uscita.append(byte, static_cast<std::size_t>(letti));
    return;
  }
  close(l.canale);
  l.canale = -1;
  int stato = 0;
  while (waitpid(l.processo, &stato, 0) < 0 && errno == EINTR) {}
  const bool regolare = WIFEXITED(stato) && WEXITSTATUS(stato) <= 1;
  l.stato = regolare ? WEXITSTATUS(stato) : 2;
  l.finito = true;
}

static bool NomeOccupato(const std::vector<LavoroNodo>& lavori, std::size_t k) {
  for (std::size_t j = 0; j < k; ++j)
    if (!lavori[j].finito && lavori[j].nome == lavori[k].nome) return true;
  return false;
}

// Starts nodes in the order of the list while there is room; the first of them waits while its name is in use.
static void AvviaQuanti(std::vector<LavoroNodo>& lavori, const std::vector<std::string>& percorsi, std::size_t& prossimo, int processi) {
  while (prossimo < lavori.size()) {
    const auto attivi = std::count_if(lavori.begin(), lavori.end(), [](const LavoroNodo& l) { return l.avviato && !l.finito; });
    if (attivi >= processi || NomeOccupato(lavori, prossimo)) return;
    LavoroNodo& l = lavori[prossimo];
    if (!Avvia(l, percorsi[prossimo])) {
      if (attivi > 0) return;      // the system has no room for it now: after the next one has ended
      l.finito = true;
    }
    l.avviato = true;
    ++prossimo;
  }
}

static void Attendi(std::vector<LavoroNodo>& lavori) {
  std::vector<pollfd> canali;
  std::vector<LavoroNodo*> di;
  for (LavoroNodo& l : lavori)
    if (l.canale >= 0) {
      canali.push_back({l.canale, POLLIN, 0});
      di.push_back(&l);
    }
  if (canali.empty() || poll(canali.data(), canali.size(), -1) <= 0) return;
  for (std::size_t k = 0; k < canali.size(); ++k)
    if (canali[k].revents != 0) Raccogli(*di[k]);
}

int VerificaNodi(const std::vector<std::string>& percorsi, int processi) {
  std::vector<LavoroNodo> lavori(percorsi.size());
  for (std::size_t k = 0; k < percorsi.size(); ++k) lavori[k].nome = Minuscolo(NomeSenzaEstensione(percorsi[k]));
  std::size_t prossimo = 0, stampato = 0;
  int stato = 0;
  while (stampato < lavori.size()) {
    AvviaQuanti(lavori, percorsi, prossimo, processi);
    LavoroNodo& l = lavori[stampato];
    if (!l.finito) Attendi(lavori);
    std::fwrite(l.uscita.data(), 1, l.uscita.size(), stdout);
    l.uscita.clear();
    if (!l.finito) continue;
    Stampa("NODO " + percorsi[stampato] + ": " + ESITI[l.stato]);
    stato = std::max(stato, l.stato);
    ++stampato;
  }
  return stato;
}
