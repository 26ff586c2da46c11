// Every file of the start, malformed: the tables left have counts in range and finite numbers. The cases are those of corredo/ostili.h.
#include "corredo/ostili.h"

#include "core/avvio.h"
#include "core/diametri.h"
#include "core/opzioni.h"
#include "core/testo.h"
#include "core/unita.h"
#include "link/profili.h"
#include "materials/file_materiali.h"
#include "model/materiali.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

void FinitiAcciai(const MatAcciaio* t) {
  for (int i = 0; i <= MaxMateriali; ++i)
    Finiti({t[i].SAmm, t[i].SAmm40, t[i].Fyk, t[i].Fyk40, t[i].Ftk, t[i].Ftk40, t[i].Fyd, t[i].Fyd40, t[i].GammaM, t[i].GammaMT});
  EXPECT_EQ(t[0].Nome, "");
}

void OstileDiametri(const std::string& cartella) {
  suite.DirCustom = cartella;
  LeggiDiametri();
  ASSERT_GE(suite.NumDiam, 0);
  ASSERT_LE(suite.NumDiam, MaxDiam);
  for (int i = 0; i <= MaxDiam; ++i) Finiti({suite.DiamVal[i], suite.DiamArea[i]});
  SenzaFault();
  for (const double d : {-1., 0., 8., 9., 20., 1000.}) (void)AreaResistente(suite, d);
  AzzeraFault();  // hostile rows may overflow there: a fault of the verification
}

void OstileOpzioni(const std::string& cartella) {
  suite.DirCustom = cartella;
  (void)LeggiOpzioni();
  for (const double p : suite.ParNodo) Finiti({p});
  SenzaFault();
}

void OstileUnita(const std::string& cartella) {
  suite.DirLavoro = cartella;
  const bool riuscita = ImpostaUnita();
  EXPECT_EQ(riuscita, !FaultAritmetico());
  AzzeraFault();
  if (riuscita)
    Finiti({suite.AccelG, suite.NordGeo, suite.FattLung, suite.FattForze, suite.FattMomenti, suite.FattTensioni, suite.FattSezioni,
            suite.FattCarichi});
}

void OstileProfili(const std::string& cartella) {
  const int n = LeggiProfili(cartella + FILE_PROFILARIO, 1, suite.ProfiliLib, FATT_LUNG_PROFILI, FATT_AREA_PROFILI, "");
  ASSERT_GE(n, 0);
  ASSERT_LE(n, MaxProfili);
  for (int i = 1; i <= n; ++i) {
    const Sezione& s = suite.ProfiliLib[i];
    Finiti({s.H, s.B, s.A, s.E, s.R, s.R2, s.Xc, s.Yc, s.Area, s.J1, s.J2, s.Jt});
    EXPECT_EQ(NumCaratteri(s.Nome), static_cast<std::size_t>(LungNomeSez));
    suite.ProfiliLib[i] = {};
  }
  SenzaFault();
}

void OstileCatalogo(const std::string& cartella) {
  std::string errore;
  LeggiMaterialiCatalogo(cartella + FILE_CATALOGO, errore);
  EXPECT_EQ(errore, "");
  FinitiAcciai(materiali.AcciaiBase);
  FinitiAcciai(materiali.AcciaiChiusiBase);
  for (int i = 0; i <= MaxMateriali; ++i) {
    Finiti({materiali.VitiBase[i].SAmm, materiali.VitiBase[i].Fy, materiali.VitiBase[i].Ft, materiali.VitiBase[i].GammaM2});
    Finiti({materiali.ClsBase[i].Rck, materiali.ClsBase[i].GammaC});
    for (const double v : materiali.AcciaiCABase[i].V) Finiti({v});
  }
  SenzaFault();
}

void OstileMatLavoro(const std::string& cartella) {
  suite.DirLavoro = cartella;
  const bool riuscita = LeggiMaterialiBase();
  EXPECT_EQ(riuscita, !FaultAritmetico());
  AzzeraFault();
  FinitiAcciai(&materiali.AcciaiBase[0]);
  Finiti(
    {materiali.MatBaseAcc1.Fyk, materiali.MatBaseAcc1.Fyd40, materiali.MatBaseCls.Rck, materiali.MatBaseCls.Ecm, materiali.ModuloEBase});
  for (const double g : materiali.GammaMBase) Finiti({g});
}

