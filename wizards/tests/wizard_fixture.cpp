#include "wizard_fixture.h"

#include "base/cp1252.h"
#include "base/text.h"
#include "testing/process.h"

namespace korvex::wizards::testing {
namespace {

// Each generation asks once for the date.
WizardOptions fixedOptions(int* generations) {
    WizardOptions options;
    options.numberFormat.decimalMark = ',';
    options.now = [generations] {
        ++*generations;
        return std::string(kFixedDate);
    };
    return options;
}

void split(const std::string& control, std::string& name, int& index) {
    const std::size_t open = control.find('(');
    name = control.substr(0, open);
    index =
        open == std::string::npos
            ? -1
            : static_cast<int>(parseDecimal(control.substr(open + 1, control.size() - open - 2)));
}

}  // namespace

WizardFixture::WizardFixture() : wizard_(host_, fixedOptions(&generations_)) {
    wizard_.openWizard();
}

void WizardFixture::set(const std::string& control, const std::string& value) {
    std::string name;
    int index = -1;
    split(control, name, index);
    wizard_.userSets(name, index, text8(value));
    const auto ref = wizard_.controls().find(name, index);
    const bool typed =
        std::holds_alternative<TextBox*>(*ref) ||
        (std::holds_alternative<ComboBox*>(*ref) && std::get<ComboBox*>(*ref)->editable);
    if (typed) wizard_.userLeaves(name, index);
}

void WizardFixture::click(const std::string& control) {
    wizard_.userClicks(control);
}

void WizardFixture::apply(const std::vector<std::string>& settings) {
    for (const std::string& setting : settings) {
        const std::size_t equals = setting.find('=');
        set(setting.substr(0, equals), setting.substr(equals + 1));
    }
}

std::vector<std::string> WizardFixture::lines() const {
    std::vector<std::string> out;
    const std::string& text = program();
    std::size_t from = 0;
    while (from < text.size()) {
        const std::size_t end = text.find("\r\n", from);
        out.push_back(toUtf8(text.substr(from, end - from)));
        if (end == std::string::npos) break;
        from = end + 2;
    }
    return out;
}

bool WizardFixture::hasLine(const std::string& utf8Line) const {
    for (const auto& l : lines()) {
        if (l == utf8Line) return true;
    }
    return false;
}

std::vector<std::string> WizardFixture::boxTexts(ScriptedWizardHost::Kind kind) const {
    std::vector<std::string> out;
    for (const auto& box : host_.boxes) {
        if (box.kind == kind) out.push_back(toUtf8(box.text));
    }
    return out;
}

AssembledSource assembleProgram(const std::string& program) {
    const korvex::testing::ScratchFolder folder;
    return korvex::testing::assembleText(program, std::string(KORVEX_DATA_DIR) + "/cpu/",
                                         folder.path());
}

std::optional<std::int32_t> stopAddress(const AssembledSource& assembled,
                                        const std::string& stopStatement) {
    const auto rows = korvex::testing::listedRows(assembled.listing);
    std::size_t stop = rows.size();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::string& source = rows[i].source;
        if (cleaned(upperCase(source.substr(0, source.find(';')))) == stopStatement) stop = i;
    }
    for (std::size_t i = stop; i < rows.size(); ++i) {
        if (!rows[i].bytes.empty())
            return static_cast<std::int32_t>(parseHexPrefix(rows[i].address));
    }
    return std::nullopt;
}

}  // namespace korvex::wizards::testing
