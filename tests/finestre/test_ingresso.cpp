// finestre/test_ingresso.cpp - what the user does with mouse and keyboard, on the whole program.
#include "app/qt/finestre.h"
#include "app/qt/legame.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "panels/FormTF.h"
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"
#include "panels/Op_Nodo.h"
#include "panels/PropMateriali.h"
#include "panels/pannelli.h"
#include "scena.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

TEST(Ingresso, IlFuocoSelezionaTuttoIlTesto) {
  const Scena s("fuoco");
  ASSERT_NE(s.principale, nullptr);
  MostraPagina(CampoDi(insDati.LatoTxt[2]));
  QTest::mouseClick(CampoDi(insDati.LatoTxt[2]), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(CampoDi(insDati.LatoTxt[2])->selectedText(), "100");  // the margin of a new node
}

// The same where the keyboard brings the focus: an arrow along a column of the load list, the tabulator along a row.
TEST(Ingresso, AncheLaTastieraSelezionaTutto) {
  const Scena s("fuoco_tastiera");
  for (int i = 0; i < 2; i++) InsDati_Singolo(0);
  Scrivi(insDati.TxtSN[1], "2200");
  Scrivi(insDati.TxtTy[1], "33");
  QTest::mouseClick(CampoDi(insDati.TxtSN[0]), Qt::LeftButton);
  QCoreApplication::processEvents();
  QTest::keyClick(CampoDi(insDati.TxtSN[0]), Qt::Key_Down);
  EXPECT_EQ(CampoDi(insDati.TxtSN[1])->selectedText(), "2200");
  QTest::keyClick(CampoDi(insDati.TxtSN[1]), Qt::Key_Tab);
  EXPECT_EQ(CampoDi(insDati.TxtTy[1])->selectedText(), "33");
}

// Those in use, in order: k stands in row k / 2, at the left or the right by k % 2.
static void DueARiga(const std::vector<const Controllo*>& cornici) {
  for (std::size_t k = 0; k < cornici.size(); k++) {
    EXPECT_TRUE(OggettoDi(*cornici[k])->isVisible()) << k;
    const QRect r = OggettoDi(*cornici[k])->geometry();
    const QRect prima = k % 2 == 1 ? OggettoDi(*cornici[k - 1])->geometry() : QRect();
    EXPECT_TRUE(k % 2 == 0 || (prima.right() < r.left() && prima.top() == r.top())) << k;
    EXPECT_TRUE(k < 2 || OggettoDi(*cornici[k - 2])->geometry().bottom() < r.top()) << k;
  }
}

TEST(Ingresso, TreCorniciDeiMateriali) {
  const Scena s("cornici");
  ASSERT_NE(s.principale, nullptr);
  MostraPagina(OggettoDi(insDati.PropMatButton));
  PoiDavanti([](QWidget* w) {
    const StatoPropMateriali& p = propMateriali;
    EXPECT_FALSE(OggettoDi(p.FrameAccPia)->isVisible() || OggettoDi(p.FrameBull)->isVisible());
    DueARiga({&p.FrameAcc, &p.FrameTir, &p.FrameCls});
    w->close();
  });
  QTest::mouseClick(OggettoDi(insDati.PropMatButton), Qt::LeftButton);
}

TEST(Ingresso, QuattroCorniciDeiMateriali) {
  const Scena s("quattro_cornici");
  ASSERT_NE(s.principale, nullptr);
  materiali.UsaViti = true;
  MostraPagina(OggettoDi(insDati.PropMatButton));
  PoiDavanti([](QWidget* w) {
    const StatoPropMateriali& p = propMateriali;
    DueARiga({&p.FrameAcc, &p.FrameBull, &p.FrameTir, &p.FrameCls});
    w->close();
  });
  QTest::mouseClick(OggettoDi(insDati.PropMatButton), Qt::LeftButton);
}

TEST(Ingresso, CinqueCorniciDeiMateriali) {
  const Scena s("cinque_cornici");
  ASSERT_NE(s.principale, nullptr);
  nodo.MatPiastra = nodo.MatAcc;
  materiali.UsaAccPiastre = materiali.UsaViti = true;
  MostraPagina(OggettoDi(insDati.PropMatButton));
  PoiDavanti([](QWidget* w) {
    const StatoPropMateriali& p = propMateriali;
    DueARiga({&p.FrameAcc, &p.FrameAccPia, &p.FrameBull, &p.FrameTir, &p.FrameCls});
    w->close();
  });
  QTest::mouseClick(OggettoDi(insDati.PropMatButton), Qt::LeftButton);
}

// Margins 120 with a column 300 wide: the side is 2 x 120 + 300 = 540, shown when the field is left.
TEST(Ingresso, LasciareUnCampoValeInvio) {
  const Scena s("lasciare");
  Scrivi(insDati.LatoTxt[2], "120");
  EXPECT_EQ(nodo.LatoZ, 540);
  EXPECT_EQ(CampoDi(insDati.LatoTxt[0])->text(), "500");
  QTest::keyClick(CampoDi(insDati.LatoTxt[2]), Qt::Key_Tab);
  EXPECT_EQ(CampoDi(insDati.LatoTxt[0])->text(), "540");
}

// The Enter key does the same while the field keeps the focus, also that of the number pad.
TEST(Ingresso, InvioNelCampo) {
  const Scena s("invio");
  QLineEdit* const campo = CampoDi(insDati.LatoTxt[2]);
  Scrivi(insDati.LatoTxt[2], "120");
  QTest::keyClick(campo, Qt::Key_Return);
  EXPECT_EQ(CampoDi(insDati.LatoTxt[0])->text(), "540");  // 2 x 120 + 300
  EXPECT_TRUE(campo->hasFocus());
  Scrivi(insDati.LatoTxt[2], "110");
  QTest::keyClick(campo, Qt::Key_Enter);
  EXPECT_EQ(CampoDi(insDati.LatoTxt[0])->text(), "520");
}

TEST(Ingresso, LaVirgolaNonEIlSeparatore) {
  const Scena s("virgola");
  Scrivi(insDati.LatoTxt[4], "12,5");
  EXPECT_EQ(nodo.SpessPiastra, 12);
  EXPECT_TRUE(QToolTip::text().contains("punto")) << Utf8(QToolTip::text());
  QToolTip::hideText();
}

TEST(Ingresso, TestiLunghiEAccentiNonFannoDanno) {
  const Scena s("lunghi");
  InsDati_Singolo(0);
  MostraPagina(CampoDi(insDati.Lsa[0]));
  CampoDi(insDati.Lsa[0])->setFocus();
  CampoDi(insDati.Lsa[0])->selectAll();
  CampoDi(insDati.Lsa[0])->insert(QString(20000, QChar(0x00E8)) + QString::fromUtf8("€漢"));
  QTest::keyClick(CampoDi(insDati.Lsa[0]), Qt::Key_X);
  EXPECT_EQ(nodo.SollNome[1].size(), 2u * 20000 + 3 + 3 + 1);  // UTF-8: 2 bytes an è, 3 each of the others
  for (int k = 0; k < 400; ++k) QTest::keyClick(CampoDi(insDati.TxtSN[0]), Qt::Key_9);
  EXPECT_TRUE(std::isfinite(nodo.SollN[1]));
}

TEST(Ingresso, RotellaEFrecceMuovonoLaLista) {
  const Scena s("rotella");
  for (int k = 0; k < 8; ++k) InsDati_Singolo(0);
  QLineEdit* campo = CampoDi(insDati.TxtSN[4]);
  MostraPagina(campo);
  EXPECT_EQ(insDati.ScrollSa.scelta, 6);  // eight groups: the last five, 8 - 2
  QWheelEvent su(QPointF(5, 5), campo->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                 false);
  QApplication::sendEvent(campo, &su);
  EXPECT_EQ(insDati.ScrollSa.scelta, 5);
  EXPECT_EQ(CampoDi(insDati.Lsa[0])->text(), "Soll 3");
  campo->setFocus();
  QTest::keyClick(campo, Qt::Key_Down);
  EXPECT_EQ(insDati.ScrollSa.scelta, 6);
  QTest::keyClick(campo, Qt::Key_Up);
  EXPECT_TRUE(CampoDi(insDati.TxtSN[3])->hasFocus());
  QTest::keyClick(CampoDi(insDati.TxtSN[3]), Qt::Key_PageUp);
  EXPECT_EQ(insDati.ScrollSa.scelta, 3);
}

// The wheel over a list of choices that has not the focus chooses nothing, and brings no focus.
TEST(Ingresso, LaRotellaNonSceglieAlPassaggio) {
  const Scena s("rotella_lista");
  auto* lista = static_cast<QComboBox*>(OggettoDi(insDati.TraveP));
  MostraPagina(lista);
  OggettoDi(insDati.SSTab)->setFocus();
  const int prima = lista->currentIndex();
  const QPointF dove(lista->rect().center());
  const auto gira = [lista, dove] {
    QWheelEvent e(dove, lista->mapToGlobal(dove), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&e);  // from the desktop: only then the toolkit may give the focus
    qApp->notify(lista, &e);
  };
  gira();
  EXPECT_FALSE(lista->hasFocus());
  EXPECT_EQ(lista->currentIndex(), prima);
  lista->setFocus();
  gira();
  EXPECT_EQ(lista->currentIndex(), prima + 1);
}

TEST(Ingresso, DuecentoSestetti) {
  const Scena s("duecento");
  for (int k = 0; k < 200; ++k) InsDati_Singolo(0);
  EXPECT_EQ(static_cast<QScrollBar*>(OggettoDi(insDati.ScrollSa))->maximum(), 198);
  PoiDavanti([](QWidget* w) {
    auto* box = dynamic_cast<QMessageBox*>(w);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), "Errore:numero di sollecitazioni eccessivo");
    EXPECT_EQ(box->windowTitle(), "ERRORE");
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    box->close();
  });
  InsDati_Singolo(0);
  EXPECT_EQ(nodo.NumSoll, 200);
}

