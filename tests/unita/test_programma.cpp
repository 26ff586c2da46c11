// Every state record of the program goes back to its start: the records declared in the sources against the reset's own list.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

std::string Testo(const fs::path& p) {
  std::ifstream f(p, std::ios::binary);
  return {std::istreambuf_iterator<char>(f), {}};
}

// Names of the records that the headers of a room declare at namespace scope.
std::set<std::string> Dichiarati() {
  static const std::regex RECORD("(^|\n)inline [A-Z][A-Za-z0-9]* ([a-z][A-Za-z0-9]*)( = [^;\n]*)?;");
  std::set<std::string> nomi;
  for (const auto& v : fs::recursive_directory_iterator(QB07_RADICE "/src")) {
    if (v.path().extension() != ".h" || v.path().string().find("/src/app/") != std::string::npos) continue;
    const std::string t = Testo(v.path());
    for (std::sregex_iterator i(t.begin(), t.end(), RECORD), fine; i != fine; ++i) nomi.insert((*i)[2]);
  }
  return nomi;
}

}  // namespace

TEST(Programma, OgniRecordTornaAlSuoInizio) {
  const std::string azzera = Testo(QB07_RADICE "/src/panels/programma.cpp");
  std::set<std::string> nomi = Dichiarati();
  EXPECT_GT(nomi.size(), 20u);
  EXPECT_EQ(nomi.erase("piattaforma"), 1u);  // the operations of the outside stay
  EXPECT_EQ(nomi.erase("lavoro"), 1u);       // has a reset of its own, which ties it to the joint
  EXPECT_NE(azzera.find("  AzzeraLavoro();"), std::string::npos);
  for (const std::string& n : nomi) EXPECT_NE(azzera.find("  " + n + " = "), std::string::npos) << n;
}
