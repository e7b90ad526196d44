#include "instruction_pages.h"

#include <algorithm>
#include <cstdio>
#include <map>

#include "base/cp1252.h"
#include "base/text.h"
#include "disassembler/instruction_forms.h"
#include "disassembler/instruction_summary.h"
#include "html.h"
#include "instruction_texts.h"
#include "workbench/help_topics.h"

namespace korvex::help {
namespace {

std::string hex2(int value) {
    char text[4];
    std::snprintf(text, sizeof text, "%02X", value);
    return text;
}

struct Row {
    std::string form;
    std::vector<int> opcodes;
    int length = 0;
    int cycles = 0;
};

std::string opcodeText(const std::vector<int>& opcodes) {
    if (opcodes.size() == 1) return hex2(opcodes[0]) + "h";
    // Rows of eight registers, two indirect ones, or the eight pages of AJMP.
    const bool contiguous =
        opcodes.back() - opcodes.front() + 1 == static_cast<int>(opcodes.size());
    if (contiguous) return hex2(opcodes.front()) + "h – " + hex2(opcodes.back()) + "h";
    std::string text;
    for (const int op : opcodes) text += (text.empty() ? "" : ", ") + hex2(op) + "h";
    return text;
}

std::string example(std::string_view code) {
    return "<h2>Beispiel</h2>\n<pre class=\"beispiel\">" + escaped(code) + "</pre>\n";
}

}  // namespace

std::vector<InstructionPage> instructionPages() {
    // Forms grouped by topic, in the order of the opcode map.
    std::map<int, std::vector<Row>> rows;
    const auto& forms = instructionForms();
    for (int op = 0; op < 256; ++op) {
        const InstructionForm& form = forms[static_cast<std::size_t>(op)];
        if (form.length == 0) continue;
        const std::string pattern = form.pattern;
        const std::string mnemonic = pattern.substr(0, pattern.find(' '));
        const HelpRequest request = HelpForWord(mnemonic);
        if (request.kind != HelpRequest::Kind::Topic) continue;
        std::vector<Row>& topicRows = rows[request.topic];
        const std::string general = GeneralForm(pattern);
        auto same = std::find_if(topicRows.begin(), topicRows.end(),
                                 [&](const Row& row) { return row.form == general; });
        if (same == topicRows.end())
            topicRows.push_back(Row{general, {op}, form.length, MachineCycles(op)});
        else
            same->opcodes.push_back(op);
    }

    std::vector<InstructionPage> pages;
    for (std::size_t index = 0; index < kInstructionTextCount; ++index) {
        const InstructionText& entry = kInstructionTexts[index];
        const int topic = HelpForWord(std::string(entry.mnemonic)).topic;
        InstructionPage made;
        made.topic = topic;
        made.file = std::to_string(topic) + ".html";
        const std::string names = topic == 1500 ? "RET, RETI" : upperCase(entry.mnemonic);
        made.title = names + " – " + std::string(entry.title);
        std::string body = "<h1>" + escaped(made.title) + "</h1>\n<p>" + escaped(entry.text) +
                           "</p>\n<table>\n<tr><th>Form</th><th>Opcode</th><th>Bytes</th>"
                           "<th>Zyklen</th></tr>\n";
        for (const Row& row : rows[topic])
            body += "<tr><td><code>" + escaped(row.form) + "</code></td><td>" +
                    opcodeText(row.opcodes) + "</td><td>" + std::to_string(row.length) +
                    "</td><td>" + std::to_string(row.cycles) + "</td></tr>\n";
        body += "</table>\n<p>Flags: " +
                escaped(entry.flags.empty()
                            ? "keine (P folgt stets dem Inhalt des Akkus)"
                            : std::string(entry.flags) + "; P folgt stets dem Inhalt des Akkus") +
                ".</p>\n";
        body +=
            "<p>Rn steht für R0 bis R7 (n im Opcode), Ri für R0 oder R1, direct für eine "
            "Adresse im internen RAM oder ein SFR, rel für ein Sprungziel im Abstand -128 bis "
            "+127, ein Zyklus für 12 Takte des Oszillators.</p>\n";
        body += example(entry.example);
        made.html = page(made.title, body);
        pages.push_back(std::move(made));
    }
    return pages;
}

}  // namespace korvex::help
