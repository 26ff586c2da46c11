// panels/InsDati.h - the main panel: the node's data on seven tabs, the load list of five rows, the commands, the status line.
// State     insDati: what each control shows; the model follows each change at once. Lives as long as the process.
// Rule      nothing is validated here; a text counts as its numeric head, 0 for none.
#pragma once
#include "drawing/tela.h"
#include "panels/controlli.h"

struct StatoInsDati {
  bool aperto = false, caricato = false;
  std::string titolo;           // "NODO COLONNA - PLINTO - Lavoro: " and the node's name
  std::string StatoTxt;         // the text that Timer1 will show in Help
  std::string CartellaDialogo;  // starting folder of the next file dialog; cleared by its first use
  std::string TitoloCerca;      // title of the search tool

  Controllo SSTab, Help, Versione;
  Controllo Colonna, Tipi, Piastra, Tirafondi, Sald, Materiali, Soll, Frame1;  // frames
  Controllo Label1, TraveP, geom[5], geomp[5];
  Controllo GeoP[2], LatoTxt[5], Label2[5];
  Controllo Op_Tip[2], Pic_Tipo[3], HFazzTxt[2], Label8[2], ChSI, LSi;
  Controllo GolaTxt, Label7;
  Controllo OptionNTir[4], DTf[4 + 1], LDTf[4 + 1], TFLab[6], Label3[6], DimTf;  // DTf, LDTf 1..4
  Controllo Acc, Cviti, ComboCalcestruzzo, ComboEsposizione, LabNormaProf, LabNormaTir, Label30[5];
  Controllo PropMatButton, CheckMatBase;
  Controllo Lsa[5], TxtSN[5], TxtTy[5], TxtTz[5], TxtMt[5], TxtMy[5], TxtMz[5], CasCar[5], ScrollSa;
  Controllo Label4, Label5, Label13, Label14, Label16, Label18, Label26, Label27;
  Controllo Singolo, RimuoviSA, RimuoviTSA, Doppi, MaxMin, EsportaSollButt, ImpS3D, CheckMaxMin;
  Controllo TipoVer[2];
  Controllo Nodo;  // the plan of the joint
  Controllo Verifica, Sav_Nodo, Car_Nodo, Gen_Dis, ApriVis, Opz, Command1, LegendaButt, Chiudi;
  Tela telaNodo, telaTipo[3];
};
inline StatoInsDati insDati;
extern const Pannello InsDati;

// How the last press of Verifica ended.
enum class EsitoVerifica {
  NonEseguita,  // Verifica was not pressed yet
  Rifiutata,    // the input checks refused the joint
  Annullata,    // the user did not go on after the edge check
  Interrotta,   // the solver failed on a sextet, an arithmetic fault, a report that could not be written
  Eseguita      // every sextet was computed and the report shown
};
struct StatoVerificaPannello {
  EsitoVerifica esito = EsitoVerifica::NonEseguita;
  bool verificato = false;  // of one that was carried out: every sextet passes
};
inline StatoVerificaPannello verificaPannello;

void PreparaInsDati();    // the panel as created: rows, captions, pictures, first choices
void DisegnaSegniTipo();  // the anchors' marks on the pictures of the typologies

// Start and reset.
// The whole start in its order; at its end the panel is opened (piattaforma.apri). False: it ended in a message and fine().
bool CaricaInsDati(const std::string& rigaComando);
void AzzeraNodo();  // the reset of a node, through the fields

// Fields and model.
void ScriviTitolo();                     // caption from nodo.NomeNodo
void AggiornaTFLab();                    // the anchor's read-only labels
void AggiornaGeomp();                    // H, B, A, E, R of the section
void InsDati_LatoTxt_Invio(int indice);  // sides from margins or margins from sides, as GeoP says; anchors; plan
void RidisegnaNodo();                    // the plan; where a step of the running command has failed only the ribs' chamfers
void ImpostaStato(const char* testo);    // status line after 800 ms

// Load list (panels/lista_soll.cpp).
void MostraRiga(int i);
void NascondiRiga(int i);
void SvuotaRiga(int i);
void RiempiRiga(int i);
void AzzeraGruppo(int n);  // components and class; the name stays
void CopiaGruppo(int da, int a);
void RimuoviGruppo(int n);  // 1..NumSoll, any other: nothing
void RimuoviDoppi();
void RiduciMaxMin();
void AggiornaRighe();       // rows, bar and title from the list, after a load, an import, a reduction
void AggiornaTitoloSoll();  // title of the frame Soll, EsportaSollButt

// Node file (panels/file_nodo.cpp); the commands with their dialogs and boxes.
void InsDati_Sav_Nodo(int);
void InsDati_Car_Nodo(int);

// Materials (panels/combo_materiali.cpp).
void RiempiComboMateriali(Controllo& combo, bool metodoTA, const char* ruolo, const std::string& selezione);
void CambioMetodo();        // memories and combos after a real change of TipoVer
void ControllaMateriali();  // the loaded names against the tables
void InsDati_CheckMatBase(int);
