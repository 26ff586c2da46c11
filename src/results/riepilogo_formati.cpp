// results/riepilogo_formati.cpp - a list of judged joints as JSON, lines of JSON, CSV; and an earlier list taken up again.
// CSV       RFC 4180 with LF, or for Italian spreadsheets: semicolon, decimal comma, byte order mark, CR LF. A text that a spreadsheet
//           would take for a formula gets an apostrophe in front.
#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "results/riepilogo.h"
#include "results/riepilogo_testo.h"

using json::Cerca, json::Letto, json::TestoDi;

// ---- JSON ----

static void MembriProgramma(json::Scrittura& j) {
  json::Membro(j, "schema", SCHEMA_RIEPILOGO);
  json::Nome(j, "programma");
  json::Apri(j, '{');
  json::Membro(j, "nome", "qb07-batch");
  json::Membro(j, "versione", VERSIONE);
  json::Chiudi(j, '}');
}

static std::string TestaJson() {
  json::Scrittura j;
  json::Apri(j, '{');
  MembriProgramma(j);
  json::Nome(j, "unita");
  json::Apri(j, '{');
  constexpr const char* UNITA[][2] = {{"forza", "kN"}, {"momento", "kN m"}, {"tensione", "N/mm2"}, {"lunghezza", "mm"}};
  for (const auto& [nome, unita] : UNITA) json::Membro(j, nome, unita);
  json::Chiudi(j, '}');
  json::Nome(j, "nodi");
  json::Apri(j, '[');
  return j.testo + "\n";
}

// The object with schema and program in front.
static std::string RigaJsonl(std::string_view oggetto) {
  json::Scrittura j;
  json::Apri(j, '{');
  MembriProgramma(j);
  return j.testo.append(",").append(oggetto.substr(1)).append("\n");
}

// ---- CSV ----

namespace {
struct FormaCsv {
  char separatore, decimale;
  std::string_view fine;
};
}  // namespace

static constexpr FormaCsv CSV = {',', '.', "\n"}, CSV_IT = {';', ',', "\r\n"};

static bool SembraFormula(std::string_view t) {
  return !t.empty() && std::string_view("=+-@\t\r").find(t.front()) != std::string_view::npos;
}

static std::string CampoTesto(std::string_view t, const FormaCsv& f) {
  std::string v = SembraFormula(t) ? "'" + std::string(t) : std::string(t);
  if (v.find_first_of(std::string("\"\r\n") + f.separatore) == std::string::npos) return v;
  std::string q = "\"";
  for (const char c : v) q.append(c == '"' ? 2 : 1, c);
  return q + '"';
}

static std::string CampoJson(const Letto* v, const FormaCsv& f) {
  using enum Letto::Genere;
  if (v == nullptr) return {};
  switch (v->genere) {
    case Vero: return "true";
    case Falso: return "false";
    case Testo: return CampoTesto(v->testo, f);
    case Numero: {
      std::string n = v->testo;
      std::ranges::replace(n, '.', f.decimale);
      return n;
    }
    default: return {};
  }
}

constexpr std::string_view COLONNE_NODO[] = {"percorso", "nome", "metodo", "stato"};
constexpr std::string_view COLONNE_RIGA[] = {"id", "elemento", "domanda", "limite", "unita", "rapporto", "sfruttamento", "passa"};

static std::string TestaCsv(const FormaCsv& f) {
  std::string t;
  const auto colonna = [&](std::string_view nome) { (t.empty() ? t : t += f.separatore).append(nome); };
  for (const std::string_view c : COLONNE_NODO) colonna(c);
  colonna("sestetto");
  colonna("nome_sestetto");
  for (const std::string_view c : COLONNE_RIGA) colonna(c);
  return t.append(f.fine);
}

static const Letto* NomeSestetto(const Letto& nodo, const Letto* numero) {
  const Letto* sestetti = Cerca(nodo, "sestetti");
  if (sestetti == nullptr || numero == nullptr) return nullptr;
  const double n = json::NumeroDi(numero);
  if (!(n >= 1) || n > static_cast<double>(sestetti->voci.size())) return nullptr;
  return Cerca(sestetti->voci[static_cast<std::size_t>(n) - 1], "nome");
}

static std::string PezzoCsv(std::string_view oggetto, const FormaCsv& f) {
  Letto nodo;
  if (!json::Leggi(oggetto, nodo)) return {};
  const Letto* righe = Cerca(nodo, "controlli");
  const Letto* governanti = Cerca(nodo, "governanti");
  if (righe == nullptr && governanti != nullptr) righe = Cerca(*governanti, "per_controllo");
  if (righe == nullptr) return {};
  std::string testa, t;
  for (const std::string_view c : COLONNE_NODO) (testa += CampoJson(Cerca(nodo, c), f)) += f.separatore;
  for (const Letto& r : righe->voci) {
    const Letto* numero = Cerca(r, "sestetto");
    t += testa;
    (t += CampoJson(numero, f)) += f.separatore;
    t += CampoJson(NomeSestetto(nodo, numero), f);
    for (const std::string_view c : COLONNE_RIGA) (t += f.separatore) += CampoJson(Cerca(r, c), f);
    t += f.fine;
  }
  return t;
}

// ---- all of them ----

