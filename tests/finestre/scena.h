// finestre/scena.h - the whole program with its windows on a fresh copy of the sample suite, for one test.
#pragma once
#include "panels/controlli.h"

#include <string>

class QLineEdit;
class QWidget;

struct Scena {
  std::string radice;
  QWidget* principale = nullptr;  // nullptr: the start ended in a message
  explicit Scena(const char* nome);
  ~Scena();
  Scena(const Scena&) = delete;
  Scena& operator=(const Scena&) = delete;
};

QWidget* OggettoDi(const Controllo& c);
QLineEdit* CampoDi(const Controllo& c);
void MostraPagina(QWidget* w);                       // turns the pages that hold it
void Scrivi(const Controllo& c, const char* testo);  // click, everything replaced, key by key
// Something is done with the next modal window or box, once it is on screen.
void PoiDavanti(void (*fai)(QWidget* davanti));
