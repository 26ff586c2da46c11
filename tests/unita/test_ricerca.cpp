// Search tools, bar selection, load export: files byte by byte, messages whole.
#include <gtest/gtest.h>

#include <vector>

#include "core/aritmetica.h"
#include "core/file.h"
#include "corredo/modello_minimo.h"
#include "corredo/registratore.h"
#include "link/esporta_soll.h"
#include "link/ricerca.h"
#include "model/stato.h"
#include "model/suite.h"

namespace {

struct Ricerca : testing::Test {
  std::string lavoro;
  FiltroAste tutte;
  void SetUp() override {
    MontaRegistratore();
    lavoro = CartellaProva("ricerca") + "/LAV001";
    suite.DirLavoro = lavoro;
    suite.DirRoot = "c:\\suite";
    suite.DirProgra = "c:\\suite\\progra";
    ScriviByte(lavoro + "/struttur.str", STRUTTURA_MINIMA);
    for (bool& b : tutte.colori) b = true;
    for (bool& b : tutte.linee) b = true;
  }
};

using Nodi = std::vector<std::int16_t>;

std::string PercorsoRisposta() { return RisolviPercorso(suite.DirLavoro + "\\SondaOut.txt"); }

}  // namespace

TEST_F(Ricerca, ElementoCercato) {
  ScriviByte(lavoro + "/SondaOut.txt", "vecchia\r\n");
  registratore.programmi = true;
  registratore.eseguito = [](const std::string&, const std::string&) {
    EXPECT_FALSE(EsisteFile(PercorsoRisposta()));  // the former answer is gone
    ScriviByte(suite.DirLavoro + "/SondaOut.txt", " 12,15 \r\n");
    return true;
  };
  std::string campo = " 7 ";
  CercaElemento(" Titolo ", campo, ELEMENTO_NODO);
  EXPECT_EQ(campo, "12,15");
  EXPECT_EQ(LeggiByte(lavoro + "/SondaIn.txt"), "Titolo\r\n7\r\n1\r\n");
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(registratore.eventi[0], "[programma] c:\\suite\\progra\\Sonda.exe |Diroot=c:\\suite|");
  CercaElemento("Titolo", campo, ELEMENTO_NODO, true);
  EXPECT_EQ(campo, "12");  // the first element only
}

TEST_F(Ricerca, PrimoElementoPrimaDelTrattino) {
  registratore.programmi = true;
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(suite.DirLavoro + "/SondaOut.txt", "3-9,15\r\n");
    return true;
  };
  std::string campo;
  CercaElemento("t", campo, ELEMENTO_NODO, true);
  EXPECT_EQ(campo, "3");
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(suite.DirLavoro + "/SondaOut.txt", " 18 \r\n");
    return true;
  };
  CercaElemento("t", campo, ELEMENTO_NODO, true);
  EXPECT_EQ(campo, "18");  // no separator: the whole line
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(suite.DirLavoro + "/SondaOut.txt", ",4\r\n");
    return true;
  };
  CercaElemento("t", campo, ELEMENTO_NODO, true);
  EXPECT_EQ(campo, "18");  // an empty first element: as it was
}

TEST_F(Ricerca, AnnullatoORigaVuotaLasciaIlCampo) {
  registratore.programmi = true;
  std::string campo = "7";
  CercaElemento("t", campo, ELEMENTO_NODO);
  EXPECT_EQ(campo, "7");
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(suite.DirLavoro + "/SondaOut.txt", "\r\n");
    return true;
  };
  CercaElemento("t", campo, ELEMENTO_NODO);
  EXPECT_EQ(campo, "7");
}

TEST_F(Ricerca, ProgrammaCheNonParte) {
  std::string campo = "7";
  CercaElemento("t", campo, ELEMENTO_NODO);
  EXPECT_EQ(registratore.eventi.back(), "[messaggio] critica | Errore | Problemi con l'apertura dell'applicazione di ricerca");
  EXPECT_FALSE(CercaNodi("t").risposta);
  EXPECT_EQ(registratore.eventi.back(), "[messaggio] critica | Errore | Problemi con l'apertura dell'applicazione di ricerca");
}

