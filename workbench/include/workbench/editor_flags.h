#pragma once
// The editor's three switches that every source window shares: one object,
// owned by the main window and handed to each editor, instead of globals.

namespace korvex {

struct EditorFlags {
    bool SuspendSelChange = false;  // the selection-change handler does nothing
    bool SuspendChange = false;     // the text-change handler does nothing
    bool LineColourReset = false;   // the caret's line is already black for editing
};

}  // namespace korvex
