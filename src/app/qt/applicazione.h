// app/qt/applicazione.h - the application of the desktop program. A command that finds no memory ends by itself (see Scatena); here what happens
// outside of commands, as painting: the event is given up, the box says so, the program and its joint stay.
#pragma once
#include <QApplication>

class Applicazione : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* oggetto, QEvent* evento) override;

 private:
  bool riquadroInCorso = false;  // the box may find no memory either
};
