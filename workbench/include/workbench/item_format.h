#pragma once
// The classic sequential format in which korvex.cfg is kept: items separated
// by commas, lines ending in CR LF. Strings stand in double quotes without an
// escape, numbers bare, booleans as #TRUE# and #FALSE#.
//
// Reading takes one item at a time. A line end separates like a comma, so only
// the order of the items matters; an empty item (",," or an empty line) reads
// as "", 0 or false. A quoted string runs to the next double quote, line ends
// included; what follows it up to the next separator is dropped, so a string
// that held a double quote comes back cut there. Unquoted items lose their
// blanks and tabs at both ends. Failures are those of the classic host:
// 62 at the end of the file, 13 for an item that is no number where one is
// wanted, 6 for a number outside the field's range.

#include <cstdint>
#include <istream>
#include <string>
#include <string_view>

namespace korvex {

class ItemReader {
  public:
    explicit ItemReader(std::istream& in) : in_(*in.rdbuf()) {}

    std::string readString();
    std::int16_t readInt16();
    std::int32_t readInt32();
    bool readBoolean();

    // No value of the file is longer than a path; an item beyond this keeps
    // its beginning, so a damaged file can't exhaust the memory.
    static constexpr std::size_t kMaxItemLength = 65536;

  private:
    std::string next();
    double readValue();
    void skipToSeparator();
    void consumeSeparator();
    void append(std::string& text, char c) const;

    std::streambuf& in_;
};

class ItemWriter {
  public:
    void writeString(std::string_view text);
    void writeNumber(std::int64_t value);
    void writeBoolean(bool value);
    void endLine();

    const std::string& text() const { return text_; }

  private:
    void separate();

    std::string text_;
    bool lineStarted_ = false;
};

}  // namespace korvex
