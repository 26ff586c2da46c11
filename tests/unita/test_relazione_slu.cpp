// tests/unita/test_relazione_slu.cpp - the limit-state report line by line, its verdicts; the tables stay as they are.
// Expected lines are written from the cells' widths with hand-computed numbers, noted where they are not plain.
#include "corredo/relazioni_campione.h"
#include "model/stato.h"

namespace {

constexpr const char* TRATTI = "----------------------------------------------------------------------";
const std::string TITOLI_TIRAFONDI = "|Num|  Fv,Ed|  Fv,Rd|  Fb,Rd|  Ft,Ed|  Ft,Rd|  Bp,Rd| Tad,Rd|Co-1|Co-2|Co-3| Ver";
const std::string TITOLI_SALDATURE = "| Nome|S_prp|  Tau_pa|  Tau_pe|   SEq-1|   SEq-2|  SLim-1|  SLim-2|     Ver";
const std::string TITOLI_PIASTRA = "|   Smax|     fd|    Ver";
const std::string TITOLI_NERVATURE = "|Posizione|   Smax|     fd|    Ver";
const std::string TITOLI_CLS = "|   Smax|    fcd|    Ver";
const std::string TITOLI_LISTA = "|Nome |   Lung|Lato |Nome|   Lung|Lato";

class RelSLU : public ProvaRelazione {
 protected:
  void SetUp() override {
    ProvaRelazione::SetUp();
    Saldature(4);
    ris.FvRd = 7000, ris.FtRd = 14112, ris.BpRd = 30000, ris.TadRd = 9500.6;
    for (int i = 1; i <= MaxTir; ++i) ris.FbRd[i] = 12000 + i;
  }
  RigheFile Relazione() {
    EXPECT_TRUE(GiudicaEScrivi(MetodoSLU));
    EXPECT_FALSE(FaultAritmetico());
    return LeggiRighe(FileSLU());
  }
};

RigheFile Testata() {
  return {
    "VERIFICA TENSIONALE NODI: 3,15 - METODO DEGLI STATI LIMITE (NTC 2008)",
    "",
    "UNITA' DI MISURA: [kN] ; [kN m] ; [N/mm2] ; [mm]",
    "",
    "GEOMETRIA NODO",
    "",
    "Profili utilizzati",
    "|Tipo prof.          |                   h|    b|    a|    e|    r",
    "|HEA200              |                 190|  200|  6,5|   10|   18",
    "",
    "Piastra e fazzoletti",
    "|Num  |   Lz|   Ly|   Sp",
    "|1    |  400|  500|   20",
    "|2(Y) |  500|  150|    8",
    "|3(Z) |   92|  150|    8",  // (400 - 200) / 2 - 8
    "",
    "TIRAFONDI",
    "",
    "Tirafondi (n\xB0 4)",
    "|Num|  X|    Y|  Fi|   Area |Num    |  X|    Y|  Fi|   Area",
    "|1  |350|   50|  20|    245 |3      |350|  460|  20|    245",
    "|2  | 50|   50|  20|    245 |4      | 50|  460|  20|    245",
    "",
    "Dimensioni",
    "|    l|  lft|   l1|    r",
    "|  500|  120|  450|   70",
    "",
    "",
    "SALDATURE (n\xB0 4)",
    "|Nome |   Lung|Lato |Nome|   Lung|Lato",
    "|S1   |    100|   7 |S3   |    103|   7",
    "|S2   |  101,5|   7 |S4   |  104,5|   7",
    "",
    "MATERIALI",
    "|Acciaio S 275 (FE 430)                   Calcestruzzo C25/30                     ",
    "|fd s<40mm           |fd 40mm<s<80mm      fcd                                     ",
    "|261,9               |242,86              14,11                                   ",  // 2750 / 1.05, 2550 / 1.05, 300 x 0.7055 / 1.5 = 141.1
    "|Acciaio tirafondi 8.8                    ",
    "|fd                                       ",
    "|512                 ",  // 6400 / 1.25
    "",
    "",
    "SOLLECITAZIONI AGENTI E STATO TENSIONALE",
    "",
  };
}

TEST_F(RelSLU, TestataESestettoRigaPerRiga) {
  suite.Decimale = ',';
  nodo.NumNodiStr = 2, nodo.NodiStr[1] = 3, nodo.NodiStr[2] = 15;
  nodo.NumSoll = 1, nodo.SollNome[1] = "Vento\r\nda nord";
  nodo.SollN[1] = -12345.5, nodo.SollTy[1] = 1000, nodo.SollTz[1] = 0;
  nodo.SollMt[1] = 1500, nodo.SollMy[1] = -200000, nodo.SollMz[1] = 123456;
  ris.FvEd[1][1] = 250, ris.FtEd[1][1] = 2450, ris.Co1[1][1] = 0.15971, ris.Co2[1][1] = 0.17361, ris.Co3[1][1] = 0.25788;
  ris.FvEd[1][3] = 7100.5, ris.FtEd[1][3] = -3024.525, ris.Co1[1][3] = 1.01436, ris.Co2[1][3] = 0.2143, ris.Co3[1][3] = 0.3184;
  ris.Saldature[1].SPrp[1][1] = 3, ris.Saldature[1].TauPa[1][3] = -4, ris.Saldature[1].TauPe[1][1] = 0.1234;
  ris.Saldature[2].Lung = 0;  // never made: in the list, without a row
  ris.Saldature[4].TauPa[1][1] = -20;
  ris.SMaxPiastra[1] = 15.55, ris.SMaxCls[1] = 0.105;
  const double S[] = {0, 3, 0, 2, 7.25, 0, 4.5, 1, 0};
  for (int p = 1; p <= 8; ++p) ris.SNerv[1][p] = S[p];

  RigheFile attese = Testata();
  attese[31] = "|S2   |      0|   7 |S4   |  104,5|   7";
  const RigheFile blocco = {
    "",
    "Combinazione di sollecitazioni agenti Vento da nord",
    TRATTI,
    "N: -123,455         Ty: 10              Tz: 0               ",
    "Mt: 0,15            My: -20             Mz: 12,3456         ",
    "",
    "Verifica tirafondi",
    "Co-1, Co-2: NTC 2008, 4.2.8.1.1 formula (4.2.65)",
    "Co-3: Ft,Ed / Tad,Rd",
    "|Num|  Fv,Ed|  Fv,Rd|  Fb,Rd|  Ft,Ed|  Ft,Rd|  Bp,Rd| Tad,Rd|Co-1|Co-2|Co-3| Ver",
    "|1  |    2,5|     70| 120,01|   24,5| 141,12|    300| 95,006|0,16|0,17|0,26|SI'",
    "|2  |      0|     70| 120,02|      0| 141,12|    300| 95,006|   0|   0|   0|SI'",
    "|3  | 71,005|     70| 120,03|-30,245| 141,12|    300| 95,006|1,01|0,21|0,32| NO",  // -30.24525
    "|4  |      0|     70| 120,04|      0| 141,12|    300| 95,006|   0|   0|   0|SI'",
    "",
    "Verifica saldature",
    "SEq-1, SLim-1: NTC 2008, 4.2.8.2.4 formula (4.2.78)",
    "SEq-2, SLim-2: NTC 2008, 4.2.8.2.4 formula (4.2.79)",
    "| Nome|S_prp|  Tau_pa|  Tau_pe|   SEq-1|   SEq-2|  SLim-1|  SLim-2|     Ver",
    // daN/cm2 at ends 1 and 3: 300 and 12.34, then -400; SEq1 = max(sqrt(90000 + 152.2756) = 300.2537, 400), SEq2 = 312.34
    "|   S1|   30|      40|    1,23|      40|   31,23|   192,5|  233,75|SI'",
    "|   S3|    0|       0|       0|       0|       0|   192,5|  233,75|SI'",
    "|   S4|    0|     200|       0|     200|       0|   192,5|  233,75| NO",  // 2000 > 0.7 x 2750 = 1925
    "",
    "Verifica piastra",
    "|   Smax|     fd|    Ver",
    "|  155,5|  261,9|SI'",
    "",
    "Verifica nervature",
    "|Posizione|   Smax|     fd|    Ver",
    "|Z        |   72,5|  261,9|SI'",
    "|Y        |     45|  261,9|SI'",
    "",
    "Verifica pressione sul calcestruzzo",
    "|   Smax|    fcd|    Ver",
    "|   1,05|  14,11|SI'",
    "",
    "ATTENZIONE: NODO NON VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI Vento da nord",
  };
  attese.insert(attese.end(), blocco.begin(), blocco.end());
  ConfrontaRighe(Relazione(), attese);

  EXPECT_EQ(registratore.eventi, (RigheFile{BOX_NON_VERIFICATO, "[testo] " + FileSLU()}));
  EXPECT_FALSE(lavoro.verificato);
  EXPECT_EQ(ris.Co1[1][3], 1.01436);  // rounded in their rows
  EXPECT_EQ(RigheCriterio(lavoro, 1, SLU_TIR_CO1)[2].domanda, 1.01);
  EXPECT_EQ(RigheCriterio(lavoro, 1, SLU_TIR_CO2)[0].domanda, 0.17);
  EXPECT_EQ(RigheCriterio(lavoro, 1, SLU_TIR_CO3)[0].domanda, 0.26);
  EXPECT_EQ(ris.SMaxPiastra[1], 15.55);  // scaled in their rows
  EXPECT_EQ(ris.SMaxCls[1], 0.105);
  EXPECT_DOUBLE_EQ(RigheCriterio(lavoro, 1, SLU_PIASTRA)[0].domanda, 1555);
  EXPECT_DOUBLE_EQ(RigheCriterio(lavoro, 1, SLU_CLS)[0].domanda, 10.5);
  EXPECT_EQ(ris.SNerv[1][4], 7.25);
  EXPECT_EQ(ris.FtEd[1][1], 2450);
  EXPECT_EQ(ris.TadRd, 9500.6);
}

TEST_F(RelSLU, SenzaSestetti) {
  suite.Decimale = ',';
  nodo.NumNodiStr = 2, nodo.NodiStr[1] = 3, nodo.NodiStr[2] = 15;
  ConfrontaRighe(Relazione(), Testata());
  EXPECT_EQ(registratore.eventi, (RigheFile{"[testo] " + FileSLU()}));
}

TEST_F(RelSLU, PuntoDecimale) {
  suite.Decimale = '.';
  Sestetti(1);
  nodo.SollN[1] = -12345.5;
  const RigheFile r = Relazione();
  EXPECT_EQ(r[0], "VERIFICA TENSIONALE NODI - METODO DEGLI STATI LIMITE (NTC 2008)");
  EXPECT_EQ(r[8], "|HEA200              |                 190|  200|  6.5|   10|   18");
  EXPECT_EQ(Conta(r, "N: -123.455         Ty: 0               Tz: 0               "), 1u);
}

// Lengths to one decimal, the area to two, the section plain; a longer text pushes the line on.
TEST_F(RelSLU, ArrotondamentiDellaGeometria) {
  nodo.Sezione.Nome = "PROFILO SALDATO 12", nodo.Sezione.A = 6.5625, nodo.Sezione.H = 190.25;
  nodo.LatoZ = 1400.25, nodo.TfZ[1] = 50.3125, nodo.TfFi = 22, nodo.TfL = 500.0625, nodo.Gola = 7.0625;
  nodo.MatCls.Nome = "Calcestruzzo di prova con un nome lungo";
  const RigheFile r = Relazione();
  EXPECT_EQ(r[8], "|PROFILO SALDATO 12  |              190.25|  200|6.5625|   10|   18");
  EXPECT_EQ(r[12], "|1    |1400.2|  500|   20");  // tie to even
  EXPECT_EQ(r[14], "|3(Z) |592.1|  150|    8");   // (1400.25 - 200) / 2 - 8 = 592.125
  // 1400.25 - 50.3125 = 1349.9375; area 296.5454
  EXPECT_EQ(r[20], "|1  |1349.9|   50|  22| 296.55 |3      |1350.2|  460|  22| 296.55");
  EXPECT_EQ(Dopo(r, "|    l|  lft|   l1|    r", 1), "|500.1|  120|  450|   70");
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 1), "|S1   |    100| 7.1 |S3   |    103| 7.1");
  // whole: 13 + 39 characters in a cell of 40
  EXPECT_EQ(Dopo(r, "MATERIALI", 1), "|Acciaio S 275 (FE 430)                   Calcestruzzo Calcestruzzo di prova con un nome lungo");
}

