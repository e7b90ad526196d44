#pragma once
// Assembles a generated program with the shipped 80C32 driver, in a private
// folder, as the compile command would; and runs a program in Debian's 8051
// simulator s51 to read back registers.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

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

bool simulatorAvailable();

// Runs the hex image up to `stopAddress` in s51 (8052) and reads the SFRs and
// internal RAM bytes asked for. Keys: "sfr:89", "iram:30". Missing values are
// absent from the map.
std::map<std::string, int> runInSimulator(const std::string& hexText, std::int32_t stopAddress,
                                          const std::vector<std::string>& cells);

}  // namespace korvex::wizards::testing
