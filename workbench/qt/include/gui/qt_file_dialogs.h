#pragma once
// The common file dialogs as QFileDialog. The classic filter
// "Text (*.a51)|*.a51|..." becomes Qt's "Text (*.a51);;...".

#include <QString>

#include "workbench/document_window.h"

class QWidget;

namespace korvex::gui {

QString qtFilter(const std::string& classicFilter);

class QtFileDialogs : public FileDialogs {
  public:
    explicit QtFileDialogs(QWidget* parent = nullptr) : parent_(parent) {}
    std::string openFileName(const FileDialogRequest& request) override;
    std::string saveFileName(const FileDialogRequest& request) override;

  private:
    std::string ask(const FileDialogRequest& request, bool save);
    QWidget* parent_;
};

}  // namespace korvex::gui