// A length of each kind with two decimals: one is shown. Area at 20.37 mm: 245 + (414.9369 - 400) x 108 / 176 = 254.1658.
TEST_F(RelSLU, OgniLunghezzaConUnDecimale) {
  nodo.LatoY = 500.26, nodo.SpessPiastra = 20.37, nodo.HNerv = 150.37, nodo.SpNerv = 8.28;
  nodo.TfY[1] = 50.26, nodo.TfFi = 20.37, nodo.TfLFt = 120.26, nodo.TfL1 = 450.37, nodo.TfR = 70.28, ris.Saldature[1].Lung = 100.26;
  const RigheFile r = Relazione();
  EXPECT_EQ(r[12], "|1    |  400|500.3| 20.4");
  EXPECT_EQ(r[13], "|2(Y) |500.3|150.4|  8.3");
  EXPECT_EQ(r[14], "|3(Z) | 91.7|150.4|  8.3");  // 100 - 8.28 = 91.72
  EXPECT_EQ(r[20], "|1  |350| 50.3|20.4| 254.17 |3      |350|  460|20.4| 254.17");
  EXPECT_EQ(Dopo(r, "|    l|  lft|   l1|    r", 1), "|  500|120.3|450.4| 70.3");
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 1), "|S1   |  100.3|   7 |S3   |    103|   7");
}