TEST_F(Ricerca, CartellaNonScrivibile) {
  suite.DirLavoro = lavoro + "\\manca";
  std::string campo;
  CercaElemento("t", campo, ELEMENTO_NODO);
  EXPECT_EQ(registratore.eventi[0],
            "[messaggio] nessuna | ATTENZIONE! | Impossibile scrivere il file di ingresso. Specificare l'elemento da selezionare");
  registratore.eventi.clear();
  CercaNodi("t");
  EXPECT_EQ(registratore.eventi[0],
            "[messaggio] nessuna | ATTENZIONE | Impossibile scrivere il file di ingresso. Specificare l'elemento da selezionare");
}

TEST_F(Ricerca, AltroLavoro) {
  ScriviByte(lavoro.substr(0, lavoro.size() - 6) + "LAV002/x", "");
  registratore.programmi = true;
  std::string campo = "7";
  CercaElemento("t", campo, 2, false, "LAV002");
  EXPECT_EQ(registratore.eventi[0], "[programma] c:\\suite\\progra\\Sonda.exe |Diroot=c:\\suite| |Lavoro=LAV002|");
  EXPECT_EQ(LeggiByte(lavoro.substr(0, lavoro.size() - 6) + "LAV002/SondaIn.txt"), "t\r\n7\r\n2\r\n");
}

// The job's name is trimmed in the argument, not in its folder's path.
TEST_F(Ricerca, NomeDelLavoroSenzaBlankNellArgomento) {
  ScriviByte(lavoro.substr(0, lavoro.size() - 6) + "LAV2  /x", "");
  registratore.programmi = true;
  std::string campo = "7";
  CercaElemento("t", campo, 2, false, "LAV2  ");
  EXPECT_EQ(registratore.eventi[0], "[programma] c:\\suite\\progra\\Sonda.exe |Diroot=c:\\suite| |Lavoro=LAV2|");
  EXPECT_EQ(LeggiByte(lavoro.substr(0, lavoro.size() - 6) + "LAV2  /SondaIn.txt"), "t\r\n7\r\n2\r\n");
}

// The program ran and wrote nothing: the user cancelled, and the answer of a former search is none.
TEST_F(Ricerca, NodiDiUnaRicercaPassata) {
  ScriviByte(lavoro + "/SondaOut.txt", "0,2\r\n15\r\n1,6\r\nColonna A\r\nNodo B\r\n");
  registratore.programmi = true;
  EXPECT_FALSE(CercaNodi("t").risposta);
  EXPECT_FALSE(EsisteFile(PercorsoRisposta()));
}

TEST_F(Ricerca, NodiCercati) {
  registratore.programmi = true;
  registratore.eseguito = [](const std::string&, const std::string&) {
    ScriviByte(suite.DirLavoro + "/SondaOut.txt", "0,2\r\n15\r\n1,6\r\nColonna A\r\nNodo B\r\n");
    return true;
  };
  const NodoCercato r = CercaNodi("NODO COLONNA - PLINTO - Cerca nodi");
  EXPECT_TRUE(r.risposta);
  EXPECT_EQ(r.tipo, 2);
  EXPECT_EQ(r.nodo, 15);
  EXPECT_EQ(r.elemento, 6);
  EXPECT_EQ(r.nome1, "Colonna A");
  EXPECT_EQ(r.nome2, "Nodo B");
  EXPECT_EQ(LeggiByte(lavoro + "/SondaNIn.txt"), "NODO COLONNA - PLINTO - Cerca nodi\r\n3\r\n1\r\nC Colonna\r\n");
  EXPECT_EQ(registratore.eventi[0], "[programma] c:\\suite\\progra\\SondaNod.exe |Diroot=c:\\suite|");
}

TEST_F(Ricerca, SoloLaPrimaAstaDelNodo) {
  std::string lista;
  CercaAste(Nodi{20}, tutte, lista);
  EXPECT_EQ(lista, "5,");
  CercaAste(Nodi{30}, tutte, lista);
  EXPECT_EQ(lista, "5,7,");           // bar 6 has colour 10, which never passes
  CercaAste(Nodi{99}, tutte, lista);  // no such node: nothing is said
  EXPECT_EQ(lista, "5,7,");
  EXPECT_TRUE(registratore.eventi.empty());
}

// Of several nodes each adds its own, in the order of the list and as often as it stands there; what comes behind a node without a bar is
// not looked for.
TEST_F(Ricerca, PiuNodiInOrdine) {
  std::string lista;
  CercaAste(Nodi{}, tutte, lista);
  EXPECT_EQ(lista, "");
  CercaAste(Nodi{30, 99, 10, 30}, tutte, lista);
  EXPECT_EQ(lista, "7,5,7,");
  EXPECT_TRUE(registratore.eventi.empty());
  lista.clear();
  CercaAste(Nodi{10, 40, 30}, tutte, lista);  // no bar meets at node 40
  EXPECT_EQ(lista, "5,");
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_TRUE(registratore.eventi[0].ends_with("che concorra nel nodo 40"));
}

