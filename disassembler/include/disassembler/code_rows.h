#pragma once
// The bytes a disassembly works on: rows of address and byte, in the order in
// which the sweep takes them. A hex file and a binary file are told apart by
// the first line; either reader stops at 300000 rows.

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace korvex {

inline constexpr std::size_t kMaxCodeRows = 300000;

// Enough of a file's start to decide its kind: a hex record is at most
// 11 + 2 * 255 characters long.
inline constexpr std::size_t kKindProbeLength = 600;

class CodeRows {
  public:
    std::size_t size() const { return bytes_.size(); }
    bool empty() const { return bytes_.empty(); }
    std::int32_t address(std::size_t i) const {
        return addresses_.empty() ? static_cast<std::int32_t>(i) : addresses_[i];
    }
    std::uint8_t byte(std::size_t i) const { return static_cast<std::uint8_t>(bytes_[i]); }

    void clear();
    void add(std::int32_t address, std::uint8_t byte);
    // The bytes of a binary file: each row's offset is its address.
    void assignOffsets(std::string bytes);
    // Ascending numeric order of address; equal addresses keep their order.
    void sortByAddress();

  private:
    std::vector<std::int32_t> addresses_;  // empty while every address is the offset
    std::string bytes_;
};

// The first line (up to CR or LF) of `start` is a data record whose length
// matches its byte count.
bool isHexFile(std::string_view start);

enum class ReadOutcome { Read, TooLarge };

// Every record with a count is data, whatever its type and checksum. A byte,
// count or address field that is not hexadecimal raises "Typen unverträglich".
// The file is read a line at a time, so its size doesn't matter.
ReadOutcome readHexRows(std::istream& file, CodeRows& rows);

// One row per byte, the offset as address.
ReadOutcome readBinaryRows(std::string file, CodeRows& rows);

}  // namespace korvex
