#pragma once
// Assembles a generated program with the shipped 80C32 driver, in a private
// folder, as the compile command would; s51 runs come from the shared runner.

#include <cstdint>
#include <optional>
#include <string>

#include "assembler_fixture.h"
#include "testing/s51_runner.h"

namespace korvex::wizards::testing {

using korvex::testing::AssembledSource;

AssembledSource assembleProgram(const std::string& program);

// Address of the first code row at or after the last row whose statement,
// upper case, without comment and cleaned, is `stopStatement`.
std::optional<std::int32_t> stopAddress(const AssembledSource& assembled,
                                        const std::string& stopStatement);

using korvex::testing::runInSimulator;
using korvex::testing::simulatorAvailable;

}  // namespace korvex::wizards::testing
