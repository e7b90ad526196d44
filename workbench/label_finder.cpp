#include "workbench/label_finder.h"

#include "base/text.h"

namespace korvex {

std::vector<std::string> CollectLabels(const std::string& text) {
    std::vector<std::string> labels;
    std::size_t start = 0;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos;
         start = end + 2, end = text.find("\r\n", start)) {
        const std::string_view line(text.data() + start, end - start);
        if (line.find(':') == std::string_view::npos) continue;
        // The code part, without tabs and trailing blanks, must end in ":".
        std::string code(line.substr(0, line.find(';')));
        code = removeAll(code, '\t');
        while (!code.empty() && code.back() == ' ') code.pop_back();
        if (!code.empty() && code.back() == ':') labels.emplace_back(line);
    }
    if (labels.empty()) labels.emplace_back(kNoLabels);
    return labels;
}

std::string LabelRowText(const std::string& entry) {
    const std::string row = replaceAll(entry, "\t", "   ");
    const std::size_t first = row.find_first_not_of(' ');
    return first == std::string::npos ? std::string() : row.substr(first);
}

std::int32_t LabelPosition(const std::string& text, const std::string& entry) {
    if (entry == kNoLabels) return -1;
    const std::size_t found = text.find(entry + "\r\n");
    return found == std::string::npos ? -1 : static_cast<std::int32_t>(found);
}

}  // namespace korvex
