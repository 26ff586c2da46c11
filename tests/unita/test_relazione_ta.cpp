// tests/unita/test_relazione_ta.cpp - the report by allowable stresses line by line, its verdicts; the tables stay as they are.
// Expected lines are written from the layout with hand-computed numbers, noted where they are not plain.
#include "corredo/relazioni_campione.h"
#include "model/stato.h"

namespace {

constexpr const char* TRATTI = "----------------------------------------------------------------------";

class RelTA : public ProvaRelazione {
 protected:
  // Runs the report, which must be whole, and gives its lines back.
  RigheFile Relazione() {
    EXPECT_TRUE(GiudicaEScrivi(MetodoTA));
    EXPECT_FALSE(FaultAritmetico());
    return LeggiRighe(FileTA());
  }
};

RigheFile Testata4Saldature() {
  return {
    "VERIFICA TENSIONALE NODI: 3,15 - METODO DELLE TENSIONI AMMISSIBILI (CNR 10011/88)",
    "",
    "UNITA' DI MISURA:",
    "FORZE:\t\tkN",
    "MOMENTI:\tkN m",
    "TENSIONI:\tN/mm2",
    "DIMENSIONI:\tmm",
    "",
    "GEOMETRIA NODO",
    "",
    "\tProfili utilizzati",
    "\tTipo prof.\th\tb\ta\te\tr",
    "\tHEA200 \t\t190\t200\t6,5\t10\t18",
    "",
    "\tPiastre",
    "\tNum.\tlz\tly\ts",
    "\t1\t400\t500\t20",
    "",
    "TIRAFONDI",
    "",
    "\tTirafondi num.: 4",
    "\tNum.\tZ\tY\tFi\tArea",
    "\t1\t350\t50\t20\t245",  // Z: 400 - 50
    "\t2\t50\t50\t20\t245",
    "\t3\t350\t460\t20\t245",
    "\t4\t50\t460\t20\t245",
    "",
    "\tl\tlft\tl1\tr",
    "\t500\t120\t450\t70",
    "",
    "NERVATURE",
    "",
    "\tNome\tl\th\ts",
    "\tY\t500\t150\t8",
    "\tZ\t92\t150\t8",  // (400 - 200) / 2 - 8
    "",
    "SALDATURE",
    "",
    "\tNum. saldature: 4",
    "\tNome\tLungh.\tLato",
    "\tS1\t100\t7",
    "\tS2\t101,5\t7",
    "\tS3\t103\t7",
    "\tS4\t104,5\t7",
    "",
    "MATERIALI",
    "",
    "\t\t\tAcciaio S 275 (FE 430), S_adm\t\tCls C25/30",
    "\t\t\tsp <= 40mm\tsp > 40mm\tS_adm",
    "\tComb. car. I\t190\t\t170\t\t1,1",
    "\tComb. car. II\t213,75\t\t191,25\t",  // 2137.5 and 1912.5 daN/cm2
    "\t\t\tAcciaio tirafondi 8.8, S_adm\t\t",
    "\tComb. car. I\t320,8",   // 6400 / 1.5 / 1.33 = 3208.0200
    "\tComb. car. II\t360,9",  // x 1.125 = 3609.0226
    "",
    "",
    "SOLLECITAZIONI AGENTI E STATO TENSIONALE",
    "",
    "\tCoefficiente di rifollamento",
    "\t2",  // (500 - 460) / 20
  };
}

TEST_F(RelTA, TestataESestettoRigaPerRiga) {
  suite.Decimale = ',';
  nodo.NumNodiStr = 2, nodo.NodiStr[1] = 3, nodo.NodiStr[2] = 15;
  nodo.NumSoll = 1, nodo.SollNome[1] = "Vento\r\nda nord";
  nodo.SollN[1] = -12345.5, nodo.SollTy[1] = 1000, nodo.SollTz[1] = 0;
  nodo.SollMt[1] = 1500, nodo.SollMy[1] = -200000, nodo.SollMz[1] = 123456;
  ris.SigmaTir[1][1] = 10, ris.TauTir[1][1] = 5, ris.SRfTir[1][1] = 2, ris.TiroTir[1][1] = 2450;
  ris.SigmaTir[1][3] = -12.345, ris.TiroTir[1][3] = -3024.525;
  ris.Saldature[1].SPrp[1][1] = 3, ris.Saldature[1].TauPa[1][1] = 4;
  ris.Saldature[3].TauPe[1][3] = -2.5;
  ris.SMaxPiastra[1] = 15.55, ris.SMaxCls[1] = 0.105;
  const double S[] = {0, 3, 0, 2, 7.25, 0, 4.5, 1, 0};
  for (int p = 1; p <= 8; ++p) ris.SNerv[1][p] = S[p];

  RigheFile attese = Testata4Saldature();
  const RigheFile blocco = {
    "",
    "Combinazione di sollecitazioni agenti Vento da nord",
    TRATTI,
    "N: -123,455\tTy: 10\tTz: 0\t",
    "Mt: 0,15\tMy: -20\tMz: 12,3456\t\t",
    "Combinazione di carico tipo I",
    "",
    "\tTirafondi",
    "\t\tS_adm tf\tT_adm tf\tTiro max tf\tS_rf_adm p",
    "\t\t320,8\t\t185,21\t\t78,6\t\t380",  // bond 245 x 3208 / 100 = 7859.6 daN = 78.596 kN, two decimals
    "\tNum.\tSigma\t\tTau\tCoeff\tTiro tf\t\tS_rf p",
    "\t1\t100\t\t50\t0,17\t24,5\t\t20",  // (500 / 1852.1)^2 + (1000 / 3208)^2 = 0.07288 + 0.09717
    "\t2\t0\t\t0\t0\t0\t\t0",
    "\t3\t-123,45\t\t0\t0,15\t-30,245\t\t0",  // (1234.5 / 3208)^2 = 0.1481; -30.24525 kN
    "\t4\t0\t\t0\t0\t0\t\t0",
    "",
    "\tSaldature",
    "\tNome\tS_prp\tTau_pa\tTau_pe\t% su adm",
    "\tS1\t30\t40\t0\t0,38",  // 500 / 0.7 / 1900 = 0.3759
    "\tS2\t0\t0\t0\t0",
    "\tS3\t0\t0\t-25\t0,19",  // point 3: 250 / 0.7 / 1900 = 0.1880
    "\tS4\t0\t0\t0\t0",
    "",
    "\tPiastra\tS_max\t\tS_adm",
    "\t\t155,5\t\t190",
    "",
    "\tFazz.\tS_id max\tS_adm",
    "\tZ\t72,5\t\t190",  // positions 3, 4, 7, 8
    "\tY\t45\t\t190",    // positions 1, 2, 5, 6
    "",
    "\tPlinto\tS_max\t\tS_adm",
    "\t\t1,05\t\t1,1",
    "",
    "NODO VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI Vento da nord",
  };
  attese.insert(attese.end(), blocco.begin(), blocco.end());
  ConfrontaRighe(Relazione(), attese);

  EXPECT_EQ(registratore.eventi, (RigheFile{"[testo] " + FileTA()}));
  EXPECT_TRUE(lavoro.verificato);
  // Nothing is scaled in place; the bond alone is lowered, by the checks.
  EXPECT_EQ(ris.SigmaTir[1][1], 10);
  EXPECT_EQ(ris.TauTir[1][1], 5);
  EXPECT_EQ(ris.SRfTir[1][1], 2);
  EXPECT_EQ(ris.TiroTir[1][1], 2450);
  EXPECT_EQ(ris.SMaxPiastra[1], 15.55);
  EXPECT_EQ(ris.SMaxCls[1], 0.105);
  EXPECT_EQ(ris.SNerv[1][4], 7.25);
  EXPECT_EQ(ris.Saldature[1].SPrp[1][1], 3);
  EXPECT_DOUBLE_EQ(ris.TadRd, 7859.6);
}

TEST_F(RelTA, SenzaSestetti) {
  suite.Decimale = ',';
  nodo.NumNodiStr = 2, nodo.NodiStr[1] = 3, nodo.NodiStr[2] = 15;
  ConfrontaRighe(Relazione(), Testata4Saldature());
  EXPECT_EQ(registratore.eventi, (RigheFile{"[testo] " + FileTA()}));
  EXPECT_EQ(ris.TadRd, 9000);
}

TEST_F(RelTA, PuntoDecimale) {
  suite.Decimale = '.';
  Sestetti(1);
  nodo.SollMt[1] = 1500;
  const RigheFile r = Relazione();
  EXPECT_EQ(r[0], "VERIFICA TENSIONALE NODI - METODO DELLE TENSIONI AMMISSIBILI (CNR 10011/88)");
  EXPECT_EQ(r[12], "\tHEA200 \t\t190\t200\t6.5\t10\t18");
  EXPECT_EQ(Conta(r, "Mt: 0.15\tMy: 0\tMz: 0\t\t"), 1u);
  EXPECT_EQ(Conta(r, "\t\t320.8\t\t185.21\t\t78.6\t\t380"), 1u);
}

// Lengths, positions and the area are plain: every digit of the value shows.
TEST_F(RelTA, GeometriaSenzaArrotondamento) {
  nodo.LatoZ = 400.123456, nodo.TfL = 500.0625, nodo.Gola = 7.25, ris.Saldature[1].Lung = 0.1, nodo.TfFi = 22;
  const RigheFile r = Relazione();
  EXPECT_EQ(Conta(r, "\t1\t400.123456\t500\t20"), 1u);
  EXPECT_EQ(Conta(r, "\tZ\t92.061728\t150\t8"), 1u);
  EXPECT_EQ(Conta(r, "\t500.0625\t120\t450\t70"), 1u);
  EXPECT_EQ(Conta(r, "\tS1\t0.1\t7.25"), 1u);
  // area of 22 mm between 20 (245) and 24 (353): 245 + (484 - 400) x 108 / 176
  EXPECT_EQ(Dopo(r, "\tNum.\tZ\tY\tFi\tArea", 1), "\t1\t350.123456\t50\t22\t296.545454545455");
}

TEST_F(RelTA, TipoNodoUnoSenzaBloccoNervature) {
  nodo.TipoNodo = 1;
  Sestetti(1);
  ris.SNerv[1][3] = 1000;  // stale: neither shown nor judged
  const RigheFile r = Relazione();
  EXPECT_EQ(Conta(r, "NERVATURE"), 1u);  // the geometry is written all the same
  EXPECT_EQ(Conta(r, "\tFazz.\tS_id max\tS_adm"), 0u);
  EXPECT_EQ(Dopo(r, "\tPiastra\tS_max\t\tS_adm", 3), "\tPlinto\tS_max\t\tS_adm");
  EXPECT_EQ(r.back(), std::string(VERIFICATO) + "Soll 1");
}

// ---- limits: each value on its limit passes, a little above fails

struct CasoLimite {
  const char* nome;
  void (*imposta)();  // everything zero but this
  bool passa;
};
void Acciaio235() { nodo.MatAcc.Nome = "S 235 (FE 360)", nodo.MatAcc.SAmm = 1000; }

// clang-format off
const CasoLimite CASI[] = {
  // (SAdmTir / SAdmTir)^2 = 1; 3208 x 1.003 -> 1.006 -> 1.01; 1.002 -> 1.004 -> 1 (judged as rounded)
  {"coeff 1", [] { ris.SigmaTir[1][2] = 32.08; }, true},
  {"coeff 1.004", [] { ris.SigmaTir[1][2] = 32.08 * 1.002; }, true},
  {"coeff 1.006", [] { ris.SigmaTir[1][2] = 32.08 * 1.003; }, false},
  {"coeff, compression", [] { ris.SigmaTir[1][4] = -32.08 * 1.003; }, false},
  {"coeff, shear", [] { ris.TauTir[1][1] = 18.521 * 1.003; }, false},
  // 0.7^2 + 0.8^2 = 1.13: no root is taken (1.06 would fail too), while 0.5 + 0.4 passes
  {"coeff, both", [] { ris.SigmaTir[1][1] = 32.08 * 0.7, ris.TauTir[1][1] = 18.521 * 0.8; }, false},
  {"coeff, sum of squares", [] { ris.SigmaTir[1][1] = 32.08 * 0.8, ris.TauTir[1][1] = 18.521 * 0.6; }, true},
  {"bearing on the limit", [] { ris.SRfTir[1][3] = 38; }, true},
  {"bearing", [] { ris.SRfTir[1][3] = 38.01; }, false},
  {"bearing, negative", [] { ris.SRfTir[1][3] = -38.01; }, false},
  {"bond on the limit", [] { ris.TadRd = 5000, ris.TiroTir[1][2] = 5000; }, true},
  {"bond", [] { ris.TadRd = 5000, ris.TiroTir[1][2] = 5000.001; }, false},
  {"bond, compression", [] { ris.TadRd = 5000, ris.TiroTir[1][2] = -5000.001; }, false},
  {"weld on the limit", [] { Acciaio235(), ris.Saldature[4].SPrp[1][3] = 8.5; }, true},   // 850 / 0.85 / 1000 = 1
  {"weld", [] { Acciaio235(), ris.Saldature[4].SPrp[1][3] = 8.501; }, false},
  {"plate on the limit", [] { ris.SMaxPiastra[1] = 19; }, true},
  {"plate, judged to one decimal", [] { ris.SMaxPiastra[1] = 19.0004; }, true},   // 1900.04 -> 1900
  {"plate", [] { ris.SMaxPiastra[1] = 19.0006; }, false},                         // 1900.06 -> 1900.1
  {"plate, halves go up", [] { nodo.MatAcc.SAmm = 1856.2, ris.SMaxPiastra[1] = 18.5625; }, false},     // 1856.25 -> 1856.3
  {"plate, not absolute", [] { ris.SMaxPiastra[1] = -50; }, true},
  {"rib Z on the limit", [] { ris.SNerv[1][8] = 19; }, true},
  {"rib, judged to one decimal", [] { ris.SNerv[1][4] = 19.0004; }, true},
  {"rib, above it", [] { ris.SNerv[1][4] = 19.0006; }, false},
  {"rib, halves go up", [] { nodo.MatAcc.SAmm = 1856.2, ris.SNerv[1][2] = 18.5625; }, false},
  {"rib, not absolute", [] { for (int p = 1; p <= 8; ++p) ris.SNerv[1][p] = -50; }, true},
  {"rib Z, 3", [] { ris.SNerv[1][3] = 19.001; }, false},
  {"rib Z, 8", [] { ris.SNerv[1][8] = 19.001; }, false},
  {"rib Y on the limit", [] { ris.SNerv[1][6] = 19; }, true},
  {"rib Y, 1", [] { ris.SNerv[1][1] = 19.001; }, false},
  {"rib Y, 6", [] { ris.SNerv[1][6] = 19.001; }, false},
  {"concrete on the limit", [] { ris.SMaxCls[1] = 0.11; }, true},
  {"concrete, judged to one decimal", [] { ris.SMaxCls[1] = 0.1104; }, true},     // 11.04 -> 11
  {"concrete", [] { ris.SMaxCls[1] = 0.1106; }, false},
  {"concrete, halves go up", [] { nodo.MatCls.SAmm = 11.2, ris.SMaxCls[1] = 0.1125; }, false},         // 11.25 -> 11.3
};
// clang-format on

TEST_F(RelTA, OgniVerificaEStretta) {
  for (const CasoLimite& caso : CASI) {
    SetUp();
    Sestetti(1);
    caso.imposta();
    const RigheFile r = Relazione();
    EXPECT_EQ(r.back(), std::string(caso.passa ? VERIFICATO : NON_VERIFICATO) + "Soll 1") << caso.nome;
    EXPECT_EQ(lavoro.verificato, caso.passa) << caso.nome;
    EXPECT_EQ(registratore.eventi[0] == BOX_NON_VERIFICATO, !caso.passa) << caso.nome;
  }
}

// A failed sextet does not stop the report nor stain the next one; one box at the end.
TEST_F(RelTA, UnSestettoFallitoTraBuoni) {
  Sestetti(3);
  ris.SMaxPiastra[2] = 20;
  nodo.SollNome[3] = nodo.SollNome[1];  // two blocks under one name
  const RigheFile r = Relazione();
  EXPECT_EQ(Conta(r, "Combinazione di sollecitazioni agenti Soll 1"), 2u);
  EXPECT_EQ(Conta(r, std::string(VERIFICATO) + "Soll 1"), 2u);
  EXPECT_EQ(Conta(r, std::string(NON_VERIFICATO) + "Soll 2"), 1u);
  EXPECT_EQ(registratore.eventi, (RigheFile{BOX_NON_VERIFICATO, "[testo] " + FileTA()}));
}

// Shown with ties to even: 1902.5 reads 1902 at no decimals; judged after rounding to one decimal.
TEST_F(RelTA, MostratoEGiudicatoConRegoleDiverse) {
  UnitaDaN();
  suite.DecTensioni = 0;
  Sestetti(1);
  nodo.MatAcc.SAmm = 1902.5;  // the limit itself shows 1902 (tie to even)
  ris.SMaxPiastra[1] = 19.025;
  const RigheFile r = Relazione();
  EXPECT_EQ(Dopo(r, "\tPiastra\tS_max\t\tS_adm", 1), "\t\t1902\t\t1902");
  EXPECT_EQ(r.back(), std::string(VERIFICATO) + "Soll 1");
}

TEST_F(RelTA, ClasseIIAlzaGliAcciaiNonIlCalcestruzzo) {
  Sestetti(1);
  nodo.SollCC[1] = 1;
  ris.Saldature[1].SPrp[1][1] = 3, ris.Saldature[1].TauPa[1][1] = 4;
  ris.SMaxPiastra[1] = 21, ris.SMaxCls[1] = 0.115;
  const RigheFile r = Relazione();
  EXPECT_EQ(Conta(r, "Combinazione di carico tipo II"), 1u);
  EXPECT_EQ(Conta(r, "\t\t360.9\t\t208.37\t\t88.42\t\t427.5"), 1u);  // 245 x 3609 / 100 = 8842.05 daN
  EXPECT_EQ(Conta(r, "\tS1\t30\t40\t0\t0.33"), 1u);                  // 500 / 0.7 / 2137.5 = 0.3342
  EXPECT_EQ(Dopo(r, "\tPiastra\tS_max\t\tS_adm", 1), "\t\t210\t\t213.75");
  EXPECT_EQ(Dopo(r, "\tFazz.\tS_id max\tS_adm", 1), "\tZ\t0\t\t213.75");
  EXPECT_EQ(Dopo(r, "\tPlinto\tS_max\t\tS_adm", 1), "\t\t1.15\t\t1.1");
  EXPECT_EQ(r.back(), std::string(NON_VERIFICATO) + "Soll 1");  // by the concrete alone
}

// The limits' line shows the bond of each block: it never rises again.
TEST_F(RelTA, TiroMassimoNonRisale) {
  suite.DecTensioni = 1;
  Sestetti(4);
  nodo.SollCC[1] = 1, nodo.SollCC[3] = 1;  // II, I, II, I
  ris.TadRd = 8900;
  ris.TiroTir[3][1] = 8000;  // under the class II limit, over the one kept from sextet 2
  const RigheFile r = Relazione();
  const std::string titoli = "\t\tS_adm tf\tT_adm tf\tTiro max tf\tS_rf_adm p";
  EXPECT_EQ(Dopo(r, titoli, 1, 1), "\t\t360.9\t\t208.4\t\t88.4\t\t427.5");  // min(8900, 8842.05)
  EXPECT_EQ(Dopo(r, titoli, 1, 2), "\t\t320.8\t\t185.2\t\t78.6\t\t380");    // 7859.6
  EXPECT_EQ(Dopo(r, titoli, 1, 3), "\t\t360.9\t\t208.4\t\t78.6\t\t427.5");
  EXPECT_EQ(Dopo(r, titoli, 1, 4), "\t\t320.8\t\t185.2\t\t78.6\t\t380");
  EXPECT_EQ(Conta(r, std::string(NON_VERIFICATO) + "Soll 3"), 1u);
  EXPECT_EQ(Conta(r, std::string(VERIFICATO) + "Soll 1"), 1u);
}

// The one force that is rounded to the decimals of stresses; the anchors' forces keep those of forces.
TEST_F(RelTA, TiroMassimoConIDecimaliDelleTensioni) {
  Sestetti(1);
  ris.TadRd = 1234.5678, ris.TiroTir[1][1] = 1234.5678;
  const RigheFile r = Relazione();
  EXPECT_EQ(Conta(r, "\t\t320.8\t\t185.21\t\t12.35\t\t380"), 1u);
  EXPECT_EQ(Conta(r, "\t1\t0\t\t0\t0\t12.346\t\t0"), 1u);
}

// A unit that leaves three decimals and more in every column of stresses: 1 daN/cm2 = 0.0125. All are cut to two of them.
TEST_F(RelTA, OgniTensioneCoiSuoiDecimali) {
  suite.FattTensioni = 0.0125;
  Sestetti(1);
  nodo.MatAcc.SAmm = 1900.5, nodo.MatAcc.SAmm40 = 1700.7, nodo.MatCls.SAmm = 11.7, nodo.MatTir.Fyk = 6555;
  ris.SigmaTir[1][1] = 1.2345, ris.TauTir[1][1] = 0.5671, ris.SRfTir[1][1] = 2.3457;
  ris.Saldature[1].SPrp[1][1] = 0.4567, ris.Saldature[1].TauPa[1][1] = 0.5671, ris.Saldature[1].TauPe[1][1] = 0.6789;
  ris.SMaxPiastra[1] = 1.2345, ris.SNerv[1][3] = 1.2345, ris.SNerv[1][5] = 0.5671, ris.SMaxCls[1] = 0.1049;
  const RigheFile r = Relazione();
  const std::string prima = "\tComb. car. I\t", seconda = "\tComb. car. II\t";
  EXPECT_EQ(Conta(r, prima + "23.76\t\t21.26\t\t0.15"), 1u);  // 23.75625, 21.25875, 0.14625
  EXPECT_EQ(Conta(r, seconda + "26.73\t\t23.92\t"), 1u);      // 2138.0625 and 1913.2875 daN/cm2: 26.7258, 23.9161
  EXPECT_EQ(Conta(r, prima + "41.07"), 1u);                   // 6555 / 1.5 / 1.33 = 3285.7143: 41.0714
  EXPECT_EQ(Conta(r, seconda + "46.21"), 1u);                 // x 1.125: 46.2054
  // 3285.7: 41.07125; 3285.7 / 1.7320508 = 1897: 23.7125; bond 245 x 3285.7 / 100 = 8049.965 daN; 1900.5 x 2 = 3801: 47.5125
  EXPECT_EQ(Conta(r, "\t\t41.07\t\t23.71\t\t80.5\t\t47.51"), 1u);
  EXPECT_EQ(Conta(r, "\t1\t1.54\t\t0.71\t0\t0\t\t2.93"), 1u);  // 1.543125, 0.708875, 2.932125
  EXPECT_EQ(Conta(r, "\tS1\t0.57\t0.71\t0.85\t0.07"), 1u);     // 0.570875, 0.708875, 0.848625; 99.553 / 0.7 / 1900.5
  EXPECT_EQ(Conta(r, "\t\t1.54\t\t23.76"), 1u);
  EXPECT_EQ(Conta(r, "\tZ\t1.54\t\t23.76"), 1u);
  EXPECT_EQ(Conta(r, "\tY\t0.71\t\t23.76"), 1u);
  EXPECT_EQ(Conta(r, "\t\t0.13\t\t0.15"), 1u);  // 0.131125, 0.14625
}

// Ratios are rounded with halves upward, unlike the printed stresses.
TEST_F(RelTA, RapportiAlCentesimoPerEccesso) {
  Sestetti(1);
  suite.DecTensioni = 4;
  Acciaio235(), nodo.MatTir.Fyk = 5152;                     // limits 2582.5, and 2582.5 / 1.7320508 = 1491.007: 1491
  ris.SigmaTir[1][1] = 6.45625, ris.TauTir[1][1] = 3.7275;  // a quarter of each: 0.25^2 + 0.25^2 = 0.125
  ris.Saldature[1].SPrp[1][1] = 1.0625;                     // 106.25 / 0.85 / 1000 = 0.125
  const RigheFile r = Relazione();
  EXPECT_EQ(Conta(r, "\t1\t64.5625\t\t37.275\t0.13\t0\t\t0"), 1u);
  EXPECT_EQ(Conta(r, "\tS1\t10.625\t0\t0\t0.13"), 1u);
}

TEST_F(RelTA, OgniClasseMaLaPrimaEII) {
  Sestetti(2);
  nodo.SollCC[1] = -1, nodo.SollCC[2] = 2;
  EXPECT_EQ(Conta(Relazione(), "Combinazione di carico tipo II"), 2u);
}

TEST_F(RelTA, PiastraEFazzolettiOltre40mm) {
  Sestetti(1);
  nodo.SpessPiastra = 40, nodo.SpNerv = 40;
  RigheFile r = Relazione();
  EXPECT_EQ(Dopo(r, "\tPiastra\tS_max\t\tS_adm", 1), "\t\t0\t\t190");
  EXPECT_EQ(Dopo(r, "\tFazz.\tS_id max\tS_adm", 2), "\tY\t0\t\t190");
  nodo.SpessPiastra = 40.01, nodo.SpNerv = 40.01;
  r = Relazione();
  EXPECT_EQ(Dopo(r, "\tPiastra\tS_max\t\tS_adm", 1), "\t\t0\t\t170");
  EXPECT_EQ(Dopo(r, "\tFazz.\tS_id max\tS_adm", 2), "\tY\t0\t\t170");
}

TEST_F(RelTA, SaldatureInterneSoloConSaldInt) {
  Sestetti(1);
  Saldature(20);
  ris.Saldature[9].SPrp[1][1] = 100;  // stale, far over the limit
  RigheFile r = Relazione();
  EXPECT_EQ(Conta(r, "\tNum. saldature: 20"), 1u);  // counted, not listed
  EXPECT_EQ(Dopo(r, "\tNome\tLungh.\tLato", 8), "\tS8\t110.5\t7");
  EXPECT_EQ(Dopo(r, "\tNome\tLungh.\tLato", 9), "\tS10\t113.5\t7");
  EXPECT_EQ(Dopo(r, "\tNome\tLungh.\tLato", 18), "\tS20\t128.5\t7");
  EXPECT_EQ(Dopo(r, "\tNome\tLungh.\tLato", 19), "");
  EXPECT_EQ(Dopo(r, "\tNome\tS_prp\tTau_pa\tTau_pe\t% su adm", 9), "\tS10\t0\t0\t0\t0");
  EXPECT_EQ(r.back(), std::string(VERIFICATO) + "Soll 1");

  SetUp();
  Sestetti(1);
  Saldature(20);
  nodo.SaldInt = 1;
  ris.Saldature[9].SPrp[1][1] = 13;
  r = Relazione();
  EXPECT_EQ(Dopo(r, "\tNome\tLungh.\tLato", 9), "\tS9\t112\t7");
  EXPECT_EQ(Dopo(r, "\tNome\tLungh.\tLato", 19), "\tS19\t127\t7");
  EXPECT_EQ(Dopo(r, "\tNome\tS_prp\tTau_pa\tTau_pe\t% su adm", 9), "\tS9\t130\t0\t0\t0.98");  // 1300 / 1330
  EXPECT_EQ(Dopo(r, "\tNome\tS_prp\tTau_pa\tTau_pe\t% su adm", 19), "\tS19\t0\t0\t0\t0");
}

TEST_F(RelTA, TestiInWindows1252) {
  nodo.MatCls.Nome = "Rck 30 – società", Sestetti(1), nodo.SollNome[1] = "Città €";
  const RigheFile r = Relazione();
  EXPECT_EQ(Conta(r, "\t\t\tAcciaio S 275 (FE 430), S_adm\t\tCls Rck 30 \x96 societ\xE0"), 1u);
  EXPECT_EQ(r.back(), std::string(VERIFICATO) + "Citt\xE0 \x80");
}

// ---- arithmetic faults: of the checks, no report; of the report, it is given up. Nothing is shown

TEST_F(RelTA, AcciaioSconosciuto) {
  Sestetti(2);
  nodo.MatAcc.Nome = "S 450";
  ris.Saldature[3].TauPa[1][1] = 1;  // welds 1 and 2 have no stress: ratio 0
  ris.SMaxPiastra[1] = 5;
  EXPECT_FALSE(GiudicaEScrivi(MetodoTA));
  Fermo(1, TA_SALD, 3);
  EXPECT_EQ(LeggiByte(FileTA()), "");
  EXPECT_EQ(ris.SMaxPiastra[1], 5);
}

TEST_F(RelTA, AcciaioSconosciutoSenzaTensioni) {
  Sestetti(1);
  nodo.MatAcc.Nome = "S 450";
  EXPECT_EQ(Relazione().back(), std::string(VERIFICATO) + "Soll 1");
}

TEST_F(RelTA, DiametroNullo) {
  nodo.TfFi = 0;
  EXPECT_FALSE(GiudicaEScrivi(MetodoTA));
  Fermo(0, 0, 0);
  EXPECT_EQ(LeggiByte(FileTA()), "");
}

TEST_F(RelTA, TirafondoSenzaResistenza) {
  Sestetti(1);
  nodo.MatTir.Fyk = 0;
  EXPECT_FALSE(GiudicaEScrivi(MetodoTA));
  Fermo(1, TA_TIR_COEFF, 1);
}

TEST_F(RelTA, NessunNonNumeroNelFile) {
  Sestetti(1);
  ris.SMaxCls[1] = 1e308;  // overflows in daN/cm2
  EXPECT_FALSE(GiudicaEScrivi(MetodoTA));
  Fermo(1, TA_CLS, 0);
  ris.SMaxCls[1] = 1e300, suite.FattTensioni = 1e7;  // or in the unit shown
  EXPECT_FALSE(GiudicaEScrivi(MetodoTA));
  EXPECT_TRUE(FaultAritmetico());
  EXPECT_FALSE(lavoro.fermo.c_e);
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(LeggiByte(FileTA()), "");
}

}  // namespace
