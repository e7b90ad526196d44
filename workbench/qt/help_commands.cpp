// The help of the workbench: topics by number, the contents, the register
// help of the controller, and F1 on a word, shown in the help window.

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "base/cp1252.h"
#include "gui/editor_window.h"
#include "gui/help_window.h"
#include "gui/listing_window.h"
#include "gui/main_window.h"
#include "gui/qt_text.h"
#include "workbench/captions.h"
#include "workbench/help_pages.h"

namespace korvex::gui {

void MainWindow::showHelp(const HelpRequest& request) {
    if (request.kind == HelpRequest::Kind::Window) {
        if (request.keyword == "MnHelpRechner") {
            startCalculator();
        } else {
            notAvailable(QString::fromStdString(request.keyword));
        }
        return;
    }
    if (helpWindow_ == nullptr) helpWindow_ = new HelpWindow(programFolder_, this);
    if (!helpWindow_->show(request))
        host_.messageBox(std::string(kMainCaption),
                         text8("Die Hilfeseite ") +
                             fromUtf8(HelpPagePath(programFolder_, request)) +
                             text8(" fehlt; die Hilfe ist nicht vollständig installiert."),
                         MessageButtons::Ok, MessageIcon::Exclamation);
}

void MainWindow::showHelpFor(const char* command) {
    showHelp(HelpForCommand(command, settings_.ControllerName));
}

void MainWindow::showHelpForWord(const std::string& word) {
    showHelp(HelpForWord(word));
}

// The first calculator the desktop offers.
void MainWindow::startCalculator() {
    for (const char* program :
         {"gnome-calculator", "kcalc", "galculator", "mate-calc", "qalculate-gtk", "xcalc"}) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(program));
        if (!path.isEmpty() && QProcess::startDetached(path, {})) return;
    }
    host_.messageBox(std::string(kMainCaption),
                     text8("Es ist kein Taschenrechner installiert (zum Beispiel "
                           "gnome-calculator, kcalc oder galculator)."),
                     MessageButtons::Ok, MessageIcon::Information);
}

}  // namespace korvex::gui
