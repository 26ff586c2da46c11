// tests/guasti/guasti.cpp - laid over a program by the loader (LD_PRELOAD): counts the calls with which it writes under one folder, and
// spoils one of them. Told by the environment:
//   QB07_GUASTI_SOTTO   the folder, absolute and without links; calls on other files pass and do not count
//   QB07_GUASTI_FILE    the file: of the calls that only look, those at it count, and the question whether the folder may be written
//   QB07_GUASTI_MODO    errore      the n-th call fails with the error QB07_GUASTI_ERRNO and does nothing
//                       pieno       so does every call that needs room (creating, writing, syncing) from the n-th on
//                       prima, dopo the process is killed before, behind the n-th call
//                       interrotte  each call is interrupted once (EINTR) before it is let through; a close has closed all the same
//                       corte       each write takes a third of what it is given, at least one byte
//   QB07_GUASTI_N       n, from 1
//   QB07_GUASTI_ESITO   file to which the name of a spoilt call is appended; still empty: the run never came so far
// Seen are open, write, fsync, fchmod, fchown, close, rename, unlink, stat and access in their usual forms, and the stream calls of the C
// library for writing, so that a writer that goes another way than the program's one is met too.
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int MASSIMO_DESCRITTORI = 1024;

enum class Modo { Nessuno, Errore, Pieno, Prima, Dopo, Interrotte, Corte };

struct Stato {
  Modo modo = Modo::Nessuno;
  char sotto[PATH_MAX] = {};
  const char *file = nullptr, *esito = nullptr;
  long n = 0, contate = 0;
  int errore = EIO;
  bool seguito[MASSIMO_DESCRITTORI] = {};
  bool interrotta = false;  // the call before was interrupted: this one goes through
  bool letto = false;
};
Stato stato;

const char* Ambiente(const char* nome) {
  const char* v = std::getenv(nome);
  return v != nullptr ? v : "";
}

void LeggiAmbiente() {
  if (stato.letto) return;
  stato.letto = true;
  constexpr const char* NOMI[] = {"", "errore", "pieno", "prima", "dopo", "interrotte", "corte"};
  for (int k = 1; k < 7; ++k)
    if (std::strcmp(Ambiente("QB07_GUASTI_MODO"), NOMI[k]) == 0) stato.modo = static_cast<Modo>(k);
  std::snprintf(stato.sotto, sizeof stato.sotto, "%s/", Ambiente("QB07_GUASTI_SOTTO"));
  stato.file = Ambiente("QB07_GUASTI_FILE");
  stato.esito = Ambiente("QB07_GUASTI_ESITO");
  stato.n = std::atol(Ambiente("QB07_GUASTI_N"));
  if (const int e = std::atoi(Ambiente("QB07_GUASTI_ERRNO")); e != 0) stato.errore = e;
}

template <class F>
F Vera(F, const char* nome) {
  return reinterpret_cast<F>(dlsym(RTLD_NEXT, nome));
}
#define VERA(nome) Vera(&::nome, #nome)

bool Riguarda(const char* percorso) {  // under the folder, or the folder itself
  LeggiAmbiente();
  if (stato.modo == Modo::Nessuno || percorso == nullptr) return false;
  const std::size_t l = std::strlen(stato.sotto);
  return std::strncmp(percorso, stato.sotto, l) == 0 || (std::strlen(percorso) == l - 1 && std::strncmp(percorso, stato.sotto, l - 1) == 0);
}

bool Guarda(const char* percorso) { return Riguarda(percorso) && std::strcmp(percorso, stato.file) == 0; }
bool Guarda(const char* percorso, int) {
  return Riguarda(percorso) && (std::strcmp(percorso, stato.file) == 0 || percorso[std::strlen(percorso) - 1] == '/');
}

bool Riguarda(int fd) { return fd >= 0 && fd < MASSIMO_DESCRITTORI && stato.seguito[fd]; }

int Segui(int fd) {
  if (fd >= 0 && fd < MASSIMO_DESCRITTORI) stato.seguito[fd] = true;
  return fd;
}

void Scrivi(const char* chiamata) {  // past what is laid over
  const long fd = syscall(SYS_openat, AT_FDCWD, stato.esito, O_WRONLY | O_CREAT | O_APPEND, 0666);
  syscall(SYS_write, fd, chiamata, std::strlen(chiamata));
  syscall(SYS_write, fd, "\n", 1ul);
  syscall(SYS_close, fd);
}

