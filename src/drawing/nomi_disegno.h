// drawing/nomi_disegno.h - the drawing store by name, for scripts that look into the model.
#pragma once
#include "model/nomi.h"

std::span<const RigaNome> NomiDisegno();
