#include "workbench/rtf_text.h"

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <vector>

#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

bool isLetter(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}
bool isDigit(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// Groups whose content is not text.
bool isHiddenDestination(std::string_view word) {
    for (std::string_view hidden : {"fonttbl", "colortbl", "stylesheet", "info", "pict", "object",
                                    "header", "footer", "listtable", "listoverridetable"}) {
        if (word == hidden) return true;
    }
    return false;
}

std::string utf8Of(std::uint32_t code) {
    std::string bytes;
    if (code < 0x80) {
        bytes += static_cast<char>(code);
    } else if (code < 0x800) {
        bytes += static_cast<char>(0xC0 | (code >> 6));
        bytes += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        bytes += static_cast<char>(0xE0 | ((code >> 12) & 0x0F));
        bytes += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        bytes += static_cast<char>(0x80 | (code & 0x3F));
    }
    return bytes;
}

struct Group {
    bool hidden = false;
    int unicodeSkip = 1;  // characters that stand in for each \u
};

class RtfReader {
  public:
    explicit RtfReader(std::string_view rtf) : rtf_(rtf) {}

    std::string run() {
        while (at_ < rtf_.size()) {
            const char c = rtf_[at_++];
            switch (c) {
                case '{': groups_.push_back(groups_.empty() ? Group{} : groups_.back()); break;
                case '}':
                    if (!groups_.empty()) groups_.pop_back();
                    break;
                case '\\': controlSequence(); break;
                case '\r':
                case '\n': break;
                default: emit(c);
            }
        }
        return std::move(text_);
    }

  private:
    Group& group() {
        if (groups_.empty()) groups_.emplace_back();
        return groups_.back();
    }

    void emit(char c) {
        if (pendingSkip_ > 0) {
            --pendingSkip_;
            return;
        }
        if (!group().hidden) text_ += c;
    }
    void emit(std::string_view s) {
        for (char c : s) emit(c);
    }

    void controlSequence() {
        if (at_ >= rtf_.size()) return;
        const char c = rtf_[at_];
        if (!isLetter(c)) {
            ++at_;
            controlSymbol(c);
            return;
        }
        const std::size_t start = at_;
        while (at_ < rtf_.size() && isLetter(rtf_[at_])) ++at_;
        const std::string_view word = rtf_.substr(start, at_ - start);
        const std::size_t numberStart = at_;
        if (at_ < rtf_.size() && rtf_[at_] == '-') ++at_;
        while (at_ < rtf_.size() && isDigit(rtf_[at_])) ++at_;
        // Ten digits are plenty; more would only overflow.
        const std::int64_t parameter =
            parseDecimal(rtf_.substr(numberStart, std::min<std::size_t>(at_ - numberStart, 10)), 0);
        if (at_ < rtf_.size() && rtf_[at_] == ' ') ++at_;
        controlWord(word, parameter);
    }

    void controlSymbol(char c) {
        switch (c) {
            case '\'': hexCharacter(); break;
            case '*': group().hidden = true; break;
            case '~': emit('\xA0'); break;
            case '_': emit('-'); break;
            case '\r':
            case '\n': emit(kCrLf); break;
            case '-': break;
            default: emit(c);  // \\ \{ \}
        }
    }

    void hexCharacter() {
        int value = 0;
        for (int i = 0; i < 2; ++i) {
            const int digit = at_ < rtf_.size() ? hexDigitValue(rtf_[at_]) : -1;
            if (digit < 0) return;
            value = value * 16 + digit;
            ++at_;
        }
        emit(static_cast<char>(value));
    }

    void controlWord(std::string_view word, std::int64_t parameter) {
        if (word == "par" || word == "line") {
            emit(kCrLf);
        } else if (word == "tab") {
            emit('\t');
        } else if (word == "uc") {
            group().unicodeSkip = static_cast<int>(parameter < 0   ? 0
                                                   : parameter > 8 ? 8
                                                                   : parameter);
        } else if (word == "u") {
            const std::int64_t code = parameter & 0xFFFF;  // negative values count from 65536
            emit(fromUtf8(utf8Of(static_cast<std::uint32_t>(code))));
            pendingSkip_ = group().unicodeSkip;
        } else if (isHiddenDestination(word)) {
            group().hidden = true;
        }
    }

    std::string_view rtf_;
    std::size_t at_ = 0;
    std::vector<Group> groups_;
    int pendingSkip_ = 0;
    std::string text_;
};

}  // namespace

bool looksLikeRtf(std::string_view firstBytes) {
    return firstBytes.substr(0, 20).find("{\\rtf1\\ansi") != std::string_view::npos;
}

std::string plainTextOfRtf(std::string_view rtf) {
    return RtfReader(rtf).run();
}

}  // namespace korvex
