#pragma once
// The text control as a plain model: the text, a colour and a font for each
// character, the paragraph format of each line and pictures as marked
// positions. No wrapping: a displayed line is a line of the text. The editor's
// rules run on it without a screen.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "workbench/text_control.h"

namespace korvex {

class PlainTextControl : public TextControl {
  public:
    struct CharFormat {
        std::int32_t colour = kBlack;
        TextFont font;
        bool operator==(const CharFormat&) const = default;
    };

    const std::string& Text() const override { return text_; }
    void SetText(std::string_view text) override;
    std::int32_t TextLength() const override { return static_cast<std::int32_t>(text_.size()); }

    std::int32_t SelStart() const override { return selStart_; }
    void SetSelStart(std::int32_t start) override;
    std::int32_t SelLength() const override { return selLength_; }
    void SetSelLength(std::int32_t length) override;
    std::string SelText() const override;
    void SetSelText(std::string_view text) override;

    std::int32_t SelColor() const override { return selectionFormat().colour; }
    void SetSelColor(std::int32_t colour) override;
    std::string SelFontName() const override { return selectionFormat().font.name; }
    void SetSelFontName(const std::string& name) override;
    int SelFontSize() const override { return selectionFormat().font.size; }
    void SetSelFontSize(int points) override;
    bool SelBold() const override { return selectionFormat().font.bold; }
    void SetSelBold(bool bold) override;
    bool SelItalic() const override { return selectionFormat().font.italic; }
    void SetSelItalic(bool italic) override;
    void SetFont(const TextFont& font) override { font_ = font; }

    int SelTabCount() const override;
    void SetSelTabCount(int count) override;
    std::int32_t SelTabs(int index) const override;
    void SetSelTabs(int index, std::int32_t twips) override;
    std::int32_t SelIndent() const override { return firstParagraph().indent; }
    void SetSelIndent(std::int32_t twips) override;
    std::int32_t SelHangingIndent() const override { return firstParagraph().hangingIndent; }
    void SetSelHangingIndent(std::int32_t twips) override;
    std::int32_t RightMargin() const override { return rightMargin_; }
    void SetRightMargin(std::int32_t twips) override;

    std::int32_t GetLineFromChar(std::int32_t position) const override;
    char CharAt(std::int32_t position) const override;

    void InsertPicture() override;
    bool SelHasPicture() const override;
    std::vector<std::int32_t> PicturePositions() const override;

    void SetDrawingSuspended(bool suspended) override { drawingSuspended_ = suspended; }
    bool DrawingSuspended() const override { return drawingSuspended_; }

    // For tests: the format of one character (the default outside the text).
    CharFormat FormatAt(std::int32_t position) const;

  private:
    struct ParagraphFormat {
        std::vector<std::int32_t> tabs;
        std::int32_t indent = 0;
        std::int32_t hangingIndent = 0;
    };

    CharFormat defaultFormat() const { return CharFormat{kBlack, font_}; }
    std::uint32_t intern(const CharFormat& format);
    // The format that text written at `position` takes.
    CharFormat caretFormat(std::int32_t position) const;
    CharFormat selectionFormat() const;
    template <typename Change>
    void changeCharacterFormat(Change change);
    template <typename Change>
    void changeParagraphFormat(Change change);
    const ParagraphFormat& firstParagraph() const;
    std::int32_t lineOf(std::int32_t position) const;
    void replace(std::int32_t start, std::int32_t end, const std::string& text, bool picture);
    void select(std::int32_t start, std::int32_t end);
    void notifySelectionIfMoved();

    std::string text_;
    std::vector<std::uint32_t> formatOf_;  // one for each character of text_
    std::vector<bool> picture_;            // one for each character of text_
    std::vector<CharFormat> formats_;
    std::vector<ParagraphFormat> paragraphs_{ParagraphFormat{}};  // one for each line
    std::optional<CharFormat> caretFormat_;  // set at an empty selection, until it moves
    TextFont font_;
    std::int32_t selStart_ = 0;
    std::int32_t selLength_ = 0;
    std::int32_t notifiedStart_ = 0;
    std::int32_t notifiedLength_ = 0;
    std::int32_t rightMargin_ = 0;
    bool drawingSuspended_ = false;
};

}  // namespace korvex
