// engine/nomi_motore.h - the scalars of one verification and of one sextet's solution by name, for scripts that look into the model.
#pragma once
#include "model/nomi.h"

std::span<const RigaNome> NomiMotore();
