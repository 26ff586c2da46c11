// test_file_nodo_guasti - saves and loads that fail: the box, what a partial load leaves, hostile values, changed bytes.
// Start: a new joint of HEA360 on a plate 500 x 550 x 10 mm; the good file is an HEA200 on 400 x 500 x 20 (banco_nodo.h).
#include "corredo/banco_nodo.h"

#include <cmath>
#include <cstddef>
#include <random>
#include <string_view>

#include "core/layout_nodo.h"
#include "corredo/disco.h"
#include "model/materiali.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/file_nodo.h"

using FileNodoGuasti = FileNodo;

TEST_F(FileNodoGuasti, SalvataggioFallito) {
  Salva(lavoro + "manca/altro.qb7");  // no such folder
  EXPECT_EQ(Box(SALVATAGGIO), 1);
  EXPECT_TRUE(esitoFile.fallito);
  EXPECT_EQ(nodo.NomeNodo, "altro") << "name and caption change before the writing";
  EXPECT_EQ(insDati.titolo, "NODO COLONNA - PLINTO - Lavoro: altro");
  // A save that cannot be completed leaves the former file whole.
  const std::string percorso = lavoro + "pilastro_A1.qb7", prima = LeggiByte(percorso);
  {
    const DiscoPieno pieno;
    Salva(percorso);
  }
  EXPECT_EQ(Box(SALVATAGGIO), 2);
  EXPECT_EQ(LeggiByte(percorso), prima);
  nodo.LatoZ = HUGE_VAL;  // a value that no file can hold
  Salva(percorso);
  EXPECT_EQ(Box(SALVATAGGIO), 3);
  EXPECT_EQ(LeggiByte(percorso), prima);
}

TEST_F(FileNodoGuasti, RigaDelDiametro) {
  struct Caso {
    const char* testo;
    int idx;
    double Fi;
    bool fallito;
  };
  for (const Caso& c : {Caso{" 1 ", 1, 8, false},
                        {" 22 ", 22, 68, false},
                        {" 100 ", 100, 0, false},
                        {" 0 ", 3, 99, true},
                        {"-1 ", 3, 99, true},
                        {" 101 ", 3, 99, true},
                        {" 32767 ", 3, 99, true},
                        {" 99999 ", 3, 99, true}}) {
    nodo.TfDiamIdx = 3;
    nodo.TfFi = 99;  // the two may differ after the anchor chooser
    Righe r = Buono();
    r[28] = c.testo;
    CaricaByte(lavoro + "x.qb7", Unisci(r));
    EXPECT_EQ(nodo.TfDiamIdx, c.idx) << c.testo;
    EXPECT_EQ(nodo.TfFi, c.Fi) << c.testo;
    EXPECT_EQ(esitoFile.fallito, c.fallito) << c.testo;
    EXPECT_EQ(nodo.TfLF, 12) << "what follows keeps its place";
  }
}

TEST_F(FileNodoGuasti, EsposizioneEMetodoFuoriPosto) {
  for (const char* testo : {" 0 ", "-1 ", " 4 ", "99999", "x"}) {
    ImpostaScelta(insDati.ComboEsposizione, 2);
    Righe r = Buono();
    r[38] = testo;
    CaricaByte(lavoro + "x.qb7", Unisci(r));
    EXPECT_EQ(nodo.Esposizione, 2) << testo;
    EXPECT_EQ(Box(CARICAMENTO), 1) << testo;
    EXPECT_EQ(nodo.NumNodiStr, 2);
  }
  for (const char* testo : {"2", "-1", "x", "", "01"}) {
    Righe r = Buono();
    r.back() = testo;
    CaricaByte(lavoro + "x.qb7", Unisci(r));
    EXPECT_EQ(nodo.TipoVer, 1) << testo;  // as the loads before left it
    EXPECT_EQ(Box(CARICAMENTO), 1) << testo;
  }
}

