// finestre/test_robustezza.cpp - what people do to windows: closing in the middle, Escape, double clicks, windows closed in any order.
#include "app/qt/anteprima.h"
#include "app/qt/finestre.h"
#include "app/qt/legame.h"
#include "app/qt/mostra_testo.h"
#include "app/qt/piattaforma_qt.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "panels/FormTF.h"
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"
#include "panels/Op_Nodo.h"
#include "panels/pannelli.h"
#include "scena.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <new>

static void Premi(const Controllo& c) {
  MostraPagina(OggettoDi(c));
  QTest::mouseClick(OggettoDi(c), Qt::LeftButton);
}

static void DoppioClick(QWidget* w) {
  QTest::mouseClick(w, Qt::LeftButton);
  QTest::mouseDClick(w, Qt::LeftButton);
  QTest::mouseRelease(w, Qt::LeftButton);
}

static QWidget* Aperta(const char* nome) {
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w->objectName() == nome && w->isVisible()) return w;
  return nullptr;
}

TEST(Robustezza, LaCroceInMezzoAUnaDomanda) {
  const Scena s("croce_domanda");
  InsDati_Singolo(0);
  PoiDavanti([](QWidget* box) {
    FinestraDi(InsDati)->finestra->close();
    EXPECT_TRUE(FinestraDi(InsDati)->finestra->isVisible());
    EXPECT_FALSE(finestre.finita);
    box->close();
  });
  Premi(insDati.RimuoviTSA);
  EXPECT_EQ(nodo.NumSoll, 1);
  EXPECT_FALSE(finestre.finita);
}

TEST(Robustezza, LaCroceInMezzoAlDialogoDeiFile) {
  const Scena s("croce_dialogo");
  PoiDavanti([](QWidget* d) {
    FinestraDi(InsDati)->finestra->close();
    EXPECT_TRUE(FinestraDi(InsDati)->finestra->isVisible());
    QTest::keyClick(d, Qt::Key_Escape);
  });
  Premi(insDati.Sav_Nodo);
  EXPECT_FALSE(finestre.finita);
  EXPECT_EQ(nodo.NomeNodo, "Nuovo");
}

static void ChiudiRiquadroDiMemoria() {
  PoiDavanti([](QWidget* box) {
    EXPECT_EQ(static_cast<QMessageBox*>(box)->text(), Testo(TESTO_MEMORIA));
    box->close();
  });
}

// A command that finds no memory ends with its box; what was entered stays, and the next command is carried out.
TEST(Robustezza, ComandoSenzaMemoria) {
  const Scena s("memoria_comando");
  InsDati_Singolo(0);
  const auto scegliFile = piattaforma.scegliFile;
  piattaforma.scegliFile = [](const RichiestaFile&, std::string&, int&) -> bool { throw std::bad_alloc(); };
  ChiudiRiquadroDiMemoria();
  Premi(insDati.Sav_Nodo);
  piattaforma.scegliFile = scegliFile;
  EXPECT_EQ(nodo.NumSoll, 1);
  EXPECT_EQ(finestre.comandi, 0);
  EXPECT_FALSE(finestre.finita);
  Premi(insDati.Singolo);
  EXPECT_EQ(nodo.NumSoll, 2);
}

// So does an event of the application outside of commands.
TEST(Robustezza, EventoSenzaMemoria) {
  struct Esaurito : QObject {
    bool event(QEvent*) override { throw std::bad_alloc(); }
  } esaurito;
  const Scena s("memoria_evento");
  InsDati_Singolo(0);
  ChiudiRiquadroDiMemoria();
  QEvent evento(QEvent::User);
  EXPECT_FALSE(QCoreApplication::sendEvent(&esaurito, &evento));
  EXPECT_EQ(nodo.NumSoll, 1);
  EXPECT_FALSE(finestre.finita);
}

// The program ends at once; the modal panel's wait ends with it.
TEST(Robustezza, LaFineInMezzoAUnPannello) {
  const Scena s("croce_pannello");
  PoiDavanti([](QWidget*) { FinestraDi(InsDati)->finestra->close(); });
  Premi(insDati.DimTf);
  EXPECT_TRUE(finestre.finita);
}

// While an outside program is waited for, closing and typing do nothing, and the windows stay.
TEST(Robustezza, InMezzoAUnProgrammaEsterno) {
  const Scena s("croce_programma");
  const QTemporaryDir cartella;
  QFile f(cartella.filePath("aspetta"));
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("#!/bin/sh\nwhile [ ! -e \"$0.basta\" ]; do sleep 0.02; done\n");
  f.close();
  f.setPermissions(f.permissions() | QFile::ExeOwner);
  static QString basta;
  static bool provato;
  basta = f.fileName() + ".basta";
  provato = false;
  QTimer::singleShot(0, qApp, [] {
    ASSERT_TRUE(finestre.occupato);
    QWidget* w = FinestraDi(InsDati)->finestra;
    w->close();
    EXPECT_TRUE(w->isVisible());
    QTest::keyClick(w, Qt::Key_Q, Qt::ControlModifier);
    QTest::mouseClick(OggettoDi(insDati.Chiudi), Qt::LeftButton);
    provato = true;
    QFile(basta).open(QIODevice::WriteOnly);
  });
  EXPECT_TRUE(piattaforma.esegui(Utf8(f.fileName()) + ".exe", "x"));
  EXPECT_TRUE(provato);
  EXPECT_FALSE(finestre.finita);
  EXPECT_TRUE(s.principale->isVisible());
}

