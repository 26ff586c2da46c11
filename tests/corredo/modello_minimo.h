// tests/corredo/modello_minimo.h - a structure of four nodes and three bars, small enough to be followed by hand, and result files.
#pragma once
#include <cstdint>
#include <string>
#include <vector>

// Nodes 10, 20, 30, 40 (number, x, y, name, text); bars: 5 from 10 to 20, section 1, line 1, colour 2; 6 from 20 to 30, section 2,
// line 2, colour 10; 7 from 30 to 20, section 1, line 4, colour 3. Two load conditions.
inline const std::string STRUTTURA_MINIMA =
  "Vestibolo RELEASE 4.1\r\n 2 altro\r\n1 2 3\r\n4 5 6\r\n 4 nodi\r\n"
  "10, 0, 0, 10,\"a\"\r\n20, 0, 0, 20,\"b\"\r\n30, 0, 4, 30,\"c\"\r\n40, 4, 4, 40,\"d\"\r\n"
  " 3 aste\r\n10,20,1,2\r\n 5 1 0\r\n20,30,2,10\r\n 6 2 0\r\n30,20,4,3\r\n 7 1 0\r\n 2 condizioni\r\n";

inline const std::string SEZIONI_MINIME =
  "2\r\n1,\"P_HE A 200\",0\r\nr1\r\nr2\r\nr3\r\nr4\r\n2,\"Composta 1\",0\r\nr1\r\nr2\r\nr3\r\nr4\r\n";

struct RecordRisultati {
  std::int16_t asta;
  double N, Ty, Tz, Mt, My, Mz;
};

template <class T>
void AggiungiByte(std::string& b, T v) {
  b.append(reinterpret_cast<const char*>(&v), sizeof v);
}

// A result file: header, then the records in the order given, 56 bytes each.
inline std::string FileRisultatiDi(std::int16_t aste, std::int32_t sezioni, std::int32_t sestetti,
                                   const std::vector<RecordRisultati>& record) {
  std::string b;
  AggiungiByte(b, aste);
  AggiungiByte(b, std::int16_t{0});
  AggiungiByte(b, sezioni);
  AggiungiByte(b, sestetti);
  b.resize(56, ' ');
  for (const RecordRisultati& r : record) {
    std::string k;
    AggiungiByte(k, r.asta);
    k.resize(8, '\0');
    for (const double v : {r.N, r.Ty, r.Tz, r.Mt, r.My, r.Mz}) AggiungiByte(k, v);
    b += k;
  }
  return b;
}
