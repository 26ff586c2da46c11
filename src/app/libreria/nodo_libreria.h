// app/libreria/nodo_libreria.h - what the handles of the library stand for: a suite, a joint, a result.
// Tables    read once at the opening and shared by all joints of the suite; nothing writes them.
// Joint     a copy of its own, for either method; its sextets beside it, in the model's units (daN, daN cm), without bound.
#pragma once
#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <string>
#include <vector>

#include "app/libreria/maniglie.h"
#include "app/muto/ospite_muto.h"
#include "engine/fatti.h"
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/suite.h"
#include "panels/programma.h"

struct TabelleSuite {
  Suite suite;
  Materiali materiali;
};

// A joint by both methods: the grades of the other one are those that a change of method behind the load brings.
struct NodoDoppio {
  Nodo variante[2];                       // by method; NumSoll is 0
  std::vector<RiquadroMuto> riquadri[2];  // boxes of the load, and of the change of method
  int metodo = MetodoTA;                  // its own
  GradiFile gradi;
};

struct SuiteLib {
  std::shared_ptr<const TabelleSuite> tabelle;
  FotografiaProgramma inizio;  // behind the start
  NodoDoppio nuovo;
  std::vector<RiquadroMuto> avvisi;  // of the start
  bool rispondiOk = true;
};

// Whose suite the panels' records hold: a load of another one puts its tables in first. Every opening passes here, so that an address
// used again is never taken for the suite that had it before.
struct StatoPannelliLib {
  std::mutex serratura;              // held by whoever touches the panels' records
  const SuiteLib* attiva = nullptr;  // only compared
};
inline StatoPannelliLib pannelliLib;

struct SestettoLib {
  std::string nome;
  std::int16_t classe = 0;  // as SollCC
  double v[6] = {};         // N, Ty, Tz daN; Mt, My, Mz daN cm
};

struct NodoLib {
  mutable std::shared_mutex serratura;  // shared: reads and verifications
  std::shared_ptr<const TabelleSuite> tabelle;
  bool rispondiOk = true;
  NodoDoppio dati;
  std::vector<SestettoLib> sestetti;
  std::atomic<unsigned> fermate = 0;  // counts the calls that stop what runs
};

// The six components of a sextet in a Nodo's lists.
double* ComponenteSoll(Nodo& nodo, int c, int s);

struct PostoRiga {
  std::int16_t elemento;
  std::uint8_t criterio;
};  // what the rows of all sextets share
struct NumeriRiga {
  double domanda, limite;
};  // as in RigaControllo

struct EsitoLib {
  int metodo = MetodoTA;
  StatoNodo stato = StatoNodo::NonEseguito;
  std::string motivo;
  RigheGeometria geometria;
  std::vector<Avviso> avvisi;

  int numSestetti = 0, numTirafondi = 0;
  std::vector<char> passa;        // of each sextet
  std::vector<PostoRiga> posti;   // rows of a sextet
  std::vector<NumeriRiga> righe;  // of all sextets; empty: only the governing ones are kept
  std::vector<char> passaRiga;
  std::vector<RigaControllo> governaSestetto, governaControllo;  // by sextet; by check, those that have rows
  std::vector<RigaControllo> governa;                            // of the joint: one, or none
  std::vector<FattiSestetto> fatti;                              // by sextet; empty: not kept
  std::vector<double> forze;                                     // kN, by sextet and anchor
};

// engine -> result; null: stopped. opzioni as in qb07.h.
std::shared_ptr<EsitoLib> VerificaLib(const NodoLib& n, int metodo, unsigned opzioni);

// ---- values by their names ----

enum class GenereValore : unsigned char { Reale, Intero, Testo };
struct PostoValore {
  GenereValore genere = GenereValore::Reale;
  std::size_t scarto = 0;       // bytes from the start of a Nodo
  int minimo = 0, massimo = 0;  // of a whole number
  std::string radice;           // the first name, without index or field
};
int TrovaValore(const char* nome, PostoValore& p);  // a code
