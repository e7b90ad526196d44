#include "workbench/plain_text_control.h"

#include <algorithm>

#include "workbench/text_scan.h"

namespace korvex {
namespace {

// The most tab stops a paragraph holds.
constexpr int kMaxTabs = 32;

std::int32_t notNegative(std::int32_t value) {
    return value < 0 ? 0 : value;
}

}  // namespace

void PlainTextControl::SetText(std::string_view text) {
    text_ = normaliseLineEnds(text);
    formats_.clear();
    formatOf_.assign(text_.size(), intern(defaultFormat()));
    picture_.assign(text_.size(), false);
    const ParagraphFormat first = paragraphs_.front();
    paragraphs_.assign(static_cast<std::size_t>(lineOf(TextLength())) + 1, first);
    selStart_ = 0;
    selLength_ = 0;
    caretFormat_.reset();
    notifySelectionIfMoved();
    NotifyChange();
}

void PlainTextControl::SetSelStart(std::int32_t start) {
    std::int64_t at = std::clamp<std::int64_t>(start, 0, TextLength());
    if (at > 0 && at < TextLength() && text_[at - 1] == '\r' && text_[at] == '\n') --at;
    select(static_cast<std::int32_t>(at), static_cast<std::int32_t>(at));
}

void PlainTextControl::SetSelLength(std::int32_t length) {
    std::int64_t end = std::clamp<std::int64_t>(std::int64_t{selStart_} + notNegative(length),
                                                selStart_, TextLength());
    if (end > 0 && end < TextLength() && text_[end - 1] == '\r' && text_[end] == '\n') ++end;
    select(selStart_, static_cast<std::int32_t>(end));
}

std::string PlainTextControl::SelText() const {
    return text_.substr(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_));
}

void PlainTextControl::SetSelText(std::string_view text) {
    replace(selStart_, selStart_ + selLength_, normaliseLineEnds(text), false);
}

void PlainTextControl::SetSelColor(std::int32_t colour) {
    changeCharacterFormat([colour](CharFormat& format) { format.colour = colour; });
}

void PlainTextControl::SetSelFontName(const std::string& name) {
    changeCharacterFormat([&name](CharFormat& format) { format.font.name = name; });
}

void PlainTextControl::SetSelFontSize(int points) {
    if (points < 1) return;
    changeCharacterFormat([points](CharFormat& format) { format.font.size = points; });
}

void PlainTextControl::SetSelBold(bool bold) {
    changeCharacterFormat([bold](CharFormat& format) { format.font.bold = bold; });
}

void PlainTextControl::SetSelItalic(bool italic) {
    changeCharacterFormat([italic](CharFormat& format) { format.font.italic = italic; });
}

int PlainTextControl::SelTabCount() const {
    return static_cast<int>(firstParagraph().tabs.size());
}

void PlainTextControl::SetSelTabCount(int count) {
    const auto size = static_cast<std::size_t>(std::clamp(count, 0, kMaxTabs));
    changeParagraphFormat([size](ParagraphFormat& format) { format.tabs.resize(size, 0); });
}

std::int32_t PlainTextControl::SelTabs(int index) const {
    const std::vector<std::int32_t>& tabs = firstParagraph().tabs;
    if (index < 0 || index >= static_cast<int>(tabs.size())) return 0;
    return tabs[static_cast<std::size_t>(index)];
}

void PlainTextControl::SetSelTabs(int index, std::int32_t twips) {
    changeParagraphFormat([index, twips](ParagraphFormat& format) {
        if (index >= 0 && index < static_cast<int>(format.tabs.size()))
            format.tabs[static_cast<std::size_t>(index)] = notNegative(twips);
    });
}

void PlainTextControl::SetSelIndent(std::int32_t twips) {
    changeParagraphFormat([twips](ParagraphFormat& format) { format.indent = notNegative(twips); });
}

void PlainTextControl::SetSelHangingIndent(std::int32_t twips) {
    changeParagraphFormat(
        [twips](ParagraphFormat& format) { format.hangingIndent = notNegative(twips); });
}

void PlainTextControl::SetRightMargin(std::int32_t twips) {
    rightMargin_ = notNegative(twips);
}

std::int32_t PlainTextControl::GetLineFromChar(std::int32_t position) const {
    return lineOf(std::clamp(position, 0, TextLength()));
}

char PlainTextControl::CharAt(std::int32_t position) const {
    if (position < 0 || position >= TextLength()) return 0;
    return text_[static_cast<std::size_t>(position)];
}

void PlainTextControl::InsertPicture() {
    replace(selStart_, selStart_ + selLength_, std::string(1, kPictureCharacter), true);
}

bool PlainTextControl::SelHasPicture() const {
    const auto from = picture_.begin() + selStart_;
    return std::find(from, from + selLength_, true) != from + selLength_;
}

