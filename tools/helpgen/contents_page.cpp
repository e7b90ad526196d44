#include "contents_page.h"

#include <filesystem>
#include <map>

#include "base/failure.h"
#include "base/files.h"
#include "html.h"

namespace korvex::help {
namespace {

std::string titleOf(const std::string& path) {
    try {
        const std::string text = readWholeFile(path);
        const std::size_t start = text.find("<title>");
        const std::size_t end = text.find("</title>");
        if (start != std::string::npos && end != std::string::npos && end > start)
            return text.substr(start + 7, end - start - 7);
    } catch (const RuntimeFailure&) {
    }
    return {};
}

struct Group {
    std::string heading;
    int first;
    int last;
};

}  // namespace

std::string contentsPage(const std::string& folder) {
    std::map<int, std::string> topics;  // number, title (already escaped)
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        const std::string name = entry.path().filename().string();
        if (name.size() < 6 || name.substr(name.size() - 5) != ".html") continue;
        const std::string stem = name.substr(0, name.size() - 5);
        if (stem.find_first_not_of("0123456789") != std::string::npos) continue;
        topics[std::stoi(stem)] = titleOf(entry.path().string());
    }
    const Group groups[] = {
        {"Die Werkbank", 0, 1089},
        {"Der Befehlssatz des 8051", 1090, 1645},
        {"Die Sprache", 1650, 1849},
        {"Tabellen und Einstellungen", 1850, 99999},
    };
    std::string body =
        "<h1>Korvex-Hilfe</h1>\n<p>Hilfe zur Werkbank, zum Befehlssatz und zur Sprache. F1 im "
        "Editor zeigt die Seite des Worts an der Schreibmarke; die Register des eingestellten "
        "Controllers stehen unter „Hilfen &gt; Spezialfunktionsregister SFR“ (Umschalt+F4).</p>\n";
    for (const Group& group : groups) {
        std::string items;
        for (const auto& [number, title] : topics)
            if (number >= group.first && number <= group.last)
                items +=
                    "<li><a href=\"" + std::to_string(number) + ".html\">" + title + "</a></li>\n";
        if (!items.empty()) body += "<h2>" + group.heading + "</h2>\n<ul>\n" + items + "</ul>\n";
    }
    body += "<h2>Stichwörter</h2>\n<ul>\n<li><a href=\"exit.html\">EXIT</a></li>\n</ul>\n";
    return page("Korvex-Hilfe: Inhalt", body);
}

}  // namespace korvex::help
