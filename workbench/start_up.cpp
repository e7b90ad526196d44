#include "workbench/start_up.h"

#include "base/failure.h"
#include "base/text.h"
#include "workbench/captions.h"
#include "workbench/settings_store.h"

namespace korvex {

void openStartWindows(FileCommands& commands, DocumentTable& documents, Workspace& workspace,
                      const Settings& settings, const std::string& commandLine) {
    DocumentWindow* first = commands.NewDocument();
    commands.UpdateRecentMenus();
    if (settings.TwoWindowsAtStart != 0) {
        workspace.placeInHalf(*first, false);
        DocumentWindow* second = commands.NewDocument();
        workspace.placeInHalf(*second, true);
    }
    workspace.focusDocumentWindow(*first);
    documents.ActiveDocument = documents.slotOf(first);
    const std::string name = removeAll(commandLine, '"');
    if (!name.empty()) commands.OpenSource(name);
}

bool writeEndSettings(const Settings& settings, const std::string& programFolder, Host& host) {
    try {
        WriteSettings(settings, programFolder);
        return true;
    } catch (...) {
        const RuntimeFailure failure = currentFailure();
        host.messageBox(std::string(kMainCaption),
                        failureHeadline("Fehler Nummer", failure, true) + std::string(kCrLf) +
                            failure.description() + failureDetails(failure),
                        MessageButtons::Ok, MessageIcon::Critical);
        return false;
    }
}

}  // namespace korvex
