#include "gui/wizard_preview.h"

#include <QFontDatabase>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include "gui/colour_map.h"
#include "gui/qt_text.h"
#include "gui/twips.h"

namespace korvex::gui {
namespace {

// The preview's tab stops and margins in twips.
constexpr int kTabStops[] = {260, 460, 660, 860, 1060};
constexpr int kLeftMargin = 60;
constexpr int kRightMargin = 300;

}  // namespace

WizardPreview::WizardPreview(QWidget* parent) : QTextEdit(parent) {
    setReadOnly(true);
    setLineWrapMode(QTextEdit::NoWrap);
    setAcceptRichText(false);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QTextOption option = document()->defaultTextOption();
    QList<QTextOption::Tab> tabs;
    for (const int twips : kTabStops)
        tabs.append(QTextOption::Tab(pixelsOfTwips(twips), QTextOption::LeftTab));
    option.setTabs(tabs);
    document()->setDefaultTextOption(option);
    setViewportMargins(pixelsOfTwips(kLeftMargin), 0, pixelsOfTwips(kRightMargin), 0);
}

void WizardPreview::showProgram(const std::string& text,
                                const std::vector<wizards::ColouredRange>& colours) {
    // The ranges count the bytes of the CR LF text; the document holds LF only.
    std::vector<int> position(text.size() + 1, 0);
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        position[i] = static_cast<int>(shown.size());
        if (text[i] != '\r') shown.push_back(text[i]);
    }
    position[text.size()] = static_cast<int>(shown.size());
    const QString unicode = fromCp1252(shown);

    QScrollBar* vertical = verticalScrollBar();
    QScrollBar* horizontal = horizontalScrollBar();
    const int top = vertical->value();
    const int left = horizontal->value();
    setUpdatesEnabled(false);
    setPlainText(unicode);
    QTextCursor cursor(document());
    for (const wizards::ColouredRange& range : colours) {
        if (!range.comment) continue;  // the rest keeps the control's own colour
        const std::size_t end = std::min(range.start + range.length, text.size());
        cursor.setPosition(position[std::min(range.start, text.size())]);
        cursor.setPosition(position[end], QTextCursor::KeepAnchor);
        QTextCharFormat format;
        format.setForeground(toQColor(static_cast<std::int32_t>(range.colour), palette()));
        cursor.mergeCharFormat(format);
    }
    vertical->setValue(top);
    horizontal->setValue(left);
    setUpdatesEnabled(true);
}

}  // namespace korvex::gui
