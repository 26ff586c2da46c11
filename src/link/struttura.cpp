// link/struttura.cpp - readers of the structure file and of the section file.
#include "link/struttura.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "model/stato.h"

constexpr const char* STRUTTURA = "\\struttur.str";
constexpr const char* SEZIONI = "\\sezioni_";
constexpr int RIGHE_SEZIONE = 4;  // lines of a section record behind its three values, not read

static void FileErrato(const std::string& percorso, Icona icona) {
  Messaggio("Errore: file " + percorso + " errato o mancante.", "ERRORE", icona);
}

// The leading number of the next word; 0 where there is none or it does not fit.
static std::int32_t InteroDaToken(std::string& riga) {
  double v = 0;
  std::int32_t n = 0;
  if (Val(TokenSuccessivo(riga), v)) InIntero(v, n);
  return n;
}

static std::int32_t LeggiIntero(FileLettura& f) {
  std::int32_t n = 0;
  LeggiValore(f, n);
  return n;
}

// The line that follows "release", or the first one itself after the box of an old version.
static void ControllaVersione(std::string& riga, LettoreStruttura& l) {
  l.vecchia = !Contiene(Minuscolo(riga), "release");
  if (l.vecchia) AvvisaVersione();
  else LeggiRiga(l.file, riga);
}

namespace {
struct SezioneFile {
  std::int32_t numero = 0;
  std::string nome;
};
}  // namespace

// The sections of the section file in order. Fallito: not opened; Troppe: its count is out of range.
template <class Procedura>
static EsitoAste PerOgniSezione(const std::string& percorso, Procedura procedura) {
  FileLettura f;
  if (!ApriLettura(f, percorso)) return EsitoAste::Fallito;
  std::int32_t n = 0;
  if (!FineFile(f) && !LeggiValore(f, n)) return EsitoAste::Troppe;
  for (; n > 0 && !FineFile(f); --n) {
    SezioneFile s;
    std::string scarto;
    s.numero = LeggiIntero(f);
    LeggiValore(f, s.nome);
    LeggiValore(f, scarto);
    for (int i = 0; i < RIGHE_SEZIONE && !FineFile(f); ++i) LeggiRiga(f, scarto);
    procedura(s);
  }
  return EsitoAste::Trovate;
}

static bool TogliPrefisso(std::string& nome) {  // "P_" marks a section of the library
  if (!nome.starts_with("P_")) return false;
  nome.erase(0, 2);
  return true;
}

// Of entries with one name the last.
static int CercaInLibreria(const std::string& senzaSpazi) {
  for (int i = suite.NumProfili; i >= 1; --i)
    if (SenzaSpazi(suite.ProfiliLib[i].Nome) == senzaSpazi) return i;
  return 0;
}

namespace {
// Positions of a list by their number, so that a file's bars find theirs without walking the list for each.
struct Posizioni {
  std::vector<std::pair<std::int32_t, int>> voci;
  Posizioni(const std::int16_t* lista, int quanti) {
    for (int i = 1; i <= quanti; ++i) voci.emplace_back(lista[i], i);
    std::sort(voci.begin(), voci.end());
  }
  auto Prima(std::int32_t numero) const { return std::lower_bound(voci.begin(), voci.end(), std::pair<std::int32_t, int>(numero, 0)); }
  bool Contiene(std::int32_t numero) const {
    const auto v = Prima(numero);
    return v != voci.end() && v->first == numero;
  }
};
}  // namespace

// Which end of the bar lies on the joint: the node given at the bar's own position first, then any listed node, first end before
// second; 0: none.
static std::int16_t LatoDiAsta(int posizione, const AstaStruttura& a, const Posizioni& nodi) {
  if (posizione <= nodo.NumNodiStr) {
    if (nodo.NodiStr[posizione] == a.nodo1) return 1;
    if (nodo.NodiStr[posizione] == a.nodo2) return 2;
  }
  if (nodi.Contiene(a.nodo1)) return 1;
  return nodi.Contiene(a.nodo2) ? 2 : 0;
}

static bool NodiPresenti(LettoreStruttura& l) {
  const Posizioni nodi(nodo.NodiStr, nodo.NumNodiStr);
  std::vector<bool> visti(static_cast<std::size_t>(nodo.NumNodiStr) + 1);
  NodoStruttura n;
  while (ProssimoNodo(l, n)) {
    std::int32_t numero = 0;
    if (!InIntero(n.v[0], numero)) continue;
    for (auto v = nodi.Prima(numero); v != nodi.voci.end() && v->first == numero; ++v) visti[static_cast<std::size_t>(v->second)] = true;
  }
  return std::all_of(visti.begin() + 1, visti.end(), [](bool visto) { return visto; });
}

