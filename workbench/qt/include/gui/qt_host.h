#pragma once
// The logic's message boxes as QMessageBox, with the standard buttons in
// German through Qt's translation. The other parts of Host reach the
// windows through callbacks that the main window sets.

#include <functional>
#include <optional>
#include <string>

#include "base/host.h"

class QWidget;

namespace korvex::gui {

class QtHost : public Host {
  public:
    // Boxes stand over `parent`, or over the active window when it is null.
    explicit QtHost(QWidget* parent = nullptr) : parent_(parent) {}

    MessageAnswer messageBox(const std::string& title, const std::string& text,
                             MessageButtons buttons, MessageIcon icon) override;
    void processPendingEvents() override;
    void setDialogText(const std::string& text) override;
    void appendDialogText(const std::string& text) override;
    std::optional<std::string> openWindowText(const std::string& caption) override;

    std::function<void(const std::string&, bool append)> dialogText;
    std::function<std::optional<std::string>(const std::string&)> windowText;

  private:
    QWidget* parent_;
};

}  // namespace korvex::gui