// A unit that leaves three decimals and more in every column: 1 daN/cm2 = 0.0125. Stresses show two of them, forces (kN) three.
TEST_F(RelSLU, OgniColonnaCoiSuoiDecimali) {
  suite.FattTensioni = 0.0125;
  Sestetti(1);
  nodo.MatTir.Fyk = 6553.7;
  ris.FvEd[1][1] = 123.4567, ris.FvRd = 7012.3456, ris.FbRd[1] = 12001.2345, ris.FtEd[1][1] = 234.5678;
  ris.FtRd = 14112.7777, ris.BpRd = 30001.2345, ris.TadRd = 9500.6789;
  ris.Saldature[1].SPrp[1][1] = 0.4567, ris.Saldature[1].TauPa[1][1] = 0.5671, ris.Saldature[1].TauPe[1][1] = 0.6789;
  ris.Saldature[5].Nome = "S5", ris.Saldature[5].Lung = 77;  // beyond NumSaldature: no row
  ris.SMaxPiastra[1] = 1.2345, ris.SNerv[1][3] = 1.2345, ris.SNerv[1][5] = 0.5671, ris.SMaxCls[1] = 0.1049;
  const RigheFile r = Relazione();
  // 2619.0476: 32.7381; 2428.5714: 30.3571; 141.1: 1.76375; 6553.7 / 1.25: 65.537
  EXPECT_EQ(Dopo(r, "MATERIALI", 3), "|32.74               |30.36               1.76                                    ");
  EXPECT_EQ(Dopo(r, "|fd                                       ", 1), "|65.54               ");
  EXPECT_EQ(Dopo(r, TITOLI_TIRAFONDI, 1), "|1  |  1.235| 70.123|120.012|  2.346|141.128|300.012| 95.007|   0|   0|   0|SI'");
  // 0.570875, 0.708875, 0.848625; sqrt(9910.8251) = 99.5531: 1.2444; 113.56: 1.4195; 0.7 x 2750: 24.0625; 0.85 x 2750: 29.21875
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 1), "|   S1| 0.57|    0.71|    0.85|    1.24|    1.42|   24.06|   29.22|SI'");
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 5), "");
  EXPECT_EQ(Dopo(r, TITOLI_PIASTRA, 1), "|   1.54|  32.74|SI'");  // 1.543125
  EXPECT_EQ(Dopo(r, TITOLI_NERVATURE, 1), "|Z        |   1.54|  32.74|SI'");
  EXPECT_EQ(Dopo(r, TITOLI_NERVATURE, 2), "|Y        |   0.71|  32.74|SI'");
  EXPECT_EQ(Dopo(r, TITOLI_CLS, 1), "|   0.13|   1.76|SI'");  // 0.131125
}