TEST(Robustezza, EscDappertutto) {
  const Scena s("esc");
  for (const Pannello* p : Pannelli()) {
    if (p == &InsDati) continue;
    PoiDavanti([](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); });
    ApriPannello(*p, true);
    EXPECT_FALSE(FinestraDi(*p)->finestra->isVisible()) << p->nome;
  }
  QTest::keyClick(s.principale, Qt::Key_Escape);
  EXPECT_TRUE(s.principale->isVisible());
  EXPECT_FALSE(finestre.finita);
}

// A double click is two clicks; behind a panel that the first has opened the second does nothing.
TEST(Robustezza, DoppioClickSuiComandi) {
  const Scena s("doppio");
  MostraPagina(OggettoDi(insDati.Singolo));
  DoppioClick(OggettoDi(insDati.Singolo));
  EXPECT_EQ(nodo.NumSoll, 2);
  MostraPagina(OggettoDi(insDati.DimTf));
  PoiDavanti([](QWidget* w) {
    DoppioClick(OggettoDi(insDati.DimTf));
    EXPECT_EQ(QApplication::activeModalWidget(), w);
    EXPECT_EQ(pannelli.modali.size(), 1u);
    w->close();
  });
  QTest::mouseClick(OggettoDi(insDati.DimTf), Qt::LeftButton);
  EXPECT_TRUE(pannelli.modali.empty());
}

TEST(Robustezza, IlDialogoSiAnnullaInOgniComando) {
  const Scena s("annulla");
  InsDati_Singolo(0);
  for (Controllo* c : {&insDati.Sav_Nodo, &insDati.Car_Nodo, &insDati.Gen_Dis, &insDati.EsportaSollButt}) {
    PoiDavanti([](QWidget* d) {
      ASSERT_NE(dynamic_cast<QFileDialog*>(d), nullptr);
      d->findChild<QLineEdit*>("fileNameEdit")->setText("mezzo nome");
      d->close();
    });
    Premi(*c);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << c->riga->nome;
    EXPECT_EQ(nodo.NomeNodo, "Nuovo") << c->riga->nome;
  }
  EXPECT_EQ(nodo.NumSoll, 1);
}

TEST(Robustezza, AnteprimaERelazioniInOgniOrdine) {
  const Scena s("ordine");
  const QTemporaryDir cartella;
  for (const char* n : {"a.txt", "b.txt"}) {
    QFile f(cartella.filePath(n));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("riga\r\n");
  }
  for (const bool primaLAnteprima : {true, false}) {
    QWidget* a = FinestraTesto(cartella.filePath("a.txt"));
    a->show();
    ASSERT_TRUE(ApriAnteprima());
    QWidget* b = FinestraTesto(cartella.filePath("b.txt"));
    b->show();
    EXPECT_NE(a, b);
    if (primaLAnteprima) Aperta("Anteprima")->close();
    a->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Aperta("FinestraTesto"), b);
    b->close();
    if (!primaLAnteprima) Aperta("Anteprima")->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Aperta("Anteprima"), nullptr);
    EXPECT_EQ(Aperta("FinestraTesto"), nullptr);
    EXPECT_TRUE(s.principale->isVisible());
  }
  ASSERT_TRUE(ApriAnteprima());  // and the program ends with one open
}

// Every field of every page takes a text of any length and accents, and the sketch is painted behind each one; a message that a value
// brings up is read and closed.
TEST(Robustezza, OgniCampoReggeOgniTesto) {
  const Scena s("testi");
  InsDati_Singolo(0);
  QTimer lettore;
  QObject::connect(&lettore, &QTimer::timeout, [] {
    if (auto* box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      EXPECT_EQ(box->text(), "Errore aritmetico: il comando non può continuare.");
      box->close();
    }
  });
  lettore.start(1);
  for (const RigaPannello& r : InsDati.righe)
    for (int i = r.primo; i <= r.ultimo; ++i) {
      QLineEdit* campo = CampoDi(r.controllo[i - r.primo]);
      if (campo == nullptr || !campo->isEnabled() || campo->isHidden()) continue;
      MostraPagina(campo);
      for (const QString& t :
           {QString(), QString(400, '9'), QString::fromUtf8("perché 12,5 €"), QString("-1e308"), QString("1e-308"), QString("0")}) {
        campo->setFocus(Qt::TabFocusReason);
        campo->selectAll();
        campo->insert(t);
        QTest::keyClick(campo, Qt::Key_Return);
        EXPECT_FALSE(s.principale->grab().isNull());
      }
    }
}
