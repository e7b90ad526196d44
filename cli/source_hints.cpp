#include "cli/source_hints.h"

#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {

std::string sourceTextHint(const std::string& text) {
    const bool utf16 = startsWith(text, "\xFF\xFE") || startsWith(text, "\xFE\xFF") ||
                       (text.size() >= 2 && (text[0] == '\0' || text[1] == '\0'));
    if (utf16) {
        return text8(
            "Hinweis: Der Quelltext ist offenbar UTF-16-Text; Korvex liest "
            "Windows-1252-Text (ein Byte je Zeichen).");
    }
    if (startsWith(text, "\xEF\xBB\xBF")) {
        return text8(
            "Hinweis: Der Quelltext beginnt mit der UTF-8-Kennung (BOM); Korvex liest "
            "Windows-1252-Text. Bitte ohne BOM als Windows-1252 speichern.");
    }
    if (upperCase(text).find("#CPU") == std::string::npos) {
        return text8(
            "Hinweis: Der Quelltext nennt keinen Treiber mit #cpu (z. B. „#cpu 80C32“); "
            "ohne ihn sind die Register- und Bitnamen des Controllers unbekannt.");
    }
    return {};
}

}  // namespace korvex
