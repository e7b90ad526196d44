#include "gui/editor_document.h"

#include <QMdiSubWindow>

#include "gui/qt_text.h"

namespace korvex::gui {

void EditorDocument::setCaption(const std::string& caption) {
    caption_ = caption;
    if (editor_) editor_->setWindowTitle(fromCp1252(caption));
    if (frame_) frame_->setWindowTitle(fromCp1252(caption));
}

std::string EditorDocument::text() const {
    return editor_ ? editor_->sourceText() : std::string();
}

void EditorDocument::loadText(const std::string& text) {
    if (editor_) editor_->setSourceText(text);
}

void EditorDocument::removeBookmarks() {
    if (editor_) editor_->removeBookmarks();
}

}  // namespace korvex::gui
