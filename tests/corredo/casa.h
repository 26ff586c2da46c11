// tests/corredo/casa.h - rules of the house, looked for in the sources as text: which room may include which, rings of files, what the
// engine reaches, names of types, words.
// Returns   one line a breach, "file: what"; none: the rule holds.
#pragma once
#include <map>
#include <string>
#include <string_view>
#include <vector>

using Sorgenti = std::map<std::string, std::string>;  // path within src, "engine/righe.h", and its bytes
using Rilievi = std::vector<std::string>;

Sorgenti LeggiSorgenti(const std::string& cartella);  // every .h and .cpp below it
Rilievi FrecceAllaRovescia(const Sorgenti& s);        // a room includes one that is not below it; a file outside of the rooms
Rilievi AnelliDiFile(const Sorgenti& s);              // header and source of one name are one
Rilievi PortataDelMotore(
  const Sorgenti& s);                    // by the includes of engine, however far: rooms, files and mutable globals that it must not reach
Rilievi TipiDoppi(const Sorgenti& s);    // types of one name in two files, one of them at least outside of an anonymous namespace
Rilievi FormaLocale(const Sorgenti& s);  // in a source: an open type that no header announces, anything but types in an anonymous namespace
Rilievi ParoleVietate(const Sorgenti& s);
