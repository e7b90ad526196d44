// Character and paragraph format of the Qt text control.
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>
#include <cmath>

#include "gui/colour_map.h"
#include "gui/qt_text.h"
#include "gui/qt_text_control.h"
#include "qt_text_operation.h"
#include "qt_text_properties.h"

namespace korvex::gui {
namespace {

constexpr int kMaxTabs = 32;

std::int32_t twipsOf(double pixels) {
    return static_cast<std::int32_t>(std::lround(pixels * kTwipsPerPixel));
}

double pixelsOf(std::int32_t twips) {
    return std::max(twips, 0) / kTwipsPerPixel;
}

// Margins as the widget draws them: the first line at the indent, the
// others further in by the hanging indent.
void placeMargins(QTextBlockFormat& format) {
    const std::int32_t indent = format.intProperty(kIndentProperty);
    const std::int32_t hanging = format.intProperty(kHangingIndentProperty);
    format.setLeftMargin(pixelsOf(indent) + pixelsOf(hanging));
    format.setTextIndent(-pixelsOf(hanging));
}

}  // namespace

// Only what text carries: colour and font, not what makes a picture.
QTextCharFormat QtTextControl::textFormat(const QTextCharFormat& format) {
    QTextCharFormat text;
    for (const int property :
         {static_cast<int>(QTextFormat::ForegroundBrush), kColourProperty,
          static_cast<int>(QTextFormat::FontFamilies), static_cast<int>(QTextFormat::FontPointSize),
          static_cast<int>(QTextFormat::FontWeight), static_cast<int>(QTextFormat::FontItalic)})
        if (format.hasProperty(property)) text.setProperty(property, format.property(property));
    return text;
}

QTextCharFormat QtTextControl::defaultFormat() const {
    QTextCharFormat format;
    format.setFontFamilies({fromCp1252(font_.name)});
    format.setFontPointSize(font_.size);
    format.setFontWeight(font_.bold ? QFont::Bold : QFont::Normal);
    format.setFontItalic(font_.italic);
    format.setForeground(QColor(Qt::black));
    format.setProperty(kColourProperty, kBlack);
    return format;
}

QTextCharFormat QtTextControl::formatOfCharacter(int qtPosition) const {
    const QTextBlock block = document_->findBlock(qtPosition);
    if (!block.isValid()) return defaultFormat();
    if (qtPosition == block.position() + block.length() - 1) {
        // A paragraph separator: the next block keeps its format.
        const QTextBlock next = block.next();
        return next.isValid() ? next.charFormat() : block.charFormat();
    }
    QTextCursor cursor(document_);
    cursor.setPosition(qtPosition + 1);
    return cursor.charFormat();
}

QTextCharFormat QtTextControl::caretFormat(int qtPosition) const {
    if (document_->characterCount() <= 1) return defaultFormat();
    const QTextBlock block = document_->findBlock(qtPosition);
    if (qtPosition == block.position() && block.length() > 1)
        return textFormat(formatOfCharacter(qtPosition));
    if (qtPosition > 0) return textFormat(formatOfCharacter(qtPosition - 1));
    return defaultFormat();
}

QTextCharFormat QtTextControl::selectionFormat() const {
    const QTextCursor cursor = selection();
    if (cursor.hasSelection()) return formatOfCharacter(cursor.selectionStart());
    return caretFormat_ ? *caretFormat_ : caretFormat(cursor.position());
}

QTextCharFormat QtTextControl::insertionFormat() const {
    const QTextCursor cursor = selection();
    if (!cursor.hasSelection() && caretFormat_) return *caretFormat_;
    return caretFormat(cursor.selectionStart());
}

void QtTextControl::mergeCharacterFormat(const QTextCharFormat& change) {
    Operation operation(*this);
    QTextCursor cursor = selection();
    if (cursor.hasSelection()) {
        cursor.mergeCharFormat(change);
        return;
    }
    QTextCharFormat format = textFormat(selectionFormat());
    format.merge(change);
    caretFormat_ = format;
    // Out of sight the widget's caret is placed, with this format, at the end.
    if (!bulkEdit_) edit_->setCurrentCharFormat(format);
}

std::int32_t QtTextControl::SelColor() const {
    const QTextCharFormat format = selectionFormat();
    if (format.hasProperty(kColourProperty)) return format.intProperty(kColourProperty);
    if (format.foreground().style() != Qt::NoBrush) return fromQColor(format.foreground().color());
    return kBlack;
}

void QtTextControl::SetSelColor(std::int32_t colour) {
    QTextCharFormat change;
    change.setForeground(toQColor(colour, edit_->palette()));
    change.setProperty(kColourProperty, colour);
    mergeCharacterFormat(change);
}

std::string QtTextControl::SelFontName() const {
    const QStringList families = selectionFormat().fontFamilies().toStringList();
    return toCp1252(families.isEmpty() ? document_->defaultFont().family() : families.front());
}

void QtTextControl::SetSelFontName(const std::string& name) {
    QTextCharFormat change;
    change.setFontFamilies({fromCp1252(name)});
    mergeCharacterFormat(change);
}

int QtTextControl::SelFontSize() const {
    const double points = selectionFormat().fontPointSize();
    return static_cast<int>(
        std::lround(points > 0 ? points : document_->defaultFont().pointSizeF()));
}

void QtTextControl::SetSelFontSize(int points) {
    if (points < 1) return;
    QTextCharFormat change;
    change.setFontPointSize(points);
    mergeCharacterFormat(change);
}

bool QtTextControl::SelBold() const {
    const QTextCharFormat format = selectionFormat();
    if (!format.hasProperty(QTextFormat::FontWeight)) return document_->defaultFont().bold();
    return format.fontWeight() >= QFont::Bold;
}

void QtTextControl::SetSelBold(bool bold) {
    QTextCharFormat change;
    change.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    mergeCharacterFormat(change);
}

bool QtTextControl::SelItalic() const {
    const QTextCharFormat format = selectionFormat();
    if (!format.hasProperty(QTextFormat::FontItalic)) return document_->defaultFont().italic();
    return format.fontItalic();
}

void QtTextControl::SetSelItalic(bool italic) {
    QTextCharFormat change;
    change.setFontItalic(italic);
    mergeCharacterFormat(change);
}

void QtTextControl::SetFont(const TextFont& font) {
    font_ = font;
    QFont qtFont(fromCp1252(font.name));
    if (font.size > 0) qtFont.setPointSize(font.size);
    qtFont.setBold(font.bold);
    qtFont.setItalic(font.italic);
    document_->setDefaultFont(qtFont);
}

QTextBlock QtTextControl::firstSelectedBlock() const {
    return document_->findBlock(selection().selectionStart());
}

template <typename Change>
void QtTextControl::changeBlocks(Change change) {
    Operation operation(*this);
    const QTextCursor selected = selection();
    const QTextBlock last = document_->findBlock(selected.selectionEnd());
    // One edit for all the lines, laid out once.
    QTextCursor edit(document_);
    edit.beginEditBlock();
    for (QTextBlock block = document_->findBlock(selected.selectionStart()); block.isValid();
         block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        change(format);
        QTextCursor(block).setBlockFormat(format);
        if (block == last) break;
    }
    edit.endEditBlock();
}

int QtTextControl::SelTabCount() const {
    return static_cast<int>(firstSelectedBlock().blockFormat().tabPositions().size());
}

void QtTextControl::SetSelTabCount(int count) {
    const int wanted = std::clamp(count, 0, kMaxTabs);
    changeBlocks([wanted](QTextBlockFormat& format) {
        QList<QTextOption::Tab> tabs = format.tabPositions();
        while (tabs.size() > wanted) tabs.removeLast();
        while (tabs.size() < wanted) tabs.append(QTextOption::Tab(0, QTextOption::LeftTab));
        format.setTabPositions(tabs);
    });
}

std::int32_t QtTextControl::SelTabs(int index) const {
    const QList<QTextOption::Tab> tabs = firstSelectedBlock().blockFormat().tabPositions();
    if (index < 0 || index >= tabs.size()) return 0;
    return twipsOf(tabs[index].position);
}

void QtTextControl::SetSelTabs(int index, std::int32_t twips) {
    changeBlocks([index, twips](QTextBlockFormat& format) {
        QList<QTextOption::Tab> tabs = format.tabPositions();
        if (index < 0 || index >= tabs.size()) return;
        tabs[index].position = pixelsOf(twips);
        format.setTabPositions(tabs);
    });
}

std::int32_t QtTextControl::SelIndent() const {
    return firstSelectedBlock().blockFormat().intProperty(kIndentProperty);
}

void QtTextControl::SetSelIndent(std::int32_t twips) {
    changeBlocks([twips](QTextBlockFormat& format) {
        format.setProperty(kIndentProperty, std::max(twips, 0));
        placeMargins(format);
    });
}

std::int32_t QtTextControl::SelHangingIndent() const {
    return firstSelectedBlock().blockFormat().intProperty(kHangingIndentProperty);
}

void QtTextControl::SetSelHangingIndent(std::int32_t twips) {
    changeBlocks([twips](QTextBlockFormat& format) {
        format.setProperty(kHangingIndentProperty, std::max(twips, 0));
        placeMargins(format);
    });
}

void QtTextControl::SetRightMargin(std::int32_t twips) {
    rightMargin_ = std::max(twips, 0);
    if (rightMargin_ == 0) {
        edit_->setLineWrapMode(QTextEdit::WidgetWidth);
    } else {
        edit_->setLineWrapMode(QTextEdit::FixedPixelWidth);
        edit_->setLineWrapColumnOrWidth(static_cast<int>(std::lround(pixelsOf(rightMargin_))));
    }
}

}  // namespace korvex::gui
