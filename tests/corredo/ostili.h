// tests/corredo/ostili.h - readers fed with malformed files: cut at each byte and at each line, flipped, empty, binary, huge, with hostile
// counts, and at random. Each reading must end, show only the boxes told for it, and leave what the reader's own test asks for. Run it with
// the sanitizers. A test file that includes this defines Lettori() and instantiates the suite FileOstili.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "core/aritmetica.h"
#include "corredo/registratore.h"

// What a reading may say; a text is met if it ends so.
using Riquadri = std::vector<std::string>;

struct Lettore {
  const char* nome;
  const char* file;  // below the scratch folder
  int casuali;       // random files, thousands under the sanitizers
  std::string valido;
  void (*leggi)(const std::string& cartella);  // reads, then tests what it left
  Riquadri riquadri;
  Riquadri base = {};                                       // boxes that the valid file shows too
  void (*mancante)(const std::string& cartella) = nullptr;  // reads a file that cannot be opened and tests; else leggi does
  std::vector<std::string> corpo = {};                      // files met before or thought of, read as they are
};
const std::vector<Lettore>& Lettori();

inline void Finiti(std::initializer_list<double> valori) {
  for (const double v : valori) ASSERT_TRUE(std::isfinite(v));
}

inline void SenzaFault() {
  EXPECT_FALSE(FaultAritmetico());
  AzzeraFault();
}

inline void Altro(const std::string& cartella, const char* file, const std::string& byte) { ScriviByte(cartella + "/" + file, byte); }

// Random files are bounded by count, so that no test depends on how long something takes. Under the sanitizers the readers of the model
// and of the small programs' answers take about twenty seconds each on a core of 2.6 GHz, those of the start five.
#if defined(__SANITIZE_ADDRESS__)
constexpr int CASUALI = 1000;
#else
constexpr int CASUALI = 1;
#endif

struct FileOstili : testing::TestWithParam<std::size_t> {
  const Lettore& l = Lettori()[GetParam()];
  std::string cartella;
  void SetUp() override { cartella = CartellaProva("ostili"); }
  void Prova(const std::string& byte) {
    registratore.eventi.clear();
    AzzeraFault();
    ScriviByte(cartella + "/" + l.file, byte);
    l.leggi(cartella);
    SoloRiquadri(l.riquadri);
  }
  void SoloRiquadri(const Riquadri& riquadri) {
    for (const std::string& e : registratore.eventi) {
      bool noto = e.starts_with("[programma] ");
      for (const std::string& r : riquadri) noto = noto || e.ends_with(r);
      EXPECT_TRUE(noto) << l.nome << ": " << e.substr(0, 300);
    }
  }
  void Inizio() { MontaRegistratore(); }
};

TEST_P(FileOstili, ValidoComeBase) {  // the base of the others is read as it should be
  Inizio();
  Prova(l.valido);
  SoloRiquadri(l.base);
}

TEST_P(FileOstili, Corpo) {
  Inizio();
  for (const std::string& t : l.corpo) Prova(t);
}

TEST_P(FileOstili, TroncatoOvunque) {
  Inizio();
  for (std::size_t n = 0; n < l.valido.size(); ++n) Prova(l.valido.substr(0, n));
}

TEST_P(FileOstili, SenzaUnaRiga) {
  Inizio();
  for (std::size_t p = 0; p < l.valido.size();) {
    const std::size_t fine = l.valido.find('\n', p);
    const std::size_t dopo = fine == std::string::npos ? l.valido.size() : fine + 1;
    Prova(l.valido.substr(0, p) + l.valido.substr(dopo));
    Prova(l.valido.substr(dopo));
    p = dopo;
  }
}

TEST_P(FileOstili, ByteCambiati) {
  Inizio();
  std::mt19937 caso(20080114);
  for (std::size_t n = 0; n < l.valido.size(); ++n) {
    std::string t = l.valido;
    t[n] = static_cast<char>(t[n] ^ (1 << caso() % 8));
    Prova(t);
    t[n] = static_cast<char>(caso() % 256);
    Prova(t);
  }
}

