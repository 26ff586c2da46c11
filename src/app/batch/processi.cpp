// app/batch/processi.cpp - programs by posix_spawn; every one that ended is reaped.
#include "app/batch/processi.h"

#include "core/comando.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

extern char** environ;

// Process number of the started program, 0 none.
static pid_t Lancia(const std::string& programma, const std::string& argomento) {
  std::string file = TrovaProgramma(programma), unico = argomento;
  if (file.empty()) return 0;
  posix_spawn_file_actions_t azioni;
  if (posix_spawn_file_actions_init(&azioni) != 0) return 0;
  posix_spawn_file_actions_addopen(&azioni, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&azioni, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  char* argomenti[] = {file.data(), unico.empty() ? nullptr : unico.data(), nullptr};
  pid_t processo = 0;
  const int errore = posix_spawn(&processo, file.c_str(), &azioni, nullptr, argomenti, environ);
  posix_spawn_file_actions_destroy(&azioni);
  return errore == 0 ? processo : 0;
}

bool EseguiProgramma(const std::string& programma, const std::string& argomento) {
  const pid_t processo = Lancia(programma, argomento);
  if (processo == 0) return false;
  int stato = 0;
  while (waitpid(processo, &stato, 0) < 0 && errno == EINTR) {}
  return true;
}

int AvviaProgramma(const std::string& programma, const std::string& argomento) { return static_cast<int>(Lancia(programma, argomento)); }

bool ProgrammaVivo(int processo) {
  int stato = 0;
  return waitpid(static_cast<pid_t>(processo), &stato, WNOHANG) == 0;
}
