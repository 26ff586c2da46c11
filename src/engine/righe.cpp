// engine/righe.cpp - the checks of both methods as two tables, and the walk that fills the rows.
#include "engine/righe.h"

#include <cmath>
#include <cstddef>

#include "core/fault.h"
#include "core/numeri.h"
#include "engine/Saldature.h"
#include "engine/Tirafondi.h"

// ---- comparisons: a value on its limit passes ----

static bool NonOltre(double domanda, double limite) { return domanda <= limite; }
static bool LimiteNonSotto(double domanda, double limite) { return !(limite < domanda); }

static double Pari2(double v) { return ArrotondaPari(v, 2); }

static double Uno(const Lavoro&, int, int) { return 1; }

// ---- which elements ----

bool SaldaturaElencata(const Nodo& nodo, int w) { return !SaldaturaInterna(w) || nodo.SaldInt == 1; }

static bool Elencata(const Lavoro& l, int w) { return SaldaturaElencata(*l.nodo, w); }
static bool Costruita(const Lavoro& l, int w) { return l.ris.Saldature[w].Lung > TOLL_GEO; }
static bool ConNervature(const Lavoro& l, int) { return l.nodo->TipoNodo == 2; }

// ---- demands, daN/cm2 and daN ----

static double Centimetri(double v) { return v * MM2_SU_CM2; }

double SMaxNervatura(const Risultati& ris, int s, const int (&posizioni)[4]) {
  double S = ris.SNerv[s][posizioni[0]];
  for (int p : posizioni) S = MaxDi(S, ris.SNerv[s][p]);
  return S;
}

// No root over the sum.
static double SommaQuadrati(const Lavoro& l, int s, int i) {
  const double t = Centimetri(l.ris.TauTir[s][i]) / l.limitiTA[s].TauAdmTir, n = Centimetri(l.ris.SigmaTir[s][i]) / l.limitiTA[s].SAdmTir;
  return t * t + n * n;
}

static double Rifollamento(const Lavoro& l, int s, int i) { return std::fabs(Centimetri(l.ris.SRfTir[s][i])); }
static double Tiro(const Lavoro& l, int s, int i) { return std::fabs(l.ris.TiroTir[s][i]); }
static double RapportoSaldatura(const Lavoro& l, int s, int w) { return l.ris.Saldature[w].Rapporto[s]; }
static double Piastra(const Lavoro& l, int s, int) { return Centimetri(l.ris.SMaxPiastra[s]); }
static double PiastraAssoluta(const Lavoro& l, int s, int) { return std::fabs(Centimetri(l.ris.SMaxPiastra[s])); }
static double NervaturaZ(const Lavoro& l, int s, int) { return Centimetri(SMaxNervatura(l.ris, s, POSIZIONI_Z)); }
static double NervaturaY(const Lavoro& l, int s, int) { return Centimetri(SMaxNervatura(l.ris, s, POSIZIONI_Y)); }
static double Calcestruzzo(const Lavoro& l, int s, int) { return Centimetri(l.ris.SMaxCls[s]); }

static double Co1(const Lavoro& l, int s, int i) { return l.ris.Co1[s][i]; }
static double Co2(const Lavoro& l, int s, int i) { return l.ris.Co2[s][i]; }
static double Co3(const Lavoro& l, int s, int i) { return l.ris.Co3[s][i]; }
static double Equivalente1(const Lavoro& l, int s, int w) { return l.ris.Saldature[w].SEq1[s]; }
static double Equivalente2(const Lavoro& l, int s, int w) { return l.ris.Saldature[w].SEq2[s]; }
static double NervaturaZAssoluta(const Lavoro& l, int s, int e) { return std::fabs(NervaturaZ(l, s, e)); }
static double NervaturaYAssoluta(const Lavoro& l, int s, int e) { return std::fabs(NervaturaY(l, s, e)); }
static double CalcestruzzoAssoluto(const Lavoro& l, int s, int e) { return std::fabs(Calcestruzzo(l, s, e)); }

// ---- limits ----

static double LimRifollamento(const Lavoro& l, int s, int) { return l.limitiTA[s].SRfAdm; }
static double LimTiro(const Lavoro& l, int s, int) { return l.limitiTA[s].TadRd; }
static double LimPiastraTA(const Lavoro& l, int s, int) { return l.limitiTA[s].SAdmPiastra; }
static double LimNervTA(const Lavoro& l, int s, int) { return l.limitiTA[s].SAdmNerv; }
static double LimClsTA(const Lavoro& l, int, int) { return l.SAmmCls; }
static double LimSald1(const Lavoro& l, int, int) { return l.limitiSLU.SLim1; }
static double LimSald2(const Lavoro& l, int, int) { return l.limitiSLU.SLim2; }
static double LimPiastra(const Lavoro& l, int, int) { return l.limitiSLU.FdPiastra; }
static double LimNerv(const Lavoro& l, int, int) { return l.limitiSLU.FdNerv; }
static double LimCls(const Lavoro& l, int, int) { return l.limitiSLU.Fcd; }

