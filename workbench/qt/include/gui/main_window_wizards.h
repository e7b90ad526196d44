#pragma once
// The parts of the main window that serve the wizards; whoever destroys a
// main window needs them whole.

#include <memory>
#include <string>

#include "base/failure.h"
#include "gui/editor_document.h"
#include "gui/main_window.h"
#include "wizards/core/editor_transfer.h"
#include "wizards/core/wizard.h"
#include "wizards/core/wizard_host.h"

namespace korvex::gui {

// The source window a wizard's program goes into: the ActiveDocument.
class MainWindow::WizardEditors : public wizards::EditorAccess {
  public:
    explicit WizardEditors(MainWindow& main) : main_(main) {}

    std::int16_t activeDocument() override {
        const int slot = main_.documents_.ActiveDocument;
        if (!main_.documents_.valid(slot) || main_.documents_.state(slot).Deleted) return 0;
        return main_.documents_.window(slot) != nullptr ? static_cast<std::int16_t>(slot) : 0;
    }
    void setSelectionStart(std::int16_t document, std::int32_t position) override {
        editor(document).textControl().SetSelStart(position);
    }
    std::string text(std::int16_t document) override { return editor(document).sourceText(); }
    void setText(std::int16_t document, const std::string& text) override {
        editor(document).setSourceText(text);
        // The program is new to the file: it must be saved.
        main_.commands_.TextEdited(*source(document));
    }
    void recolour(std::int16_t document) override { editor(document).recolourWholeDocument(); }

  private:
    EditorDocument* source(std::int16_t document) {
        if (!main_.documents_.valid(document) || main_.documents_.state(document).Deleted) {
            korvex::raise(FailureNumber::IndexOutOfRange);
        }
        auto* found = static_cast<EditorDocument*>(main_.documents_.window(document));
        if (found == nullptr || found->editor() == nullptr)
            korvex::raise(FailureNumber::IndexOutOfRange);
        return found;
    }
    EditorWindow& editor(std::int16_t document) { return *source(document)->editor(); }

    MainWindow& main_;
};

// What one chip's wizard needs for the run: its boxes, its record, its window.
struct MainWindow::WizardSeat {
    std::unique_ptr<wizards::HostWizardHost> host;
    std::unique_ptr<wizards::Wizard> wizard;
    WizardWindow* window = nullptr;
};

}  // namespace korvex::gui
