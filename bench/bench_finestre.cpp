// bench_finestre.cpp - a keystroke in a geometry field, handled and painted; the sketch alone; the start up to the first painted window.
// Called    bench_finestre SUITE [options of the benchmark library]; SUITE is made by scripts/prepara-suite. No screen is needed.
// Aims      keystroke 16 ms, sketch a frame (16 ms), start 1 s.
#include "app/qt/finestre.h"
#include "app/qt/legame.h"
#include "app/qt/lingua.h"
#include "app/qt/montaggio.h"
#include "app/qt/piattaforma_qt.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

#include <benchmark/benchmark.h>

#include <cstdio>

static QWidget* Oggetto(const Controllo& c) { return LegameDi(c)->oggetto; }

// Press and release, with all that follows: model, margins, anchors, sketch, both painted.
static void Battuta(benchmark::State& stato) {
  static_cast<QTabWidget*>(Oggetto(insDati.SSTab))->setCurrentIndex(2);
  auto* campo = static_cast<QLineEdit*>(Oggetto(insDati.LatoTxt[2]));
  campo->setFocus(Qt::TabFocusReason);
  QCoreApplication::processEvents();
  int cifra = 0;
  for (auto _ : stato) {
    campo->setSelection(2, 1);
    QTest::keyClick(campo, static_cast<Qt::Key>(Qt::Key_0 + cifra));
    QTest::keyClick(campo, Qt::Key_Return);
    campo->window()->repaint();  // at once, all of it; the toolkit would paint what changed, some milliseconds later
    if (campo->text().at(2).digitValue() != cifra || insDati.LatoTxt[2].testo != campo->text().toStdString()) {
      stato.SkipWithError("the field did not take the key");
      break;
    }
    cifra = (cifra + 1) % 10;
  }
}
BENCHMARK(Battuta)->Unit(benchmark::kMillisecond);

static void Schizzo(benchmark::State& stato) {
  QWidget* nodo = Oggetto(insDati.Nodo);
  QImage foglio(nodo->size() * static_cast<int>(stato.range(0)), QImage::Format_ARGB32_Premultiplied);
  foglio.setDevicePixelRatio(static_cast<double>(stato.range(0)));
  for (auto _ : stato) {
    nodo->render(&foglio);
    benchmark::DoNotOptimize(foglio.constBits());
  }
}
BENCHMARK(Schizzo)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

static void FinestraIntera(benchmark::State& stato) {
  QWidget* w = FinestraDi(InsDati)->finestra;
  for (auto _ : stato) w->repaint();
}
BENCHMARK(FinestraIntera)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QElapsedTimer orologio;
  orologio.start();
  QApplication programma(argc, argv);
  if (argc < 2) {
    std::fputs("uso: bench_finestre SUITE\n", stderr);
    return 2;
  }
  PreparaLingua();
  MontaPiattaformaQt();
  if (!CreaFinestre().isEmpty()) return 2;
  suite.Decimale = '.';
  if (!CaricaInsDati("|diroot=" + std::string(argv[1]) + "|")) return 2;
  if (!QTest::qWaitForWindowExposed(FinestraDi(InsDati)->finestra)) return 2;
  FinestraDi(InsDati)->finestra->repaint();
  std::printf("avvio fino alla finestra dipinta: %lld ms\n", static_cast<long long>(orologio.elapsed()));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
