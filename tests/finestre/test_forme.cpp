// finestre/test_forme.cpp - every control of every panel has its widget of the right kind, and every widget its control.
#include "app/qt/finestre.h"
#include "app/qt/legame.h"
#include "app/qt/montaggio.h"
#include "panels/InsDati.h"
#include "panels/pannelli.h"

#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

#include <memory>

TEST(Forme, SettePannelli) { EXPECT_EQ(Pannelli().size(), 7u); }

TEST(Forme, UnoAUnoConIRecord) {
  for (const Pannello* p : Pannelli()) {
    const std::unique_ptr<QWidget> w(NuovaFinestra(*p));
    ASSERT_NE(w, nullptr) << p->nome;
    EXPECT_EQ(Utf8(DifferenzeForma(*p, *w).join('\n')), "");
  }
}

TEST(Forme, UnControlloCheMancaSiTrova) {
  const std::unique_ptr<QWidget> w(NuovaFinestra(InsDati));
  delete w->findChild<QWidget*>("LatoTxt_3");
  EXPECT_EQ(DifferenzeForma(InsDati, *w), QStringList{"InsDati.LatoTxt_3: manca nella finestra"});
}

TEST(Forme, UnWidgetInPiuSiTrova) {
  const std::unique_ptr<QWidget> w(NuovaFinestra(InsDati));
  (new QLabel(w.get()))->setObjectName("LatoTxt_9");
  EXPECT_EQ(DifferenzeForma(InsDati, *w), QStringList{"InsDati.LatoTxt_9: non è un controllo del pannello"});
}

TEST(Forme, UnAltroGenereEUnDoppioneSiTrovano) {
  const std::unique_ptr<QWidget> w(NuovaFinestra(InsDati));
  delete w->findChild<QWidget*>("GolaTxt");
  (new QLabel(w.get()))->setObjectName("GolaTxt");
  (new QLineEdit(w.get()))->setObjectName("DTf_1");
  const QStringList attese{"InsDati.DTf_1: più di uno nella finestra", "InsDati.GolaTxt: di un altro genere nella finestra"};
  EXPECT_EQ(DifferenzeForma(InsDati, *w), attese);
}

TEST(Forme, QuelloDiSoloAspettoNonConta) {
  const std::unique_ptr<QWidget> w(NuovaFinestra(InsDati));
  (new QLabel(w.get()))->setObjectName("_nota");
  EXPECT_EQ(DifferenzeForma(InsDati, *w), QStringList{});
}
