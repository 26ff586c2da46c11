// tests/corredo/suite_prova.cpp - copies the sample suite and starts the program on it.
#include "corredo/suite_prova.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "corredo/registratore.h"
#include "model/stato.h"
#include "model/suite.h"
#include "panels/InsDati.h"
#include "panels/programma.h"

std::string PreparaSuite(const std::string& nome) {
  const std::string radice = CartellaProva(nome);
  std::error_code errore;
  std::filesystem::copy(QB07_RADICE "/samples/suite", radice, std::filesystem::copy_options::recursive, errore);
  std::string lavori = radice + "/lavori/";
  std::replace(lavori.begin(), lavori.end(), '/', '\\');
  ScriviByte(radice + "/impostazioni/dirlav", lavori + "\r\n");
  return radice;
}

bool AvviaSuite(const std::string& radice) {
  MontaRegistratore();
  AzzeraProgramma();
  suite.Decimale = '.';
  const bool riuscito = CaricaInsDati("|diroot=" + radice + "|");
  registratore.eventi.clear();
  return riuscito;
}

std::string CartellaLavoro(const std::string& radice) { return radice + "/lavori/NODI01/"; }
