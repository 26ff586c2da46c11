// core/eventi.h - what a run says to the outside as lines of text, one event a line: the form of the host without windows, which
// the recording platform of the tests shares. Also what both do with a file dialog's answer.
// Text      UTF-8; a line end inside a text (CR LF, LF or CR) is written \n, a backslash stays as it is.
// Paths     lines that show a file print the path as the system knows it; texts and commands as the program composed them. A file's name may hold
//           any byte: no control character of it reaches a line, so that no name forges another line or writes on the user's screen.
#pragma once
#include "core/piattaforma.h"

#include <string>
#include <string_view>

std::string SuUnaRiga(std::string_view testo);             // line ends as \n
std::string PercorsoSuUnaRiga(std::string_view percorso);  // and every other control character, U+0000 to U+009F, as \xHH
const char* NomeIcona(Icona icona);                        // critica, esclamazione, informazione, nessuna
std::string RigaMessaggio(std::string_view testo, std::string_view titolo, Icona icona);
std::string RigaDomanda(std::string_view testo, std::string_view titolo, Icona icona, bool ok);
std::string RigaFile(const RichiestaFile& r, bool scelto, std::string_view percorso);  // scelto false: Annulla
std::string RigaProgramma(std::string_view programma,
                          std::string_view argomento);                          // run to its end; a blank between, if there is an argument
std::string RigaAvvia(std::string_view programma, std::string_view argomento);  // started, not waited for
std::string RigaTasti(std::string_view finestra, std::string_view tasti);
std::string RigaTesto(std::string_view percorso);  // a text file shown
std::string RigaAiuto(std::string_view percorso);  // the help file shown
std::string RigaDiario(std::string_view riga);     // [importazione]: the counts of an import
constexpr const char* RIGA_FINE = "[fine]";

// The name that a dialog hands back: the default extension is added to a last component without a point.
std::string ConEstensione(const RichiestaFile& r, std::string_view percorso);
