// The catalogue and the job's own materials.
#include <gtest/gtest.h>

#include "core/aritmetica.h"
#include "core/testo.h"
#include "corredo/registratore.h"
#include "materials/file_materiali.h"
#include "model/materiali.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

constexpr const char* PERSONALIZZATO_CLS =
  "[messaggio] esclamazione | NODO COLONNA - PLINTO | Non è possibile utilizzare una classe personalizzata per il calcestruzzo. Impostare "
  "una classe standard";
constexpr const char* PERSONALIZZATO_ACC =
  "[messaggio] esclamazione | NODO COLONNA - PLINTO | Non è possibile utilizzare una tipo di acciaio personalizzato. Impostare un tipo "
  "standard";

struct FileMateriali : testing::Test {
  std::string cartella;
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    cartella = CartellaProva("materiali");
    suite.DirLavoro = cartella;
  }
  void TearDown() override { AzzeraFault(); }
  void Catalogo(const std::string& byte) {
    ScriviByte(cartella + "/cat.tx1", byte);
    std::string errore = "x";
    LeggiMaterialiCatalogo(cartella + "\\cat.tx1", errore);
    EXPECT_EQ(errore, "");
    EXPECT_TRUE(registratore.eventi.empty());
  }
  bool Lavoro(const std::string& byte) {
    ScriviByte(cartella + "/PropMateriali.tx1", byte);
    return LeggiMaterialiBase();
  }
  void AttesoSolo(const std::string& evento) {
    ASSERT_EQ(registratore.eventi.size(), 1u);
    EXPECT_EQ(registratore.eventi[0], evento);
  }
};

std::string Acciai(const char* titolo, int n) {
  std::string t = std::string(titolo) + "\r\n " + std::to_string(n) + "\r\n";
  for (int i = 1; i <= n; ++i) t += "A" + std::to_string(i) + "\r\nnorma\r\n" + std::to_string(i) + " 2 3 4 5 6 7 8\r\n";
  return t;
}

}  // namespace

TEST_F(FileMateriali, CatalogoMancante) {
  std::string errore;
  LeggiMaterialiCatalogo("c:\\suite\\custom\\MaterialiNTC08.tx1", errore);
  EXPECT_EQ(errore, "File materiali (c:\\suite\\custom\\MaterialiNTC08.tx1) non trovato o non valido");
  EXPECT_TRUE(registratore.eventi.empty());  // the box is the caller's
  errore.clear();
  LeggiMaterialiCatalogo(cartella, errore);  // a folder
  EXPECT_EQ(errore, "File materiali (" + cartella + ") non trovato o non valido");
}