std::string TestaRiepilogo(FormatoRiepilogo f) {
  switch (f) {
    case FormatoRiepilogo::Json: return TestaJson();
    case FormatoRiepilogo::Csv: return TestaCsv(CSV);
    case FormatoRiepilogo::CsvIt: return "\xEF\xBB\xBF" + TestaCsv(CSV_IT);
    case FormatoRiepilogo::Jsonl:
    case FormatoRiepilogo::Testo: break;
  }
  return {};
}

std::string PezzoRiepilogo(FormatoRiepilogo f, std::string_view oggetto, bool primo) {
  switch (f) {
    case FormatoRiepilogo::Json: return std::string(primo ? "" : ",\n").append(oggetto);
    case FormatoRiepilogo::Jsonl: return RigaJsonl(oggetto);
    case FormatoRiepilogo::Csv: return PezzoCsv(oggetto, CSV);
    case FormatoRiepilogo::CsvIt: return PezzoCsv(oggetto, CSV_IT);
    case FormatoRiepilogo::Testo: break;
  }
  return TabellaNodo(oggetto, primo);
}

std::string PiedeRiepilogo(FormatoRiepilogo f) { return f == FormatoRiepilogo::Json ? "\n]}\n" : ""; }

// ---- an earlier output ----

namespace {
// The members that every object has, with their kinds: n null, t text, l list, o object.
struct MembroAtteso {
  std::string_view nome;
  std::string_view generi;
};
}  // namespace

// clang-format off
static constexpr MembroAtteso MEMBRI[] = {
  { "schema", "t" },   { "programma", "o" },      { "percorso", "t" },       { "sha256", "nt" },   { "nome", "t" },       { "metodo", "nt" },
  { "stato", "t" },    { "motivo", "nt" },        { "opzioni", "o" },        { "suite_sha256", "nt" }, { "nodi_struttura", "l" }, { "ingresso", "no" },
  { "geometria", "nl" }, { "sestetti", "l" },     { "governanti", "no" },    { "avvisi", "l" },
};
// clang-format on

static char LetteraDi(const Letto& v) {
  using enum Letto::Genere;
  switch (v.genere) {
    case Nullo: return 'n';
    case Testo: return 't';
    case Lista: return 'l';
    case Oggetto: return 'o';
    default: return '-';
  }
}

static bool Risultato(const Letto& v) {
  for (const MembroAtteso& m : MEMBRI) {
    const Letto* x = Cerca(v, m.nome);
    if (x == nullptr || m.generi.find(LetteraDi(*x)) == std::string_view::npos) return false;
  }
  const Letto& programma = *Cerca(v, "programma");
  return TestoDi(Cerca(v, "schema")) == SCHEMA_RIEPILOGO && TestoDi(Cerca(programma, "nome")) == "qb07-batch" &&
         !TestoDi(Cerca(programma, "versione")).empty() && !TestoDi(Cerca(v, "percorso")).empty() &&
         std::ranges::find(NOME_STATO, TestoDi(Cerca(v, "stato"))) != std::end(NOME_STATO);
}

EsitoRipresa LeggiRigaRipresa(std::string_view riga, bool intera, RigaRipresa& r) {
  Letto v;
  if (!json::Leggi(riga, v)) return intera || !riga.starts_with('{') ? EsitoRipresa::NonValida : EsitoRipresa::Troncata;
  if (!Risultato(v)) return EsitoRipresa::NonValida;
  r = {};
  if (TestoDi(Cerca(*Cerca(v, "programma"), "versione")) != VERSIONE) return EsitoRipresa::Letta;  // another version's: worked out anew
  r.percorso = TestoDi(Cerca(v, "percorso"));
  r.metodo = TestoDi(Cerca(v, "metodo"));
  for (const std::string_view nome : {std::string_view("schema"), std::string_view("programma")}) {
    const auto dove = std::ranges::find(v.nomi, nome) - v.nomi.begin();
    v.nomi.erase(v.nomi.begin() + dove);
    v.voci.erase(v.voci.begin() + dove);
  }
  r.riga = riga;
  json::Scrivi(r.oggetto, v);
  return EsitoRipresa::Letta;
}

bool RipresaVale(const RigaRipresa& r, const NodoGiudicato& atteso, bool tutteLeRighe) {
  Letto v;
  if (r.oggetto.empty() || r.percorso != atteso.percorso || atteso.sha256.empty() || !json::Leggi(r.oggetto, v)) return false;
  const Letto* opzioni = Cerca(v, "opzioni");
  const Letto* ingresso = Cerca(v, "ingresso");
  if (ingresso == nullptr || ingresso->genere != Letto::Genere::Oggetto)
    return false;  // lost, perhaps by no fault of the file: tried again
  if (opzioni == nullptr || TestoDi(Cerca(v, "sha256")) != atteso.sha256 || TestoDi(Cerca(v, "suite_sha256")) != atteso.suite_sha256)
    return false;
  const bool stesseOpzioni = atteso.metodo >= 0 && TestoDi(Cerca(*opzioni, "metodo")) == NOME_METODO[atteso.metodo] &&
                             TestoDi(Cerca(*opzioni, "decimale")) == std::string_view(&atteso.decimale, 1) &&
                             TestoDi(Cerca(*opzioni, "rispondi")) == (atteso.rispondiOk ? "ok" : "annulla");
  return stesseOpzioni && (Cerca(v, "controlli") != nullptr) == tutteLeRighe;
}
