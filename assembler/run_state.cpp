#include "assembler/run_state.h"

#include <algorithm>
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

namespace {

// The marker entry of `row`, or where it would stand.
template <typename Markers>
auto markerPlace(Markers& markers, std::int32_t row) {
    // Rows are marked as they are written, so the last entry is the usual hit.
    if (markers.empty() || markers.back().row < row) return markers.end();
    if (markers.back().row == row) return markers.end() - 1;
    return std::lower_bound(markers.begin(), markers.end(), row,
                            [](const RowMarker& marker, std::int32_t r) { return marker.row < r; });
}

}  // namespace

std::string_view RunState::markerOf(std::size_t row) const {
    const auto at = markerPlace(markers, static_cast<std::int32_t>(row));
    if (at == markers.end() || at->row != static_cast<std::int32_t>(row)) return {};
    return markerText(*at);
}

void RunState::setMarker(std::int32_t row, std::string_view text) {
    const RowText kept{static_cast<std::uint32_t>(markerTexts.size()),
                       static_cast<std::uint32_t>(text.size())};
    markerTexts.append(text);
    auto at = markerPlace(markers, row);
    if (at != markers.end() && at->row == row) {
        at->text = kept;
    } else {
        markers.insert(at, RowMarker{row, kept});
    }
}

void RunState::appendMarker(std::int32_t row, std::string_view text) {
    auto at = markerPlace(markers, row);
    if (at == markers.end() || at->row != row) {
        setMarker(row, text);
        return;
    }
    if (at->text.at + at->text.length == markerTexts.size()) {
        // The marker is the last text kept: it simply grows.
        markerTexts.append(text);
        at->text.length += static_cast<std::uint32_t>(text.size());
        return;
    }
    std::string joined(markerText(*at));
    joined += text;
    setMarker(row, joined);
}

void RunState::clearMarker(std::int32_t row) {
    auto at = markerPlace(markers, row);
    if (at != markers.end() && at->row == row) at->text = {};
}

}  // namespace korvex
