// corredo/disco.h - a disk without room, and what is no file.
#pragma once
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <csignal>
#include <string>

// A device under a name. One of its own where that is allowed: a writer that went wrong would otherwise, run by root, replace the system's.
inline bool MettiDispositivo(const std::string& nome) {
  return mknod(nome.c_str(), S_IFCHR | 0666, makedev(1, 3)) == 0 || (geteuid() != 0 && symlink("/dev/null", nome.c_str()) == 0);
}

// While one lives, no file of this process can grow: each write fails, with std::errc::file_too_large. Pipes and terminals go on.
struct DiscoPieno {
  rlimit prima{};
  void (*segnale)(int) = nullptr;
  DiscoPieno() {
    segnale = std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &prima);
    const rlimit zero{0, prima.rlim_max};
    setrlimit(RLIMIT_FSIZE, &zero);
  }
  ~DiscoPieno() {
    setrlimit(RLIMIT_FSIZE, &prima);
    std::signal(SIGXFSZ, segnale);
  }
  DiscoPieno(const DiscoPieno&) = delete;
  DiscoPieno& operator=(const DiscoPieno&) = delete;
};