TEST(Ingresso, LaDomandaSiAnnullaDaTastiera) {
  const Scena s("domanda");
  InsDati_Singolo(0);
  PoiDavanti([](QWidget* w) {
    auto* box = dynamic_cast<QMessageBox*>(w);
    ASSERT_NE(box, nullptr);
    QStringList bottoni;
    for (const QAbstractButton* b : box->buttons()) bottoni += QString(b->text()).remove('&');
    bottoni.sort();
    EXPECT_EQ(bottoni, (QStringList{"Annulla", "OK"}));
    EXPECT_EQ(box->windowTitle(), "ATTENZIONE!");
    QTest::keyClick(box, Qt::Key_Escape);
  });
  QPushButton* comando = static_cast<QPushButton*>(OggettoDi(insDati.RimuoviTSA));
  MostraPagina(comando);
  QTest::mouseClick(comando, Qt::LeftButton);
  EXPECT_EQ(nodo.NumSoll, 1);
}

TEST(Ingresso, LaRigaDiStatoDopoOttocentoMillisecondi) {
  const Scena s("stato");
  QWidget* w = OggettoDi(insDati.Verifica);
  QMouseEvent e(QEvent::MouseMove, QPointF(w->rect().center()), w->mapToGlobal(QPointF(w->rect().center())), Qt::NoButton, Qt::NoButton,
                Qt::NoModifier);
  QElapsedTimer orologio;
  orologio.start();
  QApplication::sendEvent(w, &e);
  EXPECT_FALSE(OggettoDi(insDati.Help)->isVisible());
  ASSERT_TRUE(QTest::qWaitFor([] { return OggettoDi(insDati.Help)->isVisible(); }, 60000));
  EXPECT_GE(orologio.elapsed(), 790);
  EXPECT_EQ(insDati.Help.testo, "Verifica tensionale del nodo");
}

