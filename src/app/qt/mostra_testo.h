// app/qt/mostra_testo.h - a finished text file or the help before the user: in the program that the platform uses for such files,
// where there is none in a window of our own (text) or as a box that tells where the file lies (help).
#pragma once
#include <QString>

#include <string>

class QFont;
class QPagedPaintDevice;
class QWidget;

void MostraFileTesto(const std::string& percorso);  // suite path
void MostraFileAiuto(const std::string& percorso);
// Own window: fixed-width font, search, print; deletes itself when closed. One a file: a file shown anew is read again where it is open.
QWidget* FinestraTesto(const QString& file);
// Pages of a text in columns: the letters are as small as its widest line needs, since a wrapped line loses its columns.
void StampaDocumento(const QString& testo, const QFont& carattere, QPagedPaintDevice& carta);

// Windows of other programs, by their title. False, and nothing: none of that title, or a desktop that does not tell.
bool AttivaFinestraEsterna(const std::string& titolo);
void TastiAFinestraEsterna(const std::string& titolo, const std::string& tasti);  // "^v" is control-V
