// panels/FormTF.cpp - the anchor chooser.
#include "panels/FormTF.h"

#include "core/aritmetica.h"
#include "core/numeri.h"
#include "core/piattaforma.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/righe.h"

constexpr int TIPO_UNCINATO = 1;

namespace {
// Field of each size on the two tabs; 0 none. Field 9 shows the hole and gives both the thread and the hole: the later row wins.
struct CampoTf {
  double Nodo::*misura;
  int tipo1, tipo2;
};
}  // namespace

// clang-format off
constexpr CampoTf CAMPI[] = {
  {&Nodo::TfLFt, 11, 1},    {&Nodo::TfL, 12, 2},     {&Nodo::TfR, 13, 3},  {&Nodo::TfL1, 14, 4},        {&Nodo::TfLF, 15, 0},
  {&Nodo::TfHMalta, 17, 7}, {&Nodo::TfLFil, 0, 9},   {&Nodo::TfDForo, 19, 9}, {&Nodo::TfDistBordo, 20, 10},
};
// clang-format on

static bool Uncinato() { return nodo.TipoTirafondo == TIPO_UNCINATO; }
static int CampoDelTipo(const CampoTf& c) { return Uncinato() ? c.tipo2 : c.tipo1; }

// The sizes' names up to the first empty one; built-in rows behind a shorter file are offered too.
static void RiempiCombo(Controllo& combo) {
  std::vector<std::string> voci;
  for (int i = 0; i <= MaxDiam && !suite.DiamNome[i].empty(); ++i) voci.push_back(suite.DiamNome[i]);
  MostraVoci(combo, std::move(voci));
}

// A row behind those offered is a legal value of a node file: no selection, and the model keeps it.
static void Preseleziona(Controllo& combo, int riga) {
  if (riga >= 0 && riga < static_cast<int>(combo.voci.size())) ImpostaScelta(combo, riga);
}

static void SceltoDiametro(const Controllo& combo, Controllo& etichetta) {
  const int p = combo.scelta;
  if (p < 0 || p > MaxDiam) return;
  MostraTesto(etichetta, "(diam.=" + NumeroPiano(suite.DiamVal[p]) + " ; Area=" + NumeroPiano(suite.DiamArea[p]) + ")");
  nodo.TfDiamIdx = static_cast<std::int16_t>(p + 1);
}

static void FormTF_Combo1(int) { SceltoDiametro(formTF.Combo1, formTF.Label6[8]); }
static void FormTF_Combo2(int) { SceltoDiametro(formTF.Combo2, formTF.Label6[3]); }
static void FormTF_SSTab1(int) { nodo.TipoTirafondo = static_cast<std::int16_t>(formTF.SSTab1.scelta); }

static void FormTF_GeoTfTxt(int i) {
  if (i == 13) MostraTesto(formTF.Label6[5], "x " + formTF.GeoTfTxt[13].testo);
}

static void FormTF_MatBulOK(int) {
  LeggiGeoTf();
  piattaforma.chiudi(FormTF);
  AggiornaTFLab();
  RidisegnaNodo();
}

static void Mostrato() {
  PulisciTela(formTF.tela);
  for (const double raggio : {360.0, 504.0}) ArcoTela(formTF.tela, 2388, 4296, raggio, PI_PROG, 2 * PI_PROG, 192);
  ImpostaScelta(formTF.SSTab1, nodo.TipoTirafondo);
}

constexpr const char* SCHEDE[] = {" Tipo 1", " Tipo 2"};
// Texts of creation: those of a new node.
constexpr const char* CAMPI_TIPO2[] = {"120", "500", "70", "450"};
constexpr const char* CAMPI_TIPO1[] = {"120", "500", "70", "450", "10"};
constexpr const char* ETICHETTE_TIPO1[] = {"Lato piastra", "L1", "LF"};
// Entry 5 follows field 13, also the text of its creation.
constexpr const char* LABEL6[] = {"L", "R", "L fuori plinto", "", "Dist. bordo plinto", "x 70", "L", "L fuori plinto", ""};

static constexpr StatoFormTF& P = formTF;
constexpr Genere CAMPO = Genere::Campo, ETICHETTA = Genere::Etichetta, LISTA = Genere::Lista;

