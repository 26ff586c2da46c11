// app/qt/lingua.h - Italian, whatever the desktop speaks: the toolkit's boxes and dialogs, shortcuts' names. Numbers that the
// program itself reads and writes stay apart from the locale.
#pragma once

void PreparaLingua();  // once, behind the creation of the application
