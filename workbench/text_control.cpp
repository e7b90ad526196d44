#include "workbench/text_control.h"

#include <algorithm>

#include "base/files.h"
#include "workbench/rtf_document.h"
#include "workbench/rtf_text.h"
#include "workbench/text_scan.h"

namespace korvex {

TextControlListener::~TextControlListener() = default;
TextControl::~TextControl() = default;

namespace {

bool inSet(char c, std::string_view chars) {
    return chars.find(c) != std::string_view::npos;
}

}  // namespace

void TextControl::UpTo(std::string_view chars, bool forward, bool negate) {
    const std::int32_t length = TextLength();
    std::int32_t at;
    if (forward) {
        at = SelStart() + SelLength();
        while (at < length && inSet(CharAt(at), chars) == negate) ++at;
    } else {
        at = SelStart();
        while (at > 0 && inSet(CharAt(at - 1), chars) == negate) --at;
    }
    SetSelStart(at);
}

void TextControl::Span(std::string_view chars, bool forward, bool negate) {
    const std::int32_t start = SelStart();
    const std::int32_t end = start + SelLength();
    if (forward) {
        const std::int32_t length = TextLength();
        std::int32_t at = end;
        while (at < length && inSet(CharAt(at), chars) != negate) ++at;
        SetSelLength(at - start);
    } else {
        std::int32_t at = start;
        while (at > 0 && inSet(CharAt(at - 1), chars) != negate) --at;
        Select(at, end - at);
    }
}

std::int32_t TextControl::Find(std::string_view term, std::int32_t start, std::int32_t end,
                               int options) {
    const std::int32_t hit = findInText(Text(), term, start, end, options);
    if (hit >= 0) Select(hit, static_cast<std::int32_t>(term.size()));
    return hit;
}

void TextControl::LoadFile(const std::string& path, TextFileType type) {
    const std::string bytes = readWholeFile(path);
    SetText(type == TextFileType::Rtf ? plainTextOfRtf(bytes) : bytes);
}

std::string TextControl::TextWithoutPictures() const {
    std::string text = Text();
    std::vector<std::int32_t> pictures = PicturePositions();
    std::sort(pictures.rbegin(), pictures.rend());
    for (const std::int32_t at : pictures)
        if (at >= 0 && static_cast<std::size_t>(at) < text.size())
            text.erase(static_cast<std::size_t>(at), 1);
    return text;
}

void TextControl::SaveFile(const std::string& path, TextFileType type) const {
    const std::string text = TextWithoutPictures();
    replaceFileAtomically(path, type == TextFileType::Rtf ? rtfOfPlainText(text) : text);
}

}  // namespace korvex
