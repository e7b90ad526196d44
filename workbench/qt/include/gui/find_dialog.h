#pragma once
// frmFind: find and replace, modeless above the workbench. The rules are
// FindReplace's; the dialog holds the boxes and asks the main window for
// the text control of the active source window.

#include <QDialog>
#include <functional>

#include "workbench/find_replace.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace korvex::gui {

class FindDialog : public QDialog {
    Q_OBJECT

  public:
    // `activeText` gives the active source window's control, or nullptr;
    // `focusText` gives that window the focus.
    FindDialog(FindState& state, FindReplace& find, std::function<TextControl*()> activeText,
               std::function<void()> focusText, QWidget* parent);

    // OpenFindDialog on the active control (also when already open).
    void openOn(const FindOpening& opening);
    void setReplacing(bool replacing);
    // Another document became active: its text was never replaced here.
    void disableUndo();
    FindBoxes boxes() const;

  protected:
    void done(int result) override;

  private:
    void fillCombo(QComboBox* combo, const std::vector<std::string>& history);
    void rememberBoxes();
    void findPressed();
    void replacePressed();
    void replaceAllPressed();
    void undoPressed();

    FindState& state_;
    FindReplace& find_;
    std::function<TextControl*()> activeText_;
    std::function<void()> focusText_;
    QComboBox* findCombo_ = nullptr;
    QComboBox* replaceCombo_ = nullptr;
    QLabel* replaceLabel_ = nullptr;
    QCheckBox* replacing_ = nullptr;
    QCheckBox* matchCase_ = nullptr;
    QCheckBox* wholeWord_ = nullptr;
    QCheckBox* selectionOnly_ = nullptr;
    QPushButton* findButton_ = nullptr;
    QPushButton* replace_ = nullptr;
    QPushButton* replaceAll_ = nullptr;
    QPushButton* undo_ = nullptr;
};

}  // namespace korvex::gui
