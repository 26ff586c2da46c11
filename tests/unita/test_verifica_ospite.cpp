// tests/unita/test_verifica_ospite.cpp - a list of nodes side by side: each in a run of its own, whatever the others do.
#include "app/batch/verifica.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "app/batch/piattaforma_batch.h"
#include "corredo/registratore.h"
#include "corredo/suite_prova.h"

static const StatoOspite OSPITE_VUOTO;

class VerificaOspite : public testing::Test {
 protected:
  void SetUp() override {
    radice = PreparaSuite("verifica_ospite");
    ospite = OSPITE_VUOTO;
    ASSERT_TRUE(AvviaSuite(radice));
    MontaPiattaforma();
  }
  std::string Nodo(const char* nome) { return CartellaLavoro(radice) + nome + ".qb7"; }
  // Exit status, then the lines that begin with NODO.
  std::string Verifica(const std::vector<std::string>& nodi, int processi) {
    testing::internal::CaptureStdout();
    const int stato = VerificaNodi(nodi, processi);
    const std::string tutto = testing::internal::GetCapturedStdout();
    std::string righe = std::to_string(stato);
    for (std::size_t da = 0; da < tutto.size();) {
      const std::size_t fine = tutto.find('\n', da);
      const std::string riga = tutto.substr(da, fine - da);
      if (riga.starts_with("NODO ")) righe += "|" + riga.substr(riga.rfind('/') + 1);
      da = fine + 1;
    }
    return righe;
  }
  std::string radice;
};

static bool ScegliOMuori(const RichiestaFile&, std::string& percorso, int& filtro) {
  percorso = ospite.file.front().percorso;
  filtro = 1;
  if (percorso.ends_with("muore.qb7")) raise(SIGKILL);
  if (percorso.ends_with("esce.qb7")) _exit(7);
  if (percorso.ends_with("/lavori/NODI01/controvento_E1.qb7")) usleep(300000);
  return true;
}

TEST_F(VerificaOspite, UnProcessoCheMuoreNonEEseguito) {
  piattaforma.scegliFile = ScegliOMuori;
  for (const int processi : {1, 2, 8}) {
    EXPECT_EQ(Verifica({Nodo("pilastro_A1"), Nodo("muore"), Nodo("controvento_E1")}, processi),
              "2|pilastro_A1.qb7: verificato|muore.qb7: non eseguito|controvento_E1.qb7: non verificato");
    errno = 0;
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);                   // every process was reaped
  }
}

TEST_F(VerificaOspite, UnEsitoFuoriRegolaNonEEseguito) {
  piattaforma.scegliFile = ScegliOMuori;
  EXPECT_EQ(Verifica({Nodo("esce"), Nodo("pilastro_A1")}, 2), "2|esce.qb7: non eseguito|pilastro_A1.qb7: verificato");
}

// Two nodes of one name write one report: the later of the list stays, also when the earlier takes longer.
TEST_F(VerificaOspite, LoStessoNomeInFila) {
  const std::string altro = radice + "/altrove/Controvento_E1.qb7", relazione = CartellaLavoro(radice) + "RelSLU_QB07_controvento_E1.txt";
  ScriviByte(altro, LeggiByte(Nodo("pilastro_A1")));
  EXPECT_EQ(Verifica({altro}, 1), "0|Controvento_E1.qb7: verificato");
  const std::string sua = LeggiByte(CartellaLavoro(radice) + "RelSLU_QB07_Controvento_E1.txt");
  ASSERT_NE(sua, "");
  piattaforma.scegliFile = ScegliOMuori;
  EXPECT_EQ(Verifica({Nodo("controvento_E1"), altro}, 2), "1|controvento_E1.qb7: non verificato|Controvento_E1.qb7: verificato");
  EXPECT_EQ(LeggiByte(CartellaLavoro(radice) + "RelSLU_QB07_Controvento_E1.txt"), sua);
  EXPECT_EQ(LeggiByte(relazione), "");          // one file, in the spelling that was there
}

