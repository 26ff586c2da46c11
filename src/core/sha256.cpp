// core/sha256.cpp - the compression of a block, and the padding of the last one.
#include "core/sha256.h"

#include <algorithm>
#include <bit>
#include <utility>

constexpr std::array<std::uint32_t, 64> K = {
  0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5, 0xd807aa98, 0x12835b01, 0x243185be,
  0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174, 0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa,
  0x5cb0a9dc, 0x76f988da, 0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967, 0x27b70a85,
  0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85, 0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3,
  0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070, 0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f,
  0x682e6ff3, 0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2,
};

static std::uint32_t Parola(const unsigned char* p) {
  return std::uint32_t{p[0]} << 24 | std::uint32_t{p[1]} << 16 | std::uint32_t{p[2]} << 8 | std::uint32_t{p[3]};
}

static std::array<std::uint32_t, 64> Espandi(const std::array<unsigned char, 64>& blocco) {
  std::array<std::uint32_t, 64> w = {};
  for (std::size_t t = 0; t < 16; ++t) w[t] = Parola(&blocco[4 * t]);
  for (std::size_t t = 16; t < 64; ++t) {
    const std::uint32_t s0 = std::rotr(w[t - 15], 7) ^ std::rotr(w[t - 15], 18) ^ (w[t - 15] >> 3);
    const std::uint32_t s1 = std::rotr(w[t - 2], 17) ^ std::rotr(w[t - 2], 19) ^ (w[t - 2] >> 10);
    w[t] = w[t - 16] + s0 + w[t - 7] + s1;
  }
  return w;
}

// One round; the eight words turn by their places instead of being moved. r: the round's number within eight.
template <std::size_t r>
static void Giro(std::array<std::uint32_t, 8>& v, std::uint32_t kw) {
  constexpr auto posto = [](std::size_t n) { return (n + 8 - r) % 8; };
  const std::uint32_t a = v[posto(0)], b = v[posto(1)], c = v[posto(2)], e = v[posto(4)], f = v[posto(5)], g = v[posto(6)];
  const std::uint32_t T1 = v[posto(7)] + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) + ((e & f) ^ (~e & g)) + kw;
  const std::uint32_t T2 = (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
  v[posto(3)] += T1;
  v[posto(7)] = T1 + T2;
}

static void Comprimi(Sha256& s) {
  const std::array<std::uint32_t, 64> w = Espandi(s.blocco);
  std::array<std::uint32_t, 8> v = s.stato;  // a .. h
  for (std::size_t t = 0; t < 64; t += 8) [&]<std::size_t... r>(std::index_sequence<r...>) {
      (Giro<r>(v, K[t + r] + w[t + r]), ...);
    }
  (std::make_index_sequence<8>());
  for (std::size_t k = 0; k < v.size(); ++k) s.stato[k] += v[k];
  s.pieni = 0;
}

void AggiungiSha256(Sha256& s, std::string_view byte) {
  s.byte += byte.size();
  while (!byte.empty()) {
    const std::size_t n = std::min(byte.size(), s.blocco.size() - s.pieni);
    std::copy_n(byte.begin(), n, s.blocco.begin() + static_cast<std::ptrdiff_t>(s.pieni));
    s.pieni += n;
    byte.remove_prefix(n);
    if (s.pieni == s.blocco.size()) Comprimi(s);
  }
}

std::string ChiudiSha256(Sha256& s) {
  const std::uint64_t bit = s.byte * 8;
  AggiungiSha256(s, std::string_view("\x80", 1));
  while (s.pieni != 56) AggiungiSha256(s, std::string_view("\0", 1));
  std::string lunghezza;
  for (int k = 56; k >= 0; k -= 8) lunghezza += static_cast<char>(bit >> k & 0xff);
  AggiungiSha256(s, lunghezza);
  std::string cifre;
  for (const std::uint32_t p : s.stato)
    for (int k = 28; k >= 0; k -= 4) cifre += "0123456789abcdef"[p >> k & 0xf];
  return cifre;
}

std::string Sha256Di(std::string_view byte) {
  Sha256 s;
  AggiungiSha256(s, byte);
  return ChiudiSha256(s);
}
