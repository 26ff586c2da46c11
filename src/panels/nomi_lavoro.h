// panels/nomi_lavoro.h - the tables and scalars of the panels' verification by name, for scripts that look into the model.
#pragma once
#include "model/nomi.h"

std::span<const RigaNome> NomiLavoro();