TEST(Ingresso, LaCrocePrincipaleEIlComandoChiudi) {
  const Scena s("croce");
  s.principale->close();
  EXPECT_TRUE(finestre.finita);
}

// The cross of the anchor chooser: the model keeps its sizes.
TEST(Ingresso, LaCroceDeiTirafondiNonPrendeLeMisure) {
  const Scena s("croce_tf");
  const double prima = nodo.TfL;
  PoiDavanti([](QWidget* w) {
    ASSERT_EQ(w, FinestraDi(FormTF)->finestra);
    Scrivi(formTF.GeoTfTxt[12], "777");
    w->close();
  });
  MostraPagina(OggettoDi(insDati.DimTf));
  QTest::mouseClick(OggettoDi(insDati.DimTf), Qt::LeftButton);
  EXPECT_FALSE(formTF.aperto);
  EXPECT_EQ(nodo.TfL, prima);
}

TEST(Ingresso, LaFinestraSiStringeESiAllarga) {
  const Scena s("misure");
  for (const QSize m : {QSize(1, 1), QSize(6000, 4000), QSize(1280, 720), QSize(300, 3000)}) {
    s.principale->resize(m);
    QCoreApplication::processEvents();
    EXPECT_FALSE(s.principale->grab().isNull());
  }
  s.principale->resize(1, 1);
  EXPECT_LE(s.principale->width(), 1280);
  EXPECT_LE(s.principale->height(), 720);
}

