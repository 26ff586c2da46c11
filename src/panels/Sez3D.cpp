// panels/Sez3D.cpp - the section import's commands.
#include "panels/Sez3D.h"

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "core/testo.h"
#include "drawing/schizzo.h"
#include "link/ricerca.h"
#include "link/struttura.h"
#include "model/stato.h"
#include "panels/InsDati.h"
#include "panels/righe.h"

constexpr std::string_view NON_APPLICABILE = "Non";

// The number in the field as a node; one out of 16 bits keeps the node asked for last.
static std::int16_t NodoDalCampo() {
  double v = 0;
  if (!Val(sez3D.NodoTxt.testo, v) || !InIntero(v, sez3D.UltimoNodo)) passi.fallito = true;
  return sez3D.UltimoNodo;
}

// One of the two readings; false: its box was shown.
static bool Riuscita(EsitoAste esito, const char* troppe) {
  if (esito == EsitoAste::Troppe) Messaggio(troppe, "ERRORE", Icona::Esclamazione);
  return esito == EsitoAste::Trovate;
}

static bool CercaSezioni() {
  return Riuscita(AsteDelNodo(NodoDalCampo()), "Errore: numero di aste collegate eccessivo.") &&
         Riuscita(SezioniAsteNodo(), "Errore: numero di sezioni eccessivo.");
}

static void RiempiComboP() {
  std::vector<std::string> voci;
  for (int i = 1; i <= collegamento.NumAsteNodo; ++i)
    voci.push_back(collegamento.SezioniStr[i].Nome + "  Asta " + std::to_string(collegamento.AsteNodo[i]));
  MostraVoci(sez3D.ComboP, std::move(voci));
  sez3D.UltimaValida = 0;
  collegamento.SezioneImp = {};  // the choice of a former node counts no more
  if (!sez3D.ComboP.voci.empty()) ImpostaScelta(sez3D.ComboP, 0);
}

static void Sez3D_Cerca(int) {
  piattaforma.attesa(true);
  if (CercaSezioni()) RiempiComboP();
  piattaforma.attesa(false);
}

static bool NonApplicabile(int posizione) {
  return posizione >= 0 && posizione < collegamento.NumAsteNodo && collegamento.SezioniStr[posizione + 1].Nome.starts_with(NON_APPLICABILE);
}

static void MostraSezione() {
  const Sezione& s = collegamento.SezioneImp;
  const double misure[] = {s.H, s.B, s.A, s.E, s.R};
  for (int i = 0; i < 5; ++i) {
    MostraTesto(sez3D.geomp[i], NumeroPiano(misure[i]));
    MostraVisibile(sez3D.geom[i], true);
    MostraVisibile(sez3D.geomp[i], true);
  }
  DisegnaSezImport(sez3D.telaDisPri, s);
  piattaforma.aggiorna(sez3D.DisPri);
}

// A section that cannot be taken sends the list back to the last valid entry; where there is none, to no entry.
static void Sez3D_ComboP(int) {
  const int p = sez3D.ComboP.scelta;
  if (p < 0 || p >= collegamento.NumAsteNodo) return;
  if (NonApplicabile(p)) {
    Messaggio("Profilo non applicabile", "Attenzione", Icona::Esclamazione);
    MostraScelta(sez3D.ComboP, NonApplicabile(sez3D.UltimaValida) ? -1 : sez3D.UltimaValida);
    return;
  }
  sez3D.UltimaValida = p;
  collegamento.SezioneImp = collegamento.SezioniStr[p + 1];
  MostraSezione();
}

static void Sez3D_command1(int) {
  std::string campo = sez3D.NodoTxt.testo;
  CercaElemento("NODO COLONNA - PLINTO - IMPORTA SEZIONI DA 3D - Cerca nodo", campo, ELEMENTO_NODO);
  if (campo != sez3D.NodoTxt.testo) ImpostaTesto(sez3D.NodoTxt, campo);
}

static void Sez3D_OK(int) {
  for (int i = 1; i <= suite.NumProfili; ++i)
    if (suite.ProfiliLib[i].Nome == collegamento.SezioneImp.Nome) ImpostaScelta(insDati.TraveP, i - 1);
  RidisegnaNodo();
  piattaforma.chiudi(Sez3D);
}

static void Sez3D_Annulla(int) { piattaforma.chiudi(Sez3D); }

static void Carica() {
  sez3D.DisPri.tela = &sez3D.telaDisPri;
  for (int i = 0; i < 5; ++i) {
    MostraVisibile(sez3D.geom[i], false);
    MostraVisibile(sez3D.geomp[i], false);
  }
}

constexpr const char* GEOM[] = {"h:", "b:", "a:", "e:", "r :"};

static constexpr StatoSez3D& P = sez3D;
constexpr Genere ETICHETTA = Genere::Etichetta, COMANDO = Genere::Comando;

// clang-format off
constexpr RigaPannello RIGHE[] = {
  Riga("Label2",   ETICHETTA, P.Label2, "", "Colonna"),
  Riga("Label1",   ETICHETTA, P.Label1, "", "Nome Nodo"),
  Riga("NodoTxt",  Genere::Campo, P.NodoTxt, "", ""),
  Riga("command1", COMANDO, P.command1, "", "Cerca nodo", {}, Sez3D_command1),
  Riga("Cerca",    COMANDO, P.Cerca, "", "Cerca profilo", {}, Sez3D_Cerca),
  Riga("ComboP",   Genere::Lista, P.ComboP, "", "", {}, Sez3D_ComboP),
  Serie("geom",    ETICHETTA, P.geom,  0, 4, "", GEOM),
  Serie("geomp",   ETICHETTA, P.geomp, 0, 4, "", ""),
  Riga("DisPri",   Genere::Immagine, P.DisPri, "", ""),
  Riga("OK",       COMANDO, P.OK, "", "OK", {}, Sez3D_OK),
  Riga("Annulla",  COMANDO, P.Annulla, "", "Annulla", {}, Sez3D_Annulla),
};
// clang-format on

const Pannello Sez3D = {"Sez3D", RIGHE, true, &sez3D.titolo, Carica, nullptr, nullptr, &sez3D.aperto, &sez3D.caricato};