// Nodes of one name: the last one counts. A bar with both ends at its node counts as any other.
TEST_F(Ricerca, NodiDiUnSoloNome) {
  ScriviByte(lavoro + "/struttur.str",
             "release\r\n0\r\n3\r\n1,0,0,7,a\r\n2,0,0,7,b\r\n3.5,0,0,8,c\r\n4\r\n1,1,0,0\r\n4 1\r\n2,2,0,0\r\n5 1\r\n3,4,0,0\r\n6 1\r\n"
             "0,1,0,0\r\n7 1\r\n0\r\n");
  std::string lista;
  CercaAste(Nodi{7}, tutte, lista);
  EXPECT_EQ(lista, "5,");
  CercaAste(Nodi{8}, tutte, lista);  // no bar ends at a number that is not whole
  EXPECT_EQ(lista, "5,");
  EXPECT_EQ(registratore.eventi.size(), 1u);
}

TEST_F(Ricerca, FiltriPerColoreLineaENome) {
  std::string lista;
  FiltroAste f = tutte;
  f.colori[2] = false;
  CercaAste(Nodi{20}, f, lista);
  EXPECT_EQ(lista, "7,");
  f = tutte;
  f.linee[1] = false;
  lista.clear();
  CercaAste(Nodi{20}, f, lista);
  EXPECT_EQ(lista, "7,");
  f = tutte;
  f.tuttiNomi = false;
  f.nomi[1] = 6;
  f.nomi[2] = 7;
  lista.clear();
  CercaAste(Nodi{20}, f, lista);
  EXPECT_EQ(lista, "7,");
  f.nomi[2] = 6;
  lista.clear();
  CercaAste(Nodi{20}, f, lista);
  EXPECT_EQ(registratore.eventi.back(),
            "[messaggio] esclamazione | NODO COLONNA - PLINTO | Non esiste nessuna asta corrispondente alle caratteristiche selezionate "
            "che concorra nel nodo 20");
}

// Colours 0 to 9 and line types 0 to 4 are those that a filter can let pass; the first bar within them is taken.
TEST_F(Ricerca, ColoriELineeFuoriDalFiltro) {
  ScriviByte(lavoro + "/struttur.str", "release\r\n0\r\n1\r\n1,0,0,1,a\r\n6\r\n1,2,5,0\r\n11 1\r\n1,2,-1,0\r\n12 1\r\n1,2,0,10\r\n13 1\r\n"
                                       "1,2,0,-1\r\n14 1\r\n1,2,4,9\r\n0 1\r\n1,2,4,9\r\n16 1\r\n0\r\n");
  std::string lista;
  CercaAste(Nodi{1}, tutte, lista);
  EXPECT_EQ(lista, "16,");  // nor does a bar of number 0
}

TEST_F(Ricerca, StrutturaAssente) {
  suite.DirLavoro = lavoro + "\\manca";
  std::string lista;
  CercaAste(Nodi{20}, tutte, lista);
  EXPECT_EQ(registratore.eventi.back(),
            "[messaggio] esclamazione | ERRORE | Errore: file " + suite.DirLavoro + "\\struttur.str errato o mancante.");
}

TEST_F(Ricerca, AltroLavoroSoloAccantoAQuesto) {
  registratore.programmi = true;
  std::string campo = "7";
  for (const char* altrove : {"..", "../..", "a\\b", "x/y"}) CercaElemento("t", campo, 1, false, altrove);
  EXPECT_TRUE(registratore.eventi.empty());
}

// In the selection a node goes by its fourth value, and the bars' ends by its first.
TEST_F(Ricerca, IlNodoSiCercaPerNomeEGliEstremiPerNumero) {
  ScriviByte(lavoro + "/struttur.str", "release\r\n0\r\n2\r\n1,0,0,900,a\r\n2,0,0,1,b\r\n2\r\n2,2,0,0\r\n4 1\r\n1,2,0,0\r\n5 1\r\n0\r\n");
  std::string lista;
  CercaAste(Nodi{900}, tutte, lista);
  EXPECT_EQ(lista, "5,");            // bar 4 does not touch node number 1
  CercaAste(Nodi{2}, tutte, lista);  // no node of that name
  EXPECT_EQ(lista, "5,");
}