TEST(Ingresso, ControlloENumeroVoltanoPagina) {
  const Scena s("pagine");
  OggettoDi(insDati.Chiudi)->setFocus();
  QTest::keyClick(OggettoDi(insDati.Chiudi), Qt::Key_6, Qt::ControlModifier);
  EXPECT_EQ(insDati.SSTab.scelta, 5);
  EXPECT_TRUE(OggettoDi(insDati.Singolo)->isVisible());
}

// Turning the page leaves the field: margins 120 with a column 300 wide give a side of 2 x 120 + 300 = 540.
TEST(Ingresso, VoltarePaginaLasciaIlCampo) {
  const Scena s("pagine_campo");
  Scrivi(insDati.LatoTxt[2], "120");
  QTest::keyClick(CampoDi(insDati.LatoTxt[2]), Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(insDati.SSTab.scelta, 0);
  EXPECT_EQ(CampoDi(insDati.LatoTxt[0])->text(), "540");
}

TEST(Ingresso, DiUnTestoLungoSiVedeLInizio) {
  const Scena s("inizio");
  InsDati_Singolo(0);
  MostraTesto(insDati.Lsa[0], std::string(200, 'a'));
  EXPECT_EQ(CampoDi(insDati.Lsa[0])->cursorPosition(), 0);
}

// The size of the form's own, cut to the screen; never below what its pages need.
TEST(Ingresso, DiUnTestoLungoLasciatoSiVedeLInizio) {
  const Scena s("lasciato");
  InsDati_Singolo(0);
  Scrivi(insDati.Lsa[0], "Vento X+ con carico minimo e neve in falda");
  EXPECT_GT(CampoDi(insDati.Lsa[0])->cursorPosition(), 0);
  QTest::keyClick(CampoDi(insDati.Lsa[0]), Qt::Key_Tab);
  EXPECT_EQ(CampoDi(insDati.Lsa[0])->cursorPosition(), 0);
}

TEST(Ingresso, LaFinestraStaNelloSchermo) {
  const Scena s("schermo");
  const QSize minima = s.principale->minimumSizeHint(), schermo = s.principale->screen()->availableSize();
  EXPECT_EQ(s.principale->width(), std::max(minima.width(), std::min(1240, schermo.width() - 16)));
  EXPECT_EQ(s.principale->height(), std::max(minima.height(), std::min(720, schermo.height() - 48)));
  EXPECT_LE(minima.width(), 956);  // 1920 x 1200 at 200 per cent is 960 x 600
  EXPECT_LE(minima.height(), 560);
}

// Typed keys follow the focus at once, whatever else waits in the queue: no digit of theirs is replaced.
TEST(Ingresso, LeCifreBattuteSubitoRestano) {
  const Scena s("subito");
  QLineEdit* campo = CampoDi(insDati.LatoTxt[2]);
  MostraPagina(campo);
  campo->setFocus(Qt::TabFocusReason);
  QTest::keyClick(campo, Qt::Key_1);
  QCoreApplication::processEvents();
  QTest::keyClicks(campo, "50");
  EXPECT_EQ(campo->text(), "150");
}

// A list of completions, a menu or another window that goes gives the focus back to a half-typed text.
TEST(Ingresso, IlFuocoDiRitornoNonSeleziona) {
  const Scena s("ritorno");
  QLineEdit* campo = CampoDi(insDati.LatoTxt[2]);
  Scrivi(insDati.LatoTxt[2], "12");
  for (const Qt::FocusReason causa : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason, Qt::MenuBarFocusReason}) {
    QFocusEvent perso(QEvent::FocusOut, causa), preso(QEvent::FocusIn, causa);
    QApplication::sendEvent(campo, &perso);
    QApplication::sendEvent(campo, &preso);
    QCoreApplication::processEvents();
    EXPECT_EQ(campo->selectedText(), "") << causa;
    EXPECT_EQ(CampoDi(insDati.LatoTxt[0])->text(), "500") << causa;  // not left
  }
  QLineEdit altrui(s.principale);
  altrui.setText("ab");
  altrui.deselect();
  QFocusEvent preso(QEvent::FocusIn, Qt::OtherFocusReason);
  QApplication::sendEvent(&altrui, &preso);
  QCoreApplication::processEvents();
  EXPECT_EQ(altrui.selectedText(), "");
}