TEST_F(RelSLU, ConteggiDispariNelleDueColonne) {
  nodo.NTir = 5, nodo.TfZ[5] = 200, nodo.TfY[5] = 250;
  Saldature(3);
  RigheFile r = Relazione();
  EXPECT_EQ(r[18], "Tirafondi (n\xB0 5)");
  EXPECT_EQ(r[20], "|1  |350|   50|  20|    245 |4      | 50|  460|  20|    245");
  EXPECT_EQ(r[21], "|2  | 50|   50|  20|    245 |5      |200|  250|  20|    245");
  EXPECT_EQ(r[22], "|3  |350|  460|  20|    245");
  EXPECT_EQ(r[23], "");
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 1), "|S1   |    100|   7 |S3   |    103|   7");
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 2), "|S2   |  101.5|   7");
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 3), "");

  Saldature(17);  // 9 is the last on the left, alone: its own values, no dashes
  r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 8), "|S8   |  110.5|   7 |S17  |    124|   7");
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 9), "|S9   |    112|   7");
}

TEST_F(RelSLU, SaldatureInterneConTrattini) {
  Sestetti(1);
  Saldature(40);
  ris.Saldature[9] = {}, ris.Saldature[19] = {};  // never made: no name, no length
  RigheFile r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 8), "|S8   |  110.5|   7 |S28  |  140.5|   7");
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 9), "|S9   |      -|   - |S29  |    142|   7");
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 19), "|S19  |      -|   - |S39  |    157|   7");
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 21), "");
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 8).substr(0, 6), "|   S8");
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 9).substr(0, 6), "|  S10");
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 38).substr(0, 6), "|  S40");
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 39), "");

  // Left over from a run with inner welds: dashes in the list, a row all the same, judged too.
  SetUp();
  Sestetti(1);
  Saldature(38);  // now 19 is the last of the left column, beside 38
  ris.Saldature[9].TauPa[1][1] = 20;
  r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 9), "|S9   |      -|   - |S28  |  140.5|   7");
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 19), "|S19  |      -|   - |S38  |  155.5|   7");
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 9), "|   S9|    0|     200|       0|     200|       0|   192.5|  233.75| NO");
  EXPECT_EQ(r.back(), std::string(NON_VERIFICATO) + "Soll 1");

  SetUp();
  nodo.SaldInt = 1;
  Saldature(18);  // 9 on the left with its values, 18 on the right
  r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 9), "|S9   |    112|   7 |S18  |  125.5|   7");
  nodo.SaldInt = -1;  // dashes with 0 only
  EXPECT_EQ(Dopo(Relazione(), TITOLI_LISTA, 9), "|S9   |    112|   7 |S18  |  125.5|   7");

  SetUp();
  Saldature(10 + 8);
  r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 9), "|S9   |      -|   - |S18  |  125.5|   7");
  Saldature(20);
  r = Relazione();  // dashes on the right as well: 9 and 19 in one row
  EXPECT_EQ(Dopo(r, TITOLI_LISTA, 9), "|S9   |      -|   - |S19  |      -|   -");
}

