// app/batch/riepilogo.h - the verb riepilogo: a list of nodes judged as data, each node and method in a process of its own.
// Output    in the order of the list, node by node, by both methods: allowable stresses, then limit states. Standard output or a file, which is
//           written whole or not at all. Reasons on standard error, one line each.
// Returns   0 all verified, 1 some is not, 2 some was not worked out or the output was not written.
#pragma once

int ComandoRiepilogo();
