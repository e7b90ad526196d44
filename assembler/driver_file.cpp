// readCpuDriver: a controller's vectors, registers and named bits from its
// ".cpu" file. The counters it sets outlive the run on purpose.

#include "assembler/assembler.h"
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

}  // namespace

void Assembler::readCpuDriver(const std::string& head, const std::string& tail) {
    const std::string joined = head + tail;
    std::string name = joined.size() > 3 && joined[3] == '='
                           ? joined.substr(std::min<std::size_t>(4, joined.size()))
                           : joined.substr(std::min<std::size_t>(3, joined.size()));
    name = removeAll(name, '\'');
    std::string path = nativePath(name);
    if (name.find('\\') == std::string::npos && name.find('/') == std::string::npos) {
        path = settings_.programFolder + path;
    }
    path += ".cpu";
    try {
        SourceFile file = SourceFile::open(findFileIgnoringCase(path));
        Section section = Section::None;
        while (!file.atEnd()) {
            const std::string line = cleanDriverLine(file.readLine());
            if (line.empty()) continue;
            if (line == "VECTOR" || line == "SFR" || line == "BIT") {
                section = line == "VECTOR" ? Section::Vector
                          : line == "SFR"  ? Section::Sfr
                                           : Section::Bit;
                if (section == Section::Vector) state_.vectorCount = 0;
                if (section == Section::Sfr) state_.sfrCount = 0;
                if (section == Section::Bit) state_.bitCount = 0;
                continue;
            }
            switch (section) {
                case Section::Vector: {
                    const std::size_t blank = line.find(' ');
                    if (blank == std::string::npos) raise(FailureNumber::InvalidCall);
                    auto& table = state_.labelTable;
                    const int row = state_.vectorCount;
                    table.growTo(row);
                    table.set(row, 0, trimBlanks(line.substr(blank)));
                    table.set(row, 1, std::to_string(classicHexValue(line.substr(0, blank))));
                    table.set(row, 2, "1");
                    state_.vectorCount = checkedAdd(state_.vectorCount, 1);
                    break;
                }
                case Section::Sfr:
                case Section::Bit: {
                    // Fixed layout: two address digits, a separator, the name.
                    const bool isSfr = section == Section::Sfr;
                    Int16& count = isSfr ? state_.sfrCount : state_.bitCount;
                    const int row = count;
                    const std::string rowName = line.size() > 3 ? trimBlanks(line.substr(3)) : "";
                    const std::string address = line.substr(0, 2);
                    if (isSfr) {
                        state_.sfrTable.growTo(row);
                        state_.sfrTable.set(row, 0, rowName);
                        state_.sfrTable.set(row, 1, address);
                        state_.sfrTable.set(row, 2, "1");
                    } else {
                        state_.bitTable.growTo(row);
                        state_.bitTable.set(row, 0, rowName);
                        state_.bitTable.set(row, 1, address);
                        state_.bitTable.set(row, 2, "1");
                    }
                    ++count;
                    break;
                }
                case Section::None:
                    break;
            }
        }
        state_.firstUserBit = state_.bitTable.lastIndex();
    } catch (...) {
        const RuntimeFailure failure = currentFailure();
        host_.messageBox("Korvex",
                         "Fehler " + decimalText(failure.number(), true) + ": " +
                             failure.description() + "." + std::string(kCrLf) + path,
                         MessageButtons::Ok, MessageIcon::Critical);
        state_.errorNumber = 199;
    }
}

}  // namespace korvex
