// korvex: the workbench. korvex [--program-folder FOLDER] [SOURCE]
#include <QApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTranslator>

#include "base/program_folder.h"
#include "gui/app_icon.h"
#include "gui/main_window.h"
#include "gui/qt_file_dialogs.h"
#include "gui/qt_host.h"
#include "gui/qt_text.h"
#include "gui/qt_user_settings_store.h"

namespace {

struct CommandLine {
    std::string programFolder;
    std::string source;  // a full path, Windows-1252 as captions hold it
};

CommandLine readCommandLine(const QStringList& arguments) {
    CommandLine line;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments[i];
        if (argument == QStringLiteral("--program-folder") && i + 1 < arguments.size()) {
            line.programFolder = arguments[++i].toStdString();
        } else if (argument.startsWith(QStringLiteral("--program-folder="))) {
            line.programFolder = argument.section(QLatin1Char('='), 1).toStdString();
        } else if (line.source.empty() && !argument.startsWith(QStringLiteral("-"))) {
            // A caption is a full path: a name given from the shell's folder
            // is made whole before anything else changes.
            line.source = korvex::gui::toCp1252(QFileInfo(argument).absoluteFilePath());
        }
    }
    return line;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Korvex"));
    QApplication::setWindowIcon(korvex::gui::applicationIcon());
    QGuiApplication::setDesktopFileName(QStringLiteral("korvex"));
    // Standard buttons and dialogs speak German through Qt's own translation.
    QTranslator qtGerman;
    if (qtGerman.load(QStringLiteral("qtbase_de"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtGerman);

    const CommandLine line = readCommandLine(QApplication::arguments());
    const korvex::ProgramFolderSources sources =
        korvex::processProgramFolderSources(line.programFolder);
    std::string programFolder = korvex::prepareProgramFolderForWriting(sources);
    if (programFolder.empty()) programFolder = korvex::resolveProgramFolder(sources);

    korvex::gui::QtHost host;
    korvex::gui::QtFileDialogs dialogs;
    korvex::gui::QtUserSettingsStore userStore;
    korvex::gui::MainWindow window(programFolder, {host, dialogs, userStore});
    host.windowText = [&window](const std::string& caption) {
        return window.openWindowText(caption);
    };
    window.show();
    if (!window.start(line.source)) return 0;
    return QApplication::exec();
}
