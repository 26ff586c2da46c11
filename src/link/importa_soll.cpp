// link/importa_soll.cpp - the import proper: binary records, list and envelope.
#include "link/importa_soll.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <fstream>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

#include "core/file.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "link/collegamento.h"
#include "model/stato.h"

constexpr std::int64_t RECORD = 56;    // bytes
constexpr std::int64_t VALORI = 8;     // byte of a record at which its six values begin
constexpr std::int64_t BLOCCO = 4096;  // records read at once
constexpr int RIGHE_INVILUPPO = 12;
constexpr double ESTREMO = 1E20;         // what a row of the envelope holds until a sextet beats it
constexpr int ESPONENTE_MASSIMO = 1000;  // a value of 2^1000 or more cannot be rounded, and is no load

namespace {
struct Sestetto {
  double N = 0, Ty = 0, Tz = 0, Mt = 0, My = 0, Mz = 0;
};
}  // namespace

// Component of each pair of envelope rows: odd row the largest, even row the smallest.
constexpr double Sestetto::*COMPONENTI[] = {&Sestetto::N, &Sestetto::Tz, &Sestetto::Ty, &Sestetto::My, &Sestetto::Mz, &Sestetto::Mt};

namespace {
struct FileRisultati {
  std::ifstream file;
  std::int64_t lunghezza = 0;
  std::int16_t NumAsteFile = 0;
  std::int32_t NumSezioni = 0, NumSestettiFile = 0;
};
}  // namespace

template <class T>
static T DaByte(const char* byte) {  // little-endian, whatever the machine
  unsigned char b[sizeof(T)];
  std::memcpy(b, byte, sizeof b);
  if constexpr (std::endian::native == std::endian::big) std::reverse(b, b + sizeof b);
  T v;
  std::memcpy(&v, b, sizeof v);
  return v;
}

static bool LeggiByte(FileRisultati& f, std::int64_t posto, char* byte, std::int64_t quanti) {
  if (posto < 0 || posto > f.lunghezza - quanti) return false;
  f.file.clear();
  return f.file.seekg(posto) && f.file.read(byte, quanti);
}

static bool Apri(FileRisultati& f, const std::string& percorso) {
  if (!EsisteFile(percorso)) return false;
  f.file.rdbuf()->pubsetbuf(nullptr, 0);  // few bytes at many places: nothing is read ahead
  f.file.open(RisolviPercorso(percorso), std::ios::binary | std::ios::ate);
  if (!f.file) return false;
  f.lunghezza = f.file.tellg();
  char b[RECORD] = {};
  if (!LeggiByte(f, 0, b, 12)) return true;  // no header: no bars
  f.NumAsteFile = DaByte<std::int16_t>(b);
  f.NumSezioni = DaByte<std::int32_t>(b + 4);
  f.NumSestettiFile = DaByte<std::int32_t>(b + 8);
  return true;
}

// Byte at which a record begins; -1: it would lie outside the file.
static std::int64_t PostoRecord(const FileRisultati& f, std::int64_t p, std::int64_t q, std::int64_t t) {
  const std::int64_t record = f.lunghezza / RECORD;
  if (f.NumSezioni <= 0 || f.NumSestettiFile <= 0 || p < 0) return -1;
  const std::int64_t perAsta = static_cast<std::int64_t>(f.NumSezioni) * f.NumSestettiFile;
  if (p > 0 && perAsta > record / p) return -1;  // the product below stays within 64 bits
  const std::int64_t n = p * perAsta + (q - 1) * f.NumSestettiFile + t;
  return n < record ? n * RECORD : -1;
}

// The file's own places of the bars overwrite those of the structure file.
static void PostiDelleAste(FileRisultati& f) {
  Collegamento& c = collegamento;
  std::vector<std::pair<std::int16_t, int>> voci;
  for (int i = 1; i <= c.NumAsteNodo; ++i) voci.emplace_back(c.AsteNodo[i], i);
  std::sort(voci.begin(), voci.end());
  for (std::int32_t p = 0; p < f.NumAsteFile; ++p) {
    char b[2];
    const std::int64_t posto = PostoRecord(f, p, 1, 1);
    if (posto < 0 || !LeggiByte(f, posto, b, 2)) return;
    const auto numero = DaByte<std::int16_t>(b);
    for (auto v = std::lower_bound(voci.begin(), voci.end(), std::pair(numero, 0)); v != voci.end() && v->first == numero; ++v)
      c.AstaNodo[v->second] = p;
  }
}

