#include "disassembler/operand_names.h"

#include "base/text.h"

namespace korvex {
namespace {

const DriverName* firstAt(const std::vector<DriverName>& names, const std::string& address) {
    for (const DriverName& name : names) {
        if (name.address == address) return &name;
    }
    return nullptr;
}

}  // namespace

OperandNames::OperandNames(const CpuDriver& driver) : driver_(driver) {
    std::string comment;
    for (int value = 0; value < 256; ++value) {
        auto& direct = direct_[static_cast<std::size_t>(value)];
        direct = hexDigits(value, 2);
        directName(direct, comment);
        auto& bit = bit_[static_cast<std::size_t>(value)];
        bit = hexDigits(value, 2);
        bitName(bit);
        immediate_[static_cast<std::size_t>(value)] =
            immediateComment(static_cast<std::uint8_t>(value));
    }
}

void OperandNames::directName(std::string& hex, std::string& comment) const {
    if (const DriverName* sfr = firstAt(driver_.sfrs, hex)) {
        hex = sfr->name;
        return;
    }
    comment = "\t; " + decimalText(parseHexPrefix(hex)) + "d";
    hex += 'h';
}

void OperandNames::bitName(std::string& hex) const {
    if (const DriverName* named = firstAt(driver_.bits, hex)) {
        hex = named->name;
        return;
    }
    const std::int64_t address = parseHexPrefix(hex);
    const std::int64_t base = address - address % 8;
    const std::string bitNumber = decimalText(address - base);
    if (base < 128) {
        hex = hexDigits(32 + base / 8) + "h." + bitNumber;
        return;
    }
    if (const DriverName* sfr = firstAt(driver_.sfrs, hexDigits(base, 2))) {
        hex = sfr->name + "." + bitNumber;
        return;
    }
    hex += 'h';
}

std::int64_t relativeTargetValue(std::uint8_t offset, int length, std::int64_t address) {
    const std::int64_t next = address + length;
    return offset >= 128 ? (next + offset - 256) % 65536 : next + offset;
}

void relativeTarget(std::string& hex, int length, std::int64_t address) {
    const auto offset = static_cast<std::uint8_t>(parseHexPrefix(hex));
    hex = hexDigits(relativeTargetValue(offset, length, address), 4) + "h";
}

std::int64_t absoluteTargetValue(std::uint8_t opcode, std::uint8_t low, std::int64_t address) {
    const std::int64_t next = address + 2;
    const std::int64_t page = (next / 256) & ~std::int64_t{7};
    return 256 * (page + opcode / 32) + low;
}

std::string absoluteTarget(std::uint8_t opcode, std::uint8_t low, std::int64_t address) {
    return hexDigits(absoluteTargetValue(opcode, low, address), 4);
}

std::string immediateComment(std::uint8_t value) {
    std::string comment = "\t; " + decimalText(value) + "d";
    if (value > 32) {
        comment += " = '";
        comment += static_cast<char>(value);
        comment += "'";
    }
    return comment;
}

}  // namespace korvex
