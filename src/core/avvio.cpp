// core/avvio.cpp - the suite's root from the command line, the job from the two files under it.
#include "core/avvio.h"

#include <string_view>

#include "core/file.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr const char* CHIAVE_RADICE = "|diroot=";
constexpr const char* FILE_DIRLAV = "\\impostazioni\\dirlav";
constexpr const char* FILE_LAVORO = "\\impostazioni\\lavoro";
constexpr std::string_view CARTELLA_LAVORI = "lavori";                  // the folder of the jobs must end so
constexpr std::size_t MIN_DIRLAV = 9, MIN_RADICE = 3, LUNG_LAVORO = 6;  // characters
constexpr std::size_t MASSIMO_TESTO = 1u << 16;                         // bytes of a path that are looked at

static bool FinisceInSeparatore(std::string_view t) { return !t.empty() && (t.back() == '\\' || t.back() == '/'); }

static bool ErroreFile(const char* file) {
  Messaggio("Errore: file " + suite.DirRoot + file + " errato o mancante", "ERRORE", Icona::Esclamazione);
  return false;
}

// The root between the key's equals sign and the next bar. False: no closing bar; the root is then the text to the end.
static bool RadiceDa(const std::string& riga, std::size_t chiave) {
  const std::size_t i = chiave + std::string_view(CHIAVE_RADICE).size();
  const std::size_t j = riga.find('|', i);
  suite.DirRoot = Rifila(std::string_view(riga).substr(i, j == std::string::npos ? j : j - i));
  return j != std::string::npos;
}

// The folder of the jobs, lower case, with its final separator. False: the box was shown.
static bool LeggiDirLav(std::string& cartella) {
  FileLettura f;
  if (!ApriLettura(f, suite.DirRoot + FILE_DIRLAV) || !LeggiValore(f, cartella)) return ErroreFile(FILE_DIRLAV);
  cartella = Minuscolo(Rifila(std::string_view(cartella).substr(0, MASSIMO_TESTO)));
  if (NumCaratteri(cartella) < MIN_DIRLAV) return ErroreFile(FILE_DIRLAV);
  if (!FinisceInSeparatore(cartella)) cartella += '\\';
  if (!std::string_view(cartella).substr(0, cartella.size() - 1).ends_with(CARTELLA_LAVORI)) {
    Messaggio("Errore: il direttorio dei lavori deve terminare con < \\lavori >", "ERRORE", Icona::Esclamazione);
    return false;
  }
  return true;
}

static bool LeggiLavoro() {
  FileLettura f;
  std::string riga;
  if (!ApriLettura(f, suite.DirRoot + FILE_LAVORO) || !LeggiRiga(f, riga)) return ErroreFile(FILE_LAVORO);
  const std::string_view nome = Rifila(riga);
  if (NumCaratteri(nome) != LUNG_LAVORO) return ErroreFile(FILE_LAVORO);
  suite.Lavoro = nome;  // its case stays, unlike the folders'
  return true;
}

bool TrovaPercorsi(const std::string& rigaComando) {
  const std::string riga = Minuscolo(rigaComando);
  const std::size_t chiave = riga.find(CHIAVE_RADICE);
  if (chiave == std::string::npos) {
    Messaggio("Avvio del programma: argomento non presente", "ERRORE", Icona::Critica);
    return false;
  }
  if (!RadiceDa(riga, chiave)) return ErroreFile(FILE_DIRLAV);
  std::string cartella;
  if (!LeggiDirLav(cartella)) return false;
  // Only now the root itself is judged: its final separator was still there when dirlav was read, where a doubled one does no harm.
  if (NumCaratteri(suite.DirRoot) < MIN_RADICE) return ErroreFile(FILE_DIRLAV);
  if (FinisceInSeparatore(suite.DirRoot)) suite.DirRoot.pop_back();
  if (!LeggiLavoro()) return false;
  suite.DirLavoro = cartella + suite.Lavoro;
  suite.DirProgra = suite.DirRoot + "\\progra";
  suite.DirDriver = suite.DirRoot + "\\driver";
  suite.DirCustom = suite.DirRoot + "\\custom";
  return true;
}
