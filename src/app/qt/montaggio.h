// app/qt/montaggio.h - the windows put together: forms, records, input, pictures.
#pragma once
#include <QStringList>

class QWidget;
struct Pannello;

QWidget* NuovaFinestra(const Pannello& p);  // a fresh window from the panel's form, tied to nothing; the caller owns it
// Makes and ties all windows. The differences between forms and records, one a line; none: all is well.
QStringList CreaFinestre();
void DistruggiFinestre();
