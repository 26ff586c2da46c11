// app/qt/finestre_altrui.cpp - windows of other programs by their title, on the X Window System; elsewhere none is ever found.
#include "app/qt/mostra_testo.h"

#ifdef QB07_X11
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/keysym.h>

#include <chrono>
#include <thread>

static std::string Proprieta(Display* d, Window w, Atom nome, Atom tipo) {
  Atom tipoVero = 0;
  int bit = 0;
  unsigned long quanti = 0, resto = 0;
  unsigned char* dati = nullptr;
  std::string testo;
  if (XGetWindowProperty(d, w, nome, 0, 4096, False, tipo, &tipoVero, &bit, &quanti, &resto, &dati) == Success && dati != nullptr &&
      bit == 8)
    testo.assign(reinterpret_cast<const char*>(dati), quanti);
  if (dati != nullptr) XFree(dati);
  return testo;
}

static std::string Titolo(Display* d, Window w) {
  const std::string nuovo = Proprieta(d, w, XInternAtom(d, "_NET_WM_NAME", False), XInternAtom(d, "UTF8_STRING", False));
  return nuovo.empty() ? Proprieta(d, w, XA_WM_NAME, XA_STRING) : nuovo;
}

static Window Cerca(Display* d, Window w, const std::string& titolo) {
  XWindowAttributes stato;
  if (XGetWindowAttributes(d, w, &stato) != 0 && stato.map_state == IsViewable && Titolo(d, w) == titolo) return w;
  Window radice = 0, padre = 0, *figlie = nullptr, trovata = 0;
  unsigned quante = 0;
  if (XQueryTree(d, w, &radice, &padre, &figlie, &quante) == 0) return 0;
  for (unsigned k = 0; k < quante && trovata == 0; ++k) trovata = Cerca(d, figlie[k], titolo);
  if (figlie != nullptr) XFree(figlie);
  return trovata;
}

// A window that goes while it is looked at is no reason to die.
static int Tace(Display*, XErrorEvent*) { return 0; }

namespace {
struct Collegato {
  Display* d = XOpenDisplay(nullptr);
  int (*prima)(Display*, XErrorEvent*) = XSetErrorHandler(Tace);
  Collegato() = default;
  ~Collegato() {
    if (d != nullptr) XCloseDisplay(d);
    XSetErrorHandler(prima);
  }
  Collegato(const Collegato&) = delete;
  Collegato& operator=(const Collegato&) = delete;
};
}  // namespace

// A window manager is asked to bring it in front; where there is none the focus is set.
static bool GestoreDelleFinestre(Display* d) {
  Atom tipo = 0;
  int bit = 0;
  unsigned long quanti = 0, resto = 0;
  unsigned char* dati = nullptr;
  const Atom nome = XInternAtom(d, "_NET_SUPPORTING_WM_CHECK", False);
  const int esito = XGetWindowProperty(d, DefaultRootWindow(d), nome, 0, 1, False, XA_WINDOW, &tipo, &bit, &quanti, &resto, &dati);
  if (dati != nullptr) XFree(dati);
  return esito == Success && quanti > 0;
}

static void ChiediAlGestore(Display* d, Window w) {
  XEvent e = {};
  e.xclient.type = ClientMessage;
  e.xclient.window = w;
  e.xclient.message_type = XInternAtom(d, "_NET_ACTIVE_WINDOW", False);
  e.xclient.format = 32;
  e.xclient.data.l[0] = 2;  // asked for by the user
  XSendEvent(d, DefaultRootWindow(d), False, SubstructureRedirectMask | SubstructureNotifyMask, &e);
}

// Keys that arrive before the focus are lost on it. A desktop that does not give the focus away is not waited for longer.
static void AspettaFuoco(Display* d, Window w) {
  for (int k = 0; k < 100; ++k) {
    Window fuoco = 0;
    int ritorno = 0;
    XGetInputFocus(d, &fuoco, &ritorno);
    if (fuoco == w) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
}

bool AttivaFinestraEsterna(const std::string& titolo) {
  const Collegato x;
  if (x.d == nullptr) return false;
  const Window w = Cerca(x.d, DefaultRootWindow(x.d), titolo);
  if (w == 0) return false;
  XRaiseWindow(x.d, w);
  if (GestoreDelleFinestre(x.d)) ChiediAlGestore(x.d, w);
  else XSetInputFocus(x.d, w, RevertToParent, CurrentTime);
  XSync(x.d, False);
  AspettaFuoco(x.d, w);
  return true;
}

static void Tasto(Display* d, Window w, int tipo, KeyCode tasto, unsigned modificatori) {
  XEvent e = {};
  e.xkey.type = tipo;
  e.xkey.window = w;
  e.xkey.root = DefaultRootWindow(d);
  e.xkey.same_screen = True;
  e.xkey.keycode = tasto;
  e.xkey.state = modificatori;
  e.xkey.time = CurrentTime;
  XSendEvent(d, w, True, tipo == KeyPress ? KeyPressMask : KeyReleaseMask, &e);
}

void TastiAFinestraEsterna(const std::string& titolo, const std::string& tasti) {
  const Collegato x;
  if (x.d == nullptr) return;
  const Window w = Cerca(x.d, DefaultRootWindow(x.d), titolo);
  if (w == 0) return;
  unsigned modificatori = 0;
  for (const char c : tasti) {
    if (c == '^') {
      modificatori = ControlMask;
      continue;
    }
    const char nome[2] = {c, '\0'};
    const KeyCode tasto = XKeysymToKeycode(x.d, XStringToKeysym(nome));
    Tasto(x.d, w, KeyPress, tasto, modificatori);
    Tasto(x.d, w, KeyRelease, tasto, modificatori);
    modificatori = 0;
  }
  XSync(x.d, False);
}

#else

bool AttivaFinestraEsterna(const std::string&) { return false; }
void TastiAFinestraEsterna(const std::string&, const std::string&) {}

#endif
