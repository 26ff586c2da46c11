// core/sha256.h - the fingerprint of a file's bytes, FIPS 180-4.
#pragma once
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

struct Sha256 {
  std::array<std::uint32_t, 8> stato = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a, 0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
  std::array<unsigned char, 64> blocco = {};
  std::size_t pieni = 0;   // bytes waiting in blocco
  std::uint64_t byte = 0;  // taken so far
};
void AggiungiSha256(Sha256& s, std::string_view byte);
std::string ChiudiSha256(Sha256& s);  // 64 hexadecimal digits, lower case; s is spent
std::string Sha256Di(std::string_view byte);
