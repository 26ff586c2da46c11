// app/batch/memoria.h - a run for which the system has no more memory says so and ends with status 2, wherever it was: in the batch host
// nobody could go on with a joint half loaded. Files that were being written are as a killed run leaves them.
#pragma once

void PreparaMemoria();  // at the start; holds for the processes that this one forks, too
