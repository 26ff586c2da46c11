// core/comando.cpp - the head of a command that names a program.
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
