#include "workbench/command_visibility.h"

namespace korvex {
namespace {
void hide(CommandVisibility& visibility, std::initializer_list<int> positions) {
    for (int position : positions)
        visibility.toolbar.at(static_cast<std::size_t>(position - 1)) = false;
}
void hideFrom(CommandVisibility& visibility, int first) {
    for (int position = first; position <= kToolbarPositions; ++position)
        hide(visibility, {position});
}
}  // namespace

CommandVisibility commandVisibility(ChildKind active) {
    CommandVisibility visibility;
    visibility.toolbar.fill(true);
    switch (active) {
        case ChildKind::Source: visibility.documentMenu = true; break;
        case ChildKind::Listing:
            hide(visibility, {6, 14, 15, 16, 17, 21});
            visibility.mainEditMenu = true;
            break;
        case ChildKind::None:
        case ChildKind::Compile:
        case ChildKind::HexDump:
        case ChildKind::BinDump:
        case ChildKind::FileComparison:
        case ChildKind::CpuDriver: hideFrom(visibility, 6); break;
    }
    return visibility;
}

}  // namespace korvex
