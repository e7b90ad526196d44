#include "gui/qt_text_control.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextLayout>
#include <QUrl>
#include <algorithm>
#include <functional>

#include "gui/bookmark_picture.h"
#include "gui/qt_text.h"
#include "gui/source_text_layout.h"
#include "qt_text_operation.h"
#include "qt_text_properties.h"
#include "workbench/text_scan.h"

namespace korvex::gui {

QtTextControl::QtTextControl(QTextEdit* edit)
    : edit_(edit), document_(edit->document()), picture_(bookmarkFlag()) {
    document_->setDocumentLayout(new SourceTextLayout(document_));
    document_->addResource(QTextDocument::ImageResource, QUrl(kPictureName), picture_);
    // Windows-1252 has no right-to-left letters: said once here, the layout
    // need not read every line for its direction after each keystroke.
    QTextOption option = document_->defaultTextOption();
    option.setTextDirection(Qt::LeftToRight);
    document_->setDefaultTextOption(option);
    SetFont(font_);
    rebuildMirror();
    notifiedStart_ = SelStart();
    notifiedLength_ = SelLength();
    connectDocument();
    connect(edit_, &QTextEdit::cursorPositionChanged, this, &QtTextControl::onCursorMoved);
    connect(edit_, &QTextEdit::selectionChanged, this, &QtTextControl::onCursorMoved);
    connect(edit_, &QTextEdit::textChanged, this, &QtTextControl::onTextChanged);
}

QtTextControl::~QtTextControl() = default;

QTextCursor QtTextControl::selection() const {
    return bulkEdit_ ? bulk_ : edit_->textCursor();
}

template <typename Edit>
void QtTextControl::editSelection(Edit edit) {
    if (bulkEdit_) {
        edit(bulk_);
        return;
    }
    QTextCursor cursor = edit_->textCursor();
    edit(cursor);
    edit_->setTextCursor(cursor);
}

void QtTextControl::connectDocument() {
    connect(document_, &QTextDocument::contentsChange, this, &QtTextControl::onContentsChange);
}

// The widget shows `fresh` from now on; a document of ours that it showed
// before goes.
void QtTextControl::adoptDocument(QTextDocument* fresh) {
    QTextDocument* old = document_;
    // Ours hang on the widget, to live as long as it shows them; its own
    // first document is the widget's to delete.
    const bool ours = old->parent() == edit_;
    disconnect(old, nullptr, this, nullptr);
    document_ = fresh;
    document_->setUndoRedoEnabled(true);
    edit_->setDocument(document_);
    connectDocument();
    linePrefix_.clear();
    if (ours) delete old;
}

void QtTextControl::adoptWaitingDocument() {
    if (detachedFrom_ == nullptr) return;
    QTextDocument* filled = document_;
    document_ = detachedFrom_;
    detachedFrom_ = nullptr;
    adoptDocument(filled);
}

void QtTextControl::SetText(std::string_view text) {
    Operation operation(*this);
    caretFormat_.reset();
    const std::string lines = normaliseLineEnds(text);
    QString qtLines = fromCp1252(lines);
    qtLines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    // A new text goes into a new document, filled apart from the widget: the
    // widget then lays out only what it shows and the rest bit by bit,
    // instead of all of it at once, and the load is no step to undo.
    auto* fresh = new QTextDocument(edit_);
    fresh->setDocumentLayout(new SourceTextLayout(fresh));
    fresh->setUndoRedoEnabled(false);
    fresh->setDefaultFont(document_->defaultFont());
    fresh->setDefaultTextOption(document_->defaultTextOption());
    fresh->setDocumentMargin(document_->documentMargin());
    fresh->addResource(QTextDocument::ImageResource, QUrl(kPictureName), picture_);
    QTextCursor(fresh).insertText(qtLines, defaultFormat());
    const std::int32_t oldLength = TextLength();
    if (bulkEdit_) {
        // Out of sight it stays apart until drawing resumes, so that the
        // colouring that follows costs no layout either.
        bulk_.endEditBlock();
        detachedFrom_ = document_;
        document_ = fresh;
        bulk_ = QTextCursor(document_);
        bulk_.beginEditBlock();
    } else {
        adoptDocument(fresh);
    }
    forgetLinesFrom(0);
    linePrefix_.clear();
    spliceMirror(0, static_cast<std::size_t>(oldLength), lines);
    checkMirror();
    selectQt(0, 0);
}

std::int32_t QtTextControl::SelStart() const {
    return textPosition(selection().selectionStart());
}

std::int32_t QtTextControl::SelLength() const {
    const QTextCursor cursor = selection();
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
    const std::string lines = normaliseLineEnds(text);
    QString qtLines = fromCp1252(lines);
    qtLines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    const QTextCharFormat format = insertionFormat();
    caretFormat_.reset();
    const std::int32_t start = SelStart();
    editSelection([&](QTextCursor& cursor) {
        editOwnText(start, start + SelLength(), lines, [&] { cursor.insertText(qtLines, format); });
    });
}

std::int32_t QtTextControl::GetLineFromChar(std::int32_t position) const {
    if (detachedFrom_ != nullptr) {
        // Lines are counted as laid out, and only the widget lays out: it
        // takes the waiting text now, and the bulk edit goes on there.
        auto& self = const_cast<QtTextControl&>(*this);
        const QTextCursor kept = bulk_;
        self.bulk_.endEditBlock();
        self.adoptWaitingDocument();
        self.bulk_ = QTextCursor(document_);
        self.bulk_.setPosition(kept.anchor());
        self.bulk_.setPosition(kept.position(), QTextCursor::KeepAnchor);
        self.bulk_.beginEditBlock();
    }
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
    const std::int32_t start = SelStart();
    editSelection([&](QTextCursor& cursor) {
        editOwnText(start, start + SelLength(), std::string(1, kPictureCharacter),
                    [&] { cursor.insertImage(image); });
    });
}

bool QtTextControl::SelHasPicture() const {
    const QTextCursor cursor = selection();
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

// Out of sight, all changes go into one edit of the document, and the
// selection moves on a cursor of its own: the widget lays the text out once
// at the end instead of after every step, and places its caret once.
void QtTextControl::SetDrawingSuspended(bool suspended) {
    if (suspended && !bulkEdit_) {
        bulk_ = edit_->textCursor();
        bulk_.beginEditBlock();
        bulkEdit_ = true;
    } else if (!suspended && bulkEdit_) {
        bulkEdit_ = false;
        ownEdit_ = true;
        bulk_.endEditBlock();
        ownEdit_ = false;
        adoptWaitingDocument();
        edit_->setTextCursor(bulk_);
        if (caretFormat_ && !bulk_.hasSelection()) edit_->setCurrentCharFormat(*caretFormat_);
        bulk_ = QTextCursor();
    }
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
    forgetLinesFrom(position);
    if (ownEdit_ || bulkEdit_) return;  // the mirror knows already
    // A change by the user: the mirror takes it over.
    const int length = textLengthInWidget();
    const int from = std::min(position, length);
    const int to = std::min(position + added, length);
    const auto start = std::min(static_cast<std::size_t>(textPosition(from)), mirror_.size());
    std::size_t end = start;
    for (int count = 0; count < removed && end < mirror_.size(); ++count)
        end += mirror_[end] == '\r' && end + 1 < mirror_.size() && mirror_[end + 1] == '\n' ? 2 : 1;
    QTextCursor stretch(document_);
    stretch.setPosition(from);
    stretch.setPosition(to, QTextCursor::KeepAnchor);
    spliceMirror(start, end, logicText(stretch.selectedText(), from));
    checkMirror();
}

// The widget counts the final paragraph separator, which the text lacks.
int QtTextControl::textLengthInWidget() const {
    return std::max(document_->characterCount() - 1, 0);
}

// Should the widget ever change other than it reported, the mirror is read
// afresh.
void QtTextControl::checkMirror() {
    if (mirror_.size() - lineBreaks_ == static_cast<std::size_t>(textLengthInWidget())) return;
    rebuildMirror();
    pendingChange_ = true;
}

void QtTextControl::editOwnText(std::int32_t start, std::int32_t end, const std::string& text,
                                const std::function<void()>& edit) {
    forgetLinesFrom(qtPosition(start));
    ownEdit_ = true;
    edit();
    ownEdit_ = false;
    spliceMirror(static_cast<std::size_t>(start), static_cast<std::size_t>(end), text);
    checkMirror();
}

void QtTextControl::spliceMirror(std::size_t start, std::size_t end, const std::string& text) {
    if (mirror_.compare(start, end - start, text) == 0) return;
    const auto breaksIn = [](auto from, auto to) {
        return static_cast<std::size_t>(std::count(from, to, '\n'));
    };
    lineBreaks_ = lineBreaks_ -
                  breaksIn(mirror_.begin() + static_cast<std::ptrdiff_t>(start),
                           mirror_.begin() + static_cast<std::ptrdiff_t>(end)) +
                  breaksIn(text.begin(), text.end());
    mirror_.replace(start, end - start, text);
    updateLineStarts(start, end, text);
    pendingChange_ = true;
}

// A keystroke moves the later line starts instead of counting them anew.
void QtTextControl::updateLineStarts(std::size_t start, std::size_t end, const std::string& text) {
    if (lineStartsStale_) return;
    const auto at = [](std::size_t position) { return static_cast<std::int32_t>(position); };
    const auto first = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), at(start));
    const auto last = std::upper_bound(first, lineStarts_.end(), at(end));
    const auto later = lineStarts_.erase(first, last);
    const std::int32_t shift = at(text.size()) - at(end - start);
    for (auto line = later; line != lineStarts_.end(); ++line) *line += shift;
    std::vector<std::int32_t> added;
    for (std::size_t i = text.find('\n'); i != std::string::npos; i = text.find('\n', i + 1))
        added.push_back(at(start + i + 1));
    lineStarts_.insert(later, added.begin(), added.end());
}

void QtTextControl::forgetLinesFrom(int qtPosition) {
    const auto block =
        static_cast<std::size_t>(std::max(document_->findBlock(qtPosition).blockNumber(), 0));
    if (linePrefix_.size() > block + 1) linePrefix_.resize(block + 1);
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
    if (bulkEdit_) {
        bulk_.setPosition(anchor);
        bulk_.setPosition(position, QTextCursor::KeepAnchor);
        return;
    }
    QTextCursor cursor(document_);
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    edit_->setTextCursor(cursor);
}

}  // namespace korvex::gui
