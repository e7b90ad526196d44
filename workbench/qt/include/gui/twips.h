#pragma once
// The stored places and sizes of windows are twips, as the settings file
// has them; the screen counts pixels, 15 twips each.

#include <QRect>
#include <algorithm>
#include <cstdint>

namespace korvex::gui {

inline int pixelsOfTwips(int twips) {
    return twips / 15;
}

// Kept within the 16 bits the settings hold.
inline std::int16_t twipsOfPixels(int pixels) {
    return static_cast<std::int16_t>(std::clamp(pixels * 15, -32768, 32767));
}

// A window's place, kept as the settings hold it.
struct StoredPlace {
    std::int16_t& left;
    std::int16_t& top;
    std::int16_t& width;
    std::int16_t& height;

    QRect inPixels() const {
        return {pixelsOfTwips(left), pixelsOfTwips(top), pixelsOfTwips(width),
                pixelsOfTwips(height)};
    }
    void keep(const QRect& place) const {
        left = twipsOfPixels(place.x());
        top = twipsOfPixels(place.y());
        width = twipsOfPixels(place.width());
        height = twipsOfPixels(place.height());
    }
};

}  // namespace korvex::gui