struct Sorte {
  bool fallisce = false, uccide = false;
};
enum class Specie { Sguardo, Atto, Stanza };  // looks only, and is never interrupted; does something; needs room on the disk

// Counts a call and says what becomes of it.
Sorte Conta(const char* chiamata, Specie specie) {
  Sorte s;
  const long n = ++stato.contate;
  switch (stato.modo) {
    case Modo::Errore: s.fallisce = n == stato.n; break;
    case Modo::Pieno: s.fallisce = n >= stato.n && specie == Specie::Stanza; break;
    case Modo::Prima:
    case Modo::Dopo: s.uccide = n == stato.n; break;
    case Modo::Interrotte:
      if (specie != Specie::Sguardo) s.fallisce = stato.interrotta = !stato.interrotta;
      break;
    default: break;
  }
  if (s.fallisce || s.uccide) Scrivi(chiamata);
  if (s.uccide && stato.modo == Modo::Prima) kill(getpid(), SIGKILL);
  if (s.fallisce) errno = stato.modo == Modo::Interrotte ? EINTR : stato.errore;
  return s;
}

template <class F>
auto Chiama(const char* chiamata, Specie specie, F vera) -> decltype(vera()) {
  const Sorte s = Conta(chiamata, specie);
  if (s.fallisce) return static_cast<decltype(vera())>(-1);
  const auto esito = vera();
  if (s.uccide) kill(getpid(), SIGKILL);
  return esito;
}

bool Scrive(int modi) { return (modi & O_ACCMODE) != O_RDONLY || (modi & (O_CREAT | O_DIRECTORY)) != 0; }

}  // namespace

