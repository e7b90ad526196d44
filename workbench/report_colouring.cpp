#include "workbench/report_colouring.h"

#include <string>
#include <string_view>

#include "workbench/comment_colouring.h"
#include "workbench/editor_guards.h"

namespace korvex {
namespace {

constexpr std::string_view kErrorMark = ";>err";
constexpr std::string_view kFindingsHead = "Warnungen/Fehler:";

void colourStretch(TextControl& box, std::size_t from, std::size_t to, std::int32_t colour) {
    box.Select(static_cast<std::int32_t>(from), static_cast<std::int32_t>(to - from));
    box.SetSelColor(colour);
}

}  // namespace

void ColourReport(TextControl& box, EditorFlags& flags, std::int32_t commentColour) {
    FlagGuard selection(flags.SuspendSelChange);
    OutOfSight hidden(box);
    const std::string text = box.Text();
    ForEachComment(text, [&](std::size_t semicolon, std::size_t end) {
        box.Select(static_cast<std::int32_t>(semicolon),
                   static_cast<std::int32_t>(end - semicolon));
        box.SetSelFontName("Arial");
        const std::string_view stretch(text.data() + semicolon, end - semicolon);
        if (stretch.substr(0, kErrorMark.size()) == kErrorMark) {
            box.SetSelColor(kReportRed);
            return;
        }
        box.SetSelColor(commentColour);
        // A comment may hold a normal part and, from the marker on, a red one.
        const std::size_t mark = stretch.find(kErrorMark, 1);
        if (mark != std::string_view::npos) colourStretch(box, semicolon + mark, end, kReportRed);
    });
    const std::size_t head = text.find(kFindingsHead);
    if (head != std::string::npos)
        colourStretch(box, head, head + kFindingsHead.size(), kReportRed);
    box.Select(0, 0);
}

}  // namespace korvex
