// app/batch/verifica.h - a list of nodes, loaded and verified side by side, each in a process of its own that starts from the
// state right behind the start: nothing that another node left counts, and a node that crashes takes no other with it.
// Output    in the order of the list; each node's lines together, then NODO PERCORSO: and its outcome.
// Returns   0 all verified, 1 some sextet is not verified, 2 some node was not worked out: the highest of all.
#pragma once
#include <string>
#include <vector>

int VerificaNodi(const std::vector<std::string>& percorsi, int processi);
int VerificaNodo(const std::string& percorso);       // one node, in this process; 0, 1 or 2 as above
bool CaricaNodoOspite(const std::string& percorso);  // as the load command does; false: cancelled or ended in its failure box