void OstileAvvio(const std::string& cartella) {
  const bool riuscita = TrovaPercorsi("|diroot=" + cartella + "|");
  EXPECT_EQ(riuscita, registratore.eventi.empty());
  SenzaFault();
}

void CatalogoMancante(const std::string& cartella) {
  std::string errore;
  LeggiMaterialiCatalogo(cartella + FILE_CATALOGO, errore);
  EXPECT_EQ(errore, "File materiali (" + cartella + FILE_CATALOGO + ") non trovato o non valido");
}

}  // namespace

const std::vector<Lettore>& Lettori() {
  // clang-format off
  static const std::vector<Lettore> lettori = {
      {"diametri", "QbDiam.txt", 70, "rem x|\r\nM8|8|38.6|\r\nM20|20|245|\r\nM24|24|353|\r\n", OstileDiametri,
       {"| Errore nella lettura del file QbDiam.txt", "contiene un numero eccessivo di diametri (max 100)"}},
      {"opzioni", "OpzioniNodi1-5.txt", 85, " 2 \r\n 4 \r\n-3.5 \r\n6,6,2 2\r\n15 10 25 18 15 10 5 6 1 0 5 1 1 7 0 0 0 0 3 1 2\r\n 1E+20 \r\n", OstileOpzioni, {}},
      {"unita", "parametrilavoro", 75,
       "PARAMETRI\r\n9.81 [accelerazione_g]\r\n0 [nord_geografico]\r\ncm [lunghezze]\r\nkgf [forze]\r\ndaNcm [coppie_momenti]\r\nt8cm2 [tensioni]\r\n"
       "cm [dati_sezioni]\r\ndaN8m2 [carichi_superficie]\r\n", OstileUnita, {}},
      {"profili", "prof_pro", 80,
       "*\r\nIPE 80 7.64 80.14 3 20 8.489 1 3 2 5 .67 1 6 0 I 0 0 80 46 3.8 5.2 5\r\nUPN 80 11 106 2 19 1 2 8 0 U 0 0 80 45 6 8 14 8 4\r\n%\r\n*END*\r\n",
       OstileProfili, {}},
      {"catalogo", "MaterialiNTC08.tx1", 75,
       "ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE\r\n1\r\nS 235\r\nEN\r\n1 2 3 4 5 6 7 8\r\nACCIAIO_DA_CARPENTERIA_SEZIONI_CHIUSE\r\n1\r\nC\r\nEN\r\n1 2 3 4 5 6 7 8\r\n"
       "VITI\r\n1\r\n8.8\r\n1 2 3 4 5 6\r\nCALCESTRUZZI\r\n1\r\nC25/30\r\n300 1.5\r\nACCIAIO_DA_CA\r\n1\r\nB\r\n1 2 3 4\r\n", OstileCatalogo, {}, {}, CatalogoMancante},
      {"materiali del lavoro", "propmateriali.tx1", 45,
       "[ReleaseQuestoFile=3]\r\nC25/30 [CLS_CLASSE]\r\n300 [VALORECALCOLATO_CLS_RCK]\r\nAltro [ACC_CARP_1_TIPO]\r\n1.05 [ACC_CARP_COEFFICIENTE_GAMMAM 1 2 3 4 5]\r\n",
       OstileMatLavoro,
       {"| ATTENZIONE! | Materiali base non corretti. Aprire 'Materiali base' dal pannello principale di Vestra e salvarli",
        "Impostare una classe standard", "Impostare un tipo standard"},
       {"Impostare un tipo standard"}},
      {"dirlav", "impostazioni/dirlav", 50, "\"c:\\dati\\lavori\\\"\r\n",
       [](const std::string& c) { Altro(c, "impostazioni/lavoro", "Ponte1\r\n"); OstileAvvio(c); },
       {"\\impostazioni\\dirlav errato o mancante", "deve terminare con < \\lavori >"}},
      {"lavoro", "impostazioni/lavoro", 45, "  Ponte1\r\n",
       [](const std::string& c) { Altro(c, "impostazioni/dirlav", "c:\\dati\\lavori"); OstileAvvio(c); },
       {"\\impostazioni\\lavoro errato o mancante"}},
  };
  // clang-format on
  return lettori;
}

INSTANTIATE_TEST_SUITE_P(Lettori, FileOstili, testing::Range<std::size_t>(0, 8));