TEST_F(FileNodoGuasti, PosizioneOltreLaTendinaFiltrata) {
  Righe r = Buono();
  r[35] = "S 355 W";  // row 19; under allowable stresses the list holds 8
  r.back() = "0";
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_EQ(Box(CARICAMENTO), 1);
  EXPECT_LT(insDati.Acc.voci.size(), 19u);
}

TEST_F(FileNodoGuasti, FileMancante) {
  UtenteScrive(InsDati, insDati.LatoTxt[4], "15 mm");
  Carica(lavoro + "non_c_e.qb7");
  EXPECT_EQ(nodo.SpessPiastra, 15);
  EXPECT_EQ(insDati.LatoTxt[4].testo, "15") << "the panel is brought in line all the same";
  EXPECT_EQ(Box(CARICAMENTO), 1);
  EXPECT_TRUE(esitoFile.fallito);
  EXPECT_FALSE(esitoFile.annullato);
  EXPECT_EQ(nodo.NomeNodo, "non_c_e");
  EXPECT_EQ(nodo.Sezione.Nome, suite.ProfiliLib[32].Nome);
  EXPECT_EQ(nodo.LatoZ, 500) << "the values stay as they were";
  EXPECT_EQ(nodo.TfDiamIdx, 7);
  Carica(radice + "/lavori");  // a folder
  EXPECT_EQ(Box(CARICAMENTO), 2);
}

// Circles of the file's anchors, diameter 24, on the plan.
static int CerchiM24() {
  int n = 0;
  for (const Tratto& t : insDati.telaNodo.tratti) n += t.forma == Tratto::Forma::Arco && t.raggio == 12;
  return n;
}

// Cut behind each line: the box comes last, only the section's name is set to entry 32's, the rest is what was read.
TEST_F(FileNodoGuasti, TroncatoAOgniRiga) {
  const Righe r = Buono();
  for (std::size_t n = 0; n <= r.size(); ++n) {
    ASSERT_TRUE(AvviaSuite(radice));
    CaricaByte(lavoro + "x.qb7", Unisci({r.begin(), r.begin() + static_cast<std::ptrdiff_t>(n)}));
    const bool intero = n == r.size();
    EXPECT_EQ(esitoFile.fallito, !intero) << n;
    EXPECT_EQ(Box(CARICAMENTO), intero ? 0 : 1) << n;
    if (intero) {
      EXPECT_EQ(CerchiM24(), 4);
      continue;
    }
    EXPECT_EQ(registratore.eventi.back(), std::string("[messaggio] nessuna | ERRORE | ") + CARICAMENTO) << n;
    EXPECT_EQ(nodo.Sezione.Nome, "HEA360            ") << n;
    EXPECT_EQ(nodo.Sezione.H, n > 1 ? 190 : 350) << n << ": the dimensions are not rolled back";
    EXPECT_EQ(nodo.SpessPiastra, n > 8 ? 20 : 10) << n;
    EXPECT_EQ(insDati.LatoTxt[4].testo, n > 8 ? "20" : "10") << n << ": the panel is brought in line";
    EXPECT_EQ(nodo.TfDistBordo, n > 33 ? 250 : 200) << n;
    EXPECT_EQ(nodo.TipoVer, 0) << n;
    EXPECT_EQ(nodo.NumSoll, n > 39 ? 1 : 0) << n;
    EXPECT_EQ(insDati.Lsa[0].visibile, n > 39) << n;
    EXPECT_EQ(CerchiM24(), 0) << n << ": the plan is not painted behind a failed step";
  }
}

// Hostile counts through the command: no crash, bounds kept, the box.
TEST_F(FileNodoGuasti, ConteggiOstili) {
  for (const std::size_t riga : {std::size_t{15}, std::size_t{39}, std::size_t{48}})
    for (const char* testo : {"-1", "9", "201", "2001", "32767", "99999", "1e400", "-1e400"}) {
      Righe r = Buono();
      r[riga] = testo;
      CaricaByte(lavoro + "x.qb7", Unisci(r));
      EXPECT_EQ(Box(CARICAMENTO), 1) << riga << " " << testo;
      EXPECT_EQ(nodo.Sezione.Nome, "HEA360            ");
      EXPECT_LE(nodo.NTir, MaxTir);
      EXPECT_LE(nodo.NumSoll, MaxSoll);
      EXPECT_GE(nodo.NumSoll, 0);
      EXPECT_LE(nodo.NumNodiStr, MaxNodiStr);
      EXPECT_GE(nodo.NumNodiStr, 0);
    }
}

