#include "html.h"

#include "base/failure.h"
#include "base/files.h"
#include "base/text.h"

namespace korvex::help {

std::string escaped(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            default: out += c;
        }
    }
    return out;
}

std::string page(std::string_view title, std::string_view body) {
    std::string text =
        "<!DOCTYPE html>\n<html lang=\"de\">\n<head>\n<meta charset=\"utf-8\">\n<title>";
    text += escaped(title);
    text += "</title>\n<link rel=\"stylesheet\" href=\"../korvex/hilfe.css\">\n</head>\n<body>\n";
    text += "<p class=\"kopf\"><a href=\"index.html\">Inhalt</a></p>\n";
    // The help window reads no style sheet: tables carry their frame themselves.
    text += replaceAll(body, "<table>", "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">");
    text += "\n</body>\n</html>\n";
    return text;
}

bool writePage(const std::string& path, const std::string& text) {
    try {
        replaceFileAtomically(path, text);
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

}  // namespace korvex::help
