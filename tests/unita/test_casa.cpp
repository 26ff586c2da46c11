// The house as text: rooms in one direction, no ring of files, what the engine reaches, one type a name, words that give no reason. Each
// rule is first shown to find what breaks it.
#include <gtest/gtest.h>

#include "corredo/casa.h"

namespace {

const std::string RADICE = QB07_RADICE;

const Sorgenti& Casa() {
  static const Sorgenti s = LeggiSorgenti(RADICE + "/src");
  return s;
}

std::string Elenco(const Rilievi& r) {
  std::string t;
  for (const std::string& riga : r) t += riga + "\n";
  return t;
}

}  // namespace

TEST(Casa, LeStanzeVannoInUnSensoSolo) {
  ASSERT_GT(Casa().size(), 100u);
  EXPECT_EQ(Elenco(FrecceAllaRovescia(Casa())), "");
}

TEST(Casa, FrecceAllaRovesciaTrovate) {
  // clang-format off
  Sorgenti s = {{"model/nodo.h", ""}, {"core/file.h", "#include \"model/nodo.h\"\n"}, {"engine/a.h", ""}, {"reports/a.h", ""},
                {"link/a.h", ""},     {"panels/a.h", "#include \"reports/a.h\"\n"},     {"app/qt/a.h", "#include \"app/b.h\"\n"}, {"app/b.h", ""}};
  // clang-format on
  EXPECT_EQ(Elenco(FrecceAllaRovescia(s)), "");
  s["model/nodo.h"] = "#include <vector>\n#include \"core/file.h\"\n";
  s["engine/a.h"] = "  #  include \"reports/a.h\"\n";
  s["link/a.h"] = "#include \"reports/a.h\"\n";  // beside one another
  s["reports/a.h"] = "#include \"panels/a.h\"\n";
  s["varie/a.h"] = "";
  EXPECT_EQ(Elenco(FrecceAllaRovescia(s)),
            "engine/a.h: includes reports/a.h\nlink/a.h: includes reports/a.h\nmodel/nodo.h: includes core/file.h\n"
            "reports/a.h: includes panels/a.h\nvarie/a.h: in no room\n");
}

TEST(Casa, NessunAnelloDiFile) { EXPECT_EQ(Elenco(AnelliDiFile(Casa())), ""); }

TEST(Casa, AnelliTrovati) {
  Sorgenti s = {{"core/a.h", ""},
                {"core/a.cpp", "#include \"core/a.h\"\n#include \"core/b.h\"\n"},
                {"core/b.h", ""},
                {"core/b.cpp", "#include \"core/c.h\"\n"},
                {"core/c.h", ""}};
  EXPECT_EQ(Elenco(AnelliDiFile(s)), "");  // a header and its source are no ring
  s["core/c.cpp"] = "#include \"core/a.h\"\n";
  EXPECT_EQ(Elenco(AnelliDiFile(s)), "core/a: ring with core/b core/c\n");
}

TEST(Casa, IlMotoreNonRaggiungeAltro) { EXPECT_EQ(Elenco(PortataDelMotore(Casa())), ""); }

TEST(Casa, PortataDelMotoreTrovata) {
  Sorgenti s = {{"engine/a.cpp", "#include \"engine/a.h\"\n"},
                {"engine/a.h", "#include \"core/a.h\"\n"},
                {"core/a.h", "#include \"model/stato.h\"\n"},
                {"model/stato.h", "inline Nodo nodo;"},
                {"panels/a.h", "inline Panno panno;\n"}};
  EXPECT_EQ(Elenco(PortataDelMotore(s)), "model/stato.h: reached from engine\nmodel/stato.h: mutable: inline Nodo nodo\n");
  s["model/stato.h"] = "";
  s["core/a.h"] = "";
  for (const char* file : {"panels/a.h", "reports/a.h", "results/a.h", "app/batch/a.h", "drawing/a.h", "link/a.h", "materials/a.h",
                           "core/piattaforma.h", "core/aritmetica.h", "model/stato.h"}) {
    s[file] = "";
    s["core/a.h"] = std::string("#include \"") + file + "\"\n";
    EXPECT_EQ(Elenco(PortataDelMotore(s)), std::string(file) + ": reached from engine\n");
  }
}

