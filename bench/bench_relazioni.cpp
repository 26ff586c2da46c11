// bench/bench_relazioni.cpp - the judging and the writing of the largest report of each method: 200 sextets, 8 anchors, 44 welds.
// The tables hold chosen values, no engine runs. Targets on one core: limit states (1.1 MB) under 4 ms.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>

#include "core/fault.h"
#include "core/nomi_file.h"
#include "core/piattaforma.h"
#include "engine/righe.h"
#include "model/stato.h"
#include "reports/Relazioni.h"

namespace {

Lavoro lavoro;
Risultati& ris = lavoro.ris;
std::uint64_t seme = 0;

double Casuale(double massimo) {  // from -massimo to massimo
  seme ^= seme << 13, seme ^= seme >> 7, seme ^= seme << 17;
  return massimo * (static_cast<double>(seme >> 11) / 4503599627370496.0 - 1);
}

void Materiali() {
  nodo.MatAcc.Nome = "S 275 (FE 430)";
  nodo.MatAcc.SAmm = 1900, nodo.MatAcc.SAmm40 = 1700, nodo.MatAcc.Fyk = 2750, nodo.MatAcc.Fyk40 = 2550, nodo.MatAcc.GammaM = 1.05;
  nodo.MatTir.Nome = "8.8", nodo.MatTir.Fyk = 6400, nodo.MatTir.Ftk = 8000, nodo.MatVit.GammaM2 = 1.25;
  nodo.MatCls.Nome = "C25/30", nodo.MatCls.Rck = 300, nodo.MatCls.GammaC = 1.5, lavoro.SAmmCls = 9.75;
}

void Geometria() {
  nodo.NomeNodo = "Banco", nodo.TipoNodo = 2, nodo.SaldInt = 1, nodo.NTir = 8, lavoro.NumSaldature = 44;
  nodo.LatoZ = 600, nodo.LatoY = 700, nodo.SpessPiastra = 30, nodo.SpNerv = 15, nodo.HNerv = 250, nodo.Gola = 8, nodo.TfFi = 24;
  for (int i = 1; i <= 8; ++i) nodo.TfZ[i] = 60, nodo.TfY[i] = 60;
  suite.NumDiam = 2;
  suite.DiamVal[0] = 20, suite.DiamArea[0] = 245, suite.DiamVal[1] = 24, suite.DiamArea[1] = 353;
  for (int w = 1; w <= 44; ++w) ris.Saldature[w].Nome = std::string("S").append(std::to_string(w)), ris.Saldature[w].Lung = 100 + w;
}

void Tabelle() {
  seme = 88172645463325252ULL;
  lavoro.nodo = &nodo, lavoro.suite = &suite, lavoro.verifica.AreaTf = 353;
  nodo.NumSoll = MaxSoll;
  ris.FvRd = 13555.2, ris.FtRd = 20332.8, ris.BpRd = 48123.4, ris.TadRd = 15432.1;
  for (int i = 1; i <= 8; ++i) ris.FbRd[i] = 20000 + i;
  for (int s = 1; s <= MaxSoll; ++s) {
    nodo.SollNome[s] = std::string("Soll ").append(std::to_string(s));
    nodo.SollN[s] = Casuale(60000), nodo.SollTy[s] = Casuale(9000), nodo.SollTz[s] = Casuale(9000);
    nodo.SollMt[s] = Casuale(100000), nodo.SollMy[s] = Casuale(3e6), nodo.SollMz[s] = Casuale(3e6);
    for (int i = 1; i <= 8; ++i) {
      ris.FvEd[s][i] = Casuale(5000), ris.FtEd[s][i] = Casuale(15000), ris.TiroTir[s][i] = Casuale(15000);
      ris.Co1[s][i] = Casuale(1), ris.Co2[s][i] = Casuale(1), ris.Co3[s][i] = Casuale(1);
      ris.SNerv[s][i] = Casuale(20);
    }
    for (int w = 1; w <= 44; ++w)
      for (int k = 1; k <= 3; ++k) {
        Saldatura& x = ris.Saldature[w];
        x.SPrp[s][k] = Casuale(9), x.TauPa[s][k] = Casuale(9), x.TauPe[s][k] = Casuale(9);
      }
  }
  std::fill(std::begin(ris.SMaxPiastra), std::end(ris.SMaxPiastra), 15.1234);
  std::fill(std::begin(ris.SMaxCls), std::end(ris.SMaxCls), 0.0812345);
  for (int s = 1; s <= MaxSoll; ++s)
    for (int i = 1; i <= 8; ++i) ris.SigmaTir[s][i] = 12.345678, ris.TauTir[s][i] = 3.456789, ris.SRfTir[s][i] = 1.2345678;
}

template <bool (*Relazione)(const Lavoro&)>
void Misura(benchmark::State& stato, const char* metodo) {
  lavoro.TipoVer = metodo[0] == 'T' ? MetodoTA : MetodoSLU;
  suite.DirLavoro = std::filesystem::temp_directory_path().string();
  suite.FattForze = 0.01, suite.FattMomenti = 0.0001, suite.FattTensioni = 0.1, suite.DecForze = 3, suite.DecTensioni = 2;
  suite.UnitaForze = "kN", suite.UnitaMomenti = "kN m", suite.UnitaTensioni = "N/mm2";
  piattaforma.messaggio = [](const std::string&, const std::string&, Icona) {};
  piattaforma.mostraTesto = [](const std::string&) {};
  Materiali();
  Geometria();
  Tabelle();
  AzzeraFault();
  for (auto _ : stato) {
    Giudica(lavoro);
    if (FaultAritmetico() || !Relazione(lavoro)) stato.SkipWithError("the report ended early");
  }
  const std::filesystem::path file = suite.DirLavoro + "/" + NomeFileRelazione(metodo, CODICE_RELAZIONE).substr(suite.DirLavoro.size() + 1);
  stato.counters["byte"] = static_cast<double>(std::filesystem::file_size(file));
  std::filesystem::remove(file);
}

void RelazioneMassimaTA(benchmark::State& stato) { Misura<RelazioneTA>(stato, "TA"); }
void RelazioneMassimaSLU(benchmark::State& stato) { Misura<RelazioneSLU>(stato, "SLU"); }
BENCHMARK(RelazioneMassimaTA)->Unit(benchmark::kMillisecond);
BENCHMARK(RelazioneMassimaSLU)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
