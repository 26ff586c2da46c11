// model/icona.h - the sign that a box bears.
#pragma once

enum class Icona { Nessuna, Informazione, Esclamazione, Critica };
