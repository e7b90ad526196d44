#include "workbench/help_topics.h"

#include <algorithm>
#include <set>

#include "base/cp1252.h"
#include "workbench/controller_choice.h"

namespace korvex {
namespace {

struct WordTopic {
    int topic;
    std::vector<std::string_view> words;
};

const std::vector<WordTopic>& wordTopics() {
    static const std::vector<WordTopic> kTopics = {
        {1090, {"ADD"}},
        {1100, {"ADDC"}},
        {1110, {"SUBB"}},
        {1120, {"INC"}},
        {1140, {"DEC"}},
        {1150, {"DA"}},
        {1160, {"DIV"}},
        {1170, {"MUL"}},
        {1180, {"ANL"}},
        {1200, {"ORL"}},
        {1220, {"XRL"}},
        {1240, {"CLR"}},
        {1250, {"CPL"}},
        {1260, {"RL"}},
        {1270, {"RLC"}},
        {1280, {"RR"}},
        {1290, {"RRC"}},
        {1300, {"SWAP"}},
        {1310, {"MOV"}},
        {1360, {"MOVC"}},
        {1370, {"MOVX"}},
        {1380, {"PUSH"}},
        {1390, {"POP"}},
        {1400, {"XCH"}},
        {1410, {"XCHD"}},
        {1430, {"SETB"}},
        {1480, {"ACALL"}},
        {1490, {"LCALL"}},
        {1500, {"RET", "RETI"}},
        {1510, {"AJMP"}},
        {1520, {"LJMP"}},
        {1530, {"SJMP"}},
        {1545, {"NOP"}},
        {1550, {"JZ"}},
        {1560, {"JNZ"}},
        {1570, {"CJNE"}},
        {1580, {"DJNZ"}},
        {1590, {"JC"}},
        {1600, {"JNC"}},
        {1610, {"JB"}},
        {1620, {"JNB"}},
        {1630, {"JBC"}},
        {1640, {"JMP"}},
        {1650, {"CALL"}},
        {1660, {"END"}},
        {1670, {"HIER"}},
        {1680, {"IF", "THEN", "ELSEIF", "ELSE"}},
        {1690, {"LOOP", "WHILE", "UNTIL"}},
        {1700, {"FOR", "NEXT"}},
        {1710, {"#DEF", "DEF"}},
        {1720, {"CPU", "#CPU"}},
        {1730, {"ORG"}},
        {1740, {"DB", "DW"}},
        {1750, {";"}},
        {1760, {"LOW", "#LOW", "HIGH", "#HIGH"}},
        {1770, {"#CONST", "#BIT", "#BYTE", "#WORD", "BIT", "BYTE", "WORD", "CONST"}},
        {1774, {"#EXCLUDE"}},
        {1790, {"#INCLUDE"}},
        {1795, {"#PART", "OF"}},
        {1840, {"#USE"}},
    };
    return kTopics;
}

struct CommandTopic {
    std::string_view command;
    int topic;
};

// The topics of the language's help commands.
constexpr CommandTopic kCommandTopics[] = {
    {"MnHelpAIFStrukturen", 1680},
    {"MnHelpAForStrukturen", 1700},
    {"MnHelpALoopStrukturen", 1690},
    {"MnHelpABefehlssyntax", 1750},
    {"MnHelpAZahlen", 1760},
    {"MnHelpABerechnungen", 1810},
    {"MnHelpAVariablen", 1770},
    {"MnHelpAExclude", 1774},
    {"MnHelpALabel", 1780},
    {"MnHelpATabellen", 1740},
    {"MnHelpCPUanweisung", 1720},
    {"MnHelpAUse", 1840},
    {"MnHelpAAdresszuweisung", 1730},
    {"MnHelpAMakro", 1710},
    {"MnHelpAIncludedatei", 1790},
    {"MnHelpAPartof", 1795},
    {"MnHelpANSI", 1850},
    {"MnHelpCopyright", 1800},
    // The help buttons of the dialogs.
    {"frmCompile", 100},
    {"frmDisassKonfig", 1830},
    {"frmEndungen", 1860},
    {"FrmSetup", 1870},
};

constexpr CommandTopic kRegisterTopics[] = {
    {"MnHelpSFRBit", 110},
    {"MnHelpInterrupt", 120},
    {"MnHelpReset", 140},
};

HelpRequest topic(std::string file, int number) {
    HelpRequest request;
    request.kind = HelpRequest::Kind::Topic;
    request.file = std::move(file);
    request.topic = number;
    return request;
}

HelpRequest contents(std::string file) {
    HelpRequest request;
    request.kind = HelpRequest::Kind::Contents;
    request.file = std::move(file);
    return request;
}

}  // namespace

HelpRequest HelpForWord(const std::string& word) {
    const std::string key = upperCase(word);
    for (const WordTopic& entry : wordTopics())
        if (std::find(entry.words.begin(), entry.words.end(), key) != entry.words.end())
            return topic(std::string(kMainHelpFile), entry.topic);
    if (!key.empty() && key[0] == '#') return topic(std::string(kMainHelpFile), 1760);
    if (key == "EXIT") {
        HelpRequest request;
        request.kind = HelpRequest::Kind::Keyword;
        request.file = std::string(kMainHelpFile);
        request.keyword = "Exit";
        return request;
    }
    return contents(std::string(kMainHelpFile));
}

HelpRequest HelpForCommand(std::string_view command, const std::string& controllerName) {
    for (const CommandTopic& entry : kCommandTopics)
        if (entry.command == command) return topic(std::string(kMainHelpFile), entry.topic);
    const std::string registers = RegisterHelpFile(controllerName);
    if (command == "MnHelpSFR") return contents(registers);
    for (const CommandTopic& entry : kRegisterTopics)
        if (entry.command == command) return topic(registers, entry.topic);
    if (command == "MnHelpHilfe") return contents(std::string(kMainHelpFile));
    HelpRequest window;
    window.kind = HelpRequest::Kind::Window;
    window.keyword = std::string(command);
    return window;
}

std::vector<int> MainHelpTopics() {
    std::set<int> topics;
    for (const WordTopic& entry : wordTopics()) topics.insert(entry.topic);
    for (const CommandTopic& entry : kCommandTopics) topics.insert(entry.topic);
    return {topics.begin(), topics.end()};
}

std::vector<int> RegisterHelpTopics() {
    std::vector<int> topics;
    for (const CommandTopic& entry : kRegisterTopics) topics.push_back(entry.topic);
    return topics;
}

}  // namespace korvex
