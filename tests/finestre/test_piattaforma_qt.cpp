// finestre/test_piattaforma_qt.cpp - the operations of the platform with windows.
#include "app/qt/anteprima.h"
#include "app/qt/finestre.h"
#include "app/qt/mostra_testo.h"
#include "app/qt/piattaforma_qt.h"
#include "corredo/disco.h"
#include "corredo/registratore.h"
#include "drawing/disegno.h"
#include "panels/InsDati.h"
#include "scena.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QImage>
#include <QLineEdit>
#include <QPdfWriter>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QTranslator>

#include <cfenv>

#include <gtest/gtest.h>

TEST(PiattaformaQt, FiltriDelDialogo) {
  const QStringList attesi{"File nodo 3 (*.qb7)", "Tutti i file (*.*)", "Immagini (*.a *.b)"};
  EXPECT_EQ(FiltriDialogo("File nodo 3 (*.qb7)|*.qb7|Tutti i file (*.*)|*.*|Immagini|*.a;*.b"), attesi);
  EXPECT_EQ(FiltriDialogo(""), QStringList{});
}

TEST(PiattaformaQt, IlDialogoParlaItalianoESiAnnulla) {
  MontaPiattaformaQt();
  finestre = {};
  PoiDavanti([](QWidget* w) {
    auto* d = dynamic_cast<QFileDialog*>(w);
    ASSERT_NE(d, nullptr);
    QStringList testi;
    for (const QAbstractButton* b : d->findChildren<QAbstractButton*>()) testi += QString(b->text()).remove('&');
    EXPECT_TRUE(testi.contains("Annulla")) << Utf8(testi.join(' '));
    EXPECT_TRUE(testi.contains("Salva"));
    EXPECT_EQ(d->windowTitle(), "TITOLO");
    QTest::keyClick(d, Qt::Key_Escape);
  });
  RichiestaFile r;
  r.salva = true;
  r.titolo = "TITOLO";
  r.filtro = "Testo|*.txt";
  std::string percorso;
  int filtro = 0;
  EXPECT_FALSE(piattaforma.scegliFile(r, percorso, filtro));
  EXPECT_EQ(percorso, "");
}

// The toolkit's own Italian lacks the kinds of its list of files; its print dialog and titles are ours where it is not installed.
TEST(PiattaformaQt, NessunTestoIngleseNeiDialoghi) {
  EXPECT_EQ(QFileIconProvider().type(QFileInfo(QDir::rootPath())), "Unità");
  EXPECT_EQ(QFileIconProvider().type(QFileInfo(QDir::tempPath())), "Cartella");
  const QTranslator* riserva = qApp->findChild<QTranslator*>();
  ASSERT_NE(riserva, nullptr);
  for (const char* inglese : {"Save As", "Print range", "Printer", "Copies:", "Select All", "Page size:"})
    EXPECT_FALSE(riserva->translate("", inglese).isEmpty()) << inglese;
}

