#include "workbench/settings_store.h"

#include "base/cp1252.h"
#include "base/files.h"
#include "base/text.h"
#include "workbench/settings_file.h"

namespace korvex {
namespace {

bool runAllTheSame(const RuntimeFailure& failure, Host& host) {
    const std::string text = failureHeadline("Fehler", failure, true) + ":" + std::string(kCrLf) +
                             failure.description() + std::string(kCrLf) +
                             text8("Möchten Sie versuchen das Programm trotzdem auszuführen?");
    return host.messageBox(text8("Fehler"), text, MessageButtons::YesNo, MessageIcon::Critical) ==
           MessageAnswer::Yes;
}

}  // namespace

std::optional<Settings> ReadSettings(const std::string& programFolder, Host& host) {
    SettingsReadResult result = readSettingsFile(programFolder);
    if (result.failure && !runAllTheSame(*result.failure, host)) return std::nullopt;
    return std::move(result.settings);
}

void WriteSettings(const Settings& settings, const std::string& programFolder) {
    replaceFileAtomically(programFolder + kSettingsFileName, settingsText(settings));
}

}  // namespace korvex
