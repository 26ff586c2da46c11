// finestre/replica.cpp - plays a script in the windows, with the command line of the host without windows: `esegui` alone. Its output is to
// equal that host's to the byte.
#include "app/batch/copione.h"
#include "app/batch/opzioni.h"
#include "app/batch/piattaforma_batch.h"
#include "app/qt/finestre.h"
#include "app/qt/lingua.h"
#include "app/qt/montaggio.h"
#include "core/file.h"
#include "mani.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "robot.h"

#include <QApplication>
#include <QTest>

#include <cstdio>

static void DentroModale(const Pannello& p) {
  EseguiCopione(&p);
  if (p.aperto != nullptr && *p.aperto) Esci(StatoUscita());  // the script ended inside
}

// What the platform without a screen says of itself is none of the program's; every other word of the toolkit is an error.
static void Diario(QtMsgType, const QMessageLogContext&, const QString& testo) {
  if (testo.startsWith("This plugin does not support") || testo.startsWith("QStandardPaths:")) return;
  std::fprintf(stderr, "%s\n", testo.toUtf8().constData());
}

int main(int argc, char** argv) {
  static constexpr Verbo ESEGUI[] = {{"esegui", "COPIONE", "gioca un copione nelle finestre", 1, 1, nullptr}};
  std::string motivo;
  if (!LeggiArgomenti(argc, argv, ESEGUI, ospite.opzioni, motivo) || ospite.opzioni.argomenti.size() != 1) {
    std::fprintf(stderr, "errore: %s\n%s", motivo.c_str(), Uso(ESEGUI).c_str());
    return 2;
  }
  FileLettura f;
  if (!ApriLettura(f, ospite.opzioni.argomenti[0])) {
    std::fprintf(stderr, "copione non leggibile: %s\n", ospite.opzioni.argomenti[0].c_str());
    return 2;
  }
  CaricaCopione(f.byte);
  qInstallMessageHandler(Diario);
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  int nessuno = 1;
  QApplication programma(nessuno, argv);
  PreparaLingua();
  MontaRobot();
  azioniUtente = AzioniConLeMani();
  finestre.dentroModale = DentroModale;
  for (const QString& d : CreaFinestre()) std::fprintf(stderr, "%s\n", d.toUtf8().constData());
  suite.Decimale = ospite.opzioni.decimale != 0 ? ospite.opzioni.decimale : DecimaleSistema();
  if (!CaricaInsDati(ospite.opzioni.rigaComando)) Esci(2);
  ospite.avviato = true;
  if (!QTest::qWaitForWindowActive(FinestraDi(InsDati)->finestra)) std::fputs("finestra non attiva\n", stderr);
  EseguiCopione(nullptr);
  Esci(copione.fermato ? 2 : StatoUscita());
}
