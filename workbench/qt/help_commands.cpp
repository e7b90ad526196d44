// The help of the workbench: topics by number, the contents, the register
// help of the controller, and F1 on a word, shown in the help window.

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QSvgRenderer>
#include <QSvgWidget>

#include "base/cp1252.h"
#include "gui/command_menus.h"
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

// frmPins: one picture, the window sized to it.
void MainWindow::showPins(const char* file, const QString& caption) {
    const QString path = QString::fromStdString(programFolder_ + "help/pins/" + file);
    if (!QFileInfo::exists(path)) {
        host_.messageBox(std::string(kMainCaption), std::string(file) + "-Datei nicht gefunden.",
                         MessageButtons::Ok, MessageIcon::None);
        return;
    }
    if (pins_ == nullptr) {
        pins_ = new QSvgWidget(this);
        pins_->setWindowFlag(Qt::Window);
        pins_->setObjectName(QStringLiteral("frmPins"));
    }
    pins_->load(path);
    pins_->setFixedSize(pins_->renderer()->defaultSize());
    pins_->setWindowTitle(QStringLiteral("Anschlussbelegung ") + caption);
    if (pins_->isMinimized()) pins_->showNormal();
    pins_->show();
    pins_->raise();
}

void MainWindow::registerPinCommands() {
    struct Pins {
        const char* command;
        const char* file;
    };
    static constexpr Pins kPins[] = {
        {"MnPins80C52", "8032.svg"},    {"MnPins80c320", "80C320.svg"},
        {"MnPins89c420", "89C420.svg"}, {"MnPinsAT89LP51", "89LP51ED2.svg"},
        {"MnPinsAT89", "89cxx.svg"},    {"MnPins4052", "4052.svg"},
        {"MnPinsC509", "C509.svg"},     {"MnPinsC515", "C515.svg"},
        {"MnPinsC517", "C517.svg"},     {"MnPins80c552", "80c552.svg"},
    };
    for (const Pins& pins : kPins)
        handlers_.insert(QString::fromLatin1(pins.command), [this, pins] {
            showPins(pins.file, menus_->plainCaption(QString::fromLatin1(pins.command)));
        });
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
