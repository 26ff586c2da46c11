// app/batch/sistema_posix.cpp - descriptors, posix_spawn, fork, poll and signals.
#include "app/batch/sistema.h"

#include "core/comando.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

#include <cerrno>
#include <cstdio>
#include <cstdlib>

extern char** environ;

// ---- standard channels ---------------------------------------------------------------------------------------------------------------

constexpr int SCRITTURE[] = {SIGPIPE, SIGXFSZ};  // what they say, the failed write says too

void PreparaCanali() {
  constexpr int MODI[] = {O_WRONLY, O_RDONLY, O_WRONLY};  // of descriptors 0 to 2; the lowest free number is the one that is missing
  for (int d = 0; d <= STDERR_FILENO; ++d)
    if (fcntl(d, F_GETFD) < 0 && errno == EBADF && open("/dev/null", MODI[d]) != d) std::_Exit(2);
  for (const int s : SCRITTURE) signal(s, SIG_IGN);
  signal(SIGCHLD, SIG_DFL);  // ignored by whoever started us, no process would leave its status
}

static std::string Motivo(int errore) {
  switch (errore) {
    case EBADF: return "chiusa";
    case EPIPE: return "nessuno la legge";
    case ENOSPC:
    case EDQUOT: return "spazio esaurito";
    case EFBIG: return "file troppo grande";
    default: return "errore di sistema " + std::to_string(errore);
  }
}

bool UscitaSuTerminale() { return isatty(STDOUT_FILENO) == 1; }
bool ErroriSuTerminale() { return isatty(STDERR_FILENO) == 1; }

bool ScriviUscita(std::string_view testo, std::string& motivo) {
  while (!testo.empty()) {
    const ssize_t scritti = write(STDOUT_FILENO, testo.data(), testo.size());
    if (scritti >= 0) {
      testo.remove_prefix(static_cast<std::size_t>(scritti));
      continue;
    }
    const int errore = errno;
    if ((errore != EINTR && errore != EAGAIN) || segnali.giunto != 0) {
      motivo = Motivo(errore);
      return false;
    }
    pollfd uscita = {STDOUT_FILENO, POLLOUT, 0};  // a channel that does not wait by itself
    if (errore == EAGAIN) poll(&uscita, 1, -1);
  }
  return true;
}

// ---- outside programs ----------------------------------------------------------------------------------------------------------------

