// core/piattaforma.cpp - the empty platform: each operation aborts by its name, so that a host that forgot one is found at once.
#include "core/piattaforma.h"

#include <cstdio>
#include <cstdlib>

[[noreturn]] static void Assente(const char* operazione) {
  std::fprintf(stderr, "piattaforma.%s is not filled\n", operazione);
  std::abort();
}

Piattaforma PiattaformaAssente() {
  Piattaforma p;
  p.messaggio = [](const std::string&, const std::string&, Icona) { Assente("messaggio"); };
  p.domanda = [](const std::string&, const std::string&, Icona) -> bool { Assente("domanda"); };
  p.scegliFile = [](const RichiestaFile&, std::string&, int&) -> bool { Assente("scegliFile"); };
  p.esegui = [](const std::string&, const std::string&) -> bool { Assente("esegui"); };
  p.avvia = [](const std::string&, const std::string&) -> bool { Assente("avvia"); };
  p.attivaFinestra = [](const std::string&) -> bool { Assente("attivaFinestra"); };
  p.tasti = [](const std::string&, const std::string&) { Assente("tasti"); };
  p.mostraTesto = [](const std::string&) { Assente("mostraTesto"); };
  p.mostraAiuto = [](const std::string&) { Assente("mostraAiuto"); };
  p.timer = [](Temporizzatore, int, void (*)()) { Assente("timer"); };
  p.apri = [](const Pannello&, bool) { Assente("apri"); };
  p.chiudi = [](const Pannello&) { Assente("chiudi"); };
  p.aggiorna = [](Controllo&) { Assente("aggiorna"); };
  p.fuoco = [](Controllo&) { Assente("fuoco"); };
  p.attesa = [](bool) { Assente("attesa"); };
  p.diario = [](const std::string&) { Assente("diario"); };
  p.fine = []() { Assente("fine"); };
  return p;
}

void Messaggio(const std::string& testo, const std::string& titolo, Icona icona) { piattaforma.messaggio(testo, titolo, icona); }
