#include "assembler/code_image.h"

#include "assembler/source_file.h"
#include "base/text.h"

namespace korvex {

bool readCodeEntry(const std::string& entry, CodeEntry& out) {
    out.bytes.clear();
    if (entry.empty()) return false;
    const std::string_view text(entry);
    // The value of the hexadecimal digits at the start of `digits`, up to the first other
    // character.
    const auto hexPrefix = [](std::string_view digits) {
        std::int32_t value = 0;
        for (char c : digits) {
            const int digit = hexDigitValue(c);
            if (digit < 0) break;
            value = value << 4 | digit;
        }
        return value;
    };
    out.address = hexPrefix(text.substr(0, 4));
    // Bytes stand at characters 6, 9, 12 ... (counted from 1), two digits each.
    for (std::size_t at = 5; at < text.size(); at += 3) {
        out.bytes.push_back(static_cast<std::uint8_t>(hexPrefix(text.substr(at, 2))));
    }
    return true;
}

std::string binaryImage(const std::vector<std::string>& codeText) {
    std::string image;
    CodeEntry entry;
    for (const auto& text : codeText) {
        if (!readCodeEntry(text, entry)) continue;
        auto position = static_cast<std::size_t>(entry.address);
        for (std::uint8_t byte : entry.bytes) {
            if (image.size() <= position) image.resize(position + 1, '\0');
            image[position++] = static_cast<char>(byte);
        }
    }
    return image;
}

namespace {

class HexRecordWriter {
  public:
    void add(std::int32_t address, const std::vector<std::uint8_t>& bytes) {
        if (fill_ == 0) start_ = address;
        if (start_ + fill_ != address) {
            flush();
            start_ = address;
        }
        for (std::uint8_t byte : bytes) {
            buffer_[static_cast<std::size_t>(fill_)] = byte;
            ++fill_;
            if (fill_ > 31) {
                flush();
                start_ += 32;
            }
        }
    }

    std::string finish() {
        if (fill_ > 0) flush();
        text_ += ":00000001FF\r\n";
        return std::move(text_);
    }

  private:
    void flush() {
        text_ += ':';
        appendHex2(text_, fill_);
        appendHex2(text_, start_ >> 8);
        appendHex2(text_, start_);
        text_ += "00";
        int sum = fill_ + ((start_ >> 8) & 0xFF) + (start_ & 0xFF);
        for (int i = 0; i < fill_; ++i) {
            appendHex2(text_, buffer_[static_cast<std::size_t>(i)]);
            sum += buffer_[static_cast<std::size_t>(i)];
        }
        appendHex2(text_, 256 - sum % 256);
        text_ += "\r\n";
        fill_ = 0;
    }

    std::uint8_t buffer_[32] = {};
    int fill_ = 0;
    std::int32_t start_ = 0;
    std::string text_;
};

}  // namespace

std::string hexFileText(const std::vector<std::string>& codeText) {
    HexRecordWriter writer;
    CodeEntry entry;
    for (const auto& text : codeText) {
        if (readCodeEntry(text, entry)) writer.add(entry.address, entry.bytes);
    }
    return writer.finish();
}

std::string symbolFileText(const TextTable<3>& symbolList) {
    std::string text;
    for (int i = 0; i < symbolList.size(); ++i) {
        text += "\"" + symbolList.at(i, 0) + "\",\"" + symbolList.at(i, 1) + "\",\"" +
                symbolList.at(i, 2) + "\"\r\n";
    }
    return text;
}

void writeBinaryFile(const std::string& path, const std::vector<std::string>& codeText) {
    writeWholeFile(path, binaryImage(codeText));
}

void writeHexFile(const std::string& path, const std::vector<std::string>& codeText) {
    writeWholeFile(path, hexFileText(codeText));
}

void writeSymbolFile(const std::string& path, const TextTable<3>& symbolList) {
    writeWholeFile(path, symbolFileText(symbolList));
}

}  // namespace korvex
