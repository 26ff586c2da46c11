// panels/Soll3D.cpp - the load import's commands.
#include "panels/Soll3D.h"

#include "core/piattaforma.h"
#include "link/casi.h"
#include "link/importa_soll.h"
#include "link/liste.h"
#include "link/ricerca.h"
#include "link/struttura.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/righe.h"
#include "panels/selezione.h"

constexpr const char* NESSUNO = "0";  // what the commands "A" leave: no empty selection exists

static void Unisci(std::string& testo, int numero) {
  if (!testo.empty()) testo += ',';
  testo += std::to_string(numero);
}

static bool Qualificato(const std::string& tipo) { return nodo.TipoVer == 0 ? tipo == "TENSAMM" || tipo == "RARA" : tipo == "SLU"; }

static void Soll3D_Annulla(int i) { ImpostaTesto(i == 0 ? soll3D.NodiTxt : soll3D.AsteTxt, ""); }
static void Soll3D_ACdc(int) { ImpostaTesto(soll3D.CdCTxt, NESSUNO); }
static void Soll3D_ACdc2(int) { ImpostaTesto(soll3D.CdC2Txt, NESSUNO); }
static void Soll3D_Ses(int) { ImpostaTesto(soll3D.SesTxt, NESSUNO); }

static void Soll3D_TuttiCdc(int) {
  std::string testo;
  if (LeggiTipiCaso() == EsitoCasi::Letti)
    for (int i = 1; i <= collegamento.NumCasiStr; ++i)
      if (Qualificato(collegamento.TipiCaso[i])) Unisci(testo, collegamento.CasiStr[i]);
  ImpostaTesto(soll3D.CdCTxt, testo.empty() ? NESSUNO : testo);
}

static void Soll3D_TuttiCdc2(int) {
  std::int32_t n = 0;
  if (!CondizioniStruttura(n)) {
    Messaggio("ERRORE: STRUTTUR.STR errato o mancante", TitoloProg, Icona::Nessuna);
    return;
  }
  std::string testo;
  for (int i = 1; i <= std::min<std::int32_t>(n, 32767); ++i) Unisci(testo, i);
  ImpostaTesto(soll3D.CdC2Txt, testo);
}

static void Soll3D_Cerca(int i) {
  if (i == 0) {
    selezione.nodi = &soll3D.NodiTxt;
    selezione.aste = &soll3D.AsteTxt;
    piattaforma.apri(Selezione, true);
    return;
  }
  std::string campo = soll3D.NodiTxt.testo;
  CercaElemento(insDati.TitoloCerca, campo, ELEMENTO_NODO);
  if (campo != soll3D.NodiTxt.testo) ImpostaTesto(soll3D.NodiTxt, campo);
}

// The five lists, in the order in which the first invalid one ends the command.
static bool LeggiElenchi(bool& troppi) {
  Collegamento& c = collegamento;
  const struct {
    const Controllo& campo;
    std::int16_t* lista;
    int limite;
    std::int16_t& conteggio;
  } ELENCHI[] = {{soll3D.NodiTxt, nodo.NodiStr, MaxNodiStr, nodo.NumNodiStr},
                 {soll3D.AsteTxt, c.AsteNodo, MaxAste, c.NumAsteNodo},
                 {soll3D.CdCTxt, c.CasiStr, MaxCasi, c.NumCasiStr},
                 {soll3D.SesTxt, c.SestettiStr, MaxCasi, c.NumSestettiStr},
                 {soll3D.CdC2Txt, c.CondStr, MaxCasi, c.NumCondStr}};
  for (const auto& e : ELENCHI)
    if (!LeggiLista(e.campo.testo, e.lista, e.limite, e.conteggio, troppi)) return false;
  return true;
}

static void ImportaERaccogli() {
  ImportaSollecitazioni(insDati.CheckMaxMin.scelta == 1);
  AggiornaRighe();
  const int prima = nodo.NumSoll;
  RimuoviDoppi();
  piattaforma.diario("LETTI " + std::to_string(collegamento.Letti) + ", PRESI " + std::to_string(collegamento.Presi) + ", DOPPI TOLTI " +
                     std::to_string(prima - nodo.NumSoll));
}

static void Soll3D_Importa(int) {
  bool troppi = false;
  piattaforma.attesa(true);
  if (LeggiElenchi(troppi) && NodiAste()) {
    if (troppi) Messaggio("Errore: numero di aste o nodi eccessivo", "ERRORE", Icona::Esclamazione);
    else ImportaERaccogli();
  }
  piattaforma.attesa(false);
}

