// link/nomi_collegamento.h - what the imports found in the three-dimensional model, by name, for scripts that look into the model.
#pragma once
#include "model/nomi.h"

std::span<const RigaNome> NomiCollegamento();
