// tests/corredo/relazioni_campione.h - a joint with chosen values for the tests of the reports, and their files read back as lines.
// The result tables are filled by hand: nothing here depends on the engine.
#pragma once
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/aritmetica.h"
#include "core/diametri.h"
#include "corredo/lavoro_prova.h"
#include "corredo/registratore.h"
#include "engine/righe.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"
#include "reports/Relazioni.h"

using RigheFile = std::vector<std::string>;

// Lines of a file whose every line ends in CR LF; a bare CR or LF, or a last line without its end, fails the test.
inline RigheFile LeggiRighe(const std::string& percorso) {
  const std::string byte = LeggiByte(percorso);
  RigheFile righe;
  std::size_t i = 0;
  while (i < byte.size()) {
    const std::size_t j = byte.find("\r\n", i);
    if (j == std::string::npos) {
      ADD_FAILURE() << "last line without CR LF";
      break;
    }
    righe.push_back(byte.substr(i, j - i));
    if (righe.back().find_first_of("\r\n") != std::string::npos) ADD_FAILURE() << "bare CR or LF in line " << righe.size();
    i = j + 2;
  }
  return righe;
}

inline void ConfrontaRighe(const RigheFile& lette, const RigheFile& attese) {
  for (std::size_t i = 0; i < lette.size() && i < attese.size(); ++i) EXPECT_EQ(lette[i], attese[i]) << "line " << i + 1;
  EXPECT_EQ(lette.size(), attese.size());
}

inline std::size_t Conta(const RigheFile& righe, const std::string& riga) {
  std::size_t n = 0;
  for (const std::string& r : righe) n += r == riga;
  return n;
}

// The line n behind the first one equal to riga; "" and a failure if there is none.
inline std::string Dopo(const RigheFile& righe, const std::string& riga, std::size_t n, std::size_t quale = 1) {
  for (std::size_t i = 0; i < righe.size(); ++i)
    if (righe[i] == riga && --quale == 0 && i + n < righe.size()) return righe[i + n];
  ADD_FAILURE() << "no line: " << riga;
  return "";
}

class ProvaRelazione : public ::testing::Test {
 protected:
  void SetUp() override {
    MontaRegistratore();
    AzzeraFault();
    suite.DirLavoro = CartellaProva("relazioni");
    Campione();
  }
  void TearDown() override { AzzeraFault(); }

  // The checks on the tables as they stand, then the report. A fault of the checks ends it before a report.
  static bool GiudicaEScrivi(int metodo) {
    AzzeraFault();
    lavoro.TipoVer = metodo;
    lavoro.SAmmCls = nodo.MatCls.SAmm;
    verifica.AreaTf = AreaResistente(suite, nodo.TfFi);
    Giudica(lavoro);
    if (FaultAritmetico()) return false;
    return metodo == MetodoTA ? RelazioneTA(lavoro) : RelazioneSLU(lavoro);
  }
  static bool Scritta() {
    return std::any_of(registratore.eventi.begin(), registratore.eventi.end(),
                       [](const std::string& e) { return e.starts_with("[testo] "); });
  }
  // Where the checks stopped.
  static void Fermo(int sestetto, int criterio, int elemento) {
    EXPECT_TRUE(FaultAritmetico());
    EXPECT_TRUE(lavoro.fermo.c_e);
    EXPECT_EQ(lavoro.fermo.sestetto, sestetto);
    EXPECT_EQ(lavoro.fermo.criterio, criterio);
    EXPECT_EQ(lavoro.fermo.elemento, elemento);
    EXPECT_TRUE(registratore.eventi.empty());
  }

  std::string FileTA() const { return suite.DirLavoro + "/RelTA_QB07_Prova.txt"; }
  std::string FileSLU() const { return suite.DirLavoro + "/RelSLU_QB07_Prova.txt"; }