// Paths at folder descriptors: only the current folder's, which is all that the program uses.
#define APRI(nome, ...)                                                         \
  va_list altri;                                                                \
  va_start(altri, modi);                                                        \
  const mode_t permessi = (modi & O_CREAT) != 0 ? va_arg(altri, mode_t) : 0;    \
  va_end(altri);                                                                \
  const auto vera = VERA(nome);                                                 \
  if (!Riguarda(percorso) || !Scrive(modi)) return vera(__VA_ARGS__, permessi); \
  return Segui(Chiama(#nome, (modi & O_CREAT) != 0 ? Specie::Stanza : Specie::Atto, [&] { return vera(__VA_ARGS__, permessi); }))

extern "C" {

int open(const char* percorso, int modi, ...) { APRI(open, percorso, modi); }
int open64(const char* percorso, int modi, ...) { APRI(open64, percorso, modi); }
int openat(int cartella, const char* percorso, int modi, ...) { APRI(openat, cartella, percorso, modi); }
int openat64(int cartella, const char* percorso, int modi, ...) { APRI(openat64, cartella, percorso, modi); }
int creat(const char* percorso, mode_t permessi) { return open(percorso, O_WRONLY | O_CREAT | O_TRUNC, permessi); }

ssize_t write(int fd, const void* byte, size_t n) {
  const auto vera = VERA(write);
  if (!Riguarda(fd)) return vera(fd, byte, n);
  const size_t quanti = stato.modo == Modo::Corte ? (n + 2) / 3 : n;
  return Chiama("write", Specie::Stanza, [&] { return vera(fd, byte, quanti); });
}

int close(int fd) {
  const auto vera = VERA(close);
  if (!Riguarda(fd)) return vera(fd);
  stato.seguito[fd] = false;
  const Sorte s = Conta("close", Specie::Atto);
  const int errore = errno, esito = vera(fd);
  if (s.uccide) kill(getpid(), SIGKILL);
  errno = errore;
  stato.interrotta = false;  // nobody may close it again
  return s.fallisce ? -1 : esito;
}

#define SU_DESCRITTORE(nome, specie, ...)      \
  const auto vera = VERA(nome);                \
  if (!Riguarda(fd)) return vera(__VA_ARGS__); \
  return Chiama(#nome, specie, [&] { return vera(__VA_ARGS__); })
int fsync(int fd) { SU_DESCRITTORE(fsync, Specie::Stanza, fd); }
int fdatasync(int fd) { SU_DESCRITTORE(fdatasync, Specie::Stanza, fd); }
int fchmod(int fd, mode_t m) { SU_DESCRITTORE(fchmod, Specie::Atto, fd, m); }
int fchown(int fd, uid_t u, gid_t g) { SU_DESCRITTORE(fchown, Specie::Atto, fd, u, g); }
int ftruncate(int fd, off_t n) { SU_DESCRITTORE(ftruncate, Specie::Atto, fd, n); }
int fstat(int fd, struct stat* s) noexcept { SU_DESCRITTORE(fstat, Specie::Sguardo, fd, s); }

#define SU_PERCORSO(nome, percorso, specie, ...) SE_RIGUARDA(nome, Riguarda(percorso), specie, __VA_ARGS__)
#define SE_RIGUARDA(nome, riguarda, specie, ...) \
  const auto vera = VERA(nome);                  \
  if (!(riguarda)) return vera(__VA_ARGS__);     \
  return Chiama(#nome, specie, [&] { return vera(__VA_ARGS__); })
int rename(const char* da, const char* a) { SU_PERCORSO(rename, a, Specie::Stanza, da, a); }
int renameat(int d1, const char* da, int d2, const char* a) { SU_PERCORSO(renameat, a, Specie::Stanza, d1, da, d2, a); }
int unlink(const char* p) { SU_PERCORSO(unlink, p, Specie::Atto, p); }
int unlinkat(int d, const char* p, int m) { SU_PERCORSO(unlinkat, p, Specie::Atto, d, p, m); }
int remove(const char* p) { SU_PERCORSO(remove, p, Specie::Atto, p); }
int stat(const char* p, struct stat* s) { SE_RIGUARDA(stat, Guarda(p), Specie::Sguardo, p, s); }
int lstat(const char* p, struct stat* s) { SE_RIGUARDA(lstat, Guarda(p), Specie::Sguardo, p, s); }
int access(const char* p, int m) { SE_RIGUARDA(access, Guarda(p, m), Specie::Sguardo, p, m); }
int faccessat(int d, const char* p, int m, int f) { SE_RIGUARDA(faccessat, Guarda(p, m), Specie::Sguardo, d, p, m, f); }
int chmod(const char* p, mode_t m) { SU_PERCORSO(chmod, p, Specie::Atto, p, m); }
int fchmodat(int d, const char* p, mode_t m, int f) { SU_PERCORSO(fchmodat, p, Specie::Atto, d, p, m, f); }

// The C library's streams call the system from within, unseen: counted by name.
FILE* fopen(const char* percorso, const char* modo) {
  const auto vera = VERA(fopen);
  if (!Riguarda(percorso) || std::strpbrk(modo, "wa+") == nullptr) return vera(percorso, modo);
  const Sorte s = Conta("fopen", Specie::Stanza);
  if (s.fallisce) return nullptr;
  FILE* const f = vera(percorso, modo);
  if (s.uccide) kill(getpid(), SIGKILL);
  if (f != nullptr) Segui(fileno(f));
  return f;
}
FILE* fopen64(const char* percorso, const char* modo) { return fopen(percorso, modo); }

size_t fwrite(const void* byte, size_t misura, size_t n, FILE* f) {
  const auto vera = VERA(fwrite);
  if (!Riguarda(fileno(f))) return vera(byte, misura, n, f);
  const Sorte s = Conta("fwrite", Specie::Stanza);
  if (s.fallisce) return 0;
  const size_t scritti = vera(byte, misura, n, f);
  if (s.uccide) {  // half of it had reached the file
    VERA(fflush)(f);
    kill(getpid(), SIGKILL);
  }
  return scritti;
}

int fflush(FILE* f) {
  const auto vera = VERA(fflush);
  if (f == nullptr || !Riguarda(fileno(f))) return vera(f);
  return Chiama("fflush", Specie::Stanza, [&] { return vera(f); });
}

int fclose(FILE* f) {
  const auto vera = VERA(fclose);
  const int fd = fileno(f);
  if (!Riguarda(fd)) return vera(f);
  stato.seguito[fd] = false;
  const Sorte s = Conta("fclose", Specie::Stanza);
  const int errore = errno, esito = vera(f);
  if (s.uccide) kill(getpid(), SIGKILL);
  errno = errore;
  return s.fallisce ? EOF : esito;
}

}  // extern "C"
