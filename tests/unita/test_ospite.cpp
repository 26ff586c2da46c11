// tests/unita/test_ospite.cpp - options, outside programs and the platform of the host without windows.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <thread>

#include "app/batch/disegno.h"
#include "app/batch/opzioni.h"
#include "app/batch/piattaforma_batch.h"
#include "app/batch/sistema.h"
#include "core/comando.h"
#include "corredo/registratore.h"
#include "corredo/suite_prova.h"
#include "model/stato.h"

static const StatoOspite OSPITE_VUOTO;

// --- options ----------------------------------------------------------------------------------------------------------------------

// clang-format off
static constexpr Verbo VERBI[] = {
  { "verifica", "NODO.qb7...", "", 1, SIZE_MAX, nullptr },
  { "esegui", "COPIONE", "", 1, 1, nullptr },
  { "dati", "[NODO.qb7...]", "", 0, SIZE_MAX, nullptr, nullptr, "--formato --righe --uscita" },
};
// clang-format on

static bool Leggi(std::vector<const char*> argomenti, Opzioni& o, std::string* perche = nullptr) {
  std::string motivo;
  argomenti.insert(argomenti.begin(), "qb07-batch");
  const bool letta = LeggiArgomenti(static_cast<int>(argomenti.size()), argomenti.data(), VERBI, o, motivo);
  EXPECT_EQ(motivo.empty(), letta);
  if (perche != nullptr) *perche = motivo;
  return letta;
}

TEST(OpzioniOspite, Predefinite) {
  Opzioni o;
  ASSERT_TRUE(Leggi({"|diroot=/suite|", "verifica", "a.qb7", "b.qb7"}, o));
  EXPECT_EQ(o.metodo, -1);
  EXPECT_EQ(o.decimale, 0);
  EXPECT_TRUE(o.rispondiOk);
  EXPECT_EQ(o.processi, 0);
  EXPECT_FALSE(o.senzaProgrammi);
  EXPECT_EQ(o.rigaComando, "|diroot=/suite|");
  EXPECT_EQ(o.comando, "verifica");
  EXPECT_EQ(o.argomenti, (std::vector<std::string>{"a.qb7", "b.qb7"}));
}

TEST(OpzioniOspite, Tutte) {
  Opzioni o;
  ASSERT_TRUE(Leggi({"--metodo=slu", "--decimale=,", "--rispondi=annulla", "--processi=7", "--senza-programmi", "", "esegui", "-"}, o));
  EXPECT_EQ(o.metodo, 1);
  EXPECT_EQ(o.decimale, ',');
  EXPECT_FALSE(o.rispondiOk);
  EXPECT_EQ(o.processi, 7);
  EXPECT_TRUE(o.senzaProgrammi);
  EXPECT_EQ(o.rigaComando, "");  // an empty command line goes to the start, which refuses it
  EXPECT_EQ(o.argomenti, std::vector<std::string>{"-"});
  Opzioni ta;
  ASSERT_TRUE(Leggi({"--metodo=ta", "--decimale=.", "--rispondi=ok", "x", "verifica", "a"}, ta));
  EXPECT_EQ(ta.metodo, 0);
  EXPECT_EQ(ta.decimale, '.');
  EXPECT_TRUE(ta.rispondiOk);
}

TEST(OpzioniOspite, UsoErrato) {
  for (const char* opzione :
       {"--metodo=sl", "--metodo=", "--metodo", "--decimale=;", "--decimale=", "--rispondi=si", "--processi=0", "--processi=-1",
        "--processi=2x", "--processi=99999999999", "--processi=", "--senza-programmi=1", "--altro", "--"}) {
    Opzioni o;
    EXPECT_FALSE(Leggi({opzione, "|diroot=/suite|", "verifica", "a.qb7"}, o)) << opzione;
  }
  Opzioni o;
  EXPECT_FALSE(Leggi({}, o));
  EXPECT_TRUE(Leggi({"|diroot=/suite|", "verifica"}, o));  // how many arguments, the verb's own row tells
  EXPECT_TRUE(o.argomenti.empty());
  EXPECT_FALSE(Leggi({"|diroot=/suite|", "altro", "a.qb7"}, o));
}

