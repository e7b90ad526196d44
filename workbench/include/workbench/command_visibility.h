#pragma once
// Which toolbar buttons and which menu the main window shows, by the kind of
// its active child window. Toolbar positions count from 1 and include the
// separators, since windows hide buttons by position.

#include <array>

namespace korvex {

inline constexpr int kToolbarPositions = 21;

enum class ChildKind {
    None,            // no child window left
    Source,          // frmNotePad
    Listing,         // frmListing
    Compile,         // frmCompile
    HexDump,         // frmHexDump
    BinDump,         // frmBinDump
    FileComparison,  // frmDateivergleich
    CpuDriver,       // frmCPUTreiber
};

struct CommandVisibility {
    std::array<bool, kToolbarPositions> toolbar{};  // index 0 is position 1
    bool documentMenu = false;  // the source window's full menu instead of the main one
    // mnEdit of the main menu; where it shows, its cut, copy and delete are disabled.
    bool mainEditMenu = false;

    bool shown(int position) const { return toolbar.at(static_cast<std::size_t>(position - 1)); }
};

CommandVisibility commandVisibility(ChildKind active);

}  // namespace korvex