TEST(Casa, VariabiliDelMotoreTrovate) {
  // clang-format off
  const char* const mutabili[] = {"inline int conta = 0;", "static double v;", "int tabella[3] = {1, 2, 3};", "const char* testo = \"const\";", "namespace { S s{}; }",
                                  "struct S { int a; } s;", "thread_local int n;", "void (*chiama)(int) = nullptr;", "void F() { static int volte = 0; ++volte; }",
                                  "inline std::vector<int> lista;", "namespace prova { inline S s; }"};
  // clang-format on
  for (const char* t : mutabili) EXPECT_EQ(PortataDelMotore({{"engine/a.h", t}}).size(), 1u) << t;
  // clang-format off
  const char* const fisse[] = {"constexpr int N = 3;", "inline constexpr double K[] = {1, 2};", "const S TABELLA[] = {{1}, {2}};", "static const char* const NOMI[] = {\"a;\", \"b\"};",
                               "struct S { int a = 0; static int F(); };", "int F(int a = 0);", "static double G(double x) { double y = x; return y; }", "// inline int a;\n",
                               "/* int b; */", "#define A int c;\n", "using T = int;", "enum class E { A, B };", "template <class T> T H(T t) { return t; }", "struct D;",
                               "void F() { static const S VUOTO; static constexpr int K = 1; }", "static_assert(sizeof(int) == 4);", "char F() { return ';'; }"};
  // clang-format on
  for (const char* t : fisse) EXPECT_EQ(Elenco(PortataDelMotore({{"engine/a.cpp", t}})), "") << t;
}

TEST(Casa, UnTipoUnNome) { EXPECT_EQ(Elenco(TipiDoppi(Casa())), ""); }

TEST(Casa, TipiDoppiTrovati) {
  const std::string aperto = "struct Voce {\n  int a;\n};\n", chiuso = "namespace {\n" + aperto + "void F() {}\n}  // namespace\n";
  EXPECT_EQ(Elenco(TipiDoppi({{"core/a.cpp", chiuso}, {"core/b.cpp", chiuso}, {"core/c.h", "struct Voce;\nstruct Altra { Voce* v; };"}})),
            "");
  EXPECT_EQ(Elenco(TipiDoppi({{"core/a.cpp", chiuso}, {"core/b.cpp", aperto}})), "core/a.cpp: Voce also in core/b.cpp\n");
  EXPECT_EQ(Elenco(TipiDoppi({{"core/a.cpp", "enum class Voce : int { A };"}, {"core/b.cpp", aperto}})),
            "core/a.cpp: Voce also in core/b.cpp\n");
}

TEST(Casa, CioCheEDiUnFileSolo) { EXPECT_EQ(Elenco(FormaLocale(Casa())), ""); }

TEST(Casa, FormaLocaleTrovata) {
  Sorgenti s = {
    {"core/a.h", "struct Nota;\nstruct Aperta { int a; };\nNota* Nuova();"},
    {"core/a.cpp",
     "namespace {\nstruct Voce { int a; };\nenum class E { A };\n}\nstruct Nota { int b; };\nstatic void F() {}\nconstexpr Voce V[] = {{1}};\n"}};
  EXPECT_EQ(Elenco(FormaLocale(s)), "");
  s["core/b.cpp"] = "namespace {\nvoid F(int a) { return; }\nconstexpr int N = 3;\nint conta = 0;\n}\nstruct Voce { int a; };\n";
  EXPECT_EQ(Elenco(FormaLocale(s)), "core/b.cpp: not static: void F(int a) {}\ncore/b.cpp: not static: constexpr int N = 3\n"
                                    "core/b.cpp: not static: int conta = 0\ncore/b.cpp: open type Voce\n");
}

TEST(Casa, NessunaParolaSenzaRagione) {
  for (const char* cartella : {"/src", "/tests", "/bench", "/samples"})
    EXPECT_EQ(Elenco(ParoleVietate(LeggiSorgenti(RADICE + cartella))), "") << cartella;
}

TEST(Casa, ParoleVietateTrovate) {
  EXPECT_EQ(Elenco(ParoleVietate({{"a.h", "// by 100 (Deliber"
                                          "ate)"},
                                  {"b.h", "// safe: a tenth"},
                                  {"c.h", "// the rules "
                                          "say so"}})),
            "a.h: \"deliber"
            "ate\"\nc.h: \"the rules "
            "say\"\n");
}