// The default extension goes on a name without a point; the second filter of two is number 2.
TEST(PiattaformaQt, IlDialogoDaNomeEFiltro) {
  MontaPiattaformaQt();
  const QTemporaryDir cartella;
  static QString nome;
  nome = cartella.filePath("prova");
  PoiDavanti([](QWidget* w) {
    auto* d = dynamic_cast<QFileDialog*>(w);
    ASSERT_NE(d, nullptr);
    d->selectNameFilter(d->nameFilters().at(1));
    d->findChild<QLineEdit*>("fileNameEdit")->setText(nome);
    QTest::keyClick(d->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
  });
  RichiestaFile r;
  r.salva = true;
  r.filtro = "Testo|*.txt|Tutti|*.*";
  r.estensione = "qb7";
  std::string percorso;
  int filtro = 0;
  ASSERT_TRUE(piattaforma.scegliFile(r, percorso, filtro));
  EXPECT_EQ(percorso, Utf8(nome) + ".qb7");
  EXPECT_EQ(filtro, 2);
}

TEST(PiattaformaQt, IProgrammiSenzaShell) {
  MontaPiattaformaQt();
  const QTemporaryDir cartella;
  const QString programma = cartella.filePath("Prova con blank");
  QFile f(programma);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("#!/bin/sh\necho \"$#:$1\" > \"$0.esito\"\n");
  f.close();
  f.setPermissions(f.permissions() | QFile::ExeOwner);
  EXPECT_TRUE(piattaforma.esegui(Utf8(programma) + ".exe", "|Diroot=a b| $HOME ; x"));
  QFile esito(programma + ".esito");
  ASSERT_TRUE(esito.open(QIODevice::ReadOnly));
  EXPECT_EQ(esito.readAll(), "1:|Diroot=a b| $HOME ; x\n");
  EXPECT_FALSE(finestre.occupato);
  EXPECT_FALSE(piattaforma.esegui(Utf8(cartella.filePath("manca.exe")), "x"));
  EXPECT_FALSE(piattaforma.avvia(Utf8(cartella.filePath("manca.exe")), ""));
  EXPECT_TRUE(piattaforma.avvia(Utf8(programma), ""));
}

// What the toolkit computes while it paints is no fault of the program, and hides none.
TEST(PiattaformaQt, LeOperazioniLascianoIFlagAritmetici) {
  const Scena s("flag");
  std::feclearexcept(FE_ALL_EXCEPT);
  for (Controllo* c : {&insDati.Nodo, &insDati.TraveP, &insDati.Help}) piattaforma.aggiorna(*c);
  EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW), 0);
  std::feraiseexcept(FE_DIVBYZERO);
  piattaforma.aggiorna(insDati.Nodo);
  EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO), FE_DIVBYZERO);
  std::feclearexcept(FE_ALL_EXCEPT);
}

TEST(PiattaformaQt, LaFinestraDelTestoCerca) {
  const QTemporaryDir cartella;
  QFile f(cartella.filePath("RelTA.txt"));
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("UNITA' DI MISURA\r\nprofondit\xE0 dei fori\r\nfine\r\n");  // Windows-1252
  f.close();
  QWidget* w = FinestraTesto(f.fileName());
  w->show();
  auto* testo = w->findChild<QPlainTextEdit*>();
  EXPECT_EQ(testo->toPlainText(), QString::fromUtf8("UNITA' DI MISURA\nprofondità dei fori\nfine\n"));
  QLineEdit* che = w->findChild<QLineEdit*>();
  QTest::keyClicks(che, "FORI");
  QTest::keyClick(che, Qt::Key_Return);
  EXPECT_EQ(testo->textCursor().selectedText(), "fori");
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("altra\r\n");
  f.close();
  EXPECT_EQ(FinestraTesto(f.fileName()), w);  // one window a file, read again
  EXPECT_EQ(testo->toPlainText(), "altra\n");
  w->close();
}

// Tab stops of eight letters, as every text program has: the headings of the reports stand over their columns.
TEST(PiattaformaQt, LaFinestraDelTestoIncolonnaOgniOttoLettere) {
  const QTemporaryDir cartella;
  QFile f(cartella.filePath("colonne.txt"));
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("\tTipo prof.\th\r\n\tHEB300\t\t300\r\nMOMENTI:\tdaNcm\r\nFORZE:\t\tdaN\r\n");
  f.close();
  QWidget* w = FinestraTesto(f.fileName());
  w->show();
  auto* testo = w->findChild<QPlainTextEdit*>();
  const auto x = [testo](int posizione) {
    QTextCursor c(testo->document());
    c.setPosition(posizione);
    return testo->cursorRect(c).x();
  };
  EXPECT_NEAR(x(1) - x(0), 8 * QFontMetricsF(testo->font()).horizontalAdvance(' '), 1.5);
  EXPECT_EQ(x(23), x(12));  // "300" under "h": 1 + 10 + 1, and 14 + 1 + 6 + 2
  EXPECT_EQ(x(36), x(50));  // eight letters fill their column: "daNcm" and "daN" begin at the next
  w->close();
}