TEST_F(RelSLU, LunghezzaMinimaDellaSaldatura) {
  Sestetti(1);
  ris.Saldature[1].Lung = 0.0001;  // not above it: no row
  ris.Saldature[2].Lung = 0.0002;
  const RigheFile r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 1).substr(0, 6), "|   S2");
}

TEST_F(RelSLU, TipoNodoUnoSenzaBloccoNervature) {
  nodo.TipoNodo = 1;
  Sestetti(1);
  ris.SNerv[1][3] = 1000;  // stale: neither shown nor judged
  const RigheFile r = Relazione();
  EXPECT_EQ(Conta(r, "|2(Y) |  500|  150|    8"), 1u);  // the geometry is written all the same
  EXPECT_EQ(Conta(r, "Verifica nervature"), 0u);
  EXPECT_EQ(Dopo(r, TITOLI_PIASTRA, 3), "Verifica pressione sul calcestruzzo");
  EXPECT_EQ(r.back(), std::string(VERIFICATO) + "Soll 1");
}

// ---- limits: each value on its limit passes, a little above fails

// Strengths that divide evenly: fd 2000 (thin) and 1800 daN/cm2, SLim 1700 and 2000, fcd 141.1.
void Acciaio235() { nodo.MatAcc.Nome = "S 235", nodo.MatAcc.Fyk = 2000, nodo.MatAcc.Fyk40 = 1800, nodo.MatAcc.GammaM = 1; }

