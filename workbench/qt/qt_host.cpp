#include "gui/qt_host.h"

#include <QApplication>
#include <QMessageBox>

#include "gui/qt_text.h"

namespace korvex::gui {
namespace {

QMessageBox::StandardButtons standardButtons(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::OkCancel: return QMessageBox::Ok | QMessageBox::Cancel;
        case MessageButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
        case MessageButtons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case MessageButtons::Ok: break;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon boxIcon(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information: return QMessageBox::Information;
        case MessageIcon::Question: return QMessageBox::Question;
        case MessageIcon::Exclamation: return QMessageBox::Warning;
        case MessageIcon::Critical: return QMessageBox::Critical;
        case MessageIcon::None: break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

MessageAnswer QtHost::messageBox(const std::string& title, const std::string& text,
                                 MessageButtons buttons, MessageIcon icon) {
    QWidget* parent = parent_ != nullptr ? parent_ : QApplication::activeWindow();
    QMessageBox box(boxIcon(icon), fromCp1252(title), fromCp1252(text), standardButtons(buttons),
                    parent);
    box.setObjectName(QStringLiteral("MsgBox"));
    // Closing the box with Escape or its frame gives the classic answer.
    if (buttons == MessageButtons::YesNo) box.setEscapeButton(QMessageBox::No);
    switch (box.exec()) {
        case QMessageBox::Yes: return MessageAnswer::Yes;
        case QMessageBox::No: return MessageAnswer::No;
        case QMessageBox::Cancel: return MessageAnswer::Cancel;
        case QMessageBox::Ok: return MessageAnswer::Ok;
        default: break;
    }
    return buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::Cancel;
}

void QtHost::processPendingEvents() {
    QCoreApplication::processEvents();
}

void QtHost::setDialogText(const std::string& text) {
    if (dialogText) dialogText(text, false);
}

void QtHost::appendDialogText(const std::string& text) {
    if (dialogText) dialogText(text, true);
}

std::optional<std::string> QtHost::openWindowText(const std::string& caption) {
    return windowText ? windowText(caption) : std::nullopt;
}

}  // namespace korvex::gui
