#pragma once
// Assembles a generated program with the shipped 80C32 driver, in a private
// folder, as the compile command would; s51 runs come from the shared runner.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "testing/s51_runner.h"

namespace korvex::wizards::testing {

struct AssembledProgram {
    bool completed = false;
    std::string report;
    std::vector<std::string> findings;  // "position marker statement" per row with a marker
    std::string hexText;                // Intel-HEX of the code image
    // Address of the first code row at or after the last row whose statement,
    // upper case, without comment and cleaned, is `stopStatement`.
    std::optional<std::int32_t> stopAddress;
};

AssembledProgram assembleProgram(const std::string& program,
                                 const std::string& stopStatement = "END");

using korvex::testing::runInSimulator;
using korvex::testing::simulatorAvailable;

}  // namespace korvex::wizards::testing