// Options of one verb are wrong usage elsewhere, wherever they stand; so are both methods where no data are told.
TEST(OpzioniOspite, DelVerbo) {
  Opzioni o;
  ASSERT_TRUE(Leggi({"--formato=csv-it", "--righe=tutte", "x", "dati", "--uscita=f.csv", "--metodo=entrambi"}, o));
  EXPECT_EQ(o.formato, "csv-it");
  EXPECT_TRUE(o.tutteLeRighe && o.entrambi);
  EXPECT_EQ(o.uscita, "f.csv");
  EXPECT_EQ(o.metodo, -1);
  std::string motivo;
  for (const char* opzione : {"--formato=json", "--righe=tutte", "--uscita=f", "--metodo=entrambi"}) {
    Opzioni altro;
    EXPECT_FALSE(Leggi({"x", "verifica", "a.qb7", opzione}, altro, &motivo)) << opzione;
    EXPECT_EQ(motivo.substr(0, motivo.find_first_of("=:")), std::string(opzione).substr(0, std::string(opzione).find('=')));
  }
  for (const char* opzione : {"--elenco=f", "--formato=xml", "--righe=", "--uscita="}) {
    Opzioni altro;
    EXPECT_FALSE(Leggi({"x", "dati", opzione}, altro)) << opzione;
  }
}

TEST(OpzioniOspite, AiutoSenzaIlResto) {
  for (const char* opzione : {"--help", "--version"}) {
    Opzioni o;
    ASSERT_TRUE(Leggi({opzione}, o)) << opzione;
    EXPECT_EQ(o.aiuto, std::string(opzione) == "--help");
    EXPECT_EQ(o.versione, !o.aiuto);
  }
  const std::string uso = Uso(VERBI);
  for (const Verbo& v : VERBI) EXPECT_NE(uso.find(std::string(v.nome) + " " + v.argomenti), std::string::npos) << v.nome;
  EXPECT_EQ(TrovaVerbo(VERBI, "esegui"), &VERBI[1]);
  EXPECT_EQ(TrovaVerbo(VERBI, "esegu"), nullptr);
}

// --- outside programs -------------------------------------------------------------------------------------------------------------

// A program that writes its arguments, each in brackets, and then `fine` into the file beside it.
static std::string Programma(const std::string& percorso, const std::string& fine = "") {
  ScriviByte(percorso, "#!/bin/sh\nfor a in \"$@\"; do printf '[%s]' \"$a\" >> \"$0.scritto\"; done\n" + fine);
  chmod(percorso.c_str(), 0755);
  return percorso;
}

TEST(Processi, IlRestoEUnArgomentoSolo) {
  const std::string cartella = CartellaProva("processi uno");  // a blank in the path
  Programma(cartella + "/Progra/attrezzo");
  ASSERT_TRUE(EseguiProgramma(cartella + "\\progra\\ATTREZZO.exe", "|uno=1|  $(due) 'tre' ; exit"));
  EXPECT_EQ(LeggiByte(cartella + "/Progra/attrezzo.scritto"), "[|uno=1|  $(due) 'tre' ; exit]");
}

TEST(Processi, ConESenzaExe) {
  const std::string cartella = CartellaProva("processi_due");
  Programma(cartella + "/uno");
  Programma(cartella + "/due.EXE");
  EXPECT_EQ(TrovaProgramma(cartella + "\\UNO.exe"), cartella + "/uno");
  EXPECT_EQ(TrovaProgramma(cartella + "\\due"), cartella + "/due.EXE");
  EXPECT_TRUE(EseguiProgramma(cartella + "\\uno.exe", ""));  // no argument at all
  EXPECT_EQ(LeggiByte(cartella + "/uno.scritto"), "");
}

// Where the path has blanks, what stands at a shorter head of it is no program of ours; nor does a program with part of the argument in its name.
TEST(Processi, NessunoPiantatoSullaStrada) {
  const std::string cartella = CartellaProva("processi_piantati");
  const std::string vero = Programma(cartella + "/radice con blank/progra/attrezzo");
  const std::string falsi[] = {Programma(cartella + "/radice"), Programma(cartella + "/radice con.exe"), Programma(vero + ".exe uno")};
  EXPECT_TRUE(EseguiProgramma(cartella + "\\radice con blank\\progra\\attrezzo.exe", "uno due"));
  EXPECT_EQ(LeggiByte(vero + ".scritto"), "[uno due]");
  const int processo = AvviaProgramma(cartella + "\\radice con blank\\progra\\attrezzo.exe", "");
  ASSERT_GT(processo, 0);
  EXPECT_EQ(waitpid(processo, nullptr, 0), processo);
  EXPECT_FALSE(EseguiProgramma(cartella + "\\radice con blank\\progra\\manca.exe", "x"));
  EXPECT_EQ(TrovaProgramma(cartella + "\\radice" + std::string("\0.exe", 5)), "");  // the system would cut it at the NUL
  for (const std::string& f : falsi) EXPECT_EQ(LeggiByte(f + ".scritto"), "") << f;
}

