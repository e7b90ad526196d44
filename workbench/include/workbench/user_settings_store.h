#pragma once
// The per-user store that keeps the recent-file list, apart from korvex.cfg:
// sections of named text values for the application "Korvex". The Qt shell
// keeps it in QSettings; tests keep it in memory. Texts are Windows-1252.

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace korvex {

inline constexpr const char* kApplicationKey = "Korvex";
inline constexpr const char* kRecentFilesSection = "Recent Files";

class UserSettingsStore {
  public:
    using Entries = std::vector<std::pair<std::string, std::string>>;

    virtual ~UserSettingsStore();

    // The value of a key, `fallback` when it has none.
    virtual std::string GetSetting(const std::string& section, const std::string& key,
                                   const std::string& fallback) const = 0;
    virtual void SaveSetting(const std::string& section, const std::string& key,
                             const std::string& value) = 0;
    // Every key of a section with its value, in the order the keys were
    // first saved; empty for an unknown section.
    virtual Entries GetAllSettings(const std::string& section) const = 0;
};

// Sections and keys are told apart without regard to case, as in the
// classic per-user store.
class MemoryUserSettingsStore : public UserSettingsStore {
  public:
    std::string GetSetting(const std::string& section, const std::string& key,
                           const std::string& fallback) const override;
    void SaveSetting(const std::string& section, const std::string& key,
                     const std::string& value) override;
    Entries GetAllSettings(const std::string& section) const override;

  private:
    struct Entry {
        std::string section;
        std::string key;
        std::string value;
    };
    // The entry's place, or the number of entries when there is none.
    std::size_t indexOf(const std::string& section, const std::string& key) const;

    std::vector<Entry> entries_;
};

}  // namespace korvex
