#pragma once
// The menus and the toolbar as tables: each row names a command with its
// caption and key. The menu bar and the toolbar are built from them, and a
// command is dispatched by its name, so that every row is either handled or
// says that it isn't available yet.

#include <span>

namespace korvex::gui {

// A source window's menu is the full set; the main window shows its own,
// smaller one while no source window is active.
enum class MenuSet { Both, Document, Main };

struct MenuRow {
    int depth;            // 0 a menu of the bar, 1 its entry, 2 an entry of a submenu
    const char* name;     // object name; nullptr for a separator
    const char* caption;  // German, "&" before the access key
    const char* key;      // portable key text, "" for none
    MenuSet set;
};

struct ToolbarRow {
    int position;      // 1 to 21, separators included
    const char* name;  // nullptr for a separator
    const char* toolTip;
    const char* command;  // the menu command it runs
    const char* icon;     // resource path
};

std::span<const MenuRow> menuRows();
std::span<const ToolbarRow> toolbarRows();

// Names of the dynamic entries.
inline constexpr const char* kRecentFileName = "mnuRecentFile(%1)";

}  // namespace korvex::gui
