// Reading a controller's ".cpu" file: three sections of fixed-layout lines,
// ";" comments, tabs taken for blanks.

#include "assembler/cpu_driver.h"

#include "assembler/source_file.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

enum class Section { None, Vector, Sfr, Bit };

// Hexadecimal text read the classic way: up to four digits make a 16-bit
// value (8000h and above turn negative), up to eight a 32-bit one.
std::int32_t classicHexValue(std::string_view text) {
    std::uint64_t value = 0;
    std::size_t digits = 0;
    for (char c : text) {
        int digit = -1;
        if (c >= '0' && c <= '9') digit = c - '0';
        if (c >= 'A' && c <= 'F') digit = c - 'A' + 10;
        if (c >= 'a' && c <= 'f') digit = c - 'a' + 10;
        if (digit < 0) break;
        value = value * 16 + static_cast<std::uint64_t>(digit);
        if (++digits > 8) raise(FailureNumber::Overflow);
    }
    if (digits <= 4) return static_cast<std::int16_t>(static_cast<std::uint16_t>(value));
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

std::string cleanDriverLine(std::string line) {
    for (char& c : line) {
        if (c == '\t') c = ' ';
    }
    const std::size_t comment = line.find(';');
    if (comment != std::string::npos) line.erase(comment);
    return trimBlanks(line);
}

// The rows of one kind: a new section's first line starts them afresh, so
// an empty later section leaves the rows of the one before.
template <typename Row>
struct SectionRows {
    std::vector<Row>& rows;
    bool fresh = false;
    Row& add() {
        if (fresh) rows.clear();
        fresh = false;
        return rows.emplace_back();
    }
};

void readInto(SourceFile& file, CpuDriver& driver) {
    SectionRows<DriverVector> vectors{driver.vectors};
    SectionRows<DriverName> sfrs{driver.sfrs};
    SectionRows<DriverName> bits{driver.bits};
    Section section = Section::None;
    while (!file.atEnd()) {
        const std::string line = cleanDriverLine(file.readLine());
        if (line.empty()) continue;
        if (line == "VECTOR") {
            section = Section::Vector;
            driver.vectorHeader = vectors.fresh = true;
            driver.vectorCount = 0;
        } else if (line == "SFR") {
            section = Section::Sfr;
            driver.sfrHeader = sfrs.fresh = true;
            driver.sfrCount = 0;
        } else if (line == "BIT") {
            section = Section::Bit;
            driver.bitHeader = bits.fresh = true;
            driver.bitCount = 0;
        } else if (section == Section::Vector) {
            const std::size_t blank = line.find(' ');
            if (blank == std::string::npos) raise(FailureNumber::InvalidCall);
            DriverVector& vector = vectors.add();
            vector.name = trimBlanks(line.substr(blank));
            vector.address = classicHexValue(line.substr(0, blank));
            driver.vectorCount = checkedAdd(driver.vectorCount, 1);
        } else if (section != Section::None) {
            // Fixed layout: two address digits, a separator, the name.
            const bool isSfr = section == Section::Sfr;
            DriverName& entry = isSfr ? sfrs.add() : bits.add();
            entry.name = line.size() > 3 ? trimBlanks(line.substr(3)) : "";
            entry.address = line.substr(0, 2);
            ++(isSfr ? driver.sfrCount : driver.bitCount);
        }
    }
}

}  // namespace

std::string cpuDriverPath(const std::string& name, const std::string& programFolder) {
    std::string path = nativePath(name);
    if (name.find('\\') == std::string::npos && name.find('/') == std::string::npos) {
        path = programFolder + path;
    }
    return path + ".cpu";
}

DriverReading readCpuDriverFile(const std::string& path) {
    DriverReading reading;
    reading.path = path;
    try {
        SourceFile file = SourceFile::open(findFileIgnoringCase(path));
        readInto(file, reading.driver);
    } catch (...) {
        reading.failure = currentFailure();
    }
    return reading;
}

std::string driverFailureText(const DriverReading& reading) {
    if (!reading.failure) return {};
    return "Fehler " + decimalText(reading.failure->number(), true) + ": " +
           reading.failure->description() + "." + std::string(kCrLf) + reading.path;
}

}  // namespace korvex
