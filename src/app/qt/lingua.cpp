// app/qt/lingua.cpp - the toolkit's own translation where it is installed, and the texts that we show without it or that it lacks.
#include "app/qt/lingua.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <clocale>
#include <cstring>

namespace {
struct Voce {
  const char* inglese;
  const char* italiano;
};
}  // namespace

// clang-format off
static constexpr Voce VOCI[] = {
  { "OK", "OK" },
  { "&OK", "&OK" },
  { "Cancel", "Annulla" },
  { "&Cancel", "&Annulla" },
  { "Open", "Apri" },
  { "&Open", "&Apri" },
  { "Save", "Salva" },
  { "&Save", "&Salva" },
  { "Save As", "Salva come" },
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
  { "Folder", "Cartella" },
  { "Drive", "Unità" },
  { "Unknown", "Sconosciuto" },
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
  { "Copy &Link Location", "Copia il co&llegamento" },
  { "Scroll here", "Scorri fin qui" },
  { "Top", "Inizio" },
  { "Bottom", "Fine" },
  { "Page up", "Pagina su" },
  { "Page down", "Pagina giù" },
  { "Scroll up", "Scorri in su" },
  { "Scroll down", "Scorri in giù" },
  { "Left edge", "Bordo sinistro" },
  { "Right edge", "Bordo destro" },
  { "Page left", "Pagina a sinistra" },
  { "Page right", "Pagina a destra" },
  { "Scroll left", "Scorri a sinistra" },
  { "Scroll right", "Scorri a destra" },
  { "Print", "Stampa" },
  { "&Print", "&Stampa" },
  { "Printer", "Stampante" },
  { "&Name:", "&Nome:" },
  { "P&roperties", "P&roprietà" },
  { "Location:", "Posizione:" },
  { "Type:", "Tipo:" },
  { "Output &file:", "&File di uscita:" },
  { "Print to File (PDF)", "Stampa su file (PDF)" },
  { "Local file", "File locale" },
  { "Write PDF file", "Scrive un file PDF" },
  { "Print To File ...", "Stampa su file..." },
  { "&Options >>", "&Opzioni >>" },
  { "&Options <<", "&Opzioni <<" },
  { "Options", "Opzioni" },
  { "Copies", "Copie" },
  { "Copies:", "Copie:" },
  { "Print range", "Pagine da stampare" },
  { "Print all", "Tutte" },
  { "Pages from", "Pagine da" },
  { "to", "a" },
  { "Current Page", "Pagina corrente" },
  { "Selection", "Selezione" },
  { "Pages", "Pagine" },
  { "Page Set:", "Insieme di pagine:" },
  { "All Pages", "Tutte le pagine" },
  { "Odd Pages", "Pagine dispari" },
  { "Even Pages", "Pagine pari" },
  { "Output Settings", "Uscita" },
  { "Collate", "Fascicola" },
  { "Reverse", "Ordine inverso" },
  { "Color Mode", "Colore" },
  { "Color", "A colori" },
  { "Grayscale", "Toni di grigio" },
  { "Duplex Printing", "Fronte e retro" },
  { "None", "Nessuno" },
  { "Long side", "Lato lungo" },
  { "Short side", "Lato corto" },
  { "Printer Properties", "Proprietà della stampante" },
  { "Page", "Pagina" },
  { "Advanced", "Avanzate" },
  { "Paper", "Carta" },
  { "Page size:", "Formato:" },
  { "Width:", "Larghezza:" },
  { "Height:", "Altezza:" },
  { "Paper source:", "Alimentazione:" },
  { "Orientation", "Orientamento" },
  { "Portrait", "Verticale" },
  { "Landscape", "Orizzontale" },
  { "Reverse landscape", "Orizzontale rovesciato" },
  { "Reverse portrait", "Verticale rovesciato" },
  { "Margins", "Margini" },
  { "top margin", "margine superiore" },
  { "left margin", "margine sinistro" },
  { "right margin", "margine destro" },
  { "bottom margin", "margine inferiore" },
  { "Page Layout", "Disposizione" },
  { "Pages per sheet:", "Pagine per foglio:" },
  { "Page order:", "Ordine delle pagine:" },
  { "Millimeters (mm)", "Millimetri (mm)" },
  { "Inches (in)", "Pollici (in)" },
  { "Centimeters (cm)", "Centimetri (cm)" },
  { "Points (pt)", "Punti (pt)" },
  { "Custom", "Personalizzato" },
  { "File exists", "Il file esiste" },
  { "<qt>Do you want to overwrite it?</qt>", "<qt>Sostituirlo?</qt>" },
};
// clang-format on

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
  std::setlocale(LC_NUMERIC, "C");  // the toolkit takes the desktop's locale into the process
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  qApp->installTranslator(new Riserva(qApp));
  auto* traduzione = new QTranslator(qApp);
  if (traduzione->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) qApp->installTranslator(traduzione);
}
