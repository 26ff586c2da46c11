// bench/bench_motore.cpp - the engine's cost: the solver alone a sextet; tables, whole verification of 200 sextets, without and with ribs.
// Loads with a fixed seed: from plain compression to large eccentricities on both axes, some of them pulls.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <random>

#include "engine/Calcoli.h"
#include "engine/PresInfl.h"

namespace {

Nodo nodo;
Suite suite;
Lavoro lavoro;

void Diametri() {
  const double diametri[] = {16, 18, 20, 22, 24, 27, 30}, aree[] = {157, 192, 245, 303, 353, 459, 561};
  suite.NumDiam = 7;
  for (int r = 0; r < 7; ++r) {
    suite.DiamVal[r] = diametri[r];
    suite.DiamArea[r] = aree[r];
  }
}

// 8 anchors with ribs and inner welds, or 4 without ribs; 200 sextets.
void Prepara(bool nervature, int tiranti) {
  static const Nodo VUOTO;
  nodo = VUOTO;
  Diametri();
  lavoro.nodo = &nodo;
  lavoro.suite = &suite;
  lavoro.TipoVer = MetodoSLU;
  Sezione& z = nodo.Sezione;
  z.H = 290;
  z.B = 300;
  z.A = 8.5;
  z.E = 14;
  z.R = 27;
  nodo.LatoZ = 560;
  nodo.LatoY = 600;
  nodo.SpessPiastra = 30;
  nodo.TipoNodo = nervature ? 2 : 1;
  nodo.HNerv = 200;
  nodo.SpNerv = 12;
  nodo.SaldInt = 1;
  nodo.Gola = 10;
  nodo.GolaCalc = 10 / 1.4142135623730951;
  nodo.TfFi = 24;
  nodo.TfL = 600;
  nodo.TfL1 = 550;
  nodo.TfR = 80;
  nodo.TfLF = 20;
  nodo.TfDistBordo = 300;
  nodo.MatCls.Rck = 300;
  nodo.MatCls.GammaC = 1.5;
  nodo.EcCls = 312201.85778;
  nodo.MatAcc.Ftk = nodo.MatAcc.Ftk40 = nodo.MatTir.Ftk = 4300;
  nodo.MatVit.Nome = "8.8";
  nodo.MatVit.Ft = 8000;
  nodo.MatVit.GammaM2 = 1.25;
  nodo.MatAcc.Nome = "S 275 (FE 430)";
  nodo.MatAcc.Fyk = 2750;
  nodo.MatAcc.GammaM = 1.05;
  nodo.NTir = static_cast<std::int16_t>(tiranti);
  nodo.OptionNTir = tiranti == 8 ? 1 : 0;
  const double Z = nodo.LatoZ, Y = nodo.LatoY, d = 60;
  const double tz[] = {0, d, Z - d, d, Z - d, d, Z - d, Z / 2, Z / 2}, ty[] = {0, d, d, Y - d, Y - d, Y / 2, Y / 2, Y - d, d};
  for (int i = 1; i <= tiranti; ++i) {
    nodo.TfZ[i] = tz[i];
    nodo.TfY[i] = ty[i];
  }
  std::mt19937 gen(11);
  const auto fra = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(gen); };
  nodo.NumSoll = MaxSoll;
  for (int s = 1; s <= MaxSoll; ++s) {
    nodo.SollN[s] = fra(-80000, 20000);
    nodo.SollTy[s] = fra(-5000, 5000);
    nodo.SollTz[s] = fra(-5000, 5000);
    nodo.SollMt[s] = fra(-20000, 20000);
    nodo.SollMy[s] = fra(-1500000, 1500000);
    nodo.SollMz[s] = fra(-1500000, 1500000);
  }
}

void Solutore(benchmark::State& stato) {
  Prepara(false, static_cast<int>(stato.range(0)));
  long iterazioni = 0;
  for ([[maybe_unused]] auto giro : stato)
    for (int s = 1; s <= MaxSoll; ++s) {
      DatiSezione(lavoro, s);
      if (!PresInfl(lavoro, s)) std::abort();  // a failure of the solver would spoil the measure
      iterazioni += lavoro.presInfl.IterPres - 1;
    }
  const double sestetti = static_cast<double>(stato.iterations()) * MaxSoll;
  stato.counters["per_sestetto"] = benchmark::Counter(sestetti, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
  stato.counters["iterazioni"] = static_cast<double>(iterazioni) / sestetti;
}
BENCHMARK(Solutore)->Arg(4)->Arg(8)->Unit(benchmark::kMicrosecond);

void Tabelle(benchmark::State& stato, bool nervature, int tiranti) {
  Prepara(nervature, tiranti);
  for ([[maybe_unused]] auto giro : stato)
    if (!CalcolaTabelle(lavoro)) std::abort();
}
void Verifica(benchmark::State& stato, bool nervature, int tiranti) {
  Prepara(nervature, tiranti);
  for ([[maybe_unused]] auto giro : stato)
    if (!EseguiVerifica(lavoro)) std::abort();
}
BENCHMARK_CAPTURE(Tabelle, senza_nervature, false, 4)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Tabelle, con_nervature, true, 8)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Verifica, senza_nervature, false, 4)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Verifica, con_nervature, true, 8)->Unit(benchmark::kMillisecond);

}  // namespace