TEST_P(FileOstili, ContiENumeriOstili) {
  Inizio();
  const char* numeri[] = {"-1",  "32767", "99999",  "1e400",      "-1e400", "1e308",
                          "nan", "inf",   "1e-400", "2147483648", "-32769", "99999999999999999999999999"};
  for (std::size_t p = 0; p < l.valido.size();) {  // each number of the file replaced
    if (l.valido[p] < '0' || l.valido[p] > '9') {
      ++p;
      continue;
    }
    std::size_t q = p;
    while (q < l.valido.size() && (isdigit(static_cast<unsigned char>(l.valido[q])) || l.valido[q] == '.')) ++q;
    for (const char* n : numeri) Prova(l.valido.substr(0, p) + n + l.valido.substr(q));
    p = q;
  }
}

TEST_P(FileOstili, VuotoBinarioEnorme) {
  Inizio();
  Prova("");
  Prova("\r\n");
  Prova(std::string(1, '\0'));
  Prova("\xEF\xBB\xBF" + l.valido);
  Prova(std::string(1u << 20, '\0'));
  Prova(std::string(2u << 20, 'x'));
  Prova(std::string(2u << 20, ' '));
  Prova(std::string(2u << 20, '7'));
  Prova(std::string(2u << 20, '"'));
  Prova(l.valido + std::string(2u << 20, '[') + "\r\n" + l.valido);
  Prova(std::string(1u << 18, '\r'));
  Prova(std::string(1u << 18, '|'));
  Prova(std::string(1u << 18, ','));
  std::mt19937 caso(4242);
  for (int i = 0; i < 4; ++i) {
    std::string t(1u << 17, '\0');
    for (char& c : t) c = static_cast<char>(caso() % 256);
    Prova(t);
    Prova(l.valido + t);
  }
}

TEST_P(FileOstili, MancanteOCartella) {
  Inizio();
  std::filesystem::create_directories(cartella + "/" + l.file);  // a folder in the file's place: cannot be opened
  if (l.mancante != nullptr) {
    l.mancante(cartella);
    return;
  }
  AzzeraFault();
  l.leggi(cartella);
  for (const std::string& e : registratore.eventi)
    EXPECT_TRUE(e.ends_with("errato o mancante") || e.ends_with("errato o mancante.") || e.ends_with("nell'apposita sezione")) << e;
}

// A few changes at a time: bytes set, runs doubled or taken out, pieces exchanged, numbers put in.
inline std::string Guasta(std::string t, std::mt19937& caso) {
  const char* const pezzi[] = {"-1", "0", "32768", "2147483647", "1e308", ",", "\r\n", "\"", "|", " ", "*END*", "P_", "TIPOVER="};
  for (unsigned k = 1 + caso() % 4; k > 0; --k) {
    const std::size_t n = t.size() + 1, p = caso() % n, q = p + caso() % (n - p), lungo = std::min<std::size_t>(q - p, 200);
    switch (caso() % 5) {
      case 0:
        if (p < t.size()) t[p] = static_cast<char>(caso() % 256);
        break;
      case 1: t.erase(p, lungo); break;
      case 2: t.insert(p, t.substr(p, lungo)); break;
      case 3: t.insert(p, pezzi[caso() % std::size(pezzi)]); break;
      case 4: t.insert(caso() % n, t.substr(p, lungo)); break;
    }
  }
  return t;
}

TEST_P(FileOstili, Casuale) {
  Inizio();
  std::mt19937 caso(1968);
  for (int k = 0; k < l.casuali * CASUALI && !HasFailure(); ++k) {
    const std::string t = Guasta(l.valido, caso);
    Prova(t);
    if (HasFailure()) ADD_FAILURE() << "file " << k << " of the random ones, " << t.size() << " bytes";
  }
}
