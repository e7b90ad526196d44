// #BYTE, #WORD, #BIT, #CONST and #EXCLUDE: names with a value take it, names
// without one are placed from 7Fh downwards in internal RAM or the bit area.

#include "assembler/assembler.h"
#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

constexpr int kByteKind = 0;
constexpr int kWordKind = 1;
constexpr int kBitKind = 2;
constexpr int kConstKind = 3;

// A table value read the classic way: empty or broken text counts as 0.
std::int64_t decimalCell(const std::string& text) {
    return parseDecimal(text, 0);
}
std::int64_t hexCell(const std::string& text) {
    return parseHexPrefix(text);
}

// Appends by the key rule: the empty row of a new table is filled first.
template <std::size_t N>
void storeDeclared(TextTable<N>& table, const std::string& key, const std::string& value,
                   const std::string& written) {
    const int row = table.appendByKeyRule();
    table.set(row, 0, key);
    table.set(row, 1, value);
    if constexpr (N >= 4) table.set(row, 3, written);
}

template <std::size_t N>
bool anyRowHolds(const TextTable<N>& table, int from, std::int64_t address, bool hex) {
    for (int i = std::max(from, 0); i < table.size(); ++i) {
        const std::string& cell = table.at(i, 1);
        if ((hex ? hexCell(cell) : decimalCell(cell)) == address) return true;
    }
    return false;
}

}  // namespace

void Assembler::setRowMarker(const std::string& marker) {
    // A directive behind another statement of its line has no row of its own.
    if (state_.currentRow < static_cast<std::int32_t>(state_.sourceTable.size())) {
        state_.setMarker(state_.currentRow, marker);
    }
}

void Assembler::addSymbol(const std::string& written, const std::string& kind, std::int64_t value) {
    const int row = state_.symbolList.appendByKeyRule();
    state_.symbolList.set(row, 0, written);
    state_.symbolList.set(row, 1, kind);
    state_.symbolList.set(row, 2, hexDigits(value, 2) + "h");
}

void Assembler::declareList(std::string list, const std::string& kind) {
    try {
        const int kindNumber = kind == "BYTE"   ? kByteKind
                               : kind == "WORD" ? kWordKind
                               : kind == "BIT"  ? kBitKind
                                                : kConstKind;
        list += ",";
        const bool ownRow =
            state_.currentRow < static_cast<std::int32_t>(state_.sourceTable.size());
        if (ownRow) state_.sourceTable[static_cast<std::size_t>(state_.currentRow)].retry = false;
        std::size_t start = 0;
        for (std::size_t comma = list.find(','); comma != std::string::npos;
             start = comma + 1, comma = list.find(',', start)) {
            const std::string piece = list.substr(start, comma - start);
            const std::string written = trimBlanks(piece);
            const std::string key = upperCase(removeAll(piece, ' '));
            if (!key.empty()) declareName(key, written, kindNumber);
        }
        if (ownRow) setCodeText(std::string(kFourTabs));
    } catch (...) {
        host_.messageBox(text8("Fehler"),
                         failureBoxText(currentFailure(), "assembleSource, Quelltext: " + list),
                         MessageButtons::Ok, MessageIcon::Critical);
    }
}

