// results/riepilogo.h - one joint judged, as data: an object of JSON; and what a list of such objects becomes: JSON, lines of JSON, CSV for
// machines, CSV for spreadsheets of Italian locale, a table for a person.
// Units     kN, kN m, N/mm2, mm whatever the job's. Numbers by the shortest form that reads back.
// Formats   csv, csv-it and testo are made from the objects, so that all formats tell the same.
#pragma once
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Controlli.h"
#include "results/avvisi.h"
#include "results/json.h"

constexpr const char* SCHEMA_RIEPILOGO = "qb07/riepilogo/1";
constexpr const char* VERSIONE = QB07_VERSIONE;
constexpr const char* NOME_METODO[] = {"ta", "slu"};  // by TipoVer

enum class StatoNodo : unsigned char { Verificato, NonVerificato, NonEseguito };
constexpr const char* NOME_STATO[] = {"verificato", "non verificato", "non eseguito"};

struct NodoGiudicato {
  std::string percorso;  // as given
  std::string nome;      // its stem
  std::string sha256;    // of the node file; empty: it could not be read
  std::string suite_sha256;
  char decimale = '.';
  bool rispondiOk = true;
  int metodo = -1;  // -1: not known, the file could not be loaded
  StatoNodo stato = StatoNodo::NonEseguito;
  std::string motivo;          // the box that stopped it
  const Nodo* nodo = nullptr;  // as loaded; null: it was not
  const Suite* suite = nullptr;
  const Lavoro* lavoro = nullptr;  // worked out and judged; null: it was not
  RigheGeometria geometria;
  std::vector<Avviso> avvisi;
};
std::string NodoInJson(const NodoGiudicato& n, bool tutteLeRighe);
// The object of a node of which nothing is known but its place in the list.
std::string NodoPersoInJson(NodoGiudicato n, const std::string& motivo, bool tutteLeRighe);

enum class FormatoRiepilogo : unsigned char { Json, Jsonl, Csv, CsvIt, Testo };
struct RigaFormatoRiepilogo {
  std::string_view nome;
  FormatoRiepilogo formato;
};
// clang-format off
constexpr RigaFormatoRiepilogo FORMATI_RIEPILOGO[] = {
  { "json", FormatoRiepilogo::Json },     { "jsonl", FormatoRiepilogo::Jsonl }, { "csv", FormatoRiepilogo::Csv },
  { "csv-it", FormatoRiepilogo::CsvIt },  { "testo", FormatoRiepilogo::Testo },
};
// clang-format on

// An output is its head, one piece an object in the order of the list, and its foot.
std::string TestaRiepilogo(FormatoRiepilogo f);
std::string PezzoRiepilogo(FormatoRiepilogo f, std::string_view oggetto, bool primo);
std::string PiedeRiepilogo(FormatoRiepilogo f);

// ---- going on from an earlier output ----

struct RigaRipresa {
  std::string percorso, metodo;  // what the line is about; empty: it is another version's
  std::string riga;              // as it stands, without its end
  std::string oggetto;           // the same without schema and program
};
enum class EsitoRipresa : unsigned char { Letta, Troncata, NonValida };
// One line of an earlier jsonl output. Troncata: a last line that was cut (no line end behind it).
EsitoRipresa LeggiRigaRipresa(std::string_view riga, bool intera, RigaRipresa& r);
// The earlier object holds for this run: same path, fingerprints, options, version and extent of rows.
bool RipresaVale(const RigaRipresa& r, const NodoGiudicato& atteso, bool tutteLeRighe);