static void Soll3D_Chiudi(int) {
  AggiornaTitoloSoll();
  if (selezione.aperto) piattaforma.chiudi(Selezione);
  piattaforma.chiudi(Soll3D);
}

static const char* SuggerimentoTuttiCdc(int) {
  return soll3D.caricatoInTA ? "Seleziona tutti i casi di carico per la verifica alle T.A."
                             : "Seleziona tutti i casi di carico per la verifica agli S.L.U.";
}

static void Carica() { soll3D.caricatoInTA = nodo.TipoVer == 0; }

constexpr const char* SUGG_ANNULLA[] = {"Annulla i nodi inseriti", "Annulla le aste inserite"};
constexpr const char* SUGG_CERCA[] = {"Cerca le aste corrispondenti ai nodi inseriti", "Cerca i nodi di riferimento"};

static constexpr StatoSoll3D& P = soll3D;
constexpr Genere CAMPO = Genere::Campo, ETICHETTA = Genere::Etichetta, COMANDO = Genere::Comando;

// clang-format off
constexpr RigaPannello RIGHE[] = {
  Riga("LNodi",  ETICHETTA, P.LNodi,  "", "Inserimento nodi"),
  Riga("LAste",  ETICHETTA, P.LAste,  "", "Inserimento aste"),
  Riga("LCdC",   ETICHETTA, P.LCdC,   "", "Casi di carico "),
  Riga("LCdC2",  ETICHETTA, P.LCdC2,  "", "Condizioni di carico"),
  Riga("LSes",   ETICHETTA, P.LSes,   "", "Sestetti (0=tutti)"),
  Riga("Label2", ETICHETTA, P.Label2, "", "Esempio di inserimento: 1,2,3-9"),

  Riga("NodiTxt", CAMPO, P.NodiTxt, "", "",  "Inserire i nodi dai quali importare le sollecitazioni"),
  Riga("AsteTxt", CAMPO, P.AsteTxt, "", "",  "Inserire le aste associate ai nodi dalle quali importare le sollecitazioni"),
  Riga("CdCTxt",  CAMPO, P.CdCTxt,  "", "0", "Inserire i casi di carico dai quali importare le sollecitazioni"),
  Riga("CdC2Txt", CAMPO, P.CdC2Txt, "", "0", "Inserire le condizioni di carico dalle quali importare le sollecitazioni"),
  Riga("SesTxt",  CAMPO, P.SesTxt,  "", "0", "Inserire i sestetti dai quali importare le sollecitazioni"),

  Serie("Annulla",  COMANDO, P.Annulla, 0, 1, "", "A",     SUGG_ANNULLA, Soll3D_Annulla),
  Serie("Cerca",    COMANDO, P.Cerca,   0, 1, "", "Cerca", SUGG_CERCA,   Soll3D_Cerca),
  Riga("ACdc",      COMANDO, P.ACdc,      "", "A",     "Annulla i casi di carico inseriti", Soll3D_ACdc),
  {"TuttiCdc",      COMANDO, &P.TuttiCdc, 0, 0, false, "", "Tutti", {}, SuggerimentoTuttiCdc, Soll3D_TuttiCdc},
  Riga("ACdc2",     COMANDO, P.ACdc2,     "", "A",     "Annulla le condizioni di carico inserite", Soll3D_ACdc2),
  Riga("TuttiCdc2", COMANDO, P.TuttiCdc2, "", "Tutti", "Seleziona tutte le condizioni di carico", Soll3D_TuttiCdc2),
  Riga("ASes",      COMANDO, P.ASes,      "", "A",     "Annulla i sestetti inseriti", Soll3D_Ses),
  Riga("TuttiSes",  COMANDO, P.TuttiSes,  "", "Tutti", "Seleziona tutti i sestetti", Soll3D_Ses),
  Riga("Importa",   COMANDO, P.Importa,   "", "Importa", "Importa le sollecitazioni nel pannello principale", Soll3D_Importa),
  Riga("Chiudi",    COMANDO, P.Chiudi,    "", "Chiudi",  "Chiude la finestra", Soll3D_Chiudi),
};
// clang-format on

const Pannello Soll3D = {"Soll3D", RIGHE, true, &soll3D.titolo, Carica, nullptr, nullptr, &soll3D.aperto, &soll3D.caricato};

void InsDati_ImpS3D(int) { piattaforma.apri(Soll3D, true); }
