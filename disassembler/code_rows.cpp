#include "disassembler/code_rows.h"

#include <algorithm>
#include <utility>

#include "base/failure.h"
#include "base/text.h"

namespace korvex {
namespace {

int hexDigitValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

// A field of the record read as a hexadecimal number; missing or foreign
// characters are the type mismatch of a failed conversion.
std::int32_t hexField(std::string_view line, std::size_t from, std::size_t digits) {
    if (line.size() < from + digits) raise(FailureNumber::TypeMismatch);
    std::int32_t value = 0;
    for (std::size_t i = from; i < from + digits; ++i) {
        const int digit = hexDigitValue(line[i]);
        if (digit < 0) raise(FailureNumber::TypeMismatch);
        value = value * 16 + digit;
    }
    return value;
}

// A record's fields end by character 11 + 2 * 255; the rest of a longer
// line can't matter.
constexpr std::size_t kRecordLength = 11 + 2 * 255;

// Lines end at CR, CR LF or a lone LF; Ctrl-Z ends a text file. Only the
// start of a line that can hold a record is kept.
bool nextLine(std::streambuf& in, std::string& line) {
    line.clear();
    int c = in.sgetc();
    if (c == std::char_traits<char>::eof() || c == 0x1A) return false;
    while (c != std::char_traits<char>::eof() && c != 0x1A && c != '\r' && c != '\n') {
        if (line.size() < kRecordLength) line += static_cast<char>(c);
        c = in.snextc();
    }
    if (c == '\r' && in.snextc() == '\n') c = '\n';
    if (c == '\n') in.sbumpc();
    return true;
}

}  // namespace

void CodeRows::clear() {
    addresses_.clear();
    bytes_.clear();
}

void CodeRows::add(std::int32_t address, std::uint8_t byte) {
    if (addresses_.size() != bytes_.size()) {
        for (std::size_t i = addresses_.size(); i < bytes_.size(); ++i) {
            addresses_.push_back(static_cast<std::int32_t>(i));
        }
    }
    addresses_.push_back(address);
    bytes_ += static_cast<char>(byte);
}

void CodeRows::assignOffsets(std::string bytes) {
    addresses_.clear();
    bytes_ = std::move(bytes);
}

void CodeRows::sortByAddress() {
    if (addresses_.empty()) return;  // offsets are in order already
    std::vector<std::pair<std::int32_t, char>> rows(bytes_.size());
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = {addresses_[i], bytes_[i]};
    std::stable_sort(rows.begin(), rows.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (std::size_t i = 0; i < rows.size(); ++i) {
        addresses_[i] = rows[i].first;
        bytes_[i] = rows[i].second;
    }
}

bool isHexFile(std::string_view start) {
    const std::string_view line = start.substr(0, start.find_first_of("\r\n"));
    if (line.size() <= 11 || line[0] != ':' || line.substr(7, 2) != "00") return false;
    // The count is read as far as it is hexadecimal, as a lenient conversion does.
    const auto count = static_cast<std::size_t>(parseHexPrefix(line.substr(1, 2)));
    return line.size() == 11 + 2 * count;
}

ReadOutcome readHexRows(std::istream& file, CodeRows& rows) {
    rows.clear();
    std::streambuf* in = file.rdbuf();
    if (in == nullptr) return ReadOutcome::Read;
    std::string line;
    while (nextLine(*in, line)) {
        if (line.empty()) continue;
        const std::int32_t count = hexField(line, 1, 2);
        std::int32_t address = hexField(line, 3, 4);
        for (std::int32_t i = 0; i < count; ++i) {
            const auto at = static_cast<std::size_t>(9 + 2 * i);
            rows.add(address, static_cast<std::uint8_t>(hexField(line, at, 2)));
            if (rows.size() > kMaxCodeRows) return ReadOutcome::TooLarge;
            ++address;
        }
    }
    return ReadOutcome::Read;
}

ReadOutcome readBinaryRows(std::string file, CodeRows& rows) {
    rows.clear();
    if (file.size() > kMaxCodeRows) return ReadOutcome::TooLarge;
    rows.assignOffsets(std::move(file));
    return ReadOutcome::Read;
}

}  // namespace korvex
