#include "wizards/core/key_filters.h"

#include "base/failure.h"

namespace korvex::wizards {
namespace {

void fixedWidthFilter(const std::string& text, int selectionLength, std::int16_t& key,
                      std::size_t width, bool hexadecimal) {
    if (text.size() >= width && selectionLength == 0 && key != kBackspace) {
        key = 0;
        return;
    }
    if (key == kBackspace) return;
    if (hexadecimal) {
        if ((key >= '0' && key <= '9') || (key >= 'A' && key <= 'F')) return;
        if (key >= 'a' && key <= 'f') {
            key = static_cast<std::int16_t>(key - 32);
            return;
        }
    } else if (key == '0' || key == '1') {
        return;
    }
    key = 0;
}

}  // namespace

void hexKeyFilter(const std::string& text, int selectionLength, std::int16_t& key) {
    fixedWidthFilter(text, selectionLength, key, 2, true);
}

void binaryKeyFilter(const std::string& text, int selectionLength, std::int16_t& key) {
    fixedWidthFilter(text, selectionLength, key, 8, false);
}

void decimalKeyFilter(std::int16_t& key) {
    if (key == kBackspace || (key >= '0' && key <= '9')) return;
    key = 0;
}

void numberKeyFilter(std::int16_t& key, NumberFormat format) {
    // The decimal mark is found as the classic program found it: by reading "1,2".
    bool comma = false;
    try {
        comma = systemSingle("1,2", format) == 1.2f;
    } catch (const RuntimeFailure&) {
        comma = false;
    }
    if (key == kBackspace || (key >= '0' && key <= '9')) return;
    if (comma) {
        if (key == '.') key = ',';
        if (key == ',') return;
    } else {
        if (key == ',') key = '.';
        if (key == '.') return;
    }
    key = 0;
}

std::int16_t binaryTextToValue(const std::string& binary) {
    std::int64_t sum = 0;
    std::int64_t weight = 1;
    for (auto it = binary.rbegin(); it != binary.rend(); ++it) {
        if (*it == '1') sum += weight;
        weight *= 2;
        if (weight > (std::int64_t{1} << 40)) weight = std::int64_t{1} << 40;
    }
    return Int16(sum).value();
}

std::string valueToBinaryText(const std::string& hex) {
    const auto value = static_cast<std::int64_t>(valNumber("&H" + hex + "&"));
    std::string text;
    for (int bit = 15; bit >= 0; --bit) text += ((value >> bit) & 1) != 0 ? '1' : '0';
    return text;
}

}  // namespace korvex::wizards
