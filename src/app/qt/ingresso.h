// app/qt/ingresso.h - input of the user as events of the panels.
// Order     one event at a time: what arrives while one runs (a focus that a handler moves) is no event of the user.
#pragma once
class QAbstractButton;
class QWidget;
struct Legame;
struct Pannello;

void CollegaPannello(const Pannello& p);  // signals of its widgets, which are tied
void CollegaTasto(QAbstractButton& b);    // the shortcut that its property tasto names
void SpiaIngresso();                      // the application's filter: pointer, focus, double click, keys, closing
void PassaPuntatore(const Pannello& p, QWidget& finestra, int x, int y);  // pointer over that place of a window
