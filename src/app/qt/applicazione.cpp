// app/qt/applicazione.cpp - one event of the application, and a failed allocation in it.
#include "app/qt/applicazione.h"

#include "core/piattaforma.h"
#include "model/suite.h"

#include <new>
#include <utility>

bool Applicazione::notify(QObject* oggetto, QEvent* evento) {
  try {
    return QApplication::notify(oggetto, evento);
  } catch (const std::bad_alloc&) {
    if (std::exchange(riquadroInCorso, true)) return false;
    Messaggio(TESTO_MEMORIA, TitoloProg, Icona::Critica);
    riquadroInCorso = false;
    return false;
  }
}
