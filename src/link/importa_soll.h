// link/importa_soll.h - load sextets from the solver's binary results into the load list.
// Files     job folder: astecNNN.bin (load case), aste_NNN.bin (load condition); little-endian records of 56 bytes, the first is the
//           header. The record of bar place p, section q (from 1), sextet t (from 1) is number p NSez NSes + (q - 1) NSes + t.
// Units     daN, daN cm: forces to one decimal (floor(10 x + 0.5) / 10), moments to none, ties to even.
// Signs     Ty changes sign at a bar's second end.
// Bounds    header values and offsets are never trusted: what lies outside the file is skipped.
#pragma once
#include <string>

std::string NomeFileRisultati(bool condizione, int numero);  // "astec007.bin", "aste_012.bin"

// Reads the sextets of AsteNodo x SestettiStr from the cases and conditions of collegamento. maxMin false: appended to the list; true: the list
// becomes twelve rows, largest and smallest N, Tz, Ty, My, Mz, Mt. SollCC of every row becomes 0 at a regular end. A missing file or too many sextets shows
// its box and ends with the rows so far (an empty list where a file alone would exceed it). collegamento.Letti and Presi count.
void ImportaSollecitazioni(bool maxMin);
