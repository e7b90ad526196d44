#pragma once
// frmDateivergleich: two files, their sizes and dates, and the list of the
// bytes in which they differ; Intel-HEX files optionally as memory images.

#include <QWidget>
#include <functional>
#include <string>

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;

namespace korvex {
class RuntimeFailure;
}

namespace korvex::gui {

class FileComparisonWindow : public QWidget {
    Q_OBJECT

  public:
    struct Services {
        std::function<std::string()> chooseFile;  // a path (Windows-1252), empty if cancelled
        std::function<void(const std::string&)> noteFolder;
        std::function<void(const RuntimeFailure&)> failed;
    };
    FileComparisonWindow(Services services, std::int32_t background, QWidget* parent = nullptr);

    // Puts a file in place 0 or 1, as the choice of its button does.
    void setFile(int which, const std::string& path);
    void compare();

  signals:
    void closeRequested();

  private:
    Services services_;
    QLineEdit* names_[2] = {};
    QLineEdit* sizes_[2] = {};
    QLineEdit* dates_[2] = {};
    QCheckBox* expandHex_ = nullptr;
    QLineEdit* fill_ = nullptr;
    QLineEdit* stopAfter_ = nullptr;
    QPlainTextEdit* list_ = nullptr;
};

}  // namespace korvex::gui
