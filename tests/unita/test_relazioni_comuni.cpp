// tests/unita/test_relazioni_comuni.cpp - names, titles, numbers and cells of the reports; opening and closing.
#include "corredo/relazioni_campione.h"

#include <cmath>
#include <filesystem>

#include "core/nomi_file.h"
#include "core/numeri.h"
#include "corredo/disco.h"
#include "model/stato.h"
#include "reports/celle.h"
#include "reports/foglio.h"

namespace {

class RelazioniComuni : public ProvaRelazione {};

template <class Valore = Arrotondato>
std::string Voce(Valore v) {
  std::string t;
  Aggiungi(t, v);
  return t;
}

TEST_F(RelazioniComuni, NomiDeiFile) {
  suite.DirLavoro = "C:\\lavori\\Ponte1";
  nodo.NomeNodo = "  Nuovo ";  // both parts are trimmed
  EXPECT_EQ(NomeFileRelazione("TA", "QB07"), "C:\\lavori\\Ponte1\\RelTA_QB07_Nuovo.txt");
  EXPECT_EQ(NomeFileRelazione("SLU", " QB07 "), "C:\\lavori\\Ponte1\\RelSLU_QB07_Nuovo.txt");
  EXPECT_EQ(NomeFileRelazione("XX", "QB07"), "C:\\lavori\\Ponte1QB07_Nuovo.txt");  // empty prefix
  EXPECT_EQ(NomeFileDisegno("QB7", "GRB"), "C:\\lavori\\Ponte1\\QB7_Nuovo.grb");
  EXPECT_EQ(NomeFileDisegno(" QB7", "DIS"), "C:\\lavori\\Ponte1\\QB7_Nuovo.dis");
  EXPECT_EQ(NomeFileDisegno("QB7", "DXF"), "C:\\lavori\\Ponte1\\QB7_Nuovo.dxf");
  EXPECT_EQ(NomeFileDisegno("QB7", "SVG"), "C:\\lavori\\Ponte1\\QB7_Nuovo");  // no suffix
}

TEST_F(RelazioniComuni, TitoloDelCarico) {
  nodo.NumSoll = 12;
  EXPECT_EQ(TitoloFrameSoll(), "n° 12 [kN, kN m]");
  nodo.NumSoll = 0;
  EXPECT_EQ(TitoloFrameSoll(), "n° 0 [kN, kN m]");
}

TEST_F(RelazioniComuni, TitoloDeiNodi) {
  EXPECT_EQ(TitoloNodi(), "VERIFICA TENSIONALE NODI");
  nodo.NumNodiStr = 1, nodo.NodiStr[1] = 7;
  EXPECT_EQ(TitoloNodi(), "VERIFICA TENSIONALE NODI: 7");
  nodo.NumNodiStr = 3, nodo.NodiStr[2] = 12, nodo.NodiStr[3] = -1;
  EXPECT_EQ(TitoloNodi(), "VERIFICA TENSIONALE NODI: 7,12,-1");
}

TEST_F(RelazioniComuni, NomeDelProfilo) {
  EXPECT_EQ(NomeProfiloPerRelazione("HEA200            "), "HEA200 ");
  EXPECT_EQ(NomeProfiloPerRelazione("HE 200 A          "), "HE 200A");
  EXPECT_EQ(NomeProfiloPerRelazione("  HE  200   A     "), "HE 200A");          // blanks in front and in between are no words
  EXPECT_EQ(NomeProfiloPerRelazione("PROFILO SALDATO 12"), "PROFILO SALDATO");  // 18 characters: the last word is lost
  EXPECT_EQ(NomeProfiloPerRelazione("PROFILODICIOTTOCAR"), "");
  EXPECT_EQ(NomeProfiloPerRelazione("                  "), "");
}

TEST_F(RelazioniComuni, TestoSuUnaRiga) {
  EXPECT_EQ(TestoSuUnaRiga("Vento\r\nda nord\rx\ny"), "Vento da nord xy");
  EXPECT_EQ(TestoSuUnaRiga(""), "");
}

TEST_F(RelazioniComuni, NumeriPiani) {
  for (const char mark : {'.', ','}) {
    suite.Decimale = mark;
    const std::string m(1, mark);
    EXPECT_EQ(Voce(12.5), "12" + m + "5");
    EXPECT_EQ(Voce(0.5), "0" + m + "5");
    EXPECT_EQ(Voce(-0.25), "-0" + m + "25");
    EXPECT_EQ(Voce(1200.0), "1200");  // an integer has no mark
    EXPECT_EQ(Voce(1e20), "1E+20");
    EXPECT_EQ(Voce(1.5e-5), "1" + m + "5E-05");
    EXPECT_EQ(Voce(1.0 / 3), "0" + m + "333333333333333");                  // 15 significant digits
    EXPECT_EQ(FormattazioneValore(0.85, 6, true, 'R'), "|  0" + m + "85");  // the mark counts in the width
  }
}

TEST_F(RelazioniComuni, NumeriArrotondati) {
  suite.Decimale = ',';
  EXPECT_EQ(Voce({2.5, 0}), "2");  // ties to even
  EXPECT_EQ(Voce({3.5, 0}), "4");
  EXPECT_EQ(Voce({-2.5, 0}), "-2");
  EXPECT_EQ(Voce({0.125, 2}), "0,12");
  EXPECT_EQ(Voce({0.375, 2}), "0,38");
  EXPECT_EQ(Voce({12.50, 2}), "12,5");
  EXPECT_EQ(Voce({12.0001, 2}), "12");
  EXPECT_EQ(Voce({100, 2}), "100");
  EXPECT_EQ(Voce({-0.004, 2}), "0");  // no negative zero
  EXPECT_EQ(Voce({0.05, 2}), "0,05");
  EXPECT_EQ(Voce({-1234.567, 1}), "-1234,6");
  EXPECT_EQ(Voce({25, -1}), "25");  // decimals below 0 count as 0
  EXPECT_EQ(Voce({0.00012, 5}), "0,00012");
  EXPECT_EQ(Voce({0.00005, 5}), "5E-05");
  EXPECT_EQ(Voce({123456789012345678.0, 2}), "1,23456789012346E+17");
  EXPECT_EQ(Voce({1.23456789, 8}), "1,23456789");
  EXPECT_EQ(Voce({0.000052, 5}), "5E-05");  // rounded in these forms too
  EXPECT_EQ(Voce({1.234567894, 8}), "1,23456789");
  EXPECT_DOUBLE_EQ(Arrotonda1(-0.25), -0.2);  // the roundings of the checks go upward
  EXPECT_DOUBLE_EQ(Arrotonda1(2.25), 2.3);
  EXPECT_DOUBLE_EQ(Arrotonda1(2.2499), 2.2);
  EXPECT_DOUBLE_EQ(Arrotonda2(0.125), 0.13);
  EXPECT_DOUBLE_EQ(Arrotonda2(0.12499), 0.12);
  EXPECT_DOUBLE_EQ(Arrotonda2(-0.125), -0.12);
  EXPECT_FALSE(FaultAritmetico());
}

// The short way to the digits of a rounded value against the general one, over many magnitudes and all usual decimals.
TEST_F(RelazioniComuni, ArrotondatoComeLaFormaPiana) {
  std::uint64_t seme = 88172645463325252ULL;
  for (int prova = 0; prova < 200000; ++prova) {
    seme ^= seme << 13, seme ^= seme >> 7, seme ^= seme << 17;
    const int n = static_cast<int>(seme % 7);
    const double mantissa = static_cast<double>(static_cast<std::int64_t>(seme)) / 9.3e18;
    const double v = mantissa * std::pow(10.0, static_cast<int>((seme >> 8) % 24) - 7);
    ASSERT_EQ(Voce(Arrotondato{v, n}), Voce(ArrotondaPari(v, n))) << v << " at " << n;
  }
}

TEST_F(RelazioniComuni, Celle) {
  EXPECT_EQ(FormattazioneValore("Num", 5, true, 'L'), "|Num  ");
  EXPECT_EQ(FormattazioneValore("Num", 5, false, 'L'), "Num  ");
  EXPECT_EQ(FormattazioneValore("Num", 5, true, 'R'), "|  Num");
  EXPECT_EQ(FormattazioneValore("Num", 5, false, 'R'), "  Num");
  EXPECT_EQ(FormattazioneValore("Num", 5, false, 'C'), "  Num");          // any other value: right
  EXPECT_EQ(FormattazioneValore("Tiro max", 5, true, 'R'), "|Tiro max");  // a long text is not cut
  EXPECT_EQ(FormattazioneValore("Tiro max", 5, true, 'L'), "|Tiro max");
  EXPECT_EQ(FormattazioneValore("", 3, true, 'R'), "|   ");
  EXPECT_EQ(FormattazioneValore("", 3, false, 'L'), "   ");
  EXPECT_EQ(FormattazioneValore("12345", 5, true, 'R'), "|12345");
  EXPECT_EQ(FormattazioneValore("n°", 4, true, 'R'), "|  n°");  // widths count characters
  EXPECT_EQ(FormattazioneValore(-7.5, 6, true, 'R'), "|  -7.5");
  EXPECT_EQ(FormattazioneValore("x", 0, true, 'L'), "");  // no such width: asterisks, no bar
  EXPECT_EQ(FormattazioneValore("x", 256, true, 'L'), std::string(256, '*'));
  EXPECT_EQ(FormattazioneValore("x", 255, true, 'L'), "|x" + std::string(254, ' '));
}

TEST_F(RelazioniComuni, UnValoreNonFinitoEUnFault) {
  std::string t;
  Aggiungi(t, HUGE_VAL);
  EXPECT_EQ(t, "");
  EXPECT_TRUE(FaultAritmetico());
  AzzeraFault();
  Aggiungi(t, Arrotondato{std::nan(""), 2});
  EXPECT_EQ(t, "");
  EXPECT_TRUE(FaultAritmetico());
}

TEST_F(RelazioniComuni, LaRigaDelFaultSiRitira) {
  ScriviByte(FileTA(), "di prima");
  Foglio f{lavoro, {}, {}};
  ASSERT_TRUE(ApriFoglio(f, "TA"));
  ASSERT_TRUE(Riga(f, "prima ", 1.5));
  volatile double zero = 0;
  EXPECT_FALSE(Riga(f, "seconda ", 1 / zero));
  EXPECT_EQ(f.file.testo, "prima 1.5\r\n");
  EXPECT_FALSE(ConcludiFoglio(f, false));
  EXPECT_EQ(LeggiByte(FileTA()), "di prima");  // the report is given up, the former one stands
}

// What the platform saw of the file, at the box and when it was shown.
struct {
  std::vector<std::string> passi;
  std::string file;
} visto;

TEST_F(RelazioniComuni, ChiusuraBoxPoiFilePoiMostra) {
  visto = {{}, FileTA()};
  piattaforma.messaggio = [](const std::string& testo, const std::string& titolo, Icona icona) {
    EXPECT_EQ(testo, "ATTENZIONE: nodo non verificato!");
    EXPECT_EQ(titolo, TitoloProg);
    EXPECT_EQ(icona, Icona::Esclamazione);
    visto.passi.push_back(std::string("box, file of ").append(std::to_string(LeggiByte(visto.file).size())));
  };
  piattaforma.mostraTesto = [](const std::string& percorso) {
    EXPECT_EQ(percorso, suite.DirLavoro + "\\RelTA_QB07_Prova.txt");
    visto.passi.push_back(std::string("shown, file of ").append(std::to_string(LeggiByte(visto.file).size())));
  };
  Foglio f{lavoro, {}, {}};
  ASSERT_TRUE(ApriFoglio(f, "TA"));
  ASSERT_TRUE(Riga(f, "abc"));
  EXPECT_TRUE(ConcludiFoglio(f, true));
  EXPECT_EQ(visto.passi, (std::vector<std::string>{"box, file of 0", "shown, file of 5"}));
}

TEST_F(RelazioniComuni, ChiusuraSenzaBox) {
  lavoro.verificato = true;
  Foglio f{lavoro, {}, {}};
  ASSERT_TRUE(ApriFoglio(f, "SLU"));
  EXPECT_TRUE(ConcludiFoglio(f, true));
  EXPECT_EQ(registratore.eventi, (std::vector<std::string>{"[testo] " + FileSLU()}));
}

std::vector<std::string> Box(const std::string& file, const std::string& motivo) {
  return {"[messaggio] critica | NODO COLONNA - PLINTO | Impossibile scrivere il file " + file + ": " + motivo + "."};
}

TEST_F(RelazioniComuni, FileCheNonSiApre) {
  suite.DirLavoro += "/manca";
  EXPECT_FALSE(GiudicaEScrivi(MetodoTA));
  EXPECT_FALSE(FaultAritmetico());  // no second box from the caller
  EXPECT_EQ(registratore.eventi,
            Box(suite.DirLavoro + "\\RelTA_QB07_Prova.txt", "la cartella o il file dietro il collegamento non esiste"));
  EXPECT_FALSE(Scritta());
}

// A disk without room: the report of before stands, the box tells file and reason, no viewer.
TEST_F(RelazioniComuni, FileCheNonSiScrive) {
  ScriviByte(FileTA(), "di prima");
  {
    const DiscoPieno pieno;
    EXPECT_FALSE(GiudicaEScrivi(MetodoTA));
  }
  EXPECT_FALSE(FaultAritmetico());
  EXPECT_EQ(registratore.eventi, Box(suite.DirLavoro + "\\RelTA_QB07_Prova.txt", "dimensione massima dei file superata"));
  EXPECT_FALSE(Scritta());
  EXPECT_EQ(LeggiByte(FileTA()), "di prima");
}

TEST_F(RelazioniComuni, UnDispositivoNonSiSostituisce) {
  if (!MettiDispositivo(FileTA())) GTEST_SKIP() << "no device to be had";
  EXPECT_FALSE(GiudicaEScrivi(MetodoTA));
  EXPECT_EQ(registratore.eventi, Box(suite.DirLavoro + "\\RelTA_QB07_Prova.txt", "il nome non è di un file"));
  EXPECT_TRUE(std::filesystem::is_character_file(FileTA()));
}

TEST_F(RelazioniComuni, LaRelazioneDiPrimaSiSostituisce) {
  ScriviByte(FileTA(), std::string(100000, 'x'));
  EXPECT_TRUE(GiudicaEScrivi(MetodoTA));
  EXPECT_EQ(LeggiByte(FileTA()).find('x', 0), std::string::npos);
  EXPECT_EQ(LeggiRighe(FileTA())[0], "VERIFICA TENSIONALE NODI - METODO DELLE TENSIONI AMMISSIBILI (CNR 10011/88)");
}

TEST_F(RelazioniComuni, NomeSenzaRiguardoAlleMaiuscole) {
  ScriviByte(suite.DirLavoro + "/relta_qb07_PROVA.TXT", "vecchia");  // that file is overwritten, no second one appears
  EXPECT_TRUE(GiudicaEScrivi(MetodoTA));
  int file = 0;
  for ([[maybe_unused]] const auto& e : std::filesystem::directory_iterator(suite.DirLavoro)) ++file;
  EXPECT_EQ(file, 1);
  EXPECT_EQ(registratore.eventi[0], "[testo] " + suite.DirLavoro + "/relta_qb07_PROVA.TXT");
}

}  // namespace
