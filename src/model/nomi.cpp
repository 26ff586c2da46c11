// model/nomi.cpp - the name parser and the tables of the model's names.
#include "model/nomi.h"

#include <algorithm>
#include <charconv>

#include "model/stato.h"

// offsetof is defined for these layouts.
static_assert(std::is_standard_layout_v<Sezione> && std::is_standard_layout_v<MatAcciaio> && std::is_standard_layout_v<MatCls> &&
              std::is_standard_layout_v<MatViti> && std::is_standard_layout_v<MatCA>);

static std::string TestoReale(double v) {  // %.15g, whatever the locale
  char a[40];
  const auto fine = std::to_chars(a, a + sizeof a, v, std::chars_format::general, 15);
  return std::string(a, fine.ptr);
}

static std::string TestoDi(GenereNome genere, const void* p) {
  switch (genere) {
    case GenereNome::Reale: return TestoReale(*static_cast<const double*>(p));
    case GenereNome::Intero16: return std::to_string(*static_cast<const std::int16_t*>(p));
    case GenereNome::Intero32: return std::to_string(*static_cast<const std::int32_t*>(p));
    case GenereNome::Vero: return *static_cast<const bool*>(p) ? "1" : "0";
    case GenereNome::Testo: return *static_cast<const std::string*>(p);
    case GenereNome::Costante: return *static_cast<const char* const*>(p);
    case GenereNome::Vista: return std::string(*static_cast<const std::string_view*>(p));
    case GenereNome::Carattere: return *static_cast<const char*>(p) == '\0' ? std::string() : std::string(1, *static_cast<const char*>(p));
    case GenereNome::Elenco:
    case GenereNome::Record: break;
  }
  return {};
}

static std::string VoceDi(const std::vector<std::string>& elenco, int n) {
  return static_cast<std::size_t>(n) < elenco.size() ? elenco[static_cast<std::size_t>(n)] : std::string();
}

static const RigaNome* CercaNome(std::span<const RigaNome> righe, std::string_view nome) {
  for (const RigaNome& r : righe)
    if (nome == r.nome) return &r;
  return nullptr;
}

// Takes one index from the front of `testo`, blanks around it allowed.
static bool PrendiIndice(std::string_view& testo, int& n) {
  const auto salta = [&testo] { testo.remove_prefix(std::min(testo.find_first_not_of(' '), testo.size())); };
  salta();
  const auto esito = std::from_chars(testo.data(), testo.data() + testo.size(), n);
  if (esito.ec != std::errc()) return false;
  testo.remove_prefix(static_cast<std::size_t>(esito.ptr - testo.data()));
  salta();
  return true;
}

// `testo` begins behind the name: "(i,j)" for r's dimensions, nothing for none. Leaves what follows; moves p to the
// element; n becomes the last index.
static bool PrendiIndici(const RigaNome& r, std::string_view& testo, const std::byte*& p, int& n) {
  if (r.numDim == 0) return true;
  for (int d = 0; d < r.numDim; ++d) {
    if (testo.empty() || testo.front() != (d == 0 ? '(' : ',')) return false;
    testo.remove_prefix(1);
    const DimensioneNome& dim = r.dim[d];
    if (!PrendiIndice(testo, n) || n < dim.primo || n > dim.ultimo) return false;
    p += static_cast<std::size_t>(n - dim.origine) * dim.passo;
  }
  if (testo.empty() || testo.front() != ')') return false;
  testo.remove_prefix(1);
  return true;
}

// One name of `righe` at the front of `testo`; `record` is null for variables, else the start of the record that holds the field.
static bool ValoreIn(std::span<const RigaNome> righe, const std::byte* record, std::string_view testo, std::string& valore) {
  const std::string_view nome = testo.substr(0, testo.find_first_of("(."));
  const RigaNome* r = CercaNome(righe, nome);
  if (r == nullptr) return false;
  testo.remove_prefix(nome.size());
  const std::byte* p = record != nullptr ? record + r->scarto : static_cast<const std::byte*>(r->base);
  int n = 0;
  if (!PrendiIndici(*r, testo, p, n)) return false;
  if (r->genere == GenereNome::Record) {
    if (testo.empty() || testo.front() != '.') return false;
    return ValoreIn(r->campi, p, testo.substr(1), valore);
  }
  if (!testo.empty()) return false;
  valore = r->genere == GenereNome::Elenco ? VoceDi(*static_cast<const std::vector<std::string>*>(r->base), n) : TestoDi(r->genere, p);
  return true;
}

