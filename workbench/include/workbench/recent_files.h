#pragma once
// The recent-file list in the per-user store: section "Recent Files", keys
// "RecentFile1" (newest) to "RecentFile8", full paths as values. Only source
// files take part. Texts are Windows-1252.

#include <string>
#include <vector>

#include "workbench/user_settings_store.h"

namespace korvex {

inline constexpr int kRecentFileCount = 8;

class RecentFiles {
  public:
    explicit RecentFiles(UserSettingsStore& store) : store_(store) {}

    // Newest first; empty while "RecentFile1" is.
    std::vector<std::string> paths() const;

    // Puts a source file (its last four characters are "." and the source
    // extension, exactly) on top unless it is listed already; the ninth falls
    // off. Other files leave the list alone. True when the list changed.
    bool note(const std::string& path, const std::string& sourceExtension);

    // A listed entry (1 is the newest) chosen from the menu goes to the top.
    void moveToTop(int entry, const std::string& path);

  private:
    std::string get(int number) const;
    void set(int number, const std::string& path);
    // Copies each non-empty entry from `from` down to 1 one place further.
    void shiftDown(int from);

    UserSettingsStore& store_;
};

}  // namespace korvex
