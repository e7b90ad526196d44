#include "workbench/rtf_document.h"

#include "base/text.h"

namespace korvex {

std::string rtfOfPlainText(std::string_view text) {
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil;}}\r\n";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            rtf += "\\par\r\n";
            ++i;
        } else if (c == '\\' || c == '{' || c == '}') {
            rtf += '\\';
            rtf += c;
        } else if (c == '\t') {
            rtf += "\\tab ";
        } else if (byte >= 0x80 || byte < 0x20) {
            rtf += "\\'";
            appendHex2(rtf, byte);
        } else {
            rtf += c;
        }
    }
    rtf += "}\r\n";
    return rtf;
}

}  // namespace korvex