// clang-format off
constexpr RigaPannello RIGHE[] = {
  {"SSTab1", Genere::Schede, &P.SSTab1, 0, 0, false, "", SCHEDE, {}, nullptr, FormTF_SSTab1},
  Riga("PictureTF1", Genere::Immagine, P.PictureTF[0], "SSTab1/0", ""),
  Riga("PictureTF2", Genere::Immagine, P.PictureTF[1], "SSTab1/1", ""),
  Riga("Combo1", LISTA, P.Combo1, "SSTab1/0", "", {}, FormTF_Combo1),
  Riga("Combo2", LISTA, P.Combo2, "SSTab1/1", "", {}, FormTF_Combo2),
  Serie("Label6", ETICHETTA, P.Label6, 0, 8, "", LABEL6),
  Serie("Label2", ETICHETTA, P.Label2, 0, 1, "", "dimensioni in mm"),

  Serie("GeoTfTxt", CAMPO, &P.GeoTfTxt[1],   1,  4, "SSTab1/1", CAMPI_TIPO2, {}, FormTF_GeoTfTxt),
  Serie("GeoTfTxt", CAMPO, &P.GeoTfTxt[7],   7,  7, "SSTab1/1", "50",  {}, FormTF_GeoTfTxt),
  Serie("GeoTfTxt", CAMPO, &P.GeoTfTxt[9],   9,  9, "SSTab1/1", "100", {}, FormTF_GeoTfTxt),
  Serie("GeoTfTxt", CAMPO, &P.GeoTfTxt[10], 10, 10, "SSTab1/1", "200", {}, FormTF_GeoTfTxt),
  Serie("GeoTfTxt", CAMPO, &P.GeoTfTxt[11], 11, 15, "SSTab1/0", CAMPI_TIPO1, {}, FormTF_GeoTfTxt),
  Serie("GeoTfTxt", CAMPO, &P.GeoTfTxt[17], 17, 17, "SSTab1/0", "50",  {}, FormTF_GeoTfTxt),
  Serie("GeoTfTxt", CAMPO, &P.GeoTfTxt[19], 19, 19, "SSTab1/0", "100", {}, FormTF_GeoTfTxt),
  Serie("GeoTfTxt", CAMPO, &P.GeoTfTxt[20], 20, 20, "SSTab1/0", "200", {}, FormTF_GeoTfTxt),

  Serie("LGeo", ETICHETTA, &P.LGeo[4],   4,  4, "SSTab1/1", "L1"),
  Serie("LGeo", ETICHETTA, &P.LGeo[7],   7,  7, "SSTab1/1", "Altezza malta"),
  Serie("LGeo", ETICHETTA, &P.LGeo[9],   9,  9, "SSTab1/1", "Diametro fori"),
  Serie("LGeo", ETICHETTA, &P.LGeo[13], 13, 15, "SSTab1/0", ETICHETTE_TIPO1),
  Serie("LGeo", ETICHETTA, &P.LGeo[17], 17, 17, "SSTab1/0", "Altezza malta"),
  Serie("LGeo", ETICHETTA, &P.LGeo[19], 19, 19, "SSTab1/0", "Diametro fori"),
  Serie("LGeo", ETICHETTA, &P.LGeo[20], 20, 20, "SSTab1/0", "Dist. bordo plinto"),

  Riga("MatBulOK", Genere::Comando, P.MatBulOK, "", "OK", {}, FormTF_MatBulOK),
};
// clang-format on

const Pannello FormTF = {"FormTF", RIGHE, true, &formTF.titolo, RileggiFormTF, Mostrato, nullptr, &formTF.aperto, &formTF.caricato};

void RileggiFormTF() {
  const int riga = nodo.TfDiamIdx - 1;  // each selection stores its row: read once
  for (Controllo* combo : {&formTF.Combo1, &formTF.Combo2}) {
    RiempiCombo(*combo);
    Preseleziona(*combo, riga);
  }
  for (const CampoTf& c : CAMPI)
    if (CampoDelTipo(c) != 0) ImpostaTesto(formTF.GeoTfTxt[CampoDelTipo(c)], NumeroPiano(nodo.*c.misura));
  if (Uncinato()) Preseleziona(formTF.Combo2, riga);
}

void LeggiGeoTf() {
  for (const CampoTf& c : CAMPI) {
    double v = 0;
    if (CampoDelTipo(c) == 0) continue;
    if (Val(formTF.GeoTfTxt[CampoDelTipo(c)].testo, v)) nodo.*c.misura = v;
    else passi.fallito = true;
  }
  const int p = (Uncinato() ? formTF.Combo2 : formTF.Combo1).scelta;
  if (p >= 0 && p <= MaxDiam) nodo.TfFi = suite.DiamVal[p];
}

void InsDati_DimTf(int) { piattaforma.apri(FormTF, true); }
