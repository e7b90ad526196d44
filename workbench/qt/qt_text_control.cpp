#include "gui/qt_text_control.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextLayout>
#include <QUrl>
#include <algorithm>

#include "gui/bookmark_picture.h"
#include "gui/qt_text.h"
#include "qt_text_operation.h"
#include "qt_text_properties.h"
#include "workbench/text_scan.h"

namespace korvex::gui {

QtTextControl::QtTextControl(QTextEdit* edit)
    : edit_(edit), document_(edit->document()), picture_(bookmarkFlag()) {
    document_->addResource(QTextDocument::ImageResource, QUrl(kPictureName), picture_);
    SetFont(font_);
    rebuildMirror();
    notifiedStart_ = SelStart();
    notifiedLength_ = SelLength();
    connect(document_, &QTextDocument::contentsChange, this, &QtTextControl::onContentsChange);
    connect(edit_, &QTextEdit::cursorPositionChanged, this, &QtTextControl::onCursorMoved);
    connect(edit_, &QTextEdit::selectionChanged, this, &QtTextControl::onCursorMoved);
    connect(edit_, &QTextEdit::textChanged, this, &QtTextControl::onTextChanged);
}

QtTextControl::~QtTextControl() = default;

void QtTextControl::SetText(std::string_view text) {
    Operation operation(*this);
    caretFormat_.reset();
    QString lines = fromCp1252(normaliseLineEnds(text));
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    const QTextCharFormat format = defaultFormat();
    QTextCursor cursor(document_);
    cursor.select(QTextCursor::Document);
    cursor.insertText(lines, format);
    selectQt(0, 0);
}

std::int32_t QtTextControl::SelStart() const {
    return textPosition(edit_->textCursor().selectionStart());
}

std::int32_t QtTextControl::SelLength() const {
    const QTextCursor cursor = edit_->textCursor();
    return textPosition(cursor.selectionEnd()) - textPosition(cursor.selectionStart());
}

void QtTextControl::SetSelStart(std::int32_t start) {
    Operation operation(*this);
    caretFormat_.reset();
    const int at = qtPosition(snapStart(start));
    selectQt(at, at);
}

void QtTextControl::SetSelLength(std::int32_t length) {
    Operation operation(*this);
    caretFormat_.reset();
    const std::int32_t start = SelStart();
    const std::int32_t end = snapEnd(std::int64_t{start} + std::max(length, 0));
    selectQt(qtPosition(start), qtPosition(end));
}

std::string QtTextControl::SelText() const {
    return mirror_.substr(static_cast<std::size_t>(SelStart()),
                          static_cast<std::size_t>(SelLength()));
}

void QtTextControl::SetSelText(std::string_view text) {
    Operation operation(*this);
    QString lines = fromCp1252(normaliseLineEnds(text));
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    const QTextCharFormat format = insertionFormat();
    caretFormat_.reset();
    QTextCursor cursor = edit_->textCursor();
    cursor.insertText(lines, format);
    edit_->setTextCursor(cursor);
}

std::int32_t QtTextControl::GetLineFromChar(std::int32_t position) const {
    const int at = qtPosition(snapStart(position));
    const QTextBlock block = document_->findBlock(at);
    if (!block.isValid()) return 0;
    int line = displayedLinesBefore(block);
    const QTextLayout* layout = block.layout();
    if (layout != nullptr && layout->lineCount() > 0) {
        const QTextLine inBlock = layout->lineForTextPosition(at - block.position());
        if (inBlock.isValid()) line += inBlock.lineNumber();
    }
    return line;
}

// Lines of the blocks before `block` as laid out, counted once and kept until
// a change before them or a new width.
int QtTextControl::displayedLinesBefore(const QTextBlock& block) const {
    if (document_->textWidth() != prefixWidth_) {
        linePrefix_.clear();
        prefixWidth_ = document_->textWidth();
    }
    if (linePrefix_.empty()) linePrefix_.push_back(0);
    QAbstractTextDocumentLayout* documentLayout = document_->documentLayout();
    const auto wanted = static_cast<std::size_t>(block.blockNumber());
    while (linePrefix_.size() <= wanted) {
        const QTextBlock counted =
            document_->findBlockByNumber(static_cast<int>(linePrefix_.size()) - 1);
        documentLayout->blockBoundingRect(counted);  // lays it out
        const QTextLayout* layout = counted.layout();
        const int lines = layout != nullptr ? layout->lineCount() : 0;
        linePrefix_.push_back(linePrefix_.back() + std::max(lines, 1));
    }
    documentLayout->blockBoundingRect(block);
    return linePrefix_[wanted];
}

char QtTextControl::CharAt(std::int32_t position) const {
    if (position < 0 || position >= TextLength()) return 0;
    return mirror_[static_cast<std::size_t>(position)];
}

void QtTextControl::InsertPicture() {
    Operation operation(*this);
    QTextImageFormat image;
    image.merge(insertionFormat());
    image.setName(kPictureName);
    caretFormat_.reset();
    if (document_->resource(QTextDocument::ImageResource, QUrl(kPictureName)).isNull())
        document_->addResource(QTextDocument::ImageResource, QUrl(kPictureName), picture_);
    QTextCursor cursor = edit_->textCursor();
    cursor.insertImage(image);
    edit_->setTextCursor(cursor);
}

bool QtTextControl::SelHasPicture() const {
    const QTextCursor cursor = edit_->textCursor();
    for (int at = cursor.selectionStart(); at < cursor.selectionEnd(); ++at)
        if (isPicture(at)) return true;
    return false;
}

std::vector<std::int32_t> QtTextControl::PicturePositions() const {
    std::vector<std::int32_t> positions;
    const QString raw = document_->toRawText();
    for (int at = 0; at < raw.size(); ++at)
        if (raw[at] == QChar::ObjectReplacementCharacter && isPicture(at))
            positions.push_back(textPosition(at));
    return positions;
}

void QtTextControl::SetDrawingSuspended(bool suspended) {
    drawingSuspended_ = suspended;
    edit_->setUpdatesEnabled(!suspended);
}

int QtTextControl::qtPosition(std::int32_t position) const {
    const std::vector<std::int32_t>& starts = lineStarts();
    const auto line = std::upper_bound(starts.begin(), starts.end(), position) - starts.begin() - 1;
    return position - static_cast<int>(line);
}

std::int32_t QtTextControl::textPosition(int qtPosition) const {
    const int at = std::clamp(qtPosition, 0, std::max(document_->characterCount() - 1, 0));
    return at + std::max(document_->findBlock(at).blockNumber(), 0);
}

void QtTextControl::onContentsChange(int position, int removed, int added) {
    const int blockNumber = std::max(document_->findBlock(position).blockNumber(), 0);
    if (linePrefix_.size() > static_cast<std::size_t>(blockNumber) + 1)
        linePrefix_.resize(static_cast<std::size_t>(blockNumber) + 1);

    // The widget counts the final paragraph separator, which the text lacks.
    const int length = std::max(document_->characterCount() - 1, 0);
    const int from = std::min(position, length);
    const int to = std::min(position + added, length);
    const auto start = std::min(static_cast<std::size_t>(textPosition(from)),
                                static_cast<std::size_t>(mirror_.size()));
    std::size_t end = start;
    std::size_t removedBreaks = 0;
    for (int count = 0; count < removed && end < mirror_.size(); ++count) {
        if (mirror_[end] == '\r' && end + 1 < mirror_.size() && mirror_[end + 1] == '\n') {
            end += 2;
            ++removedBreaks;
        } else {
            ++end;
        }
    }
    QTextCursor stretch(document_);
    stretch.setPosition(from);
    stretch.setPosition(to, QTextCursor::KeepAnchor);
    const std::string inserted = logicText(stretch.selectedText(), from);
    if (mirror_.compare(start, end - start, inserted) != 0) {
        mirror_.replace(start, end - start, inserted);
        lineBreaks_ = lineBreaks_ - removedBreaks +
                      static_cast<std::size_t>(std::count(inserted.begin(), inserted.end(), '\n'));
        lineStartsStale_ = true;
        pendingChange_ = true;
    }
    // Should the widget ever report a change other than it made it, the
    // mirror is read afresh.
    if (mirror_.size() - lineBreaks_ != static_cast<std::size_t>(length)) {
        rebuildMirror();
        pendingChange_ = true;
    }
}

void QtTextControl::onCursorMoved() {
    if (operationDepth_ > 0 || pendingChange_) return;  // reported with the change
    notifySelectionIfMoved();
}

void QtTextControl::onTextChanged() {
    if (operationDepth_ == 0 && pendingChange_) finishOperation();
}

void QtTextControl::finishOperation() {
    const bool changed = pendingChange_;
    pendingChange_ = false;
    notifySelectionIfMoved();
    if (changed) NotifyChange();
}

void QtTextControl::notifySelectionIfMoved() {
    const std::int32_t start = SelStart();
    const std::int32_t length = SelLength();
    if (start == notifiedStart_ && length == notifiedLength_) return;
    notifiedStart_ = start;
    notifiedLength_ = length;
    caretFormat_.reset();
    NotifySelChange();
}

void QtTextControl::rebuildMirror() {
    mirror_ = logicText(document_->toRawText(), 0);
    lineBreaks_ = static_cast<std::size_t>(std::count(mirror_.begin(), mirror_.end(), '\n'));
    lineStartsStale_ = true;
}

// The logic's form of widget text that begins at `from`: a paragraph
// separator is CR LF, a picture the picture character.
std::string QtTextControl::logicText(const QString& raw, int from) const {
    QString text;
    text.reserve(raw.size() + raw.size() / 16);
    for (int at = 0; at < raw.size(); ++at) {
        const QChar c = raw[at];
        if (c == QChar::ParagraphSeparator)
            text += QStringLiteral("\r\n");
        else if (c == QChar::ObjectReplacementCharacter)
            text += isPicture(from + at) ? QChar(kPictureCharacter) : QChar('?');
        else
            text += c;
    }
    return toCp1252(text);
}

bool QtTextControl::isPicture(int qtPosition) const {
    return document_->characterAt(qtPosition) == QChar::ObjectReplacementCharacter &&
           formatOfCharacter(qtPosition).isImageFormat();
}

const std::vector<std::int32_t>& QtTextControl::lineStarts() const {
    if (lineStartsStale_) {
        lineStarts_.assign(1, 0);
        for (std::size_t at = 0; at < mirror_.size(); ++at)
            if (mirror_[at] == '\n') lineStarts_.push_back(static_cast<std::int32_t>(at + 1));
        lineStartsStale_ = false;
    }
    return lineStarts_;
}

std::int32_t QtTextControl::snapStart(std::int64_t position) const {
    const auto at = static_cast<std::int32_t>(std::clamp<std::int64_t>(position, 0, TextLength()));
    if (at > 0 && at < TextLength() && mirror_[at - 1] == '\r' && mirror_[at] == '\n')
        return at - 1;
    return at;
}

std::int32_t QtTextControl::snapEnd(std::int64_t position) const {
    const auto at = static_cast<std::int32_t>(std::clamp<std::int64_t>(position, 0, TextLength()));
    if (at > 0 && at < TextLength() && mirror_[at - 1] == '\r' && mirror_[at] == '\n')
        return at + 1;
    return at;
}

void QtTextControl::selectQt(int anchor, int position) {
    QTextCursor cursor(document_);
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    edit_->setTextCursor(cursor);
}

}  // namespace korvex::gui
