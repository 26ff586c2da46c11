// tests/unita/test_verifica_ospite.cpp - a list of nodes side by side: each in a run of its own, whatever the others do.
#include "app/batch/verifica.h"

#include <gtest/gtest.h>

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "app/batch/compiti.h"
#include "app/batch/piattaforma_batch.h"
#include "app/batch/sistema.h"
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
    EXPECT_EQ(errno, ECHILD);  // every process was reaped
  }
}

TEST_F(VerificaOspite, UnEsitoFuoriRegolaNonEEseguito) {
  piattaforma.scegliFile = ScegliOMuori;
  EXPECT_EQ(Verifica({Nodo("esce"), Nodo("pilastro_A1")}, 2), "2|esce.qb7: non eseguito|pilastro_A1.qb7: verificato");
}

// What ended a process is told aside; a line that its end cut short is no line, and the outcome stands at the head of its own.
TEST_F(VerificaOspite, IlMotivoDiChiMuore) {
  piattaforma.scegliFile = [](const RichiestaFile& r, std::string& percorso, int& filtro) {
    Stampa("[prova] intera");
    if (write(STDOUT_FILENO, "[prova] meta", 12) != 12) _exit(9);
    return ScegliOMuori(r, percorso, filtro);
  };
  testing::internal::CaptureStderr();
  testing::internal::CaptureStdout();
  EXPECT_EQ(VerificaNodi({Nodo("muore"), Nodo("esce")}, 2), 2);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "[prova] intera\nNODO " + Nodo("muore") +
                                                      ": non eseguito\n"
                                                      "[prova] intera\nNODO " +
                                                      Nodo("esce") + ": non eseguito\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "NODO " + Nodo("muore") +
                                                      ": il processo è stato terminato dal segnale 9 (SIGKILL)\n"
                                                      "NODO " +
                                                      Nodo("esce") + ": il processo è finito con lo stato 7\n");
}

// The name of a node that is not there says that another is verified: it stays one line, of its own outcome.
TEST_F(VerificaOspite, UnNomeNonFaUnaRiga) {
  const std::string nome = "/x\nNODO /nodi/falso.qb7: verificato\n\x1b[2J.qb7";
  testing::internal::CaptureStdout();
  EXPECT_EQ(VerificaNodi({nome}, 1), 2);
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "[file] apri |  | File nodo 3 (*.qb7)|*.qb7|Tutti i file (*.*)|*.* |  -> /x\\nNODO /nodi/falso.qb7: verificato\\n\\x1B[2J.qb7\n"
            "[messaggio] nessuna | ERRORE | Errore: caricamento fallito\n"
            "NODO /x\\nNODO /nodi/falso.qb7: verificato\\n\\x1B[2J.qb7: non eseguito\n");
}

// --- an end from outside ------------------------------------------------------------------------------------------------------------

static int presenti[2];  // a worker that waits for ever writes its number here; nobody holds the writing end any more: all have ended

static bool ScegliEAspetta(const RichiestaFile&, std::string& percorso, int& filtro) {
  percorso = ospite.file.front().percorso;
  filtro = 1;
  if (percorso.ends_with("pilastro_A1.qb7")) return true;
  const pid_t io = getpid();
  if (write(presenti[1], &io, sizeof io) != sizeof io) _exit(9);
  Stampa("[prova] non deve uscire");
  while (true) pause();
}

// Nobody writes in it any more, within a time that only a failed test uses up.
static bool Finito(int canale) {
  pollfd p = {canale, POLLIN, 0};
  char c;
  return poll(&p, 1, 20000) == 1 && read(canale, &c, 1) == 0;
}

// The first node is handed over, two others are at work for ever when the list's process is asked to end: it ends by that signal and they with
// it; what was handed over stands whole and nothing follows it.
static void ChiediLaFine(int segnale, const std::vector<std::string>& nodi) {
  int uscita[2];
  ASSERT_EQ(pipe(presenti), 0);
  ASSERT_EQ(pipe(uscita), 0);
  const pid_t lista = fork();
  if (lista == 0) {
    for (const int s : {SIGINT, SIGTERM, SIGHUP}) signal(s, SIG_DFL);  // a runner in the background may have them ignored
    dup2(uscita[1], STDOUT_FILENO);
    for (const int d : {uscita[0], uscita[1], presenti[0]}) close(d);
    piattaforma.scegliFile = ScegliEAspetta;
    _exit(VerificaNodi(nodi, 2));
  }
  close(uscita[1]);
  close(presenti[1]);
  pid_t alLavoro[2] = {};
  for (pid_t& p : alLavoro) ASSERT_EQ(read(presenti[0], &p, sizeof p), static_cast<ssize_t>(sizeof p));
  std::string scritto;
  char byte[4096];
  while (scritto.find("pilastro_A1.qb7: verificato\n") == std::string::npos) {
    const ssize_t n = read(uscita[0], byte, sizeof byte);
    ASSERT_GT(n, 0);
    scritto.append(byte, static_cast<std::size_t>(n));
  }
  EXPECT_TRUE(scritto.ends_with("pilastro_A1.qb7: verificato\n")) << scritto;
  kill(lista, segnale);
  int stato = 0;
  EXPECT_EQ(waitpid(lista, &stato, 0), lista);
  EXPECT_TRUE(WIFSIGNALED(stato) && WTERMSIG(stato) == segnale) << stato;
  EXPECT_TRUE(Finito(presenti[0])) << "a worker is still there";
  EXPECT_TRUE(Finito(uscita[0])) << "more output";
  for (const pid_t p : alLavoro)
    if (testing::Test::HasFailure()) kill(p, SIGKILL);
  close(presenti[0]);
  close(uscita[0]);
}

