// core/nomi_file.h - names of the files that a joint gives rise to, and the titles and names that reports show.
// Given     suite.DirLavoro and the units, nodo.NomeNodo, nodo.NodiStr 1..NumNodiStr. Nothing is changed, nothing fails.
#pragma once
#include <string>
#include <string_view>

constexpr const char* CODICE_RELAZIONE = "QB07";  // the code in the reports' file names

// DirLavoro \RelTA_ or \RelSLU_ code _ node .txt; metodo "TA" or "SLU", any other gives no prefix at all.
std::string NomeFileRelazione(std::string_view metodo, std::string_view codice);
// DirLavoro \ code _ node and .grb, .dis or .dxf; tipo "GRB", "DIS" or "DXF", any other gives no suffix.
std::string NomeFileDisegno(std::string_view codice, std::string_view tipo);
std::string TitoloFrameSoll();  // "n° 12 [kN, kN m]", over the load list
std::string ElencoNodi();       // ": 3,7": the structure's nodes that the joint stands for; none: empty
std::string TitoloNodi();       // "VERIFICA TENSIONALE NODI: 3,7": the structure's nodes that the joint stands for

// The section's name for the allowable-stress report: the first word and one blank, further words glued behind.
// A word that no blank follows is dropped, so that a name filling all its characters loses the last one; only the
// title shows it.
std::string NomeProfiloPerRelazione(std::string_view nome);
std::string TestoSuUnaRiga(std::string_view testo);  // carriage return becomes a blank, line feed vanishes
