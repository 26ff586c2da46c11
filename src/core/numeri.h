// core/numeri.h - numbers as text and back, and the roundings. Nothing here depends on the locale of the process.
// Three written forms, never merged:
//   NumeroFile       the point, no zero before it, a blank before if not negative, a blank behind (files)
//   NumeroPiano      the same without the blanks (fields, labels, drawing texts, arguments)
//   ScriviNumero     in place, the decimal mark that it is given; for reports the user's, with the zero before it
// Digits: correctly rounded to 15 significant ones, trailing zeros dropped; an exponent (1E+20, 1E-05) below 1E-4 and
// from 1E15 on; negative zero is 0. An argument that is not finite is an arithmetic fault and is written 0.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>

std::string NumeroFile(double v);
std::string NumeroPiano(double v);
int ScriviNumero(double v, char* a, char mark, bool zeroIniziale);  // into a[32], of which the rest is scratch; returns the length

// The numeric head of a text: blanks, sign, digits, one point, digits, optional exponent; the rest is ignored. No head: 0.
// "nan" and "inf" have no head. False, v untouched: the number overflows a double.
bool Val(std::string_view testo, double& v);
// The same with the locale's mark as decimal mark and the other one of point and comma dropped (material catalogue only).
// False also: no head.
bool ValLocale(std::string_view testo, char mark, double& v);

// Ties to even into an integer; false, n untouched: out of range.
bool InIntero(double v, std::int16_t& n);
bool InIntero(double v, std::int32_t& n);

double ArrotondaPari(double v, int decimali);                      // ties to even: nearbyint(v 10^n) / 10^n; n < 0 counts as 0
double Arrotonda1(double v);                                       // floor(10 v + 0.5) / 10, the rounding of every comparison
double Arrotonda2(double v);                                       // floor(100 v + 0.5) / 100
inline double MaxDi(double a, double b) { return b > a ? b : a; }  // a unless b is strictly larger
inline double MinDi(double a, double b) { return b < a ? b : a; }  // a unless b is strictly smaller