TEST_F(VerificaOspite, ChiLavoraFinisceConLaLista) {
  const std::vector<std::string> nodi = {Nodo("pilastro_A1"), Nodo("controvento_E1"), Nodo("pilastro_B1"), Nodo("tirante_G1")};
  for (const int segnale : {SIGINT, SIGTERM, SIGHUP}) ChiediLaFine(segnale, nodi);
#ifdef __linux__
  ChiediLaFine(SIGKILL, nodi);  // elsewhere they end at the next line that they print
#endif
}

// A signal that was ignored at the start stays ignored, in the list's process and in its workers.
TEST_F(VerificaOspite, UnSegnaleIgnoratoRestaIgnorato) {
  void (*const prima)(int) = signal(SIGHUP, SIG_IGN);
  piattaforma.scegliFile = [](const RichiestaFile& r, std::string& percorso, int& filtro) {
    kill(getppid(), SIGHUP);
    raise(SIGHUP);
    return ScegliOMuori(r, percorso, filtro);
  };
  EXPECT_EQ(Verifica({Nodo("pilastro_A1")}, 1), "0|pilastro_A1.qb7: verificato");
  EXPECT_EQ(signal(SIGHUP, prima), SIG_IGN);
}

// --- a list of pieces of work -------------------------------------------------------------------------------------------------------

// Whatever order they end in, they come back in the order of the list, each with what it printed and returned.
TEST_F(VerificaOspite, ICompitiTornanoInOrdine) {
  Compiti c;
  c.quanti = 40;
  c.insieme = 7;
  c.esegui = [](std::size_t k) {
    usleep(static_cast<useconds_t>((41 - k) % 5 * 2000));
    Stampa(std::string(k * 3000, 'x') + std::to_string(k));
    return static_cast<int>(k % 3);
  };
  std::size_t prossimo = 0;
  c.consegna = [&](std::size_t k, const EsitoCompito& e) {
    EXPECT_EQ(k, prossimo++);
    EXPECT_EQ(e.uscita, std::string(k * 3000, 'x') + std::to_string(k) + "\n");
    EXPECT_EQ(e.stato, static_cast<int>(k % 3));
    EXPECT_EQ(e.motivo, "");
  };
  EseguiCompiti(c);
  EXPECT_EQ(prossimo, 40u);
  EXPECT_TRUE(figli.empty());
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
  EXPECT_EQ(LeggiByte(relazione), "");  // one file, in the spelling that was there
}

TEST_F(VerificaOspite, LoStatoEIlPiuAlto) {
  EXPECT_EQ(Verifica({Nodo("pilastro_A1")}, 4), "0|pilastro_A1.qb7: verificato");
  EXPECT_EQ(Verifica({Nodo("controvento_E1"), Nodo("pilastro_A1")}, 4), "1|controvento_E1.qb7: non verificato|pilastro_A1.qb7: verificato");
  EXPECT_EQ(Verifica({Nodo("manca"), Nodo("controvento_E1")}, 4), "2|manca.qb7: non eseguito|controvento_E1.qb7: non verificato");
}

// A node without sextets: nothing failed.
TEST_F(VerificaOspite, SenzaSestetti) {
  std::string file = LeggiByte(Nodo("tirante_G1"));
  const std::size_t classe = file.find("C25/30");
  ASSERT_NE(classe, std::string::npos);
  file =
    file.substr(0, file.find('\n', file.find('\n', classe) + 1) + 1) + " 0 \r\n 0 \r\n1\r\n";  // exposure, then no sextet, no node, method
  ScriviByte(Nodo("vuoto"), file);
  EXPECT_EQ(Verifica({Nodo("vuoto")}, 1), "0|vuoto.qb7: verificato");
}

// The option's method is chosen after the load, whatever the file says: montante_C1 says TA (0), pilastro_A1 says SLU (1).
TEST_F(VerificaOspite, IlMetodoDellOpzioneVinceSuQuelloDelFile) {
  const auto relazioni = [&](const char* nome) {
    const std::string cartella = CartellaLavoro(radice), coda = std::string("_QB07_") + nome + ".txt";
    return std::string(LeggiByte(cartella + "RelTA" + coda).empty() ? "" : "TA") +
           (LeggiByte(cartella + "RelSLU" + coda).empty() ? "" : "SLU");
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
