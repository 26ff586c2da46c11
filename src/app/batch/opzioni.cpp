// app/batch/opzioni.cpp - the options as a table, and the texts of the usage from it.
#include "app/batch/opzioni.h"

#include <algorithm>
#include <charconv>
#include <clocale>

#include "core/testo.h"
#include "results/riepilogo.h"

static bool Metodo(Opzioni& o, std::string_view v) {
  o.metodo = v == "ta" ? MetodoTA : v == "slu" ? MetodoSLU : -1;
  o.entrambi = v == "entrambi";
  return o.metodo >= 0 || o.entrambi;
}

static bool Decimale(Opzioni& o, std::string_view v) {
  if (v != "." && v != ",") return false;
  o.decimale = v[0];
  return true;
}

static bool Rispondi(Opzioni& o, std::string_view v) {
  o.rispondiOk = v == "ok";
  return v == "ok" || v == "annulla";
}

static bool Processi(Opzioni& o, std::string_view v) {
  const char* fine = v.data() + v.size();
  const auto [dove, errore] = std::from_chars(v.data(), fine, o.processi);
  return errore == std::errc() && dove == fine && o.processi >= 1;
}

static bool SenzaProgrammi(Opzioni& o, std::string_view v) {
  o.senzaProgrammi = true;
  return v.empty();
}

static bool Formato(Opzioni& o, std::string_view v) {
  o.formato = v;
  return std::ranges::any_of(FORMATI_RIEPILOGO, [v](const RigaFormatoRiepilogo& f) { return v == f.nome; });
}

static bool Righe(Opzioni& o, std::string_view v) {
  o.tutteLeRighe = v == "tutte";
  return v == "tutte" || v == "governanti";
}

static bool Sestetto(Opzioni& o, std::string_view v) {
  if (v == "governante") return true;
  const char* fine = v.data() + v.size();
  const auto [dove, errore] = std::from_chars(v.data(), fine, o.sestetto);
  return errore == std::errc() && dove == fine && o.sestetto >= 1;
}

template <std::string Opzioni::*nome>
static bool NomeFile(Opzioni& o, std::string_view v) {
  o.*nome = v;
  return !v.empty();
}

namespace {
struct RigaOpzione {
  std::string_view nome;  // with its equals sign where a value follows
  const char* valori;
  const char* aiuto;
  bool (*leggi)(Opzioni& o, std::string_view valore);
  bool comune;  // of every verb
};
}  // namespace

// clang-format off
static constexpr RigaOpzione OPZIONI[] = {
  { "--metodo=",         "ta|slu",      "metodo di verifica, invece di quello del nodo (riepilogo: anche entrambi)", Metodo, true },
  { "--decimale=",       ".|,",         "segno decimale delle impostazioni locali (senza: quello del sistema)", Decimale, true },
  { "--rispondi=",       "ok|annulla",  "risposta alle domande (senza: ok)", Rispondi, true },
  { "--processi=",       "N",           "nodi in lavoro insieme (senza: uno per nucleo)", Processi, true },
  { "--senza-programmi", "",            "non avvia altri programmi", SenzaProgrammi, true },
  { "--formato=",        "json|jsonl|csv|csv-it|testo", "forma del risultato (senza: testo a terminale, altrimenti json)", Formato, false },
  { "--righe=",          "governanti|tutte", "quali controlli (senza: governanti)", Righe, false },
  { "--sestetto=",       "N|governante", "quale gruppo di sollecitazioni (senza: quello che governa)", Sestetto, false },
  { "--uscita=",         "FILE",        "scrive il risultato nel file, per intero o per nulla", NomeFile<&Opzioni::uscita>, false },
  { "--elenco=",         "FILE|-",      "altri nodi, uno per riga, da un file o dallo standard input", NomeFile<&Opzioni::elenco>, false },
  { "--riprendi=",       "FILE",        "riprende le righe ancora valide di un risultato jsonl", NomeFile<&Opzioni::riprendi>, false },
};
// clang-format on

static bool Ammessa(const RigaOpzione& r, const Verbo* v) {
  const std::string_view nome = r.nome.substr(0, r.nome.find('='));
  return r.comune || (v != nullptr && Contiene(std::string(" ") + v->opzioni + " ", std::string(" ") + std::string(nome) + " "));
}

