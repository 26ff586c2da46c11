// engine/Controlli.h - may this joint be verified at all, and do its anchors keep the distances from the plate's edge?
// Given     nodo as entered; lengths in mm. Nothing here changes it.
// Boxes     each titled "ATTENZIONE!", exclamation: the first eight ask OK/Annulla, the others only tell.
#pragma once

// False: the verification is not possible. The first question always comes, the next ones only while nothing was refused,
// the two last checks always.
bool ControlliGeometrici();
// Advice, false when a side is out of the bounds and the box was shown. The user decides whether to go on.
bool ControlloBordoCNR();          // CNR 10011/88: 2 Fi <= D <= 6 t
bool ControlloBordoNTC();          // NTC 2008 4.2.8.1.1: 1.2 Fi <= D <= limit by the exposure class
