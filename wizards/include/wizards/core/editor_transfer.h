#pragma once
// The button "Übernehmen": the preview goes in front of the text of the
// active editor window, which is then recoloured.

#include <cstdint>
#include <string>

#include "wizards/core/wizard_host.h"

namespace korvex::wizards {

// The little the wizard needs of the editor windows. A call may fail with a
// RuntimeFailure (a window that was closed, an index out of range).
class EditorAccess {
  public:
    virtual ~EditorAccess();
    // Number of the active editor window, 0 when there is none.
    virtual std::int16_t activeDocument() = 0;
    virtual void setSelectionStart(std::int16_t document, std::int32_t position) = 0;
    virtual std::string text(std::int16_t document) = 0;
    virtual void setText(std::int16_t document, const std::string& text) = 0;
    // The editor's colouring of a whole document after its text was replaced.
    virtual void recolour(std::int16_t document) = 0;
};

enum class TransferOutcome { NoDocument, Transferred, Failed };

// Transferred means the wizard is to be hidden; on failure the box has been shown.
TransferOutcome transferPreview(const std::string& preview, EditorAccess& editor, WizardHost& host);

}  // namespace korvex::wizards