// However a panel was left, it comes up with the keyboard on its first control, all of its text selected.
TEST(Ingresso, IlPannelloSiApreSulPrimoCampo) {
  const Scena s("primo");
  QLineEdit* primo = CampoDi(opNodo.Par_Nodo[0]);
  for (int k = 0; k < 2; ++k) {
    QTest::mouseClick(OggettoDi(insDati.Opz), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitForWindowActive(primo->window()));
    EXPECT_EQ(primo->window()->focusWidget(), primo);
    EXPECT_EQ(primo->selectedText(), primo->text());
    CampoDi(opNodo.Par_Nodo[3])->setFocus();
    QTest::keyClick(primo->window(), Qt::Key_Escape);
    EXPECT_FALSE(opNodo.aperto);
  }
}

TEST(Ingresso, LUnitaSiSpegneColCampo) {
  const Scena s("unita");
  const auto* lato = s.principale->findChild<QWidget*>("_di_LatoTxt_0");
  const auto* margine = s.principale->findChild<QWidget*>("_di_LatoTxt_2");
  ASSERT_NE(lato, nullptr);
  ASSERT_NE(margine, nullptr);
  for (const int margini : {0, 1}) {
    MostraPagina(OggettoDi(insDati.GeoP[margini]));
    OggettoDi(insDati.GeoP[margini])->setFocus();
    QTest::keyClick(OggettoDi(insDati.GeoP[margini]), Qt::Key_Space);
    EXPECT_EQ(lato->isEnabled(), margini == 0);
    EXPECT_EQ(margine->isEnabled(), margini == 1);
  }
}

// What a field cuts shows whole under the pointer.
TEST(Ingresso, IlTestoTagliatoSiLeggeIntero) {
  const Scena s("tagliato");
  InsDati_Singolo(0);
  MostraPagina(CampoDi(insDati.Lsa[0]));
  const auto suggerimento = [](const char* testo) {
    QLineEdit* campo = CampoDi(insDati.Lsa[0]);
    Scrivi(insDati.Lsa[0], testo);
    QToolTip::hideText();
    QHelpEvent e(QEvent::ToolTip, campo->rect().center(), campo->mapToGlobal(campo->rect().center()));
    QApplication::sendEvent(campo, &e);
    return QToolTip::text();
  };
  EXPECT_EQ(suggerimento("Vento"), "");
  EXPECT_EQ(suggerimento("Vento X+ con carico minimo e neve in falda"), "Vento X+ con carico minimo e neve in falda");
}

TEST(Ingresso, LaLetteraDellaDidascaliaPremeSubito) {
  const Scena s("lettera");
  MostraPagina(OggettoDi(insDati.Singolo));
  QTest::keyClick(s.principale, Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(nodo.NumSoll, 1);
}

// Tab comes to the chosen entry; an arrow chooses the next one.
TEST(Ingresso, LeScelteDaTastiera) {
  const Scena s("scelte");
  QTest::keyClick(s.principale, Qt::Key_4, Qt::ControlModifier);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), OggettoDi(insDati.OptionNTir[0]));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_EQ(nodo.NTir, 8);
  EXPECT_EQ(QApplication::focusWidget(), OggettoDi(insDati.OptionNTir[1]));
}
