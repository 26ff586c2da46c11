// panels/programma.h - the program as it stands before its start.
#pragma once
#include <memory>

// Every state record of the program back to its start value, the panels' rows tied and their texts of creation in place.
// For hosts that work on several joints as in runs of their own, and for tests. The platform's operations stay.
// suite goes back too: the host puts its decimal mark (suite.Decimale) in again.
void AzzeraProgramma();

void PreparaPannelli();  // rows tied, texts of creation, for every panel; the start does it

// What a load can see of what was loaded, typed or verified before: joint, materials, panels. Put back, the next load runs as behind the
// moment of the picture, in the same process. Drawing and tables of results are not in it.
struct Fotografia;
struct DistruggiFotografia {
  void operator()(Fotografia* f) const;
};
using FotografiaProgramma = std::unique_ptr<Fotografia, DistruggiFotografia>;
FotografiaProgramma FotografaProgramma();
void RipristinaProgramma(const Fotografia& f);
