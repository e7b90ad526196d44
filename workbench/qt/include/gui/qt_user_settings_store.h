#pragma once
// The per-user store in QSettings (application "Korvex"): each section a
// group, keys and values as text.

#include <QSettings>

#include "workbench/user_settings_store.h"

namespace korvex::gui {

class QtUserSettingsStore : public UserSettingsStore {
  public:
    // The user's own store of the application "Korvex".
    QtUserSettingsStore();
    // A store in this file, for tests and portable runs.
    explicit QtUserSettingsStore(const QString& iniFile);

    std::string GetSetting(const std::string& section, const std::string& key,
                           const std::string& fallback) const override;
    void SaveSetting(const std::string& section, const std::string& key,
                     const std::string& value) override;
    Entries GetAllSettings(const std::string& section) const override;

  private:
    mutable QSettings settings_;
};

}  // namespace korvex::gui
