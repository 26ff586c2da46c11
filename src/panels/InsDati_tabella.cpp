// panels/InsDati_tabella.cpp - the main panel's event table: every control, the frame that holds it, its texts and its handlers.
#include "panels/InsDati.h"
#include "panels/InsDati_eventi.h"
#include "panels/comandi_disegno.h"
#include "panels/righe.h"
#include "panels/visualizzatore.h"

// ---- texts that differ by index ----

static constexpr const char* SCHEDE[] = {"Profilo",   "Nervature",      "Piastra", "Tirafondi e Saldature",
                                         "Materiali", "Sollecitazioni", "Calcolo"};
static constexpr const char* GEOM[] = {"h", "b", "a", "e", "r"};
static constexpr const char* GEOP[] = {" Lati", " Margini"};
static constexpr const char* LABEL2[] = {"Lato Z", "Lato Y", "Margine Z", "Margine Y", "Spessore"};
static constexpr const char* OP_TIP[] = {" Tipo 1", " Tipo 2"};
static constexpr const char* LABEL8[] = {"Altezza nervature", "Spessore nervature"};
static constexpr const char* OPTION_TIR[] = {"4 Tirafondi", "8 Tirafondi", "6 Tirafondi Vert.", "6 Tirafondi Orizz."};
static constexpr const char* LDTF[] = {"Dz1", "Dz2", "Dy1", "Dy2"};
static constexpr const char* LABEL3[] = {"LFt", "L", "R", "L1", "LF", "Fi"};
static constexpr const char* LABEL30[] = {"Acciaio", "Acciaio, C.c. II", "Tirafondi, C.c. II", "Calcestruzzo", "Tirafondi"};
static constexpr const char* TIPOVER[] = {"Tensioni ammissibili (CNR 10011/88)", "Stati limite (NTC 2008)"};

// clang-format off
static constexpr const char* AIUTO_LATO[] = {
    "Inserire il valore del lato piastra lungo Z", "Inserire il valore del lato piastra lungo Y",
    "Inserire il valore dei margini piastra-colonna lungo Z",
    "Inserire il valore dei margini piastra_colonna lungo Y",           // the underscore is part of the text
    "Inserire lo spessore della piastra"};
// clang-format on
static constexpr const char* AIUTO_LABEL2[] = {"", "", "", "", "Inserire lo spessore della piastra"};
static constexpr const char* AIUTO_GEOP[] = {"Inserimento dei lati della piastra", "Inserimento dei margini piastra-colonna"};
static constexpr const char* AIUTO_DTF[] = {"Inserire il valore di Dz1", "Inserire il valore di Dz2", "Inserire il valore di Dy1",
                                            "Inserire il valore di Dy2"};
static constexpr const char* AIUTO_NERV[] = {"Inserire l'altezza delle nervature", "Inserire lo spessore delle nervature"};
static constexpr const char* AIUTO_GOLA = "Inserire il lato dei cordoni di saldatura";
// clang-format off
static constexpr const char* AIUTO_TIPO[] = {"Tipologia n°1: non è prevista nessuna nervatura",
                                             "Tipologia n°2: sono previste 4 nervature",
                                             "Schema dei valori da inserire per posizionare i tirafondi"};
// clang-format on
static constexpr const char* AIUTO_GEOM[] = {"Altezza colonna", "Larghezza colonna", "Spessore anima colonna", "Spessore ali colonna",
                                             "Raggio colonna"};
// clang-format off
static constexpr const char* AIUTO_TIR[] = {
    "Tirafondo: lunghezza fuori plinto", "Tirafondo: lunghezza di annegamento", "Tirafondo: raggio di curvatura",
    "Tirafondo: lunghezza di risalita", "Tirafondo: profondità dei fori nel plinto", "Tirafondo: diametro nominale"};
// clang-format on

// ---- rows ----

static constexpr Genere CORNICE = Genere::Cornice, ETICHETTA = Genere::Etichetta, CAMPO = Genere::Campo, COMANDO = Genere::Comando,
                        SPUNTA = Genere::Spunta, SCELTA = Genere::Scelta, LISTA = Genere::Lista, BARRA = Genere::Barra,
                        IMMAGINE = Genere::Immagine;

