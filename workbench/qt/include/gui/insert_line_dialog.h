#pragma once
// IncludeFrm and Partoffrm: a "#Include" or "#Part of" line with a chosen
// file's full path, put at the caret of the active source through the
// clipboard. They stay open above the editor without blocking it.

#include <QDialog>
#include <functional>
#include <string>

class QLineEdit;

namespace korvex::gui {

class InsertLineDialog : public QDialog {
    Q_OBJECT

  public:
    enum class Kind { Include, PartOf };
    struct Services {
        std::function<std::string(const std::string& title)> chooseFile;  // empty: cancelled
        std::function<void()> pasteAtCaret;
        std::function<void()> help;
    };
    InsertLineDialog(Kind kind, Services services, QWidget* parent);

    QLineEdit* line() const { return text_; }

  private:
    Kind kind_;
    Services services_;
    QLineEdit* text_ = nullptr;
};

}  // namespace korvex::gui
