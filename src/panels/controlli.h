// panels/controlli.h - the panels as records and events. The core owns what each control shows; a host only paints it and
// turns input into events. Setting a control from code runs its change handler here, in order, also when the value is the same,
// whatever a toolkit does.
// Naming    a control is Pannello.Controllo or Pannello.Controllo(indice); indices as the panel counts them (DTf from 1).
// State     one record a panel (insDati, ...), whose Controllo members the panel's table names.
#pragma once
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

struct RigaPannello;
struct Pannello;
struct Tela;  // drawing/tela.h: what a picture shows

enum class Genere {
  Cornice,    // frame: testo is its caption; what it holds is hidden and disabled with it
  Etichetta,  // label
  Campo,      // text field
  Comando,    // command button
  Spunta,     // tick: scelta 0 or 1
  Scelta,     // one entry of an exclusive choice: scelta 1 on the chosen one; the entries of a row exclude each other
  Lista,      // list or combo: voci, scelta = position from 0, -1 none
  Barra,      // scroll bar: scelta = value, massimo
  Schede,     // row of tabs: voci, scelta
  Immagine    // picture: tela, or nothing
};

struct Controllo {
  std::string testo;              // text of a field or label, caption of a frame, command, tick or choice
  std::vector<std::string> voci;  // entries of a list or row of tabs
  int scelta = -1;
  int massimo = 0, minimo = 0;                       // scroll bar
  bool visibile = true, abilitato = true;            // its own flags; see Visibile, Abilitato
  std::int32_t coloreTesto = -1, coloreSfondo = -1;  // 0xBBGGRR, -1 the platform's own
  Tela* tela = nullptr;                              // pictures
  const RigaPannello* riga = nullptr;                // filled by PreparaPannello
  int indice = 0;
};

struct Testi {  // the texts of a row, one an index from primo on; a single one serves all its indices
  const char* uno = nullptr;
  std::span<const char* const> voci;
  constexpr Testi() = default;
  constexpr Testi(const char* t) : uno(t) {}
  template <std::size_t N>
  constexpr Testi(const char* const (&v)[N]) : voci(v) {}
};

struct RigaPannello {
  const char* nome = "";
  Genere genere = Genere::Etichetta;
  Controllo* controllo = nullptr;                // the first of ultimo - primo + 1
  int primo = 0, ultimo = 0;                     // indices
  bool indicizzato = false;                      // written with its index
  const char* cornice = "";                      // frame or tab page that holds it; "" the panel itself. "SSTab/5": page 5
  Testi didascalia = {};                         // texts at the panel's creation
  Testi stato = {};                              // status line or tip text when the pointer is over it
  const char* (*statoDi)(int indice) = nullptr;  // status text that depends on the moment; wins over stato; "" none
  void (*cambio)(int indice) = nullptr;          // change of text or choice, press of a command, click of a picture
  void (*invio)(int indice) = nullptr;           // Enter, or the focus leaves
  void (*doppio)(int indice) = nullptr;          // double click
};

struct Pannello {
  const char* nome = "";
  std::span<const RigaPannello> righe;
  bool modale = false;
  std::string* titolo = nullptr;               // caption of the window
  void (*carica)() = nullptr;                  // the first time it is shown, before painting
  void (*mostrato)() = nullptr;                // each time it is shown
  void (*passa)(const char* testo) = nullptr;  // pointer over a control with that status text; "" over panel or frame
  bool* aperto = nullptr;                      // on screen now
  bool* caricato = nullptr;                    // carica has run
};

enum class Evento { Cambio, Invio, Doppio, Passa };

constexpr int SENZA_INDICE = -1;  // a control named without an index

// Ties each control to its row and gives it the texts of creation. At the start, and after a record was reset.
void PreparaPannello(const Pannello& p);
// What a host does as it shows and hides a panel: carica the first time, mostrato each time, the flag aperto.
void PannelloAperto(const Pannello& p);
void PannelloChiuso(const Pannello& p);

// nullptr: no such control or index. An indexed row named without its index gives none, but for an exclusive choice: its
// first entry, whose VoceScelta is the row's value.
Controllo* TrovaControllo(const Pannello& p, std::string_view nome, int indice);
const RigaPannello* TrovaRiga(const Pannello& p, std::string_view nome);
bool Visibile(const Pannello& p, const Controllo& c);   // own flag, its frames' flags, the panel open; a tab page does not count
bool Abilitato(const Pannello& p, const Controllo& c);  // own flag and its frames' flags

// An event of the user: clears passi and the arithmetic flags, runs the handler, answers a fault, or a lack of memory, with its box. A command
// that opens a modal panel returns when that has closed. False: there is nothing that could be carried out (a command or
// picture without a handler, a double click without one, Enter outside a field).
bool Scatena(const Pannello& p, Controllo& c, Evento e);
void PassaSulPannello(const Pannello& p);  // the pointer is over the panel itself
// The user's input as the host delivers it: the new state goes into the control, then the change event runs. False: the control
// cannot take it (not a text field; no such position).
bool UtenteScrive(const Pannello& p, Controllo& c, const std::string& testo);
bool UtenteSceglie(const Pannello& p, Controllo& c,
                   int posizione);  // list position, tick 0/1, entry of a choice (1), bar value (clipped), tab

// Setting from code: the change handler runs, also when the value is the same.
void ImpostaTesto(Controllo& c, const std::string& testo);
void ImpostaScelta(Controllo& c, int posizione);           // out of range: failed step, nothing changes; a bar clips; a tick: 0 or not
void SelezionaVoce(Controllo& primo, int indice);          // entry of an exclusive choice, by the panel's index; out of range: failed step
bool ImpostaVoce(Controllo& c, const std::string& testo);  // a list by its text, blanks count, case does not; false: not among the entries
// Setting without an event: what a user cannot enter, or rows that only show.
void MostraTesto(Controllo& c, const std::string& testo);
void MostraScelta(Controllo& c, int posizione);
void MostraMassimo(Controllo& barra, int massimo);             // never below the minimum; the value is clipped
void MostraVoci(Controllo& c, std::vector<std::string> voci);  // clears the selection
void MostraVisibile(Controllo& c, bool si);
void MostraAbilitato(Controllo& c, bool si);
int VoceScelta(const Controllo& primo);  // index chosen of an exclusive choice, -1 none
