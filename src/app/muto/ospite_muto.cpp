// app/muto/ospite_muto.cpp - the operations of a platform that gathers, and one joint loaded and judged through it.
#include "app/muto/ospite_muto.h"

#include "core/aritmetica.h"
#include "core/avvio.h"
#include "core/eventi.h"
#include "core/file.h"
#include "core/piattaforma.h"
#include "core/sha256.h"
#include "model/stato.h"
#include "panels/file_nodo.h"
#include "panels/lavoro_finestre.h"

static void Raccogli(const std::string& testo, const std::string&, Icona) { muto.riquadri.push_back({false, false, testo}); }

static bool Rispondi(const std::string& testo, const std::string&, Icona) {
  muto.riquadri.push_back({true, muto.rispondiOk, testo});
  return muto.rispondiOk;
}

static bool NominaFile(const RichiestaFile& r, std::string& percorso, int&) {
  if (muto.file.empty()) return false;
  percorso = ConEstensione(r, muto.file);
  muto.file.clear();
  return true;
}

void MontaPiattaformaMuta() {
  piattaforma.messaggio = Raccogli;
  piattaforma.domanda = Rispondi;
  piattaforma.scegliFile = NominaFile;
  piattaforma.esegui = [](const std::string&, const std::string&) { return false; };
  piattaforma.avvia = [](const std::string&, const std::string&) { return false; };
  piattaforma.attivaFinestra = [](const std::string&) { return false; };
  piattaforma.tasti = [](const std::string&, const std::string&) {};
  piattaforma.mostraTesto = [](const std::string&) {};
  piattaforma.mostraAiuto = [](const std::string&) {};
  piattaforma.timer = [](Temporizzatore, int, void (*)()) {};
  piattaforma.apri = [](const Pannello& p, bool) { PannelloAperto(p); };
  piattaforma.chiudi = PannelloChiuso;
  piattaforma.aggiorna = [](Controllo&) {};
  piattaforma.fuoco = [](Controllo&) {};
  piattaforma.attesa = [](bool) {};
  piattaforma.diario = [](const std::string&) {};
  piattaforma.fine = [] { muto.finito = true; };
}

bool AvviaMuto(const std::string& rigaComando, char decimale) {
  muto.riquadri.clear();
  muto.finito = false;
  suite.Decimale = decimale;
  return CaricaInsDati(rigaComando) && !muto.finito;
}

std::string FileDelNodo(const std::string& percorso) {
  RichiestaFile r;
  r.estensione = "qb7";
  return ConEstensione(r, percorso);
}

bool CaricaMuto(const std::string& percorso) {
  muto.riquadri.clear();
  muto.file = percorso;
  Scatena(InsDati, insDati.Car_Nodo, Evento::Cambio);
  return !esitoFile.annullato && !esitoFile.fallito;
}

void ScegliMetodoMuto(int metodo) { UtenteSceglie(InsDati, insDati.TipoVer[metodo], 1); }

bool Sha256File(const std::string& percorso, std::string& sha) {
  FileLettura f;
  if (!ApriLettura(f, percorso)) return false;
  sha = Sha256Di(f.byte);
  return true;
}

// Units, materials of the job; sections, grades, diameters, the option that widens the holes.
std::string Sha256Suite() {
  const std::string* const cartelle[] = {&suite.DirLavoro, &suite.DirCustom};
  struct FileSuite {
    int cartella;
    const char* nome;
  };
  // clang-format off
  constexpr FileSuite FILE_SUITE[] = {
    {0, "parametrilavoro"}, {0, "propmateriali.tx1"}, {1, "prof_pro"}, {1, "MaterialiNTC08.tx1"}, {1, "QbDiam.txt"}, {1, "OpzioniNodi1-5.txt"},
  };
  // clang-format on
  Sha256 s;
  for (const FileSuite& f : FILE_SUITE) {
    FileLettura letto;
    const bool c_e = ApriLettura(letto, *cartelle[f.cartella] + "\\" + f.nome);
    AggiungiSha256(s, std::string(f.nome) + "\n" + (c_e ? std::to_string(letto.byte.size()) : "-") + "\n");
    AggiungiSha256(s, letto.byte);
  }
  return ChiudiSha256(s);
}

// ---- notices from boxes ----

// All boxes but the last where that one is the reason.
static void AvvisiDaRiquadri(NodoGiudicato& n, bool conMotivo) {
  std::vector<RiquadroMuto>& r = muto.riquadri;
  if (conMotivo && !r.empty()) {
    n.motivo = r.back().testo;
    r.pop_back();
  }
  for (const RiquadroMuto& b : r) {
    if (b.domanda) n.avvisi.push_back({"domanda", b.testo + (b.ok ? " -> OK" : " -> Annulla")});
    else n.avvisi.push_back({"messaggio", b.testo});
  }
}

void NonCaricato(NodoGiudicato& n) {
  n.stato = StatoNodo::NonEseguito;
  AvvisiDaRiquadri(n, true);
}

void GiudicaMuto(NodoGiudicato& n, Lavoro& l) {
  n.metodo = nodo.TipoVer == 0 ? MetodoTA : MetodoSLU;
  n.nodo = &nodo;
  n.suite = &suite;
  AzzeraFault();
  n.geometria = ControlliGeometria(nodo, n.metodo);
  l.nodo = &nodo;
  l.suite = &suite;
  const bool eseguita = GiudicaConRiquadri(l) == EsitoVerifica::Eseguita;
  if (eseguita) {
    n.lavoro = &l;
    n.stato = l.verificato ? StatoNodo::Verificato : StatoNodo::NonVerificato;
  }
  n.avvisi = AvvisiNodo(nodo, n.metodo, suite, gradiLetti, n.lavoro);
  AvvisiDaRiquadri(n, !eseguita);
}
