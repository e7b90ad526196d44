#pragma once
// A source window as the document commands see it: the caption on its MDI
// frame, the text through the editor's own interface.

#include <QMdiSubWindow>
#include <QPointer>
#include <string>

#include "gui/editor_window.h"
#include "workbench/document_window.h"

namespace korvex::gui {

class EditorDocument : public DocumentWindow {
  public:
    EditorDocument(EditorWindow* editor, QMdiSubWindow* frame) : editor_(editor), frame_(frame) {}

    std::string caption() const override { return caption_; }
    void setCaption(const std::string& caption) override;
    std::string text() const override;
    void loadText(const std::string& text) override;
    void removeBookmarks() override;

    EditorWindow* editor() const { return editor_; }
    QMdiSubWindow* frame() const { return frame_; }

  private:
    QPointer<EditorWindow> editor_;
    QPointer<QMdiSubWindow> frame_;
    // Kept as 8-bit text: the caption is the file's name, byte for byte.
    std::string caption_;
};

}  // namespace korvex::gui
