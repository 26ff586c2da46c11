// app/batch/opzioni.cpp - options, and the text for wrong usage.
#include "app/batch/opzioni.h"

#include <charconv>
#include <clocale>
#include <string_view>

const char* const USO =
  "uso: qb07-batch [opzioni] \"|diroot=<radice della suite>|\" verifica NODO.qb7...\n"
  "     qb07-batch [opzioni] \"|diroot=<radice della suite>|\" disegno  NODO.qb7 USCITA.dis|.dxf|.grb|.svg\n"
  "     qb07-batch [opzioni] \"|diroot=<radice della suite>|\" esegui   COPIONE   (- per lo standard input)\n"
  "opzioni: --metodo=ta|slu  --decimale=.|,  --rispondi=ok|annulla  --processi=N  --senza-programmi\n";

static bool Metodo(Opzioni& o, std::string_view v) {
  o.metodo = v == "ta" ? 0 : v == "slu" ? 1 : -1;
  return o.metodo >= 0;
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

struct RigaOpzione {
  std::string_view nome;                  // with its equals sign where a value follows
  bool (*leggi)(Opzioni& o, std::string_view valore);
};
static constexpr RigaOpzione OPZIONI[] = {
  { "--metodo=", Metodo },
  { "--decimale=", Decimale },
  { "--rispondi=", Rispondi },
  { "--processi=", Processi },
  { "--senza-programmi", SenzaProgrammi },
};

static bool LeggiOpzione(std::string_view argomento, Opzioni& o) {
  for (const RigaOpzione& r : OPZIONI)
    if (argomento.starts_with(r.nome)) return r.leggi(o, argomento.substr(r.nome.size()));
  return false;
}

bool LeggiOpzioni(int argc, const char* const* argv, Opzioni& o) {
  int posto = 0;                          // arguments that are no option, so far
  for (int k = 1; k < argc; ++k) {
    const std::string_view a = argv[k];
    if (a.starts_with("--")) {
      if (!LeggiOpzione(a, o)) return false;
      continue;
    }
    if (posto == 0) o.rigaComando = a;
    else if (posto == 1) o.comando = a;
    else o.argomenti.emplace_back(a);
    ++posto;
  }
  return posto >= 3;
}

char DecimaleSistema() {
  std::setlocale(LC_NUMERIC, "");
  const lconv* uso = std::localeconv();
  const char mark = uso != nullptr && uso->decimal_point != nullptr && uso->decimal_point[0] == ',' ? ',' : '.';
  std::setlocale(LC_NUMERIC, "C");
  return mark;
}
