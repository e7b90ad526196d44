#include "gui/qt_file_dialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QStringList>

#include "gui/qt_text.h"

namespace korvex::gui {

QString qtFilter(const std::string& classicFilter) {
    const QStringList parts = fromCp1252(classicFilter).split(QLatin1Char('|'));
    QStringList filters;
    // Qt builds the pattern from the description's parentheses.
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) filters << parts[i];
    return filters.join(QStringLiteral(";;"));
}

std::string QtFileDialogs::openFileName(const FileDialogRequest& request) {
    return ask(request, false);
}

std::string QtFileDialogs::saveFileName(const FileDialogRequest& request) {
    return ask(request, true);
}

std::string QtFileDialogs::ask(const FileDialogRequest& request, bool save) {
    QWidget* parent = parent_ != nullptr ? parent_ : QApplication::activeWindow();
    QString start = fromCp1252(request.folder);
    const QString proposed = fromCp1252(request.fileName);
    if (proposed.startsWith(QLatin1Char('/'))) {
        start = proposed;
    } else if (!proposed.isEmpty()) {
        start += proposed;
    }
    const QString filter = qtFilter(request.filter);
    const QStringList filters = filter.split(QStringLiteral(";;"));
    QString selected = filters.value(request.filterIndex - 1);
    const QString title = fromCp1252(request.title);
    const QString name =
        save ? QFileDialog::getSaveFileName(parent, title, start, filter, &selected)
             : QFileDialog::getOpenFileName(parent, title, start, filter, &selected);
    return toCp1252(name);
}

}  // namespace korvex::gui
