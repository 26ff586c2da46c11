// results/riepilogo_testo.h - one judged joint as a table of at most 100 columns, for a person.
#pragma once
#include <string>
#include <string_view>

// oggetto: a node of riepilogo. A line a check with its ratio, a bar, sextet and element, failing ones first; then the notices.
std::string TabellaNodo(std::string_view oggetto, bool primo);
