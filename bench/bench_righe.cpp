// bench/bench_righe.cpp - every check of a million sextets as rows, a loop over lists of 200 on one Lavoro. Targets on one core: 4 s without
// ribs (4 anchors), 15 s with ribs, inner welds and 8 anchors.
// The loads of each list are its own: nothing is worked out twice.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <memory>
#include <random>

#include "engine/Calcoli.h"
#include "model/regole_nodo.h"

namespace {

constexpr int SESTETTI = 1000000;

struct Banco {
  Nodo nodo;
  Suite suite;
  Lavoro lavoro;
};

void Materiali(Nodo& n) {
  n.MatAcc.Nome = "S 275 (FE 430)", n.MatAcc.Fyk = 2750, n.MatAcc.Ftk = n.MatAcc.Ftk40 = 4300, n.MatAcc.GammaM = 1.05, n.MatAcc.SAmm = 1900;
  n.MatTir.Fyk = 6400, n.MatTir.Ftk = 8000, n.MatVit.Nome = "8.8", n.MatVit.Ft = 8000, n.MatVit.GammaM2 = 1.25;
  n.MatCls.Rck = 300, n.MatCls.GammaC = 1.5, n.EcCls = ModuloCls(300);
}

std::unique_ptr<Banco> Prepara(bool nervature, int metodo) {
  auto b = std::make_unique<Banco>();
  Nodo& n = b->nodo;
  b->suite.NumDiam = 2, b->suite.DiamVal[0] = 20, b->suite.DiamArea[0] = 245, b->suite.DiamVal[1] = 24, b->suite.DiamArea[1] = 353;
  n.Sezione.H = 290, n.Sezione.B = 300, n.Sezione.A = 8.5, n.Sezione.E = 14, n.Sezione.R = 27;
  n.LatoZ = 560, n.LatoY = 600, n.SpessPiastra = 30, n.TipoNodo = nervature ? 2 : 1, n.HNerv = 200, n.SpNerv = 12, n.SaldInt = 1;
  n.Gola = 10, n.GolaCalc = GolaDaLato(10);
  n.TfFi = 24, n.TfL = 600, n.TfL1 = 550, n.TfR = 80, n.TfLF = 20, n.TfDistBordo = 300;
  n.OptionNTir = nervature ? 1 : 0;
  PosizioniTirafondi(n, {60, 60, 60, 60});
  Materiali(n);
  n.NumSoll = MaxSoll;
  b->lavoro.nodo = &n, b->lavoro.suite = &b->suite, b->lavoro.TipoVer = metodo;
  return b;
}

void NuovaLista(Nodo& n, std::mt19937& gen) {
  const auto fra = [&](double a, double c) { return a + (c - a) * (static_cast<double>(gen()) / 4294967296.0); };
  for (int s = 1; s <= MaxSoll; ++s) {
    n.SollN[s] = fra(-80000, 20000), n.SollTy[s] = fra(-5000, 5000), n.SollTz[s] = fra(-5000, 5000);
    n.SollMt[s] = fra(-20000, 20000), n.SollMy[s] = fra(-1500000, 1500000), n.SollMz[s] = fra(-1500000, 1500000);
  }
}

void Righe(benchmark::State& stato, bool nervature, int metodo) {
  const std::unique_ptr<Banco> b = Prepara(nervature, metodo);
  std::size_t righe = 0;
  for ([[maybe_unused]] auto giro : stato) {
    std::mt19937 gen(7);
    for (int fatti = 0; fatti < SESTETTI; fatti += MaxSoll) {
      NuovaLista(b->nodo, gen);
      if (!EseguiVerifica(b->lavoro)) std::abort();
      righe += b->lavoro.righe.size();
    }
  }
  stato.counters["righe"] = static_cast<double>(righe) / static_cast<double>(stato.iterations());
}
BENCHMARK_CAPTURE(Righe, slu_senza_nervature, false, MetodoSLU)->Unit(benchmark::kSecond)->Iterations(1);
BENCHMARK_CAPTURE(Righe, ta_senza_nervature, false, MetodoTA)->Unit(benchmark::kSecond)->Iterations(1);
BENCHMARK_CAPTURE(Righe, slu_con_nervature, true, MetodoSLU)->Unit(benchmark::kSecond)->Iterations(1);
BENCHMARK_CAPTURE(Righe, ta_con_nervature, true, MetodoTA)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace
