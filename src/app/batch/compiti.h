// app/batch/compiti.h - a list of pieces of work, each in a process of its own that starts from the state of this one: nothing that another
// leaves behind counts, and one that crashes takes no other with it.
// Order     started and handed over in the order of the list, whatever order they end in.
// Signals   asked to end, this process ends its workers first and then itself by the same signal; what was handed over stands whole, of the
//           others nothing was. The workers end with it also when it is killed.
// Failure   a worker that a signal ended, that returned no status of the program or could not be started counts as status 2 and has a reason.
#pragma once
#include <cstddef>
#include <functional>
#include <string>

struct EsitoCompito {
  std::string uscita;  // whole lines that it printed; one that was cut short by its end is dropped
  int stato = 2;       // 0, 1 or 2
  std::string motivo;  // Italian; empty: it ended by itself
};

struct Compiti {
  std::size_t quanti = 0;                           // pieces of work, by their position from 0
  int insieme = 1;                                  // as many at most at a time
  std::function<int(std::size_t)> esegui;           // in its own process: prints by Stampa, returns 0, 1 or 2
  std::function<std::string(std::size_t)> risorsa;  // two of one text are never at work together, the earlier goes first; null: any
  std::function<void(std::size_t, const EsitoCompito&)> consegna;  // in this process
};
void EseguiCompiti(const Compiti& c);
