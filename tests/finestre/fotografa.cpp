// finestre/fotografa.cpp - pictures of the windows with a node of the sample suite in them, for people to look at.
// Called    qb07-fotografa RIGA CARTELLA [NODO.qb7] ; RIGA is the command line of the start
// Writes    CARTELLA/InsDati_1.png to _7.png, one a page, and one PNG a panel (one a page where it has two).
// Exit      0 written, 2 not started, 3 a picture was not written.
#include "app/qt/finestre.h"
#include "app/qt/legame.h"
#include "app/qt/lingua.h"
#include "app/qt/montaggio.h"
#include "app/qt/piattaforma_qt.h"
#include "core/eventi.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/FormTF.h"
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"
#include "panels/PropMateriali.h"
#include "panels/Sez3D.h"
#include "panels/pannelli.h"

#include <QApplication>
#include <QTabWidget>
#include <QTest>

#include <cstdio>

static std::string cartella, nodo_;
static int mancate = 0;

static void Scatta(QWidget& w, const std::string& nome) {
  QTest::qWait(50);
  if (!w.grab().save(Testo(cartella + "/" + nome + ".png"))) ++mancate;
}

static void ScattaPagine(const Pannello& p, QTabWidget& schede) {
  for (int k = 0; k < schede.count(); ++k) {
    schede.setCurrentIndex(k);
    Scatta(*schede.window(), std::string(p.nome) + "_" + std::to_string(k + 1));
  }
}

static void ScattaPannello(const Pannello& p) {
  if (&p == &Sez3D) {  // the bars at the model's first base
    ImpostaTesto(sez3D.NodoTxt, "1");
    Scatena(Sez3D, sez3D.Cerca, Evento::Cambio);
  }
  QWidget& w = *FinestraDi(p)->finestra;
  auto* schede = &p == &FormTF ? dynamic_cast<QTabWidget*>(LegameDi(formTF.SSTab1)->oggetto) : nullptr;
  if (schede != nullptr) ScattaPagine(p, *schede);
  else Scatta(w, p.nome);
  ChiudiPannello(p);
}

int main(int argc, char** argv) {
  QApplication programma(argc, argv);
  PreparaLingua();
  MontaPiattaformaQt();
  const QStringList argomenti = QCoreApplication::arguments();
  if (argomenti.size() < 3 || !CreaFinestre().isEmpty()) return 2;
  suite.Decimale = '.';
  if (!CaricaInsDati(Utf8(argomenti[1]))) return 2;
  cartella = Utf8(argomenti[2]);
  QWidget& principale = *FinestraDi(InsDati)->finestra;
  principale.resize(1240, 690);  // what fits a small screen, whatever this one is
  if (argomenti.size() > 3) {
    nodo_ = Utf8(argomenti[3]);
    piattaforma.scegliFile = [](const RichiestaFile&, std::string& percorso, int&) {
      percorso = nodo_;
      return true;
    };
    InsDati_Car_Nodo(0);
    AggiornaTitoli();
  }
  QTest::qWait(50);
  ScattaPagine(InsDati, *dynamic_cast<QTabWidget*>(LegameDi(insDati.SSTab)->oggetto));
  finestre.dentroModale = ScattaPannello;
  for (const Pannello* p : Pannelli())
    if (p == &PropMateriali) InsDati_PropMatButton(0);  // the command fills it
    else if (p != &InsDati) ApriPannello(*p, true);
  principale.hide();
  return mancate == 0 ? 0 : 3;
}
