#include "disassembler/listing.h"

#include <fstream>

#include "base/failure.h"

namespace korvex {
namespace {

constexpr char kHexDigits[] = "0123456789ABCDEF";

// Lines [first, last) of the listing.
void appendLines(const Sweep& sweep, std::size_t first, std::size_t last, std::string& out) {
    for (std::size_t k = first; k < last; ++k) {
        const SweepLine& line = sweep.lines[k];
        const auto address = static_cast<std::uint32_t>(line.address);
        char columns[16];
        std::size_t n = 0;
        for (int shift = 12; shift >= 0; shift -= 4)
            columns[n++] = kHexDigits[(address >> shift) & 0xF];
        for (std::size_t b = 0; b < 3; ++b) {
            columns[n++] = '\t';
            if (b < line.length) {
                columns[n++] = kHexDigits[line.bytes[b] >> 4];
                columns[n++] = kHexDigits[line.bytes[b] & 0xF];
            }
        }
        columns[n++] = '\t';
        out.append(columns, n);
        out += sweep.statement(k);
        out += "\r\n";
    }
}

}  // namespace

std::string listingText(const Sweep& sweep) {
    std::string text(sweep.header());
    // Address and byte columns take at most 14 characters ahead of a statement.
    text.reserve(sweep.statements.size() + sweep.lines.size() * 14);
    appendLines(sweep, 0, sweep.lines.size(), text);
    return text;
}

void writeListingFile(const Sweep& sweep, const std::string& path) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) raise(FailureNumber::PathFileAccess, path);
    out << sweep.header();
    constexpr std::size_t kLinesAtOnce = 4096;
    std::string piece;
    for (std::size_t first = 0; first < sweep.lines.size(); first += kLinesAtOnce) {
        piece.clear();
        appendLines(sweep, first, std::min(sweep.lines.size(), first + kLinesAtOnce), piece);
        out.write(piece.data(), static_cast<std::streamsize>(piece.size()));
    }
    // A full disk may show only when the last piece goes out.
    out.close();
    if (!out) raise(FailureNumber::PathFileAccess, path);
}

}  // namespace korvex