struct CasoLimite {
  const char* nome;
  void (*imposta)();  // everything zero but this
  bool passa;
};
// clang-format off
const CasoLimite CASI[] = {
  {"Co-1 1", [] { ris.Co1[1][1] = 1; }, true},
  {"Co-1 1.004: judged as rounded", [] { ris.Co1[1][1] = 1.004; }, true},
  {"Co-1 1.005 falls to 1 or 1.01 with the binary value: 1.0050001", [] { ris.Co1[1][1] = 1.0050001; }, false},
  {"Co-2", [] { ris.Co2[1][4] = 1.01; }, false},
  {"Co-2 1", [] { ris.Co2[1][4] = 1.004; }, true},
  {"Co-3", [] { ris.Co3[1][2] = 1.01; }, false},
  {"Co-3 1", [] { ris.Co3[1][2] = 1; }, true},
  {"SEq-1 on the limit", [] { ris.Saldature[3].TauPa[1][1] = 17; }, true},
  {"SEq-1", [] { ris.Saldature[3].TauPa[1][1] = 17.00001; }, false},
  // |SPrp| + |TauPe| over 2000 while their root stays under 1700
  {"SEq-2 on the limit", [] { ris.Saldature[2].SPrp[1][3] = 10, ris.Saldature[2].TauPe[1][3] = -10; }, true},
  {"SEq-2", [] { ris.Saldature[2].SPrp[1][3] = 10.00001, ris.Saldature[2].TauPe[1][3] = -10; }, false},
  {"middle point", [] { ris.Saldature[2].TauPa[1][2] = 90; }, true},
  {"plate on the limit", [] { ris.SMaxPiastra[1] = 20; }, true},
  {"plate", [] { ris.SMaxPiastra[1] = 20.00001; }, false},                       // not rounded before
  {"plate, absolute", [] { ris.SMaxPiastra[1] = -20.00001; }, false},
  {"rib Z on the limit", [] { ris.SNerv[1][7] = 20; }, true},
  {"rib Z, 4", [] { ris.SNerv[1][4] = 20.00001; }, false},
  {"rib Z, 7", [] { ris.SNerv[1][7] = 20.00001; }, false},
  {"rib Y on the limit", [] { ris.SNerv[1][2] = 20; }, true},
  {"rib Y, 2", [] { ris.SNerv[1][2] = 20.00001; }, false},
  {"rib Y, 5", [] { ris.SNerv[1][5] = 20.00001; }, false},
  {"ribs, absolute", [] { for (int p : {3, 4, 7, 8}) ris.SNerv[1][p] = -20.00001; }, false},
  {"concrete under the limit", [] { ris.SMaxCls[1] = 1.410999; }, true},
  {"concrete", [] { ris.SMaxCls[1] = 1.411001; }, false},
  {"concrete, absolute", [] { ris.SMaxCls[1] = -1.411001; }, false},
};
// clang-format on

