// app/qt/lingua.cpp - the toolkit's own translation where it is installed, and the few texts that we show without it.
#include "app/qt/lingua.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <clocale>
#include <cstring>

struct Voce {
  const char* inglese;
  const char* italiano;
};
static constexpr Voce VOCI[] = {
  { "OK", "OK" },
  { "&OK", "&OK" },
  { "Cancel", "Annulla" },
  { "&Cancel", "&Annulla" },
  { "Open", "Apri" },
  { "&Open", "&Apri" },
  { "Save", "Salva" },
  { "&Save", "&Salva" },
  { "&Choose", "&Scegli" },
  { "&Yes", "&Sì" },
  { "&No", "&No" },
  { "Close", "Chiudi" },
  { "File &name:", "&Nome file:" },
  { "Files of type:", "Tipo di file:" },
  { "Look in:", "Cerca in:" },
  { "Back", "Indietro" },
  { "Forward", "Avanti" },
  { "Parent Directory", "Cartella superiore" },
  { "Create New Folder", "Crea nuova cartella" },
  { "List View", "Elenco" },
  { "Detail View", "Dettagli" },
  { "&Delete", "&Elimina" },
  { "&Rename", "&Rinomina" },
  { "Show &hidden files", "Mostra i file &nascosti" },
  { "&New Folder", "&Nuova cartella" },
  { "Name", "Nome" },
  { "Size", "Dimensione" },
  { "Type", "Tipo" },
  { "Kind", "Tipo" },
  { "Date Modified", "Data di modifica" },
  { "Computer", "Computer" },
  { "My Computer", "Computer" },
  { "%1 already exists.\nDo you want to replace it?", "%1 esiste già.\nSostituirlo?" },
  { "%1\nFile not found.\nPlease verify the correct file name was given.", "%1\nFile non trovato.\nVerificare il nome del file." },
  { "&Undo", "&Annulla" },
  { "&Redo", "&Ripeti" },
  { "Cu&t", "&Taglia" },
  { "&Copy", "&Copia" },
  { "&Paste", "&Incolla" },
  { "Delete", "Elimina" },
  { "Select All", "Seleziona tutto" },
};

namespace {
struct Riserva : QTranslator {
  using QTranslator::QTranslator;
  bool isEmpty() const override { return false; }
  QString translate(const char*, const char* testo, const char*, int) const override {
    for (const Voce& v : VOCI)
      if (std::strcmp(v.inglese, testo) == 0) return QString::fromUtf8(v.italiano);
    return {};
  }
};
}  // namespace

void PreparaLingua() {
  std::setlocale(LC_NUMERIC, "C");        // the toolkit takes the desktop's locale into the process
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  qApp->installTranslator(new Riserva(qApp));
  auto* traduzione = new QTranslator(qApp);
  if (traduzione->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) qApp->installTranslator(traduzione);
}
