// results/avvisi.cpp - the notices as a table: when each holds, and what it says.
#include "results/avvisi.h"

#include <algorithm>
#include <string_view>

#include "core/area_resistente.h"
#include "core/fault.h"
#include "core/testo.h"
#include "model/regole_nodo.h"
#include "results/governanti.h"

namespace {
struct Contesto {
  const Nodo& nodo;
  int metodo;
  const Suite& suite;
  const GradiFile& gradi;
  const Lavoro* giudicato;
};
}  // namespace

static bool ConSestetti(const Contesto& c) { return c.nodo.NumSoll > 0; }

static void SenzaSestetti(const Contesto& c, std::vector<std::string>& t) {
  if (!ConSestetti(c)) t.emplace_back("Nessun gruppo di sollecitazioni: il nodo risulta verificato senza che nulla sia stato controllato.");
}

static void ClsTA(const Contesto& c, std::vector<std::string>& t) {
  if (c.metodo == MetodoTA && ConSestetti(c))
    t.emplace_back(
      "La pressione ammissibile del calcestruzzo è un numero in N/mm2 confrontato con daN/cm2: il limite è un decimo di quello "
      "della norma, a favore di sicurezza.");
}

static void UncinoTA(const Contesto& c, std::vector<std::string>& t) {
  if (c.metodo == MetodoTA && ConSestetti(c) && c.nodo.TipoTirafondo == 1)
    t.emplace_back(
      "L'aderenza dei tirafondi a uncino è divisa per 100 invece che per 10: è circa un decimo del valore della formula, a favore "
      "di sicurezza.");
}

static void Grado(const char* materiale, const std::string& nelFile, const std::string& usato, std::vector<std::string>& t) {
  const std::string_view a = Rifila(nelFile), b = Rifila(usato);
  if (a == b) return;
  const std::string indica = a.empty() ? "non indica alcun grado" : "indica \"" + std::string(a) + "\"";
  t.push_back(std::string(materiale) + ": il file del nodo " + indica + ", la verifica usa i valori di \"" + std::string(b) + "\".");
}

static void GradoDiverso(const Contesto& c, std::vector<std::string>& t) {
  if (!c.gradi.letti) return;
  Grado("Acciaio", c.gradi.acciaio, c.nodo.MatAcc.Nome, t);
  Grado("Tirafondi", c.gradi.tirafondi, c.nodo.MatTir.Nome, t);
  Grado("Calcestruzzo", c.gradi.calcestruzzo, c.nodo.MatCls.Nome, t);
}

// Over 40 mm the strengths drop: a millimetre less would be stronger, which nobody expects of a thinner plate.
static bool Oltre40(const Contesto& c, double spessore) {
  constexpr double POCO = 1;
  const MatAcciaio& a = c.nodo.MatAcc;
  const bool cala = c.metodo == MetodoTA ? a.SAmm40 < a.SAmm : a.Fyk40 < a.Fyk;
  return cala && spessore > SpessSottile && spessore <= SpessSottile + POCO;
}

static void SpessoreOltre40(const Contesto& c, std::vector<std::string>& t) {
  if (!ConSestetti(c)) return;
  const bool piastra = Oltre40(c, c.nodo.SpessPiastra), nervature = c.nodo.TipoNodo == 2 && Oltre40(c, c.nodo.SpNerv);
  if (!piastra && !nervature) return;
  t.push_back(std::string(piastra && nervature ? "Piastra e nervature"
                          : piastra            ? "Piastra"
                                               : "Nervature") +
              " di spessore di poco oltre 40 mm: vale il limite più basso, con 40 mm varrebbe quello più alto.");
}

// Beyond the right edge the solver's ray still meets the left one.
static bool FuoriADestra(const Nodo& n, int i) { return n.TfZ[i] > n.LatoZ && n.TfY[i] >= 0 && n.TfY[i] < n.LatoY; }

static void TirafondoFuori(const Contesto& c, std::vector<std::string>& t) {
  std::string quali;
  for (int i = 1; i <= c.nodo.NTir && ConSestetti(c); ++i)
    if (FuoriADestra(c.nodo, i)) quali += (quali.empty() ? "" : ", ") + std::to_string(i);
  if (!quali.empty())
    t.push_back("Tirafondi oltre il lato destro della piastra (n. " + quali + "): contano come immersi nel calcestruzzo.");
}

static void Diametro(const Contesto& c, std::vector<std::string>& t) {
  OrigineArea o;
  (void)AreaResistente(c.suite, c.nodo.TfFi, o);
  if (o.estrapolata || o.interpolata)
    t.push_back(std::string("L'area resistente dei tirafondi è calcolata per ") + (o.estrapolata ? "estrapolazione" : "interpolazione") +
                ": il diametro non è nella tabella.");
}

static void QuotaNervatura(const Contesto& c, std::vector<std::string>& t) {
  const Smussi s = SmussiNervature(c.nodo);
  if (c.nodo.TipoNodo == 2 && s.Z != s.Y)
    t.emplace_back(
      "I tratti orizzontali delle nervature lungo Z e lungo Y sono diversi: la sezione A-A del disegno quota la nervatura lungo Y "
      "con la misura di quella lungo Z.");
}

static void NomiConVirgola(const Contesto& c, std::vector<std::string>& t) {
  const std::string* primo = c.nodo.SollNome + 1;
  if (std::any_of(primo, primo + c.nodo.NumSoll, [](const std::string& n) { return n.find(',') != std::string::npos; }))
    t.emplace_back("Un nome di sollecitazione contiene una virgola: riletto da un file salvato finirà alla virgola.");
}

static void RigheAlLimite(const Contesto& c, std::vector<std::string>& t) {
  if (c.giudicato == nullptr) return;
  const auto n = std::ranges::count_if(c.giudicato->righe, [&](const RigaControllo& r) { return AlLimite(r, c.metodo); });
  if (n > 0) t.push_back("Controlli al limite: " + std::to_string(n) + ". L'esito si capovolge se la domanda cambia di un milionesimo.");
}

namespace {
struct Voce {
  const char* id;
  void (*testi)(const Contesto&, std::vector<std::string>&);
};
}  // namespace

// clang-format off
static constexpr Voce AVVISI[] = {
  { "senza_sestetti", SenzaSestetti },     { "cls_ta", ClsTA },         { "uncino_ta", UncinoTA }, { "grado_diverso", GradoDiverso },
  { "oltre_40", SpessoreOltre40 },         { "tirafondo_fuori", TirafondoFuori }, { "diametro", Diametro },
  { "quota_nervatura", QuotaNervatura },   { "nomi_con_virgola", NomiConVirgola }, { "al_limite", RigheAlLimite },
};
// clang-format on

std::vector<Avviso> AvvisiNodo(const Nodo& nodo, int metodo, const Suite& suite, const GradiFile& gradi, const Lavoro* giudicato) {
  const RiparoFault riparo;
  const Contesto c = {nodo, metodo, suite, gradi, giudicato};
  std::vector<Avviso> avvisi;
  for (const Voce& v : AVVISI) {
    std::vector<std::string> testi;
    v.testi(c, testi);
    for (std::string& t : testi) avvisi.push_back({v.id, std::move(t)});
  }
  return avvisi;
}
