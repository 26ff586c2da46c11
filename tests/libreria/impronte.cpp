// impronte NODO... - one line a joint and method: stem, method, length and FNV-1a of the result's bytes. A joint told alone and one told
// behind others, in processes of their own, have the same line.
#include <cstdint>

#include "comune.h"

static std::uint64_t Fnv(const std::string& b) {
  std::uint64_t h = 1469598103934665603u;
  for (const char c : b) h = (h ^ static_cast<unsigned char>(c)) * 1099511628211u;
  return h;
}

int main(int argc, char** argv) {
  qb07_suite* suite = nullptr;
  if (qb07_apri(RigaComando().c_str(), '.', 1, &suite) != QB07_OK) return 1;
  for (int k = 1; k < argc; ++k) {
    qb07_nodo* nodo = nullptr;
    if (qb07_carica(suite, argv[k], &nodo) != QB07_OK) return std::fprintf(stderr, "%s\n", qb07_ultimo_errore()), 1;
    for (const int m : {QB07_METODO_TA, QB07_METODO_SLU}) {
      const std::string b = ByteVerifica(nodo, m);
      if (b.empty()) return 1;
      std::printf("%s %d %zu %016llx\n", std::filesystem::path(argv[k]).stem().c_str(), m, b.size(),
                  static_cast<unsigned long long>(Fnv(b)));
    }
    qb07_nodo_libera(nodo);
  }
  qb07_suite_libera(suite);
  return 0;
}
