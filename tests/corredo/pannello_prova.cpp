// tests/corredo/pannello_prova.cpp - tables in memory as the start would leave them.
#include "corredo/pannello_prova.h"

#include <vector>

#include "core/testo.h"
#include "corredo/registratore.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/programma.h"

static MatAcciaio Acciaio(const char* nome, const char* norma, double sAmm, double fyk, double ftk) {
  MatAcciaio m;
  m.Nome = nome;
  m.Norma = norma;
  m.SAmm = m.SAmm40 = sAmm;
  m.Fyk = m.Fyk40 = fyk;
  m.Ftk = m.Ftk40 = ftk;
  m.GammaM = 1.05;
  return m;
}

static MatCls Calcestruzzo(const char* nome, double rck) {
  MatCls m;
  m.Nome = nome;
  m.Rck = rck;
  m.GammaC = 1.5;
  return m;
}

void MaterialiInMemoria() {
  materiali.NumAcciai = 5;
  materiali.AcciaiBase[1] = Acciaio("S 235 (FE 360)", "norma 1", 1600, 2350, 3600);
  materiali.AcciaiBase[2] = Acciaio("S 275 (FE 430)", "norma 2", 1900, 2750, 4300);
  materiali.AcciaiBase[3] = Acciaio("S 355 (FE 510)", "norma 3", 2400, 3550, 5100);
  materiali.AcciaiBase[4] = Acciaio("S 450", "norma 4", 0, 4400, 5500);
  materiali.AcciaiBase[5] = Acciaio("S 185", "norma 5", 1200, 0, 0);
  materiali.NumViti = 1;
  materiali.VitiBase[1].Nome = "8.8";
  materiali.VitiBase[1].GammaM2 = 1.25;
  materiali.NumCls = 3;
  materiali.ClsBase[1] = Calcestruzzo("C20/25", 250);
  materiali.ClsBase[2] = Calcestruzzo("C25/30", 300);
  materiali.ClsBase[3] = Calcestruzzo("C28/35", 350);
}

static Sezione Profilo(const std::string& nome, double h, double b, double a, double e, double r) {
  Sezione s;
  s.Nome = AllineaSinistra(nome, LungNomeSez);
  s.H = h;
  s.B = b;
  s.A = a;
  s.E = e;
  s.R = r;
  s.Area = 10 * h;
  s.Tipo = "I";
  return s;
}

void SuiteInMemoria() {
  MontaRegistratore();
  AzzeraProgramma();
  suite.FattLung = suite.FattForze = suite.FattMomenti = suite.FattTensioni = 1;
  suite.UnitaForze = "daN";
  suite.UnitaMomenti = "daNcm";
  suite.NumProfili = 40;
  for (int n = 1; n <= 40; n++) suite.ProfiliLib[n] = Profilo("P" + std::to_string(n), 100 + n, 50 + n, 5, 8, 10);
  suite.ProfiliLib[32] = Profilo("HEB300", 300, 280, 11, 19, 27);
  const double diametri[] = {8, 10, 12, 14, 16, 18, 20, 22, 24, 27, 30};
  for (double d : diametri) suite.DiamVal[suite.NumDiam++] = d;
  MaterialiInMemoria();
}

void PannelloPronto() {
  SuiteInMemoria();
  std::vector<std::string> profili, classi;
  for (int n = 1; n <= suite.NumProfili; n++) profili.emplace_back(RifilaDestra(suite.ProfiliLib[n].Nome));
  for (int n = 1; n <= materiali.NumCls; n++) classi.push_back(materiali.ClsBase[n].Nome);
  MostraVoci(insDati.TraveP, profili);
  MostraVoci(insDati.ComboCalcestruzzo, classi);
  MostraVoci(insDati.ComboEsposizione, {"Esposto a fenomeni corrosivi", "Non esposto a fenomeni corrosivi", "Resistente alla corrosione"});
  RiempiComboMateriali(insDati.Acc, true, "PROFILI", "");
  RiempiComboMateriali(insDati.Cviti, true, "BULLONI", "");
  AzzeraNodo();
  PannelloAperto(InsDati);
}
