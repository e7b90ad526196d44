// korvex: the workbench.
#include <QApplication>
#include <QLibraryInfo>
#include <QMainWindow>
#include <QTranslator>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Korvex"));
    // Standard buttons and dialogs speak German through Qt's own translation.
    QTranslator qtGerman;
    if (qtGerman.load(QStringLiteral("qtbase_de"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtGerman);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Korvex"));
    window.show();
    return QApplication::exec();
}