void Assembler::declareName(std::string key, std::string written, int kind) {
    const std::size_t equals = key.find('=');
    if (equals != std::string::npos) {
        std::string valueText = key.substr(equals + 1);
        key.erase(equals);
        written = trimBlanks(written.substr(0, written.find('=')));
        std::int32_t value = 0;
        if (kind == kBitKind) {
            std::int16_t cls = ClassNone;
            parseBitOperand(valueText, cls, value);
            if (cls != ClassBit) setRowMarker(findingMarker(Finding::InvalidBitName, valueText));
        } else {
            bool found = false;
            const std::string original = valueText;
            evaluateExpression(valueText, value, found);
            if (!found && original.size() == 3 && original.front() == '\'' &&
                original.back() == '\'') {
                value = static_cast<unsigned char>(original[1]);
                found = true;
            }
            if (!found) {
                setRowMarker(findingMarker(Finding::NumberNotRecognised, original));
                return;
            }
        }
        switch (kind) {
            case kConstKind:
                if (state_.constantTable.find(key) >= 0) {
                    setRowMarker(findingMarker(Finding::ConstantDefinedTwice, key));
                    return;
                }
                storeDeclared(state_.constantTable, key, std::to_string(value), "");
                addSymbol(written, "CONST", value);
                return;
            case kBitKind:
                if (state_.bitTable.find(key) >= 0) {
                    setRowMarker(findingMarker(Finding::BitDefinedTwice, key));
                    return;
                }
                {
                    // A bit with a value always takes a new row.
                    const int row = state_.bitTable.appendRow();
                    state_.bitTable.set(row, 0, key);
                    state_.bitTable.set(row, 1, hexDigits(value));
                    state_.bitTable.set(row, 3, written);
                }
                addSymbol(written, "BIT", value);
                return;
            case kByteKind:
                if (state_.byteTable.find(key) >= 0) {
                    setRowMarker(findingMarker(Finding::ByteDefinedTwice, key));
                    return;
                }
                storeDeclared(state_.byteTable, key, std::to_string(value), written);
                addSymbol(written, "IRAM", value);
                return;
            default:
                storeDeclared(state_.wordTable, key, std::to_string(value), written);
                addSymbol(written, "IRAM", value);
                return;
        }
    }

    switch (kind) {
        case kConstKind: setRowMarker(findingMarker(Finding::ConstantWithoutValue)); return;
        case kBitKind: {
            if (state_.bitTable.find(key) >= 0) {
                setRowMarker(findingMarker(Finding::PlacedBitDefinedTwice, key));
                return;
            }
            for (int address = 0x7F; address >= 0; --address) {
                if (anyRowHolds(state_.bitTable, state_.firstUserBit, address, true)) continue;
                storeDeclared(state_.bitTable, key, hexDigits(address), written);
                addSymbol(written, "BIT", address);
                return;
            }
            return;  // no free bit: the name stays undefined
        }
        case kByteKind: {
            if (state_.sfrTable.find(key) >= 0) {
                setRowMarker(findingMarker(Finding::ByteNamesSfr, key));
                return;
            }
            if (state_.byteTable.find(key) >= 0) {
                setRowMarker(findingMarker(Finding::PlacedByteDefinedTwice, key));
                return;
            }
            for (int address = 0x7F; address >= 0; --address) {
                // A word takes its address and the one above.
                if (anyRowHolds(state_.byteTable, 0, address, false) ||
                    anyRowHolds(state_.wordTable, 0, address, false) ||
                    anyRowHolds(state_.wordTable, 0, address - 1, false)) {
                    continue;
                }
                storeDeclared(state_.byteTable, key, std::to_string(address), written);
                addSymbol(written, "IRAM", address);
                return;
            }
            return;
        }
        default: {
            if (state_.sfrTable.find(key) >= 0) {
                setRowMarker(findingMarker(Finding::WordNamesSfr, key));
                return;
            }
            if (state_.wordTable.find(key) >= 0) {
                setRowMarker(findingMarker(Finding::WordDefinedTwice, key));
                return;
            }
            for (int address = 0x7F; address >= 0; --address) {
                // Words look at exact matches only, so two words may share a byte.
                if (anyRowHolds(state_.wordTable, 0, address, false) ||
                    anyRowHolds(state_.byteTable, 0, address, false) ||
                    anyRowHolds(state_.byteTable, 0, address + 1, false)) {
                    continue;
                }
                storeDeclared(state_.wordTable, key, std::to_string(address), written);
                addSymbol(written, "IRAM", address);
                return;
            }
            return;
        }
    }
}

void Assembler::excludeRange(const std::string& text, bool bits) {
    const std::string range = text.substr(bits ? 4 : 5);
    const std::size_t dash = range.find('-');
    std::string from = cleaned(range.substr(0, dash));
    std::string to = dash == std::string::npos ? std::string() : cleaned(range.substr(dash + 1));
    std::int32_t first = 0;
    std::int32_t last = 0;
    if (bits) {
        std::int16_t cls = ClassNone;
        parseBitOperand(from, cls, first);
        parseBitOperand(to, cls, last);
    } else {
        bool found = false;
        evaluateExpression(from, first, found);
        evaluateExpression(to, last, found);
    }
    // The row counter is 8 bits wide: more than 255 rows end in an overflow.
    auto exclude = [&](auto& table) {
        int row = table.lastIndex();
        if (row > 255) raise(FailureNumber::Overflow);
        const std::string& lastAddress = table.at(row, 1);
        if ((bits ? hexCell(lastAddress) : decimalCell(lastAddress)) != 0) ++row;
        for (std::int64_t address = first; address <= last; ++address) {
            if (row > 255) raise(FailureNumber::Overflow);
            table.growTo(row);
            table.set(row, 0, "#");
            table.set(row, 1, bits ? hexDigits(address) : std::to_string(address));
            ++row;
        }
    };
    if (bits) {
        exclude(state_.bitTable);
    } else {
        exclude(state_.byteTable);
    }
}

}  // namespace korvex
