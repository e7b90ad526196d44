#include "workbench/help_pages.h"

#include "base/cp1252.h"

namespace korvex {

std::string HelpPagePath(const std::string& programFolder, const HelpRequest& request) {
    std::string folder = request.file;
    if (const std::size_t dot = folder.rfind(".hlp"); dot != std::string::npos) folder.resize(dot);
    std::string page = "index.html";
    if (request.kind == HelpRequest::Kind::Topic) page = std::to_string(request.topic) + ".html";
    // A keyword has its own page, named in lower case.
    if (request.kind == HelpRequest::Kind::Keyword) {
        page = request.keyword;
        for (char& c : page) c = static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c);
        page += ".html";
    }
    return programFolder + "help/" + folder + "/" + page;
}

}  // namespace korvex