// ---- the tables ----

static constexpr Grandezza TENSIONE = Grandezza::Tensione, FORZA = Grandezza::Forza, RAPPORTO = Grandezza::Rapporto;
static constexpr Elementi TIRAFONDI = Elementi::Tirafondi, SALDATURE = Elementi::Saldature, NODO = Elementi::Nodo;
static constexpr const char* CNR = "CNR 10011/88";
static constexpr const char* NTC_TIR = "NTC 2008 4.2.8.1.1 (4.2.65)";
static constexpr const char* NTC_S1 = "NTC 2008 4.2.8.2.4 (4.2.78)";
static constexpr const char* NTC_S2 = "NTC 2008 4.2.8.2.4 (4.2.79)";
static constexpr const char* NTC_ACC = "NTC 2008 4.2.4.1.1";
static constexpr const char* NTC_CLS = "NTC 2008 4.1.2.1.1.1";

// clang-format off
static constexpr Criterio CRITERI_TA[] = {
  // id           name                               quantity  clause elements   present       demand             rounding    limit            passes
  { "tir.coeff", "Tirafondo, trazione e taglio",     RAPPORTO, CNR,  TIRAFONDI, nullptr,      SommaQuadrati,     Arrotonda2, Uno,             NonOltre, true },
  { "tir.rif",   "Tirafondo, rifollamento",          TENSIONE, CNR,  TIRAFONDI, nullptr,      Rifollamento,      nullptr,    LimRifollamento, NonOltre },
  { "tir.tiro",  "Tirafondo, aderenza",              FORZA,    CNR,  TIRAFONDI, nullptr,      Tiro,              nullptr,    LimTiro,         NonOltre },
  { "sald",      "Saldatura",                        RAPPORTO, CNR,  SALDATURE, Elencata,     RapportoSaldatura, nullptr,    Uno,             NonOltre },
  { "piastra",   "Piastra",                          TENSIONE, CNR,  NODO,      nullptr,      Piastra,           Arrotonda1, LimPiastraTA,    NonOltre },
  { "nerv.z",    "Nervature lungo Z",                TENSIONE, CNR,  NODO,      ConNervature, NervaturaZ,        Arrotonda1, LimNervTA,       NonOltre },
  { "nerv.y",    "Nervature lungo Y",                TENSIONE, CNR,  NODO,      ConNervature, NervaturaY,        Arrotonda1, LimNervTA,       NonOltre },
  { "cls",       "Pressione sul calcestruzzo",       TENSIONE, CNR,  NODO,      nullptr,      Calcestruzzo,      Arrotonda1, LimClsTA,        NonOltre },
};

static constexpr Criterio CRITERI_SLU[] = {
  { "tir.co1",   "Tirafondo, trazione e taglio",     RAPPORTO, NTC_TIR, TIRAFONDI, nullptr,      Co1,                  Pari2,   Uno,        NonOltre },
  { "tir.co2",   "Tirafondo, trazione",              RAPPORTO, NTC_TIR, TIRAFONDI, nullptr,      Co2,                  Pari2,   Uno,        NonOltre },
  { "tir.co3",   "Tirafondo, aderenza",              RAPPORTO, "Ft,Ed / Tad,Rd, aderenza del tirafondo", TIRAFONDI, nullptr, Co3, Pari2, Uno, NonOltre },
  { "sald.1",    "Saldatura, tensione equivalente",  TENSIONE, NTC_S1,  SALDATURE, Costruita,    Equivalente1,         nullptr, LimSald1,   LimiteNonSotto },
  { "sald.2",    "Saldatura, somma delle tensioni",  TENSIONE, NTC_S2,  SALDATURE, Costruita,    Equivalente2,         nullptr, LimSald2,   LimiteNonSotto },
  { "piastra",   "Piastra",                          TENSIONE, NTC_ACC, NODO,      nullptr,      PiastraAssoluta,      nullptr, LimPiastra, NonOltre },
  { "nerv.z",    "Nervature lungo Z",                TENSIONE, NTC_ACC, NODO,      ConNervature, NervaturaZAssoluta,   nullptr, LimNerv,    NonOltre },
  { "nerv.y",    "Nervature lungo Y",                TENSIONE, NTC_ACC, NODO,      ConNervature, NervaturaYAssoluta,   nullptr, LimNerv,    NonOltre },
  { "cls",       "Pressione sul calcestruzzo",       TENSIONE, NTC_CLS, NODO,      nullptr,      CalcestruzzoAssoluto, nullptr, LimCls,     NonOltre },
};
// clang-format on
static_assert(std::size(CRITERI_TA) == TA_CLS + 1 && std::size(CRITERI_SLU) == SLU_CLS + 1);
static_assert(std::size(CRITERI_TA) <= MaxCriteri && std::size(CRITERI_SLU) <= MaxCriteri);

std::span<const Criterio> Criteri(int metodo) {
  if (metodo == MetodoTA) return CRITERI_TA;
  return CRITERI_SLU;
}