static int PagineStampate(int colonne, int righe, const QString& file) {
  const QString riga = QString(colonne, 'x') + '\n';
  QFont carattere("monospace", 10);
  carattere.setStyleHint(QFont::Monospace);
  {
    QPdfWriter carta(file);
    carta.setPageSize(QPageSize(QPageSize::A4));
    StampaDocumento(riga.repeated(righe), carattere, carta);
  }
  QFile f(file);
  if (!f.open(QIODevice::ReadOnly)) return 0;
  return static_cast<int>(f.readAll().replace("/Type /Pages", "").count("/Type /Page"));
}

// 40 lines stand on an A4 page at ten points, of which about 80 letters are as wide as the page: wrapped, 110 would take two pages.
TEST(PiattaformaQt, LaStampaNonSpezzaLeRighe) {
  const QTemporaryDir cartella;
  EXPECT_EQ(PagineStampate(60, 40, cartella.filePath("strette.pdf")), 1);
  EXPECT_EQ(PagineStampate(60, 80, cartella.filePath("lunghe.pdf")), 2);
  EXPECT_EQ(PagineStampate(110, 40, cartella.filePath("larghe.pdf")), 1);
}

TEST(PiattaformaQt, LAnteprimaHaTuttoIlDisegno) {
  const Scena s("anteprima");
  FoglioVisto foglio;
  ASSERT_TRUE(DisegnaFoglioVisto(foglio));
  EXPECT_GT(foglio.linee.size(), static_cast<std::size_t>(disegno.NumLinee));  // the lines, and the strokes of the texts
  EXPECT_EQ(foglio.archi.size(), static_cast<std::size_t>(disegno.NumArchi));
  for (int i = 0; i < disegno.NumCoord; ++i) {
    const bool dentro = disegno.CoordX[i] > foglio.carta.left() && disegno.CoordX[i] < foglio.carta.right();
    ASSERT_TRUE(dentro) << i;
  }
  const QTemporaryDir cartella;
  ASSERT_TRUE(SalvaFoglioPdf(foglio, cartella.filePath("a.pdf")));
  QFile pdf(cartella.filePath("a.pdf"));
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_TRUE(pdf.readAll().startsWith("%PDF"));
  ASSERT_TRUE(SalvaFoglioPng(foglio, cartella.filePath("a.png")));
  const QImage immagine(cartella.filePath("a.png"));
  EXPECT_EQ(std::max(immagine.width(), immagine.height()), 4000);
  EXPECT_FALSE(SalvaFoglioPng(foglio, cartella.filePath("manca/a.png")));
  // A picture that cannot be written whole leaves the one of before.
  for (bool (*salva)(const FoglioVisto&, const QString&) : {SalvaFoglioPdf, SalvaFoglioPng}) {
    const QString nome = cartella.filePath("di_prima");
    ScriviByte(Utf8(nome), "di prima");
    {
      const DiscoPieno pieno;
      EXPECT_FALSE(salva(foglio, nome));
    }
    EXPECT_EQ(LeggiByte(Utf8(nome)), "di prima");
    EXPECT_EQ(QDir(cartella.path()).entryList(QDir::Files | QDir::Hidden), (QStringList{"a.pdf", "a.png", "di_prima"}));
    QFile::remove(nome);
    ASSERT_TRUE(QDir().mkdir(nome));
    EXPECT_FALSE(salva(foglio, nome));
    QDir().rmdir(nome);
  }
}

TEST(PiattaformaQt, LAnteprimaSiApreDalSuoComando) {
  const Scena s("anteprima_comando");
  QTest::mouseClick(s.principale->findChild<QWidget*>("_Anteprima"), Qt::LeftButton);
  QWidget* anteprima = nullptr;
  for (QWidget* w : QApplication::topLevelWidgets())
    if (w->objectName() == "Anteprima") anteprima = w;
  ASSERT_NE(anteprima, nullptr);
  EXPECT_TRUE(anteprima->isVisible());
  EXPECT_EQ(anteprima->windowTitle(), "Anteprima del disegno - Nuovo");
}
