// drawing/formats/scrittori.h - writers of the store, one file each, and what they prepare.
// nomeFile    suite path; silenzioso: 0 all boxes, 1 and above no success box, 2 no box at all.
// Returns     true: the file was written whole. A failure shows its own box; the file of before stands whole.
#pragma once
#include <string>

// Extent of all coordinates, from coordinate 0 on: into disegno.EstXMin and the others.
void CalcolaEstensioni();
// The clean-up before a DIS file, in five passes: hidden lines under lines, double arcs, empty texts, merging of coordinates,
// unused coordinates.
void CompattaDisegno();

bool SalvaDis(const std::string& nomeFile, int silenzioso);
bool ScriviDis(const std::string& nomeFile, int silenzioso);

// testoLinee 1: texts as lines through the stroke font. mono 1: every colour 7. spezzaTratti 1: non-continuous lines as many short
// ones, by the patterns of \tipilinea.txt at a plotting scale of 1:scala (0: 1:1).
bool SalvaDxf(const std::string& nomeFile, int testoLinee, int mono, double scala, int spezzaTratti, int silenzioso);
int ColoreDxf(int colore, int mono);
const char* NomeTipoDxf(int tipo);
double AngoloArco(double px, double py, double cx, double cy);  // degrees, 0 included, 360 excluded

bool SalvaSvg(const std::string& nomeFile, int silenzioso);  // for looking: mm, y upward, a white page

bool ScriviGrb(const std::string& nomeFile, int silenzioso);
bool EsportaGrb(const std::string& nomeFile, int silenzioso);  // the sheet drawn anew in its edition, then written
bool ComandoGrb(const std::string& nomeFile, int silenzioso);  // the same as a command, with its box of a failure
std::string Riga4(const std::string& a, const std::string& b, const std::string& c,
                  const std::string& d);  // a line of four right-aligned texts

// The box of a failed write.
void ErroreScrittura(const std::string& nomeFile, int silenzioso);
// The box of a finished file.
void FileSalvato(const std::string& nomeFile, int silenzioso);
