// core/file.h - the file layer: suite paths to system paths, the reader of values and lines, text output.
// Paths     inside the program a path is the text composed with backslashes; only this layer turns it into the system's:
//           '\' and '/' separate, and a component that does not exist as written is matched without regard to case
//           (several matches: lowest byte order; a folder that cannot be listed: exact name only).
// Text      Windows-1252, lines ended by CR LF, LF or CR on reading, by CR LF on writing; UTF-8 in memory.
// Failure   false; a reader's failed step also sets passi.fallito and leaves the variable as it was.
#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include "core/scrittura.h"

std::string RisolviPercorso(std::string_view percorso);  // the system's path; the last component as written if it is new
bool EsisteFile(std::string_view percorso);              // a readable regular file
bool EliminaFile(std::string_view percorso);
std::string NomeSenzaEstensione(std::string_view percorso);  // behind the last separator, before the first point

struct FileLettura {
  std::string byte;  // the whole file
  std::size_t pos = 0;
  bool aperto = false;
};
bool ApriLettura(FileLettura& f, std::string_view percorso);
bool FineFile(const FileLettura& f);
bool LeggiRiga(FileLettura& f, std::string& riga);  // one whole line without its end; a line is cut at 1 MiB
// One value: leading blanks skipped. A text ends at a comma or the line's end, or at its closing quote (on the same line) if it begins with one;
// trailing blanks of an unquoted text stay. A number ends at a comma, a run of blanks (one comma behind is eaten) or the line's end.
// A numeric text without a number is 0 and no failure; an overflow, also of an integer, is a failed step whose text is consumed.
bool LeggiValore(FileLettura& f, std::string& v);
bool LeggiValore(FileLettura& f, double& v);
bool LeggiValore(FileLettura& f, std::int16_t& v);
bool LeggiValore(FileLettura& f, std::int32_t& v);

struct FileScrittura {
  std::string testo;    // UTF-8, gathered; one write at the close
  std::string sistema;  // the file's place; empty: not open
  Tenuta tenuta = Tenuta::Rifacibile;
  std::errc errore{};  // of the opening or of the close
};
// The place is only looked at, so that what cannot be written is met here; the file changes at the close, at once and whole (scrittura.h).
// The written name, or one equal without regard to case that exists.
bool ApriScrittura(FileScrittura& f, std::string_view percorso, Tenuta tenuta = Tenuta::Rifacibile);
inline void ScriviRiga(FileScrittura& f, std::string_view t) { f.testo.append(t).append("\r\n"); }
bool ChiudiScrittura(FileScrittura& f);  // false: the former file stands; safe when not open
void LasciaScrittura(FileScrittura& f);  // given up: the former file stands
// What cannot be made again, at one stroke. testo is UTF-8 with CR LF in place.
bool SostituisciFile(std::string_view percorso, std::string_view testo);
bool SostituisciByte(std::string_view percorso, std::string_view byte);  // bytes as they are, of what can be made again
// "Impossibile scrivere il file ...: spazio su disco esaurito." for a write that has no box of its own.
std::string TestoNonScritto(std::string_view percorso, std::errc errore);
