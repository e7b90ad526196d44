#include "workbench/user_settings_store.h"

#include "base/cp1252.h"

namespace korvex {
namespace {
bool sameName(const std::string& a, const std::string& b) {
    return upperCase(a) == upperCase(b);
}
}  // namespace

UserSettingsStore::~UserSettingsStore() = default;

std::size_t MemoryUserSettingsStore::indexOf(const std::string& section,
                                             const std::string& key) const {
    std::size_t i = 0;
    while (i < entries_.size() &&
           !(sameName(entries_[i].section, section) && sameName(entries_[i].key, key))) {
        ++i;
    }
    return i;
}

std::string MemoryUserSettingsStore::GetSetting(const std::string& section, const std::string& key,
                                                const std::string& fallback) const {
    const std::size_t i = indexOf(section, key);
    return i < entries_.size() ? entries_[i].value : fallback;
}

void MemoryUserSettingsStore::SaveSetting(const std::string& section, const std::string& key,
                                          const std::string& value) {
    const std::size_t i = indexOf(section, key);
    if (i < entries_.size()) {
        entries_[i].value = value;
    } else {
        entries_.push_back(Entry{section, key, value});
    }
}

UserSettingsStore::Entries MemoryUserSettingsStore::GetAllSettings(
    const std::string& section) const {
    Entries entries;
    for (const Entry& entry : entries_) {
        if (sameName(entry.section, section)) entries.emplace_back(entry.key, entry.value);
    }
    return entries;
}

}  // namespace korvex
