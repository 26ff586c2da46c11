// core/opzioni.h - the drawing options: DirCustom\OpzioniNodi1-5.txt to and from suite.ParNodo.
// The boxes of a failure and the options panel are the callers'.
#pragma once

constexpr const char* FILE_OPZIONI = "\\OpzioniNodi1-5.txt";  // behind DirCustom

// 28 numbers, each ended by a comma, a run of blanks or the line's end; more are ignored. Entry 17 takes entry 13.
// False: the file cannot be opened, holds fewer, or a number overflows; what could be read stays.
bool LeggiOpzioni();

// 28 lines, entry 0 to 27, in the file form of numbers. False: the file was not written and the former one is whole.
bool ScriviOpzioni();
