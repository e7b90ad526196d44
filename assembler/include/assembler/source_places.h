#pragma once
// Where each row of a run stands in the user's files. The rows know their
// file only by number, and one number serves every include that opens at the
// same depth, so the names come from a walk over the rows: an include begins
// where the file number rises, and the line just before it holds the
// #INCLUDE that opened it.

#include <cstddef>
#include <string>
#include <vector>

#include "assembler/run_state.h"

namespace korvex {

struct SourcePlace {
    int file = 0;      // the run's file number, 1 for the main source
    std::string name;  // the main file's name, or the include as written (Windows-1252)
    std::string line;  // line number in that file, as text
};

// One place per row of `state.sourceTable`. A row that a structure added has
// no position of its own and takes the place of the row before it.
std::vector<SourcePlace> sourcePlaces(const RunState& state);

}  // namespace korvex