// Told from the exponent's bits, which infinities and not-a-numbers share: to compare one of these would be an arithmetic fault.
static bool Arrotondabile(const char* b) { return static_cast<int>(DaByte<std::uint64_t>(b) >> 52 & 0x7FF) - 1023 < ESPONENTE_MASSIMO; }

static bool Decifra(const char* b, std::int16_t lato, Sestetto& s) {
  double v[6];
  for (int k = 0; k < 6; ++k) {
    const char* byte = b + VALORI + 8 * k;
    if (!Arrotondabile(byte)) return false;
    v[k] = DaByte<double>(byte);
  }
  s = {Arrotonda1(v[0]), Arrotonda1(v[1]), Arrotonda1(v[2]), ArrotondaPari(v[3], 0), ArrotondaPari(v[4], 0), ArrotondaPari(v[5], 0)};
  if (lato == 2) s.Ty = -s.Ty;
  for (double* v : {&s.N, &s.Ty, &s.Tz, &s.Mt, &s.My, &s.Mz}) *v += 0.0;  // no negative zero in the list
  return true;
}

static void MettiRiga(int n, const Sestetto& s, const std::string& nome) {
  nodo.SollN[n] = s.N;
  nodo.SollTy[n] = s.Ty;
  nodo.SollTz[n] = s.Tz;
  nodo.SollMt[n] = s.Mt;
  nodo.SollMy[n] = s.My;
  nodo.SollMz[n] = s.Mz;
  nodo.SollNome[n] = nome;
  nodo.SollCC[n] = 0;
}

static Sestetto RigaDi(int n) { return {nodo.SollN[n], nodo.SollTy[n], nodo.SollTz[n], nodo.SollMt[n], nodo.SollMy[n], nodo.SollMz[n]}; }

static void AzzeraInviluppo() {
  nodo.NumSoll = RIGHE_INVILUPPO;
  for (int i = 1; i <= RIGHE_INVILUPPO; ++i) {
    const double v = i % 2 == 0 ? ESTREMO : -ESTREMO;
    MettiRiga(i, {v, v, v, v, v, v}, {});
  }
}

static void Inviluppa(const Sestetto& s, const std::string& nome) {
  for (int i = 1; i <= RIGHE_INVILUPPO; ++i) {
    const auto componente = COMPONENTI[(i - 1) / 2];
    const double ora = RigaDi(i).*componente;
    if (i % 2 == 1 ? s.*componente > ora : s.*componente < ora) MettiRiga(i, s, nome);
  }
}

static void TroppeSollecitazioni() { Messaggio("Errore: numero di sollecitazioni eccessivo", "ERRORE", Icona::Esclamazione); }

namespace {
// How often the list of sextets asks for each: its zeros for all of them, any other number for one.
struct Richieste {
  int tutti = 0;
  std::vector<int> uno;  // by sextet
  Richieste() {
    for (int i = 1; i <= collegamento.NumSestettiStr; ++i) {
      const std::int16_t n = collegamento.SestettiStr[i];
      if (n == 0) ++tutti;
      if (n <= 0) continue;
      if (std::ssize(uno) <= n) uno.resize(static_cast<std::size_t>(n) + 1);
      ++uno[static_cast<std::size_t>(n)];
    }
  }
  int Volte(std::int64_t t) const { return tutti + (t < std::ssize(uno) ? uno[static_cast<std::size_t>(t)] : 0); }
  std::int64_t Ultimo(std::int64_t quanti) const { return tutti > 0 ? quanti : std::min<std::int64_t>(quanti, std::ssize(uno) - 1); }
};
}  // namespace

static void Conta(std::int32_t& n, int quanti) {  // a file may hold more than the counts do
  n = static_cast<std::int32_t>(std::min<std::int64_t>(std::numeric_limits<std::int32_t>::max(), std::int64_t{n} + quanti));
}

static bool StessiValori(const char* a, const char* b) { return std::memcmp(a + VALORI, b + VALORI, RECORD - VALORI) == 0; }

