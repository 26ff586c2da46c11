// samples/programmi/tq_fermix.cpp - stand-in for the suite's unit calculator.
// Called    tq_fermix "|primcipale=0|uniprinctesto=daN|categoriadiingresso=4|valoreingresso=12.5|fileout=...\TQ_fermix.tmp|"
// Does      writes one line to fileout: a value in the unit of uniprinctesto.
// Answer    QB07_TQ_FERMIX, or the first line of tq_fermix_risposta.txt beside fileout: "12.5 kN" is converted, "12.5" is taken as it is,
//           an empty one leaves an empty file, "annulla" writes nothing. Without an answer the value that came in goes back.
// Units     category 4 forces: daN, kN, N, kgf, t; category 5 moments: the same with mm, cm, m behind ("kNm", "kN m", "daN*cm").
#include <cstdio>

#include "comune.h"

struct Unita {
  const char* nome;
  double fattore;
};
// daN of one unit; a weight falls with 9.80665 m/s2. Longer names first, since the text of a unit begins with one of them.
constexpr Unita FORZE[] = {{"daN", 1}, {"kgf", 0.980665}, {"kN", 100}, {"N", 0.1}, {"t", 980.665}};
constexpr Unita LUNGHEZZE[] = {{"mm", 0.1}, {"cm", 1}, {"m", 100}};  // cm
enum Categoria { Forze = 4, Momenti = 5 };

// daN or daN cm of one unit; 0: not a unit of the category.
static double FattoreUnita(std::string_view testo, int categoria) {
  std::string nome;
  for (const char c : testo)
    if (c != ' ' && c != '*') nome += c;
  for (const Unita& f : FORZE) {
    if (!nome.starts_with(f.nome)) continue;
    const std::string resto = nome.substr(std::string_view(f.nome).size());
    if (categoria == Forze && resto.empty()) return f.fattore;
    if (categoria == Momenti)
      for (const Unita& l : LUNGHEZZE)
        if (resto == l.nome) return f.fattore * l.fattore;
  }
  return 0;
}

// The answer in the unit asked for; none: not a number, or not a unit of the category.
static std::optional<double> Converti(std::string risposta, const std::string& unita, int categoria) {
  const std::size_t virgola = risposta.find(',');
  if (virgola != std::string::npos) risposta[virgola] = '.';
  char* resto = nullptr;
  const double v = std::strtod(risposta.c_str(), &resto);
  if (resto == risposta.c_str()) return std::nullopt;
  const std::string data = Rifila(resto);
  if (data.empty()) return v;
  const double da = FattoreUnita(data, categoria), a = FattoreUnita(unita, categoria);
  if (da == 0 || a == 0) return std::nullopt;
  return v * da / a;
}

int main(int quanti, char** testi) {
  const std::string argomento = Argomento(quanti, testi);
  const auto unita = Pezzo(argomento, "uniprinctesto"), categoria = Pezzo(argomento, "categoriadiingresso");
  const auto valore = Pezzo(argomento, "valoreingresso"), uscita = Pezzo(argomento, "fileout");
  if (!unita || !valore || !uscita || !Pezzo(argomento, "primcipale") || (categoria != "4" && categoria != "5")) return UsoErrato;
  const std::string cartella = uscita->substr(0, uscita->find_last_of("\\/") + 1);
  const auto risposta = Risposta("QB07_TQ_FERMIX", cartella + "tq_fermix_risposta.txt");
  if (!risposta) return ScriviRighe(*uscita, {*valore}) ? Fatto : NonFatto;
  if (*risposta == ANNULLA) return Fatto;
  if (risposta->empty()) return ScriviRighe(*uscita, {}) ? Fatto : NonFatto;
  const auto v = Converti(*risposta, *unita, *categoria == "4" ? Forze : Momenti);
  if (!v) return NonFatto;
  char testo[40];
  std::snprintf(testo, sizeof testo, "%.15g", *v);
  return ScriviRighe(*uscita, {testo}) ? Fatto : NonFatto;
}
