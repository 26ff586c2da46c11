// engine/lavoro.h - all that one verification needs and makes. What is calculated is passed: the engine's procedures take a
// Lavoro and touch nothing else, so that windows, reports, searches and threads each hold their own.
// Given     nodo, suite (diameter table, ParNodo, DirCustom), TipoVer: set by the caller, never written by the engine.
// Made      everything else. The derived scalars and ris are refilled by CalcolaTabelle, limiti and righe by Giudica.
// Units     inside the engine mm, daN, daN mm, daN/mm2: the moments of a sextet are multiplied by 10 when read. Limits and rows daN/cm2, daN.
// Signs     N and anchor stress + in tension.
// State     what no step clears outlives a verification on the same Lavoro (weld records not rebuilt, SPiastraTir, a bond limit of
//           rods that are neither straight nor hooked, Residuo); a fresh one has none. Large (1.4 MB): static or on the heap.
#pragma once
#include <cstdint>
#include <vector>

#include "engine/diagnosi.h"
#include "engine/limiti.h"
#include "engine/stato_presinfl.h"
#include "model/node_model.h"
#include "model/risultati.h"
#include "model/suite.h"

constexpr int MetodoTA = 0, MetodoSLU = 1;  // TipoVer: CNR 10011/88, NTC 2008

constexpr double MM_SU_CM = 10;  // millimetres in a centimetre, newtons in a decanewton
constexpr double N_SU_DAN = 10;
constexpr double MM2_SU_CM2 = MM_SU_CM * MM_SU_CM;  // from daN/mm2 to daN/cm2

struct StatoVerifica {
  double AreaTf = 0;                                                            // mm2, resistant area of an anchor
  double ArmZ[MaxTir + 1] = {}, ArmY[MaxTir + 1] = {};                          // mm from the plate's centre, along TfZ and TfY
  double SommaR2 = 0;                                                           // mm2
  double IzSald = 0, IySald = 0, IpSald = 0;                                    // mm4, the group of welds
  double LungTz = 0, LungTy = 0;                                                // mm, welds that carry Tz, Ty
  double BraccioSald[SALD_PIASTRA + 1][4] = {};                                 // mm, points of the welds on the plate from the centre
  double CosSald[SALD_PIASTRA + 1][4] = {}, SenSald[SALD_PIASTRA + 1][4] = {};  // of the torque's shear there, along and across the weld
  double N = 0, Ty = 0, Tz = 0;                                                 // daN
  double Mt = 0, My = 0, Mz = 0;                                                // daN mm
};

// The strain plane of one sextet, as PianoDef of the solver, and the iteration at which it stood.
struct PianoSestetto {
  double P[4] = {};
  int IterPres = 0;
};

// One check of one sextet at one element: the two numbers that decide, and the verdict (engine/righe.h).
struct RigaControllo {
  std::int32_t sestetto = 0;  // 1-based
  std::int16_t elemento = 0;  // anchor or weld, 0 where there is none
  std::uint8_t criterio = 0;  // position in the table of the method's checks
  bool passa = true;
  double grezza = 0;               // demand before any rounding
  double domanda = 0, limite = 0;  // daN/cm2, daN or a pure number
};

constexpr int MaxCriteri = 16;  // checks of a method

// Where an arithmetic fault of the checks came up: sextet 0 before the first one.
struct PuntoFermo {
  bool c_e = false;
  int sestetto = 0, criterio = 0, elemento = 0;
};

struct Lavoro {
  const Nodo* nodo = nullptr;
  const Suite* suite = nullptr;
  int TipoVer = MetodoTA;

  bool usato = false;             // a table was built: no longer as a fresh one
  std::int16_t NumSaldature = 0;  // 8, 40 or 44
  double SAmmCls = 0;             // N/mm2, allowable pressure; compared with daN/cm2 as it is: a tenth (safe)
  double TauCls = 0;              // bond stress, N/mm2 in effect
  StatoVerifica verifica = {};
  StatoPresInfl presInfl = {};
  Risultati ris = {};
  PianoSestetto piani[MaxSoll + 1] = {};

  double CoeffRifollamento = 0;         // bearing, by allowable stresses
  LimitiTA limitiTA[MaxSoll + 1] = {};  // by sextet
  LimitiSLU limitiSLU = {};
  std::vector<RigaControllo> righe = {};  // by sextet, check, element
  int righePerSestetto = 0;
  int inizioCriterio[MaxCriteri + 1] = {};  // first row of a check within a sextet; behind the last check: their number
  bool passa[MaxSoll + 1] = {};             // verdict of each sextet
  bool verificato = false;                  // all of them
  PuntoFermo fermo = {};
  std::vector<Diagnosi> diagnosi = {};
};

inline double Cubo(double v) { return v * v * v; }