TEST_F(RelSLU, OgniVerificaEStretta) {
  for (const CasoLimite& caso : CASI) {
    SetUp();
    Acciaio235();
    Sestetti(1);
    caso.imposta();
    const RigheFile r = Relazione();
    EXPECT_EQ(r.back(), std::string(caso.passa ? VERIFICATO : NON_VERIFICATO) + "Soll 1") << caso.nome;
    EXPECT_EQ(lavoro.verificato, caso.passa) << caso.nome;
    EXPECT_EQ(registratore.eventi[0] == BOX_NON_VERIFICATO, !caso.passa) << caso.nome;
    std::size_t no = 0;  // one row says NO, and no more
    for (const std::string& riga : r) no += riga.ends_with("| NO");
    EXPECT_EQ(no, caso.passa ? 0u : 1u) << caso.nome;
  }
}

TEST_F(RelSLU, UnoVirgolaZeroZeroQuattroMostraUno) {
  Sestetti(1);
  ris.Co1[1][1] = 1.004, ris.Co2[1][1] = 0.125, ris.Co3[1][1] = 100;
  const RigheFile r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_TIRAFONDI, 1), "|1  |      0|     70| 120.01|      0| 141.12|    300| 95.006|   1|0.12| 100| NO");
  EXPECT_EQ(RigheCriterio(lavoro, 1, SLU_TIR_CO2)[0].domanda, 0.12);  // tie to even
}

TEST_F(RelSLU, SestettiConLoStessoNome) {
  Sestetti(3);
  nodo.SollNome[3] = "Soll 1";
  ris.SMaxPiastra[2] = 50;
  const RigheFile r = Relazione();
  EXPECT_EQ(Conta(r, "Combinazione di sollecitazioni agenti Soll 1"), 2u);
  EXPECT_EQ(Conta(r, std::string(VERIFICATO) + "Soll 1"), 2u);
  EXPECT_EQ(Conta(r, std::string(NON_VERIFICATO) + "Soll 2"), 1u);
  EXPECT_EQ(registratore.eventi, (RigheFile{BOX_NON_VERIFICATO, "[testo] " + FileSLU()}));
}

// Wide values shift the row, nothing is cut.
TEST_F(RelSLU, CelleStrette) {
  UnitaDaN();
  Sestetti(1);
  ris.FvEd[1][1] = 123456.7, ris.Saldature[1].SPrp[1][1] = -12.3456;
  nodo.SollN[1] = -123456789.123456;
  const RigheFile r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_TIRAFONDI, 1), "|1  |123456.7|   7000|  12001|      0|  14112|  30000| 9500.6|   0|   0|   0|SI'");
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 1), "|   S1|1234.6|       0|       0|  1234.6|  1234.6|    1925|  2337.5|SI'");
  EXPECT_EQ(Conta(r, "N: -123456789.123456Ty: 0               Tz: 0               "), 1u);
}

TEST_F(RelSLU, PiastraEFazzolettiOltre40mm) {
  Sestetti(1);
  nodo.SpessPiastra = 40, nodo.SpNerv = 40.01;
  RigheFile r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_PIASTRA, 1), "|      0|  261.9|SI'");
  EXPECT_EQ(Dopo(r, TITOLI_NERVATURE, 1), "|Z        |      0| 242.86|SI'");
  nodo.SpessPiastra = 40.01, nodo.SpNerv = 40;
  r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_PIASTRA, 1), "|      0| 242.86|SI'");
  EXPECT_EQ(Dopo(r, TITOLI_NERVATURE, 2), "|Y        |      0|  261.9|SI'");
}

TEST_F(RelSLU, ClasseDiCaricoSenzaEffetto) {
  Sestetti(1);
  const RigheFile prima = Relazione();
  nodo.SollCC[1] = 1;
  ConfrontaRighe(Relazione(), prima);
}

