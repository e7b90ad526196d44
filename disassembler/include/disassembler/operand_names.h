#pragma once
// How operands are written: registers and bits by the names of the driver
// file, other numbers as hexadecimal with "h", jump targets as four digits.
// The naming routines search the driver's lists first entry first; a run asks them
// once for each of the 256 values and keeps the answers.

#include <array>
#include <cstdint>
#include <string>

#include "assembler/cpu_driver.h"

namespace korvex {

class OperandNames {
  public:
    explicit OperandNames(const CpuDriver& driver);

    // `hex` (two digits) becomes the register's name; with no register at that
    // address it gets "h", and `comment` becomes the decimal value.
    void directName(std::string& hex, std::string& comment) const;
    // `hex` (two digits) becomes a bit name, "2Ah.3", "P1.3" or the number with "h".
    void bitName(std::string& hex) const;

    const std::string& direct(std::uint8_t value) const { return direct_[value]; }
    const std::string& bit(std::uint8_t value) const { return bit_[value]; }
    const std::string& immediate(std::uint8_t value) const { return immediate_[value]; }

  private:
    const CpuDriver& driver_;
    std::array<std::string, 256> direct_;
    std::array<std::string, 256> bit_;
    std::array<std::string, 256> immediate_;
};

// `hex` (the offset byte) becomes the target of a relative jump of `length`
// bytes at `address`: four digits and "h". Offsets from 128 on jump back and
// wrap at 64K; forward sums don't wrap, but only four digits are written.
void relativeTarget(std::string& hex, int length, std::int64_t address);
std::int64_t relativeTargetValue(std::uint8_t offset, int length, std::int64_t address);

// The target of AJMP and ACALL at `address`, and its four digits (without "h").
std::int64_t absoluteTargetValue(std::uint8_t opcode, std::uint8_t low, std::int64_t address);
std::string absoluteTarget(std::uint8_t opcode, std::uint8_t low, std::int64_t address);

// A tab, "; ", the decimal value and "d"; above 32 also the character.
std::string immediateComment(std::uint8_t value);

}  // namespace korvex