TEST_F(FileMateriali, SezioniDelCatalogo) {
  Catalogo("intestazione\r\nx Acciaio_da_carpenteria_sezioni_aperte y\r\n2 voci\r\n S 235 \r\n EN  10025 \r\n1 2\t3   4 5 6 7.5 8.25 9\r\n"
           "S 275\r\n\r\n11 12 13 14 15 16 17 18\r\naltro\r\n"
           "ACCIAIO_DA_CARPENTERIA_SEZIONI_CHIUSE\r\n1\r\nC\r\nN\r\n21 22 23 24 25 26 27 28\r\n"
           "Classi delle viti\r\n1\r\n  8.8 \r\n31 32 33 34 35 36\r\n"
           "CALCESTRUZZI\r\n1\r\n C25/30 \r\n300 1.5\r\n"
           "ACCIAIO_DA_CA\r\n1\r\n B450C \r\n41 42 43 44\r\n");
  EXPECT_EQ(materiali.NumAcciai, 2);
  const MatAcciaio& a = materiali.AcciaiBase[1];
  EXPECT_EQ(a.Nome, " S 235 ");  // as it stands
  EXPECT_EQ(a.Norma, " EN  10025 ");
  EXPECT_EQ(a.SAmm, 1);
  EXPECT_EQ(a.SAmm40, 2);
  EXPECT_EQ(a.Fyk, 3);
  EXPECT_EQ(a.Ftk, 4);  // Ftk stands before Fyk40
  EXPECT_EQ(a.Fyk40, 5);
  EXPECT_EQ(a.Ftk40, 6);
  EXPECT_EQ(a.GammaM, 7.5);
  EXPECT_EQ(a.GammaMT, 8.25);
  EXPECT_EQ(a.Fyd, 0);
  EXPECT_EQ(materiali.AcciaiBase[2].Nome, "S 275");
  EXPECT_EQ(materiali.AcciaiBase[2].Norma, "");
  EXPECT_EQ(materiali.AcciaiBase[2].GammaMT, 18);
  EXPECT_EQ(materiali.NumAcciaiChiusi, 1);
  EXPECT_EQ(materiali.AcciaiChiusiBase[1].Nome, "C");
  EXPECT_EQ(materiali.AcciaiChiusiBase[1].Fyk40, 25);
  EXPECT_EQ(materiali.NumViti, 1);
  const MatViti& v = materiali.VitiBase[1];
  EXPECT_EQ(v.Nome, "8.8");  // trimmed
  EXPECT_EQ(v.SAmm, 31);
  EXPECT_EQ(v.TauAmm, 32);
  EXPECT_EQ(v.Fy, 33);
  EXPECT_EQ(v.Ft, 34);
  EXPECT_EQ(v.NonUsato, 35);
  EXPECT_EQ(v.GammaM2, 36);
  EXPECT_EQ(materiali.NumCls, 1);
  EXPECT_EQ(materiali.ClsBase[1].Nome, "C25/30");
  EXPECT_EQ(materiali.ClsBase[1].Rck, 300);
  EXPECT_EQ(materiali.ClsBase[1].GammaC, 1.5);
  EXPECT_EQ(materiali.NumAcciaiCA, 1);
  const MatCA& c = materiali.AcciaiCABase[1];
  EXPECT_EQ(c.Nome, "B450C");
  EXPECT_EQ(c.V[1], 41);
  EXPECT_EQ(c.V[8], 42);
  EXPECT_EQ(c.V[7], 43);
  EXPECT_EQ(c.V[3], 44);
  EXPECT_EQ(c.V[2] + c.V[4] + c.V[5] + c.V[6] + c.V[9], 0);
}

TEST_F(FileMateriali, NumeriSecondoLaLingua) {
  const std::string t = "CALCESTRUZZI\r\n2\r\nA\r\n1.250,5 1,5\r\nB\r\n300 1.5\r\n";
  suite.Decimale = ',';
  Catalogo(t);
  EXPECT_EQ(materiali.ClsBase[1].Rck, 1250.5);
  EXPECT_EQ(materiali.ClsBase[1].GammaC, 1.5);
  EXPECT_EQ(materiali.ClsBase[2].GammaC, 15);  // the point parts thousands and is dropped
  suite.Decimale = '.';
  Catalogo(t);
  EXPECT_EQ(materiali.ClsBase[1].GammaC, 15);
  EXPECT_EQ(materiali.ClsBase[2].GammaC, 1.5);
}

TEST_F(FileMateriali, OltreCinquantaVoci) {
  // Entry 55 reads like a section of nine bolts, which would swallow what follows, if its lines were left over.
  const std::string acciai = Componi(Acciai("ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE", 60), "A55\r\nnorma", "Barra per VITI\r\n9 norma");
  Catalogo(acciai + "VITI\r\n1\r\n8.8\r\n1 2 3 4 5 6\r\n");
  EXPECT_EQ(materiali.NumAcciai, 60);
  EXPECT_EQ(materiali.AcciaiBase[50].Nome, "A50");
  EXPECT_EQ(materiali.AcciaiBase[50].SAmm, 50);
  EXPECT_EQ(materiali.AcciaiChiusiBase[0].Nome, "");  // what lies behind the table was not touched
  EXPECT_EQ(materiali.AcciaiBase[0].Nome, "");        // nor its free entry
  EXPECT_EQ(materiali.NumViti, 1);                    // all 60 entries were consumed
  EXPECT_EQ(materiali.VitiBase[1].GammaM2, 6);
}

