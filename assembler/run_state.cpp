#include "assembler/run_state.h"

#include <array>
#include <charconv>

namespace korvex {

std::string SourceRow::position() const {
    if (file == 0) return {};
    std::array<char, 24> buffer{};
    const auto filePart = std::to_chars(buffer.data(), buffer.data() + 8, file);
    std::string text(buffer.data(), filePart.ptr);
    text += ':';
    const auto linePart = std::to_chars(buffer.data(), buffer.data() + buffer.size(), line);
    text.append(buffer.data(), linePart.ptr);
    return text;
}

RowText RunState::keepText(std::string_view text) {
    // Offsets are 32 bits; a run never comes near 4 GB of row text.
    const RowText kept{static_cast<std::uint32_t>(rowTexts.size()),
                       static_cast<std::uint32_t>(text.size())};
    rowTexts.append(text);
    return kept;
}

const std::string& RunState::markerOf(std::size_t row) const {
    static const std::string kClean;
    if (markers.empty()) return kClean;
    const auto hit = markers.find(static_cast<std::int32_t>(row));
    return hit == markers.end() ? kClean : hit->second;
}

}  // namespace korvex
