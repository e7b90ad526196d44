#include "disassembler/label_pass.h"

#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace korvex {
namespace {

int upperHexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// Four upper-case hexadecimal digits as a number, else -1.
int addressKey(std::string_view text) {
    if (text.size() != 4) return -1;
    int value = 0;
    for (char c : text) {
        const int digit = upperHexDigit(c);
        if (digit < 0) return -1;
        value = value * 16 + digit;
    }
    return value;
}

std::size_t behind(std::size_t found, std::size_t distance) {
    return found == std::string_view::npos ? found : found + distance;
}

// Where the target stands in the statement (counted from 0), or npos.
std::size_t targetPlace(int opcode, std::string_view statement) {
    if ((opcode & 0x1F) == 0x01) return 6;  // ajmp
    if ((opcode & 0x1F) == 0x11) return 7;  // acall
    // ljmp, lcall, jc, jnc, jz, jnz, sjmp: behind the first blank.
    if (opcode == 0x02 || opcode == 0x12 ||
        (opcode >= 0x40 && opcode <= 0x80 && opcode % 16 == 0)) {
        return behind(statement.find(' '), 1);
    }
    // djnz, cjne a with a direct operand, jbc, jb, jnb: two behind the first comma.
    if ((opcode >= 0xD8 && opcode <= 0xDF) || opcode == 0xB5 || opcode == 0xD5 || opcode == 0x10 ||
        opcode == 0x20 || opcode == 0x30) {
        return behind(statement.find(','), 2);
    }
    // cjne with an immediate: two behind the first comma from character 11 on.
    if (opcode == 0xB4 || (opcode >= 0xB6 && opcode <= 0xBF)) {
        return behind(statement.find(',', 10), 2);
    }
    return std::string_view::npos;
}

// The listing lines by their first four characters, the last four digits of
// their address. The header's two lines begin otherwise ("; Ko", "#cpu") and
// no target text can equal them, so they stay out. Buckets by the low bits
// of the address, as many as there are lines (up to one per address).
class ListingIndex {
  public:
    explicit ListingIndex(const std::vector<SweepLine>& lines)
        : lines_(lines), next_(lines.size(), -1) {
        std::size_t buckets = 1;
        while (buckets < lines.size() && buckets < 65536) buckets *= 2;
        mask_ = static_cast<std::int32_t>(buckets - 1);
        head_.assign(buckets, -1);
        for (std::size_t k = 0; k < lines.size(); ++k) {
            const auto bucket = static_cast<std::size_t>(lines[k].address & mask_);
            next_[k] = head_[bucket];
            head_[bucket] = static_cast<std::int32_t>(k);
        }
    }

    // Every line with the key; the order doesn't matter to the pass.
    template <typename Visit>
    void forEachLine(int key, Visit visit) const {
        for (std::int32_t k = head_[static_cast<std::size_t>(key & mask_)]; k >= 0;
             k = next_[static_cast<std::size_t>(k)]) {
            if ((lines_[static_cast<std::size_t>(k)].address & 0xFFFF) == key) {
                visit(static_cast<std::size_t>(k));
            }
        }
    }

  private:
    const std::vector<SweepLine>& lines_;
    std::int32_t mask_ = 0;
    std::vector<std::int32_t> head_;
    std::vector<std::int32_t> next_;
};

constexpr std::string_view kLabelLineTail = "h:\r\n";

// A jump whose target begins `hits` lines: each hit renamed every occurrence
// of the target in its statement once more, so each occurrence gets `hits`
// times "L" ahead of it. ("L" is no hexadecimal digit, so renaming never
// makes or hides an occurrence.)
struct Renaming {
    std::uint32_t line = 0;
    std::uint32_t place = 0;  // of the target in the statement
    std::uint32_t hits = 0;
};

void appendRenamed(std::string& out, std::string_view statement, const Renaming& renaming) {
    const std::string_view target = statement.substr(renaming.place, 4);
    std::size_t from = 0;
    for (std::size_t hit = statement.find(target); hit != std::string_view::npos;
         hit = statement.find(target, from)) {
        out.append(statement.substr(from, hit - from));
        out.append(renaming.hits, 'L');
        out.append(target);
        from = hit + target.size();
    }
    out.append(statement.substr(from));
}

std::size_t occurrences(std::string_view text, std::string_view what) {
    std::size_t count = 0;
    for (std::size_t hit = text.find(what); hit != std::string_view::npos;
         hit = text.find(what, hit + what.size())) {
        ++count;
    }
    return count;
}

}  // namespace

std::string labelText(Sweep&& sweep) {
    const std::vector<SweepLine>& lines = sweep.lines;
    std::vector<bool> labelled(lines.size(), false);
    std::vector<Renaming> renamings;
    {
        // The jumps: each line that begins with the target gets the label.
        const ListingIndex index(lines);
        for (std::size_t k = 0; k < lines.size(); ++k) {
            const std::string_view statement = sweep.statement(k);
            const std::size_t place = targetPlace(lines[k].bytes[0], statement);
            if (place >= statement.size()) continue;
            const std::string_view target = statement.substr(place, 4);
            const int key = addressKey(target);
            if (key < 0) continue;
            std::uint32_t hits = 0;
            index.forEachLine(key, [&](std::size_t hit) {
                labelled[hit] = true;
                ++hits;
            });
            if (hits > 0) {
                renamings.push_back(
                    {static_cast<std::uint32_t>(k), static_cast<std::uint32_t>(place), hits});
            }
        }
    }

    // The text is built in the buffer of the statements, from the back. A
    // line only grows (a statement is never empty), so it never moves ahead
    // of where it stood, and what is still to be read is never overwritten.
    std::size_t total = sweep.headerSize;
    auto renaming = renamings.begin();
    for (std::size_t k = 0; k < lines.size(); ++k) {
        const std::string_view statement = sweep.statement(k);
        total += (labelled[k] ? 5 + kLabelLineTail.size() : 0) + statement.size() + 2;
        if (renaming != renamings.end() && renaming->line == k) {
            total += renaming->hits * occurrences(statement, statement.substr(renaming->place, 4));
            ++renaming;
        }
    }
    std::string& text = sweep.statements;
    text.resize(total);
    std::size_t end = total;
    std::string renamed;
    constexpr char kHexDigits[] = "0123456789ABCDEF";
    auto back = renamings.rbegin();
    for (std::size_t k = lines.size(); k-- > 0;) {
        const std::size_t begin = k == 0 ? sweep.headerSize : lines[k - 1].statementEnd + 2;
        const std::string_view statement(text.data() + begin, lines[k].statementEnd - begin);
        end -= 2;
        text[end] = '\r';
        text[end + 1] = '\n';
        if (back != renamings.rend() && back->line == k) {
            renamed.clear();
            appendRenamed(renamed, statement, *back++);
            end -= renamed.size();
            text.replace(end, renamed.size(), renamed);
        } else {
            end -= statement.size();
            std::memmove(text.data() + end, statement.data(), statement.size());
        }
        if (labelled[k]) {
            const auto address = static_cast<std::uint32_t>(lines[k].address);
            const char label[5] = {'L', kHexDigits[(address >> 12) & 0xF],
                                   kHexDigits[(address >> 8) & 0xF],
                                   kHexDigits[(address >> 4) & 0xF], kHexDigits[address & 0xF]};
            end -= 5 + kLabelLineTail.size();
            std::memcpy(text.data() + end, label, 5);
            std::memcpy(text.data() + end + 5, kLabelLineTail.data(), kLabelLineTail.size());
        }
    }
    text.resize(total);
    sweep.lines.clear();
    return std::move(text);
}

}  // namespace korvex
