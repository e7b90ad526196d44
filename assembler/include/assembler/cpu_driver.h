#pragma once
// A controller's ".cpu" file: its interrupt vectors, special function
// registers and named bits. The assembler lays a driver over its run tables
// (vectors first in the label table); the disassembler takes the names of
// registers and bits from one, read-only.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/failure.h"

namespace korvex {

struct DriverVector {
    std::string name;
    // Empty when the reading failed on this line's address: the name was
    // already in the table then, and stays there.
    std::optional<std::int32_t> address;
};

struct DriverName {
    std::string name;
    std::string address;  // two hexadecimal digits, as the file writes them
};

// What one reading brought. A section's header sets its count to 0; the rows
// are those of the last section of a kind that held lines.
struct CpuDriver {
    std::vector<DriverVector> vectors;
    std::vector<DriverName> sfrs;
    std::vector<DriverName> bits;
    // Whether a header of the kind was read: only then the count is the file's.
    bool vectorHeader = false;
    bool sfrHeader = false;
    bool bitHeader = false;
    std::int32_t vectorCount = 0;
    Int16 sfrCount = 0;
    Int16 bitCount = 0;
};

struct DriverReading {
    std::string path;  // the file as it was looked for
    CpuDriver driver;  // as far as the reading came
    std::optional<RuntimeFailure> failure;
};

// The driver file that "#cpu" (or "CPU=") names: `name` alone lies in the
// program folder; a name with a folder is taken as it stands. ".cpu" is added.
std::string cpuDriverPath(const std::string& name, const std::string& programFolder);

// Reads a driver file whole; a failure on the way ends the reading and is
// returned with what was read before it.
DriverReading readCpuDriverFile(const std::string& path);

// The box text of a failed reading: "Fehler 53: ...." and the path below.
std::string driverFailureText(const DriverReading& reading);

}  // namespace korvex
