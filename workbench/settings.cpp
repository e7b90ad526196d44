#include "workbench/settings.h"

#include <initializer_list>

namespace korvex {

std::int32_t toolbarFlags(const ToolbarState& toolbar) {
    return 16 * (toolbar.visible ? 1 : 0) + 8 * (toolbar.flat ? 1 : 0) + (toolbar.align & 7);
}

ToolbarState toolbarFromFlags(std::int32_t flags) {
    return ToolbarState{flags & 7, ((flags >> 3) & 1) != 0, ((flags >> 4) & 1) != 0};
}

Settings defaultSettings(const std::string& programFolder) {
    Settings settings;
    for (std::string* folder :
         {&settings.sourceFolder, &settings.listingFolder, &settings.binaryFolder,
          &settings.hexFolder, &settings.disassemblyFolder, &settings.symbolFolder}) {
        folder->assign(programFolder);
    }
    return settings;
}

Settings afterReadError(const Settings& partlyRead, const std::string& programFolder) {
    Settings settings = defaultSettings(programFolder);
    settings.ReferenceWindowLeft = partlyRead.ReferenceWindowLeft;
    settings.ReferenceWindowTop = partlyRead.ReferenceWindowTop;
    settings.ReferenceWindowTab = partlyRead.ReferenceWindowTab;
    settings.toolbar = partlyRead.toolbar;
    settings.TwoWindowsAtStart = partlyRead.TwoWindowsAtStart;
    settings.BookmarksEnabled = partlyRead.BookmarksEnabled;
    settings.HangingIndent = partlyRead.HangingIndent;
    settings.NoRightWrap = partlyRead.NoRightWrap;
    return settings;
}

}  // namespace korvex