TEST_F(VerificaOspite, LoStatoEIlPiuAlto) {
  EXPECT_EQ(Verifica({Nodo("pilastro_A1")}, 4), "0|pilastro_A1.qb7: verificato");
  EXPECT_EQ(Verifica({Nodo("controvento_E1"), Nodo("pilastro_A1")}, 4),
            "1|controvento_E1.qb7: non verificato|pilastro_A1.qb7: verificato");
  EXPECT_EQ(Verifica({Nodo("manca"), Nodo("controvento_E1")}, 4), "2|manca.qb7: non eseguito|controvento_E1.qb7: non verificato");
}

// A node without sextets: nothing failed.
TEST_F(VerificaOspite, SenzaSestetti) {
  std::string file = LeggiByte(Nodo("tirante_G1"));
  const std::size_t classe = file.find("C25/30");
  ASSERT_NE(classe, std::string::npos);
  file = file.substr(0, file.find('\n', file.find('\n', classe) + 1) + 1) + " 0 \r\n 0 \r\n1\r\n";   // exposure, then no sextet, no node, method
  ScriviByte(Nodo("vuoto"), file);
  EXPECT_EQ(Verifica({Nodo("vuoto")}, 1), "0|vuoto.qb7: verificato");
}

// The option's method is chosen after the load, whatever the file says: montante_C1 says TA (0), pilastro_A1 says SLU (1).
TEST_F(VerificaOspite, IlMetodoDellOpzioneVinceSuQuelloDelFile) {
  const auto relazioni = [&](const char* nome) {
    const std::string cartella = CartellaLavoro(radice), coda = std::string("_QB07_") + nome + ".txt";
    return std::string(LeggiByte(cartella + "RelTA" + coda).empty() ? "" : "TA") + (LeggiByte(cartella + "RelSLU" + coda).empty() ? "" : "SLU");
  };
  ospite.opzioni.metodo = 1;
  Verifica({Nodo("montante_C1"), Nodo("pilastro_A1")}, 1);
  EXPECT_EQ(relazioni("montante_C1"), "SLU");
  EXPECT_EQ(relazioni("pilastro_A1"), "SLU");
  ospite.opzioni.metodo = 0;
  Verifica({Nodo("montante_C1"), Nodo("pilastro_A1")}, 1);
  EXPECT_EQ(relazioni("montante_C1"), "TASLU");
  EXPECT_EQ(relazioni("pilastro_A1"), "TASLU");
}

// What one node leaves behind - rows of ribs, welds, grades remembered for the other method, the anchors' form - counts for none.
TEST_F(VerificaOspite, LOrdineNonCambiaNulla) {
  const std::vector<std::string> nomi = {"pilastro_B1", "colonna_H1", "montante_C1", "pilastro_A2", "tirante_G1", "esistente_1998"};
  std::vector<std::string> nodi, rovescio, relazioni;
  for (const std::string& n : nomi) nodi.push_back(Nodo(n.c_str()));
  rovescio.assign(nodi.rbegin(), nodi.rend());
  const auto leggi = [&] {
    std::vector<std::string> testi;
    for (const std::string& n : nomi)
      for (const char* tipo : {"RelTA_QB07_", "RelSLU_QB07_"}) testi.push_back(LeggiByte(CartellaLavoro(radice) + tipo + n + ".txt"));
    return testi;
  };
  Verifica(nodi, 1);
  const std::vector<std::string> primi = leggi();
  EXPECT_EQ(primi.size(), 12u);
  std::size_t scritti = 0;
  for (const std::string& t : primi) scritti += t.empty() ? 0 : 1;
  EXPECT_EQ(scritti, nomi.size());
  Verifica(rovescio, 1);
  EXPECT_EQ(leggi(), primi);
  Verifica(rovescio, 6);
  EXPECT_EQ(leggi(), primi);
}
