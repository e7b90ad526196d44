#pragma once
// Everything korvex.cfg holds, as one value owned by whoever runs the
// workbench. Read once at start, written once at the end; in between the
// dialogs and the windows that remember their places change it.
// Texts are Windows-1252, positions are twips.

#include <array>
#include <cstdint>
#include <string>

#include "workbench/colours.h"

namespace korvex {

// What Toolbar1 shows: its Align (1 top, 2 bottom, 3 left, 4 right; the file
// has room for 0 to 7 and keeps what it holds), flat style, and visibility.
struct ToolbarState {
    int align = 1;
    bool flat = true;
    bool visible = true;

    bool operator==(const ToolbarState&) const = default;
};

// The state the toolbar has before any settings are applied.
inline constexpr ToolbarState kToolbarDesignState{};

// 16 x visible + 8 x style + position.
std::int32_t toolbarFlags(const ToolbarState& toolbar);
ToolbarState toolbarFromFlags(std::int32_t flags);

// Members are named as the other parts of the workbench know them. The file
// holds them in this order.
struct Settings {
    // Line 1.
    std::string sourceExtension = "a51";
    std::string listingExtension = "l51";
    std::string binaryExtension = "b51";
    std::string hexExtension = "h51";
    std::string disassemblyExtension = "d51";
    std::string symbolExtension = "s51";
    std::int16_t HexWindowLeft = 9460;
    std::int16_t HexWindowTop = 4000;
    std::int16_t HexWindowWidth = 9460;
    std::int16_t HexWindowHeight = 4000;
    std::string ControllerName = "8032";
    std::int32_t ReferenceWindowLeft = 0;
    std::int32_t ReferenceWindowTop = 0;
    std::int16_t ReferenceWindowTab = 0;
    std::string EditorFontName = "MS Sans Serif";
    std::int16_t EditorFontSize = 10;
    bool EditorFontBold = false;
    bool EditorFontItalic = false;

    // Line 2: the LastDirs, one per file kind; they start as the program folder.
    std::string sourceFolder;
    std::string listingFolder;
    std::string binaryFolder;
    std::string hexFolder;
    std::string disassemblyFolder;
    std::string symbolFolder;
    std::int16_t CompileWindowLeft = 600;
    std::int16_t CompileWindowTop = 600;
    std::int16_t CompileWindowWidth = 5910;
    std::int16_t CompileWindowHeight = 4890;

    // Lines 3 to 13: BGR numbers, system colours with the top bit.
    std::array<std::int32_t, kColourCount> Colours = kDefaultColours;

    // Line 14. The file holds the toolbar as ToolbarFlags.
    ToolbarState toolbar = kToolbarDesignState;
    std::int16_t TwoWindowsAtStart = 0;  // 1 opens two windows side by side
    bool BookmarksEnabled = false;
    bool HangingIndent = false;
    bool NoRightWrap = false;

    bool operator==(const Settings&) const = default;
};

// The defaults; the folders start as the program folder.
Settings defaultSettings(const std::string& programFolder);

// What a read error leaves: lines 1 to 13 back to their defaults except the
// three ReferenceWindow values, which keep what was read, as does line 14 and
// the toolbar.
Settings afterReadError(const Settings& partlyRead, const std::string& programFolder);

}  // namespace korvex