bool ValoreModello(std::string_view nome, std::string& valore, TabelleNomi altri) {
  if (ValoreIn(NomiModello(), nullptr, nome, valore)) return true;
  for (const std::span<const RigaNome> righe : altri)
    if (ValoreIn(righe, nullptr, nome, valore)) return true;
  return false;
}

// clang-format off
static constexpr RigaNome CAMPI_SEZIONE[] = {
  CAMPO(Sezione, Nome), CAMPO(Sezione, H), CAMPO(Sezione, B), CAMPO(Sezione, A), CAMPO(Sezione, E), CAMPO(Sezione, R),
  CAMPO(Sezione, R2), CAMPO(Sezione, Xc), CAMPO(Sezione, Yc), CAMPO(Sezione, Area), CAMPO(Sezione, J1), CAMPO(Sezione, J2),
  CAMPO(Sezione, Jt), CAMPO(Sezione, Tipo),
};
static constexpr RigaNome CAMPI_ACCIAIO[] = {
  CAMPO(MatAcciaio, Nome), CAMPO(MatAcciaio, Norma), CAMPO(MatAcciaio, SAmm), CAMPO(MatAcciaio, SAmm40),
  CAMPO(MatAcciaio, Fyk), CAMPO(MatAcciaio, Fyk40), CAMPO(MatAcciaio, Ftk), CAMPO(MatAcciaio, Ftk40),
  CAMPO(MatAcciaio, Fyd), CAMPO(MatAcciaio, Fyd40), CAMPO(MatAcciaio, GammaM), CAMPO(MatAcciaio, Riserva1),
  CAMPO(MatAcciaio, Riserva2), CAMPO(MatAcciaio, GammaMT),
};
static constexpr RigaNome CAMPI_CLS[] = {
  CAMPO(MatCls, Nome), CAMPO(MatCls, Rck), CAMPO(MatCls, Fck), CAMPO(MatCls, Riserva1), CAMPO(MatCls, Riserva2),
  CAMPO(MatCls, Fcd), CAMPO(MatCls, GammaC), CAMPO(MatCls, AlfaCC), CAMPO(MatCls, Ecm), CAMPO(MatCls, SAmm), CAMPO(MatCls, TauCls),
};
static constexpr RigaNome CAMPI_VITI[] = {
  CAMPO(MatViti, Nome), CAMPO(MatViti, SAmm), CAMPO(MatViti, TauAmm), CAMPO(MatViti, Fy), CAMPO(MatViti, Ft),
  CAMPO(MatViti, NonUsato), CAMPO(MatViti, GammaM2),
};
// clang-format on
static constexpr RigaNome CAMPI_CA[] = {CAMPO(MatCA, Nome), CAMPO(MatCA, V)};
// clang-format off
static constexpr RigaNome NOMI[] = {
  // Joint
  VOCE(nodo, NomeNodo), VOCE(nodo, Sezione, DA_1, CAMPI_SEZIONE), VOCE(nodo, LatoZ), VOCE(nodo, LatoY), VOCE(nodo, SpessPiastra),
  VOCE(nodo, TipoNodo), VOCE(nodo, HNerv), VOCE(nodo, SpNerv), VOCE(nodo, SaldInt), VOCE(nodo, NervZ), VOCE(nodo, NervY),
  VOCE(nodo, NervTaglio), VOCE(nodo, Gola), VOCE(nodo, GolaCalc),
  VOCE(nodo, NTir), VOCE(nodo, TfZ, DA_0), VOCE(nodo, TfY, DA_0), VOCE(nodo, TipoTirafondo), VOCE(nodo, TfDiamIdx),
  VOCE(nodo, TfFi), VOCE(nodo, TfLFt), VOCE(nodo, TfL), VOCE(nodo, TfR), VOCE(nodo, TfL1), VOCE(nodo, TfLF), VOCE(nodo, TfDForo),
  VOCE(nodo, TfHMalta), VOCE(nodo, TfLFil), VOCE(nodo, TfDistBordo),
  VOCE(nodo, MatAcc, DA_1, CAMPI_ACCIAIO), VOCE(nodo, MatPiastra, DA_1, CAMPI_ACCIAIO), VOCE(nodo, MatTir, DA_1, CAMPI_ACCIAIO),
  VOCE(nodo, MatCls, DA_1, CAMPI_CLS), VOCE(nodo, MatVit, DA_1, CAMPI_VITI), VOCE(nodo, EcCls),
  VOCE(nodo, NumSoll), VOCE(nodo, SollN, DA_0), VOCE(nodo, SollTy, DA_0), VOCE(nodo, SollTz, DA_0), VOCE(nodo, SollMt, DA_0),
  VOCE(nodo, SollMy, DA_0), VOCE(nodo, SollMz, DA_0), VOCE(nodo, SollCC, DA_0), VOCE(nodo, SollNome, DA_0),
  VOCE(nodo, NumNodiStr), VOCE(nodo, NodiStr), VOCE(nodo, TipoVer), VOCE(nodo, OptionNTir), VOCE(nodo, Esposizione),
  // Suite
  Voce("TitoloProg", TitoloProg), VOCE(suite, DirRoot), VOCE(suite, DirLavoro), VOCE(suite, DirProgra), VOCE(suite, DirDriver),
  VOCE(suite, DirCustom), VOCE(suite, Lavoro), VOCE(suite, StrTmp), VOCE(suite, AccelG), VOCE(suite, NordGeo), VOCE(suite, UnitaLung),
  VOCE(suite, UnitaForze), VOCE(suite, UnitaMomenti), VOCE(suite, UnitaTensioni), VOCE(suite, UnitaSezioni), VOCE(suite, UnitaCarichi),
  VOCE(suite, FattLung), VOCE(suite, FattForze), VOCE(suite, FattMomenti), VOCE(suite, FattTensioni), VOCE(suite, FattSezioni),
  VOCE(suite, FattCarichi), VOCE(suite, DecLung), VOCE(suite, DecForze), VOCE(suite, DecMomenti), VOCE(suite, DecTensioni),
  VOCE(suite, DecSezioni), VOCE(suite, DecCarichi), VOCE(suite, NumDiam), VOCE(suite, DiamNome, DA_0), VOCE(suite, DiamVal, DA_0),
  VOCE(suite, DiamArea, DA_0), VOCE(suite, ParNodo, DA_0), VOCE(suite, NumProfili), VOCE(suite, ProfiliLib, DA_1, CAMPI_SEZIONE),
  // Materials
  VOCE(materiali, FileMatBase), VOCE(materiali, UsaViti), VOCE(materiali, UsaTirafondi), VOCE(materiali, UsaCls),
  VOCE(materiali, UsaAccPiastre), VOCE(materiali, SezChiuse), VOCE(materiali, NumAcciai), VOCE(materiali, NumAcciaiChiusi),
  VOCE(materiali, NumViti), VOCE(materiali, NumCls), VOCE(materiali, NumAcciaiCA), VOCE(materiali, AcciaiBase, DA_0, CAMPI_ACCIAIO),
  VOCE(materiali, AcciaiChiusiBase, DA_0, CAMPI_ACCIAIO), VOCE(materiali, VitiBase, DA_0, CAMPI_VITI),
  VOCE(materiali, ClsBase, DA_0, CAMPI_CLS), VOCE(materiali, AcciaiCABase, DA_0, CAMPI_CA), VOCE(materiali, MatDaBase),
  VOCE(materiali, MatBaseAcc1, DA_1, CAMPI_ACCIAIO), VOCE(materiali, MatBaseAcc2, DA_1, CAMPI_ACCIAIO),
  VOCE(materiali, MatBaseCls, DA_1, CAMPI_CLS), VOCE(materiali, ModuloEBase), VOCE(materiali, GammaMBase),
  VOCE(materiali, MemoriaMateriali, PRIMA_1, CAMPI_ACCIAIO),
};
// clang-format on
std::span<const RigaNome> NomiModello() { return NOMI; }
std::span<const RigaNome> CampiSezione() { return CAMPI_SEZIONE; }