// Process number of the started program, 0 none. It starts with the signals as they are by default.
static pid_t Lancia(const std::string& programma, const std::string& argomento) {
  std::string file = TrovaProgramma(programma), unico = argomento;
  posix_spawn_file_actions_t azioni;
  posix_spawnattr_t attributi;
  if (file.empty() || posix_spawn_file_actions_init(&azioni) != 0) return 0;
  if (posix_spawnattr_init(&attributi) != 0) {
    posix_spawn_file_actions_destroy(&azioni);
    return 0;
  }
  sigset_t normali;
  sigemptyset(&normali);
  for (const int s : SCRITTURE) sigaddset(&normali, s);
  posix_spawnattr_setsigdefault(&attributi, &normali);
  posix_spawnattr_setflags(&attributi, POSIX_SPAWN_SETSIGDEF);
  posix_spawn_file_actions_addopen(&azioni, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&azioni, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  char* argomenti[] = {file.data(), unico.empty() ? nullptr : unico.data(), nullptr};
  pid_t processo = 0;
  const int errore = posix_spawn(&processo, file.c_str(), &azioni, &attributi, argomenti, environ);
  posix_spawn_file_actions_destroy(&azioni);
  posix_spawnattr_destroy(&attributi);
  return errore == 0 ? processo : 0;
}

// Waits for its end; the system's status word, -1 if the system keeps it to itself.
static int Raccolto(pid_t processo) {
  int stato = 0;
  pid_t esito = 0;
  while ((esito = waitpid(processo, &stato, 0)) < 0 && errno == EINTR) {
  }
  return esito == processo ? stato : -1;
}

bool EseguiProgramma(const std::string& programma, const std::string& argomento) {
  const pid_t processo = Lancia(programma, argomento);
  if (processo != 0) Raccolto(processo);
  return processo != 0;
}

int AvviaProgramma(const std::string& programma, const std::string& argomento) { return static_cast<int>(Lancia(programma, argomento)); }

bool ProgrammaVivo(int processo) {
  int stato = 0;
  return waitpid(static_cast<pid_t>(processo), &stato, WNOHANG) == 0;
}

// ---- signals that ask for the end ------------------------------------------------------------------------------------------------------

constexpr int RICHIESTE[] = {SIGINT, SIGTERM, SIGHUP};

static void Segna(int segnale) {
  const int errore = errno;
  segnali.giunto = segnale;
  if (write(segnali.sveglia[1], "", 1) < 0) errno = errore;
  errno = errore;
}

// Those that are ignored stay so.
static void Gestisci(void (*gestore)(int)) {
  struct sigaction nuova = {}, prima = {};
  nuova.sa_handler = gestore;
  nuova.sa_flags = static_cast<int>(SA_RESETHAND);
  sigemptyset(&nuova.sa_mask);
  for (const int s : RICHIESTE)
    if (sigaction(s, nullptr, &prima) == 0 && prima.sa_handler != SIG_IGN) sigaction(s, &nuova, nullptr);
}

static void ChiudiGuardia() {
  Gestisci(SIG_DFL);
  for (const int d : segnali.sveglia)
    if (d >= 0) close(d);
  segnali.sveglia[0] = segnali.sveglia[1] = -1;
}

GuardiaSegnali::GuardiaSegnali() {
  segnali.giunto = 0;
  if (pipe(segnali.sveglia) != 0) return;  // no room for a pipe: the signals end this process at once, as they do by default
  for (const int d : segnali.sveglia) fcntl(d, F_SETFD, FD_CLOEXEC);
  fcntl(segnali.sveglia[1], F_SETFL, O_NONBLOCK);
  Gestisci(Segna);
}

GuardiaSegnali::~GuardiaSegnali() { ChiudiGuardia(); }

void FinisciSeRichiesto() {
  const int segnale = segnali.giunto;
  if (segnale == 0) return;
  FermaFigli();
  signal(segnale, SIG_DFL);
  raise(segnale);
  std::_Exit(128 + segnale);  // the signal was blocked
}

namespace {
struct NomeDiSegnale {
  int numero;
  const char* nome;
};
}  // namespace

// clang-format off
static constexpr NomeDiSegnale NOMI_SEGNALI[] = {
  { SIGHUP, "SIGHUP" },   { SIGINT, "SIGINT" },   { SIGQUIT, "SIGQUIT" }, { SIGILL, "SIGILL" },   { SIGTRAP, "SIGTRAP" },
  { SIGABRT, "SIGABRT" }, { SIGBUS, "SIGBUS" },   { SIGFPE, "SIGFPE" },   { SIGKILL, "SIGKILL" }, { SIGUSR1, "SIGUSR1" },
  { SIGSEGV, "SIGSEGV" }, { SIGUSR2, "SIGUSR2" }, { SIGPIPE, "SIGPIPE" }, { SIGALRM, "SIGALRM" }, { SIGTERM, "SIGTERM" },
  { SIGXCPU, "SIGXCPU" }, { SIGXFSZ, "SIGXFSZ" }, { SIGSYS, "SIGSYS" },
};
// clang-format on

std::string NomeSegnale(int segnale) {
  std::string testo = std::to_string(segnale);
  for (const NomeDiSegnale& n : NOMI_SEGNALI)
    if (n.numero == segnale) testo.append(" (").append(n.nome).append(")");
  return testo;
}

// ---- processes of its own --------------------------------------------------------------------------------------------------------------

// In the copy: signals as by default, nothing of its brothers, and its end when the first process ends, whatever ends that. Where the system
// does not tell, the next line that it prints does, which nobody reads.
static void DiventaFiglio(pid_t genitore, int canale) {
  ChiudiGuardia();
  segnali.giunto = 0;
  for (const Figlio& f : figli)
    if (f.canale >= 0) close(f.canale);
  figli.clear();
  dup2(canale, STDOUT_FILENO);
  close(canale);
#ifdef __linux__
  prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
  if (getppid() != genitore) std::_Exit(2);
}

bool AvviaFiglio(std::size_t compito, const std::function<void()>& lavoro) {
  int canale[2];
  if (pipe(canale) != 0) return false;
  figli.emplace_back();  // before the copy: no memory can fail behind it
  sigset_t richieste, prima;
  sigemptyset(&richieste);
  for (const int s : RICHIESTE) sigaddset(&richieste, s);
  sigprocmask(SIG_BLOCK, &richieste, &prima);
  const pid_t genitore = getpid(), processo = fork();
  if (processo == 0) {
    close(canale[0]);
    DiventaFiglio(genitore, canale[1]);
    sigprocmask(SIG_SETMASK, &prima, nullptr);
    lavoro();
    std::_Exit(2);
  }
  sigprocmask(SIG_SETMASK, &prima, nullptr);
  close(canale[1]);
  if (processo < 0) {
    close(canale[0]);
    figli.pop_back();
    return false;
  }
  fcntl(canale[0], F_SETFD, FD_CLOEXEC);
  figli.back().compito = compito;
  figli.back().processo = static_cast<int>(processo);
  figli.back().canale = canale[0];
  return true;
}

// Takes what it has printed; at the end of it closes the channel and reaps the process.
static void Raccogli(Figlio& f) {
  char byte[65536];
  const ssize_t letti = read(f.canale, byte, sizeof byte);
  if (letti < 0 && errno == EINTR) return;
  if (letti > 0) {
    f.uscita.append(byte, static_cast<std::size_t>(letti));
    return;
  }
  close(f.canale);
  f.canale = -1;
  const int stato = Raccolto(static_cast<pid_t>(f.processo));
  if (stato >= 0 && WIFEXITED(stato)) f.stato = WEXITSTATUS(stato);
  if (stato >= 0 && WIFSIGNALED(stato)) f.segnale = WTERMSIG(stato);
  f.finito = true;
}

void AttendiFigli() {
  std::vector<pollfd> canali;
  for (const Figlio& f : figli) canali.push_back({f.canale, POLLIN, 0});  // a negative one is passed over
  canali.push_back({segnali.sveglia[0], POLLIN, 0});
  if (poll(canali.data(), static_cast<nfds_t>(canali.size()), -1) <= 0 || segnali.giunto != 0) return;
  for (std::size_t k = 0; k < figli.size(); ++k)
    if (canali[k].revents != 0) Raccogli(figli[k]);
}

void FermaFigli() {
  for (const Figlio& f : figli)
    if (!f.finito) kill(static_cast<pid_t>(f.processo), SIGKILL);
  for (const Figlio& f : figli) {
    if (f.finito) continue;
    close(f.canale);
    Raccolto(static_cast<pid_t>(f.processo));
  }
  figli.clear();
}
