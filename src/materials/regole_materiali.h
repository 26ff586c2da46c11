// materials/regole_materiali.h - which steel grades a method can use, the grade that stands in for one it can't, material values as text.
// Roles     "PROFILI" column and plates, "BULLONI" anchors. Tables from 1, entry 0 empty.
#pragma once
#include <string>
#include <string_view>
#include "model/node_model.h"

// Usable: both strengths of the role are above 0 (TA: SAmm; SLU: Fyk for PROFILI, Ftk for BULLONI). Another role: never.
bool MaterialeValido(bool metodoTA, std::string_view ruolo, const MatAcciaio& mat);

// The first usable grade of tabella[1..conteggio] with another name than selezione where one name contains the other: its table
// index less 1, so that the record is result + 1; 0 if there is none. It counts table entries also where it serves as a
// position in a filtered list: behind a dropped entry the list shows another grade than the one whose values count.
int IndiceMaterialeAlternativo(bool metodoTA, std::string_view ruolo, std::string_view selezione, int conteggio, const MatAcciaio* tabella);

// "-" for a negative value, otherwise the value rounded (ties to even) to so many decimals, in plain form.
std::string ImpostaValoreMat_(double valore, int decimali);
