// core/zone.h - lines of the suite's files: fields in print zones of 14 columns.
// A number has one blank before it if not negative and one behind; a literal stands as it is. The next field begins at the next column
// that is 1 plus a multiple of 14: a field that ends on a zone's last column is followed by the next zone at once.
#pragma once
#include <charconv>
#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/numeri.h"

constexpr std::size_t COLONNE_ZONA = 14;

inline void CampoZona(std::string& t, double v) {
  char a[34];
  char* p = a;
  *p = ' ';
  if (!(v < 0)) ++p;
  p += ScriviNumero(v, p, '.', false);
  *p++ = ' ';
  t.append(a, static_cast<std::size_t>(p - a));
}

inline void CampoZona(std::string& t, std::integral auto v) {
  char a[24];
  char* p = a;
  *p = ' ';
  if (v >= 0) ++p;
  p = std::to_chars(p, a + sizeof a - 1, v).ptr;
  *p++ = ' ';
  t.append(a, static_cast<std::size_t>(p - a));
}

inline void CampoZona(std::string& t, std::string_view literal) { t += literal; }
inline void CampoZona(std::string& t, const char* literal) { t += literal; }

inline void ProssimaZona(std::string& t, std::size_t inizio) {
  const std::size_t resto = (t.size() - inizio) % COLONNE_ZONA;
  if (resto != 0) t.append(COLONNE_ZONA - resto, ' ');
}

template <class... Campi>
void RigaZone(std::string& t, const Campi&... campi) {
  const std::size_t inizio = t.size();
  ((ProssimaZona(t, inizio), CampoZona(t, campi)), ...);
  t += "\r\n";
}
