// tests/corredo/pannello_prova.h - the main panel on small tables in memory, without any file.
#pragma once
// The recording platform, the program before its start, and in the tables of suite and materiali, units daN and daN cm:
// sections 1..40 "P1".. with H = 100 + n, B = 50 + n, A 5, E 8, R 10, but 32 = "HEB300", H 300, B 280, A 11, E 19, R 27;
// diameters M8 .. M20 (row 7, 20 mm) .. M30; steels, bolts and concretes as MaterialiInMemoria says.
void SuiteInMemoria();
// Steels 1 "S 235 (FE 360)", 2 "S 275 (FE 430)", 3 "S 355 (FE 510)", 4 "S 450" (limit states only), 5 "S 185" (allowable stresses
// only); norm "norma 1".. ; bolt 1 "8.8"; concretes "C20/25", "C25/30", "C28/35" of Rck 250, 300, 350 daN/cm2.
void MaterialiInMemoria();
// SuiteInMemoria, its combos filled as the start does, and the joint reset.
void PannelloPronto();
