#pragma once
// frmControllerwahl: the controller from the drivers in the program folder.

#include <QDialog>
#include <string>
#include <vector>

class QComboBox;

namespace korvex::gui {

class ControllerDialog : public QDialog {
    Q_OBJECT

  public:
    ControllerDialog(const std::vector<std::string>& controllers, const std::string& current,
                     std::int32_t background, QWidget* parent);

    // The name chosen with Ok (Windows-1252).
    std::string chosen() const;

  private:
    QComboBox* combo_ = nullptr;
};

}  // namespace korvex::gui
