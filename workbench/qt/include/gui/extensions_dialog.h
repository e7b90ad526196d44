#pragma once
// frmEndungen: the six file extensions. "&Ok" stores them, "&Standard" puts
// the defaults into the fields without storing them yet.

#include <QDialog>
#include <array>
#include <functional>

#include "base/host.h"
#include "workbench/settings.h"

class QLineEdit;

namespace korvex::gui {

class ExtensionsDialog : public QDialog {
    Q_OBJECT

  public:
    ExtensionsDialog(Settings& settings, Host& host, QWidget* parent = nullptr);
    // The help button shows this; without it, it says there is none yet.
    void setHelp(std::function<void()> help) { help_ = std::move(help); }

  private:
    std::function<void()> help_;
    void store();
    void putDefaults();

    Settings& settings_;
    Host& host_;
    std::array<QLineEdit*, 6> fields_{};
};

}  // namespace korvex::gui
