// core/eventi.cpp - composition of the event lines.
#include "core/eventi.h"

#include "core/file.h"

std::string SuUnaRiga(std::string_view testo) {
  std::string r;
  r.reserve(testo.size());
  for (std::size_t k = 0; k < testo.size(); ++k) {
    const char c = testo[k];
    if (c == '\r' && k + 1 < testo.size() && testo[k + 1] == '\n') continue;  // CR LF is one end
    if (c == '\r' || c == '\n') r += "\\n";
    else r += c;
  }
  return r;
}

std::string PercorsoSuUnaRiga(std::string_view percorso) {
  constexpr char CIFRE[] = "0123456789ABCDEF";
  const std::string riga = SuUnaRiga(percorso);
  std::string r;
  for (std::size_t k = 0; k < riga.size(); ++k) {
    auto c = static_cast<unsigned char>(riga[k]);
    const bool secondi =
      c == 0xC2 && k + 1 < riga.size() && static_cast<unsigned char>(riga[k + 1]) >= 0x80 && static_cast<unsigned char>(riga[k + 1]) < 0xA0;
    if (secondi) c = static_cast<unsigned char>(riga[++k]);  // U+0080 to U+009F, two bytes
    if (secondi || c < 0x20 || c == 0x7F) r.append("\\x").append({CIFRE[c >> 4], CIFRE[c & 15]});
    else r += riga[k];
  }
  return r;
}

const char* NomeIcona(Icona icona) {
  switch (icona) {
    case Icona::Critica: return "critica";
    case Icona::Esclamazione: return "esclamazione";
    case Icona::Informazione: return "informazione";
    case Icona::Nessuna: break;
  }
  return "nessuna";
}

static std::string RigaRiquadro(const char* genere, std::string_view testo, std::string_view titolo, Icona icona) {
  return std::string(genere) + NomeIcona(icona) + " | " + SuUnaRiga(titolo) + " | " + SuUnaRiga(testo);
}

std::string RigaMessaggio(std::string_view testo, std::string_view titolo, Icona icona) {
  return RigaRiquadro("[messaggio] ", testo, titolo, icona);
}

std::string RigaDomanda(std::string_view testo, std::string_view titolo, Icona icona, bool ok) {
  return RigaRiquadro("[domanda] ", testo, titolo, icona) + (ok ? " -> OK" : " -> Annulla");
}

std::string RigaFile(const RichiestaFile& r, bool scelto, std::string_view percorso) {
  return std::string("[file] ") + (r.salva ? "salva" : "apri") + " | " + SuUnaRiga(r.titolo) + " | " + SuUnaRiga(r.filtro) + " | " +
         PercorsoSuUnaRiga(r.nomeIniziale) + " -> " + (scelto ? PercorsoSuUnaRiga(RisolviPercorso(percorso)) : "Annulla");
}

static std::string Comando(const char* genere, std::string_view programma, std::string_view argomento) {
  return genere + SuUnaRiga(programma) + (argomento.empty() ? "" : " " + SuUnaRiga(argomento));
}

std::string RigaProgramma(std::string_view programma, std::string_view argomento) { return Comando("[programma] ", programma, argomento); }
std::string RigaAvvia(std::string_view programma, std::string_view argomento) { return Comando("[avvia] ", programma, argomento); }
std::string RigaTasti(std::string_view finestra, std::string_view tasti) {
  return "[tasti] " + SuUnaRiga(finestra) + " | " + SuUnaRiga(tasti);
}
std::string RigaTesto(std::string_view percorso) { return "[testo] " + PercorsoSuUnaRiga(RisolviPercorso(percorso)); }
std::string RigaAiuto(std::string_view percorso) { return "[aiuto] " + PercorsoSuUnaRiga(RisolviPercorso(percorso)); }
std::string RigaDiario(std::string_view riga) { return "[importazione] " + SuUnaRiga(riga); }

std::string ConEstensione(const RichiestaFile& r, std::string_view percorso) {
  const std::size_t taglio = percorso.find_last_of("\\/");
  const std::string_view ultimo = taglio == std::string_view::npos ? percorso : percorso.substr(taglio + 1);
  std::string p(percorso);
  if (!r.estensione.empty() && !ultimo.empty() && ultimo.find('.') == std::string_view::npos) p += "." + r.estensione;
  return p;
}
