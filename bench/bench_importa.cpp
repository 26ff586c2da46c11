// bench/bench_importa.cpp - the import of 200 bars from 40 result files of 5 MB each: structure file, places of the bars, sextets, envelope.
// Target on one core: under one second, and of the 200 MB only the bars' numbers and the sections asked for are read (counter byte_letti, from the
// system's own count; 0 where it has none).
#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "core/piattaforma.h"
#include "link/importa_soll.h"
#include "link/struttura.h"
#include "model/stato.h"

namespace {

constexpr int NUM_FILE = 40, NUM_ASTE = 2000, NUM_SEZIONI = 5, NUM_SESTETTI = 9, PRESE = 200;  // 90,001 records of 56 bytes: 5.04 MB
constexpr std::size_t RECORD = 56;

std::filesystem::path Cartella() { return std::filesystem::temp_directory_path() / "qb07-misura-importa"; }

template <class T>
void Metti(std::vector<char>& b, std::size_t posto, T v) {
  std::memcpy(b.data() + posto, &v, sizeof v);
}

std::vector<char> FileRisultati() {
  std::vector<char> b(RECORD * (1 + std::size_t{NUM_ASTE} * NUM_SEZIONI * NUM_SESTETTI));
  Metti(b, 0, std::int16_t{NUM_ASTE});
  Metti(b, 4, std::int32_t{NUM_SEZIONI});
  Metti(b, 8, std::int32_t{NUM_SESTETTI});
  for (std::size_t n = 1; n < b.size() / RECORD; ++n) {
    Metti(b, n * RECORD, static_cast<std::int16_t>((n - 1) / (NUM_SEZIONI * NUM_SESTETTI) + 1));
    for (std::size_t k = 0; k < 6; ++k) Metti(b, n * RECORD + 8 + 8 * k, static_cast<double>((n * 7919 + k * 104729) % 200003) - 100000);
  }
  return b;
}

void Scrivi(const std::string& nome, const char* byte, std::size_t quanti) {
  std::ofstream(Cartella() / nome, std::ios::binary).write(byte, static_cast<std::streamsize>(quanti));
}

// Bar b stands on node b and ends at node 2001.
void ScriviModello() {
  std::filesystem::create_directories(Cartella());
  std::string t = "release\r\n0\r\n2001\r\n";
  for (int n = 1; n <= NUM_ASTE + 1; ++n) t += std::to_string(n) + ",0,0," + std::to_string(n) + ",\"\"\r\n";
  t += "2000\r\n";
  for (int a = 1; a <= NUM_ASTE; ++a) t += std::to_string(a) + ",2001,0,1\r\n" + std::to_string(a) + " 1\r\n";
  Scrivi("struttur.str", t.data(), t.size());
  const std::vector<char> b = FileRisultati();
  for (int k = 1; k <= NUM_FILE; ++k) Scrivi(NomeFileRisultati(false, k), b.data(), b.size());
}

void Elenchi() {
  Collegamento& c = collegamento;
  nodo.NumNodiStr = c.NumAsteNodo = PRESE;
  for (int i = 1; i <= PRESE; ++i) nodo.NodiStr[i] = c.AsteNodo[i] = static_cast<std::int16_t>(10 * i);
  c.NumCasiStr = NUM_FILE;
  for (int k = 1; k <= NUM_FILE; ++k) c.CasiStr[k] = static_cast<std::int16_t>(k);
  c.NumCondStr = 0;
  c.NumSestettiStr = 1;
  c.SestettiStr[1] = 0;
}

double ByteLetti() {  // bytes that the process has asked the system for
  std::ifstream f("/proc/self/io");
  std::string chiave;
  double v = 0;
  f >> chiave >> v;
  return f && chiave == "rchar:" ? v : 0;
}

void ImportaDuecentoAste(benchmark::State& stato) {
  suite.DirLavoro = Cartella().string();
  piattaforma.messaggio = [](const std::string&, const std::string&, Icona) {};
  ScriviModello();
  const double prima = ByteLetti();
  for (auto _ : stato) {
    Elenchi();
    if (!NodiAste()) stato.SkipWithError("the structure was not read");
    ImportaSollecitazioni(true);
  }
  if (collegamento.Presi != PRESE * NUM_SESTETTI * NUM_FILE) stato.SkipWithError("not all sextets were taken");
  stato.counters["sestetti"] = collegamento.Presi;
  stato.counters["byte_letti"] = benchmark::Counter(ByteLetti() - prima, benchmark::Counter::kAvgIterations);
  std::filesystem::remove_all(Cartella());
}
BENCHMARK(ImportaDuecentoAste)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
