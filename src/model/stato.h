// model/stato.h - what the user sees is one: the suite in use, the tables of materials, the joint as entered.
// State     suite, materiali: filled by the start. nodo: written by the panel's fields the moment they change.
//           What is calculated is passed (engine/lavoro.h): no procedure of the engine reaches these.
#pragma once
#include "model/materiali.h"
#include "model/node_model.h"
#include "model/suite.h"

inline Suite suite;
inline Materiali materiali;
inline Nodo nodo;