// Weld factors by part of the name, the first family first.
TEST_F(RelSLU, BetaDalNomeDellAcciaio) {
  // clang-format off
  const struct { const char* nome; double Beta1, Beta2; } casi[] = {
    {"S 235", 0.85, 1},       {"S 235 (FE 360)", 0.85, 1}, {"s235jr", 0.85, 1},   {"S 275", 0.7, 0.85},
    {"S 355 (FE 510)", 0.7, 0.85}, {"S 420", 0.62, 0.75},  {"S 450", 0.62, 0.75}, {"S 460 N", 0.62, 0.75},
    {"275 o 235", 0.85, 1},   {"460-355", 0.7, 0.85},      {"S 500", 0, 0},       {"", 0, 0},
    {"S 23 27 35 42 45 46", 0, 0},                       // three digits, not two
  };
  // clang-format on
  for (const auto& c : casi) {
    nodo.MatAcc.Nome = c.nome;
    EXPECT_EQ(CalcolaBeta(nodo.MatAcc).Beta1, c.Beta1) << c.nome;
    EXPECT_EQ(CalcolaBeta(nodo.MatAcc).Beta2, c.Beta2) << c.nome;
  }
}

TEST_F(RelSLU, AcciaioSconosciutoNonHaLimiti) {
  Sestetti(1);
  nodo.MatAcc.Nome = "S 500";
  ris.Saldature[2].TauPa[1][1] = 0.005;
  const RigheFile r = Relazione();
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 1), "|   S1|    0|       0|       0|       0|       0|       0|       0|SI'");
  EXPECT_EQ(Dopo(r, TITOLI_SALDATURE, 2), "|   S2|    0|    0.05|       0|    0.05|       0|       0|       0| NO");
  EXPECT_EQ(r.back(), std::string(NON_VERIFICATO) + "Soll 1");
}

// ---- arithmetic faults: of the checks, no report; of the report, it is given up. Nothing is shown

TEST_F(RelSLU, FattoreDelCalcestruzzoNullo) {
  nodo.MatCls.GammaC = 0;
  EXPECT_FALSE(GiudicaEScrivi(MetodoSLU));
  Fermo(0, 0, 0);
  EXPECT_EQ(LeggiByte(FileSLU()), "");
}

TEST_F(RelSLU, FattoreDeiBulloniNullo) {
  nodo.MatVit.GammaM2 = 0;
  EXPECT_FALSE(GiudicaEScrivi(MetodoSLU));
  EXPECT_EQ(LeggiByte(FileSLU()), "");
}

TEST_F(RelSLU, NessunNonNumeroNelFile) {
  Sestetti(2);
  ris.SMaxPiastra[2] = 1e308;  // overflows in daN/cm2
  EXPECT_FALSE(GiudicaEScrivi(MetodoSLU));
  Fermo(2, SLU_PIASTRA, 0);
  ris.SMaxPiastra[2] = 1e300, suite.FattTensioni = 1e7;  // or in the unit shown
  EXPECT_FALSE(GiudicaEScrivi(MetodoSLU));
  EXPECT_TRUE(FaultAritmetico());
  EXPECT_FALSE(lavoro.fermo.c_e);
  EXPECT_EQ(LeggiByte(FileSLU()), "");
  EXPECT_TRUE(registratore.eventi.empty());
}

TEST_F(RelSLU, FileCheNonSiApre) {
  suite.DirLavoro += "/manca";
  EXPECT_FALSE(GiudicaEScrivi(MetodoSLU));
  EXPECT_FALSE(FaultAritmetico());  // the box was shown, and there is no second one
  EXPECT_EQ(registratore.eventi,
            (std::vector<std::string>{"[messaggio] critica | NODO COLONNA - PLINTO | Impossibile scrivere il file " + suite.DirLavoro +
                                      "\\RelSLU_QB07_Prova.txt: la cartella o il file dietro il collegamento non esiste."}));
}

}  // namespace
