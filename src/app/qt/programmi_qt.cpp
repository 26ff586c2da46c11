// app/qt/programmi_qt.cpp - outside programs of the desktop: without a shell, output and input shut, no zombies.
#include "app/qt/finestre.h"
#include "app/qt/piattaforma_qt.h"
#include "core/comando.h"

#include <QEventLoop>
#include <QProcess>

static bool Prepara(QProcess& p, const std::string& programma, const std::string& argomento) {
  const std::string file = TrovaProgramma(programma);
  if (file.empty()) return false;
  p.setProgram(Testo(file));
  if (!argomento.empty()) p.setArguments({Testo(argomento)});
  p.setStandardInputFile(QProcess::nullDevice());
  p.setStandardOutputFile(QProcess::nullDevice());
  return true;
}

bool EseguiProgrammaQt(const std::string& programma, const std::string& argomento) {
  QProcess p;
  p.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  if (!Prepara(p, programma, argomento)) return false;
  p.start();
  if (!p.waitForStarted(-1)) return false;
  finestre.occupato = true;
  if (p.state() != QProcess::NotRunning) {
    QEventLoop attesa;
    QObject::connect(&p, &QProcess::finished, &attesa, &QEventLoop::quit);
    QObject::connect(&p, &QProcess::errorOccurred, &attesa, &QEventLoop::quit);
    attesa.exec();
  }
  finestre.occupato = false;
  return true;
}

bool AvviaProgrammaQt(const std::string& programma, const std::string& argomento) {
  QProcess p;
  return Prepara(p, programma, argomento) && p.startDetached();
}
