#include "workbench/bookmarks.h"

#include <algorithm>
#include <vector>

#include "workbench/editor_guards.h"

namespace korvex {
namespace {

constexpr int kPicturesPerBookmark = 3;

}  // namespace

bool InBookmarkStrip(double xTwips) {
    return xTwips > 0 && xTwips < 100;
}

void ToggleBookmark(TextControl& box, EditorFlags& flags) {
    if (box.TextLength() == 0) return;
    FlagGuard change(flags.SuspendChange);
    box.SetSelLength(1);
    if (box.SelHasPicture()) {
        for (int i = 0; i < kPicturesPerBookmark && box.SelHasPicture(); ++i) {
            box.SetSelText("");
            box.SetSelLength(1);
        }
        box.SetSelLength(0);
        return;
    }
    box.SetSelLength(0);
    for (int i = 0; i < kPicturesPerBookmark; ++i) box.InsertPicture();
}

void RemoveBookmarks(TextControl& box, EditorFlags& flags) {
    std::vector<std::int32_t> pictures = box.PicturePositions();
    if (pictures.empty()) return;
    FlagGuard selection(flags.SuspendSelChange);
    FlagGuard change(flags.SuspendChange);
    OutOfSight hidden(box);
    const std::int32_t caret = box.SelStart();
    const auto before = std::count_if(pictures.begin(), pictures.end(),
                                      [caret](std::int32_t at) { return at < caret; });
    std::sort(pictures.rbegin(), pictures.rend());
    for (const std::int32_t at : pictures) {
        box.Select(at, 1);
        box.SetSelText("");
    }
    box.SetSelStart(caret - static_cast<std::int32_t>(before));
}

}  // namespace korvex