TEST_F(FileMateriali, NumeriSbagliatiRestanoComErano) {
  Catalogo("VITI\r\n1\r\n8.8\r\n1 2 3 4 5 6\r\nVITI\r\n1\r\n8.9\r\nabc 1e400 --5 . nan 60\r\nCALCESTRUZZI\r\n1\r\nC\r\n300\r\n");
  const MatViti& v = materiali.VitiBase[1];
  EXPECT_EQ(v.Nome, "8.9");
  EXPECT_EQ(v.SAmm, 1);
  EXPECT_EQ(v.TauAmm, 2);
  EXPECT_EQ(v.Fy, 3);
  EXPECT_EQ(v.Ft, 4);
  EXPECT_EQ(v.NonUsato, 5);
  EXPECT_EQ(v.GammaM2, 60);
  EXPECT_EQ(materiali.ClsBase[1].GammaC, 0);  // missing
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(FileMateriali, ConteggioMancanteOSbagliato) {
  Catalogo("ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE\r\nS 235\r\nnorma\r\n1 2 3 4 5 6 7 8\r\n"  // takes the word S: no number
           "VITI\r\n99999\r\n8.8\r\n1 2 3 4 5 6\r\n"                                         // beyond 16 bits
           "CALCESTRUZZI\r\n-3\r\nC\r\n300 1.5\r\n"
           "ACCIAIO_DA_CA\r\n1\r\nB450C\r\n1 2 3 4\r\n");
  EXPECT_EQ(materiali.NumAcciai, 0);
  EXPECT_EQ(materiali.AcciaiBase[1].Nome, "");
  EXPECT_EQ(materiali.NumViti, 0);
  EXPECT_EQ(materiali.NumCls, -3);  // as read; every loop over it runs not at all
  EXPECT_EQ(materiali.NumAcciaiCA, 1);
}

TEST_F(FileMateriali, RigaDelConteggioAssentePrendeLaParolaCheSegue) {
  Catalogo("CALCESTRUZZI\r\n2 xyz\r\n300 1.5\r\n7\r\nB\r\n");  // the first entry's name is taken for the count
  EXPECT_EQ(materiali.NumCls, 2);
  EXPECT_EQ(materiali.ClsBase[1].Nome, "300 1.5");
  EXPECT_EQ(materiali.ClsBase[1].Rck, 7);
  EXPECT_EQ(materiali.ClsBase[2].Nome, "B");
}

TEST_F(FileMateriali, FinePrimaDelTempo) {
  Catalogo("CALCESTRUZZI\r\n32767\r\nA\r\n300 1.5\r\nB");
  EXPECT_EQ(materiali.NumCls, 32767);
  EXPECT_EQ(materiali.ClsBase[2].Nome, "B");
  EXPECT_EQ(materiali.ClsBase[2].Rck, 0);
  EXPECT_EQ(materiali.ClsBase[3].Nome, "");
  Catalogo("");
  Catalogo("VITI");
}

// A second section of one title whose count is no number: the count stays, and as many entries are read anew.
TEST_F(FileMateriali, ConteggioSbagliatoRestaQuelloDiPrima) {
  Catalogo("VITI\r\n1\r\n8.8\r\n1 2 3 4 5 6\r\nVITI\r\nxx\r\n10.9\r\n7 8 9 10 11 12\r\n");
  EXPECT_EQ(materiali.NumViti, 1);
  EXPECT_EQ(materiali.VitiBase[1].Nome, "10.9");
  EXPECT_EQ(materiali.VitiBase[1].SAmm, 7);
}

// A line that holds several titles opens the first in the order of the tests, wherever it stands in the line.
TEST_F(FileMateriali, IlPrimoTitoloDecide) {
  // clang-format off
  const struct { const char* riga; std::int16_t Materiali::*conteggio; } casi[] = {
    {"ACCIAIO_DA_CARPENTERIA_SEZIONI_CHIUSE ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE", &Materiali::NumAcciai},
    {"VITI ACCIAIO_DA_CARPENTERIA_SEZIONI_CHIUSE", &Materiali::NumAcciaiChiusi},
    {"CALCESTRUZZI VITI", &Materiali::NumViti},
    {"ACCIAIO_DA_CA CALCESTRUZZI", &Materiali::NumCls},
  };
  // clang-format on
  for (const auto& c : casi) {
    materiali.NumAcciai = materiali.NumAcciaiChiusi = materiali.NumViti = materiali.NumCls = materiali.NumAcciaiCA = 0;
    Catalogo(c.riga + std::string("\r\n1\r\nA\r\nB\r\n1 2 3 4 5 6 7 8\r\n"));
    EXPECT_EQ(materiali.*c.conteggio, 1) << c.riga;
    EXPECT_EQ(materiali.NumAcciai + materiali.NumAcciaiChiusi + materiali.NumViti + materiali.NumCls + materiali.NumAcciaiCA, 1) << c.riga;
  }
}

TEST_F(FileMateriali, UnaParolaCheContieneVitiApreLaSezione) {
  Catalogo("Elenco delle chiaviti usate\r\n1\r\n10.9\r\n1 2 3 4 5 6\r\n");
  EXPECT_EQ(materiali.NumViti, 1);
  EXPECT_EQ(materiali.VitiBase[1].Nome, "10.9");
}

TEST_F(FileMateriali, Interruttori) {  // what the panel's load relies on
  EXPECT_FALSE(materiali.UsaViti);
  EXPECT_TRUE(materiali.UsaTirafondi);
  EXPECT_TRUE(materiali.UsaCls);
  EXPECT_FALSE(materiali.UsaAccPiastre);
  EXPECT_FALSE(materiali.SezChiuse);
}

// --- the job's materials -------------------------------------------------------------------------------------------------------

TEST_F(FileMateriali, LavoroMancante) {
  materiali.MatDaBase = true;
  EXPECT_TRUE(LeggiMaterialiBase());
  EXPECT_FALSE(materiali.MatDaBase);
  AttesoSolo(
    "[messaggio] esclamazione | NODO COLONNA - PLINTO | Materiali Base non impostati, specificare un materiale nell'apposita sezione");
}

TEST_F(FileMateriali, LavoroDiAltroRilascio) {
  for (const char* prima : {"[ReleaseQuestoFile=2]", "[releasequestofile=3]", "[ReleaseQuestoFile=3", "", "\r\n[ReleaseQuestoFile=3]"}) {
    MontaRegistratore();
    suite.DirLavoro = cartella;
    EXPECT_TRUE(Lavoro(std::string(prima) + (*prima == '\0' ? "" : "\r\n300 [ValoreCalcolato_Cls_Rck]\r\n")));
    EXPECT_FALSE(materiali.MatDaBase) << prima;
    EXPECT_EQ(materiali.MatBaseCls.Rck, 0);  // none of its lines is read
    AttesoSolo(
      "[messaggio] esclamazione | ATTENZIONE! | Materiali base non corretti. Aprire 'Materiali base' dal pannello principale di Vestra e "
      "salvarli");
  }
}

TEST_F(FileMateriali, OgniChiaveIlSuoCampo) {
  suite.Decimale = ',';  // always the point here
  // clang-format off
  const char* chiavi[] = {"Cls_Classe", "ValoreCalcolato_Cls_Rck", "Cls_Coefficiente_GammaC", "ValoreCalcolato_Cls_Fck", "ValoreCalcolato_Cls_AlfaCC",
      "ValoreCalcolato_Cls_Fcd", "ValoreCalcolato_Cls_Ecm", "ValoreCalcolato_Cls_SAmm", "Acc_Carp_1_Tipo", "Acc_Carp_ModuloDiElasticita_E",
      "Acc_Carp_Coefficiente_GammaM 1", "Acc_Carp_Coefficiente_GammaM 4 9 9 9 9", "ValoreCalcolato_Acc_Carp_1_Fyk_Sp_Min_40", "ValoreCalcolato_Acc_Carp_1_Ftk_Sp_Min_40",
      "ValoreCalcolato_Acc_Carp_1_Fyd_Sp_Min_40", "ValoreCalcolato_Acc_Carp_1_Fyk_Sp_Min_80", "ValoreCalcolato_Acc_Carp_1_Ftk_Sp_Min_80",
      "ValoreCalcolato_Acc_Carp_1_Fyd_Sp_Min_80", "ValoreCalcolato_Acc_Carp_1_SAmm", "Acc_Carp_2_Tipo", "ValoreCalcolato_Acc_Carp_2_Fyk_Sp_Min_40",
      "ValoreCalcolato_Acc_Carp_2_Ftk_Sp_Min_40", "ValoreCalcolato_Acc_Carp_2_Fyd_Sp_Min_40", "ValoreCalcolato_Acc_Carp_2_Fyk_Sp_Min_80",
      "ValoreCalcolato_Acc_Carp_2_Ftk_Sp_Min_80", "ValoreCalcolato_Acc_Carp_2_Fyd_Sp_Min_80", "ValoreCalcolato_Acc_Carp_2_SAmm"};
  // clang-format on
  std::string t = "x [ReleaseQuestoFile=3] y\r\nsenza chiave\r\n1 [Ignota]\r\n";
  int n = 0;
  for (const char* c : chiavi) t += " " + std::to_string(++n) + ".5 [" + c + "]  \r\n";  // line k holds k.5
  ASSERT_TRUE(Lavoro(t));
  EXPECT_TRUE(materiali.MatDaBase);
  EXPECT_TRUE(registratore.eventi.empty());
  const MatCls& c = materiali.MatBaseCls;
  EXPECT_EQ(c.Nome, "1.5");
  EXPECT_EQ(c.Rck, 2.5);
  EXPECT_EQ(c.GammaC, 3.5);
  EXPECT_EQ(c.Fck, 4.5);
  EXPECT_EQ(c.AlfaCC, 5.5);
  EXPECT_EQ(c.Fcd, 6.5);
  EXPECT_EQ(c.Ecm, 7.5);
  EXPECT_EQ(c.SAmm, 8.5);
  EXPECT_EQ(materiali.MatBaseAcc1.Nome, "9.5");
  EXPECT_EQ(materiali.ModuloEBase, 1.05);  // 10.5 / 10
  EXPECT_EQ(materiali.GammaMBase[1], 11.5);
  EXPECT_EQ(materiali.GammaMBase[4], 12.5);
  EXPECT_EQ(materiali.GammaMBase[2], 0);
  const auto acciaio = [](const MatAcciaio& a, double da) {
    EXPECT_EQ(a.Fyk, da);
    EXPECT_EQ(a.Ftk, da + 1);
    EXPECT_EQ(a.Fyd, da + 2);
    EXPECT_EQ(a.Fyk40, da + 3);
    EXPECT_EQ(a.Ftk40, da + 4);
    EXPECT_EQ(a.Fyd40, da + 5);
    EXPECT_EQ(a.SAmm, da + 6);
    EXPECT_EQ(a.SAmm40, 0);
  };
  acciaio(materiali.MatBaseAcc1, 13.5);
  EXPECT_EQ(materiali.MatBaseAcc2.Nome, "20.5");
  acciaio(materiali.MatBaseAcc2, 21.5);
}

TEST_F(FileMateriali, NomiInMaiuscolo) {
  EXPECT_TRUE(DecifraRigaMatBase("c25/30 [cls_classe]"));
  EXPECT_EQ(materiali.MatBaseCls.Nome, "C25/30");
  EXPECT_TRUE(DecifraRigaMatBase("  S 275 (Fe 430)  [Acc_Carp_1_Tipo]"));
  EXPECT_EQ(materiali.MatBaseAcc1.Nome, "S 275 (FE 430)");
  EXPECT_TRUE(DecifraRigaMatBase("qualità [Acc_Carp_2_Tipo x]"));
  EXPECT_EQ(materiali.MatBaseAcc2.Nome, "QUALITÀ");
}

TEST_F(FileMateriali, TestoSenzaNumeroValeZero) {
  materiali.MatBaseCls.Rck = 5;
  EXPECT_TRUE(DecifraRigaMatBase("abc [VALORECALCOLATO_CLS_RCK]"));
  EXPECT_EQ(materiali.MatBaseCls.Rck, 0);
  materiali.MatBaseCls.Rck = 5;
  EXPECT_TRUE(DecifraRigaMatBase("1e400 [VALORECALCOLATO_CLS_RCK]"));
  EXPECT_EQ(materiali.MatBaseCls.Rck, 5);  // overflow: a step that is skipped
  EXPECT_TRUE(DecifraRigaMatBase("12abc [VALORECALCOLATO_CLS_RCK]"));
  EXPECT_EQ(materiali.MatBaseCls.Rck, 12);
}

TEST_F(FileMateriali, GradiPersonalizzati) {
  materiali.ClsBase[1].Nome = "C16/20";
  materiali.AcciaiBase[1].Nome = "S 235 (FE 360)";
  materiali.AcciaiChiusiBase[1].Nome = "S 235 H";
  EXPECT_TRUE(DecifraRigaMatBase("Altra [CLS_CLASSE]"));
  AttesoSolo(PERSONALIZZATO_CLS);
  EXPECT_EQ(materiali.MatBaseCls.Nome, "C16/20");
  registratore.eventi.clear();
  EXPECT_TRUE(DecifraRigaMatBase("Altro [ACC_CARP_1_TIPO]"));
  AttesoSolo(PERSONALIZZATO_ACC);
  EXPECT_EQ(materiali.MatBaseAcc1.Nome, "S 235 (FE 360)");
  registratore.eventi.clear();
  // not the other way round, and the closed section's steel only where it is used
  EXPECT_TRUE(DecifraRigaMatBase("Altro [CLS_CLASSE]"));
  EXPECT_TRUE(DecifraRigaMatBase("Altra [ACC_CARP_1_TIPO]"));
  EXPECT_TRUE(DecifraRigaMatBase("Altro [ACC_CARP_2_TIPO]"));
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(materiali.MatBaseCls.Nome, "ALTRO");
  EXPECT_EQ(materiali.MatBaseAcc1.Nome, "ALTRA");
  EXPECT_EQ(materiali.MatBaseAcc2.Nome, "ALTRO");
  materiali.SezChiuse = true;
  EXPECT_TRUE(DecifraRigaMatBase("Altro [ACC_CARP_1_TIPO]"));
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_TRUE(DecifraRigaMatBase("Altro [ACC_CARP_2_TIPO]"));
  AttesoSolo(PERSONALIZZATO_ACC);
  EXPECT_EQ(materiali.MatBaseAcc2.Nome, "S 235 H");
  registratore.eventi.clear();
  EXPECT_TRUE(DecifraRigaMatBase("Altra [ACC_CARP_2_TIPO]"));
  EXPECT_EQ(materiali.MatBaseAcc2.Nome, "ALTRA");
  // the whole value counts, not a part of it
  EXPECT_TRUE(DecifraRigaMatBase("Altra classe [CLS_CLASSE]"));
  EXPECT_TRUE(DecifraRigaMatBase("Un altro [ACC_CARP_2_TIPO]"));
  materiali.SezChiuse = false;
  EXPECT_TRUE(DecifraRigaMatBase("Altro tipo [ACC_CARP_1_TIPO]"));
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(materiali.MatBaseCls.Nome, "ALTRA CLASSE");
  EXPECT_EQ(materiali.MatBaseAcc2.Nome, "UN ALTRO");
  EXPECT_EQ(materiali.MatBaseAcc1.Nome, "ALTRO TIPO");
  materiali.UsaCls = false;
  EXPECT_TRUE(DecifraRigaMatBase("Altra [CLS_CLASSE]"));
  EXPECT_TRUE(registratore.eventi.empty());
  EXPECT_EQ(materiali.MatBaseCls.Nome, "ALTRA");
}

TEST_F(FileMateriali, CercaUnaChiave) {
  std::string v;
  int k[MaxIndiciChiave] = {9, 9, 9, 9, 9};
  EXPECT_EQ(CercaChiave("  Valore Uno  [Chiave 3 -4.9\t5.9  x 7z ] 8", "CHIAVE", v, k), 1);
  EXPECT_EQ(v, "Valore Uno");
  EXPECT_EQ(k[0], 3);
  EXPECT_EQ(k[1], -4);  // towards zero
  EXPECT_EQ(k[2], 5);   // cut, not rounded
  EXPECT_EQ(k[3], 0);
  EXPECT_EQ(k[4], 7);
  EXPECT_EQ(CercaChiave("1 [chiave]", "Chiave", v, k), 1);
  EXPECT_EQ(k[0], 0);
  EXPECT_EQ(CercaChiave("[chiave ]", "chiave", v, k), 1);
  EXPECT_EQ(v, "");
  EXPECT_EQ(CercaChiave("a [chiave 1] b [chiave 2]", "chiave", v, k), 1);
  EXPECT_EQ(v, "a");  // the first place counts,
  EXPECT_EQ(k[0], 1);
  EXPECT_EQ(CercaChiave("a [chiavetta] b [chiave]", "chiave", v, k), 0);  // also where it fails
  EXPECT_EQ(CercaChiave("1 [chiavetta]", "chiave", v, k), 0);
  EXPECT_EQ(CercaChiave("1 [chiave_2]", "chiave", v, k), 0);
  EXPECT_EQ(CercaChiave("1 [chiave", "chiave", v, k), 0);
  EXPECT_EQ(CercaChiave("1 [chiave 2", "chiave", v, k), 0);
  EXPECT_EQ(CercaChiave("1 [ chiave]", "chiave", v, k), 0);
  EXPECT_EQ(CercaChiave("1 chiave]", "chiave", v, k), 0);
  EXPECT_EQ(CercaChiave("", "chiave", v, k), 0);
  EXPECT_FALSE(FaultAritmetico());
}

TEST_F(FileMateriali, ChiavePiuLungaENonChiusa) {
  materiali.MatBaseCls.Nome = "prima";
  EXPECT_TRUE(DecifraRigaMatBase("C25/30 [CLS_CLASSE_2]"));
  EXPECT_TRUE(DecifraRigaMatBase("C25/30 [CLS_CLASSE"));
  EXPECT_TRUE(DecifraRigaMatBase("C25/30 [CLS_CLASSE 1 2 3 4 5 6 7"));  // not closed: its integers do not count
  EXPECT_EQ(materiali.MatBaseCls.Nome, "prima");
}

TEST_F(FileMateriali, GuastiDelleParentesi) {
  for (const char* riga :
       {"1 [ACC_CARP_COEFFICIENTE_GAMMAM 0]", "1 [ACC_CARP_COEFFICIENTE_GAMMAM 5]", "1 [ACC_CARP_COEFFICIENTE_GAMMAM]",
        "1 [ACC_CARP_COEFFICIENTE_GAMMAM -1]", "1 [ACC_CARP_COEFFICIENTE_GAMMAM 40000]", "1 [ACC_CARP_COEFFICIENTE_GAMMAM x]",
        "1 [CLS_CLASSE 1 2 3 4 5 6]", "1 [CLS_CLASSE 1 2 3 4 5 6 7 8 9 10 11 12 13]", "1 [CLS_CLASSE 40000]", "1 [CLS_CLASSE 1e400]"}) {
    AzzeraFault();
    EXPECT_FALSE(DecifraRigaMatBase(riga)) << riga;
    EXPECT_TRUE(FaultAritmetico()) << riga;
  }
  AzzeraFault();
  EXPECT_TRUE(DecifraRigaMatBase("1 [IGNOTA 1 2 3 4 5 6 7]"));  // only a known key
  EXPECT_TRUE(DecifraRigaMatBase("1 [CLS_CLASSE 1 2 3 4 5]"));
  EXPECT_FALSE(FaultAritmetico());
  EXPECT_FALSE(Lavoro("[ReleaseQuestoFile=3]\r\n2 [VALORECALCOLATO_CLS_RCK]\r\n1 [ACC_CARP_COEFFICIENTE_GAMMAM 9]\r\n"));
  EXPECT_TRUE(FaultAritmetico());
  EXPECT_EQ(materiali.MatBaseCls.Rck, 2);
  EXPECT_TRUE(registratore.eventi.empty());  // its box is the caller's
}
