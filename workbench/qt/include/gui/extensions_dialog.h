#pragma once
// frmEndungen: the six file extensions. "&Ok" stores them, "&Standard" puts
// the defaults into the fields without storing them yet.

#include <QDialog>
#include <array>

#include "base/host.h"
#include "workbench/settings.h"

class QLineEdit;

namespace korvex::gui {

class ExtensionsDialog : public QDialog {
    Q_OBJECT

  public:
    ExtensionsDialog(Settings& settings, Host& host, QWidget* parent = nullptr);

  private:
    void store();
    void putDefaults();

    Settings& settings_;
    Host& host_;
    std::array<QLineEdit*, 6> fields_{};
};

}  // namespace korvex::gui
