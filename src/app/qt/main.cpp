// app/qt/main.cpp - the desktop program. All arguments, joined by one blank, are the command line of the start.
// Exit      0 the user closed it, 2 the start ended in a message or the windows do not fit the panels.
#include "app/qt/applicazione.h"
#include "app/qt/finestre.h"
#include "app/qt/lingua.h"
#include "app/qt/montaggio.h"
#include "app/qt/piattaforma_qt.h"
#include "app/qt/pitture.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "results/riepilogo.h"

#include <cstdio>
#include <new>
#include <string_view>

static std::string RigaComando() {
  const QStringList argomenti = QCoreApplication::arguments().mid(1);
  return Utf8(argomenti.join(' '));
}

// The start outside of the event loop.
static bool Avvia() {
  try {
    return CaricaInsDati(RigaComando());
  } catch (const std::bad_alloc&) {
    Messaggio(TESTO_MEMORIA, TitoloProg, Icona::Critica);
    return false;
  }
}

// --help and --version alone, without a window.
static bool Informa(int argc, char** argv) {
  if (argc != 2) return false;
  const std::string_view a = argv[1];
  if (a == "--version") std::printf("qb07 %s\n", VERSIONE);
  else if (a == "--help")
    std::printf("uso: qb07 \"|diroot=<radice della suite>|\"\n"
                "  --help     questo testo\n"
                "  --version  nome e versione del programma\n"
                "Senza finestre: qb07-batch --help\n");
  else return false;
  return true;
}

int main(int argc, char** argv) {
  if (Informa(argc, argv)) return std::fflush(stdout) == 0 ? 0 : 2;
  Applicazione programma(argc, argv);
  QApplication::setApplicationName("qb07");
  QGuiApplication::setDesktopFileName("qb07");
  PreparaLingua();
  QApplication::setWindowIcon(IconaProgramma());
  MontaPiattaformaQt();
  const QStringList differenze = CreaFinestre();
  if (!differenze.isEmpty()) {
    for (const QString& d : differenze) std::fprintf(stderr, "%s\n", d.toUtf8().constData());
    return 2;
  }
  suite.Decimale = DecimaleDelDesktop();
  const bool avviato = Avvia();
  int stato = avviato ? 0 : 2;
  if (avviato && !finestre.finita) stato = QApplication::exec();
  DistruggiFinestre();
  return stato;
}