std::vector<std::int32_t> PlainTextControl::PicturePositions() const {
    std::vector<std::int32_t> positions;
    for (std::size_t at = 0; at < picture_.size(); ++at)
        if (picture_[at]) positions.push_back(static_cast<std::int32_t>(at));
    return positions;
}

PlainTextControl::CharFormat PlainTextControl::FormatAt(std::int32_t position) const {
    if (position < 0 || position >= TextLength()) return defaultFormat();
    return formats_[formatOf_[static_cast<std::size_t>(position)]];
}

std::uint32_t PlainTextControl::intern(const CharFormat& format) {
    const auto found = std::find(formats_.begin(), formats_.end(), format);
    if (found != formats_.end()) return static_cast<std::uint32_t>(found - formats_.begin());
    formats_.push_back(format);
    return static_cast<std::uint32_t>(formats_.size() - 1);
}

PlainTextControl::CharFormat PlainTextControl::caretFormat(std::int32_t position) const {
    const bool lineStart = position == 0 || text_[static_cast<std::size_t>(position - 1)] == '\n';
    if (lineStart && position < TextLength() && text_[static_cast<std::size_t>(position)] != '\r')
        return FormatAt(position);
    if (position > 0) return FormatAt(position - 1);
    return defaultFormat();
}

PlainTextControl::CharFormat PlainTextControl::selectionFormat() const {
    if (selLength_ > 0) return FormatAt(selStart_);
    return caretFormat_ ? *caretFormat_ : caretFormat(selStart_);
}

template <typename Change>
void PlainTextControl::changeCharacterFormat(Change change) {
    if (selLength_ == 0) {
        CharFormat format = selectionFormat();
        change(format);
        caretFormat_ = format;
        return;
    }
    for (std::int32_t at = selStart_; at < selStart_ + selLength_; ++at) {
        std::uint32_t& index = formatOf_[static_cast<std::size_t>(at)];
        CharFormat format = formats_[index];
        change(format);
        index = intern(format);
    }
}

template <typename Change>
void PlainTextControl::changeParagraphFormat(Change change) {
    const std::int32_t last = lineOf(selStart_ + selLength_);
    for (std::int32_t line = lineOf(selStart_); line <= last; ++line)
        change(paragraphs_[static_cast<std::size_t>(line)]);
}

const PlainTextControl::ParagraphFormat& PlainTextControl::firstParagraph() const {
    return paragraphs_[static_cast<std::size_t>(lineOf(selStart_))];
}

std::int32_t PlainTextControl::lineOf(std::int32_t position) const {
    return static_cast<std::int32_t>(std::count(text_.begin(), text_.begin() + position, '\n'));
}

void PlainTextControl::replace(std::int32_t start, std::int32_t end, const std::string& text,
                               bool picture) {
    if (start == end && text.empty()) return;
    const CharFormat format = start == end && caretFormat_ ? *caretFormat_ : caretFormat(start);
    const std::uint32_t formatIndex = intern(format);

    // The lines the old stretch spans become one, in the first one's format,
    // and split again at the new text's line ends.
    const std::int32_t firstLine = lineOf(start);
    const auto firstParagraph = paragraphs_.begin() + firstLine;
    paragraphs_.erase(firstParagraph + 1, firstParagraph + 1 + (lineOf(end) - firstLine));
    const auto newLines = std::count(text.begin(), text.end(), '\n');
    const ParagraphFormat kept = paragraphs_[static_cast<std::size_t>(firstLine)];
    paragraphs_.insert(paragraphs_.begin() + firstLine + 1, static_cast<std::size_t>(newLines),
                       kept);

    const auto from = static_cast<std::size_t>(start);
    const auto count = static_cast<std::size_t>(end - start);
    text_.replace(from, count, text);
    formatOf_.erase(formatOf_.begin() + start, formatOf_.begin() + end);
    formatOf_.insert(formatOf_.begin() + start, text.size(), formatIndex);
    picture_.erase(picture_.begin() + start, picture_.begin() + end);
    picture_.insert(picture_.begin() + start, text.size(), picture);

    selStart_ = start + static_cast<std::int32_t>(text.size());
    selLength_ = 0;
    caretFormat_.reset();
    notifySelectionIfMoved();
    NotifyChange();
}

void PlainTextControl::select(std::int32_t start, std::int32_t end) {
    selStart_ = start;
    selLength_ = end - start;
    caretFormat_.reset();
    notifySelectionIfMoved();
}

void PlainTextControl::notifySelectionIfMoved() {
    if (selStart_ == notifiedStart_ && selLength_ == notifiedLength_) return;
    notifiedStart_ = selStart_;
    notifiedLength_ = selLength_;
    NotifySelChange();
}

}  // namespace korvex
