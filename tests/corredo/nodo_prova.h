// tests/corredo/nodo_prova.h - a joint small enough to be followed by hand, for the kernels' tests.
// Column 200 x 190 mm, plate 400 x 500 x 20, M20 (245 mm2) 50 mm from the plate's edges, Rck 300 daN/cm2.
#pragma once
#include "core/aritmetica.h"
#include "corredo/registratore.h"
#include "engine/Calcoli.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "model/suite.h"

// The anchors of a pattern (0 four, 1 eight, 2 six "Vert.", 3 six "Orizz."), z and y from the plate's edges.
inline void SchemaProva(int schema, double z = 50, double y = 50) {
  static constexpr std::int16_t NUMERO[] = {4, 8, 6, 6};
  nodo.OptionNTir = schema;
  nodo.NTir = NUMERO[schema];
  const auto posto = [](int i, double tz, double ty) {
    nodo.TfZ[i] = tz;
    nodo.TfY[i] = ty;
  };
  const double Z = nodo.LatoZ, Y = nodo.LatoY;
  posto(1, z, y);
  posto(2, Z - z, y);
  posto(3, z, Y - y);
  posto(4, Z - z, Y - y);
  if (schema == 1 || schema == 2) {
    posto(5, z, Y / 2);
    posto(6, Z - z, Y / 2);
  }
  if (schema == 1) {
    posto(7, Z / 2, Y - y);
    posto(8, Z / 2, y);
  }
  if (schema == 3) {
    posto(5, Z / 2, Y - y);
    posto(6, Z / 2, y);
  }
}

// One more sextet: daN, daN cm. Returns its index.
inline int SestettoProva(double N, double Ty, double Tz, double Mt, double My, double Mz) {
  const int s = ++nodo.NumSoll;
  nodo.SollN[s] = N;
  nodo.SollTy[s] = Ty;
  nodo.SollTz[s] = Tz;
  nodo.SollMt[s] = Mt;
  nodo.SollMy[s] = My;
  nodo.SollMz[s] = Mz;
  return s;
}

inline void NodoProva() {
  MontaRegistratore();
  AzzeraFault();
  suite.NumDiam = 3;  // M20, M24, M30
  const double diametri[] = {20, 24, 30}, aree[] = {245, 353, 561};
  for (int r = 0; r < 3; ++r) {
    suite.DiamVal[r] = diametri[r];
    suite.DiamArea[r] = aree[r];
  }
  suite.DirCustom = "c:\\custom";
  nodo.Sezione.H = 190;
  nodo.Sezione.B = 200;
  nodo.Sezione.A = 6.5;
  nodo.Sezione.E = 10;
  nodo.Sezione.R = 18;
  nodo.LatoZ = 400;
  nodo.LatoY = 500;
  nodo.SpessPiastra = 20;
  nodo.TipoNodo = 1;
  nodo.HNerv = 150;
  nodo.SpNerv = 10;
  nodo.Gola = 8;
  nodo.GolaCalc = 5;  // a round throat, not 8 / sqrt 2
  nodo.TfFi = 20;
  nodo.TfL = 500;
  nodo.TfL1 = 450;
  nodo.TfR = 70;
  nodo.TfLF = 10;
  nodo.TfLFt = 120;
  nodo.TfDForo = 100;
  nodo.TfHMalta = 50;
  nodo.TfDistBordo = 200;
  nodo.MatCls.Rck = 300;
  nodo.MatCls.GammaC = 1.5;
  nodo.EcCls = 312201.85778;  // 5700 sqrt 30 10
  nodo.MatAcc.Nome = "S 235 (FE 360)";
  nodo.MatAcc.SAmm = 1600;
  nodo.MatAcc.SAmm40 = 1400;
  nodo.MatAcc.Fyk = 2350;
  nodo.MatAcc.Fyk40 = 2150;
  nodo.MatAcc.Ftk = 3600;
  nodo.MatAcc.Ftk40 = 3400;
  nodo.MatAcc.GammaM = 1.05;
  nodo.MatTir = nodo.MatAcc;
  nodo.MatVit.Nome = "8.8";
  nodo.MatVit.Ft = 8000;
  nodo.MatVit.GammaM2 = 1.25;
  SchemaProva(0);
}