TEST_F(FileNodoGuasti, InteroSbagliato) {
  Righe r = Buono();
  r[9] = "99999";  // TipoNodo
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_EQ(Box(CARICAMENTO), 1);
  EXPECT_EQ(nodo.TipoNodo, 2) << "the value of before";
  EXPECT_EQ(nodo.HNerv, 120) << "its text was consumed";
  r = Buono();
  r[13] = " 7 ";  // SaldInt: ticked if not 0, the tick's event makes it 1
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_EQ(Box(CARICAMENTO), 0);
  EXPECT_EQ(nodo.SaldInt, 1);
}

// Sides whose difference no double holds: failed steps, no infinity in the model or on the panel, no arithmetic box.
TEST_F(FileNodoGuasti, NumeriSmisurati) {
  Righe r = Buono();
  r[1] = "FORESTIERA";
  r[3] = "-1.7E+308 ";
  r[6] = " 1.7E+308 ";
  r[18] = "-1.7E+308 ";
  CaricaByte(lavoro + "x.qb7", Unisci(r));
  EXPECT_EQ(Box(CARICAMENTO), 1);
  EXPECT_EQ(registratore.eventi.size(), 2u);
  for (int i = 1; i <= 8; ++i) EXPECT_TRUE(std::isfinite(nodo.TfZ[i]) && std::isfinite(nodo.TfY[i])) << i;
  EXPECT_TRUE(std::isfinite(nodo.LatoZ));
}

// A fault in a handler is a failed step of the load, not the end of the command: the other combos are positioned.
TEST_F(FileNodoGuasti, FaultInUnGestore) {
  materiali.ClsBase[4].Rck = -350;  // the modulus takes its root
  const double EcCls = nodo.EcCls;
  CaricaByte(lavoro + "x.qb7", Unisci(Buono()));
  EXPECT_EQ(registratore.eventi.size(), 2u);
  EXPECT_EQ(Box(CARICAMENTO), 1);
  EXPECT_EQ(nodo.EcCls, EcCls);
  EXPECT_EQ(nodo.MatAcc.Fyk, 2350);
  EXPECT_EQ(nodo.MatTir.Ftk, 8000);
}

// Changed bytes in the samples, old generation too: whatever comes, the bounds hold and the next good load is a good load.
TEST_F(FileNodoGuasti, ByteCambiati) {
  std::mt19937 caso(5061995);  // fixed
  const std::string_view CARATTERI = "0123456789-,\"\r\n eE.";
  const std::string buoni[] = {Unisci(Buono()), LeggiByte(lavoro + "esistente_1998.qb7"), LeggiByte(lavoro + "portale_F1.qb7")};
  const std::string atteso = buoni[0];
  for (int prova = 0; prova < 600; ++prova) {
    std::string byte = buoni[prova % 3];
    for (int k = 0; k < 1 + prova % 4; ++k)
      byte[caso() % byte.size()] = prova % 2 ? static_cast<char>(caso() % 256) : CARATTERI[caso() % CARATTERI.size()];
    CaricaByte(lavoro + "x.qb7", byte);
    ASSERT_LE(nodo.NTir, MaxTir);
    ASSERT_LE(nodo.NumSoll, MaxSoll);
    ASSERT_EQ(Box(CARICAMENTO), esitoFile.fallito ? 1 : 0) << prova;
  }
  CaricaByte(lavoro + "x.qb7", atteso);
  EXPECT_FALSE(esitoFile.fallito);
  Salva(lavoro + "copia.qb7");
  EXPECT_EQ(LeggiByte(lavoro + "copia.qb7"), atteso);
}
