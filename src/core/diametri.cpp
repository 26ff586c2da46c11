// core/diametri.cpp - reading of the diameter table, area by the square of the diameter.
#include "core/diametri.h"

#include <algorithm>
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

namespace {

constexpr const char* FILE_DIAMETRI = "\\QbDiam.txt";   // behind DirCustom

struct Diametro {
  const char* nome;
  double d, area;                  // mm, mm2 (resistant)
};
constexpr Diametro DIAMETRI[] = {
    {"M8", 8, 38.6},   {"M10", 10, 58},   {"M12", 12, 84.3}, {"M14", 14, 115},  {"M16", 16, 157},  {"M18", 18, 192},
    {"M20", 20, 245},  {"M22", 22, 303},  {"M24", 24, 353},  {"M27", 27, 459},  {"M30", 30, 561},  {"M33", 33, 694},
    {"M36", 36, 817},  {"M39", 39, 976},  {"M42", 42, 1120}, {"M45", 45, 1310}, {"M48", 48, 1470}, {"M52", 52, 1760},
    {"M56", 56, 2030}, {"M60", 60, 2360}, {"M64", 64, 2680}, {"M68", 68, 3060},
};

void DiametriInterni() {
  suite.NumDiam = 0;
  for (const Diametro& r : DIAMETRI) {
    suite.DiamNome[suite.NumDiam] = r.nome;
    suite.DiamVal[suite.NumDiam] = r.d;
    suite.DiamArea[suite.NumDiam] = r.area;
    ++suite.NumDiam;
  }
}

// One line name|diameter|area| into row i. False: a bar is missing or a number overflows; the row stays as it was.
bool DecifraRiga(std::string_view riga, int i) {
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

// Area at d on the line in d^2 through rows i and i + 1.
double AreaFra(const Suite& tavola, int i, double d) {
  const double D0 = tavola.DiamVal[i], D1 = tavola.DiamVal[i + 1];
  const double A0 = tavola.DiamArea[i], A1 = tavola.DiamArea[i + 1];
  const double passo = D1 * D1 - D0 * D0;
  if (passo == 0) {
    SegnalaFault();
    return 0;
  }
  const double k = (A1 - A0) / passo;
  return (d * d - D0 * D0) * k + A0;
}

}  // namespace

void LeggiDiametri() {
  DiametriInterni();
  const std::string percorso = suite.DirCustom + FILE_DIAMETRI;
  FileLettura f;
  if (!ApriLettura(f, percorso)) return;
  int contatore = 1;               // of the row to come
  std::string riga;
  while (!FineFile(f)) {
    if (!LeggiRiga(f, riga)) break;
    if (!Contiene(riga, "|") || Minuscolo(PrimiCaratteri(riga, 3)) == "rem") continue;
    if (contatore > MaxDiam) {     // 99 rows fit, though the text says 100; the count stays at its last value: rows read do not count
      Messaggio("Il file " + percorso + " contiene un numero eccessivo di diametri (max " + "100" + ")", TitoloProg,
                Icona::Esclamazione);
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

double AreaResistente(const Suite& tavola, double d, OrigineArea& origine) {
  const int n = std::min<int>(tavola.NumDiam, MaxDiam + 1);
  if (n < 1) return 0;
  const bool sotto = d < tavola.DiamVal[0], sopra = d > tavola.DiamVal[n - 1];
  if (sotto || sopra) {
    origine.estrapolata = true;
    return n < 2 ? 0 : AreaFra(tavola, sotto ? 0 : n - 2, d);
  }
  for (int i = 1; i < n; ++i) {
    if (!(tavola.DiamVal[i - 1] <= d && d <= tavola.DiamVal[i])) continue;
    if (d != tavola.DiamVal[i - 1] && d != tavola.DiamVal[i]) origine.interpolata = true;
    return AreaFra(tavola, i - 1, d);
  }
  return 0;
}

double AreaResistente(const Suite& tavola, double d) {
  OrigineArea origine;
  return AreaResistente(tavola, d, origine);
}
