// finestre/mani.h - hands and eyes of the player of scripts: what a script asks for is done by mouse and keyboard on the widgets, and what it
// looks at is read from them.
// Pages     a control on a page that is not on top is brought up without the program's knowledge, as the rule of the scripts has it; a row
//           of tabs that is looked at or used is put back first.
#pragma once
#include "app/batch/copione.h"

AzioniUtente AzioniConLeMani();
