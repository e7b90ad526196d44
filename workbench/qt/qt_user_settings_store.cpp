#include "gui/qt_user_settings_store.h"

#include "gui/qt_text.h"

namespace korvex::gui {

QtUserSettingsStore::QtUserSettingsStore()
    : settings_(QSettings::IniFormat, QSettings::UserScope, QString::fromLatin1(kApplicationKey),
                QString::fromLatin1(kApplicationKey)) {}

QtUserSettingsStore::QtUserSettingsStore(const QString& iniFile)
    : settings_(iniFile, QSettings::IniFormat) {}

std::string QtUserSettingsStore::GetSetting(const std::string& section, const std::string& key,
                                            const std::string& fallback) const {
    const QString path = fromCp1252(section) + QLatin1Char('/') + fromCp1252(key);
    if (!settings_.contains(path)) return fallback;
    return toCp1252(settings_.value(path).toString());
}

void QtUserSettingsStore::SaveSetting(const std::string& section, const std::string& key,
                                      const std::string& value) {
    settings_.setValue(fromCp1252(section) + QLatin1Char('/') + fromCp1252(key), fromCp1252(value));
}

UserSettingsStore::Entries QtUserSettingsStore::GetAllSettings(const std::string& section) const {
    Entries entries;
    settings_.beginGroup(fromCp1252(section));
    for (const QString& key : settings_.childKeys())
        entries.emplace_back(toCp1252(key), toCp1252(settings_.value(key).toString()));
    settings_.endGroup();
    return entries;
}

}  // namespace korvex::gui