// An outside program starts with the signals as they are by default, whatever the host ignores.
TEST(Processi, ISegnaliSonoQuelliNormali) {
  const std::string cartella = CartellaProva("processi_segnali");
  void (*const prima)(int) = signal(SIGPIPE, SIG_IGN);
  EXPECT_TRUE(EseguiProgramma(Programma(cartella + "/attrezzo", "kill -PIPE $$\necho vivo >> \"$0.scritto\"\n"), "uno"));
  signal(SIGPIPE, prima);
  EXPECT_EQ(LeggiByte(cartella + "/attrezzo.scritto"), "[uno]");
}

TEST(Processi, NonAvviabili) {
  const std::string cartella = CartellaProva("processi_tre");
  ScriviByte(cartella + "/dati.exe", "#!/bin/sh\n");  // not executable
  ScriviByte(cartella + "/cartella.exe/x", "");
  ScriviByte(cartella + "/binario.exe", std::string("\x01\x02\x00\x03", 4));
  chmod((cartella + "/binario.exe").c_str(), 0755);  // executable bit, no program: no shell is asked to try
  for (const char* nome : {"\\manca.exe", "\\dati.exe", "\\cartella.exe", "\\binario.exe", ""}) {
    EXPECT_FALSE(EseguiProgramma(cartella + nome, "x")) << nome;
    EXPECT_EQ(AvviaProgramma(cartella + nome, "x"), 0) << nome;
  }
}

TEST(Processi, LEsitoNonConta) {
  const std::string cartella = CartellaProva("processi_quattro");
  Programma(cartella + "/fallisce", "exit 3\n");
  EXPECT_TRUE(EseguiProgramma(cartella + "/fallisce", ""));
}

TEST(Processi, NessunoResta) {
  const std::string cartella = CartellaProva("processi_cinque");
  Programma(cartella + "/attende", "while [ ! -e \"$0.via\" ]; do sleep 0.01; done\n");
  EXPECT_TRUE(EseguiProgramma(Programma(cartella + "/breve"), ""));
  const int processo = AvviaProgramma(cartella + "/attende", "");
  ASSERT_GT(processo, 0);
  EXPECT_TRUE(ProgrammaVivo(processo));
  ScriviByte(cartella + "/attende.via", "");
  for (int k = 0; k < 500 && ProgrammaVivo(processo); ++k) std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_FALSE(ProgrammaVivo(processo));
  errno = 0;
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);  // no child left, not even one that ended
  EXPECT_EQ(errno, ECHILD);
}

// --- drawing ----------------------------------------------------------------------------------------------------------------------

// The extension is what stands behind the last point of the last component; case does not matter.
TEST(DisegnoOspite, FormatiAmmessi) {
  for (const char* uscita : {"a.dis", "a.DXF", "/x/y.Grb", "a.b.svg", "cartella.altro/a.dis", "c:\\x.y\\a.dxf"})
    EXPECT_TRUE(FormatoAmmesso(uscita)) << uscita;
  for (const char* uscita : {"", "a", "dis", "a.", "a.dwg", "a.disx", "a.svgz", "a.dis.txt", "a.di", "cartella.dis/a", "c:\\x.dxf\\a"})
    EXPECT_FALSE(FormatoAmmesso(uscita)) << uscita;
}

// Written: 0. Not written, in any of the formats, and a node not loaded: 2, and nothing is drawn.
TEST(DisegnoOspite, Stato) {
  const std::string radice = PreparaSuite("disegno_ospite"), nodo = CartellaLavoro(radice) + "pilastro_A1.qb7";
  ospite = OSPITE_VUOTO;
  ASSERT_TRUE(AvviaSuite(radice));
  MontaPiattaforma();
  testing::internal::CaptureStdout();
  for (const char* tipo : {".dis", ".dxf", ".grb", ".svg"}) {
    EXPECT_EQ(DisegnaNodoOspite(nodo, radice + "/uscita" + tipo), 0) << tipo;
    EXPECT_NE(LeggiByte(radice + "/uscita" + tipo), "") << tipo;
    EXPECT_EQ(DisegnaNodoOspite(nodo, radice + "/manca/uscita" + tipo), 2) << tipo;
    EXPECT_EQ(DisegnaNodoOspite(radice + "/manca.qb7", radice + "/senza" + tipo), 2) << tipo;
    EXPECT_EQ(LeggiByte(radice + "/senza" + tipo), "") << tipo;
  }
  testing::internal::GetCapturedStdout();
}

// --- platform ---------------------------------------------------------------------------------------------------------------------

class Ospite : public testing::Test {
 protected:
  void SetUp() override {
    ospite = OSPITE_VUOTO;
    MontaPiattaforma();
    testing::internal::CaptureStdout();
  }
  void TearDown() override { testing::internal::GetCapturedStdout(); }
  std::string Uscita() {
    const std::string testo = testing::internal::GetCapturedStdout();
    testing::internal::CaptureStdout();
    return testo;
  }
};

