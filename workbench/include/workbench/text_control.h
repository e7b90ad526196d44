#pragma once
// The rich text control of a source window, as the editor, the colouring and
// the find commands use it. Written once against this interface, the rules
// run on the plain model in tests and on the real widget in the workbench.
//
// Text is Windows-1252 with CR LF line ends. A position is a 0-based
// character offset in that text: a line end counts two, a picture one. The
// control keeps its lines whole: a line end written as CR, LF or CR LF
// becomes CR LF, a selection that starts between the CR and the LF starts
// before the CR, and one that ends there ends behind the LF.
// Lengths in the paragraph format are twips.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace korvex {

// Options of Find, as the control takes them: with neither, case is ignored.
inline constexpr int kFindWholeWord = 2;
inline constexpr int kFindMatchCase = 4;

// The two file formats of LoadFile and SaveFile.
enum class TextFileType { Rtf = 0, Plain = 1 };

// What a picture reads as in Text and SelText.
inline constexpr char kPictureCharacter = ' ';

// Black, the colour of all text that is not a comment.
inline constexpr std::int32_t kBlack = 0;

// The control's own font: what SetText and LoadFile write in.
struct TextFont {
    std::string name = "MS Sans Serif";
    int size = 10;  // points
    bool bold = false;
    bool italic = false;
    bool operator==(const TextFont&) const = default;
};

// The control's two events. Both arrive while the operation that caused them
// is still on the stack, so a handler that edits by code re-enters them at
// once; the editor's flags exist for that. When the text changes, SelChange
// comes first if the selection moved, then Change: so a text emptied by a
// key reaches the selection handler before the change handler moves the
// selection about.
class TextControlListener {
  public:
    virtual ~TextControlListener();
    // The characters changed (not for a change of colour or font).
    virtual void Change() = 0;
    // SelStart or SelLength changed.
    virtual void SelChange() = 0;
};

class TextControl {
  public:
    virtual ~TextControl();

    void SetListener(TextControlListener* listener) { listener_ = listener; }

    // The whole plain text. Writing it puts all of it in the control's font,
    // black, the paragraphs in the first one's format, the caret at 0.
    virtual const std::string& Text() const = 0;
    virtual void SetText(std::string_view text) = 0;
    virtual std::int32_t TextLength() const = 0;

    // The selection. SelStart is its lower end; writing it empties the
    // selection. Values out of range are clamped to the text.
    virtual std::int32_t SelStart() const = 0;
    virtual void SetSelStart(std::int32_t start) = 0;
    virtual std::int32_t SelLength() const = 0;
    virtual void SetSelLength(std::int32_t length) = 0;
    // Writing replaces the selection and leaves the caret behind the new
    // text, which takes the format that the caret shows.
    virtual std::string SelText() const = 0;
    virtual void SetSelText(std::string_view text) = 0;

    // Character format: of the selection's first character, or with an empty
    // selection the format at the caret (the character before it, or at a
    // line start the line's first character). Writing with an empty
    // selection sets what the next text typed or written at the caret gets.
    virtual std::int32_t SelColor() const = 0;
    virtual void SetSelColor(std::int32_t colour) = 0;
    virtual std::string SelFontName() const = 0;
    virtual void SetSelFontName(const std::string& name) = 0;
    virtual int SelFontSize() const = 0;
    virtual void SetSelFontSize(int points) = 0;  // sizes below 1 are ignored
    virtual bool SelBold() const = 0;
    virtual void SetSelBold(bool bold) = 0;
    virtual bool SelItalic() const = 0;
    virtual void SetSelItalic(bool italic) = 0;
    virtual void SetFont(const TextFont& font) = 0;

    // Paragraph format of the lines the selection touches (read from the
    // first). Tab stops past SelTabCount are ignored and read as 0;
    // negative lengths count as 0.
    virtual int SelTabCount() const = 0;
    virtual void SetSelTabCount(int count) = 0;
    virtual std::int32_t SelTabs(int index) const = 0;
    virtual void SetSelTabs(int index, std::int32_t twips) = 0;
    virtual std::int32_t SelIndent() const = 0;
    virtual void SetSelIndent(std::int32_t twips) = 0;
    virtual std::int32_t SelHangingIndent() const = 0;
    virtual void SetSelHangingIndent(std::int32_t twips) = 0;
    // Where lines wrap; 0 wraps at the window.
    virtual std::int32_t RightMargin() const = 0;
    virtual void SetRightMargin(std::int32_t twips) = 0;

    // The displayed line holding a position, from 0; wrapped lines count.
    virtual std::int32_t GetLineFromChar(std::int32_t position) const = 0;

    // The character at a position, 0 outside the text.
    virtual char CharAt(std::int32_t position) const = 0;

    // Pictures (the bookmarks): one replaces the selection, the caret
    // behind it. A picture keeps the format that the caret shows.
    virtual void InsertPicture() = 0;
    virtual bool SelHasPicture() const = 0;
    virtual std::vector<std::int32_t> PicturePositions() const = 0;

    // Whole-document work happens out of sight, without a repaint per step.
    virtual void SetDrawingSuspended(bool suspended) = 0;
    virtual bool DrawingSuspended() const = 0;

    // Moves the caret until a character of `chars` stands next to it in the
    // direction of travel (with `negate`, one that is not in it), or to the
    // end of the text; the selection becomes empty. Forward starts at the
    // selection's end, backward at its start.
    void UpTo(std::string_view chars, bool forward, bool negate);
    // Extends the selection over the characters of `chars` (with `negate`,
    // over those not in it) forward from its end or backward from its start.
    void Span(std::string_view chars, bool forward, bool negate);
    // Searches from `start` (negative counts as 0) up to `end` (-1: the end
    // of the text); the hit lies wholly before `end`. A hit is selected and
    // its position returned, else -1 and the selection stays.
    std::int32_t Find(std::string_view term, std::int32_t start, std::int32_t end = -1,
                      int options = 0);

    // The text as it is saved and assembled: without its pictures.
    std::string TextWithoutPictures() const;

    // Type Plain reads the bytes as text; type Rtf keeps the text of an RTF
    // file. Failures are RuntimeFailures naming the file. Saving writes
    // the text without its pictures, the file replaced whole.
    void LoadFile(const std::string& path, TextFileType type);
    void SaveFile(const std::string& path, TextFileType type) const;

    // Selects `length` characters from `start`.
    void Select(std::int32_t start, std::int32_t length) {
        SetSelStart(start);
        SetSelLength(length);
    }

  protected:
    void NotifyChange() {
        if (listener_ != nullptr) listener_->Change();
    }
    void NotifySelChange() {
        if (listener_ != nullptr) listener_->SelChange();
    }

  private:
    TextControlListener* listener_ = nullptr;
};

}  // namespace korvex