TEST_F(Ricerca, VersioneVecchiaNellaSelezione) {
  ScriviByte(lavoro + "/struttur.str", STRUTTURA_MINIMA.substr(STRUTTURA_MINIMA.find('\n') + 1));
  std::string lista;
  CercaAste(Nodi{20}, tutte, lista);
  EXPECT_EQ(lista, "5,");
  ASSERT_EQ(registratore.eventi.size(), 1u);
  EXPECT_EQ(registratore.eventi[0],
            "[messaggio] critica | ATTENZIONE! | Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Ambiente Grafico'");
}

TEST_F(Ricerca, EsportazioneConUnValoreCheTrabocca) {
  suite.FattForze = 10;
  suite.FattMomenti = 1;
  const double zeri[3] = {}, v[3] = {0, 1, 1e308};
  const std::string nomi[3] = {"", "a", "b"};
  ElencoSoll e;
  for (const double*& c : e.componente) c = zeri;
  e.componente[1] = v;
  e.nomi = nomi;
  e.conteggio = 2;
  AzzeraFault();
  ScriviByte(lavoro + "/t.txt", "di prima");
  EXPECT_EQ(EsportaSollecitazioni(lavoro + "\\t.txt", e), EsitoEsporta::Interrotto);
  EXPECT_TRUE(FaultAritmetico());
  AzzeraFault();
  EXPECT_EQ(LeggiByte(lavoro + "/t.txt"), "di prima");
}

TEST_F(Ricerca, EsportazioneDeiCarichi) {
  suite.UnitaForze = "kN";
  suite.UnitaLung = "cm";
  suite.FattForze = 0.01;
  suite.FattMomenti = 0.0001;
  const double v[6][3] = {{0, -1250, 50}, {0, 300, 0}, {0, 0, -1}, {0, 5000, 0}, {0, 0, 1}, {0, 10000, -250000}};
  const std::string nomi[3] = {"", " Soll 1 ", "Caso 7 As. 5 Nd. 20"};
  ElencoSoll e;
  for (int k = 0; k < 6; ++k) e.componente[k] = v[k];
  e.nomi = nomi;
  e.conteggio = 2;
  ASSERT_EQ(EsportaSollecitazioni(lavoro + "\\Soll_Qb07.txt", e), EsitoEsporta::Scritto);
  // The head: 17 + 2 characters, so the length unit stands in column 29.
  EXPECT_EQ(LeggiByte(lavoro + "/Soll_Qb07.txt"),
            "Unit\xE0 di misura: kN         cm\r\nses\tdescr.Ses.\tN\tTy\tTz\tMt\tMy\tMz\r\n"
            "1\tSoll 1\t-12.5\t3\t0\t.5\t0\t1\t\r\n2\tCaso 7 As. 5 Nd. 20\t.5\t0\t-.01\t0\t.0001\t-25\t\r\n");
  e.usa[1] = e.usa[5] = false;
  e.conteggio = 1;
  ASSERT_EQ(EsportaSollecitazioni(lavoro + "\\b.txt", e), EsitoEsporta::Scritto);
  EXPECT_EQ(LeggiByte(lavoro + "/b.txt"),
            "Unit\xE0 di misura: kN         cm\r\nses\tdescr.Ses.\tN\tTy\tTz\tMt\tMy\tMz\r\n1\tSoll 1\t-12.5\t0\t0\t.5\t0\t0\t\r\n");
  e.conteggio = 0;
  ASSERT_EQ(EsportaSollecitazioni(lavoro + "\\c.txt", e), EsitoEsporta::Scritto);
  EXPECT_EQ(LeggiByte(lavoro + "/c.txt"), "Unit\xE0 di misura: kN         cm\r\nses\tdescr.Ses.\tN\tTy\tTz\tMt\tMy\tMz\r\n");
  e.primo = 2;
  e.conteggio = 1;
  ASSERT_EQ(EsportaSollecitazioni(lavoro + "\\d.txt", e), EsitoEsporta::Scritto);  // the ordinals count from the first group
  EXPECT_TRUE(LeggiByte(lavoro + "/d.txt").ends_with("\tMz\r\n1\tCaso 7 As. 5 Nd. 20\t.5\t0\t-.01\t0\t.0001\t0\t\r\n"));
  EXPECT_EQ(EsportaSollecitazioni(lavoro + "\\manca\\c.txt", e), EsitoEsporta::NonAperto);
}