static bool AsteCollegate(LettoreStruttura& l) {
  const Posizioni nodi(nodo.NodiStr, nodo.NumNodiStr);
  const Posizioni aste(collegamento.AsteNodo, collegamento.NumAsteNodo);
  AstaStruttura a;
  for (std::int32_t posto = 0; ProssimaAsta(l, a); ++posto) {
    for (auto v = aste.Prima(a.numero); v != aste.voci.end() && v->first == a.numero; ++v) {
      const std::int16_t lato = LatoDiAsta(v->second, a, nodi);
      if (lato == 0) return false;
      collegamento.AstaNodo[v->second] = posto;
      collegamento.LatoAsta[v->second] = lato;
    }
  }
  return true;
}

void AvvisaVersione() {
  Messaggio("Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Ambiente Grafico'", "ATTENZIONE!", Icona::Critica);
}

bool ApriStruttura(LettoreStruttura& l, std::string_view nomeFile, PrimoBlocco modo) {
  if (!ApriLettura(l.file, suite.DirLavoro + std::string(nomeFile))) return false;
  std::string riga;
  LeggiRiga(l.file, riga);
  ControllaVersione(riga, l);
  std::string testa = PrimiCaratteri(riga, 20);  // the counter stands in the first 20 characters
  for (std::int32_t n = InteroDaToken(testa); n > 0 && !FineFile(l.file); --n) {
    if (modo == PrimoBlocco::Righe) {
      LeggiRiga(l.file, riga);
      continue;
    }
    double scarto = 0;
    for (int i = 0; i < 3; ++i) LeggiValore(l.file, scarto);
  }
  return true;
}

void InizioBlocco(LettoreStruttura& l) {
  std::string riga;
  LeggiRiga(l.file, riga);
  l.restanti = InteroDaToken(riga);
}

bool ProssimoNodo(LettoreStruttura& l, NodoStruttura& n) {
  if (l.restanti <= 0 || FineFile(l.file)) return false;
  --l.restanti;
  n = {};
  for (double& v : n.v) LeggiValore(l.file, v);
  LeggiValore(l.file, n.testo);
  return true;
}

bool ProssimaAsta(LettoreStruttura& l, AstaStruttura& a) {
  if (l.restanti <= 0 || FineFile(l.file)) return false;
  --l.restanti;
  a = {};
  for (std::int32_t* v : {&a.nodo1, &a.nodo2, &a.tipoLinea, &a.colore}) *v = LeggiIntero(l.file);
  std::string riga;
  LeggiRiga(l.file, riga);
  a.numero = InteroDaToken(riga);
  a.sezione = InteroDaToken(riga);
  return true;
}

static void SaltaNodi(LettoreStruttura& l) {
  InizioBlocco(l);
  for (NodoStruttura n; ProssimoNodo(l, n);) {
  }
  InizioBlocco(l);
}

std::int16_t SezioneDiAsta(std::int16_t asta) {
  LettoreStruttura l;
  if (!ApriStruttura(l, "\\STRUTTUR.STR", PrimoBlocco::Terne)) {
    Messaggio("Errore in lettura del file STRUTTUR.STR", "VESTRAWIN", Icona::Esclamazione);
    return -1;
  }
  SaltaNodi(l);
  for (AstaStruttura a; ProssimaAsta(l, a);) {
    std::int16_t sezione = -1;
    if (a.numero == asta) return InIntero(static_cast<double>(a.sezione), sezione) ? sezione : std::int16_t{-1};
  }
  return -1;
}

int ProfiloDaAsta(std::int16_t asta) {
  const std::int16_t numero = SezioneDiAsta(asta);
  if (numero < 0) return 0;
  std::string nome;
  const std::string percorso = suite.DirLavoro + SEZIONI;
  if (PerOgniSezione(percorso, [&](const SezioneFile& s) {
        if (s.numero == numero) nome = s.nome;
      }) == EsitoAste::Fallito) {
    FileErrato(percorso, Icona::Esclamazione);
    return 0;
  }
  nome = SenzaSpazi(nome);
  TogliPrefisso(nome);
  const int profilo = CercaInLibreria(nome);
  if (profilo == 0) Messaggio("Il profilo della colonna non è applicabile", "INFORMAZIONE", Icona::Critica);
  return profilo;
}

