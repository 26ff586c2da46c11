// model/node_model.h - the joint as entered.
// Axes      the plate lies in Z-Y: Z along the column's width b, Y along its height h; anchors are measured from a plate corner.
// Units     mm; loads daN and daN cm; strengths daN/cm2.
// Signs     N + in tension.
// Indices   1-based, index 0 free: sextets 1..200, anchors 1..8, welds 1..50, weld points 1..3, structure nodes 1..2000.
#pragma once
#include <cstdint>
#include <string>

constexpr int MaxSoll = 200;      // load sextets
constexpr int MaxTir = 8;         // anchors
constexpr int MaxSald = 50;       // welds
constexpr int MaxNodiStr = 2000;  // nodes of the structure that the joint stands for
constexpr int LungNomeSez = 18;   // characters of a section's name, blank padded
constexpr int MaxNerv = 8;        // rib positions of the results

// The circle constant of every angle and area, to the digits that positions and results follow from.
constexpr double PI_PROG = 3.141592;
// The circle constant of the head plate's bond formula by allowable stresses: four decimals, two millionths high (unsafe by as much).
constexpr double PI_TA = 3.1416;
// Geometric tolerance on each axis, mm.
constexpr double TOLL_GEO = 0.0001;
// Thickness up to which the strengths of thin products hold, mm, inclusive.
constexpr double SpessSottile = 40;

struct Sezione {                                     // an open column section, from the library or from a node file
  std::string Nome = std::string(LungNomeSez, ' ');  // family and size joined, 18 characters
  double H = 0, B = 0, A = 0, E = 0, R = 0;          // mm: height (along Y), width (along Z), web, flange, root radius
  double R2 = 0, Xc = 0, Yc = 0;                     // mm: second radius, centroid distances
  double Area = 0, J1 = 0, J2 = 0, Jt = 0;           // mm2, mm4; carried, not used
  std::string Tipo;                                  // class letter of the library line
};

struct MatAcciaio {             // steel; stresses daN/cm2
  std::string Nome, Norma;      // grade, reference text
  double SAmm = 0, SAmm40 = 0;  // allowable stress, thickness up to and over 40 mm
  double Fyk = 0, Fyk40 = 0;    // yield strength, up to 40 mm and 40 to 80 mm
  double Ftk = 0, Ftk40 = 0;    // tensile strength, likewise; rods: Fyk = fyb, Ftk = ftb
  double Fyd = 0, Fyd40 = 0;    // design yield strength, set only from the job's material file
  double GammaM = 0;
  double Riserva1 = 0, Riserva2 = 0;
  double GammaMT = 0;
};

struct MatCls {  // concrete; stresses daN/cm2
  std::string Nome;
  double Rck = 0, Fck = 0;
  double Riserva1 = 0, Riserva2 = 0;
  double Fcd = 0, GammaC = 0, AlfaCC = 0, Ecm = 0;
  double SAmm = 0;    // allowable pressure of the last verification by allowable stresses
  double TauCls = 0;  // bond stress, set by the verification
};

struct MatViti {  // bolt class; stresses daN/cm2
  std::string Nome;
  double SAmm = 0, TauAmm = 0, Fy = 0, Ft = 0;
  double NonUsato = 0;
  double GammaM2 = 0;
};

struct MatCA {  // reinforcing steel: read, used by nothing
  std::string Nome;
  double V[9 + 1] = {};  // [1..9]
};

struct Nodo {
  std::string NomeNodo;  // "Nuovo", or the stem of the file saved or loaded last
  ::Sezione Sezione;
  double LatoZ = 0, LatoY = 0, SpessPiastra = 0;  // mm
  std::int16_t TipoNodo = 0;                      // 1 no ribs, 2 four ribs
  double HNerv = 0, SpNerv = 0;                   // mm
  std::int16_t SaldInt = 0;                       // 1: ribs welded at the inner edge too
  double NervZ = 0, NervY = 0, NervTaglio = 0;    // mm; chamfers that the drawing derives
  double Gola = 0;                                // mm, the weld's side as typed
  double GolaCalc = 0;                            // mm, throat = Gola / sqrt 2

  std::int16_t NTir = 0;
  double TfZ[MaxTir + 1] = {}, TfY[MaxTir + 1] = {};                 // mm from the plate's corner
  std::int16_t TipoTirafondo = 0;                                    // 0 straight rod with square plate, 1 hooked rod
  std::int16_t TfDiamIdx = 0;                                        // 1-based row of the diameter table
  double TfFi = 0, TfLFt = 0, TfL = 0, TfR = 0, TfL1 = 0, TfLF = 0;  // mm
  double TfDForo = 0, TfHMalta = 0, TfLFil = 0, TfDistBordo = 0;     // mm

  MatAcciaio MatAcc, MatPiastra, MatTir;
  ::MatCls MatCls;
  MatViti MatVit;
  double EcCls = 0;  // daN/cm2, 5700 sqrt(Rck/10) 10

  std::int16_t NumSoll = 0;
  double SollN[MaxSoll + 1] = {}, SollTy[MaxSoll + 1] = {}, SollTz[MaxSoll + 1] = {};   // daN
  double SollMt[MaxSoll + 1] = {}, SollMy[MaxSoll + 1] = {}, SollMz[MaxSoll + 1] = {};  // daN cm
  std::int16_t SollCC[MaxSoll + 1] = {};                                                // load class of allowable stresses: 0 I, 1 II
  std::string SollNome[MaxSoll + 1];

  std::int16_t NumNodiStr = 0;
  std::int16_t NodiStr[MaxNodiStr + 1] = {};

  // Choices that the panel shows and every module reads; -1 none.
  int TipoVer = 0;       // 0 allowable stresses (CNR 10011/88), 1 limit states (NTC 2008)
  int OptionNTir = 0;    // 0 four, 1 eight, 2 six "Vert.", 3 six "Orizz."
  int Esposizione = -1;  // position in ComboEsposizione
};
