#include "wizards/core/editor_transfer.h"

#include <exception>

#include "base/cp1252.h"
#include "base/failure.h"

namespace korvex::wizards {

EditorAccess::~EditorAccess() = default;

TransferOutcome transferPreview(const std::string& preview, EditorAccess& editor,
                                WizardHost& host) {
    try {
        const std::int16_t document = editor.activeDocument();
        if (document == 0) return TransferOutcome::NoDocument;
        editor.setSelectionStart(document, 0);
        editor.setText(document, preview + editor.text(document));
        editor.recolour(document);
        editor.setSelectionStart(document, 0);
        return TransferOutcome::Transferred;
    } catch (const std::exception&) {
        host.note(
            text8("Problem: Ich weiß nicht wohin mit den Daten. Markieren Sie das "
                  "Zielfenster und klicken Sie erneut auf übernehmen."));
        return TransferOutcome::Failed;
    }
}

}  // namespace korvex::wizards
