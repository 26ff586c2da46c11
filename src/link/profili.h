// link/profili.h - the section library of the suite.
// Text, one section a line, words separated by blanks and tabs, "*END*" last. Family and size come first; the family decides
// what the other words are.
#pragma once
#include <string_view>
#include "model/node_model.h"

constexpr const char* FILE_PROFILARIO = "\\prof_pro";  // behind DirCustom
// Families that a column of this joint can have: open sections with two flanges.
constexpr const char* FILTRO_PROFILI =
  " IPE  IPEA  IPER  IPEO  IPEV  HEA  HEAA  HEB  HEM  HEC  DIL  HER  HLAA  HLA  HLB  HLM  HLR  HXAA  HXA  HXB  HXM  HXR"
  "  HD  HP  M  W ";
// File units mm, cm2, cm4; with these factors every value comes out in mm, mm2, mm4.
constexpr double FATT_LUNG_PROFILI = 1, FATT_AREA_PROFILI = 10;

// Fills tabella[primo..MaxProfili] with the sections whose family, a blank on each side, stands in filtro (empty filtro: any
// family) and, with a nome (no blank inside), the one of that name. Lengths are multiplied by fattLung, the area by fattArea^2, second
// moments by fattArea^4. Returns how many were taken. 0 also: the file cannot be opened or has no end line; nothing is kept then.
int LeggiProfili(std::string_view percorso, int primo, Sezione* tabella, double fattLung, double fattArea, std::string_view filtro,
                 std::string_view nome = {});
