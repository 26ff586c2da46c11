// model/materiali.h - the material tables of the suite and of the job, read once at the start.
// State     materiali: filled by the start; MemoriaMateriali lives as long as the process.
// Indices   tables 1..50, entry 0 stays empty; a count may exceed 50 (the file's own), loops run to min(count, 50).
#pragma once
#include "model/node_model.h"

constexpr int MaxMateriali = 50;

struct Materiali {
  std::string FileMatBase;  // path of the catalogue
  bool UsaViti = false, UsaTirafondi = true, UsaCls = true, UsaAccPiastre = false, SezChiuse = false;

  std::int16_t NumAcciai = 0, NumAcciaiChiusi = 0, NumViti = 0, NumCls = 0, NumAcciaiCA = 0;
  MatAcciaio AcciaiBase[MaxMateriali + 1], AcciaiChiusiBase[MaxMateriali + 1];
  MatViti VitiBase[MaxMateriali + 1];
  MatCls ClsBase[MaxMateriali + 1];
  MatCA AcciaiCABase[MaxMateriali + 1];

  bool MatDaBase = false;  // the job's own material file was read
  MatAcciaio MatBaseAcc1, MatBaseAcc2;
  MatCls MatBaseCls;
  double ModuloEBase = 0;         // steel modulus, the file's value / 10
  double GammaMBase[4 + 1] = {};  // [1..4]

  // Grades remembered across a change of method: column TA, column SLU, anchors TA, anchors SLU.
  MatAcciaio MemoriaMateriali[4];
};