TEST_F(Ospite, RispostePrimaLaCoda) {
  ospite.opzioni.rispondiOk = false;
  ospite.risposte = {true, false};
  EXPECT_TRUE(piattaforma.domanda("a", "T", Icona::Esclamazione));
  EXPECT_FALSE(piattaforma.domanda("b", "T", Icona::Esclamazione));
  EXPECT_FALSE(piattaforma.domanda("c", "T", Icona::Esclamazione));
  ospite.opzioni.rispondiOk = true;
  EXPECT_TRUE(piattaforma.domanda("d", "T", Icona::Esclamazione));
  EXPECT_EQ(Uscita(), "[domanda] esclamazione | T | a -> OK\n[domanda] esclamazione | T | b -> Annulla\n"
                      "[domanda] esclamazione | T | c -> Annulla\n[domanda] esclamazione | T | d -> OK\n");
}

TEST_F(Ospite, SenzaProgrammiNessunoParte) {
  const std::string cartella = CartellaProva("ospite_programmi");
  const std::string comando = Programma(cartella + "/attrezzo");
  ospite.opzioni.senzaProgrammi = true;
  EXPECT_FALSE(piattaforma.esegui(comando, ""));
  EXPECT_FALSE(piattaforma.avvia(comando, ""));
  EXPECT_EQ(Uscita(), "");
  ospite.opzioni.senzaProgrammi = false;
  EXPECT_TRUE(piattaforma.esegui(comando, ""));
  EXPECT_FALSE(piattaforma.esegui(comando + "_manca", ""));
  EXPECT_EQ(Uscita(), "[programma] " + comando + "\n");
}

// The window looked for in vain belongs to the program started next, as long as that lives.
TEST_F(Ospite, FinestraDelProgrammaAvviato) {
  const std::string cartella = CartellaProva("ospite_finestra");
  const std::string comando = Programma(cartella + "/visore", "while [ ! -e \"$0.via\" ]; do sleep 0.01; done\n");
  EXPECT_FALSE(piattaforma.attivaFinestra("VISORE"));
  ASSERT_TRUE(piattaforma.avvia(comando, ""));
  EXPECT_TRUE(piattaforma.attivaFinestra("VISORE"));
  EXPECT_FALSE(piattaforma.attivaFinestra("ALTRA"));
  EXPECT_EQ(Uscita(), "[avvia] " + comando + "\n");
  const int processo = ospite.avviati[0].processo;
  ScriviByte(comando + ".via", "");
  for (int k = 0; k < 500 && piattaforma.attivaFinestra("VISORE"); ++k) std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_FALSE(piattaforma.attivaFinestra("VISORE"));
  EXPECT_EQ(waitpid(processo, nullptr, WNOHANG), -1);  // reaped
}

TEST_F(Ospite, TemporizzatoriInOrdine) {
  piattaforma.timer(Temporizzatore::Stato, 800, [] { Stampa("stato"); });
  piattaforma.timer(Temporizzatore::Selezione, 500, [] {
    Stampa("selezione");
    piattaforma.timer(Temporizzatore::Selezione, 300, [] { Stampa("ancora"); });
  });
  AvanzaTempo(499);
  EXPECT_EQ(Uscita(), "");
  AvanzaTempo(1);
  EXPECT_EQ(Uscita(), "selezione\n");
  AvanzaTempo(10000);
  EXPECT_EQ(Uscita(), "stato\nancora\n");  // both due at 800, each once
  AvanzaTempo(10000);
  EXPECT_EQ(Uscita(), "");
  piattaforma.timer(Temporizzatore::Stato, 800, [] { Stampa("fermato"); });
  piattaforma.timer(Temporizzatore::Stato, 0, nullptr);
  AvanzaTempo(10000);
  EXPECT_EQ(Uscita(), "");
}

TEST_F(Ospite, FileSenzaCodaEAnnulla) {
  RichiestaFile r;
  r.estensione = "txt";
  r.salva = true;
  ospite.file = {{true, "/x/nome", 2}};
  std::string percorso;
  int filtro = 0;
  EXPECT_TRUE(piattaforma.scegliFile(r, percorso, filtro));
  EXPECT_EQ(percorso, "/x/nome.txt");
  EXPECT_EQ(filtro, 2);
  EXPECT_FALSE(piattaforma.scegliFile(r, percorso, filtro));
  EXPECT_EQ(Uscita(), "[file] salva |  |  |  -> /x/nome.txt\n[file] salva |  |  |  -> Annulla\n");
}

TEST_F(Ospite, StatoDUscita) {
  EXPECT_EQ(StatoUscita(), 2);  // the start has not ended well
  ospite.avviato = true;
  EXPECT_EQ(StatoUscita(), 0);
  ospite.nonVerificato = true;
  EXPECT_EQ(StatoUscita(), 1);
}
