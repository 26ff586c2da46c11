// app/qt/pitture.h - drawings of the program's own, made of strokes at any size: typologies, schemes with named measures, rod
// forms, line samples, icons of the commands. Colours follow the desktop's theme.
#pragma once
#include <QIcon>
#include <QPainter>
#include <QString>
#include <QTransform>

class QWidget;

// Picture units to a place of the widget: the same scale on both axes, centred. A height below 0: y upward.
QTransform VistaSu(const QRectF& riquadro, const QRectF& posto);
void DipingiPittura(QPainter& p, const QString& nome, const QWidget& w, const QRectF& posto);  // an unknown name paints nothing
QIcon IconaComando(const QString& nome, const QWidget& w);
QIcon IconaProgramma();
void PreparaPitture(QWidget& finestra);  // icons of the commands that carry the property disegno
