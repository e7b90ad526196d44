#pragma once
// Runs an Intel-HEX image in Debian's 8051 simulator s51 (sdcc-ucsim) up to a
// breakpoint and reads back internal RAM and special function registers.

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace korvex::testing {

bool simulatorAvailable();

// Reads the cells asked for once the program reaches `stopAddress`. Keys:
// "sfr:89", "iram:30" (hexadecimal, upper case). Missing values are absent
// from the map.
std::map<std::string, int> runInSimulator(const std::string& hexText, std::int32_t stopAddress,
                                          const std::vector<std::string>& cells);

}  // namespace korvex::testing
