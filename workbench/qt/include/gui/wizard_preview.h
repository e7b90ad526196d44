#pragma once
// The preview pane of a wizard: the generated program, read-only, with the
// tab stops and margins of the preview and its comments in the comment
// colour. A new program replaces the text without flicker and where the
// reader was.

#include <QTextEdit>
#include <string>
#include <vector>

#include "wizards/core/comment_colouring.h"

namespace korvex::gui {

class WizardPreview : public QTextEdit {
    Q_OBJECT

  public:
    explicit WizardPreview(QWidget* parent = nullptr);

    // `text` is Windows-1252 with CR LF; the ranges count its bytes.
    void showProgram(const std::string& text, const std::vector<wizards::ColouredRange>& colours);
};

}  // namespace korvex::gui