  // kN, kN m, N/mm2: factors 0.01, 0.0001, 0.1; decimals 3 and 2 (stresses).
  static void UnitaKN() {
    suite.UnitaForze = "kN", suite.UnitaMomenti = "kN m", suite.UnitaTensioni = "N/mm2";
    suite.FattForze = 0.01, suite.FattMomenti = 0.0001, suite.FattTensioni = 0.1;
    suite.DecForze = 3, suite.DecMomenti = 5, suite.DecTensioni = 2;
  }
  // The model's own units: factors 1, one decimal.
  static void UnitaDaN() {
    suite.UnitaForze = "daN", suite.UnitaMomenti = "daN cm", suite.UnitaTensioni = "daN/cm2";
    suite.FattForze = suite.FattMomenti = suite.FattTensioni = 1;
    suite.DecForze = suite.DecMomenti = suite.DecTensioni = 1;
  }

  static void Campione() {
    UnitaKN();
    suite.NumDiam = 2;
    suite.DiamVal[0] = 20, suite.DiamArea[0] = 245;
    suite.DiamVal[1] = 24, suite.DiamArea[1] = 353;
    nodo.NomeNodo = "Prova";
    nodo.Sezione.Nome = "HEA200            ";
    nodo.Sezione.H = 190, nodo.Sezione.B = 200, nodo.Sezione.A = 6.5, nodo.Sezione.E = 10, nodo.Sezione.R = 18;
    nodo.LatoZ = 400, nodo.LatoY = 500, nodo.SpessPiastra = 20;
    nodo.TipoNodo = 2, nodo.HNerv = 150, nodo.SpNerv = 8, nodo.Gola = 7;
    nodo.NTir = 4;
    const double Z[] = {0, 50, 350, 50, 350}, Y[] = {0, 50, 50, 460, 460};
    for (int i = 1; i <= 4; ++i) nodo.TfZ[i] = Z[i], nodo.TfY[i] = Y[i];
    nodo.TfFi = 20, nodo.TfL = 500, nodo.TfLFt = 120, nodo.TfL1 = 450, nodo.TfR = 70;
    nodo.MatAcc.Nome = "S 275 (FE 430)";
    nodo.MatAcc.SAmm = 1900, nodo.MatAcc.SAmm40 = 1700, nodo.MatAcc.Fyk = 2750, nodo.MatAcc.Fyk40 = 2550, nodo.MatAcc.GammaM = 1.05;
    nodo.MatTir.Nome = "8.8", nodo.MatTir.Fyk = 6400, nodo.MatTir.Ftk = 8000;
    nodo.MatVit.GammaM2 = 1.25;
    nodo.MatCls.Nome = "C25/30", nodo.MatCls.Rck = 300, nodo.MatCls.GammaC = 1.5, nodo.MatCls.SAmm = 11;
    Saldature(4);
    ris.TadRd = 9000;
  }

  // n welds of 100, 101.5, 103, ... mm.
  static void Saldature(int n) {
    lavoro.NumSaldature = static_cast<std::int16_t>(n);
    for (int w = 1; w <= n; ++w) {
      ris.Saldature[w].Nome = std::string("S").append(std::to_string(w));
      ris.Saldature[w].Lung = 98.5 + 1.5 * w;
    }
  }

  // n sextets without any stress, named "Soll 1" and on.
  static void Sestetti(int n) {
    nodo.NumSoll = static_cast<std::int16_t>(n);
    for (int s = 1; s <= n; ++s) nodo.SollNome[s] = std::string("Soll ").append(std::to_string(s));
  }
};

constexpr const char* VERIFICATO = "NODO VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI ";
constexpr const char* NON_VERIFICATO = "ATTENZIONE: NODO NON VERIFICATO IN BASE ALLA COMB. DI SOLLECITAZIONI AGENTI ";
constexpr const char* BOX_NON_VERIFICATO = "[messaggio] esclamazione | NODO COLONNA - PLINTO | ATTENZIONE: nodo non verificato!";
