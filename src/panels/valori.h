// panels/valori.h - numbers of fields: read from their texts, shown in them, stored.
// Failure   a typed number that overflows is a failed step, a result that is not finite an arithmetic fault; false, and the variable keeps
//           its value.
#pragma once
struct Controllo;

bool LeggiCampo(const Controllo& c, double& v);  // numeric head of the text, 0 for none
bool AssegnaFinito(double& variabile, double v);
void ImpostaNumero(Controllo& c, double v);  // a field's text from a number; one that is not finite is a failed step
