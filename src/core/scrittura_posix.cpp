// core/scrittura_posix.cpp - the writing aside and renaming by POSIX calls.
#include "core/scrittura.h"

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

constexpr std::size_t MASSIMO_BLOCCO = 1u << 30;  // bytes of one write
constexpr int PROVE_NOME = 100;                   // names drawn until one is free
constexpr mode_t PERMESSI = 0777, SCRIVE = 0222;

namespace {
struct Posto {
  std::string percorso;  // links followed
  std::string cartella;  // of percorso, with its separator; empty: the current one
  bool esiste = false;
  struct stat prima = {};  // the former file, if there is one
};
}  // namespace

static std::errc Errore() {
  if (errno == EDQUOT) return std::errc::no_space_on_device;  // a quota is a disk of its own size
  return static_cast<std::errc>(errno != 0 ? errno : EIO);
}

template <class Chiamata>
static auto Ripeti(Chiamata chiamata) {  // again as long as a signal interrupts it
  auto esito = chiamata();
  while (esito < 0 && errno == EINTR) esito = chiamata();
  return esito;
}

static std::errc SegueCollegamento(Posto& p) {
  char* const vero = realpath(p.percorso.c_str(), nullptr);
  if (vero == nullptr) return Errore();
  p.percorso = vero;
  std::free(vero);
  return lstat(p.percorso.c_str(), &p.prima) == 0 ? std::errc{} : Errore();
}

static std::errc EsaminaFile(Posto& p) {
  if (S_ISLNK(p.prima.st_mode))
    if (const std::errc e = SegueCollegamento(p); e != std::errc{}) return e;
  if (S_ISDIR(p.prima.st_mode)) return std::errc::is_a_directory;
  if (!S_ISREG(p.prima.st_mode)) return std::errc::not_supported;
  if ((p.prima.st_mode & SCRIVE) == 0) return std::errc::permission_denied;  // also for a user whom no bit stops
  return faccessat(AT_FDCWD, p.percorso.c_str(), W_OK, AT_EACCESS) == 0 ? std::errc{} : Errore();
}

static std::errc Esamina(const std::string& sistema, Posto& p) {
  if (sistema.empty() || sistema.find('\0') != std::string::npos) return std::errc::invalid_argument;
  if (sistema.back() == '/') return std::errc::is_a_directory;
  p.percorso = sistema;
  p.esiste = lstat(sistema.c_str(), &p.prima) == 0;
  if (!p.esiste && errno != ENOENT) return Errore();
  if (p.esiste)
    if (const std::errc e = EsaminaFile(p); e != std::errc{}) return e;
  p.cartella = p.percorso.substr(0, p.percorso.find_last_of('/') + 1);
  return {};
}

// Opened before anything is changed. A folder that may be written and not read cannot be synced: -1 and no error.
static std::errc ApriCartella(const std::string& cartella, int& fd) {
  fd = Ripeti([&] { return open(cartella.empty() ? "." : cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
  return fd >= 0 || errno == EACCES ? std::errc{} : Errore();
}

// Mode 0600 until the bytes are those of a file whose mode is known; a new file has what the umask leaves.
static int CreaAccanto(const Posto& p, std::string& accanto) {
  for (int prova = 0; prova < PROVE_NOME; ++prova) {
    unsigned char caso[16];
    if (getentropy(caso, sizeof caso) != 0) return -1;
    accanto = p.cartella + ".qb7-";
    for (const unsigned char c : caso) accanto += "0123456789abcdefghijklmnopqrstuv"[c % 32];
    const int fd =
      Ripeti([&] { return open(accanto.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, p.esiste ? 0600 : 0666); });
    if (fd >= 0 || errno != EEXIST) return fd;
  }
  return -1;
}

// A group that cannot be kept is let do no more than everybody. Where the file system gives all files one mode there is nothing to set.
static bool ComePrima(int fd, const struct stat& prima) {
  struct stat ora = {};
  if (fstat(fd, &ora) != 0) return false;
  mode_t modo = prima.st_mode & PERMESSI;
  const auto passa = [&](uid_t utente) { return Ripeti([&] { return fchown(fd, utente, prima.st_gid); }) == 0; };
  const bool altri = ora.st_uid != prima.st_uid || ora.st_gid != prima.st_gid;
  if (altri && !passa(prima.st_uid) && ora.st_gid != prima.st_gid && !passa(static_cast<uid_t>(-1)))
    modo &= static_cast<mode_t>(~070u | (modo & 07u) << 3);
  return (ora.st_mode & PERMESSI) == modo || Ripeti([&] { return fchmod(fd, modo); }) == 0;
}

static bool ScriviTutto(int fd, std::string_view byte) {
  while (!byte.empty()) {
    const ssize_t scritti = Ripeti([&] { return write(fd, byte.data(), std::min(byte.size(), MASSIMO_BLOCCO)); });
    if (scritti < 0) return false;
    if (scritti == 0) {
      errno = ENOSPC;
      return false;
    }
    byte.remove_prefix(static_cast<std::size_t>(scritti));
  }
  return true;
}

static bool SulDisco(int fd) {  // a file system that knows no syncing is as good as it gets
  return Ripeti([&] { return fsync(fd); }) == 0 || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
}

static bool Chiudi(int fd) { return close(fd) == 0 || errno == EINTR; }  // interrupted: closed all the same

static std::errc ScriviAccanto(const Posto& p, std::string_view byte, Tenuta tenuta, std::string& accanto) {
  const int fd = CreaAccanto(p, accanto);
  if (fd < 0) {
    accanto.clear();
    return Errore();
  }
  const bool scritto = (!p.esiste || ComePrima(fd, p.prima)) && ScriviTutto(fd, byte) && (tenuta == Tenuta::Rifacibile || SulDisco(fd));
  const std::errc e = scritto ? std::errc{} : Errore();
  return Chiudi(fd) || !scritto ? e : Errore();
}

std::errc ControllaPosto(const std::string& sistema) {
  Posto p;
  if (const std::errc e = Esamina(sistema, p); e != std::errc{}) return e;
  return faccessat(AT_FDCWD, p.cartella.empty() ? "." : p.cartella.c_str(), W_OK | X_OK, AT_EACCESS) == 0 ? std::errc{} : Errore();
}

std::errc MettiAlPosto(const std::string& sistema, std::string_view byte, Tenuta tenuta) {
  Posto p;
  std::string accanto;
  int cartella = -1;
  std::errc e = Esamina(sistema, p);
  if (e == std::errc{} && tenuta == Tenuta::Duratura) e = ApriCartella(p.cartella, cartella);
  if (e == std::errc{}) e = ScriviAccanto(p, byte, tenuta, accanto);
  if (e == std::errc{} && Ripeti([&] { return std::rename(accanto.c_str(), p.percorso.c_str()); }) != 0) e = Errore();
  if (e != std::errc{} && !accanto.empty()) Ripeti([&] { return unlink(accanto.c_str()); });
  if (e == std::errc{} && cartella >= 0 && !SulDisco(cartella))
    e = Errore();  // the new file stands, but a power cut may undo it: a failure
  if (cartella >= 0) Chiudi(cartella);
  return e;
}
