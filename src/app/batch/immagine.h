// app/batch/immagine.h - the verb immagine: one sextet of a node as a picture in SVG.
// Returns   0 written, 2 not: node not worked out, no such sextet, a file that cannot be written.
#pragma once

int ComandoImmagine();
bool UscitaImmagineAmmessa();  // the output ends in .svg, in any case
