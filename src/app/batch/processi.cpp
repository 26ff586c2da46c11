// app/batch/processi.cpp - programs by posix_spawn; every one that ended is reaped.
#include "app/batch/processi.h"

#include "core/file.h"
#include "core/testo.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

extern char** environ;

static bool Eseguibile(const std::string& percorso) {
  struct stat s;
  return stat(percorso.c_str(), &s) == 0 && S_ISREG(s.st_mode) && access(percorso.c_str(), X_OK) == 0;
}

// The executable file that this head of a command names, "" none.
static std::string TrovaProgramma(std::string_view testa) {
  if (testa.empty()) return {};
  const std::string scritto = RisolviPercorso(testa);
  if (Eseguibile(scritto)) return scritto;
  const bool exe = testa.size() > 4 && UgualeSenzaMaiuscole(testa.substr(testa.size() - 4), ".exe");
  const std::string altro = RisolviPercorso(exe ? std::string(testa.substr(0, testa.size() - 4)) : std::string(testa) + ".exe");
  return Eseguibile(altro) ? altro : std::string();
}

bool DividiComando(std::string_view comando, std::string& programma, std::string& argomento) {
  std::size_t fine = 0;
  do {
    fine = comando.find(' ', fine);
    programma = TrovaProgramma(comando.substr(0, fine));
    if (programma.empty() && fine != std::string_view::npos) ++fine;
  } while (programma.empty() && fine != std::string_view::npos);
  argomento = fine == std::string_view::npos ? std::string() : std::string(comando.substr(fine + 1));
  return !programma.empty();
}

// Process number of the started program, 0 none.
static pid_t Lancia(const std::string& comando) {
  std::string programma, argomento;
  if (!DividiComando(comando, programma, argomento)) return 0;
  posix_spawn_file_actions_t azioni;
  if (posix_spawn_file_actions_init(&azioni) != 0) return 0;
  posix_spawn_file_actions_addopen(&azioni, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&azioni, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  char* argomenti[] = {programma.data(), argomento.empty() ? nullptr : argomento.data(), nullptr};
  pid_t processo = 0;
  const int errore = posix_spawn(&processo, programma.c_str(), &azioni, nullptr, argomenti, environ);
  posix_spawn_file_actions_destroy(&azioni);
  return errore == 0 ? processo : 0;
}

bool EseguiProgramma(const std::string& comando) {
  const pid_t processo = Lancia(comando);
  if (processo == 0) return false;
  int stato = 0;
  while (waitpid(processo, &stato, 0) < 0 && errno == EINTR) {}
  return true;
}

int AvviaProgramma(const std::string& comando) { return static_cast<int>(Lancia(comando)); }

bool ProgrammaVivo(int processo) {
  int stato = 0;
  return waitpid(static_cast<pid_t>(processo), &stato, WNOHANG) == 0;
}
