// app/qt/quadro.h - a picture: strokes of the program's canvas over a drawing of ours, sharp at any size and scale.
// Colours   strokes keep theirs; where they are light the ground is dark, and the other way round.
#pragma once
#include "drawing/tela.h"

#include <QPainterPath>
#include <QString>
#include <QWidget>

#include <vector>

struct Campitura {  // an area under the strokes, in the canvas' user units
  QPainterPath forma;
  QColor colore;
};

class Quadro : public QWidget {
 public:
  explicit Quadro(QWidget* padre = nullptr);
  void Mostra(Tela* t);  // nullptr: no strokes
  Tela* Mostrata() const { return tela; }
  void Campiture(std::vector<Campitura> c) { campiture = std::move(c); }
  QSize sizeHint() const override { return {220, 220}; }

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  Tela* tela = nullptr;
  std::vector<Campitura> campiture;
};