static constexpr StatoInsDati& P = insDati;

// clang-format off
static constexpr RigaPannello RIGHE[] = {
  // tabs, status line, version
  {"SSTab", Genere::Schede, &P.SSTab, 0, 0, false, "", SCHEDE},
  Riga("Help",         ETICHETTA, P.Help,     "", ""),
  Riga("Versione",     ETICHETTA, P.Versione, "", "Versione NTC 2008"),
  Riga("Nodo",         IMMAGINE,  P.Nodo,     "", "", "Rappresentazione in pianta del nodo"),

  // 0 column
  Riga("Colonna",      CORNICE,   P.Colonna, "SSTab/0", "[mm]"),
  Riga("Label1",       ETICHETTA, P.Label1,  "Colonna", "Sezione", "Scegliere la sezione della colonna"),
  Riga("TraveP",       LISTA,     P.TraveP,  "Colonna", "", {}, InsDati_TraveP),
  Serie("geom",        ETICHETTA, P.geom,  0, 4, "Colonna", GEOM, AIUTO_GEOM),
  Serie("geomp",       ETICHETTA, P.geomp, 0, 4, "Colonna", "",   AIUTO_GEOM),

  // 1 ribs
  Riga("Tipi",         CORNICE,   P.Tipi, "SSTab/1", "[mm]"),
  Serie("Op_Tip",      SCELTA,    P.Op_Tip,   0, 1, "Tipi", OP_TIP, AIUTO_TIPO, InsDati_Op_Tip),
  Serie("Pic_Tipo",    IMMAGINE,  P.Pic_Tipo, 0, 2, "Tipi", "",     AIUTO_TIPO),
  Serie("Label8",      ETICHETTA, P.Label8,   0, 1, "Tipi", LABEL8, AIUTO_NERV),
  Serie("HFazzTxt",    CAMPO,     P.HFazzTxt, 0, 1, "Tipi", "",     AIUTO_NERV, InsDati_HFazzTxt, InsDati_Ridisegna_Invio),
  Riga("ChSI",         SPUNTA,    P.ChSI, "Tipi", "", {}, InsDati_ChSI),
  Riga("LSi",          ETICHETTA, P.LSi,  "Tipi", "Saldature interne",
       "Nodo con saldature fra il lembo interno delle nervature e la colonna"),

  // 2 plate
  Riga("Piastra",      CORNICE,   P.Piastra, "SSTab/2", "[mm]"),
  Serie("GeoP",        SCELTA,    P.GeoP,    0, 1, "Piastra", GEOP,   AIUTO_GEOP, InsDati_GeoP),
  Serie("Label2",      ETICHETTA, P.Label2,  0, 4, "Piastra", LABEL2, AIUTO_LABEL2),
  Serie("LatoTxt",     CAMPO,     P.LatoTxt, 0, 4, "Piastra", "",     AIUTO_LATO, InsDati_LatoTxt, InsDati_LatoTxt_Invio),

  // 3 anchors and welds
  Riga("Tirafondi",    CORNICE,   P.Tirafondi, "SSTab/3", "Tirafondi [mm]"),
  Serie("OptionNTir",  SCELTA,    P.OptionNTir, 0, 3, "Tirafondi", OPTION_TIR, {}, InsDati_OptionNTir),
  Serie("LDTf",        ETICHETTA, &P.LDTf[1],   1, 4, "Tirafondi", LDTF),
  Serie("DTf",         CAMPO,     &P.DTf[1],    1, 4, "Tirafondi", "",     AIUTO_DTF, InsDati_DTf, InsDati_Ridisegna_Invio),
  Serie("Label3",      ETICHETTA, P.Label3,     0, 5, "Tirafondi", LABEL3, AIUTO_TIR),
  Serie("TFLab",       ETICHETTA, P.TFLab,      0, 5, "Tirafondi", "",     AIUTO_TIR),
  Riga("DimTf",        COMANDO,   P.DimTf, "Tirafondi", "Dim. tirafondi", "Cliccare per dimensionare i tirafondi", InsDati_DimTf),
  Riga("Sald",         CORNICE,   P.Sald,    "SSTab/3", "Saldature [mm]"),
  Riga("Label7",       ETICHETTA, P.Label7,  "Sald", "Lato saldatura", AIUTO_GOLA),
  Riga("GolaTxt",      CAMPO,     P.GolaTxt, "Sald", "", AIUTO_GOLA, InsDati_GolaTxt),

  // 4 materials
  Riga("Materiali",         CORNICE,   P.Materiali,         "SSTab/4",   ""),
  {"Label30", ETICHETTA, P.Label30, 0, 4, true, "Materiali", LABEL30, {}, InsDati_Label30_Stato},
  Riga("Acc",               LISTA,     P.Acc,               "Materiali", "", {}, InsDati_Acc),
  Riga("LabNormaProf",      ETICHETTA, P.LabNormaProf,      "Materiali", ""),
  Riga("Cviti",             LISTA,     P.Cviti,             "Materiali", "", {}, InsDati_Cviti),
  Riga("LabNormaTir",       ETICHETTA, P.LabNormaTir,       "Materiali", ""),
  Riga("ComboCalcestruzzo", LISTA,     P.ComboCalcestruzzo, "Materiali", "", {}, InsDati_ComboCalcestruzzo),
  Riga("ComboEsposizione",  LISTA,     P.ComboEsposizione,  "Materiali", "", {}, InsDati_ComboEsposizione),
  Riga("PropMatButton",     COMANDO,   P.PropMatButton,     "Materiali", "Proprietà", {}, InsDati_PropMatButton),
  Riga("CheckMatBase",      COMANDO,   P.CheckMatBase,      "Materiali", "Imposta da Materiali-Base", {}, InsDati_CheckMatBase),

  // 5 load list
  Riga("Soll",    CORNICE,   P.Soll,    "SSTab/5", ""),
  Riga("Label5",  ETICHETTA, P.Label5,  "Soll", "Origine",
       "Nomi dei casi di carico (se importati da 3d indicano caso, asta e nodo di provenienza)"),
  Riga("Label27", ETICHETTA, P.Label27, "Soll", "N",       "Sollecitazioni di sforzo normale"),
  Riga("Label26", ETICHETTA, P.Label26, "Soll", "Ty",      "Sollecitazioni di taglio Y"),
  Riga("Label13", ETICHETTA, P.Label13, "Soll", "Tz",      "Sollecitazioni di taglio Z"),
  Riga("Label18", ETICHETTA, P.Label18, "Soll", "Mt",      "Sollecitazioni di momento torcente"),
  Riga("Label14", ETICHETTA, P.Label14, "Soll", "My",      "Sollecitazioni di momento Y"),
  Riga("Label16", ETICHETTA, P.Label16, "Soll", "Mz",      "Sollecitazioni di momento Z"),
  Riga("Label4",  ETICHETTA, P.Label4,  "Soll", "C.c. II"),
  {"Lsa", CAMPO, P.Lsa, 0, 4, true, "Soll", "", {}, InsDati_Lsa_Stato, InsDati_Lsa, nullptr, InsDati_Lsa_Doppio},
  {"TxtSN", CAMPO, P.TxtSN, 0, 4, true, "Soll", "", "Inserire il valore della sollecitazione di sforzo normale", nullptr, InsDati_TxtSN, nullptr,
   InsDati_TxtSN_Doppio},
  {"TxtTy", CAMPO, P.TxtTy, 0, 4, true, "Soll", "", "Inserire il valore della sollecitazione di taglio Y", nullptr, InsDati_TxtTy, nullptr,
   InsDati_TxtTy_Doppio},
  {"TxtTz", CAMPO, P.TxtTz, 0, 4, true, "Soll", "", "Inserire il valore della sollecitazione di taglio Z", nullptr, InsDati_TxtTz, nullptr,
   InsDati_TxtTz_Doppio},
  {"TxtMt", CAMPO, P.TxtMt, 0, 4, true, "Soll", "", "Inserire il valore della sollecitazione di momento torcente", nullptr, InsDati_TxtMt, nullptr,
   InsDati_TxtMt_Doppio},
  {"TxtMy", CAMPO, P.TxtMy, 0, 4, true, "Soll", "", "Inserire il valore della sollecitazione di momento Y", nullptr, InsDati_TxtMy, nullptr,
   InsDati_TxtMy_Doppio},
  {"TxtMz", CAMPO, P.TxtMz, 0, 4, true, "Soll", "", "Inserire il valore della sollecitazione di momento Z", nullptr, InsDati_TxtMz, nullptr,
   InsDati_TxtMz_Doppio},
  Serie("CasCar", SPUNTA,    P.CasCar, 0, 4, "Soll", "", {}, InsDati_CasCar),
  Riga("ScrollSa", BARRA,    P.ScrollSa, "Soll", "", {}, InsDati_ScrollSa),
  Riga("Singolo",    COMANDO, P.Singolo,    "Soll", "Agg. sing.",
       "Cliccare per inserire un nuovo gruppo di sollecitazioni agenti", InsDati_Singolo),
  Riga("RimuoviSA",  COMANDO, P.RimuoviSA,  "Soll", "Rim. ultimo",
       "Cliccare per rimuovere l'ultimo gruppo di sollecitazioni della lista", InsDati_RimuoviSA),
  Riga("RimuoviTSA", COMANDO, P.RimuoviTSA, "Soll", "Rim. tutto  ",
       "Cliccare per rimuovere tutti i gruppi di sollecitazioni", InsDati_RimuoviTSA),
  Riga("Doppi",      COMANDO, P.Doppi,      "Soll", "Rim. doppi",
       "Cliccare per rimuovere i gruppi di sollecitazioni ripetuti più volte", InsDati_Doppi),
  Riga("MaxMin",     COMANDO, P.MaxMin,     "Soll", "Max e min",
       "Cliccare per ridurre l'elenco di sollecitazioni agenti ai gruppi contenenti le sollecitazioni massime e minime",
       InsDati_MaxMin),
  Riga("EsportaSollButt", COMANDO, P.EsportaSollButt, "Soll", "Esporta su file", {}, InsDati_EsportaSollButt),
  Riga("ImpS3D",     COMANDO, P.ImpS3D,     "Soll", "Imp. 3D",
       "Importazione  dal modello tridimensionale delle sollecitazioni agenti", InsDati_ImpS3D),
  Riga("CheckMaxMin", SPUNTA, P.CheckMaxMin, "Soll", "Solo max e min"),

  // 6 method
  Riga("Frame1",   CORNICE, P.Frame1,  "SSTab/6", "Tipo di verifica"),
  Serie("TipoVer", SCELTA,  P.TipoVer, 0, 1, "Frame1", TIPOVER, {}, InsDati_TipoVer),

  // commands
  Riga("Verifica",    COMANDO, P.Verifica,    "", "Verifica",    "Verifica tensionale del nodo", InsDati_Verifica),
  Riga("Sav_Nodo",    COMANDO, P.Sav_Nodo,    "", "Salva Nodo",  "Salvataggio del nodo corrente", InsDati_Sav_Nodo),
  Riga("Car_Nodo",    COMANDO, P.Car_Nodo,    "", "Carica Nodo", "Caricamento di un nodo salvato in precedenza", InsDati_Car_Nodo),
  Riga("Gen_Dis",     COMANDO, P.Gen_Dis,     "", "Salva Disegno", "Generazione del file disegno rappresentante l'esecutivo del nodo", InsDati_Gen_Dis),
  Riga("ApriVis",     COMANDO, P.ApriVis,     "", "Visualizza Disegno", "Apertura del visualizzatore ed aggiornamento del file disegno", InsDati_ApriVis),
  Riga("Opz",         COMANDO, P.Opz,         "", "",            "Opzioni di visualizzazione del disegno", InsDati_Opz),
  Riga("Command1",    COMANDO, P.Command1,    "", "Importa nodi 3D", {}, InsDati_Command1),
  Riga("LegendaButt", COMANDO, P.LegendaButt, "", "<",           {}, InsDati_LegendaButt),
  Riga("Chiudi",      COMANDO, P.Chiudi,      "", "Chiudi",      "Chiusura del programma", InsDati_Chiudi),
};
// clang-format on

const Pannello InsDati = {"InsDati", RIGHE,         false,           &insDati.titolo,  InsDati_Mostrato,
                          nullptr,   InsDati_Passa, &insDati.aperto, &insDati.caricato};
