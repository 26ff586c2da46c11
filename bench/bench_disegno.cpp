// bench/bench_disegno.cpp - the drawing's cost: the sheet of a ribbed joint of eight anchors made and written, each writer on 5,000 entities
// with coordinates that have no short form, the clean-up of 30,000 lines.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <random>

#include "core/piattaforma.h"
#include "drawing/disegno.h"
#include "drawing/edizione.h"
#include "drawing/formats/formati.h"
#include "drawing/formats/grb_stili.h"
#include "drawing/formats/scrittori.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

std::string File(const char* nome) { return (std::filesystem::temp_directory_path() / nome).string(); }

void Prepara() {
  piattaforma.messaggio = [](const std::string& testo, const std::string&, Icona) {
    std::fprintf(stderr, "%s\n", testo.c_str());
    std::exit(1);
  };
  piattaforma.attesa = [](bool) {};
  nodo.Sezione.Nome = "HEB300            ";
  nodo.Sezione.H = nodo.Sezione.B = 300;
  nodo.Sezione.A = 11;
  nodo.Sezione.E = 19;
  nodo.Sezione.R = 27;
  nodo.LatoZ = 700;
  nodo.LatoY = 760;
  nodo.SpessPiastra = 30;
  nodo.TipoNodo = 2;
  nodo.HNerv = 250;
  nodo.SpNerv = 15;
  nodo.SaldInt = 1;
  nodo.Gola = 11;
  nodo.GolaCalc = 11 / std::sqrt(2.0);
  nodo.NTir = 8;
  nodo.OptionNTir = 1;
  const double z[] = {80, 620, 80, 620, 80, 620, 350, 350}, y[] = {90, 90, 670, 670, 380, 380, 670, 90};
  for (int i = 1; i <= 8; ++i) nodo.TfZ[i] = z[i - 1], nodo.TfY[i] = y[i - 1];
  nodo.TfFi = 24;
  nodo.TfLFt = 140;
  nodo.TfL = 650;
  nodo.TfR = 110;
  nodo.TfL1 = 600;
  nodo.TfLF = 15;
  nodo.TfDForo = 115;
  nodo.TfHMalta = 50;
  const double p[] = {2, 4, 3, 6, 6, 2, 2, 15, 10, 25, 18, 15, 10, 5, 6, 1, 0, 5, 1, 1, 7, 0, 0, 0, 0, 1, 1, 1};
  for (int i = 0; i < NumParNodo; ++i) suite.ParNodo[i] = p[i];
  stiliGrb.NumStili = 1;
  stiliGrb.AltStile[1] = 25;
  stiliGrb.LargStile[1] = 18;
}

// Lines, texts and arcs in the proportion of a sheet.
void RiempiEntita(int n) {
  std::mt19937 caso(7);
  std::uniform_real_distribution<double> r(-4000, 4000);
  AzzeraDisegno();
  disegno.DestDis = GENDIS;
  for (int i = 0; i < n; ++i) {
    const double x = r(caso), y = r(caso);
    if (i % 10 == 8) DisTesto("Testo 12.5", x, y, 90, 10, 15, std::int16_t{2});
    else if (i % 10 == 9) DisArco(nullptr, x, y, 14, std::int16_t{3}, 0, 1.5);
    else DisLinea(nullptr, x, y, x + r(caso) / 100, y + r(caso) / 100, static_cast<std::int16_t>(1 + i % 7));
  }
  disegno.DestDis = {};
}

// A sheet's own mix, repeated side by side: short strokes on long lines, one line in quota hidden or an axis, many shared ends.
void RiempiLinee(int n, int quota, double lungo) {
  std::mt19937 caso(11);
  std::uniform_real_distribution<double> r(0, 4000), piccolo(-lungo, lungo);
  AzzeraDisegno();
  disegno.DestDis = GENDIS;
  const int coord = 30000;
  for (int i = 0; i < coord; ++i) disegno.CoordX[i] = std::round(r(caso)), disegno.CoordY[i] = std::round(r(caso));
  for (int i = 1; i < coord; i += 2) {  // the other end of a line, axis-parallel half of the time
    disegno.CoordX[i] = disegno.CoordX[i - 1] + piccolo(caso);
    disegno.CoordY[i] = disegno.CoordY[i - 1] + (i % 4 == 1 ? 0 : piccolo(caso));
  }
  disegno.NumCoord = coord;
  for (int i = 0; i < n; ++i) {
    const int a = i * 2 % coord;
    disegno.LinIni[i] = a;
    disegno.LinFin[i] = a + 1;
    disegno.LinCol[i] = 2;
    disegno.LinTipo[i] = static_cast<std::int16_t>(i % quota == 0 ? 4 : 0);
  }
  disegno.NumLinee = n;
  disegno.DestDis = {};
}

void FoglioInDis(benchmark::State& s) {
  Prepara();
  const std::string file = File("bench_foglio.dis");
  for (auto _ : s)
    if (!EsportaDisegno(file, 1, "DIS")) s.SkipWithError("not written");
}
BENCHMARK(FoglioInDis)->Unit(benchmark::kMillisecond);

void FoglioInGrb(benchmark::State& s) {
  Prepara();
  const std::string file = File("bench_foglio.grb");
  for (auto _ : s)
    if (!EsportaGrb(file, 1)) s.SkipWithError("not written");
}
BENCHMARK(FoglioInGrb)->Unit(benchmark::kMillisecond);

void Dxf5000(benchmark::State& s) {
  Prepara();
  RiempiEntita(5000);
  const std::string file = File("bench_entita.dxf");
  for (auto _ : s)
    if (!SalvaDxf(file, 0, 0, 0, 0, 1)) s.SkipWithError("not written");
}
BENCHMARK(Dxf5000)->Unit(benchmark::kMillisecond);

void Dis5000(benchmark::State& s) {
  Prepara();
  RiempiEntita(5000);
  const std::string file = File("bench_entita.dis");
  for (auto _ : s)
    if (!ScriviDis(file, 1)) s.SkipWithError("not written");
}
BENCHMARK(Dis5000)->Unit(benchmark::kMillisecond);

// Arguments: one line in so many is hidden; half length of the lines, mm.
void Compatta30000(benchmark::State& s) {
  RiempiLinee(30000, static_cast<int>(s.range(0)), static_cast<double>(s.range(1)));
  const auto intero = std::make_unique<Disegno>(disegno);
  for (auto _ : s) {
    s.PauseTiming();
    disegno = *intero;
    s.ResumeTiming();
    CompattaDisegno();
  }
}
BENCHMARK(Compatta30000)->Unit(benchmark::kMillisecond)->Args({20, 30})->Args({2, 30})->Args({1, 30})->Args({20, 2000})->Args({1, 2000});

}  // namespace
