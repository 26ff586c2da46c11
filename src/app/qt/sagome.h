// app/qt/sagome.h - areas under the strokes of the plan, so that plate, ribs and column can be told apart at a glance.
// Units     mm, the plan's axes: origin at the plate's centre, Y upward. Taken from the model as the plan is redrawn.
#pragma once
#include "app/qt/quadro.h"

std::vector<Campitura> CampitureNodo();
