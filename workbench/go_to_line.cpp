#include "workbench/go_to_line.h"

#include <cmath>
#include <cstdlib>
#include <string_view>

#include "base/cp1252.h"
#include "base/text.h"

namespace korvex {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

double LeadingNumber(const std::string& text) {
    std::string usable;
    for (const char c : text)
        if (c != ' ' && c != '\t' && c != '\n') usable += c;
    std::size_t at = 0;
    std::string number;
    if (at < usable.size() && (usable[at] == '+' || usable[at] == '-')) number += usable[at++];
    std::size_t digits = 0;
    for (; at < usable.size() && isDigit(usable[at]); ++at, ++digits) number += usable[at];
    if (at < usable.size() && usable[at] == '.') {
        number += usable[at++];
        for (; at < usable.size() && isDigit(usable[at]); ++at, ++digits) number += usable[at];
    }
    if (digits == 0) return 0;
    if (at < usable.size() && std::string_view("EeDd").find(usable[at]) != std::string_view::npos) {
        std::string exponent = "e";
        std::size_t next = at + 1;
        if (next < usable.size() && (usable[next] == '+' || usable[next] == '-'))
            exponent += usable[next++];
        const std::size_t exponentStart = exponent.size();
        for (; next < usable.size() && isDigit(usable[next]); ++next) exponent += usable[next];
        if (exponent.size() > exponentStart) number += exponent;
    }
    const double value = std::strtod(number.c_str(), nullptr);
    return std::isfinite(value) ? value : 0;
}

void GoToLine(TextControl& box, const PromptFunction& prompt) {
    const std::int32_t current = box.GetLineFromChar(box.SelStart()) + 1;
    const std::string answer =
        prompt(text8("Gehe zu Zeile"), text8("Neue Zeilennummer eingeben"), decimalText(current));
    const double target = LeadingNumber(answer) - 1;
    if (target < 1) return;

    // Line by line from the top, each line known by the CR LF that ends it.
    const std::string text = box.Text();
    std::size_t lineStart = 0;
    while (true) {
        const std::size_t lineEnd = text.find("\r\n", lineStart);
        if (lineEnd == std::string::npos) {
            lineStart = text.size();
            break;
        }
        if (box.GetLineFromChar(static_cast<std::int32_t>(lineEnd + 1)) == target) break;
        lineStart = lineEnd + 2;
    }
    box.SetSelStart(static_cast<std::int32_t>(lineStart));
}

}  // namespace korvex