EsitoAste AsteDelNodo(std::int16_t numeroNodo) {
  LettoreStruttura l;
  if (!ApriStruttura(l, STRUTTURA, PrimoBlocco::Righe)) {
    FileErrato(suite.DirLavoro + STRUTTURA, Icona::Nessuna);
    return EsitoAste::Fallito;
  }
  bool presente = false;
  InizioBlocco(l);
  for (NodoStruttura n; ProssimoNodo(l, n);) presente = presente || n.v[0] == numeroNodo;
  if (!presente) {
    Messaggio("Errore: nodo inesistente", "ERRORE", Icona::Nessuna);
    return EsitoAste::Fallito;
  }
  collegamento.NumAsteNodo = 0;
  InizioBlocco(l);
  for (AstaStruttura a; ProssimaAsta(l, a);) {
    std::int16_t numero = 0, sezione = 0;
    if ((a.nodo1 != numeroNodo && a.nodo2 != numeroNodo) || a.numero < 1) continue;
    if (!InIntero(static_cast<double>(a.numero), numero) || !InIntero(static_cast<double>(a.sezione), sezione)) continue;
    if (collegamento.NumAsteNodo == MaxAste) return EsitoAste::Troppe;
    const int i = ++collegamento.NumAsteNodo;
    collegamento.AsteNodo[i] = numero;
    collegamento.SezAsteNodo[i] = sezione;
  }
  return EsitoAste::Trovate;
}

EsitoAste SezioniAsteNodo() {
  const std::string percorso = suite.DirLavoro + SEZIONI;
  for (int i = 1; i <= collegamento.NumAsteNodo; ++i) collegamento.SezioniStr[i] = {};
  const Posizioni sezioni(collegamento.SezAsteNodo, collegamento.NumAsteNodo);
  const EsitoAste esito = PerOgniSezione(percorso, [&](const SezioneFile& s) {
    for (auto v = sezioni.Prima(s.numero); v != sezioni.voci.end() && v->first == s.numero; ++v)
      collegamento.SezioniStr[v->second].Nome = s.nome;
  });
  if (esito == EsitoAste::Fallito) FileErrato(percorso, Icona::Nessuna);
  if (esito != EsitoAste::Trovate) return esito;
  for (int i = 1; i <= collegamento.NumAsteNodo; ++i) {
    Sezione& s = collegamento.SezioniStr[i];
    std::string nome = SenzaSpazi(s.Nome);
    const int profilo = TogliPrefisso(nome) ? CercaInLibreria(nome) : 0;
    if (profilo == 0) {
      s.Nome = AllineaSinistra("Non app. " + std::string(Rifila(s.Nome)), LungNomeSez);
      continue;
    }
    const Sezione& p = suite.ProfiliLib[profilo];
    s.Nome = p.Nome;
    s.H = p.H;
    s.B = p.B;
    s.A = p.A;
    s.E = p.E;
    s.R = p.R;
  }
  return esito;
}

bool NodiAste() {
  for (int i = 1; i <= MaxAste; ++i) collegamento.AstaNodo[i] = -1;
  LettoreStruttura l;
  if (!ApriStruttura(l, STRUTTURA, PrimoBlocco::Righe)) {
    FileErrato(suite.DirLavoro + STRUTTURA, Icona::Esclamazione);
    return false;
  }
  InizioBlocco(l);
  if (!NodiPresenti(l)) {
    Messaggio("Errore: uno o più nodi inesistenti", "ERRORE", Icona::Esclamazione);
    return false;
  }
  InizioBlocco(l);
  if (!AsteCollegate(l)) {
    Messaggio("Errore: mancata corrispondenza fra aste e nodi", "ERRORE", Icona::Esclamazione);
    return false;
  }
  for (int i = 1; i <= collegamento.NumAsteNodo; ++i)
    if (collegamento.AstaNodo[i] < 0) collegamento.AsteNodo[i] = static_cast<std::int16_t>(-collegamento.AsteNodo[i]);
  return true;
}

bool CondizioniStruttura(std::int32_t& n) {
  LettoreStruttura l;
  if (!ApriStruttura(l, "\\STRUTTUR.STR", PrimoBlocco::Righe)) return false;
  SaltaNodi(l);
  for (AstaStruttura a; ProssimaAsta(l, a);) {
  }
  std::string riga;
  LeggiRiga(l.file, riga);
  n = InteroDaToken(riga);
  return true;
}
