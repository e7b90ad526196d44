#include "workbench/recent_files.h"

#include <algorithm>

#include "base/text.h"

namespace korvex {
namespace {
std::string key(int number) {
    return "RecentFile" + decimalText(number);
}
}  // namespace

std::string RecentFiles::get(int number) const {
    return store_.GetSetting(kRecentFilesSection, key(number), "");
}

void RecentFiles::set(int number, const std::string& path) {
    store_.SaveSetting(kRecentFilesSection, key(number), path);
}

void RecentFiles::shiftDown(int from) {
    for (int i = from; i >= 1; --i) {
        if (std::string path = get(i); !path.empty()) set(i + 1, path);
    }
}

std::vector<std::string> RecentFiles::paths() const {
    std::vector<std::string> list;
    if (get(1).empty()) return list;
    for (int i = 1; i <= kRecentFileCount; ++i) {
        if (std::string path = get(i); !path.empty()) list.push_back(std::move(path));
    }
    return list;
}

bool RecentFiles::note(const std::string& path, const std::string& sourceExtension) {
    const std::string ending = "." + sourceExtension;
    if (path.size() < 4 || ending.size() != 4 || !endsWith(path, ending)) return false;
    const std::vector<std::string> listed = paths();
    if (std::find(listed.begin(), listed.end(), path) != listed.end()) return false;
    shiftDown(kRecentFileCount - 1);
    set(1, path);
    return true;
}

void RecentFiles::moveToTop(int entry, const std::string& path) {
    if (entry <= 1 || entry > kRecentFileCount) return;
    shiftDown(entry - 1);
    set(1, path);
}

}  // namespace korvex
