#include "workbench/rtf_text.h"

#include <array>
#include <cstdint>
#include <vector>

#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {
namespace {

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Groups whose text is not part of the document's text.
bool isSkippedDestination(std::string_view word) {
    static constexpr std::array<std::string_view, 17> kSkipped{
        "fonttbl", "colortbl",  "stylesheet", "info",         "pict",      "object",
        "header",  "footer",    "fldinst",    "themedata",    "listtable", "listoverridetable",
        "rsidtbl", "generator", "datastore",  "latentstyles", "xmlnstbl",
    };
    for (std::string_view skipped : kSkipped)
        if (word == skipped) return true;
    return false;
}

// The character a control word stands for, 0 if none.
char characterOfWord(std::string_view word) {
    if (word == "tab") return '\t';
    if (word == "emdash") return '\x97';
    if (word == "endash") return '\x96';
    if (word == "lquote") return '\x91';
    if (word == "rquote") return '\x92';
    if (word == "ldblquote") return '\x93';
    if (word == "rdblquote") return '\x94';
    if (word == "bullet") return '\x95';
    return 0;
}

std::string utf8Of(std::uint32_t codePoint) {
    std::string out;
    if (codePoint < 0x80) {
        out += static_cast<char>(codePoint);
    } else if (codePoint < 0x800) {
        out += static_cast<char>(0xC0 | (codePoint >> 6));
        out += static_cast<char>(0x80 | (codePoint & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | ((codePoint >> 12) & 0x0F));
        out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (codePoint & 0x3F));
    }
    return out;
}

class RtfReader {
  public:
    explicit RtfReader(std::string_view rtf) : rtf_(rtf) {}

    std::string read() {
        while (at_ < rtf_.size()) {
            const char c = rtf_[at_++];
            if (c == '{') {
                skipping_.push_back(skipping());
            } else if (c == '}') {
                if (!skipping_.empty()) skipping_.pop_back();
            } else if (c == '\\') {
                controlSequence();
            } else if (c != '\r' && c != '\n') {
                emit(c);
            }
        }
        return out_;
    }

  private:
    bool skipping() const { return !skipping_.empty() && skipping_.back(); }

    void emit(char c) {
        if (pendingSkip_ > 0) {
            --pendingSkip_;
            return;
        }
        if (!skipping()) out_ += c;
    }
    void emitText(std::string_view text) {
        for (char c : text) emit(c);
    }

    void skipGroup() {
        if (!skipping_.empty()) skipping_.back() = true;
    }

    void controlSequence() {
        if (at_ >= rtf_.size()) return;
        const char c = rtf_[at_++];
        if (!isLetter(c)) {
            controlSymbol(c);
            return;
        }
        const std::size_t wordStart = at_ - 1;
        while (at_ < rtf_.size() && isLetter(rtf_[at_])) ++at_;
        const std::string_view word = rtf_.substr(wordStart, at_ - wordStart);
        const std::size_t numberStart = at_;
        if (at_ < rtf_.size() && rtf_[at_] == '-') ++at_;
        while (at_ < rtf_.size() && rtf_[at_] >= '0' && rtf_[at_] <= '9' && at_ - numberStart < 10)
            ++at_;
        const bool hasNumber = at_ > numberStart;
        const std::int64_t number =
            hasNumber ? parseDecimal(rtf_.substr(numberStart, at_ - numberStart)) : 0;
        if (at_ < rtf_.size() && rtf_[at_] == ' ') ++at_;
        controlWord(word, hasNumber, number);
    }

    void controlSymbol(char c) {
        switch (c) {
            case '\\':
            case '{':
            case '}': emit(c); break;
            case '~': emit('\xA0'); break;
            case '_': emit('-'); break;
            case '*': skipGroup(); break;
            case '\'': {
                const int high = at_ < rtf_.size() ? hexDigitValue(rtf_[at_]) : -1;
                const int low = at_ + 1 < rtf_.size() ? hexDigitValue(rtf_[at_ + 1]) : -1;
                if (high < 0 || low < 0) break;
                at_ += 2;
                emit(static_cast<char>(high * 16 + low));
                break;
            }
            case '\r':
            case '\n': emitText("\r\n"); break;  // an escaped line end is a paragraph
            default: break;
        }
    }

    void controlWord(std::string_view word, bool hasNumber, std::int64_t number) {
        if (isSkippedDestination(word)) {
            skipGroup();
        } else if (word == "par" || word == "line") {
            emitText("\r\n");
        } else if (word == "uc" && hasNumber) {
            skipAfterUnicode_ = number < 0 ? 0 : static_cast<int>(number > 8 ? 8 : number);
        } else if (word == "u" && hasNumber) {
            const auto codePoint = static_cast<std::uint32_t>(number < 0 ? number + 65536 : number);
            emitText(fromUtf8(utf8Of(codePoint & 0xFFFF)));
            pendingSkip_ = skipAfterUnicode_;
        } else if (const char c = characterOfWord(word); c != 0) {
            emit(c);
        }
    }

    std::string_view rtf_;
    std::size_t at_ = 0;
    std::vector<bool> skipping_;
    std::string out_;
    int skipAfterUnicode_ = 1;
    int pendingSkip_ = 0;
};

}  // namespace

std::string plainTextOfRtf(std::string_view rtf) {
    return RtfReader(rtf).read();
}

std::string rtfOfPlainText(std::string_view text) {
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil;}}\r\n";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            rtf += "\\par\r\n";
            ++i;
        } else if (c == '\\' || c == '{' || c == '}') {
            rtf += '\\';
            rtf += c;
        } else if (c == '\t') {
            rtf += "\\tab ";
        } else if (byte >= 0x80 || byte < 0x20) {
            rtf += "\\'";
            appendHex2(rtf, byte);
        } else {
            rtf += c;
        }
    }
    rtf += "}\r\n";
    return rtf;
}

}  // namespace korvex
