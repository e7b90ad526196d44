#include "instruction_pages.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

#include "base/cp1252.h"
#include "base/text.h"
#include "disassembler/instruction_forms.h"
#include "html.h"
#include "instruction_texts.h"
#include "workbench/help_topics.h"

namespace korvex::help {
namespace {

// A form as the data sheets write it: operands by their kind.
std::string generalForm(std::string pattern) {
    const std::pair<std::string_view, std::string_view> kinds[] = {
        {"@r%i", "@Ri"},
        {"r%r", "Rn"},
        {"#%X%Yh", "#data16"},
        {"%X%Yh", "addr16"},
        {"#%Xh", "#data"},
        {"#%Yh", "#data"},
        {"/%B", "/bit"},
        {"%B", "bit"},
        {"%T", "rel"},
        {"%A"
         "h",
         "addr11"},
        {"%E", "direct"},
        {"%D", "direct"},
        {"@r0", "@Ri"},
        {"@r1", "@Ri"},
    };
    for (const auto& [field, kind] : kinds) pattern = replaceAll(pattern, field, kind);
    // The mnemonic in capitals, the registers as the data sheets write them.
    const std::size_t blank = pattern.find(' ');
    std::string mnemonic = upperCase(pattern.substr(0, blank));
    std::string operands = blank == std::string::npos ? "" : pattern.substr(blank);
    for (const auto& [small, big] :
         std::initializer_list<std::pair<std::string_view, std::string_view>>{{" a,", " A,"},
                                                                              {", a", ", A"},
                                                                              {" c,", " C,"},
                                                                              {", c", ", C"},
                                                                              {"@a+", "@A+"},
                                                                              {"dptr", "DPTR"},
                                                                              {"+pc", "+PC"},
                                                                              {" ab", " AB"}})
        operands = replaceAll(operands, small, big);
    if (operands == " a") operands = " A";
    if (operands == " c") operands = " C";
    return mnemonic + operands;
}

// Machine cycles of the standard core (12 clocks each).
int cycles(int opcode, const std::string& pattern) {
    const std::string mnemonic = pattern.substr(0, pattern.find(' '));
    if (mnemonic == "mul" || mnemonic == "div") return 4;
    static const std::set<std::string> twoCycles = {
        "ajmp", "ljmp", "sjmp", "jmp", "acall", "lcall", "ret",  "reti", "jc",   "jnc", "jb",
        "jnb",  "jbc",  "jz",   "jnz", "cjne",  "djnz",  "movc", "movx", "push", "pop"};
    if (twoCycles.count(mnemonic) != 0) return 2;
    // Two-cycle moves and logic: direct destinations from memory, immediate
    // into direct, the 16-bit loads and the carry's bit logic.
    switch (opcode) {
        case 0x43:
        case 0x53:
        case 0x63:  // orl/anl/xrl direct,#data
        case 0x72:
        case 0x82:
        case 0xA0:
        case 0xB0:  // orl/anl c,(/)bit
        case 0x75:
        case 0x85:
        case 0x86:
        case 0x87:  // mov direct,#/direct/@Ri
        case 0x90:
        case 0x92:
        case 0xA3:  // mov dptr; mov bit,c; inc dptr
        case 0xA6:
        case 0xA7:  // mov @Ri,direct
            return 2;
        default: break;
    }
    if (opcode >= 0x88 && opcode <= 0x8F) return 2;  // mov direct,Rn
    if (opcode >= 0xA8 && opcode <= 0xAF) return 2;  // mov Rn,direct
    return 1;
}

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
        const std::string general = generalForm(pattern);
        auto same = std::find_if(topicRows.begin(), topicRows.end(),
                                 [&](const Row& row) { return row.form == general; });
        if (same == topicRows.end())
            topicRows.push_back(Row{general, {op}, form.length, cycles(op, pattern)});
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
