// core/diametri.cpp - reading of the diameter table.
#include "core/diametri.h"

#include <string>
#include <string_view>

#include "core/aritmetica.h"
#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"

constexpr const char* FILE_DIAMETRI = "\\QbDiam.txt";  // behind DirCustom

namespace {
struct Diametro {
  const char* nome;
  double d, area;  // mm, mm2 (resistant)
};
}  // namespace

constexpr Diametro DIAMETRI[] = {
  {"M8", 8, 38.6},   {"M10", 10, 58},   {"M12", 12, 84.3}, {"M14", 14, 115},  {"M16", 16, 157},  {"M18", 18, 192},
  {"M20", 20, 245},  {"M22", 22, 303},  {"M24", 24, 353},  {"M27", 27, 459},  {"M30", 30, 561},  {"M33", 33, 694},
  {"M36", 36, 817},  {"M39", 39, 976},  {"M42", 42, 1120}, {"M45", 45, 1310}, {"M48", 48, 1470}, {"M52", 52, 1760},
  {"M56", 56, 2030}, {"M60", 60, 2360}, {"M64", 64, 2680}, {"M68", 68, 3060},
};

static void DiametriInterni() {
  suite.NumDiam = 0;
  for (const Diametro& r : DIAMETRI) {
    suite.DiamNome[suite.NumDiam] = r.nome;
    suite.DiamVal[suite.NumDiam] = r.d;
    suite.DiamArea[suite.NumDiam] = r.area;
    ++suite.NumDiam;
  }
}

// One line name|diameter|area| into row i. False: a bar is missing or a number overflows; the row stays as it was.
static bool DecifraRiga(std::string_view riga, int i) {
  const std::size_t p1 = riga.find('|');
  const std::size_t p2 = riga.find('|', p1 + 1);
  if (p2 == std::string_view::npos) return false;
  const std::size_t p3 = riga.find('|', p2 + 1);
  if (p3 == std::string_view::npos) return false;
  double d = 0, area = 0;
  if (!Val(riga.substr(p1 + 1, p2 - p1 - 1), d) || !Val(riga.substr(p2 + 1, p3 - p2 - 1), area)) return false;
  suite.DiamNome[i] = std::string(riga.substr(0, p1));
  suite.DiamVal[i] = d;
  suite.DiamArea[i] = area;
  return true;
}

void LeggiDiametri() {
  DiametriInterni();
  const std::string percorso = suite.DirCustom + FILE_DIAMETRI;
  FileLettura f;
  if (!ApriLettura(f, percorso)) return;
  int contatore = 1;  // of the row to come
  std::string riga;
  while (!FineFile(f)) {
    if (!LeggiRiga(f, riga)) break;
    if (!Contiene(riga, "|") || Minuscolo(PrimiCaratteri(riga, 3)) == "rem") continue;
    if (contatore > MaxDiam) {  // 99 rows fit, the box speaks of 100; the count stays at its last value: rows read do not count
      Messaggio("Il file " + percorso + " contiene un numero eccessivo di diametri (max " + "100" + ")", TitoloProg, Icona::Esclamazione);
      return;
    }
    if (!DecifraRiga(riga, contatore - 1)) {
      Messaggio("Errore nella lettura del file QbDiam.txt", "ERRORE", Icona::Critica);
      return;
    }
    ++contatore;
  }
  suite.NumDiam = static_cast<std::int16_t>(contatore - 1);
}