// False: the list is full.
static bool MettiInLista(const Sestetto& s, const std::string& nome, int volte) {
  for (; volte > 0; --volte) {
    if (nodo.NumSoll >= MaxSoll) {
      TroppeSollecitazioni();
      return false;
    }
    Conta(collegamento.Presi, 1);
    MettiRiga(++nodo.NumSoll, s, nome);
  }
  return true;
}

// The sextets of one bar at its end's section, read in blocks: their number is the file's, which may say any.
static bool PrendiAsta(FileRisultati& f, const Richieste& r, int i, const std::string& origine, bool maxMin) {
  Collegamento& c = collegamento;
  const std::int64_t primo = PostoRecord(f, c.AstaNodo[i], c.LatoAsta[i] == 2 ? f.NumSezioni : 1, 1);
  if (primo < 0) return true;
  const std::string nome = origine + " As. " + std::to_string(c.AsteNodo[i]) + " Nd. " + std::to_string(nodo.NodiStr[i]);
  const std::int64_t quanti = r.Ultimo(std::min<std::int64_t>(f.NumSestettiFile, (f.lunghezza - primo) / RECORD));
  std::vector<char> byte(static_cast<std::size_t>(std::clamp<std::int64_t>(quanti, 0, BLOCCO) * RECORD));
  Sestetto s;
  bool valido = false;
  for (std::int64_t da = 0; da < quanti; da += BLOCCO) {
    const std::int64_t n = std::min(BLOCCO, quanti - da);
    if (!LeggiByte(f, primo + da * RECORD, byte.data(), n * RECORD)) return true;
    for (std::int64_t k = 0; k < n; ++k) {
      const int volte = r.Volte(da + k + 1);
      if (volte == 0) continue;
      const char* const record = byte.data() + k * RECORD;
      const bool ripetuto = k > 0 && r.tutti > 0 && StessiValori(record, record - RECORD);  // beats no row that the one before it did not
      Conta(c.Letti, 1);
      if (!ripetuto) valido = Decifra(record, c.LatoAsta[i], s);
      if (!valido) continue;
      if (!maxMin) {
        if (!MettiInLista(s, nome, volte)) return false;
        continue;
      }
      Conta(c.Presi, volte);
      if (!ripetuto) Inviluppa(s, nome);
    }
  }
  return true;
}

static bool ImportaFile(bool condizione, int numero, bool maxMin) {
  Collegamento& c = collegamento;
  FileRisultati f;
  const std::string percorso = suite.DirLavoro + "\\" + NomeFileRisultati(condizione, numero);
  if (!Apri(f, percorso)) {
    Messaggio("Errore: file " + percorso + " errato o mancante.", "ERRORE", Icona::Esclamazione);
    return false;
  }
  PostiDelleAste(f);
  if (!maxMin && nodo.NumSoll + static_cast<std::int64_t>(c.NumAsteNodo) * f.NumSestettiFile > MaxSoll) {
    TroppeSollecitazioni();
    nodo.NumSoll = 0;
    return false;
  }
  const std::string origine = (condizione ? "Cond " : "Caso ") + std::to_string(numero);
  const Richieste richieste;
  for (int i = 1; i <= c.NumAsteNodo; ++i)
    if (c.AsteNodo[i] > 0 && !PrendiAsta(f, richieste, i, origine, maxMin)) return false;
  return true;
}

std::string NomeFileRisultati(bool condizione, int numero) {
  std::string cifre = std::to_string(numero);
  if (cifre.size() > 3) cifre = cifre.substr(cifre.size() - 3);
  return std::string(condizione ? "aste_" : "astec") + std::string(3 - cifre.size(), '0') + cifre + ".bin";
}

void ImportaSollecitazioni(bool maxMin) {
  Collegamento& c = collegamento;
  c.Letti = c.Presi = 0;
  if (maxMin) AzzeraInviluppo();
  bool avanti = true;
  for (int k = 1; avanti && k <= c.NumCasiStr + c.NumCondStr; ++k) {
    const bool condizione = k > c.NumCasiStr;
    avanti = ImportaFile(condizione, condizione ? c.CondStr[k - c.NumCasiStr] : c.CasiStr[k], maxMin);
  }
  for (int s = 1; avanti && s <= nodo.NumSoll; ++s) nodo.SollCC[s] = 0;  // also the rows that were there before
}
