#include "workbench/document_format.h"

#include "base/failure.h"
#include "workbench/comment_colouring.h"
#include "workbench/editor_guards.h"

namespace korvex {
namespace {

constexpr int kSourceTabCount = 5;

void applyTabs(TextControl& box, const std::array<std::int32_t, kSourceTabCount>& tabs) {
    box.SetSelTabCount(kSourceTabCount);
    for (int i = 0; i < kSourceTabCount; ++i) box.SetSelTabs(i, tabs[static_cast<std::size_t>(i)]);
}

void applySettingsFont(TextControl& box, const Settings& settings) {
    box.SetSelFontName(settings.EditorFontName);
    box.SetSelFontSize(settings.EditorFontSize);
    box.SetSelBold(settings.EditorFontBold);
    box.SetSelItalic(settings.EditorFontItalic);
    box.SetSelColor(kBlack);
}

}  // namespace

std::array<std::int32_t, 5> ScaledSourceTabs(std::int16_t fontSize) {
    std::array<std::int32_t, kSourceTabCount> tabs{};
    for (int i = 0; i < kSourceTabCount; ++i) {
        const Int16 product = Int16(i * 200 + 320).value() * std::int64_t{fontSize};
        tabs[static_cast<std::size_t>(i)] = product / 10;
    }
    return tabs;
}

void ApplyStartFormat(TextControl& box, EditorFlags& flags, const Settings& settings) {
    FlagGuard selection(flags.SuspendSelChange);
    const std::int32_t caret = box.SelStart();
    box.Select(0, box.TextLength());
    applyTabs(box, {320, 520, 720, 920, 1120});
    box.SetSelIndent(120);
    box.SetSelHangingIndent(settings.HangingIndent ? 600 : 0);
    if (settings.NoRightWrap) box.SetRightMargin(12000);
    box.SetSelStart(caret);
}

void FormatDocumentText(TextControl& box, EditorFlags& flags, const Settings& settings,
                        bool disassembly) {
    // Reckoned first, so that an overflow leaves the document as it was.
    const auto tabs =
        disassembly ? std::array<std::int32_t, 5>{} : ScaledSourceTabs(settings.EditorFontSize);
    FlagGuard selection(flags.SuspendSelChange);
    FlagGuard change(flags.SuspendChange);
    OutOfSight hidden(box);
    const std::int32_t caret = box.SelStart();
    box.Select(0, box.TextLength());
    if (disassembly) {
        ApplyDisassemblyParagraphs(box);
    } else {
        applyTabs(box, tabs);
        box.SetSelIndent(120);
        box.SetSelHangingIndent(settings.HangingIndent ? 600 : 0);
    }
    applySettingsFont(box, settings);
    ApplyCommentColours(box, flags, settings.Colours[kCommentColour]);
    box.SetSelStart(caret);
}

void FormatPastedText(TextControl& box, const Settings& settings) {
    applyTabs(box, ScaledSourceTabs(settings.EditorFontSize));
    box.SetSelIndent(120);
    applySettingsFont(box, settings);
}

void ApplyWrapSettings(TextControl& box, EditorFlags& flags, const Settings& settings) {
    FlagGuard selection(flags.SuspendSelChange);
    FlagGuard change(flags.SuspendChange);
    OutOfSight hidden(box);
    const std::int32_t caret = box.SelStart();
    box.Select(0, box.TextLength());
    box.SetSelIndent(120);
    box.SetSelHangingIndent(settings.HangingIndent ? 600 : 0);
    box.SetRightMargin(settings.NoRightWrap ? 12000 : 0);
    box.SetSelStart(caret);
}

void ApplyDisassemblyParagraphs(TextControl& box) {
    static constexpr std::array<std::int32_t, 6> kTabs{700, 1130, 1560, 1990, 2160, 4300};
    box.SetSelTabCount(static_cast<int>(kTabs.size()));
    for (std::size_t i = 0; i < kTabs.size(); ++i) box.SetSelTabs(static_cast<int>(i), kTabs[i]);
    box.SetSelIndent(100);
    box.SetSelHangingIndent(1945);
}

}  // namespace korvex
