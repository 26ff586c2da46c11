// samples/programmi/comune.h - what the stand-ins for the suite's small programs share.
// The stand-ins let the whole road be walked on a machine without the suite: they read and write the files that the program and the real
// tools exchange, and take the user's part of the talk from an answer given beforehand. They are samples and share no code with the program.
// Text      bytes pass as they are (Windows-1252 in the suite's files); lines are written with CR LF.
// Paths     suite paths with backslashes, in lower case; each component is matched without regard to case.
#pragma once
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

enum Esito { Fatto = 0, NonFatto = 1, UsoErrato = 2 };  // exit status

inline std::string Minuscolo(std::string_view t) {
  std::string m(t);
  for (char& c : m)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return m;
}

inline std::string Rifila(std::string_view t) {
  const std::size_t primo = t.find_first_not_of(" \t\r");
  if (primo == std::string_view::npos) return {};
  return std::string(t.substr(primo, t.find_last_not_of(" \t\r") - primo + 1));
}

// The whole command line behind the program's name.
inline std::string Argomento(int quanti, char** testi) {
  std::string t;
  for (int i = 1; i < quanti; ++i) t += std::string(i > 1 ? " " : "") + testi[i];
  return t;
}

// What stands behind "|chiave=" up to the next "|"; the key in any case.
inline std::optional<std::string> Pezzo(const std::string& argomento, const std::string& chiave) {
  const std::size_t p = Minuscolo(argomento).find("|" + chiave + "=");
  if (p == std::string::npos) return std::nullopt;
  const std::size_t inizio = p + chiave.size() + 2;
  return Rifila(std::string_view(argomento).substr(inizio, argomento.find('|', inizio) - inizio));
}

inline std::string Risolvi(const std::string& percorso) {
  namespace fs = std::filesystem;
  std::string r;
  std::error_code errore;
  for (std::size_t i = 0; i < percorso.size();) {
    const std::size_t fine = std::min(percorso.find_first_of("\\/", i), percorso.size());
    std::string parte = percorso.substr(i, fine - i);
    if (!parte.empty() && !fs::exists(r + parte, errore)) {
      std::string trovato;
      for (fs::directory_iterator v(r.empty() ? "." : r, errore), ultimo; !errore && v != ultimo; v.increment(errore)) {
        const std::string nome = v->path().filename().string();
        if (Minuscolo(nome) == Minuscolo(parte) && (trovato.empty() || nome < trovato)) trovato = nome;
      }
      if (!trovato.empty()) parte = trovato;
    }
    r += parte;
    if (fine < percorso.size() && (r.empty() || r.back() != '/')) r += '/';
    i = fine + 1;
  }
  return r;
}

inline std::optional<std::vector<std::string>> LeggiRighe(const std::string& percorso) {
  std::ifstream f(Risolvi(percorso), std::ios::binary);
  if (!f) return std::nullopt;
  std::vector<std::string> righe;
  for (std::string r; std::getline(f, r);) {
    if (!r.empty() && r.back() == '\r') r.pop_back();
    righe.push_back(r);
  }
  return righe;
}

inline bool ScriviRighe(const std::string& percorso, const std::vector<std::string>& righe) {
  std::ofstream f(Risolvi(percorso), std::ios::binary | std::ios::trunc);
  for (const std::string& r : righe) f << r << "\r\n";
  f.close();
  return !f.fail();
}

// The folder of the job that "|Diroot=...|" names, or of its neighbour "|Lavoro=...|"; none: the suite cannot be read.
inline std::optional<std::string> CartellaLavoro(const std::string& argomento) {
  const auto radice = Pezzo(argomento, "diroot");
  if (!radice) return std::nullopt;
  const auto lavori = LeggiRighe(*radice + "\\impostazioni\\dirlav"), aperto = LeggiRighe(*radice + "\\impostazioni\\lavoro");
  if (!lavori || lavori->empty() || !aperto || aperto->empty()) return std::nullopt;
  std::string cartella = Rifila(lavori->front());
  if (cartella.empty()) return std::nullopt;
  if (cartella.back() != '\\') cartella += '\\';
  return cartella + Pezzo(argomento, "lavoro").value_or(Rifila(aperto->front()));
}

// The answer given beforehand: the environment variable, else the first line of the file in the job's folder; none: the tool answers by itself.
inline std::optional<std::string> Risposta(const char* variabile, const std::string& percorso) {
  if (const char* v = std::getenv(variabile)) return std::string(v);
  const auto righe = LeggiRighe(percorso);
  if (!righe) return std::nullopt;
  return righe->empty() ? std::string() : righe->front();
}
constexpr const char* ANNULLA = "annulla";  // an answer that writes nothing: the user closed the tool
