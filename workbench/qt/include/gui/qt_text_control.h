#pragma once
// The text control on a QTextEdit. The widget holds one paragraph separator
// per line and an object character per picture; the logic counts a line end
// as CR LF, two characters. A mirror of the text in the logic's form, kept up
// to date from the document's own change reports, makes reading cheap and
// carries the positions across.
//
// Events: a change made through this interface reports SelChange and Change
// once it is complete, as the plain model does; a change by the user reports
// them when the widget has finished it. Listeners must not throw.

#include <QImage>
#include <QObject>
#include <QTextCharFormat>
#include <QTextCursor>
#include <functional>
#include <optional>
#include <vector>

#include "workbench/text_control.h"

class QTextBlock;
class QTextDocument;
class QTextEdit;

namespace korvex::gui {

class QtTextControl : public QObject, public TextControl {
    Q_OBJECT

  public:
    // The widget stays the caller's; it must outlive this control.
    explicit QtTextControl(QTextEdit* edit);
    ~QtTextControl() override;

    QTextEdit* edit() const { return edit_; }

    const std::string& Text() const override { return mirror_; }
    void SetText(std::string_view text) override;
    std::int32_t TextLength() const override { return static_cast<std::int32_t>(mirror_.size()); }

    std::int32_t SelStart() const override;
    void SetSelStart(std::int32_t start) override;
    std::int32_t SelLength() const override;
    void SetSelLength(std::int32_t length) override;
    std::string SelText() const override;
    void SetSelText(std::string_view text) override;

    std::int32_t SelColor() const override;
    void SetSelColor(std::int32_t colour) override;
    std::string SelFontName() const override;
    void SetSelFontName(const std::string& name) override;
    int SelFontSize() const override;
    void SetSelFontSize(int points) override;
    bool SelBold() const override;
    void SetSelBold(bool bold) override;
    bool SelItalic() const override;
    void SetSelItalic(bool italic) override;
    void SetFont(const TextFont& font) override;

    int SelTabCount() const override;
    void SetSelTabCount(int count) override;
    std::int32_t SelTabs(int index) const override;
    void SetSelTabs(int index, std::int32_t twips) override;
    std::int32_t SelIndent() const override;
    void SetSelIndent(std::int32_t twips) override;
    std::int32_t SelHangingIndent() const override;
    void SetSelHangingIndent(std::int32_t twips) override;
    std::int32_t RightMargin() const override { return rightMargin_; }
    void SetRightMargin(std::int32_t twips) override;

    std::int32_t GetLineFromChar(std::int32_t position) const override;
    char CharAt(std::int32_t position) const override;

    void InsertPicture() override;
    bool SelHasPicture() const override;
    std::vector<std::int32_t> PicturePositions() const override;

    void SetDrawingSuspended(bool suspended) override;
    bool DrawingSuspended() const override { return drawingSuspended_; }

    // The widget's position of a text position, and back.
    int qtPosition(std::int32_t position) const;
    std::int32_t textPosition(int qtPosition) const;

  private:
    class Operation;
    friend class Operation;

    void connectDocument();
    void adoptDocument(QTextDocument* fresh);
    void adoptWaitingDocument();
    void onContentsChange(int position, int removed, int added);
    void onCursorMoved();
    void onTextChanged();
    void finishOperation();
    void notifySelectionIfMoved();

    // A change of the text made here: the widget's edit, and the mirror
    // told at once what it was.
    void editOwnText(std::int32_t start, std::int32_t end, const std::string& text,
                     const std::function<void()>& edit);
    void spliceMirror(std::size_t start, std::size_t end, const std::string& text);
    void updateLineStarts(std::size_t start, std::size_t end, const std::string& text);
    void forgetLinesFrom(int qtPosition);
    int textLengthInWidget() const;
    void checkMirror();
    void rebuildMirror();
    std::string logicText(const QString& raw, int from) const;
    bool isPicture(int qtPosition) const;
    int displayedLinesBefore(const QTextBlock& block) const;
    const std::vector<std::int32_t>& lineStarts() const;
    std::int32_t snapStart(std::int64_t position) const;
    std::int32_t snapEnd(std::int64_t position) const;
    void selectQt(int anchor, int position);
    // The selection: the widget's, or while drawing is suspended the bulk
    // edit's own.
    QTextCursor selection() const;
    template <typename Edit>
    void editSelection(Edit edit);

    static QTextCharFormat textFormat(const QTextCharFormat& format);
    QTextCharFormat defaultFormat() const;
    QTextCharFormat formatOfCharacter(int qtPosition) const;
    QTextCharFormat caretFormat(int qtPosition) const;
    QTextCharFormat selectionFormat() const;
    QTextCharFormat insertionFormat() const;
    void mergeCharacterFormat(const QTextCharFormat& change);
    template <typename Change>
    void changeBlocks(Change change);
    QTextBlock firstSelectedBlock() const;

    QTextEdit* edit_;
    QTextDocument* document_;
    QImage picture_;
    std::string mirror_;
    std::size_t lineBreaks_ = 0;  // CR LF pairs in mirror_
    mutable std::vector<std::int32_t> lineStarts_;
    mutable bool lineStartsStale_ = true;
    mutable std::vector<int> linePrefix_;  // displayed lines before each block
    mutable double prefixWidth_ = -1;
    std::optional<QTextCharFormat> caretFormat_;
    TextFont font_;
    int operationDepth_ = 0;
    bool pendingChange_ = false;
    bool ownEdit_ = false;  // the document reports a change made here
    QTextCursor bulk_;      // holds the one edit while drawing is suspended
    bool bulkEdit_ = false;
    // While a new text waits out of sight for the widget: the document the
    // widget still shows.
    QTextDocument* detachedFrom_ = nullptr;
    std::int32_t notifiedStart_ = 0;
    std::int32_t notifiedLength_ = 0;
    std::int32_t rightMargin_ = 0;
    bool drawingSuspended_ = false;
};

}  // namespace korvex::gui
