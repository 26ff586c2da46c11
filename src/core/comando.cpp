// core/comando.cpp - a program by its path.
#include "core/comando.h"

#include "core/file.h"
#include "core/testo.h"

#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

static bool Eseguibile(const std::string& percorso) {
  std::error_code errore;
  const fs::file_status s = fs::status(percorso, errore);
  const fs::perms esecuzione = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
  return !errore && fs::is_regular_file(s) && (s.permissions() & esecuzione) != fs::perms::none;
}

std::string TrovaProgramma(std::string_view programma) {
  if (programma.empty() || programma.find('\0') != std::string_view::npos) return {};  // the system would cut the name at a NUL
  const std::string scritto = RisolviPercorso(programma);
  if (Eseguibile(scritto)) return scritto;
  const bool exe = programma.size() > 4 && UgualeSenzaMaiuscole(programma.substr(programma.size() - 4), ".exe");
  const std::string altro = RisolviPercorso(exe ? std::string(programma.substr(0, programma.size() - 4)) : std::string(programma) + ".exe");
  return Eseguibile(altro) ? altro : std::string();
}