static bool LeggiOpzione(std::string_view argomento, Opzioni& o, const RigaOpzione*& riga) {
  for (const RigaOpzione& r : OPZIONI)
    if (argomento.starts_with(r.nome)) {
      riga = &r;
      return r.leggi(o, argomento.substr(r.nome.size()));
    }
  return false;
}

const Verbo* TrovaVerbo(std::span<const Verbo> verbi, std::string_view nome) {
  const auto v = std::ranges::find_if(verbi, [nome](const Verbo& x) { return nome == x.nome; });
  return v == verbi.end() ? nullptr : &*v;
}

static bool LeggiArgomenti(int argc, const char* const* argv, Opzioni& o, std::vector<const RigaOpzione*>& usate, std::string& motivo) {
  int posto = 0;  // arguments that are no option, so far
  for (int k = 1; k < argc; ++k) {
    const std::string_view a = argv[k];
    const RigaOpzione* riga = nullptr;
    if (a == "--help") o.aiuto = true;
    else if (a == "--version") o.versione = true;
    else if (a.starts_with("--")) {
      if (!LeggiOpzione(a, o, riga)) {
        motivo = std::string(a) + ": opzione o valore non valido";
        return false;
      }
      usate.push_back(riga);
    } else {
      if (posto == 0) o.rigaComando = a;
      else if (posto == 1) o.comando = a;
      else o.argomenti.emplace_back(a);
      ++posto;
    }
  }
  return true;
}

bool LeggiArgomenti(int argc, const char* const* argv, std::span<const Verbo> verbi, Opzioni& o, std::string& motivo) {
  std::vector<const RigaOpzione*> usate;
  if (!LeggiArgomenti(argc, argv, o, usate, motivo)) return false;
  if (o.aiuto || o.versione) return true;
  const Verbo* v = TrovaVerbo(verbi, o.comando);
  if (v == nullptr) {
    motivo = o.comando.empty() ? "manca il comando" : o.comando + ": comando sconosciuto";
    return false;
  }
  for (const RigaOpzione* r : usate)
    if (!Ammessa(*r, v)) {
      motivo = std::string(r->nome) + ": non è un'opzione di " + v->nome;
      return false;
    }
  if (o.entrambi && !Contiene(v->opzioni, "--formato")) {
    motivo = "--metodo=entrambi: non vale per " + std::string(v->nome);
    return false;
  }
  return true;
}

char DecimaleSistema() {
  std::setlocale(LC_NUMERIC, "");
  const lconv* uso = std::localeconv();
  const char mark = uso != nullptr && uso->decimal_point != nullptr && uso->decimal_point[0] == ',' ? ',' : '.';
  std::setlocale(LC_NUMERIC, "C");
  return mark;
}

// ---- texts ----

static std::string RigaUso(const Verbo& v) {
  return std::string("qb07-batch [opzioni] \"|diroot=<radice della suite>|\" ") + v.nome + " " + v.argomenti + "\n";
}

static std::string RigheOpzioni(const Verbo* v) {
  std::string t;
  for (const RigaOpzione& r : OPZIONI) {
    if (v != nullptr && !Ammessa(r, v)) continue;
    std::string nome = "  " + std::string(r.nome) + r.valori;
    if (nome.size() < 26) nome.resize(26, ' ');
    t += nome + "  " + r.aiuto + "\n";
  }
  return t;
}

constexpr const char* ALTRE =
  "  --help                    questo testo; con un comando, il suo\n"
  "  --version                 nome e versione del programma\n"
  "stato di uscita: 0 fatto e tutto verificato, 1 fatto e qualcosa non è verificato, 2 qualcosa non è stato fatto\n";

std::string Uso(std::span<const Verbo> verbi) {
  std::string t;
  for (const Verbo& v : verbi) t += (t.empty() ? "uso: " : "     ") + RigaUso(v) + "       " + v.aiuto + "\n";
  return t + "opzioni:\n" + RigheOpzioni(nullptr) + ALTRE;
}

std::string UsoVerbo(const Verbo& v) { return "uso: " + RigaUso(v) + v.aiuto + "\nopzioni:\n" + RigheOpzioni(&v) + ALTRE; }
