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
// from the map. `chip` is s51's type ("8052", "C517", "DS320", ...).
std::map<std::string, int> runInSimulator(const std::string& hexText, std::int32_t stopAddress,
                                          const std::vector<std::string>& cells,
                                          const std::string& chip = "8052");

}  // namespace korvex::testing