// ---- the walk ----

static int UltimoElemento(const Lavoro& l, Elementi e) {
  switch (e) {
    case Elementi::Tirafondi: return l.nodo->NTir;
    case Elementi::Saldature: return l.NumSaldature;
    case Elementi::Nodo: break;
  }
  return 0;
}

// What a row tells but its numbers, one sextet's worth: the same for all.
static std::vector<RigaControllo> Modello(Lavoro& l) {
  std::vector<RigaControllo> righe;
  const std::span<const Criterio> criteri = Criteri(l.TipoVer);
  for (std::size_t c = 0; c < criteri.size(); ++c) {
    l.inizioCriterio[c] = static_cast<int>(righe.size());
    const int ultimo = UltimoElemento(l, criteri[c].elementi);
    for (int e = criteri[c].elementi == Elementi::Nodo ? 0 : 1; e <= ultimo; ++e)
      if (criteri[c].presente == nullptr || criteri[c].presente(l, e)) {
        RigaControllo r;
        r.elemento = static_cast<std::int16_t>(e);
        r.criterio = static_cast<std::uint8_t>(c);
        righe.push_back(r);
      }
  }
  l.inizioCriterio[criteri.size()] = static_cast<int>(righe.size());
  l.righePerSestetto = static_cast<int>(righe.size());
  return righe;
}

static void LimitiSestetto(Lavoro& l, int s) {
  if (l.TipoVer != MetodoTA) return TensioniEquivalentiSaldature(l, s);
  LimitiTA& t = l.limitiTA[s];
  t = CalcolaLimitiTA(*l.nodo, s, l.CoeffRifollamento);
  l.ris.TadRd = t.TadRd = MinDi(l.verifica.AreaTf * t.SAdmTir / 100, l.ris.TadRd);  // a running minimum over the sextets (safe)
  RapportiSaldatureTA(l, s, t.SAdmSald);
}

static void Compila(const Lavoro& l, RigaControllo& r) {
  const Criterio& c = Criteri(l.TipoVer)[r.criterio];
  const int s = r.sestetto, e = r.elemento;
  r.grezza = c.domanda(l, s, e);
  r.domanda = c.arrotonda != nullptr ? c.arrotonda(r.grezza) : r.grezza;
  r.limite = c.limite(l, s, e);
  r.passa = c.passa(r.domanda, r.limite);
}

// The first row whose numbers raise a fault or are none; without one it came up in the welds, whose stresses are combined before the rows.
static PuntoFermo TrovaFermo(const Lavoro& l, int s) {
  for (RigaControllo r : RigheSestetto(l, s)) {
    AzzeraFault();
    Compila(l, r);
    if (FaultAritmetico() || !std::isfinite(r.grezza)) return {true, s, r.criterio, r.elemento};
  }
  return {true, s, l.TipoVer == MetodoTA ? int{TA_SALD} : int{SLU_SALD_1}, 0};
}

static bool GiudicaSestetto(Lavoro& l, int s, const std::vector<RigaControllo>& modello) {
  LimitiSestetto(l, s);
  bool passa = true;
  for (RigaControllo r : modello) {
    r.sestetto = s;
    Compila(l, r);
    passa = passa && r.passa;
    l.righe.push_back(r);
  }
  l.passa[s] = passa;
  return !FaultAritmetico();
}

// What a report's head shows of the materials: a partial factor of zero is a fault also without a sextet.
static void LimitiComuni(Lavoro& l) {
  if (l.TipoVer == MetodoTA) {
    l.CoeffRifollamento = CalcolaCoeffRifollamento(*l.nodo);
    return;
  }
  l.limitiSLU = CalcolaLimitiSLU(*l.nodo);
}

void Giudica(Lavoro& l) {
  l.righe.clear();
  l.fermo = {};
  l.verificato = true;
  LimitiComuni(l);
  if (FaultAritmetico()) {
    l.fermo = {true, 0, 0, 0};
    return;
  }
  const std::vector<RigaControllo> modello = Modello(l);
  const int n = l.nodo->NumSoll;
  l.righe.reserve(modello.size() * static_cast<std::size_t>(n > 0 ? n : 0));
  for (int s = 1; s <= n; ++s) {
    if (!GiudicaSestetto(l, s, modello)) {
      l.fermo = TrovaFermo(l, s);
      SegnalaFault();
      return;
    }
    l.verificato = l.verificato && l.passa[s];
  }
}

std::span<const RigaControllo> RigheSestetto(const Lavoro& l, int s) {
  const std::size_t n = static_cast<std::size_t>(l.righePerSestetto);
  return std::span<const RigaControllo>(l.righe).subspan(static_cast<std::size_t>(s - 1) * n, n);
}

std::span<const RigaControllo> RigheCriterio(const Lavoro& l, int s, int criterio) {
  const std::size_t da = static_cast<std::size_t>(l.inizioCriterio[criterio]);
  return RigheSestetto(l, s).subspan(da, static_cast<std::size_t>(l.inizioCriterio[criterio + 1]) - da);
}
