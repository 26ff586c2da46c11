// panels/selezione.cpp - the bar selection's choices, tips and search.
#include "panels/selezione.h"

#include <algorithm>

#include "core/numeri.h"
#include "core/piattaforma.h"
#include "link/liste.h"
#include "link/ricerca.h"
#include "model/node_model.h"
#include "model/stato.h"
#include "panels/righe.h"

constexpr int RITARDO_TIP = 800;  // ms of rest before the tip shows

// Entry 1 "Selezione" switches its frame on.
static void AbilitaCornici() {
  const struct {
    const Controllo& scelta;
    Controllo& cornice;
  } COPPIE[] = {{selezione.ColoriOp[1], selezione.Colori}, {selezione.LineeOp[1], selezione.Linee}, {selezione.NomiOp[1], selezione.Nomi}};
  for (const auto& c : COPPIE) MostraAbilitato(c.cornice, c.scelta.scelta == 1);
}

static void Selezione_Op(int) { AbilitaCornici(); }

static std::int16_t Limite(const Controllo& campo) {
  double v = 0;
  std::int16_t n = 0;
  Val(campo.testo, v);
  InIntero(std::clamp(v, -32768.0, 32767.0), n);
  return n;
}

static FiltroAste FiltroDalPannello() {
  FiltroAste f;
  for (int i = 0; i < NumColori; ++i) f.colori[i] = selezione.ColoriOp[0].scelta == 1 || selezione.ColoriCh[i].scelta == 1;
  for (int i = 0; i < NumLineeSel; ++i) f.linee[i] = selezione.LineeOp[0].scelta == 1 || selezione.LineeCh[i].scelta == 1;
  f.tuttiNomi = selezione.NomiOp[0].scelta == 1;
  for (int i = 0; i < 2; ++i) f.nomi[i + 1] = Limite(selezione.NomiTxt[i]);
  return f;
}

static std::string AsteDeiNodi() {
  bool troppi = false;
  std::string lista;
  if (selezione.nodi == nullptr || !LeggiLista(selezione.nodi->testo, nodo.NodiStr, MaxNodiStr, nodo.NumNodiStr, troppi)) return lista;
  CercaAste({nodo.NodiStr + 1, static_cast<std::size_t>(nodo.NumNodiStr)}, FiltroDalPannello(), lista);
  return lista;
}

static void Selezione_Cerca(int) {
  piattaforma.attesa(true);
  std::string lista = AsteDeiNodi();
  if (!lista.empty()) {
    lista.pop_back();  // the last comma
    ImpostaTesto(*selezione.aste, lista);
  }
  piattaforma.attesa(false);
  piattaforma.chiudi(Selezione);
}

static void Selezione_Chiudi(int) { piattaforma.chiudi(Selezione); }

static void MostraSuggerimento() { MostraTesto(selezione.HLabSel, selezione.suggerimento); }

static void Passa(const char* testo) {
  selezione.suggerimento = testo;
  if (selezione.suggerimento.empty()) {
    MostraTesto(selezione.HLabSel, "");
    piattaforma.timer(Temporizzatore::Selezione, 0, nullptr);
    return;
  }
  piattaforma.timer(Temporizzatore::Selezione, RITARDO_TIP, MostraSuggerimento);
}

static void Carica() {
  for (Controllo* primo : {selezione.ColoriOp, selezione.LineeOp, selezione.NomiOp}) SelezionaVoce(*primo, 0);
}

constexpr const char* TUTTI[] = {"Tutti", "Selezione"};
constexpr const char* TUTTE[] = {"Tutte", "Selezione"};
constexpr const char* LIMITI[] = {"da", "a"};
constexpr const char* SUGG_COLORI[] = {"Cliccare per selezionare le aste di tutti i colori",
                                       "Cliccare per selezionare le aste dei colori desiderati"};
constexpr const char* SUGG_LINEE[] = {"Cliccare per selezionare le aste con qualunque tipo di linea",
                                      "Cliccare per selezionare le aste con i tipi di linea desiderati"};
constexpr const char* SUGG_NOMI[] = {"Cliccare per selezionare le aste con qualunque nome",
                                     "Cliccare per selezionare le aste con il nome compreso in un'intervallo"};
constexpr const char* SUGG_LIMITI[] = {"Inserire il limite minimo dell'intervallo", "Inserire il limite massimo dell'intervallo"};

static constexpr StatoSelezione& P = selezione;
constexpr Genere CORNICE = Genere::Cornice, SCELTA = Genere::Scelta, SPUNTA = Genere::Spunta, ETICHETTA = Genere::Etichetta;

// clang-format off
constexpr RigaPannello RIGHE[] = {
  Riga("Colori",    CORNICE, P.Colori, "", "Colori"),
  Riga("Linee",     CORNICE, P.Linee,  "", "Linee"),
  Riga("Nomi",      CORNICE, P.Nomi,   "", "Nomi"),
  Serie("ColoriOp", SCELTA,  P.ColoriOp, 0, 1, "", TUTTI, SUGG_COLORI, Selezione_Op),
  Serie("ColoriCh", SPUNTA,  P.ColoriCh, 0, 9, "Colori", ""),
  Serie("LineeOp",  SCELTA,  P.LineeOp,  0, 1, "", TUTTE, SUGG_LINEE, Selezione_Op),
  Serie("LineeCh",  SPUNTA,  P.LineeCh,  0, 4, "Linee", ""),
  Serie("Line1",    Genere::Immagine, P.Line1, 0, 4, "Linee", ""),
  Serie("NomiOp",   SCELTA,  P.NomiOp,   0, 1, "", TUTTI, SUGG_NOMI, Selezione_Op),
  Serie("LNomi",    ETICHETTA, P.LNomi,  0, 1, "Nomi", LIMITI),
  Serie("NomiTxt",  Genere::Campo, P.NomiTxt, 0, 1, "Nomi", "", SUGG_LIMITI),
  Riga("Cerca",     Genere::Comando, P.Cerca,  "", "Cerca",  "Cliccare per importare i nomi delle aste trovate", Selezione_Cerca),
  Riga("Chiudi",    Genere::Comando, P.Chiudi, "", "Chiudi", "Cliccare per chiudere la finestra", Selezione_Chiudi),
  Riga("HLabSel",   ETICHETTA, P.HLabSel, "", ""),
};
// clang-format on

const Pannello Selezione = {"selezione", RIGHE, true, &selezione.titolo, Carica, nullptr, Passa, &selezione.aperto, &selezione.caricato};
